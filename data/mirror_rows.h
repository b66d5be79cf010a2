// Mirror rows: a row reversed out of place, two rows reversed into each other in place, two rows
// swapped; and the out-of-place image driver with the streaming C4 path.
#pragma once
#include <immintrin.h>

#include <cstddef>
#include <cstdint>

#include "core/isa.h"
#include "core/layout.h"
#include "core/region.h"
#include "core/rows.h"
#include "core/stream.h"
#include "tpxip/types.h"

namespace tpx {

// pshufb controls of a reversal step for pixels of kPb bytes, kK = 16 / kPb of them a step.
// The left vector is the 16 bytes from pixel j on; the right one the 16 bytes that end where
// pixel w - j ends. fromRight puts the right vector's pixels, reversed, at the left; fromLeft the
// left vector's pixels, reversed, at the right. keepLeft/keepRight mark the bytes of each side
// that are not its reversed pixels (stray bytes of the next pixels, AC4 alpha): they keep that
// side's own bytes.
template <class T, Layout kL>
struct ReverseTables {
  static constexpr int kS = static_cast<int>(sizeof(T));
  static constexpr int kPb = kS * Stride(kL), kK = 16 / kPb;
  alignas(16) unsigned char fromRight[16], keepLeft[16], fromLeft[16], keepRight[16];
  constexpr ReverseTables() : fromRight{}, keepLeft{}, fromLeft{}, keepRight{} {
    for (int b = 0; b < 16; ++b) {
      const int q = b / kPb, t = b % kPb;  // left: pixel j + q, byte t
      const bool alphaL = KeepsAlpha(kL) && t / kS == 3;
      const bool ownL = q >= kK || alphaL;
      fromRight[b] = ownL ? 0x80 : static_cast<unsigned char>(16 - kPb * (q + 1) + t);
      keepLeft[b] = ownL ? 0xFF : 0;
      const int qr = (15 - b) / kPb, tr = b - 16 + kPb * (qr + 1);  // right: pixel w - 1 - j - qr
      const bool ownR = qr >= kK || (KeepsAlpha(kL) && tr / kS == 3);
      fromLeft[b] = ownR ? 0x80 : static_cast<unsigned char>(kPb * qr + tr);
      keepRight[b] = ownR ? 0xFF : 0;
    }
  }
};
template <class T, Layout kL>
inline constexpr ReverseTables<T, kL> kReverseTables{};

inline __m128i Load16(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }
inline __m128i Table16(const unsigned char* t) { return _mm_load_si128(reinterpret_cast<const __m128i*>(t)); }

// d pixel j = s pixel w - 1 - j, j < w, w >= 0; s and d must not overlap. AC4 keeps destination
// alpha. V = 16 bytes, kK pixels a step; stray bytes past them are rewritten by the next step or
// the tail. Tail: scalar.
inline constexpr std::ptrdiff_t kReverseAhead = 2048;

template <Isa kI, class T, Layout kL>
inline void ReverseRow(const T* s, T* d, int w) {
  constexpr int S = Stride(kL), P = Processed(kL);
  int j = 0;
  if constexpr (kI == Isa::kAvx) {
    using Tab = ReverseTables<T, kL>;
    const auto& tab = kReverseTables<T, kL>;
    const auto* sb = reinterpret_cast<const unsigned char*>(s);
    auto* db = reinterpret_cast<unsigned char*>(d);
    const __m128i idx = Table16(tab.fromRight), keep = Table16(tab.keepLeft);
    // Long rows ask for the lines ahead of need: the source is read backward, which the
    // hardware streams follow late, and each destination line is owned before its stores
    // reach it. A prefetch changes nothing and may point past the row.
    for (; static_cast<long long>(w - j - 3 * Tab::kK) * Tab::kPb >= 16; j += 4 * Tab::kK) {
      const unsigned char* from = sb + static_cast<std::ptrdiff_t>(w - j) * Tab::kPb;
      unsigned char* at = db + static_cast<std::ptrdiff_t>(j) * Tab::kPb;
      _mm_prefetch(reinterpret_cast<const char*>(from - kReverseAhead), _MM_HINT_T0);
      _mm_prefetch(reinterpret_cast<const char*>(at + kReverseAhead), _MM_HINT_T0);
      for (int k = 0; k < 4; ++k) {
        constexpr int kStep = Tab::kK * Tab::kPb;  // bytes a step owns (15 for three-byte pixels)
        __m128i v = _mm_shuffle_epi8(Load16(from - k * kStep - 16), idx);
        if constexpr (KeepsAlpha(kL)) v = _mm_blendv_epi8(v, Load16(at + k * kStep), keep);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(at + k * kStep), v);
      }
    }
    for (; static_cast<long long>(w - j) * Tab::kPb >= 16; j += Tab::kK) {
      __m128i v = _mm_shuffle_epi8(Load16(sb + static_cast<std::ptrdiff_t>(w - j) * Tab::kPb - 16), idx);
      unsigned char* at = db + static_cast<std::ptrdiff_t>(j) * Tab::kPb;
      if constexpr (KeepsAlpha(kL)) v = _mm_blendv_epi8(v, Load16(at), keep);
      _mm_storeu_si128(reinterpret_cast<__m128i*>(at), v);
    }
  }
  for (; j < w; ++j)
    for (int c = 0; c < P; ++c) d[j * S + c] = s[(w - 1 - j) * S + c];
}

