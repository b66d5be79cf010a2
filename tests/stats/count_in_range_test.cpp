// CountInRange: every member against a plain count and OpenCV's inRange, closed bounds, NaN,
// the check order, and the row kernel against its twin.
#include <limits>

#include "stats/count_rows.h"
#include "stats/members.h"
#include "tests/stats/reductions_support.h"

namespace tpxstats {
namespace {

using namespace tpx::stats;
using tpx::Isa;

template <class T>
T Bound(Rng& rng) {
  if constexpr (std::is_same_v<T, Tpx8u>) return static_cast<T>(rng.Int(0, 255));
  else return static_cast<T>(rng.Int(-1100, 1100));
}

// Lower and upper bounds of three channels, lo <= hi; sometimes equal, sometimes the extremes.
template <class T>
void Bounds(Rng& rng, T* lo, T* hi) {
  for (int c = 0; c < 3; ++c) {
    lo[c] = Bound<T>(rng), hi[c] = Bound<T>(rng);
    if (lo[c] > hi[c]) std::swap(lo[c], hi[c]);
    if (rng.Chance(0.2)) hi[c] = lo[c];
    if (rng.Chance(0.1)) lo[c] = std::numeric_limits<T>::lowest();
    if (rng.Chance(0.1)) hi[c] = std::is_same_v<T, Tpx8u> ? T(255) : std::numeric_limits<T>::infinity();
  }
}

template <class T, int kS, bool kAlpha>
void CountTwins(Rng& rng) {
  using Counter = RangeCounter<T, kS, kAlpha>;
  std::vector<int> sizes = {0, 1, 2, 3, 5, 15, 16, 17, 23, 24, 25, 47, 48, 49, 95, 96, 97, 4095, 48 * 256 + 7};
  if (sizeof(T) == 4) sizes.push_back(Counter::kBlock * 65536 + 7);  // past one emptying of the float lanes
  for (int n : sizes) {
    n = n / kS * kS;
    GuardedImage<T> img(n + 1, 1, 1, 0, n % 3);
    tpxtest::FillRandom(img, rng, 0.2);
    T lo[3], hi[3];
    Bounds(rng, lo, hi);
    const Counter counter(lo, hi);
    long long ref[4] = {}, s[4] = {}, v[4] = {};
    for (int i = 0; i < n; ++i) {
      const T x = img.Row(0)[i];
      const int c = i % kS;
      if (!(kAlpha && c == 3) && lo[c % 3] <= x && x <= hi[c % 3]) ++ref[c];
    }
    counter.template Row<Isa::kScalar>(img.Data(), n, s);
    counter.template Row<Isa::kAvx>(img.Data(), n, v);
    for (int c = 0; c < kS; ++c) ASSERT_TRUE(ref[c] == s[c] && ref[c] == v[c]) << "n=" << n << " c=" << c;
  }
}

TEST(CountKernels, RowCountsEqualTheirTwinAndAPlainCount) {
  Rng rng(31);
  CountTwins<Tpx8u, 1, false>(rng), CountTwins<Tpx8u, 3, false>(rng), CountTwins<Tpx8u, 4, true>(rng);
  CountTwins<Tpx32f, 1, false>(rng), CountTwins<Tpx32f, 3, false>(rng), CountTwins<Tpx32f, 4, true>(rng);
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
    Guarded<Tpx32u> got(kS);
    if constexpr (L == Layout::C1) ASSERT_EQ(tpxOk, f(img.Data(), img.Step(), img.Size(), got.get(), lo[0], hi[0]));
    else ASSERT_EQ(tpxOk, f(img.Data(), img.Step(), img.Size(), got.get(), lo, hi));
    ASSERT_TRUE(got.Intact(kC));
    for (int c = 0; c < kC; ++c) {
      Tpx32u ref = 0;
      for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x) ref += lo[c] <= img.At(x, y, c) && img.At(x, y, c) <= hi[c];
      ASSERT_EQ(got[c], ref) << s.width << "x" << s.height << " c" << c;
#ifdef TPX_HAVE_OPENCV
      cv::Mat channel, mask;
      cv::extractChannel(CvView(img, kS), channel, c);
      cv::inRange(channel, cv::Scalar(lo[c]), cv::Scalar(hi[c]), mask);
      if (!std::is_floating_point_v<T>) ASSERT_EQ(got[c], static_cast<Tpx32u>(cv::countNonZero(mask)));
#endif
    }
  }
}

TEST(CountInRangeExports, EveryMemberMatchesAPlainCount) {
#define X(t, L) CountMember<Tpx##t, Layout::L>(tpxiCountInRange_##t##_##L##R);
  TPX_COUNT_IN_RANGE_MEMBERS(X)
#undef X
}

// Both ends are closed: equal bounds count exactly that value. NaN never counts, not even
// within infinite bounds.
TEST(CountInRangeExports, ClosedBoundsAndNan) {
  const Tpx8u px[6] = {4, 5, 5, 6, 5, 255};
  Tpx32u n = 0;
  ASSERT_EQ(tpxOk, tpxiCountInRange_8u_C1R(px, 6, TpxSize{6, 1}, &n, 5, 5));
  EXPECT_EQ(3u, n);
  ASSERT_EQ(tpxOk, tpxiCountInRange_8u_C1R(px, 6, TpxSize{6, 1}, &n, 0, 255));
  EXPECT_EQ(6u, n);
  const float inf = std::numeric_limits<float>::infinity();
  const float f[6] = {-inf, std::nanf(""), 1.0f, inf, -0.0f, 0.0f};
  ASSERT_EQ(tpxOk, tpxiCountInRange_32f_C1R(f, 24, TpxSize{6, 1}, &n, -inf, inf));
  EXPECT_EQ(5u, n);
  ASSERT_EQ(tpxOk, tpxiCountInRange_32f_C1R(f, 24, TpxSize{6, 1}, &n, 0.0f, 0.0f));
  EXPECT_EQ(2u, n);
}

// Pointers (bound arrays too), srcStep below 1, size, then lower above upper in any channel.
TEST(CountInRangeExports, CheckOrder) {
  const Tpx8u px[12] = {}, lo[3] = {0, 0, 0}, hi[3] = {1, 1, 1}, bad[3] = {1, 1, 0};
  Tpx32u n[3] = {9, 9, 9};
  EXPECT_EQ(tpxErrNullPtr, tpxiCountInRange_8u_C1R(nullptr, 0, TpxSize{0, 0}, n, 2, 1));
  EXPECT_EQ(tpxErrNullPtr, tpxiCountInRange_8u_C3R(px, 0, TpxSize{0, 0}, n, lo, nullptr));
  EXPECT_EQ(tpxErrStep, tpxiCountInRange_8u_C1R(px, 0, TpxSize{0, 0}, n, 2, 1));
  EXPECT_EQ(tpxErrSize, tpxiCountInRange_32f_C1R(reinterpret_cast<const float*>(px), 4, TpxSize{1, 0}, n, 2, 1));
  EXPECT_EQ(tpxErrRange, tpxiCountInRange_8u_C1R(px, 1, TpxSize{1, 1}, n, 6, 5));
  EXPECT_EQ(tpxErrRange, tpxiCountInRange_8u_AC4R(px, 4, TpxSize{1, 1}, n, hi, bad));
  EXPECT_TRUE(n[0] == 9 && n[1] == 9 && n[2] == 9);
  EXPECT_EQ(tpxOk, tpxiCountInRange_8u_C1R(px, 1, TpxSize{3, 2}, n, 5, 5));  // a step of 1 overlaps rows
  EXPECT_EQ(0u, n[0]);
}

}  // namespace
}  // namespace tpxstats
