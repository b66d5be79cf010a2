// Scaled arithmetic (Add, Sub, Mul, AddC, SubC, MulC): every member against a reference model of
// the rule written in plain integer maths, every vector kernel against its scalar twin, guard
// bands and alpha, the check order, and the _L twins on both of their paths.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include "arith/point_rows.h"
#include "arith/scaled_rows.h"
#include "far_rows.h"
#include "pairs.h"
#include "support/image.h"
#include "support/random.h"
#include "support/sweep.h"
#include "tpxip.h"
#ifdef TPX_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using namespace tpx;
using namespace tpx::arith;
using namespace tpxtest;

// ---- Reference model -------------------------------------------------------------------------
// v * 2^-sf rounded to nearest, ties to even, by floor division and a remainder test.
long long ScaleExact(long long v, int sf) {
  if (v == 0) return 0;
  if (sf <= 0) {
    if (sf < -30) return v > 0 ? (1LL << 40) : -(1LL << 40);  // beyond every type's range
    return v * (1LL << -sf);                                    // |v| < 2^33: no overflow
  }
  if (sf >= 40) return 0;  // |v| < 2^33 scales below one half
  const long long d = 1LL << sf;
  long long q = v / d, r = v % d;
  if (r < 0) {
    q -= 1;
    r += d;
  }
  if (2 * r > d || (2 * r == d && (q & 1))) ++q;
  return q;
}

// x is the minuend of Sub: pSrc2, pSrcDst in place, the source of SubC.
template <class T>
T Ref(Op op, T x, T y, int sf) {
  if constexpr (std::is_same_v<T, float>) {
    return op == Op::kAdd ? x + y : op == Op::kSub ? x - y : x * y;
  } else {
    long long v = op == Op::kAdd ? (long long)x + y : op == Op::kSub ? (long long)x - y : (long long)x * y;
    if (op == Op::kSub && std::is_unsigned_v<T> && v < 0) v = 0;
    const long long r = ScaleExact(v, sf);
    const long long lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
    return static_cast<T>(r < lo ? lo : r > hi ? hi : r);
  }
}

template <class T>
bool Same(T a, T b) {
  if constexpr (std::is_same_v<T, float>)
    if (std::isnan(a) && std::isnan(b)) return true;
  return std::memcmp(&a, &b, sizeof(T)) == 0;
}

// Scale factors from far below the negative limits to far above the zero limits.
const std::vector<int> kSfs = {INT_MIN, -1000, -40, -17, -16, -15, -14, -13, -8, -7, -6, -3, -1, 0, 1,
                               2, 3, 5, 8, 9, 10, 11, 15, 16, 17, 18, 19, 30, 31, 32, 33, 34, 63,
                               64, 1000, INT_MAX};

TEST(ScaledReference, WorkedValues) {
  EXPECT_EQ(Ref<Tpx8u>(Op::kAdd, 255, 255, 9), 1);  // 510 / 512 rounds to 1
  EXPECT_EQ(Ref<Tpx8u>(Op::kAdd, 255, 255, 10), 0);
  EXPECT_EQ(Ref<Tpx8u>(Op::kAdd, 1, 2, 1), 2);  // 1.5 -> 2
  EXPECT_EQ(Ref<Tpx8u>(Op::kAdd, 2, 3, 1), 2);  // 2.5 -> 2
  EXPECT_EQ(Ref<Tpx8u>(Op::kAdd, 1, 0, -7), 128);
  EXPECT_EQ(Ref<Tpx8u>(Op::kAdd, 1, 0, -8), 255);
  EXPECT_EQ(Ref<Tpx8u>(Op::kAdd, 0, 0, -100), 0);
  EXPECT_EQ(Ref<Tpx16s>(Op::kMul, 32767, 32767, 31), 0);
  EXPECT_EQ(Ref<Tpx16s>(Op::kMul, 32767, 32767, 30), 1);
  EXPECT_EQ(Ref<Tpx16s>(Op::kMul, -32768, -32768, 31), 0);  // exactly one half: even 0
  EXPECT_EQ(Ref<Tpx16u>(Op::kMul, 65535, 65535, 32), 1);
  EXPECT_EQ(Ref<Tpx16u>(Op::kMul, 46341, 46341, 32), 1);  // just above 2^31
  EXPECT_EQ(Ref<Tpx16u>(Op::kMul, 46340, 46340, 32), 0);  // just below
  EXPECT_EQ(Ref<Tpx16s>(Op::kSub, -32768, 32767, 0), -32768);
  EXPECT_EQ(Ref<Tpx16s>(Op::kSub, 32767, -32768, 1), 32767);  // 65535 / 2 rounds to 32768
}

