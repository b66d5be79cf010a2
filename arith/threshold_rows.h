// Threshold rules and their one row kernel, scalar and AVX side by side.
#pragma once
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "arith/compare_vec.h"
#include "core/isa.h"
#include "core/layout.h"

namespace tpx {

// ---- Rules ----------------------------------------------------------------------------------
// Apply(s, k) is the rule as written, with k the parameters of the sample's channel; Vector()
// must give the same numbers. Every comparison is strict: a sample equal to its threshold stays.
// kBiased marks the parameters that Vector() receives moved to the signed range (W::Biased), so
// that one ordered compare decides; the others come as they are. kSelects: the rule is mostly
// selects, which integer samples run 256 bits wide.

// d = min(s, t), the processor's minimum with the sample first: a NaN sample gives t.
struct ThreshGT {
  static constexpr int kParams = 1;
  static constexpr unsigned kBiased = 0;
  static constexpr bool kSelects = false;
  template <class T>
  static T Apply(T s, const T* k) { return s < k[0] ? s : k[0]; }
  template <class W>
  static typename W::V Vector(typename W::V s, const typename W::V* k) { return W::Min(s, k[0]); }
};

// d = max(s, t), sample first: a NaN sample gives t.
struct ThreshLT {
  static constexpr int kParams = 1;
  static constexpr unsigned kBiased = 0;
  static constexpr bool kSelects = false;
  template <class T>
  static T Apply(T s, const T* k) { return s > k[0] ? s : k[0]; }
  template <class W>
  static typename W::V Vector(typename W::V s, const typename W::V* k) { return W::Max(s, k[0]); }
};

// d = value where s > t; the select takes the value only where the ordered test holds, so a
// NaN sample stays.
struct ThreshGTVal {
  static constexpr int kParams = 2;  // threshold, value
  static constexpr unsigned kBiased = 1;
  static constexpr bool kSelects = true;
  template <class T>
  static T Apply(T s, const T* k) { return s > k[0] ? k[1] : s; }
  template <class W>
  static typename W::V Vector(typename W::V s, const typename W::V* k) {
    return W::Blend(s, k[1], W::SampleAbove(s, k[0]));
  }
};

// d = value where s < t; a NaN sample stays.
struct ThreshLTVal {
  static constexpr int kParams = 2;  // threshold, value
  static constexpr unsigned kBiased = 1;
  static constexpr bool kSelects = true;
  template <class T>
  static T Apply(T s, const T* k) { return s < k[0] ? k[1] : s; }
  template <class W>
  static typename W::V Vector(typename W::V s, const typename W::V* k) {
    return W::Blend(s, k[1], W::SampleBelow(s, k[0]));
  }
};

// d = valueLT where s < thresholdLT, valueGT where s > thresholdGT, else s. The driver has
// refused thresholdGT < thresholdLT, so both tests never hold at once; the GT test is applied
// last in both forms all the same.
struct ThreshLTValGTVal {
  static constexpr int kParams = 4;  // thresholdLT, valueLT, thresholdGT, valueGT
  static constexpr unsigned kBiased = 0b101;
  static constexpr bool kSelects = true;
  template <class T>
  static T Apply(T s, const T* k) {
    T r = s;
    if (s < k[0]) r = k[1];
    if (s > k[2]) r = k[3];
    return r;
  }
  template <class W>
  static typename W::V Vector(typename W::V s, const typename W::V* k) {
    const typename W::V r = W::Blend(s, k[1], W::SampleBelow(s, k[0]));
    return W::Blend(r, k[3], W::SampleAbove(s, k[2]));
  }
};

// The vector of a rule: integer selects 256 bits wide, everything else as dvec::Vec.
template <class Op, class T>
using ThreshVec = std::conditional_t<Op::kSelects && !std::is_same_v<T, Tpx32f>, dvec::Wide<T>, dvec::Vec<T>>;

// ---- Parameters laid out for a row ----------------------------------------------------------
// The parameters of every channel, as scalars and as a tiled sample pattern: vec[j][x] is
// parameter j of channel x % C, long enough for one pattern period of vectors (three for C3,
// one otherwise) from any phase 0..3. alpha[x] has all bits set on the fourth sample of an AC4
// pixel. Built once per call.
template <class Op, class T, Layout kL>
struct ThreshTile {
  static constexpr int kParams = Op::kParams;
  static constexpr int kC = Stride(kL);
  static constexpr int kPeriodVecs = kC == 3 ? 3 : 1;
  static constexpr int kLen = kPeriodVecs * ThreshVec<Op, T>::kLanes + 4;

  T kc[4][kParams];  // kc[channel][parameter]
  alignas(32) T vec[kParams][kLen];
  alignas(32) T alpha[kLen];

