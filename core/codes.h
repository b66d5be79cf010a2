// Tests of the small code arguments, written once.
#pragma once
#include <cstdint>

namespace tpx {

// Data type codes 8u, 16u, 16s, 32f: subtract 1, rotate right by one, test bit mask 77.
// An even code sets the top bit of the rotated value and so falls outside the mask.
inline bool DataTypeIs8u16u16s32f(int code) {
  const std::uint32_t v = static_cast<std::uint32_t>(code) - 1u;
  const std::uint32_t r = (v >> 1) | (v << 31);
  return r < 32 && ((77u >> r) & 1u);
}

// Channel-count arguments of size queries: 1, 3 or 4 (bit mask 26).
inline bool ChannelCountIs134(int n) {
  return n >= 0 && n < 32 && ((26u >> n) & 1u);
}

// A rounding mode 0, 1 or 2 with or without flag 16. Negative values are refused too: the
// test is taken on the unsigned value.
inline bool RoundModeBad(int mode) {
  return static_cast<std::uint32_t>(mode & ~16) > 2u;
}

}  // namespace tpx
