// Per-pixel rearrangement: each destination sample of a pixel is a source sample of the same
// pixel, a constant, or left as it was. One kernel serves the channel copies of Copy and Set,
// Dup and every SwapChannels form, in place too.
#pragma once
#include <immintrin.h>

#include <cstddef>
#include <cstring>

#include "core/isa.h"
#include "core/rows.h"
#include "tpxip/types.h"

namespace tpx {

inline constexpr int kTakeVal = -1;  // the destination sample receives the constant
inline constexpr int kKeep = -2;     // the destination sample stays as it was

// A rearrangement of kSi-sample pixels of T into kSo-sample pixels (kSi = 0: no source, the
// constant only). from[c] is the source channel of destination sample c, kTakeVal or kKeep.
// srcLast/dstLast: samples of a row's last pixel that lie inside the row; the one-channel forms,
// whose pointer stands on a channel, own only that first sample of their last pixel.
template <class T, int kSi, int kSo>
struct PixelMap {
  static constexpr int kPi = kSi * static_cast<int>(sizeof(T));
  static constexpr int kPo = kSo * static_cast<int>(sizeof(T));
  // Pixels one 16-byte vector step moves. Bytes of the store past them ("stray" bytes) belong to
  // the next pixels: they are written back as they were where anything is kept or the call is in
  // place, and are otherwise rewritten by the next step or the tail.
  static constexpr int kPerVector = 16 / (kPi > kPo ? kPi : kPo);

  int from[kSo];
  T val;
  int srcLast = kSi, dstLast = kSo;
  bool blend = false;
  alignas(16) unsigned char index[16];
  alignas(16) unsigned char value[16];
  alignas(16) unsigned char keep[16];

  PixelMap(const int* order, T v, bool inPlace, int srcLastSamples = kSi, int dstLastSamples = kSo)
      : val(v), srcLast(srcLastSamples), dstLast(dstLastSamples) {
    for (int c = 0; c < kSo; ++c) {
      from[c] = order[c];
      blend = blend || order[c] == kKeep;
    }
    unsigned char vb[sizeof(T)];
    std::memcpy(vb, &val, sizeof(T));
    constexpr int kS = static_cast<int>(sizeof(T));
    for (int b = 0; b < 16; ++b) {
      const int p = b / kPo, c = (b % kPo) / kS, byte = b % kS;
      index[b] = 0x80;
      value[b] = 0;
      keep[b] = 0;
      if (p >= kPerVector) {  // stray
        if (blend) keep[b] = 0xFF;
        else if (inPlace) index[b] = static_cast<unsigned char>(b);
      } else if (from[c] >= 0) {
        index[b] = static_cast<unsigned char>(p * kPi + from[c] * kS + byte);
      } else if (from[c] == kTakeVal) {
        value[b] = vb[byte];
      } else {
        keep[b] = 0xFF;
      }
    }
  }
};

// Rearranges `pixels` pixels (>= 1) of s into d by the map; d may equal s where kSi == kSo.
// V = 16 bytes, kPerVector pixels a step, stray bytes as told above; tail: scalar, same map.
template <Isa kI, class T, int kSi, int kSo, bool kBlend>
inline void MapPixelsRow(const T* s, T* d, int pixels, const PixelMap<T, kSi, kSo>& m) {
  using Map = PixelMap<T, kSi, kSo>;
  int i = 0;
  if constexpr (kI == Isa::kAvx) {
    constexpr int K = Map::kPerVector;
    // Last pixel index at which a 16-byte load and store stay inside the row.
    long long limit = static_cast<long long>(pixels) - K;
    const long long dstBytes = (static_cast<long long>(pixels - 1) * kSo + m.dstLast) * static_cast<long long>(sizeof(T));
    if ((dstBytes - 16) / Map::kPo < limit) limit = (dstBytes - 16) / Map::kPo;
    if constexpr (kSi > 0) {
      const long long srcBytes = (static_cast<long long>(pixels - 1) * kSi + m.srcLast) * static_cast<long long>(sizeof(T));
      if ((srcBytes - 16) / Map::kPi < limit) limit = (srcBytes - 16) / Map::kPi;
      if (srcBytes < 16) limit = -1;
    }
    if (dstBytes < 16) limit = -1;
    const __m128i idx = _mm_load_si128(reinterpret_cast<const __m128i*>(m.index));
    const __m128i val = _mm_load_si128(reinterpret_cast<const __m128i*>(m.value));
    const __m128i keep = _mm_load_si128(reinterpret_cast<const __m128i*>(m.keep));
    for (; i <= limit; i += K) {
      __m128i r = val;
      if constexpr (kSi > 0)
        r = _mm_or_si128(_mm_shuffle_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(s + i * kSi)), idx), val);
      __m128i* dv = reinterpret_cast<__m128i*>(d + i * kSo);
      if constexpr (kBlend) r = _mm_blendv_epi8(r, _mm_loadu_si128(dv), keep);
      _mm_storeu_si128(dv, r);
    }
  }
  for (; i < pixels; ++i) {
    T px[kSo];  // read what the pixel needs before any write: d may equal s
    for (int c = 0; c < kSo; ++c)
      if (m.from[c] >= 0) px[c] = s[i * kSi + m.from[c]];
    for (int c = 0; c < kSo; ++c) {
      if (m.from[c] >= 0) d[i * kSo + c] = px[c];
      else if (m.from[c] == kTakeVal) d[i * kSo + c] = m.val;
    }
  }
}

// Runs the map over an image, row by row.
template <class T, int kSi, int kSo, Isa kI = kIsa>
inline void MapImage(const T* s, std::ptrdiff_t ss, T* d, std::ptrdiff_t ds, TpxSize roi,
                     const PixelMap<T, kSi, kSo>& m) {
  if (m.blend)
    ForEachRow(roi.height, [&](const T* rs, T* rd) { MapPixelsRow<kI, T, kSi, kSo, true>(rs, rd, roi.width, m); },
               MakePlane(s, ss), MakePlane(d, ds));
  else
    ForEachRow(roi.height, [&](const T* rs, T* rd) { MapPixelsRow<kI, T, kSi, kSo, false>(rs, rd, roi.width, m); },
               MakePlane(s, ss), MakePlane(d, ds));
}

}  // namespace tpx
