// The shared frame pieces: checks, the _L twin frame, row walking, size arithmetic, the
// rounding guard, the streaming decision and the one row copy and row fill.
#include <gtest/gtest.h>

#include <cfenv>
#include <cstring>
#include <vector>

#include "core/align.h"
#include "core/checks.h"
#include "core/codes.h"
#include "core/fpround.h"
#include "core/ltwin.h"
#include "core/region.h"
#include "core/rows.h"
#include "core/sizes.h"
#include "core/stream.h"
#include "support/random.h"
#include "support/sweep.h"

namespace {

using namespace tpx;

TEST(Checks, ThreeOrdersAreTellApartByTwoFaults) {
  int x = 0;
  const TpxSize empty{0, 5}, ok{4, 4};
  // Null pointer and an empty region: every order reports the pointer first.
  EXPECT_EQ(CheckImage<CheckOrder::kPtrSize>({&x, nullptr}, empty), tpxErrNullPtr);
  EXPECT_EQ(CheckImage<CheckOrder::kPtrSizeStep>({nullptr}, empty, {0}), tpxErrNullPtr);
  EXPECT_EQ(CheckImage<CheckOrder::kPtrStepSize>({nullptr}, empty, {0}), tpxErrNullPtr);
  // Empty region and a bad step: size first or step first, by order.
  EXPECT_EQ(CheckImage<CheckOrder::kPtrSizeStep>({&x}, empty, {-4}), tpxErrSize);
  EXPECT_EQ(CheckImage<CheckOrder::kPtrStepSize>({&x}, empty, {-4}), tpxErrStep);
  // No step check at all: zero and negative steps pass.
  EXPECT_EQ(CheckImage<CheckOrder::kPtrSize>({&x}, ok, {0, -100}), tpxOk);
  // A step is never compared with the width.
  EXPECT_EQ(CheckImage<CheckOrder::kPtrStepSize>({&x}, TpxSize{100, 1}, {1}), tpxOk);
  EXPECT_EQ(CheckImage<CheckOrder::kPtrSizeStep>({&x}, TpxSize{1, 0}, {1}), tpxErrSize);
}

TEST(Codes, DataTypeRotationTest) {
  for (int code = -40; code < 40; ++code) {
    const bool want = code == 1 || code == 5 || code == 7 || code == 13;
    EXPECT_EQ(DataTypeIs8u16u16s32f(code), want) << code;
  }
  EXPECT_FALSE(DataTypeIs8u16u16s32f(static_cast<int>(0x80000001u)));
}

TEST(Codes, ChannelsAndRoundModes) {
  for (int n = -3; n < 40; ++n) EXPECT_EQ(ChannelCountIs134(n), n == 1 || n == 3 || n == 4) << n;
  for (int m = -20; m < 40; ++m) {
    const bool ok = m == 0 || m == 1 || m == 2 || m == 16 || m == 17 || m == 18;
    EXPECT_EQ(RoundModeBad(m), !ok) << m;
  }
}

TEST(LTwin, NarrowsWhenStepsAndAreaFit) {
  int narrowed = 0, pieces = 0;
  TpxSize got{};
  auto narrow = [&](TpxSize r) { ++narrowed; got = r; return TpxStatus(-6); };
  auto piece = [&](long long, long long, int) { ++pieces; return tpxOk; };
  // Empty region with small steps: narrowed, so the 32-bit status comes back as it stands.
  EXPECT_EQ(LTwin(TpxSizeL{0, 5}, {100, -100}, 1, narrow, piece), -6);
  EXPECT_EQ(narrowed, 1);
  EXPECT_EQ(got.width, 0);
  EXPECT_EQ(got.height, 5);
  // A step of 0x7fffffff (or its negative) does not fit: an empty region is then tpxOk.
  EXPECT_EQ(LTwin(TpxSizeL{0, 5}, {0x7fffffffLL}, 1, narrow, piece), tpxOk);
  EXPECT_EQ(LTwin(TpxSizeL{5, -1}, {-0x7fffffffLL}, 1, narrow, piece), tpxOk);
  EXPECT_EQ(LTwin(TpxSizeL{5, 5}, {0x7ffffffeLL, -0x7ffffffeLL}, 1, narrow, piece), -6);
  EXPECT_EQ(narrowed, 2);
  EXPECT_EQ(pieces, 0);
  // Area beyond the limit, steps small: walked.
  EXPECT_EQ(LTwin(TpxSizeL{0x10000, 0x8000}, {64}, 1, narrow, piece), tpxOk);
  EXPECT_EQ(pieces, 0x8000);
  // Extreme step values must not overflow the absolute value.
  EXPECT_FALSE(LTwinFits(TpxSizeL{1, 1}, {static_cast<long long>(0x8000000000000000ULL)}));
  EXPECT_FALSE(LTwinFits(TpxSizeL{0x7fffffffffffffffLL, 2}, {}));
}

TEST(LTwin, WalksRowsInPiecesAndStopsOnError) {
  std::vector<std::pair<long long, long long>> seen;
  std::vector<int> lens;
  auto narrow = [&](TpxSize) { return TpxStatus(tpxOk); };
  auto piece = [&](long long y, long long x, int n) {
    seen.push_back({y, x});
    lens.push_back(n);
    return tpxOk;
  };
  // Three rows of 0x40000001 C1 pixels: each row is two pieces, 0x3fffffff and 2.
  ASSERT_EQ(LTwin(TpxSizeL{0x40000001LL, 3}, {0x80000000LL}, 1, narrow, piece), tpxOk);
  ASSERT_EQ(seen.size(), 6u);
  EXPECT_EQ(lens[0], 0x3fffffff);
  EXPECT_EQ(lens[1], 2);
  EXPECT_EQ(seen[1].second, 0x3fffffffLL);
  EXPECT_EQ(seen[5].first, 2);
  // C3 pixels: a piece is at most 0x3fffffff samples, so 0x15555555 pixels.
  lens.clear();
  seen.clear();
  ASSERT_EQ(LTwin(TpxSizeL{0x20000000LL, 1}, {0x80000000LL}, 3, narrow, piece), tpxOk);
  ASSERT_EQ(lens.size(), 2u);
  EXPECT_EQ(lens[0], 0x15555555);
  EXPECT_EQ(lens[0] + lens[1], 0x20000000);
  // A negative status ends the walk; a warning does not.
  int calls = 0;
  auto failing = [&](long long y, long long, int) {
    ++calls;
    return y == 1 ? TpxStatus(tpxErrNullPtr) : TpxStatus(tpxWarnNoOperation);
  };
  EXPECT_EQ(LTwin(TpxSizeL{10, 5}, {0x80000000LL}, 1, narrow, failing), tpxErrNullPtr);
  EXPECT_EQ(calls, 2);
}

TEST(Rows, OneLongRowOnlyWhereEveryStepIsTheRow) {
  std::vector<float> a(12 * 5), b(12 * 5);
  std::vector<int> calls;
  auto row = [&](int n, const float*, float*) { calls.push_back(n); };
  ForEachRowCoalesced(5, 12, row, MakePlane<const float>(a.data(), 48), MakePlane(b.data(), 48));
  EXPECT_EQ(calls, std::vector<int>{60});
  calls.clear();
  ForEachRowCoalesced(5, 12, row, MakePlane<const float>(a.data(), 48), MakePlane(b.data(), 52));
  EXPECT_EQ(calls, std::vector<int>(5, 12));
  // Zero and negative steps walk the same or earlier rows.
  std::vector<const int*> rows;
  int img[3][4] = {};
  ForEachRow(3, [&](const int* p) { rows.push_back(p); }, MakePlane<const int>(&img[2][0], -16));
  EXPECT_EQ(rows[0], &img[2][0]);
  EXPECT_EQ(rows[2], &img[0][0]);
}

TEST(Sizes, ExceededInsteadOfWrapping) {
  int out = -1;
  EXPECT_EQ((ByteCount(1000) * 1000 + 64).Store(&out), tpxOk);
  EXPECT_EQ(out, 1000064);
  out = -1;
  EXPECT_EQ((ByteCount(0x10000) * 0x8000).Store(&out), tpxErrExceededSize);
  EXPECT_EQ(out, -1);
  EXPECT_EQ((ByteCount(0x7fffffff) + 1).Store(&out), tpxErrExceededSize);
  EXPECT_EQ((ByteCount(0x7fffffff) * 0x7fffffff * 0x7fffffff).Store(&out), tpxErrExceededSize);
  EXPECT_EQ(ByteCount(0).BufferTail().Value(), 0);
  EXPECT_EQ(ByteCount(1).BufferTail().Value(), 192);
  EXPECT_EQ(ByteCount(64).BufferTail().Value(), 192);
  EXPECT_EQ(ByteCount(65).BufferTail().Value(), 256);
  EXPECT_TRUE(ByteCount(0x7fffff80).BufferTail().Exceeded());
  EXPECT_EQ(ByteCount(100).RoundUp(64).Value(), 128);
}

TEST(Align, Up64) {
  alignas(64) unsigned char buf[256];
  for (int off = 0; off < 64; ++off) {
    unsigned char* p = AlignUp64<unsigned char>(buf + off);
    EXPECT_EQ(p, off == 0 ? buf : buf + 64);
  }
}

TEST(Rounding, ScopeSetsAndRestoresOnEveryExit) {
  const unsigned before = _mm_getcsr();
  volatile float half = 2.5f;  // kept from constant folding
  for (FpRound m : {FpRound::kNearest, FpRound::kDown, FpRound::kUp, FpRound::kZero}) {
    {
      RoundingScope scope(m);
      EXPECT_EQ(_mm_getcsr() & _MM_ROUND_MASK, static_cast<unsigned>(m));
      EXPECT_EQ(_mm_cvtss_si32(_mm_set_ss(half)), m == FpRound::kUp ? 3 : 2);
    }
    EXPECT_EQ(_mm_getcsr() & _MM_ROUND_MASK, before & _MM_ROUND_MASK);
  }
  // A caller's own direction is what comes back.
  _MM_SET_ROUNDING_MODE(_MM_ROUND_UP);
  auto early = [] {
    RoundingScope scope(FpRound::kZero);
    return 1;  // the guard restores on this path too
  };
  early();
  EXPECT_EQ(_MM_GET_ROUNDING_MODE(), _MM_ROUND_UP);
  _mm_setcsr(before);
}

int g_queries = 0;  // test-only counter of the injected cache query
int FakeCache4k(int* size) { ++g_queries; *size = 4096; return 0; }
int FakeCacheUnknown(int* size) { ++g_queries; *size = 0; return -1; }

TEST(Streaming, TwoStageDecision) {
  g_queries = 0;
  EXPECT_FALSE(ChooseStreaming(0x80000, 0x80001, FakeCache4k));  // below the floor: no query
  EXPECT_EQ(g_queries, 0);
  EXPECT_TRUE(ChooseStreaming(0x80001, 0x80001, FakeCache4k));
  EXPECT_EQ(g_queries, 1);
  EXPECT_FALSE(ChooseStreaming(4095, 16, FakeCache4k));          // below the cache size
  EXPECT_TRUE(ChooseStreaming(4096, 16, FakeCache4k));
  EXPECT_FALSE(ChooseStreaming(1 << 30, 16, FakeCacheUnknown));  // unknown size: plain stores
  // The real query: this machine's largest cache is far above a few megabytes.
  EXPECT_FALSE(ChooseStreaming(0x80001, 0x80001));
}

template <Isa kI, bool kS>
void CopyCase(int n, int misS, int misD, tpxtest::Rng& rng) {
  std::vector<unsigned char> src(n + 128), ref(n + 128, 0xA5), got(n + 128, 0xA5);
  for (auto& b : src) b = static_cast<unsigned char>(rng.Bits());
  CopyBytes<Isa::kScalar>(src.data() + misS, ref.data() + 32 + misD, n);
  CopyBytes<kI, kS>(src.data() + misS, got.data() + 32 + misD, n);
  if (kS) StreamFence();
  ASSERT_EQ(ref, got) << "n=" << n << " misS=" << misS << " misD=" << misD;
}

TEST(RowCopy, VectorAndStreamingEqualScalar) {
  tpxtest::Rng rng(7);
  for (int n = 0; n <= 3 * 128 + 35; ++n)
    for (int mis : {0, 1, 13, 31}) {
      CopyCase<Isa::kAvx, false>(n, mis, (mis * 7) % 32, rng);
      CopyCase<Isa::kAvx, true>(n, mis, (mis * 5 + 3) % 32, rng);
    }
}

TEST(RowFill, EveryPatternLengthAndPhase) {
  for (int pb : {1, 2, 3, 4, 6, 8, 12, 16, 24, 32}) {
    unsigned char pattern[32];
    for (int i = 0; i < pb; ++i) pattern[i] = static_cast<unsigned char>(0x10 + i * 7);
    const FillPattern pat(pattern, pb);
    for (int reps = 0; reps <= 3 * 128 / pb + 5; ++reps)
      for (int mis : {0, 1, 8, 20}) {
        const int n = reps * pb;
        std::vector<unsigned char> ref(n + 96, 0xA5), plain(n + 96, 0xA5), stream(n + 96, 0xA5);
        for (int i = 0; i < n; ++i) ref[32 + mis + i] = pattern[i % pb];
        FillBytes<Isa::kAvx>(plain.data() + 32 + mis, n, pat);
        FillBytes<Isa::kAvx, true>(stream.data() + 32 + mis, n, pat);
        StreamFence();
        std::vector<unsigned char> scalar(n + 96, 0xA5);
        FillBytes<Isa::kScalar>(scalar.data() + 32 + mis, n, pat);
        ASSERT_EQ(ref, plain) << "pb=" << pb << " n=" << n << " mis=" << mis;
        ASSERT_EQ(ref, stream) << "pb=" << pb << " n=" << n << " mis=" << mis;
        ASSERT_EQ(ref, scalar) << "pb=" << pb << " n=" << n << " mis=" << mis;
      }
  }
}

}  // namespace


