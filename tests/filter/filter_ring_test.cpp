// Every vector row routine equal to its scalar twin, bit-exact: random kernels, ring-sized
// kernels and regions split into column tiles, integer sums taken in float only where they
// are exact (the bound pinned on both sides), NaN and infinity for 32f, the older 64f rows.
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

template <class T, int kCh>
World<T> RandomWorld(Rng& rng, int w, int h, int reach, double pSpecial) {
  World<T> world(w, h, reach + 1, kCh, rng.Int(0, 3), rng.Int(0, 2));
  tpxtest::FillRandom(world.img, rng, pSpecial);
  return world;
}

// Integer rows over an initialised spec (skipped where the spec took the float path).
template <class T, int kCh>
void IntTwin(Rng& rng, const std::vector<Tpx16s>& K, int kw, int kh, int divisor, int mode, bool setMode, int w, int h, double pSpecial) {
  alignas(64) static unsigned char block[1 << 16];
  ASSERT_GE(tpxiFilterBorderInit_16s(K.data(), {kw, kh}, divisor, kDataType<T>, kCh, mode, block), 0);
  if (SpecAt(block)->kind > 1) return;
  if (setMode) tpxiFilterBorderSetMode(rng.Int(0, 2), SpecAt(block)->kind == 1 ? 0 : rng.Int(-20, 20), block);
  const IntRowParams p = ParamsOf(block, kw, kh);
  World<T> world = RandomWorld<T, kCh>(rng, w, h, std::max(kw, kh), pSpecial);
  GuardedImage<T> a(w, h, kCh), b(w, h, kCh);
  IntRows<T, kCh, Isa::kScalar>(world.Region(), world.Step(), a.Data(), a.Step(), w, h, p);
  IntRows<T, kCh, Isa::kAvx>(world.Region(), world.Step(), b.Data(), b.Step(), w, h, p);
  int bx = -1, by = -1;
  ASSERT_TRUE(tpxtest::SameSamples(a, b, &bx, &by) && b.GuardsIntact())
      << "int kw=" << kw << " kh=" << kh << " d=" << divisor << " mode=" << mode << " w=" << w << " h=" << h << " at " << bx << "," << by;
}

// Float-kernel rows of the integer kinds and the 32f rows; for 32f zero taps and a few
// infinities and NaNs (one NaN pattern, so a sum of two NaNs does not hang on operand order).
template <class T, int kCh>
void FloatTwin(Rng& rng, int kw, int kh, int w, int h) {
  const int n = kw * kh;
  std::vector<float> K(n);
  for (auto& v : K) v = rng.Chance(0.2) && std::is_same_v<T, float> ? (rng.Chance(0.5) ? 0.0f : -0.0f) : static_cast<float>(rng.Real(-1.5, 1.5));
  World<T> world = RandomWorld<T, kCh>(rng, w, h, std::max(kw, kh), 0.2);
  const float specials[] = {INFINITY, -INFINITY, -std::numeric_limits<float>::quiet_NaN(), -0.0f};
  if constexpr (std::is_same_v<T, float>)
    for (int y = 0; y < world.img.Height(); ++y)
      for (int i = 0; i < world.img.RowSamples(); ++i)
        world.img.Row(y)[i] = rng.Chance(0.01) ? specials[rng.Int(0, 3)] : static_cast<float>(rng.Real(-100, 100));
  GuardedImage<T> a(w, h, kCh), b(w, h, kCh);
  const Window win{kw, kh, (kw - 1) >> 1, (kh - 1) >> 1};
  if constexpr (std::is_same_v<T, float>) {
    Float32Rows<kCh, Isa::kScalar>(world.Region(), world.Step(), a.Data(), a.Step(), w, h, win, K.data());
    Float32Rows<kCh, Isa::kAvx>(world.Region(), world.Step(), b.Data(), b.Step(), w, h, win, K.data());
  } else {
    const KernelView<float> kv = rng.Chance(0.5) ? KernelView<float>{K.data(), 1} : ReversedView(K.data(), n);
    const FloatRowParams p{win, kv, static_cast<float>(rng.Int(-3, 3)), rng.Int(0, 2)};
    FloatKindRows<T, kCh, Isa::kScalar>(world.Region(), world.Step(), a.Data(), a.Step(), w, h, p);
    FloatKindRows<T, kCh, Isa::kAvx>(world.Region(), world.Step(), b.Data(), b.Step(), w, h, p);
  }
  ASSERT_TRUE(tpxtest::SameSamples(a, b) && b.GuardsIntact()) << "float kw=" << kw << " kh=" << kh << " w=" << w << " h=" << h;
}