// ---- Every vector kernel against its scalar twin, and the scalar one against the model --------
template <class Opn, bool kAlpha, class T, class Y>
void TwinRow(const std::vector<T>& x, const Y& y, std::ptrdiff_t n, bool inPlace, const typename Opn::Params& p,
             std::vector<T>& outScalar, std::vector<T>& outAvx) {
  // Both outputs start as the same "old destination"; in place, they start as x.
  const std::size_t guard = 8;
  outScalar.assign(n + guard, T(77));
  outAvx.assign(n + guard, T(77));
  if (inPlace) {
    std::copy(x.begin(), x.begin() + n, outScalar.begin());
    std::copy(x.begin(), x.begin() + n, outAvx.begin());
  }
  PointRow<Opn, Isa::kScalar, kAlpha>(inPlace ? outScalar.data() : x.data(), y, outScalar.data(), n, p);
  PointRow<Opn, Isa::kAvx, kAlpha>(inPlace ? outAvx.data() : x.data(), y, outAvx.data(), n, p);
}

template <Op kOp, class T>
void KernelTwins(std::uint64_t seed) {
  Rng rng(seed);
  constexpr int kV = 16 / sizeof(T);
  std::vector<int> lengths;
  for (int n = 0; n <= 3 * kV + 3; ++n) lengths.push_back(n);
  for (int n : {97, 255, 4 * 3 * kV + 4}) lengths.push_back(n);
  for (int sf : kSfs) {
    for (int n : lengths) {
      for (int kind = 0; kind < 5; ++kind) {  // row, constant C1, C3, C4, AC4
        const bool alpha = kind == 4;
        const std::ptrdiff_t len = alpha ? n / 4 * 4 : n;
        const int mis = n % 4;
        std::vector<T> xs(len + mis + 1), ys(len + mis + 1);
        for (auto& v : xs) v = rng.Chance(0.2) ? Extremes<T>()[rng.Int(0, 7)] : rng.Sample<T>();
        for (auto& v : ys) v = rng.Chance(0.2) ? Extremes<T>()[rng.Int(0, 7)] : rng.Sample<T>();
        const std::vector<T> x(xs.begin() + mis, xs.end());
        T pix[4];
        for (T& v : pix) v = rng.Sample<T>();
        const int period = kind == 0 ? 1 : kind == 1 ? 1 : kind == 2 ? 3 : 4;
        for (bool inPlace : {false, true}) {
          std::vector<T> s, a;
          auto yAt = [&](std::ptrdiff_t i) { return kind == 0 ? ys[mis + i] : pix[i % period]; };
          const bool isConst = kind != 0;
          auto run = [&](auto op) {
            using Opn = decltype(op);
            const SfParams p{sf};
            if (kind == 0) {
              TwinRow<Opn, false>(x, RowOperand<T>{ys.data() + mis}, len, inPlace, p, s, a);
            } else if (kind == 1) {
              TwinRow<Opn, false>(x, ConstOperand<T, 1>(pix), len, inPlace, p, s, a);
            } else if (kind == 2) {
              TwinRow<Opn, false>(x, ConstOperand<T, 3>(pix), len, inPlace, p, s, a);
            } else if (kind == 3) {
              TwinRow<Opn, false>(x, ConstOperand<T, 4>(pix), len, inPlace, p, s, a);
            } else {
              TwinRow<Opn, true>(x, ConstOperand<T, 4>(pix), len, inPlace, p, s, a);
            }
          };
          const bool ran = isConst ? WithSfKernel<kOp, T, true>(sf, run) : WithSfKernel<kOp, T, false>(sf, run);
          if (!ran) continue;  // the zero limit: no kernel, a fill
          ASSERT_EQ(0, std::memcmp(s.data(), a.data(), s.size() * sizeof(T)))
              << "sf=" << sf << " n=" << len << " kind=" << kind << " inPlace=" << inPlace;
          for (std::ptrdiff_t i = 0; i < len; ++i) {
            const T want = (alpha && i % 4 == 3) ? (inPlace ? x[i] : T(77)) : Ref<T>(kOp, x[i], yAt(i), sf);
            ASSERT_EQ(+s[i], +want) << "sf=" << sf << " i=" << i << " x=" << +x[i] << " y=" << +yAt(i)
                                    << " kind=" << kind;
          }
          for (std::size_t i = len; i < s.size(); ++i) ASSERT_EQ(+s[i], 77) << "written past the row";
        }
      }
    }
  }
}

