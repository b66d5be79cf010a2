// MulScale and MulCScale: the fraction product against its rule, kernel twins, every member with
// guards and alpha, and the pointers-step-size check order with the wrappers' extent test.
#include <gtest/gtest.h>

#include "arith/mul_scale_rows.h"
#include "arith/point_rows.h"
#include "arith_util.h"
#include "tpxip.h"

namespace {

using namespace tpx;
using namespace tpx::arith;
using namespace decide;

// The rule in 64-bit integer maths.
template <class T>
T RefMulScale(T a, T b) {
  const unsigned long long t = static_cast<unsigned long long>(a) * b;
  const int k = sizeof(T) == 1 ? 8 : 16;
  return static_cast<T>((t + 1 + (t >> k)) >> k);
}

// Dense pairs through both kernels, each length's tail, then the whole set; the maximum is the
// identity of the rule.
template <class T>
void Pairs() {
  std::vector<T> x, y;
  DensePairs(x, y);
  for (T v : x) ASSERT_EQ(RefMulScale(v, std::numeric_limits<T>::max()), v);
  for (std::ptrdiff_t n : {0, 1, 7, 23, 49, int(x.size())}) {
    std::vector<T> s(n + 4, T(9)), a(n + 4, T(9));
    PointRow<MulScaleOp<T>, Isa::kScalar, false>(x.data(), RowOperand<T>{y.data()}, s.data(), n, NoParams{});
    PointRow<MulScaleOp<T>, Isa::kAvx, false>(x.data(), RowOperand<T>{y.data()}, a.data(), n, NoParams{});
    for (std::ptrdiff_t i = 0; i < n + 4; ++i)
      ASSERT_TRUE(s[i] == a[i] && a[i] == (i < n ? RefMulScale(x[i], y[i]) : T(9))) << n << " " << i;
  }
}

TEST(MulScaleKernels, AvxEqualsScalarAndRule) {
  EXPECT_TRUE(RefMulScale<Tpx8u>(128, 128) == 64 && RefMulScale<Tpx8u>(255, 1) == 1 && RefMulScale<Tpx16u>(65535, 1) == 1);
  Pairs<Tpx8u>(), Pairs<Tpx16u>();
}

template <class T>
using M = Member<T, int>;
#define MS_ENTRY(NAME, L, C, IP, T, ...) {NAME, 0, Layout::L, C, IP, false, [](const Args<Tpx##T>& a) { return __VA_ARGS__; }},
#define MS_MEMBER(T, L)                                                                                                      \
  MS_ENTRY("MulScale_" #T "_" #L "R", L, 0, 0, T, tpxiMulScale_##T##_##L##R(a.src1, int(a.step1), a.src2, int(a.step2), a.dst, int(a.dstStep), a.Roi())) \
  MS_ENTRY("MulScale_" #T "_" #L "IR", L, 0, 1, T, tpxiMulScale_##T##_##L##IR(a.src1, int(a.step1), a.dst, int(a.dstStep), a.Roi()))                   \
  MS_ENTRY("MulCScale_" #T "_" #L "R", L, 1, 0, T, tpxiMulCScale_##T##_##L##R(a.src1, int(a.step1), ChArg<Layout::L>(a.value), a.dst, int(a.dstStep), a.Roi())) \
  MS_ENTRY("MulCScale_" #T "_" #L "IR", L, 1, 1, T, tpxiMulCScale_##T##_##L##IR(ChArg<Layout::L>(a.value), a.dst, int(a.dstStep), a.Roi()))
#define MS_TYPE(T) MS_MEMBER(T, C1) MS_MEMBER(T, C3) MS_MEMBER(T, C4) MS_MEMBER(T, AC4)

// Every member on the sweep (the product is symmetric, so the common operand order serves the
// in-place two-image form too); then pointers, step, size, where the C3 and C4 two-image
// members test both extents first.
template <class T>
void SweepAndOrder(Rng& rng, std::vector<M<T>> members) {
  T buf[64] = {};
  for (const M<T>& m : members) {
    for (const Shape& s : tpxtest::Shapes(16 / static_cast<int>(sizeof(T)))) {
      PointCase<T> c(m, s, rng, RefMulScale<T>);
      ASSERT_EQ(m.call(c.MakeArgs(0)), tpxOk) << m.name;
      ASSERT_TRUE(c.Check()) << m.name << " w=" << s.width << " h=" << s.height;
    }
    const TpxStatus extent = !m.isConst && (m.layout == Layout::C3 || m.layout == Layout::C4) ? tpxErrSize : tpxOk;
    Args<T> a{buf, 16, buf, 16, nullptr, 0, TpxSizeL{0, 1}, buf, 0};
    EXPECT_EQ(m.call(a), extent ? extent : tpxErrNullPtr) << m.name;
    a.roi = TpxSizeL{1, 0};
    EXPECT_EQ(m.call(a), extent ? extent : tpxErrNullPtr) << m.name;
    a.dst = buf;
    EXPECT_EQ(m.call(a), extent ? extent : tpxErrStep) << m.name;
    a.roi = TpxSizeL{4, 2};
    EXPECT_EQ(m.call(a), tpxErrStep) << m.name;
    a.dstStep = 2;  // a step is only tested against 1, never against the row
    EXPECT_EQ(m.call(a), tpxOk) << m.name;
    a.step1 = -16;  // the first image's step counts, but only where the member has it
    EXPECT_EQ(m.call(a), m.isConst && m.inPlace ? tpxOk : tpxErrStep) << m.name;
    a.step1 = 16, a.roi = TpxSizeL{-3, 2};
    EXPECT_EQ(m.call(a), tpxErrSize) << m.name;
  }
}

TEST(MulScaleExports, EveryMemberMatchesTheRuleAndCheckOrder) {
  Rng rng(51);
  SweepAndOrder<Tpx8u>(rng, {MS_TYPE(8u)}), SweepAndOrder<Tpx16u>(rng, {MS_TYPE(16u)});
}

}  // namespace
