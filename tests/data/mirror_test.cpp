// Mirror: every member and axis against a reference, AC4 alpha kept, in place equal to out of
// place, the diagonal axes with their overlap test, the check order, the streaming C4 path
// against plain stores, the row kernels against their scalar twins, OpenCV as an oracle.
#include <gtest/gtest.h>

#include "data/mirror_rows.h"
#include "tests/data/data_support.h"
#ifdef TPX_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using datatest::GuardedImage;
using datatest::Plain;
using datatest::Rng;
using datatest::Same;

template <class T>
using Fn = TpxStatus (*)(const T*, int, T*, int, TpxSize, TpxAxis);
template <class T>
using IpFn = TpxStatus (*)(T*, int, TpxSize, TpxAxis);

template <class T>
struct Api;
#define TPX_MIRROR_API(TT)                                                                                    \
  template <>                                                                                                 \
  struct Api<Tpx##TT> {                                                                                       \
    static constexpr Fn<Tpx##TT> out[4] = {tpxiMirror_##TT##_C1R, tpxiMirror_##TT##_C3R, tpxiMirror_##TT##_C4R, \
                                           tpxiMirror_##TT##_AC4R};                                           \
    static constexpr IpFn<Tpx##TT> in[4] = {tpxiMirror_##TT##_C1IR, tpxiMirror_##TT##_C3IR,                    \
                                            tpxiMirror_##TT##_C4IR, tpxiMirror_##TT##_AC4IR};                  \
  };
DATATEST_TYPES(TPX_MIRROR_API)

using datatest::kLayoutChannels;
using datatest::kLayoutWritten;

// Expected image of axis 0, 1 or 2 (same extents) or 3, 4 (extents swapped) over `before`.
template <class T>
Plain<T> Mirrored(const Plain<T>& s, Plain<T> d, int flip, int proc) {
  for (int y = 0; y < s.h; ++y)
    for (int x = 0; x < s.w; ++x)
      for (int c = 0; c < proc; ++c) {
        const T v = s.At(x, y, c);
        switch (flip) {
          case 0: d.At(x, s.h - 1 - y, c) = v; break;
          case 1: d.At(s.w - 1 - x, y, c) = v; break;
          case 2: d.At(s.w - 1 - x, s.h - 1 - y, c) = v; break;
          case 3: d.At(y, x, c) = v; break;
          default: d.At(s.h - 1 - y, s.w - 1 - x, c) = v; break;
        }
      }
  return d;
}

template <class T>
class MirrorTest : public ::testing::Test {};
TYPED_TEST_SUITE(MirrorTest, datatest::AllTypes);

TYPED_TEST(MirrorTest, EveryAxisAndLayout) {
  using T = TypeParam;
  Rng rng(51);
  for (int l = 0; l < 4; ++l)
    for (int flip = 0; flip <= 4; ++flip) {
      const int ch = kLayoutChannels[l];
      for (const tpxtest::Shape sh : tpxtest::Shapes(16, {97, 130})) {
        const bool diag = flip >= 3;
        GuardedImage<T> src(sh.width, sh.height, ch, sh.padSamples, sh.misalign);
        GuardedImage<T> dst(diag ? sh.height : sh.width, diag ? sh.width : sh.height, ch, (sh.padSamples + 1) % 6, (sh.misalign + 2) % 5);
        tpxtest::FillRandom(src, rng);
        tpxtest::FillRandom(dst, rng);
        const Plain<T> want = Mirrored(Plain<T>(src), Plain<T>(dst), flip, kLayoutWritten[l]);
        ASSERT_EQ(tpxOk, Api<T>::out[l](src.Data(), src.Step(), dst.Data(), dst.Step(), src.Size(), flip));
        ASSERT_TRUE(Same(dst, want)) << "flip " << flip << " C" << ch << " " << sh.width << "x" << sh.height;
        if (diag) continue;
        // In place, through the IR export and through the same-image diversion.
        GuardedImage<T> a(sh.width, sh.height, ch, sh.padSamples, sh.misalign), b(sh.width, sh.height, ch, 1, 0);
        a.CopyFrom(src);
        b.CopyFrom(src);
        const Plain<T> wantIp = Mirrored(Plain<T>(src), Plain<T>(src), flip, kLayoutWritten[l]);
        ASSERT_EQ(tpxOk, Api<T>::in[l](a.Data(), a.Step(), a.Size(), flip));
        ASSERT_TRUE(Same(a, wantIp)) << "in place, flip " << flip << " C" << ch << " " << sh.width << "x" << sh.height;
        ASSERT_EQ(tpxOk, Api<T>::out[l](b.Data(), b.Step(), b.Data(), b.Step(), b.Size(), flip));
        ASSERT_TRUE(Same(b, wantIp));
      }
    }
}

