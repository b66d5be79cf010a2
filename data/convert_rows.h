// Row kernels of Convert and Scale: per-sample operations with a scalar form (One) and a
// 16-sample vector form (Block), one row kernel that runs either, and the AC4 row.
//
// An operation is a small struct with
//   using Src, Dst;                         the sample types it reads and writes;
//   Dst One(Src) const;                     the rule for one sample;
//   template <bool kStream> void Block(const Src*, Dst*) const;
//                                           sixteen samples, the same numbers as One. With
//                                           kStream the stores are non-temporal and the caller
//                                           has aligned the destination to 32 bytes.
// Integer work runs in 128-bit lanes of four 32-bit values (AVX has no 256-bit integer
// arithmetic); float work in 256-bit vectors.
#pragma once
#include <immintrin.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/float_to_int.h"
#include "core/isa.h"
#include "core/region.h"
#include "tpxip/types.h"

namespace tpx::cvt {

// ---- Stores ----------------------------------------------------------------------------------
template <bool kStream>
inline void Put(void* p, __m128i v) {
  if constexpr (kStream) _mm_stream_si128(static_cast<__m128i*>(p), v);
  else _mm_storeu_si128(static_cast<__m128i*>(p), v);
}
template <bool kStream>
inline void Put(void* p, __m256 v) {
  if constexpr (kStream) _mm256_stream_ps(static_cast<float*>(p), v);
  else _mm256_storeu_ps(static_cast<float*>(p), v);
}
template <bool kStream>
inline void Put(void* p, __m256d v) {
  if constexpr (kStream) _mm256_stream_pd(static_cast<double*>(p), v);
  else _mm256_storeu_pd(static_cast<double*>(p), v);
}

template <class T>
inline constexpr bool kIsFloat = std::is_floating_point_v<T>;
template <class T>
inline constexpr bool kIsSigned = std::is_signed_v<T>;

// ---- Four samples as 32-bit lanes --------------------------------------------------------------
// Sign- or zero-extends four samples of S. 32u samples keep their bits (lanes read unsigned).
template <class S>
inline __m128i LoadI32x4(const S* s) {
  if constexpr (sizeof(S) == 1) {
    const __m128i b = _mm_loadu_si32(s);
    return kIsSigned<S> ? _mm_cvtepi8_epi32(b) : _mm_cvtepu8_epi32(b);
  } else if constexpr (sizeof(S) == 2) {
    const __m128i w = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(s));
    return kIsSigned<S> ? _mm_cvtepi16_epi32(w) : _mm_cvtepu16_epi32(w);
  } else {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(s));
  }
}

struct I32x16 {
  __m128i v[4];
};
template <class S>
inline I32x16 LoadI32x16(const S* s) {
  return {{LoadI32x4(s), LoadI32x4(s + 4), LoadI32x4(s + 8), LoadI32x4(s + 12)}};
}

inline __m256i Join(__m128i lo, __m128i hi) { return _mm256_insertf128_si256(_mm256_castsi128_si256(lo), hi, 1); }

// Unsigned 32-bit lanes: a > b.
inline __m128i CmpGtU32(__m128i a, __m128i b) {
  const __m128i flip = _mm_set1_epi32(static_cast<int>(0x80000000u));
  return _mm_cmpgt_epi32(_mm_xor_si128(a, flip), _mm_xor_si128(b, flip));
}

// Stores sixteen lanes to D with saturation. kUnsigned: the lanes hold unsigned 32-bit values
// (a 32u source); otherwise signed. D is an integer type.
template <class D, bool kUnsigned, bool kStream>
inline void StoreSat(D* d, I32x16 x) {
  if constexpr (kUnsigned && !std::is_same_v<D, Tpx32u>) {
    const int hi = static_cast<int>(std::numeric_limits<D>::max());
    for (__m128i& v : x.v) v = _mm_min_epu32(v, _mm_set1_epi32(hi));
  }
  if constexpr (sizeof(D) == 1) {
    const __m128i a = _mm_packs_epi32(x.v[0], x.v[1]), b = _mm_packs_epi32(x.v[2], x.v[3]);
    Put<kStream>(d, PackI16To8<D>(a, b));
  } else if constexpr (sizeof(D) == 2) {
    Put<kStream>(d, PackI32To16<D>(x.v[0], x.v[1]));
    Put<kStream>(d + 8, PackI32To16<D>(x.v[2], x.v[3]));
  } else {
    if constexpr (std::is_same_v<D, Tpx32u> && !kUnsigned)
      for (__m128i& v : x.v) v = _mm_max_epi32(v, _mm_setzero_si128());
    for (int k = 0; k < 4; ++k) Put<kStream>(d + 4 * k, x.v[k]);
  }
}