TEST(ScaledKernels, AvxEqualsScalarAndModel8u) {
  KernelTwins<Op::kAdd, Tpx8u>(1);
  KernelTwins<Op::kSub, Tpx8u>(2);
  KernelTwins<Op::kMul, Tpx8u>(3);
}
TEST(ScaledKernels, AvxEqualsScalarAndModel16u) {
  KernelTwins<Op::kAdd, Tpx16u>(4);
  KernelTwins<Op::kSub, Tpx16u>(5);
  KernelTwins<Op::kMul, Tpx16u>(6);
}
TEST(ScaledKernels, AvxEqualsScalarAndModel16s) {
  KernelTwins<Op::kAdd, Tpx16s>(7);
  KernelTwins<Op::kSub, Tpx16s>(8);
  KernelTwins<Op::kMul, Tpx16s>(9);
}

// Exhaustive over all pairs of 8-bit samples, and over dense 16-bit grids, for every kernel.
template <Op kOp, class T>
void DensePairs(const std::vector<T>& values) {
  std::vector<T> x, y;
  CrossPairs(values, x, y);
  const std::ptrdiff_t n = static_cast<std::ptrdiff_t>(x.size());
  std::vector<T> d(n);
  for (int sf : kSfs) {
    const bool ran = WithSfKernel<kOp, T, false>(sf, [&](auto op) {
      PointRow<decltype(op), Isa::kAvx, false>(x.data(), RowOperand<T>{y.data()}, d.data(), n, SfParams{sf});
    });
    if (!ran) continue;
    for (std::ptrdiff_t i = 0; i < n; ++i)
      ASSERT_EQ(+d[i], +Ref<T>(kOp, x[i], y[i], sf)) << "sf=" << sf << " " << +x[i] << " " << +y[i];
  }
}

TEST(ScaledKernels, EveryPairOf8uSamples) {
  std::vector<Tpx8u> all(256);
  for (int i = 0; i < 256; ++i) all[i] = static_cast<Tpx8u>(i);
  DensePairs<Op::kAdd>(all);
  DensePairs<Op::kSub>(all);
  DensePairs<Op::kMul>(all);
}

TEST(ScaledKernels, Dense16BitGrids) {
  std::vector<Tpx16u> u;
  std::vector<Tpx16s> s;
  for (int i = 0; i < 65536; i += 257) u.push_back(static_cast<Tpx16u>(i));
  for (int i : {1, 2, 3, 0x7fff, 0x8000, 0x8001, 0xfffe, 0xffff, 46340, 46341}) u.push_back(static_cast<Tpx16u>(i));
  for (Tpx16u v : u) s.push_back(static_cast<Tpx16s>(v));
  DensePairs<Op::kAdd>(u);
  DensePairs<Op::kSub>(u);
  DensePairs<Op::kMul>(u);
  DensePairs<Op::kAdd>(s);
  DensePairs<Op::kSub>(s);
  DensePairs<Op::kMul>(s);
}

TEST(ScaledKernels, FloatTwins) {
  Rng rng(11);
  for (int n = 0; n <= 3 * 8 + 3; ++n) {
    std::vector<float> x(n), y(n);
    for (auto& v : x) v = rng.Chance(0.3) ? Extremes<float>()[rng.Int(0, 12)] : rng.Sample<float>();
    for (auto& v : y) v = rng.Chance(0.3) ? Extremes<float>()[rng.Int(0, 12)] : rng.Sample<float>();
    const float pix[4] = {1.5f, -0.0f, NAN, 3.0f};
    std::vector<float> s, a;
    auto check = [&](const char* what) {
      for (int i = 0; i < n; ++i) ASSERT_TRUE(Same(s[i], a[i])) << what << " n=" << n << " i=" << i;
    };
    TwinRow<FloatOp<Op::kAdd>, false>(x, RowOperand<float>{y.data()}, n, false, NoParams{}, s, a);
    check("add");
    TwinRow<FloatOp<Op::kSub>, false>(x, ConstOperand<float, 3>(pix), n, true, NoParams{}, s, a);
    check("subc3");
    TwinRow<FloatOp<Op::kMul>, true>(x, ConstOperand<float, 4>(pix), n / 4 * 4, false, NoParams{}, s, a);
    check("mulac4");
  }
}

