// tpxiSum_* and tpxiMean_*: the sum and the mean of each channel.
#include <cstddef>
#include <type_traits>

#include "core/checks.h"
#include "core/export.h"
#include "core/layout.h"
#include "core/rows.h"
#include "stats/members.h"
#include "stats/sum_rows.h"

namespace tpx::stats {
namespace {

// Lanes of policy P over the whole image, folded once: out[c] per channel.
template <int kVecs, int kS, class P>
void SumImageLanes(const Tpx32f* src, int srcStep, TpxSize roi, typename P::Acc* out) {
  alignas(32) typename P::Acc lanes[kVecs * P::kN] = {};
  const long long n = static_cast<long long>(roi.width) * kS;
  ForEachRow(roi.height, [&](const Tpx32f* row) {
    ForEachPiece(row, n, [&](const Tpx32f* q, int k) { SweepLanes<kIsa, kVecs, P>(q, k, lanes); });
  }, MakePlane(src, srcStep));
  FoldLanes<kIsa, kVecs, kS, P>(lanes, out);
}

// One channel: Tpx64f pairs for rows of up to 16 samples; wider rows in Tpx64f with hint 2
// (accurate) and in Tpx32f otherwise; both wide paths keep their lanes over the whole image.
void SumFloat(const Tpx32f* src, int srcStep, TpxSize roi, double* sum, int hint, std::integral_constant<int, 1>) {
  const Plane<const Tpx32f> plane = MakePlane(src, srcStep);
  const int w = roi.width;
  if (w <= 16) {
    double total = 0.0;
    ForEachRow(roi.height, [&](const Tpx32f* r) { total = SumRowNarrow32f<kIsa>(r, w, total); }, plane);
    sum[0] = total;
  } else if (hint == tpxAlgHintAccurate) {
    alignas(32) double d[4] = {};
    ForEachRow(roi.height, [&](const Tpx32f* r) { SumRowAccurate32f<kIsa>(r, w, d); }, plane);
    sum[0] = FoldAccurate32f(d);
  } else {
    FastLanes32f lanes;
    ForEachRow(roi.height, [&](const Tpx32f* r) { SumRowFast32f<kIsa>(r, w, lanes); }, plane);
    sum[0] = FoldFast32f(lanes);
  }
}

// Three channels: Tpx64f in pixel order for rows of up to 13 pixels; wider rows in Tpx64f
// lanes over the whole image with hint 2, otherwise in Tpx32f within each row, whose three
// sums then add to Tpx64f totals (the float error of this path is that of one row).
void SumFloat(const Tpx32f* src, int srcStep, TpxSize roi, double* sum, int hint, std::integral_constant<int, 3>) {
  const Plane<const Tpx32f> plane = MakePlane(src, srcStep);
  if (roi.width <= 13 || hint != tpxAlgHintAccurate) {
    double tot[3] = {0.0, 0.0, 0.0};
    if (roi.width <= 13) {
      ForEachRow(roi.height, [&](const Tpx32f* r) { SumRowNarrowC3(r, roi.width, tot); }, plane);
    } else {
      const long long n = 3LL * roi.width;
      ForEachRow(roi.height, [&](const Tpx32f* r) {
        float rowSum[3];
        SumRowC3Fast32f<kIsa>(r, n, rowSum);
        for (int c = 0; c < 3; ++c) tot[c] = tot[c] + static_cast<double>(rowSum[c]);
      }, plane);
    }
    for (int c = 0; c < 3; ++c) sum[c] = tot[c];
  } else {
    SumImageLanes<kSumVecsC3, 3, AddLanes64f>(src, srcStep, roi, sum);
  }
}

// Four channels: Tpx32f lanes over the whole image only with hint 1 (fast), widened at the
// end; every other hint, tpxAlgHintNone included, Tpx64f lanes. No narrow path.
void SumFloat(const Tpx32f* src, int srcStep, TpxSize roi, double* sum, int hint, std::integral_constant<int, 4>) {
  if (hint == tpxAlgHintFast) {
    float s[4];
    SumImageLanes<kSumVecsC4, 4, AddLanes32f>(src, srcStep, roi, s);
    for (int c = 0; c < 4; ++c) sum[c] = static_cast<double>(s[c]);
  } else {
    SumImageLanes<kSumVecsC4, 4, AddLanes64f>(src, srcStep, roi, sum);
  }
}

// Checks: pointers, size; no step check, any step walks memory. Integer sums are exact (one
// conversion to Tpx64f at the end); a one-channel image whose rows touch is one long row.
template <class T, Layout kL>
TpxStatus SumImpl(const T* src, int srcStep, TpxSize roi, double* sum, int hint) {
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSize>({src, sum}, roi); st != tpxOk) return st;
  constexpr int kS = Stride(kL);
  if constexpr (std::is_integral_v<T>) {
    long long tot[kS] = {};
    if constexpr (kS == 1) {
      ForEachRowCoalesced(roi.height, roi.width,
                          [&](int n, const T* r) { SumRowExactLong<kIsa, T, 1>(r, n, tot); }, MakePlane(src, srcStep));
    } else {
      const long long n = static_cast<long long>(roi.width) * kS;
      ForEachRow(roi.height, [&](const T* r) { SumRowExactLong<kIsa, T, kS>(r, n, tot); }, MakePlane(src, srcStep));
    }
    for (int c = 0; c < kS; ++c) sum[c] = static_cast<double>(tot[c]);
  } else {
    SumFloat(src, srcStep, roi, sum, hint, std::integral_constant<int, kS>{});
  }
  return tpxOk;
}

// Checks: pMean first, then the sum's own, whose failure is returned as it stands. The area is
// width * height as a signed 32-bit product (it wraps from 2^31 samples on). One channel
// divides; three and four multiply by the reciprocal, which can differ in the last bit.
template <class T, Layout kL>
TpxStatus MeanImpl(const T* src, int srcStep, TpxSize roi, double* mean, int hint) {
  if (!mean) return tpxErrNullPtr;
  constexpr int kS = Stride(kL);
  double sum[kS];
  const TpxStatus st = SumImpl<T, kL>(src, srcStep, roi, sum, hint);
  if (st < 0) return st;
  const auto area32 = static_cast<int>(static_cast<unsigned>(roi.width) * static_cast<unsigned>(roi.height));
  const double area = static_cast<double>(area32);
  if constexpr (kS == 1) {
    mean[0] = sum[0] / area;
  } else {
    const double rcp = 1.0 / area;
    for (int c = 0; c < kS; ++c) mean[c] = sum[c] * rcp;
  }
  return st;
}

}  // namespace
}  // namespace tpx::stats

