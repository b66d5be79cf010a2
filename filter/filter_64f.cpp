// The older 64f filter: true convolution with a caller anchor and no border handling. The
// neighbourhood of (x, y) starts at (x - (kw - 1 - ax), y - (kh - 1 - ay)) and the kernel is
// read backward over it. Column order of the sum: kernels under 6 wide in one pass; wider ones
// in blocks of four neighbourhood columns, a remainder of 1 merged into a last block of 5 and
// a remainder of 2 taken as two blocks of 3, so that no block is a single column. The first
// block stores its sum, later ones add theirs. Inside a block: rows, then columns.
#include <immintrin.h>

#include <cstddef>

#include "core/export.h"
#include "core/isa.h"
#include "core/rows.h"
#include "filter/filter_64f.h"
#include "filter/filter_sizes.h"

namespace tpx::filter {

int Filter64fBlocks(int kw, int kh, int (&widths)[4], int* count) {
  // Returns the width of the leading run of four-column blocks; `widths` the tail blocks.
  *count = 0;
  if (kw < 6 || kh == 1) {
    widths[(*count)++] = kw;
    return 0;
  }
  const int q = kw / 4, r = kw % 4;
  int lead = q * 4;
  if (r == 1) {
    lead -= 4;
    widths[(*count)++] = 5;
  } else if (r == 2) {
    lead -= 4;
    widths[(*count)++] = 3;
    widths[(*count)++] = 3;
  } else if (r == 3) {
    widths[(*count)++] = 3;
  }
  return lead;
}

template <Isa kI>
void Filter64fRows(const double* src, std::ptrdiff_t srcStep, double* dst, std::ptrdiff_t dstStep, TpxSize roi,
                   const double* K, int kw, int kh, TpxPoint anchor) {
  // Top-left of the neighbourhood of destination pixel (0, 0).
  const double* nb = PixelAt(src, srcStep, -(kw - 1 - anchor.x), -(kh - 1 - anchor.y), 1);
  int tail[4], nt = 0;
  const int lead = Filter64fBlocks(kw, kh, tail, &nt);
  auto coef = [&](int r, int c) { return K[(kh - 1 - r) * kw + (kw - 1 - c)]; };
  // One block of columns [c0, c0 + cw) over one destination row.
  auto block = [&](const double* top, double* d, int c0, int cw, bool store) {
    int x = 0;
    if constexpr (kI == Isa::kAvx) {
      // Later blocks add into the destination, so the tail is scalar rather than overlapped.
      for (; x + 4 <= roi.width; x += 4) {
        __m256d s = _mm256_setzero_pd();
        for (int r = 0; r < kh; ++r) {
          const double* row = Advance(top, srcStep * r) + x;
          for (int c = c0; c < c0 + cw; ++c) {
            const __m256d p = _mm256_mul_pd(_mm256_set1_pd(coef(r, c)), _mm256_loadu_pd(row + c));
            s = (r == 0 && c == c0) ? p : _mm256_add_pd(s, p);
          }
        }
        _mm256_storeu_pd(d + x, store ? s : _mm256_add_pd(_mm256_loadu_pd(d + x), s));
      }
    }
    for (; x < roi.width; ++x) {
      double s = 0.0;
      for (int r = 0; r < kh; ++r) {
        const double* row = Advance(top, srcStep * r) + x;
        for (int c = c0; c < c0 + cw; ++c) {
          const double p = coef(r, c) * row[c];
          s = (r == 0 && c == c0) ? p : s + p;
        }
      }
      d[x] = store ? s : d[x] + s;
    }
  };
  for (int y = 0; y < roi.height; ++y) {
    const double* top = Advance(nb, srcStep * y);
    double* d = Advance(dst, dstStep * y);
    int c0 = 0;
    for (; c0 < lead; c0 += 4) block(top, d, c0, 4, c0 == 0);
    for (int b = 0; b < nt; ++b) {
      block(top, d, c0, tail[b], c0 == 0);
      c0 += tail[b];
    }
  }
}
template void Filter64fRows<Isa::kScalar>(const double*, std::ptrdiff_t, double*, std::ptrdiff_t, TpxSize,
                                          const double*, int, int, TpxPoint);
template void Filter64fRows<Isa::kAvx>(const double*, std::ptrdiff_t, double*, std::ptrdiff_t, TpxSize,
                                       const double*, int, int, TpxPoint);

}  // namespace tpx::filter

using namespace tpx::filter;

TPX_API TpxStatus tpxiFilterGetBufSize_64f_C1R(TpxSize kernelSize, int roiWidth, int* pSize) {
  if (!pSize) return tpxErrNullPtr;
  if (kernelSize.width < 1 || kernelSize.height < 1 || roiWidth < 1) return tpxErrSize;
  *pSize = Filter64fBufBytes(kernelSize.width, kernelSize.height, roiWidth);
  return tpxOk;
}

// Order: pointers (the buffer is not needed), sizes, steps against the rows they must hold.
TPX_API TpxStatus tpxiFilter_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                     TpxSize dstRoiSize, const Tpx64f* pKernel, TpxSize kernelSize,
                                     TpxPoint anchor, Tpx8u* pBuffer) {
  (void)pBuffer;
  if (!pSrc || !pDst || !pKernel) return tpxErrNullPtr;
  if (dstRoiSize.width < 1 || dstRoiSize.height < 1 || kernelSize.width < 1 || kernelSize.height < 1)
    return tpxErrSize;
  const long long W = dstRoiSize.width, kw = kernelSize.width;
  if (srcStep < (kw + W) * 8 - 8 || dstStep < W * 8) return tpxErrStep;
  Filter64fRows<tpx::kIsa>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel, kernelSize.width, kernelSize.height, anchor);
  return tpxOk;
}