// ---- Every export against the model ------------------------------------------------------------
// One call's arguments; 32-bit members narrow the steps and extents.
template <class T>
struct Args {
  const T* src1;
  long long step1;
  const T* src2;
  long long step2;
  T* dst;
  long long dstStep;
  TpxSizeL roi;
  const T* value;
  int sf;
};

template <class T>
struct Member {
  const char* name;
  Op op;
  Layout layout;
  bool isConst, inPlace, isL;
  TpxStatus (*call)(const Args<T>&);
};

#define T_SFX_8u Sfs
#define T_SFX_16u Sfs
#define T_SFX_16s Sfs
#define T_SFX_32f
#define T_SF_8u , a.sf
#define T_SF_16u , a.sf
#define T_SF_16s , a.sf
#define T_SF_32f
#define T_VAL_C1 *a.value
#define T_VAL_C3 a.value
#define T_VAL_C4 a.value
#define T_VAL_AC4 a.value
#define T_CAT5(a, b, c, d, e) a##b##c##d##e
#define T_NAME(OP, T, L, FORM, SFX, TAIL) T_CAT5(tpxi##OP##_, T, _##L, FORM, SFX##TAIL)
#define T_NAME_(OP, T, L, FORM, SFX, TAIL) T_NAME(OP, T, L, FORM, SFX, TAIL)
#define T_ROI TpxSize{static_cast<int>(a.roi.width), static_cast<int>(a.roi.height)}
#define T_I(s) static_cast<int>(s)

#define M_BIN(OP, T, L)                                                                                 \
  {#OP "_" #T "_" #L "R", Op::k##OP, Layout::L, false, false, false, [](const Args<Tpx##T>& a) {        \
     return T_NAME_(OP, T, L, R, T_SFX_##T, )(a.src1, T_I(a.step1), a.src2, T_I(a.step2), a.dst,      \
                                              T_I(a.dstStep), T_ROI T_SF_##T);                                          \
   }},                                                                                                  \
      {#OP "_" #T "_" #L "IR", Op::k##OP, Layout::L, false, true, false, [](const Args<Tpx##T>& a) {    \
         return T_NAME_(OP, T, L, IR, T_SFX_##T, )(a.src1, T_I(a.step1), a.dst, T_I(a.dstStep), T_ROI T_SF_##T);  \
       }},                                                                                              \
      {#OP "_" #T "_" #L "R_L", Op::k##OP, Layout::L, false, false, true, [](const Args<Tpx##T>& a) {   \
         return T_NAME_(OP, T, L, R, T_SFX_##T, _L)(a.src1, (a.step1), a.src2, (a.step2),       \
                                                    a.dst, (a.dstStep), a.roi T_SF_##T);           \
       }},                                                                                              \
      {#OP "_" #T "_" #L "IR_L", Op::k##OP, Layout::L, false, true, true, [](const Args<Tpx##T>& a) {   \
         return T_NAME_(OP, T, L, IR, T_SFX_##T, _L)(a.src1, (a.step1), a.dst, (a.dstStep),     \
                                                     a.roi T_SF_##T);                                  \
       }},

