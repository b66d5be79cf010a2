// Operations of the scaled arithmetic (Add, Sub, Mul and their constant forms): the rule on one
// sample, and the same rule on one 16-byte register, for each kernel chosen by the scale factor.
//
// The rule: v = exact result (for unsigned Sub clamped at 0), scaled by 2^-sf with round to
// nearest, ties to even, saturated to the type. Each range of sf has its own kernel:
//   kPlain     sf == 0            saturate v
//   kZeroFill  sf >= zero limit   every result is 0: the region is filled (no kernel)
//   kHalf      sf == 1            (v + ((v >> 1) & 1)) >> 1
//   kGeneral   2 <= sf < zero     (v + 2^(sf-1) - 1 + ((v >> sf) & 1)) >> sf
//   kBit31     16u Mul, sf == 32  bit 31 of the 32-bit product (the tie 2^31 cannot occur)
//   kShiftUp   neg <= sf <= -1    v << -sf, saturated
//   kSaturate  sf < neg           the maximum where v > 0, the minimum where v < 0, else 0
#pragma once
#include <immintrin.h>

#include <type_traits>

#include "arith/point_rows.h"
#include "core/layout.h"
#include "tpxip/types.h"

namespace tpx::arith {

enum class Op { kAdd, kSub, kMul };
enum class SfKernel { kZeroFill, kPlain, kHalf, kGeneral, kBit31, kShiftUp, kSaturate };

// The smallest sf whose results are all 0: the largest magnitude of v scales below one half
// there, or to exactly one half, which rounds to the even 0.
template <Op kOp, class T>
constexpr int ZeroLimit() {
  constexpr bool k8 = sizeof(T) == 1, kSigned = std::is_signed_v<T>;
  if constexpr (kOp == Op::kAdd) return k8 ? 10 : kSigned ? 17 : 18;
  if constexpr (kOp == Op::kSub) return k8 ? 9 : 17;  // unsigned differences are at most the max
  return k8 ? 17 : kSigned ? 31 : 33;
}
// Below this sf a left shift saturates every non-zero v. The constant forms of 16u Add and Sub
// shift by 16 still in the shift kernel; the two-image forms stop at 15.
template <Op kOp, class T, bool kConst>
constexpr int NegativeLimit() {
  constexpr bool k8 = sizeof(T) == 1, kSigned = std::is_signed_v<T>;
  if constexpr (kOp == Op::kMul) return k8 ? -7 : kSigned ? -14 : -15;
  return k8 ? -7 : kSigned ? -15 : kConst ? -16 : -15;
}

template <Op kOp, class T, bool kConst>
constexpr SfKernel ClassifySf(int sf) {
  if (sf == 0) return SfKernel::kPlain;
  if (sf >= ZeroLimit<kOp, T>()) return SfKernel::kZeroFill;
  if (sf == 1) return SfKernel::kHalf;
  if (kOp == Op::kMul && std::is_same_v<T, Tpx16u> && sf == 32) return SfKernel::kBit31;
  if (sf > 1) return SfKernel::kGeneral;
  if (sf >= NegativeLimit<kOp, T, kConst>()) return SfKernel::kShiftUp;
  return SfKernel::kSaturate;
}

// ---- The rule on one sample ------------------------------------------------------------------
// x is the first operand: the minuend of Sub (pSrc2, pSrcDst in place, the source of SubC).
template <Op kOp, class T>
inline long long Exact(T x, T y) {
  const long long a = x, b = y;
  if constexpr (kOp == Op::kAdd) return a + b;
  if constexpr (kOp == Op::kSub) return (std::is_unsigned_v<T> && a < b) ? 0 : a - b;
  return a * b;
}

template <class T>
inline T SaturateTo(long long v) {
  return static_cast<T>(v < SampleLimits<T>::kMin ? SampleLimits<T>::kMin
                        : v > SampleLimits<T>::kMax ? SampleLimits<T>::kMax : v);
}

struct SfParams {
  int sf;
};

// ---- Register helpers ------------------------------------------------------------------------
// 8u works on 16-bit lanes (v fits unsigned 16 bits), 16u and 16s on 32-bit lanes; unsigned
// types keep v unsigned, 16s signed.
struct Wide {
  __m128i lo, hi;
};

template <class T>
struct Lanes {
  static constexpr bool k16 = sizeof(T) == 1;
  static __m128i Set(int v) { return k16 ? _mm_set1_epi16(static_cast<short>(v)) : _mm_set1_epi32(v); }
  static __m128i Add(__m128i a, __m128i b) { return k16 ? _mm_add_epi16(a, b) : _mm_add_epi32(a, b); }
  static __m128i Sub(__m128i a, __m128i b) { return k16 ? _mm_sub_epi16(a, b) : _mm_sub_epi32(a, b); }
  static __m128i Srl(__m128i a, __m128i c) { return k16 ? _mm_srl_epi16(a, c) : _mm_srl_epi32(a, c); }
  static __m128i Sra(__m128i a, __m128i c) { return _mm_sra_epi32(a, c); }  // 16s only
  static __m128i Sll(__m128i a, __m128i c) { return k16 ? _mm_sll_epi16(a, c) : _mm_sll_epi32(a, c); }
  static __m128i CmpGt(__m128i a, __m128i b) { return k16 ? _mm_cmpgt_epi16(a, b) : _mm_cmpgt_epi32(a, b); }
  static __m128i MinU(__m128i a, __m128i b) { return k16 ? _mm_min_epu16(a, b) : _mm_min_epu32(a, b); }
  static constexpr int kSignBit = k16 ? 0x8000 : static_cast<int>(0x80000000u);
  static constexpr int kBits = k16 ? 16 : 32;
};

// Constants of one call's kernel, set once per row.
template <class T>
struct SfVParams {
  __m128i one, count, bias, mask, halfX, signBit, capLo, capHi;
  explicit SfVParams(const SfParams& p, SfKernel k) {
    using L = Lanes<T>;
    int sf = p.sf;
    one = L::Set(1);
    signBit = L::Set(L::kSignBit);
    bias = mask = halfX = capLo = capHi = _mm_setzero_si128();
    if (k == SfKernel::kGeneral) {
      bias = L::Set(static_cast<int>((1u << (sf - 1)) - 1u));
      mask = L::Set(static_cast<int>(static_cast<unsigned>((1ull << sf) - 1u)));
      halfX = L::Set(static_cast<int>((1u << (sf - 1)) ^ static_cast<unsigned>(L::kSignBit)));
    }
    // The saturating kernel shifts |v| clamped to 1 by the full lane narrowing range, which
    // turns every non-zero v into the type's extreme: no data-dependent shift is done.
    const int k2 = k == SfKernel::kSaturate ? (L::k16 ? 8 : 16) : -sf;
    if (k == SfKernel::kShiftUp || k == SfKernel::kSaturate) {
      // Clamping before the shift keeps the lane from overflowing: any |v| above the cap
      // saturates after the shift anyway.
      capHi = L::Set((static_cast<int>(SampleLimits<T>::kMax) >> k2) + 1);
      capLo = L::Set(-((-static_cast<int>(SampleLimits<T>::kMin)) >> k2) - 1);
      sf = k2;
    }
    count = _mm_cvtsi32_si128(sf < 0 ? 0 : sf);
  }
};

// v of 16 bytes of x and y, widened.
template <Op kOp, class T>
inline Wide WideExact(__m128i x, __m128i y) {
  const __m128i z = _mm_setzero_si128();
  if constexpr (sizeof(T) == 1) {
    if constexpr (kOp == Op::kSub) {
      const __m128i d = _mm_subs_epu8(x, y);
      return {_mm_unpacklo_epi8(d, z), _mm_unpackhi_epi8(d, z)};
    }
    const __m128i xl = _mm_unpacklo_epi8(x, z), xh = _mm_unpackhi_epi8(x, z);
    const __m128i yl = _mm_unpacklo_epi8(y, z), yh = _mm_unpackhi_epi8(y, z);
    if constexpr (kOp == Op::kAdd) return {_mm_add_epi16(xl, yl), _mm_add_epi16(xh, yh)};
    return {_mm_mullo_epi16(xl, yl), _mm_mullo_epi16(xh, yh)};
  } else if constexpr (kOp == Op::kMul) {
    const __m128i lo = _mm_mullo_epi16(x, y);
    const __m128i hi = std::is_signed_v<T> ? _mm_mulhi_epi16(x, y) : _mm_mulhi_epu16(x, y);
    return {_mm_unpacklo_epi16(lo, hi), _mm_unpackhi_epi16(lo, hi)};
  } else if constexpr (std::is_unsigned_v<T>) {
    if constexpr (kOp == Op::kSub) {
      const __m128i d = _mm_subs_epu16(x, y);
      return {_mm_unpacklo_epi16(d, z), _mm_unpackhi_epi16(d, z)};
    }
    return {_mm_add_epi32(_mm_unpacklo_epi16(x, z), _mm_unpacklo_epi16(y, z)),
            _mm_add_epi32(_mm_unpackhi_epi16(x, z), _mm_unpackhi_epi16(y, z))};
  } else {
    const __m128i xl = _mm_cvtepi16_epi32(x), xh = _mm_cvtepi16_epi32(_mm_srli_si128(x, 8));
    const __m128i yl = _mm_cvtepi16_epi32(y), yh = _mm_cvtepi16_epi32(_mm_srli_si128(y, 8));
    if constexpr (kOp == Op::kAdd) return {_mm_add_epi32(xl, yl), _mm_add_epi32(xh, yh)};
    return {_mm_sub_epi32(xl, yl), _mm_sub_epi32(xh, yh)};
  }
}

// The scale step on one register of wide lanes.
template <class T, SfKernel kK>
inline __m128i ScaleLanes(__m128i v, const SfVParams<T>& s) {
  using L = Lanes<T>;
  constexpr bool kSigned = std::is_signed_v<T>;
  if constexpr (kK == SfKernel::kPlain) {
    return v;
  } else if constexpr (kK == SfKernel::kHalf) {
    if constexpr (kSigned) return _mm_srai_epi32(_mm_add_epi32(v, _mm_and_si128(_mm_srai_epi32(v, 1), s.one)), 1);
    return L::Srl(L::Add(v, _mm_and_si128(L::Srl(v, _mm_cvtsi32_si128(1)), s.one)), _mm_cvtsi32_si128(1));
  } else if constexpr (kK == SfKernel::kGeneral) {
    if constexpr (kSigned) {  // |v| <= 2^30 and the bias < 2^29: the sum fits
      const __m128i odd = _mm_and_si128(L::Sra(v, s.count), s.one);
      return L::Sra(_mm_add_epi32(_mm_add_epi32(v, s.bias), odd), s.count);
    } else {
      // Unsigned lanes may be full (8u products, 16u products), so the bias is not added:
      // with v = q * 2^sf + rem, the result is q + 1 exactly where rem + (q & 1) > 2^(sf-1).
      const __m128i q = L::Srl(v, s.count);
      const __m128i t = L::Add(_mm_and_si128(v, s.mask), _mm_and_si128(q, s.one));
      return L::Sub(q, L::CmpGt(_mm_xor_si128(t, s.signBit), s.halfX));
    }
  } else if constexpr (kK == SfKernel::kBit31) {
    return _mm_srli_epi32(v, 31);
  } else {  // kShiftUp, kSaturate
    if constexpr (kSigned) return L::Sll(_mm_max_epi32(_mm_min_epi32(v, s.capHi), s.capLo), s.count);
    return L::Sll(L::MinU(v, s.capHi), s.count);
  }
}

// Narrows two registers of wide lanes to 16 bytes of T with saturation. kFull: the lanes may
// hold unsigned values beyond the signed lane range (plain products), clamp them first.
template <class T, bool kFull>
inline __m128i NarrowLanes(Wide w) {
  if constexpr (sizeof(T) == 1) {
    if constexpr (kFull) {
      const __m128i m = _mm_set1_epi16(255);
      w.lo = _mm_min_epu16(w.lo, m);
      w.hi = _mm_min_epu16(w.hi, m);
    }
    return _mm_packus_epi16(w.lo, w.hi);
  } else if constexpr (std::is_unsigned_v<T>) {
    if constexpr (kFull) {
      const __m128i m = _mm_set1_epi32(65535);
      w.lo = _mm_min_epu32(w.lo, m);
      w.hi = _mm_min_epu32(w.hi, m);
    }
    return _mm_packus_epi32(w.lo, w.hi);
  } else {
    return _mm_packs_epi32(w.lo, w.hi);
  }
}

// round_half_even((p + q) / 2) on unsigned 8- or 16-bit lanes: the rounded-up average, less one
// where the sum is odd and the average is odd.
template <class T>
inline __m128i HalfEvenMean(__m128i p, __m128i q) {
  if constexpr (sizeof(T) == 1) {
    const __m128i a = _mm_avg_epu8(p, q);
    return _mm_sub_epi8(a, _mm_and_si128(_mm_and_si128(_mm_xor_si128(p, q), a), _mm_set1_epi8(1)));
  } else {
    const __m128i a = _mm_avg_epu16(p, q);
    return _mm_sub_epi16(a, _mm_and_si128(_mm_and_si128(_mm_xor_si128(p, q), a), _mm_set1_epi16(1)));
  }
}

// ---- The operation ---------------------------------------------------------------------------
template <Op kOp, class T, SfKernel kK>
struct SfsOp {
  using Params = SfParams;
  struct VParams : SfVParams<T> {
    explicit VParams(const SfParams& p) : SfVParams<T>(p, kK) {}
  };