// Scalar saturation of any integer value to an integer D.
template <class D>
inline D SaturateTo(long long v) {
  constexpr long long lo = static_cast<long long>(std::numeric_limits<D>::lowest());
  constexpr long long hi = static_cast<long long>(std::numeric_limits<D>::max());
  return static_cast<D>(v < lo ? lo : v > hi ? hi : v);
}

// ---- Plain conversion: exact widening, saturating narrowing, signed to unsigned at 0 ----------
// 32s and 32u to 32f round as the processor's conversion does, in the caller's rounding control.
template <class S, class D>
struct CastOp {
  using Src = S;
  using Dst = D;

  D One(S s) const {
    if constexpr (std::is_same_v<D, Tpx32f> && std::is_same_v<S, Tpx32s>)
      return _mm_cvtss_f32(_mm_cvtsi32_ss(_mm_setzero_ps(), s));
    else if constexpr (std::is_same_v<D, Tpx32f> && std::is_same_v<S, Tpx32u>)
      return _mm_cvtss_f32(_mm_cvtsi64_ss(_mm_setzero_ps(), static_cast<long long>(s)));
    else if constexpr (kIsFloat<D>)
      return static_cast<D>(s);  // exact
    else
      return SaturateTo<D>(static_cast<long long>(s));
  }

  template <bool kStream>
  void Block(const S* s, D* d) const {
    if constexpr (sizeof(S) <= 2 && sizeof(D) <= 2) {
      Block16(s, d);  // 8- and 16-bit pairs stay in 16-bit lanes
    } else if constexpr (std::is_same_v<D, Tpx32f>) {
      const I32x16 x = LoadI32x16(s);
      Put<kStream>(d, ToFloat(x.v[0], x.v[1]));
      Put<kStream>(d + 8, ToFloat(x.v[2], x.v[3]));
    } else if constexpr (std::is_same_v<D, Tpx64f>) {
      for (int k = 0; k < 4; ++k) Put<kStream>(d + 4 * k, _mm256_cvtepi32_pd(LoadI32x4(s + 4 * k)));
    } else {
      StoreSat<D, std::is_same_v<S, Tpx32u>, kStream>(d, LoadI32x16(s));
    }
  }

 private:
  static __m256 ToFloat(__m128i a, __m128i b) {
    if constexpr (std::is_same_v<S, Tpx32u>) {
      // hi * 65536 + lo: both parts exact, the one addition rounds the exact value once.
      const __m128i m = _mm_set1_epi32(0xFFFF);
      const __m256 hi = _mm256_cvtepi32_ps(Join(_mm_srli_epi32(a, 16), _mm_srli_epi32(b, 16)));
      const __m256 lo = _mm256_cvtepi32_ps(Join(_mm_and_si128(a, m), _mm_and_si128(b, m)));
      return _mm256_add_ps(_mm256_mul_ps(hi, _mm256_set1_ps(65536.0f)), lo);
    } else {
      return _mm256_cvtepi32_ps(Join(a, b));
    }
  }

  // Same-width pairs move between signed and unsigned: negative samples go to 0, unsigned
  // samples above the signed maximum to that maximum.
  template <class T>
  static __m128i Retype(__m128i v) {
    if constexpr (sizeof(T) == 1) {
      return kIsSigned<S> ? _mm_max_epi8(v, _mm_setzero_si128()) : _mm_min_epu8(v, _mm_set1_epi8(127));
    } else {
      return kIsSigned<S> ? _mm_max_epi16(v, _mm_setzero_si128()) : _mm_min_epu16(v, _mm_set1_epi16(32767));
    }
  }

  static void Block16(const S* s, D* d) {
    auto put = [](void* p, __m128i v) { _mm_storeu_si128(static_cast<__m128i*>(p), v); };
    if constexpr (sizeof(S) == 1) {
      const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s));
      if constexpr (sizeof(D) == 1) {
        put(d, Retype<S>(b));
      } else {
        const __m128i h = _mm_unpackhi_epi64(b, b);
        __m128i lo = kIsSigned<S> ? _mm_cvtepi8_epi16(b) : _mm_cvtepu8_epi16(b);
        __m128i hi = kIsSigned<S> ? _mm_cvtepi8_epi16(h) : _mm_cvtepu8_epi16(h);
        if constexpr (kIsSigned<S> && !kIsSigned<D>) {
          lo = _mm_max_epi16(lo, _mm_setzero_si128());
          hi = _mm_max_epi16(hi, _mm_setzero_si128());
        }
        put(d, lo);
        put(d + 8, hi);
      }
    } else {
      __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s));
      __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s + 8));
      if constexpr (sizeof(D) == 1) {
        if constexpr (!kIsSigned<S>) {  // 16u: bring to 0..255 before the signed pack
          a = _mm_min_epu16(a, _mm_set1_epi16(255));
          b = _mm_min_epu16(b, _mm_set1_epi16(255));
        }
        put(d, PackI16To8<D>(a, b));
      } else {
        put(d, Retype<S>(a));
        put(d + 8, Retype<S>(b));
      }
    }
  }
};