using tpx::Layout;
using tpx::stats::MeanImpl;
using tpx::stats::SumImpl;

#define TPX_DEFINE_SUM_INT(t, L)                                                                         \
  TPX_API TpxStatus tpxiSum_##t##_##L##R(const Tpx##t* pSrc, int srcStep, TpxSize roiSize, Tpx64f* pSum) {  \
    return SumImpl<Tpx##t, Layout::L>(pSrc, srcStep, roiSize, pSum, tpxAlgHintNone);                     \
  }                                                                                                      \
  TPX_API TpxStatus tpxiMean_##t##_##L##R(const Tpx##t* pSrc, int srcStep, TpxSize roiSize, Tpx64f* pMean) { \
    return MeanImpl<Tpx##t, Layout::L>(pSrc, srcStep, roiSize, pMean, tpxAlgHintNone);                   \
  }
TPX_SUM_INT_MEMBERS(TPX_DEFINE_SUM_INT)

#define TPX_DEFINE_SUM_FLOAT(t, L)                                                                     \
  TPX_API TpxStatus tpxiSum_##t##_##L##R(const Tpx##t* pSrc, int srcStep, TpxSize roiSize, Tpx64f* pSum, \
                                         TpxHintAlgorithm hint) {                                      \
    return SumImpl<Tpx##t, Layout::L>(pSrc, srcStep, roiSize, pSum, hint);                             \
  }                                                                                                    \
  TPX_API TpxStatus tpxiMean_##t##_##L##R(const Tpx##t* pSrc, int srcStep, TpxSize roiSize,             \
                                          Tpx64f* pMean, TpxHintAlgorithm hint) {                      \
    return MeanImpl<Tpx##t, Layout::L>(pSrc, srcStep, roiSize, pMean, hint);                           \
  }
TPX_SUM_FLOAT_MEMBERS(TPX_DEFINE_SUM_FLOAT)
