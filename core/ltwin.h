// The frame of every _L twin, written once. A family passes two lambdas:
//   narrow(TpxSize roi)                 calls its 32-bit export with the narrowed extents;
//   piece(long long y, long long x, int n) runs the single-row helper on n pixels of row y
//                                        from pixel x (the helper has its own null and width
//                                        checks and the same scale-factor rule).
#pragma once
#include <cstdint>
#include <initializer_list>

#include "tpxip/types.h"

namespace tpx {

inline constexpr unsigned long long kLNarrowLimit = 0x7ffffffe;
inline constexpr long long kLPieceSamples = 0x3fffffff;

inline unsigned long long AbsU(long long v) {
  return v < 0 ? 0ull - static_cast<unsigned long long>(v) : static_cast<unsigned long long>(v);
}

// True where the call fits the 32-bit export: every |step| and |width * height| (in 64 bits)
// at most 0x7ffffffe.
inline bool LTwinFits(TpxSizeL roi, std::initializer_list<long long> steps) {
  for (long long s : steps)
    if (AbsU(s) > kLNarrowLimit) return false;
  long long area = 0;
  if (__builtin_mul_overflow(roi.width, roi.height, &area)) return false;
  return AbsU(area) <= kLNarrowLimit;
}

// pixelSamples: samples a pixel has in memory (3 for C3, 4 for AC4). A piece is at most
// 0x3fffffff samples, so at most that many divided by pixelSamples pixels.
template <class Narrow, class Piece>
inline TpxStatus LTwin(TpxSizeL roi, std::initializer_list<long long> steps, int pixelSamples,
                       Narrow&& narrow, Piece&& piece) {
  if (LTwinFits(roi, steps))
    return narrow(TpxSize{static_cast<int>(roi.width), static_cast<int>(roi.height)});
  // The 32-bit form says tpxErrSize for an empty region; the walk has nothing to do.
  if (roi.width < 1 || roi.height < 1) return tpxOk;
  const long long maxPixels = kLPieceSamples / pixelSamples;
  for (long long y = 0; y < roi.height; ++y) {
    for (long long x = 0; x < roi.width; x += maxPixels) {
      const long long left = roi.width - x;
      const int n = static_cast<int>(left < maxPixels ? left : maxPixels);
      const TpxStatus st = piece(y, x, n);
      if (st < 0) return st;
    }
  }
  return tpxOk;
}

}  // namespace tpx
