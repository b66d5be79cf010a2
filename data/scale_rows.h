// Row operations of tpxiScale_* (the row kernel and the AC4 row are those of Convert). Each has
// the One/Block shape described in data/convert_rows.h.
#pragma once
#include <immintrin.h>

#include <type_traits>

#include "core/float_to_int.h"
#include "data/convert_rows.h"
#include "tpxip/types.h"

namespace tpx::cvt {

// 8u to 32f: d = vMin + s * slope in single precision, in the caller's rounding control.
struct ScaleToFloatOp {
  using Src = Tpx8u;
  using Dst = Tpx32f;
  float vMin, slope;

  float One(Tpx8u s) const { return vMin + static_cast<float>(s) * slope; }

  template <bool>
  void Block(const Tpx8u* s, float* d) const {
    const I32x16 x = LoadI32x16(s);
    const __m256 lo = _mm256_set1_ps(vMin), k = _mm256_set1_ps(slope);
    for (int h = 0; h < 2; ++h) {
      const __m256 f = _mm256_cvtepi32_ps(Join(x.v[2 * h], x.v[2 * h + 1]));
      _mm256_storeu_ps(d + 8 * h, _mm256_add_ps(lo, _mm256_mul_ps(f, k)));
    }
  }
};

// To 8u in single precision: t = x * slope + offset, stored by the float rule rounding half to
// even (the caller holds the nearest scope). x is the sample as Tpx32f; a 32s sample converts
// to the nearest float.
template <class S>
struct ScaleFromFloatOp {
  using Src = S;
  using Dst = Tpx8u;
  float slope, offset;

  static float ToFloat(S s) {
    if constexpr (std::is_same_v<S, Tpx32s>) return _mm_cvtss_f32(_mm_cvtsi32_ss(_mm_setzero_ps(), s));
    else return static_cast<float>(s);  // exact
  }
  Tpx8u One(S s) const { return FloatToInt<Tpx8u, RoundKind::kNearest>(ToFloat(s) * slope + offset); }

  template <bool>
  void Block(const S* s, Tpx8u* d) const {
    __m256 x[2];
    if constexpr (std::is_same_v<S, Tpx32f>) {
      x[0] = _mm256_loadu_ps(s);
      x[1] = _mm256_loadu_ps(s + 8);
    } else {
      const I32x16 v = LoadI32x16(s);
      x[0] = _mm256_cvtepi32_ps(Join(v.v[0], v.v[1]));
      x[1] = _mm256_cvtepi32_ps(Join(v.v[2], v.v[3]));
    }
    const __m256 k = _mm256_set1_ps(slope), o = _mm256_set1_ps(offset);
    for (__m256& t : x) t = _mm256_add_ps(_mm256_mul_ps(t, k), o);
    StoreFloatToInt16<Tpx8u, RoundKind::kNearest>(d, x[0], x[1]);
  }
};

// To 8u in double precision: t = (s - sMin) * slope, rounded half to even (nearest scope held
// by the caller). The difference is exact and the product within a few units of 2^-45 of the
// true quotient, far closer than any sample's distance from a rounding boundary (at least
// 1 / (2 * 0xFFFFFFFF)), so the result is the exactly rounded one.
template <class S>
struct ScaleExactOp {
  using Src = S;
  using Dst = Tpx8u;
  double sMin, slope;

  Tpx8u One(S s) const { return FloatToInt<Tpx8u, RoundKind::kNearest>((static_cast<double>(s) - sMin) * slope); }

  template <bool>
  void Block(const S* s, Tpx8u* d) const {
    const __m256d lo = _mm256_set1_pd(sMin), k = _mm256_set1_pd(slope);
    __m256d t[4];
    for (int q = 0; q < 4; ++q)
      t[q] = _mm256_mul_pd(_mm256_sub_pd(_mm256_cvtepi32_pd(LoadI32x4(s + 4 * q)), lo), k);
    StoreDoubleToInt8<Tpx8u, RoundKind::kNearest>(d, t[0], t[1]);
    StoreDoubleToInt8<Tpx8u, RoundKind::kNearest>(d + 8, t[2], t[3]);
  }
};

// 8u onto the full range of a wider D, exactly: 255 divides every such range, so
// d = min(D) + s * (range / 255), which is the byte repeated (257, 0x01010101) with the top bit
// flipped for signed D.
template <class D>
struct ScaleWidenOp {
  using Src = Tpx8u;
  using Dst = D;

  D One(Tpx8u s) const {
    constexpr long long kStep = std::is_same_v<D, Tpx32s> ? 0x01010101LL : 0x0101LL;
    return static_cast<D>(static_cast<long long>(std::numeric_limits<D>::lowest()) + s * kStep);
  }

  template <bool>
  void Block(const Tpx8u* s, D* d) const {
    const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s));
    if constexpr (sizeof(D) == 2) {
      const __m128i flip = _mm_set1_epi16(std::is_signed_v<D> ? static_cast<short>(0x8000) : 0);
      _mm_storeu_si128(reinterpret_cast<__m128i*>(d), _mm_xor_si128(_mm_unpacklo_epi8(b, b), flip));
      _mm_storeu_si128(reinterpret_cast<__m128i*>(d + 8), _mm_xor_si128(_mm_unpackhi_epi8(b, b), flip));
    } else {
      const __m128i flip = _mm_set1_epi32(static_cast<int>(0x80000000u));
      for (int q = 0; q < 4; ++q) {
        const char c = static_cast<char>(4 * q);
        const __m128i spread = _mm_setr_epi8(c, c, c, c, c + 1, c + 1, c + 1, c + 1, c + 2, c + 2, c + 2,
                                             c + 2, c + 3, c + 3, c + 3, c + 3);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d + 4 * q), _mm_xor_si128(_mm_shuffle_epi8(b, spread), flip));
      }
    }
  }
};

}  // namespace tpx::cvt
