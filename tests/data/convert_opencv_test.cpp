// Convert and Scale against OpenCV's convertTo where its rule is ours: saturating integer
// conversions, exact widenings, and float to integer rounding half to even for finite samples
// in the 32-bit range (OpenCV stores NaN and out-of-range floats differently, by design).
#if defined(TPX_HAVE_OPENCV)
#include <gtest/gtest.h>

#include <cstring>
#include <opencv2/core.hpp>
#include <string>
#include <vector>

#include "data/convert_members.h"
#include "data/convert_testing.h"
#include "tpxip.h"

namespace {

using tpxtest::Rng;

template <class T> constexpr int kCvDepth = -1;
template <> constexpr int kCvDepth<Tpx8u> = CV_8U;
template <> constexpr int kCvDepth<Tpx8s> = CV_8S;
template <> constexpr int kCvDepth<Tpx16u> = CV_16U;
template <> constexpr int kCvDepth<Tpx16s> = CV_16S;
template <> constexpr int kCvDepth<Tpx32s> = CV_32S;
template <> constexpr int kCvDepth<Tpx32f> = CV_32F;
template <> constexpr int kCvDepth<Tpx64f> = CV_64F;

template <class T>
constexpr bool kHasCv = kCvDepth<T> >= 0;

// Random samples: integers over the whole range, floats over D's range and beyond, finite and
// inside +-2^30, with many ties.
template <class S, class D>
S Draw(Rng& rng, double alpha) {
  if constexpr (std::is_floating_point_v<S>) {
    const double lo = std::max(-1073741824.0, static_cast<double>(std::numeric_limits<D>::lowest()) - 300);
    const double hi = std::min(1073741824.0, static_cast<double>(std::numeric_limits<D>::max()) + 300);
    const double x = rng.Real(lo, hi);
    return static_cast<S>((rng.Chance(0.5) ? std::round(x * 2) / 2 : x) / alpha);
  } else {
    return rng.Sample<S>();
  }
}

// Runs ours on a w x h image (one long row) and OpenCV's convertTo(alpha) on the same data.
template <class S, class D, class Ours>
void Against(const std::string& name, Ours ours, double alpha, Rng& rng, int channels = 1) {
  const int w = 613, h = 5, n = w * h * channels;
  std::vector<S> src(n);
  for (S& v : src) v = Draw<S, D>(rng, alpha);
  std::vector<D> got(n), want(n);
  ASSERT_EQ(ours(src.data(), w * channels * static_cast<int>(sizeof(S)), got.data(),
                 w * channels * static_cast<int>(sizeof(D)), TpxSize{w, h}),
            tpxOk)
      << name;
  const cv::Mat in(h, w, CV_MAKETYPE(kCvDepth<S>, channels), src.data());
  cv::Mat out(h, w, CV_MAKETYPE(kCvDepth<D>, channels), want.data());
  in.convertTo(out, kCvDepth<D>, alpha);
  for (int i = 0; i < n; ++i)
    ASSERT_TRUE(cvttest::Same(got[i], want[i])) << name << " at " << i << " src " << +src[i] << " got " << +got[i]
                                                 << " cv " << +want[i];
}

TEST(ConvertOpenCv, SaturatingAndWideningMembers) {
  Rng rng(31);
#define TPX_T_CV_PLAIN(S, D)                                                                         \
  if constexpr (kHasCv<Tpx##S> && kHasCv<Tpx##D>) {                                                  \
    Against<Tpx##S, Tpx##D>(#S #D "_C1R", tpxiConvert_##S##D##_C1R, 1.0, rng);                       \
  }
  TPX_CONVERT_PLAIN_4L(TPX_T_CV_PLAIN)
  TPX_CONVERT_PLAIN_C1(TPX_T_CV_PLAIN)
#define TPX_T_CV_C3(S, D) Against<Tpx##S, Tpx##D>(#S #D "_C3R", tpxiConvert_##S##D##_C3R, 1.0, rng, 3);
  TPX_CONVERT_PLAIN_4L(TPX_T_CV_C3)
#define TPX_T_CV_RS(S, D)                                                                            \
  if constexpr (kHasCv<Tpx##D>) {                                                                    \
    Against<Tpx##S, Tpx##D>(#S #D "_C1Rs", tpxiConvert_##S##D##_C1Rs, 1.0, rng);                     \
  }
  TPX_CONVERT_RS(TPX_T_CV_RS)
}

TEST(ConvertOpenCv, FloatRoundingHalfToEven) {
  Rng rng(32);
#define TPX_T_CV_ROUND(S, D)                                                                         \
  Against<Tpx##S, Tpx##D>(#S #D "_C4R mode 1",                                                       \
      [](const Tpx##S* s, int ss, Tpx##D* d, int ds, TpxSize r) {                                    \
        return tpxiConvert_##S##D##_C4R(s, ss, d, ds, r, tpxRndHalfEven);                            \
      }, 1.0, rng, 4);
  TPX_CONVERT_ROUND_4L(TPX_T_CV_ROUND)
  // Scale factors where OpenCV's arithmetic is exact too: 32f times a power of two, or 8- and
  // 16-bit integers, which single precision holds. (With a scale, OpenCV takes 64f samples
  // through single precision, so 64f is compared unscaled only.)
#define TPX_T_CV_SFS(S, D)                                                                           \
  if constexpr (kHasCv<Tpx##S> && kHasCv<Tpx##D> && (std::is_floating_point_v<Tpx##S> || sizeof(Tpx##S) <= 2)) { \
    for (int sf : {0, 1, 3, -2}) {                                                                   \
      if (std::is_same_v<Tpx##S, Tpx64f> && sf != 0) continue;                                       \
      Against<Tpx##S, Tpx##D>(#S #D "_C1RSfs sf " + std::to_string(sf),                              \
          [sf](const Tpx##S* s, int ss, Tpx##D* d, int ds, TpxSize r) {                              \
            return tpxiConvert_##S##D##_C1RSfs(s, ss, d, ds, r, tpxRndHalfEven, sf);                 \
          }, std::ldexp(1.0, -sf), rng);                                                             \
    }                                                                                                \
  }
  TPX_CONVERT_FLOAT_SFS(TPX_T_CV_SFS)
  TPX_CONVERT_INT_SFS(TPX_T_CV_SFS)
}

