// Row kernels of tpxiSum_* (and through it tpxiMean_*): exact integer sums, the three paths of
// the one-channel float sum, and the lane layouts of the three- and four-channel float sums.
#pragma once
#include <immintrin.h>

#include <cstdint>
#include <type_traits>

#include "core/isa.h"
#include "stats/lanes.h"
#include "tpxip/types.h"

namespace tpx::stats {

// ---- Exact integer sums --------------------------------------------------------------------
// Samples of one stripe: short enough that no 16- or 32-bit lane below can overflow, and a
// whole number of pixels.
template <int kS>
inline constexpr int kSumStripe = 32768 / kS * kS;

// tot[i % kS] += p[i] for i < n, exactly. 0 <= n <= kSumStripe<kS>, n a multiple of kS.
// AVX, 8u one channel: _mm_sad_epu8 straight into 64-bit lanes. Other 8u layouts: bytes widened
// into 16-bit lanes, emptied every 256 blocks. 16-bit samples: widened into 32-bit lanes, which
// hold a whole stripe. A block is four vectors, or three for three samples a pixel, so that
// each lane keeps one channel. Tail: scalar, same sums.
template <Isa kI, class T, int kS>
inline void SumRowExact(const T* p, int n, long long* tot) {
  int i = 0;
  if constexpr (kI == Isa::kAvx) {
    const __m128i zero = _mm_setzero_si128();
    auto load = [&](int at) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at)); };
    if constexpr (sizeof(T) == 1 && kS == 1) {
      __m128i s0 = zero, s1 = zero;
      for (; i + 64 <= n; i += 64) {
        PrefetchAhead<64>(p + i);
        s0 = _mm_add_epi64(s0, _mm_sad_epu8(load(i), zero));
        s1 = _mm_add_epi64(s1, _mm_sad_epu8(load(i + 16), zero));
        s0 = _mm_add_epi64(s0, _mm_sad_epu8(load(i + 32), zero));
        s1 = _mm_add_epi64(s1, _mm_sad_epu8(load(i + 48), zero));
      }
      for (; i + 16 <= n; i += 16) s0 = _mm_add_epi64(s0, _mm_sad_epu8(load(i), zero));
      s0 = _mm_add_epi64(s0, s1);
      tot[0] += _mm_cvtsi128_si64(s0) + _mm_cvtsi128_si64(_mm_unpackhi_epi64(s0, s0));
    } else {
      constexpr int kVecs = kS == 3 ? 3 : 4;  // vectors a block: whole pixel periods
      constexpr int kBlock = kVecs * (16 / static_cast<int>(sizeof(T)));  // samples a block
      constexpr int kWide = 16 / (2 * static_cast<int>(sizeof(T)));     // lanes of a half
      using Wide = std::conditional_t<sizeof(T) == 1, std::uint16_t,
                                      std::conditional_t<std::is_signed_v<T>, std::int32_t, std::uint32_t>>;
      // Lane j of acc[h] holds block sample h * kWide + j: storing acc in order gives the block.
      __m128i acc[2 * kVecs];
      TPX_UNROLL
      for (auto& a : acc) a = zero;
      // 16-bit lanes take 255 at most a block; 32-bit lanes a stripe.
      constexpr int kFlush = sizeof(T) == 1 ? 256 : kSumStripe<kS>;
      while (i + kBlock <= n) {
        const int stop = (n - i) / kBlock > kFlush ? i + kFlush * kBlock : n - kBlock + 1;
        for (; i < stop; i += kBlock) {
          PrefetchAhead<kVecs * 16>(p + i);
          TPX_UNROLL
          for (int k = 0; k < kVecs; ++k) {
            const __m128i v = load(i + k * (16 / static_cast<int>(sizeof(T))));
            __m128i lo, hi;
            if constexpr (sizeof(T) == 1) {
              lo = _mm_unpacklo_epi8(v, zero);
              hi = _mm_unpackhi_epi8(v, zero);
              acc[2 * k] = _mm_add_epi16(acc[2 * k], lo);
              acc[2 * k + 1] = _mm_add_epi16(acc[2 * k + 1], hi);
            } else {
              if constexpr (std::is_signed_v<T>) {
                lo = _mm_cvtepi16_epi32(v);
                hi = _mm_cvtepi16_epi32(_mm_unpackhi_epi64(v, v));
              } else {
                lo = _mm_unpacklo_epi16(v, zero);
                hi = _mm_unpackhi_epi16(v, zero);
              }
              acc[2 * k] = _mm_add_epi32(acc[2 * k], lo);
              acc[2 * k + 1] = _mm_add_epi32(acc[2 * k + 1], hi);
            }
          }
        }
        alignas(16) Wide w[2 * kVecs * kWide];
        TPX_UNROLL
        for (int h = 0; h < 2 * kVecs; ++h) {
          _mm_store_si128(reinterpret_cast<__m128i*>(w + h * kWide), acc[h]);
          acc[h] = zero;
        }
        for (int j = 0; j < kBlock; ++j) tot[j % kS] += w[j];
      }
    }
  }
  for (int c = 0; i < n; ++i) {
    tot[c] += p[i];
    if (++c == kS) c = 0;
  }
}

