// The reductions: every member against a plain model of its rule (exact integer maths, a
// long-double sum, a row-major scan, a per-block scan, a plain count) and OpenCV where it
// agrees, over every shape the kernels split on; the rules that turn on one case; the check
// orders; and every row kernel against its scalar twin, bit for bit.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/layout.h"
#include "stats/block_minmax_rows.h"
#include "stats/count_rows.h"
#include "stats/extremes_rows.h"
#include "stats/members.h"
#include "stats/sum_rows.h"
#include "support/random.h"
#include "support/sweep.h"
#include "tpxip.h"

#ifdef TPX_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace tpxstats {
namespace {

using namespace tpx::stats;
using tpx::Isa;
using tpx::Layout;
using tpxtest::GuardedImage;
using tpxtest::Rng;

// Same bytes (twins agree to the bit, NaN payloads and zero signs included).
template <class T>
bool Same(const T& a, const T& b) { return std::memcmp(&a, &b, sizeof(T)) == 0; }

// Random data with limits and infinities, but no NaN and no zeros of both signs.
template <class T>
void FillFinite(GuardedImage<T>& img, Rng& rng) {
  using L = std::numeric_limits<T>;
  std::vector<T> special = {T(0), T(1), L::max(), L::lowest()};
  if constexpr (L::has_infinity) special.insert(special.end(), {L::infinity(), -L::infinity()});
  tpxtest::FillRandom(img, rng, 0.1, special);
}

#ifdef TPX_HAVE_OPENCV
template <class T>
cv::Mat CvView(GuardedImage<T>& img, int channels) {  // no copy
  return cv::Mat(img.Height(), img.Width(), CV_MAKETYPE(cv::DataType<T>::depth, channels), img.Data(),
                 static_cast<std::size_t>(img.Step()));
}
#endif

// Result arrays below are GuardedImage rows with a padding sample: a stray write hits a canary.

// ---- Sum and Mean --------------------------------------------------------------------------
template <class T, int kS>
void ExactTwins() {
  Rng rng(1);
  for (int n = 0; n <= 3 * 48 + 3 * kS; n += kS) {
    GuardedImage<T> img(n / kS + 1, 1, kS, 0, n % 5);
    tpxtest::FillRandom(img, rng, 0.3);
    long long ref[kS] = {}, s[kS] = {}, v[kS] = {};
    for (int i = 0; i < n; ++i) ref[i % kS] += img.Row(0)[i];
    SumRowExact<Isa::kScalar, T, kS>(img.Data(), n, s), SumRowExact<Isa::kAvx, T, kS>(img.Data(), n, v);
    ASSERT_TRUE(Same(ref, s) && Same(ref, v)) << "n=" << n;
  }
  for (T x : {std::numeric_limits<T>::max(), std::numeric_limits<T>::lowest()}) {  // no lane overflows
    std::vector<T> stripe(kSumStripe<kS>, x);
    long long v[kS] = {};
    SumRowExact<Isa::kAvx, T, kS>(stripe.data(), kSumStripe<kS>, v);
    for (long long t : v) ASSERT_EQ(t, static_cast<long long>(x) * (kSumStripe<kS> / kS));
  }
}

// Lanes of the three- and four-channel paths, swept from a carried-in state and folded.
template <int kVecs, int kS, class P>
bool LanesAgree(const float* p, int n) {
  alignas(32) typename P::Acc s[kVecs * P::kN], v[kVecs * P::kN], os[kS], ov[kS];
  for (int j = 0; j < kVecs * P::kN; ++j) s[j] = v[j] = static_cast<typename P::Acc>(j) * 0.25f;
  SweepLanes<Isa::kScalar, kVecs, P>(p, n, s), SweepLanes<Isa::kAvx, kVecs, P>(p, n, v);
  FoldLanes<Isa::kScalar, kVecs, kS, P>(s, os), FoldLanes<Isa::kAvx, kVecs, kS, P>(v, ov);
  return Same(os, ov);
}

#define SUM_TWINS(t, L) ExactTwins<Tpx##t, tpx::Stride(Layout::L)>();
TEST(SumKernels, ExactIntegerRowsEqualTheirTwinAndTheExactSum) { TPX_SUM_INT_MEMBERS(SUM_TWINS) }

// Every float row kernel, at every width and start address of a 64-byte line, lanes carried in.
TEST(SumKernels, FloatRowsEqualTheirTwin) {
  Rng rng(2);
  for (const auto& s : tpxtest::Shapes(16))
    for (int mis = 0; mis < 16; ++mis) {
      const int w = s.width, w3 = w / 3 * 3, w4 = w / 4 * 4;
      GuardedImage<float> img(w, 1, 1, 0, mis);
      tpxtest::FillRandom(img, rng, 0.0);
      const float* p = img.Data();
      FastLanes32f fs, fv;
      for (int l = 0; l < 8; ++l) fs.a[l] = fv.a[l] = static_cast<float>(l) * 0.1f;
      double ds[4] = {1, 2, 3, 4}, dv[4] = {1, 2, 3, 4};
      float rs[3], rv[3];
      SumRowFast32f<Isa::kScalar>(p, w, fs), SumRowFast32f<Isa::kAvx>(p, w, fv);
      SumRowAccurate32f<Isa::kScalar>(p, w, ds), SumRowAccurate32f<Isa::kAvx>(p, w, dv);
      SumRowC3Fast32f<Isa::kScalar>(p, w3, rs), SumRowC3Fast32f<Isa::kAvx>(p, w3, rv);
      ASSERT_TRUE((Same(fs.a, fv.a) && Same(fs.b, fv.b) && Same(ds, dv) && Same(rs, rv) &&
                   Same(SumRowNarrow32f<Isa::kScalar>(p, w, 3.25), SumRowNarrow32f<Isa::kAvx>(p, w, 3.25)) &&
                   LanesAgree<kSumVecsC3, 3, AddLanes32f>(p, w3) && LanesAgree<kSumVecsC3, 3, AddLanes64f>(p, w3) &&
                   LanesAgree<kSumVecsC4, 4, AddLanes32f>(p, w4) && LanesAgree<kSumVecsC4, 4, AddLanes64f>(p, w4)))
          << "w=" << w << " mis=" << mis;
    }
}

// Integers exact; floats within Tpx32f or Tpx64f precision as the path in use keeps its lanes
// (the narrow three-channel path, Tpx64f in pixel order, to the bit). Mean: the sum divided by
// the area in one channel, multiplied by its reciprocal in three and four.
template <class T, int kS, class Sum, class Mean>
void SumMember(Sum sum, Mean mean) {
  constexpr bool kInt = std::is_integral_v<T>;
  Rng rng(4);
  for (const auto& s : tpxtest::Shapes(16)) {
    GuardedImage<T> img(s.width, s.height, kS, s.padSamples, s.misalign);
    tpxtest::FillRandom(img, rng, kInt ? 0.3 : 0.0);
    long double ref[kS] = {}, mag[kS] = {};
    double ordered[kS] = {};
    for (int y = 0; y < s.height; ++y)
      for (int i = 0; i < img.RowSamples(); ++i) {
        const T x = img.Row(y)[i];
        ref[i % kS] += x, mag[i % kS] += std::fabs(x), ordered[i % kS] += x;
      }
    for (int hint : {0, 1, 2, 5}) {
      GuardedImage<double> r(kS, 2, 1, 1);  // sum, mean
      const auto call = [&](auto f, double* out) {
        if constexpr (kInt) return f(img.Data(), img.Step(), img.Size(), out);
        else return f(img.Data(), img.Step(), img.Size(), out, hint);
      };
      ASSERT_TRUE(call(sum, r.Row(0)) == tpxOk && call(mean, r.Row(1)) == tpxOk && r.GuardsIntact());
      const bool f32 = !kInt && (kS == 4 ? hint == 1 : hint != 2 && s.width > (kS == 1 ? 16 : 13));
      const double area = static_cast<double>(s.width) * s.height, *got = r.Row(0), *avg = r.Row(1);
      for (int c = 0; c < kS; ++c) {
        ASSERT_NEAR(got[c], static_cast<double>(ref[c]), kInt ? 0 : (f32 ? 1e-6 : 1e-14) * mag[c])
            << s.width << "x" << s.height << " c" << c << " hint " << hint;
        ASSERT_TRUE(!(kS == 3 && s.width <= 13) || Same(got[c], ordered[c]));
        ASSERT_TRUE(Same(avg[c], kS == 1 ? got[c] / area : got[c] * (1.0 / area)));
      }
      if (kInt) break;
    }
  }
}

#define SUM_MEMBER(t, L) SumMember<Tpx##t, tpx::Stride(Layout::L)>(tpxiSum_##t##_##L##R, tpxiMean_##t##_##L##R);
TEST(SumExports, EveryMemberMatchesALongDoubleSum) { TPX_SUM_INT_MEMBERS(SUM_MEMBER) TPX_SUM_FLOAT_MEMBERS(SUM_MEMBER) }

// One odd sample near 2^23 a row and channel: a row sums exactly in Tpx32f, the image total (odd,
// above 2^26) only in Tpx64f. One channel: rows of 16 in Tpx64f, wider ones in Tpx32f over the
// image unless the hint is 2; three: rows in Tpx32f totalled in Tpx64f; four: Tpx32f over the
// image only with hint 1. The one-channel fast path's prefix follows the row address, so the
// same row 8 bytes further sums differently.
TEST(SumExports, FloatPathsPrecisionScopeAndAddress) {
  const int h = 9;
  const double e = h * 8388609.0;
  GuardedImage<float> c1(17, h), c3(20, h, 3), c4(20, h, 4);
  for (int i = 0; i < 4 * h; ++i) c4.At(0, i / 4, i % 4) = c3.At(0, i / 4, i % 4 % 3) = c1.At(0, i / 4) = 8388609.0f;
  for (int hint : {0, 1, 2, 5}) {
    double a = 0, b = 0, c[3] = {}, d[4] = {};
    tpxiSum_32f_C1R(c1.Data(), c1.Step(), TpxSize{16, h}, &a, hint);
    tpxiSum_32f_C1R(c1.Data(), c1.Step(), c1.Size(), &b, hint);
    tpxiSum_32f_C3R(c3.Data(), c3.Step(), c3.Size(), c, hint);
    tpxiSum_32f_C4R(c4.Data(), c4.Step(), c4.Size(), d, hint);
    EXPECT_TRUE(a == e && (b == e) == (hint == 2) && c[0] == e && c[1] == e && c[2] == e) << hint;
    for (double x : d) EXPECT_EQ(x == e, hint != 1) << hint;
  }
  Rng rng(6);
  double sa = 0, sb = 0;
  for (int trial = 0; trial < 50 && sa == sb; ++trial) {
    GuardedImage<float> ra(40, 1), rb(40, 1, 1, 0, 2);
    tpxtest::FillRandom(ra, rng, 0.0);
    rb.CopyFrom(ra);
    tpxiSum_32f_C1R(ra.Data(), ra.Step(), ra.Size(), &sa, 0);
    tpxiSum_32f_C1R(rb.Data(), rb.Step(), rb.Size(), &sb, 0);
  }
  EXPECT_NE(sa, sb);
}

// 65536 x 32768 pixels = 2^31: the mean's divisor wraps to -2^31. Step 0 reads one row throughout.
TEST(MeanExports, AreaWrapsAtThirtyTwoBits) {
  std::vector<Tpx8u> row(65536, 1);
  double m = 0;
  ASSERT_EQ(tpxOk, tpxiMean_8u_C1R(row.data(), 0, TpxSize{65536, 32768}, &m));
  EXPECT_EQ(m, 2147483648.0 / -2147483648.0);
}

// ---- Min, Max, MinMax, MinIndx, MaxIndx ---------------------------------------------------
// On data full of NaN, zeros of both signs, infinities and limits: row extremes (min, max),
// whole-image lanes, and for one sample a pixel the block kernels (a vertical step, one fold).
template <class T, int kS>
void ExtremeTwins() {
  Rng rng(11);
  for (int n = kS; n <= 3 * ExtremeVecs(kS) * VecOf<T>::kN + 3 * kS; n += kS) {
    GuardedImage<T> img(n / kS, 3, kS, 0, n % 3);
    tpxtest::FillRandom(img, rng, 0.4);
    const T* p = img.Data();
    T s[6][kS] = {}, v[6][kS] = {};
    RowExtreme<Isa::kScalar, kS, MinLanes<T>>(p, n, s[0]), RowExtreme<Isa::kAvx, kS, MinLanes<T>>(p, n, v[0]);
    RowExtreme<Isa::kScalar, kS, MaxLanes<T>>(p, n, s[1]), RowExtreme<Isa::kAvx, kS, MaxLanes<T>>(p, n, v[1]);
    ImageExtremes<Isa::kScalar, T, kS, true, true> a;
    ImageExtremes<Isa::kAvx, T, kS, true, true> b;
    for (int y = 0; y < 3; ++y) a.Row(img.Row(y), n), b.Row(img.Row(y), n);
    a.Fold(s[2], s[3]), b.Fold(v[2], v[3]);
    std::vector<T> c[4] = {{p, p + n}, {p, p + n}, {p, p + n}, {p, p + n}};
    if constexpr (kS == 1) {
      s[4][0] = SegmentFold<Isa::kScalar, MinLanes<T>>(p, n), v[4][0] = SegmentFold<Isa::kAvx, MinLanes<T>>(p, n);
      s[5][0] = SegmentFold<Isa::kScalar, MaxLanes<T>>(p, n), v[5][0] = SegmentFold<Isa::kAvx, MaxLanes<T>>(p, n);
      VerticalStep<Isa::kScalar, T, true, true>(img.Row(1), n, c[0].data(), c[1].data());
      VerticalStep<Isa::kAvx, T, true, true>(img.Row(1), n, c[2].data(), c[3].data());
    }
    ASSERT_TRUE(Same(s, v) && !std::memcmp(c[0].data(), c[2].data(), n * sizeof(T)) &&
                !std::memcmp(c[1].data(), c[3].data(), n * sizeof(T))) << "n=" << n;
  }
}

#define EXTREME_TWINS(t, L) if (Layout::L != Layout::AC4) ExtremeTwins<Tpx##t, tpx::Stride(Layout::L)>();
TEST(ExtremeKernels, RowImageAndBlockLanesEqualTheirTwin) { TPX_EXTREME_MEMBERS(EXTREME_TWINS) }

// The extreme of channel c and its first position in row-major order.
using Found = std::tuple<double, int, int>;
template <bool kMax, class T>
Found Scan(const GuardedImage<T>& img, int c) {
  Found f{img.At(0, 0, c), 0, 0};
  for (int y = 0; y < img.Height(); ++y)
    for (int x = 0; x < img.Width(); ++x)
      if (kMax ? img.At(x, y, c) > std::get<0>(f) : img.At(x, y, c) < std::get<0>(f)) f = Found(img.At(x, y, c), x, y);
  return f;
}

// Every other shape holds four distinct values, so extremes tie within and across rows; AC4
// alpha holds what would win if it were read.
template <class T, Layout L, class FMin, class FMax, class FMinMax, class FMinI, class FMaxI>
void ExtremeMember(FMin fMin, FMax fMax, FMinMax fMinMax, FMinI fMinI, FMaxI fMaxI) {
  constexpr int kS = tpx::Stride(L), kC = tpx::Processed(L);
  using Lim = std::numeric_limits<T>;
  Rng rng(12);
  int k = 0;
  for (const auto& s : tpxtest::Shapes(32)) {
    SCOPED_TRACE(testing::Message() << s.width << "x" << s.height);
    GuardedImage<T> img(s.width, s.height, kS, s.padSamples, s.misalign);
    const std::vector<T> pool = {rng.Sample<T>(), rng.Sample<T>(), rng.Sample<T>(), rng.Sample<T>()};
    (++k % 2) ? FillFinite(img, rng) : tpxtest::FillFrom(img, rng, pool);
    for (int y = 0; y < s.height && L == Layout::AC4; ++y)
      for (int x = 0; x < s.width; ++x) img.At(x, y, 3) = k % 4 < 2 ? Lim::lowest() : Lim::max();
    GuardedImage<T> v(kC, 6, 1, 1);     // rows: Min, Max, MinMax (two), MinIndx, MaxIndx
    GuardedImage<int> at(kC, 4, 1, 1);  // rows: MinIndx x, y, MaxIndx x, y
    const auto call = [&](auto f, auto... out) { return f(img.Data(), img.Step(), img.Size(), out...) == tpxOk; };
    ASSERT_TRUE(call(fMin, v.Row(0)) && call(fMax, v.Row(1)) && call(fMinMax, v.Row(2), v.Row(3)) &&
                call(fMinI, v.Row(4), at.Row(0), at.Row(1)) && call(fMaxI, v.Row(5), at.Row(2), at.Row(3)));
    ASSERT_TRUE(v.GuardsIntact() && at.GuardsIntact());
    for (int c = 0; c < kC; ++c) {
      const Found f[2] = {Scan<false>(img, c), Scan<true>(img, c)};
      for (int i = 0; i < 4; ++i) ASSERT_EQ(v.At(c, i), std::get<0>(f[i % 2])) << "c" << c << " " << i;
      ASSERT_EQ(Found(v.At(c, 4), at.At(c, 0), at.At(c, 1)), f[0]) << "c" << c;
      ASSERT_EQ(Found(v.At(c, 5), at.At(c, 2), at.At(c, 3)), f[1]) << "c" << c;
    }
#ifdef TPX_HAVE_OPENCV
    double lo = 0, hi = 0;
    cv::Point pl, ph;
    if (kS == 1) cv::minMaxLoc(CvView(img, 1), &lo, &hi, &pl, &ph);
    ASSERT_TRUE(kS > 1 ||
                (Found(lo, pl.x, pl.y) == Scan<false>(img, 0) && Found(hi, ph.x, ph.y) == Scan<true>(img, 0)));
#endif
  }
}

#define EXTREME_MEMBER(t, L)                                                                            \
  ExtremeMember<Tpx##t, Layout::L>(tpxiMin_##t##_##L##R, tpxiMax_##t##_##L##R, tpxiMinMax_##t##_##L##R, \
                                   tpxiMinIndx_##t##_##L##R, tpxiMaxIndx_##t##_##L##R);
TEST(ExtremeExports, EveryMemberMatchesAPlainScan) { TPX_EXTREME_MEMBERS(EXTREME_MEMBER) }

// NaN as a channel's first sample stays its extreme: row 0, and no sample equals it, so the
// column is the width. The other channels are unaffected.
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
    for (int c : {0, 1, 3}) EXPECT_EQ(Found(v[c], ix[c], iy[c]), Scan<false>(img, c));
  }
}

