// tpxiConvert_*: every export against the reference model on random data over every shape, the
// rounding control around each call, the check orders with two faults at once, the streaming
// decisions, and worked values of the float rule.

#include "core/float_to_int.h"
#include "data/convert_drivers.h"
#include "data/convert_members.h"
#include "data/convert_model.h"
#include "data/convert_testing.h"
#include "tpxip.h"

namespace {

using cvttest::FloatValues;
using cvttest::IntValues;
using cvttest::OrderCase;
using cvttest::Sweep;
using cvttest::Thin;
using tpx::Layout;
using tpxtest::GuardedImage;
using tpxtest::Rng;

constexpr int kV = 16;  // samples of one vector step of every row kernel here

// Restores the caller's MXCSR at the end of a test that changes it.
struct CsrGuard {
  unsigned saved = _mm_getcsr();
  ~CsrGuard() { _mm_setcsr(saved); }
};
void SetCallerMode(unsigned mode) { _mm_setcsr((_mm_getcsr() & ~_MM_ROUND_MASK) | mode); }

const std::vector<int> kFloatSfs = {0, 1, 2, 3, 5, 8, 15, 16, 17, 24, 31, 32, 33, 40, 126, 127, 149, 150, 200, INT_MAX,
                                    -1, -2, -5, -8, -15, -16, -24, -31, -32, -126, -127, -128, -200, INT_MIN};
const int kIntSfs[] = {0, 1, 2, 3, 7, 8, 9, 10, 11, 14, 15, 16, 17, 18, 19, 30, 31, 32, 33, 34, 35, 100, INT_MAX,
                       -1, -2, -6, -7, -8, -14, -15, -16, -30, -31, -32, -100, INT_MIN};

template <class S, class D, Layout kL, class Fn>
void PlainCase(const std::string& name, Fn fn, Rng& rng) {
  const auto model = [](S s) { return cvtmodel::Cast<S, D>(s); };
  Sweep<S, D>(name, tpx::Stride(kL), kL == Layout::AC4, tpxtest::Shapes(kV), IntValues<S, D>(), fn, model, rng);
  if constexpr (std::is_same_v<D, Tpx32f> && sizeof(S) == 4) {  // rounds in the caller's control
    CsrGuard g;
    for (unsigned mode : cvttest::kCallerModes) {
      SetCallerMode(mode);
      Sweep<S, D>(name + " caller mode", 1, false, Thin(tpxtest::Shapes(kV)), IntValues<S, D>(), fn, model, rng);
    }
  }
}

// One float member for every rounding mode and scale factor given, the caller's rounding control
// each of the four directions (with more than four factors, the others run sf 0 only).
template <class F, class D, Layout kL, class Call>
void FloatCase(const std::string& name, Call call, const std::vector<int>& sfs, const std::vector<int>& modes,
               Rng& rng) {
  CsrGuard g;
  const auto all = tpxtest::Shapes(kV), thin = Thin(all, 6);
  for (unsigned caller : cvttest::kCallerModes) {
    SetCallerMode(caller);
    for (int mode : modes)
      for (int sf : sfs) {
        const bool wide = caller == _MM_ROUND_NEAREST && (mode == 1 || mode == 2) && (sf == 0 || sf == 3);
        const auto c = [&](const F* s, int ss, D* d, int ds, TpxSize r) { return call(s, ss, d, ds, r, mode, sf); };
        const auto m = [&](F x) { return cvtmodel::FloatRule<F, D>(x, mode, sf); };
        const std::string where = " mode " + std::to_string(mode) + " sf " + std::to_string(sf);
        Sweep<F, D>(name + where + " caller " + std::to_string(caller), tpx::Stride(kL), kL == Layout::AC4, wide ? all : thin, FloatValues<F, D>(sf), c, m, rng);
        if (caller != _MM_ROUND_NEAREST && sfs.size() > 4) break;
      }
  }
}

TEST(ConvertFloat, EveryMemberMatchesTheModel) {
  Rng rng(2);
#define TPX_T_ROUND(S, D, L)                                                                                  \
  FloatCase<Tpx##S, Tpx##D, Layout::L>(#S #D "_" #L "R", [](const Tpx##S* s, int ss, Tpx##D* d, int ds, TpxSize r, \
      int mode, int) { return tpxiConvert_##S##D##_##L##R(s, ss, d, ds, r, mode); },                         \
      {0}, {0, 1, 2, 3, -1, 16, 17}, rng);
#define TPX_T_ROUND_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_ROUND, S, D)
  TPX_CONVERT_ROUND_4L(TPX_T_ROUND_ALL)
#define TPX_T_FSFS(S, D)                                                                                     \
  FloatCase<Tpx##S, Tpx##D, Layout::C1>(#S #D "_C1RSfs", tpxiConvert_##S##D##_C1RSfs, kFloatSfs, {0, 1, 2, 17}, rng);
  TPX_CONVERT_FLOAT_SFS(TPX_T_FSFS)
  // In place: the float samples are stored in the destination before the call.
  const auto inPlace = [](const Tpx32f* s, int ss, Tpx32u* d, int ds, TpxSize r, int mode, int sf) {
    for (int y = 0; y < r.height; ++y)
      std::memcpy(reinterpret_cast<char*>(d) + y * ds, reinterpret_cast<const char*>(s) + y * ss, 4 * r.width);
    return tpxiConvert_32f32u_C1IRSfs(d, ds, r, mode, sf);
  };
  FloatCase<Tpx32f, Tpx32u, Layout::C1>("32f32u_C1IRSfs", inPlace, {0, 1, 7, 31, 32, 33, 150, -1, -8, -31, -200},
                                        {0, 1, 2, 16}, rng);
}