// a' = b reversed and b' = a reversed, w >= 0; a may equal b (one row reversed in place). AC4
// pixels keep their alpha. V = 16 bytes from each end; in place the two ends stop before their
// stores could meet. Tail (the middle of one row, the rest of two): scalar swaps.
template <Isa kI, class T, Layout kL>
inline void ReversePair(T* a, T* b, int w) {
  constexpr int S = Stride(kL), P = Processed(kL);
  const bool same = a == b;
  int j = 0;
  if constexpr (kI == Isa::kAvx) {
    using Tab = ReverseTables<T, kL>;
    const auto& tab = kReverseTables<T, kL>;
    auto* ab = reinterpret_cast<unsigned char*>(a);
    auto* bb = reinterpret_cast<unsigned char*>(b);
    const __m128i fromR = Table16(tab.fromRight), keepL = Table16(tab.keepLeft);
    const __m128i fromL = Table16(tab.fromLeft), keepR = Table16(tab.keepRight);
    for (;; j += Tab::kK) {
      const std::ptrdiff_t left = static_cast<std::ptrdiff_t>(j) * Tab::kPb;
      const std::ptrdiff_t right = static_cast<std::ptrdiff_t>(w - j) * Tab::kPb - 16;  // start of the right vector
      if (same ? left + 16 > right : right < 0) break;
      const __m128i l = Load16(ab + left), r = Load16(bb + right);
      _mm_storeu_si128(reinterpret_cast<__m128i*>(ab + left), _mm_blendv_epi8(_mm_shuffle_epi8(r, fromR), l, keepL));
      _mm_storeu_si128(reinterpret_cast<__m128i*>(bb + right), _mm_blendv_epi8(_mm_shuffle_epi8(l, fromL), r, keepR));
    }
  }
  auto swap = [&](int k) {
    for (int c = 0; c < P; ++c) {
      const T t = a[k * S + c];
      a[k * S + c] = b[(w - 1 - k) * S + c];
      b[(w - 1 - k) * S + c] = t;
    }
  };
  if (same)
    for (int k = j; k < w - 1 - k; ++k) swap(k);
  else
    for (int k = j; k < w; ++k) swap(k);
}

// a <-> b, pixel for pixel, w >= 0; AC4 pixels keep their alpha. V = 32 bytes (AC4: 16 with a
// blend). Tail: scalar.
template <Isa kI, class T, Layout kL>
inline void SwapRows(T* a, T* b, int w) {
  constexpr int S = Stride(kL), P = Processed(kL);
  int i = 0;  // pixel
  if constexpr (kI == Isa::kAvx) {
    auto* ab = reinterpret_cast<unsigned char*>(a);
    auto* bb = reinterpret_cast<unsigned char*>(b);
    constexpr int kPb = static_cast<int>(sizeof(T)) * S;
    if constexpr (KeepsAlpha(kL)) {
      const __m128i color = AlphaKeepMask<T>();
      for (; (i + 16 / kPb) <= w; i += 16 / kPb) {
        const __m128i x = Load16(ab + i * kPb), y = Load16(bb + i * kPb);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(ab + i * kPb), _mm_blendv_epi8(x, y, color));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(bb + i * kPb), _mm_blendv_epi8(y, x, color));
      }
    } else {
      const std::ptrdiff_t bytes = static_cast<std::ptrdiff_t>(w) * kPb;
      std::ptrdiff_t k = 0;
      for (; k + 32 <= bytes; k += 32) {
        const __m256 x = _mm256_loadu_ps(reinterpret_cast<const float*>(ab + k));
        const __m256 y = _mm256_loadu_ps(reinterpret_cast<const float*>(bb + k));
        _mm256_storeu_ps(reinterpret_cast<float*>(ab + k), y);
        _mm256_storeu_ps(reinterpret_cast<float*>(bb + k), x);
      }
      for (; k < bytes; ++k) {
        const unsigned char t = ab[k];
        ab[k] = bb[k];
        bb[k] = t;
      }
      i = w;
    }
  }
  for (; i < w; ++i)
    for (int c = 0; c < P; ++c) {
      const T t = a[i * S + c];
      a[i * S + c] = b[i * S + c];
      b[i * S + c] = t;
    }
}

