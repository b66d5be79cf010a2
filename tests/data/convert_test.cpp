// tpxiConvert_* and tpxiScale_*: every export against its reference model on random data over
// every shape, with the caller's rounding control around each call and the check order with two
// faults at once (for Scale, the range test first); worked values of the models, the exact
// integer Scale maps on every 16-bit sample, the streaming decisions, and OpenCV as an oracle.

#include <numeric>

#include "core/float_to_int.h"
#include "data/convert_drivers.h"
#include "data/convert_members.h"
#include "data/convert_testing.h"
#include "tpxip.h"
#if defined(TPX_HAVE_OPENCV)
#include <opencv2/core.hpp>
#endif

namespace {

using namespace cvttest;
using tpx::Layout;

const std::vector<int> kFloatSfs = {0, 1, 2, 3, 5, 8, 15, 16, 17, 24, 31, 32, 33, 40, 126, 127, 149, 150, 200, INT_MAX,
                                    -1, -2, -5, -8, -15, -16, -24, -31, -32, -126, -127, -128, -200, INT_MIN};
const std::vector<int> kIntSfs = {0, 1, 2, 3, 7, 8, 9, 10, 11, 14, 15, 16, 17, 18, 19, 30, 31, 32, 33, 34, 35, 100, INT_MAX,
                                  -1, -2, -6, -7, -8, -14, -15, -16, -30, -31, -32, -100, INT_MIN};

// Every sixth shape and the last: for the wide parameter sweeps.
std::vector<tpxtest::Shape> Thin() {
  std::vector<tpxtest::Shape> all = tpxtest::Shapes(16), out;
  for (std::size_t i = 0; i < all.size(); i += 6) out.push_back(all[i]);
  out.push_back(all.back());
  return out;
}

// One member for every rounding mode and scale factor given, with the check order; where the
// caller's rounding control matters (float sources, 32-bit integers to 32f) also under each of its
// four directions (with more than four factors, sf 0 only there).
template <class S, class D, Layout kL, class Call>
void MemberCase(const std::string& name, Call call, const std::vector<int>& sfs, const std::vector<int>& modes,
                Rng& rng) {
  constexpr bool kCallerRounds = std::is_floating_point_v<S> || (std::is_same_v<D, Tpx32f> && sizeof(S) == 4);
  constexpr bool kPlain = std::is_invocable_v<Call, const S*, int, D*, int, TpxSize>;
  const auto bind = [call](int mode, int sf) {  // bound to the arguments the member takes
    if constexpr (std::is_invocable_v<Call, const S*, int, D*, int, TpxSize, int, int>) return Bind(call, mode, sf);
    else if constexpr (!kPlain) return Bind(call, mode);
    else return call;
  };
  if constexpr (std::is_pointer_v<Call>) OrderCase<S, D>(name, kPlain, bind(99, INT_MIN));  // exports only
  const auto all = tpxtest::Shapes(16), thin = Thin();
  ForCallerModes([&](unsigned caller) {
    for (int mode : modes)
      for (int sf : sfs) {
        if (caller != _MM_ROUND_NEAREST && (!kCallerRounds || (sf != 0 && sfs.size() > 4))) continue;
        const bool wide = caller == _MM_ROUND_NEAREST && (mode == 1 || mode == 2) && (sf == 0 || sf == 1 || sf == 3);
        const auto model = [&](S x) { return Rounded<S, D>(x, mode, sf); };
        Sweep<S, D, kL>(name + " mode " + std::to_string(mode) + " sf " + std::to_string(sf) + " caller " +
                        std::to_string(caller), ValuesFor<S, D>(sf), bind(mode, sf), model, rng, wide ? all : thin);
      }
  });
}

// The ranges tried: ordinary, negative, tiny, wide and one that overflows to infinity.
const std::pair<float, float> kRanges[] = {{0.0f, 1.0f}, {-1.0f, 1.0f}, {-300.5f, -20.25f}, {1e-3f, 1.1e-3f},
                                           {-65536.0f, 65535.0f}, {0.0f, 255.0f}, {-3e38f, 3e38f}};

template <class S, class D, Layout kL, class Fn>
void LimitsCase(const std::string& name, Fn fn, Rng& rng) {
  OrderCase<S, D>(name, false, Bind(fn, -1.0f, 1.0f));
  const float nan = std::numeric_limits<float>::quiet_NaN();
  for (auto [lo, hi] : {std::pair<float, float>{1.0f, 1.0f}, {2.0f, 1.0f}, {nan, 1.0f}, {0.0f, nan}})
    EXPECT_EQ(fn(nullptr, -1, nullptr, 0, TpxSize{0, -1}, lo, hi), tpxErrScaleRange) << name;
  EXPECT_EQ(fn(nullptr, 1, nullptr, 1, TpxSize{1, 1}, 1.0f, 1.0000001f), tpxErrNullPtr) << name;  // tiny but > 0
  for (auto [vMin, vMax] : kRanges) {
    const float range = vMax - vMin, slope = std::is_same_v<D, Tpx32f> ? range * 0.003921569f : 255.0f / range;
    const float offset = std::is_same_v<D, Tpx32f> ? vMin : slope * -vMin;
    const auto model = [&](S s) -> D {
      if constexpr (std::is_same_v<D, Tpx32f>) return offset + static_cast<float>(s) * slope;
      else return Rounded<float, Tpx8u>(s * slope + offset, 1, 0);
    };
    Values<S> values = ValuesFor<S, Tpx8u>();
    if constexpr (std::is_floating_point_v<S>)  // the specials, and samples around the range
      values.random = [&](Rng& r) { return static_cast<S>(vMin + r.Real(-0.2, 1.2) * static_cast<double>(range)); };
    Sweep<S, D, kL>(name, values, Bind(fn, vMin, vMax), model, rng);
  }
}

template <class S, class D, Layout kL, class Fn>
void HintCase(const std::string& name, Fn fn, Rng& rng) {
  OrderCase<S, D>(name, false, Bind(fn, 12345));
  // 32s sources half the time within a few units of a rounding boundary, where only the exact path is exact.
  Values<S> values = ValuesFor<S, S>();
  if constexpr (std::is_same_v<S, Tpx32s>)
    values.random = [](Rng& r) {
      return r.Chance(0.5) ? r.Sample<S>()
                           : static_cast<S>((2 * r.Int(0, 254) + 1) * 4294967295LL / 510 - 2147483648LL + r.Int(-40, 40));
    };
  for (int hint : {0, 1, 2, 7}) {
    // Exact for widening, narrowing from 16 bits and the accurate hint; otherwise 32s narrows
    // in single precision: the sample rounded to float, slope 255 / 2^32, offset 127.5.
    const bool fast = std::is_same_v<S, Tpx32s> && sizeof(D) < sizeof(S) && hint != 2;
    const auto model = [&](S s) {
      return fast ? Rounded<float, D>(static_cast<float>(s) * (255.0f / 4294967296.0f) + 127.5f, 1, 0)
                  : ScaleExact<S, D>(s);
    };
    Sweep<S, D, kL>(name, values, Bind(fn, hint), model, rng);
  }
}

TEST(ConvertScale, EveryMemberMatchesItsModel) {
  Rng rng(1);
#define TPX_T_PLAIN(S, D, L) MemberCase<Tpx##S, Tpx##D, Layout::L>(#S #D "_" #L "R", tpxiConvert_##S##D##_##L##R, {0}, {1}, rng);
#define TPX_T_PLAIN_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_PLAIN, S, D)
#define TPX_T_PLAIN_ONE(S, D) TPX_T_PLAIN(S, D, C1)
#define TPX_T_RS(S, D) MemberCase<Tpx##S, Tpx##D, Layout::C1>(#S #D "_C1Rs", tpxiConvert_##S##D##_C1Rs, {0}, {1}, rng);
  TPX_CONVERT_PLAIN_4L(TPX_T_PLAIN_ALL)
  TPX_CONVERT_PLAIN_C1(TPX_T_PLAIN_ONE)
  TPX_CONVERT_RS(TPX_T_RS)
#define TPX_T_ROUND(S, D, L)                                                                                  \
  MemberCase<Tpx##S, Tpx##D, Layout::L>(#S #D "_" #L "R", tpxiConvert_##S##D##_##L##R, {0}, {0, 1, 2, 3, -1, 16, 17}, rng);
#define TPX_T_ROUND_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_ROUND, S, D)
  TPX_CONVERT_ROUND_4L(TPX_T_ROUND_ALL)
#define TPX_T_SFS(S, D)                                                                                      \
  MemberCase<Tpx##S, Tpx##D, Layout::C1>(#S #D "_C1RSfs", tpxiConvert_##S##D##_C1RSfs,                          \
                                         std::is_floating_point_v<Tpx##S> ? kFloatSfs : kIntSfs, {0, 1, 2, 17}, rng);
  TPX_CONVERT_FLOAT_SFS(TPX_T_SFS)
  TPX_CONVERT_INT_SFS(TPX_T_SFS)
  // In place: the float samples are stored in the destination before the call.
  const auto inPlace = [](const Tpx32f* s, int ss, Tpx32u* d, int ds, TpxSize r, int mode, int sf) {
    for (int y = 0; y < r.height; ++y)
      std::memcpy(reinterpret_cast<char*>(d) + y * ds, reinterpret_cast<const char*>(s) + y * ss, 4 * r.width);
    return tpxiConvert_32f32u_C1IRSfs(d, ds, r, mode, sf);
  };
  MemberCase<Tpx32f, Tpx32u, Layout::C1>("32f32u_C1IRSfs", inPlace, {0, 1, 7, 31, 32, 33, 150, -1, -8, -31, -200},
                                        {0, 1, 2, 16}, rng);
  Tpx32u img[8] = {};
  EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(nullptr, 0, TpxSize{0, 0}, 0, 0), tpxErrNullPtr);
  EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(img, 0, TpxSize{0, 1}, 0, 0), tpxErrSize);
  EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(img, 0, TpxSize{1, 1}, 0, 0), tpxErrStep);
  EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(img, 1, TpxSize{8, 1}, 0, 0), tpxOk);
  // Scale: with Tpx32f limits, and between integer types with a hint.
