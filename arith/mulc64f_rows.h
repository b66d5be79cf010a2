// MulC64f rows: a sample times a double constant. The product is formed in double and narrowed
// to float; integer destinations clamp it to their range in float and convert it either by
// adding 0.5 in double and truncating, or by the rounding direction in force (MXCSR), which the
// driver sets for the length of the call. All of it, product and narrowing included, runs under
// that direction, on the vector path and the scalar path alike.
#pragma once
#include <immintrin.h>

#include <cstddef>
#include <type_traits>

#include "core/isa.h"
#include "core/layout.h"
#include "tpxip/types.h"

namespace tpx::arith {

enum class Conv64f {
  kAddHalf,   // add 0.5 in double, truncate
  kDirection  // convert by the current rounding direction
};

// The constant of kPeriod channels repeated along the row, as three registers of four doubles
// (12 samples: a whole number of periods for 1, 3 and 4).
template <int kPeriod>
struct Const64f {
  double v[4] = {};
  __m256d k[3];
  explicit Const64f(const double* value) {
    for (int c = 0; c < kPeriod; ++c) v[c] = value[c];
    alignas(32) double buf[12];
    for (int i = 0; i < 12; ++i) buf[i] = v[i % kPeriod];
    for (int j = 0; j < 3; ++j) k[j] = _mm256_load_pd(buf + 4 * j);
  }
};

// One sample, the rule as written. The clamp keeps the lower bound for a NaN, as the vector
// maximum does.
template <class T, Conv64f kConv>
inline T MulC64fSample(T x, double c) {
  const float f = static_cast<float>(static_cast<double>(x) * c);
  if constexpr (std::is_same_v<T, Tpx32f>) {
    return f;
  } else {
    constexpr float kLo = static_cast<float>(SampleLimits<T>::kMin);
    constexpr float kHi = static_cast<float>(SampleLimits<T>::kMax);
    float g = f > kLo ? f : kLo;
    g = g < kHi ? g : kHi;
    if constexpr (kConv == Conv64f::kAddHalf)
      return static_cast<T>(static_cast<int>(static_cast<double>(g) + 0.5));
    else
      return static_cast<T>(_mm_cvtss_si32(_mm_set_ss(g)));
  }
}

// Eight samples widened to two registers of four doubles.
template <class T>
inline void Load8(const T* p, __m256d& a, __m256d& b) {
  if constexpr (std::is_same_v<T, Tpx32f>) {
    const __m256 v = _mm256_loadu_ps(p);
    a = _mm256_cvtps_pd(_mm256_castps256_ps128(v));
    b = _mm256_cvtps_pd(_mm256_extractf128_ps(v, 1));
  } else {
    __m128i lo, hi;
    if constexpr (sizeof(T) == 1) {
      const __m128i v = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
      lo = _mm_cvtepu8_epi32(v);
      hi = _mm_cvtepu8_epi32(_mm_srli_si128(v, 4));
    } else {
      const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
      lo = std::is_signed_v<T> ? _mm_cvtepi16_epi32(v) : _mm_cvtepu16_epi32(v);
      hi = std::is_signed_v<T> ? _mm_cvtepi16_epi32(_mm_srli_si128(v, 8))
                               : _mm_cvtepu16_epi32(_mm_srli_si128(v, 8));
    }
    a = _mm256_cvtepi32_pd(lo);
    b = _mm256_cvtepi32_pd(hi);
  }
}

// Eight floats clamped, converted and stored as T.
template <class T, Conv64f kConv>
inline void Store8(T* p, __m256 f) {
  if constexpr (std::is_same_v<T, Tpx32f>) {
    _mm256_storeu_ps(p, f);
  } else {
    f = _mm256_max_ps(f, _mm256_set1_ps(static_cast<float>(SampleLimits<T>::kMin)));
    f = _mm256_min_ps(f, _mm256_set1_ps(static_cast<float>(SampleLimits<T>::kMax)));
    __m128i lo, hi;
    if constexpr (kConv == Conv64f::kAddHalf) {
      const __m256d h = _mm256_set1_pd(0.5);
      lo = _mm256_cvttpd_epi32(_mm256_add_pd(_mm256_cvtps_pd(_mm256_castps256_ps128(f)), h));
      hi = _mm256_cvttpd_epi32(_mm256_add_pd(_mm256_cvtps_pd(_mm256_extractf128_ps(f, 1)), h));
    } else {
      const __m256i r = _mm256_cvtps_epi32(f);
      lo = _mm256_castsi256_si128(r);
      hi = _mm256_extractf128_si256(r, 1);
    }
    if constexpr (sizeof(T) == 1) {
      _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_packus_epi16(_mm_packs_epi32(lo, hi), lo));
    } else {
      const __m128i v = std::is_signed_v<T> ? _mm_packs_epi32(lo, hi) : _mm_packus_epi32(lo, hi);
      _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v);
    }
  }
}

// d[i] = MulC64fSample(x[i], k[i % kPeriod]) for i < n. n >= 0; d may equal x. V = 8 samples
// (two registers of doubles, one of floats). Tail: scalar, same rule.
template <class T, int kPeriod, Conv64f kConv, Isa kI>
inline void MulC64fRow(const T* x, const Const64f<kPeriod>& k, T* d, std::ptrdiff_t n) {
  std::ptrdiff_t i = 0;
  if constexpr (kI == Isa::kAvx) {
    __m256d k0 = k.k[0], k1 = k.k[1], k2 = k.k[2];
    for (; i + 8 <= n; i += 8) {
      __m256d a, b;
      Load8(x + i, a, b);
      const __m256 f = _mm256_set_m128(_mm256_cvtpd_ps(_mm256_mul_pd(b, k1)),
                                       _mm256_cvtpd_ps(_mm256_mul_pd(a, k0)));
      Store8<T, kConv>(d + i, f);
      // Eight samples are two registers of the 12-sample pattern: the next step starts at k2.
      const __m256d t = k0;
      k0 = k2;
      k2 = k1;
      k1 = t;
    }
  }
  int phase = static_cast<int>(i % kPeriod);
  for (; i < n; ++i) {
    d[i] = MulC64fSample<T, kConv>(x[i], k.v[phase]);
    if (++phase == kPeriod) phase = 0;
  }
}

}  // namespace tpx::arith
