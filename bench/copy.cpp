// Copy and rearrange beside OpenCV: copyTo, setTo, split/merge, transpose, flip, mixChannels.
#include <opencv2/core.hpp>

#include "harness.h"
#include "tpxip.h"

namespace {

using tpxbench::Bw;
using tpxbench::Case;
using tpxbench::Extent;

// A source and a destination of the same type; `dstT` is the transposed shape where asked.
struct Images {
  cv::Mat src, dst;
  std::vector<cv::Mat> planes;
  TpxSize roi;
};

std::unique_ptr<Images> Make(Extent e, int type, bool transposed = false) {
  auto s = std::make_unique<Images>();
  s->src.create(e.h, e.w, type);
  cv::randu(s->src, 0, 255);
  if (transposed)
    s->dst.create(e.w, e.h, type);
  else
    s->dst.create(e.h, e.w, type);
  s->dst.setTo(cv::Scalar::all(1));
  s->roi = {e.w, e.h};
  return s;
}

template <class T>
T* P(cv::Mat& m) { return m.ptr<T>(); }
int Step(const cv::Mat& m) { return static_cast<int>(m.step); }

void Add(const std::string& name, int type, long long bytesPerPixel, std::function<void(Images&)> tpx,
         std::function<void(Images&)> peer, bool transposed = false, std::function<void(Images&)> prep = nullptr) {
  Case<Images> c;
  c.name = name;
  c.bw = Bw::kCopy;
  c.streamBytes = [bytesPerPixel](Extent e) { return bytesPerPixel * e.w * e.h; };
  c.make = [type, transposed, prep](Extent e) {
    auto s = Make(e, type, transposed);
    if (prep) prep(*s);
    return s;
  };
  c.tpx = std::move(tpx);
  c.peer = std::move(peer);
  tpxbench::Register(c);
}

// Interleaved to planar and back beside cv::split and cv::merge, on planes that hold data (not
// fresh pages).
template <class T>
void AddPlanar(const std::string& type, int cvType, TpxStatus (*toPlanar)(const T*, int, T* const*, int, TpxSize),
               TpxStatus (*fromPlanar)(const T* const*, int, T*, int, TpxSize)) {
  auto planes = [](Images& s) { cv::split(s.src, s.planes); };
  Add("Copy/" + type + "_C3P3R", cvType, 3 * sizeof(T),
      [toPlanar](Images& s) {
        T* d[3] = {P<T>(s.planes[0]), P<T>(s.planes[1]), P<T>(s.planes[2])};
        toPlanar(P<T>(s.src), Step(s.src), d, Step(s.planes[0]), s.roi);
      },
      planes, false, planes);
  Add("Copy/" + type + "_P3C3R", cvType, 3 * sizeof(T),
      [fromPlanar](Images& s) {
        const T* p[3] = {P<T>(s.planes[0]), P<T>(s.planes[1]), P<T>(s.planes[2])};
        fromPlanar(p, Step(s.planes[0]), P<T>(s.dst), Step(s.dst), s.roi);
      },
      [](Images& s) { cv::merge(s.planes, s.dst); }, false, planes);
}

const int kRegistered = [] {
  Add("Copy/8u_C1R", CV_8UC1, 1,
      [](Images& s) { tpxiCopy_8u_C1R(P<Tpx8u>(s.src), Step(s.src), P<Tpx8u>(s.dst), Step(s.dst), s.roi); },
      [](Images& s) { s.src.copyTo(s.dst); });
  Add("Copy/8u_C3R", CV_8UC3, 3,
      [](Images& s) { tpxiCopy_8u_C3R(P<Tpx8u>(s.src), Step(s.src), P<Tpx8u>(s.dst), Step(s.dst), s.roi); },
      [](Images& s) { s.src.copyTo(s.dst); });
  Add("Set/8u_C1R", CV_8UC1, 1,
      [](Images& s) { tpxiSet_8u_C1R(7, P<Tpx8u>(s.dst), Step(s.dst), s.roi); },
      [](Images& s) { s.dst.setTo(cv::Scalar::all(7)); });
  Add("Set/8u_C4R", CV_8UC4, 4,
      [](Images& s) {
        const Tpx8u v[4] = {1, 2, 3, 4};
        tpxiSet_8u_C4R(v, P<Tpx8u>(s.dst), Step(s.dst), s.roi);
      },
      [](Images& s) { s.dst.setTo(cv::Scalar(1, 2, 3, 4)); });

  AddPlanar<Tpx32f>("32f", CV_32FC3, tpxiCopy_32f_C3P3R, tpxiCopy_32f_P3C3R);
  AddPlanar<Tpx8u>("8u", CV_8UC3, tpxiCopy_8u_C3P3R, tpxiCopy_8u_P3C3R);

  Add("Transpose/8u_C1R", CV_8UC1, 1,
      [](Images& s) { tpxiTranspose_8u_C1R(P<Tpx8u>(s.src), Step(s.src), P<Tpx8u>(s.dst), Step(s.dst), s.roi); },
      [](Images& s) { cv::transpose(s.src, s.dst); }, true);
  Add("Transpose/32f_C1R", CV_32FC1, 4,
      [](Images& s) { tpxiTranspose_32f_C1R(P<Tpx32f>(s.src), Step(s.src), P<Tpx32f>(s.dst), Step(s.dst), s.roi); },
      [](Images& s) { cv::transpose(s.src, s.dst); }, true);

  for (int axis = 0; axis <= 2; ++axis) {
    const int code = axis == 0 ? 0 : axis == 1 ? 1 : -1;  // OpenCV: 0 about x, 1 about y, -1 both
    Add("Mirror/8u_C1R/axis" + std::to_string(axis), CV_8UC1, 1,
        [axis](Images& s) { tpxiMirror_8u_C1R(P<Tpx8u>(s.src), Step(s.src), P<Tpx8u>(s.dst), Step(s.dst), s.roi, axis); },
        [code](Images& s) { cv::flip(s.src, s.dst, code); });
    Add("Mirror/8u_C4R/axis" + std::to_string(axis), CV_8UC4, 4,
        [axis](Images& s) { tpxiMirror_8u_C4R(P<Tpx8u>(s.src), Step(s.src), P<Tpx8u>(s.dst), Step(s.dst), s.roi, axis); },
        [code](Images& s) { cv::flip(s.src, s.dst, code); });
  }

  Add("SwapChannels/8u_C3R", CV_8UC3, 3,
      [](Images& s) {
        const int order[3] = {2, 1, 0};
        tpxiSwapChannels_8u_C3R(P<Tpx8u>(s.src), Step(s.src), P<Tpx8u>(s.dst), Step(s.dst), s.roi, order);
      },
      [](Images& s) {
        const int fromTo[6] = {0, 2, 1, 1, 2, 0};
        cv::mixChannels(&s.src, 1, &s.dst, 1, fromTo, 3);
      });
  return 0;
}();

}  // namespace