#define M_CONST(OP, T, L)                                                                               \
  {#OP "C_" #T "_" #L "R", Op::k##OP, Layout::L, true, false, false, [](const Args<Tpx##T>& a) {        \
     return T_NAME_(OP##C, T, L, R, T_SFX_##T, )(a.src1, T_I(a.step1), T_VAL_##L, a.dst,                \
                                                 T_I(a.dstStep), T_ROI T_SF_##T);                                       \
   }},                                                                                                  \
      {#OP "C_" #T "_" #L "IR", Op::k##OP, Layout::L, true, true, false, [](const Args<Tpx##T>& a) {    \
         return T_NAME_(OP##C, T, L, IR, T_SFX_##T, )(T_VAL_##L, a.dst, T_I(a.dstStep), T_ROI T_SF_##T);     \
       }},                                                                                              \
      {#OP "C_" #T "_" #L "R_L", Op::k##OP, Layout::L, true, false, true, [](const Args<Tpx##T>& a) {   \
         return T_NAME_(OP##C, T, L, R, T_SFX_##T, _L)(a.src1, (a.step1), T_VAL_##L, a.dst,         \
                                                       (a.dstStep), a.roi T_SF_##T);               \
       }},                                                                                              \
      {#OP "C_" #T "_" #L "IR_L", Op::k##OP, Layout::L, true, true, true, [](const Args<Tpx##T>& a) {   \
         return T_NAME_(OP##C, T, L, IR, T_SFX_##T, _L)(T_VAL_##L, a.dst, (a.dstStep),              \
                                                        a.roi T_SF_##T);                               \
       }},

#define M_LAYOUTS(X, OP, T) X(OP, T, C1) X(OP, T, C3) X(OP, T, C4) X(OP, T, AC4)
#define M_TYPE(T)                                                                                    \
  M_LAYOUTS(M_BIN, Add, T) M_LAYOUTS(M_BIN, Sub, T) M_LAYOUTS(M_BIN, Mul, T)                          \
  M_LAYOUTS(M_CONST, Add, T) M_LAYOUTS(M_CONST, Sub, T) M_LAYOUTS(M_CONST, Mul, T)

template <class T>
std::vector<Member<T>> Members();
template <>
std::vector<Member<Tpx8u>> Members() { return {M_TYPE(8u)}; }
template <>
std::vector<Member<Tpx16u>> Members() { return {M_TYPE(16u)}; }
template <>
std::vector<Member<Tpx16s>> Members() { return {M_TYPE(16s)}; }
template <>
std::vector<Member<Tpx32f>> Members() { return {M_TYPE(32f)}; }

// The images of one call and the result the model expects.
template <class T>
struct Case {
  GuardedImage<T> a, b, d;
  T value[4];
  std::vector<T> want;

  Case(const Member<T>& m, const Shape& s, Rng& rng, int sf)
      : a(s.width, s.height, Stride(m.layout), s.padSamples, s.misalign),
        b(s.width, s.height, Stride(m.layout), s.padSamples + 3, (s.misalign + 1) % 4),
        d(s.width, s.height, Stride(m.layout), (s.padSamples * 2) % 7, (s.misalign + 2) % 5) {
    FillRandom(a, rng);
    FillRandom(b, rng);
    FillRandom(d, rng);
    const int pick = rng.Int(0, 3);  // the constant's shortcuts: all 0, all 1
    for (T& v : value) v = pick == 0 ? T(0) : pick == 1 ? T(1) : rng.Sample<T>();
    const int ch = Stride(m.layout);
    for (int y = 0; y < s.height; ++y)
      for (int i = 0; i < s.width * ch; ++i) {
        const int c = i % ch;
        const T old = d.Row(y)[i];
        if (m.layout == Layout::AC4 && c == 3) {
          want.push_back(old);
          continue;
        }
        const T x = m.isConst ? (m.inPlace ? old : a.Row(y)[i]) : (m.inPlace ? old : b.Row(y)[i]);
        const T yv = m.isConst ? value[c] : a.Row(y)[i];
        want.push_back(Ref<T>(m.op, x, yv, sf));
      }
  }
  Args<T> MakeArgs(int sf) {
    return {a.Data(), a.Step(), b.Data(), b.Step(), d.Data(), d.Step(), TpxSizeL{d.Width(), d.Height()}, value, sf};
  }
  ::testing::AssertionResult Check() const {
    const std::vector<T> got = d.Samples();
    for (std::size_t i = 0; i < got.size(); ++i)
      if (!Same(got[i], want[i]))
        return ::testing::AssertionFailure() << "sample " << i << " got " << +got[i] << " want " << +want[i];
    if (!a.GuardsIntact() || !b.GuardsIntact() || !d.GuardsIntact())
      return ::testing::AssertionFailure() << "written outside the region";
    return ::testing::AssertionSuccess();
  }
};