TEST(ScaleOpenCv, EightBitToFloatWithinOneUnitInTheLastPlace) {
  // convertTo(alpha, beta) forms s * alpha + beta, possibly fused; ours is vMin + s * slope
  // without fusing. They agree to a rounding of the last operation.
  std::vector<Tpx8u> src(256 * 3);
  for (int i = 0; i < 256 * 3; ++i) src[i] = static_cast<Tpx8u>(i / 3);
  for (auto [vMin, vMax] : {std::pair<float, float>{0.0f, 1.0f}, {-7.5f, 12.25f}, {-1e6f, 1e6f}}) {
    std::vector<float> got(256 * 3), want(256 * 3);
    ASSERT_EQ(tpxiScale_8u32f_C3R(src.data(), 768, got.data(), 768 * 4, TpxSize{256, 1}, vMin, vMax), tpxOk);
    const float slope = (vMax - vMin) * 0.003921569f;
    cv::Mat(1, 256, CV_8UC3, src.data()).convertTo(cv::Mat(1, 256, CV_32FC3, want.data()), CV_32F, slope, vMin);
    for (int i = 0; i < 768; ++i) {
      const float tol = 2 * std::nextafter(std::fabs(want[i]) + std::fabs(vMin), INFINITY) -
                        2 * (std::fabs(want[i]) + std::fabs(vMin));
      ASSERT_NEAR(got[i], want[i], tol) << i;
    }
  }
}

}  // namespace
#endif
