// Interleaved to planar and back (Copy C3P3R, C4P4R, P3C3R, P4C4R), with the driver that
// streams the 32f members past their floor.
#pragma once
#include <immintrin.h>

#include <cstddef>
#include <cstdint>

#include "core/isa.h"
#include "core/region.h"
#include "core/rows.h"
#include "core/stream.h"
#include "tpxip/types.h"

namespace tpx {

// pshufb controls for kC-channel samples of kS bytes: a block is kC vectors of interleaved data
// and one vector of each plane (16 / kS pixels).
template <int kS, int kC>
struct PlanarShuffle {
  // split[c][v]: plane c's bytes taken from interleaved vector v; join[v][c]: the reverse.
  alignas(16) unsigned char split[kC][kC][16];
  alignas(16) unsigned char join[kC][kC][16];
  constexpr PlanarShuffle() : split{}, join{} {
    for (int c = 0; c < kC; ++c)
      for (int v = 0; v < kC; ++v)
        for (int b = 0; b < 16; ++b) {
          const int pos = (kC * (b / kS) + c) * kS + b % kS;  // byte of plane c's byte b in the block
          split[c][v][b] = pos / 16 == v ? static_cast<unsigned char>(pos % 16) : 0x80;
          const int at = 16 * v + b;  // interleaved byte at: pixel, channel, byte
          const int sample = at / kS, pixel = sample / kC, ch = sample % kC;
          join[v][c][b] = ch == c ? static_cast<unsigned char>(pixel * kS + at % kS) : 0x80;
        }
  }
};
template <int kS, int kC>
inline constexpr PlanarShuffle<kS, kC> kPlanarShuffle{};

// The kC x kC controls of one direction, loaded once for a row.
template <int kC>
inline void PlanarMasks(const unsigned char (&ctl)[kC][kC][16], __m128i (&m)[kC][kC]) {
  for (int a = 0; a < kC; ++a)
    for (int b = 0; b < kC; ++b) m[a][b] = _mm_load_si128(reinterpret_cast<const __m128i*>(ctl[a][b]));
}

// One 32-byte store of a planar copy; kStream: non-temporal, p on a 32-byte boundary.
template <bool kStream>
inline void StorePlanar8(void* p, __m256 v) {
  if constexpr (kStream)
    _mm256_stream_ps(static_cast<float*>(p), v);
  else
    _mm256_storeu_ps(static_cast<float*>(p), v);
}

// Plain planar rows fetch every stream this many bytes of a plane ahead (kC times as many of the
// interleaved side), the lines to be written as well as those to be read: on rows that run out
// of the caches the hardware prefetcher alone leaves the loads and the write misses waiting on
// memory one after the other, and a fetch well ahead of use is worth a sixth of the time there.
// A prefetch never faults or writes, so past the end of the row it only costs a wasted fetch.
inline constexpr int kPlanarPrefetchBytes = 2048;

inline void PrefetchLine(const void* p, std::size_t ahead) {
  _mm_prefetch(reinterpret_cast<const char*>(reinterpret_cast<std::uintptr_t>(p) + ahead), _MM_HINT_T0);
}

// Runs step(i) for i = 0, kStep, ... while a whole step fits in n, and returns the first pixel
// left. kPrefetch: the steps go in groups of one 64-byte line of a plane (64 / sizeof(T)
// pixels: kC lines of the interleaved side), each group first fetching ahead the lines that
// the group kPlanarPrefetchBytes further on touches.
template <class T, int kC, int kStep, bool kPrefetch, class Step>
inline int PlanarSteps(const T* inter, const T* const* planes, int n, Step&& step) {
  constexpr int kLine = 64 / static_cast<int>(sizeof(T));
  int i = 0;
  if constexpr (kPrefetch) {
    for (; i + kLine <= n; i += kLine) {
      for (int k = 0; k < kC; ++k) PrefetchLine(inter + kC * i, kC * kPlanarPrefetchBytes + 64 * k);
      for (int c = 0; c < kC; ++c) PrefetchLine(planes[c] + i, kPlanarPrefetchBytes);
#pragma GCC unroll 4
      for (int k = 0; k < kLine; k += kStep) step(i + k);
    }
  }
  for (; i + kStep <= n; i += kStep) step(i);
  return i;
}

// d[c][i] = s[kC * i + c], i < n, n >= 0. 32-bit samples: 8 pixels a step (AVX float shuffles,
// which move bits unchanged); 8- and 16-bit: 16 / sizeof(T) pixels a step (pshufb, OR).
// Tail: scalar. Plain rows prefetch (PlanarSteps). kStream (32-bit samples): the vector steps
// store with non-temporal stores, every d[c] on a 32-byte boundary (see StreamHead); the caller
// fences.
template <Isa kI, class T, int kC, bool kStream = false>
inline void ToPlanarRow(const T* s, T* const* d, int n) {
  static_assert(!kStream || sizeof(T) == 4, "streaming rows are 32-bit");
  int i = 0;
  if constexpr (kI == Isa::kAvx && sizeof(T) == 4) {
    i = PlanarSteps<T, kC, 8, !kStream>(s, d, n, [s, d](int i) {
      const float* p = reinterpret_cast<const float*>(s + kC * i);
      if constexpr (kC == 3) {
        __m256 m03 = _mm256_castps128_ps256(_mm_loadu_ps(p));            // x0 y0 z0 x1
        __m256 m14 = _mm256_castps128_ps256(_mm_loadu_ps(p + 4));        // y1 z1 x2 y2
        __m256 m25 = _mm256_castps128_ps256(_mm_loadu_ps(p + 8));        // z2 x3 y3 z3
        m03 = _mm256_insertf128_ps(m03, _mm_loadu_ps(p + 12), 1);        // pixels 4..7 above
        m14 = _mm256_insertf128_ps(m14, _mm_loadu_ps(p + 16), 1);
        m25 = _mm256_insertf128_ps(m25, _mm_loadu_ps(p + 20), 1);
        const __m256 xy = _mm256_shuffle_ps(m14, m25, _MM_SHUFFLE(2, 1, 3, 2));  // x2 y2 x3 y3
        const __m256 yz = _mm256_shuffle_ps(m03, m14, _MM_SHUFFLE(1, 0, 2, 1));  // y0 z0 y1 z1
        StorePlanar8<kStream>(d[0] + i, _mm256_shuffle_ps(m03, xy, _MM_SHUFFLE(2, 0, 3, 0)));
        StorePlanar8<kStream>(d[1] + i, _mm256_shuffle_ps(yz, xy, _MM_SHUFFLE(3, 1, 2, 0)));
        StorePlanar8<kStream>(d[2] + i, _mm256_shuffle_ps(yz, m25, _MM_SHUFFLE(3, 0, 3, 1)));
      } else {
        __m256 r[4];
        for (int k = 0; k < 4; ++k)  // pixel k below, pixel k + 4 above
          r[k] = _mm256_insertf128_ps(_mm256_castps128_ps256(_mm_loadu_ps(p + 4 * k)), _mm_loadu_ps(p + 16 + 4 * k), 1);
        const __m256 t0 = _mm256_unpacklo_ps(r[0], r[1]), t1 = _mm256_unpackhi_ps(r[0], r[1]);
        const __m256 t2 = _mm256_unpacklo_ps(r[2], r[3]), t3 = _mm256_unpackhi_ps(r[2], r[3]);
        StorePlanar8<kStream>(d[0] + i, _mm256_shuffle_ps(t0, t2, _MM_SHUFFLE(1, 0, 1, 0)));
        StorePlanar8<kStream>(d[1] + i, _mm256_shuffle_ps(t0, t2, _MM_SHUFFLE(3, 2, 3, 2)));
        StorePlanar8<kStream>(d[2] + i, _mm256_shuffle_ps(t1, t3, _MM_SHUFFLE(1, 0, 1, 0)));
        StorePlanar8<kStream>(d[3] + i, _mm256_shuffle_ps(t1, t3, _MM_SHUFFLE(3, 2, 3, 2)));
      }
    });
  } else if constexpr (kI == Isa::kAvx) {
    constexpr int kS = static_cast<int>(sizeof(T)), kPix = 16 / kS;
    __m128i m[kC][kC];
    PlanarMasks<kC>(kPlanarShuffle<kS, kC>.split, m);
    i = PlanarSteps<T, kC, kPix, true>(s, d, n, [s, d, &m](int i) {
      __m128i in[kC];
#pragma GCC unroll 4
      for (int v = 0; v < kC; ++v) in[v] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s + kC * i) + v);
#pragma GCC unroll 4
      for (int c = 0; c < kC; ++c) {
        __m128i o = _mm_shuffle_epi8(in[0], m[c][0]);
#pragma GCC unroll 4
        for (int v = 1; v < kC; ++v) o = _mm_or_si128(o, _mm_shuffle_epi8(in[v], m[c][v]));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d[c] + i), o);
      }
    });
  }
  for (; i < n; ++i)
    for (int c = 0; c < kC; ++c) d[c][i] = s[kC * i + c];
}

