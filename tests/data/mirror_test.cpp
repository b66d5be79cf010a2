// Mirror: every member and axis against a reference, AC4 alpha kept, in place equal to out of
// place, the diagonal axes with their overlap test, the check order, the streaming paths against
// plain stores, the row kernels against their scalar twins, OpenCV as an oracle.
#include "data/mirror_rows.h"
#include "tests/data/data_support.h"

namespace {

using namespace datatest;  // NOLINT

#define DATATEST_TABLES(TT)                                                                      \
  static constexpr decltype(&tpxiMirror_##TT##_C1R) out[4] = DATATEST_L4(tpxiMirror, TT, R);   \
  static constexpr decltype(&tpxiMirror_##TT##_C1IR) in[4] = DATATEST_L4(tpxiMirror, TT, IR);
DATATEST_API(MirrorTest);

TYPED_TEST(MirrorTest, EveryAxisAndLayout) {
  using T = TypeParam;
  Rng rng(51);
  const auto shapes = tpxtest::Shapes(16, {97, 130});
  for (int l = 0; l < 4; ++l)
    for (int flip = 0; flip <= 4; ++flip)  // axes 3 and 4 swap the extents
      for (int form = 0; form < (flip < 3 ? 3 : 1); ++form)  // out of place, the IR export, one image given twice
        Sweep<T>(shapes, kLayoutChannels[l], kLayoutChannels[l], rng,
            [&](GuardedImage<T>& s, GuardedImage<T>& d) {
              if (form == 1) return Api<T>::in[l](d.Data(), d.Step(), d.Size(), flip);
              const GuardedImage<T>& from = form ? d : s;
              const TpxStatus st = Api<T>::out[l](from.Data(), from.Step(), d.Data(), d.Step(), s.Size(), flip);
#ifdef TPX_HAVE_OPENCV
              if (form == 0 && l < 3)  // flips, and the transposes as transpose and a flip about both axes
                EXPECT_TRUE(LikeOpenCv(s, d, [&](const cv::Mat& a, cv::Mat& b) {
                  flip < 3 ? cv::flip(a, b, flip == 2 ? -1 : flip) : cv::transpose(a, b);
                  if (flip == 4) cv::flip(b, b, -1);
                })) << "axis " << flip;
#endif
              return st;
            },
            [&](const GuardedImage<T>& s, GuardedImage<T>& want, int x, int y) {
              const int w = s.Width() - 1, h = s.Height() - 1;
              const int X[5] = {x, w - x, w - x, y, h - y}, Y[5] = {h - y, y, h - y, x, w - x};
              for (int c = 0; c < kLayoutWritten[l]; ++c) want.At(X[flip], Y[flip], c) = s.At(x, y, c);
            },
            flip >= 3 ? kSwapped : form ? kCopyOfSrc : kFresh);
}

TYPED_TEST(MirrorTest, CheckOrder) {
  using T = TypeParam;
  T buf[64] = {};
  const TpxSize two{1, 2};
  for (int l = 0; l < 4; ++l) {
    const auto fn = Api<T>::out[l];
    // Axes 0..2: pointers, extents, the axis (5 here, -1 below); no step check.
    EXPECT_TRUE(FirstFaultWins({tpxErrNullPtr, tpxErrSize, tpxErrMirrorAxis, tpxOk}, [&](int f) {
      return fn(f & 1 ? nullptr : buf + 16, f & 8 ? -8 : 8, buf + 32, f & 8 ? 0 : 8, f & 2 ? TpxSize{0, 2} : two, f & 4 ? 5 : 1);
    }));
    EXPECT_EQ(tpxErrMirrorAxis, fn(buf, 8, buf + 32, 8, two, -1));
    // Diagonals: pointers, steps below 1, extents, overlap (one image given twice is not diverted).
    EXPECT_TRUE(FirstFaultWins({tpxErrNullPtr, tpxErrStep, tpxErrSize, tpxErrNotSupportedMode}, [&](int f) {
      return fn(buf, f & 2 ? 0 : 16, f & 1 ? nullptr : f & 8 ? buf : buf + 32, 16, f & 4 ? TpxSize{0, 1} : two, 3 + l % 2);
    }));
    // In place: pointer, extents, the axis, where a diagonal is refused.
    EXPECT_TRUE(FirstFaultWins({tpxErrNullPtr, tpxErrSize, tpxErrMirrorAxis}, [&](int f) {
      return Api<T>::in[l](f & 1 ? nullptr : buf, 8, f & 2 ? TpxSize{0, 1} : TpxSize{1, 1}, f & 4 ? 3 + l % 2 : l % 3);
    }));
  }
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
  // The destination lies between two source rows: only its rows meet the source's range.
  EXPECT_EQ(tpxErrNotSupportedMode, tpxiMirror_16u_C1R(s, 1000, s + 250, 4, TpxSize{10, 2}, 3));
}

// Past 0x100001 pixels a C4 mirror streams through a stack block; axis 0 of the other layouts
// streams through the copy driver. The bytes are those of plain stores.
TEST(MirrorStreaming, EqualsPlainStores) {
  Rng rng(52);
  GuardedImage<Tpx8u> src(1100, 960, 4, 4, 1), a(1100, 960, 4, 0, 3), s1(2100, 1000, 1), c(2100, 1000, 1, 0, 5);
  tpxtest::FillRandom(src, rng);
  tpxtest::FillRandom(s1, rng);
  for (int flip = 0; flip <= 2; ++flip)
    StreamsLikePlain(a, [&](GuardedImage<Tpx8u>& d, tpx::CacheSizeQuery q) {
      tpx::MirrorImage<Tpx8u, tpx::Layout::C4>(src.Data(), src.Step(), d.Data(), d.Step(), src.Size(), flip, q);
    });
  StreamsLikePlain(c, [&](GuardedImage<Tpx8u>& d, tpx::CacheSizeQuery q) {
    tpx::MirrorImage<Tpx8u, tpx::Layout::C1>(s1.Data(), s1.Step(), d.Data(), d.Step(), s1.Size(), 0, q);
  });
  ASSERT_EQ(0, std::memcmp(c.Row(0), s1.Row(999), 2100));
}

// Reversal out of place, a row pair in place and as two rows, and the row swap: a difference left
// by any of them survives the others.
template <class T, tpx::Layout kL>
void RowTwin(Rng& rng) {
  constexpr int S = tpx::Stride(kL);
  for (int w = 0; w <= 3 * 16 + 3; ++w)
    ASSERT_TRUE(Twin<T>(rng, {w * S + 2, w * S + 2, w * S + 2}, [&](auto isa, T* const* b) {
      tpx::ReverseRow<isa, T, kL>(b[0], b[1], w);
      tpx::ReversePair<isa, T, kL>(b[1], b[1], w);
      tpx::ReversePair<isa, T, kL>(b[1], b[2], w);
      tpx::SwapRows<isa, T, kL>(b[1], b[2], w);
    })) << "w=" << w;
}
template <class T, tpx::Layout... kL>
void RowTwins(Rng& rng) { (RowTwin<T, kL>(rng), ...); }

TEST(MirrorKernels, AvxEqualsScalar) {
  Rng rng(53);
  using L = tpx::Layout;
  RowTwins<Tpx8u, L::C1, L::C3, L::C4, L::AC4>(rng), RowTwins<Tpx16s, L::C1>(rng), RowTwins<Tpx16u, L::C3, L::AC4>(rng);
  RowTwins<Tpx32f, L::C3, L::AC4>(rng), RowTwins<Tpx32s, L::C4>(rng);
}


}  // namespace