#define TPX_T_LIM(S, D, L) LimitsCase<Tpx##S, Tpx##D, Layout::L>(#S #D #L, tpxiScale_##S##D##_##L##R, rng);
#define TPX_T_LIM_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_LIM, S, D)
  TPX_SCALE_LIMITS_4L(TPX_T_LIM_ALL)
#define TPX_T_HINT(S, D, L) HintCase<Tpx##S, Tpx##D, Layout::L>(#S #D #L, tpxiScale_##S##D##_##L##R, rng);
#define TPX_T_HINT_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_HINT, S, D)
  TPX_SCALE_HINT_4L(TPX_T_HINT_ALL)
}

// Worked values that pin the models. Convert: NaN, bounds, ties per mode, the largest float below
// one half, infinity times a zero multiplier, and the float bounds of 32s and 32u. Scale: the
// endpoints, and on [-2, 3] (slope 51, offset 102) 1 maps to 153, 1.5 to 178.5 which rounds half
// to even, NaN stores the maximum and the rest saturates.
TEST(ConvertScale, WorkedValues) {
  const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
  const struct { float x; int mode, sf, want; } k16[] = {
      {nan, 0, 0, 32767}, {-nan, 1, 0, 32767}, {1e30f, 2, 0, 32767}, {-1e30f, 1, 0, -32768}, {2.5f, 0, 0, 2},
      {-2.5f, 0, 0, -2}, {2.5f, 1, 0, 2}, {-2.5f, 1, 0, -2}, {3.5f, 1, 0, 4}, {0.5f, 1, 0, 0}, {2.5f, 2, 0, 3},
      {-2.5f, 2, 0, -3}, {-0.5f, 2, 0, -1}, {0.49999997f, 2, 0, 0}, {3.0f, 1, 1, 2}, {-inf, 0, 150, 32767},
      {-inf, 0, 149, -32768}};
  for (const auto& c : k16) {
    Tpx16s d = 1;
    ASSERT_EQ(tpxiConvert_32f16s_C1RSfs(&c.x, 4, &d, 2, TpxSize{1, 1}, c.mode, c.sf), tpxOk);
    EXPECT_EQ(d, c.want) << c.x << " mode " << c.mode << " sf " << c.sf;
  }
  const float ws[] = {2147483648.0f, 2147483520.0f, -2147483648.0f, -3e9f, nan};
  const float wu[] = {4294967296.0f, 4294967040.0f, 2147483648.0f, -0.5f, nan};
  Tpx32s s32[5];
  Tpx32u u32[5];
  ASSERT_EQ(tpxiConvert_32f32s_C1RSfs(ws, 20, s32, 20, TpxSize{5, 1}, 1, 0), tpxOk);
  ASSERT_EQ(tpxiConvert_32f32u_C1RSfs(wu, 20, u32, 20, TpxSize{5, 1}, 2, 0), tpxOk);
  EXPECT_EQ(std::vector<Tpx32s>(s32, s32 + 5), (std::vector<Tpx32s>{INT_MAX, 2147483520, INT_MIN, INT_MIN, INT_MAX}));
  EXPECT_EQ(std::vector<Tpx32u>(u32, u32 + 5), (std::vector<Tpx32u>{~0u, 4294967040u, 0x80000000u, 0, ~0u}));
  const Tpx8u s[] = {0, 255};
  float d[2];
  ASSERT_EQ(tpxiScale_8u32f_C1R(s, 2, d, 8, TpxSize{2, 1}, -2.0f, 3.0f), tpxOk);
  EXPECT_EQ(d[0], -2.0f);
  EXPECT_NEAR(d[1], 3.0f, 1e-6f);
  const float f[] = {-2.0f, 3.0f, 1.0f, 1.5f, nan, -1e30f, 1e30f};
  Tpx8u u[7];
  ASSERT_EQ(tpxiScale_32f8u_C1R(f, 28, u, 7, TpxSize{7, 1}, -2.0f, 3.0f), tpxOk);
  EXPECT_EQ(std::vector<Tpx8u>(u, u + 7), (std::vector<Tpx8u>{0, 255, 153, 178, 255, 0, 255}));
}

