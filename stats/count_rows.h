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
  static constexpr int kVecs = kS == 3 ? 3 : 1;
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
  // Whole blocks; returns the samples done.
  int VectorBlocks(const T* p, int n, long long* cnt) const {
    const int blocks = n / kBlock;
    if constexpr (sizeof(T) == 1) {
      __m128i lo[kVecs], span[kVecs], keep[kVecs], acc[kVecs];
      TPX_UNROLL
      for (int k = 0; k < kVecs; ++k) {
        lo[k] = Load8(laneLo_ + k * kN);
        span[k] = Load8(laneSpan_ + k * kN);
        keep[k] = Load8(laneKeep_ + k * kN);
      }
      for (int b = 0; b < blocks;) {
        TPX_UNROLL
        for (auto& a : acc) a = _mm_setzero_si128();
        const int stop = blocks - b > 255 ? b + 255 : blocks;
        for (; b < stop; ++b)
          TPX_UNROLL
          for (int k = 0; k < kVecs; ++k) {
            const __m128i d = _mm_sub_epi8(Load8(p + b * kBlock + k * kN), lo[k]);
            __m128i in = _mm_cmpeq_epi8(_mm_min_epu8(d, span[k]), d);
            if constexpr (kAlpha) in = _mm_and_si128(in, keep[k]);
            acc[k] = _mm_sub_epi8(acc[k], in);
          }
        if constexpr (kS == 1) {
          const __m128i s = _mm_sad_epu8(acc[0], _mm_setzero_si128());
          cnt[0] += _mm_cvtsi128_si64(s) + _mm_cvtsi128_si64(_mm_unpackhi_epi64(s, s));
        } else {
          alignas(16) std::uint8_t lanes[kBlock];
          TPX_UNROLL
          for (int k = 0; k < kVecs; ++k) _mm_store_si128(reinterpret_cast<__m128i*>(lanes + k * kN), acc[k]);
          for (int j = 0; j < kBlock; ++j) cnt[j % kS] += lanes[j];
        }
      }
    } else {
      const __m256 one = _mm256_set1_ps(1.0f);
      __m256 lo[kVecs], hi[kVecs], acc[kVecs];
      TPX_UNROLL
      for (int k = 0; k < kVecs; ++k) {
        lo[k] = _mm256_load_ps(laneLo_ + k * kN);
        hi[k] = _mm256_load_ps(laneHi_ + k * kN);
      }
      for (int b = 0; b < blocks;) {
        TPX_UNROLL
        for (auto& a : acc) a = _mm256_setzero_ps();
        const int stop = blocks - b > 65536 ? b + 65536 : blocks;
        for (; b < stop; ++b)
          TPX_UNROLL
          for (int k = 0; k < kVecs; ++k) {
            const __m256 x = _mm256_loadu_ps(p + b * kBlock + k * kN);
            const __m256 in = _mm256_and_ps(_mm256_cmp_ps(x, lo[k], _CMP_GE_OQ), _mm256_cmp_ps(x, hi[k], _CMP_LE_OQ));
            acc[k] = _mm256_add_ps(acc[k], _mm256_and_ps(in, one));
          }
        alignas(32) float lanes[kBlock];
        TPX_UNROLL
        for (int k = 0; k < kVecs; ++k) _mm256_store_ps(lanes + k * kN, acc[k]);
        for (int j = 0; j < kBlock; ++j) cnt[j % kS] += static_cast<long long>(lanes[j]);
      }
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
