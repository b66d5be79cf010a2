// tpxiConvert_*: every export against the reference model on random data over every shape, the
// rounding control around each call, the check orders with two faults at once, the streaming
// decisions, and the worked values of the float rule.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "core/float_to_int.h"
#include "data/convert_drivers.h"
#include "data/convert_members.h"
#include "data/convert_model.h"
#include "data/convert_testing.h"
#include "tpxip.h"

namespace {

using cvttest::FloatValues;
using cvttest::IntValues;
using cvttest::Sweep;
using cvttest::Thin;
using tpx::Layout;
using tpxtest::GuardedImage;
using tpxtest::Rng;

constexpr int kV = 16;  // samples of one vector step of every row kernel here

int Channels(Layout l) { return tpx::Stride(l); }

// Restores the caller's MXCSR at the end of a test that changes it.
struct CsrGuard {
  unsigned saved = _mm_getcsr();
  ~CsrGuard() { _mm_setcsr(saved); }
};
void SetCallerMode(unsigned mode) { _mm_setcsr((_mm_getcsr() & ~_MM_ROUND_MASK) | mode); }

const int kFloatSfs[] = {0, 1, 2, 3, 5, 8, 15, 16, 17, 24, 31, 32, 33, 40, 126, 127, 149, 150, 200, INT_MAX,
                         -1, -2, -5, -8, -15, -16, -24, -31, -32, -126, -127, -128, -200, INT_MIN};
const int kIntSfs[] = {0, 1, 2, 3, 7, 8, 9, 10, 11, 14, 15, 16, 17, 18, 19, 30, 31, 32, 33, 34, 35, 100, INT_MAX,
                       -1, -2, -6, -7, -8, -14, -15, -16, -30, -31, -32, -100, INT_MIN};

// ---- Plain widening and narrowing -----------------------------------------------------------------

template <class S, class D, Layout kL, class Fn>
void PlainCase(const std::string& name, Fn fn, Rng& rng) {
  const auto call = [&](const S* s, int ss, D* d, int ds, TpxSize r) { return fn(s, ss, d, ds, r); };
  const auto model = [](S s) { return cvtmodel::Cast<S, D>(s); };
  Sweep<S, D>(name, Channels(kL), kL == Layout::AC4, tpxtest::Shapes(kV), IntValues<S, D>(), call, model, rng);
  // 32s and 32u round to 32f as the processor does, in the caller's rounding control.
  if constexpr (std::is_same_v<D, Tpx32f> && sizeof(S) == 4) {
    CsrGuard g;
    for (unsigned mode : cvttest::kCallerModes) {
      SetCallerMode(mode);
      Sweep<S, D>(name + " caller mode", Channels(kL), false, Thin(tpxtest::Shapes(kV)), IntValues<S, D>(), call,
                  model, rng);
    }
  }
}

TEST(ConvertPlain, EveryMemberMatchesTheModel) {
  Rng rng(1);
#define TPX_T_PLAIN(S, D, L) PlainCase<Tpx##S, Tpx##D, Layout::L>(#S #D "_" #L "R", tpxiConvert_##S##D##_##L##R, rng);
#define TPX_T_PLAIN_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_PLAIN, S, D)
#define TPX_T_PLAIN_ONE(S, D) TPX_T_PLAIN(S, D, C1)
#define TPX_T_RS(S, D) PlainCase<Tpx##S, Tpx##D, Layout::C1>(#S #D "_C1Rs", tpxiConvert_##S##D##_C1Rs, rng);
  TPX_CONVERT_PLAIN_4L(TPX_T_PLAIN_ALL)
  TPX_CONVERT_PLAIN_C1(TPX_T_PLAIN_ONE)
  TPX_CONVERT_RS(TPX_T_RS)
}

// ---- Float sources ----------------------------------------------------------------------------------

// Runs one float member for every rounding mode and the given scale factors; the caller's
// rounding control is each of the four directions, and must be the same after the call.
template <class F, class D, Layout kL, class Call>
void FloatCase(const std::string& name, Call call, const std::vector<int>& sfs, const std::vector<int>& modes,
               Rng& rng) {
  CsrGuard g;
  const auto all = tpxtest::Shapes(kV);
  const auto thin = Thin(all, 6);
  for (unsigned caller : cvttest::kCallerModes) {
    SetCallerMode(caller);
    for (int mode : modes)
      for (int sf : sfs) {
        const bool wide = caller == _MM_ROUND_NEAREST && (mode == 1 || mode == 2) && (sf == 0 || sf == 3);
        const auto c = [&](const F* s, int ss, D* d, int ds, TpxSize r) { return call(s, ss, d, ds, r, mode, sf); };
        const auto m = [&](F x) { return cvtmodel::FloatRule<F, D>(x, mode, sf); };
        Sweep<F, D>(name + " mode " + std::to_string(mode) + " sf " + std::to_string(sf) + " caller " +
                        std::to_string(caller),
                    Channels(kL), kL == Layout::AC4, wide ? all : thin, FloatValues<F, D>(sf), c, m, rng);
        if (caller != _MM_ROUND_NEAREST && sfs.size() > 4) break;  // other callers: sf 0 only
      }
  }
}

TEST(ConvertFloat, RoundModeMembersMatchTheModel) {
  Rng rng(2);
#define TPX_T_ROUND(S, D, L)                                                                             \
  FloatCase<Tpx##S, Tpx##D, Layout::L>(#S #D "_" #L "R",                                                  \
      [](const Tpx##S* s, int ss, Tpx##D* d, int ds, TpxSize r, int mode, int) {                           \
        return tpxiConvert_##S##D##_##L##R(s, ss, d, ds, r, mode);                                         \
      }, {0}, {0, 1, 2, 3, -1, 16, 17}, rng);
#define TPX_T_ROUND_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_ROUND, S, D)
  TPX_CONVERT_ROUND_4L(TPX_T_ROUND_ALL)
}

