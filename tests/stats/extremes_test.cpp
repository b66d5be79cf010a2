// Min, Max, MinMax, MinIndx, MaxIndx: every member against a plain scan, OpenCV's minMaxLoc,
// the position rules (ties, NaN first), check orders, and the lane kernels against their twins.
#include <cmath>
#include <limits>

#include "stats/extremes_rows.h"
#include "stats/members.h"
#include "tests/stats/reductions_support.h"

namespace tpxstats {
namespace {

using namespace tpx::stats;
using tpx::Isa;

// ---- Kernel twins, on data full of NaN and zeros of both signs ----------------------------
template <class T, int kS>
void ExtremeTwins(Rng& rng) {
  constexpr int kBlock = ExtremeVecs(kS) * VecOf<T>::kN;
  for (int n = kS; n <= 3 * kBlock + 3 * kS; n += kS) {
    GuardedImage<T> img(n / kS, 3, kS, 0, n % 3);
    tpxtest::FillRandom(img, rng, 0.4);  // Extremes<T>(): NaN, +-0, infinities, limits
    T s[4], v[4], s2[4], v2[4];
    RowExtreme<Isa::kScalar, kS, MinLanes<T>>(img.Data(), n, s);
    RowExtreme<Isa::kAvx, kS, MinLanes<T>>(img.Data(), n, v);
    RowExtreme<Isa::kScalar, kS, MaxLanes<T>>(img.Data(), n, s2);
    RowExtreme<Isa::kAvx, kS, MaxLanes<T>>(img.Data(), n, v2);
    ImageExtremes<Isa::kScalar, T, kS, true, true> is;
    ImageExtremes<Isa::kAvx, T, kS, true, true> iv;
    for (int y = 0; y < 3; ++y) is.Row(img.Row(y), n), iv.Row(img.Row(y), n);
    T a[4], b[4], c[4], d[4];
    is.Fold(a, b);
    iv.Fold(c, d);
    for (int k = 0; k < kS; ++k)
      ASSERT_TRUE(std::memcmp(&s[k], &v[k], sizeof(T)) == 0 && std::memcmp(&s2[k], &v2[k], sizeof(T)) == 0 &&
                  std::memcmp(&a[k], &c[k], sizeof(T)) == 0 && std::memcmp(&b[k], &d[k], sizeof(T)) == 0)
          << "n=" << n << " class " << k;
  }
}

TEST(ExtremeKernels, RowAndImageLanesEqualTheirTwinBitForBit) {
  Rng rng(11);
  ExtremeTwins<Tpx8u, 1>(rng), ExtremeTwins<Tpx8u, 3>(rng), ExtremeTwins<Tpx8u, 4>(rng);
  ExtremeTwins<Tpx16u, 1>(rng), ExtremeTwins<Tpx16u, 3>(rng), ExtremeTwins<Tpx16u, 4>(rng);
  ExtremeTwins<Tpx16s, 1>(rng), ExtremeTwins<Tpx16s, 3>(rng), ExtremeTwins<Tpx16s, 4>(rng);
  ExtremeTwins<Tpx32f, 1>(rng), ExtremeTwins<Tpx32f, 3>(rng), ExtremeTwins<Tpx32f, 4>(rng);
}

// ---- Exports against a plain scan ----------------------------------------------------------
// Per channel: the extreme and its first position in row-major order.
template <class T>
struct Found {
  T v;
  int x, y;
};
template <class T, bool kMax>
Found<T> Scan(const GuardedImage<T>& img, int c) {
  Found<T> f{img.At(0, 0, c), 0, 0};
  for (int y = 0; y < img.Height(); ++y)
    for (int x = 0; x < img.Width(); ++x)
      if (kMax ? img.At(x, y, c) > f.v : img.At(x, y, c) < f.v) f = {img.At(x, y, c), x, y};
  return f;
}

template <class T, Layout L, class FMin, class FMax, class FMinMax, class FMinI, class FMaxI>
void ExtremeMember(FMin fMin, FMax fMax, FMinMax fMinMax, FMinI fMinI, FMaxI fMaxI) {
  constexpr int kS = tpx::Stride(L), kC = tpx::Processed(L);
  Rng rng(12);
  int k = 0;
  for (const auto& s : tpxtest::Shapes(32)) {
    GuardedImage<T> img(s.width, s.height, kS, s.padSamples, s.misalign);
    (++k % 2) ? FillFinite(img, rng) : FillTies(img, rng);
    if (L == Layout::AC4)  // alpha holds what would win if it were read
      for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x)
          img.At(x, y, 3) = k % 4 < 2 ? std::numeric_limits<T>::lowest() : std::numeric_limits<T>::max();
    Guarded<T> mn(kS), mx(kS), mn2(kS), mx2(kS), mni(kS), mxi(kS);
    Guarded<int> x1(kS), y1(kS), x2(kS), y2(kS);
    const int step = img.Step();
    ASSERT_EQ(tpxOk, fMin(img.Data(), step, img.Size(), mn.get()));
    ASSERT_EQ(tpxOk, fMax(img.Data(), step, img.Size(), mx.get()));
    ASSERT_EQ(tpxOk, fMinMax(img.Data(), step, img.Size(), mn2.get(), mx2.get()));
    ASSERT_EQ(tpxOk, fMinI(img.Data(), step, img.Size(), mni.get(), x1.get(), y1.get()));
    ASSERT_EQ(tpxOk, fMaxI(img.Data(), step, img.Size(), mxi.get(), x2.get(), y2.get()));
    ASSERT_TRUE(mn.Intact(kC) && mx.Intact(kC) && mn2.Intact(kC) && mx2.Intact(kC) && mni.Intact(kC) &&
                mxi.Intact(kC) && x1.Intact(kC) && y1.Intact(kC) && x2.Intact(kC) && y2.Intact(kC));
    for (int c = 0; c < kC; ++c) {
      const Found<T> lo = Scan<T, false>(img, c), hi = Scan<T, true>(img, c);
      ASSERT_TRUE(mn[c] == lo.v && mn2[c] == lo.v && mni[c] == lo.v) << s.width << "x" << s.height << " c" << c;
      ASSERT_TRUE(mx[c] == hi.v && mx2[c] == hi.v && mxi[c] == hi.v) << s.width << "x" << s.height << " c" << c;
      ASSERT_TRUE(x1[c] == lo.x && y1[c] == lo.y && x2[c] == hi.x && y2[c] == hi.y)
          << s.width << "x" << s.height << " c" << c << ": " << x1[c] << "," << y1[c] << " " << x2[c] << "," << y2[c];
    }
#ifdef TPX_HAVE_OPENCV
    if (kS == 1) {
      double cvMin = 0, cvMax = 0;
      cv::Point pMin, pMax;
      cv::minMaxLoc(CvView(img, 1), &cvMin, &cvMax, &pMin, &pMax);
      ASSERT_TRUE(cvMin == mn[0] && cvMax == mx[0] && pMin.x == x1[0] && pMin.y == y1[0] && pMax.x == x2[0] &&
                  pMax.y == y2[0]);
    }
#endif
  }
}

TEST(ExtremeExports, EveryMemberMatchesAPlainScan) {
#define X(t, L)                                                                                     \
  ExtremeMember<Tpx##t, Layout::L>(tpxiMin_##t##_##L##R, tpxiMax_##t##_##L##R, tpxiMinMax_##t##_##L##R, \
                                   tpxiMinIndx_##t##_##L##R, tpxiMaxIndx_##t##_##L##R);
  TPX_EXTREME_MEMBERS(X)
#undef X
}

// Ties: of two rows with the same extreme the upper wins, within a row the leftmost; a constant
// image gives 0, 0 in every channel; each channel has its own position.
TEST(ExtremeExports, PositionRules) {
  GuardedImage<Tpx16u> img(40, 6, 3);
  for (int y = 0; y < 6; ++y)
    for (int x = 0; x < 40; ++x)
      for (int c = 0; c < 3; ++c) img.At(x, y, c) = 100;
  Tpx16u v[3];
  int ix[3], iy[3];
  ASSERT_EQ(tpxOk, tpxiMaxIndx_16u_C3R(img.Data(), img.Step(), img.Size(), v, ix, iy));
  for (int c = 0; c < 3; ++c) EXPECT_TRUE(v[c] == 100 && ix[c] == 0 && iy[c] == 0);
  img.At(30, 2, 0) = img.At(5, 4, 0) = img.At(12, 2, 0) = 65535;  // upper row, then leftmost
  img.At(39, 5, 1) = 65535;
  img.At(7, 1, 2) = 0;
  ASSERT_EQ(tpxOk, tpxiMaxIndx_16u_C3R(img.Data(), img.Step(), img.Size(), v, ix, iy));
  EXPECT_TRUE(ix[0] == 12 && iy[0] == 2 && ix[1] == 39 && iy[1] == 5 && ix[2] == 0 && iy[2] == 0);
  ASSERT_EQ(tpxOk, tpxiMinIndx_16u_C3R(img.Data(), img.Step(), img.Size(), v, ix, iy));
  EXPECT_TRUE(v[2] == 0 && ix[2] == 7 && iy[2] == 1 && ix[0] == 0 && iy[0] == 0);
}

// NaN as the first sample of a channel stays the extreme: row 0, and no sample equals it, so
// the column is the width. The other channels are unaffected.
TEST(ExtremeExports, NanFirstSampleOfAChannel) {
  Rng rng(13);
  for (int w : {1, 7, 33}) {
    GuardedImage<float> img(w, 5, 4);
    FillFinite(img, rng);
    img.At(0, 0, 2) = std::numeric_limits<float>::quiet_NaN();
    float v[4];
    int ix[4], iy[4];
    ASSERT_EQ(tpxOk, tpxiMinIndx_32f_C4R(img.Data(), img.Step(), img.Size(), v, ix, iy));
    EXPECT_TRUE(std::isnan(v[2]) && ix[2] == w && iy[2] == 0);
    for (int c : {0, 1, 3}) {
      const Found<float> f = Scan<float, false>(img, c);
      EXPECT_TRUE(v[c] == f.v && ix[c] == f.x && iy[c] == f.y);
    }
  }
}

// Pointers (every result), then size; no step check: a zero step repeats the first row.
TEST(ExtremeExports, CheckOrders) {
  Tpx8u px[8] = {9, 3, 7, 1, 5, 5, 5, 5}, m[4] = {}, m2[4] = {};
  int x[4], y[4];
  const TpxSize empty{0, 0};
  EXPECT_EQ(tpxErrNullPtr, tpxiMin_8u_C1R(nullptr, 1, empty, m));
  EXPECT_EQ(tpxErrNullPtr, tpxiMinMax_8u_C3R(px, 1, empty, m, nullptr));
  EXPECT_EQ(tpxErrNullPtr, tpxiMaxIndx_8u_C4R(px, 1, empty, m, x, nullptr));
  EXPECT_EQ(tpxErrNullPtr, tpxiMinIndx_8u_AC4R(px, 1, empty, m, nullptr, y));
  EXPECT_EQ(tpxErrSize, tpxiMax_8u_C1R(px, -3, TpxSize{4, 0}, m));
  EXPECT_EQ(0, m[0]);
  EXPECT_EQ(tpxOk, tpxiMinMax_8u_C1R(px, 0, TpxSize{4, 3}, m, m2));
  EXPECT_TRUE(m[0] == 1 && m2[0] == 9);
  EXPECT_EQ(tpxOk, tpxiMinIndx_8u_C1R(px + 4, -4, TpxSize{4, 2}, m, x, y));  // rows px+4, px
  EXPECT_TRUE(m[0] == 1 && x[0] == 3 && y[0] == 1);
}

}  // namespace
}  // namespace tpxstats
