// Set in all its forms: every member against a reference, kept channels and guard bands, masks
// with random zeros, the cache query of the fill and its streaming path, the check order.
#include "core/region.h"
#include "tests/data/data_support.h"

namespace {

using namespace datatest;  // NOLINT

#define TPX_SET3(TT, S) {tpxiSet_##TT##_C3##S, tpxiSet_##TT##_C4##S, tpxiSet_##TT##_AC4##S}
#define DATATEST_TABLES(TT)                                                                                    \
  static constexpr auto c1 = tpxiSet_##TT##_C1R, c3c = tpxiSet_##TT##_C3CR, c4c = tpxiSet_##TT##_C4CR;         \
  static constexpr auto c1m = tpxiSet_##TT##_C1MR;                                                             \
  static constexpr decltype(&tpxiSet_##TT##_C3R) byPtr[3] = TPX_SET3(TT, R);                                   \
  static constexpr decltype(&tpxiSet_##TT##_C3MR) byPtrM[3] = TPX_SET3(TT, MR);
DATATEST_API(SetTest);

// Layouts 0..3 as everywhere; 4 and 5 are C3CR and C4CR, one channel at a random pointer offset.
TYPED_TEST(SetTest, EveryMemberPlainAndMasked) {
  using T = TypeParam;
  Rng rng(21);
  for (int l = 0; l < 6; ++l) {
    const int ch = l < 4 ? kLayoutChannels[l] : l - 1;
    for (bool masked : {false, true}) {
      if (masked && l >= 4) break;
      T value[4];
      int c0 = 0;
      std::unique_ptr<GuardedImage<Tpx8u>> mask;
      Sweep<T>(tpxtest::Shapes(masked || l >= 4 ? 16 : Vec<T>()), 1, ch, rng,
          [&](GuardedImage<T>&, GuardedImage<T>& d) -> TpxStatus {
            for (T& v : value) v = rng.Sample<T>();
            if (l >= 4) return (l == 4 ? Api<T>::c3c : Api<T>::c4c)(value[0], d.Data() + (c0 = rng.Int(0, ch - 1)), d.Step(), d.Size());
            if (!masked) return l == 0 ? Api<T>::c1(value[0], d.Data(), d.Step(), d.Size())
                                       : Api<T>::byPtr[l - 1](value, d.Data(), d.Step(), d.Size());
            mask = RandomMask(d.Width(), d.Height(), rng);
            return l == 0 ? Api<T>::c1m(value[0], d.Data(), d.Step(), d.Size(), mask->Data(), mask->Step())
                          : Api<T>::byPtrM[l - 1](value, d.Data(), d.Step(), d.Size(), mask->Data(), mask->Step());
          },
          [&](const GuardedImage<T>&, GuardedImage<T>& want, int x, int y) {
            if (l >= 4) want.At(x, y, c0) = value[0];
            else if (!masked || mask->At(x, y))
              for (int c = 0; c < kLayoutWritten[l]; ++c) want.At(x, y, c) = value[c];
          });
    }
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

// Past its floor the fill streams, giving the bytes of plain stores; it asks about the cache
// once a call from 0x80001 samples on, never below.
template <class T, tpx::Layout kL>
void FillStreamCase(int w, int h, int pad, int mis) {
  GuardedImage<T> a(w, h, tpx::Stride(kL), pad, mis);
  Rng rng(w + h);
  T px[4];
  for (T& v : px) v = rng.Sample<T>();
  g_cacheQueries = 0;
  StreamsLikePlain(a, [&](GuardedImage<T>& d, tpx::CacheSizeQuery q) { tpx::FillRegion<T, kL>(d.Data(), d.Step(), d.Size(), px, q); });
  EXPECT_EQ(2, g_cacheQueries);
  for (int c = 0; c < tpx::Stride(kL); ++c) ASSERT_EQ(0, std::memcmp(&a.At(w - 1, h - 1, c), &px[c], sizeof(T)));
  GuardedImage<T> floor(0x80000 / tpx::Stride(kL) / 4, 4, tpx::Stride(kL));
  tpx::FillRegion<T, kL>(floor.Data(), floor.Step(), floor.Size(), px, CacheHuge);
  EXPECT_EQ(2, g_cacheQueries);
}

TEST(SetFill, StreamingEqualsPlainPastTheFloor) {
  FillStreamCase<Tpx8u, tpx::Layout::C4>(700, 300, 0, 1), FillStreamCase<Tpx16u, tpx::Layout::C3>(513, 345, 3, 2);
  FillStreamCase<Tpx32f, tpx::Layout::C1>(1001, 600, 1, 1);
}

}  // namespace
