// Rules of the general filter beside the model: the route of each integer call and its
// rounding, the scalar twins, Init and SetMode records, size formulas and check orders, the
// older 64f convolution, and filter2D as an independent oracle for 32f.
#include <gtest/gtest.h>

#include <cfenv>
#include <limits>
#include <vector>
#ifdef TPX_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

#include "filter/filter_64f.h"
#include "filter/filter_border.h"
#include "filter/filter_rows.h"
#include "filter/filter_spec.h"
#include "filter_model.h"

namespace {

using namespace filtertest;
using namespace tpx::filter;

// ---- Routes of the integer rows --------------------------------------------------------------
// One 3x3 kernel whose centre alone is non-zero turns each sample into a chosen accumulator:
// a = centre * x. Runs with every side in memory, so one call of the row routine covers the
// region and its width picks the route.
template <class T, int kCh>
std::vector<T> RunCentre(int centre, int divisor, int mode, int hint, int offset, int w, const std::vector<T>& xs) {
  const TpxSize k{3, 3}, roi{w, 1};
  World<T> world(w, 1, 2, kCh, 0, 0);
  for (int x = 0; x < w; ++x)
    for (int c = 0; c < kCh; ++c) world.img.At(x + 2, 2, c) = xs[(x * kCh + c) % xs.size()];
  Prepared p;
  EXPECT_EQ(tpxOk, p.Size(k, roi, kDataType<T>, 7, kCh));
  std::vector<Tpx16s> K(9, 0);
  K[4] = static_cast<Tpx16s>(centre);
  EXPECT_GE(tpxiFilterBorderInit_16s(K.data(), k, divisor, kDataType<T>, kCh, mode, p.Spec()), 0);
  if (hint || offset) EXPECT_EQ(tpxOk, tpxiFilterBorderSetMode(hint, offset, p.Spec()));
  GuardedImage<T> dst(w, 1, kCh);
  EXPECT_EQ(tpxOk, (Run<T, kCh>(world.Region(), world.Step(), dst.Data(), dst.Step(), roi, 240, nullptr, p.Spec(), p.Buf())));
  EXPECT_TRUE(dst.GuardsIntact());
  return dst.Samples();
}

TEST(FilterRoutes, ZeroModePowerOfTwoRoundsHalfEvenOnFastRowsAndTruncatesOnScalarRows) {
  // a = x, divisor 4: x = 2, 6, 10 are ties. Fast rows (width 16) round half to even, the
  // scalar rows (width 8) truncate.
  const std::vector<Tpx8u> xs = {2, 6, 10, 3, 5, 7, 1, 0};
  const auto fast = RunCentre<Tpx8u, 1>(1, 4, 0, 0, 0, 16, xs);
  const auto slow = RunCentre<Tpx8u, 1>(1, 4, 0, 0, 0, 8, xs);
  const int fastWant[] = {0, 2, 2, 1, 1, 2, 0, 0}, slowWant[] = {0, 1, 2, 0, 1, 1, 0, 0};
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(fastWant[i], fast[i]) << i;
    EXPECT_EQ(slowWant[i], slow[i]) << i;
  }
}

TEST(FilterRoutes, PairTableValidity) {
  // A coefficient of 32767 leaves the pair table unused: the C1 2D row takes the scalar route
  // even on a wide region, so mode 0 with divisor 2 truncates there.
  alignas(64) unsigned char block[4096];
  std::vector<Tpx16s> K(9, 0);
  K[4] = 1;
  K[0] = 32767;
  ASSERT_EQ(tpxOk, tpxiFilterBorderInit_16s(K.data(), {3, 3}, 2, 1, 1, 0, block));
  EXPECT_EQ(0u, SpecAt(block)->pairTableValid);
  K[0] = -32768;
  ASSERT_EQ(tpxOk, tpxiFilterBorderInit_16s(K.data(), {3, 3}, 2, 1, 1, 0, block));
  EXPECT_EQ(0u, SpecAt(block)->pairTableValid);
  K[0] = 32766;
  ASSERT_EQ(tpxOk, tpxiFilterBorderInit_16s(K.data(), {3, 3}, 2, 1, 1, 0, block));
  EXPECT_EQ(1u, SpecAt(block)->pairTableValid);
  // Layout: row by row in the caller's order, (a, b) x4, odd last coefficient with 0.
  const int user[6] = {1, 2, 3, -4, 5, -6};
  std::vector<Tpx16s> K2(user, user + 6);
  ASSERT_EQ(tpxOk, tpxiFilterBorderInit_16s(K2.data(), {3, 2}, 1, 7, 1, 1, block));
  const FilterBorderSpec* s = SpecAt(block);
  EXPECT_EQ(1u, s->kind);
  const Tpx16s* t = reinterpret_cast<const Tpx16s*>(reinterpret_cast<const unsigned char*>(s) + TableOffset(s, 2));
  const int want[4][2] = {{1, 2}, {3, 0}, {-4, 5}, {-6, 0}};
  for (int e = 0; e < 4; ++e)
    for (int q = 0; q < 4; ++q) {
      EXPECT_EQ(want[e][0], t[e * 8 + 2 * q]);
      EXPECT_EQ(want[e][1], t[e * 8 + 2 * q + 1]);
      EXPECT_EQ(want[e][1], t[16 * 2 + e * 8 + 2 * q]);  // 16s: swapped block after ((3>>1)+1)*8*2
      EXPECT_EQ(want[e][0], t[16 * 2 + e * 8 + 2 * q + 1]);
    }
  const Tpx16s* rev = reinterpret_cast<const Tpx16s*>(KernelArea(s));
  for (int i = 0; i < 6; ++i) EXPECT_EQ(user[5 - i], rev[i]);
}

