// General filters on 1920x1080 beside cv::filter2D with the same kernel and a replicate
// border, single-threaded.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <memory>
#include <vector>

#include "harness.h"
#include "tpxip.h"

namespace {

struct State {
  cv::Mat src, dst, cvDst, kernel;
  std::vector<unsigned char> spec, buf;
  int layoutCh = 1;
};

template <class T>
TpxStatus Call(State& s) {
  const TpxSize roi{s.src.cols, s.src.rows};
  const void* spec = s.spec.data();
  Tpx8u* buf = s.buf.data();
  const T* src = s.src.ptr<T>();
  T* dst = s.dst.ptr<T>();
  const int ss = static_cast<int>(s.src.step), ds = static_cast<int>(s.dst.step);
  if constexpr (std::is_same_v<T, Tpx8u>) {
    return s.layoutCh == 1 ? tpxiFilterBorder_8u_C1R(src, ss, dst, ds, roi, 1, nullptr, spec, buf)
         : tpxiFilterBorder_8u_C3R(src, ss, dst, ds, roi, 1, nullptr, spec, buf);
  } else if constexpr (std::is_same_v<T, Tpx16s>) {
    return tpxiFilterBorder_16s_C1R(src, ss, dst, ds, roi, 1, nullptr, spec, buf);
  } else {
    return tpxiFilterBorder_32f_C1R(src, ss, dst, ds, roi, 1, nullptr, spec, buf);
  }
}

// kernelType 7: a 16-bit kernel with divisor `div`; 13: a float kernel.
template <class T>
void Add(const char* name, int cvType, int ch, int k, int kernelType, int div) {
  tpxbench::Case<State> c;
  c.name = name;
  c.extents = tpxbench::kHd;
  c.bw = tpxbench::Bw::kCopy;
  c.streamBytes = [=](tpxbench::Extent e) { return 1LL * e.w * e.h * ch * static_cast<long long>(sizeof(T)); };
  c.make = [=](tpxbench::Extent e) {
    auto s = std::make_unique<State>();
    s->layoutCh = ch;
    s->src.create(e.h, e.w, CV_MAKETYPE(cvType, ch));
    s->dst.create(e.h, e.w, CV_MAKETYPE(cvType, ch));
    cv::randu(s->src, 0, cvType == CV_32F ? 1 : 200);
    // A smoothing-like kernel of small integers; the float form carries the divisor.
    std::vector<Tpx16s> k16(k * k);
    std::vector<float> k32(k * k);
    for (int i = 0; i < k * k; ++i) k16[i] = static_cast<Tpx16s>(1 + (i * 7) % 5);
    int sum = 0;
    for (auto v : k16) sum += v;
    const int d = div > 0 ? div : sum;
    for (int i = 0; i < k * k; ++i) k32[i] = static_cast<float>(k16[i]) / static_cast<float>(d);
    s->kernel = cv::Mat(k, k, CV_32F, k32.data()).clone();
    int specSize = 0, bufSize = 0;
    const int dt = cvType == CV_8U ? 1 : cvType == CV_16S ? 7 : 13;
    tpxiFilterBorderGetSize({k, k}, {e.w, e.h}, dt, kernelType, ch, &specSize, &bufSize);
    s->spec.resize(specSize);
    s->buf.resize(bufSize);
    if (kernelType == 7)
      tpxiFilterBorderInit_16s(k16.data(), {k, k}, d, dt, ch, 1, s->spec.data());
    else
      tpxiFilterBorderInit_32f(k32.data(), {k, k}, dt, ch, 1, s->spec.data());
    return s;
  };
  c.tpx = [](State& s) { Call<T>(s); };
  c.peer = [](State& s) {
    cv::filter2D(s.src, s.cvDst, -1, s.kernel, cv::Point(-1, -1), 0, cv::BORDER_REPLICATE);
  };
  tpxbench::Register(c);
}

const int kRegistered = [] {
  cv::setNumThreads(1);
  Add<Tpx32f>("FilterBorder/32f_C1R/3x3", CV_32F, 1, 3, 13, 0);
  Add<Tpx32f>("FilterBorder/32f_C1R/5x5", CV_32F, 1, 5, 13, 0);
  Add<Tpx32f>("FilterBorder/32f_C1R/11x11", CV_32F, 1, 11, 13, 0);
  Add<Tpx8u>("FilterBorder/8u_C1R/3x3/16s_div64", CV_8U, 1, 3, 7, 64);
  Add<Tpx8u>("FilterBorder/8u_C1R/5x5/16s_div128", CV_8U, 1, 5, 7, 128);
  Add<Tpx8u>("FilterBorder/8u_C1R/3x3/32f", CV_8U, 1, 3, 13, 0);
  Add<Tpx8u>("FilterBorder/8u_C1R/5x5/32f", CV_8U, 1, 5, 13, 0);
  Add<Tpx8u>("FilterBorder/8u_C3R/5x5/16s_div128", CV_8U, 3, 5, 7, 128);
  Add<Tpx16s>("FilterBorder/16s_C1R/5x5/16s_div128", CV_16S, 1, 5, 7, 128);
  Add<Tpx8u>("FilterBorder/8u_C1R/11x11/32f", CV_8U, 1, 11, 13, 0);
  return 0;
}();

}  // namespace
