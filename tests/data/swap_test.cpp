// SwapChannels: every form against a reference with random orders, the C3C4R rule for entries 3
// and above, in place equal to out of place, and each form's own check order.
#include <gtest/gtest.h>

#include "tests/data/data_support.h"

namespace {

using datatest::GuardedImage;
using datatest::Plain;
using datatest::Rng;

template <class T>
using Fn = TpxStatus (*)(const T*, int, T*, int, TpxSize, const int*);

template <class T>
struct Api;
#define TPX_SWAP_API(TT)                                                                  \
  template <>                                                                             \
  struct Api<Tpx##TT> {                                                                   \
    static constexpr Fn<Tpx##TT> c3 = tpxiSwapChannels_##TT##_C3R;                       \
    static constexpr Fn<Tpx##TT> c4 = tpxiSwapChannels_##TT##_C4R;                       \
    static constexpr Fn<Tpx##TT> ac4 = tpxiSwapChannels_##TT##_AC4R;                     \
    static constexpr Fn<Tpx##TT> c4c3 = tpxiSwapChannels_##TT##_C4C3R;                   \
    static constexpr auto c3c4 = tpxiSwapChannels_##TT##_C3C4R;                          \
  };
DATATEST_TYPES(TPX_SWAP_API)

template <class T>
class SwapTest : public ::testing::Test {};
TYPED_TEST_SUITE(SwapTest, datatest::AllTypes);

TYPED_TEST(SwapTest, EveryFormAgainstReference) {
  using T = TypeParam;
  Rng rng(31);
  struct Form {
    Fn<T> fn;
    int si, so, entries;
  };
  const Form forms[] = {{Api<T>::c3, 3, 3, 3}, {Api<T>::c4, 4, 4, 4}, {Api<T>::ac4, 4, 4, 3}, {Api<T>::c4c3, 4, 3, 3}};
  for (const Form& f : forms) {
    int order[4];
    datatest::Sweep<T>(f.si, f.so, 16, rng,
        [&](GuardedImage<T>& s, GuardedImage<T>& d) { return f.fn(s.Data(), s.Step(), d.Data(), d.Step(), d.Size(), order); },
        [&](const Plain<T>& s, Plain<T>& want) {
          const int readable = f.si == 4 && f.entries == 3 && f.so == 4 ? 3 : f.si;  // AC4 reads three
          for (int& o : order) o = rng.Int(0, readable - 1);
          for (int y = 0; y < s.h; ++y)
            for (int x = 0; x < s.w; ++x)
              for (int c = 0; c < f.entries; ++c) want.At(x, y, c) = s.At(x, y, order[c]);
        });
  }
  // C3C4R: 0..2 take a channel, 3 writes val, above 3 leaves the destination channel.
  int order[4];
  T val{};
  datatest::Sweep<T>(3, 4, 16, rng,
      [&](GuardedImage<T>& s, GuardedImage<T>& d) {
        return Api<T>::c3c4(s.Data(), s.Step(), d.Data(), d.Step(), d.Size(), order, val);
      },
      [&](const Plain<T>& s, Plain<T>& want) {
        for (int& o : order) o = rng.Int(0, 6);
        val = rng.Sample<T>();
        for (int y = 0; y < s.h; ++y)
          for (int x = 0; x < s.w; ++x)
            for (int c = 0; c < 4; ++c)
              if (order[c] < 3) want.At(x, y, c) = s.At(x, y, order[c]);
              else if (order[c] == 3) want.At(x, y, c) = val;
      });
}

