// The library's rule for turning a floating-point sample into an integer sample. Convert and
// Scale use it, and so does every later path that stores float results into an integer image
// (filters, convolution, resize): include this header rather than rounding on your own.
//
// For a sample x (Tpx32f; Tpx64f works the same in double), a destination type D and a mode:
//   1. With a scale factor sf other than 0, x is multiplied by m = ScaleMultiplier32f(sf),
//      formed once per call: 1.0 halved sf times (sf > 0) or doubled -sf times (sf < 0), in
//      the sample's own precision under round-to-nearest. A large |sf| gives 0 or infinity.
//   2. y = min(x, hi(D)) by the processor's minimum with x as the first operand, so a NaN x
//      becomes hi(D) and every NaN stores the maximum.
//   3. y is rounded to an integer (RoundKindOf maps the caller's roundMode):
//        kZero     truncate toward zero;
//        kNearest  round half to even, with the rounding control set to nearest;
//        kHalfAway add 0.5 to |y| with the rounding control set to truncation, restore the
//                  sign and truncate: ties away from zero. Every mode other than 0 and 1 is this.
//   4. The integer saturates to D. Values below the range, and the conversion's overflow value
//      (0x80000000), give lo(D). For 32s the bound hi is 2^31, the float nearest INT_MAX, and a
//      sample that reaches it stores INT_MAX; for 32u the bound is 2^32 and gives 0xFFFFFFFF.
//
// Callers hold one FloatToIntScope for their whole row loop: it sets the rounding control that
// the mode needs (nothing for kZero) and restores the caller's control when it ends. Under that
// scope the per-sample function FloatToInt<D, kR> and the vector stores StoreFloatToInt16 and
// StoreDoubleToInt8 give the same numbers, sample for sample.
#pragma once
#include <immintrin.h>

#include <cstdint>
#include <type_traits>

#include "core/fpround.h"
#include "tpxip/types.h"

namespace tpx {

enum class RoundKind { kZero, kNearest, kHalfAway };

// roundMode 0 truncates and 1 rounds half to even; only these two are tested for, so 2 and
// every other value (negative ones and the flag 16 included) round half away from zero.
constexpr RoundKind RoundKindOf(int roundMode) {
  return roundMode == 0 ? RoundKind::kZero : roundMode == 1 ? RoundKind::kNearest : RoundKind::kHalfAway;
}

// Calls f(std::integral_constant<RoundKind, k>{}) for the run-time kind, so that rows are
// instantiated per mode and the mode never costs a branch per sample.
template <class F>
inline decltype(auto) WithRoundKind(RoundKind k, F&& f) {
  switch (k) {
    case RoundKind::kZero: return f(std::integral_constant<RoundKind, RoundKind::kZero>{});
    case RoundKind::kNearest: return f(std::integral_constant<RoundKind, RoundKind::kNearest>{});
    default: return f(std::integral_constant<RoundKind, RoundKind::kHalfAway>{});
  }
}

// The rounding control a row of kind k needs, for the length of the scope: nearest for
// kNearest, truncation for kHalfAway, and the caller's own for kZero (which changes nothing).
class FloatToIntScope {
 public:
  explicit FloatToIntScope(RoundKind k) : scope_(Needed(k)) {}

