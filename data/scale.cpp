// tpxiScale_*: exports expanded from data/convert_members.h, drivers here, row operations in
// data/scale_rows.h.
//
// Checks: members with Tpx32f limits test vMax - vMin first (not above 0, NaN included:
// tpxErrScaleRange, whatever the pointers are), then pointers, size and steps. Integer members
// check pointers, size and steps; the hint is never refused.
#include <limits>
#include <type_traits>

#include "core/checks.h"
#include "core/export.h"
#include "core/float_to_int.h"
#include "core/layout.h"
#include "data/convert_frame.h"
#include "data/convert_members.h"
#include "data/scale_rows.h"

namespace tpx::cvt {
namespace {

// One 255th, as the library has always written it in single precision.
constexpr float kInv255 = 0.003921569f;

// 8u32f: d = vMin + s * (vMax - vMin) * kInv255. 32f8u: the opposite slope 255 / (vMax - vMin)
// and the offset slope * -vMin, both in Tpx32f; the result rounds half to even.
template <class S, class D, Layout kL>
TpxStatus ScaleLimits(const S* src, int srcStep, D* dst, int dstStep, TpxSize roi, float vMin, float vMax) {
  const float range = vMax - vMin;
  if (!(range > 0.0f)) return tpxErrScaleRange;
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSizeStep>({src, dst}, roi, {srcStep, dstStep})) return st;
  if constexpr (std::is_same_v<D, Tpx32f>) {
    RunRows<kL>(src, srcStep, dst, dstStep, roi, ScaleToFloatOp{vMin, range * kInv255});
  } else {
    const FloatToIntScope scope(RoundKind::kNearest);
    const float slope = 255.0f / Pinned(range);
    RunRows<kL>(src, srcStep, dst, dstStep, roi, ScaleFromFloatOp<Tpx32f>{slope, slope * -vMin});
  }
  return tpxOk;
}

// Full range onto full range. Widening (8u to 16u, 16s, 32s) is exact and has nothing for the
// hint to choose. Narrowing to 8u rounds half to even: hint 2 (accurate) in double precision,
// which gives the exactly rounded value; any other hint in single precision as tpxiScale_32f8u
// does with the source's range as limits. For 16-bit sources the two agree on every sample;
// for 32s the single-precision path first rounds the sample to 24 bits.
template <class S, class D, Layout kL>
TpxStatus ScaleInt(const S* src, int srcStep, D* dst, int dstStep, TpxSize roi, TpxHintAlgorithm hint) {
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSizeStep>({src, dst}, roi, {srcStep, dstStep})) return st;
  if constexpr (sizeof(D) > sizeof(S)) {
    RunRows<kL>(src, srcStep, dst, dstStep, roi, ScaleWidenOp<D>{});
  } else {
    constexpr double kMin = static_cast<double>(std::numeric_limits<S>::lowest());
    constexpr double kRange = static_cast<double>(std::numeric_limits<S>::max()) - kMin;
    const FloatToIntScope scope(RoundKind::kNearest);
    if (hint == tpxAlgHintAccurate) {
      RunRows<kL>(src, srcStep, dst, dstStep, roi, ScaleExactOp<S>{kMin, Pinned(255.0) / kRange});
    } else {
      const float slope = Pinned(255.0f) / static_cast<float>(kRange);
      RunRows<kL>(src, srcStep, dst, dstStep, roi, ScaleFromFloatOp<S>{slope, slope * -static_cast<float>(kMin)});
    }
  }
  return tpxOk;
}

}  // namespace
}  // namespace tpx::cvt

using tpx::Layout;

#define TPX_SCALE_LIMITS(S, D, L)                                                                   \
  TPX_API TpxStatus tpxiScale_##S##D##_##L##R(const Tpx##S* pSrc, int srcStep, Tpx##D* pDst, int dstStep, \
                                              TpxSize roiSize, Tpx32f vMin, Tpx32f vMax) {           \
    return tpx::cvt::ScaleLimits<Tpx##S, Tpx##D, Layout::L>(pSrc, srcStep, pDst, dstStep, roiSize,    \
                                                            vMin, vMax);                             \
  }
#define TPX_SCALE_LIMITS_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_SCALE_LIMITS, S, D)
TPX_SCALE_LIMITS_4L(TPX_SCALE_LIMITS_ALL)

#define TPX_SCALE_HINT(S, D, L)                                                                     \
  TPX_API TpxStatus tpxiScale_##S##D##_##L##R(const Tpx##S* pSrc, int srcStep, Tpx##D* pDst, int dstStep, \
                                              TpxSize roiSize, TpxHintAlgorithm hint) {              \
    return tpx::cvt::ScaleInt<Tpx##S, Tpx##D, Layout::L>(pSrc, srcStep, pDst, dstStep, roiSize, hint); \
  }
#define TPX_SCALE_HINT_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_SCALE_HINT, S, D)
TPX_SCALE_HINT_4L(TPX_SCALE_HINT_ALL)