// Query floor of the C4 mirror, in pixels; only a width of at least 2 asks.
inline constexpr long long kMirrorC4StreamFloor = 0x100001;
// Pixels of a row a streaming C4 step reverses on the stack before the streaming copy.
inline constexpr int kMirrorStage = 256;

// Out-of-place mirror about axis 0 (rows upside down), 1 (each row reversed) or 2 (both). Axis 0
// copies rows with the one row copy and its own streaming choice; the C4 layout chooses streaming
// for every axis from 0x100001 pixels on, and reverses rows through a stack block then.
template <class T, Layout kL, Isa kI = kIsa>
inline void MirrorImage(const T* s, std::ptrdiff_t ss, T* d, std::ptrdiff_t ds, TpxSize roi, int flip,
                        CacheSizeQuery query = tpxGetMaxCacheSizeB) {
  constexpr int S = Stride(kL);
  if (flip != 1) {  // walk the source from its last row
    s = Advance(s, (roi.height - 1) * ss);
    ss = -ss;
  }
  bool stream = false;
  if constexpr (kL == Layout::C4)
    stream = roi.width >= 2 && ChooseStreaming(static_cast<long long>(roi.width) * roi.height, kMirrorC4StreamFloor, query);
  if (flip == 0) {
    if (kL != Layout::C4)
      CopyRegion<T, kL, kI>(s, ss, d, ds, roi, query);
    else if (stream)
      CopyRows<T, kL, kI, true>(s, ss, d, ds, roi);
    else
      CopyRows<T, kL, kI, false>(s, ss, d, ds, roi);
  } else if (!stream) {
    ForEachRow(roi.height, [&](const T* rs, T* rd) { ReverseRow<kI, T, kL>(rs, rd, roi.width); },
               MakePlane(s, ss), MakePlane(d, ds));
  } else {
    ForEachRow(roi.height, [&](const T* rs, T* rd) {
      alignas(32) T stage[kMirrorStage * S];
      for (int x = 0; x < roi.width; x += kMirrorStage) {
        const int n = roi.width - x < kMirrorStage ? roi.width - x : kMirrorStage;
        ReverseRow<kI, T, kL>(rs + static_cast<std::ptrdiff_t>(roi.width - x - n) * S, stage, n);
        CopyBytes<kI, true>(stage, rd + static_cast<std::ptrdiff_t>(x) * S, static_cast<std::size_t>(n) * S * sizeof(T));
      }
    }, MakePlane(s, ss), MakePlane(d, ds));
  }
  if (stream) StreamFence();
}

// In-place mirror about axis 0, 1 or 2.
template <class T, Layout kL, Isa kI = kIsa>
inline void MirrorInPlace(T* p, std::ptrdiff_t step, TpxSize roi, int flip) {
  auto row = [&](int y) { return Advance(p, y * step); };
  if (flip == 1) {
    for (int y = 0; y < roi.height; ++y) ReversePair<kI, T, kL>(row(y), row(y), roi.width);
  } else if (flip == 0) {
    for (int y = 0; y < roi.height / 2; ++y) SwapRows<kI, T, kL>(row(y), row(roi.height - 1 - y), roi.width);
  } else {
    for (int y = 0; y < (roi.height + 1) / 2; ++y) ReversePair<kI, T, kL>(row(y), row(roi.height - 1 - y), roi.width);
  }
}

}  // namespace tpx