template <class T>
void SweepMembers(std::uint64_t seed) {
  Rng rng(seed);
  const std::vector<Shape> shapes = Shapes(std::is_same_v<T, float> ? 8 : 16 / static_cast<int>(sizeof(T)));
  const std::vector<Member<T>> members = Members<T>();
  ASSERT_EQ(members.size(), 96u);
  int mi = 0;
  for (const Member<T>& m : members) {
    ++mi;
    for (std::size_t si = 0; si < shapes.size(); ++si) {
      if (m.isL && si % 3 != 0) continue;  // the narrowing path: a third of the shapes
      for (int k = 0; k < 2; ++k) {
        const int sf = std::is_same_v<T, float> ? 0 : kSfs[(si * 2 + k + mi) % kSfs.size()];
        Case<T> c(m, shapes[si], rng, sf);
        ASSERT_EQ(m.call(c.MakeArgs(sf)), tpxOk) << m.name;
        ASSERT_TRUE(c.Check()) << m.name << " sf=" << sf << " w=" << shapes[si].width << " h=" << shapes[si].height;
      }
    }
  }
}

TEST(ScaledExports, EveryMemberMatchesTheModel8u) { SweepMembers<Tpx8u>(21); }
TEST(ScaledExports, EveryMemberMatchesTheModel16u) { SweepMembers<Tpx16u>(22); }
TEST(ScaledExports, EveryMemberMatchesTheModel16s) { SweepMembers<Tpx16s>(23); }
TEST(ScaledExports, EveryMemberMatchesTheModel32f) { SweepMembers<Tpx32f>(24); }

// Steps are never checked: 0 repeats a row, negative steps walk upward.
template <class T>
void ZeroAndNegativeSteps(std::uint64_t seed) {
  Rng rng(seed);
  for (const Member<T>& m : Members<T>()) {
    const int sf = std::is_same_v<T, float> ? 0 : 1;
    {  // negative steps: the same image given from its last row upward
      Case<T> c(m, Shape{13, 5, 3, 1}, rng, sf);
      Args<T> args = c.MakeArgs(sf);
      const int last = c.d.Height() - 1;
      args.src1 = c.a.Row(last);
      args.src2 = c.b.Row(last);
      args.dst = c.d.Row(last);
      args.step1 = -args.step1;
      args.step2 = -args.step2;
      args.dstStep = -args.dstStep;
      ASSERT_EQ(m.call(args), tpxOk) << m.name;
      ASSERT_TRUE(c.Check()) << m.name;
    }
    if (m.inPlace) continue;  // in place a repeated row would be applied again
    Case<T> c(m, Shape{9, 1, 0, 0}, rng, sf);
    Args<T> args = c.MakeArgs(sf);
    args.step1 = args.step2 = args.dstStep = 0;
    args.roi.height = 5;
    ASSERT_EQ(m.call(args), tpxOk) << m.name;
    ASSERT_TRUE(c.Check()) << m.name;
  }
}

TEST(ScaledExports, StepsAreNotChecked) {
  ZeroAndNegativeSteps<Tpx8u>(31);
  ZeroAndNegativeSteps<Tpx16u>(32);
  ZeroAndNegativeSteps<Tpx16s>(33);
  ZeroAndNegativeSteps<Tpx32f>(34);
}

// ---- Check order -------------------------------------------------------------------------------
enum Slot { kSrc1, kSrc2, kDst, kValue };
template <class T>
bool Uses(const Member<T>& m, Slot s) {
  if (s == kDst) return true;
  if (m.isConst) return s == kSrc1 ? !m.inPlace : s == kValue ? m.layout != Layout::C1 : false;
  return s == kSrc1 || (s == kSrc2 && !m.inPlace);
}

