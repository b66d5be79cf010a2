// SwapChannels: every form against a reference with random orders, the C3C4R rule for entries 3
// and above, in place equal to out of place, and each form's own check order.
#include "tests/data/data_support.h"

namespace {

using namespace datatest;  // NOLINT

#define TPX_SWAP(TT, F) tpxiSwapChannels_##TT##_##F##R
#define DATATEST_TABLES(TT)                                                                                    \
  static constexpr decltype(&TPX_SWAP(TT, C3)) forms[4] = {TPX_SWAP(TT, C3), TPX_SWAP(TT, C4), TPX_SWAP(TT, AC4), \
                                                           TPX_SWAP(TT, C4C3)};                                 \
  static constexpr auto c3c4 = TPX_SWAP(TT, C3C4);
DATATEST_API(SwapTest);

// Forms C3, C4, AC4, C4C3, (4) C3C4R, where entry 3 writes val and above 3 leaves the channel, and
// for 8u (5, 6) the in-place C3IR and C4IR.
TYPED_TEST(SwapTest, EveryFormAgainstReference) {
  using T = TypeParam;
  Rng rng(31);
  const int in[7] = {3, 4, 4, 4, 3, 3, 4}, out[7] = {3, 4, 4, 3, 4, 3, 4}, entries[7] = {3, 4, 3, 3, 4, 3, 4},
            top[7] = {2, 3, 2, 3, 6, 2, 3};
  for (int f = 0; f < (std::is_same_v<T, Tpx8u> ? 7 : 5); ++f) {
    int order[4];
    T val{};
    Sweep<T>(tpxtest::Shapes(16), in[f], out[f], rng,
        [&](GuardedImage<T>& s, GuardedImage<T>& d) {
          for (int& o : order) o = rng.Int(0, top[f]);
          val = rng.Sample<T>();
          if constexpr (std::is_same_v<T, Tpx8u>)
            if (f >= 5) return (f == 5 ? tpxiSwapChannels_8u_C3IR : tpxiSwapChannels_8u_C4IR)(d.Data(), d.Step(), d.Size(), order);
          return f == 4 ? Api<T>::c3c4(s.Data(), s.Step(), d.Data(), d.Step(), d.Size(), order, val)
                        : Api<T>::forms[f](s.Data(), s.Step(), d.Data(), d.Step(), d.Size(), order);
        },
        [&](const GuardedImage<T>& s, GuardedImage<T>& want, int x, int y) {
          for (int c = 0; c < entries[f]; ++c)
            if (order[c] < 3 || (order[c] == 3 && f != 4)) want.At(x, y, c) = s.At(x, y, order[c]);
            else if (order[c] == 3) want.At(x, y, c) = val;
        },
        f >= 5 ? kCopyOfSrc : kFresh);
  }
}

TYPED_TEST(SwapTest, CheckOrders) {
  using T = TypeParam;
  T buf[16] = {};
  const int good[4] = {0, 1, 2, 0}, bad3[4] = {0, 3, 1, 0}, bad4[4] = {4, 0, 0, 0}, neg[4] = {0, -1, 0, 0};
  const TpxSize one{1, 1}, empty{0, 1};
  for (int f = 0; f < 4; ++f) {
    const auto fn = Api<T>::forms[f];
    // pointers, a step of exactly 0, the extents, dstOrder, its entries; a negative step passes
    EXPECT_TRUE(FirstFaultWins({tpxErrNullPtr, tpxErrStep, tpxErrSize, tpxErrNullPtr, tpxErrChannelOrder, tpxOk}, [&](int e) {
      return fn(e & 1 ? nullptr : buf, e & 32 ? -16 : 16, buf + 8, e & 2 ? 0 : 16, e & 4 ? empty : one, e & 8 ? nullptr : e & 16 ? bad4 : good);
    }));
    EXPECT_EQ(tpxErrChannelOrder, fn(buf, 16, buf + 8, 16, one, neg));
    EXPECT_EQ(f == 1 || f == 3 ? tpxOk : tpxErrChannelOrder, fn(buf, 16, buf + 8, 16, one, bad3));
  }
  // C3C4R: all three pointers, the extents, steps below 1, negative entries only
  EXPECT_TRUE(FirstFaultWins({tpxErrNullPtr, tpxErrSize, tpxErrStep, tpxErrChannelOrder}, [&](int e) {
    return Api<T>::c3c4(buf, e & 4 ? -16 : 16, buf + 8, 16, e & 2 ? empty : one, e & 1 ? nullptr : e & 8 ? neg : good, T{});
  }));
  const int big[4] = {9, 3, 100, 0};
  EXPECT_EQ(tpxOk, Api<T>::c3c4(buf, 16, buf + 8, 16, one, big, T{}));
  if constexpr (std::is_same_v<T, Tpx8u>) {  // in place: step before the order, entry 3 only for C4
    EXPECT_EQ(tpxErrStep, tpxiSwapChannels_8u_C3IR(buf, 0, TpxSize{0, 0}, bad3));
    EXPECT_EQ(tpxErrChannelOrder, tpxiSwapChannels_8u_C3IR(buf, 3, one, bad3));
    EXPECT_EQ(tpxOk, tpxiSwapChannels_8u_C4IR(buf, 4, one, bad3));
    EXPECT_EQ(tpxErrNullPtr, tpxiSwapChannels_8u_C4IR(nullptr, 0, TpxSize{0, 0}, bad3));
  }
}

}  // namespace