// Accurate and plain finalisers and the scalar table, on sums that sweep every tie.
TEST(FilterRoutes, FinalisersAgainstTheirRules) {
  std::vector<Tpx8u> xs(256);
  for (int i = 0; i < 256; ++i) xs[i] = static_cast<Tpx8u>(i);
  for (int divisor : {3, 6, 10, -4, 8}) {
    for (int mode : {0, 1, 2}) {
      for (int accurate : {0, 1}) {
        for (int w : {8, 16}) {  // scalar route, fast route
          const auto got = RunCentre<Tpx8u, 1>(1, divisor, mode | (accurate ? 16 : 0), 0, 0, w, xs);
          for (int i = 0; i < w; ++i) {
            const int a = xs[i];
            const bool fast = w >= 16;
            const bool pow2 = divisor == 8;
            long long r;
            if (!fast) {  // the scalar table: exact rounding of a / d, clamped
              r = RoundExact(static_cast<long double>(a) / divisor, mode);
              if (pow2 && mode == 2) r = (a + 4) >> 3;
            } else if (!accurate && mode != 2) {  // plain finaliser
              r = pow2 ? RoundExact(a / 8.0L, 1) : RoundExact(static_cast<long double>(a) / divisor, mode);
            } else if (pow2) {
              r = mode == 1 ? RoundExact(a / 8.0L, 1) : mode == 2 ? (a + 4) >> 3 : a >> 3;
            } else {  // accurate: exact half rules for these small sums
              r = mode == 2 ? static_cast<long long>(std::floor(static_cast<long double>(a) / divisor + 0.5L))
                            : RoundExact(static_cast<long double>(a) / divisor, mode);
              // The even-divisor correction compares with q*d + d/2: written for positive
              // divisors, with -4 it lifts the sums 0..3 (q = 0, bound -2 or -3) to 1.
              if (divisor < 0 && mode != 0) r = a < 4 ? 1 : 0;
            }
            EXPECT_EQ(Saturate<Tpx8u>(r), got[i]) << "d=" << divisor << " mode=" << mode << " acc=" << accurate
                                                   << " w=" << w << " a=" << a;
          }
        }
      }
    }
  }
}

TEST(FilterRoutes, NearRouteOfC4AddsTheOffsetAfterScaling) {
  // C4, mode 1, valid table: rint(offsetF + scale * a) with offsetF = offset * divisor; the
  // C3 rows (scalar route) add the offset before the divide.
  const std::vector<Tpx8u> xs = {10, 11, 12, 13};
  const auto c4 = RunCentre<Tpx8u, 4>(1, 2, 1, 1, 3, 4, xs);
  const auto c3 = RunCentre<Tpx8u, 3>(1, 2, 1, 1, 3, 4, xs);
  // offsetF = 3 * 2 = 6: C4 gives rint(6 + a / 2), ties to even; C3 gives (a + 6) / 2 by its table.
  const int c4Want[] = {11, 12, 12, 12}, c3Want[] = {8, 8, 9, 10};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(c4Want[i], c4[i]);
    EXPECT_EQ(c3Want[i], c3[i]);
  }
}

TEST(FilterRoutes, ScalarTableOf16sKeepsItsSign) {
  const std::vector<Tpx16s> xs = {-5, -3, -1, 1, 3, 5, -32768, 32767};
  const auto got = RunCentre<Tpx16s, 1>(1, 2, 1, 0, 0, 8, xs);  // scalar route, half to even
  const int want[] = {-2, -2, 0, 0, 2, 2, -16384, 16384};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(want[i], got[i]) << i;
}