// d[kC * i + c] = s[c][i], i < n, n >= 0. Same steps and prefetch as ToPlanarRow. Tail: scalar.
// kStream (32-bit samples): non-temporal vector stores, d on a 32-byte boundary; the caller fences.
template <Isa kI, class T, int kC, bool kStream = false>
inline void FromPlanarRow(const T* const* s, T* d, int n) {
  static_assert(!kStream || sizeof(T) == 4, "streaming rows are 32-bit");
  int i = 0;
  if constexpr (kI == Isa::kAvx && sizeof(T) == 4) {
    i = PlanarSteps<T, kC, 8, !kStream>(d, s, n, [s, d](int i) {
      float* p = reinterpret_cast<float*>(d + kC * i);
      const __m256 x = _mm256_loadu_ps(reinterpret_cast<const float*>(s[0] + i));
      const __m256 y = _mm256_loadu_ps(reinterpret_cast<const float*>(s[1] + i));
      const __m256 z = _mm256_loadu_ps(reinterpret_cast<const float*>(s[2] + i));
      __m256 o[4];
      if constexpr (kC == 3) {
        const __m256 rxy = _mm256_shuffle_ps(x, y, _MM_SHUFFLE(2, 0, 2, 0));  // x0 x2 y0 y2
        const __m256 ryz = _mm256_shuffle_ps(y, z, _MM_SHUFFLE(3, 1, 3, 1));  // y1 y3 z1 z3
        const __m256 rzx = _mm256_shuffle_ps(z, x, _MM_SHUFFLE(3, 1, 2, 0));  // z0 z2 x1 x3
        o[0] = _mm256_shuffle_ps(rxy, rzx, _MM_SHUFFLE(2, 0, 2, 0));          // x0 y0 z0 x1
        o[1] = _mm256_shuffle_ps(ryz, rxy, _MM_SHUFFLE(3, 1, 2, 0));          // y1 z1 x2 y2
        o[2] = _mm256_shuffle_ps(rzx, ryz, _MM_SHUFFLE(3, 1, 3, 1));          // z2 x3 y3 z3
      } else {
        const __m256 w = _mm256_loadu_ps(reinterpret_cast<const float*>(s[3] + i));
        const __m256 t0 = _mm256_unpacklo_ps(x, y), t1 = _mm256_unpackhi_ps(x, y);
        const __m256 t2 = _mm256_unpacklo_ps(z, w), t3 = _mm256_unpackhi_ps(z, w);
        o[0] = _mm256_shuffle_ps(t0, t2, _MM_SHUFFLE(1, 0, 1, 0));  // pixel 0 | pixel 4
        o[1] = _mm256_shuffle_ps(t0, t2, _MM_SHUFFLE(3, 2, 3, 2));
        o[2] = _mm256_shuffle_ps(t1, t3, _MM_SHUFFLE(1, 0, 1, 0));
        o[3] = _mm256_shuffle_ps(t1, t3, _MM_SHUFFLE(3, 2, 3, 2));
      }
      // o[k] holds pixels 0..3 below and 4..7 above: pair the halves into whole 32-byte stores.
      if constexpr (kC == 3) {
        StorePlanar8<kStream>(p, _mm256_permute2f128_ps(o[0], o[1], 0x20));
        StorePlanar8<kStream>(p + 8, _mm256_permute2f128_ps(o[2], o[0], 0x30));
        StorePlanar8<kStream>(p + 16, _mm256_permute2f128_ps(o[1], o[2], 0x31));
      } else {
        StorePlanar8<kStream>(p, _mm256_permute2f128_ps(o[0], o[1], 0x20));
        StorePlanar8<kStream>(p + 8, _mm256_permute2f128_ps(o[2], o[3], 0x20));
        StorePlanar8<kStream>(p + 16, _mm256_permute2f128_ps(o[0], o[1], 0x31));
        StorePlanar8<kStream>(p + 24, _mm256_permute2f128_ps(o[2], o[3], 0x31));
      }
    });
  } else if constexpr (kI == Isa::kAvx) {
    constexpr int kS = static_cast<int>(sizeof(T)), kPix = 16 / kS;
    __m128i m[kC][kC];
    PlanarMasks<kC>(kPlanarShuffle<kS, kC>.join, m);
    i = PlanarSteps<T, kC, kPix, true>(d, s, n, [s, d, &m](int i) {
      __m128i in[kC];
#pragma GCC unroll 4
      for (int c = 0; c < kC; ++c) in[c] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s[c] + i));
#pragma GCC unroll 4
      for (int v = 0; v < kC; ++v) {
        __m128i o = _mm_shuffle_epi8(in[0], m[v][0]);
#pragma GCC unroll 4
        for (int c = 1; c < kC; ++c) o = _mm_or_si128(o, _mm_shuffle_epi8(in[c], m[v][c]));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d + kC * i) + v, o);
      }
    });
  }
  for (; i < n; ++i)
    for (int c = 0; c < kC; ++c) d[kC * i + c] = s[c][i];
}