// ---- BlockMinMax ---------------------------------------------------------------------------
// One grid in all three modes (both arrays, minima only, maxima only), globals given or not.
template <class T, class F>
void CheckGrid(F f, Rng& rng, int w, int h, int bw, int bh, int pad, int mis) {
  GuardedImage<T> src(w, h, 1, pad, mis);
  FillFinite(src, rng);
  const int bx = (w + bw - 1) / bw, by = (h + bh - 1) / bh;
  GuardedImage<T> refMin(bx, by), refMax(bx, by);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      T &lo = refMin.At(x / bw, y / bh), &hi = refMax.At(x / bw, y / bh), v = src.At(x, y);
      const bool first = x % bw == 0 && y % bh == 0;
      lo = first ? v : std::min(lo, v), hi = first ? v : std::max(hi, v);
    }
  const auto a = refMin.Samples(), b = refMax.Samples();
  for (int mode = 0; mode < 3; ++mode) {
    const bool wantMin = mode != 2, wantMax = mode != 1;
    GuardedImage<T> dMin(bx, by, 1, 2), dMax(bx, by, 1, 1), g(1, 2, 1, 1);  // g: global min, max
    ASSERT_EQ(tpxOk, f(src.Data(), src.Step(), src.Size(), wantMin ? dMin.Data() : nullptr, dMin.Step(),
                       wantMax ? dMax.Data() : nullptr, dMax.Step(), TpxSize{bw, bh}, g.Row(0),
                       mode == 0 ? nullptr : g.Row(1)));
    ASSERT_TRUE(dMin.GuardsIntact() && dMax.GuardsIntact() && g.GuardsIntact());
    ASSERT_TRUE((!wantMin || dMin.Samples() == a) && (!wantMax || dMax.Samples() == b))
        << w << "x" << h << " / " << bw << "x" << bh << " mode " << mode;
    // The global result follows its array; without the array it is the first sample.
    ASSERT_EQ(g.At(0, 0), wantMin ? *std::min_element(a.begin(), a.end()) : src.At(0, 0));
    ASSERT_EQ(g.At(0, 1), mode == 0 ? T(0) : wantMax ? *std::max_element(b.begin(), b.end()) : src.At(0, 0));
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

#define BLOCK_MEMBER(t) BlockMember<Tpx##t>(tpxiBlockMinMax_##t##_C1R);
TEST(BlockMinMaxExports, EveryMemberMatchesAPerBlockScan) { TPX_BLOCK_MINMAX_MEMBERS(BLOCK_MEMBER) }

// ---- CountInRange --------------------------------------------------------------------------
// Bounds of three channels, lo <= hi; sometimes equal, sometimes the ends of the type (infinite
// for floats, where the data holds infinities and NaN, which never counts).
template <class T>
void Bounds(Rng& rng, T* lo, T* hi) {
  using L = std::numeric_limits<T>;
  for (int c = 0; c < 3; ++c) {
    const int top = sizeof(T) == 1 ? 255 : 1100, a = rng.Int(sizeof(T) == 1 ? 0 : -top, top);
    lo[c] = rng.Chance(0.1) ? std::min(L::lowest(), T(-L::infinity())) : T(a);
    hi[c] = rng.Chance(0.2) ? T(a) : rng.Chance(0.1) ? std::max(L::max(), L::infinity()) : T(rng.Int(a, top));
  }
}

template <class T, int kS, bool kAlpha>
void CountTwins() {
  Rng rng(31);
  std::vector<int> sizes = {0, 1, 2, 3, 5, 15, 16, 17, 23, 24, 25, 47, 48, 49, 95, 96, 97, 4095, 48 * 256 + 7};
  if (sizeof(T) == 4) sizes.push_back(RangeCounter<T, kS, kAlpha>::kBlock * 65536 + 7);  // past one emptying
  for (int n : sizes) {
    n = n / kS * kS;
    GuardedImage<T> img(n + 1, 1, 1, 0, n % 3);
    tpxtest::FillRandom(img, rng, 0.2);
    T lo[3], hi[3];
    Bounds(rng, lo, hi);
    long long ref[kS] = {}, s[kS] = {}, v[kS] = {};
    for (int i = 0; i < n; ++i)
      ref[i % kS] += !(kAlpha && i % kS == 3) && lo[i % kS % 3] <= img.Row(0)[i] && img.Row(0)[i] <= hi[i % kS % 3];
    RangeCounter<T, kS, kAlpha>(lo, hi).template Row<Isa::kScalar>(img.Data(), n, s);
    RangeCounter<T, kS, kAlpha>(lo, hi).template Row<Isa::kAvx>(img.Data(), n, v);
    ASSERT_TRUE(Same(ref, s) && Same(ref, v)) << "n=" << n;
  }
}

template <class T, Layout L, class F>
void CountMember(F f) {
  constexpr int kS = tpx::Stride(L), kC = tpx::Processed(L);
  Rng rng(32);
  for (const auto& s : tpxtest::Shapes(16)) {
    GuardedImage<T> img(s.width, s.height, kS, s.padSamples, s.misalign);
    tpxtest::FillRandom(img, rng, 0.2);
    T lo[3], hi[3];
    Bounds(rng, lo, hi);
    GuardedImage<Tpx32u> got(kC, 1);
    if constexpr (L == Layout::C1) ASSERT_EQ(tpxOk, f(img.Data(), img.Step(), img.Size(), got.Data(), lo[0], hi[0]));
    else ASSERT_EQ(tpxOk, f(img.Data(), img.Step(), img.Size(), got.Data(), lo, hi));
    ASSERT_TRUE(got.GuardsIntact());
    for (int c = 0; c < kC; ++c) {
      Tpx32u ref = 0;
      for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x) ref += lo[c] <= img.At(x, y, c) && img.At(x, y, c) <= hi[c];
      ASSERT_EQ(got.At(c, 0), ref) << s.width << "x" << s.height << " c" << c;
#ifdef TPX_HAVE_OPENCV
      cv::Mat channel, mask;
      cv::extractChannel(CvView(img, kS), channel, c);
      cv::inRange(channel, cv::Scalar(lo[c]), cv::Scalar(hi[c]), mask);
      ASSERT_TRUE(std::is_floating_point_v<T> || got.At(c, 0) == static_cast<Tpx32u>(cv::countNonZero(mask)));
#endif
    }
  }
}

