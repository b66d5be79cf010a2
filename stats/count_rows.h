// Row kernel of tpxiCountInRange_*: samples inside closed per-channel bounds, counted per lane.
#pragma once
#include <immintrin.h>

#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/isa.h"
#include "stats/lanes.h"
#include "tpxip/types.h"

namespace tpx::stats {

template <bool kBytes>
struct CountLanes {
  using V = __m128i;
  using Lane = std::uint8_t;
};
template <>
struct CountLanes<false> {
  using V = __m256;
  using Lane = float;
};

// Counts, for i < n, the samples p[i] with lo[c] <= p[i] <= hi[c], c = i % kS, into cnt[c];
// with kAlpha the fourth sample of each pixel never counts. Float comparisons are ordered: NaN
// never counts. The lane bounds of one block (one pixel period of vectors) are built once.
// AVX, 8u: (x - lo) mod 256 <= hi - lo, counted in 8-bit lanes emptied every 255 blocks;
// 32f: two ordered compares, counted in Tpx32f lanes (exact) emptied every 65536 blocks.
// n >= 0 and a multiple of kS; tail: scalar, same test.
template <class T, int kS, bool kAlpha>
class RangeCounter {
 public:
  static constexpr int kN = sizeof(T) == 1 ? 16 : 8;  // lanes a vector
  static constexpr int kVecs = kS == 3 ? 3 : 2;  // whole pixel periods, two chains at least
  static constexpr int kBlock = kVecs * kN;

  RangeCounter(const T* lo, const T* hi) {
    for (int c = 0; c < kS; ++c) {
      lo_[c] = lo[c % (kAlpha ? 3 : kS)];
      hi_[c] = hi[c % (kAlpha ? 3 : kS)];
    }
    for (int j = 0; j < kBlock; ++j) {
      const int c = j % kS;
      const bool off = kAlpha && c == 3;
      if constexpr (sizeof(T) == 1) {
        laneLo_[j] = lo_[c];
        laneSpan_[j] = static_cast<T>(hi_[c] - lo_[c]);
        laneKeep_[j] = off ? 0 : 0xFF;
      } else {
        laneLo_[j] = off ? std::numeric_limits<T>::infinity() : lo_[c];
        laneHi_[j] = off ? -std::numeric_limits<T>::infinity() : hi_[c];
      }
    }
  }

  template <Isa kI>
  void Row(const T* p, int n, long long* cnt) const {
    int i = 0;
    if constexpr (kI == Isa::kAvx) i = VectorBlocks(p, n, cnt);
    for (int c = 0; i < n; ++i) {
      if (!(kAlpha && c == 3) && lo_[c] <= p[i] && p[i] <= hi_[c]) ++cnt[c];
      if (++c == kS) c = 0;
    }
  }

 private:
  // Counts of one block in lanes: 8-bit lanes for 8u (emptied every 255 blocks), Tpx32f lanes
  // for 32f (exact, emptied every 65536 blocks).
  using V = typename CountLanes<sizeof(T) == 1>::V;
  using Lane = typename CountLanes<sizeof(T) == 1>::Lane;
  static constexpr int kEmptyEvery = sizeof(T) == 1 ? 255 : 65536;

  // acc plus one in each lane whose sample (vector k of the block at p) is inside its bounds.
  V CountIn(V acc, const T* p, int k) const {
    if constexpr (sizeof(T) == 1) {
      const __m128i d = _mm_sub_epi8(Load8(p), Load8(laneLo_ + k * kN));
      __m128i in = _mm_cmpeq_epi8(_mm_min_epu8(d, Load8(laneSpan_ + k * kN)), d);
      if constexpr (kAlpha) in = _mm_and_si128(in, Load8(laneKeep_ + k * kN));
      return _mm_sub_epi8(acc, in);
    } else {
      const __m256 x = _mm256_loadu_ps(p);
      const __m256 in = _mm256_and_ps(_mm256_cmp_ps(x, _mm256_load_ps(laneLo_ + k * kN), _CMP_GE_OQ),
                                      _mm256_cmp_ps(x, _mm256_load_ps(laneHi_ + k * kN), _CMP_LE_OQ));
      return _mm256_add_ps(acc, _mm256_and_ps(in, _mm256_set1_ps(1.0f)));
    }
  }
  // Adds the lane counts to cnt[lane % kS].
  static void Empty(const V* acc, long long* cnt) {
    if constexpr (sizeof(T) == 1 && kS == 1) {
      __m128i s = _mm_setzero_si128();
      TPX_UNROLL
      for (int k = 0; k < kVecs; ++k) s = _mm_add_epi64(s, _mm_sad_epu8(acc[k], _mm_setzero_si128()));
      cnt[0] += _mm_cvtsi128_si64(s) + _mm_cvtsi128_si64(_mm_unpackhi_epi64(s, s));
    } else {
      alignas(32) Lane lanes[kBlock];
      TPX_UNROLL
      for (int k = 0; k < kVecs; ++k) {
        if constexpr (sizeof(T) == 1) _mm_store_si128(reinterpret_cast<__m128i*>(lanes + k * kN), acc[k]);
        else _mm256_store_ps(lanes + k * kN, acc[k]);
      }
      for (int j = 0; j < kBlock; ++j) cnt[j % kS] += static_cast<long long>(lanes[j]);
    }
  }
  // Whole blocks; returns the samples done.
  int VectorBlocks(const T* p, int n, long long* cnt) const {
    const int blocks = n / kBlock;
    for (int b = 0; b < blocks;) {
      V acc[kVecs];
      TPX_UNROLL
      for (auto& a : acc) a = V{};
      for (const int stop = blocks - b > kEmptyEvery ? b + kEmptyEvery : blocks; b < stop; ++b) {
        PrefetchAhead<kBlock * sizeof(T)>(p + b * kBlock);
        TPX_UNROLL
        for (int k = 0; k < kVecs; ++k) acc[k] = CountIn(acc[k], p + b * kBlock + k * kN, k);
      }
      Empty(acc, cnt);
    }
    return blocks * kBlock;
  }
  static __m128i Load8(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }

  T lo_[kS], hi_[kS];
  alignas(32) T laneLo_[kBlock];
  alignas(32) T laneSpan_[sizeof(T) == 1 ? kBlock : 1];
  alignas(32) std::uint8_t laneKeep_[sizeof(T) == 1 ? kBlock : 1];
  alignas(32) T laneHi_[sizeof(T) == 1 ? 1 : kBlock];
};

}  // namespace tpx::stats