// ---- Float to integer by the library's rule ------------------------------------------------------
// F is Tpx32f or Tpx64f. kScaled multiplies by m first (a scale factor other than 0).
template <class F, class D, RoundKind kR, bool kScaled>
struct FloatOp {
  using Src = F;
  using Dst = D;
  F m = F(1);

  D One(F x) const {
    if constexpr (kScaled) x = x * m;
    return FloatToInt<D, kR>(x);
  }

  template <bool>
  void Block(const F* s, D* d) const {
    if constexpr (std::is_same_v<F, Tpx32f>) {
      __m256 a = _mm256_loadu_ps(s), b = _mm256_loadu_ps(s + 8);
      if constexpr (kScaled) {
        const __m256 vm = _mm256_set1_ps(m);
        a = _mm256_mul_ps(a, vm);
        b = _mm256_mul_ps(b, vm);
      }
      StoreFloatToInt16<D, kR>(d, a, b);
    } else {
      __m256d x[4];
      for (int k = 0; k < 4; ++k) {
        x[k] = _mm256_loadu_pd(s + 4 * k);
        if constexpr (kScaled) x[k] = _mm256_mul_pd(x[k], _mm256_set1_pd(m));
      }
      StoreDoubleToInt8<D, kR>(d, x[0], x[1]);
      StoreDoubleToInt8<D, kR>(d + 8, x[2], x[3]);
    }
  }
};

// ---- Integer sources with a scale factor ----------------------------------------------------------
// The exact value times 2^-sf, rounded by the mode and saturated to D. Each range of sf has its
// own operation, as the scaled arithmetic does:
//   sf == 0                     CastOp (saturation only);
//   1 <= sf < kSfsZeroLimit<S>  ShiftRightOp: rounding shift of the magnitude;
//   sf >= kSfsZeroLimit<S>      the result is 0 for every sample: the driver fills with 0;
//   kSfsNegLimit<D> <= sf < 0   ShiftLeftOp: the shift, saturated;
//   sf < kSfsNegLimit<D>        SignOp: the shift saturates every non-zero sample.
// Zero limit: the source width in bits plus 2. From there the largest magnitude scales to at
// most a quarter, so every mode gives 0 (16s8s: 18). Negative limit: 1 - the destination
// width in bits. Below it, 1 << -sf already exceeds the destination's range on both sides
// (8-bit destinations: -7; 16-bit: -15; 32s: -31).
template <class S>
inline constexpr int kSfsZeroLimit = 8 * static_cast<int>(sizeof(S)) + 2;
template <class D>
inline constexpr int kSfsNegLimit = 1 - 8 * static_cast<int>(sizeof(D));

// Logical right shift that gives 0 for a count of 32 or more, as the vector shift does.
inline std::uint32_t Srl(std::uint32_t a, int n) { return n >= 32 ? 0u : a >> n; }

// 1 <= sf <= kSfsZeroLimit<S> - 1 (at most 33). Every mode is symmetric about 0, so the
// magnitude is rounded and the sign put back; the magnitude of a 32s sample fits 32 unsigned bits.
template <class S, class D, RoundKind kR>
struct ShiftRightOp {
  using Src = S;
  using Dst = D;
  int sf;
  std::uint32_t below;  // bits below the half bit: 2^(sf-1) - 1, or all ones from sf 33 on

  explicit ShiftRightOp(int sf_) : sf(sf_), below(sf_ - 1 >= 32 ? 0xffffffffu : (1u << (sf_ - 1)) - 1u) {}

  std::uint32_t Magnitude(std::uint32_t a) const {
    std::uint32_t q = Srl(a, sf);
    if constexpr (kR == RoundKind::kHalfAway) {
      q += Srl(a, sf - 1) & 1u;
    } else if constexpr (kR == RoundKind::kNearest) {
      const std::uint32_t half = Srl(a, sf - 1) & 1u;
      const std::uint32_t sticky = (a & below) != 0 ? 1u : 0u;
      q += half & (sticky | (q & 1u));
    }
    return q;
  }

