// Plain reference models of Convert and Scale, written from the rules with wide exact
// arithmetic (double, 128-bit integers) and none of the library's code.
#pragma once
#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

#include "tpxip/types.h"

namespace cvtmodel {

// Saturates an exact value to integer D.
template <class D>
D Clamp(double r) {
  if (r >= static_cast<double>(std::numeric_limits<D>::max())) return std::numeric_limits<D>::max();
  if (r <= static_cast<double>(std::numeric_limits<D>::lowest())) return std::numeric_limits<D>::lowest();
  return static_cast<D>(r);
}

// Plain conversion: integer to integer saturates; to float rounds once in the current rounding
// control (every integer source is exact in double).
template <class S, class D>
D Cast(S s) {
  if constexpr (std::is_floating_point_v<D>) return static_cast<D>(static_cast<double>(s));
  else return Clamp<D>(static_cast<double>(s));
}

// 2^-sf as repeated halving/doubling in F reaches it: exact while representable, then 0 or inf.
template <class F>
F Multiplier(int sf) {
  const long long e = -static_cast<long long>(sf);
  if (e < std::numeric_limits<F>::min_exponent - std::numeric_limits<F>::digits) return F(0);  // below 2^-149
  if (e >= std::numeric_limits<F>::max_exponent) return std::numeric_limits<F>::infinity();
  return std::ldexp(F(1), static_cast<int>(e));
}

// Rounds by mode: 0 truncate, 1 half to even, other half away from zero.
inline double RoundBy(double y, int mode) {
  if (mode == 0 || !std::isfinite(y)) return std::trunc(y);
  if (mode == 1 && std::fabs(y - std::trunc(y)) == 0.5) return 2 * std::round(y / 2);
  return std::round(y);
}

// Float to integer: x * 2^-sf in F, NaN gives the maximum, round by mode, saturate.
template <class F, class D>
D FloatRule(F x, int mode, int sf) {
  if (sf != 0) x = x * Multiplier<F>(sf);
  return std::isnan(x) ? std::numeric_limits<D>::max() : Clamp<D>(RoundBy(static_cast<double>(x), mode));
}

// Integer source: s * 2^-sf is exact in double (33-bit samples), rounded by mode, saturated.
template <class S, class D>
D IntSfs(S s, int mode, int sf) {
  return Clamp<D>(RoundBy(std::ldexp(static_cast<double>(s), -std::clamp(sf, -200, 200)), mode));
}

// Integer Scale, exactly: dMin + round_half_even((s - sMin) * dRange / sRange).
template <class S, class D>
D ScaleExact(S s) {
  const __int128 sMin = std::numeric_limits<S>::lowest(), sRange = std::numeric_limits<S>::max() - sMin;
  const __int128 dMin = std::numeric_limits<D>::lowest(), dRange = std::numeric_limits<D>::max() - dMin;
  const __int128 num = (static_cast<__int128>(s) - sMin) * dRange;
  __int128 q = num / sRange;
  const __int128 r2 = 2 * (num % sRange);
  if (r2 > sRange || (r2 == sRange && (q & 1))) ++q;
  return static_cast<D>(dMin + q);
}

}  // namespace cvtmodel