template <class S, class D, class Fn>
void IntSfsCase(const std::string& name, Fn fn, Rng& rng) {
  const auto all = tpxtest::Shapes(kV), thin = Thin(all, 6);
  for (int sf : kIntSfs)
    for (int mode : {0, 1, 2, -5}) {
      const auto c = [&](const S* s, int ss, D* d, int ds, TpxSize r) { return fn(s, ss, d, ds, r, mode, sf); };
      const auto m = [&](S s) { return cvtmodel::IntSfs<S, D>(s, mode, sf); };
      Sweep<S, D>(name + " mode " + std::to_string(mode) + " sf " + std::to_string(sf), 1, false,
                  sf == 1 || sf == 3 ? all : thin, IntValues<S, D>(sf), c, m, rng);
    }
}

TEST(ConvertPlainAndIntSfs, EveryMemberMatchesTheModel) {
  Rng rng(1);
#define TPX_T_PLAIN(S, D, L) PlainCase<Tpx##S, Tpx##D, Layout::L>(#S #D "_" #L "R", tpxiConvert_##S##D##_##L##R, rng);
#define TPX_T_PLAIN_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_PLAIN, S, D)
#define TPX_T_PLAIN_ONE(S, D) TPX_T_PLAIN(S, D, C1)
#define TPX_T_RS(S, D) PlainCase<Tpx##S, Tpx##D, Layout::C1>(#S #D "_C1Rs", tpxiConvert_##S##D##_C1Rs, rng);
  TPX_CONVERT_PLAIN_4L(TPX_T_PLAIN_ALL)
  TPX_CONVERT_PLAIN_C1(TPX_T_PLAIN_ONE)
  TPX_CONVERT_RS(TPX_T_RS)
#define TPX_T_ISFS(S, D) IntSfsCase<Tpx##S, Tpx##D>(#S #D "_C1RSfs", tpxiConvert_##S##D##_C1RSfs, rng);
  TPX_CONVERT_INT_SFS(TPX_T_ISFS)
}

