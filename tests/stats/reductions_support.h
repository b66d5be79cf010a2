// Shared pieces of the reduction tests: sample data, comparisons and the OpenCV bridge.
#pragma once
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>
#include <vector>

#include "core/layout.h"
#include "support/image.h"
#include "support/random.h"
#include "support/sweep.h"
#include "tpxip.h"

#ifdef TPX_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace tpxstats {

using tpx::Layout;
using tpxtest::GuardedImage;
using tpxtest::Rng;

// Same bits, or both NaN.
template <class T>
bool SameBits(T a, T b) {
  if constexpr (std::is_floating_point_v<T>)
    if (std::isnan(a) && std::isnan(b)) return true;
  return std::memcmp(&a, &b, sizeof(T)) == 0;
}

// Random samples with many repeated values, so that extremes tie across and within rows.
template <class T>
void FillTies(GuardedImage<T>& img, Rng& rng) {
  std::vector<T> pool;
  for (int k = 0; k < 5; ++k) pool.push_back(rng.Sample<T>());
  tpxtest::FillFrom(img, rng, pool);
}

// Finite float data without signed zeros of both kinds (the order-free part of min and max).
template <class T>
void FillFinite(GuardedImage<T>& img, Rng& rng) {
  if constexpr (std::is_floating_point_v<T>)
    tpxtest::FillRandom(img, rng, 0.1, {T(0), T(1), T(-1), std::numeric_limits<T>::max(),
                                        std::numeric_limits<T>::lowest(), std::numeric_limits<T>::infinity(),
                                        -std::numeric_limits<T>::infinity()});
  else
    tpxtest::FillRandom(img, rng);
}

// A result array with canaries on both sides: the call may write only [0, n).
template <class T>
struct Guarded {
  explicit Guarded(int n) : n(n), v(static_cast<std::size_t>(n) + 8) { std::memset(v.data(), 0xA5, v.size() * sizeof(T)); }
  T* get() { return v.data() + 4; }
  T& operator[](int i) { return v[static_cast<std::size_t>(i) + 4]; }
  // Canaries intact outside [0, written).
  bool Intact(int written) const {
    std::vector<T> ref(v.size());
    std::memset(ref.data(), 0xA5, ref.size() * sizeof(T));
    for (std::size_t i = 0; i < v.size(); ++i) {
      const bool inside = i >= 4 && i < 4 + static_cast<std::size_t>(written);
      if (!inside && std::memcmp(&v[i], &ref[i], sizeof(T)) != 0) return false;
    }
    return true;
  }
  int n;
  std::vector<T> v;
};

#ifdef TPX_HAVE_OPENCV
template <class T>
int CvDepth() {
  if constexpr (std::is_same_v<T, Tpx8u>) return CV_8U;
  else if constexpr (std::is_same_v<T, Tpx16u>) return CV_16U;
  else if constexpr (std::is_same_v<T, Tpx16s>) return CV_16S;
  else return CV_32F;
}
// A view of the region (no copy) with `channels` interleaved channels.
template <class T>
cv::Mat CvView(GuardedImage<T>& img, int channels) {
  return cv::Mat(img.Height(), img.Width(), CV_MAKETYPE(CvDepth<T>(), channels), img.Data(),
                 static_cast<std::size_t>(img.Step()));
}
#endif

}  // namespace tpxstats