template <class T>
void CheckOrder() {
  T buf[64] = {};
  for (const Member<T>& m : Members<T>()) {
    // The C3 and C4 two-image members of 32f widen the row of the C1 path and test the width first.
    const bool widthFirst = std::is_same_v<T, float> && !m.isConst &&
                            (m.layout == Layout::C3 || m.layout == Layout::C4);
    for (Slot slot : {kSrc1, kSrc2, kDst, kValue}) {
      if (!Uses(m, slot)) continue;
      Args<T> a{buf, 16, buf, 16, buf, 16, TpxSizeL{0, 3}, buf, 0};
      if (slot == kSrc1) a.src1 = nullptr;
      if (slot == kSrc2) a.src2 = nullptr;
      if (slot == kDst) a.dst = nullptr;
      if (slot == kValue) a.value = nullptr;
      EXPECT_EQ(m.call(a), widthFirst ? tpxErrSize : tpxErrNullPtr) << m.name << " null slot " << slot;
      a.roi = TpxSizeL{3, 0};
      EXPECT_EQ(m.call(a), tpxErrNullPtr) << m.name << " null slot " << slot;
      a.roi = TpxSizeL{-1, -1};
      EXPECT_EQ(m.call(a), widthFirst ? tpxErrSize : tpxErrNullPtr) << m.name;
    }
    Args<T> ok{buf, 16, buf, 16, buf, 16, TpxSizeL{0, 3}, buf, 0};
    EXPECT_EQ(m.call(ok), tpxErrSize) << m.name;  // the _L twins too: small steps narrow
    ok.roi = TpxSizeL{2, -4};
    EXPECT_EQ(m.call(ok), tpxErrSize) << m.name;
    ok.roi = TpxSizeL{1, 1};
    ok.step1 = ok.step2 = ok.dstStep = -7;  // no step check
    for (int sf : {INT_MIN, INT_MAX}) {    // nor a scale-factor check
      ok.sf = sf;
      EXPECT_EQ(m.call(ok), tpxOk) << m.name;
    }
    if (m.isL) {  // steps that do not fit: an empty region is no work
      ok.step1 = ok.step2 = ok.dstStep = 0x7fffffffLL;
      ok.roi = TpxSizeL{0, 3};
      EXPECT_EQ(m.call(ok), tpxOk) << m.name;
      ok.dstStep = -0x7fffffffLL;
      ok.roi = TpxSizeL{5, -2};
      EXPECT_EQ(m.call(ok), tpxOk) << m.name;
    }
  }
}

TEST(ScaledExports, NullBeforeSizeAndNoStepOrScaleCheck) {
  CheckOrder<Tpx8u>();
  CheckOrder<Tpx16u>();
  CheckOrder<Tpx16s>();
  CheckOrder<Tpx32f>();
}

// ---- _L twins beyond the 32-bit steps ------------------------------------------------------------
template <class T>
void LTwinWalk(std::uint64_t seed) {
  Rng rng(seed);
  const long long step = 0x80000000LL + 192;  // beyond 0x7ffffffe: the row walk
  FarRows far(step, 3);
  ASSERT_TRUE(far.Ok());
  for (const Member<T>& m : Members<T>()) {
    if (!m.isL) continue;
    const int ch = Stride(m.layout);
    const int w = 37, h = 3, n = w * ch, span = n + 8;  // 8 guard samples after each row
    const int sf = std::is_same_v<T, float> ? 0 : kSfs[rng.Int(0, static_cast<int>(kSfs.size()) - 1)];
    T value[4];
    for (T& v : value) v = rng.Sample<T>();
    std::vector<T> init(3 * h * span), want;
    for (T& v : init) v = rng.Sample<T>();
    for (int y = 0; y < h; ++y) {
      const T* a = &init[(0 * h + y) * span];
      const T* b = &init[(1 * h + y) * span];
      const T* d = &init[(2 * h + y) * span];
      for (int i = 0; i < span; ++i) {
        const int c = i % ch;
        if (i >= n || (m.layout == Layout::AC4 && c == 3)) {
          want.push_back(d[i]);
          continue;
        }
        const T x = m.isConst ? (m.inPlace ? d[i] : a[i]) : (m.inPlace ? d[i] : b[i]);
        want.push_back(Ref<T>(m.op, x, m.isConst ? value[c] : a[i], sf));
      }
    }
    auto callL = [&](const T* s1, const T* s2, T* d, long long st, TpxSizeL roi) {
      return m.call(Args<T>{s1, st, s2, st, d, st, roi, value, sf});
    };
    for (bool upward : {false, true}) {
      for (int k = 0; k < 3; ++k)
        for (int y = 0; y < h; ++y) std::memcpy(far.Row<T>(k, y), &init[(k * h + y) * span], span * sizeof(T));
      const int y0 = upward ? h - 1 : 0;
      ASSERT_EQ(callL(far.Row<T>(0, y0), far.Row<T>(1, y0), far.Row<T>(2, y0), upward ? -step : step,
                      TpxSizeL{w, h}), tpxOk) << m.name;
      std::size_t k = 0;
      for (int y = 0; y < h; ++y)
        for (int i = 0; i < span; ++i, ++k)
          ASSERT_TRUE(Same(far.Row<T>(2, y)[i], want[k])) << m.name << " y=" << y << " i=" << i;
    }
    // An empty region with such a step is no work; a null pointer fails in the first piece.
    EXPECT_EQ(callL(far.Row<T>(0, 0), far.Row<T>(1, 0), far.Row<T>(2, 0), step, TpxSizeL{0, h}), tpxOk) << m.name;
    EXPECT_EQ(callL(nullptr, nullptr, nullptr, step, TpxSizeL{w, h}), tpxErrNullPtr) << m.name;
  }
}