// Random small kernels and widths, then kernels at the ring's limits (kh + 1 rows, 64 samples
// of reach) and one past each, over regions from one vector up to several column tiles.
template <class T, int kCh>
void Twins(Rng& rng) {
  std::vector<std::pair<int, int>> shapes;
  for (int t = 0; t < 40; ++t) shapes.push_back({rng.Int(1, 7), rng.Int(1, 5)});
  const int widest = 64 / kCh + 1;
  for (auto s : {std::pair{3, 3}, {5, 5}, {2, 2}, {3, 15}, {3, 16}, {widest, 2}, {widest + 1, 3}, {4, 11}, {7, 1}, {1, 7}})
    shapes.insert(shapes.end(), 2, s);
  for (std::size_t t = 0; t < shapes.size(); ++t) {
    const auto [kw, kh] = shapes[t];
    const int samples[] = {8, 9, 250, 3100, 6200};
    const int w = t < 40 ? rng.Int(1, 90) : std::max(1, samples[rng.Int(0, 4)] / kCh + rng.Int(0, 2)), h = rng.Int(1, 4);
    FloatTwin<T, kCh>(rng, kw, kh, w, h);
    if constexpr (!std::is_same_v<T, float> && !std::is_same_v<T, Tpx16u>) {
      std::vector<Tpx16s> K(kw * kh);
      const int range = rng.Chance(0.5) ? 40 : 3000;
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

TEST(FilterFloatSums, BoundOfExactIntegerSums) {
  Rng rng(5);
  alignas(64) static unsigned char block[1 << 14];
  auto exact = [&](auto sample, long long total, int kw, int kh) {
    using T = decltype(sample);
    const auto K = KernelWithAbsSum(rng, kw * kh, total);
    EXPECT_EQ(tpxOk, tpxiFilterBorderInit_16s(K.data(), {kw, kh}, 1, kDataType<T>, 1, 1, block));
    return SumsExactInFloat<T>(ParamsOf(block, kw, kh));
  };
  EXPECT_TRUE(exact(Tpx8u{}, kExactAbsSum<Tpx8u>, 3, 3));
  EXPECT_FALSE(exact(Tpx8u{}, kExactAbsSum<Tpx8u> + 1, 3, 3));
  EXPECT_TRUE(exact(Tpx16s{}, kExactAbsSum<Tpx16s>, 3, 3));
  EXPECT_FALSE(exact(Tpx16s{}, kExactAbsSum<Tpx16s> + 1, 5, 4));
  auto around = [&](auto sample, auto ch) {
    using T = decltype(sample);
    for (int trial = 0; trial < 48; ++trial) {
      const int kw = rng.Int(3, 5), kh = rng.Int(2, 5);
      const long long total = std::vector<long long>{kExactAbsSum<T>, kExactAbsSum<T> + 1, kExactAbsSum<T> * 3, kExactAbsSum<T> / 3}[trial % 4];
      const int divs[] = {1, 64, 3, 7, -5, static_cast<int>(total)};
      const int w = rng.Chance(0.3) ? rng.Int(1100, 1300) : rng.Int(3, 70);
      IntTwin<T, decltype(ch)::value>(rng, KernelWithAbsSum(rng, kw * kh, total), kw, kh, divs[rng.Int(0, 5)],
                                      rng.Int(0, 2) | (rng.Chance(0.5) ? 16 : 0), std::is_same_v<T, Tpx8u> && rng.Chance(0.5), w, rng.Int(1, 5), 0.8);
    }
  };
  around(Tpx8u{}, std::integral_constant<int, 1>{}), around(Tpx8u{}, std::integral_constant<int, 3>{});
  around(Tpx8u{}, std::integral_constant<int, 4>{}), around(Tpx16s{}, std::integral_constant<int, 1>{});
}

TEST(FilterTwins, ZeroTapsOverInfinityGiveNaN) {
  // A 3x3 kernel of zeros over ones with one infinity: NaN where the window covers it, +0
  // (the sum of +0 products) elsewhere, on both twins.
  const int w = 20, h = 5, x0 = 9, y0 = 2;
  World<float> world(w, h, 2, 1, 0, 0);
  for (int y = 0; y < world.img.Height(); ++y)
    for (int i = 0; i < world.img.RowSamples(); ++i) world.img.Row(y)[i] = 1.0f;
  world.img.At(x0 + 2, y0 + 2) = INFINITY;
  const std::vector<float> K(9, 0.0f);
  GuardedImage<float> d[2] = {{w, h}, {w, h}};
  Float32Rows<1, Isa::kScalar>(world.Region(), world.Step(), d[0].Data(), d[0].Step(), w, h, {3, 3, 1, 1}, K.data());
  Float32Rows<1, Isa::kAvx>(world.Region(), world.Step(), d[1].Data(), d[1].Step(), w, h, {3, 3, 1, 1}, K.data());
  for (int t = 0; t < 2; ++t)
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) {
        const bool covered = std::abs(x - x0) <= 1 && std::abs(y - y0) <= 1;
        EXPECT_EQ(covered, std::isnan(d[t].At(x, y))) << t << " " << x << "," << y;
        EXPECT_TRUE(covered || !std::signbit(d[t].At(x, y)));
      }
}

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
    for (int y = 0; y < h; ++y)  // K[i][j] meets src(x + ax - j, y + ay - i)
      for (int x = 0; x < w; ++x) {
        long double want = 0;
        for (int i = 0; i < kh; ++i)
          for (int j = 0; j < kw; ++j) want += static_cast<long double>(K[i * kw + j]) * world.At(x + anchor.x - j, y + anchor.y - i, 0);
        ASSERT_NEAR(static_cast<double>(want), b.At(x, y), 1e-9 * (1 + std::abs(static_cast<double>(want))));
      }
  }
}

}  // namespace
