// Scaled arithmetic beside OpenCV: Add, Sub, Mul 8u at sf 0 and sf 1 (OpenCV with the scale
// 0.5), Add 16s and 32f, MulC 8u; each beside the bandwidth of its memory pattern.
#include <opencv2/core.hpp>

#include <functional>
#include <memory>
#include <string>

#include "harness.h"
#include "tpxip.h"

namespace {

using tpxbench::Bw;
using tpxbench::Case;
using tpxbench::Extent;

struct Images {
  cv::Mat a, b, d;
  TpxSize roi;
  int step;
};

std::unique_ptr<Images> MakeImages(Extent e, int type) {
  auto s = std::make_unique<Images>();
  s->a.create(e.h, e.w, type);
  s->b.create(e.h, e.w, type);
  s->d.create(e.h, e.w, type);
  cv::randu(s->a, 0, 255);
  cv::randu(s->b, 0, 255);
  s->d.setTo(0);
  s->roi = TpxSize{e.w, e.h};
  s->step = static_cast<int>(s->a.step[0]);
  return s;
}

template <class T>
T* P(cv::Mat& m) { return m.ptr<T>(); }

void Add(const std::string& name, int type, int elemBytes, Bw bw, std::function<void(Images&)> tpx,
         std::function<void(Images&)> cv) {
  Case<Images> c;
  c.name = name;
  c.bw = bw;
  c.streamBytes = [elemBytes](Extent e) { return static_cast<long long>(e.w) * e.h * elemBytes; };
  c.make = [type](Extent e) { return MakeImages(e, type); };
  c.tpx = std::move(tpx);
  c.peer = std::move(cv);
  tpxbench::Register(c);
}

using Sfs8u = TpxStatus (*)(const Tpx8u*, int, const Tpx8u*, int, Tpx8u*, int, TpxSize, int);
std::function<void(Images&)> Call8u(Sfs8u f, int sf) {
  return [f, sf](Images& s) { f(P<Tpx8u>(s.a), s.step, P<Tpx8u>(s.b), s.step, P<Tpx8u>(s.d), s.step, s.roi, sf); };
}

const int kRegistered = [] {
  const Bw r2w1 = Bw::kTwoReadsOneWrite;
  for (int sf : {0, 1}) {
    const std::string tail = "/8u_C1RSfs/sf" + std::to_string(sf);
    // OpenCV has no scaled add or subtract: the weighted sum with weights 0.5 is the peer at sf 1.
    Add("Add" + tail, CV_8UC1, 1, r2w1, Call8u(tpxiAdd_8u_C1RSfs, sf), [sf](Images& s) {
      sf == 0 ? cv::add(s.a, s.b, s.d) : cv::addWeighted(s.a, 0.5, s.b, 0.5, 0.0, s.d);
    });
    Add("Sub" + tail, CV_8UC1, 1, r2w1, Call8u(tpxiSub_8u_C1RSfs, sf), [sf](Images& s) {
      sf == 0 ? cv::subtract(s.b, s.a, s.d) : cv::addWeighted(s.b, 0.5, s.a, -0.5, 0.0, s.d);
    });
    Add("Mul" + tail, CV_8UC1, 1, r2w1, Call8u(tpxiMul_8u_C1RSfs, sf),
        [sf](Images& s) { cv::multiply(s.a, s.b, s.d, sf == 0 ? 1.0 : 0.5); });
  }
  Add("Add/16s_C1RSfs/sf0", CV_16SC1, 2, r2w1,
      [](Images& s) {
        tpxiAdd_16s_C1RSfs(P<Tpx16s>(s.a), s.step, P<Tpx16s>(s.b), s.step, P<Tpx16s>(s.d), s.step, s.roi, 0);
      },
      [](Images& s) { cv::add(s.a, s.b, s.d); });
  Add("Add/32f_C1R", CV_32FC1, 4, r2w1,
      [](Images& s) {
        tpxiAdd_32f_C1R(P<Tpx32f>(s.a), s.step, P<Tpx32f>(s.b), s.step, P<Tpx32f>(s.d), s.step, s.roi);
      },
      [](Images& s) { cv::add(s.a, s.b, s.d); });
  // One image read, one written: the copy pattern.
  Add("MulC/8u_C1RSfs/sf0", CV_8UC1, 1, Bw::kCopy,
      [](Images& s) { tpxiMulC_8u_C1RSfs(P<Tpx8u>(s.a), s.step, 3, P<Tpx8u>(s.d), s.step, s.roi, 0); },
      [](Images& s) { cv::multiply(s.a, cv::Scalar(3), s.d); });
  return 0;
}();

}  // namespace