// Query floor of the streaming planar copies, in samples of the image.
inline constexpr long long kPlanarStreamFloor = 0x80001;
// Pixels a streaming step stages on the stack where the planes are out of phase.
inline constexpr int kPlanarStage = 512;

// Pixels (0..7) a streaming 32-bit row takes with plain stores before every destination vector of
// its steps starts on a 32-byte boundary: pixel h of destination k lies at at[k] + h * pixelBytes.
// -1: no such count (planes out of phase with each other, samples off their 4-byte boundaries,
// C4 pixels off 16).
template <int kN>
inline int StreamHead(const void* const (&at)[kN], int pixelBytes) {
  for (int h = 0; h < 8; ++h) {
    bool aligned = true;
    for (int k = 0; k < kN; ++k)
      aligned = aligned && (reinterpret_cast<std::uintptr_t>(at[k]) + static_cast<unsigned>(h * pixelBytes)) % 32 == 0;
    if (aligned) return h;
  }
  return -1;
}

// One streaming row of ToPlanarImage: the head plainly, then non-temporal stores straight to the
// planes; planes out of phase with each other go through a stack block and the streaming row
// copy instead.
template <Isa kI, class T, int kC>
inline void ToPlanarRowStreaming(const T* s, T* const* d, int n) {
  const void* at[kC];
  for (int c = 0; c < kC; ++c) at[c] = d[c];
  const int head = StreamHead(at, sizeof(T));
  if (head >= 0) {
    const int h = head < n ? head : n;
    ToPlanarRow<Isa::kScalar, T, kC>(s, d, h);
    T* rest[kC];
    for (int c = 0; c < kC; ++c) rest[c] = d[c] + h;
    ToPlanarRow<kI, T, kC, true>(s + kC * h, rest, n - h);
    return;
  }
  alignas(32) T stage[kC][kPlanarStage];
  T* sp[kC];
  for (int c = 0; c < kC; ++c) sp[c] = stage[c];
  for (int x = 0; x < n; x += kPlanarStage) {
    const int m = n - x < kPlanarStage ? n - x : kPlanarStage;
    ToPlanarRow<kI, T, kC>(s + kC * x, sp, m);
    for (int c = 0; c < kC; ++c) CopyBytes<kI, true>(stage[c], d[c] + x, m * sizeof(T));
  }
}