// Any row length: stripes of kSumStripe samples.
template <Isa kI, class T, int kS>
inline void SumRowExactLong(const T* p, long long n, long long* tot) {
  for (; n > 0; n -= kSumStripe<kS>, p += kSumStripe<kS>)
    SumRowExact<kI, T, kS>(p, n < kSumStripe<kS> ? static_cast<int>(n) : kSumStripe<kS>, tot);
}

// ---- One-channel float sum -------------------------------------------------------------------
// Narrow rows (w <= 16): total += (lane0 + lane1) of two Tpx64f lanes that take the even-length
// prefix alternately, then += the last odd sample. w = 1 adds its sample directly. AVX: the two
// lanes are one 128-bit vector. Returns the new total.
template <Isa kI>
inline double SumRowNarrow32f(const Tpx32f* p, int w, double total) {
  const int even = w & ~1;
  if (even > 0) {
    double l0 = 0.0, l1 = 0.0;
    if constexpr (kI == Isa::kAvx) {
      __m128d lanes = _mm_setzero_pd();
      for (int i = 0; i < even; i += 2)
        lanes = _mm_add_pd(lanes, _mm_cvtps_pd(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p + i)))));
      l0 = _mm_cvtsd_f64(lanes);
      l1 = _mm_cvtsd_f64(_mm_unpackhi_pd(lanes, lanes));
    } else {
      for (int i = 0; i < even; i += 2) {
        l0 += static_cast<double>(p[i]);
        l1 += static_cast<double>(p[i + 1]);
      }
    }
    total += l0 + l1;
  }
  if (w & 1) total += static_cast<double>(p[w - 1]);
  return total;
}

// The walk of a wide row: a prefix of (address mod 64) / 8 samples, taken one at a time, then
// whole blocks, then the rest. Row starts on a 64-byte boundary take a group of four from the
// rest of the fast path; other starts take the rest one at a time.
inline int RowPrefix32f(const Tpx32f* p) { return static_cast<int>((reinterpret_cast<std::uintptr_t>(p) & 63) / 8); }
inline bool RowOn64(const Tpx32f* p) { return (reinterpret_cast<std::uintptr_t>(p) & 63) == 0; }

// Lanes of the fast path, alive over the whole image: A of eight Tpx32f, B of four.
struct FastLanes32f {
  alignas(32) float a[8] = {};
  alignas(16) float b[4] = {};
};

// Fast path, one row of w >= 17 samples (the walk above): prefix singles into b[0]; each block
// of 16 as (first eight + last eight) into a; of the rest r = n % 16: r >= 8 takes eight into a,
// then four into b if r & 4, then singles into b[0]; r < 8 on a 64-byte start takes four into b
// if r >= 4, then singles; r < 8 elsewhere takes singles only. AVX: a and b are one __m256 and
// one __m128; scalar: the lanes as arrays, the same additions.
template <Isa kI>
inline void SumRowFast32f(const Tpx32f* p, int w, FastLanes32f& l) {
  const int pre = RowPrefix32f(p);
  const int n = w - pre, r = n % 16;
  const bool four = r >= 8 ? (r & 4) != 0 : (RowOn64(p) && r >= 4);
  const int eight = r >= 8 ? 8 : 0;
  int i = 0;
  if constexpr (kI == Isa::kAvx) {
    __m256 a = _mm256_load_ps(l.a);
    __m128 b = _mm_load_ps(l.b);
    for (; i < pre; ++i) b = _mm_add_ss(b, _mm_load_ss(p + i));
    for (const int stop = pre + n / 16 * 16; i < stop; i += 16) {
      PrefetchAhead<64>(p + i);
      a = _mm256_add_ps(a, _mm256_add_ps(_mm256_loadu_ps(p + i), _mm256_loadu_ps(p + i + 8)));
    }
    if (eight) {
      a = _mm256_add_ps(a, _mm256_loadu_ps(p + i));
      i += 8;
    }
    if (four) {
      b = _mm_add_ps(b, _mm_loadu_ps(p + i));
      i += 4;
    }
    for (; i < w; ++i) b = _mm_add_ss(b, _mm_load_ss(p + i));
    _mm256_store_ps(l.a, a);
    _mm_store_ps(l.b, b);
  } else {
    for (; i < pre; ++i) l.b[0] = l.b[0] + p[i];
    for (const int stop = pre + n / 16 * 16; i < stop; i += 16)
      for (int j = 0; j < 8; ++j) l.a[j] = l.a[j] + (p[i + j] + p[i + 8 + j]);
    if (eight) {
      for (int j = 0; j < 8; ++j) l.a[j] = l.a[j] + p[i + j];
      i += 8;
    }
    if (four) {
      for (int j = 0; j < 4; ++j) l.b[j] = l.b[j] + p[i + j];
      i += 4;
    }
    for (; i < w; ++i) l.b[0] = l.b[0] + p[i];
  }
}