// ---- Scalar twins --------------------------------------------------------------------------
template <class T, int kCh>
void IntTwins(Rng& rng) {
  for (int trial = 0; trial < 60; ++trial) {
    const int kw = rng.Int(1, 7), kh = rng.Int(1, 5), n = kw * kh;
    std::vector<Tpx16s> K(n);
    for (auto& v : K) v = static_cast<Tpx16s>(rng.Int(-3000, 3000));
    const int divs[] = {1, 2, 16, 3, 7, -6, 1000};
    const int divisor = divs[rng.Int(0, 6)];
    const int mode = rng.Int(0, 2) | (rng.Chance(0.5) ? 16 : 0);
    alignas(64) static unsigned char block[1 << 16];
    ASSERT_GE(tpxiFilterBorderInit_16s(K.data(), {kw, kh}, divisor, kDataType<T>, kCh, mode, block), 0);
    if (rng.Chance(0.5)) tpxiFilterBorderSetMode(rng.Int(0, 2), SpecAt(block)->kind == 1 ? 0 : rng.Int(-20, 20), block);
    const FilterBorderSpec* s = SpecAt(block);
    if (s->kind > 1) continue;
    IntRowParams p{};
    p.win = {kw, kh, (kw - 1) >> 1, (kh - 1) >> 1};
    p.rev = reinterpret_cast<const Tpx16s*>(KernelArea(s));
    p.pairs = s->pairTableValid ? reinterpret_cast<const __m128i*>(reinterpret_cast<const unsigned char*>(s) + TableOffset(s, 2)) : nullptr;
    p.roundMode = s->roundMode; p.divKind = s->divKind; p.shift = s->shift; p.half = s->half;
    p.offset = s->offset; p.divisor = s->divisor; p.scale = s->scale; p.offsetF = s->offsetF; p.divisorD = s->divisorD;
    const int w = rng.Int(1, 70), h = rng.Int(1, 3);
    World<T> world(w, h, 8, kCh, rng.Int(0, 3), rng.Int(0, 2));
    tpxtest::FillRandom(world.img, rng, 0.2);
    GuardedImage<T> a(w, h, kCh), b(w, h, kCh);
    IntRows<T, kCh, tpx::Isa::kScalar>(world.Region(), world.Step(), a.Data(), a.Step(), w, h, p);
    IntRows<T, kCh, tpx::Isa::kAvx>(world.Region(), world.Step(), b.Data(), b.Step(), w, h, p);
    ASSERT_TRUE(tpxtest::SameSamples(a, b)) << "kw=" << kw << " kh=" << kh << " d=" << divisor << " mode=" << mode << " w=" << w;
    ASSERT_TRUE(b.GuardsIntact());
  }
}

template <class T, int kCh>
void FloatTwins(Rng& rng) {
  for (int trial = 0; trial < 40; ++trial) {
    const int kw = rng.Int(1, 7), kh = rng.Int(1, 5), n = kw * kh;
    std::vector<float> K(n);
    for (auto& v : K) v = static_cast<float>(rng.Real(-1.5, 1.5));
    const Window win{kw, kh, (kw - 1) >> 1, (kh - 1) >> 1};
    const KernelView<float> kv{K.data(), 1};
    const int w = rng.Int(1, 90), h = rng.Int(1, 3);
    World<T> world(w, h, 8, kCh, rng.Int(0, 3), rng.Int(0, 2));
    tpxtest::FillRandom(world.img, rng, 0.2);
    if constexpr (std::is_same_v<T, float>) {
      // Zero taps and a few infinities and NaNs: every product is taken, so 0 * inf reaches
      // the sum as NaN on both twins. One NaN pattern only (the one 0 * inf makes), so that
      // the payload of a sum of two NaNs does not hang on the operand order.
      const float specials[] = {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                                -std::numeric_limits<float>::quiet_NaN(), -0.0f};
      for (auto& v : K)
        if (rng.Chance(0.2)) v = rng.Chance(0.5) ? 0.0f : -0.0f;
      for (int y = 0; y < world.img.Height(); ++y)
        for (int i = 0; i < world.img.RowSamples(); ++i)
          world.img.Row(y)[i] = rng.Chance(0.01) ? specials[rng.Int(0, 3)] : static_cast<float>(rng.Real(-100, 100));
    }
    GuardedImage<T> a(w, h, kCh), b(w, h, kCh);
    if constexpr (std::is_same_v<T, float>) {
      Float32Rows<kCh, tpx::Isa::kScalar>(world.Region(), world.Step(), a.Data(), a.Step(), w, h, win, K.data());
      Float32Rows<kCh, tpx::Isa::kAvx>(world.Region(), world.Step(), b.Data(), b.Step(), w, h, win, K.data());
    } else {
      const FloatRowParams p{win, kv, static_cast<float>(rng.Int(-3, 3)), rng.Int(0, 2)};
      FloatKindRows<T, kCh, tpx::Isa::kScalar>(world.Region(), world.Step(), a.Data(), a.Step(), w, h, p);
      FloatKindRows<T, kCh, tpx::Isa::kAvx>(world.Region(), world.Step(), b.Data(), b.Step(), w, h, p);
    }
    ASSERT_TRUE(tpxtest::SameSamples(a, b)) << "kw=" << kw << " kh=" << kh << " w=" << w;
    ASSERT_TRUE(b.GuardsIntact());
  }
}

TEST(FilterTwins, ZeroTapsOverInfinityGiveNaN) {
  // A 3x3 kernel of zeros over ones with one infinity: NaN where the window covers it, +0
  // (the sum of +0 products) elsewhere, on both twins.
  const int w = 20, h = 5, x0 = 9, y0 = 2;
  World<float> world(w, h, 2, 1, 0, 0);
  for (int y = 0; y < world.img.Height(); ++y)
    for (int i = 0; i < world.img.RowSamples(); ++i) world.img.Row(y)[i] = 1.0f;
  world.img.At(x0 + 2, y0 + 2) = std::numeric_limits<float>::infinity();
  const std::vector<float> K(9, 0.0f);
  for (int twin = 0; twin < 2; ++twin) {
    GuardedImage<float> d(w, h);
    if (twin) Float32Rows<1, tpx::Isa::kAvx>(world.Region(), world.Step(), d.Data(), d.Step(), w, h, {3, 3, 1, 1}, K.data());
    else Float32Rows<1, tpx::Isa::kScalar>(world.Region(), world.Step(), d.Data(), d.Step(), w, h, {3, 3, 1, 1}, K.data());
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) {
        const bool covered = std::abs(x - x0) <= 1 && std::abs(y - y0) <= 1;
        EXPECT_EQ(covered, std::isnan(d.At(x, y))) << twin << " " << x << "," << y;
        if (!covered) EXPECT_FALSE(std::signbit(d.At(x, y)));
      }
  }
}

