// Transpose: every member against a reference on non-square images and edge tiles, the square
// in-place forms, the same-image diversion before any check, the large-image path against the
// tile walk, the tile kernel against its scalar twin, and OpenCV as an independent oracle.
#include <gtest/gtest.h>

#include <utility>

#include "data/transpose_rows.h"
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
using Fn = TpxStatus (*)(const T*, int, T*, int, TpxSize);
template <class T>
using IpFn = TpxStatus (*)(T*, int, TpxSize);

template <class T>
struct Api;
#define TPX_TRANSPOSE_API(TT)                                                                              \
  template <>                                                                                              \
  struct Api<Tpx##TT> {                                                                                    \
    static constexpr Fn<Tpx##TT> out[3] = {tpxiTranspose_##TT##_C1R, tpxiTranspose_##TT##_C3R,             \
                                           tpxiTranspose_##TT##_C4R};                                      \
    static constexpr IpFn<Tpx##TT> in[3] = {tpxiTranspose_##TT##_C1IR, tpxiTranspose_##TT##_C3IR,          \
                                            tpxiTranspose_##TT##_C4IR};                                    \
  };
DATATEST_TYPES(TPX_TRANSPOSE_API)

constexpr int kChannels[3] = {1, 3, 4};

// Non-square images, edge tiles of every remainder, thin images, and sizes past one tile.
const std::pair<int, int> kExtents[] = {{1, 1},   {1, 37},  {37, 1},  {5, 3},   {16, 16},  {17, 33},
                                        {33, 17}, {64, 64}, {65, 130}, {130, 65}, {100, 37}, {200, 3}};

template <class T>
Plain<T> Transposed(const Plain<T>& s, Plain<T> d) {
  for (int y = 0; y < s.h; ++y)
    for (int x = 0; x < s.w; ++x)
      for (int c = 0; c < s.ch; ++c) d.At(y, x, c) = s.At(x, y, c);
  return d;
}

template <class T>
class TransposeTest : public ::testing::Test {};
TYPED_TEST_SUITE(TransposeTest, datatest::AllTypes);

TYPED_TEST(TransposeTest, OutOfPlaceAgainstReference) {
  using T = TypeParam;
  Rng rng(41);
  for (int l = 0; l < 3; ++l) {
    const int ch = kChannels[l];
    int k = 0;
    for (auto [w, h] : kExtents) {
      ++k;
      GuardedImage<T> src(w, h, ch, k % 4 * 3, k % 3), dst(h, w, ch, k % 5, (k + 1) % 4);
      tpxtest::FillRandom(src, rng);
      tpxtest::FillRandom(dst, rng);
      const Plain<T> want = Transposed(Plain<T>(src), Plain<T>(dst));
      ASSERT_EQ(tpxOk, Api<T>::out[l](src.Data(), src.Step(), dst.Data(), dst.Step(), src.Size()));
      ASSERT_TRUE(Same(dst, want)) << w << "x" << h << " C" << ch;
    }
  }
}

TYPED_TEST(TransposeTest, InPlaceSquares) {
  using T = TypeParam;
  Rng rng(42);
  for (int l = 0; l < 3; ++l)
    for (int n : {1, 2, 7, 16, 31, 32, 33, 64, 65, 100}) {
      GuardedImage<T> img(n, n, kChannels[l], n % 5, n % 3);
      tpxtest::FillRandom(img, rng);
      const Plain<T> want = Transposed(Plain<T>(img), Plain<T>(img));
      GuardedImage<T> again(n, n, kChannels[l], n % 5, n % 3);
      again.CopyFrom(img);
      ASSERT_EQ(tpxOk, Api<T>::in[l](img.Data(), img.Step(), img.Size()));
      ASSERT_TRUE(Same(img, want)) << n;
      // The out-of-place export on one image runs the in-place form.
      ASSERT_EQ(tpxOk, Api<T>::out[l](again.Data(), again.Step(), again.Data(), again.Step(), again.Size()));
      ASSERT_TRUE(Same(again, want)) << n;
    }
}

