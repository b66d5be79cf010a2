// Transpose: every member against a reference on non-square images and edge tiles, the square
// in-place forms, the same-image diversion before any check, the large-image path against the
// tile walk, the tile kernel against its scalar twin, and OpenCV as an independent oracle.
#include "data/transpose_rows.h"
#include "tests/data/data_support.h"

namespace {

using namespace datatest;  // NOLINT

#define TPX_T3(TT, S) {tpxiTranspose_##TT##_C1##S, tpxiTranspose_##TT##_C3##S, tpxiTranspose_##TT##_C4##S}
#define DATATEST_TABLES(TT)                                                                      \
  static constexpr decltype(&tpxiTranspose_##TT##_C1R) out[3] = TPX_T3(TT, R);                  \
  static constexpr decltype(&tpxiTranspose_##TT##_C1IR) in[3] = TPX_T3(TT, IR);
DATATEST_API(TransposeTest);

constexpr int kChannels[4] = {1, 3, 4, 2};  // 3: the 32fc member, a pixel of two floats

// Non-square images, edge tiles of every remainder, thin images, sizes past one tile; squares.
std::vector<Shape> Extents(bool squares) {
  const int wh[][2] = {{1, 1},   {1, 37},  {37, 1},   {5, 3},    {16, 16},  {17, 33},
                       {33, 17}, {64, 64}, {65, 130}, {130, 65}, {100, 37}, {200, 3}};
  const int sq[] = {1, 2, 7, 16, 31, 32, 33, 64, 65, 100};
  std::vector<Shape> out;
  for (int k = 0; k < (squares ? 10 : 12); ++k)
    out.push_back({squares ? sq[k] : wh[k][0], squares ? sq[k] : wh[k][1], k % 4 * 3, k % 3});
  return out;
}

// Layouts C1, C3, C4 and for 32f (3) the 32fc member, which has no IR form: there forms 1 and 2
// both give one image twice.
TYPED_TEST(TransposeTest, OutOfPlaceAndInPlaceAgainstReference) {
  using T = TypeParam;
  Rng rng(41);
  for (int l = 0; l < (std::is_same_v<T, Tpx32f> ? 4 : 3); ++l)
    for (int form = 0; form < 3; ++form)  // out of place; on squares the IR export and one image given twice
      Sweep<T>(Extents(form > 0), kChannels[l], kChannels[l], rng,
          [&](GuardedImage<T>& s, GuardedImage<T>& d) {
            const GuardedImage<T>& from = form ? d : s;
            const TpxStatus st =
                l == 3      ? tpxiTranspose_32fc_C1R(reinterpret_cast<const Tpx32fc*>(from.Data()), from.Step(),
                                                     reinterpret_cast<Tpx32fc*>(d.Data()), d.Step(), s.Size())
                : form == 1 ? Api<T>::in[l](d.Data(), d.Step(), d.Size())
                            : Api<T>::out[l](from.Data(), from.Step(), d.Data(), d.Step(), s.Size());
#ifdef TPX_HAVE_OPENCV
            if (form == 0) EXPECT_TRUE(LikeOpenCv(s, d, [](const cv::Mat& a, cv::Mat& b) { cv::transpose(a, b); }));
#endif
            return st;
          },
          [](const GuardedImage<T>& s, GuardedImage<T>& want, int x, int y) {
            for (int c = 0; c < s.Channels(); ++c) want.At(y, x, c) = s.At(x, y, c);
          },
          form ? kCopyOfSrc : kSwapped);
}

TYPED_TEST(TransposeTest, CheckOrderAndDiversion) {
  using T = TypeParam;
  T buf[64] = {};
  for (int l = 0; l < 3; ++l) {
    // Same pointer and step: the in-place form decides, and it takes squares only.
    EXPECT_EQ(tpxErrSize, Api<T>::out[l](buf, 8, buf, 8, TpxSize{2, 3}));
    EXPECT_TRUE(FirstFaultWins({tpxErrNullPtr, tpxErrSize, tpxOk}, [&](int f) {  // no step check
      return Api<T>::out[l](buf + 16, f & 4 ? -8 : 8, f & 1 ? nullptr : buf + 40, f & 4 ? 0 : 8, f & 2 ? TpxSize{3, 0} : TpxSize{1, 2});
    }));
    EXPECT_TRUE(FirstFaultWins({tpxErrNullPtr, tpxErrSize}, [&](int f) {
      return Api<T>::in[l](f & 1 ? nullptr : buf, 8, f & 2 ? TpxSize{2, 1} : TpxSize{1, 1});
    }));
    EXPECT_EQ(tpxErrSize, Api<T>::in[l](buf, 8, TpxSize{0, 0}));
  }
  Tpx32fc z[4] = {};
  EXPECT_EQ(tpxErrSize, tpxiTranspose_32fc_C1R(z, 16, z, 16, TpxSize{2, 1}));
}

// The large-image path (width >= 1025, extents multiples of 64, aligned source and destination)
// gives the image of the tile walk; it asks once. A failed query counts as a cache of 0 bytes.
template <int kE>
void LargeCase(int w, int h) {
  GuardedImage<Tpx8u> src(w * kE, h, 1, 64 - (w * kE) % 64 + 64), a(h * kE, w, 1, (64 - (h * kE) % 64) % 64),
      b(h * kE, w, 1, (64 - (h * kE) % 64) % 64);
  Rng rng(kE);
  tpxtest::FillRandom(src, rng);
  const auto run = [&](Tpx8u* d, int rows, tpx::CacheSizeQuery q) {
    tpx::TransposeImage<kE>(src.Data(), src.Step(), d, b.Step(), TpxSize{w, rows}, q);
  };
  g_cacheQueries = 0;
  run(a.Data(), h, CacheTiny);
  EXPECT_EQ(1, g_cacheQueries);
  run(b.Data(), h, CacheHuge);
  ASSERT_TRUE(Same(a, b)) << "E=" << kE;
  for (int y = 0; y < h; y += 7)
    for (int x = 0; x < w; x += 5) ASSERT_EQ(0, std::memcmp(&a.At(y * kE, x), &src.At(x * kE, y), kE)) << "E=" << kE;
  run(b.Data(), h, CacheUnknown);
  ASSERT_TRUE(tpxtest::SameSamples(a, b));
  g_cacheQueries = 0;  // off the alignment or the multiple of 64 the tile walk runs without asking
  run(b.Data() + 1, h, CacheTiny);
  run(b.Data(), h - 1, CacheTiny);
  EXPECT_EQ(0, g_cacheQueries);
}

TEST(Transpose, LargeImagePathEqualsTiles) {
  LargeCase<1>(1088, 128), LargeCase<2>(1088, 64), LargeCase<3>(1088, 64), LargeCase<4>(1152, 128);
  LargeCase<8>(1088, 64), LargeCase<12>(1088, 64), LargeCase<16>(1088, 64);
}

template <int kE, bool kRev, int kA>
void TileTwin(Rng& rng) {
  for (int rows : {1, 3, 8, 16, 19, 35})
    for (int cols : {1, 4, 9, 16, 17, 40})
      ASSERT_TRUE(Twin<Tpx8u>(rng, {rows * 50 * kE + 64, cols * 40 * kE + 64}, [&](auto isa, Tpx8u* const* b) {
        const Tpx8u* s0 = b[0] + (kRev ? (cols - 1) * kE : 0) + 3;
        tpx::TransposeTile<isa, kE, kRev, kA>(s0, 50 * kE, b[1] + 5, 40 * kE, rows, cols);
      })) << "E=" << kE << " rev=" << kRev << " " << rows << "x" << cols;
}

TEST(Transpose, TileKernelAvxEqualsScalar) {
  Rng rng(44);
  TileTwin<1, false, 0>(rng), TileTwin<1, true, 0>(rng), TileTwin<2, false, 0>(rng), TileTwin<2, true, 0>(rng);
  TileTwin<4, false, 0>(rng), TileTwin<4, true, 1>(rng), TileTwin<8, true, 0>(rng), TileTwin<8, false, 2>(rng);
  TileTwin<3, true, 0>(rng), TileTwin<16, false, 4>(rng);
}


}  // namespace