 private:
  static FpRound Needed(RoundKind k) {
    if (k == RoundKind::kNearest) return FpRound::kNearest;
    if (k == RoundKind::kHalfAway) return FpRound::kZero;
    return static_cast<FpRound>(_mm_getcsr() & _MM_ROUND_MASK);
  }
  RoundingScope scope_;
};

// Returns v through an empty volatile asm, so that arithmetic on the result can move neither
// before nor after a change of the rounding control that precedes or follows it. Use it on a
// value computed from registers only (no memory) right after a scope has been set up.
template <class F>
inline F Pinned(F v) {
  asm volatile("" : "+x"(v));
  return v;
}

namespace detail {
template <class F>
inline F Multiplier(int sf) {
  RoundingScope nearest(FpRound::kNearest);
  F m = Pinned(F(1));
  const F f = sf > 0 ? F(0.5) : F(2);
  unsigned n = sf > 0 ? static_cast<unsigned>(sf) : 0u - static_cast<unsigned>(sf);
  // Once the product stops changing (0, infinity) further steps cannot change it either, so
  // the loop ends there: at most about 150 (float) or 1080 (double) steps for any sf.
  for (; n != 0; --n) {
    const F next = m * f;
    if (next == m) break;
    m = next;
  }
  return Pinned(m);
}
}  // namespace detail

// The scale multiplier 2^-sf, built by repeated halving or doubling in the sample's precision.
inline float ScaleMultiplier32f(int sf) { return detail::Multiplier<float>(sf); }
inline double ScaleMultiplier64f(int sf) { return detail::Multiplier<double>(sf); }

// ---- Destination bounds ----------------------------------------------------------------------
template <class D>
struct IntBounds;
template <> struct IntBounds<Tpx8u>  { static constexpr int kLo = 0;      static constexpr int kHi = 255; };
template <> struct IntBounds<Tpx8s>  { static constexpr int kLo = -128;   static constexpr int kHi = 127; };
template <> struct IntBounds<Tpx16u> { static constexpr int kLo = 0;      static constexpr int kHi = 65535; };
template <> struct IntBounds<Tpx16s> { static constexpr int kLo = -32768; static constexpr int kHi = 32767; };

// The upper bound of step 2 in float and double.
template <class D>
constexpr double RuleHi() {
  if constexpr (std::is_same_v<D, Tpx32s>) return 2147483648.0;
  else if constexpr (std::is_same_v<D, Tpx32u>) return 4294967296.0;
  else return static_cast<double>(IntBounds<D>::kHi);
}
template <class D>
inline constexpr double kRuleHi = RuleHi<D>();

// Saturates a 32-bit integer to an 8- or 16-bit D, as the pack instructions do.
template <class D>
inline D SaturateI32(int v) {
  return static_cast<D>(v < IntBounds<D>::kLo ? IntBounds<D>::kLo : v > IntBounds<D>::kHi ? IntBounds<D>::kHi : v);
}

// ---- One sample ------------------------------------------------------------------------------
// Rounds y to a 32-bit integer by kind (0x80000000 where it does not fit). Scalar instructions
// of the same family as the vector ones, so both twins share the overflow value.
template <RoundKind kR>
inline int RoundToI32(float y) {
  const __m128 v = _mm_set_ss(y);
  if constexpr (kR == RoundKind::kZero) {
    return _mm_cvttss_si32(v);
  } else if constexpr (kR == RoundKind::kNearest) {
    return _mm_cvtss_si32(v);
  } else {
    const __m128 half = _mm_or_ps(_mm_and_ps(_mm_set_ss(-0.0f), v), _mm_set_ss(0.5f));
    return _mm_cvttss_si32(_mm_add_ss(v, half));
  }
}
template <RoundKind kR>
inline int RoundToI32(double y) {
  const __m128d v = _mm_set_sd(y);
  if constexpr (kR == RoundKind::kZero) {
    return _mm_cvttsd_si32(v);
  } else if constexpr (kR == RoundKind::kNearest) {
    return _mm_cvtsd_si32(v);
  } else {
    const __m128d half = _mm_or_pd(_mm_and_pd(_mm_set_sd(-0.0), v), _mm_set_sd(0.5));
    return _mm_cvttsd_si32(_mm_add_sd(v, half));
  }
}

// min(x, hi) with x first: a NaN x gives hi.
inline float MinFirst(float x, float hi) { return _mm_cvtss_f32(_mm_min_ss(_mm_set_ss(x), _mm_set_ss(hi))); }
inline double MinFirst(double x, double hi) { return _mm_cvtsd_f64(_mm_min_sd(_mm_set_sd(x), _mm_set_sd(hi))); }

// Steps 2 to 4 for one sample x that has already been multiplied.
template <class D, RoundKind kR, class F>
inline D FloatToInt(F x) {
  constexpr F kHi = static_cast<F>(kRuleHi<D>);
  const F y = MinFirst(x, kHi);
  if constexpr (std::is_same_v<D, Tpx32s>) {
    const int r = RoundToI32<kR>(y);
    return y >= kHi ? 0x7fffffff : r;  // 2^31 converts to the overflow value
  } else if constexpr (std::is_same_v<D, Tpx32u>) {
    constexpr F kHalf = static_cast<F>(2147483648.0);
    if (y >= kHi) return 0xffffffffu;
    if (y >= kHalf) return static_cast<Tpx32u>(RoundToI32<kR>(y - kHalf)) ^ 0x80000000u;
    const F z = y > F(0) ? y : F(0);  // negative samples saturate to 0; rounding cannot lift them
    return static_cast<Tpx32u>(RoundToI32<kR>(z));
  } else {
    return SaturateI32<D>(RoundToI32<kR>(y));
  }
}

// ---- Vectors ---------------------------------------------------------------------------------
template <RoundKind kR>
inline __m256i RoundToI32(__m256 y) {
  if constexpr (kR == RoundKind::kZero) {
    return _mm256_cvttps_epi32(y);
  } else if constexpr (kR == RoundKind::kNearest) {
    return _mm256_cvtps_epi32(y);
  } else {
    // y + copysign(0.5, y) under truncation is the sign of y on |y| + 0.5, as the rule says.
    const __m256 half = _mm256_or_ps(_mm256_and_ps(_mm256_set1_ps(-0.0f), y), _mm256_set1_ps(0.5f));
    return _mm256_cvttps_epi32(_mm256_add_ps(y, half));
  }
}
template <RoundKind kR>
inline __m128i RoundToI32(__m256d y) {
  if constexpr (kR == RoundKind::kZero) {
    return _mm256_cvttpd_epi32(y);
  } else if constexpr (kR == RoundKind::kNearest) {
    return _mm256_cvtpd_epi32(y);
  } else {
    const __m256d half = _mm256_or_pd(_mm256_and_pd(_mm256_set1_pd(-0.0), y), _mm256_set1_pd(0.5));
    return _mm256_cvttpd_epi32(_mm256_add_pd(y, half));
  }
}

// Packs two vectors of four 32-bit integers to eight saturated 16-bit samples of D.
template <class D>
inline __m128i PackI32To16(__m128i a, __m128i b) {
  if constexpr (std::is_same_v<D, Tpx16u>) return _mm_packus_epi32(a, b);
  else return _mm_packs_epi32(a, b);
}
// Packs eight 16-bit lanes of each vector (signed) to sixteen saturated 8-bit samples of D.
template <class D>
inline __m128i PackI16To8(__m128i a, __m128i b) {
  if constexpr (std::is_same_v<D, Tpx8u>) return _mm_packus_epi16(a, b);
  else return _mm_packs_epi16(a, b);
}

// Stores 16 samples (x0: 0..7, x1: 8..15) to d, unaligned. The samples are multiplied already.
template <class D, RoundKind kR>
inline void StoreFloatToInt16(D* d, __m256 x0, __m256 x1) {
  const __m256 hi = _mm256_set1_ps(static_cast<float>(kRuleHi<D>));
  const __m256 y0 = _mm256_min_ps(x0, hi), y1 = _mm256_min_ps(x1, hi);
  const __m256i r0 = RoundToI32<kR>(y0), r1 = RoundToI32<kR>(y1);
  if constexpr (std::is_same_v<D, Tpx32s>) {
    // Lanes at 2^31 converted to 0x80000000: flip them to 0x7fffffff.
    const __m256 f0 = _mm256_xor_ps(_mm256_castsi256_ps(r0), _mm256_cmp_ps(y0, hi, _CMP_GE_OQ));
    const __m256 f1 = _mm256_xor_ps(_mm256_castsi256_ps(r1), _mm256_cmp_ps(y1, hi, _CMP_GE_OQ));
    _mm256_storeu_ps(reinterpret_cast<float*>(d), f0);
    _mm256_storeu_ps(reinterpret_cast<float*>(d + 8), f1);
  } else if constexpr (std::is_same_v<D, Tpx32u>) {
    // Handled per lane as the scalar form: [2^31, 2^32) is converted less 2^31 with the top
    // bit put back, 2^32 stores all ones, negative samples are raised to 0 before rounding.
    const __m256 half = _mm256_set1_ps(2147483648.0f), zero = _mm256_setzero_ps();
    auto one = [&](__m256 y) {
      const __m256 upper = _mm256_cmp_ps(y, half, _CMP_GE_OQ);
      const __m256 z = _mm256_blendv_ps(_mm256_max_ps(y, zero), _mm256_sub_ps(y, half), upper);
      const __m256 r = _mm256_castsi256_ps(RoundToI32<kR>(z));
      const __m256 top = _mm256_cmp_ps(y, hi, _CMP_GE_OQ);
      return _mm256_or_ps(_mm256_xor_ps(r, _mm256_and_ps(upper, _mm256_set1_ps(-0.0f))), top);
    };
    _mm256_storeu_ps(reinterpret_cast<float*>(d), one(y0));
    _mm256_storeu_ps(reinterpret_cast<float*>(d + 8), one(y1));
  } else {
    const __m128i a = PackI32To16<D>(_mm256_castsi256_si128(r0), _mm256_extractf128_si256(r0, 1));
    const __m128i b = PackI32To16<D>(_mm256_castsi256_si128(r1), _mm256_extractf128_si256(r1, 1));
    if constexpr (sizeof(D) == 2) {
      _mm_storeu_si128(reinterpret_cast<__m128i*>(d), a);
      _mm_storeu_si128(reinterpret_cast<__m128i*>(d + 8), b);
    } else {
      // a and b hold the samples saturated to signed 16 bits, which the 8-bit pack narrows.
      _mm_storeu_si128(reinterpret_cast<__m128i*>(d), PackI16To8<D>(a, b));
    }
  }
}

// Eight doubles (a: samples 0..3, b: 4..7) to an 8- or 16-bit D.
template <class D, RoundKind kR>
inline void StoreDoubleToInt8(D* d, __m256d a, __m256d b) {
  static_assert(sizeof(D) <= 2, "double sources store to 8- and 16-bit samples");
  const __m256d hi = _mm256_set1_pd(kRuleHi<D>);
  const __m128i ra = RoundToI32<kR>(_mm256_min_pd(a, hi));
  const __m128i rb = RoundToI32<kR>(_mm256_min_pd(b, hi));
  if constexpr (sizeof(D) == 2) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(d), PackI32To16<D>(ra, rb));
  } else {
    const __m128i w = _mm_packs_epi32(ra, rb);
    _mm_storel_epi64(reinterpret_cast<__m128i*>(d), PackI16To8<D>(w, w));
  }
}

}  // namespace tpx
