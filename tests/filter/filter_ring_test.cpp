// The rows that convert each source row to float once and compute two destination rows per
// pass: integer sums taken in float only where they are exact (the bound pinned on both
// sides), and every vector routine equal to its scalar twin over ring-sized kernels, regions
// split into column tiles, odd and even heights.
#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "filter/filter_rows.h"
#include "filter/filter_spec.h"
#include "filter_model.h"

namespace {

using namespace filtertest;
using namespace tpx::filter;

// A kernel of n coefficients, random signs, whose absolute values add up to `total`.
std::vector<Tpx16s> KernelWithAbsSum(Rng& rng, int n, long long total) {
  std::vector<Tpx16s> k(n, 0);
  long long left = total;
  for (int i = 0; i < n && left > 0; ++i) {
    const long long room = static_cast<long long>(n - 1 - i) * 32000;  // what later taps can take
    const long long lo = std::max<long long>(0, left - room), hi = std::min<long long>(left, 32000);
    const long long v = i == n - 1 ? left : lo + rng.Int(0, static_cast<int>(hi - lo));
    k[i] = static_cast<Tpx16s>(rng.Chance(0.3) ? -v : v);
    left -= v;
  }
  return k;
}

IntRowParams ParamsOf(const void* block, int kw, int kh) {
  const FilterBorderSpec* s = SpecAt(block);
  IntRowParams p{};
  p.win = {kw, kh, (kw - 1) >> 1, (kh - 1) >> 1};
  p.rev = reinterpret_cast<const Tpx16s*>(KernelArea(s));
  p.pairs = s->pairTableValid
                ? reinterpret_cast<const __m128i*>(reinterpret_cast<const unsigned char*>(s) + TableOffset(s, 2))
                : nullptr;
  p.roundMode = s->roundMode; p.divKind = s->divKind; p.shift = s->shift; p.half = s->half;
  p.offset = s->offset; p.divisor = s->divisor; p.scale = s->scale; p.offsetF = s->offsetF; p.divisorD = s->divisorD;
  return p;
}

// 255 * 65793 = 2^24 - 1 and 32768 * 512 = 2^24: the largest absolute sums whose partial
// sums all stay exact in float.
template <class T> constexpr long long kExactAbsSum = 0;
template <> constexpr long long kExactAbsSum<Tpx8u> = 65793;
template <> constexpr long long kExactAbsSum<Tpx16s> = 512;

TEST(FilterFloatSums, BoundOfExactIntegerSums) {
  Rng rng(5);
  alignas(64) static unsigned char block[1 << 14];
  auto exact = [&](auto sample, long long total, int kw, int kh) {
    using T = decltype(sample);
    const auto K = KernelWithAbsSum(rng, kw * kh, total);
    long long sum = 0;
    for (auto v : K) sum += std::abs(v);
    EXPECT_EQ(total, sum);
    EXPECT_EQ(tpxOk, tpxiFilterBorderInit_16s(K.data(), {kw, kh}, 1, kDataType<T>, 1, 1, block));
    return SumsExactInFloat<T>(ParamsOf(block, kw, kh));
  };
  EXPECT_TRUE(exact(Tpx8u{}, kExactAbsSum<Tpx8u>, 3, 3));
  EXPECT_FALSE(exact(Tpx8u{}, kExactAbsSum<Tpx8u> + 1, 3, 3));
  EXPECT_TRUE(exact(Tpx8u{}, 100, 5, 5));
  EXPECT_TRUE(exact(Tpx16s{}, kExactAbsSum<Tpx16s>, 3, 3));
  EXPECT_FALSE(exact(Tpx16s{}, kExactAbsSum<Tpx16s> + 1, 3, 3));
  EXPECT_FALSE(exact(Tpx16s{}, kExactAbsSum<Tpx16s> + 1, 5, 4));
}

// Integer rows with kernels at the bound, just past it and far past it, over samples mostly
// at the extremes (the largest partial sums): the vector rows, float sums or integer sums by
// the bound, equal the scalar rows' exact integer sums with every finaliser.
template <class T, int kCh>
void IntegerRowsAroundTheBound(Rng& rng) {
  alignas(64) static unsigned char block[1 << 14];
  const long long totals[] = {kExactAbsSum<T>, kExactAbsSum<T> + 1, kExactAbsSum<T> * 3, kExactAbsSum<T> / 3};
  for (int trial = 0; trial < 48; ++trial) {
    const int kw = rng.Int(3, 5), kh = rng.Int(2, 5);
    const long long total = totals[trial % 4];
    const auto K = KernelWithAbsSum(rng, kw * kh, total);
    const int divs[] = {1, 64, 3, 7, -5, static_cast<int>(total)};
    const int divisor = divs[rng.Int(0, 5)];
    const int mode = rng.Int(0, 2) | (rng.Chance(0.5) ? 16 : 0);
    ASSERT_GE(tpxiFilterBorderInit_16s(K.data(), {kw, kh}, divisor, kDataType<T>, kCh, mode, block), 0);
    if (SpecAt(block)->kind > 1) continue;  // 16s on its float path
    if (std::is_same_v<T, Tpx8u> && rng.Chance(0.5)) tpxiFilterBorderSetMode(rng.Int(0, 2), rng.Int(-9, 9), block);
    const IntRowParams p = ParamsOf(block, kw, kh);
    const int w = rng.Chance(0.3) ? rng.Int(1100, 1300) : rng.Int(3, 70), h = rng.Int(1, 5);
    World<T> world(w, h, 4, kCh, rng.Int(0, 3), rng.Int(0, 2));
    tpxtest::FillRandom(world.img, rng, 0.8);  // mostly the extremes
    GuardedImage<T> a(w, h, kCh), b(w, h, kCh);
    IntRows<T, kCh, tpx::Isa::kScalar>(world.Region(), world.Step(), a.Data(), a.Step(), w, h, p);
    IntRows<T, kCh, tpx::Isa::kAvx>(world.Region(), world.Step(), b.Data(), b.Step(), w, h, p);
    int bx = -1, by = -1;
    ASSERT_TRUE(tpxtest::SameSamples(a, b, &bx, &by))
        << "kw=" << kw << " kh=" << kh << " total=" << total << " d=" << divisor << " mode=" << mode << " w=" << w
        << " h=" << h << " at " << bx << "," << by;
    ASSERT_TRUE(b.GuardsIntact());
  }
}

TEST(FilterFloatSums, IntegerRowsAtAndPastTheBoundEqualScalarRows) {
  Rng rng(61);
  IntegerRowsAroundTheBound<Tpx8u, 1>(rng);
  IntegerRowsAroundTheBound<Tpx8u, 3>(rng);
  IntegerRowsAroundTheBound<Tpx8u, 4>(rng);
  IntegerRowsAroundTheBound<Tpx16s, 1>(rng);
}

// Kernel shapes at the ring's limits (kh + 1 rows, (kw - 1) * channels of reach) and one past
// each, with regions wide enough to be split into column tiles.
struct Shape {
  int kw, kh;
};
template <int kCh>
std::vector<Shape> RingShapes() {
  const int widest = 64 / kCh + 1;  // reach 64 fits, one more column does not
  return {{3, 3}, {5, 5}, {2, 2}, {3, 15}, {3, 16}, {widest, 2}, {widest + 1, 3}, {4, 11}, {7, 1}, {1, 7}};
}

template <class T, int kCh>
void RingTwins(Rng& rng) {
  alignas(64) static unsigned char block[1 << 16];
  for (const Shape sh : RingShapes<kCh>()) {
    const int kw = sh.kw, kh = sh.kh, n = kw * kh;
    for (int rep = 0; rep < 2; ++rep) {
      // From one vector up to several tiles of the ring.
      const int samples[] = {8, 9, 250, 3100, 6200};
      const int w = std::max(1, samples[rng.Int(0, 4)] / kCh + rng.Int(0, 2)), h = rng.Int(1, 4);
      World<T> world(w, h, 34, kCh, rng.Int(0, 3), rng.Int(0, 2));
      tpxtest::FillRandom(world.img, rng, 0.2);
      if constexpr (std::is_same_v<T, float>) {
        for (int y = 0; y < world.img.Height(); ++y)
          for (int i = 0; i < world.img.RowSamples(); ++i) world.img.Row(y)[i] = static_cast<float>(rng.Real(-100, 100));
      }
      GuardedImage<T> a(w, h, kCh), b(w, h, kCh);
      const Window win{kw, kh, (kw - 1) >> 1, (kh - 1) >> 1};
      std::vector<float> K(n);
      for (auto& v : K) v = static_cast<float>(rng.Real(-1.5, 1.5));
      const KernelView<float> kv = rep ? KernelView<float>{K.data(), 1} : ReversedView(K.data(), n);
      if constexpr (std::is_same_v<T, float>) {
        Float32Rows<kCh, tpx::Isa::kScalar>(world.Region(), world.Step(), a.Data(), a.Step(), w, h, win, K.data());
        Float32Rows<kCh, tpx::Isa::kAvx>(world.Region(), world.Step(), b.Data(), b.Step(), w, h, win, K.data());
      } else {
        const FloatRowParams p{win, kv, static_cast<float>(rng.Int(-3, 3)), rng.Int(0, 2)};
        FloatKindRows<T, kCh, tpx::Isa::kScalar>(world.Region(), world.Step(), a.Data(), a.Step(), w, h, p);
        FloatKindRows<T, kCh, tpx::Isa::kAvx>(world.Region(), world.Step(), b.Data(), b.Step(), w, h, p);
      }
      ASSERT_TRUE(tpxtest::SameSamples(a, b)) << "float kw=" << kw << " kh=" << kh << " w=" << w << " h=" << h;
      ASSERT_TRUE(b.GuardsIntact());
      if constexpr (!std::is_same_v<T, float> && !std::is_same_v<T, Tpx16u>) {
        std::vector<Tpx16s> KI(n);
        for (auto& v : KI) v = static_cast<Tpx16s>(rng.Int(-40, 40));
        const int mode = rng.Int(0, 2) | (rng.Chance(0.5) ? 16 : 0);
        ASSERT_GE(tpxiFilterBorderInit_16s(KI.data(), {kw, kh}, rng.Chance(0.5) ? 16 : 5, kDataType<T>, kCh, mode, block), 0);
        if (SpecAt(block)->kind > 1) continue;
        const IntRowParams p = ParamsOf(block, kw, kh);
        IntRows<T, kCh, tpx::Isa::kScalar>(world.Region(), world.Step(), a.Data(), a.Step(), w, h, p);
        IntRows<T, kCh, tpx::Isa::kAvx>(world.Region(), world.Step(), b.Data(), b.Step(), w, h, p);
        ASSERT_TRUE(tpxtest::SameSamples(a, b)) << "int kw=" << kw << " kh=" << kh << " w=" << w << " h=" << h;
        ASSERT_TRUE(b.GuardsIntact());
      }
    }
  }
}

TEST(FilterRing, VectorRowsEqualScalarRowsAcrossTilesAndRingLimits) {
  Rng rng(404);
  RingTwins<Tpx8u, 1>(rng); RingTwins<Tpx8u, 3>(rng); RingTwins<Tpx8u, 4>(rng);
  RingTwins<Tpx16u, 1>(rng); RingTwins<Tpx16s, 1>(rng); RingTwins<Tpx16s, 3>(rng);
  RingTwins<float, 1>(rng); RingTwins<float, 4>(rng);
}

}  // namespace