// Worked values that pin the model itself: NaN, bounds, ties per mode, the largest float below
// one half, infinity times a zero multiplier, and the float bounds of 32s and 32u.
TEST(ConvertFloat, WorkedValues) {
  const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
  const struct { float x; int mode, sf, want; } k16[] = {
      {nan, 0, 0, 32767}, {-nan, 1, 0, 32767}, {1e30f, 2, 0, 32767}, {-1e30f, 1, 0, -32768}, {2.5f, 0, 0, 2},
      {-2.5f, 0, 0, -2}, {2.5f, 1, 0, 2}, {-2.5f, 1, 0, -2}, {3.5f, 1, 0, 4}, {0.5f, 1, 0, 0}, {2.5f, 2, 0, 3},
      {-2.5f, 2, 0, -3}, {-0.5f, 2, 0, -1}, {0.49999997f, 2, 0, 0}, {3.0f, 1, 1, 2}, {-inf, 0, 150, 32767},
      {-inf, 0, 149, -32768}};
  for (const auto& c : k16) {
    Tpx16s d = 1, e = 1;
    ASSERT_EQ(tpxiConvert_32f16s_C1RSfs(&c.x, 4, &d, 2, TpxSize{1, 1}, c.mode, c.sf), tpxOk);
    if (c.sf == 0) ASSERT_EQ(tpxiConvert_32f16s_C1R(&c.x, 4, &e, 2, TpxSize{1, 1}, c.mode), tpxOk);
    EXPECT_EQ(d, c.want) << c.x << " mode " << c.mode << " sf " << c.sf;
    EXPECT_EQ(c.sf == 0 ? e : d, c.want) << c.x << " mode " << c.mode << " C1R";
  }
  const float ws[] = {2147483648.0f, 2147483520.0f, -2147483648.0f, -3e9f, nan};
  const float wu[] = {4294967296.0f, 4294967040.0f, 2147483648.0f, -0.5f, nan};
  Tpx32s s32[5];
  Tpx32u u32[5];
  ASSERT_EQ(tpxiConvert_32f32s_C1RSfs(ws, 20, s32, 20, TpxSize{5, 1}, 1, 0), tpxOk);
  ASSERT_EQ(tpxiConvert_32f32u_C1RSfs(wu, 20, u32, 20, TpxSize{5, 1}, 2, 0), tpxOk);
  EXPECT_EQ(std::vector<Tpx32s>(s32, s32 + 5), (std::vector<Tpx32s>{INT_MAX, 2147483520, INT_MIN, INT_MIN, INT_MAX}));
  EXPECT_EQ(std::vector<Tpx32u>(u32, u32 + 5),
            (std::vector<Tpx32u>{0xFFFFFFFFu, 4294967040u, 0x80000000u, 0, 0xFFFFFFFFu}));
}

TEST(FloatToInt, MultiplierIsRepeatedHalvingOrDoubling) {
  CsrGuard g;
  std::vector<int> sfs = {INT_MIN, INT_MIN + 1, INT_MAX};
  for (int sf = -1100; sf <= 1100; ++sf) sfs.push_back(sf);
  for (unsigned caller : cvttest::kCallerModes) {
    SetCallerMode(caller);
    for (int sf : sfs) {
      ASSERT_EQ(tpx::ScaleMultiplier32f(sf), cvtmodel::Multiplier<float>(sf)) << sf;
      ASSERT_EQ(tpx::ScaleMultiplier64f(sf), cvtmodel::Multiplier<double>(sf)) << sf;
    }
    ASSERT_EQ(_mm_getcsr() & _MM_ROUND_MASK, caller);
  }
}

TEST(ConvertChecks, OrderByMemberClass) {
#define TPX_T_ORD_PLAIN(S, D, L) OrderCase<Tpx##S, Tpx##D>(#S #D #L, true, tpxiConvert_##S##D##_##L##R);
#define TPX_T_ORD_PLAIN_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_ORD_PLAIN, S, D)
#define TPX_T_ORD_PLAIN_ONE(S, D) TPX_T_ORD_PLAIN(S, D, C1)
#define TPX_T_ORD_RS(S, D) OrderCase<Tpx##S, Tpx##D>(#S #D "Rs", true, tpxiConvert_##S##D##_C1Rs);
  TPX_CONVERT_PLAIN_4L(TPX_T_ORD_PLAIN_ALL)
  TPX_CONVERT_PLAIN_C1(TPX_T_ORD_PLAIN_ONE)
  TPX_CONVERT_RS(TPX_T_ORD_RS)
#define TPX_T_ORD(S, D, NAME, FORM, ...)                                                                     \
  OrderCase<Tpx##S, Tpx##D>(#S #D NAME, false, [](const Tpx##S* s, int ss, Tpx##D* d, int ds, TpxSize r) {    \
    return tpxiConvert_##S##D##_##FORM(s, ss, d, ds, r, __VA_ARGS__);                                         \
  });
#define TPX_T_ORD_ROUND(S, D, L) TPX_T_ORD(S, D, #L, L##R, 99)
#define TPX_T_ORD_ROUND_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_ORD_ROUND, S, D)
  TPX_CONVERT_ROUND_4L(TPX_T_ORD_ROUND_ALL)
