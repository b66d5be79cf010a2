// Border copies beside cv::copyMakeBorder: Replicate and Mirror (REFLECT_101) on 8u C1 and
// 32f C1, Const on 8u C3, with borders of 16 and of 1 pixel around a 1920x1080 source.
#include <opencv2/core.hpp>

#include <functional>
#include <memory>
#include <string>

#include "harness.h"
#include "tpxip.h"

namespace {

struct Images {
  cv::Mat src, dst;
  int border;
};

template <class T>
using Call = std::function<TpxStatus(const T*, int, TpxSize, T*, int, TpxSize, int, int)>;

template <class T>
void Add(const std::string& name, int cvType, int border, int cvBorder, Call<T> call) {
  tpxbench::Case<Images> c;
  c.name = name + "/b" + std::to_string(border);
  c.extents = tpxbench::kHd;
  c.bw = tpxbench::Bw::kCopy;
  const int pixelBytes = CV_ELEM_SIZE(cvType);
  c.streamBytes = [pixelBytes, border](tpxbench::Extent e) {
    return 1LL * (e.w + 2 * border) * (e.h + 2 * border) * pixelBytes;
  };
  c.make = [cvType, border](tpxbench::Extent e) {
    auto s = std::make_unique<Images>();
    s->src.create(e.h, e.w, cvType);
    cv::randu(s->src, 0, 255);
    s->dst.create(e.h + 2 * border, e.w + 2 * border, cvType);
    s->border = border;
    return s;
  };
  c.tpx = [call](Images& s) {
    call(s.src.ptr<T>(), static_cast<int>(s.src.step), {s.src.cols, s.src.rows}, s.dst.ptr<T>(),
         static_cast<int>(s.dst.step), {s.dst.cols, s.dst.rows}, s.border, s.border);
  };
  c.peer = [cvBorder](Images& s) {
    cv::copyMakeBorder(s.src, s.dst, s.border, s.border, s.border, s.border, cvBorder, cv::Scalar(7, 8, 9));
  };
  tpxbench::Register(c);
}

const int kRegistered = [] {
  for (int b : {16, 1}) {
    Add<Tpx8u>("CopyReplicateBorder/8u_C1R", CV_8UC1, b, cv::BORDER_REPLICATE, tpxiCopyReplicateBorder_8u_C1R);
    Add<Tpx32f>("CopyReplicateBorder/32f_C1R", CV_32FC1, b, cv::BORDER_REPLICATE, tpxiCopyReplicateBorder_32f_C1R);
    Add<Tpx8u>("CopyMirrorBorder/8u_C1R", CV_8UC1, b, cv::BORDER_REFLECT_101, tpxiCopyMirrorBorder_8u_C1R);
    Add<Tpx32f>("CopyMirrorBorder/32f_C1R", CV_32FC1, b, cv::BORDER_REFLECT_101, tpxiCopyMirrorBorder_32f_C1R);
    Add<Tpx8u>("CopyConstBorder/8u_C3R", CV_8UC3, b, cv::BORDER_CONSTANT,
               [](const Tpx8u* s, int ss, TpxSize sr, Tpx8u* d, int ds, TpxSize dr, int t, int l) {
                 const Tpx8u value[3] = {7, 8, 9};
                 return tpxiCopyConstBorder_8u_C3R(s, ss, sr, d, ds, dr, t, l, value);
               });
  }
  return 0;
}();

}  // namespace
