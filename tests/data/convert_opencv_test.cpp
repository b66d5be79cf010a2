// Convert against OpenCV's convertTo where its rule is ours: saturating integer
// conversions, exact widenings, and float to integer rounding half to even for finite samples
// in the 32-bit range (OpenCV stores NaN and out-of-range floats differently, by design).
#if defined(TPX_HAVE_OPENCV)

#include <algorithm>
#include <opencv2/core.hpp>

#include "data/convert_members.h"
#include "data/convert_testing.h"
#include "tpxip.h"

namespace {

using tpxtest::Rng;

template <class T>
constexpr int kCvDepth = std::is_same_v<T, Tpx8u> ? CV_8U : std::is_same_v<T, Tpx8s> ? CV_8S
                       : std::is_same_v<T, Tpx16u> ? CV_16U : std::is_same_v<T, Tpx16s> ? CV_16S
                       : std::is_same_v<T, Tpx32s> ? CV_32S : std::is_same_v<T, Tpx32f> ? CV_32F
                       : std::is_same_v<T, Tpx64f> ? CV_64F : -1;

// Ours on a 613 x 5 image against convertTo(alpha) on the same samples: integers over the whole
// range, floats finite, inside +-2^30 and D's range with a margin, with many ties.
template <class S, class D, class Ours>
void Against(const std::string& name, Ours ours, double alpha, Rng& rng, int channels = 1) {
  if constexpr (kCvDepth<S> >= 0 && kCvDepth<D> >= 0) {
    const int w = 613, h = 5, n = w * h * channels;
    std::vector<S> src(n);
    for (S& v : src) {
      if constexpr (std::is_floating_point_v<S>) {
        const double x = rng.Real(std::max(-1073741824.0, static_cast<double>(std::numeric_limits<D>::lowest()) - 300),
                                  std::min(1073741824.0, static_cast<double>(std::numeric_limits<D>::max()) + 300));
        v = static_cast<S>((rng.Chance(0.5) ? std::round(x * 2) / 2 : x) / alpha);
      } else {
        v = rng.Sample<S>();
      }
    }
    std::vector<D> got(n), want(n);
    const int ss = w * channels * static_cast<int>(sizeof(S)), ds = w * channels * static_cast<int>(sizeof(D));
    ASSERT_EQ(ours(src.data(), ss, got.data(), ds, TpxSize{w, h}), tpxOk) << name;
    cv::Mat out(h, w, CV_MAKETYPE(kCvDepth<D>, channels), want.data());
    cv::Mat(h, w, CV_MAKETYPE(kCvDepth<S>, channels), src.data()).convertTo(out, kCvDepth<D>, alpha);
    for (int i = 0; i < n; ++i)
      ASSERT_TRUE(cvttest::Same(got[i], want[i])) << name << " at " << i << " src " << +src[i] << " got " << +got[i]
                                                   << " cv " << +want[i];
  }
}

TEST(ConvertOpenCv, SaturatingAndWideningMembers) {
  Rng rng(31);
#define TPX_T_CV_PLAIN(S, D) Against<Tpx##S, Tpx##D>(#S #D "_C1R", tpxiConvert_##S##D##_C1R, 1.0, rng);
  TPX_CONVERT_PLAIN_4L(TPX_T_CV_PLAIN)
  TPX_CONVERT_PLAIN_C1(TPX_T_CV_PLAIN)
#define TPX_T_CV_C3(S, D) Against<Tpx##S, Tpx##D>(#S #D "_C3R", tpxiConvert_##S##D##_C3R, 1.0, rng, 3);
  TPX_CONVERT_PLAIN_4L(TPX_T_CV_C3)
#define TPX_T_CV_RS(S, D) Against<Tpx##S, Tpx##D>(#S #D "_C1Rs", tpxiConvert_##S##D##_C1Rs, 1.0, rng);
  TPX_CONVERT_RS(TPX_T_CV_RS)
}

TEST(ConvertOpenCv, FloatRoundingHalfToEven) {
  Rng rng(32);
#define TPX_T_CV_ROUND(S, D)                                                                                     \
  Against<Tpx##S, Tpx##D>(#S #D "_C4R mode 1", [](const Tpx##S* s, int ss, Tpx##D* d, int ds, TpxSize r) {        \
    return tpxiConvert_##S##D##_C4R(s, ss, d, ds, r, tpxRndHalfEven);                                             \
  }, 1.0, rng, 4);
  TPX_CONVERT_ROUND_4L(TPX_T_CV_ROUND)
  // Scale factors where OpenCV's arithmetic is exact too: 32f times a power of two, or 8- and
  // 16-bit integers; OpenCV scales 64f through single precision, so 64f runs unscaled only.
#define TPX_T_CV_SFS(S, D)                                                                                       \
  for (int sf : {0, 1, 3, -2})                                                                                   \
    if ((sizeof(Tpx##S) <= 2 || std::is_same_v<Tpx##S, Tpx32f>) || (std::is_same_v<Tpx##S, Tpx64f> && sf == 0))    \
      Against<Tpx##S, Tpx##D>(#S #D "_C1RSfs sf " + std::to_string(sf), [sf](const Tpx##S* s, int ss, Tpx##D* d,  \
          int ds, TpxSize r) { return tpxiConvert_##S##D##_C1RSfs(s, ss, d, ds, r, tpxRndHalfEven, sf); },       \
          std::ldexp(1.0, -sf), rng);
  TPX_CONVERT_FLOAT_SFS(TPX_T_CV_SFS)
  TPX_CONVERT_INT_SFS(TPX_T_CV_SFS)
}

}  // namespace
#endif
