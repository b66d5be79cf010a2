// tpxiScale_*: every export against its model over every shape, the exact integer maps, the
// agreement of the two narrowing paths, and the check order with the range test first.

#include "core/layout.h"
#include "data/convert_members.h"
#include "data/convert_model.h"
#include "data/convert_testing.h"
#include "tpxip.h"

namespace {

using cvttest::IntValues;
using cvttest::OrderCase;
using cvttest::Sweep;
using tpx::Layout;
using tpxtest::Rng;

// The ranges tried: ordinary, negative, tiny, wide and one that overflows to infinity.
const std::pair<float, float> kRanges[] = {{0.0f, 1.0f}, {-1.0f, 1.0f}, {-300.5f, -20.25f}, {1e-3f, 1.1e-3f},
                                           {-65536.0f, 65535.0f}, {0.0f, 255.0f}, {-3e38f, 3e38f}};

template <class S, class D, Layout kL, class Fn>
void LimitsCase(const std::string& name, Fn fn, Rng& rng) {
  for (auto [vMin, vMax] : kRanges) {
    const auto call = [&](const S* s, int ss, D* d, int ds, TpxSize r) { return fn(s, ss, d, ds, r, vMin, vMax); };
    const float range = vMax - vMin;
    if constexpr (std::is_same_v<D, Tpx32f>) {
      const float slope = range * 0.003921569f;
      const auto model = [&](S s) { return vMin + static_cast<float>(s) * slope; };
      Sweep<S, D>(name, tpx::Stride(kL), kL == Layout::AC4, tpxtest::Shapes(16), IntValues<S, S>(), call, model, rng);
    } else {
      const float slope = 255.0f / range, offset = slope * -vMin;
      const auto model = [&](S x) { return cvtmodel::FloatRule<float, Tpx8u>(x * slope + offset, 1, 0); };
      cvttest::Values<S> values = cvttest::FloatValues<S, Tpx8u>();  // the specials, and samples around the range
      values.random = [&](Rng& r) { return static_cast<S>(vMin + r.Real(-0.2, 1.2) * static_cast<double>(range)); };
      Sweep<S, D>(name, tpx::Stride(kL), kL == Layout::AC4, tpxtest::Shapes(16), values, call, model, rng);
    }
  }
}

TEST(ScaleLimits, EndpointsAndRounding) {
  const Tpx8u s[] = {0, 255};
  float d[2];
  ASSERT_EQ(tpxiScale_8u32f_C1R(s, 2, d, 8, TpxSize{2, 1}, -2.0f, 3.0f), tpxOk);
  EXPECT_EQ(d[0], -2.0f);  // vMin exactly
  EXPECT_NEAR(d[1], 3.0f, 1e-6f);
  const float f[] = {-2.0f, 3.0f, 0.5f, std::numeric_limits<float>::quiet_NaN(), -1e30f, 1e30f};
  Tpx8u u[6];
  ASSERT_EQ(tpxiScale_32f8u_C1R(f, 24, u, 6, TpxSize{6, 1}, -2.0f, 3.0f), tpxOk);
  // 0.5 maps to 127.5, which rounds half to even; NaN stores the maximum.
  EXPECT_EQ(std::vector<Tpx8u>(u, u + 6), (std::vector<Tpx8u>{0, 255, 128, 255, 0, 255}));
}

template <class S, class D, Layout kL, class Fn>
void HintCase(const std::string& name, Fn fn, Rng& rng) {
  for (int hint : {0, 1, 2, 7}) {
    const auto call = [&](const S* s, int ss, D* d, int ds, TpxSize r) { return fn(s, ss, d, ds, r, hint); };
    // Exact for widening, narrowing from 16 bits and the accurate hint; otherwise 32s narrows
    // in single precision: the sample rounded to float, slope 255 / 2^32, offset 127.5.
    const bool fast = std::is_same_v<S, Tpx32s> && sizeof(D) < sizeof(S) && hint != 2;
    const auto model = [&](S s) {
      return fast ? cvtmodel::FloatRule<float, D>(static_cast<float>(s) * (255.0f / 4294967296.0f) + 127.5f, 1, 0)
                  : cvtmodel::ScaleExact<S, D>(s);
    };
    Sweep<S, D>(name, tpx::Stride(kL), kL == Layout::AC4, tpxtest::Shapes(16), IntValues<S, S>(), call, model, rng);
  }
}

TEST(Scale, EveryMemberMatchesTheModel) {
  Rng rng(22);
#define TPX_T_LIM(S, D, L) LimitsCase<Tpx##S, Tpx##D, Layout::L>(#S #D #L, tpxiScale_##S##D##_##L##R, rng);
#define TPX_T_LIM_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_LIM, S, D)
  TPX_SCALE_LIMITS_4L(TPX_T_LIM_ALL)
#define TPX_T_HINT(S, D, L) HintCase<Tpx##S, Tpx##D, Layout::L>(#S #D #L, tpxiScale_##S##D##_##L##R, rng);
#define TPX_T_HINT_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_HINT, S, D)
  TPX_SCALE_HINT_4L(TPX_T_HINT_ALL)
}

// Every 16-bit sample through both narrowing paths against exact integer rounding; for 32s,
// samples within a few units of a rounding boundary, where only the accurate path is exact.
template <class S, class Fn>
void NarrowPaths(Fn fn, std::vector<S> src, bool fastExact) {
  const int n = static_cast<int>(src.size()), ss = 256 * static_cast<int>(sizeof(S));
  std::vector<Tpx8u> fast(n), exact(n);
  ASSERT_EQ(fn(src.data(), ss, fast.data(), 256, TpxSize{256, n / 256}, tpxAlgHintFast), tpxOk);
  ASSERT_EQ(fn(src.data(), ss, exact.data(), 256, TpxSize{256, n / 256}, tpxAlgHintAccurate), tpxOk);
  int differ = 0;
  for (int i = 0; i < n; ++i) {
    ASSERT_EQ(exact[i], (cvtmodel::ScaleExact<S, Tpx8u>(src[i]))) << src[i];
    differ += fast[i] != exact[i];
  }
  EXPECT_EQ(differ == 0, fastExact);
}

TEST(ScaleHint, NarrowingPathsOnHardSamples) {
  std::vector<Tpx16u> u(65536);
  std::vector<Tpx16s> s(65536);
  for (int i = 0; i < 65536; ++i) u[i] = static_cast<Tpx16u>(i), s[i] = static_cast<Tpx16s>(i - 32768);
  NarrowPaths<Tpx16u>(tpxiScale_16u8u_C1R, u, true);
  NarrowPaths<Tpx16s>(tpxiScale_16s8u_C1R, s, true);
  Rng rng(23);
  std::vector<Tpx32s> near(4096);
  for (auto& v : near)
    v = static_cast<Tpx32s>((2 * rng.Int(0, 254) + 1) * 4294967295LL / 510 - 2147483648LL + rng.Int(-40, 40));
  NarrowPaths<Tpx32s>(tpxiScale_32s8u_C1R, near, false);
}

TEST(ScaleChecks, RangeFirstThenPointersSizeStep) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
#define TPX_T_SORD(S, D, L, ...)                                                                                  \
  OrderCase<Tpx##S, Tpx##D>(#S #D #L, false, [](const Tpx##S* s, int ss, Tpx##D* d, int ds, TpxSize r) {            \
    return tpxiScale_##S##D##_##L##R(s, ss, d, ds, r, __VA_ARGS__);                                                \
  });