  D One(S s) const {
    if constexpr (kIsSigned<S>) {
      const long long v = s;
      const std::uint32_t q = Magnitude(static_cast<std::uint32_t>(v < 0 ? -v : v));
      return SaturateTo<D>(v < 0 ? -static_cast<long long>(q) : static_cast<long long>(q));
    } else {
      return SaturateTo<D>(Magnitude(s));
    }
  }

  template <bool kStream>
  void Block(const S* s, D* d) const {
    const __m128i n = _mm_cvtsi32_si128(sf), n1 = _mm_cvtsi32_si128(sf - 1);
    const __m128i one = _mm_set1_epi32(1), low = _mm_set1_epi32(static_cast<int>(below));
    I32x16 x = LoadI32x16(s);
    for (__m128i& v : x.v) {
      const __m128i a = kIsSigned<S> ? _mm_abs_epi32(v) : v;
      __m128i q = _mm_srl_epi32(a, n);
      if constexpr (kR == RoundKind::kHalfAway) {
        q = _mm_add_epi32(q, _mm_and_si128(_mm_srl_epi32(a, n1), one));
      } else if constexpr (kR == RoundKind::kNearest) {
        const __m128i half = _mm_and_si128(_mm_srl_epi32(a, n1), one);
        const __m128i sticky = _mm_andnot_si128(_mm_cmpeq_epi32(_mm_and_si128(a, low), _mm_setzero_si128()), one);
        q = _mm_add_epi32(q, _mm_and_si128(half, _mm_or_si128(sticky, _mm_and_si128(q, one))));
      }
      v = kIsSigned<S> ? _mm_sign_epi32(q, v) : q;
    }
    StoreSat<D, std::is_same_v<S, Tpx32u>, kStream>(d, x);
  }
};

// kSfsNegLimit<D> <= sf <= -1, k = -sf. Destinations up to 16 bits: the sample is clamped to
// D's range first (which does not change the saturated result), so the shift cannot overflow.
// 32s (from 32u): samples above INT_MAX >> k saturate, the rest shift.
template <class S, class D>
struct ShiftLeftOp {
  using Src = S;
  using Dst = D;
  int k;

  D One(S s) const { return SaturateTo<D>(static_cast<long long>(s) * (1LL << k)); }

  template <bool kStream>
  void Block(const S* s, D* d) const {
    constexpr bool kU = std::is_same_v<S, Tpx32u>;
    const __m128i n = _mm_cvtsi32_si128(k);
    I32x16 x = LoadI32x16(s);
    for (__m128i& v : x.v) {
      if constexpr (std::is_same_v<D, Tpx32s>) {
        const __m128i over = CmpGtU32(v, _mm_set1_epi32(0x7fffffff >> k));
        v = _mm_blendv_epi8(_mm_sll_epi32(v, n), _mm_set1_epi32(0x7fffffff), over);
      } else {
        v = kU ? _mm_min_epu32(v, _mm_set1_epi32(IntBounds<D>::kHi))
               : _mm_max_epi32(_mm_min_epi32(v, _mm_set1_epi32(IntBounds<D>::kHi)),
                               _mm_set1_epi32(IntBounds<D>::kLo));
        v = _mm_sll_epi32(v, n);
      }
    }
    StoreSat<D, false, kStream>(d, x);
  }
};

// sf < kSfsNegLimit<D>: the maximum where the sample is positive, the minimum of D (0 for an
// unsigned D) where it is negative, 0 where it is 0.
template <class S, class D>
struct SignOp {
  using Src = S;
  using Dst = D;

  D One(S s) const {
    return s > 0 ? std::numeric_limits<D>::max() : s < 0 ? std::numeric_limits<D>::lowest() : D(0);
  }

  template <bool kStream>
  void Block(const S* s, D* d) const {
    // 2^30 with the sample's sign saturates to D's bound; 32s takes INT_MAX itself.
    const __m128i big = _mm_set1_epi32(std::is_same_v<D, Tpx32s> ? 0x7fffffff : 1 << 30);
    I32x16 x = LoadI32x16(s);
    for (__m128i& v : x.v)
      v = kIsSigned<S> ? _mm_sign_epi32(big, v) : _mm_andnot_si128(_mm_cmpeq_epi32(v, _mm_setzero_si128()), big);
    StoreSat<D, false, kStream>(d, x);
  }
};