#define TPX_T_ORD_SFS(S, D) TPX_T_ORD(S, D, "Sfs", C1RSfs, -3, INT_MIN)
  TPX_CONVERT_FLOAT_SFS(TPX_T_ORD_SFS)
  TPX_CONVERT_INT_SFS(TPX_T_ORD_SFS)
  Tpx32u img[8] = {};
  EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(nullptr, 0, TpxSize{0, 0}, 0, 0), tpxErrNullPtr);
  EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(img, 0, TpxSize{0, 1}, 0, 0), tpxErrSize);
  EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(img, 0, TpxSize{1, 1}, 0, 0), tpxErrStep);
  EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(img, 1, TpxSize{8, 1}, 0, 0), tpxOk);
}

// ---- Streaming: the cache is asked only past each driver's floor, and the bytes are the same ----
int g_cacheQueries = 0, g_lineQueries = 0;
int SmallCache(int* size) { ++g_cacheQueries; *size = 1024; return 0; }
int NoCache(int* size) { ++g_cacheQueries; *size = 0; return 1; }
int Line64(int* size) { ++g_lineQueries; *size = 64; return 0; }

// Runs drive(src, dst, query) with a small cache and with none at w x h, and expects equal
// destinations with guards intact and `queries` cache queries in the first run.
template <class S, class D, class Drive>
void StreamCase(int w, int h, int ch, int queries, Drive drive, Rng& rng) {
  GuardedImage<S> src(w, h, ch, h == 1 ? 0 : 5, 1);
  GuardedImage<D> plain(w, h, ch, 0, 3), streamed(w, h, ch, 0, 3);
  tpxtest::FillRandom(src, rng);
  g_cacheQueries = 0;
  ASSERT_EQ(drive(src, streamed, SmallCache), tpxOk);
  EXPECT_EQ(g_cacheQueries, queries) << w << "x" << h;
  ASSERT_EQ(drive(src, plain, NoCache), tpxOk);
  EXPECT_TRUE(tpxtest::SameSamples(plain, streamed) && streamed.GuardsIntact()) << w << "x" << h;
}

template <class S, class D, Layout kL>
void WidenStreamCase(long long floor, Rng& rng) {
  const int ch = tpx::Stride(kL);
  const auto drive = [](const GuardedImage<S>& s, GuardedImage<D>& d, int (*cache)(int*)) {
    return tpx::cvt::ConvertPlain<S, D, kL>(s.Data(), s.Step(), d.Data(), d.Step(), d.Size(), cache);
  };
  for (int w : {static_cast<int>((floor - 1) / ch), static_cast<int>((floor + ch - 1) / ch)})
    for (int h : {1, 2}) StreamCase<S, D>(w, h, ch, 1LL * w * ch * h >= floor ? 1 : 0, drive, rng);
}

template <class S, class D>
void RowStreamCase(Rng& rng) {
  for (int sf : {0, 2, -3, -40})
    for (int w : {63, 64, 65, 300}) {
      const auto drive = [sf](const GuardedImage<S>& s, GuardedImage<D>& d, int (*cache)(int*)) {
        g_lineQueries = 0;
        const TpxStatus st = tpx::cvt::ConvertIntSfs<S, D>(s.Data(), s.Step(), d.Data(), d.Step(), d.Size(), 1, sf,
                                                          {cache, Line64});
        EXPECT_EQ(g_lineQueries, 1);
        return st;
      };
      // The cache is asked only where the destination row is at least two lines.
      StreamCase<S, D>(w, 5, 1, w * static_cast<int>(sizeof(D)) >= 128 ? 1 : 0, drive, rng);
    }
}

TEST(ConvertStreaming, PlainAndStreamedStoresAgree) {
  Rng rng(6);
  WidenStreamCase<Tpx16s, Tpx32f, Layout::C1>(0x15556, rng);
  WidenStreamCase<Tpx16u, Tpx32f, Layout::C3>(0x15556, rng);
  WidenStreamCase<Tpx16u, Tpx32f, Layout::AC4>(0x15556, rng);
  WidenStreamCase<Tpx8s, Tpx32f, Layout::C4>(0x1999A, rng);
  WidenStreamCase<Tpx8s, Tpx32s, Layout::C1>(0x1999A, rng);
  RowStreamCase<Tpx32s, Tpx16s>(rng);
  RowStreamCase<Tpx32s, Tpx16u>(rng);
  RowStreamCase<Tpx8u, Tpx8s>(rng);
}

}  // namespace
