// BlockMinMax: every member against a per-block scan over grids with partial blocks, blocks
// wider than a chunk, the 16 by 16 kernel, the null-array asymmetry, guard bands and the
// check order; the vertical and fold kernels against their twins.
#include <algorithm>
#include <limits>

#include "stats/block_minmax_rows.h"
#include "stats/members.h"
#include "tests/stats/reductions_support.h"

namespace tpxstats {
namespace {

using namespace tpx::stats;
using tpx::Isa;

template <class T>
void BlockTwins(Rng& rng) {
  constexpr int kN = VecOf<T>::kN;
  for (int n = 1; n <= 3 * kN + 3; ++n) {
    GuardedImage<T> img(n, 3, 1, 0, n % 3);
    tpxtest::FillRandom(img, rng, 0.4);  // NaN and zeros of both signs among floats
    std::vector<T> s1(img.Row(0), img.Row(0) + n), s2 = s1, v1 = s1, v2 = s1;
    VerticalStep<Isa::kScalar, T, true, true>(img.Row(1), n, s1.data(), s2.data());
    VerticalStep<Isa::kAvx, T, true, true>(img.Row(1), n, v1.data(), v2.data());
    ASSERT_EQ(0, std::memcmp(s1.data(), v1.data(), n * sizeof(T)));
    ASSERT_EQ(0, std::memcmp(s2.data(), v2.data(), n * sizeof(T)));
    const T a = SegmentFold<Isa::kScalar, MinLanes<T>>(img.Row(2), n), b = SegmentFold<Isa::kAvx, MinLanes<T>>(img.Row(2), n);
    const T c = SegmentFold<Isa::kScalar, MaxLanes<T>>(img.Row(2), n), d = SegmentFold<Isa::kAvx, MaxLanes<T>>(img.Row(2), n);
    ASSERT_TRUE(std::memcmp(&a, &b, sizeof(T)) == 0 && std::memcmp(&c, &d, sizeof(T)) == 0) << "n=" << n;
  }
}

TEST(BlockKernels, VerticalAndFoldEqualTheirTwinBitForBit) {
  Rng rng(21);
  BlockTwins<Tpx8u>(rng), BlockTwins<Tpx16u>(rng), BlockTwins<Tpx16s>(rng), BlockTwins<Tpx32f>(rng);
}

// One grid, all three modes (both arrays, minima only, maxima only), globals given or not.
template <class T, class F>
void CheckGrid(F f, Rng& rng, int w, int h, int bw, int bh, int pad, int mis) {
  GuardedImage<T> src(w, h, 1, pad, mis);
  FillFinite(src, rng);
  const int bx = (w + bw - 1) / bw, by = (h + bh - 1) / bh;
  std::vector<T> refMin, refMax;
  for (int j = 0; j < by; ++j)
    for (int i = 0; i < bx; ++i) {
      T lo = src.At(i * bw, j * bh), hi = lo;
      for (int y = j * bh; y < std::min(h, (j + 1) * bh); ++y)
        for (int x = i * bw; x < std::min(w, (i + 1) * bw); ++x) lo = std::min(lo, src.At(x, y)), hi = std::max(hi, src.At(x, y));
      refMin.push_back(lo);
      refMax.push_back(hi);
    }
  for (int mode = 0; mode < 3; ++mode) {
    const bool wantMin = mode != 2, wantMax = mode != 1;
    GuardedImage<T> dMin(bx, by, 1, 2), dMax(bx, by, 1, 1);
    Guarded<T> gMin(1), gMax(1);
    ASSERT_EQ(tpxOk, f(src.Data(), src.Step(), src.Size(), wantMin ? dMin.Data() : nullptr, dMin.Step(),
                       wantMax ? dMax.Data() : nullptr, dMax.Step(), TpxSize{bw, bh}, gMin.get(),
                       mode == 0 ? nullptr : gMax.get()));
    ASSERT_TRUE(dMin.GuardsIntact() && dMax.GuardsIntact() && gMin.Intact(1) && gMax.Intact(mode == 0 ? 0 : 1));
    for (int j = 0; j < by; ++j)
      for (int i = 0; i < bx; ++i) {
        if (wantMin) ASSERT_EQ(dMin.At(i, j), refMin[j * bx + i]) << w << "x" << h << " / " << bw << "x" << bh;
        if (wantMax) ASSERT_EQ(dMax.At(i, j), refMax[j * bx + i]) << w << "x" << h << " / " << bw << "x" << bh;
      }
    // The global result follows its array; without the array it is the first sample.
    ASSERT_EQ(gMin[0], wantMin ? *std::min_element(refMin.begin(), refMin.end()) : src.At(0, 0));
    if (mode) ASSERT_EQ(gMax[0], wantMax ? *std::max_element(refMax.begin(), refMax.end()) : src.At(0, 0));
  }
}

template <class T, class F>
void BlockMember(F f) {
  Rng rng(22);
  for (const auto& s : tpxtest::Shapes(16, {97}))
    for (TpxSize b : {TpxSize{1, 1}, TpxSize{16, 16}, TpxSize{3, 5}, TpxSize{16, 2}, TpxSize{33, 1}, TpxSize{200, 9}})
      CheckGrid<T>(f, rng, s.width, s.height, b.width, b.height, s.padSamples, s.misalign);
  CheckGrid<T>(f, rng, 17, 40, 16, 16, 0, 0);   // two block columns, the second one sample wide
  CheckGrid<T>(f, rng, 5000, 3, 2500, 2, 5, 1);  // blocks wider than a chunk
  CheckGrid<T>(f, rng, 4100, 2, 7, 3, 0, 0);     // chunks that end inside the grid
}

TEST(BlockMinMaxExports, EveryMemberMatchesAPerBlockScan) {
#define X(t) BlockMember<Tpx##t>(tpxiBlockMinMax_##t##_C1R);
  TPX_BLOCK_MINMAX_MEMBERS(X)
#undef X
}

// Pointers (source; both arrays null), then every extent, then the source step against the
// row, then each given array's step against bx samples. Nothing is written on failure.
TEST(BlockMinMaxExports, CheckOrder) {
  Tpx16s src[64] = {}, mn[8], mx[8], g = 7;
  const TpxSize sz{17, 2}, b16{16, 16};
  EXPECT_EQ(tpxErrNullPtr, tpxiBlockMinMax_16s_C1R(nullptr, 34, TpxSize{0, 0}, mn, 4, mx, 4, b16, &g, &g));
  EXPECT_EQ(tpxErrNullPtr, tpxiBlockMinMax_16s_C1R(src, 0, TpxSize{0, 0}, nullptr, 4, nullptr, 4, b16, &g, &g));
  EXPECT_EQ(tpxErrSize, tpxiBlockMinMax_16s_C1R(src, 0, sz, mn, 0, mx, 0, TpxSize{16, 0}, &g, &g));
  EXPECT_EQ(tpxErrStep, tpxiBlockMinMax_16s_C1R(src, 33, sz, mn, 0, mx, 0, b16, &g, &g));
  EXPECT_EQ(tpxErrStep, tpxiBlockMinMax_16s_C1R(src, 34, sz, mn, 3, mx, 4, b16, &g, &g));
  EXPECT_EQ(tpxErrStep, tpxiBlockMinMax_16s_C1R(src, 34, sz, mn, 4, mx, 3, b16, &g, &g));
  EXPECT_EQ(7, g);
  EXPECT_EQ(tpxOk, tpxiBlockMinMax_16s_C1R(src, 34, sz, nullptr, -1, mx, 4, b16, &g, nullptr));
  EXPECT_EQ(tpxOk, tpxiBlockMinMax_16s_C1R(src, 34, sz, mn, 4, nullptr, 0, b16, nullptr, nullptr));
}

}  // namespace
}  // namespace tpxstats
