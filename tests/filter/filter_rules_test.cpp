// Rules of the general filter beside the model: the route of each integer call and its
// rounding, Init and SetMode records, size formulas and check orders, and filter2D as an
// independent oracle for 32f.
#include <gtest/gtest.h>

#include <vector>
#ifdef TPX_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

#include "filter/filter_border.h"
#include "filter/filter_spec.h"
#include "filter_model.h"

namespace {

using namespace filtertest;
using namespace tpx::filter;

// One 3x3 kernel whose centre alone is non-zero turns each sample x into the sum a = x. Every
// side is in memory, so one call of the row routine covers the region and its width picks
// the route (8: scalar table, 16: fast rows).
template <class T, int kCh>
std::vector<T> RunCentre(int divisor, int mode, int hint, int offset, int w, const std::vector<T>& xs) {
  World<T> world(w, 1, 2, kCh, 0, 0);
  for (int i = 0; i < w * kCh; ++i) world.img.Row(2)[2 * kCh + i] = xs[i % xs.size()];
  Prepared p;
  EXPECT_EQ(tpxOk, p.Size({3, 3}, {w, 1}, kDataType<T>, 7, kCh));
  const Tpx16s K[9] = {0, 0, 0, 0, 1, 0, 0, 0, 0};
  EXPECT_GE(tpxiFilterBorderInit_16s(K, {3, 3}, divisor, kDataType<T>, kCh, mode, p.Spec()), 0);
  if (hint || offset) EXPECT_EQ(tpxOk, tpxiFilterBorderSetMode(hint, offset, p.Spec()));
  GuardedImage<T> dst(w, 1, kCh);
  EXPECT_EQ(tpxOk, (Run<T, kCh>(world.Region(), world.Step(), dst.Data(), dst.Step(), {w, 1}, 240, nullptr, p.Spec(), p.Buf())));
  EXPECT_TRUE(dst.GuardsIntact());
  return dst.Samples();
}

TEST(FilterRoutes, FinalisersAndScalarTableAgainstTheirRules) {
  std::vector<Tpx8u> xs(16);
  for (int i = 0; i < 16; ++i) xs[i] = static_cast<Tpx8u>(i);
  for (int divisor : {3, 6, 10, -4, 8})
    for (int mode : {0, 1, 2})
      for (int accurate : {0, 16})
        for (int w : {8, 16}) {
          const auto got = RunCentre<Tpx8u, 1>(divisor, mode | accurate, 0, 0, w, xs);
          for (int a = 0; a < w; ++a) {
            const long double q = static_cast<long double>(a) / divisor;
            long long r = RoundExact(q, mode);  // the scalar table and both finalisers off the cases below
            if (w == 16 && divisor == 8 && mode == 0 && !accurate) r = RoundExact(q, 1);  // plain, 2^k: half to even
            // The even-divisor correction compares with q*d + d/2, written for positive
            // divisors: with -4 it lifts the sums 0..3 to 1.
            if (w == 16 && divisor < 0 && (mode == 2 || (mode == 1 && accurate))) r = a < 4 ? 1 : 0;
            EXPECT_EQ(Saturate<Tpx8u>(r), got[a]) << "d=" << divisor << " mode=" << mode << " acc=" << accurate << " w=" << w << " a=" << a;
          }
        }
  // C4 near route (mode 1, valid table): rint(offset * divisor + a / divisor), ties to even;
  // the C3 rows add the offset before the divide. The 16s scalar table keeps its sign.
  const auto c4 = RunCentre<Tpx8u, 4>(2, 1, 1, 3, 4, {10, 11, 12, 13}), c3 = RunCentre<Tpx8u, 3>(2, 1, 1, 3, 4, {10, 11, 12, 13});
  for (int i = 0; i < 16; ++i) EXPECT_TRUE(c4[i] == (i % 4 ? 12 : 11) && (i >= 12 || c3[i] == std::max(8, i % 4 + 7))) << i;
  EXPECT_EQ((RunCentre<Tpx16s, 1>(2, 1, 0, 0, 8, {-5, -3, -1, 1, 3, 5, -32768, 32767})),
            (std::vector<Tpx16s>({-2, -2, 0, 0, 2, 2, -16384, 16384})));
  // A coefficient of 32767 or -32768 leaves the pair table unused (the scalar route on wide regions).
  alignas(64) unsigned char block[4096];
  Tpx16s K[9] = {0, 0, 0, 0, 1, 0, 0, 0, 0};
  for (int c : {32767, -32768, 32766}) {
    K[0] = static_cast<Tpx16s>(c);
    ASSERT_EQ(tpxOk, tpxiFilterBorderInit_16s(K, {3, 3}, 2, 1, 1, 0, block));
    EXPECT_EQ(c == 32766 ? 1u : 0u, SpecAt(block)->pairTableValid) << c;
  }
}

TEST(FilterInit, CheckOrdersRoundFlagAndSetModeByKind) {
  alignas(64) unsigned char block[4096];
  const FilterBorderSpec* s = SpecAt(block + 1);
  const Tpx16s K[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  const float KF[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  const double KD[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  // The accurate flag is kept by the 8u and 16s C1 integer rows and dropped with a warning elsewhere.
  const int flagCases[][4] = {{1, 3, tpxOk, 17}, {7, 1, tpxOk, 17}, {7, 3, tpxWarnRoundFlagDropped, 1}, {7, 2, tpxWarnRoundFlagDropped, 1}};
  for (auto& c : flagCases) {
    EXPECT_EQ(c[2], tpxiFilterBorderInit_16s(K, {3, 3}, 4, c[0], c[1], 17, block + 1)) << c[0] << " " << c[1];
    EXPECT_EQ(static_cast<unsigned>(c[3]), s->roundMode);
  }
  EXPECT_EQ(tpxWarnRoundFlagDropped, tpxiFilterBorderInit_32f(KF, {2, 2}, 13, 1, 18, block + 1));
  EXPECT_EQ(2u, s->roundMode);
  // SetMode: {init, hint, offset, status, roundMode after}; init 0..2 = 16s kernel over 8u, over
  // 16s C1, over 16s C2; 3, 4 = float kernel over 32f, over 8u; 5 = 64f.
  EXPECT_EQ(tpxErrNullPtr, tpxiFilterBorderSetMode(2, 0, nullptr));
  const int setCases[][5] = {{0, 2, 5, tpxOk, 17}, {0, 1, 0, tpxOk, 1}, {1, 2, 1, tpxErrNotSupportedMode, 1},
                             {1, 2, 0, tpxOk, 17}, {2, 2, 0, tpxOk, 1}, {3, 0, 1, tpxErrNotSupportedMode, 1},
                             {4, 2, 7, tpxOk, 1}, {5, 2, 0, tpxOk, -1}, {5, 2, 1, tpxErrNotSupportedMode, -1}};
  for (auto& c : setCases) {
    if (c[0] < 3) tpxiFilterBorderInit_16s(K, {3, 3}, 3, c[0] ? 7 : 1, c[0] == 2 ? 2 : 1, 1, block + 1);
    else if (c[0] < 5) tpxiFilterBorderInit_32f(KF, {3, 3}, c[0] == 3 ? 13 : 1, 1, 1, block + 1);
    else tpxiFilterBorderInit_64f(KD, {3, 3}, 19, 1, 17, block + 1);
    const_cast<FilterBorderSpec*>(s)->hint = 9;
    EXPECT_EQ(c[3], tpxiFilterBorderSetMode(c[1], c[2], block + 1)) << c[0] << " " << c[1] << " " << c[2];
    if (c[4] >= 0) EXPECT_EQ(static_cast<unsigned>(c[4]), s->roundMode) << c[0];
    if (c[0] == 5 || c[2] == 5) EXPECT_EQ(c[0] == 5 ? 9 : 2, s->hint);  // 64f stores nothing
    if (c[3] == tpxOk && c[0] != 5) EXPECT_EQ(c[0] == 4 ? c[2] : c[2] * 3, s->offsetF) << c[0];  // offset * divisor, or as it is
  }
  // Check orders of the three Init forms: {form (16s, 32f, 64f), kernel width, dataType,
  // channels, roundMode, status}, every kernel 2 high and the divisor 0. 16s with one channel
  // and the flag skips the type and channel tests: they already hold.
  EXPECT_EQ(tpxErrNullPtr, tpxiFilterBorderInit_16s(nullptr, {0, 2}, 0, 99, 9, 99, block + 1));
  const int orders[][6] = {{0, 0, 99, 9, 99, tpxErrSize}, {0, 2, 13, 9, 99, tpxErrDataType}, {0, 2, 1, 5, 99, tpxErrChannelCount},
                           {0, 2, 1, 1, 3, tpxErrRoundMode}, {0, 2, 1, 1, 18, tpxErrZeroDivisorArg}, {0, 2, 7, 1, 16, tpxErrZeroDivisorArg},
                           {1, 2, 19, 9, 99, tpxErrDataType}, {1, 2, 13, 0, 99, tpxErrChannelCount}, {1, 2, 13, 2, -1, tpxErrRoundMode},
                           {2, 2, 13, 2, 0, tpxErrDataType}, {2, 2, 19, 2, 0, tpxErrChannelCount}, {2, 2, 19, 1, 0, tpxErrRoundMode},
                           {2, 2, 19, 1, 17, tpxOk}};
  for (auto& o : orders) {
    const TpxSize k{o[1], 2};
    EXPECT_EQ(o[5], o[0] == 0 ? tpxiFilterBorderInit_16s(K, k, 0, o[2], o[3], o[4], block + 1) : o[0] == 1 ? tpxiFilterBorderInit_32f(KF, k, o[2], o[3], o[4], block + 1)
                                                                                              : tpxiFilterBorderInit_64f(KD, k, o[2], o[3], o[4], block + 1)) << &o - orders;
  }
}

TEST(FilterChecks, Older64fFilter) {
  int size = -1;
  EXPECT_TRUE(tpxiFilterGetBufSize_64f_C1R({1, 3}, 16, &size) == tpxOk && size == 96);
  EXPECT_TRUE(tpxiFilterGetBufSize_64f_C1R({1, 3}, 15, &size) == tpxOk && size == 0);
  EXPECT_EQ(tpxErrNullPtr, tpxiFilterGetBufSize_64f_C1R({0, 3}, 15, nullptr));
  EXPECT_EQ(tpxErrSize, tpxiFilterGetBufSize_64f_C1R({0, 3}, 15, &size));
  double src[64] = {}, dst[8], k[4] = {1, 2, 3, 4};
  EXPECT_EQ(tpxErrNullPtr, tpxiFilter_64f_C1R(src, 0, dst, 0, {0, 1}, nullptr, {2, 2}, {0, 0}, nullptr));
  EXPECT_EQ(tpxErrSize, tpxiFilter_64f_C1R(src, 0, dst, 0, {0, 1}, k, {2, 2}, {0, 0}, nullptr));
  EXPECT_EQ(tpxErrStep, tpxiFilter_64f_C1R(src, 39, dst, 32, {4, 1}, k, {2, 2}, {0, 0}, nullptr));  // needs 40
  EXPECT_EQ(tpxErrStep, tpxiFilter_64f_C1R(src, 40, dst, 31, {4, 1}, k, {2, 2}, {0, 0}, nullptr));
  EXPECT_EQ(tpxOk, tpxiFilter_64f_C1R(src + 9, 40, dst, 32, {4, 1}, k, {2, 2}, {1, 1}, nullptr));
}

TEST(FilterChecks, RunOrder) {
  alignas(64) unsigned char spec[4096];
  Tpx8u buf[4096], src[256] = {}, dst[256];
  const Tpx16s K[9] = {0, 0, 0, 0, 1, 0, 0, 0, 0};
  tpxiFilterBorderInit_16s(K, {3, 3}, 1, 1, 1, 1, spec);
  const TpxSize ok{4, 4}, empty{0, 4};
  EXPECT_EQ(tpxErrNullPtr, tpxiFilterBorder_8u_C1R(src, 16, dst, 16, empty, 999, nullptr, spec, nullptr));
  EXPECT_EQ(tpxErrNullPtr, tpxiFilterBorder_8u_C1R(src, 0, dst, 16, empty, 6, nullptr, spec, buf));
  EXPECT_EQ(tpxErrSize, tpxiFilterBorder_8u_C1R(src, 0, dst, 0, empty, 999, nullptr, spec, buf));
  EXPECT_EQ(tpxErrStep, tpxiFilterBorder_8u_C1R(src, 0, dst, 16, ok, 999, nullptr, spec, buf));
  EXPECT_EQ(tpxErrStep, tpxiFilterBorder_8u_C1R(src, 16, dst, 3, ok, 999, nullptr, spec, buf));
  // The destination step is compared with single samples: C4 of width 4 passes with 8 bytes.
  Tpx16u s16[512] = {}, d16[512];
  EXPECT_EQ(tpxErrBorder, tpxiFilterBorder_16u_C4R(s16, 64, d16, 8, ok, 256, nullptr, spec, buf));
  EXPECT_EQ(tpxErrStep, tpxiFilterBorder_16u_C4R(s16, 64, d16, 7, ok, 256, nullptr, spec, buf));
  for (int bt : {0, 2, 4, 5, 7, 0x12, 0x30, 0xF4, 256, -1})
    EXPECT_EQ(tpxErrBorder, tpxiFilterBorder_8u_C1R(src, 16, dst, 16, ok, bt, nullptr, spec, buf)) << bt;
  for (int bt : {1, 3, 240, 0xF1, 0x13, 0x86})  // the region stands inside src: sides may be read
    EXPECT_EQ(tpxOk, tpxiFilterBorder_8u_C1R(src + 40, 16, dst, 16, ok, bt, src, spec, buf)) << bt;
  // borderType 240 never reads the constant.
  EXPECT_EQ(tpxOk, tpxiFilterBorder_8u_C1R(src + 20, 16, dst, 16, {2, 2}, 240, nullptr, spec, buf));
}

int NoWide(unsigned long long) { return 0; }
int Wide(unsigned long long mask) { return mask == 0x8000000ULL; }

TEST(FilterSizes, WorkedValuesOrdersAndScratch) {
  int spec = -1, buf = -1;
  // 8u C1, 16-bit kernel 3x3 over 100x50: scratch max((3+1-1)*(3+100-1), (3-1+1)*(3-1+50)) = 306
  // bytes -> 352 with its slack; work ((((32&~15)*3)+100)*4+28)&~31 = 800 -> R = 960.
  // Spec: align64(9 << 1) + 191 + align64(4 * 3 * 80).
  ASSERT_EQ(tpxOk, FilterBorderGetSize({3, 3}, {100, 50}, 1, 7, 1, &spec, &buf, NoWide));
  EXPECT_EQ(64 + 191 + 960, spec);
  EXPECT_EQ(352 + 960 + 63, buf);
  // Region no larger than the kernel: the whole extended region. 32f C3 5x5 over 4x9:
  // (5+9-1)*(5+4-1) = 104 pixels * 4 * 3 = 1248 -> 1248 + 32; work R(25*16) = 576.
  ASSERT_EQ(tpxOk, FilterBorderGetSize({5, 5}, {4, 9}, 13, 13, 3, &spec, &buf, NoWide));
  EXPECT_EQ(128 + 191 + 2432, spec);
  EXPECT_EQ(1280 + 576 + 63, buf);
  // 8u with a float kernel: the 512-bit room where it is the larger. C4 kh 1 over W 1:
  // inner value 64, room 1 * ((9+3)>>2) * 64 = 192.
  ASSERT_EQ(tpxOk, FilterBorderGetSize({9, 1}, {1, 1}, 1, 13, 4, &spec, &buf, NoWide));
  const int plain = buf;
  ASSERT_EQ(tpxOk, FilterBorderGetSize({9, 1}, {1, 1}, 1, 13, 4, &spec, &buf, Wide));
  EXPECT_EQ(plain - 256 + 384, buf);
  ASSERT_EQ(tpxOk, FilterBorderGetSize({9, 1}, {1, 1}, 1, 7, 4, &spec, &buf, Wide));  // 16-bit kernel: no room
  const int wide16 = buf;
  ASSERT_EQ(tpxOk, FilterBorderGetSize({9, 1}, {1, 1}, 1, 7, 4, &spec, &buf, NoWide));
  EXPECT_EQ(wide16, buf);
  // 16s C3 takes the float kernel size whatever kernelType says.
  ASSERT_EQ(tpxOk, FilterBorderGetSize({3, 3}, {10, 10}, 7, 7, 3, &spec, &buf, NoWide));
  EXPECT_EQ(64 + 191 + 960, spec);
  // 64f: spec align64(kw*kh*8) + 191; buffer scratch + older-filter buffer + 126.
  ASSERT_EQ(tpxOk, FilterBorderGetSize({1, 3}, {16, 20}, 19, 19, 1, &spec, &buf, NoWide));
  EXPECT_EQ(64 + 191, spec);
  EXPECT_EQ(static_cast<int>(BorderBytes(1, 3, 16, 20, 8, 1)) + 96 + 126, buf);
  // Orders: {kernel height, dataType, kernelType, channels, spec count given, buffer count given, status}.
  const int orders[][7] = {{0, 99, 99, 99, 0, 0, tpxErrSize}, {3, 19, 19, 2, 0, 0, tpxErrChannelCount}, {3, 19, 19, 1, 0, 1, tpxErrNullPtr},
                           {3, 19, 13, 2, 0, 0, tpxErrDataType}, {3, 1, 7, 5, 0, 0, tpxErrChannelCount}, {3, 1, 11, 5, 0, 0, tpxErrDataType},
                           {3, 1, 13, 2, 1, 0, tpxErrNullPtr}, {3, 1, 11, 2, 1, 0, tpxErrDataType}, {3, 1, 19, 2, 1, 1, tpxErrDataType}};
  for (auto& o : orders)
    EXPECT_EQ(o[6], FilterBorderGetSize({3, o[0]}, {1, 1}, o[1], o[2], o[3], o[4] ? &spec : nullptr, o[5] ? &buf : nullptr, NoWide)) << &o - orders;
  // Too large: the buffer count is zeroed. 16u, one extended region of 40002^2 samples.
  buf = 5;
  EXPECT_EQ(tpxErrExceededSize, FilterBorderGetSize({3, 40000}, {40000, 3}, 5, 13, 1, &spec, &buf, NoWide));
  EXPECT_EQ(0, buf);
  // The scratch holds the largest strip: the bottom one (rows below the anchor plus kh - 1) or
  // a side one (columns right of it plus kw - 1), widened to two for mirror with a size of 2.
  for (int kw = 1; kw <= 9; ++kw)
    for (int kh = 1; kh <= 9; ++kh)
      for (int W : {1, kw, kw + 1, 40})
        for (int H : {1, kh, kh + 1, 33}) {
          const int by = kh == 2 ? 2 : kh - 1 - ((kh - 1) >> 1), rx = kw == 2 ? 2 : kw - 1 - ((kw - 1) >> 1);
          const long long need = W <= kw || H <= kh ? 1LL * (W + kw - 1) * (H + kh - 1)
                                                    : std::max(1LL * (kh - 1 + by) * (W + kw - 1), 1LL * (kw - 1 + rx) * (H + kh - 1));
          EXPECT_GE(static_cast<long long>(BorderBytes(kw, kh, W, H, 4, 3)), need * 12 + 32);
        }
}

#ifdef TPX_HAVE_OPENCV
TEST(FilterOracle, Float32AgainstOpenCv) {
  Rng rng(99);
  const std::pair<int, int> borders[] = {{1, cv::BORDER_REPLICATE}, {3, cv::BORDER_REFLECT_101}, {6, cv::BORDER_CONSTANT}};
  for (TpxSize k : {TpxSize{3, 3}, TpxSize{5, 5}, TpxSize{7, 5}, TpxSize{4, 2}, TpxSize{11, 11}}) {
    for (auto [bt, cvb] : borders) {
      const int W = 61, H = 29;
      cv::Mat src(H, W, CV_32FC3), kernel(k.height, k.width, CV_32F), ref;
      cv::randu(src, -10, 10);
      cv::randu(kernel, -1, 1);
      const float value[3] = {1.5f, -2.f, 0.25f};
      const int ax = (k.width - 1) >> 1, ay = (k.height - 1) >> 1;
      cv::Mat padded;  // filter2D's constant border is one value for every channel: pad first
      cv::copyMakeBorder(src, padded, ay, k.height - 1 - ay, ax, k.width - 1 - ax, cvb, cv::Scalar(value[0], value[1], value[2]));
      cv::filter2D(padded, ref, -1, kernel, cv::Point(ax, ay), 0, cv::BORDER_CONSTANT);
      ref = ref(cv::Rect(ax, ay, W, H)).clone();
      Prepared p;
      ASSERT_EQ(tpxOk, p.Size(k, {W, H}, 13, 13, 3));
      ASSERT_EQ(tpxOk, tpxiFilterBorderInit_32f(kernel.ptr<float>(), k, 13, 3, 1, p.Spec()));
      cv::Mat dst(H, W, CV_32FC3);
      ASSERT_EQ(tpxOk, tpxiFilterBorder_32f_C3R(src.ptr<float>(), static_cast<int>(src.step), dst.ptr<float>(),
                                                static_cast<int>(dst.step), {W, H}, bt, value, p.Spec(), p.Buf()));
      EXPECT_LT(cv::norm(dst, ref, cv::NORM_INF), 1e-3) << "k=" << k.width << "x" << k.height << " bt=" << bt;
    }
  }
}
#endif

}  // namespace