TYPED_TEST(SwapTest, CheckOrders) {
  using T = TypeParam;
  T buf[16] = {};
  const int good[4] = {0, 1, 2, 0}, bad3[4] = {0, 3, 1, 0}, bad4[4] = {4, 0, 0, 0}, neg[4] = {0, -1, 0, 0};
  const TpxSize one{1, 1}, empty{0, 1};
  for (Fn<T> fn : {Api<T>::c3, Api<T>::c4, Api<T>::ac4, Api<T>::c4c3}) {
    // pointers, a step of exactly 0, the extents, dstOrder, its entries
    EXPECT_EQ(tpxErrNullPtr, fn(nullptr, 0, buf, 0, empty, nullptr));
    EXPECT_EQ(tpxErrStep, fn(buf, 16, buf + 8, 0, empty, nullptr));
    EXPECT_EQ(tpxErrSize, fn(buf, -16, buf + 8, 16, empty, nullptr));  // a negative step passes
    EXPECT_EQ(tpxErrNullPtr, fn(buf, 16, buf + 8, 16, one, nullptr));
    EXPECT_EQ(tpxErrChannelOrder, fn(buf, 16, buf + 8, 16, one, bad4));
    EXPECT_EQ(tpxErrChannelOrder, fn(buf, 16, buf + 8, 16, one, neg));
    EXPECT_EQ(tpxOk, fn(buf, 16, buf + 8, 16, one, good));
  }
  EXPECT_EQ(tpxErrChannelOrder, Api<T>::c3(buf, 16, buf + 8, 16, one, bad3));
  EXPECT_EQ(tpxErrChannelOrder, Api<T>::ac4(buf, 16, buf + 8, 16, one, bad3));
  EXPECT_EQ(tpxOk, Api<T>::c4(buf, 16, buf + 8, 16, one, bad3));
  EXPECT_EQ(tpxOk, Api<T>::c4c3(buf, 16, buf + 8, 16, one, bad3));
  // C3C4R: all three pointers, the extents, steps below 1, negative entries only
  EXPECT_EQ(tpxErrNullPtr, Api<T>::c3c4(buf, 0, buf + 8, 0, empty, nullptr, T{}));
  EXPECT_EQ(tpxErrSize, Api<T>::c3c4(buf, 0, buf + 8, 0, empty, good, T{}));
  EXPECT_EQ(tpxErrStep, Api<T>::c3c4(buf, -16, buf + 8, 16, one, neg, T{}));
  EXPECT_EQ(tpxErrChannelOrder, Api<T>::c3c4(buf, 16, buf + 8, 16, one, neg, T{}));
  const int big[4] = {9, 3, 100, 0};
  EXPECT_EQ(tpxOk, Api<T>::c3c4(buf, 16, buf + 8, 16, one, big, T{}));
}

TEST(SwapChannels, AlphaAddedOrKept) {
  const Tpx16s src[6] = {1, 2, 3, 4, 5, 6};
  Tpx16s dst[8] = {-1, -1, -1, -1, -1, -1, -1, -1};
  const int addAlpha[4] = {2, 1, 0, 3}, keepAlpha[4] = {2, 1, 0, 4};
  ASSERT_EQ(tpxOk, tpxiSwapChannels_16s_C3C4R(src, 12, dst, 16, TpxSize{2, 1}, addAlpha, 77));
  EXPECT_EQ((std::vector<Tpx16s>{3, 2, 1, 77, 6, 5, 4, 77}), std::vector<Tpx16s>(dst, dst + 8));
  const Tpx16s keep[8] = {0, 0, 0, 11, 0, 0, 0, 12};
  std::copy(keep, keep + 8, dst);
  ASSERT_EQ(tpxOk, tpxiSwapChannels_16s_C3C4R(src, 12, dst, 16, TpxSize{2, 1}, keepAlpha, 77));
  EXPECT_EQ((std::vector<Tpx16s>{3, 2, 1, 11, 6, 5, 4, 12}), std::vector<Tpx16s>(dst, dst + 8));
}

TEST(SwapChannels, InPlaceEqualsOutOfPlace) {
  Rng rng(32);
  for (int n : {3, 4}) {
    for (const tpxtest::Shape sh : tpxtest::Shapes(16)) {
      GuardedImage<Tpx8u> img(sh.width, sh.height, n, sh.padSamples, sh.misalign), out(sh.width, sh.height, n);
      tpxtest::FillRandom(img, rng);
      int order[4];
      for (int& o : order) o = rng.Int(0, n - 1);
      ASSERT_EQ(tpxOk, (n == 3 ? tpxiSwapChannels_8u_C3R : tpxiSwapChannels_8u_C4R)(img.Data(), img.Step(), out.Data(),
                                                                                   out.Step(), img.Size(), order));
      ASSERT_EQ(tpxOk, (n == 3 ? tpxiSwapChannels_8u_C3IR : tpxiSwapChannels_8u_C4IR)(img.Data(), img.Step(), img.Size(), order));
      ASSERT_TRUE(img.GuardsIntact());
      ASSERT_TRUE(tpxtest::SameSamples(img, out)) << sh.width << "x" << sh.height;
    }
  }
  Tpx8u px[4] = {};
  const int bad[4] = {0, 1, 3, 0};
  EXPECT_EQ(tpxErrStep, tpxiSwapChannels_8u_C3IR(px, 0, TpxSize{0, 0}, bad));
  EXPECT_EQ(tpxErrChannelOrder, tpxiSwapChannels_8u_C3IR(px, 3, TpxSize{1, 1}, bad));
  EXPECT_EQ(tpxOk, tpxiSwapChannels_8u_C4IR(px, 4, TpxSize{1, 1}, bad));
  EXPECT_EQ(tpxErrNullPtr, tpxiSwapChannels_8u_C4IR(nullptr, 0, TpxSize{0, 0}, bad));
}

}  // namespace