TYPED_TEST(TransposeTest, CheckOrderAndDiversion) {
  using T = TypeParam;
  T buf[64] = {};
  for (int l = 0; l < 3; ++l) {
    // Same pointer and step: the in-place form decides, before any check of its own kind.
    EXPECT_EQ(tpxErrNullPtr, Api<T>::out[l](nullptr, 8, nullptr, 8, TpxSize{0, 0}));
    EXPECT_EQ(tpxErrSize, Api<T>::out[l](buf, 8, buf, 8, TpxSize{2, 3}));  // not square
    EXPECT_EQ(tpxOk, Api<T>::out[l](buf, 8, buf + 16, 8, TpxSize{2, 3}));  // different pointers
    EXPECT_EQ(tpxErrNullPtr, Api<T>::out[l](buf, 8, nullptr, 8, TpxSize{0, 3}));
    EXPECT_EQ(tpxErrSize, Api<T>::out[l](buf, 8, buf + 16, 8, TpxSize{3, 0}));
    EXPECT_EQ(tpxOk, Api<T>::out[l](buf + 16, -8, buf + 40, 0, TpxSize{1, 2}));  // no step check
    EXPECT_EQ(tpxErrNullPtr, Api<T>::in[l](nullptr, 8, TpxSize{0, 5}));
    EXPECT_EQ(tpxErrSize, Api<T>::in[l](buf, 8, TpxSize{0, 0}));
    EXPECT_EQ(tpxErrSize, Api<T>::in[l](buf, 8, TpxSize{2, 1}));
  }
}

TEST(Transpose, ComplexFloat) {
  Rng rng(43);
  for (auto [w, h] : kExtents) {
    GuardedImage<Tpx32f> src(w, h, 2, 2, 1), dst(h, w, 2, 0, 0);  // a 32fc pixel is two floats
    tpxtest::FillRandom(src, rng);
    const Plain<Tpx32f> want = Transposed(Plain<Tpx32f>(src), Plain<Tpx32f>(dst));
    ASSERT_EQ(tpxOk, tpxiTranspose_32fc_C1R(reinterpret_cast<const Tpx32fc*>(src.Data()), src.Step(),
                                            reinterpret_cast<Tpx32fc*>(dst.Data()), dst.Step(), src.Size()));
    ASSERT_TRUE(Same(dst, want)) << w << "x" << h;
  }
  Tpx32fc z[4] = {};
  EXPECT_EQ(tpxErrSize, tpxiTranspose_32fc_C1R(z, 16, z, 16, TpxSize{2, 1}));
  EXPECT_EQ(tpxOk, tpxiTranspose_32fc_C1R(z, 16, z, 16, TpxSize{2, 2}));
}

int g_queries = 0;
int CountingTiny(int* size) {
  ++g_queries;
  *size = 1;
  return 0;
}
int FailingQuery(int* size) {
  ++g_queries;
  (void)size;
  return -1;
}

// The large-image path (width >= 1025, extents multiples of 64, aligned source and destination)
// gives the image of the tile walk. A failed query counts as a cache of 0 bytes.
template <int kE>
void LargeCase(int w, int h) {
  GuardedImage<unsigned char> src(w * kE, h, 1, 64 - (w * kE) % 64 + 64), a(h * kE, w, 1, (64 - (h * kE) % 64) % 64),
      b(h * kE, w, 1, (64 - (h * kE) % 64) % 64);
  Rng rng(kE);
  tpxtest::FillRandom(src, rng);
  g_queries = 0;
  tpx::TransposeImage<kE>(src.Data(), src.Step(), a.Data(), a.Step(), TpxSize{w, h}, CountingTiny);
  EXPECT_EQ(1, g_queries);
  tpx::TransposeImage<kE>(src.Data(), src.Step(), b.Data(), b.Step(), TpxSize{w, h}, datatest::CacheHuge);
  ASSERT_TRUE(a.GuardsIntact());
  ASSERT_TRUE(tpxtest::SameSamples(a, b)) << "E=" << kE;
  for (int y = 0; y < h; y += 7)
    for (int x = 0; x < w; x += 5)
      ASSERT_EQ(0, std::memcmp(&a.At(y * kE, x), &src.At(x * kE, y), kE)) << "E=" << kE;
  tpx::TransposeImage<kE>(src.Data(), src.Step(), b.Data(), b.Step(), TpxSize{w, h}, FailingQuery);
  ASSERT_TRUE(tpxtest::SameSamples(a, b));
  // Off the alignment the tile walk runs without asking.
  g_queries = 0;
  tpx::TransposeImage<kE>(src.Data(), src.Step(), b.Data() + 1, b.Step(), TpxSize{w, h}, CountingTiny);
  tpx::TransposeImage<kE>(src.Data(), src.Step(), b.Data(), b.Step(), TpxSize{w, h - 1}, CountingTiny);
  EXPECT_EQ(0, g_queries);
}