TEST(FloatToInt, MultiplierIsRepeatedHalvingOrDoubling) {
  std::vector<int> sfs = {INT_MIN, INT_MIN + 1, INT_MAX};
  for (int sf = -1100; sf <= 1100; ++sf) sfs.push_back(sf);
  ForCallerModes([&](unsigned caller) {
    for (int sf : sfs) {
      ASSERT_EQ(tpx::ScaleMultiplier32f(sf), Multiplier<float>(sf)) << sf;
      ASSERT_EQ(tpx::ScaleMultiplier64f(sf), Multiplier<double>(sf)) << sf;
    }
    ASSERT_EQ(_mm_getcsr() & _MM_ROUND_MASK, caller);
  });
}

// Every 16-bit sample (as 16u and as 16s) through both narrowing paths against exact integer rounding.
TEST(ScaleHint, EverySixteenBitSampleNarrowsExactly) {
  std::vector<Tpx16u> u(65536);
  std::iota(u.begin(), u.end(), Tpx16u{0});
  const auto* s = reinterpret_cast<const Tpx16s*>(u.data());
  std::vector<Tpx8u> a(65536), b(65536);
  for (int hint : {tpxAlgHintFast, tpxAlgHintAccurate}) {
    ASSERT_EQ(tpxiScale_16u8u_C1R(u.data(), 512, a.data(), 256, TpxSize{256, 256}, hint), tpxOk);
    ASSERT_EQ(tpxiScale_16s8u_C1R(s, 512, b.data(), 256, TpxSize{256, 256}, hint), tpxOk);
    for (int i = 0; i < 65536; ++i) {
      ASSERT_EQ(a[i], (ScaleExact<Tpx16u, Tpx8u>(u[i]))) << u[i] << " hint " << hint;
      ASSERT_EQ(b[i], (ScaleExact<Tpx16s, Tpx8u>(s[i]))) << s[i] << " hint " << hint;
    }
  }
}

