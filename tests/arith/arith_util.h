// Shared pieces of the arith tests: type and layout lists, a case registry, sample sets with many
// ties around a few pivots, dense sample pairs, the shape sweep, a sample-and-guard matcher, and
// one call of a point operation checked against a model.
#pragma once
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <tuple>
#include <type_traits>
#include <vector>

#include "core/layout.h"
#include "support/image.h"
#include "support/random.h"
#include "support/sweep.h"

namespace decide {

using tpx::Layout;
using namespace tpxtest;

template <class F>
void ForEachType(F&& f) {
  std::apply([&](auto... t) { (f(t), ...); }, std::tuple<Tpx8u, Tpx16u, Tpx16s, Tpx32f>{});
}
template <class F>
void ForEachLayout(F&& f) {
  using L = Layout;
  std::apply([&](auto... l) { (f(l), ...); }, std::tuple<std::integral_constant<L, L::C1>, std::integral_constant<L, L::C3>,
                                                         std::integral_constant<L, L::C4>, std::integral_constant<L, L::AC4>>{});
}

// The cases of a family, filled from its member list when the program starts.
template <class Case>
std::vector<Case>& Registry() {
  static std::vector<Case> v;
  return v;
}

template <class T>
constexpr int Lanes() { return std::is_same_v<T, Tpx8u> ? 16 : 8; }

// Each pivot, its neighbours and the type's extremes (32f: both zeros, infinities, NaN).
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
    if constexpr (std::is_same_v<T, Tpx32f>) s.insert(s.end(), {std::nextafter(p, -INFINITY), std::nextafter(p, INFINITY)});
    else s.insert(s.end(), {static_cast<T>(p - 1), static_cast<T>(p + 1)});
  }
  for (T e : Extremes<T>()) s.push_back(e);
  return s;
}

// The common sweep plus contiguous images of several rows, which the drivers run as one row.
inline std::vector<Shape> Shapes(int lanes) {
  std::vector<Shape> v = tpxtest::Shapes(lanes, {97, 301});
  for (Shape s : {Shape{lanes + 3, 5, 0, 1}, {2 * lanes + 1, 3, 0, 0}, {97, 4, 0, 2}, {1, 9, 0, 3}}) v.push_back(s);
  return v;
}

template <class T>
bool Same(T a, T b) {
  return (std::is_floating_point_v<T> && a != a && b != b) || std::memcmp(&a, &b, sizeof(T)) == 0;
}
template <class T>
T Mixed(Rng& rng, double p = 0.2) {
  const std::vector<T> e = Extremes<T>();
  return rng.Chance(p) ? e[rng.Int(0, int(e.size()) - 1)] : rng.Sample<T>();
}

// Every ordered pair of every 8u sample, or of a 257-step 16-bit grid with the values around its
// turns, as two rows x and y.
template <class T>
void DensePairs(std::vector<T>& x, std::vector<T>& y) {
  std::vector<int> v;
  if (sizeof(T) == 2) v = {1, 2, 3, 255, 256, 0x7fff, 0x8000, 0x8001, 0xfffe, 46340, 46341};
  for (int i = 0; i < (sizeof(T) == 1 ? 256 : 65536); i += sizeof(T) == 1 ? 1 : 257) v.push_back(i);
  for (int a : v)
    for (int b : v) x.push_back(static_cast<T>(a)), y.push_back(static_cast<T>(b));
}

// A per-channel argument as the members take it: a value for C1, else a pointer.
template <Layout L, class T>
auto ChArg(const T* v) {
  if constexpr (L == Layout::C1) return v[0];
  else return v;
}

// The region of d against want, sample by sample, and nothing written outside any of the images.
template <class T>
::testing::AssertionResult Matches(const GuardedImage<T>& d, const std::vector<T>& want, std::initializer_list<const GuardedImage<T>*> images) {
  const std::vector<T> got = d.Samples();
  for (std::size_t i = 0; i < got.size(); ++i)
    if (!Same(got[i], want[i])) return ::testing::AssertionFailure() << "sample " << i << " got " << +got[i] << " want " << +want[i];
  for (const GuardedImage<T>* g : images)
    if (!g->GuardsIntact()) return ::testing::AssertionFailure() << "written outside the region";
  return ::testing::AssertionSuccess();
}

// One call of a two-image or constant point operation: d = f(x, y) with x the old destination
// in place, else b (two images) or a (constant), and y a (two images) or the constant.
template <class T>
struct Args {
  const T* src1;
  long long step1;
  const T* src2;
  long long step2;
  T* dst;
  long long dstStep;
  TpxSizeL roi;
  const T* value;
  int sf;
  TpxSize Roi() const { return {int(roi.width), int(roi.height)}; }
};
template <class T, class Op>
struct Member {
  const char* name;
  Op op;
  Layout layout;
  bool isConst, inPlace, isL;
  TpxStatus (*call)(const Args<T>&);
};
template <class T>
struct PointCase {
  GuardedImage<T> a, b, d;
  T value[4];
  std::vector<T> want;
  template <class M, class F>
  PointCase(const M& m, const Shape& s, Rng& rng, F f)
      : a(s.width, s.height, tpx::Stride(m.layout), s.padSamples, s.misalign),
        b(s.width, s.height, tpx::Stride(m.layout), s.padSamples + 3, (s.misalign + 1) % 4),
        d(s.width, s.height, tpx::Stride(m.layout), (s.padSamples * 2) % 7, (s.misalign + 2) % 5) {
    FillRandom(a, rng), FillRandom(b, rng), FillRandom(d, rng);
    const int pick = rng.Int(0, 3);  // the constant's shortcuts: all 0, all 1
    for (T& v : value) v = pick == 0 ? T(0) : pick == 1 ? T(1) : Mixed<T>(rng);
    const int ch = tpx::Stride(m.layout);
    for (int y = 0; y < s.height; ++y)
      for (int i = 0; i < s.width * ch; ++i) {
        const T old = d.Row(y)[i], x = m.inPlace ? old : m.isConst ? a.Row(y)[i] : b.Row(y)[i];
        want.push_back(m.layout == Layout::AC4 && i % 4 == 3 ? old : f(x, m.isConst ? value[i % ch] : a.Row(y)[i]));
      }
  }
  Args<T> MakeArgs(int sf) {
    return {a.Data(), a.Step(), b.Data(), b.Step(), d.Data(), d.Step(), TpxSizeL{d.Width(), d.Height()}, value, sf};
  }
  ::testing::AssertionResult Check() const { return Matches(d, want, {&a, &b, &d}); }
};

}  // namespace decide