TEST(FilterTwins, VectorRowsEqualScalarRows) {
  Rng rng(77);
  IntTwins<Tpx8u, 1>(rng); IntTwins<Tpx8u, 3>(rng); IntTwins<Tpx8u, 4>(rng);
  IntTwins<Tpx16s, 1>(rng); IntTwins<Tpx16s, 3>(rng); IntTwins<Tpx16s, 4>(rng);
  FloatTwins<Tpx8u, 1>(rng); FloatTwins<Tpx8u, 3>(rng); FloatTwins<Tpx8u, 4>(rng);
  FloatTwins<Tpx16u, 1>(rng); FloatTwins<Tpx16s, 3>(rng); FloatTwins<Tpx16s, 4>(rng);
  FloatTwins<float, 1>(rng); FloatTwins<float, 3>(rng); FloatTwins<float, 4>(rng);
  for (int trial = 0; trial < 40; ++trial) {
    const int kw = rng.Int(1, 13), kh = rng.Int(1, 4);
    std::vector<double> K(kw * kh);
    for (auto& v : K) v = rng.Real(-1, 1);
    const int w = rng.Int(1, 40), h = rng.Int(1, 3);
    const TpxPoint anchor{rng.Int(0, kw - 1), rng.Int(0, kh - 1)};
    World<double> world(w, h, 14, 1, rng.Int(0, 3), 0);
    tpxtest::FillRandom(world.img, rng, 0.0);
    GuardedImage<double> a(w, h), b(w, h), c(w, h);
    const TpxSize roi{w, h};
    Filter64fRows<tpx::Isa::kScalar>(world.Region(), world.Step(), a.Data(), a.Step(), roi, K.data(), kw, kh, anchor);
    Filter64fRows<tpx::Isa::kAvx>(world.Region(), world.Step(), b.Data(), b.Step(), roi, K.data(), kw, kh, anchor);
    ASSERT_TRUE(tpxtest::SameSamples(a, b));
    // The older filter is true convolution: K[i][j] meets src(x + ax - j, y + ay - i).
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) {
        long double want = 0;
        for (int i = 0; i < kh; ++i)
          for (int j = 0; j < kw; ++j) want += static_cast<long double>(K[i * kw + j]) * world.At(x + anchor.x - j, y + anchor.y - i, 0);
        ASSERT_NEAR(static_cast<double>(want), b.At(x, y), 1e-9 * (1 + std::abs(static_cast<double>(want))));
      }
  }
}

TEST(Filter64f, ColumnBlocks) {
  int t[4], n = 0;
  auto blocks = [&](int kw, int kh) { const int lead = Filter64fBlocks(kw, kh, t, &n); std::vector<int> v(lead / 4, 4); v.insert(v.end(), t, t + n); return v; };
  EXPECT_EQ(std::vector<int>({5}), blocks(5, 3));
  EXPECT_EQ(std::vector<int>({3, 3}), blocks(6, 3));
  EXPECT_EQ(std::vector<int>({4, 3}), blocks(7, 3));
  EXPECT_EQ(std::vector<int>({4, 4}), blocks(8, 3));
  EXPECT_EQ(std::vector<int>({4, 5}), blocks(9, 3));
  EXPECT_EQ(std::vector<int>({4, 3, 3}), blocks(10, 3));
  EXPECT_EQ(std::vector<int>({9}), blocks(9, 1));
  int size = -1;
  EXPECT_EQ(tpxOk, tpxiFilterGetBufSize_64f_C1R({1, 3}, 16, &size));
  EXPECT_EQ(96, size);
  EXPECT_EQ(tpxOk, tpxiFilterGetBufSize_64f_C1R({1, 3}, 15, &size));
  EXPECT_EQ(0, size);
  EXPECT_EQ(tpxErrNullPtr, tpxiFilterGetBufSize_64f_C1R({0, 3}, 15, nullptr));
  EXPECT_EQ(tpxErrSize, tpxiFilterGetBufSize_64f_C1R({0, 3}, 15, &size));
  double src[64] = {}, dst[8], k[4] = {1, 2, 3, 4};
  EXPECT_EQ(tpxErrNullPtr, tpxiFilter_64f_C1R(src, 0, dst, 0, {0, 1}, nullptr, {2, 2}, {0, 0}, nullptr));
  EXPECT_EQ(tpxErrSize, tpxiFilter_64f_C1R(src, 0, dst, 0, {0, 1}, k, {2, 2}, {0, 0}, nullptr));
  EXPECT_EQ(tpxErrStep, tpxiFilter_64f_C1R(src, 39, dst, 32, {4, 1}, k, {2, 2}, {0, 0}, nullptr));  // needs 40
  EXPECT_EQ(tpxErrStep, tpxiFilter_64f_C1R(src, 40, dst, 31, {4, 1}, k, {2, 2}, {0, 0}, nullptr));
  EXPECT_EQ(tpxOk, tpxiFilter_64f_C1R(src + 9, 40, dst, 32, {4, 1}, k, {2, 2}, {1, 1}, nullptr));
}