// Fold of the fast path, in Tpx32f: t = b + a[4..8); t = a[0..4) + t; t0 += t2, t1 += t3;
// the result is (t0 + t1) rounded to Tpx32f, then widened.
inline double FoldFast32f(const FastLanes32f& l) {
  float t[4];
  for (int j = 0; j < 4; ++j) t[j] = l.b[j] + l.a[4 + j];
  for (int j = 0; j < 4; ++j) t[j] = l.a[j] + t[j];
  t[0] = t[0] + t[2];
  t[1] = t[1] + t[3];
  return static_cast<double>(static_cast<float>(t[0] + t[1]));
}

// Accurate path, one row of w >= 17 samples: the same prefix as the fast path, singles into
// d[0]; each block of eight as (first four + last four), widened, into d; the rest singles into
// d[0]. Four Tpx64f lanes alive over the whole image. AVX: d is one __m256d.
template <Isa kI>
inline void SumRowAccurate32f(const Tpx32f* p, int w, double* d) {
  const int pre = RowPrefix32f(p);
  const int stop = pre + (w - pre) / 8 * 8;
  int i = 0;
  if constexpr (kI == Isa::kAvx) {
    __m256d acc = _mm256_loadu_pd(d);
    auto single = [&](int at) {
      const __m128d lo = _mm_add_sd(_mm256_castpd256_pd128(acc), _mm_cvtss_sd(_mm_setzero_pd(), _mm_load_ss(p + at)));
      acc = _mm256_blend_pd(acc, _mm256_castpd128_pd256(lo), 1);
    };
    for (; i < pre; ++i) single(i);
    for (; i < stop; i += 8) {
      PrefetchAhead<32>(p + i);
      acc = _mm256_add_pd(acc, _mm256_add_pd(_mm256_cvtps_pd(_mm_loadu_ps(p + i)), _mm256_cvtps_pd(_mm_loadu_ps(p + i + 4))));
    }
    for (; i < w; ++i) single(i);
    _mm256_storeu_pd(d, acc);
  } else {
    for (; i < pre; ++i) d[0] = d[0] + static_cast<double>(p[i]);
    for (; i < stop; i += 8)
      for (int j = 0; j < 4; ++j) d[j] = d[j] + (static_cast<double>(p[i + j]) + static_cast<double>(p[i + 4 + j]));
    for (; i < w; ++i) d[0] = d[0] + static_cast<double>(p[i]);
  }
}

// Fold of the accurate path: upper two lanes onto the lower two, then lane 0 + lane 1.
inline double FoldAccurate32f(const double* d) { return (d[0] + d[2]) + (d[1] + d[3]); }

// ---- Three- and four-channel float sums ------------------------------------------------------
// Three channels, narrow rows (w <= 13): three Tpx64f totals, each channel's samples in pixel
// order. No vector form: the row is shorter than the vector bookkeeping.
inline void SumRowNarrowC3(const Tpx32f* p, int w, double* tot) {
  for (int x = 0; x < w; ++x)
    for (int c = 0; c < 3; ++c) tot[c] = tot[c] + static_cast<double>(p[3 * x + c]);
}

// Vectors a block: one period of the pixel, doubled for independent chains.
constexpr int kSumVecsC3 = 6;  // 48 samples (Tpx32f lanes) or 24 (Tpx64f lanes)
constexpr int kSumVecsC4 = 4;  // 32 samples (Tpx32f lanes) or 16 (Tpx64f lanes)

// Three channels, wide rows, Tpx32f within the row: the samples up to the next 32-byte
// boundary (at most seven) add into three channel sums, the rest sweeps a fresh set of lanes
// whose channel is (phase + lane) % 3. Per channel, in Tpx32f: the lane fold, then the prefix
// sum added to it. The row's three sums are returned for the caller's Tpx64f totals.
template <Isa kI>
inline void SumRowC3Fast32f(const Tpx32f* p, long long n, float* rowSum) {
  using P = AddLanes32f;
  constexpr int kBlock = kSumVecsC3 * P::kN;
  const long long k0 = ((0 - reinterpret_cast<std::uintptr_t>(p)) & 31) / 4;
  const int pre = static_cast<int>(k0 < n ? k0 : n);
  float head[3] = {0.0f, 0.0f, 0.0f};
  for (int i = 0; i < pre; ++i) head[i % 3] = head[i % 3] + p[i];
  alignas(32) float lanes[kBlock] = {};
  ForEachPiece(p + pre, n - pre, [&](const Tpx32f* q, int k) { SweepLanes<kI, kSumVecsC3, P>(q, k, lanes); });
  float folded[3];
  FoldLanes<kI, kSumVecsC3, 3, P>(lanes, folded);
  for (int c = 0; c < 3; ++c) rowSum[(pre + c) % 3] = folded[c] + head[(pre + c) % 3];
}

}  // namespace tpx::stats
