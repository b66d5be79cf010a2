// MulC64f: an image times double constants, 8u, 16u, 16s and 32f in C1, C3 and C4, out of place
// and in place.
#include <cstddef>
#include <type_traits>

#include "arith/mulc64f_rows.h"
#include "core/checks.h"
#include "core/export.h"
#include "core/fpround.h"
#include "core/rows.h"

namespace tpx::arith {
namespace {

template <class T, int kPeriod, Conv64f kConv>
void MulC64fRows(const T* s, int sStep, const Const64f<kPeriod>& k, T* d, int dStep, TpxSize roi) {
  const std::ptrdiff_t n = static_cast<std::ptrdiff_t>(roi.width) * kPeriod;
  ForEachRow(roi.height, [&](const T* a, T* b) { MulC64fRow<T, kPeriod, kConv, kIsa>(a, k, b, n); },
             MakePlane(s, sStep), MakePlane(d, dStep));
}

// Checks: pointers (the constants' among them), size; roundMode is not checked and hint has no
// effect. Modes 0 and 1 set the rounding direction (down, nearest even) for the call and put the
// caller's back; mode 2 adds one half and truncates; any other mode converts by the caller's
// direction. 32f has no conversion and computes under the caller's direction for every mode.
template <class T, int kPeriod>
TpxStatus MulC64f(const T* s, int sStep, const Tpx64f* value, T* d, int dStep, TpxSize roi,
                  int roundMode) {
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSize>({s, value, d}, roi); st != tpxOk) return st;
  const Const64f<kPeriod> k(value);
  if (std::is_same_v<T, Tpx32f> || roundMode == 2) {
    MulC64fRows<T, kPeriod, Conv64f::kAddHalf>(s, sStep, k, d, dStep, roi);
  } else if (roundMode == 0 || roundMode == 1) {
    const RoundingScope scope(roundMode == 0 ? FpRound::kDown : FpRound::kNearest);
    MulC64fRows<T, kPeriod, Conv64f::kDirection>(s, sStep, k, d, dStep, roi);
  } else {
    MulC64fRows<T, kPeriod, Conv64f::kDirection>(s, sStep, k, d, dStep, roi);
  }
  return tpxOk;
}

}  // namespace
}  // namespace tpx::arith

#define TPX_DEFINE_MULC64F(T, L, P)                                                                \
  TPX_API TpxStatus tpxiMulC64f_##T##_##L##R(const Tpx##T* pSrc, int srcStep,                     \
                                             const Tpx64f* value, Tpx##T* pDst, int dstStep,       \
                                             TpxSize roiSize, TpxHintAlgorithm hint,               \
                                             TpxRoundMode roundMode) {                             \
    (void)hint;                                                                                    \
    return tpx::arith::MulC64f<Tpx##T, P>(pSrc, srcStep, value, pDst, dstStep, roiSize,          \
                                          roundMode);                                              \
  }                                                                                                \
  TPX_API TpxStatus tpxiMulC64f_##T##_##L##IR(const Tpx64f* value, Tpx##T* pSrcDst,               \
                                              int srcDstStep, TpxSize roiSize,                     \
                                              TpxHintAlgorithm hint, TpxRoundMode roundMode) {     \
    (void)hint;                                                                                    \
    return tpx::arith::MulC64f<Tpx##T, P>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep,       \
                                          roiSize, roundMode);                                     \
  }

#define TPX_MULC64F_LAYOUTS(X, T) X(T, C1, 1) X(T, C3, 3) X(T, C4, 4)
#define TPX_MULC64F_MEMBERS(X) \
  TPX_MULC64F_LAYOUTS(X, 8u) TPX_MULC64F_LAYOUTS(X, 16u) TPX_MULC64F_LAYOUTS(X, 16s) \
  TPX_MULC64F_LAYOUTS(X, 32f)

TPX_MULC64F_MEMBERS(TPX_DEFINE_MULC64F)