TEST(ConvertFloat, ScaledMembersMatchTheModel) {
  Rng rng(3);
  const std::vector<int> sfs(std::begin(kFloatSfs), std::end(kFloatSfs));
#define TPX_T_FSFS(S, D)                                                                                 \
  FloatCase<Tpx##S, Tpx##D, Layout::C1>(#S #D "_C1RSfs",                                                  \
      [](const Tpx##S* s, int ss, Tpx##D* d, int ds, TpxSize r, int mode, int sf) {                        \
        return tpxiConvert_##S##D##_C1RSfs(s, ss, d, ds, r, mode, sf);                                     \
      }, sfs, {0, 1, 2, 17}, rng);
  TPX_CONVERT_FLOAT_SFS(TPX_T_FSFS)
}

TEST(ConvertFloat, InPlaceMemberMatchesTheModel) {
  Rng rng(4);
  CsrGuard g;
  for (unsigned caller : cvttest::kCallerModes) {
    SetCallerMode(caller);
    for (int mode : {0, 1, 2, 16})
      for (int sf : {0, 1, 7, 31, 32, 33, 150, -1, -8, -31, -200}) {
        for (const tpxtest::Shape& sh : Thin(tpxtest::Shapes(kV), 3)) {
          GuardedImage<Tpx32u> img(sh.width, sh.height, 1, sh.padSamples, sh.misalign);
          const auto values = FloatValues<Tpx32f, Tpx32u>(sf);
          std::vector<Tpx32f> src;
          for (int y = 0; y < sh.height; ++y)
            for (int x = 0; x < sh.width; ++x) {
              const Tpx32f f = values(rng);
              src.push_back(f);
              std::memcpy(&img.Row(y)[x], &f, 4);
            }
          const unsigned csr = cvttest::Control();
          ASSERT_EQ(tpxiConvert_32f32u_C1IRSfs(img.Data(), img.Step(), img.Size(), mode, sf), tpxOk);
          ASSERT_EQ(cvttest::Control(), csr);
          for (int y = 0, k = 0; y < sh.height; ++y)
            for (int x = 0; x < sh.width; ++x, ++k)
              ASSERT_EQ(img.Row(y)[x], (cvtmodel::FloatRule<Tpx32f, Tpx32u>(src[k], mode, sf)))
                  << "x=" << src[k] << " mode " << mode << " sf " << sf;
          ASSERT_TRUE(img.GuardsIntact());
        }
        if (caller != _MM_ROUND_NEAREST) break;
      }
  }
}

