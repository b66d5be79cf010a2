// Threshold, Compare and Otsu beside OpenCV's threshold and compare, single-threaded.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include "harness.h"
#include "tpxip.h"

namespace {

using tpxbench::Bw;
using tpxbench::Extent;

// Two source images of random samples (b mostly equal to a, so that ties occur) and a
// destination, as cv::Mat with their steps; tpx calls use the same memory.
struct Images {
  cv::Mat a, b, d;
};

std::unique_ptr<Images> Make(Extent e, int type, int dstType) {
  auto s = std::make_unique<Images>();
  s->a.create(e.h, e.w, type);
  s->b.create(e.h, e.w, type);
  s->d.create(e.h, e.w, dstType);
  cv::RNG rng(0xB5);
  if (CV_MAT_DEPTH(type) == CV_32F) rng.fill(s->a, cv::RNG::UNIFORM, -100.0, 100.0);
  else rng.fill(s->a, cv::RNG::UNIFORM, 0, 256);
  s->a.copyTo(s->b);
  cv::Mat noise(e.h, e.w, type);
  rng.fill(noise, cv::RNG::UNIFORM, 0, 2);
  cv::add(s->b, noise, s->b);
  s->d.setTo(cv::Scalar::all(0));
  return s;
}

TpxSize Roi(const cv::Mat& m) { return {m.cols, m.rows}; }
int Step(const cv::Mat& m) { return static_cast<int>(m.step); }

template <class Tpx, class Peer>
void Add(const char* name, int type, int dstType, Bw bw, int bytesPerPixel, Tpx tpx, Peer peer) {
  tpxbench::Case<Images> c;
  c.name = name;
  c.extents = tpxbench::kHd;
  c.bw = bw;
  c.streamBytes = [bytesPerPixel](Extent e) { return 1LL * bytesPerPixel * e.w * e.h; };
  c.make = [type, dstType](Extent e) { return Make(e, type, dstType); };
  c.tpx = tpx;
  c.peer = peer;
  tpxbench::Register(c);
}

const int kRegistered = [] {
  Add("Threshold_GT/8u_C1R", CV_8UC1, CV_8UC1, Bw::kCopy, 1,
      [](Images& s) { tpxiThreshold_GT_8u_C1R(s.a.data, Step(s.a), s.d.data, Step(s.d), Roi(s.a), 100); },
      [](Images& s) { cv::threshold(s.a, s.d, 100, 0, cv::THRESH_TRUNC); });
  Add("Threshold_GT/32f_C1R", CV_32FC1, CV_32FC1, Bw::kCopy, 4,
      [](Images& s) {
        tpxiThreshold_GT_32f_C1R(s.a.ptr<float>(), Step(s.a), s.d.ptr<float>(), Step(s.d), Roi(s.a), 10.0f);
      },
      [](Images& s) { cv::threshold(s.a, s.d, 10.0, 0, cv::THRESH_TRUNC); });
  // One pass of two tests per sample; OpenCV's nearest single call is TOZERO (one test).
  Add("Threshold_LTValGTVal/8u_C3R", CV_8UC3, CV_8UC3, Bw::kCopy, 3,
      [](Images& s) {
        const Tpx8u tl[3] = {50, 60, 70}, vl[3] = {0, 0, 0}, tg[3] = {200, 190, 180}, vg[3] = {255, 255, 255};
        tpxiThreshold_LTValGTVal_8u_C3R(s.a.data, Step(s.a), s.d.data, Step(s.d), Roi(s.a), tl, vl, tg, vg);
      },
      [](Images& s) { cv::threshold(s.a, s.d, 60, 0, cv::THRESH_TOZERO); });
  // The same result from OpenCV takes two passes (TOZERO below 60, then TRUNC above 190).
  Add("Threshold_LTValGTVal/8u_C3R/same-result", CV_8UC3, CV_8UC3, Bw::kCopy, 3,
      [](Images& s) {
        const Tpx8u tl[3] = {60, 60, 60}, vl[3] = {0, 0, 0}, tg[3] = {190, 190, 190};
        tpxiThreshold_LTValGTVal_8u_C3R(s.a.data, Step(s.a), s.d.data, Step(s.d), Roi(s.a), tl, vl, tg, tg);
      },
      [](Images& s) {
        cv::threshold(s.a, s.d, 59, 0, cv::THRESH_TOZERO);
        cv::threshold(s.d, s.d, 190, 0, cv::THRESH_TRUNC);
      });
  Add("Compare_LT/8u_C1R", CV_8UC1, CV_8UC1, Bw::kTwoReadsOneWrite, 1,
      [](Images& s) {
        tpxiCompare_8u_C1R(s.a.data, Step(s.a), s.b.data, Step(s.b), s.d.data, Step(s.d), Roi(s.a), tpxCmpLess);
      },
      [](Images& s) { cv::compare(s.a, s.b, s.d, cv::CMP_LT); });
  // OpenCV writes a mask a channel (three bytes a pixel); ours one byte a pixel.
  Add("Compare_LT/8u_C3R", CV_8UC3, CV_8UC1, Bw::kTwoReadsOneWrite, 3,
      [](Images& s) {
        tpxiCompare_8u_C3R(s.a.data, Step(s.a), s.b.data, Step(s.b), s.d.data, Step(s.d), Roi(s.a), tpxCmpLess);
      },
      [](Images& s) { cv::compare(s.a, s.b, s.d, cv::CMP_LT); });
  Add("CompareC_GE/32f_C1R", CV_32FC1, CV_8UC1, Bw::kRead, 4,
      [](Images& s) {
        tpxiCompareC_32f_C1R(s.a.ptr<float>(), Step(s.a), 1.5f, s.d.data, Step(s.d), Roi(s.a), tpxCmpGreaterEq);
      },
      [](Images& s) { cv::compare(s.a, 1.5, s.d, cv::CMP_GE); });
  // OpenCV's Otsu also writes the thresholded image; ours only finds the threshold.
  Add("ComputeThreshold_Otsu/8u_C1R", CV_8UC1, CV_8UC1, Bw::kRead, 1,
      [](Images& s) {
        Tpx8u t = 0;
        tpxiComputeThreshold_Otsu_8u_C1R(s.a.data, Step(s.a), Roi(s.a), &t);
        benchmark::DoNotOptimize(t);
      },
      [](Images& s) { benchmark::DoNotOptimize(cv::threshold(s.a, s.d, 0, 255, cv::THRESH_BINARY | cv::THRESH_OTSU)); });
  return 0;
}();

}  // namespace
