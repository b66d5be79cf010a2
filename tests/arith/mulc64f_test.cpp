// MulC64f: a model of the double product, float narrowing, float clamp and the rounding modes,
// computed under the rounding direction each mode runs under; kernel twins; every member with
// guards; the caller's rounding control kept; check order.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <cfenv>
#include <cmath>
#include <vector>

#include "arith/mulc64f_rows.h"
#include "arith_util.h"
#include "tpxip.h"

namespace {

using namespace tpx;
using namespace tpx::arith;
using namespace decide;

const int kDirs[] = {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO};

// The product, the narrowing and (but for mode 2, half up) the conversion run down for mode 0,
// to nearest for mode 1, else (and always for 32f) in the caller's direction.
template <class T>
T Model(T x, double c, int mode, int callerDir) {
  const int saved = std::fegetround();
  std::fesetround(std::is_same_v<T, float> || (mode != 0 && mode != 1) ? callerDir : mode == 0 ? FE_DOWNWARD : FE_TONEAREST);
  volatile double xd = static_cast<double>(x), cd = c;
  volatile float f = static_cast<float>(xd * cd);
  const double lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
  const double g = std::isnan(f) ? lo : f < lo ? lo : f > hi ? hi : f;  // a NaN takes the low end
  const double r = std::is_same_v<T, float> ? f : mode == 2 ? std::trunc(g + 0.5) : std::nearbyint(g);
  std::fesetround(saved);
  return static_cast<T>(r);
}

// Ties to even in mode 1, half up in mode 2 (-2.5 gives -2), down (not toward zero) in mode 0,
// the caller's direction in any other mode; NaN gives the low end.
TEST(MulC64fModel, WorkedValues) {
  const int N = FE_TONEAREST;
  for (auto [x, c, mode, dir, want] : {std::tuple{5, 0.5, 1, N, 2}, {5, 0.5, 2, N, 3}, {-5, 0.5, 0, N, -3}, {-5, 0.5, 2, N, -2},
                                       {-32768, 1.0, 2, N, -32767}, {-5, 0.5, 5, FE_UPWARD, -2}, {3, double(NAN), 1, N, -32768}})
    EXPECT_EQ(Model<Tpx16s>(Tpx16s(x), c, mode, dir), want) << x << " " << c << " mode " << mode;
}

// The row kernels, AVX against scalar, under every rounding direction of the caller.
template <class T, int kP, Conv64f kConv>
void Twin(Rng& rng) {
  const double c[4] = {0.5, -1.25, 3.0000001, 1.0 / 3};
  const Const64f<kP> k(c);
  for (int n = 0; n <= 3 * 8 + 3; ++n) {
    std::vector<T> x(n + 1), s(n + 4, T(5)), a(n + 4, T(5));
    for (T& v : x) v = Mixed<T>(rng);
    MulC64fRow<T, kP, kConv, Isa::kScalar>(x.data() + 1, k, s.data(), n);
    MulC64fRow<T, kP, kConv, Isa::kAvx>(x.data() + 1, k, a.data(), n);
    for (std::size_t i = 0; i < s.size(); ++i) ASSERT_TRUE(Same(s[i], a[i]) && (i < std::size_t(n) || a[i] == T(5))) << n << " " << i;
  }
}

TEST(MulC64fKernels, AvxEqualsScalar) {
  Rng rng(61);
  for (int dir : kDirs) {
    const int saved = std::fegetround();
    std::fesetround(dir);
    ForEachType([&](auto t) {
      Twin<decltype(t), 1, Conv64f::kDirection>(rng), Twin<decltype(t), 3, Conv64f::kDirection>(rng);
      Twin<decltype(t), 4, Conv64f::kAddHalf>(rng), Twin<decltype(t), 3, Conv64f::kAddHalf>(rng);
    });
    std::fesetround(saved);
  }
}

template <class T>
struct MC {
  const char* name;
  int channels;
  bool inPlace;
  TpxStatus (*call)(const T* s, int ss, const Tpx64f* v, T* d, int ds, TpxSize roi, int mode);
};
#define MC_MEMBER(T, L, N)                                                                                               \
  {"MulC64f_" #T "_" #L "R", N, false, [](const Tpx##T* s, int ss, const Tpx64f* v, Tpx##T* d, int ds, TpxSize roi, int mode) { \
     return tpxiMulC64f_##T##_##L##R(s, ss, v, d, ds, roi, tpxAlgHintNone, mode); }},                                       \
  {"MulC64f_" #T "_" #L "IR", N, true, [](const Tpx##T*, int, const Tpx64f* v, Tpx##T* d, int ds, TpxSize roi, int mode) {    \
     return tpxiMulC64f_##T##_##L##IR(v, d, ds, roi, tpxAlgHintAccurate, mode); }},
#define MC_TYPE(T) MC_MEMBER(T, C1, 1) MC_MEMBER(T, C3, 3) MC_MEMBER(T, C4, 4)

const double kConstants[] = {0.5, 1.5, -0.5, 0.25, 1.0 / 3, 2.0000001, 255.5 / 255, 1e10, -1e10, -2.5,
                             1.0, 0.0, 65535.0 / 3, 1e-3, NAN};
const int kModes[] = {0, 1, 2, 3, -5, 16};

// Every member on the sweep, cycling through the modes and the caller's directions; then null
// pointers before size, and no step or mode check.
template <class T>
void Exports(const std::vector<MC<T>>& members, Rng& rng) {
  int pick = 0;
  T buf[16] = {};
  for (const MC<T>& m : members) {
    for (const Shape& s : tpxtest::Shapes(8))
      for (int rep = 0; rep < 2; ++rep, ++pick) {
        const int mode = kModes[pick % 6], callerDir = kDirs[(pick / 6) % 4];
        GuardedImage<T> a(s.width, s.height, m.channels, s.padSamples, s.misalign),
            d(s.width, s.height, m.channels, s.padSamples + 2, (s.misalign + 1) % 4);
        FillRandom(a, rng), FillRandom(d, rng);
        double c[4];
        for (double& v : c) v = rng.Chance(0.6) ? kConstants[rng.Int(0, 14)] : rng.Real(-4, 4);
        std::vector<T> want;
        for (int y = 0; y < s.height; ++y)
          for (int i = 0; i < s.width * m.channels; ++i)
            want.push_back(Model<T>(m.inPlace ? d.Row(y)[i] : a.Row(y)[i], c[i % m.channels], mode, callerDir));
        const int saved = std::fegetround();
        std::fesetround(callerDir);
        const unsigned before = _mm_getcsr() & _MM_ROUND_MASK;
        const TpxStatus st = m.call(a.Data(), a.Step(), c, d.Data(), d.Step(), d.Size(), mode);
        const unsigned after = _mm_getcsr() & _MM_ROUND_MASK;
        std::fesetround(saved);
        ASSERT_TRUE(st == tpxOk && before == after) << m.name << " status " << st << ", or the caller's rounding control changed";
        ASSERT_TRUE(Matches(d, want, {&a, &d})) << m.name << " mode=" << mode << " dir=" << callerDir;
      }
    const double c[4] = {1, 2, 3, 4};
    if (!m.inPlace) EXPECT_EQ(m.call(nullptr, 4, c, buf, 4, TpxSize{0, 1}, 1), tpxErrNullPtr) << m.name;
    EXPECT_EQ(m.call(buf, 4, nullptr, buf, 4, TpxSize{0, 1}, 1), tpxErrNullPtr) << m.name;
    EXPECT_EQ(m.call(buf, 4, c, nullptr, 4, TpxSize{1, 0}, 1), tpxErrNullPtr) << m.name;
    EXPECT_EQ(m.call(buf, 4, c, buf, 4, TpxSize{1, 0}, 1), tpxErrSize) << m.name;
    EXPECT_EQ(m.call(buf + 8, -4, c, buf + 8, 0, TpxSize{1, 2}, 99), tpxOk) << m.name;
  }
}

TEST(MulC64fExports, EveryMemberMatchesTheModelAndCheckOrder) {
  Rng rng(71);
  Exports<Tpx8u>({MC_TYPE(8u)}, rng), Exports<Tpx16u>({MC_TYPE(16u)}, rng);
  Exports<Tpx16s>({MC_TYPE(16s)}, rng), Exports<Tpx32f>({MC_TYPE(32f)}, rng);
}

}  // namespace