// ---- Integer sources with a scale factor ---------------------------------------------------------

template <class S, class D, class Fn>
void IntSfsCase(const std::string& name, Fn fn, Rng& rng) {
  const auto all = tpxtest::Shapes(kV);
  const auto thin = Thin(all, 6);
  for (int sf : kIntSfs)
    for (int mode : {0, 1, 2, -5}) {
      const auto c = [&](const S* s, int ss, D* d, int ds, TpxSize r) { return fn(s, ss, d, ds, r, mode, sf); };
      const auto m = [&](S s) { return cvtmodel::IntSfs<S, D>(s, mode, sf); };
      Sweep<S, D>(name + " mode " + std::to_string(mode) + " sf " + std::to_string(sf), 1, false,
                  sf == 1 || sf == 3 ? all : thin, IntValues<S, D>(sf), c, m, rng);
    }
}

TEST(ConvertIntSfs, EveryMemberMatchesTheModel) {
  Rng rng(5);
#define TPX_T_ISFS(S, D) IntSfsCase<Tpx##S, Tpx##D>(#S #D "_C1RSfs", tpxiConvert_##S##D##_C1RSfs, rng);
  TPX_CONVERT_INT_SFS(TPX_T_ISFS)
}

TEST(ConvertIntSfs, LimitsOfTheKernelSplit) {
  // 16s8s: from sf 18 on the image is filled with 0; below -7 every non-zero sample saturates.
  EXPECT_EQ(tpx::cvt::kSfsZeroLimit<Tpx16s>, 18);
  EXPECT_EQ(tpx::cvt::kSfsNegLimit<Tpx8s>, -7);
  // At the limits themselves the general kernels still give the exact value.
  const Tpx16s src[] = {-32768, 32767, -1, 1, 0, 16384, -16385, 127};
  Tpx8s dst[8];
  const TpxSize roi{8, 1};
  ASSERT_EQ(tpxiConvert_16s8s_C1RSfs(src, 16, dst, 8, roi, 2, 16), tpxOk);
  EXPECT_EQ(dst[0], -1);  // -0.5 rounds away from zero
  EXPECT_EQ(dst[1], 0);
  ASSERT_EQ(tpxiConvert_16s8s_C1RSfs(src, 16, dst, 8, roi, 1, 16), tpxOk);
  EXPECT_EQ(dst[0], 0);  // -0.5 rounds to even
  ASSERT_EQ(tpxiConvert_16s8s_C1RSfs(src, 16, dst, 8, roi, 2, 17), tpxOk);
  for (Tpx8s v : dst) EXPECT_EQ(v, 0);
  ASSERT_EQ(tpxiConvert_16s8s_C1RSfs(src, 16, dst, 8, roi, 0, -7), tpxOk);
  EXPECT_EQ(dst[2], -128);  // -1 << 7 fits exactly
  EXPECT_EQ(dst[3], 127);
  ASSERT_EQ(tpxiConvert_16s8s_C1RSfs(src, 16, dst, 8, roi, 0, -8), tpxOk);
  const Tpx8s want[] = {-128, 127, -128, 127, 0, 127, -128, 127};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(dst[i], want[i]) << i;
  // 32u32s at sf 1: 0xFFFFFFFF / 2 rounds to 2^31 (even) and saturates.
  const Tpx32u big[] = {0xFFFFFFFFu, 0xFFFFFFFEu, 0x80000000u, 3};
  Tpx32s out[4];
  ASSERT_EQ(tpxiConvert_32u32s_C1RSfs(big, 16, out, 16, TpxSize{4, 1}, 1, 1), tpxOk);
  EXPECT_EQ(out[0], INT_MAX);
  EXPECT_EQ(out[1], 0x7fffffff);
  EXPECT_EQ(out[2], 0x40000000);
  EXPECT_EQ(out[3], 2);
}

