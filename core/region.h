// Region fill and region copy: the drivers behind tpxiSet_* and tpxiCopy_* plain forms, and
// behind every fill or copy another family makes (the zero fills and identity cases of the
// scaled arithmetic, border copies, convolution). One row fill and one row copy serve all.
#pragma once
#include <immintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/isa.h"
#include "core/layout.h"
#include "core/rows.h"
#include "core/stream.h"
#include "tpxip/types.h"

namespace tpx {

// ---- Rows that keep the fourth sample of each pixel (AC4) ----------------------------------
// Byte mask of one 16-byte vector: set on the first three samples of each pixel.
template <class T>
inline __m128i AlphaKeepMask() {
  alignas(16) unsigned char m[16];
  for (int i = 0; i < 16; ++i) m[i] = ((i / sizeof(T)) % 4 == 3) ? 0 : 0xFF;
  return _mm_load_si128(reinterpret_cast<const __m128i*>(m));
}

// d[4i+c] = src(4i+c) for c < 3, i < pixels; d[4i+3] untouched. `Src` is either a row (copy)
// or a one-pixel pattern of three samples (fill; the fourth is never read). V = 16 bytes; tail: scalar, same rule.
template <Isa kI, class T, bool kFromRow>
inline void AlphaKeepRow(const T* src, T* d, int pixels) {
  int i = 0;  // pixel index
  if constexpr (kI == Isa::kAvx && sizeof(T) <= 4) {  // wider samples: a pixel outgrows a vector
    constexpr int kPix = 16 / (4 * static_cast<int>(sizeof(T)));  // pixels a vector holds
    const __m128i mask = AlphaKeepMask<T>();
    __m128i pat = _mm_setzero_si128();
    if constexpr (!kFromRow) {
      alignas(16) T p[16 / sizeof(T)];
      for (int k = 0; k < static_cast<int>(16 / sizeof(T)); ++k) p[k] = k % 4 == 3 ? T{} : src[k % 4];
      pat = _mm_load_si128(reinterpret_cast<const __m128i*>(p));
    }
    for (; i + kPix <= pixels; i += kPix) {
      __m128i* dv = reinterpret_cast<__m128i*>(d + 4 * i);
      const __m128i s = kFromRow ? _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + 4 * i)) : pat;
      _mm_storeu_si128(dv, _mm_blendv_epi8(_mm_loadu_si128(dv), s, mask));
    }
  }
  for (; i < pixels; ++i)
    for (int c = 0; c < 3; ++c) d[4 * i + c] = kFromRow ? src[4 * i + c] : src[c];
}

// ---- Fill ---------------------------------------------------------------------------------
// Query floor of every fill, counted in samples of the image.
inline constexpr long long kFillStreamFloor = 0x80001;

// Fills the region with one pixel (Stride(kL) samples; for AC4 the first three, alpha stays).
// The image is one long row where the step equals the row; streaming by the two-stage test.
template <class T, Layout kL, Isa kI = kIsa>
inline void FillRegion(T* dst, std::ptrdiff_t dstStep, TpxSize roi, const T* pixel,
                       CacheSizeQuery query = tpxGetMaxCacheSizeB) {
  const int rowSamples = roi.width * Stride(kL);
  if constexpr (kL == Layout::AC4) {
    ForEachRow(roi.height, [&](T* d) { AlphaKeepRow<kI, T, false>(pixel, d, roi.width); },
               MakePlane(dst, dstStep));
  } else {
    const FillPattern pat(pixel, static_cast<int>(sizeof(T)) * Stride(kL));
    const long long total = static_cast<long long>(rowSamples) * roi.height;
    auto fill = [&](auto stream) {
      ForEachRowCoalesced(roi.height, rowSamples, [&](int n, T* d) {
        FillBytes<kI, decltype(stream)::value>(d, static_cast<std::size_t>(n) * sizeof(T), pat);
      }, MakePlane(dst, dstStep));
    };
    if (ChooseStreaming(total, kFillStreamFloor, query)) {
      fill(std::true_type{});
      StreamFence();
    } else {
      fill(std::false_type{});
    }
  }
}