// ---- Init, SetMode --------------------------------------------------------------------------
TEST(FilterInit, DivisorRecordsAndPaths) {
  alignas(64) unsigned char block[4096];
  const Tpx16s K[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  ASSERT_EQ(tpxOk, tpxiFilterBorderInit_16s(K, {3, 3}, 16, 1, 1, 1, block + 1));
  const FilterBorderSpec* s = SpecAt(block + 1);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(s) % 64, 0u);
  EXPECT_EQ(1u, s->divKind); EXPECT_EQ(4u, s->shift); EXPECT_EQ(8u, s->half); EXPECT_EQ(15u, s->shiftMask);
  EXPECT_EQ(0.0625f, s->scale); EXPECT_EQ(0.0625, s->divisorD); EXPECT_EQ(16.0f, s->divisorF);
  ASSERT_EQ(tpxOk, tpxiFilterBorderInit_16s(K, {3, 3}, -4, 1, 1, 1, block + 1));
  EXPECT_EQ(2u, s->divKind); EXPECT_EQ(-0.25f, s->scale); EXPECT_EQ(-4.0, s->divisorD);
  ASSERT_EQ(tpxOk, tpxiFilterBorderInit_16s(K, {3, 3}, 1, 1, 1, 1, block + 1));
  EXPECT_EQ(0u, s->divKind); EXPECT_EQ(0u, s->kind);
  // 16s with three channels, or a thin kernel, takes the float path: kernel / divisor as floats.
  ASSERT_EQ(tpxOk, tpxiFilterBorderInit_16s(K, {3, 3}, 4, 7, 3, 1, block + 1));
  EXPECT_EQ(4u, s->kind);
  const float* kf = reinterpret_cast<const float*>(KernelArea(s));
  for (int i = 0; i < 9; ++i) EXPECT_EQ(static_cast<float>(K[8 - i]) / 4.0f, kf[i]);
  ASSERT_EQ(tpxOk, tpxiFilterBorderInit_16s(K, {3, 1}, 4, 7, 1, 1, block + 1));
  EXPECT_EQ(4u, s->kind);
  ASSERT_EQ(tpxOk, tpxiFilterBorderInit_16s(K, {3, 3}, 4, 5, 1, 1, block + 1));
  EXPECT_EQ(5u, s->kind);
  // Warnings of the flag: kept by 8u and 16s C1 integer rows, dropped elsewhere.
  EXPECT_EQ(tpxOk, tpxiFilterBorderInit_16s(K, {3, 3}, 4, 1, 3, 17, block + 1));
  EXPECT_EQ(17u, s->roundMode);
  EXPECT_EQ(tpxOk, tpxiFilterBorderInit_16s(K, {3, 3}, 4, 7, 1, 17, block + 1));
  EXPECT_EQ(17u, s->roundMode);
  EXPECT_EQ(tpxWarnRoundFlagDropped, tpxiFilterBorderInit_16s(K, {3, 3}, 4, 7, 3, 17, block + 1));
  EXPECT_EQ(1u, s->roundMode);
  EXPECT_EQ(tpxWarnRoundFlagDropped, tpxiFilterBorderInit_16s(K, {3, 3}, 4, 7, 2, 17, block + 1));
  EXPECT_EQ(1u, s->roundMode);
  const float KF[4] = {1, 2, 3, 4};
  EXPECT_EQ(tpxWarnRoundFlagDropped, tpxiFilterBorderInit_32f(KF, {2, 2}, 13, 1, 18, block + 1));
  EXPECT_EQ(2u, s->roundMode); EXPECT_EQ(6u, s->kind);
  EXPECT_EQ(4.0f, reinterpret_cast<const float*>(KernelArea(s))[0]);
}

