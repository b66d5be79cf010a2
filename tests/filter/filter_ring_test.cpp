// Every vector row routine equal to its scalar twin, bit-exact: the unrolled 3x3 and 5x5
// rows, ring-sized kernels and regions split into column tiles, random kernels, integer sums
// taken in float only where they are exact (the bound pinned on both sides), NaN and infinity
// for 32f, the older 64f rows.
#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "filter/filter_64f.h"
#include "filter/filter_rows.h"
#include "filter/filter_spec.h"
#include "filter_model.h"

namespace {

using namespace filtertest;
using namespace tpx::filter;
using tpx::Isa;

// A kernel of n coefficients, random signs, whose absolute values add up to `total`.
std::vector<Tpx16s> KernelWithAbsSum(Rng& rng, int n, long long total) {
  std::vector<Tpx16s> k(n, 0);
  for (int i = 0; i < n && total > 0; ++i) {
    const long long lo = std::max<long long>(0, total - (n - 1 - i) * 32000LL), hi = std::min<long long>(total, 32000);
    const long long v = i == n - 1 ? total : lo + rng.Int(0, static_cast<int>(hi - lo));
    k[i] = static_cast<Tpx16s>(rng.Chance(0.3) ? -v : v);
    total -= v;
  }
  return k;
}

IntRowParams ParamsOf(const void* block, int kw, int kh) {
  const FilterBorderSpec* s = SpecAt(block);
  IntRowParams p{};
  p.win = {kw, kh, (kw - 1) >> 1, (kh - 1) >> 1};
  p.rev = reinterpret_cast<const Tpx16s*>(KernelArea(s));
  p.pairs = s->pairTableValid ? reinterpret_cast<const __m128i*>(reinterpret_cast<const unsigned char*>(s) + TableOffset(s, 2)) : nullptr;
  p.roundMode = s->roundMode; p.divKind = s->divKind; p.shift = s->shift; p.half = s->half;
  p.offset = s->offset; p.divisor = s->divisor; p.scale = s->scale; p.offsetF = s->offsetF; p.divisorD = s->divisorD;
  return p;
}

// Scalar and vector rows over one random world agree bit for bit and write nothing around the
// region. 32f data holds a few infinities and NaNs (one NaN pattern, so that a sum of two NaNs
// does not hang on operand order).
template <class T, int kCh, class Rows>
void SameRows(Rng& rng, int kw, int kh, int w, int h, double pSpecial, Rows&& rows) {
  World<T> world(w, h, std::max(kw, kh) + 1, kCh, rng.Int(0, 3), rng.Int(0, 2));
  if constexpr (std::is_same_v<T, float>) tpxtest::FillRandom<float>(world.img, rng, 0.01, {INFINITY, -INFINITY, -NAN, -0.0f});
  else tpxtest::FillRandom(world.img, rng, pSpecial);
  GuardedImage<T> a(w, h, kCh), b(w, h, kCh);
  rows(world.Region(), world.Step(), a.Data(), a.Step(), std::integral_constant<Isa, Isa::kScalar>{});
  rows(world.Region(), world.Step(), b.Data(), b.Step(), std::integral_constant<Isa, Isa::kAvx>{});
  int bx = -1, by = -1;
  ASSERT_TRUE(tpxtest::SameSamples(a, b, &bx, &by) && b.GuardsIntact())
      << kDataType<T> << " C" << kCh << " k=" << kw << "x" << kh << " roi=" << w << "x" << h << " at " << bx << "," << by;
}

// Integer rows over an initialised spec (skipped where the spec took the float path).
template <class T, int kCh>
void IntTwin(Rng& rng, const std::vector<Tpx16s>& K, int kw, int kh, int divisor, int mode, bool setMode, int w, int h, double pSpecial) {
  alignas(64) static unsigned char block[1 << 16];
  ASSERT_GE(tpxiFilterBorderInit_16s(K.data(), {kw, kh}, divisor, kDataType<T>, kCh, mode, block), 0);
  if (SpecAt(block)->kind > 1) return;
  if (setMode) tpxiFilterBorderSetMode(rng.Int(0, 2), SpecAt(block)->kind == 1 ? 0 : rng.Int(-20, 20), block);
  const IntRowParams p = ParamsOf(block, kw, kh);
  SCOPED_TRACE(testing::Message() << "integer kernel, divisor " << divisor << " mode " << mode);
  SameRows<T, kCh>(rng, kw, kh, w, h, pSpecial, [&](const T* s, int ss, T* d, int ds, auto isa) { IntRows<T, kCh, decltype(isa)::value>(s, ss, d, ds, w, h, p); });
}

// Float-kernel rows of the integer kinds and the 32f rows (with zero taps of both signs).
template <class T, int kCh>
void FloatTwin(Rng& rng, int kw, int kh, int w, int h) {
  std::vector<float> K(kw * kh);
  for (auto& v : K) v = rng.Chance(0.2) && std::is_same_v<T, float> ? (rng.Chance(0.5) ? 0.0f : -0.0f) : static_cast<float>(rng.Real(-1.5, 1.5));
  const Window win{kw, kh, (kw - 1) >> 1, (kh - 1) >> 1};
  const FloatRowParams p{win, rng.Chance(0.5) ? KernelView<float>{K.data(), 1} : ReversedView(K.data(), kw * kh), static_cast<float>(rng.Int(-3, 3)), rng.Int(0, 2)};
  SCOPED_TRACE("float kernel");
  SameRows<T, kCh>(rng, kw, kh, w, h, 0.2, [&](const T* s, int ss, T* d, int ds, auto isa) {
    if constexpr (std::is_same_v<T, float>) Float32Rows<kCh, decltype(isa)::value>(s, ss, d, ds, w, h, win, K.data());
    else FloatKindRows<T, kCh, decltype(isa)::value>(s, ss, d, ds, w, h, p);
  });
}

// Fixed kernels (the unrolled sizes, the ring's limits of kh + 1 rows and 64 samples of reach
// and one past each) over rows of 8 and 9 samples, past a block of 64, and two or more column
// tiles; then random small kernels and widths. Integer kernels alternate between sums exact in
// float and sums that are not.
template <class T, int kCh>
void Twins(Rng& rng) {
  const int widest = 64 / kCh + 1, samples[] = {8, 9, 75, 250, 3100};
  std::vector<std::pair<int, int>> shapes = {{3, 3}, {5, 5}, {2, 2}, {3, 15}, {3, 16}, {widest, 2}, {widest + 1, 3}, {4, 11}, {7, 1}, {1, 7}};
  const std::size_t fixed = shapes.size();
  for (int t = 0; t < 40; ++t) shapes.push_back({rng.Int(1, 7), rng.Int(1, 5)});
  for (std::size_t t = 0; t < shapes.size(); ++t)
    for (int i = 0; i < (t < fixed ? 5 : 1); ++i) {
      const auto [kw, kh] = shapes[t];
      const int w = t < fixed ? std::max(1, samples[i] / kCh + i % 3) : rng.Int(1, 90), h = t < fixed ? 1 + i % 4 : rng.Int(1, 4);
      FloatTwin<T, kCh>(rng, kw, kh, w, h);
      if constexpr (!std::is_same_v<T, float> && !std::is_same_v<T, Tpx16u>) {
        std::vector<Tpx16s> K(kw * kh);
        const int range = (t < fixed ? i % 2 : rng.Chance(0.5)) ? 3000 : 20;
        for (auto& v : K) v = static_cast<Tpx16s>(rng.Int(-range, range));
        const int divs[] = {1, 2, 16, 3, 5, 7, -6, 1000};
        IntTwin<T, kCh>(rng, K, kw, kh, divs[rng.Int(0, 7)], rng.Int(0, 2) | (rng.Chance(0.5) ? 16 : 0), rng.Chance(0.5), w, h, 0.2);
      }
    }
}

TEST(FilterTwins, VectorRowsEqualScalarRows) {
  Rng rng(404);
  Twins<Tpx8u, 1>(rng), Twins<Tpx8u, 3>(rng), Twins<Tpx8u, 4>(rng), Twins<Tpx16u, 1>(rng);
  Twins<Tpx16s, 1>(rng), Twins<Tpx16s, 3>(rng), Twins<Tpx16s, 4>(rng);
  Twins<float, 1>(rng), Twins<float, 3>(rng), Twins<float, 4>(rng);
}

// 255 * 65793 = 2^24 - 1 and 32768 * 512 = 2^24: the largest absolute sums whose partial sums
// all stay exact in float. Integer rows at, just past and far past the bound, over samples
// mostly at the extremes, equal the scalar rows' exact integer sums with every finaliser.
template <class T> constexpr long long kExactAbsSum = std::is_same_v<T, Tpx8u> ? 65793 : 512;

template <class T, int kCh>
void AroundTheBound(Rng& rng) {
  for (int trial = 0; trial < 48; ++trial) {
    const int kw = 3 + trial % 3, kh = 2 + trial % 4;
    const long long total = std::vector<long long>{kExactAbsSum<T>, kExactAbsSum<T> + 1, kExactAbsSum<T> * 3, kExactAbsSum<T> / 3}[trial / 12];
    const int divs[] = {1, 64, 3, 7, -5, static_cast<int>(total)};
    const int w = rng.Chance(0.3) ? rng.Int(1100, 1300) : rng.Int(3, 70);
    IntTwin<T, kCh>(rng, KernelWithAbsSum(rng, kw * kh, total), kw, kh, divs[rng.Int(0, 5)],
                    rng.Int(0, 2) | (rng.Chance(0.5) ? 16 : 0), std::is_same_v<T, Tpx8u> && rng.Chance(0.5), w, rng.Int(1, 5), 0.8);
  }
}

TEST(FilterFloatSums, BoundOfExactIntegerSums) {
  Rng rng(5);
  alignas(64) static unsigned char block[1 << 14];
  auto exact = [&](auto sample, long long total, int kw, int kh) {
    using T = decltype(sample);
    const auto K = KernelWithAbsSum(rng, kw * kh, total);
    EXPECT_EQ(tpxOk, tpxiFilterBorderInit_16s(K.data(), {kw, kh}, 1, kDataType<T>, 1, 1, block));
    return SumsExactInFloat<T>(ParamsOf(block, kw, kh));
  };
  EXPECT_TRUE(exact(Tpx8u{}, kExactAbsSum<Tpx8u>, 3, 3) && exact(Tpx16s{}, kExactAbsSum<Tpx16s>, 3, 3));
  EXPECT_FALSE(exact(Tpx8u{}, kExactAbsSum<Tpx8u> + 1, 3, 3) || exact(Tpx16s{}, kExactAbsSum<Tpx16s> + 1, 5, 4));
  AroundTheBound<Tpx8u, 1>(rng), AroundTheBound<Tpx8u, 3>(rng), AroundTheBound<Tpx8u, 4>(rng), AroundTheBound<Tpx16s, 1>(rng);
}

// The older 64f rows are a true convolution: K[i][j] meets src(x + ax - j, y + ay - i).
TEST(FilterTwins, Older64fRowsAreTrueConvolution) {
  Rng rng(77);
  for (int trial = 0; trial < 40; ++trial) {
    const int kw = rng.Int(1, 13), kh = rng.Int(1, 4), w = rng.Int(1, 40), h = rng.Int(1, 3);
    std::vector<double> K(kw * kh);
    for (auto& v : K) v = rng.Real(-1, 1);
    const TpxPoint anchor{rng.Int(0, kw - 1), rng.Int(0, kh - 1)};
    World<double> world(w, h, 14, 1, rng.Int(0, 3), 0);
    tpxtest::FillRandom(world.img, rng, 0.0);
    GuardedImage<double> a(w, h), b(w, h);
    Filter64fRows<Isa::kScalar>(world.Region(), world.Step(), a.Data(), a.Step(), {w, h}, K.data(), kw, kh, anchor);
    Filter64fRows<Isa::kAvx>(world.Region(), world.Step(), b.Data(), b.Step(), {w, h}, K.data(), kw, kh, anchor);
    ASSERT_TRUE(tpxtest::SameSamples(a, b));
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) {
        long double want = 0;
        for (int i = 0; i < kh * kw; ++i) want += static_cast<long double>(K[i]) * world.At(x + anchor.x - i % kw, y + anchor.y - i / kw, 0);
        ASSERT_NEAR(static_cast<double>(want), b.At(x, y), 1e-9 * (1 + std::abs(static_cast<double>(want))));
      }
  }
}

}  // namespace
