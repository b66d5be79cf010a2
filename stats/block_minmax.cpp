// tpxiBlockMinMax_*_C1R: the extremes of every block of a grid, and of all blocks together.
#include <algorithm>
#include <cstddef>
#include <cstring>

#include "core/export.h"
#include "core/isa.h"
#include "core/rows.h"
#include "stats/block_minmax_rows.h"
#include "stats/members.h"

namespace tpx::stats {
namespace {

// Columns of one block row that the vertical pass keeps at a time (a whole number of blocks
// where a block is narrower; otherwise a block spans chunks and its pieces are joined).
constexpr int kBlockChunk = 2048;

// The running extreme of one kind (P = MinLanes or MaxLanes) over the blocks of a grid: the
// block now being joined across chunks, and the global extreme of the blocks emitted so far.
template <class P>
struct BlockRun {
  using T = typename P::Acc;
  T* dstRow = nullptr;
  T current{};
  T global{};
  bool haveGlobal = false;
  void Piece(T part, bool opensBlock) { current = opensBlock ? part : P::Join(current, part); }
  void Emit(long long b) {
    dstRow[b] = current;
    global = haveGlobal ? P::Join(global, current) : current;
    haveGlobal = true;
  }
};

// The grid walk: for each block row, chunk by chunk, the column extremes of its rows (the first
// row copied, the others joined), then each block's columns folded. Blocks are emitted and
// joined into the global extreme in row-major order. kFixed = 16: the 16 by 16 kernel.
template <class T, bool kMin, bool kMax, int kFixed>
void BlockGrid(const T* src, int srcStep, TpxSize size, TpxSize block, T* dMin, int dMinStep, T* dMax,
               int dMaxStep, T* gMin, T* gMax) {
  const long long bw = kFixed ? kFixed : block.width, bh = kFixed ? kFixed : block.height;
  const long long w = size.width, h = size.height;
  const int chunk = bw <= kBlockChunk ? static_cast<int>(kBlockChunk / bw * bw) : kBlockChunk;
  alignas(32) T colMin[kBlockChunk];
  alignas(32) T colMax[kBlockChunk];
  BlockRun<MinLanes<T>> mn;
  BlockRun<MaxLanes<T>> mx;
  for (long long y0 = 0, by = 0; y0 < h; y0 += bh, ++by) {
    const int rows = static_cast<int>(std::min(bh, h - y0));
    const T* top = Advance(src, static_cast<std::ptrdiff_t>(y0 * srcStep));
    if constexpr (kMin) mn.dstRow = Advance(dMin, static_cast<std::ptrdiff_t>(by * dMinStep));
    if constexpr (kMax) mx.dstRow = Advance(dMax, static_cast<std::ptrdiff_t>(by * dMaxStep));
    for (long long x0 = 0; x0 < w; x0 += chunk) {
      const int cw = static_cast<int>(std::min<long long>(chunk, w - x0));
      const T* r = top + x0;
      if constexpr (kMin) std::memcpy(colMin, r, sizeof(T) * static_cast<std::size_t>(cw));
      if constexpr (kMax) std::memcpy(colMax, r, sizeof(T) * static_cast<std::size_t>(cw));
      for (int k = 1; k < rows; ++k) {
        r = Advance(r, srcStep);
        VerticalStep<kIsa, T, kMin, kMax>(r, cw, colMin, colMax);
      }
      for (long long s = x0; s < x0 + cw;) {
        const long long b = s / bw, blockEnd = std::min(w, (b + 1) * bw), e = std::min(x0 + cw, blockEnd);
        const int len = static_cast<int>(e - s);
        const bool opens = s == b * bw, closes = e == blockEnd;
        if constexpr (kMin) {
          mn.Piece(SegmentFold<kIsa, MinLanes<T>>(colMin + (s - x0), len), opens);
          if (closes) mn.Emit(b);
        }
        if constexpr (kMax) {
          mx.Piece(SegmentFold<kIsa, MaxLanes<T>>(colMax + (s - x0), len), opens);
          if (closes) mx.Emit(b);
        }
        s = e;
      }
    }
  }
  // A global extreme whose block array was not asked for receives the image's first sample.
  if (gMin) *gMin = kMin ? mn.global : src[0];
  if (gMax) *gMax = kMax ? mx.global : src[0];
}

template <class T, int kFixed>
void BlockGridFor(const T* src, int srcStep, TpxSize size, TpxSize block, T* dMin, int dMinStep, T* dMax,
                  int dMaxStep, T* gMin, T* gMax) {
  if (dMin && dMax)
    BlockGrid<T, true, true, kFixed>(src, srcStep, size, block, dMin, dMinStep, dMax, dMaxStep, gMin, gMax);
  else if (dMin)
    BlockGrid<T, true, false, kFixed>(src, srcStep, size, block, dMin, dMinStep, dMax, dMaxStep, gMin, gMax);
  else
    BlockGrid<T, false, true, kFixed>(src, srcStep, size, block, dMin, dMinStep, dMax, dMaxStep, gMin, gMax);
}

// Checks: source null or both block arrays null; any source or block extent below 1; the
// source row wider than srcStep; bx samples wider than the step of a block array given.
template <class T>
TpxStatus BlockMinMaxImpl(const T* src, int srcStep, TpxSize size, T* dMin, int dMinStep, T* dMax, int dMaxStep,
                          TpxSize block, T* gMin, T* gMax) {
  if (!src || (!dMin && !dMax)) return tpxErrNullPtr;
  if (size.width < 1 || size.height < 1 || block.width < 1 || block.height < 1) return tpxErrSize;
  constexpr long long kSz = sizeof(T);
  if (size.width * kSz > srcStep) return tpxErrStep;
  const long long bx = (size.width - 1LL) / block.width + 1;
  if (dMin && bx * kSz > dMinStep) return tpxErrStep;
  if (dMax && bx * kSz > dMaxStep) return tpxErrStep;
  if (block.width == 16 && block.height == 16)
    BlockGridFor<T, 16>(src, srcStep, size, block, dMin, dMinStep, dMax, dMaxStep, gMin, gMax);
  else
    BlockGridFor<T, 0>(src, srcStep, size, block, dMin, dMinStep, dMax, dMaxStep, gMin, gMax);
  return tpxOk;
}

}  // namespace
}  // namespace tpx::stats

#define TPX_DEFINE_BLOCK_MINMAX(t)                                                                      \
  TPX_API TpxStatus tpxiBlockMinMax_##t##_C1R(const Tpx##t* pSrc, int srcStep, TpxSize srcSize,         \
                                              Tpx##t* pDstMin, int dstMinStep, Tpx##t* pDstMax,          \
                                              int dstMaxStep, TpxSize blockSize, Tpx##t* pDstGlobalMin,  \
                                              Tpx##t* pDstGlobalMax) {                                   \
    return tpx::stats::BlockMinMaxImpl<Tpx##t>(pSrc, srcStep, srcSize, pDstMin, dstMinStep, pDstMax,     \
                                               dstMaxStep, blockSize, pDstGlobalMin, pDstGlobalMax);     \
  }
TPX_BLOCK_MINMAX_MEMBERS(TPX_DEFINE_BLOCK_MINMAX)