namespace {

using namespace tpx;

int FakeCacheTiny(int* size) { *size = 1; return 0; }

template <class T, Layout kL>
void RegionCase(tpxtest::Rng& rng) {
  constexpr int S = Stride(kL);
  for (const tpxtest::Shape sh : tpxtest::Shapes(32)) {
    tpxtest::GuardedImage<T> src(sh.width, sh.height, S, sh.padSamples, sh.misalign);
    tpxtest::FillRandom(src, rng);
    T pixel[4];
    for (T& v : pixel) v = rng.Sample<T>();
    for (bool stream : {false, true}) {
      const CacheSizeQuery q = stream ? FakeCacheTiny : FakeCacheUnknown;
      tpxtest::GuardedImage<T> filled(sh.width, sh.height, S, sh.padSamples, sh.misalign + 1);
      tpxtest::GuardedImage<T> copied(sh.width, sh.height, S, sh.padSamples, sh.misalign + 2);
      tpxtest::FillRandom(filled, rng);
      tpxtest::FillRandom(copied, rng);
      const auto before = filled.Samples(), beforeCopy = copied.Samples();
      // Streaming is only chosen past the floors; a tiny cache makes every call past them stream.
      FillRegion<T, kL>(filled.Data(), filled.Step(), filled.Size(), pixel, q);
      CopyRegion<T, kL>(src.Data(), src.Step(), copied.Data(), copied.Step(), copied.Size(), q);
      ASSERT_TRUE(filled.GuardsIntact());
      ASSERT_TRUE(copied.GuardsIntact());
      for (int y = 0; y < sh.height; ++y)
        for (int x = 0; x < sh.width; ++x)
          for (int c = 0; c < S; ++c) {
            const std::size_t k = static_cast<std::size_t>(y) * sh.width * S + x * S + c;
            const bool keep = kL == Layout::AC4 && c == 3;
            ASSERT_EQ(0, std::memcmp(&filled.At(x, y, c), keep ? &before[k] : &pixel[c], sizeof(T)))
                << "fill w=" << sh.width << " y=" << y << " x=" << x << " c=" << c;
            ASSERT_EQ(0, std::memcmp(&copied.At(x, y, c), keep ? &beforeCopy[k] : &src.At(x, y, c), sizeof(T)))
                << "copy w=" << sh.width << " y=" << y << " x=" << x << " c=" << c;
          }
    }
  }
}

TEST(Region, FillAndCopyEveryLayout) {
  tpxtest::Rng rng(11);
  RegionCase<Tpx8u, Layout::C1>(rng);
  RegionCase<Tpx8u, Layout::C3>(rng);
  RegionCase<Tpx8u, Layout::AC4>(rng);
  RegionCase<Tpx16s, Layout::C4>(rng);
  RegionCase<Tpx16u, Layout::AC4>(rng);
  RegionCase<Tpx32f, Layout::C3>(rng);
  RegionCase<Tpx32f, Layout::AC4>(rng);
  RegionCase<Tpx32s, Layout::C1>(rng);
}

TEST(Region, StreamingPathsOnLargeImages) {
  // Past the floors with a tiny reported cache, the streaming kernels run; bytes must match.
  for (TpxSize roi : {TpxSize{2048, 1100}, TpxSize{1500, 1500}}) {
    std::vector<Tpx8u> src(static_cast<std::size_t>(roi.width) * roi.height), a(src.size()), b(src.size());
    tpxtest::Rng rng(3);
    for (auto& v : src) v = static_cast<Tpx8u>(rng.Bits());
    CopyRegion<Tpx8u, Layout::C1>(src.data(), roi.width, a.data(), roi.width, roi, FakeCacheTiny);
    EXPECT_EQ(src, a);
    const Tpx8u v = 0x3C;
    FillRegion<Tpx8u, Layout::C1>(b.data(), roi.width, roi, &v, FakeCacheTiny);
    EXPECT_EQ(std::vector<Tpx8u>(src.size(), v), b);
  }
}

}  // namespace
