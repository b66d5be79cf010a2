// Plain reference models of Convert and Scale, written from the rules with wide exact
// arithmetic (double, 128-bit integers) and none of the library's code.
#pragma once
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "tpxip/types.h"

namespace cvtmodel {

template <class T>
constexpr bool kFloat = std::is_floating_point_v<T>;

// Saturates an exact integer (as __int128) to integer D.
template <class D>
D Sat(__int128 v) {
  const __int128 lo = std::numeric_limits<D>::lowest(), hi = std::numeric_limits<D>::max();
  return static_cast<D>(v < lo ? lo : v > hi ? hi : v);
}

// Plain conversion: integer to integer saturates; to float is the value rounded once in the
// current rounding control (every integer source is exact in double).
template <class S, class D>
D Cast(S s) {
  if constexpr (kFloat<D>) return static_cast<D>(static_cast<double>(s));
  else return Sat<D>(static_cast<__int128>(s));
}

// 2^-sf as repeated halving/doubling in F with round to nearest reaches it: exact while
// representable (subnormals included), then 0 or infinity.
template <class F>
F Multiplier(int sf) {
  constexpr int kMinExp = std::is_same_v<F, float> ? -149 : -1074;
  constexpr int kMaxExp = std::is_same_v<F, float> ? 127 : 1023;
  const long long e = -static_cast<long long>(sf);
  if (e < kMinExp) return F(0);
  if (e > kMaxExp) return std::numeric_limits<F>::infinity();
  return std::ldexp(F(1), static_cast<int>(e));
}

// Rounds a finite or infinite double by mode: 0 truncate, 1 half to even, other half away.
inline double RoundBy(double y, int mode) {
  if (!std::isfinite(y)) return y;
  if (mode == 0) return std::trunc(y);
  if (mode == 1) {
    const double f = std::floor(y), diff = y - f;
    if (diff > 0.5) return f + 1;
    if (diff < 0.5) return f;
    return std::fmod(f, 2.0) == 0 ? f : f + 1;
  }
  return std::round(y);
}

template <class D>
constexpr double kModelHi = static_cast<double>(std::numeric_limits<D>::max());
template <class D>
constexpr double kModelLo = static_cast<double>(std::numeric_limits<D>::lowest());

// Float to integer: x * 2^-sf in F, NaN gives the maximum, round by mode, saturate.
template <class F, class D>
D FloatRule(F x, int mode, int sf) {
  if (sf != 0) x = x * Multiplier<F>(sf);
  if (std::isnan(x)) return std::numeric_limits<D>::max();
  const double r = RoundBy(static_cast<double>(x), mode);
  if (r >= kModelHi<D>) return std::numeric_limits<D>::max();
  if (r <= kModelLo<D>) return std::numeric_limits<D>::lowest();
  return static_cast<D>(r);
}

// Integer source: v * 2^-sf exactly, rounded by mode, saturated.
template <class S, class D>
D IntSfs(S s, int mode, int sf) {
  const __int128 v = s;
  if (sf <= 0) {
    if (v == 0) return D(0);
    if (-static_cast<long long>(sf) >= 40) return v > 0 ? std::numeric_limits<D>::max() : std::numeric_limits<D>::lowest();
    return Sat<D>(v * (static_cast<__int128>(1) << -sf));
  }
  if (sf >= 64) return D(0);  // |v| < 2^33
  const unsigned __int128 a = static_cast<unsigned __int128>(v < 0 ? -v : v);
  const unsigned __int128 unit = static_cast<unsigned __int128>(1) << sf;
  unsigned __int128 q = a / unit;
  const unsigned __int128 r2 = 2 * (a % unit);
  if (mode == 0) {
  } else if (mode == 1) {
    if (r2 > unit || (r2 == unit && (q & 1))) ++q;
  } else if (r2 >= unit) {
    ++q;
  }
  const __int128 m = static_cast<__int128>(q);
  return Sat<D>(v < 0 ? -m : m);
}

// Integer Scale, exactly: dMin + round_half_even((s - sMin) * dRange / sRange).
template <class S, class D>
D ScaleExact(S s) {
  const __int128 sMin = std::numeric_limits<S>::lowest(), sRange = static_cast<__int128>(std::numeric_limits<S>::max()) - sMin;
  const __int128 dMin = std::numeric_limits<D>::lowest(), dRange = static_cast<__int128>(std::numeric_limits<D>::max()) - dMin;
  const __int128 num = (static_cast<__int128>(s) - sMin) * dRange;
  __int128 q = num / sRange;
  const __int128 r2 = 2 * (num % sRange);
  if (r2 > sRange || (r2 == sRange && (q & 1))) ++q;
  return static_cast<D>(dMin + q);
}

}  // namespace cvtmodel
