// Shared pieces of the Threshold and Compare tests: the four sample types, sample sets with many
// exact ties around a few pivots, and layout facts.
#pragma once
#include <cmath>
#include <limits>
#include <tuple>
#include <type_traits>
#include <vector>

#include "core/layout.h"
#include "support/random.h"
#include "support/sweep.h"

namespace decide {

using tpx::Layout;

template <class F>
void ForEachType(F&& f) {
  std::apply([&](auto... t) { (f(t), ...); }, std::tuple<Tpx8u, Tpx16u, Tpx16s, Tpx32f>{});
}
template <class F>
void ForEachLayout(F&& f) {
  f(std::integral_constant<Layout, Layout::C1>{});
  f(std::integral_constant<Layout, Layout::C3>{});
  f(std::integral_constant<Layout, Layout::C4>{});
  f(std::integral_constant<Layout, Layout::AC4>{});
}

// Samples per vector of the type's kernels.
template <class T>
constexpr int Lanes() { return std::is_same_v<T, Tpx8u> ? 16 : 8; }

// Pivots (thresholds, constants) and the samples drawn around them: each pivot, its neighbours
// and the type's extremes; for 32f also both zeros, infinities and NaN.
template <class T>
std::vector<T> Pivots() {
  if constexpr (std::is_same_v<T, Tpx32f>) return {-1.5f, -0.0f, 0.0f, 2.0f, 7.25f};
  else if constexpr (std::is_same_v<T, Tpx16s>) return {-300, -1, 0, 5, 1000};
  else return {0, 3, 100, 101, 250};
}
template <class T>
std::vector<T> SamplesAround() {
  std::vector<T> s;
  for (T p : Pivots<T>()) {
    s.push_back(p);
    if constexpr (std::is_same_v<T, Tpx32f>) {
      s.push_back(std::nextafter(p, -INFINITY));
      s.push_back(std::nextafter(p, INFINITY));
    } else {
      s.push_back(static_cast<T>(p - 1));
      s.push_back(static_cast<T>(p + 1));
    }
  }
  for (T e : tpxtest::Extremes<T>()) s.push_back(e);
  return s;
}

// The common sweep plus contiguous images of several rows (padding 0), which the drivers run
// as one long row.
inline std::vector<tpxtest::Shape> Shapes(int lanes) {
  std::vector<tpxtest::Shape> v = tpxtest::Shapes(lanes, {97, 301});
  for (tpxtest::Shape s : {tpxtest::Shape{lanes + 3, 5, 0, 1}, {2 * lanes + 1, 3, 0, 0}, {97, 4, 0, 2}, {1, 9, 0, 3}})
    v.push_back(s);
  return v;
}

}  // namespace decide
