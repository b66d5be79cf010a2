// Masked rows of Copy and Set: a pixel is written where its Tpx8u mask sample is non-zero; AC4
// writes the first three samples only.
#pragma once
#include <immintrin.h>

#include <cstddef>

#include "core/isa.h"
#include "core/layout.h"
#include "tpxip/types.h"

namespace tpx {

// pshufb controls that spread 16 mask bytes over the 16 pixels' data: byte j of data vector k
// takes the mask byte of its pixel, or 0 (kept) on an AC4 alpha sample.
template <class T, Layout kL>
struct MaskSpread {
  static constexpr int kPb = static_cast<int>(sizeof(T)) * Stride(kL);  // bytes a pixel; vectors per 16 pixels
  alignas(16) unsigned char c[kPb][16];
  constexpr MaskSpread() : c{} {
    for (int k = 0; k < kPb; ++k)
      for (int j = 0; j < 16; ++j) {
        const int byte = 16 * k + j;
        const bool alpha = KeepsAlpha(kL) && (byte % kPb) / static_cast<int>(sizeof(T)) == 3;
        c[k][j] = alpha ? 0x80 : static_cast<unsigned char>(byte / kPb);
      }
  }
};
template <class T, Layout kL>
inline constexpr MaskSpread<T, kL> kMaskSpread{};

// d pixel i = source pixel (kFromRow: src pixel i; else the one pixel src) where mask[i] != 0.
// pixels >= 0. V = 16 pixels a step (16 mask bytes; the data as sizeof(T) * Stride vectors),
// blending with the destination as it was; a step whose mask is all zero writes nothing.
// Tail: scalar, same rule.
template <Isa kI, class T, Layout kL, bool kFromRow>
inline void MaskedRow(const T* src, T* d, const Tpx8u* mask, int pixels) {
  constexpr int S = Stride(kL), P = Processed(kL);
  int i = 0;
  if constexpr (kI == Isa::kAvx) {
    constexpr int kPb = MaskSpread<T, kL>::kPb;
    const auto& spread = kMaskSpread<T, kL>;
    alignas(16) unsigned char pat[kPb][16];
    if constexpr (!kFromRow) {
      T px[4] = {};
      for (int c = 0; c < P; ++c) px[c] = src[c];
      const auto* pb = reinterpret_cast<const unsigned char*>(px);
      for (int k = 0; k < kPb; ++k)
        for (int j = 0; j < 16; ++j) pat[k][j] = pb[(16 * k + j) % kPb];
    }
    const __m128i zero = _mm_setzero_si128();
    for (; i + 16 <= pixels; i += 16) {
      const __m128i mv = _mm_loadu_si128(reinterpret_cast<const __m128i*>(mask + i));
      if (_mm_testz_si128(mv, mv)) continue;
      auto* db = reinterpret_cast<unsigned char*>(d + i * S);
      const auto* sb = reinterpret_cast<const unsigned char*>(src + (kFromRow ? i * S : 0));
      for (int k = 0; k < kPb; ++k) {
        const __m128i keep = _mm_cmpeq_epi8(
            _mm_shuffle_epi8(mv, _mm_load_si128(reinterpret_cast<const __m128i*>(spread.c[k]))), zero);
        const __m128i v = kFromRow ? _mm_loadu_si128(reinterpret_cast<const __m128i*>(sb + 16 * k))
                                   : _mm_load_si128(reinterpret_cast<const __m128i*>(pat[k]));
        __m128i* dv = reinterpret_cast<__m128i*>(db + 16 * k);
        _mm_storeu_si128(dv, _mm_blendv_epi8(v, _mm_loadu_si128(dv), keep));
      }
    }
  }
  for (; i < pixels; ++i)
    if (mask[i])
      for (int c = 0; c < P; ++c) d[i * S + c] = kFromRow ? src[i * S + c] : src[c];
}

}  // namespace tpx