// ---- Streaming: the cache is asked only past each driver's floor, and the bytes are the same ----
int g_cacheQueries = 0;
int SmallCache(int* size) { ++g_cacheQueries; *size = 1024; return 0; }
int NoCache(int* size) { ++g_cacheQueries; *size = 0; return 1; }
int Line40(int* size) { *size = 40; return 0; }  // an unusual line size, so that a fixed one shows

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
void WidenStreamCase(int floor, Rng& rng) {
  const int ch = tpx::Stride(kL);
  for (int w : {(floor - 1) / ch, (floor + ch - 1) / ch})
    for (int h : {1, 2})
      StreamCase<S, D>(w, h, ch, w * ch * h >= floor, [](auto& s, auto& d, int (*cache)(int*)) {
        return tpx::cvt::ConvertPlain<S, D, kL>(s.Data(), s.Step(), d.Data(), d.Step(), d.Size(), cache);
      }, rng);
}

// Rows stream only where the destination row is at least two lines: the cache is asked only then.
template <class S, class D>
void RowStreamCase(Rng& rng) {
  for (int sf : {0, 2, -3, -40})
    for (int w : {39, 40, 41, 300})
      StreamCase<S, D>(w, 5, 1, w * sizeof(D) >= 80, [sf](auto& s, auto& d, int (*cache)(int*)) {
        return tpx::cvt::ConvertIntSfs<S, D>(s.Data(), s.Step(), d.Data(), d.Step(), d.Size(), 1, sf, {cache, Line40});
      }, rng);
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

#if defined(TPX_HAVE_OPENCV)
// Ours against OpenCV's saturate_cast of s * alpha where its rule is ours: integers over the whole
// range, floats finite, inside +-2^30 and D's range with a margin, with many ties (OpenCV stores
// NaN, out-of-range floats and floats to 32u differently).
template <class S, class D, class Ours>
void Against(const std::string& name, Ours ours, double alpha, Rng& rng) {
  if constexpr (!std::is_floating_point_v<S> || !std::is_same_v<D, Tpx32u>) {
    const double lo = std::max(-1073741824.0, std::numeric_limits<D>::lowest() - 300.0);
    const double hi = std::min(1073741824.0, std::numeric_limits<D>::max() + 300.0);
    const Values<S> values{{}, [=](Rng& r) {
      const double x = r.Chance(0.5) ? std::round(r.Real(lo, hi) * 2) / 2 : r.Real(lo, hi);
      return std::is_floating_point_v<S> ? static_cast<S>(x / alpha) : r.Sample<S>();
    }};
    const auto oracle = [alpha](S s) {  // integers unscaled through int64, where saturate_cast is exact
      return alpha == 1 && !std::is_floating_point_v<S> ? cv::saturate_cast<D>(static_cast<std::int64_t>(s))
                                                        : cv::saturate_cast<D>(s * alpha);
    };
    Sweep<S, D, Layout::C1>(name + " against OpenCV", values, ours, oracle, rng, Thin());
  }
}

TEST(ConvertOpenCv, MembersWhoseRuleItShares) {
  Rng rng(31);
#define TPX_T_CV_PLAIN(S, D) Against<Tpx##S, Tpx##D>(#S #D "_C1R", tpxiConvert_##S##D##_C1R, 1.0, rng);
  TPX_CONVERT_PLAIN_4L(TPX_T_CV_PLAIN)
  TPX_CONVERT_PLAIN_C1(TPX_T_CV_PLAIN)
#define TPX_T_CV_RS(S, D) Against<Tpx##S, Tpx##D>(#S #D "_C1Rs", tpxiConvert_##S##D##_C1Rs, 1.0, rng);
  TPX_CONVERT_RS(TPX_T_CV_RS)
#define TPX_T_CV_ROUND(S, D) Against<Tpx##S, Tpx##D>(#S #D "_C1R", Bind(tpxiConvert_##S##D##_C1R, tpxRndHalfEven), 1.0, rng);
  TPX_CONVERT_ROUND_4L(TPX_T_CV_ROUND)
  // Scale factors where s * 2^-sf stays within int for OpenCV's rounding: 16-bit and float sources.
#define TPX_T_CV_SFS(S, D)                                                                                \
  for (int sf : {0, 1, 3, -2})                                                                            \
    if (sizeof(Tpx##S) <= 2 || std::is_floating_point_v<Tpx##S> || sf == 0)                               \
      Against<Tpx##S, Tpx##D>(#S #D "_C1RSfs sf " + std::to_string(sf),                                   \
                              Bind(tpxiConvert_##S##D##_C1RSfs, tpxRndHalfEven, sf), std::ldexp(1.0, -sf), rng);
  TPX_CONVERT_FLOAT_SFS(TPX_T_CV_SFS)
  TPX_CONVERT_INT_SFS(TPX_T_CV_SFS)
}
#endif

}  // namespace
