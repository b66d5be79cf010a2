// tpxiScale_*: every export against its model over every shape, the exact integer maps, the
// agreement of the two narrowing paths, and the check order with the range test first.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "core/layout.h"
#include "data/convert_members.h"
#include "data/convert_model.h"
#include "data/convert_testing.h"
#include "tpxip.h"

namespace {

using cvttest::FloatValues;
using cvttest::IntValues;
using cvttest::Sweep;
using tpx::Layout;
using tpxtest::Rng;

constexpr float kInv255 = 0.003921569f;

// The ranges tried: ordinary, negative, tiny, wide and one that overflows to infinity.
const std::pair<float, float> kRanges[] = {{0.0f, 1.0f}, {-1.0f, 1.0f}, {-300.5f, -20.25f}, {1e-3f, 1.1e-3f},
                                           {-65536.0f, 65535.0f}, {0.0f, 255.0f}, {-3e38f, 3e38f}};

template <class S, class D, Layout kL, class Fn>
void LimitsCase(const std::string& name, Fn fn, Rng& rng) {
  for (auto [vMin, vMax] : kRanges) {
    const auto call = [&](const S* s, int ss, D* d, int ds, TpxSize r) { return fn(s, ss, d, ds, r, vMin, vMax); };
    const float range = vMax - vMin;
    if constexpr (std::is_same_v<D, Tpx32f>) {
      const float slope = range * kInv255;
      const auto model = [&](S s) { return vMin + static_cast<float>(s) * slope; };
      Sweep<S, D>(name, tpx::Stride(kL), kL == Layout::AC4, tpxtest::Shapes(16), IntValues<S, S>(), call, model, rng);
    } else {
      const float slope = 255.0f / range, offset = slope * -vMin;
      const auto model = [&](S x) { return cvtmodel::FloatRule<float, Tpx8u>(x * slope + offset, 1, 0); };
      // Samples spread over the range and beyond, with the float specials.
      cvttest::Values<S> values = FloatValues<S, Tpx8u>();
      values.random = [&](Rng& r) { return static_cast<S>(vMin + r.Real(-0.2, 1.2) * static_cast<double>(range)); };
      Sweep<S, D>(name, tpx::Stride(kL), kL == Layout::AC4, tpxtest::Shapes(16), values, call, model, rng);
    }
  }
}

TEST(ScaleLimits, EveryMemberMatchesTheModel) {
  Rng rng(21);
#define TPX_T_LIM(S, D, L) LimitsCase<Tpx##S, Tpx##D, Layout::L>(#S #D #L, tpxiScale_##S##D##_##L##R, rng);
#define TPX_T_LIM_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_LIM, S, D)
  TPX_SCALE_LIMITS_4L(TPX_T_LIM_ALL)
}

TEST(ScaleLimits, EndpointsAndRounding) {
  const Tpx8u s[] = {0, 255, 128};
  float d[3];
  ASSERT_EQ(tpxiScale_8u32f_C1R(s, 3, d, 12, TpxSize{3, 1}, -2.0f, 3.0f), tpxOk);
  EXPECT_EQ(d[0], -2.0f);  // vMin exactly
  EXPECT_NEAR(d[1], 3.0f, 1e-6f);
  const float f[] = {-2.0f, 3.0f, 0.5f, std::numeric_limits<float>::quiet_NaN(), -1e30f, 1e30f};
  Tpx8u u[6];
  ASSERT_EQ(tpxiScale_32f8u_C1R(f, 24, u, 6, TpxSize{6, 1}, -2.0f, 3.0f), tpxOk);
  EXPECT_EQ(u[0], 0);
  EXPECT_EQ(u[1], 255);
  EXPECT_EQ(u[2], 128);  // 127.5 rounds half to even
  EXPECT_EQ(u[3], 255);  // NaN stores the maximum
  EXPECT_EQ(u[4], 0);
  EXPECT_EQ(u[5], 255);
}

template <class S, class D, Layout kL, class Fn>
void HintCase(const std::string& name, Fn fn, Rng& rng) {
  for (int hint : {0, 1, 2, 7}) {
    const auto call = [&](const S* s, int ss, D* d, int ds, TpxSize r) { return fn(s, ss, d, ds, r, hint); };
    const auto exact = [](S s) { return cvtmodel::ScaleExact<S, D>(s); };
    if constexpr (sizeof(D) > sizeof(S) || !std::is_same_v<S, Tpx32s>) {
      // Widening is exact for every hint; so is narrowing from 16 bits (both paths agree).
      Sweep<S, D>(name, tpx::Stride(kL), kL == Layout::AC4, tpxtest::Shapes(16), IntValues<S, S>(), call, exact, rng);
    } else if (hint == 2) {
      Sweep<S, D>(name, tpx::Stride(kL), kL == Layout::AC4, tpxtest::Shapes(16), IntValues<S, S>(), call, exact, rng);
    } else {
      // Single precision: the sample rounded to float, slope 255 / 2^32, offset 127.5.
      const float slope = 255.0f / 4294967296.0f;
      const auto fast = [&](S s) {
        return cvtmodel::FloatRule<float, Tpx8u>(static_cast<float>(s) * slope + 127.5f, 1, 0);
      };
      Sweep<S, D>(name, tpx::Stride(kL), kL == Layout::AC4, tpxtest::Shapes(16), IntValues<S, S>(), call, fast, rng);
    }
  }
}

TEST(ScaleHint, EveryMemberMatchesTheModel) {
  Rng rng(22);
#define TPX_T_HINT(S, D, L) HintCase<Tpx##S, Tpx##D, Layout::L>(#S #D #L, tpxiScale_##S##D##_##L##R, rng);
#define TPX_T_HINT_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_HINT, S, D)
  TPX_SCALE_HINT_4L(TPX_T_HINT_ALL)
}

// Every 16-bit sample, through both narrowing paths, against exact integer rounding.
template <class S, class Fn>
void AllSixteenBit(Fn fn) {
  std::vector<S> src(65536);
  for (int i = 0; i < 65536; ++i) src[i] = static_cast<S>(std::numeric_limits<S>::lowest() + i);
  std::vector<Tpx8u> fast(65536), exact(65536);
  ASSERT_EQ(fn(src.data(), 512, fast.data(), 256, TpxSize{256, 256}, tpxAlgHintFast), tpxOk);
  ASSERT_EQ(fn(src.data(), 512, exact.data(), 256, TpxSize{256, 256}, tpxAlgHintAccurate), tpxOk);
  for (int i = 0; i < 65536; ++i) {
    ASSERT_EQ(exact[i], (cvtmodel::ScaleExact<S, Tpx8u>(src[i]))) << src[i];
    ASSERT_EQ(fast[i], exact[i]) << src[i];
  }
}

TEST(ScaleHint, SixteenBitSourcesExactOnEverySample) {
  AllSixteenBit<Tpx16u>(tpxiScale_16u8u_C1R);
  AllSixteenBit<Tpx16s>(tpxiScale_16s8u_C1R);
}

TEST(ScaleHint, ThirtyTwoBitPathsDiffer) {
  // Near a rounding boundary the single-precision path may land on the other side; the
  // accurate one never does.
  const Tpx32s s[] = {INT_MIN, INT_MAX, 0, -1, 8421504, 8421505, 25264513 - 2147483647 - 1};
  Tpx8u a[7], f[7];
  ASSERT_EQ(tpxiScale_32s8u_C1R(s, 28, a, 7, TpxSize{7, 1}, tpxAlgHintAccurate), tpxOk);
  ASSERT_EQ(tpxiScale_32s8u_C1R(s, 28, f, 7, TpxSize{7, 1}, tpxAlgHintNone), tpxOk);
  for (int i = 0; i < 7; ++i) EXPECT_EQ(a[i], (cvtmodel::ScaleExact<Tpx32s, Tpx8u>(s[i]))) << i;
  EXPECT_EQ(a[0], 0);
  EXPECT_EQ(a[1], 255);
  EXPECT_EQ(f[0], 0);
  EXPECT_EQ(f[1], 255);
  EXPECT_EQ(a[2], 128);  // 127.50000003 rounds up
  Rng rng(23);
  int differ = 0;
  std::vector<Tpx32s> many(4096);
  std::vector<Tpx8u> ea(4096), fa(4096);
  for (auto& v : many) {  // samples within a few units of a rounding boundary
    const long long k = rng.Int(0, 254);
    const long long boundary = (2 * k + 1) * 4294967295LL / 510 - 2147483648LL;
    v = static_cast<Tpx32s>(boundary + rng.Int(-40, 40));
  }
  ASSERT_EQ(tpxiScale_32s8u_C1R(many.data(), 4096 * 4, ea.data(), 4096, TpxSize{4096, 1}, tpxAlgHintAccurate), tpxOk);
  ASSERT_EQ(tpxiScale_32s8u_C1R(many.data(), 4096 * 4, fa.data(), 4096, TpxSize{4096, 1}, tpxAlgHintFast), tpxOk);
  for (int i = 0; i < 4096; ++i) {
    ASSERT_EQ(ea[i], (cvtmodel::ScaleExact<Tpx32s, Tpx8u>(many[i]))) << many[i];
    differ += ea[i] != fa[i];
  }
  EXPECT_GT(differ, 0);
}

// ---- Check order --------------------------------------------------------------------------------

template <class S, class D, class Call>
void ScaleOrderCase(const std::string& name, Call call) {
  alignas(64) static unsigned char srcBuf[512], dstBuf[512];
  const S* src = reinterpret_cast<const S*>(srcBuf);
  D* dst = reinterpret_cast<D*>(dstBuf);
  const TpxSize ok{4, 2}, empty{0, 2};
  EXPECT_EQ(call(nullptr, 16, dst, 16, empty), tpxErrNullPtr) << name;
  EXPECT_EQ(call(src, 0, dst, -4, empty), tpxErrSize) << name;
  EXPECT_EQ(call(src, 0, dst, 128, ok), tpxErrStep) << name;
  EXPECT_EQ(call(src, 128, dst, -1, ok), tpxErrStep) << name;
  EXPECT_EQ(call(src, 128, dst, 128, ok), tpxOk) << name;
}

TEST(ScaleChecks, RangeFirstThenPointersSizeStep) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
#define TPX_T_SORD_LIM(S, D, L)                                                                          \
  {                                                                                                      \
    ScaleOrderCase<Tpx##S, Tpx##D>(#S #D #L, [](const Tpx##S* s, int ss, Tpx##D* d, int ds, TpxSize r) { \
      return tpxiScale_##S##D##_##L##R(s, ss, d, ds, r, -1.0f, 1.0f);                                      \
    });                                                                                                  \
    for (auto [lo, hi] : {std::pair<float, float>{1.0f, 1.0f}, {2.0f, 1.0f}, {nan, 1.0f}, {0.0f, nan}})      \
      EXPECT_EQ(tpxiScale_##S##D##_##L##R(nullptr, -1, nullptr, 0, TpxSize{0, -1}, lo, hi), tpxErrScaleRange); \
    /* A difference that is tiny but above 0 passes. */                                                  \
    EXPECT_EQ(tpxiScale_##S##D##_##L##R(nullptr, 1, nullptr, 1, TpxSize{1, 1}, 1.0f, 1.0000001f), tpxErrNullPtr); \
  }
#define TPX_T_SORD_LIM_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_SORD_LIM, S, D)
  TPX_SCALE_LIMITS_4L(TPX_T_SORD_LIM_ALL)
#define TPX_T_SORD_HINT(S, D, L)                                                                        \
  ScaleOrderCase<Tpx##S, Tpx##D>(#S #D #L, [](const Tpx##S* s, int ss, Tpx##D* d, int ds, TpxSize r) { \
    return tpxiScale_##S##D##_##L##R(s, ss, d, ds, r, 12345);                                            \
  });
#define TPX_T_SORD_HINT_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_SORD_HINT, S, D)
  TPX_SCALE_HINT_4L(TPX_T_SORD_HINT_ALL)
}

}  // namespace
