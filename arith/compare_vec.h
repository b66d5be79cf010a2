// Vector traits of the decision families (Threshold, Compare): one 128-bit integer vector for
// 8u, 16u and 16s (AVX has no 256-bit integer arithmetic), one 256-bit vector for 32f, and a
// 256-bit form of the integer types for rules that are mostly selects. Every mask is all ones
// or all zeros per lane.
#pragma once
#include <immintrin.h>

#include <cstdint>
#include <type_traits>
#include <utility>

#include "tpxip/types.h"

namespace tpx::dvec {

struct Int128 {
  using V = __m128i;
  static V Zero() { return _mm_setzero_si128(); }
  static V Ones() { return _mm_set1_epi32(-1); }
  static V And(V a, V b) { return _mm_and_si128(a, b); }
  static V Or(V a, V b) { return _mm_or_si128(a, b); }
  static V AndNot(V a, V b) { return _mm_andnot_si128(a, b); }  // ~a & b
  static V Not(V a) { return _mm_xor_si128(a, Ones()); }
  static V Blend(V a, V b, V m) { return _mm_blendv_epi8(a, b, m); }  // m ? b : a
  template <class T>
  static V Load(const T* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
  template <class T>
  static void Store(T* p, V v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
  template <class T>
  static void Stream(T* p, V v) { _mm_stream_si128(reinterpret_cast<__m128i*>(p), v); }
};

template <class T>
struct Vec;

// s > t and s < t with tb = Biased(t) prepared once: Biased() moves samples to the signed
// range, where Gt() is the one ordered compare.
template <class D>
struct IntOrder : Int128 {
  static V SampleAbove(V s, V tb) { return D::Gt(D::Biased(s), tb); }
  static V SampleBelow(V s, V tb) { return D::Gt(tb, D::Biased(s)); }
};

// Unsigned lanes have no ordered compare: a <= b is max(a, b) == b. Less is delivered as its
// negation (a >= b is max(a, b) == a), two instructions, with kLessInverted set.
template <class D>
struct UnsignedOrder : IntOrder<D> {
  using V = __m128i;
  static constexpr bool kLessInverted = true, kLessEqInverted = false;
  static V LessMask(V a, V b) { return D::Eq(D::Max(a, b), a); }
  static V LessEqMask(V a, V b) { return D::Eq(D::Max(a, b), b); }
};

template <>
struct Vec<Tpx8u> : UnsignedOrder<Vec<Tpx8u>> {
  static constexpr int kLanes = 16;
  static V Min(V a, V b) { return _mm_min_epu8(a, b); }
  static V Max(V a, V b) { return _mm_max_epu8(a, b); }
  static V Eq(V a, V b) { return _mm_cmpeq_epi8(a, b); }
  static V Biased(V a) { return _mm_xor_si128(a, _mm_set1_epi8(static_cast<char>(0x80))); }
  static V Gt(V a, V b) { return _mm_cmpgt_epi8(a, b); }
  // Byte masks of 16 consecutive samples from the masks of one vector (two for wider types).
  static __m128i ToBytes(const V* m) { return m[0]; }
};

template <>
struct Vec<Tpx16u> : UnsignedOrder<Vec<Tpx16u>> {
  static constexpr int kLanes = 8;
  static V Min(V a, V b) { return _mm_min_epu16(a, b); }
  static V Max(V a, V b) { return _mm_max_epu16(a, b); }
  static V Eq(V a, V b) { return _mm_cmpeq_epi16(a, b); }
  static V Biased(V a) { return _mm_xor_si128(a, _mm_set1_epi16(static_cast<short>(0x8000))); }
  static V Gt(V a, V b) { return _mm_cmpgt_epi16(a, b); }
  static __m128i ToBytes(const V* m) { return _mm_packs_epi16(m[0], m[1]); }
};

// Signed lanes compare directly: a < b is b > a; a <= b is delivered as its negation a > b.
template <>
struct Vec<Tpx16s> : IntOrder<Vec<Tpx16s>> {
  static constexpr int kLanes = 8;
  static constexpr bool kLessInverted = false, kLessEqInverted = true;
  static V Min(V a, V b) { return _mm_min_epi16(a, b); }
  static V Max(V a, V b) { return _mm_max_epi16(a, b); }
  static V Eq(V a, V b) { return _mm_cmpeq_epi16(a, b); }
  static V Biased(V a) { return a; }
  static V Gt(V a, V b) { return _mm_cmpgt_epi16(a, b); }
  static V LessMask(V a, V b) { return _mm_cmpgt_epi16(b, a); }
  static V LessEqMask(V a, V b) { return _mm_cmpgt_epi16(a, b); }
  static __m128i ToBytes(const V* m) { return _mm_packs_epi16(m[0], m[1]); }
};

// 32f: ordered predicates, false on NaN. Min and Max are the processor's: the second operand
// is returned where either is NaN.
template <>
struct Vec<Tpx32f> {
  using V = __m256;
  static constexpr int kLanes = 8;
  static constexpr bool kLessInverted = false, kLessEqInverted = false;
  static V Min(V a, V b) { return _mm256_min_ps(a, b); }
  static V Max(V a, V b) { return _mm256_max_ps(a, b); }
  static V Blend(V a, V b, V m) { return _mm256_blendv_ps(a, b, m); }  // m ? b : a
  static V Biased(V a) { return a; }
  static V SampleAbove(V s, V t) { return _mm256_cmp_ps(s, t, _CMP_GT_OQ); }
  static V SampleBelow(V s, V t) { return _mm256_cmp_ps(s, t, _CMP_LT_OQ); }
  static V LessMask(V a, V b) { return _mm256_cmp_ps(a, b, _CMP_LT_OQ); }
  static V LessEqMask(V a, V b) { return _mm256_cmp_ps(a, b, _CMP_LE_OQ); }
  static V EqMask(V a, V b) { return _mm256_cmp_ps(a, b, _CMP_EQ_OQ); }
  static V Load(const Tpx32f* p) { return _mm256_loadu_ps(p); }
  static void Store(Tpx32f* p, V v) { _mm256_storeu_ps(p, v); }
  static void Stream(Tpx32f* p, V v) { _mm256_stream_ps(p, v); }
  static __m128i ToBytes(const V* m) {
    const __m128i a = _mm_packs_epi32(_mm_castps_si128(_mm256_castps256_ps128(m[0])),
                                      _mm_castps_si128(_mm256_extractf128_ps(m[0], 1)));
    const __m128i b = _mm_packs_epi32(_mm_castps_si128(_mm256_castps256_ps128(m[1])),
                                      _mm_castps_si128(_mm256_extractf128_ps(m[1], 1)));
    return _mm_packs_epi16(a, b);
  }
};

// Integer samples in a 256-bit register: loads, stores and selects at full width (as float
// logic), compares on the two 128-bit halves.
template <class T>
struct Wide {
  using H = Vec<T>;
  using V = __m256;
  static constexpr int kLanes = 2 * H::kLanes;
  static __m128i Lo(V a) { return _mm_castps_si128(_mm256_castps256_ps128(a)); }
  static __m128i Hi(V a) { return _mm_castps_si128(_mm256_extractf128_ps(a, 1)); }
  static V Join(__m128i lo, __m128i hi) {
    return _mm256_insertf128_ps(_mm256_castps128_ps256(_mm_castsi128_ps(lo)), _mm_castsi128_ps(hi), 1);
  }
  static V Load(const T* p) { return _mm256_loadu_ps(reinterpret_cast<const float*>(p)); }
  static void Store(T* p, V v) { _mm256_storeu_ps(reinterpret_cast<float*>(p), v); }
  static void Stream(T* p, V v) { _mm256_stream_ps(reinterpret_cast<float*>(p), v); }
  static V Blend(V a, V b, V m) { return _mm256_or_ps(_mm256_andnot_ps(m, a), _mm256_and_ps(m, b)); }
  static V Biased(V a) { return Join(H::Biased(Lo(a)), H::Biased(Hi(a))); }
  static V SampleAbove(V s, V tb) {
    return Join(H::SampleAbove(Lo(s), Lo(tb)), H::SampleAbove(Hi(s), Hi(tb)));
  }
  static V SampleBelow(V s, V tb) {
    return Join(H::SampleBelow(Lo(s), Lo(tb)), H::SampleBelow(Hi(s), Hi(tb)));
  }
};

// A hint to fetch the line kPrefetchBytes ahead of p; it never faults, so it may point past the
// row.
inline constexpr std::uintptr_t kPrefetchBytes = 512;
inline void PrefetchAhead(const void* p) {
  _mm_prefetch(reinterpret_cast<const char*>(reinterpret_cast<std::uintptr_t>(p) + kPrefetchBytes), _MM_HINT_T0);
}

// Calls f(std::integral_constant<int, 0>{}) ... f(<N - 1>) in order, unrolled.
template <class F, int... I>
__attribute__((always_inline)) inline void UnrollImpl(F&& f, std::integer_sequence<int, I...>) {
  (f(std::integral_constant<int, I>{}), ...);
}
template <int N, class F>
__attribute__((always_inline)) inline void Unroll(F&& f) {
  UnrollImpl(f, std::make_integer_sequence<int, N>{});
}

}  // namespace tpx::dvec