// ---- Worked values of the float rule ------------------------------------------------------------

TEST(ConvertFloat, WorkedValues) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  Tpx16s d[4];
  for (int mode : {0, 1, 2}) {
    const float s[] = {nan, -nan, 1e30f, -1e30f};
    ASSERT_EQ(tpxiConvert_32f16s_C1R(s, 16, d, 8, TpxSize{4, 1}, mode), tpxOk);
    EXPECT_EQ(d[0], 32767);
    EXPECT_EQ(d[1], 32767);
    EXPECT_EQ(d[2], 32767);
    EXPECT_EQ(d[3], -32768);
  }
  const float ties[] = {2.5f, -2.5f, 0.5f, -0.5f};
  const Tpx16s want[3][4] = {{2, -2, 0, 0}, {2, -2, 0, 0}, {3, -3, 1, -1}};
  for (int mode : {0, 1, 2}) {
    ASSERT_EQ(tpxiConvert_32f16s_C1R(ties, 16, d, 8, TpxSize{4, 1}, mode), tpxOk);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(d[i], want[mode][i]) << mode << " " << i;
  }
  const float three = 3.0f;
  ASSERT_EQ(tpxiConvert_32f16s_C1RSfs(&three, 4, d, 2, TpxSize{1, 1}, 1, 1), tpxOk);
  EXPECT_EQ(d[0], 2);
  // The largest float below one half does not round up in mode 2 (the addition truncates).
  const float below = 0.49999997f;
  ASSERT_EQ(tpxiConvert_32f16s_C1R(&below, 4, d, 2, TpxSize{1, 1}, 2), tpxOk);
  EXPECT_EQ(d[0], 0);
  // Infinity times a multiplier of 0 is NaN, which stores the maximum; 2^-149 is not yet 0.
  const float minf = -std::numeric_limits<float>::infinity();
  ASSERT_EQ(tpxiConvert_32f16s_C1RSfs(&minf, 4, d, 2, TpxSize{1, 1}, 0, 150), tpxOk);
  EXPECT_EQ(d[0], 32767);
  ASSERT_EQ(tpxiConvert_32f16s_C1RSfs(&minf, 4, d, 2, TpxSize{1, 1}, 0, 149), tpxOk);
  EXPECT_EQ(d[0], -32768);
  // 32s and 32u at and beyond their float bounds.
  const float wide[] = {2147483648.0f, 2147483520.0f, -2147483648.0f, -3e9f, nan};
  Tpx32s s32[5];
  ASSERT_EQ(tpxiConvert_32f32s_C1RSfs(wide, 20, s32, 20, TpxSize{5, 1}, 1, 0), tpxOk);
  EXPECT_EQ(s32[0], INT_MAX);
  EXPECT_EQ(s32[1], 2147483520);
  EXPECT_EQ(s32[2], INT_MIN);
  EXPECT_EQ(s32[3], INT_MIN);
  EXPECT_EQ(s32[4], INT_MAX);
  const float uw[] = {4294967296.0f, 4294967040.0f, 2147483648.0f, -0.5f, nan};
  Tpx32u u32[5];
  ASSERT_EQ(tpxiConvert_32f32u_C1RSfs(uw, 20, u32, 20, TpxSize{5, 1}, 2, 0), tpxOk);
  EXPECT_EQ(u32[0], 0xFFFFFFFFu);
  EXPECT_EQ(u32[1], 4294967040u);
  EXPECT_EQ(u32[2], 0x80000000u);
  EXPECT_EQ(u32[3], 0u);
  EXPECT_EQ(u32[4], 0xFFFFFFFFu);
}

