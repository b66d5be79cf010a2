// Reductions beside OpenCV: sum, mean, extremes with positions and range counts, all reads of
// one image, compared with the read bandwidth over the same bytes.
#include <opencv2/core.hpp>

#include <functional>
#include <memory>
#include <string>

#include "harness.h"
#include "tpxip.h"

namespace {

using tpxbench::Bw;
using tpxbench::Extent;

struct Image {
  cv::Mat m, mask;  // mask: the peer's inRange output, allocated once
  double out[4] = {};
};

// A random image of the given OpenCV type, rows of the natural step (no padding).
std::function<std::unique_ptr<Image>(Extent)> Make(int type) {
  return [type](Extent e) {
    auto s = std::make_unique<Image>();
    s->m.create(e.h, e.w, type);
    cv::RNG rng(0x5EED);
    if (CV_MAT_DEPTH(type) == CV_32F)
      rng.fill(s->m, cv::RNG::UNIFORM, -1000.0, 1000.0);
    else
      rng.fill(s->m, cv::RNG::UNIFORM, 0, 256);
    s->mask.create(e.h, e.w, CV_8UC1);
    return s;
  };
}

template <class T>
const T* P(Image& s) { return s.m.ptr<T>(); }
int Step(Image& s) { return static_cast<int>(s.m.step); }
TpxSize Roi(Image& s) { return {s.m.cols, s.m.rows}; }

void Add(const std::string& name, int type, std::function<void(Image&)> tpx, std::function<void(Image&)> peer) {
  tpxbench::Case<Image> c;
  c.name = name;
  c.bw = Bw::kRead;
  c.streamBytes = [type](Extent e) { return static_cast<long long>(e.w) * e.h * CV_ELEM_SIZE(type); };
  c.make = Make(type);
  c.tpx = std::move(tpx);
  c.peer = std::move(peer);
  tpxbench::Register(c);
}

const int kRegistered = [] {
  Add("Sum/8u_C1R", CV_8UC1, [](Image& s) { tpxiSum_8u_C1R(P<Tpx8u>(s), Step(s), Roi(s), s.out); },
      [](Image& s) { benchmark::DoNotOptimize(cv::sum(s.m)); });
  Add("Sum/8u_C3R", CV_8UC3, [](Image& s) { tpxiSum_8u_C3R(P<Tpx8u>(s), Step(s), Roi(s), s.out); },
      [](Image& s) { benchmark::DoNotOptimize(cv::sum(s.m)); });
  for (int hint : {0, 2})
    Add("Sum/32f_C1R/hint" + std::to_string(hint), CV_32FC1,
        [hint](Image& s) { tpxiSum_32f_C1R(P<Tpx32f>(s), Step(s), Roi(s), s.out, hint); },
        [](Image& s) { benchmark::DoNotOptimize(cv::sum(s.m)); });
  Add("Mean/8u_C1R", CV_8UC1, [](Image& s) { tpxiMean_8u_C1R(P<Tpx8u>(s), Step(s), Roi(s), s.out); },
      [](Image& s) { benchmark::DoNotOptimize(cv::mean(s.m)); });
  auto minMaxLoc = [](Image& s) {
    double lo, hi;
    cv::Point a, b;
    cv::minMaxLoc(s.m, &lo, &hi, &a, &b);
    benchmark::DoNotOptimize(a);
  };
  Add("MinMax/8u_C1R", CV_8UC1, [](Image& s) {
        Tpx8u lo, hi;
        tpxiMinMax_8u_C1R(P<Tpx8u>(s), Step(s), Roi(s), &lo, &hi);
        benchmark::DoNotOptimize(hi);
      }, minMaxLoc);
  Add("MinMax/32f_C1R", CV_32FC1, [](Image& s) {
        Tpx32f lo, hi;
        tpxiMinMax_32f_C1R(P<Tpx32f>(s), Step(s), Roi(s), &lo, &hi);
        benchmark::DoNotOptimize(hi);
      }, minMaxLoc);
  Add("MinIndx/32f_C1R", CV_32FC1, [](Image& s) {
        Tpx32f lo;
        int x, y;
        tpxiMinIndx_32f_C1R(P<Tpx32f>(s), Step(s), Roi(s), &lo, &x, &y);
        benchmark::DoNotOptimize(y);
      }, minMaxLoc);
  Add("CountInRange/8u_C1R", CV_8UC1, [](Image& s) {
        Tpx32u n;
        tpxiCountInRange_8u_C1R(P<Tpx8u>(s), Step(s), Roi(s), &n, 40, 200);
        benchmark::DoNotOptimize(n);
      }, [](Image& s) {
        cv::inRange(s.m, cv::Scalar(40), cv::Scalar(200), s.mask);
        benchmark::DoNotOptimize(cv::countNonZero(s.mask));
      });
  return 0;
}();

}  // namespace
