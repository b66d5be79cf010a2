// Test data and the image sweep shared by the Convert and Scale tests: values at and next to
// every saturation bound and rounding tie, and a harness that runs an export over every shape
// and compares each destination sample with a model, with guard bands and AC4 alpha checked.
#pragma once
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "support/image.h"
#include "support/random.h"
#include "support/sweep.h"
#include "tpxip/types.h"

namespace cvttest {

using tpxtest::GuardedImage;
using tpxtest::Rng;

// A source of test samples: a list of special values drawn with probability pSpecial, and a
// random draw otherwise.
template <class S>
struct Values {
  std::vector<S> special;
  std::function<S(Rng&)> random;
  double pSpecial = 0.3;
  S operator()(Rng& r) const {
    if (!special.empty() && r.Chance(pSpecial)) return special[r.Int(0, static_cast<int>(special.size()) - 1)];
    return random(r);
  }
};

template <class T>
void AddIfFits(std::vector<T>& out, long double v) {
  if (v >= static_cast<long double>(std::numeric_limits<T>::lowest()) &&
      v <= static_cast<long double>(std::numeric_limits<T>::max()))
    out.push_back(static_cast<T>(v));
}

// Integer samples for a destination D and scale factor sf: the full range, and values whose
// scaled value lies at, just inside and just beyond D's bounds and at every kind of tie.
template <class S, class D>
Values<S> IntValues(int sf = 0) {
  Values<S> v;
  v.special = tpxtest::Extremes<S>();
  const long double unit = std::ldexp(1.0L, sf > 0 && sf < 60 ? sf : 0);
  const long double lo = static_cast<long double>(std::numeric_limits<D>::lowest());
  const long double hi = static_cast<long double>(std::numeric_limits<D>::max());
  for (long double b : {lo, hi, 0.0L, 1.0L, -1.0L, 2.0L, -2.0L, 3.0L, -3.0L})
    for (long double off : {-1.0L, -0.5L, 0.0L, 0.5L, 1.0L}) {
      const long double c = (b + off) * unit;
      for (long double e : {-1.0L, 0.0L, 1.0L}) AddIfFits(v.special, c + e);
    }
  if (sf < 0 && sf > -40) {  // left shifts: the largest samples that still fit, and one more
    for (long double b : {lo, hi}) {
      const long double c = std::trunc(b / std::ldexp(1.0L, -sf));
      for (long double e : {-1.0L, 0.0L, 1.0L}) AddIfFits(v.special, c + e);
    }
  }
  v.random = [sf, unit](Rng& r) {
    if (r.Chance(0.5) || sf <= 0) return r.Sample<S>();
    // Near the scaled destination range, on ties half the time.
    const long double k = r.Int(-300, 300) + (r.Chance(0.5) ? 0.5L : 0.0L);
    long double c = k * unit + (r.Chance(0.5) ? 0 : r.Int(-3, 3));
    c = std::fmax(c, static_cast<long double>(std::numeric_limits<S>::lowest()));
    c = std::fmin(c, static_cast<long double>(std::numeric_limits<S>::max()));
    return static_cast<S>(c);
  };
  return v;
}

// Float samples (F = Tpx32f or Tpx64f) for D and sf: NaN, infinities, huge values, every bound
// of D with neighbours and halves, the float bounds of 32s and 32u, and ties; random samples
// spread over D's range (scaled by 2^sf), half of them on multiples of one half.
template <class F, class D>
Values<F> FloatValues(int sf = 0) {
  Values<F> v;
  v.special = tpxtest::Extremes<F>();
  const F inf = std::numeric_limits<F>::infinity();
  for (F x : {std::numeric_limits<F>::quiet_NaN(), -std::numeric_limits<F>::quiet_NaN(), inf, -inf, F(1e30), F(-1e30),
              std::numeric_limits<F>::denorm_min(), -std::numeric_limits<F>::denorm_min(), F(0.49999997f), F(-0.49999997f)})
    v.special.push_back(x);
  const int e = sf > -100 && sf < 100 ? sf : 0;
  const double lo = static_cast<double>(std::numeric_limits<D>::lowest());
  const double hi = static_cast<double>(std::numeric_limits<D>::max());
  for (double b : {lo, hi, 0.0, 1.0, -1.0, 2.0, -2.0, 3.0, -3.0, 2147483648.0, -2147483648.0, 4294967296.0, 16777216.0})
    for (double off : {-1.0, -0.5, 0.0, 0.5, 1.0}) {
      const F c = static_cast<F>(std::ldexp(b + off, e));
      v.special.push_back(c);
      v.special.push_back(std::nextafter(c, inf));
      v.special.push_back(std::nextafter(c, -inf));
    }
  v.random = [lo, hi, e](Rng& r) {
    double x = r.Real(lo - 300.0, hi + 300.0);
    if (r.Chance(0.5)) x = std::round(x * 2.0) / 2.0;
    return static_cast<F>(std::ldexp(x, e));
  };
  return v;
}

template <class T>
void Fill(GuardedImage<T>& img, Rng& rng, const Values<T>& values) {
  for (int y = 0; y < img.Height(); ++y)
    for (int i = 0; i < img.RowSamples(); ++i) img.Row(y)[i] = values(rng);
}

// Samples equal bit for bit (NaN payloads included).
template <class T>
bool Same(T a, T b) {
  return std::memcmp(&a, &b, sizeof(T)) == 0;
}

// MXCSR without the exception flags, which conversions raise as they go: rounding direction,
// masks, flush-to-zero and denormals-are-zero.
inline unsigned Control() { return _mm_getcsr() & ~0x3Fu; }

// The four rounding directions a caller may leave in MXCSR.
inline const unsigned kCallerModes[] = {_MM_ROUND_NEAREST, _MM_ROUND_DOWN, _MM_ROUND_UP, _MM_ROUND_TOWARD_ZERO};

// Every fourth shape: for the wide parameter sweeps.
inline std::vector<tpxtest::Shape> Thin(const std::vector<tpxtest::Shape>& all, int every = 4) {
  std::vector<tpxtest::Shape> out;
  for (std::size_t i = 0; i < all.size(); i += every) out.push_back(all[i]);
  out.push_back(all.back());
  return out;
}

// Runs call(src, srcStep, dst, dstStep, roi) on every shape with random sources, expects
// tpxOk, compares every processed sample with model(sourceSample), checks that AC4 alpha and
// every guard byte are as before, and that the rounding control is what the caller left.
// channels: samples a pixel has in memory; ac4: the fourth is not processed.
template <class S, class D, class Call, class Model>
void Sweep(const std::string& name, int channels, bool ac4, const std::vector<tpxtest::Shape>& shapes,
           const Values<S>& values, Call&& call, Model&& model, Rng& rng) {
  for (const tpxtest::Shape& sh : shapes) {
    GuardedImage<S> src(sh.width, sh.height, channels, sh.padSamples, sh.misalign);
    GuardedImage<D> dst(sh.width, sh.height, channels, (sh.padSamples * 3) % 19, (sh.misalign + 1) % 4);
    Fill(src, rng, values);
    for (int y = 0; y < dst.Height(); ++y)
      for (int i = 0; i < dst.RowSamples(); ++i) dst.Row(y)[i] = static_cast<D>(rng.Int(0, 100));
    const std::vector<D> before = dst.Samples();
    const unsigned csr = Control();
    const TpxStatus st = call(src.Data(), src.Step(), dst.Data(), dst.Step(), TpxSize{sh.width, sh.height});
    ASSERT_EQ(Control(), csr) << name << ": rounding control changed";
    ASSERT_EQ(st, tpxOk) << name;
    for (int y = 0; y < sh.height; ++y)
      for (int i = 0; i < dst.RowSamples(); ++i) {
        const D got = dst.Row(y)[i];
        const D want = (ac4 && i % 4 == 3) ? before[static_cast<std::size_t>(y) * dst.RowSamples() + i] : model(src.Row(y)[i]);
        if (!Same(got, want)) {
          ADD_FAILURE() << name << " w=" << sh.width << " h=" << sh.height << " at (" << i << "," << y
                        << ") src=" << +src.Row(y)[i] << " got=" << +got << " want=" << +want;
          return;
        }
      }
    ASSERT_TRUE(dst.GuardsIntact()) << name << " w=" << sh.width;
    ASSERT_TRUE(src.GuardsIntact()) << name << " w=" << sh.width;
  }
}

}  // namespace cvttest
