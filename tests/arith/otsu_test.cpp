// Otsu's threshold: worked histograms that pin each part of the loop, the histogram against a
// plain count, the check order, and OpenCV's THRESH_OTSU on bimodal images.
#include <gtest/gtest.h>

#include <cstdint>

#include "arith/otsu.h"
#include "arith_util.h"
#include "tpxip.h"
#ifdef TPX_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using namespace decide;

Tpx8u FromHistogram(std::initializer_list<std::pair<int, std::uint64_t>> bins) {
  std::uint64_t h[256] = {};
  for (auto [bin, count] : bins) h[bin] = count;
  return tpx::OtsuThreshold(h);
}

TEST(Otsu, WorkedHistograms) {
  // One value: no bin passes the weight test.
  EXPECT_EQ(FromHistogram({{77, 500}}), 0);
  // 10 and 200 in equal count: every k from 10 to 199 gives the same value; the first stays.
  EXPECT_EQ(FromHistogram({{10, 8}, {200, 8}}), 10);
  // Bins weigh k + 0.5 in m but plain i in mu. Here that bias moves the answer: 11 scores
  // 696.3 against 686.0 for 53, where weights of plain i (the textbook form) would pick 53.
  EXPECT_EQ(FromHistogram({{11, 6}, {53, 9}, {94, 7}}), 11);
  // m is advanced only past the weight test: the lone sample at 20 has a weight below 2^-23
  // and is left out of m. The near tie between 45 and 46 then goes to 45; a loop that
  // advanced m before the test would give 46.
  EXPECT_EQ(FromHistogram({{20, 1}, {45, 1u << 24}, {46, 33554561}, {47, 1u << 24}}), 45);
}

TEST(Otsu, ExportCountsTheRegionOnly) {
  Rng rng(0x0750);
  for (auto [w, h] : {std::pair{1, 1}, {7, 3}, {33, 17}, {640, 5}}) {
    GuardedImage<Tpx8u> img(w, h, 1, 13, 3);
    std::uint64_t want[256] = {}, got[256];
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) ++want[img.At(x, y) = static_cast<Tpx8u>(rng.Chance(0.5) ? rng.Int(20, 60) : rng.Int(150, 230))];
    tpx::Histogram256(img.Data(), img.Step(), img.Size(), got);
    for (int v = 0; v < 256; ++v) ASSERT_EQ(got[v], want[v]) << w << "x" << h << " bin " << v;
    Tpx8u t = 1;
    ASSERT_EQ(tpxiComputeThreshold_Otsu_8u_C1R(img.Data(), img.Step(), img.Size(), &t), tpxOk);
    EXPECT_EQ(t, tpx::OtsuThreshold(want));
  }
}

// Pointers, size, then width > srcStep, the one step rule that compares with the row.
TEST(Otsu, CheckOrderWithTwoFaults) {
  const Tpx8u img[16] = {};
  Tpx8u t = 99;
  EXPECT_EQ(tpxiComputeThreshold_Otsu_8u_C1R(nullptr, 0, TpxSize{0, 0}, &t), tpxErrNullPtr);
  EXPECT_EQ(tpxiComputeThreshold_Otsu_8u_C1R(img, 4, TpxSize{4, 4}, nullptr), tpxErrNullPtr);
  EXPECT_EQ(tpxiComputeThreshold_Otsu_8u_C1R(img, 0, TpxSize{0, 4}, &t), tpxErrSize);
  EXPECT_EQ(tpxiComputeThreshold_Otsu_8u_C1R(img, 3, TpxSize{4, 4}, &t), tpxErrStep);
  EXPECT_EQ(tpxiComputeThreshold_Otsu_8u_C1R(img, -4, TpxSize{4, 1}, &t), tpxErrStep);
  EXPECT_EQ(t, 99);
  EXPECT_EQ(tpxiComputeThreshold_Otsu_8u_C1R(img, 4, TpxSize{4, 4}, &t), tpxOk);  // step == width
  EXPECT_EQ(t, 0);
}

#ifdef TPX_HAVE_OPENCV
// The textbook criterion: the first largest q0 q1 (mean0 - mean1)^2 over class 0 = bins <= k.
// `offset` weighs the bins of class 0 at k + offset (the global mean stays at plain i).
int TextbookOtsu(const std::uint64_t* h, double offset) {
  double n = 0, sum = 0;
  for (int i = 0; i < 256; ++i) n += double(h[i]), sum += double(i) * double(h[i]);
  double q0 = 0, s0 = 0, best = -1;
  int t = 0;
  for (int k = 0; k < 256; ++k) {
    q0 += double(h[k]) / n;
    s0 += (k + offset) * double(h[k]) / n;
    const double q1 = 1 - q0;
    if (q0 < 1e-7 || q1 < 1e-7) continue;
    const double m0 = s0 / q0, m1 = (sum / n - s0) / q1, v = q0 * q1 * (m0 - m1) * (m0 - m1);
    if (v > best) best = v, t = k;
  }
  return t;
}

// OpenCV gives the textbook bin; ours is the same criterion with class 0 weighed at k + 0.5,
// which puts it a bin or two lower, or, where the histogram ends in a thin tail, among its last
// samples.
TEST(Otsu, AgreesWithOpenCvUpToTheHalfBinWeight) {
  Rng rng(0x0750C);
  for (int i = 0; i < 40; ++i) {
    // Two classes of random mean and spread; in every other scene the bright one piles up at 255.
    cv::Mat f(240, 320, CV_32F), noise(240, 320, CV_32F), img, bin;
    const double bg = rng.Real(30, 110), fg = i % 2 == 0 ? rng.Real(235, 260) : rng.Real(130, 225);
    for (int y = 0; y < 240; ++y)
      for (int x = 0; x < 320; ++x) f.at<float>(y, x) = float(rng.Chance(0.35) ? fg : bg);
    cv::randn(noise, 0, rng.Real(4, 24));
    cv::Mat(f + noise).convertTo(img, CV_8U);
    const int cv = static_cast<int>(cv::threshold(img, bin, 0, 255, cv::THRESH_BINARY | cv::THRESH_OTSU));
    Tpx8u ours = 0;
    ASSERT_EQ(tpxiComputeThreshold_Otsu_8u_C1R(img.data, static_cast<int>(img.step), TpxSize{320, 240}, &ours), tpxOk);
    std::uint64_t h[256];
    tpx::Histogram256(img.data, static_cast<int>(img.step), TpxSize{320, 240}, h);
    EXPECT_EQ(TextbookOtsu(h, 0.0), cv) << "scene " << i;
    EXPECT_EQ(TextbookOtsu(h, 0.5), ours) << "scene " << i;
  }
}
#endif

}  // namespace
