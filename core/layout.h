// Channel layouts and sample traits shared by every family.
#pragma once
#include <cstdint>
#include <limits>

#include "tpxip/types.h"

namespace tpx {

enum class Layout { C1, C2, C3, C4, AC4 };

// Samples a pixel occupies in memory.
constexpr int Stride(Layout l) {
  return l == Layout::C1 ? 1 : l == Layout::C2 ? 2 : l == Layout::C3 ? 3 : 4;
}
// Samples of a pixel that an operation reads and writes: AC4 leaves the fourth alone.
constexpr int Processed(Layout l) { return l == Layout::AC4 ? 3 : Stride(l); }
constexpr bool KeepsAlpha(Layout l) { return l == Layout::AC4; }

template <class T>
struct SampleLimits {
  static constexpr T kMin = std::numeric_limits<T>::lowest();
  static constexpr T kMax = std::numeric_limits<T>::max();
};

}  // namespace tpx
