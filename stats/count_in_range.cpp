// tpxiCountInRange_*: the number of samples of each channel inside closed bounds.
#include "core/checks.h"
#include "core/export.h"
#include "core/layout.h"
#include "core/rows.h"
#include "stats/count_rows.h"
#include "stats/lanes.h"
#include "stats/members.h"

namespace tpx::stats {
namespace {

// Checks: pointers (source, counts and, for three channels, the bound arrays), srcStep below
// 1, size, then a lower bound above its upper bound in any channel (tpxErrRange). Counts are
// exact and wrap to 32 bits; a one-channel image whose rows touch is one long row.
template <class T, Layout kL>
TpxStatus CountInRangeImpl(const T* src, int srcStep, TpxSize roi, Tpx32u* counts, const T* lo, const T* hi) {
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrStepSize>({src, counts, lo, hi}, roi, {srcStep}); st != tpxOk)
    return st;
  constexpr int kS = Stride(kL), kC = Processed(kL);
  for (int c = 0; c < kC; ++c)
    if (lo[c] > hi[c]) return tpxErrRange;
  const RangeCounter<T, kS, kL == Layout::AC4> counter(lo, hi);
  long long cnt[kS] = {};
  if constexpr (kS == 1) {
    ForEachRowCoalesced(roi.height, roi.width, [&](int n, const T* r) { counter.template Row<kIsa>(r, n, cnt); },
                        MakePlane(src, srcStep));
  } else {
    const long long n = static_cast<long long>(roi.width) * kS;
    ForEachRow(roi.height, [&](const T* r) {
      ForEachPiece(r, n, [&](const T* q, int k) { counter.template Row<kIsa>(q, k, cnt); });
    }, MakePlane(src, srcStep));
  }
  for (int c = 0; c < kC; ++c) counts[c] = static_cast<Tpx32u>(cnt[c]);
  return tpxOk;
}

}  // namespace
}  // namespace tpx::stats

using tpx::Layout;
using tpx::stats::CountInRangeImpl;

// One channel takes its bounds by value; three channels and AC4 take arrays of three.
#define TPX_COUNT_BOUND_C1(t) Tpx##t lowerBound, Tpx##t upperBound
#define TPX_COUNT_BOUND_C3(t) const Tpx##t lowerBound[3], const Tpx##t upperBound[3]
#define TPX_COUNT_BOUND_AC4(t) TPX_COUNT_BOUND_C3(t)
#define TPX_COUNT_PTR_C1(x) &x
#define TPX_COUNT_PTR_C3(x) x
#define TPX_COUNT_PTR_AC4(x) x
#define TPX_DEFINE_COUNT_IN_RANGE(t, L)                                                              \
  TPX_API TpxStatus tpxiCountInRange_##t##_##L##R(const Tpx##t* pSrc, int srcStep, TpxSize roiSize,   \
                                                  Tpx32u* pCounts, TPX_COUNT_BOUND_##L(t)) {          \
    return CountInRangeImpl<Tpx##t, Layout::L>(pSrc, srcStep, roiSize, pCounts,                       \
                                               TPX_COUNT_PTR_##L(lowerBound), TPX_COUNT_PTR_##L(upperBound)); \
  }
TPX_COUNT_IN_RANGE_MEMBERS(TPX_DEFINE_COUNT_IN_RANGE)