// ---- The row kernel --------------------------------------------------------------------------------
// On images that run out of the core's own caches the vector loop asks for lines ahead of
// need, once per 64-byte line: the hardware streams and the out-of-order window alone leave too
// few lines in flight, the fewer the more work a block has (the float rule's half-away mode most).
//   - Operations that read at least as many bytes as they write prefetch the source
//     kSourceAhead bytes on.
//   - Widening operations, which spend their time on stores, prefetch the destination
//     kDestAhead bytes on (plain stores only): the line is then held when the store reaches
//     it, and the read for ownership leaves the store's path. Their small source stream gains
//     nothing from a prefetch.
// A prefetch never faults and changes no result: it may point past the row or the image.
inline constexpr std::uintptr_t kSourceAhead = 8192;
inline constexpr std::uintptr_t kDestAhead = 2048;
template <int kBytes>
inline void PrefetchLines(const void* p, std::uintptr_t ahead) {
  const std::uintptr_t a = reinterpret_cast<std::uintptr_t>(p) + ahead;
  for (int b = 0; b < kBytes; b += 64) _mm_prefetch(reinterpret_cast<const char*>(a + b), _MM_HINT_T0);
}

// Whole blocks from sample i on, in groups of kGroup blocks that read or write at least one
// line each; returns the first sample left.
template <bool kStream, class Op>
inline int ConvertBlocks(const typename Op::Src* s, typename Op::Dst* d, int i, int n, const Op& op) {
  constexpr int kSrcBytes = 16 * static_cast<int>(sizeof(typename Op::Src));
  constexpr int kDstBytes = 16 * static_cast<int>(sizeof(typename Op::Dst));
  constexpr bool kWidens = kSrcBytes < kDstBytes;
  constexpr int kSmaller = kWidens ? kSrcBytes : kDstBytes;
  constexpr int kGroup = kSmaller >= 64 ? 1 : 64 / kSmaller;
  for (; i + 16 * kGroup <= n; i += 16 * kGroup) {
    if constexpr (!kWidens) PrefetchLines<kSrcBytes * kGroup>(s + i, kSourceAhead);
    else if constexpr (!kStream) PrefetchLines<kDstBytes * kGroup>(d + i, kDestAhead);
#pragma GCC unroll 4
    for (int g = 0; g < kGroup; ++g) op.template Block<kStream>(s + i + 16 * g, d + i + 16 * g);
  }
  for (; i + 16 <= n; i += 16) op.template Block<kStream>(s + i, d + i);
  return i;
}

// d[i] = op.One(s[i]) for i < n. n >= 0. d may equal s where the samples have the same size
// (the in-place member). V = 16 samples; tail: scalar, same op. kStream: plain samples up to a
// 32-byte boundary of d, non-temporal blocks, plain tail; the caller fences.
template <Isa kI, bool kStream = false, class Op>
inline void ConvertRow(const typename Op::Src* s, typename Op::Dst* d, int n, const Op& op) {
  using D = typename Op::Dst;
  int i = 0;
  if constexpr (kI == Isa::kAvx) {
    bool stream = false;
    if constexpr (kStream) {
      const std::uintptr_t addr = reinterpret_cast<std::uintptr_t>(d);
      if (addr % sizeof(D) == 0) {
        const int head = static_cast<int>(((32u - (addr & 31u)) & 31u) / sizeof(D));
        for (; i < head && i < n; ++i) d[i] = op.One(s[i]);
        stream = true;
      }
    }
    i = stream ? ConvertBlocks<true>(s, d, i, n, op) : ConvertBlocks<false>(s, d, i, n, op);
  }
  for (; i < n; ++i) d[i] = op.One(s[i]);
}

// An AC4 row: pixels * 4 samples are converted into a scratch block, and the first three of
// each pixel are copied into d, whose fourth sample stays as it was. The source's fourth sample
// is converted with the rest and dropped, so no result depends on it.
template <Isa kI, class Op>
inline void ConvertRowAc4(const typename Op::Src* s, typename Op::Dst* d, int pixels, const Op& op) {
  using D = typename Op::Dst;
  constexpr int kChunk = 64;  // pixels
  alignas(32) D scratch[4 * kChunk];
  for (int x = 0; x < pixels; x += kChunk) {
    const int k = pixels - x < kChunk ? pixels - x : kChunk;
    ConvertRow<kI>(s + 4 * x, scratch, 4 * k, op);
    AlphaKeepRow<kI, D, true>(scratch, d + 4 * x, k);
  }
}

}  // namespace tpx::cvt
