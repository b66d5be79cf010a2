// Shared by the Convert and Scale tests: plain reference models written with wide exact
// arithmetic (double, 128-bit integers), test values at and next to every saturation bound and
// rounding tie, the image sweep against a model and the two-fault check order.
#pragma once
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <functional>

#include "core/layout.h"
#include "support/image.h"
#include "support/random.h"
#include "support/sweep.h"

namespace cvttest {

using tpxtest::GuardedImage;
using tpxtest::Rng;

// ---- Models ----
// Saturates an exact value to D; a float D rounds once in the current rounding control.
template <class D>
D Clamp(double r) {
  using L = std::numeric_limits<D>;
  return r >= static_cast<double>(L::max()) ? L::max() : r <= static_cast<double>(L::lowest()) ? L::lowest() : D(r);
}

// 2^-sf as repeated halving/doubling in F reaches it: exact while representable, then 0 or inf.
template <class F>
F Multiplier(int sf) {
  using L = std::numeric_limits<F>;
  const long long e = -static_cast<long long>(sf);  // zero below the least subnormal, 2^-149 for float
  return e < L::min_exponent - L::digits ? F(0) : e >= L::max_exponent ? L::infinity() : std::ldexp(F(1), int(e));
}

// Rounds by mode: 0 truncate, 1 half to even, other half away from zero.
inline double RoundBy(double y, int mode) {
  if (mode == 0 || !std::isfinite(y)) return std::trunc(y);
  if (mode == 1 && std::fabs(y - std::trunc(y)) == 0.5) return 2 * std::round(y / 2);
  return std::round(y);
}

// S to integer D by mode after the scale 2^-sf: floats multiply in S and NaN gives the maximum;
// integers scale exactly in double (33-bit samples). Then round by mode and saturate.
template <class S, class D>
D Rounded(S s, int mode, int sf) {
  if constexpr (std::is_floating_point_v<S>) {
    if (sf != 0) s = s * Multiplier<S>(sf);
    return std::isnan(s) ? std::numeric_limits<D>::max() : Clamp<D>(RoundBy(static_cast<double>(s), mode));
  } else {
    return Clamp<D>(RoundBy(std::ldexp(static_cast<double>(s), -std::clamp(sf, -200, 200)), mode));
  }
}

// Integer Scale, exactly: dMin + round_half_even((s - sMin) * dRange / sRange).
template <class S, class D>
D ScaleExact(S s) {
  using LS = std::numeric_limits<S>;
  using LD = std::numeric_limits<D>;
  const __int128 sRange = __int128{LS::max()} - LS::lowest(), dRange = __int128{LD::max()} - LD::lowest();
  const __int128 num = (__int128{s} - LS::lowest()) * dRange, q = num / sRange, r2 = 2 * (num % sRange);
  return static_cast<D>(LD::lowest() + q + (r2 > sRange || (r2 == sRange && (q & 1))));
}

// ---- Values ----
// Special values drawn with probability 0.3, a random draw otherwise.
template <class S>
struct Values {
  std::vector<S> special;
  std::function<S(Rng&)> random;
  S operator()(Rng& r) const {
    return !special.empty() && r.Chance(0.3) ? special[r.Int(0, static_cast<int>(special.size()) - 1)] : random(r);
  }
};

// Adds c-1, c, c+1 (floats: each with both neighbours) for each c = (b + off) * 2^e over the
// bounds of D, small values and halves.
template <class S, class D>
void AddNear(Values<S>& v, std::vector<long double> bases, int e) {
  using L = std::numeric_limits<S>;
  bases.insert(bases.end(), {std::numeric_limits<D>::lowest(), std::numeric_limits<D>::max(), 0, 1, -1, 2, -2, 3, -3});
  for (long double b : bases)
    for (long double off : {-1.0L, -0.5L, 0.0L, 0.5L, 1.0L})
      for (long double x : {std::ldexp(b + off, e) - 1, std::ldexp(b + off, e), std::ldexp(b + off, e) + 1}) {
        if constexpr (std::is_floating_point_v<S>)
          v.special.insert(v.special.end(), {S(x), std::nextafter(S(x), L::infinity()), std::nextafter(S(x), -L::infinity())});
        else if (x >= L::lowest() && x <= L::max())
          v.special.push_back(static_cast<S>(x));
      }
}

// Samples of S for destination D and scale factor sf. Integers: the full range, values whose
// scaled value lies at and next to D's bounds and ties, for left shifts the largest that still
// fit; random ones half near the scaled range of D, on ties half the time. Floats: NaN,
// infinities, huge and tiny values, every bound of D, of 32s and 32u and of float exactness with
// neighbours and halves scaled by 2^sf; random ones over D's range, half on multiples of one half.
template <class S, class D>
Values<S> ValuesFor(int sf = 0) {
  using L = std::numeric_limits<S>;
  Values<S> v{tpxtest::Extremes<S>(), {}};  // floats: with NaN and the infinities
  const double lo = std::numeric_limits<D>::lowest(), hi = std::numeric_limits<D>::max();
  if constexpr (std::is_floating_point_v<S>) {
    v.special.insert(v.special.end(), {-L::quiet_NaN(), S(1e30), S(-1e30), L::denorm_min(), -L::denorm_min(),
                                       S(0.49999997f), S(-0.49999997f)});
    const int e = sf > -100 && sf < 100 ? sf : 0;
    AddNear<S, D>(v, {2147483648.0L, -2147483648.0L, 4294967296.0L, 16777216.0L}, e);
    v.random = [lo, hi, e](Rng& r) {
      const double x = r.Real(lo - 300.0, hi + 300.0);
      return static_cast<S>(std::ldexp(r.Chance(0.5) ? std::round(x * 2.0) / 2.0 : x, e));
    };
  } else {
    const int e = sf > 0 && sf < 60 ? sf : 0;
    AddNear<S, D>(v, {}, e);
    if (sf < 0 && sf > -40)
      for (long double b : {lo, hi}) AddNear<S, S>(v, {std::trunc(std::ldexp(b, sf))}, 0);
    v.random = [e](Rng& r) {
      if (r.Chance(0.5) || e == 0) return r.Sample<S>();
      const long double c =
          std::ldexp(r.Int(-300, 300) + (r.Chance(0.5) ? 0.5L : 0.0L), e) + (r.Chance(0.5) ? 0 : r.Int(-3, 3));
      return static_cast<S>(std::fmin(std::fmax(c, L::lowest()), L::max()));
    };
  }
  return v;
}

// ---- Calls ----
// Samples equal bit for bit (NaN payloads included).
template <class T>
bool Same(T a, T b) { return std::memcmp(&a, &b, sizeof(T)) == 0; }

// Runs f(direction) with each of the four rounding directions a caller may leave in MXCSR.
template <class F>
void ForCallerModes(F&& f) {
  const unsigned saved = _mm_getcsr();
  for (unsigned mode : {_MM_ROUND_NEAREST, _MM_ROUND_DOWN, _MM_ROUND_UP, _MM_ROUND_TOWARD_ZERO}) {
    _mm_setcsr((saved & ~_MM_ROUND_MASK) | mode);
    f(mode);
  }
  _mm_setcsr(saved);
}

// An export with its trailing arguments bound: call(src, srcStep, dst, dstStep, roi).
template <class Fn, class... A>
auto Bind(Fn fn, A... a) {
  return [=](auto s, int ss, auto d, int ds, TpxSize r) { return fn(s, ss, d, ds, r, a...); };
}

// Runs call(src, srcStep, dst, dstStep, roi) in layout kL on every shape (by default those of the
// 16-sample steps every row kernel here takes) with random sources, and checks
// tpxOk, every sample against model(sourceSample), AC4 alpha and guard bytes kept, and the
// caller's rounding control left as it was.
template <class S, class D, tpx::Layout kL, class Call, class Model>
void Sweep(const std::string& name, const Values<S>& values, Call&& call, Model&& model, Rng& rng,
           const std::vector<tpxtest::Shape>& shapes = tpxtest::Shapes(16)) {
  const int channels = tpx::Stride(kL);
  for (const tpxtest::Shape& sh : shapes) {
    GuardedImage<S> src(sh.width, sh.height, channels, sh.padSamples, sh.misalign);
    GuardedImage<D> dst(sh.width, sh.height, channels, (sh.padSamples * 3) % 19, (sh.misalign + 1) % 4);
    for (int y = 0; y < sh.height; ++y)
      for (int i = 0; i < dst.RowSamples(); ++i) {
        src.Row(y)[i] = values(rng);
        dst.Row(y)[i] = static_cast<D>((y + i) % 101);
      }
    const unsigned csr = _mm_getcsr() & ~0x3Fu;  // MXCSR without the exception flags
    const TpxStatus st = call(src.Data(), src.Step(), dst.Data(), dst.Step(), TpxSize{sh.width, sh.height});
    ASSERT_EQ(_mm_getcsr() & ~0x3Fu, csr) << name << ": rounding control changed";
    ASSERT_EQ(st, tpxOk) << name;
    for (int y = 0; y < sh.height; ++y)
      for (int i = 0; i < dst.RowSamples(); ++i) {
        const D got = dst.Row(y)[i];
        const D want = kL == tpx::Layout::AC4 && i % 4 == 3 ? static_cast<D>((y + i) % 101) : model(src.Row(y)[i]);
        ASSERT_TRUE(Same(got, want)) << name << " w=" << sh.width << " h=" << sh.height << " at (" << i << "," << y
                                     << ") src=" << +src.Row(y)[i] << " got=" << +got << " want=" << +want;
      }
    ASSERT_TRUE(dst.GuardsIntact() && src.GuardsIntact()) << name << " w=" << sh.width;
  }
}

// Two faults at once pin the order. noStep: the member never checks steps.
template <class S, class D, class Call>
void OrderCase(const std::string& name, bool noStep, Call call) {
  alignas(64) static unsigned char srcBuf[512], dstBuf[512];  // 256 bytes either side for negative steps
  const S* src = reinterpret_cast<const S*>(srcBuf + 256);
  D* dst = reinterpret_cast<D*>(dstBuf + 256);
  const TpxSize ok{4, 2}, empty{0, 2}, flat{4, 0};
  EXPECT_EQ(call(nullptr, 16, dst, 16, empty), tpxErrNullPtr) << name;
  EXPECT_EQ(call(src, 16, nullptr, 16, flat), tpxErrNullPtr) << name;
  EXPECT_EQ(call(src, 0, dst, -4, empty), tpxErrSize) << name;
  EXPECT_EQ(call(src, -1, dst, 16, flat), tpxErrSize) << name;
  EXPECT_EQ(call(src, 0, dst, 128, ok), noStep ? tpxOk : tpxErrStep) << name;
  EXPECT_EQ(call(src, 128, dst, -128, ok), noStep ? tpxOk : tpxErrStep) << name;
  EXPECT_EQ(call(src, 128, dst, 128, ok), tpxOk) << name;
}

}  // namespace cvttest
