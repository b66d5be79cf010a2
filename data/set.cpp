// Set: fill with one pixel value. Check order: pointers (a value passed by pointer counts among
// them), then the extents; no step check. The plain forms run through the one region fill.
#include "core/checks.h"
#include "core/export.h"
#include "core/layout.h"
#include "core/region.h"
#include "data/mask_rows.h"
#include "data/pixel_rows.h"

namespace tpx {
namespace {

constexpr auto kOrder = CheckOrder::kPtrSize;

template <class T, Layout kL>
TpxStatus SetImpl(const T* value, T* d, int ds, TpxSize roi) {
  if (const TpxStatus st = CheckImage<kOrder>({value, d}, roi)) return st;
  FillRegion<T, kL>(d, ds, roi, value);
  return tpxOk;
}

// One channel of a kS-channel image; the pointer stands on the channel.
template <class T, int kS>
TpxStatus SetChannelImpl(T value, T* d, int ds, TpxSize roi) {
  if (const TpxStatus st = CheckImage<kOrder>({d}, roi)) return st;
  const int from[4] = {kTakeVal, kKeep, kKeep, kKeep};
  const PixelMap<T, 0, kS> map(from, value, false, 0, 1);
  MapImage<T, 0, kS>(nullptr, 0, d, ds, roi, map);
  return tpxOk;
}

template <class T, Layout kL>
TpxStatus SetMaskedImpl(const T* value, T* d, int ds, TpxSize roi, const Tpx8u* m, int ms) {
  if (const TpxStatus st = CheckImage<kOrder>({value, d, m}, roi)) return st;
  ForEachRow(roi.height, [&](T* rd, const Tpx8u* rm) { MaskedRow<kIsa, T, kL, false>(value, rd, rm, roi.width); },
             MakePlane(d, ds), MakePlane(m, ms));
  return tpxOk;
}

}  // namespace
}  // namespace tpx

using tpx::Layout;

#define TPX_SET_TYPES(X) X(8u) X(16u) X(16s) X(32s) X(32f)
#define TPX_SET_MASK_ARGS const Tpx8u *pMask, int maskStep

#define TPX_DEFINE_SET_VALUE(T, L, N)                                                                   \
  TPX_API TpxStatus tpxiSet_##T##_##L##R(const Tpx##T value[N], Tpx##T* pDst, int dstStep, TpxSize roiSize) { \
    return tpx::SetImpl<Tpx##T, Layout::L>(value, pDst, dstStep, roiSize);                              \
  }                                                                                                     \
  TPX_API TpxStatus tpxiSet_##T##_##L##MR(const Tpx##T value[N], Tpx##T* pDst, int dstStep, TpxSize roiSize, \
                                          TPX_SET_MASK_ARGS) {                                          \
    return tpx::SetMaskedImpl<Tpx##T, Layout::L>(value, pDst, dstStep, roiSize, pMask, maskStep);        \
  }

#define TPX_DEFINE_SET_TYPE(T)                                                                          \
  TPX_API TpxStatus tpxiSet_##T##_C1R(Tpx##T value, Tpx##T* pDst, int dstStep, TpxSize roiSize) {       \
    return tpx::SetImpl<Tpx##T, Layout::C1>(&value, pDst, dstStep, roiSize);                             \
  }                                                                                                     \
  TPX_API TpxStatus tpxiSet_##T##_C1MR(Tpx##T value, Tpx##T* pDst, int dstStep, TpxSize roiSize,        \
                                       TPX_SET_MASK_ARGS) {                                             \
    return tpx::SetMaskedImpl<Tpx##T, Layout::C1>(&value, pDst, dstStep, roiSize, pMask, maskStep);      \
  }                                                                                                     \
  TPX_API TpxStatus tpxiSet_##T##_C3CR(Tpx##T value, Tpx##T* pDst, int dstStep, TpxSize roiSize) {      \
    return tpx::SetChannelImpl<Tpx##T, 3>(value, pDst, dstStep, roiSize);                                \
  }                                                                                                     \
  TPX_API TpxStatus tpxiSet_##T##_C4CR(Tpx##T value, Tpx##T* pDst, int dstStep, TpxSize roiSize) {      \
    return tpx::SetChannelImpl<Tpx##T, 4>(value, pDst, dstStep, roiSize);                                \
  }                                                                                                     \
  TPX_DEFINE_SET_VALUE(T, C3, 3)                                                                        \
  TPX_DEFINE_SET_VALUE(T, C4, 4)                                                                        \
  TPX_DEFINE_SET_VALUE(T, AC4, 3)

TPX_SET_TYPES(TPX_DEFINE_SET_TYPE)
