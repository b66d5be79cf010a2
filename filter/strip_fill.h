// Fills one scratch strip of the border engine: the source rectangle is copied into the
// middle of a packed image and the margins are made by the border rule (1 replicate,
// 3 mirror without repeating the edge sample, 6 constant). Order as in every border copy:
// each source row with its left and right margins, then the rows below, then the rows above,
// as whole-row copies of rows that already have their sides.
#pragma once
#include <cstddef>
#include <cstring>

#include "core/rows.h"

namespace tpx::filter {

// Source index of margin position i (may be negative or >= n) for a line of n samples.
inline int BorderIndex(int i, int n, int kind) {
  if (i >= 0 && i < n) return i;
  if (kind == 1 || n == 1) return i < 0 ? 0 : n - 1;
  // Mirror: period 2n - 2, reflected about the edge samples.
  const int p = 2 * n - 2;
  int m = i % p;
  if (m < 0) m += p;
  return m < n ? m : p - m;
}

template <class T, int kCh>
void StripBorder(const T* src, std::ptrdiff_t srcStep, int w, int h, T* dst, std::ptrdiff_t dstStep,
                 int left, int top, int right, int bottom, int kind, const T* value) {
  constexpr std::size_t kPix = sizeof(T) * kCh;
  const int outW = left + w + right;
  const std::size_t rowBytes = static_cast<std::size_t>(outW) * kPix;
  auto out = [&](int y) { return Advance(dst, dstStep * y); };
  auto constRow = [&](T* d, int from, int count) {
    for (int x = from; x < from + count; ++x)
      for (int c = 0; c < kCh; ++c) d[x * kCh + c] = value[c];
  };
  for (int y = 0; y < h; ++y) {
    const T* s = Advance(src, srcStep * y);
    T* d = out(top + y);
    std::memcpy(d + left * kCh, s, static_cast<std::size_t>(w) * kPix);
    if (kind == 6) {
      constRow(d, 0, left);
      constRow(d, left + w, right);
    } else {
      for (int x = 0; x < left; ++x)
        std::memcpy(d + x * kCh, s + BorderIndex(x - left, w, kind) * kCh, kPix);
      for (int x = 0; x < right; ++x)
        std::memcpy(d + (left + w + x) * kCh, s + BorderIndex(w + x, w, kind) * kCh, kPix);
    }
  }
  auto fillRow = [&](int y, int srcRow) {
    if (kind == 6)
      constRow(out(y), 0, outW);
    else
      std::memcpy(out(y), out(top + BorderIndex(srcRow, h, kind)), rowBytes);
  };
  for (int y = 0; y < bottom; ++y) fillRow(top + h + y, h + y);
  for (int y = 0; y < top; ++y) fillRow(y, y - top);
}

}  // namespace tpx::filter