TEST(ScaledExports, LTwinsWalkRowsBeyondA32BitStep) {
  LTwinWalk<Tpx8u>(41);
  LTwinWalk<Tpx16u>(42);
  LTwinWalk<Tpx16s>(43);
  LTwinWalk<Tpx32f>(44);
}

// ---- OpenCV as an independent oracle where its rounding is the same --------------------------------
#ifdef TPX_HAVE_OPENCV
template <class T>
void OpenCvSaturating(int cvType, std::uint64_t seed) {
  using Fn = TpxStatus (*)(const T*, int, const T*, int, T*, int, TpxSize, int);
  Fn add, sub, mul;
  if constexpr (std::is_same_v<T, Tpx8u>) add = tpxiAdd_8u_C1RSfs, sub = tpxiSub_8u_C1RSfs, mul = tpxiMul_8u_C1RSfs;
  if constexpr (std::is_same_v<T, Tpx16u>) add = tpxiAdd_16u_C1RSfs, sub = tpxiSub_16u_C1RSfs, mul = tpxiMul_16u_C1RSfs;
  if constexpr (std::is_same_v<T, Tpx16s>) add = tpxiAdd_16s_C1RSfs, sub = tpxiSub_16s_C1RSfs, mul = tpxiMul_16s_C1RSfs;
  cv::RNG rng(seed);
  cv::Mat a(37, 71, cvType), b(37, 71, cvType), d(37, 71, cvType), want;
  rng.fill(a, cv::RNG::UNIFORM, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max() + 1.0);
  rng.fill(b, cv::RNG::UNIFORM, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max() + 1.0);
  const int st = static_cast<int>(a.step[0]);
  const TpxSize roi{a.cols, a.rows};
  auto same = [&](const char* what) { EXPECT_EQ(cv::norm(d, want, cv::NORM_INF), 0) << what; };
  ASSERT_EQ(add(a.ptr<T>(), st, b.ptr<T>(), st, d.ptr<T>(), st, roi, 0), tpxOk);
  cv::add(a, b, want);
  same("add");
  ASSERT_EQ(sub(a.ptr<T>(), st, b.ptr<T>(), st, d.ptr<T>(), st, roi, 0), tpxOk);
  cv::subtract(b, a, want);  // the first image is the subtrahend
  same("sub");
  ASSERT_EQ(mul(a.ptr<T>(), st, b.ptr<T>(), st, d.ptr<T>(), st, roi, 0), tpxOk);
  cv::multiply(a, b, want);
  same("mul");
  if constexpr (std::is_same_v<T, Tpx8u>) {
    // 8u products scaled by a power of two are exact in float, and OpenCV rounds them half even.
    for (int sf = 1; sf <= 9; ++sf) {
      ASSERT_EQ(mul(a.ptr<T>(), st, b.ptr<T>(), st, d.ptr<T>(), st, roi, sf), tpxOk);
      cv::multiply(a, b, want, 1.0 / (1 << sf));
      same("mul scaled");
    }
    ASSERT_EQ(add(a.ptr<T>(), st, b.ptr<T>(), st, d.ptr<T>(), st, roi, 1), tpxOk);
    cv::addWeighted(a, 0.5, b, 0.5, 0.0, want);
    same("add sf 1");
  }
}

TEST(ScaledOracle, OpenCvAgrees) {
  OpenCvSaturating<Tpx8u>(CV_8UC1, 81);
  OpenCvSaturating<Tpx16u>(CV_16UC1, 82);
  OpenCvSaturating<Tpx16s>(CV_16SC1, 83);
}
#endif

}  // namespace