// Fills with zero samples (the arithmetic's "result is 0 whatever the data").
template <class T, Layout kL, Isa kI = kIsa>
inline void ZeroRegion(T* dst, std::ptrdiff_t dstStep, TpxSize roi,
                       CacheSizeQuery query = tpxGetMaxCacheSizeB) {
  const T zeros[4] = {};
  FillRegion<T, kL, kI>(dst, dstStep, roi, zeros, query);
}

// ---- Copy ---------------------------------------------------------------------------------
// Rows of at most this many bytes take the plain copy without asking about the cache.
inline constexpr int kCopyPlainMaxRowBytes = 1023;

// Query floor of the copy drivers, in pixels. There are five floors and the pixel size picks
// one: 1-byte pixels 0x200001, 2-byte 0x100001, 3-byte 0xC0001, 4-byte 0x80001, and every pixel
// of 6 bytes or more 0x60001. Up to 6 bytes that is 2 to 2.25 MiB of destination before the
// cache is asked about; wider pixels ask from 0x60001 pixels on too, which is more bytes, but
// the comparison with the cache is made in pixels anyway, so the floor only spares small calls
// the query.
constexpr long long CopyStreamFloor(int pixelBytes) {
  return pixelBytes <= 1 ? 0x200001 : pixelBytes == 2 ? 0x100001 : pixelBytes == 3 ? 0xC0001
       : pixelBytes <= 5 ? 0x80001 : 0x60001;
}

// The streaming row copy: plain stores up to the destination's next 256-byte boundary, so that
// the non-temporal stores fill whole lines from there, then streaming stores. The caller fences.
template <Isa kI>
inline void CopyBytesStreaming(const void* src, void* dst, std::size_t n) {
  std::size_t head = (0u - reinterpret_cast<std::uintptr_t>(dst)) & 255u;
  if (head > n) head = n;
  CopyBytes<kI>(src, dst, head);
  CopyBytes<kI, true>(static_cast<const unsigned char*>(src) + head, static_cast<unsigned char*>(dst) + head,
                      n - head);
}

// Copies the region with the store kind chosen by the caller (who fences after streaming).
// AC4 copies the first three samples of each pixel and keeps destination alpha; it never
// streams. Steps may be negative (a bottom-up walk); the one-long-row rule applies as usual.
template <class T, Layout kL, Isa kI, bool kStream>
inline void CopyRows(const T* src, std::ptrdiff_t srcStep, T* dst, std::ptrdiff_t dstStep, TpxSize roi) {
  if constexpr (kL == Layout::AC4) {
    ForEachRow(roi.height, [&](const T* s, T* d) { AlphaKeepRow<kI, T, true>(s, d, roi.width); },
               MakePlane(src, srcStep), MakePlane(dst, dstStep));
  } else {
    ForEachRowCoalesced(roi.height, roi.width * Stride(kL), [&](int n, const T* s, T* d) {
      const std::size_t bytes = static_cast<std::size_t>(n) * sizeof(T);
      if constexpr (kStream)
        CopyBytesStreaming<kI>(s, d, bytes);
      else
        CopyBytes<kI>(s, d, bytes);
    }, MakePlane(src, srcStep), MakePlane(dst, dstStep));
  }
}

// Copies the region (all samples; for AC4 the first three of each pixel, destination alpha
// stays). Source and destination must not overlap. Rows of more than 1023 bytes past the
// floor ask about the cache, and stream where the image is at least the cache size.
template <class T, Layout kL, Isa kI = kIsa>
inline void CopyRegion(const T* src, std::ptrdiff_t srcStep, T* dst, std::ptrdiff_t dstStep,
                       TpxSize roi, CacheSizeQuery query = tpxGetMaxCacheSizeB) {
  constexpr int kPixelBytes = static_cast<int>(sizeof(T)) * Stride(kL);
  const long long pixels = static_cast<long long>(roi.width) * roi.height;
  if (kL != Layout::AC4 && static_cast<long long>(roi.width) * kPixelBytes > kCopyPlainMaxRowBytes &&
      ChooseStreaming(pixels, CopyStreamFloor(kPixelBytes), query)) {
    CopyRows<T, kL, kI, true>(src, srcStep, dst, dstStep, roi);
    StreamFence();
  } else {
    CopyRows<T, kL, kI, false>(src, srcStep, dst, dstStep, roi);
  }
}

}  // namespace tpx