TEST(FloatToInt, MultiplierIsRepeatedHalvingOrDoubling) {
  CsrGuard g;
  for (unsigned caller : cvttest::kCallerModes) {
    SetCallerMode(caller);
    for (int sf = -1100; sf <= 1100; ++sf) {
      const float m32 = tpx::ScaleMultiplier32f(sf);
      const double m64 = tpx::ScaleMultiplier64f(sf);
      ASSERT_EQ(m32, cvtmodel::Multiplier<float>(sf)) << sf;
      ASSERT_EQ(m64, cvtmodel::Multiplier<double>(sf)) << sf;
    }
    for (int sf : {INT_MIN, INT_MIN + 1, INT_MAX}) {
      ASSERT_EQ(tpx::ScaleMultiplier32f(sf), cvtmodel::Multiplier<float>(sf));
      ASSERT_EQ(tpx::ScaleMultiplier64f(sf), cvtmodel::Multiplier<double>(sf));
    }
    ASSERT_EQ(_mm_getcsr() & _MM_ROUND_MASK, caller);
  }
}

// ---- Check orders ----------------------------------------------------------------------------------

// Two faults at once pin the order. noStep: the member never checks steps.
template <class S, class D, class Call>
void OrderCase(const std::string& name, bool noStep, Call call) {
  // Rows of up to 128 bytes, 256 bytes either side of the first one for negative steps.
  alignas(64) static unsigned char srcBuf[512], dstBuf[512];
  const S* src = reinterpret_cast<const S*>(srcBuf + 256);
  D* dst = reinterpret_cast<D*>(dstBuf + 256);
  const TpxSize ok{4, 2}, empty{0, 2}, flat{4, 0};
  EXPECT_EQ(call(nullptr, 16, dst, 16, empty), tpxErrNullPtr) << name;
  EXPECT_EQ(call(src, 16, nullptr, 16, flat), tpxErrNullPtr) << name;
  EXPECT_EQ(call(src, 0, dst, -4, empty), tpxErrSize) << name;
  EXPECT_EQ(call(src, -1, dst, 16, flat), tpxErrSize) << name;
  EXPECT_EQ(call(src, 0, dst, 128, ok), noStep ? tpxOk : tpxErrStep) << name;
  EXPECT_EQ(call(src, 128, dst, -128, ok), noStep ? tpxOk : tpxErrStep) << name;
  EXPECT_EQ(call(src, 128, dst, 128, ok), tpxOk) << name;
}

TEST(ConvertChecks, OrderByMemberClass) {
#define TPX_T_ORD_PLAIN(S, D, L) OrderCase<Tpx##S, Tpx##D>(#S #D #L, true, tpxiConvert_##S##D##_##L##R);
#define TPX_T_ORD_PLAIN_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_ORD_PLAIN, S, D)
#define TPX_T_ORD_PLAIN_ONE(S, D) TPX_T_ORD_PLAIN(S, D, C1)
#define TPX_T_ORD_RS(S, D) OrderCase<Tpx##S, Tpx##D>(#S #D "Rs", true, tpxiConvert_##S##D##_C1Rs);
  TPX_CONVERT_PLAIN_4L(TPX_T_ORD_PLAIN_ALL)
  TPX_CONVERT_PLAIN_C1(TPX_T_ORD_PLAIN_ONE)
  TPX_CONVERT_RS(TPX_T_ORD_RS)
#define TPX_T_ORD_ROUND(S, D, L)                                                                   \
  OrderCase<Tpx##S, Tpx##D>(#S #D #L, false, [](const Tpx##S* s, int ss, Tpx##D* d, int ds, TpxSize r) { \
    return tpxiConvert_##S##D##_##L##R(s, ss, d, ds, r, 99);                                         \
  });
