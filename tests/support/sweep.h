// Shapes that cross every kernel split: widths 1 .. 3V+3 (V = samples per vector), odd heights,
// padded steps and misaligned first samples.
#pragma once
#include <cstddef>
#include <functional>
#include <vector>

namespace tpxtest {

struct Shape {
  int width, height, padSamples, misalign;  // padding and misalignment in samples
};

// V: samples a vector holds for the type under test (32 bytes / sizeof(T), or 16 for integer
// kernels that work on 128-bit lanes). Every width from 1 to 3V+3, a few large odd widths,
// heights 1, 2, 3 and 7, and a cycle of paddings and misalignments.
inline std::vector<Shape> Shapes(int V, std::vector<int> extraWidths = {97, 255, 1001}) {
  std::vector<int> widths;
  for (int w = 1; w <= 3 * V + 3; ++w) widths.push_back(w);
  widths.insert(widths.end(), extraWidths.begin(), extraWidths.end());
  const int heights[] = {1, 2, 3, 7}, pads[] = {0, 3, 32, 17}, mis[] = {0, 1, 3, 5, 2};
  std::vector<Shape> out;
  for (std::size_t k = 0; k < widths.size(); ++k) out.push_back({widths[k], heights[k % 4], pads[k % 4], mis[k % 5]});
  return out;
}

}  // namespace tpxtest
