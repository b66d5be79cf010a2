// The row loop of the decision families, whose images may differ in samples per pixel (a
// Compare reads C3 pixels and writes one byte a pixel). Where every step equals its image's
// row, the region is one run of width * height pixels; otherwise each row is a run. A run is
// cut in pieces of at most kMaxRunPixels, so that sample counts stay within int.
#pragma once
#include <cstddef>

#include "core/rows.h"
#include "tpxip/types.h"

namespace tpx {

inline constexpr long long kMaxRunPixels = 0x1fffffff / 4;

template <class T>
struct PixelPlane {
  T* p;
  std::ptrdiff_t step;
  int pixelSamples;
  std::ptrdiff_t RowBytes(int width) const {
    return static_cast<std::ptrdiff_t>(width) * pixelSamples * static_cast<std::ptrdiff_t>(sizeof(T));
  }
};
template <class T>
inline PixelPlane<T> MakePixelPlane(T* p, std::ptrdiff_t step, int pixelSamples) {
  return {p, step, pixelSamples};
}

// Calls run(pixels, p0, p1, ...) over the region; width and height are at least 1.
template <class Run, class... T>
inline void ForEachPixelRun(TpxSize roi, Run&& run, PixelPlane<T>... planes) {
  auto pieces = [&](long long pixels, T*... p) {
    for (long long x = 0; x < pixels; x += kMaxRunPixels) {
      const long long left = pixels - x;
      const int n = static_cast<int>(left < kMaxRunPixels ? left : kMaxRunPixels);
      run(n, (p + x * planes.pixelSamples)...);
    }
  };
  if (((planes.step == planes.RowBytes(roi.width)) && ...)) {
    pieces(static_cast<long long>(roi.width) * roi.height, planes.p...);
    return;
  }
  for (int y = 0; y < roi.height; ++y) {
    pieces(roi.width, planes.p...);
    ((planes.p = Advance(planes.p, planes.step)), ...);
  }
}

}  // namespace tpx