#define TPX_T_ORD_ROUND_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_ORD_ROUND, S, D)
  TPX_CONVERT_ROUND_4L(TPX_T_ORD_ROUND_ALL)
#define TPX_T_ORD_SFS(S, D)                                                                        \
  OrderCase<Tpx##S, Tpx##D>(#S #D "Sfs", false, [](const Tpx##S* s, int ss, Tpx##D* d, int ds, TpxSize r) { \
    return tpxiConvert_##S##D##_C1RSfs(s, ss, d, ds, r, -3, INT_MIN);                                \
  });
  TPX_CONVERT_FLOAT_SFS(TPX_T_ORD_SFS)
  TPX_CONVERT_INT_SFS(TPX_T_ORD_SFS)
  Tpx32u img[8] = {};
  EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(nullptr, 0, TpxSize{0, 0}, 0, 0), tpxErrNullPtr);
  EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(img, 0, TpxSize{0, 1}, 0, 0), tpxErrSize);
  EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(img, 0, TpxSize{1, 1}, 0, 0), tpxErrStep);
  EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(img, 1, TpxSize{8, 1}, 0, 0), tpxOk);
}

TEST(ConvertChecks, NoStepCheckMeansTheStepIsUsed) {
  // A step of 0 converts the same row three times.
  const Tpx16s src[4] = {-5, 300, 7, 32767};
  Tpx8u dst[12];
  std::memset(dst, 0xEE, sizeof dst);
  ASSERT_EQ(tpxiConvert_16s8u_C1R(src, 0, dst, 4, TpxSize{4, 3}), tpxOk);
  const Tpx8u row[4] = {0, 255, 7, 255};
  for (int y = 0; y < 3; ++y) EXPECT_EQ(std::memcmp(dst + 4 * y, row, 4), 0) << y;
  // Rows one sample apart overlap; the steps are used as given.
  const Tpx8s small[5] = {-1, 2, -3, 4, 5};
  Tpx16u wide[5] = {};
  ASSERT_EQ(tpxiConvert_8s16u_C1Rs(small, 1, wide, 2, TpxSize{4, 2}), tpxOk);
  const Tpx16u rowsApart[5] = {0, 2, 0, 4, 5};
  EXPECT_EQ(std::memcmp(wide, rowsApart, sizeof wide), 0);
}

// ---- Streaming decisions ---------------------------------------------------------------------------

int g_cacheQueries = 0, g_lineQueries = 0;
int SmallCache(int* size) { ++g_cacheQueries; *size = 1024; return 0; }
int NoCache(int* size) { ++g_cacheQueries; *size = 0; return 1; }
int Line64(int* size) { ++g_lineQueries; *size = 64; return 0; }

template <class S, class D, Layout kL>
void WidenStreamCase(long long floor, Rng& rng) {
  // The query runs from floor samples on (a C1 row of floor - 1 samples does not ask); with or
  // without streaming stores the bytes are the same.
  const int ch = tpx::Stride(kL);
  const int below = static_cast<int>((floor - 1) / ch), atOrAbove = static_cast<int>((floor + ch - 1) / ch);
  for (int w : {below, atOrAbove})
    for (int h : {1, 2}) {
      const long long samples = static_cast<long long>(w) * ch;  // of the first row alone
      GuardedImage<S> src(w, h, ch, h == 1 ? 0 : 5, 1);
      GuardedImage<D> plain(w, h, ch, 0, 3), streamed(w, h, ch, 0, 3);
      tpxtest::FillRandom(src, rng);
      g_cacheQueries = 0;
      ASSERT_EQ((tpx::cvt::ConvertPlain<S, D, kL>(src.Data(), src.Step(), streamed.Data(), streamed.Step(),
                                                   streamed.Size(), SmallCache)),
                tpxOk);
      EXPECT_EQ(g_cacheQueries, samples * h >= floor ? 1 : 0) << w << "x" << h;
      ASSERT_EQ((tpx::cvt::ConvertPlain<S, D, kL>(src.Data(), src.Step(), plain.Data(), plain.Step(), plain.Size(),
                                                   NoCache)),
                tpxOk);
      EXPECT_TRUE(tpxtest::SameSamples(plain, streamed));
      EXPECT_TRUE(streamed.GuardsIntact());
    }
}