TEST(FilterInit, SetModeByKind) {
  alignas(64) unsigned char block[4096];
  const Tpx16s K[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  const float KF[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  const double KD[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  FilterBorderSpec* s = SpecAt(block);
  EXPECT_EQ(tpxErrNullPtr, tpxiFilterBorderSetMode(2, 0, nullptr));
  tpxiFilterBorderInit_16s(K, {3, 3}, 3, 1, 1, 1, block);
  EXPECT_EQ(tpxOk, tpxiFilterBorderSetMode(2, 5, block));
  EXPECT_EQ(17u, s->roundMode); EXPECT_EQ(5, s->offset); EXPECT_EQ(15.0f, s->offsetF); EXPECT_EQ(2, s->hint);
  EXPECT_EQ(tpxOk, tpxiFilterBorderSetMode(1, 0, block));
  EXPECT_EQ(1u, s->roundMode);
  tpxiFilterBorderInit_16s(K, {3, 3}, 3, 7, 1, 1, block);  // kind 1, one channel
  EXPECT_EQ(tpxErrNotSupportedMode, tpxiFilterBorderSetMode(2, 1, block));
  EXPECT_EQ(1u, s->roundMode);
  EXPECT_EQ(tpxOk, tpxiFilterBorderSetMode(2, 0, block));
  EXPECT_EQ(17u, s->roundMode);
  tpxiFilterBorderInit_16s(K, {3, 3}, 3, 7, 2, 1, block);  // kind 1, two channels: no flag
  EXPECT_EQ(tpxOk, tpxiFilterBorderSetMode(2, 0, block));
  EXPECT_EQ(1u, s->roundMode);
  tpxiFilterBorderInit_32f(KF, {3, 3}, 13, 1, 1, block);
  EXPECT_EQ(tpxErrNotSupportedMode, tpxiFilterBorderSetMode(0, 1, block));
  EXPECT_EQ(0, s->offset);
  tpxiFilterBorderInit_32f(KF, {3, 3}, 1, 1, 1, block);  // kind 3 takes an offset as it is
  EXPECT_EQ(tpxOk, tpxiFilterBorderSetMode(2, 7, block));
  EXPECT_EQ(1u, s->roundMode); EXPECT_EQ(7.0f, s->offsetF);
  tpxiFilterBorderInit_64f(KD, {3, 3}, 19, 1, 17, block);
  s->hint = 9;
  EXPECT_EQ(tpxOk, tpxiFilterBorderSetMode(2, 0, block));
  EXPECT_EQ(9, s->hint);  // nothing stored
  EXPECT_EQ(tpxErrNotSupportedMode, tpxiFilterBorderSetMode(2, 1, block));
}

TEST(FilterChecks, InitOrders) {
  alignas(64) unsigned char block[4096];
  const Tpx16s K[4] = {1, 1, 1, 1};
  EXPECT_EQ(tpxErrNullPtr, tpxiFilterBorderInit_16s(nullptr, {0, 2}, 0, 99, 9, 99, block));
  EXPECT_EQ(tpxErrSize, tpxiFilterBorderInit_16s(K, {0, 2}, 0, 99, 9, 99, block));
  EXPECT_EQ(tpxErrDataType, tpxiFilterBorderInit_16s(K, {2, 2}, 0, 13, 9, 99, block));
  EXPECT_EQ(tpxErrChannelCount, tpxiFilterBorderInit_16s(K, {2, 2}, 0, 1, 5, 99, block));
  EXPECT_EQ(tpxErrRoundMode, tpxiFilterBorderInit_16s(K, {2, 2}, 0, 1, 1, 3, block));
  EXPECT_EQ(tpxErrZeroDivisorArg, tpxiFilterBorderInit_16s(K, {2, 2}, 0, 1, 1, 18, block));
  // 16s with one channel and the flag skips the type and channel tests: they already hold.
  EXPECT_EQ(tpxErrZeroDivisorArg, tpxiFilterBorderInit_16s(K, {2, 2}, 0, 7, 1, 16, block));
  const float KF[4] = {1, 1, 1, 1};
  EXPECT_EQ(tpxErrDataType, tpxiFilterBorderInit_32f(KF, {2, 2}, 19, 9, 99, block));
  EXPECT_EQ(tpxErrChannelCount, tpxiFilterBorderInit_32f(KF, {2, 2}, 13, 0, 99, block));
  EXPECT_EQ(tpxErrRoundMode, tpxiFilterBorderInit_32f(KF, {2, 2}, 13, 2, -1, block));
  const double KD[4] = {1, 1, 1, 1};
  EXPECT_EQ(tpxErrDataType, tpxiFilterBorderInit_64f(KD, {2, 2}, 13, 2, 0, block));
  EXPECT_EQ(tpxErrChannelCount, tpxiFilterBorderInit_64f(KD, {2, 2}, 19, 2, 0, block));
  EXPECT_EQ(tpxErrRoundMode, tpxiFilterBorderInit_64f(KD, {2, 2}, 19, 1, 0, block));
  EXPECT_EQ(tpxOk, tpxiFilterBorderInit_64f(KD, {2, 2}, 19, 1, 17, block));
}

TEST(FilterChecks, RunOrder) {
  alignas(64) unsigned char spec[4096];
  Tpx8u buf[4096], src[256] = {}, dst[256];
  const Tpx16s K[9] = {0, 0, 0, 0, 1, 0, 0, 0, 0};
  tpxiFilterBorderInit_16s(K, {3, 3}, 1, 1, 1, 1, spec);
  const TpxSize ok{4, 4}, empty{0, 4};
  EXPECT_EQ(tpxErrNullPtr, tpxiFilterBorder_8u_C1R(src, 16, dst, 16, empty, 999, nullptr, spec, nullptr));
  EXPECT_EQ(tpxErrNullPtr, tpxiFilterBorder_8u_C1R(src, 0, dst, 16, empty, 6, nullptr, spec, buf));
  EXPECT_EQ(tpxErrSize, tpxiFilterBorder_8u_C1R(src, 0, dst, 0, empty, 999, nullptr, spec, buf));
  EXPECT_EQ(tpxErrStep, tpxiFilterBorder_8u_C1R(src, 0, dst, 16, ok, 999, nullptr, spec, buf));
  EXPECT_EQ(tpxErrStep, tpxiFilterBorder_8u_C1R(src, 16, dst, 3, ok, 999, nullptr, spec, buf));
  // The destination step is compared with single samples: C4 of width 4 passes with 8 bytes.
  Tpx16u s16[512] = {}, d16[512];
  EXPECT_EQ(tpxErrBorder, tpxiFilterBorder_16u_C4R(s16, 64, d16, 8, ok, 256, nullptr, spec, buf));
  EXPECT_EQ(tpxErrStep, tpxiFilterBorder_16u_C4R(s16, 64, d16, 7, ok, 256, nullptr, spec, buf));
  for (int bt : {0, 2, 4, 5, 7, 0x12, 0x30, 0xF4, 256, -1})
    EXPECT_EQ(tpxErrBorder, tpxiFilterBorder_8u_C1R(src, 16, dst, 16, ok, bt, nullptr, spec, buf)) << bt;
  for (int bt : {1, 3, 240, 0xF1, 0x13, 0x86})  // the region stands inside src: sides may be read
    EXPECT_EQ(tpxOk, tpxiFilterBorder_8u_C1R(src + 40, 16, dst, 16, ok, bt, src, spec, buf)) << bt;
  // borderType 240 never reads the constant.
  EXPECT_EQ(tpxOk, tpxiFilterBorder_8u_C1R(src + 20, 16, dst, 16, {2, 2}, 240, nullptr, spec, buf));
}

// ---- Size formulas ----------------------------------------------------------------------------
int NoWide(unsigned long long) { return 0; }
int Wide(unsigned long long mask) { return mask == 0x8000000ULL; }

TEST(FilterSizes, WorkedValuesAndOrders) {
  int spec = -1, buf = -1;
  // 8u C1, 16-bit kernel 3x3 over 100x50: scratch max((3+1-1)*(3+100-1), (3-1+1)*(3-1+50)) = 306
  // bytes -> 352 with its slack; work ((((32&~15)*3)+100)*4+28)&~31 = 800 -> R = 960.
  // Spec: align64(9 << 1) + 191 + align64(4 * 3 * 80).
  ASSERT_EQ(tpxOk, FilterBorderGetSize({3, 3}, {100, 50}, 1, 7, 1, &spec, &buf, NoWide));
  EXPECT_EQ(64 + 191 + 960, spec);
  EXPECT_EQ(352 + 960 + 63, buf);
  // Region no larger than the kernel: the whole extended region. 32f C3 5x5 over 4x9:
  // (5+9-1)*(5+4-1) = 104 pixels * 4 * 3 = 1248 -> 1248 + 32; work R(25*16) = 576.
  ASSERT_EQ(tpxOk, FilterBorderGetSize({5, 5}, {4, 9}, 13, 13, 3, &spec, &buf, NoWide));
  EXPECT_EQ(128 + 191 + 2432, spec);
  EXPECT_EQ(1280 + 576 + 63, buf);
  // 8u with a float kernel: the 512-bit room where it is the larger. C4 kh 1 over W 1:
  // inner value 64, room 1 * ((9+3)>>2) * 64 = 192.
  ASSERT_EQ(tpxOk, FilterBorderGetSize({9, 1}, {1, 1}, 1, 13, 4, &spec, &buf, NoWide));
  const int plain = buf;
  ASSERT_EQ(tpxOk, FilterBorderGetSize({9, 1}, {1, 1}, 1, 13, 4, &spec, &buf, Wide));
  EXPECT_EQ(plain - 256 + 384, buf);
  ASSERT_EQ(tpxOk, FilterBorderGetSize({9, 1}, {1, 1}, 1, 7, 4, &spec, &buf, Wide));  // 16-bit kernel: no room
  const int wide16 = buf;
  ASSERT_EQ(tpxOk, FilterBorderGetSize({9, 1}, {1, 1}, 1, 7, 4, &spec, &buf, NoWide));
  EXPECT_EQ(wide16, buf);
  // 16s C3 takes the float kernel size whatever kernelType says.
  ASSERT_EQ(tpxOk, FilterBorderGetSize({3, 3}, {10, 10}, 7, 7, 3, &spec, &buf, NoWide));
  EXPECT_EQ(64 + 191 + 960, spec);
  // 64f: spec align64(kw*kh*8) + 191; buffer scratch + older-filter buffer + 126.
  ASSERT_EQ(tpxOk, FilterBorderGetSize({1, 3}, {16, 20}, 19, 19, 1, &spec, &buf, NoWide));
  EXPECT_EQ(64 + 191, spec);
  EXPECT_EQ(static_cast<int>(BorderBytes(1, 3, 16, 20, 8, 1)) + 96 + 126, buf);
  // Orders.
  EXPECT_EQ(tpxErrSize, FilterBorderGetSize({3, 0}, {1, 1}, 99, 99, 99, nullptr, nullptr, NoWide));
  EXPECT_EQ(tpxErrChannelCount, FilterBorderGetSize({3, 3}, {1, 1}, 19, 19, 2, nullptr, nullptr, NoWide));
  EXPECT_EQ(tpxErrNullPtr, FilterBorderGetSize({3, 3}, {1, 1}, 19, 19, 1, nullptr, &buf, NoWide));
  EXPECT_EQ(tpxErrDataType, FilterBorderGetSize({3, 3}, {1, 1}, 19, 13, 2, nullptr, nullptr, NoWide));
  EXPECT_EQ(tpxErrChannelCount, FilterBorderGetSize({3, 3}, {1, 1}, 1, 7, 5, nullptr, nullptr, NoWide));
  EXPECT_EQ(tpxErrDataType, FilterBorderGetSize({3, 3}, {1, 1}, 1, 11, 5, nullptr, nullptr, NoWide));
  EXPECT_EQ(tpxErrNullPtr, FilterBorderGetSize({3, 3}, {1, 1}, 1, 13, 2, &spec, nullptr, NoWide));
  EXPECT_EQ(tpxErrDataType, FilterBorderGetSize({3, 3}, {1, 1}, 1, 11, 2, &spec, nullptr, NoWide));
  EXPECT_EQ(tpxErrDataType, FilterBorderGetSize({3, 3}, {1, 1}, 1, 19, 2, &spec, &buf, NoWide));
  // Too large: the buffer count is zeroed. 16u, one extended region of 40002^2 samples.
  buf = 5;
  EXPECT_EQ(tpxErrExceededSize, FilterBorderGetSize({3, 40000}, {40000, 3}, 5, 13, 1, &spec, &buf, NoWide));
  EXPECT_EQ(0, buf);
}

TEST(FilterSizes, ScratchHoldsEveryStrip) {
  // The engine's largest strip is the bottom one (rows below the anchor plus kh - 1) or a side
  // one (columns right of it plus kw - 1), widened to two for mirror with a size of 2.
  for (int kw = 1; kw <= 9; ++kw)
    for (int kh = 1; kh <= 9; ++kh)
      for (int W : {1, kw, kw + 1, 40})
        for (int H : {1, kh, kh + 1, 33}) {
          const int by = kh == 2 ? 2 : kh - 1 - ((kh - 1) >> 1), rx = kw == 2 ? 2 : kw - 1 - ((kw - 1) >> 1);
          const bool small = W <= kw || H <= kh;
          const long long need = small ? 1LL * (W + kw - 1) * (H + kh - 1)
                                       : std::max(1LL * (kh - 1 + by) * (W + kw - 1), 1LL * (kw - 1 + rx) * (H + kh - 1));
          EXPECT_GE(static_cast<long long>(BorderBytes(kw, kh, W, H, 4, 3)), need * 12 + 32);
        }
}

#ifdef TPX_HAVE_OPENCV
// ---- filter2D as an independent oracle ---------------------------------------------------------
TEST(FilterOracle, Float32AgainstOpenCv) {
  Rng rng(99);
  const std::pair<int, int> borders[] = {{1, cv::BORDER_REPLICATE}, {3, cv::BORDER_REFLECT_101}, {6, cv::BORDER_CONSTANT}};
  for (TpxSize k : {TpxSize{3, 3}, TpxSize{5, 5}, TpxSize{7, 5}, TpxSize{4, 2}, TpxSize{11, 11}}) {
    for (auto [bt, cvb] : borders) {
      const int W = 61, H = 29;
      cv::Mat src(H, W, CV_32FC3), kernel(k.height, k.width, CV_32F), ref;
      cv::randu(src, -10, 10);
      cv::randu(kernel, -1, 1);
      const float value[3] = {1.5f, -2.f, 0.25f};
      cv::filter2D(src, ref, -1, kernel, cv::Point((k.width - 1) >> 1, (k.height - 1) >> 1), 0, cvb);
      if (bt == 6) {  // constant border of a 3-channel value
        cv::Mat padded;
        const int ax = (k.width - 1) >> 1, ay = (k.height - 1) >> 1;
        cv::copyMakeBorder(src, padded, ay, k.height - 1 - ay, ax, k.width - 1 - ax, cv::BORDER_CONSTANT,
                           cv::Scalar(value[0], value[1], value[2]));
        cv::filter2D(padded, ref, -1, kernel, cv::Point(ax, ay), 0, cv::BORDER_CONSTANT);
        ref = ref(cv::Rect(ax, ay, W, H)).clone();
      }
      Prepared p;
      ASSERT_EQ(tpxOk, p.Size(k, {W, H}, 13, 13, 3));
      ASSERT_EQ(tpxOk, tpxiFilterBorderInit_32f(kernel.ptr<float>(), k, 13, 3, 1, p.Spec()));
      cv::Mat dst(H, W, CV_32FC3);
      ASSERT_EQ(tpxOk, tpxiFilterBorder_32f_C3R(src.ptr<float>(), static_cast<int>(src.step), dst.ptr<float>(),
                                                static_cast<int>(dst.step), {W, H}, bt, value, p.Spec(), p.Buf()));
      EXPECT_LT(cv::norm(dst, ref, cv::NORM_INF), 1e-3) << "k=" << k.width << "x" << k.height << " bt=" << bt;
    }
  }
}
#endif

}  // namespace