#define TPX_T_SORD_LIM(S, D, L)                                                                                   \
  TPX_T_SORD(S, D, L, -1.0f, 1.0f)                                                                                \
  for (auto [lo, hi] : {std::pair<float, float>{1.0f, 1.0f}, {2.0f, 1.0f}, {nan, 1.0f}, {0.0f, nan}})               \
    EXPECT_EQ(tpxiScale_##S##D##_##L##R(nullptr, -1, nullptr, 0, TpxSize{0, -1}, lo, hi), tpxErrScaleRange);        \
  /* A difference that is tiny but above 0 passes. */                                                             \
  EXPECT_EQ(tpxiScale_##S##D##_##L##R(nullptr, 1, nullptr, 1, TpxSize{1, 1}, 1.0f, 1.0000001f), tpxErrNullPtr);
#define TPX_T_SORD_LIM_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_SORD_LIM, S, D)
  TPX_SCALE_LIMITS_4L(TPX_T_SORD_LIM_ALL)
#define TPX_T_SORD_HINT(S, D, L) TPX_T_SORD(S, D, L, 12345)
#define TPX_T_SORD_HINT_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_SORD_HINT, S, D)
  TPX_SCALE_HINT_4L(TPX_T_SORD_HINT_ALL)
}

}  // namespace
