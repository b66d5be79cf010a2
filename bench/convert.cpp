// Convert and Scale beside cv::Mat::convertTo (single-threaded). The bandwidth baseline is a
// copy of the larger of the two images (Bw::kCopy with that image's bytes), so "% of bw"
// reads: how close the call comes to copying its larger image once.
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
  cv::Mat src, dst;
};

// Random samples over the source type's range (floats over the destination's range and a bit
// beyond, so that saturation and every rounding branch are taken).
std::unique_ptr<Images> Make(Extent e, int srcType, int dstType) {
  auto s = std::make_unique<Images>();
  s->src.create(e.h, e.w, srcType);
  s->dst.create(e.h, e.w, dstType);
  cv::RNG rng(7);
  if (CV_MAT_DEPTH(srcType) == CV_32F) rng.fill(s->src, cv::RNG::UNIFORM, -40000.0, 40000.0);
  else rng.fill(s->src, cv::RNG::UNIFORM, -70000.0, 70000.0);
  s->dst.setTo(0);
  return s;
}

TpxSize Roi(const Images& s) { return TpxSize{s.src.cols, s.src.rows}; }
int Step(const cv::Mat& m) { return static_cast<int>(m.step[0]); }

void Add(const std::string& name, int srcType, int dstType, int largerBytesPerPixel,
         std::function<void(Images&)> tpx, std::function<void(Images&)> cv) {
  Case<Images> c;
  c.name = name;
  c.bw = Bw::kCopy;
  c.streamBytes = [largerBytesPerPixel](Extent e) { return 1LL * largerBytesPerPixel * e.w * e.h; };
  c.make = [srcType, dstType](Extent e) { return Make(e, srcType, dstType); };
  c.tpx = std::move(tpx);
  c.peer = std::move(cv);
  tpxbench::Register(c);
}

const int kRegistered = [] {
  Add("Convert/8u32f_C1R", CV_8U, CV_32F, 4,
      [](Images& s) { tpxiConvert_8u32f_C1R(s.src.ptr<Tpx8u>(), Step(s.src), s.dst.ptr<Tpx32f>(), Step(s.dst), Roi(s)); },
      [](Images& s) { s.src.convertTo(s.dst, CV_32F); });
  Add("Convert/16s32f_C1R", CV_16S, CV_32F, 4,
      [](Images& s) { tpxiConvert_16s32f_C1R(s.src.ptr<Tpx16s>(), Step(s.src), s.dst.ptr<Tpx32f>(), Step(s.dst), Roi(s)); },
      [](Images& s) { s.src.convertTo(s.dst, CV_32F); });
  Add("Convert/32f8u_C1R/mode1", CV_32F, CV_8U, 4,
      [](Images& s) {
        tpxiConvert_32f8u_C1R(s.src.ptr<Tpx32f>(), Step(s.src), s.dst.ptr<Tpx8u>(), Step(s.dst), Roi(s), tpxRndHalfEven);
      },
      [](Images& s) { s.src.convertTo(s.dst, CV_8U); });
  for (int mode : {0, 2}) {
    Add("Convert/32f16s_C1R/mode" + std::to_string(mode), CV_32F, CV_16S, 4,
        [mode](Images& s) {
          tpxiConvert_32f16s_C1R(s.src.ptr<Tpx32f>(), Step(s.src), s.dst.ptr<Tpx16s>(), Step(s.dst), Roi(s), mode);
        },
        [](Images& s) { s.src.convertTo(s.dst, CV_16S); });
  }
  Add("Convert/16u8u_C1R", CV_16U, CV_8U, 2,
      [](Images& s) { tpxiConvert_16u8u_C1R(s.src.ptr<Tpx16u>(), Step(s.src), s.dst.ptr<Tpx8u>(), Step(s.dst), Roi(s)); },
      [](Images& s) { s.src.convertTo(s.dst, CV_8U); });
  const float vMin = -1.5f, vMax = 2.5f;
  Add("Scale/8u32f_C1R", CV_8U, CV_32F, 4,
      [=](Images& s) {
        tpxiScale_8u32f_C1R(s.src.ptr<Tpx8u>(), Step(s.src), s.dst.ptr<Tpx32f>(), Step(s.dst), Roi(s), vMin, vMax);
      },
      [=](Images& s) { s.src.convertTo(s.dst, CV_32F, (vMax - vMin) * 0.003921569f, vMin); });
  return 0;
}();

}  // namespace