#define COUNT_MEMBER(t, L)                                                 \
  CountTwins<Tpx##t, tpx::Stride(Layout::L), Layout::L == Layout::AC4>(); \
  CountMember<Tpx##t, Layout::L>(tpxiCountInRange_##t##_##L##R);
TEST(CountInRange, KernelTwinsAndEveryMemberMatchAPlainCount) { TPX_COUNT_IN_RANGE_MEMBERS(COUNT_MEMBER) }

// Two faults at once pin each family's check order; nothing is written on failure. Sum: pointers,
// then size, no step check (a negative step walks up); Mean: its own pointer, then the sum's
// checks. Extremes: pointers (every result), then size, no step check. BlockMinMax: pointers
// (source; both arrays null), every extent, the source step against the row, then each given
// array's step against bx samples. CountInRange: pointers (bound arrays too), srcStep below 1,
// size, then lower above upper in any channel.
TEST(Reductions, CheckOrders) {
  const Tpx8u px[12] = {9, 3, 7, 1, 5, 5, 5, 5}, lo[3] = {0, 0, 0}, hi[3] = {1, 1, 1}, bad[3] = {1, 1, 0};
  const Tpx16s up[4] = {-3, 0, 0, 10};
  const float fx[4] = {};
  Tpx16s src[64] = {}, mn[8], mx[8], g = 7;
  Tpx8u m[4] = {};
  int x[4], y[4];
  Tpx32u n[3] = {9, 9, 9};
  double r[4] = {42};
  const TpxSize e{0, 0}, sz{17, 2}, b16{16, 16};
  EXPECT_EQ(tpxErrNullPtr, tpxiSum_8u_C1R(nullptr, 1, e, r));
  EXPECT_EQ(tpxErrNullPtr, tpxiSum_8u_C3R(px, 1, e, nullptr));
  EXPECT_EQ(tpxErrSize, tpxiSum_32f_C4R(fx, -5, TpxSize{1, 0}, r, 0));
  EXPECT_EQ(tpxErrNullPtr, tpxiMean_8u_C1R(px, 1, e, nullptr));
  EXPECT_EQ(tpxErrSize, tpxiMean_32f_C3R(fx, 0, e, r, 2));
  EXPECT_EQ(tpxErrNullPtr, tpxiMin_8u_C1R(nullptr, 1, e, m));
  EXPECT_EQ(tpxErrNullPtr, tpxiMinMax_8u_C3R(px, 1, e, m, nullptr));
  EXPECT_EQ(tpxErrNullPtr, tpxiMaxIndx_8u_C4R(px, 1, e, m, x, nullptr));
  EXPECT_EQ(tpxErrNullPtr, tpxiMinIndx_8u_AC4R(px, 1, e, m, nullptr, y));
  EXPECT_EQ(tpxErrSize, tpxiMax_8u_C1R(px, -3, TpxSize{4, 0}, m));
  EXPECT_EQ(tpxErrNullPtr, tpxiBlockMinMax_16s_C1R(nullptr, 34, e, mn, 4, mx, 4, b16, &g, &g));
  EXPECT_EQ(tpxErrNullPtr, tpxiBlockMinMax_16s_C1R(src, 0, e, nullptr, 4, nullptr, 4, b16, &g, &g));
  EXPECT_EQ(tpxErrSize, tpxiBlockMinMax_16s_C1R(src, 0, sz, mn, 0, mx, 0, TpxSize{16, 0}, &g, &g));
  EXPECT_EQ(tpxErrStep, tpxiBlockMinMax_16s_C1R(src, 33, sz, mn, 0, mx, 0, b16, &g, &g));
  EXPECT_EQ(tpxErrStep, tpxiBlockMinMax_16s_C1R(src, 34, sz, mn, 3, mx, 4, b16, &g, &g));
  EXPECT_EQ(tpxErrStep, tpxiBlockMinMax_16s_C1R(src, 34, sz, mn, 4, mx, 3, b16, &g, &g));
  EXPECT_EQ(tpxErrNullPtr, tpxiCountInRange_8u_C1R(nullptr, 0, e, n, 2, 1));
  EXPECT_EQ(tpxErrNullPtr, tpxiCountInRange_8u_C3R(px, 0, e, n, lo, nullptr));
  EXPECT_EQ(tpxErrStep, tpxiCountInRange_8u_C1R(px, 0, e, n, 2, 1));
  EXPECT_EQ(tpxErrSize, tpxiCountInRange_32f_C1R(fx, 4, TpxSize{1, 0}, n, 2, 1));
  EXPECT_EQ(tpxErrRange, tpxiCountInRange_8u_C1R(px, 1, TpxSize{1, 1}, n, 6, 5));
  EXPECT_EQ(tpxErrRange, tpxiCountInRange_8u_AC4R(px, 4, TpxSize{1, 1}, n, hi, bad));
  EXPECT_TRUE(r[0] == 42 && m[0] == 0 && g == 7 && n[0] == 9 && n[1] == 9 && n[2] == 9);
  // What the checks let through: any step, and a null array's step and globals.
  EXPECT_TRUE(tpxiSum_16s_C1R(up + 3, -6, TpxSize{1, 2}, r) == tpxOk && r[0] == 7);  // rows up[3], up[0]
  EXPECT_TRUE(tpxiMinIndx_8u_C1R(px + 4, -4, TpxSize{4, 2}, m, x, y) == tpxOk && m[0] == 1 && x[0] == 3 && y[0] == 1);
  EXPECT_TRUE(tpxiCountInRange_8u_C1R(px, 1, TpxSize{3, 2}, n, 5, 5) == tpxOk && n[0] == 0);  // rows overlap
  EXPECT_EQ(tpxOk, tpxiBlockMinMax_16s_C1R(src, 34, sz, nullptr, -1, mx, 4, b16, &g, nullptr));
  EXPECT_EQ(tpxOk, tpxiBlockMinMax_16s_C1R(src, 34, sz, mn, 4, nullptr, 0, b16, nullptr, nullptr));
}

}  // namespace
}  // namespace tpxstats
