// Row walking: steps are bytes and may be 0 or negative; nothing here checks anything.
#pragma once
#include <cstddef>
#include <cstdint>

namespace tpx {

template <class T>
inline T* Advance(T* p, std::ptrdiff_t bytes) {
  return reinterpret_cast<T*>(reinterpret_cast<std::uintptr_t>(p) + static_cast<std::uintptr_t>(bytes));
}

// Pixel (x, y) of an image whose pixels are `pixelSamples` samples of T, in 64-bit arithmetic.
template <class T>
inline T* PixelAt(T* p, std::ptrdiff_t step, long long x, long long y, int pixelSamples) {
  return Advance(p, static_cast<std::ptrdiff_t>(y * step + x * pixelSamples * static_cast<long long>(sizeof(T))));
}

// One image of a row loop: its first row and its step in bytes.
template <class T>
struct Plane {
  T* p;
  std::ptrdiff_t step;
};
template <class T>
inline Plane<T> MakePlane(T* p, std::ptrdiff_t step) { return {p, step}; }

// Calls row(p0, p1, ...) for each of `height` rows, each pointer advanced by its own step.
template <class Row, class... T>
inline void ForEachRow(int height, Row&& row, Plane<T>... planes) {
  for (int y = 0; y < height; ++y) {
    row(planes.p...);
    ((planes.p = Advance(planes.p, planes.step)), ...);
  }
}

// The one-long-row rule: where every step equals the row's byte width, the image is one row
// of rowSamples * height samples and the kernel runs once. Otherwise each row is its own call.
// row(n, p0, p1, ...) receives the sample count first. The product must fit in 32 bits for
// the single call; an image that does not fit is walked row by row, with the same result.
template <class Row, class... T>
inline void ForEachRowCoalesced(int height, int rowSamples, Row&& row, Plane<T>... planes) {
  const long long total = static_cast<long long>(rowSamples) * height;
  const bool contiguous =
      ((planes.step == static_cast<std::ptrdiff_t>(rowSamples) * static_cast<std::ptrdiff_t>(sizeof(T))) && ...);
  if (contiguous && total <= 0x7fffffff) {
    row(static_cast<int>(total), planes.p...);
    return;
  }
  ForEachRow(height, [&](T*... p) { row(rowSamples, p...); }, planes...);
}

}  // namespace tpx
