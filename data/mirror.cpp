// Mirror. Axes 3 and 4 (the diagonals) run first: pointers, steps below 1, extents, then an
// overlap test in both directions. Otherwise a call on one image (same pointer, same step) runs
// the in-place form before any check; then pointers, extents and the axis.
#include <cstdint>

#include "core/checks.h"
#include "core/export.h"
#include "core/layout.h"
#include "data/mirror_rows.h"
#include "data/transpose_rows.h"

namespace tpx {
namespace {

// True where a row of image a (rows of aBytes, aRows of them, aStep apart) meets the bounding
// byte range of image b. Steps are at least 1 here.
bool RowsMeet(const void* a, std::ptrdiff_t aStep, std::ptrdiff_t aBytes, int aRows, const void* b,
              std::ptrdiff_t bStep, std::ptrdiff_t bBytes, int bRows) {
  const std::uintptr_t lo = reinterpret_cast<std::uintptr_t>(b);
  const std::uintptr_t hi = lo + static_cast<std::uintptr_t>(bRows - 1) * bStep + bBytes;
  std::uintptr_t row = reinterpret_cast<std::uintptr_t>(a);
  for (int r = 0; r < aRows; ++r, row += aStep)
    if (row < hi && row + aBytes > lo) return true;
  return false;
}

// The diagonal axes: 3 is the main diagonal (d(x, y) = s(y, x)), 4 the other one
// (d(x, y) = s(W-1-y, H-1-x) in source extents W x H); the destination is H wide and W high.
template <class T, Layout kL>
TpxStatus MirrorDiagonal(const T* s, int ss, T* d, int ds, TpxSize roi, int flip) {
  if (!s || !d) return tpxErrNullPtr;
  if (ss < 1 || ds < 1) return tpxErrStep;
  if (BadSize(roi)) return tpxErrSize;
  constexpr int kPb = static_cast<int>(sizeof(T)) * Stride(kL);
  const std::ptrdiff_t srcRow = static_cast<std::ptrdiff_t>(roi.width) * kPb;
  const std::ptrdiff_t dstRow = static_cast<std::ptrdiff_t>(roi.height) * kPb;
  if (RowsMeet(s, ss, srcRow, roi.height, d, ds, dstRow, roi.width) ||
      RowsMeet(d, ds, dstRow, roi.width, s, ss, srcRow, roi.height))
    return tpxErrNotSupportedMode;
  constexpr int kA = KeepsAlpha(kL) ? static_cast<int>(sizeof(T)) : 0;
  const auto* sb = reinterpret_cast<const unsigned char*>(s);
  auto* db = reinterpret_cast<unsigned char*>(d);
  if (flip == 3)
    TransposeTiles<kPb, false, kA>(sb, ss, db, ds, roi);
  else  // the source rotated by a half turn, transposed: from its last pixel, backwards
    TransposeTiles<kPb, true, kA>(sb + static_cast<std::ptrdiff_t>(roi.height - 1) * ss + srcRow - kPb, -ss, db, ds,
                                  roi);
  return tpxOk;
}

// The in-place form takes axes 0 to 2 only: a diagonal changes the image's shape. The axis test
// is unsigned, so a negative axis fails it too.
template <class T, Layout kL>
TpxStatus MirrorInPlaceImpl(T* p, int step, TpxSize roi, int flip) {
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSize>({p}, roi)) return st;
  if (static_cast<unsigned>(flip) > 2) return tpxErrMirrorAxis;
  MirrorInPlace<T, kL>(p, step, roi, flip);
  return tpxOk;
}

template <class T, Layout kL>
TpxStatus MirrorImpl(const T* s, int ss, T* d, int ds, TpxSize roi, int flip) {
  if (flip == 3 || flip == 4) return MirrorDiagonal<T, kL>(s, ss, d, ds, roi, flip);
  if (s == d && ss == ds) return MirrorInPlaceImpl<T, kL>(d, ds, roi, flip);
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSize>({s, d}, roi)) return st;
  if (static_cast<unsigned>(flip) > 2) return tpxErrMirrorAxis;
  MirrorImage<T, kL>(s, ss, d, ds, roi, flip);
  return tpxOk;
}

}  // namespace
}  // namespace tpx

using tpx::Layout;

#define TPX_MIRROR_TYPES(X) X(8u) X(16u) X(16s) X(32s) X(32f)

#define TPX_DEFINE_MIRROR_FORM(T, L)                                                                   \
  TPX_API TpxStatus tpxiMirror_##T##_##L##R(const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, \
                                            TpxSize roiSize, TpxAxis flip) {                           \
    return tpx::MirrorImpl<Tpx##T, Layout::L>(pSrc, srcStep, pDst, dstStep, roiSize, flip);            \
  }                                                                                                    \
  TPX_API TpxStatus tpxiMirror_##T##_##L##IR(Tpx##T* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip) { \
    return tpx::MirrorInPlaceImpl<Tpx##T, Layout::L>(pSrcDst, srcDstStep, roiSize, flip);              \
  }
#define TPX_DEFINE_MIRROR(T) \
  TPX_DEFINE_MIRROR_FORM(T, C1) TPX_DEFINE_MIRROR_FORM(T, C3) TPX_DEFINE_MIRROR_FORM(T, C4) TPX_DEFINE_MIRROR_FORM(T, AC4)

TPX_MIRROR_TYPES(TPX_DEFINE_MIRROR)
