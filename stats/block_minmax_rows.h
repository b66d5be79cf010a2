// Row work of tpxiBlockMinMax_*: a vertical pass that keeps the extremes of each column of a
// block row, and the fold of one block's columns to one value.
#pragma once
#include "core/isa.h"
#include "stats/lanes.h"

namespace tpx::stats {

// mn[i] = Min(mn[i], row[i]) and/or mx[i] = Max(mx[i], row[i]) for i < n. n >= 0. V = one vector;
// tail: scalar, same operation.
template <Isa kI, class T, bool kMin, bool kMax>
inline void VerticalStep(const T* row, int n, T* mn, T* mx) {
  using Mn = MinLanes<T>;
  using Mx = MaxLanes<T>;
  constexpr int kN = VecOf<T>::kN;
  int i = 0;
  if constexpr (kI == Isa::kAvx) {
    for (; i + kN <= n; i += kN) {
      const auto x = VecOf<T>::Load(row + i);
      if constexpr (kMin) Mn::Store(mn + i, Mn::Step(Mn::Load(mn + i), x));
      if constexpr (kMax) Mx::Store(mx + i, Mx::Step(Mx::Load(mx + i), x));
    }
  }
  for (; i < n; ++i) {
    if constexpr (kMin) mn[i] = Mn::Step(mn[i], row[i]);
    if constexpr (kMax) mx[i] = Mx::Step(mx[i], row[i]);
  }
}

// One value from s[0, len), len >= 1, in this order: len < kN: left to right. Otherwise kN
// lanes take the first vector, then every further whole vector lane by lane, then the last
// len % kN samples into lanes 0, 1, ...; then the halving tree v[j] = J(v[j], v[j + h]) for
// h = kN/2 .. 1. AVX: the lanes are one vector.
template <Isa kI, class P>
inline typename P::Acc SegmentFold(const typename P::Sample* s, int len) {
  using T = typename P::Acc;
  constexpr int kN = P::kN;
  if (len < kN) {
    T r = s[0];
    for (int i = 1; i < len; ++i) r = P::Step(r, s[i]);
    return r;
  }
  alignas(32) T lanes[kN];
  int k = kN;
  if constexpr (kI == Isa::kAvx) {
    auto v = P::LoadSamples(s);
    for (; k + kN <= len; k += kN) v = P::Step(v, P::LoadSamples(s + k));
    if (k < len) {
      P::Store(lanes, v);
      for (int j = 0; k + j < len; ++j) lanes[j] = P::Step(lanes[j], s[k + j]);
      v = P::Load(lanes);
    }
    P::Store(lanes, HalveDown<P, kN / 2, 1>(v));
  } else {
    for (int j = 0; j < kN; ++j) lanes[j] = s[j];
    for (; k + kN <= len; k += kN)
      for (int j = 0; j < kN; ++j) lanes[j] = P::Step(lanes[j], s[k + j]);
    for (int j = 0; k + j < len; ++j) lanes[j] = P::Step(lanes[j], s[k + j]);
    for (int h = kN / 2; h >= 1; h /= 2)
      for (int j = 0; j < h; ++j) lanes[j] = P::Join(lanes[j], lanes[j + h]);
  }
  return lanes[0];
}

}  // namespace tpx::stats
