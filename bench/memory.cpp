// Image memory: allocate and free an image, beside cv::Mat doing the same.
#include <opencv2/core.hpp>

#include "harness.h"
#include "tpxip.h"

namespace {

struct Nothing {};

const int kRegistered = [] {
  for (tpxbench::Extent e : tpxbench::kHdAndLarge) tpxbench::NeedBaseline(tpxbench::Bw::kCopy, 1LL * e.w * e.h);
  for (tpxbench::Extent e : tpxbench::kHdAndLarge) tpxbench::NeedBaseline(tpxbench::Bw::kCopy, 4LL * e.w * e.h);
  tpxbench::Case<Nothing> c;
  c.name = "Malloc/8u_C1";
  c.make = [](tpxbench::Extent) { return std::make_unique<Nothing>(); };
  c.tpx = [](Nothing&) {
    int step = 0;
    Tpx8u* p = tpxiMalloc_8u_C1(1920, 1080, &step);
    benchmark::DoNotOptimize(p);
    tpxiFree(p);
  };
  c.peer = [](Nothing&) {
    cv::Mat m(1080, 1920, CV_8UC1);
    benchmark::DoNotOptimize(m.data);
  };
  c.extents = tpxbench::kHd;
  tpxbench::Register(c);
  return 0;
}();

}  // namespace
