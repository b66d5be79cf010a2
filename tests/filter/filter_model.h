// Reference model of the general filter for tests: a source "world" with real pixels around
// the region, the extended read of the border rules, plain correlation in exact arithmetic,
// and the rounding rules written from their definitions.
#pragma once
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "support/image.h"
#include "support/random.h"
#include "tpxip.h"

namespace filtertest {

using tpxtest::GuardedImage;
using tpxtest::Rng;

// The region of W x H pixels inside a world with M real pixels on every side.
template <class T>
struct World {
  int W, H, M;
  GuardedImage<T> img;
  World(int w, int h, int m, int c, int pad, int mis) : W(w), H(h), M(m), img(w + 2 * m, h + 2 * m, c, pad, mis) {}
  T* Region() { return &img.At(M, M); }
  int Step() const { return img.Step(); }
  T At(int x, int y, int c) const { return img.At(x + M, y + M, c); }
};

// Reads the extended image at (x, y): real pixels inside the region and on sides flagged as
// in memory (as far as the kernel reaches there), the border rule elsewhere.
template <class T>
struct Extended {
  const World<T>* w;
  int kind, x0, x1, y0, y1;  // the rectangle read from memory
  const T* value;
  Extended(const World<T>& world, int bt, const T* v, int kw, int kh) : w(&world), kind(bt & 15), value(v) {
    const int ax = (kw - 1) >> 1, ay = (kh - 1) >> 1;
    x0 = (bt & 0x40) ? -ax : 0;
    x1 = world.W + ((bt & 0x80) ? kw - 1 - ax : 0);
    y0 = (bt & 0x10) ? -ay : 0;
    y1 = world.H + ((bt & 0x20) ? kh - 1 - ay : 0);
  }
  T operator()(int x, int y, int c) const {
    if (x >= x0 && x < x1 && y >= y0 && y < y1) return w->At(x, y, c);
    if (kind == 6) return value[c];
    auto map = [&](int i, int lo, int hi) {
      if (i >= lo && i < hi) return i;
      if (kind == 1 || hi - lo == 1) return i < lo ? lo : hi - 1;
      const int p = 2 * (hi - lo) - 2, m = ((i - lo) % p + p) % p;  // mirror without the edge twice
      return lo + (m < hi - lo ? m : p - m);
    };
    return w->At(map(x, x0, x1), map(y, y0, y1), c);
  }
};

// Rounding of an exact value to an integer: 0 toward zero, 1 half to even, 2 half away.
inline long long RoundExact(long double v, int mode) {
  const long long f = static_cast<long long>(std::floor(v));
  const long double frac = v - f;
  if (mode == 0) return static_cast<long long>(std::trunc(v));
  if (frac != 0.5L) return frac > 0.5L ? f + 1 : f;
  return mode == 1 ? f + (f & 1) : (v >= 0 ? f + 1 : f);
}

template <class T>
T Saturate(long long v) {
  if constexpr (std::is_floating_point_v<T>) return static_cast<T>(v);
  else return static_cast<T>(std::clamp<long long>(v, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max()));
}

// Spec and buffer for one configuration, through the public size query, off any alignment.
struct Prepared {
  std::vector<unsigned char> spec, buf;
  int specSize = 0, bufSize = 0;
  void* Spec() { return spec.data() + 5; }
  Tpx8u* Buf() { return buf.data() + 3; }
  TpxStatus Size(TpxSize k, TpxSize roi, int dt, int kt, int ch) {
    const TpxStatus st = tpxiFilterBorderGetSize(k, roi, dt, kt, ch, &specSize, &bufSize);
    spec.assign(specSize + 5, 0xCD), buf.assign(bufSize + 3, 0xCD);
    return st;
  }
};

template <class T>
constexpr int kDataType = std::is_same_v<T, Tpx8u> ? 1 : std::is_same_v<T, Tpx16u> ? 5 : std::is_same_v<T, Tpx16s> ? 7
                        : std::is_same_v<T, Tpx32f> ? 13 : 19;

// The exports by type and channel count.
template <class T, int kCh>
TpxStatus Run(const T* s, int ss, T* d, int ds, TpxSize roi, int bt, const T* v, const void* spec, Tpx8u* buf);
#define FT_RUN(T, L, CH)                                                                                      \
  template <>                                                                                                 \
  inline TpxStatus Run<Tpx##T, CH>(const Tpx##T* s, int ss, Tpx##T* d, int ds, TpxSize roi, int bt,          \
                                   const Tpx##T* v, const void* spec, Tpx8u* buf) {                           \
    return tpxiFilterBorder_##T##_##L##R(s, ss, d, ds, roi, bt, v, spec, buf);                                \
  }
FT_RUN(8u, C1, 1) FT_RUN(8u, C3, 3) FT_RUN(8u, C4, 4) FT_RUN(16u, C1, 1) FT_RUN(16u, C3, 3) FT_RUN(16u, C4, 4)
FT_RUN(16s, C1, 1) FT_RUN(16s, C3, 3) FT_RUN(16s, C4, 4) FT_RUN(32f, C1, 1) FT_RUN(32f, C3, 3) FT_RUN(32f, C4, 4)
FT_RUN(64f, C1, 1)
#undef FT_RUN

}  // namespace filtertest