  // params[j][c]: parameter j of channel c (channels beyond Processed(kL) are not read).
  explicit ThreshTile(const T (&params)[kParams][4]) {
    for (int c = 0; c < 4; ++c)
      for (int j = 0; j < kParams; ++j) kc[c][j] = params[j][c < Processed(kL) ? c : 0];
    for (int x = 0; x < kLen; ++x) {
      for (int j = 0; j < kParams; ++j) vec[j][x] = kc[x % kC][j];
      std::memset(&alpha[x], (KeepsAlpha(kL) && x % kC == 3) ? 0xFF : 0, sizeof(T));
    }
  }
};

// ---- Row kernel -----------------------------------------------------------------------------
// Samples [from, to) of a row, one at a time; the row starts on a pixel.
template <class Op, class T, Layout kL>
inline void ThresholdSamples(const T* s, T* d, int from, int to,
                             const ThreshTile<Op, T, kL>& tile) {
  constexpr int kC = Stride(kL);
  int c = from % kC;
  for (int i = from; i < to; ++i) {
    if (!(KeepsAlpha(kL) && c == 3)) d[i] = Op::Apply(s[i], tile.kc[c]);
    if (++c == kC) c = 0;
  }
}

// Whole vectors from sample i on; returns the first sample left. kNT: non-temporal stores
// (d + i must be aligned to V). The source is prefetched a few lines ahead, once a line.
template <class Op, class T, Layout kL, bool kNT>
inline int ThresholdVectors(const T* s, T* d, int i, int n, const ThreshTile<Op, T, kL>& tile) {
  using W = ThreshVec<Op, T>;
  using V = typename W::V;
  using Tile = ThreshTile<Op, T, kL>;
  constexpr int kLanes = W::kLanes;
  constexpr int kP = Tile::kPeriodVecs;
  constexpr int kUnroll = kP == 3 ? 3 : 4;
  const int phase = i % Stride(kL);
  V k[kP][Op::kParams], alpha[kP];
  for (int g = 0; g < kP; ++g) {
    for (int j = 0; j < Op::kParams; ++j) {
      k[g][j] = W::Load(tile.vec[j] + phase + g * kLanes);
      if ((Op::kBiased >> j) & 1u) k[g][j] = W::Biased(k[g][j]);
    }
    alpha[g] = W::Load(tile.alpha + phase + g * kLanes);
  }
  auto step = [s, d](int at, const V* kg, V ag) __attribute__((always_inline)) {
    V r = Op::template Vector<W>(W::Load(s + at), kg);
    if constexpr (KeepsAlpha(kL)) r = W::Blend(r, W::Load(d + at), ag);
    if constexpr (kNT)
      W::Stream(d + at, r);
    else
      W::Store(d + at, r);
  };
  for (; i + kUnroll * kLanes <= n; i += kUnroll * kLanes) {
#pragma GCC unroll 4
    for (int u = 0; u < kUnroll; ++u) {
      if ((u * sizeof(V)) % 64 == 0) dvec::PrefetchAhead(s + i + u * kLanes);
      step(i + u * kLanes, k[u % kP], alpha[u % kP]);
    }
  }
#pragma GCC unroll 4
  for (int g = 0; g < kUnroll - 1; ++g) {
    if (i + kLanes > n) break;
    step(i, k[g % kP], alpha[g % kP]);
    i += kLanes;
  }
  return i;
}

// d[i] = Op(s[i]) for the n samples of a row of whole pixels (n a multiple of Stride(kL));
// AC4: the fourth sample of each pixel of d stays. d may equal s. V = 16 bytes (8u, 16u, 16s)
// or 32 bytes (32f), unrolled by 4 (C3: by the 3-vector pattern period). Head: samples up to a
// V boundary of d; tail: scalar, same Op. kStream writes the vector body with non-temporal
// stores where the head reached the boundary; the caller fences.
template <class Op, class T, Layout kL, Isa kI, bool kStream = false>
inline void ThresholdRow(const T* s, T* d, int n, const ThreshTile<Op, T, kL>& tile) {
  int i = 0;
  if constexpr (kI == Isa::kAvx) {
    constexpr int kBytes = static_cast<int>(sizeof(typename ThreshVec<Op, T>::V));
    const std::uintptr_t addr = reinterpret_cast<std::uintptr_t>(d);
    int head = 0;
    if (addr % sizeof(T) == 0) head = static_cast<int>(((kBytes - addr % kBytes) % kBytes) / sizeof(T));
    if (head > n) head = n;
    ThresholdSamples<Op, T, kL>(s, d, 0, head, tile);
    if (kStream && (addr + head * sizeof(T)) % kBytes == 0)
      i = ThresholdVectors<Op, T, kL, kStream>(s, d, head, n, tile);
    else
      i = ThresholdVectors<Op, T, kL, false>(s, d, head, n, tile);
  }
  ThresholdSamples<Op, T, kL>(s, d, i, n, tile);
}

}  // namespace tpx
