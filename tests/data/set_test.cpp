// Set in all its forms: every member against a reference on every shape, kept channels and
// guard bands, masks with random zeros, the two-stage cache test of the fill, the check order.
#include <gtest/gtest.h>

#include <memory>

#include "core/region.h"
#include "tests/data/data_support.h"

namespace {

using datatest::GuardedImage;
using datatest::Plain;
using datatest::Rng;

template <class T>
struct Api;
#define TPX_SET_API(TT)                                                                          \
  template <>                                                                                    \
  struct Api<Tpx##TT> {                                                                          \
    static constexpr auto c1 = tpxiSet_##TT##_C1R;                                               \
    static constexpr auto c1m = tpxiSet_##TT##_C1MR;                                             \
    static constexpr auto c3c = tpxiSet_##TT##_C3CR;                                             \
    static constexpr auto c4c = tpxiSet_##TT##_C4CR;                                             \
    static constexpr TpxStatus (*byPtr[3])(const Tpx##TT*, Tpx##TT*, int, TpxSize) = {           \
        tpxiSet_##TT##_C3R, tpxiSet_##TT##_C4R, tpxiSet_##TT##_AC4R};                            \
    static constexpr TpxStatus (*byPtrM[3])(const Tpx##TT*, Tpx##TT*, int, TpxSize, const Tpx8u*, int) = { \
        tpxiSet_##TT##_C3MR, tpxiSet_##TT##_C4MR, tpxiSet_##TT##_AC4MR};                         \
  };
DATATEST_TYPES(TPX_SET_API)

template <class T>
class SetTest : public ::testing::Test {};
TYPED_TEST_SUITE(SetTest, datatest::AllTypes);

using datatest::kLayoutChannels;
using datatest::kLayoutWritten;

TYPED_TEST(SetTest, PlainAndMaskedEveryLayout) {
  using T = TypeParam;
  Rng rng(21);
  for (int l = 0; l < 4; ++l) {
    const int ch = kLayoutChannels[l];
    for (bool masked : {false, true}) {
      T value[4];
      std::unique_ptr<GuardedImage<Tpx8u>> mask;
      datatest::Sweep<T>(1, ch, static_cast<int>(32 / sizeof(T)), rng,
          [&](GuardedImage<T>&, GuardedImage<T>& d) -> TpxStatus {
            const Tpx8u* m = masked ? mask->Data() : nullptr;
            const int ms = masked ? mask->Step() : 0;
            if (l == 0) return masked ? Api<T>::c1m(value[0], d.Data(), d.Step(), d.Size(), m, ms)
                                      : Api<T>::c1(value[0], d.Data(), d.Step(), d.Size());
            return masked ? Api<T>::byPtrM[l - 1](value, d.Data(), d.Step(), d.Size(), m, ms)
                          : Api<T>::byPtr[l - 1](value, d.Data(), d.Step(), d.Size());
          },
          [&](const Plain<T>& s, Plain<T>& want) {
            for (T& v : value) v = rng.Sample<T>();
            if (masked) {
              mask = std::make_unique<GuardedImage<Tpx8u>>(s.w, s.h, 1, rng.Int(0, 5), rng.Int(0, 3));
              datatest::FillMask(*mask, rng);
            }
            for (int y = 0; y < s.h; ++y)
              for (int x = 0; x < s.w; ++x)
                if (!masked || mask->At(x, y))
                  for (int c = 0; c < kLayoutWritten[l]; ++c) want.At(x, y, c) = value[c];
          });
    }
  }
}

TYPED_TEST(SetTest, OneChannel) {
  using T = TypeParam;
  Rng rng(22);
  for (int n : {3, 4}) {
    T value{};
    int c0 = 0;
    datatest::Sweep<T>(1, n, 16, rng,
        [&](GuardedImage<T>&, GuardedImage<T>& d) {
          return (n == 3 ? Api<T>::c3c : Api<T>::c4c)(value, d.Data() + c0, d.Step(), d.Size());
        },
        [&](const Plain<T>& s, Plain<T>& want) {
          value = rng.Sample<T>();
          c0 = rng.Int(0, n - 1);
          for (int y = 0; y < s.h; ++y)
            for (int x = 0; x < s.w; ++x) want.At(x, y, c0) = value;
        });
  }
}

TYPED_TEST(SetTest, CheckOrderPointersThenSize) {
  using T = TypeParam;
  T buf[8] = {};
  const T v[4] = {};
  const Tpx8u m[2] = {1, 1};
  EXPECT_EQ(tpxErrNullPtr, Api<T>::c1(v[0], nullptr, 1, TpxSize{0, 0}));
  EXPECT_EQ(tpxErrSize, Api<T>::c1(v[0], buf, 1, TpxSize{0, 1}));
  EXPECT_EQ(tpxOk, Api<T>::c1(v[0], buf + 4, -3, TpxSize{1, 2}));  // no step check
  for (int l = 0; l < 3; ++l) {
    EXPECT_EQ(tpxErrNullPtr, Api<T>::byPtr[l](nullptr, buf, 1, TpxSize{0, 0}));  // the value pointer counts
    EXPECT_EQ(tpxErrNullPtr, Api<T>::byPtrM[l](v, buf, 1, TpxSize{-1, 0}, nullptr, 1));
    EXPECT_EQ(tpxErrSize, Api<T>::byPtrM[l](v, buf, 1, TpxSize{1, 0}, m, 1));
  }
  EXPECT_EQ(tpxErrNullPtr, Api<T>::c1m(v[0], buf, 1, TpxSize{0, 1}, nullptr, 1));
  EXPECT_EQ(tpxErrNullPtr, Api<T>::c4c(v[0], nullptr, 1, TpxSize{0, 1}));
  EXPECT_EQ(tpxErrSize, Api<T>::c3c(v[0], buf, 1, TpxSize{1, -1}));
}

int g_queries = 0;
int CountingCache(int* size) {
  ++g_queries;
  *size = 1 << 30;
  return 0;
}

// The fill asks about the cache from 0x80001 samples on, once a call, large or not.
TEST(SetFill, QueriesTheCacheOncePastTheFloor) {
  std::vector<Tpx8u> img(0x100000);
  const Tpx8u v = 7;
  g_queries = 0;
  tpx::FillRegion<Tpx8u, tpx::Layout::C1>(img.data(), 0x400, TpxSize{0x400, 0x400}, &v, CountingCache);
  EXPECT_EQ(1, g_queries);
  tpx::FillRegion<Tpx8u, tpx::Layout::C1>(img.data(), 0x400, TpxSize{0x400, 0x200}, &v, CountingCache);
  EXPECT_EQ(1, g_queries);  // 0x80000 samples: below the floor, no query
  EXPECT_EQ(std::vector<Tpx8u>(0x100000, 7), img);
}

template <class T, tpx::Layout kL>
void FillStreamCase(int w, int h, int pad, int mis) {
  constexpr int S = tpx::Stride(kL);
  GuardedImage<T> a(w, h, S, pad, mis), b(w, h, S, pad, mis);
  Rng rng(w + h);
  T px[4];
  for (T& v : px) v = rng.Sample<T>();
  tpx::FillRegion<T, kL>(a.Data(), a.Step(), a.Size(), px, datatest::CacheTiny);
  tpx::FillRegion<T, kL>(b.Data(), b.Step(), b.Size(), px, datatest::CacheUnknown);
  ASSERT_TRUE(a.GuardsIntact());
  ASSERT_TRUE(tpxtest::SameSamples(a, b));
  for (int c = 0; c < S; ++c) ASSERT_EQ(0, std::memcmp(&a.At(w - 1, h - 1, c), &px[c], sizeof(T)));
}

TEST(SetFill, StreamingEqualsPlain) {
  FillStreamCase<Tpx8u, tpx::Layout::C4>(700, 300, 0, 1);
  FillStreamCase<Tpx16u, tpx::Layout::C3>(513, 345, 3, 2);
  FillStreamCase<Tpx32f, tpx::Layout::C1>(1001, 600, 1, 1);
}

}  // namespace
