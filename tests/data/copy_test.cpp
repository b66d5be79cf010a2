// Copy in all its forms, and Dup: every member against a reference model, kept channels, the
// overlap rule of C3CR/C4CR, the _L walk, streaming against plain stores, the check order, and
// each vector kernel against its scalar twin.
#include "core/region.h"
#include "data/mask_rows.h"
#include "data/pixel_rows.h"
#include "data/planar_rows.h"
#include "tests/data/data_support.h"

namespace {

using namespace datatest;  // NOLINT

template <class T>
using Fn = TpxStatus (*)(const T*, int, T*, int, TpxSize);

// Every member of one type; layouts in the order C1, C3, C4, AC4; channel forms C3CR, C4CR,
// C3C1R, C4C1R, C1C3R, C1C4R, C3AC4R, AC4C3R.
#define TPX_COPY_CH(TT, F) tpxiCopy_##TT##_##F##R
#define DATATEST_TABLES(TT)                                                                                    \
  static constexpr Fn<Tpx##TT> plain[4] = DATATEST_L4(tpxiCopy, TT, R);                                        \
  static constexpr decltype(&tpxiCopy_##TT##_C1R_L) twin[4] = DATATEST_L4(tpxiCopy, TT, R_L);                  \
  static constexpr decltype(&tpxiCopy_##TT##_C1MR) masked[4] = DATATEST_L4(tpxiCopy, TT, MR);                  \
  static constexpr Fn<Tpx##TT> chan[8] = {TPX_COPY_CH(TT, C3C), TPX_COPY_CH(TT, C4C), TPX_COPY_CH(TT, C3C1),    \
      TPX_COPY_CH(TT, C4C1), TPX_COPY_CH(TT, C1C3), TPX_COPY_CH(TT, C1C4), TPX_COPY_CH(TT, C3AC4), TPX_COPY_CH(TT, AC4C3)}; \
  static constexpr auto c3p3 = tpxiCopy_##TT##_C3P3R, c4p4 = tpxiCopy_##TT##_C4P4R;                          \
  static constexpr auto p3c3 = tpxiCopy_##TT##_P3C3R, p4c4 = tpxiCopy_##TT##_P4C4R;
DATATEST_API(CopyTest);

// Forms: plain, masked, the _L twin with small steps (narrowed to the 32-bit export) from a
// bottom-up source, and with steps past 0x7ffffffe, which only a single row may have (walked as it is).
TYPED_TEST(CopyTest, PlainMaskedAndLongEveryLayout) {
  using T = TypeParam;
  Rng rng(101);
  for (int l = 0; l < 4; ++l) {
    const int ch = kLayoutChannels[l];
    std::unique_ptr<GuardedImage<Tpx8u>> mask;
    for (int form = 0; form < 4; ++form)
      Sweep<T>(form == 3 ? std::vector<Shape>{{77, 1, 0, 0}, {5, 1, 3, 1}} : tpxtest::Shapes(form == 1 ? 16 : Vec<T>()), ch, ch, rng,
          [&](GuardedImage<T>& s, GuardedImage<T>& d) {
            if (form == 2) return Api<T>::twin[l](s.Row(s.Height() - 1), -s.Step(), d.Data(), d.Step(), TpxSizeL{d.Width(), d.Height()});
            if (form == 3) return Api<T>::twin[l](s.Data(), 0x80000000LL, d.Data(), -0x90000000LL, TpxSizeL{d.Width(), 1});
            if (form == 0) return Api<T>::plain[l](s.Data(), s.Step(), d.Data(), d.Step(), d.Size());
            mask = RandomMask(s.Width(), s.Height(), rng);
            return Api<T>::masked[l](s.Data(), s.Step(), d.Data(), d.Step(), d.Size(), mask->Data(), mask->Step());
          },
          [&](const GuardedImage<T>& s, GuardedImage<T>& want, int x, int y) {
            if (form != 1 || mask->At(x, y))
              for (int c = 0; c < kLayoutWritten[l]; ++c) want.At(x, form == 2 ? s.Height() - 1 - y : y, c) = s.At(x, y, c);
          });
  }
}

// Forms 0..3 point at one channel of the source, 0, 1, 4 and 5 at one of the destination; for
// 8u (8, 9) Dup, one sample to every channel.
TYPED_TEST(CopyTest, ChannelForms) {
  using T = TypeParam;
  Rng rng(202);
  const int si[] = {3, 4, 3, 4, 1, 1, 3, 4, 1, 1}, so[] = {3, 4, 1, 1, 3, 4, 4, 3, 3, 4};
  for (int f = 0; f < (std::is_same_v<T, Tpx8u> ? 10 : 8); ++f) {
    const bool chS = f < 4, chD = f < 2 || f == 4 || f == 5;
    Fn<T> fn = f < 8 ? Api<T>::chan[f] : nullptr;
    if constexpr (std::is_same_v<T, Tpx8u>) fn = f < 8 ? fn : f == 8 ? tpxiDup_8u_C1C3R : tpxiDup_8u_C1C4R;
    int cs = 0, cd = 0;
    Sweep<T>(tpxtest::Shapes(16), si[f], so[f], rng,
        [&](GuardedImage<T>& s, GuardedImage<T>& d) {
          cs = chS ? rng.Int(0, si[f] - 1) : 0;
          cd = chD ? rng.Int(0, so[f] - 1) : 0;
          return fn(s.Data() + cs, s.Step(), d.Data() + cd, d.Step(), d.Size());
        },
        [&](const GuardedImage<T>& s, GuardedImage<T>& want, int x, int y) {
          for (int c = 0; c < (chS || chD ? 1 : si[f] == 1 ? so[f] : 3); ++c) want.At(x, y, cd + c) = s.At(x, y, si[f] == 1 ? 0 : cs + c);
        });
  }
}

TYPED_TEST(CopyTest, PlanarBothWays) {
  using T = TypeParam;
  Rng rng(303);
  for (int n : {3, 4})
    for (const Shape sh : tpxtest::Shapes(Vec<T>())) {
      GuardedImage<T> packed(sh.width, sh.height, n, sh.padSamples, sh.misalign);
      GuardedImage<T> planes(sh.width, n * sh.height, 1, sh.padSamples + 2, (sh.misalign + 1) % 4);
      GuardedImage<T> back(sh.width, sh.height, n, (sh.padSamples + 5) % 8, (sh.misalign + 2) % 5);
      for (auto* img : {&packed, &planes, &back}) tpxtest::FillRandom(*img, rng);
      GuardedImage<T> want = Clone(planes);
      Each(sh.width, sh.height, [&](int x, int y) {
        for (int c = 0; c < n; ++c) want.At(x, c * sh.height + y) = packed.At(x, y, c);
      });
      T* p[4] = {};
      for (int c = 0; c < n; ++c) p[c] = planes.Row(c * sh.height);
      const T* q[4] = {p[0], p[1], p[2], p[3]};
      ASSERT_EQ(tpxOk, (n == 3 ? Api<T>::c3p3 : Api<T>::c4p4)(packed.Data(), packed.Step(), p, planes.Step(), packed.Size()));
      ASSERT_TRUE(Same(planes, want)) << sh.width << "x" << sh.height << " C" << n;
      ASSERT_EQ(tpxOk, (n == 3 ? Api<T>::p3c3 : Api<T>::p4c4)(q, planes.Step(), back.Data(), back.Step(), back.Size()));
      ASSERT_TRUE(Same(back, packed)) << sh.width << "x" << sh.height << " C" << n;
    }
}

TYPED_TEST(CopyTest, CheckOrderPointersThenSizeNoStep) {
  using T = TypeParam;
  T buf[16] = {};
  const Tpx8u m[4] = {1, 1, 1, 1};
  const TpxSize empty{0, 1}, one{1, 1};
  for (int l = 0; l < 4; ++l) {
    EXPECT_TRUE(FirstFaultWins({tpxErrNullPtr, tpxErrSize, tpxOk}, [&](int f) {  // no step check at all
      return Api<T>::plain[l](f & 1 ? nullptr : buf, f & 4 ? 0 : 4, buf + 8, f & 4 ? -7 : 4, f & 2 ? TpxSize{1, 0} : one);
    }));
    EXPECT_EQ(tpxErrNullPtr, Api<T>::masked[l](buf, 4, buf + 8, 4, empty, nullptr, 1));
    EXPECT_EQ(tpxErrSize, Api<T>::masked[l](buf, 4, buf + 8, 4, empty, m, 1));
    EXPECT_EQ(tpxErrSize, Api<T>::twin[l](buf, 8, buf + 8, 8, TpxSizeL{0, 5}));
    EXPECT_EQ(tpxOk, Api<T>::twin[l](buf, 0x7fffffffLL, buf + 8, 8, TpxSizeL{0, 5}));
    EXPECT_EQ(tpxErrNullPtr, Api<T>::twin[l](nullptr, 0x7fffffffLL, buf + 8, 8, TpxSizeL{3, 1}));
  }
  T* planes[4] = {buf, buf + 1, nullptr, buf + 3};
  EXPECT_EQ(tpxErrNullPtr, Api<T>::c3p3(buf, 12, planes, 4, empty));  // a null plane counts among the pointers
  EXPECT_EQ(tpxErrNullPtr, Api<T>::c4p4(buf, 12, nullptr, 4, one));
  const T* cplanes[4] = {buf, buf + 1, buf + 2, nullptr};
  EXPECT_EQ(tpxErrNullPtr, Api<T>::p4c4(cplanes, 4, buf + 8, 4, empty));
  EXPECT_EQ(tpxErrSize, Api<T>::p3c3(cplanes, 4, buf + 8, 4, empty));
  EXPECT_EQ(tpxErrNullPtr, Api<T>::chan[0](buf, 4, nullptr, 4, empty));
  EXPECT_EQ(tpxErrSize, Api<T>::chan[5](buf, 4, buf, 4, TpxSize{-1, 3}));
  if constexpr (std::is_same_v<T, Tpx8u>) EXPECT_EQ(tpxErrNullPtr, tpxiDup_8u_C1C3R(nullptr, 1, nullptr, 1, TpxSize{0, 0}));
}

// Where the two address ranges of C3CR/C4CR overlap, a sample loop runs row by row from the left:
// a copy onto the next pixel's channel carries the first sample along the row.
TEST(CopyChannel, OverlapTakesTheSampleLoop) {
  Rng rng(5);
  for (int n : {3, 4})
    for (int to : {n, 2}) {  // onto the next pixel, or channel 0 onto channel 2 of the same one
      GuardedImage<Tpx16s> img(40, 5, n, 3);
      tpxtest::FillRandom(img, rng);
      GuardedImage<Tpx16s> want = Clone(img);
      Each(40, 5, [&](int x, int y) { want.At(x, y, to % n) = want.At(to == n ? 0 : x, y, 0); });
      const auto fn = n == 3 ? tpxiCopy_16s_C3CR : tpxiCopy_16s_C4CR;
      ASSERT_EQ(tpxOk, fn(img.Data(), img.Step(), img.Data() + to, img.Step(), TpxSize{to == n ? 39 : 40, 5}));
      EXPECT_TRUE(Same(img, want)) << n << " " << to;
    }
}

// Past its floor each copy driver streams; the bytes are those of plain stores, from any
// destination alignment (the 256-byte head), coalesced into one row or not.
template <class T, tpx::Layout kL>
void StreamCase(int w, int h, int pad, int mis) {
  GuardedImage<T> src(w, h, tpx::Stride(kL), pad, mis), a(w, h, tpx::Stride(kL), pad, mis + 1);
  Rng rng(w);
  tpxtest::FillRandom(src, rng);
  StreamsLikePlain(a, [&](GuardedImage<T>& d, tpx::CacheSizeQuery q) {
    tpx::CopyRegion<T, kL>(src.Data(), src.Step(), d.Data(), d.Step(), src.Size(), q);
  });
  ASSERT_TRUE(tpxtest::SameSamples(a, src));
}

// Rows apart (padded steps, 1-byte pixels past 0x200001), 3-byte pixels past 0xC0001, and one
// long misaligned row of 0x80001 floats and more.
TEST(CopyStreaming, EqualsPlainPath) {
  StreamCase<Tpx8u, tpx::Layout::C1>(2100, 1000, 5, 3), StreamCase<Tpx8u, tpx::Layout::C3>(1000, 787, 1, 7);
  StreamCase<Tpx32f, tpx::Layout::C1>(1024, 513, 0, 1);
}

// A streaming planar row writes the bytes of the scalar row and nothing else, for every phase of
// its destinations: planes in phase at each of the eight heads, planes out of phase with each
// other and C4 pixels off 16 bytes (the stack block), widths below a step and past the block.
template <int kC>
void StreamRowCase(int n, int k, bool apart, Rng& rng) {
  using T = Tpx32f;
  const int slot = (n + 31) / 16 * 16 + 16;  // samples of one plane's room, a multiple of 64 bytes
  const int odd = kC == 3 ? 1 : 3, packed = apart ? 7 - k : k;  // packed shifts 0 and 4 put C4 pixels on 16 bytes
  ASSERT_TRUE(Twin<T>(rng, {kC * (n + 16) + 32, kC * slot, kC * (n + 8) + 16}, [&](auto isa, T* const* b) {
    T* p[kC];
    for (int c = 0; c < kC; ++c) p[c] = b[1] + c * slot + 8 + (apart && c == odd ? (k + odd) % 8 : k);
    if constexpr (decltype(isa)::value == tpx::Isa::kAvx) {
      tpx::ToPlanarRowStreaming<isa, T, kC>(b[0] + packed, p, n);
      tpx::StreamFence();
      tpx::FromPlanarRowStreaming<isa, T, kC>(p, b[2] + packed, n);
      tpx::StreamFence();
    } else {
      tpx::ToPlanarRow<isa, T, kC>(b[0] + packed, p, n);
      tpx::FromPlanarRow<isa, T, kC>(p, b[2] + packed, n);
    }
  })) << "C" << kC << " n=" << n << " phase " << k << (apart ? ", planes apart" : "");
}

// Pixel maps (channel forms, Dup, SwapChannels) on rows up to three vectors and three more.
template <class T, int kSi, int kSo>
void MapTwin(std::initializer_list<int> from, bool inPlace, int srcLast, int dstLast, Rng& rng) {
  for (int n = 1; n <= 3 * 16 + 3; ++n) {
    const tpx::PixelMap<T, kSi, kSo> m(from.begin(), rng.Sample<T>(), inPlace, srcLast, dstLast);
    ASSERT_TRUE(Twin<T>(rng, {n * kSi + 8, n * kSo + 8}, [&](auto isa, T* const* b) {
      if (m.blend) tpx::MapPixelsRow<isa, T, kSi, kSo, true>(inPlace ? b[1] : b[0], b[1], n, m);
      else tpx::MapPixelsRow<isa, T, kSi, kSo, false>(inPlace ? b[1] : b[0], b[1], n, m);
    })) << "n=" << n;
  }
}

// Masked rows from a row and from one pixel (a fill), and planar rows up to three 64-byte lines
// of a plane and three vectors more: the prefetching groups, the single steps and the tail.
template <class T, tpx::Layout kL, int kC>
void MaskAndPlanarTwins(Rng& rng) {
  constexpr int S = tpx::Stride(kL);
  for (int n = 0; n <= 3 * 64 / static_cast<int>(sizeof(T)) + 3 * 16 + 3; ++n) {
    std::vector<Tpx8u> m(n + 1);
    for (auto& v : m) v = rng.Chance(0.5) ? 0 : static_cast<Tpx8u>(rng.Int(1, 255));
    if (n <= 3 * 16 + 3)
      ASSERT_TRUE(Twin<T>(rng, {n * S + 4, n * S + 1, n * S + 1}, [&](auto isa, T* const* b) {
        tpx::MaskedRow<isa, T, kL, true>(b[0], b[1], m.data(), n);
        tpx::MaskedRow<isa, T, kL, false>(b[0], b[2], m.data(), n);
      })) << "masked n=" << n;
    ASSERT_TRUE(Twin<T>(rng, {n * kC + 1, kC * (n + 1), n * kC + 1}, [&](auto isa, T* const* b) {
      T* p[kC];
      for (int c = 0; c < kC; ++c) p[c] = b[1] + c * (n + 1);
      tpx::ToPlanarRow<isa, T, kC>(b[0], p, n);
      tpx::FromPlanarRow<isa, T, kC>(p, b[2], n);
    })) << "planar n=" << n;
  }
}

TEST(CopyKernels, AvxEqualsScalar) {
  Rng rng(10);
  using tpx::kKeep;
  using tpx::kTakeVal;
  using L = tpx::Layout;
  MapTwin<Tpx8u, 3, 3>({2, 0, 1}, true, 3, 3, rng), MapTwin<Tpx8u, 3, 3>({0, kKeep, kKeep}, false, 1, 1, rng);
  MapTwin<Tpx8u, 3, 4>({2, kTakeVal, 0, kKeep}, false, 3, 4, rng), MapTwin<Tpx8u, 1, 3>({0, 0, 0}, false, 1, 3, rng);
  MapTwin<Tpx16u, 4, 3>({3, 3, 1}, false, 4, 3, rng), MapTwin<Tpx16s, 0, 4>({kTakeVal, kKeep, kKeep, kKeep}, false, 0, 1, rng);
  MapTwin<Tpx32f, 3, 1>({0}, false, 1, 1, rng), MapTwin<Tpx32s, 4, 4>({3, 2, 1, 0}, true, 4, 4, rng);
  MaskAndPlanarTwins<Tpx8u, L::C1, 3>(rng), MaskAndPlanarTwins<Tpx8u, L::C3, 4>(rng), MaskAndPlanarTwins<Tpx16u, L::AC4, 3>(rng);
  MaskAndPlanarTwins<Tpx16s, L::C4, 3>(rng), MaskAndPlanarTwins<Tpx32f, L::C3, 3>(rng), MaskAndPlanarTwins<Tpx32s, L::AC4, 4>(rng);
  for (int n : {0, 1, 5, 8, 9, 15, 16, 17, 33, 200, 530, 1100})
    for (int k = 0; k < 16; ++k) StreamRowCase<3>(n, k % 8, k >= 8, rng), StreamRowCase<4>(n, k % 8, k >= 8, rng);
}

}  // namespace