// One streaming row of FromPlanarImage, as ToPlanarRowStreaming; only a C4 destination off a
// 16-byte boundary (or samples off 4) needs the stack block.
template <Isa kI, class T, int kC>
inline void FromPlanarRowStreaming(const T* const* s, T* d, int n) {
  const void* at[1] = {d};
  const int head = StreamHead(at, kC * sizeof(T));
  if (head >= 0) {
    const int h = head < n ? head : n;
    FromPlanarRow<Isa::kScalar, T, kC>(s, d, h);
    const T* rest[kC];
    for (int c = 0; c < kC; ++c) rest[c] = s[c] + h;
    FromPlanarRow<kI, T, kC, true>(rest, d + kC * h, n - h);
    return;
  }
  alignas(32) T stage[kC * kPlanarStage];
  const T* sp[kC];
  for (int x = 0; x < n; x += kPlanarStage) {
    const int m = n - x < kPlanarStage ? n - x : kPlanarStage;
    for (int c = 0; c < kC; ++c) sp[c] = s[c] + x;
    FromPlanarRow<kI, T, kC>(sp, stage, m);
    CopyBytes<kI, true>(stage, d + kC * x, static_cast<std::size_t>(m) * kC * sizeof(T));
  }
}

// Interleaved image s to planes d[0..kC). kMayStream: the two-stage cache test runs on the
// image's samples, and a streaming call writes its rows with ToPlanarRowStreaming.
template <class T, int kC, bool kMayStream, Isa kI = kIsa>
inline void ToPlanarImage(const T* s, std::ptrdiff_t ss, T* const* d, std::ptrdiff_t ds, TpxSize roi,
                          CacheSizeQuery query = tpxGetMaxCacheSizeB) {
  const long long samples = static_cast<long long>(roi.width) * roi.height * kC;
  const bool stream = kMayStream && ChooseStreaming(samples, kPlanarStreamFloor, query);
  T* planes[kC];
  for (int c = 0; c < kC; ++c) planes[c] = d[c];
  for (int y = 0; y < roi.height; ++y) {
    if (!stream)
      ToPlanarRow<kI, T, kC>(s, planes, roi.width);
    else if constexpr (kMayStream)
      ToPlanarRowStreaming<kI, T, kC>(s, planes, roi.width);
    s = Advance(s, ss);
    for (int c = 0; c < kC; ++c) planes[c] = Advance(planes[c], ds);
  }
  if (stream) StreamFence();
}

// Planes s[0..kC) to the interleaved image d; streaming as in ToPlanarImage.
template <class T, int kC, bool kMayStream, Isa kI = kIsa>
inline void FromPlanarImage(const T* const* s, std::ptrdiff_t ss, T* d, std::ptrdiff_t ds, TpxSize roi,
                            CacheSizeQuery query = tpxGetMaxCacheSizeB) {
  const long long samples = static_cast<long long>(roi.width) * roi.height * kC;
  const bool stream = kMayStream && ChooseStreaming(samples, kPlanarStreamFloor, query);
  const T* planes[kC];
  for (int c = 0; c < kC; ++c) planes[c] = s[c];
  for (int y = 0; y < roi.height; ++y) {
    if (!stream)
      FromPlanarRow<kI, T, kC>(planes, d, roi.width);
    else if constexpr (kMayStream)
      FromPlanarRowStreaming<kI, T, kC>(planes, d, roi.width);
    d = Advance(d, ds);
    for (int c = 0; c < kC; ++c) planes[c] = Advance(planes[c], ss);
  }
  if (stream) StreamFence();
}

}  // namespace tpx
