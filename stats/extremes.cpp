// tpxiMin_*, tpxiMax_*, tpxiMinMax_*, tpxiMinIndx_*, tpxiMaxIndx_*: the extremes of each
// channel, with or without their first position.
#include <cstddef>
#include <type_traits>

#include "core/checks.h"
#include "core/export.h"
#include "core/layout.h"
#include "core/rows.h"
#include "stats/extremes_rows.h"
#include "stats/members.h"

namespace tpx::stats {
namespace {

// Checks: pointers (source and every result), size; no step check, any step walks memory.
template <class T, Layout kL, bool kMin, bool kMax>
TpxStatus ExtremesImpl(const T* src, int srcStep, TpxSize roi, T* pMin, T* pMax) {
  const void* first = kMin ? static_cast<const void*>(pMin) : pMax;
  const void* second = kMin && kMax ? static_cast<const void*>(pMax) : first;
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSize>({src, first, second}, roi); st != tpxOk) return st;
  constexpr int kS = Stride(kL);
  ImageExtremes<kIsa, T, kS, kMin, kMax> lanes;
  const long long n = static_cast<long long>(roi.width) * kS;
  ForEachRow(roi.height, [&](const T* row) { lanes.Row(row, n); }, MakePlane(src, srcStep));
  T a[kS], b[kS];
  lanes.Fold(a, b);
  for (int c = 0; c < Processed(kL); ++c) {
    if constexpr (kMin) pMin[c] = a[c];
    if constexpr (kMax) pMax[c] = kMin ? b[c] : a[c];
  }
  return tpxOk;
}

// Checks as ExtremesImpl. Per channel: the running extreme starts at the channel's first
// sample and row 0; a row replaces it only with a strictly better row extreme, so of equal rows
// the upper stays; then the winning row alone is searched from the left. (An integer running
// extreme that starts at the type's worst value ends the same: row 0 wins either way.)
template <class T, Layout kL, bool kMax>
TpxStatus ExtremeIndxImpl(const T* src, int srcStep, TpxSize roi, T* pVal, int* pX, int* pY) {
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSize>({src, pVal, pX, pY}, roi); st != tpxOk) return st;
  using P = std::conditional_t<kMax, MaxLanes<T>, MinLanes<T>>;
  constexpr int kS = Stride(kL), kC = Processed(kL);
  constexpr T kUnbeatable = kMax ? SampleLimits<T>::kMax : SampleLimits<T>::kMin;
  T best[kS];
  int bestRow[kS];
  for (int c = 0; c < kS; ++c) {
    best[c] = src[c];
    bestRow[c] = 0;
  }
  const long long n = static_cast<long long>(roi.width) * kS;
  const T* row = src;
  for (int y = 0; y < roi.height; ++y, row = Advance(row, srcStep)) {
    T e[kS];
    RowExtreme<kIsa, kS, P>(row, n, e);
    bool done = true;
    for (int c = 0; c < kC; ++c) {
      if (kMax ? e[c] > best[c] : e[c] < best[c]) {
        best[c] = e[c];
        bestRow[c] = y;
      }
      done = done && best[c] == kUnbeatable;
    }
    // An integer extreme at the type's limit cannot be beaten: the rows below cannot change
    // the result. (Float limits are not final: a float row may hold an infinity.)
    if (std::is_integral_v<T> && done) break;
  }
  for (int c = 0; c < kC; ++c) {
    const T* r = Advance(src, static_cast<std::ptrdiff_t>(bestRow[c]) * srcStep);
    pVal[c] = best[c];
    pX[c] = FirstEqual(r, roi.width, kS, c, best[c]);
    pY[c] = bestRow[c];
  }
  return tpxOk;
}

}  // namespace
}  // namespace tpx::stats

using tpx::Layout;
using tpx::stats::ExtremeIndxImpl;
using tpx::stats::ExtremesImpl;

#define TPX_DEFINE_EXTREMES(t, L)                                                                       \
  TPX_API TpxStatus tpxiMin_##t##_##L##R(const Tpx##t* pSrc, int srcStep, TpxSize roiSize, Tpx##t* pMin) { \
    return ExtremesImpl<Tpx##t, Layout::L, true, false>(pSrc, srcStep, roiSize, pMin, nullptr);         \
  }                                                                                                     \
  TPX_API TpxStatus tpxiMax_##t##_##L##R(const Tpx##t* pSrc, int srcStep, TpxSize roiSize, Tpx##t* pMax) { \
    return ExtremesImpl<Tpx##t, Layout::L, false, true>(pSrc, srcStep, roiSize, nullptr, pMax);         \
  }                                                                                                     \
  TPX_API TpxStatus tpxiMinMax_##t##_##L##R(const Tpx##t* pSrc, int srcStep, TpxSize roiSize,            \
                                            Tpx##t* pMin, Tpx##t* pMax) {                               \
    return ExtremesImpl<Tpx##t, Layout::L, true, true>(pSrc, srcStep, roiSize, pMin, pMax);             \
  }                                                                                                     \
  TPX_API TpxStatus tpxiMinIndx_##t##_##L##R(const Tpx##t* pSrc, int srcStep, TpxSize roiSize,           \
                                             Tpx##t* pMin, int* pIndexX, int* pIndexY) {                \
    return ExtremeIndxImpl<Tpx##t, Layout::L, false>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);   \
  }                                                                                                     \
  TPX_API TpxStatus tpxiMaxIndx_##t##_##L##R(const Tpx##t* pSrc, int srcStep, TpxSize roiSize,           \
                                             Tpx##t* pMax, int* pIndexX, int* pIndexY) {                \
    return ExtremeIndxImpl<Tpx##t, Layout::L, true>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);    \
  }
TPX_EXTREME_MEMBERS(TPX_DEFINE_EXTREMES)