TEST(ConvertStreaming, WideningFormsQueryFromTheirFloors) {
  Rng rng(6);
  WidenStreamCase<Tpx16s, Tpx32f, Layout::C1>(0x15556, rng);
  WidenStreamCase<Tpx16u, Tpx32f, Layout::C3>(0x15556, rng);
  WidenStreamCase<Tpx16u, Tpx32f, Layout::AC4>(0x15556, rng);
  WidenStreamCase<Tpx8s, Tpx32f, Layout::C4>(0x1999A, rng);
  WidenStreamCase<Tpx8s, Tpx32s, Layout::C1>(0x1999A, rng);
  EXPECT_EQ((tpx::cvt::kWidenStreamFloor<Tpx8u, Tpx32f>), 0);  // never queries
  EXPECT_EQ((tpx::cvt::kWidenStreamFloor<Tpx16s, Tpx32s>), 0);
}

template <class S, class D>
void RowStreamCase(Rng& rng) {
  const tpx::cvt::RowStreamQueries fake{SmallCache, Line64};
  for (int sf : {0, 2, -3, -40})
    for (int w : {63, 64, 65, 300}) {
      GuardedImage<S> src(w, 5, 1, 3, 1);
      GuardedImage<D> plain(w, 5, 1, 0, 1), streamed(w, 5, 1, 0, 1);
      tpxtest::FillRandom(src, rng);
      g_cacheQueries = g_lineQueries = 0;
      ASSERT_EQ((tpx::cvt::ConvertIntSfs<S, D>(src.Data(), src.Step(), streamed.Data(), streamed.Step(),
                                               streamed.Size(), 1, sf, fake)),
                tpxOk);
      EXPECT_EQ(g_lineQueries, 1);
      // The cache is asked only where the destination row is at least two lines.
      EXPECT_EQ(g_cacheQueries, w * static_cast<int>(sizeof(D)) >= 128 ? 1 : 0) << w;
      ASSERT_EQ((tpx::cvt::ConvertIntSfs<S, D>(src.Data(), src.Step(), plain.Data(), plain.Step(), plain.Size(), 1,
                                               sf, {NoCache, Line64})),
                tpxOk);
      EXPECT_TRUE(tpxtest::SameSamples(plain, streamed));
      EXPECT_TRUE(streamed.GuardsIntact());
    }
}

TEST(ConvertStreaming, ScaledIntegerRowsByLineAndCache) {
  Rng rng(7);
  RowStreamCase<Tpx32s, Tpx16s>(rng);
  RowStreamCase<Tpx32s, Tpx16u>(rng);
  RowStreamCase<Tpx8u, Tpx8s>(rng);
  // The decision itself: two lines of row, success of the query, total against the cache.
  EXPECT_FALSE(tpx::cvt::ChooseStreamingRows(127, 1 << 20, {SmallCache, Line64}));
  EXPECT_TRUE(tpx::cvt::ChooseStreamingRows(128, 1024, {SmallCache, Line64}));
  EXPECT_FALSE(tpx::cvt::ChooseStreamingRows(128, 1023, {SmallCache, Line64}));
  EXPECT_FALSE(tpx::cvt::ChooseStreamingRows(1 << 20, 1 << 30, {NoCache, Line64}));
}

}  // namespace