TYPED_TEST(MirrorTest, CheckOrder) {
  using T = TypeParam;
  T buf[64] = {};
  for (int l = 0; l < 4; ++l) {
    const auto fn = Api<T>::out[l];
    EXPECT_EQ(tpxErrSize, fn(buf, 8, buf + 32, 8, TpxSize{0, 2}, 5));  // extents before the axis
    EXPECT_EQ(tpxErrMirrorAxis, fn(buf, 8, buf + 32, 8, TpxSize{1, 2}, 5));
    EXPECT_EQ(tpxErrMirrorAxis, fn(buf, 8, buf + 32, 8, TpxSize{1, 2}, -1));
    EXPECT_EQ(tpxErrNullPtr, fn(nullptr, 8, buf, 8, TpxSize{0, 2}, 7));
    EXPECT_EQ(tpxOk, fn(buf + 16, -8, buf + 32, 0, TpxSize{1, 2}, 1));  // no step check on axes 0..2
    // Diagonals: pointers, steps below 1, extents, overlap.
    EXPECT_EQ(tpxErrNullPtr, fn(buf, 0, nullptr, 0, TpxSize{0, 0}, 3));
    EXPECT_EQ(tpxErrStep, fn(buf, 0, buf + 32, 8, TpxSize{0, 0}, 4));
    EXPECT_EQ(tpxErrSize, fn(buf, 16, buf + 32, 16, TpxSize{0, 1}, 3));
    EXPECT_EQ(tpxErrNotSupportedMode, fn(buf, 16, buf, 16, TpxSize{1, 1}, 3));  // one image: no diversion
    EXPECT_EQ(tpxOk, fn(buf, 16, buf + 32, 16, TpxSize{1, 2}, 4));
    // In-place forms: pointer, extents, the axis; a diagonal is refused.
    EXPECT_EQ(tpxErrNullPtr, Api<T>::in[l](nullptr, 8, TpxSize{0, 0}, 9));
    EXPECT_EQ(tpxErrSize, Api<T>::in[l](buf, 8, TpxSize{0, 1}, 9));
    EXPECT_EQ(tpxErrMirrorAxis, Api<T>::in[l](buf, 8, TpxSize{1, 1}, 3));
  }
  // The same image diverts to the in-place form before any check, so its status comes from it.
  EXPECT_EQ(tpxErrNullPtr, Api<T>::out[0](nullptr, 4, nullptr, 4, TpxSize{0, 0}, 9));
  EXPECT_EQ(tpxErrMirrorAxis, Api<T>::out[0](buf, 4, buf, 4, TpxSize{2, 2}, 9));
}

// Overlap of the diagonal forms: any source row that meets the destination's bounding range, or
// any destination row that meets the source's, refuses the call.
TEST(MirrorDiagonal, OverlapInBothDirections) {
  std::vector<Tpx16u> mem(4000);
  Tpx16u* s = mem.data() + 100;
  const TpxSize roi{10, 4};  // the destination is 4 wide and 10 high
  EXPECT_EQ(tpxErrNotSupportedMode, tpxiMirror_16u_C1R(s, 40, s + 19, 8, roi, 3));  // inside the second source row
  EXPECT_EQ(tpxErrNotSupportedMode, tpxiMirror_16u_C1R(s, 40, s - 35, 8, roi, 4));  // runs into the first source row
  EXPECT_EQ(tpxErrNotSupportedMode, tpxiMirror_16u_C1R(s, 40, s - 39, 8, roi, 4));
  EXPECT_EQ(tpxOk, tpxiMirror_16u_C1R(s, 40, s - 40, 8, roi, 4));  // ends where the source begins
  EXPECT_EQ(tpxOk, tpxiMirror_16u_C1R(s, 40, s + 70, 8, roi, 3));  // begins where the last source row ends
  // The destination lies between two source rows: no source row meets the destination's range,
  // but the destination's rows meet the source's.
  EXPECT_EQ(tpxErrNotSupportedMode, tpxiMirror_16u_C1R(s, 1000, s + 250, 4, TpxSize{10, 2}, 3));
}

// Past 0x100001 pixels a C4 mirror streams through a stack block; the bytes are those of plain
// stores. Axis 0 of the other layouts streams through the copy driver.
TEST(MirrorStreaming, EqualsPlainStores) {
  const TpxSize roi{1100, 960};
  GuardedImage<Tpx8u> src(roi.width, roi.height, 4, 4, 1), a(roi.width, roi.height, 4, 0, 3), b(roi.width, roi.height, 4, 0, 3);
  Rng rng(52);
  tpxtest::FillRandom(src, rng);
  for (int flip = 0; flip <= 2; ++flip) {
    tpx::MirrorImage<Tpx8u, tpx::Layout::C4>(src.Data(), src.Step(), a.Data(), a.Step(), roi, flip, datatest::CacheTiny);
    tpx::MirrorImage<Tpx8u, tpx::Layout::C4>(src.Data(), src.Step(), b.Data(), b.Step(), roi, flip, datatest::CacheUnknown);
    ASSERT_TRUE(a.GuardsIntact());
    ASSERT_TRUE(tpxtest::SameSamples(a, b)) << flip;
  }
  GuardedImage<Tpx8u> s1(2100, 1000, 1), c(2100, 1000, 1, 0, 5), e(2100, 1000, 1, 0, 5);
  tpxtest::FillRandom(s1, rng);
  tpx::MirrorImage<Tpx8u, tpx::Layout::C1>(s1.Data(), s1.Step(), c.Data(), c.Step(), s1.Size(), 0, datatest::CacheTiny);
  tpx::MirrorImage<Tpx8u, tpx::Layout::C1>(s1.Data(), s1.Step(), e.Data(), e.Step(), s1.Size(), 0, datatest::CacheUnknown);
  ASSERT_TRUE(tpxtest::SameSamples(c, e));
  ASSERT_EQ(0, std::memcmp(c.Row(0), s1.Row(999), 2100));
}

