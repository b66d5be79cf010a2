// MulScale: the product of two samples as fractions of the type's maximum, exact to the rule
// t = a * b, then (t + 1 + (t >> 8)) >> 8 for 8u and (t + 1 + (t >> 16)) >> 16 for 16u.
#pragma once
#include <immintrin.h>

#include <type_traits>

#include "arith/point_rows.h"
#include "arith/scaled_rows.h"
#include "tpxip/types.h"

namespace tpx::arith {

template <class T>
struct MulScaleOp {
  static_assert(std::is_same_v<T, Tpx8u> || std::is_same_v<T, Tpx16u>);
  using Params = NoParams;
  struct VParams {
    explicit VParams(const NoParams&) {}
  };

  static T Apply(T x, T y, const NoParams&) {
    if constexpr (sizeof(T) == 1) {
      const unsigned t = static_cast<unsigned>(x) * y;
      return static_cast<T>((t + 1 + (t >> 8)) >> 8);
    } else {
      const unsigned long long t = static_cast<unsigned long long>(x) * y;
      return static_cast<T>((t + 1 + (t >> 16)) >> 16);
    }
  }

  static __m128i Apply(__m128i x, __m128i y, const VParams&) {
    if constexpr (sizeof(T) == 1) {
      // t <= 65025, so t + 1 + (t >> 8) <= 65280 fits the unsigned 16-bit lane.
      const __m128i z = _mm_setzero_si128(), one = _mm_set1_epi16(1);
      auto half = [&](__m128i a, __m128i b) {
        const __m128i t = _mm_mullo_epi16(a, b);
        return _mm_srli_epi16(_mm_add_epi16(_mm_add_epi16(t, one), _mm_srli_epi16(t, 8)), 8);
      };
      return _mm_packus_epi16(half(_mm_unpacklo_epi8(x, z), _mm_unpacklo_epi8(y, z)),
                              half(_mm_unpackhi_epi8(x, z), _mm_unpackhi_epi8(y, z)));
    } else {
      // t = hi * 2^16 + lo with hi <= 65534, so the result is hi plus the carry of
      // lo + (hi + 1), which is set exactly where lo > 65535 - (hi + 1) (unsigned compare).
      const __m128i lo = _mm_mullo_epi16(x, y), hi = _mm_mulhi_epu16(x, y);
      const __m128i h1 = _mm_add_epi16(hi, _mm_set1_epi16(1));
      const __m128i carry = _mm_cmpgt_epi16(_mm_xor_si128(lo, _mm_set1_epi16(static_cast<short>(0x8000))),
                                            _mm_xor_si128(h1, _mm_set1_epi16(0x7fff)));
      return _mm_sub_epi16(hi, carry);
    }
  }
};

}  // namespace tpx::arith
