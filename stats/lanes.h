// Lane-wise reductions shared by the extremes, block extremes and multi-channel float sums.
//
// A reduction here keeps kBlock lanes; sample i of a row goes to lane i % kBlock, and every
// lane takes its samples in row order. The AVX twin keeps whole blocks in registers, the scalar
// twin keeps the lanes as an array; both apply the same operation to the same lane in the same
// order, so they agree to the bit even where the operation is not associative (float sums,
// float min/max of signed zeros and NaN). Lanes are then joined by one fixed tree (FoldLanes).
#pragma once
#include <immintrin.h>

#include <cstdint>
#include <type_traits>

#include "core/isa.h"
#include "tpxip/types.h"

// Loops over the vectors of a block are unrolled, so that their accumulators live in registers.
#define TPX_UNROLL _Pragma("GCC unroll 16")

namespace tpx::stats {

// The reductions read each sample once. Alone, the hardware streams leave one core well short
// of the memory bandwidth, so every vector loop also asks for the lines kPrefetchAhead bytes
// further on, one request per 64-byte line of what it reads. A prefetch never faults: it may
// point past the row or the image.
inline constexpr std::uintptr_t kPrefetchAhead = 4096;
template <int kBytes>
inline void PrefetchAhead(const void* p) {
  const std::uintptr_t a = reinterpret_cast<std::uintptr_t>(p) + kPrefetchAhead;
  TPX_UNROLL
  for (int b = 0; b < kBytes; b += 64) _mm_prefetch(reinterpret_cast<const char*>(a + b), _MM_HINT_T0);
}

// ---- Vector views of the sample types ------------------------------------------------------
// Down<h>(v): a vector whose lane j is lane j + h of v, for j < h (the other lanes are free).
template <class T>
struct VecOf;

template <class T>
struct IntVec {  // 128-bit integer lanes: AVX has no 256-bit integer instructions
  using V = __m128i;
  static constexpr int kN = 16 / static_cast<int>(sizeof(T));
  static V Load(const T* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
  static void Store(T* p, V v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
  template <int kH>
  static V Down(V v) { return _mm_srli_si128(v, kH * static_cast<int>(sizeof(T))); }
};
template <>
struct VecOf<Tpx8u> : IntVec<Tpx8u> {
  static V Min(V a, V b) { return _mm_min_epu8(a, b); }
  static V Max(V a, V b) { return _mm_max_epu8(a, b); }
};
template <>
struct VecOf<Tpx16u> : IntVec<Tpx16u> {
  static V Min(V a, V b) { return _mm_min_epu16(a, b); }
  static V Max(V a, V b) { return _mm_max_epu16(a, b); }
};
template <>
struct VecOf<Tpx16s> : IntVec<Tpx16s> {
  static V Min(V a, V b) { return _mm_min_epi16(a, b); }
  static V Max(V a, V b) { return _mm_max_epi16(a, b); }
};
template <>
struct VecOf<Tpx32f> {
  using V = __m256;
  static constexpr int kN = 8;
  static V Load(const Tpx32f* p) { return _mm256_loadu_ps(p); }
  static void Store(Tpx32f* p, V v) { _mm256_storeu_ps(p, v); }
  static V Min(V a, V b) { return _mm256_min_ps(a, b); }
  static V Max(V a, V b) { return _mm256_max_ps(a, b); }
  template <int kH>
  static V Down(V v) {
    if constexpr (kH == 4) return _mm256_castps128_ps256(_mm256_extractf128_ps(v, 1));
    else if constexpr (kH == 2) return _mm256_permute_ps(v, 0xEE);
    else return _mm256_permute_ps(v, 0x55);
  }
};
template <>
struct VecOf<Tpx64f> {
  using V = __m256d;
  static constexpr int kN = 4;
  static V Load(const Tpx64f* p) { return _mm256_loadu_pd(p); }
  static void Store(Tpx64f* p, V v) { _mm256_storeu_pd(p, v); }
  template <int kH>
  static V Down(V v) {
    if constexpr (kH == 2) return _mm256_castpd128_pd256(_mm256_extractf128_pd(v, 1));
    else return _mm256_permute_pd(v, 0x5);
  }
};

// ---- Lane policies -----------------------------------------------------------------------
// Sample: what a row holds; Acc: what a lane holds. Step folds a sample (or a vector of them,
// from LoadSamples) into an accumulator; Join folds one accumulator into another. The scalar
// form is the rule, the vector form the instruction that computes it lane by lane.

// Minimum and maximum as the vector instructions take them: the accumulator stays only if it
// is strictly smaller (larger); otherwise the sample is taken, NaN and zeros of either sign too.
template <class T, bool kMax>
struct ExtremeLanes : VecOf<T> {
  using Sample = T;
  using Acc = T;
  using typename VecOf<T>::V;
  static V LoadSamples(const T* p) { return VecOf<T>::Load(p); }
  static T Step(T a, T x) {
    if constexpr (kMax) return a > x ? a : x;
    else return a < x ? a : x;
  }
  static V Step(V a, V x) {
    if constexpr (kMax) return VecOf<T>::Max(a, x);
    else return VecOf<T>::Min(a, x);
  }
  static T Join(T a, T b) { return Step(a, b); }
  static V Join(V a, V b) { return Step(a, b); }
};
template <class T>
using MinLanes = ExtremeLanes<T, false>;
template <class T>
using MaxLanes = ExtremeLanes<T, true>;

// Float samples added in Tpx32f.
struct AddLanes32f : VecOf<Tpx32f> {
  using Sample = Tpx32f;
  using Acc = Tpx32f;
  static V LoadSamples(const Tpx32f* p) { return _mm256_loadu_ps(p); }
  static Tpx32f Step(Tpx32f a, Tpx32f x) { return a + x; }
  static V Step(V a, V x) { return _mm256_add_ps(a, x); }
  static Tpx32f Join(Tpx32f a, Tpx32f b) { return a + b; }
  static V Join(V a, V b) { return _mm256_add_ps(a, b); }
};
// Float samples widened and added in Tpx64f.
struct AddLanes64f : VecOf<Tpx64f> {
  using Sample = Tpx32f;
  using Acc = Tpx64f;
  static V LoadSamples(const Tpx32f* p) { return _mm256_cvtps_pd(_mm_loadu_ps(p)); }
  static Tpx64f Step(Tpx64f a, Tpx32f x) { return a + static_cast<Tpx64f>(x); }
  static V Step(V a, V x) { return _mm256_add_pd(a, x); }
  static Tpx64f Join(Tpx64f a, Tpx64f b) { return a + b; }
  static V Join(V a, V b) { return _mm256_add_pd(a, b); }
};

// Stands for "no second reduction" in SweepLanes.
struct NoLanes {
  using Acc = void;
};

// ---- The sweep -------------------------------------------------------------------------------
// For i in [0, n): l1[i % kBlock] = P1::Step(l1[i % kBlock], p[i]), and the same for P2 on l2
// (MinMax takes both from one read). kBlock = kVecs * P1::kN. n >= 0. AVX: whole blocks in
// registers; tail: scalar, same Step, into the lanes the tail samples belong to.
template <Isa kI, int kVecs, class P1, class P2 = NoLanes>
inline void SweepLanes(const typename P1::Sample* p, int n, typename P1::Acc* l1,
                       typename P2::Acc* l2 = nullptr) {
  constexpr bool kTwo = !std::is_same_v<P2, NoLanes>;
  constexpr int kN = P1::kN, kBlock = kVecs * kN;
  int i = 0;
  if constexpr (kI == Isa::kAvx) {
    if (n >= kBlock) {
      typename P1::V a[kVecs], b[kVecs];
      TPX_UNROLL
      for (int k = 0; k < kVecs; ++k) {
        a[k] = P1::Load(l1 + k * kN);
        if constexpr (kTwo) b[k] = P2::Load(l2 + k * kN);
      }
      for (; i + kBlock <= n; i += kBlock) {
        PrefetchAhead<kBlock * sizeof(*p)>(p + i);
        TPX_UNROLL
        for (int k = 0; k < kVecs; ++k) {
          const auto x = P1::LoadSamples(p + i + k * kN);
          a[k] = P1::Step(a[k], x);
          if constexpr (kTwo) b[k] = P2::Step(b[k], x);
        }
      }
      TPX_UNROLL
      for (int k = 0; k < kVecs; ++k) {
        P1::Store(l1 + k * kN, a[k]);
        if constexpr (kTwo) P2::Store(l2 + k * kN, b[k]);
      }
    }
  }
  for (int l = 0; i < n; ++i) {
    l1[l] = P1::Step(l1[l], p[i]);
    if constexpr (kTwo) l2[l] = P2::Step(l2[l], p[i]);
    if (++l == kBlock) l = 0;
  }
}

// Lanes taken from the start of a row: lane i holds sample i, or, past the row's end, the
// first pixel's sample of the same class (kS samples a pixel). Returns the samples used.
// AVX: a row of at least one block is copied in vectors, as SweepLanes reads them back.
template <Isa kI, int kVecs, int kS, class P>
inline long long StartLanes(const typename P::Sample* row, long long n, typename P::Acc* lanes) {
  constexpr int kN = P::kN, kBlock = kVecs * kN;
  if constexpr (kI == Isa::kAvx) {
    if (n >= kBlock) {
      TPX_UNROLL
      for (int k = 0; k < kVecs; ++k) P::Store(lanes + k * kN, P::LoadSamples(row + k * kN));
      return kBlock;
    }
  }
  const int m = n < kBlock ? static_cast<int>(n) : kBlock;
  for (int i = 0; i < m; ++i) lanes[i] = row[i];
  for (int i = m; i < kBlock; ++i) lanes[i] = row[i % kS];
  return m;
}

// Rows longer than an int are walked in pieces of kRowPiece samples, a multiple of every block
// and pixel length used here, so that sample i of the row still goes to lane i % kBlock.
inline constexpr long long kRowPiece = 3LL << 28;
template <class T, class Fn>
inline void ForEachPiece(const T* p, long long n, Fn&& fn) {
  for (; n > kRowPiece; n -= kRowPiece, p += kRowPiece) fn(p, static_cast<int>(kRowPiece));
  if (n > 0) fn(p, static_cast<int>(n));
}

// ---- The fold --------------------------------------------------------------------------------
// v[j] = J(v[j], v[j + h]) for h = kH, kH/2, ... while h >= kS.
template <class P, int kH, int kS>
inline typename P::V HalveDown(typename P::V v) {
  if constexpr (kH >= kS && kH >= 1)
    return HalveDown<P, kH / 2, kS>(P::Join(v, P::template Down<kH>(v)));
  else
    return v;
}

// Joins the kVecs * kN lanes into one result per lane class i % kS (kS = 1, 3 or 4, the
// samples of a pixel), in this fixed order:
//  1. vectors of the same period position, lane by lane: v[k] = J(..J(J(v[k], v[k+P]), v[k+2P])..)
//     where P = 3 vectors for kS = 3 and 1 otherwise;
//  2. kS = 1 or 4: halves, v[j] = J(v[j], v[j + h]) for h = kN/2, kN/4, ... down to h = kS;
//     kS = 3: each class's lanes of the P vectors in ascending order.
// out[c] receives class c for c < kS. The lanes are overwritten.
template <Isa kI, int kVecs, int kS, class P>
inline void FoldLanes(typename P::Acc* lanes, typename P::Acc* out) {
  constexpr int kN = P::kN, kP = kS == 3 ? 3 : 1;
  static_assert(kVecs % kP == 0, "a block holds whole periods");
  if constexpr (kI == Isa::kAvx) {
    typename P::V v[kP];
    TPX_UNROLL
    for (int k = 0; k < kP; ++k) v[k] = P::Load(lanes + k * kN);
    TPX_UNROLL
    for (int u = 1; u < kVecs / kP; ++u)
      TPX_UNROLL
      for (int k = 0; k < kP; ++k) v[k] = P::Join(v[k], P::Load(lanes + (u * kP + k) * kN));
    if constexpr (kS != 3) v[0] = HalveDown<P, kN / 2, kS>(v[0]);
    TPX_UNROLL
    for (int k = 0; k < kP; ++k) P::Store(lanes + k * kN, v[k]);
  } else {
    TPX_UNROLL
    for (int u = 1; u < kVecs / kP; ++u)
      for (int j = 0; j < kP * kN; ++j) lanes[j] = P::Join(lanes[j], lanes[u * kP * kN + j]);
    if constexpr (kS != 3)
      for (int h = kN / 2; h >= kS; h /= 2)
        for (int j = 0; j < h; ++j) lanes[j] = P::Join(lanes[j], lanes[j + h]);
  }
  if constexpr (kS == 3) {
    for (int c = 0; c < 3; ++c) {
      auto r = lanes[c];
      for (int j = c + 3; j < kP * kN; j += 3) r = P::Join(r, lanes[j]);
      out[c] = r;
    }
  } else {
    for (int c = 0; c < kS; ++c) out[c] = lanes[c];
  }
}

}  // namespace tpx::stats
