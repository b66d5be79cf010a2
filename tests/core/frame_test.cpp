// The shared frame pieces: checks, the _L twin frame, row walking, size arithmetic, the
// rounding guard, the streaming decision and the one row copy and row fill.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "core/checks.h"
#include "core/codes.h"
#include "core/fpround.h"
#include "core/ltwin.h"
#include "core/rows.h"
#include "core/sizes.h"
#include "core/stream.h"
#include "support/random.h"

namespace {

using namespace tpx;

TEST(Checks, ThreeOrdersToldApartByTwoFaultsAndAcceptedCodes) {
  int x = 0;
  const TpxSize empty{0, 5};
  EXPECT_EQ(CheckImage<CheckOrder::kPtrSize>({&x, nullptr}, empty), tpxErrNullPtr);
  EXPECT_EQ(CheckImage<CheckOrder::kPtrSizeStep>({nullptr}, empty, {0}), tpxErrNullPtr);
  EXPECT_EQ(CheckImage<CheckOrder::kPtrStepSize>({nullptr}, empty, {0}), tpxErrNullPtr);
  EXPECT_EQ(CheckImage<CheckOrder::kPtrSizeStep>({&x}, empty, {-4}), tpxErrSize);
  EXPECT_EQ(CheckImage<CheckOrder::kPtrStepSize>({&x}, empty, {-4}), tpxErrStep);
  EXPECT_EQ(CheckImage<CheckOrder::kPtrSize>({&x}, TpxSize{4, 4}, {0, -100}), tpxOk);  // no step check
  EXPECT_EQ(CheckImage<CheckOrder::kPtrStepSize>({&x}, TpxSize{100, 1}, {1}), tpxOk);  // step not vs width
  for (int v = -40; v < 40; ++v) {
    EXPECT_EQ(DataTypeIs8u16u16s32f(v), v == 1 || v == 5 || v == 7 || v == 13) << v;
    EXPECT_EQ(ChannelCountIs134(v), v == 1 || v == 3 || v == 4) << v;
    EXPECT_EQ(RoundModeBad(v), !(v == 0 || v == 1 || v == 2 || v == 16 || v == 17 || v == 18)) << v;
  }
  EXPECT_FALSE(DataTypeIs8u16u16s32f(static_cast<int>(0x80000001u)));
}

TEST(LTwin, NarrowsWhenStepsAndAreaFitElseWalksInPieces) {
  int narrowed = 0;
  TpxSize got{};
  std::vector<std::pair<long long, long long>> seen;
  std::vector<int> lens;
  auto narrow = [&](TpxSize r) { ++narrowed; got = r; return TpxStatus(-6); };
  auto piece = [&](long long y, long long x, int n) { seen.push_back({y, x}); lens.push_back(n); return tpxOk; };
  EXPECT_EQ(LTwin(TpxSizeL{0, 5}, {100, -100}, 1, narrow, piece), -6);
  EXPECT_EQ(got.width * 10 + got.height, 5);
  // A step of +-0x7fffffff does not fit: an empty region is then tpxOk.
  EXPECT_EQ(LTwin(TpxSizeL{0, 5}, {0x7fffffffLL}, 1, narrow, piece), tpxOk);
  EXPECT_EQ(LTwin(TpxSizeL{5, -1}, {-0x7fffffffLL}, 1, narrow, piece), tpxOk);
  EXPECT_EQ(LTwin(TpxSizeL{5, 5}, {0x7ffffffeLL, -0x7ffffffeLL}, 1, narrow, piece), -6);
  EXPECT_EQ(narrowed, 2);
  EXPECT_FALSE(LTwinFits(TpxSizeL{1, 1}, {static_cast<long long>(0x8000000000000000ULL)}));
  EXPECT_FALSE(LTwinFits(TpxSizeL{0x7fffffffffffffffLL, 2}, {}));
  ASSERT_EQ(LTwin(TpxSizeL{0x10000, 0x8000}, {64}, 1, narrow, piece), tpxOk);  // area too large
  EXPECT_EQ(lens.size(), 0x8000u);
  seen.clear(), lens.clear();
  // Rows of 0x40000001 C1 pixels: two pieces each, 0x3fffffff and 2.
  ASSERT_EQ(LTwin(TpxSizeL{0x40000001LL, 3}, {0x80000000LL}, 1, narrow, piece), tpxOk);
  EXPECT_EQ(lens, (std::vector<int>{0x3fffffff, 2, 0x3fffffff, 2, 0x3fffffff, 2}));
  EXPECT_EQ(seen[1], (std::pair<long long, long long>{0, 0x3fffffff}));
  EXPECT_EQ(seen[5].first, 2);
  lens.clear();
  ASSERT_EQ(LTwin(TpxSizeL{0x20000000LL, 1}, {0x80000000LL}, 3, narrow, piece), tpxOk);  // C3: 0x3fffffff samples
  EXPECT_EQ(lens, (std::vector<int>{0x15555555, 0x20000000 - 0x15555555}));
  int calls = 0;  // a negative status ends the walk; a warning does not
  auto failing = [&](long long y, long long, int) { ++calls; return y == 1 ? tpxErrNullPtr : tpxWarnNoOperation; };
  EXPECT_EQ(LTwin(TpxSizeL{10, 5}, {0x80000000LL}, 1, narrow, failing), tpxErrNullPtr);
  EXPECT_EQ(calls, 2);
}

TEST(Rows, OneLongRowOnlyWhereEveryStepIsTheRow) {
  std::vector<float> a(12 * 5), b(12 * 5);
  std::vector<int> calls;
  auto row = [&](int n, const float*, float*) { calls.push_back(n); };
  ForEachRowCoalesced(5, 12, row, MakePlane<const float>(a.data(), 48), MakePlane(b.data(), 48));
  ForEachRowCoalesced(5, 12, row, MakePlane<const float>(a.data(), 48), MakePlane(b.data(), 52));
  EXPECT_EQ(calls, (std::vector<int>{60, 12, 12, 12, 12, 12}));
  std::vector<const int*> rows;
  int img[3][4] = {};
  ForEachRow(3, [&](const int* p) { rows.push_back(p); }, MakePlane<const int>(&img[2][0], -16));
  EXPECT_EQ(rows, (std::vector<const int*>{&img[2][0], &img[1][0], &img[0][0]}));
}

TEST(Sizes, ExceededInsteadOfWrapping) {
  int out = -1;
  EXPECT_EQ((ByteCount(1000) * 1000 + 64).Store(&out), tpxOk);
  EXPECT_EQ(out, 1000064);
  EXPECT_EQ((ByteCount(0x10000) * 0x8000).Store(&out), tpxErrExceededSize);
  EXPECT_EQ((ByteCount(0x7fffffff) + 1).Store(&out), tpxErrExceededSize);
  EXPECT_EQ((ByteCount(0x7fffffff) * 0x7fffffff * 0x7fffffff).Store(&out), tpxErrExceededSize);
  EXPECT_EQ(out, 1000064);
  for (auto [n, tail] : {std::pair{0, 0}, {1, 192}, {64, 192}, {65, 256}}) EXPECT_EQ(ByteCount(n).BufferTail().Value(), tail);
  EXPECT_TRUE(ByteCount(0x7fffff80).BufferTail().Exceeded());
  EXPECT_EQ(ByteCount(100).RoundUp(64).Value(), 128);
}

TEST(Rounding, ScopeSetsAndRestoresOnEveryExit) {
  const unsigned before = _mm_getcsr();
  volatile float half = 2.5f;
  for (FpRound m : {FpRound::kNearest, FpRound::kDown, FpRound::kUp, FpRound::kZero}) {
    {
      RoundingScope scope(m);
      EXPECT_EQ(_mm_getcsr() & _MM_ROUND_MASK, static_cast<unsigned>(m));
      EXPECT_EQ(_mm_cvtss_si32(_mm_set_ss(half)), m == FpRound::kUp ? 3 : 2);
    }
    EXPECT_EQ(_mm_getcsr() & _MM_ROUND_MASK, before & _MM_ROUND_MASK);
  }
  _MM_SET_ROUNDING_MODE(_MM_ROUND_UP);  // a caller's own direction comes back, early return too
  [] { RoundingScope scope(FpRound::kZero); return 1; }();
  EXPECT_EQ(_MM_GET_ROUNDING_MODE(), _MM_ROUND_UP);
  _mm_setcsr(before);
}

int g_queries = 0;
int FakeCache4k(int* size) { ++g_queries; *size = 4096; return 0; }
int FakeCacheUnknown(int* size) { ++g_queries; *size = 0; return -1; }

TEST(Streaming, TwoStageDecision) {
  g_queries = 0;
  EXPECT_FALSE(ChooseStreaming(0x80000, 0x80001, FakeCache4k));  // below the floor: no query
  EXPECT_EQ(g_queries, 0);
  EXPECT_TRUE(ChooseStreaming(0x80001, 0x80001, FakeCache4k));
  EXPECT_EQ(g_queries, 1);
  EXPECT_FALSE(ChooseStreaming(4095, 16, FakeCache4k));
  EXPECT_TRUE(ChooseStreaming(4096, 16, FakeCache4k));
  EXPECT_FALSE(ChooseStreaming(1 << 30, 16, FakeCacheUnknown));
  EXPECT_FALSE(ChooseStreaming(0x80001, 0x80001));  // this machine's cache is far larger
}

// Vector, string-move and streaming copies and fills equal the scalar twin and the plain
// pattern at every length and phase, with nothing written around the row.
TEST(RowCopyFill, VectorAndStreamingEqualScalar) {
  tpxtest::Rng rng(7);
  std::vector<int> lengths;
  for (int n = 0; n <= 3 * 128 + 35; ++n) lengths.push_back(n);
  const int n0 = static_cast<int>(kCopyStringMinBytes);
  lengths.insert(lengths.end(), {n0 - 33, n0 - 1, n0, n0 + 1, n0 + 31, 2 * n0 + 77, 7681});
  for (int n : lengths)
    for (int misS : {0, 1, 13, 32})
      for (int misD : {0, 1, 29, 64}) {
        std::vector<unsigned char> src(n + 128), ref(n + 192, 0xA5), plain(ref), stream(ref);
        for (auto& b : src) b = static_cast<unsigned char>(rng.Bits());
        CopyBytes<Isa::kScalar>(src.data() + misS, ref.data() + 64 + misD, n);
        CopyBytes<Isa::kAvx>(src.data() + misS, plain.data() + 64 + misD, n);
        CopyBytes<Isa::kAvx, true>(src.data() + misS, stream.data() + 64 + misD, n);
        StreamFence();
        ASSERT_TRUE(ref == plain && ref == stream) << "n=" << n << " misS=" << misS << " misD=" << misD;
      }
  for (int pb : {1, 2, 3, 4, 6, 8, 12, 16, 24, 32}) {
    unsigned char pattern[32];
    for (int i = 0; i < pb; ++i) pattern[i] = static_cast<unsigned char>(0x10 + i * 7);
    const FillPattern pat(pattern, pb);
    for (int n = 0; n <= 3 * 128 + 5 * pb; n += pb)
      for (int mis : {0, 1, 8, 20}) {
        std::vector<unsigned char> ref(n + 96, 0xA5), plain(ref), stream(ref), scalar(ref);
        for (int i = 0; i < n; ++i) ref[32 + mis + i] = pattern[i % pb];
        FillBytes<Isa::kAvx>(plain.data() + 32 + mis, n, pat);
        FillBytes<Isa::kAvx, true>(stream.data() + 32 + mis, n, pat);
        StreamFence();
        FillBytes<Isa::kScalar>(scalar.data() + 32 + mis, n, pat);
        ASSERT_TRUE(ref == plain && ref == stream && ref == scalar) << "pb=" << pb << " n=" << n << " mis=" << mis;
      }
  }
}

}  // namespace
