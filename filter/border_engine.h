// The border engine of every neighbourhood filter: the centre of the region is read straight
// from the caller's image, and only the border strips pass through a scratch image whose
// margins are synthesised by the border rule. The cost of the border so scales with the
// perimeter. Box, median and fixed-kernel filters call RunBorderEngine with their own row
// routine; nothing here knows what the routine computes.
#pragma once
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "core/rows.h"
#include "filter/filter_spec.h"
#include "filter/strip_fill.h"
#include "tpxip/types.h"

namespace tpx::filter {

inline constexpr int kInMemTop = 0x10, kInMemBottom = 0x20, kInMemLeft = 0x40, kInMemRight = 0x80;
inline constexpr int kInMemAll = 0xF0;

// Scratch bytes for the strips of one call (the border part of the work buffer), for a kernel
// of kw x kh over a region of roiW x roiH pixels of `channels` samples of sampleBytes each.
// Taken modulo 2^32 like the rest of the size formulas.
inline std::uint32_t BorderBytes(int kw, int kh, int roiW, int roiH, int sampleBytes, int channels) {
  auto mul = [](std::uint32_t a, std::uint32_t b) { return a * b; };
  std::uint32_t n;
  if (kw >= roiW || kh >= roiH) {
    n = mul(static_cast<std::uint32_t>(kh) + roiH - 1, static_cast<std::uint32_t>(kw) + roiW - 1);
  } else {
    const int a = kh == 2 ? 2 : kh - ((kh - 1) >> 1) - 1;      // rows below the anchor
    const int b = kw == 2 ? 2 : kw - ((kw + 1) >> 1);            // columns right of it
    std::int32_t best = a > 0 ? static_cast<std::int32_t>(mul(static_cast<std::uint32_t>(kh) + a - 1,
                                                              static_cast<std::uint32_t>(kw) + roiW - 1))
                              : 0;
    if (b > 0) {
      const auto side = static_cast<std::int32_t>(mul(static_cast<std::uint32_t>(kw) - 1 + b,
                                                      static_cast<std::uint32_t>(kh) - 1 + roiH));
      if (side > best) best = side;
    }
    n = static_cast<std::uint32_t>(best);
  }
  n = n * static_cast<std::uint32_t>(sampleBytes);
  return ((n * static_cast<std::uint32_t>(channels) + 31u) & ~31u) + 32u;
}

// Geometry of one engine run, derived from the kernel size, the region and the border type.
struct EngineGeometry {
  Reach reach;     // what the row routine reads around each destination pixel
  int stripRight;  // columns the right strip writes (2 for mirror with kw 2 on a large region)
  int stripBottom; // rows the bottom strip writes (likewise with kh 2)
  int flags;       // sides whose neighbours are read from memory
  bool small;      // the region is no larger than the kernel in some direction
};

inline EngineGeometry MakeGeometry(int kw, int kh, TpxSize roi, int borderType) {
  EngineGeometry g{};
  g.reach = KernelReach(kw, kh);
  g.small = roi.height <= kh || roi.width <= kw;
  g.stripRight = g.reach.right;
  g.stripBottom = g.reach.bottom;
  // Mirror leaves the edge sample out, so a strip one sample deep has nothing to mirror:
  // the strip takes two source samples instead.
  if (!g.small && (borderType & 15) == 3) {
    if (kw == 2) g.stripRight = 2;
    if (kh == 2) g.stripBottom = 2;
  }
  g.flags = borderType & kInMemAll;
  // Sizes 1 and 2 have no left or top reach, and size 1 none to the right or below: a side
  // with no reach needs no fill.
  if (kw <= 2) {
    g.flags |= kInMemLeft;
    if (g.reach.right == 0) g.flags |= kInMemRight;
  }
  if (kh <= 2) {
    g.flags |= kInMemTop;
    if (g.reach.bottom == 0) g.flags |= kInMemBottom;
  }
  return g;
}

// Runs `run(src, srcStep, dst, dstStep, w, h)` over the region; src points at the source
// pixel under the destination's first pixel, and the routine reads `reach` around it.
// `scratch` is the border part of the work buffer, already aligned; it is not touched when
// every side lies in memory. Order: top strip, bottom strip, then the left and right strips
// band by band (one band unless they are widened), centre.
// `sideMin`: a routine whose vector rows want at least that many pixels per row gets side
// strips that wide where the region allows, in bands of rows that fit the scratch (a side
// strip as narrow as the kernel's reach would otherwise take the routine's narrow form on
// every row of the image).
template <class T, int kCh, class Run>
void RunBorderEngine(const T* src, std::ptrdiff_t srcStep, T* dst, std::ptrdiff_t dstStep,
                     TpxSize roi, int kw, int kh, int borderType, const T* borderValue,
                     T* scratch, Run&& run, int sideMin = 0) {
  const EngineGeometry g = MakeGeometry(kw, kh, roi, borderType);
  if (g.flags == kInMemAll) {
    run(src, srcStep, dst, dstStep, roi.width, roi.height);
    return;
  }
  const int kind = borderType & 15;
  const Reach r = g.reach;
  const int W = roi.width, H = roi.height;
  // Destination rectangle [dx, dx+dw) x [dy, dy+dh) through scratch: copy what the routine
  // reads, from memory where the side lies in memory or inside the region, and synthesise the
  // rest; then run the routine from the anchor position of the scratch image.
  auto throughScratch = [&](int dx, int dy, int dw, int dh) {
    const int sx0 = dx - r.left, sx1 = dx + dw + r.right;
    const int sy0 = dy - r.top, sy1 = dy + dh + r.bottom;
    const int cx0 = (g.flags & kInMemLeft) ? sx0 : std::max(sx0, 0);
    const int cx1 = (g.flags & kInMemRight) ? sx1 : std::min(sx1, W);
    const int cy0 = (g.flags & kInMemTop) ? sy0 : std::max(sy0, 0);
    const int cy1 = (g.flags & kInMemBottom) ? sy1 : std::min(sy1, H);
    const int pitch = (sx1 - sx0) * kCh;  // samples
    const std::ptrdiff_t pitchBytes = static_cast<std::ptrdiff_t>(pitch) * static_cast<std::ptrdiff_t>(sizeof(T));
    StripBorder<T, kCh>(PixelAt(src, srcStep, cx0, cy0, kCh), srcStep, cx1 - cx0, cy1 - cy0, scratch,
                        pitchBytes, cx0 - sx0, cy0 - sy0, sx1 - cx1, sy1 - cy1, kind, borderValue);
    run(PixelAt(scratch, pitchBytes, r.left, r.top, kCh), pitchBytes, PixelAt(dst, dstStep, dx, dy, kCh),
        dstStep, dw, dh);
  };
  if (g.small) {
    throughScratch(0, 0, W, H);
    return;
  }
  int x0 = 0, x1 = W, y0 = 0, y1 = H;
  if (!(g.flags & kInMemTop)) {
    throughScratch(0, 0, W, r.top);
    y0 += r.top;
  }
  if (!(g.flags & kInMemBottom)) {
    throughScratch(0, y1 - g.stripBottom, W, g.stripBottom);
    y1 -= g.stripBottom;
  }
  int left = (g.flags & kInMemLeft) ? 0 : r.left, right = (g.flags & kInMemRight) ? 0 : g.stripRight;
  int band = y1 - y0;
  if (sideMin > 0 && y1 > y0 && (left || right)) {
    const int wl = left ? std::max(left, sideMin) : 0, wr = right ? std::max(right, sideMin) : 0;
    // Pixels the scratch holds: the size formula's count, as the caller allocated by it.
    const long long cap = (static_cast<long long>(BorderBytes(kw, kh, W, H, sizeof(T), kCh)) - 32) /
                          static_cast<long long>(sizeof(T) * kCh);
    const long long rowsFit = cap / (std::max(wl, wr) + kw - 1) - (kh - 1);
    if (wl + wr <= W && rowsFit >= kh) {
      left = wl;
      right = wr;
      band = static_cast<int>(std::min<long long>(band, rowsFit));
    }
  }
  for (int yb = y0; yb < y1; yb += band) {
    const int hb = std::min(band, y1 - yb);
    if (left) throughScratch(0, yb, left, hb);
    if (right) throughScratch(W - right, yb, right, hb);
  }
  x0 += left;
  x1 -= right;
  if (x1 > x0 && y1 > y0)
    run(PixelAt(src, srcStep, x0, y0, kCh), srcStep, PixelAt(dst, dstStep, x0, y0, kCh), dstStep,
        x1 - x0, y1 - y0);
}

// The scratch and the row routine's work area inside the caller's buffer: scratch from the
// buffer rounded up to 32 bytes, the work area from buffer + borderBytes rounded up to 64.
struct WorkSplit {
  unsigned char* scratch;
  unsigned char* work;
};
inline WorkSplit SplitBuffer(unsigned char* buffer, std::uint32_t borderBytes) {
  auto up = [](unsigned char* p, std::uintptr_t a) {
    return p + ((0u - reinterpret_cast<std::uintptr_t>(p)) & (a - 1));
  };
  return {up(buffer, 32), up(buffer + borderBytes, 64)};
}

}  // namespace tpx::filter
