// SwapChannels: destination channel i receives source channel dstOrder[i].
// Check order, all forms but C3C4R: pSrc and pDst, each step for being exactly 0 (a negative step
// passes), the extents, dstOrder, then its entries. C3C4R: the three pointers, the extents, the
// steps below 1, then the entries.
#include "core/checks.h"
#include "core/export.h"
#include "data/pixel_rows.h"

namespace tpx {
namespace {

// kSi/kSo samples a source/destination pixel; kAlpha: AC4, three entries, alpha stays. An entry
// must name a source channel the form reads: 0..2 for C3 and AC4 sources, 0..3 for C4 ones (the
// test is unsigned, so a negative entry fails it too).
template <class T, int kSi, int kSo, bool kAlpha = false>
TpxStatus SwapImpl(const T* s, int ss, T* d, int ds, TpxSize roi, const int* order, bool inPlace) {
  if (!s || !d) return tpxErrNullPtr;
  if (ss == 0 || ds == 0) return tpxErrStep;
  if (BadSize(roi)) return tpxErrSize;
  if (!order) return tpxErrNullPtr;
  constexpr int kEntries = kAlpha ? 3 : kSo;
  constexpr unsigned kChannels = kAlpha ? 3 : kSi;
  int from[kSo];
  for (int c = 0; c < kSo; ++c) from[c] = kKeep;
  for (int c = 0; c < kEntries; ++c) {
    if (static_cast<unsigned>(order[c]) >= kChannels) return tpxErrChannelOrder;
    from[c] = order[c];
  }
  MapImage(s, ss, d, ds, roi, PixelMap<T, kSi, kSo>(from, T{}, inPlace));
  return tpxOk;
}

// C3C4R: an entry of 0..2 takes that source channel, 3 writes val, a larger one leaves the
// destination channel as it is; only a negative entry is refused. This is how alpha is added
// (3) or kept (4 and above).
template <class T>
TpxStatus SwapC3C4Impl(const T* s, int ss, T* d, int ds, TpxSize roi, const int* order, T val) {
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSizeStep>({s, d, order}, roi, {ss, ds})) return st;
  int from[4];
  for (int c = 0; c < 4; ++c) {
    if (order[c] < 0) return tpxErrChannelOrder;
    from[c] = order[c] < 3 ? order[c] : order[c] == 3 ? kTakeVal : kKeep;
  }
  MapImage(s, ss, d, ds, roi, PixelMap<T, 3, 4>(from, val, false));
  return tpxOk;
}

}  // namespace
}  // namespace tpx

#define TPX_SWAP_TYPES(X) X(8u) X(16u) X(16s) X(32s) X(32f)
#define TPX_SWAP_ARGS(T) const Tpx##T *pSrc, int srcStep, Tpx##T *pDst, int dstStep, TpxSize roiSize
#define TPX_SWAP_PASS pSrc, srcStep, pDst, dstStep, roiSize

#define TPX_DEFINE_SWAP(T)                                                                                     \
  TPX_API TpxStatus tpxiSwapChannels_##T##_C3R(TPX_SWAP_ARGS(T), const int dstOrder[3]) {                     \
    return tpx::SwapImpl<Tpx##T, 3, 3>(TPX_SWAP_PASS, dstOrder, false);                                        \
  }                                                                                                            \
  TPX_API TpxStatus tpxiSwapChannels_##T##_C4R(TPX_SWAP_ARGS(T), const int dstOrder[4]) {                     \
    return tpx::SwapImpl<Tpx##T, 4, 4>(TPX_SWAP_PASS, dstOrder, false);                                        \
  }                                                                                                            \
  TPX_API TpxStatus tpxiSwapChannels_##T##_AC4R(TPX_SWAP_ARGS(T), const int dstOrder[3]) {                    \
    return tpx::SwapImpl<Tpx##T, 4, 4, true>(TPX_SWAP_PASS, dstOrder, false);                                  \
  }                                                                                                            \
  TPX_API TpxStatus tpxiSwapChannels_##T##_C4C3R(TPX_SWAP_ARGS(T), const int dstOrder[3]) {                   \
    return tpx::SwapImpl<Tpx##T, 4, 3>(TPX_SWAP_PASS, dstOrder, false);                                        \
  }                                                                                                            \
  TPX_API TpxStatus tpxiSwapChannels_##T##_C3C4R(TPX_SWAP_ARGS(T), const int dstOrder[4], Tpx##T val) {       \
    return tpx::SwapC3C4Impl<Tpx##T>(TPX_SWAP_PASS, dstOrder, val);                                            \
  }

TPX_SWAP_TYPES(TPX_DEFINE_SWAP)

TPX_API TpxStatus tpxiSwapChannels_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, const int dstOrder[3]) {
  return tpx::SwapImpl<Tpx8u, 3, 3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, dstOrder, true);
}
TPX_API TpxStatus tpxiSwapChannels_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, const int dstOrder[4]) {
  return tpx::SwapImpl<Tpx8u, 4, 4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, dstOrder, true);
}