template <class T, tpx::Layout kL>
void RowTwins(Rng& rng) {
  constexpr int S = tpx::Stride(kL);
  for (int w = 0; w <= 3 * 16 + 3; ++w) {
    std::vector<T> s(w * S + 2), a(w * S + 2), b, a2(w * S + 2), b2;
    for (auto& v : s) v = rng.Sample<T>();
    for (auto& v : a) v = rng.Sample<T>();
    for (auto& v : a2) v = rng.Sample<T>();
    b = a;
    b2 = a2;
    tpx::ReverseRow<tpx::Isa::kAvx, T, kL>(s.data(), a.data(), w);
    tpx::ReverseRow<tpx::Isa::kScalar, T, kL>(s.data(), b.data(), w);
    ASSERT_EQ(0, std::memcmp(a.data(), b.data(), a.size() * sizeof(T))) << "reverse w=" << w;
    tpx::ReversePair<tpx::Isa::kAvx, T, kL>(a.data(), a.data(), w);  // one row in place
    tpx::ReversePair<tpx::Isa::kScalar, T, kL>(b.data(), b.data(), w);
    ASSERT_EQ(0, std::memcmp(a.data(), b.data(), a.size() * sizeof(T))) << "pair, one row, w=" << w;
    tpx::ReversePair<tpx::Isa::kAvx, T, kL>(a.data(), a2.data(), w);
    tpx::ReversePair<tpx::Isa::kScalar, T, kL>(b.data(), b2.data(), w);
    ASSERT_EQ(0, std::memcmp(a.data(), b.data(), a.size() * sizeof(T))) << "pair w=" << w;
    ASSERT_EQ(0, std::memcmp(a2.data(), b2.data(), a2.size() * sizeof(T))) << "pair w=" << w;
    tpx::SwapRows<tpx::Isa::kAvx, T, kL>(a.data(), a2.data(), w);
    tpx::SwapRows<tpx::Isa::kScalar, T, kL>(b.data(), b2.data(), w);
    ASSERT_EQ(0, std::memcmp(a.data(), b.data(), a.size() * sizeof(T))) << "swap w=" << w;
    ASSERT_EQ(0, std::memcmp(a2.data(), b2.data(), a2.size() * sizeof(T))) << "swap w=" << w;
  }
}

TEST(MirrorKernels, AvxEqualsScalar) {
  Rng rng(53);
  using tpx::Layout;
  RowTwins<Tpx8u, Layout::C1>(rng);
  RowTwins<Tpx8u, Layout::C3>(rng);
  RowTwins<Tpx8u, Layout::C4>(rng);
  RowTwins<Tpx8u, Layout::AC4>(rng);
  RowTwins<Tpx16s, Layout::C1>(rng);
  RowTwins<Tpx16u, Layout::C3>(rng);
  RowTwins<Tpx16u, Layout::AC4>(rng);
  RowTwins<Tpx32f, Layout::C3>(rng);
  RowTwins<Tpx32s, Layout::C4>(rng);
  RowTwins<Tpx32f, Layout::AC4>(rng);
}

#ifdef TPX_HAVE_OPENCV
TEST(Mirror, AgreesWithOpenCVFlip) {
  cv::Mat a(123, 301, CV_8UC3), c4(77, 260, CV_8UC4);
  cv::randu(a, 0, 256);
  cv::randu(c4, 0, 256);
  for (int flip = 0; flip <= 2; ++flip) {
    const int code = flip == 0 ? 0 : flip == 1 ? 1 : -1;
    cv::Mat want, got(a.size(), a.type()), want4, got4(c4.size(), c4.type());
    cv::flip(a, want, code);
    cv::flip(c4, want4, code);
    ASSERT_EQ(tpxOk, tpxiMirror_8u_C3R(a.ptr(), static_cast<int>(a.step), got.ptr(), static_cast<int>(got.step), TpxSize{a.cols, a.rows}, flip));
    ASSERT_EQ(tpxOk, tpxiMirror_8u_C4R(c4.ptr(), static_cast<int>(c4.step), got4.ptr(), static_cast<int>(got4.step), TpxSize{c4.cols, c4.rows}, flip));
    EXPECT_EQ(0, cv::norm(want, got, cv::NORM_INF)) << flip;
    EXPECT_EQ(0, cv::norm(want4, got4, cv::NORM_INF)) << flip;
  }
}
#endif

}  // namespace
