// tpxiScale_*: every export against its model over every shape, with the check order (the range
// test first), the exact integer maps, and every 16-bit sample through both narrowing paths.

#include <numeric>

#include "core/layout.h"
#include "data/convert_members.h"
#include "data/convert_testing.h"
#include "tpxip.h"

namespace {

using namespace cvttest;
using tpx::Layout;

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

// Worked values that pin the models: the endpoints, and on [-2, 3] (slope 51, offset 102) 1 maps to
// 153, 1.5 to 178.5 which rounds half to even, NaN stores the maximum and the rest saturates.
TEST(ScaleLimits, WorkedValues) {
  const Tpx8u s[] = {0, 255};
  float d[2];
  ASSERT_EQ(tpxiScale_8u32f_C1R(s, 2, d, 8, TpxSize{2, 1}, -2.0f, 3.0f), tpxOk);
  EXPECT_EQ(d[0], -2.0f);
  EXPECT_NEAR(d[1], 3.0f, 1e-6f);
  const float f[] = {-2.0f, 3.0f, 1.0f, 1.5f, std::numeric_limits<float>::quiet_NaN(), -1e30f, 1e30f};
  Tpx8u u[7];
  ASSERT_EQ(tpxiScale_32f8u_C1R(f, 28, u, 7, TpxSize{7, 1}, -2.0f, 3.0f), tpxOk);
  EXPECT_EQ(std::vector<Tpx8u>(u, u + 7), (std::vector<Tpx8u>{0, 255, 153, 178, 255, 0, 255}));
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

TEST(Scale, EveryMemberMatchesTheModel) {
  Rng rng(22);
#define TPX_T_LIM(S, D, L) LimitsCase<Tpx##S, Tpx##D, Layout::L>(#S #D #L, tpxiScale_##S##D##_##L##R, rng);
#define TPX_T_LIM_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_LIM, S, D)
  TPX_SCALE_LIMITS_4L(TPX_T_LIM_ALL)
#define TPX_T_HINT(S, D, L) HintCase<Tpx##S, Tpx##D, Layout::L>(#S #D #L, tpxiScale_##S##D##_##L##R, rng);
#define TPX_T_HINT_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_T_HINT, S, D)
  TPX_SCALE_HINT_4L(TPX_T_HINT_ALL)
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

}  // namespace