TEST(Transpose, LargeImagePathEqualsTiles) {
  LargeCase<1>(1088, 128);
  LargeCase<2>(1088, 64);
  LargeCase<3>(1088, 64);
  LargeCase<4>(1152, 128);
  LargeCase<8>(1088, 64);
  LargeCase<12>(1088, 64);
  LargeCase<16>(1088, 64);
}

template <int kE, bool kRev, int kA>
void TileTwin(Rng& rng) {
  for (int rows : {1, 3, 8, 16, 19, 35})
    for (int cols : {1, 4, 9, 16, 17, 40}) {
      std::vector<unsigned char> s(rows * 50 * kE + 64), a(cols * 40 * kE + 64), b;
      for (auto& v : s) v = static_cast<unsigned char>(rng.Bits());
      for (auto& v : a) v = static_cast<unsigned char>(rng.Bits());
      b = a;
      const std::ptrdiff_t ss = 50 * kE, ds = 40 * kE;
      const unsigned char* s0 = kRev ? s.data() + (cols - 1) * kE + 3 : s.data() + 3;
      tpx::TransposeTile<tpx::Isa::kAvx, kE, kRev, kA>(s0, ss, a.data() + 5, ds, rows, cols);
      tpx::TransposeTile<tpx::Isa::kScalar, kE, kRev, kA>(s0, ss, b.data() + 5, ds, rows, cols);
      ASSERT_EQ(a, b) << "E=" << kE << " rev=" << kRev << " " << rows << "x" << cols;
    }
}

TEST(Transpose, TileKernelAvxEqualsScalar) {
  Rng rng(44);
  TileTwin<1, false, 0>(rng);
  TileTwin<1, true, 0>(rng);
  TileTwin<2, false, 0>(rng);
  TileTwin<2, true, 0>(rng);
  TileTwin<4, false, 0>(rng);
  TileTwin<4, true, 1>(rng);
  TileTwin<8, true, 0>(rng);
  TileTwin<8, false, 2>(rng);
  TileTwin<3, true, 0>(rng);
  TileTwin<16, false, 4>(rng);
}

#ifdef TPX_HAVE_OPENCV
TEST(Transpose, AgreesWithOpenCV) {
  Rng rng(45);
  for (auto [w, h] : {std::pair{333, 129}, std::pair{64, 1000}}) {
    cv::Mat a(h, w, CV_8UC1), f(h, w, CV_32FC1);
    cv::randu(a, 0, 256);
    cv::randu(f, -1e6, 1e6);
    cv::Mat ta, tf, ga(w, h, CV_8UC1), gf(w, h, CV_32FC1);
    cv::transpose(a, ta);
    cv::transpose(f, tf);
    ASSERT_EQ(tpxOk, tpxiTranspose_8u_C1R(a.ptr(), static_cast<int>(a.step), ga.ptr(), static_cast<int>(ga.step), TpxSize{w, h}));
    ASSERT_EQ(tpxOk, tpxiTranspose_32f_C1R(f.ptr<float>(), static_cast<int>(f.step), gf.ptr<float>(), static_cast<int>(gf.step), TpxSize{w, h}));
    EXPECT_EQ(0, cv::norm(ta, ga, cv::NORM_INF));
    EXPECT_EQ(0, cv::norm(tf, gf, cv::NORM_INF));
  }
}
#endif

}  // namespace