  // The rule as written, on one sample.
  static T Apply(T x, T y, const SfParams& p) {
    const long long v = Exact<kOp>(x, y);
    const int sf = p.sf;
    if constexpr (kK == SfKernel::kPlain) return SaturateTo<T>(v);
    if constexpr (kK == SfKernel::kHalf) return SaturateTo<T>((v + ((v >> 1) & 1)) >> 1);
    if constexpr (kK == SfKernel::kGeneral)
      return SaturateTo<T>((v + (1LL << (sf - 1)) - 1 + ((v >> sf) & 1)) >> sf);
    if constexpr (kK == SfKernel::kBit31) return static_cast<T>((static_cast<unsigned long long>(v) >> 31) & 1u);
    if constexpr (kK == SfKernel::kShiftUp) return SaturateTo<T>(v * (1LL << -sf));
    if constexpr (kK == SfKernel::kSaturate)
      return v > 0 ? SampleLimits<T>::kMax : v < 0 ? SampleLimits<T>::kMin : T(0);
    return T(0);
  }

  // The same on 16 bytes.
  static __m128i Apply(__m128i x, __m128i y, const VParams& s) {
    constexpr bool k8 = sizeof(T) == 1, kSigned = std::is_signed_v<T>;
    if constexpr (kK == SfKernel::kPlain && kOp == Op::kAdd) {
      return k8 ? _mm_adds_epu8(x, y) : kSigned ? _mm_adds_epi16(x, y) : _mm_adds_epu16(x, y);
    } else if constexpr (kK == SfKernel::kPlain && kOp == Op::kSub) {
      return k8 ? _mm_subs_epu8(x, y) : kSigned ? _mm_subs_epi16(x, y) : _mm_subs_epu16(x, y);
    } else if constexpr (kK == SfKernel::kHalf && kOp == Op::kAdd) {
      if constexpr (!kSigned) return HalfEvenMean<T>(x, y);
      // Biased to unsigned: the mean moves by 0x8000, an even amount, so ties still go even.
      const __m128i b = _mm_set1_epi16(static_cast<short>(0x8000));
      return _mm_xor_si128(HalfEvenMean<T>(_mm_xor_si128(x, b), _mm_xor_si128(y, b)), b);
    } else if constexpr (kK == SfKernel::kHalf && kOp == Op::kSub) {
      if constexpr (!kSigned) return HalfEvenMean<T>(k8 ? _mm_subs_epu8(x, y) : _mm_subs_epu16(x, y), _mm_setzero_si128());
      // (x - y) / 2 as avg(x + 0x8000, ~y + 0x8000) = floor((x - y) / 2) + 0x8000, plus one where
      // x - y and the floor are both odd; 32768 saturates to 32767.
      const __m128i b = _mm_set1_epi16(static_cast<short>(0x8000));
      const __m128i u = _mm_avg_epu16(_mm_xor_si128(x, b), _mm_xor_si128(y, _mm_set1_epi16(0x7fff)));
      const __m128i up = _mm_and_si128(_mm_and_si128(_mm_xor_si128(x, y), u), _mm_set1_epi16(1));
      return _mm_xor_si128(_mm_adds_epu16(u, up), b);
    } else {
      Wide w = WideExact<kOp, T>(x, y);
      w.lo = ScaleLanes<T, kK>(w.lo, s);
      w.hi = ScaleLanes<T, kK>(w.hi, s);
      return NarrowLanes<T, kOp == Op::kMul && kK == SfKernel::kPlain>(w);
    }
  }
};

// ---- 32f -------------------------------------------------------------------------------------
struct NoParams {};

template <Op kOp>
struct FloatOp {
  using Params = NoParams;
  struct VParams {
    explicit VParams(const NoParams&) {}
  };
  static float Apply(float x, float y, const NoParams&) {
    if constexpr (kOp == Op::kAdd) return x + y;
    if constexpr (kOp == Op::kSub) return x - y;
    return x * y;
  }
  static __m256 Apply(__m256 x, __m256 y, const VParams&) {
    if constexpr (kOp == Op::kAdd) return _mm256_add_ps(x, y);
    if constexpr (kOp == Op::kSub) return _mm256_sub_ps(x, y);
    return _mm256_mul_ps(x, y);
  }
};

// ---- Kernel choice -----------------------------------------------------------------------------
// Calls run(op) with the operation of sf's kernel; false where the result is all 0.
template <Op kOp, class T, bool kConst, class Run>
inline bool WithSfKernel(int sf, Run&& run) {
  switch (ClassifySf<kOp, T, kConst>(sf)) {
    case SfKernel::kZeroFill: return false;
    case SfKernel::kPlain: run(SfsOp<kOp, T, SfKernel::kPlain>{}); break;
    case SfKernel::kHalf: run(SfsOp<kOp, T, SfKernel::kHalf>{}); break;
    case SfKernel::kGeneral: run(SfsOp<kOp, T, SfKernel::kGeneral>{}); break;
    case SfKernel::kBit31:
      if constexpr (kOp == Op::kMul && std::is_same_v<T, Tpx16u>) run(SfsOp<kOp, T, SfKernel::kBit31>{});
      break;
    case SfKernel::kShiftUp: run(SfsOp<kOp, T, SfKernel::kShiftUp>{}); break;
    case SfKernel::kSaturate: run(SfsOp<kOp, T, SfKernel::kSaturate>{}); break;
  }
  return true;
}

}  // namespace tpx::arith
