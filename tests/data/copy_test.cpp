// Copy in all its forms, and Dup: every member against a reference model on every shape, guard
// bands and kept channels, the overlap rule of C3CR/C4CR, the _L walk, streaming against plain
// stores, the check order, and each vector kernel against its scalar twin.
#include <gtest/gtest.h>

#include <memory>

#include "core/region.h"
#include "data/mask_rows.h"
#include "data/pixel_rows.h"
#include "data/planar_rows.h"
#include "tests/data/data_support.h"

namespace {

using datatest::GuardedImage;
using datatest::Plain;
using datatest::Rng;
using datatest::Same;

template <class T>
using Fn = TpxStatus (*)(const T*, int, T*, int, TpxSize);
template <class T>
using MaskFn = TpxStatus (*)(const T*, int, T*, int, TpxSize, const Tpx8u*, int);
template <class T>
using FnL = TpxStatus (*)(const T*, long long, T*, long long, TpxSizeL);

// Every member of one type; layouts in the order C1, C3, C4, AC4.
template <class T>
struct Api;
#define TPX_COPY_API(TT)                                                                                   \
  template <>                                                                                              \
  struct Api<Tpx##TT> {                                                                                    \
    using T = Tpx##TT;                                                                                     \
    static constexpr Fn<T> plain[4] = {tpxiCopy_##TT##_C1R, tpxiCopy_##TT##_C3R, tpxiCopy_##TT##_C4R,      \
                                       tpxiCopy_##TT##_AC4R};                                              \
    static constexpr FnL<T> twin[4] = {tpxiCopy_##TT##_C1R_L, tpxiCopy_##TT##_C3R_L, tpxiCopy_##TT##_C4R_L, \
                                       tpxiCopy_##TT##_AC4R_L};                                            \
    static constexpr MaskFn<T> masked[4] = {tpxiCopy_##TT##_C1MR, tpxiCopy_##TT##_C3MR,                    \
                                            tpxiCopy_##TT##_C4MR, tpxiCopy_##TT##_AC4MR};                  \
    static constexpr Fn<T> c3cr = tpxiCopy_##TT##_C3CR, c4cr = tpxiCopy_##TT##_C4CR;                      \
    static constexpr Fn<T> c3c1 = tpxiCopy_##TT##_C3C1R, c4c1 = tpxiCopy_##TT##_C4C1R;                    \
    static constexpr Fn<T> c1c3 = tpxiCopy_##TT##_C1C3R, c1c4 = tpxiCopy_##TT##_C1C4R;                    \
    static constexpr Fn<T> c3ac4 = tpxiCopy_##TT##_C3AC4R, ac4c3 = tpxiCopy_##TT##_AC4C3R;                \
    static constexpr auto c3p3 = tpxiCopy_##TT##_C3P3R;                                                    \
    static constexpr auto c4p4 = tpxiCopy_##TT##_C4P4R;                                                    \
    static constexpr auto p3c3 = tpxiCopy_##TT##_P3C3R;                                                    \
    static constexpr auto p4c4 = tpxiCopy_##TT##_P4C4R;                                                    \
  };
DATATEST_TYPES(TPX_COPY_API)

using datatest::kLayoutChannels;
using datatest::kLayoutWritten;

template <class T>
constexpr int Vec() { return static_cast<int>(32 / sizeof(T)); }

template <class T>
class CopyTest : public ::testing::Test {};
TYPED_TEST_SUITE(CopyTest, datatest::AllTypes);

TYPED_TEST(CopyTest, PlainAndMaskedEveryLayout) {
  using T = TypeParam;
  Rng rng(101);
  for (int l = 0; l < 4; ++l) {
    const int ch = kLayoutChannels[l], proc = kLayoutWritten[l];
    SCOPED_TRACE(l);
    datatest::Sweep<T>(ch, ch, Vec<T>(), rng,
        [&](GuardedImage<T>& s, GuardedImage<T>& d) { return Api<T>::plain[l](s.Data(), s.Step(), d.Data(), d.Step(), d.Size()); },
        [&](const Plain<T>& s, Plain<T>& want) {
          for (int y = 0; y < s.h; ++y)
            for (int x = 0; x < s.w; ++x)
              for (int c = 0; c < proc; ++c) want.At(x, y, c) = s.At(x, y, c);
        });
    std::unique_ptr<GuardedImage<Tpx8u>> mask;
    datatest::Sweep<T>(ch, ch, 16, rng,
        [&](GuardedImage<T>& s, GuardedImage<T>& d) {
          return Api<T>::masked[l](s.Data(), s.Step(), d.Data(), d.Step(), d.Size(), mask->Data(), mask->Step());
        },
        [&](const Plain<T>& s, Plain<T>& want) {
          mask = std::make_unique<GuardedImage<Tpx8u>>(s.w, s.h, 1, rng.Int(0, 9), rng.Int(0, 5));
          datatest::FillMask(*mask, rng);
          for (int y = 0; y < s.h; ++y)
            for (int x = 0; x < s.w; ++x)
              if (mask->At(x, y))
                for (int c = 0; c < proc; ++c) want.At(x, y, c) = s.At(x, y, c);
        });
  }
}

TYPED_TEST(CopyTest, ChannelForms) {
  using T = TypeParam;
  Rng rng(202);
  // (export, source samples a pixel, destination samples a pixel, pointer on a channel: source, destination)
  struct Form {
    Fn<T> fn;
    int si, so;
    bool chS, chD;
  };
  const Form forms[] = {{Api<T>::c3cr, 3, 3, true, true},   {Api<T>::c4cr, 4, 4, true, true},
                        {Api<T>::c3c1, 3, 1, true, false},  {Api<T>::c4c1, 4, 1, true, false},
                        {Api<T>::c1c3, 1, 3, false, true},  {Api<T>::c1c4, 1, 4, false, true},
                        {Api<T>::c3ac4, 3, 4, false, false}, {Api<T>::ac4c3, 4, 3, false, false}};
  for (const Form& f : forms) {
    int cs = 0, cd = 0;
    datatest::Sweep<T>(f.si, f.so, 16, rng,
        [&](GuardedImage<T>& s, GuardedImage<T>& d) { return f.fn(s.Data() + cs, s.Step(), d.Data() + cd, d.Step(), d.Size()); },
        [&](const Plain<T>& s, Plain<T>& want) {
          cs = f.chS ? rng.Int(0, f.si - 1) : 0;
          cd = f.chD ? rng.Int(0, f.so - 1) : 0;
          const int n = f.chS || f.chD ? 1 : 3;  // one channel, or the three colours
          for (int y = 0; y < s.h; ++y)
            for (int x = 0; x < s.w; ++x)
              for (int c = 0; c < n; ++c) want.At(x, y, cd + c) = s.At(x, y, cs + c);
        });
  }
}

TYPED_TEST(CopyTest, PlanarBothWays) {
  using T = TypeParam;
  Rng rng(303);
  for (int n : {3, 4}) {
    for (const tpxtest::Shape sh : tpxtest::Shapes(Vec<T>())) {
      GuardedImage<T> packed(sh.width, sh.height, n, sh.padSamples, sh.misalign);
      GuardedImage<T> planes(sh.width, n * sh.height, 1, sh.padSamples + 2, (sh.misalign + 1) % 4);
      GuardedImage<T> back(sh.width, sh.height, n, (sh.padSamples + 5) % 8, (sh.misalign + 2) % 5);
      tpxtest::FillRandom(packed, rng);
      tpxtest::FillRandom(planes, rng);
      tpxtest::FillRandom(back, rng);
      T* p[4];
      for (int c = 0; c < n; ++c) p[c] = planes.Row(c * sh.height);
      const TpxStatus st = n == 3 ? Api<T>::c3p3(packed.Data(), packed.Step(), p, planes.Step(), packed.Size())
                                  : Api<T>::c4p4(packed.Data(), packed.Step(), p, planes.Step(), packed.Size());
      ASSERT_EQ(tpxOk, st);
      Plain<T> want(planes);
      for (int c = 0; c < n; ++c)
        for (int y = 0; y < sh.height; ++y)
          for (int x = 0; x < sh.width; ++x) want.At(x, c * sh.height + y) = Plain<T>(packed).At(x, y, c);
      ASSERT_TRUE(Same(planes, want)) << sh.width << "x" << sh.height << " C" << n;
      const T* q[4] = {p[0], p[1], p[2], p[3]};
      const TpxStatus st2 = n == 3 ? Api<T>::p3c3(q, planes.Step(), back.Data(), back.Step(), back.Size())
                                   : Api<T>::p4c4(q, planes.Step(), back.Data(), back.Step(), back.Size());
      ASSERT_EQ(tpxOk, st2);
      ASSERT_TRUE(Same(back, Plain<T>(packed))) << sh.width << "x" << sh.height << " C" << n;
    }
  }
}

TYPED_TEST(CopyTest, CheckOrderPointersThenSizeNoStep) {
  using T = TypeParam;
  T buf[16] = {};
  const Tpx8u m[4] = {1, 1, 1, 1};
  const TpxSize empty{0, 1}, one{1, 1};
  for (int l = 0; l < 4; ++l) {
    EXPECT_EQ(tpxErrNullPtr, Api<T>::plain[l](nullptr, 4, buf, 4, empty));
    EXPECT_EQ(tpxErrSize, Api<T>::plain[l](buf, 4, buf + 4, 4, TpxSize{1, 0}));
    EXPECT_EQ(tpxOk, Api<T>::plain[l](buf, 0, buf + 8, -7, one));  // no step check at all
    EXPECT_EQ(tpxErrNullPtr, Api<T>::masked[l](buf, 4, buf + 8, 4, empty, nullptr, 1));
    EXPECT_EQ(tpxErrSize, Api<T>::masked[l](buf, 4, buf + 8, 4, empty, m, 1));
  }
  T* planes[4] = {buf, buf + 1, nullptr, buf + 3};
  EXPECT_EQ(tpxErrNullPtr, Api<T>::c3p3(buf, 12, planes, 4, empty));  // a null plane counts among the pointers
  EXPECT_EQ(tpxErrNullPtr, Api<T>::c4p4(buf, 12, nullptr, 4, one));
  const T* cplanes[4] = {buf, buf + 1, buf + 2, nullptr};
  EXPECT_EQ(tpxErrNullPtr, Api<T>::p4c4(cplanes, 4, buf + 8, 4, empty));
  EXPECT_EQ(tpxErrSize, Api<T>::p3c3(cplanes, 4, buf + 8, 4, empty));
  EXPECT_EQ(tpxErrNullPtr, Api<T>::c3cr(buf, 4, nullptr, 4, empty));
  EXPECT_EQ(tpxErrSize, Api<T>::c1c4(buf, 4, buf, 4, TpxSize{-1, 3}));
}

TYPED_TEST(CopyTest, TwinsNarrowOrWalkRowByRow) {
  using T = TypeParam;
  Rng rng(404);
  for (int l = 0; l < 4; ++l) {
    const int ch = kLayoutChannels[l];
    GuardedImage<T> src(77, 1, ch), a(77, 1, ch), b(77, 1, ch);
    tpxtest::FillRandom(src, rng);
    tpxtest::FillRandom(a, rng);
    b.CopyFrom(a);
    // Small steps narrow to the 32-bit export; a step past 0x7ffffffe walks the single row.
    ASSERT_EQ(tpxOk, Api<T>::twin[l](src.Data(), src.Step(), a.Data(), a.Step(), TpxSizeL{77, 1}));
    ASSERT_EQ(tpxOk, Api<T>::twin[l](src.Data(), 0x80000000LL, b.Data(), -0x90000000LL, TpxSizeL{77, 1}));
    ASSERT_TRUE(tpxtest::SameSamples(a, b));
    Plain<T> want(src);
    if (l == 3) {  // alpha kept
      const Plain<T> before(b);
      for (int x = 0; x < 77; ++x) want.At(x, 0, 3) = before.At(x, 0, 3);
    }
    ASSERT_TRUE(Same(b, want));
    EXPECT_EQ(tpxErrSize, Api<T>::twin[l](src.Data(), 8, b.Data(), 8, TpxSizeL{0, 5}));
    EXPECT_EQ(tpxOk, Api<T>::twin[l](src.Data(), 0x7fffffffLL, b.Data(), 8, TpxSizeL{0, 5}));
    EXPECT_EQ(tpxErrNullPtr, Api<T>::twin[l](nullptr, 0x7fffffffLL, b.Data(), 8, TpxSizeL{3, 1}));
  }
}

// C3CR and C4CR test the two address ranges; where they overlap, a sample loop runs row by row
// from the left, so a copy onto the next pixel's channel carries the first sample along the row.
TEST(CopyChannel, OverlapTakesTheSampleLoop) {
  for (int n : {3, 4}) {
    GuardedImage<Tpx16s> img(40, 5, n, 3);
    Rng rng(5);
    tpxtest::FillRandom(img, rng);
    Plain<Tpx16s> want(img);
    for (int y = 0; y < 5; ++y)
      for (int x = 1; x < 40; ++x) want.At(x, y, 0) = want.At(0, y, 0);
    const auto fn = n == 3 ? tpxiCopy_16s_C3CR : tpxiCopy_16s_C4CR;
    ASSERT_EQ(tpxOk, fn(img.Data(), img.Step(), img.Data() + n, img.Step(), TpxSize{39, 5}));
    EXPECT_TRUE(Same(img, want));
    // One image, channel 0 onto channel 2: the ranges overlap, the result is still the copy.
    tpxtest::FillRandom(img, rng);
    Plain<Tpx16s> want2(img);
    for (int y = 0; y < 5; ++y)
      for (int x = 0; x < 40; ++x) want2.At(x, y, 2) = want2.At(x, y, 0);
    ASSERT_EQ(tpxOk, fn(img.Data(), img.Step(), img.Data() + 2, img.Step(), TpxSize{40, 5}));
    EXPECT_TRUE(Same(img, want2));
  }
}

TEST(CopyDup, EverySampleToEveryChannel) {
  Rng rng(6);
  for (int n : {3, 4}) {
    datatest::Sweep<Tpx8u>(1, n, 16, rng,
        [&](GuardedImage<Tpx8u>& s, GuardedImage<Tpx8u>& d) {
          return (n == 3 ? tpxiDup_8u_C1C3R : tpxiDup_8u_C1C4R)(s.Data(), s.Step(), d.Data(), d.Step(), d.Size());
        },
        [&](const Plain<Tpx8u>& s, Plain<Tpx8u>& want) {
          for (int y = 0; y < s.h; ++y)
            for (int x = 0; x < s.w; ++x)
              for (int c = 0; c < n; ++c) want.At(x, y, c) = s.At(x, y);
        });
  }
  EXPECT_EQ(tpxErrNullPtr, tpxiDup_8u_C1C3R(nullptr, 1, nullptr, 1, TpxSize{0, 0}));
}

// Negative steps are taken as they are: a bottom-up source gives the image upside down.
TEST(CopyPlain, NegativeStepWalksUpwards) {
  GuardedImage<Tpx8u> src(1500, 4, 1), dst(1500, 4, 1);
  Rng rng(8);
  tpxtest::FillRandom(src, rng);
  ASSERT_EQ(tpxOk, tpxiCopy_8u_C1R(src.Row(3), -src.Step(), dst.Data(), dst.Step(), src.Size()));
  for (int y = 0; y < 4; ++y) ASSERT_EQ(0, std::memcmp(dst.Row(y), src.Row(3 - y), 1500));
}

// Past its floor with a reported cache of one byte, each copy driver streams; the bytes must be
// those of the plain path, from any destination alignment (the 256-byte head), coalesced or not.
template <class T, tpx::Layout kL>
void StreamCase(int w, int h, int pad, int mis) {
  constexpr int S = tpx::Stride(kL);
  GuardedImage<T> src(w, h, S, pad, mis), a(w, h, S, pad, mis + 1), b(w, h, S, pad, mis + 1);
  Rng rng(w);
  tpxtest::FillRandom(src, rng);
  tpx::CopyRegion<T, kL>(src.Data(), src.Step(), a.Data(), a.Step(), src.Size(), datatest::CacheTiny);
  tpx::CopyRegion<T, kL>(src.Data(), src.Step(), b.Data(), b.Step(), src.Size(), datatest::CacheUnknown);
  ASSERT_TRUE(a.GuardsIntact());
  ASSERT_TRUE(tpxtest::SameSamples(a, b));
  ASSERT_TRUE(tpxtest::SameSamples(a, src));
}

TEST(CopyStreaming, EqualsPlainPath) {
  StreamCase<Tpx8u, tpx::Layout::C1>(2100, 1000, 0, 0);   // one long row, 0x200001 pixels and more
  StreamCase<Tpx8u, tpx::Layout::C1>(2100, 1000, 5, 3);   // rows
  StreamCase<Tpx8u, tpx::Layout::C3>(1000, 787, 1, 7);    // 0xC0001 pixels and more
  StreamCase<Tpx16u, tpx::Layout::C4>(700, 900, 3, 1);    // 8-byte pixels: 0x60001
  StreamCase<Tpx32f, tpx::Layout::C1>(1024, 513, 0, 1);   // 0x80001
}

TEST(CopyStreaming, PlanarEqualsPlainPath) {
  // 32f planar copies ask from 0x80001 samples on: 640 x 280 x 3 is past it.
  const TpxSize roi{640, 280};
  GuardedImage<Tpx32f> packed(roi.width, roi.height, 4, 1, 1);
  Rng rng(9);
  tpxtest::FillRandom(packed, rng);
  for (int n : {3, 4}) {
    GuardedImage<Tpx32f> pa(roi.width, n * roi.height, 1, 2, 3), pb(roi.width, n * roi.height, 1, 2, 3);
    GuardedImage<Tpx32f> ba(roi.width, roi.height, 4, 0, 2), bb(roi.width, roi.height, 4, 0, 2);
    Tpx32f *a[4], *b[4];
    for (int c = 0; c < n; ++c) { a[c] = pa.Row(c * roi.height); b[c] = pb.Row(c * roi.height); }
    const int ps = pa.Step();
    if (n == 3) {
      GuardedImage<Tpx32f> p3(roi.width, roi.height, 3, 1, 1), b3a(roi.width, roi.height, 3), b3b(roi.width, roi.height, 3);
      tpxtest::FillRandom(p3, rng);
      tpx::ToPlanarImage<Tpx32f, 3, true>(p3.Data(), p3.Step(), a, ps, roi, datatest::CacheTiny);
      tpx::ToPlanarImage<Tpx32f, 3, true>(p3.Data(), p3.Step(), b, ps, roi, datatest::CacheHuge);
      ASSERT_TRUE(tpxtest::SameSamples(pa, pb));
      const Tpx32f* ca[3] = {a[0], a[1], a[2]};
      tpx::FromPlanarImage<Tpx32f, 3, true>(ca, ps, b3a.Data(), b3a.Step(), roi, datatest::CacheTiny);
      tpx::FromPlanarImage<Tpx32f, 3, true>(ca, ps, b3b.Data(), b3b.Step(), roi, datatest::CacheUnknown);
      ASSERT_TRUE(tpxtest::SameSamples(b3a, p3));
      ASSERT_TRUE(tpxtest::SameSamples(b3b, p3));
      ASSERT_TRUE(b3a.GuardsIntact() && pa.GuardsIntact());
    } else {
      tpx::ToPlanarImage<Tpx32f, 4, true>(packed.Data(), packed.Step(), a, ps, roi, datatest::CacheTiny);
      tpx::ToPlanarImage<Tpx32f, 4, true>(packed.Data(), packed.Step(), b, ps, roi, datatest::CacheUnknown);
      ASSERT_TRUE(tpxtest::SameSamples(pa, pb));
      const Tpx32f* ca[4] = {a[0], a[1], a[2], a[3]};
      tpx::FromPlanarImage<Tpx32f, 4, true>(ca, ps, ba.Data(), ba.Step(), roi, datatest::CacheTiny);
      tpx::FromPlanarImage<Tpx32f, 4, true>(ca, ps, bb.Data(), bb.Step(), roi, datatest::CacheUnknown);
      ASSERT_TRUE(tpxtest::SameSamples(ba, packed));
      ASSERT_TRUE(tpxtest::SameSamples(bb, packed));
      ASSERT_TRUE(ba.GuardsIntact() && pa.GuardsIntact());
    }
  }
}

// A streaming planar row writes the bytes of the scalar row and nothing else, for every phase of
// its destinations: planes in phase at each of the eight heads, planes out of phase with each
// other and C4 pixels off 16 bytes (the stack block), widths below a step and past the block.
template <class T>
T* Aligned64(std::vector<T>& v) {
  return v.data() + ((0u - reinterpret_cast<std::uintptr_t>(v.data())) & 63u) / sizeof(T);
}

template <int kC>
void StreamRowCase(int n, const int (&planeShift)[kC], int packedShift, Rng& rng) {
  using T = Tpx32f;
  const int slot = (n + 16 + 15) / 16 * 16 + 16;  // samples of one plane's room, a multiple of 64 bytes
  std::vector<T> packed(kC * (n + 16) + 32), planesA(kC * slot + 16), planesB(planesA.size());
  for (auto& v : packed) v = rng.Sample<T>();
  for (auto& v : planesA) v = rng.Sample<T>();
  std::memcpy(Aligned64(planesB), Aligned64(planesA), kC * slot * sizeof(T));  // the aligned parts compare
  T *a[kC], *b[kC];
  for (int c = 0; c < kC; ++c) {
    a[c] = Aligned64(planesA) + c * slot + 8 + planeShift[c];
    b[c] = Aligned64(planesB) + c * slot + 8 + planeShift[c];
  }
  const T* src = Aligned64(packed) + packedShift;
  tpx::ToPlanarRowStreaming<tpx::Isa::kAvx, T, kC>(src, a, n);
  tpx::StreamFence();
  tpx::ToPlanarRow<tpx::Isa::kScalar, T, kC>(src, b, n);
  ASSERT_EQ(0, std::memcmp(Aligned64(planesA), Aligned64(planesB), kC * slot * sizeof(T)))
      << "to planes, C" << kC << " n=" << n << " shift " << planeShift[0] << "," << planeShift[1];

  const std::size_t room = kC * (n + 8) + 16;
  std::vector<T> outA(room + 16), outB(room + 16);
  for (auto& v : outA) v = rng.Sample<T>();
  std::memcpy(Aligned64(outB), Aligned64(outA), room * sizeof(T));
  const T* ca[kC];
  for (int c = 0; c < kC; ++c) ca[c] = a[c];
  tpx::FromPlanarRowStreaming<tpx::Isa::kAvx, T, kC>(ca, Aligned64(outA) + packedShift, n);
  tpx::StreamFence();
  tpx::FromPlanarRow<tpx::Isa::kScalar, T, kC>(ca, Aligned64(outB) + packedShift, n);
  ASSERT_EQ(0, std::memcmp(Aligned64(outA), Aligned64(outB), room * sizeof(T)))
      << "from planes, C" << kC << " n=" << n << " packed shift " << packedShift;
}

TEST(CopyStreaming, PlanarRowsEveryPhase) {
  Rng rng(13);
  for (int n : {0, 1, 5, 8, 9, 15, 16, 17, 33, 200, 530, 1100})
    for (int k = 0; k < 8; ++k) {
      const int inPhase3[3] = {k, k, k}, inPhase4[4] = {k, k, k, k};
      const int outOfPhase3[3] = {k, (k + 1) % 8, k}, outOfPhase4[4] = {k, k, k, (k + 3) % 8};
      StreamRowCase<3>(n, inPhase3, k, rng);
      StreamRowCase<4>(n, inPhase4, k, rng);  // packed shifts 0 and 4 reach 16 bytes, the others not
      StreamRowCase<3>(n, outOfPhase3, 7 - k, rng);
      StreamRowCase<4>(n, outOfPhase4, 7 - k, rng);
    }
}

// ---- Vector kernels against their scalar twins --------------------------------------------
template <class T, int kSi, int kSo>
void MapTwin(std::initializer_list<int> from, bool inPlace, int srcLast, int dstLast, Rng& rng) {
  for (int n = 1; n <= 3 * 16 + 3; ++n) {
    std::vector<T> s(n * kSi + 8), a(n * kSo + 8), b;
    for (auto& v : s) v = rng.Sample<T>();
    for (auto& v : a) v = rng.Sample<T>();
    if (inPlace) a = s;
    b = a;
    const tpx::PixelMap<T, kSi, kSo> m(from.begin(), rng.Sample<T>(), inPlace, srcLast, dstLast);
    const T* sa = inPlace ? a.data() : s.data();
    const T* sb = inPlace ? b.data() : s.data();
    if (m.blend) {
      tpx::MapPixelsRow<tpx::Isa::kAvx, T, kSi, kSo, true>(sa, a.data(), n, m);
      tpx::MapPixelsRow<tpx::Isa::kScalar, T, kSi, kSo, true>(sb, b.data(), n, m);
    } else {
      tpx::MapPixelsRow<tpx::Isa::kAvx, T, kSi, kSo, false>(sa, a.data(), n, m);
      tpx::MapPixelsRow<tpx::Isa::kScalar, T, kSi, kSo, false>(sb, b.data(), n, m);
    }
    ASSERT_EQ(0, std::memcmp(a.data(), b.data(), a.size() * sizeof(T))) << "n=" << n;
  }
}

TEST(CopyKernels, PixelMapAvxEqualsScalar) {
  Rng rng(10);
  using tpx::kKeep;
  using tpx::kTakeVal;
  MapTwin<Tpx8u, 3, 3>({2, 0, 1}, true, 3, 3, rng);
  MapTwin<Tpx8u, 3, 3>({0, kKeep, kKeep}, false, 1, 1, rng);
  MapTwin<Tpx8u, 3, 4>({2, kTakeVal, 0, kKeep}, false, 3, 4, rng);
  MapTwin<Tpx8u, 1, 3>({0, 0, 0}, false, 1, 3, rng);
  MapTwin<Tpx16u, 4, 3>({3, 3, 1}, false, 4, 3, rng);
  MapTwin<Tpx16s, 0, 4>({kTakeVal, kKeep, kKeep, kKeep}, false, 0, 1, rng);
  MapTwin<Tpx32f, 3, 1>({0}, false, 1, 1, rng);
  MapTwin<Tpx32s, 4, 4>({3, 2, 1, 0}, true, 4, 4, rng);
}

template <class T, tpx::Layout kL>
void MaskTwin(Rng& rng) {
  constexpr int S = tpx::Stride(kL);
  for (int n = 0; n <= 3 * 16 + 3; ++n) {
    std::vector<T> s(n * S + 4), a(n * S + 1), b;  // a fill reads one pixel of s
    std::vector<Tpx8u> m(n + 1);
    for (auto& v : s) v = rng.Sample<T>();
    for (auto& v : a) v = rng.Sample<T>();
    for (auto& v : m) v = rng.Chance(0.5) ? 0 : static_cast<Tpx8u>(rng.Int(1, 255));
    b = a;
    tpx::MaskedRow<tpx::Isa::kAvx, T, kL, true>(s.data(), a.data(), m.data(), n);
    tpx::MaskedRow<tpx::Isa::kScalar, T, kL, true>(s.data(), b.data(), m.data(), n);
    ASSERT_EQ(0, std::memcmp(a.data(), b.data(), a.size() * sizeof(T))) << "row n=" << n;
    tpx::MaskedRow<tpx::Isa::kAvx, T, kL, false>(s.data(), a.data(), m.data(), n);
    tpx::MaskedRow<tpx::Isa::kScalar, T, kL, false>(s.data(), b.data(), m.data(), n);
    ASSERT_EQ(0, std::memcmp(a.data(), b.data(), a.size() * sizeof(T))) << "pixel n=" << n;
  }
}

TEST(CopyKernels, MaskedAvxEqualsScalar) {
  Rng rng(11);
  MaskTwin<Tpx8u, tpx::Layout::C1>(rng);
  MaskTwin<Tpx8u, tpx::Layout::C3>(rng);
  MaskTwin<Tpx16u, tpx::Layout::AC4>(rng);
  MaskTwin<Tpx32f, tpx::Layout::C3>(rng);
  MaskTwin<Tpx32s, tpx::Layout::AC4>(rng);
}

// Rows up to three 64-byte lines of a plane and three more vectors: the prefetching groups of
// lines, the single steps after them and the scalar tail.
template <class T, int kC>
void PlanarTwin(Rng& rng) {
  for (int n = 0; n <= 3 * 64 / static_cast<int>(sizeof(T)) + 3 * 16 + 3; ++n) {
    std::vector<T> s(n * kC + 1), pa(kC * (n + 1)), pb(kC * (n + 1)), ia(n * kC + 1), ib(n * kC + 1);
    for (auto& v : s) v = rng.Sample<T>();
    T *a[kC], *b[kC];
    for (int c = 0; c < kC; ++c) { a[c] = pa.data() + c * (n + 1); b[c] = pb.data() + c * (n + 1); }
    tpx::ToPlanarRow<tpx::Isa::kAvx, T, kC>(s.data(), a, n);
    tpx::ToPlanarRow<tpx::Isa::kScalar, T, kC>(s.data(), b, n);
    ASSERT_EQ(0, std::memcmp(pa.data(), pb.data(), pa.size() * sizeof(T))) << "n=" << n;
    const T* ca[kC];
    for (int c = 0; c < kC; ++c) ca[c] = a[c];
    tpx::FromPlanarRow<tpx::Isa::kAvx, T, kC>(ca, ia.data(), n);
    tpx::FromPlanarRow<tpx::Isa::kScalar, T, kC>(ca, ib.data(), n);
    ASSERT_EQ(0, std::memcmp(ia.data(), ib.data(), ia.size() * sizeof(T))) << "n=" << n;
  }
}

TEST(CopyKernels, PlanarAvxEqualsScalar) {
  Rng rng(12);
  PlanarTwin<Tpx8u, 3>(rng);
  PlanarTwin<Tpx8u, 4>(rng);
  PlanarTwin<Tpx16s, 3>(rng);
  PlanarTwin<Tpx32f, 3>(rng);
  PlanarTwin<Tpx32s, 4>(rng);
}

}  // namespace
