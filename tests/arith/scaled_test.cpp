// Scaled arithmetic (Add, Sub, Mul, AddC, SubC, MulC) and the fraction product (MulScale,
// MulCScale): every member against a model written in plain integer maths, every vector kernel
// against its scalar twin, guards and alpha, the check order, and the _L twins on both paths.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <climits>

#include "arith/mul_scale_rows.h"
#include "arith/point_rows.h"
#include "arith/scaled_rows.h"
#include "arith_util.h"
#include "tpxip.h"
#ifdef TPX_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using namespace tpx;
using namespace tpx::arith;
using namespace decide;

// v * 2^-sf rounded to nearest, ties to even, by floor division and a remainder test.
long long ScaleExact(long long v, int sf) {
  if (v == 0) return 0;
  if (sf <= 0) return sf < -30 ? (v > 0 ? 1LL << 40 : -(1LL << 40)) : v * (1LL << -sf);  // |v| < 2^33
  if (sf >= 40) return 0;
  const long long d = 1LL << sf;
  long long q = v / d, r = v % d;
  if (r < 0) q -= 1, r += d;
  return q + (2 * r > d || (2 * r == d && (q & 1)));
}

// x is the minuend of Sub: pSrc2, pSrcDst in place, the source of SubC.
template <class T>
T Ref(Op op, T x, T y, int sf) {
  if constexpr (std::is_same_v<T, float>) {
    return op == Op::kAdd ? x + y : op == Op::kSub ? x - y : x * y;
  } else {
    long long v = op == Op::kAdd ? (long long)x + y : op == Op::kSub ? (long long)x - y : (long long)x * y;
    if (op == Op::kSub && std::is_unsigned_v<T> && v < 0) v = 0;
    const long long r = ScaleExact(v, sf), lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
    return static_cast<T>(r < lo ? lo : r > hi ? hi : r);
  }
}

const std::vector<int> kSfs = {INT_MIN, -1000, -40, -17, -16, -15, -14, -13, -8, -7, -6, -3, -1, 0, 1, 2, 3, 5,
                               8, 9, 10, 11, 15, 16, 17, 18, 19, 30, 31, 32, 33, 34, 63, 64, 1000, INT_MAX};

// One row through the scalar and the AVX kernel of sf: equal to each other and to the model,
// alpha kept, nothing written past the row.
template <Op kOp, bool kAlpha, class T, class Y>
void TwinRow(int sf, const T* x, const Y& y, std::ptrdiff_t n, bool inPlace) {
  constexpr bool kConst = !std::is_same_v<Y, RowOperand<T>>;
  std::vector<T> s(n + 8, T(77)), a(n + 8, T(77));
  if (inPlace) std::copy(x, x + n, s.begin()), std::copy(x, x + n, a.begin());
  auto both = [&](auto op, const auto& prm) {
    PointRow<decltype(op), Isa::kScalar, kAlpha>(inPlace ? s.data() : x, y, s.data(), n, prm);
    PointRow<decltype(op), Isa::kAvx, kAlpha>(inPlace ? a.data() : x, y, a.data(), n, prm);
  };
  if constexpr (std::is_same_v<T, float>) both(FloatOp<kOp>{}, NoParams{});
  else if (!WithSfKernel<kOp, T, kConst>(sf, [&](auto op) { both(op, SfParams{sf}); })) return;  // a fill
  for (std::size_t i = 0; i < s.size(); ++i) {
    const T want = i >= std::size_t(n) || (kAlpha && i % 4 == 3) ? (inPlace && i < std::size_t(n) ? x[i] : T(77))
                                                                 : Ref<T>(kOp, x[i], y.At(i, i % OperandPeriod<Y>::kValue), sf);
    ASSERT_TRUE(Same(s[i], a[i]) && Same(s[i], want))
        << "sf=" << sf << " n=" << n << " i=" << i << " const=" << kConst << " got " << +a[i] << " want " << +want;
  }
}

// Every sf: all dense pairs in one row, then every length to 3V+3 and a few long ones, misaligned,
// against a row and constants of 1, 3 and 4 samples, out of place and in place.
template <Op kOp, class T>
void KernelTwins(Rng& rng) {
  constexpr int kV = std::is_same_v<T, float> ? 8 : 16 / sizeof(T);
  std::vector<int> lengths;
  for (int n = 0; n <= 3 * kV + 3; ++n) lengths.push_back(n);
  lengths.insert(lengths.end(), {97, 255, 12 * kV + 4});
  std::vector<T> dx, dy;
  if constexpr (!std::is_same_v<T, float>) DensePairs(dx, dy);
  for (int sf : std::is_same_v<T, float> ? std::vector<int>{0} : kSfs) {
    TwinRow<kOp, false>(sf, dx.data(), RowOperand<T>{dy.data()}, dx.size(), false);
    for (int n : lengths) {
      std::vector<T> xs(n + 4), ys(n + 4);
      for (std::size_t i = 0; i < xs.size(); ++i) xs[i] = Mixed<T>(rng), ys[i] = Mixed<T>(rng);
      T pix[4];
      for (T& v : pix) v = Mixed<T>(rng);
      const T* x = xs.data() + n % 4;
      for (bool ip : {false, true}) {
        TwinRow<kOp, false>(sf, x, RowOperand<T>{ys.data() + n % 4}, n, ip);
        TwinRow<kOp, false>(sf, x, ConstOperand<T, 1>(pix), n, ip);
        TwinRow<kOp, false>(sf, x, ConstOperand<T, 3>(pix), n, ip);
        TwinRow<kOp, false>(sf, x, ConstOperand<T, 4>(pix), n, ip);
        TwinRow<kOp, true>(sf, x, ConstOperand<T, 4>(pix), n / 4 * 4, ip);
      }
    }
  }
}

TEST(ScaledKernels, AvxEqualsScalarAndModel) {
  Rng rng(1);
  ForEachType([&](auto t) {
    KernelTwins<Op::kAdd, decltype(t)>(rng), KernelTwins<Op::kSub, decltype(t)>(rng), KernelTwins<Op::kMul, decltype(t)>(rng);
  });
}

// ---- Every export against the model ------------------------------------------------------------
template <class T>
using M = Member<T, Op>;
#define T_SF_8u , a.sf
#define T_SF_16u , a.sf
#define T_SF_16s , a.sf
#define T_SF_32f
#define T_SFX_32f
#define T_SFX_8u Sfs
#define T_SFX_16u Sfs
#define T_SFX_16s Sfs
#define T_NAME(OP, T, L, FORM, SFX, TAIL) tpxi##OP##_##T##_##L##FORM##SFX##TAIL
#define T_FN(OP, T, L, FORM, SFX, TAIL) T_NAME(OP, T, L, FORM, SFX, TAIL)
#define T_ENTRY(NAME, OP, L, C, IP, ISL, T, ...) \
  {NAME, Op::k##OP, Layout::L, C, IP, ISL, [](const Args<Tpx##T>& a) { return __VA_ARGS__; }},
// The R and IR forms of one step width: I narrows the steps, ROI is the region argument.
#define M_BIN1(OP, T, L, ISL, TAIL, I, ROI)                                                                     \
  T_ENTRY(#OP #T #L "R" #TAIL, OP, L, 0, 0, ISL, T, T_FN(OP, T, L, R, T_SFX_##T, TAIL)(a.src1, I(a.step1), a.src2, \
          I(a.step2), a.dst, I(a.dstStep), ROI T_SF_##T))                                                      \
  T_ENTRY(#OP #T #L "IR" #TAIL, OP, L, 0, 1, ISL, T, T_FN(OP, T, L, IR, T_SFX_##T, TAIL)(a.src1, I(a.step1), a.dst, I(a.dstStep), ROI T_SF_##T))
#define M_CONST1(OP, T, L, ISL, TAIL, I, ROI)                                                                        \
  T_ENTRY(#OP "C" #T #L "R" #TAIL, OP, L, 1, 0, ISL, T, T_FN(OP##C, T, L, R, T_SFX_##T, TAIL)(a.src1, I(a.step1),      \
          ChArg<Layout::L>(a.value), a.dst, I(a.dstStep), ROI T_SF_##T))                                                           \
  T_ENTRY(#OP "C" #T #L "IR" #TAIL, OP, L, 1, 1, ISL, T, T_FN(OP##C, T, L, IR, T_SFX_##T, TAIL)(ChArg<Layout::L>(a.value), a.dst, I(a.dstStep), ROI T_SF_##T))
#define M_BIN(OP, T, L) M_BIN1(OP, T, L, 0, , int, a.Roi()) M_BIN1(OP, T, L, 1, _L, , a.roi)
#define M_CONST(OP, T, L) M_CONST1(OP, T, L, 0, , int, a.Roi()) M_CONST1(OP, T, L, 1, _L, , a.roi)
#define M_LAYOUTS(X, OP, T) X(OP, T, C1) X(OP, T, C3) X(OP, T, C4) X(OP, T, AC4)
#define M_TYPE(T)                                                                                          \
  M_LAYOUTS(M_BIN, Add, T) M_LAYOUTS(M_BIN, Sub, T) M_LAYOUTS(M_BIN, Mul, T) M_LAYOUTS(M_CONST, Add, T)     \
  M_LAYOUTS(M_CONST, Sub, T) M_LAYOUTS(M_CONST, Mul, T)

template <class T>
std::vector<M<T>> Members() {
  if constexpr (std::is_same_v<T, Tpx8u>) return {M_TYPE(8u)};
  else if constexpr (std::is_same_v<T, Tpx16u>) return {M_TYPE(16u)};
  else if constexpr (std::is_same_v<T, Tpx16s>) return {M_TYPE(16s)};
  else return {M_TYPE(32f)};
}

// Every member on the sweep with a cycle of sf (the _L twins on a third of it, their narrowing
// path); then steps, which are never checked: -1 walks upward from the last row, 0 repeats one.
TEST(ScaledExports, EveryMemberMatchesTheModel) {
  Rng rng(21);
  ForEachType([&](auto t) {
    using T = decltype(t);
    const std::vector<Shape> shapes = tpxtest::Shapes(std::is_same_v<T, float> ? 8 : 16 / sizeof(T));
    const std::vector<M<T>> members = Members<T>();
    ASSERT_EQ(members.size(), 96u);
    for (std::size_t mi = 0; mi < members.size(); ++mi) {
      const M<T>& m = members[mi];
      auto run = [&](const Shape& s, int sf, int steps) {
        PointCase<T> c(m, s, rng, [&](T x, T y) { return Ref<T>(m.op, x, y, sf); });
        Args<T> a = c.MakeArgs(sf);
        if (steps < 0) a.src1 = c.a.Row(s.height - 1), a.src2 = c.b.Row(s.height - 1), a.dst = c.d.Row(s.height - 1);
        a.step1 *= steps, a.step2 *= steps, a.dstStep *= steps, a.roi.height += steps ? 0 : 4;
        return m.call(a) == tpxOk ? c.Check() : ::testing::AssertionFailure() << "status";
      };
      for (std::size_t si = 0; si < shapes.size(); ++si)
        for (int k = 0; k < 2 && (!m.isL || si % 3 == 0); ++k) {
          const int sf = std::is_same_v<T, float> ? 0 : kSfs[(si * 2 + k + mi) % kSfs.size()];
          ASSERT_TRUE(run(shapes[si], sf, 1)) << m.name << " sf=" << sf << " " << shapes[si].width << "x" << shapes[si].height;
        }
      const int sf = std::is_same_v<T, float> ? 0 : 1;
      ASSERT_TRUE(run(Shape{13, 5, 3, 1}, sf, -1)) << m.name << " negative steps";
      if (!m.inPlace) ASSERT_TRUE(run(Shape{9, 1, 0, 0}, sf, 0)) << m.name << " zero steps";  // in place a repeated row would apply twice
    }
  });
}

// Pointers before size; no step and no scale-factor check. The C3 and C4 two-image members of
// 32f widen the row of the C1 path and test the width first.
TEST(ScaledExports, NullBeforeSizeAndNoStepOrScaleCheck) {
  ForEachType([&](auto t) {
    using T = decltype(t);
    T buf[64] = {};
    for (const M<T>& m : Members<T>()) {
      const bool widthFirst = std::is_same_v<T, float> && !m.isConst && (m.layout == Layout::C3 || m.layout == Layout::C4);
      const bool uses[4] = {!(m.isConst && m.inPlace), !m.isConst && !m.inPlace, true, m.isConst && m.layout != Layout::C1};
      for (int slot = 0; slot < 4; ++slot)
        for (TpxSizeL roi : {TpxSizeL{0, 3}, {3, 0}, {-1, -1}}) {  // a null pointer ahead of any size
          T* p[4] = {buf, buf, buf, buf};
          p[slot] = nullptr;
          if (uses[slot])
            EXPECT_EQ(m.call({p[0], 16, p[1], 16, p[2], 16, roi, p[3], 0}), widthFirst && roi.width <= 0 ? tpxErrSize : tpxErrNullPtr)
                << m.name << " slot " << slot;
        }
      // No step or sf check; an _L twin with steps beyond 32 bits does no work on an empty region.
      const TpxStatus wide = m.isL ? tpxOk : tpxErrSize;
      const struct { int w, h; long long step; int sf; TpxStatus want; } cases[] = {
          {0, 3, 16, 0, tpxErrSize}, {2, -4, 16, 0, tpxErrSize}, {1, 1, -7, INT_MIN, tpxOk}, {1, 1, -7, INT_MAX, tpxOk},
          {0, 3, 0x7fffffffLL, 0, wide}, {5, -2, -0x7fffffffLL, 0, wide}};
      for (const auto& k : cases)
        EXPECT_EQ(m.call({buf, k.step, buf, k.step, buf, k.step, TpxSizeL{k.w, k.h}, buf, k.sf}), k.want)
            << m.name << " " << k.w << "x" << k.h << " step " << k.step;
    }
  });
}

// The _L twins with a step beyond 0x7ffffffe walk the rows themselves: three images in one
// reserved range, rows a step apart, only the touched pages backed.
TEST(ScaledExports, LTwinsWalkRowsBeyondA32BitStep) {
  const long long step = 0x80000000LL + 192, gap = 1 << 16;
  const std::size_t bytes = step * 3 + 4 * gap;
  void* p = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  ASSERT_NE(p, MAP_FAILED);
  auto row = [&](int k, int y) { return static_cast<unsigned char*>(p) + y * step + k * gap; };
  Rng rng(41);
  ForEachType([&](auto t) {
    using T = decltype(t);
    for (const M<T>& m : Members<T>()) {
      if (!m.isL) continue;
      const int sf = std::is_same_v<T, float> ? 0 : kSfs[rng.Int(0, int(kSfs.size()) - 1)];
      for (bool up : {false, true}) {  // up: from the last row, negative steps
        PointCase<T> c(m, Shape{37, 3, 8, 0}, rng, [&](T x, T y) { return Ref<T>(m.op, x, y, sf); });
        const GuardedImage<T>* img[3] = {&c.a, &c.b, &c.d};
        for (int k = 0; k < 3; ++k)
          for (int y = 0; y < 3; ++y) std::memcpy(row(k, y), img[k]->Row(y), img[k]->Step());
        const long long st = up ? -step : step;
        const Args<T> a{(T*)row(0, 2 * up), st, (T*)row(1, 2 * up), st, (T*)row(2, 2 * up), st, TpxSizeL{37, 3}, c.value, sf};
        ASSERT_EQ(m.call(a), tpxOk) << m.name;
        for (int y = 0; y < 3; ++y) std::memcpy(c.d.Row(y), row(2, y), c.d.Step());  // the padding comes back too
        ASSERT_TRUE(c.Check()) << m.name << " up " << up;
        if (up)  // the walk checks its pieces
          EXPECT_EQ(m.call({nullptr, st, nullptr, st, nullptr, st, TpxSizeL{37, 3}, c.value, sf}), tpxErrNullPtr) << m.name;
      }
    }
  });
  munmap(p, bytes);
}

// ---- MulScale and MulCScale: the product of two samples as fractions of the type's maximum ----
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
void MulScalePairs() {
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
  MulScalePairs<Tpx8u>(), MulScalePairs<Tpx16u>();
}

#define MS_MEMBER(T, L)                                                                                              \
  T_ENTRY("MulScale_" #T "_" #L "R", Mul, L, 0, 0, 0, T,                                                             \
          tpxiMulScale_##T##_##L##R(a.src1, int(a.step1), a.src2, int(a.step2), a.dst, int(a.dstStep), a.Roi()))     \
  T_ENTRY("MulScale_" #T "_" #L "IR", Mul, L, 0, 1, 0, T,                                                            \
          tpxiMulScale_##T##_##L##IR(a.src1, int(a.step1), a.dst, int(a.dstStep), a.Roi()))                          \
  T_ENTRY("MulCScale_" #T "_" #L "R", Mul, L, 1, 0, 0, T,                                                            \
          tpxiMulCScale_##T##_##L##R(a.src1, int(a.step1), ChArg<Layout::L>(a.value), a.dst, int(a.dstStep), a.Roi())) \
  T_ENTRY("MulCScale_" #T "_" #L "IR", Mul, L, 1, 1, 0, T,                                                           \
          tpxiMulCScale_##T##_##L##IR(ChArg<Layout::L>(a.value), a.dst, int(a.dstStep), a.Roi()))
#define MS_TYPE(T) MS_MEMBER(T, C1) MS_MEMBER(T, C3) MS_MEMBER(T, C4) MS_MEMBER(T, AC4)

// Every member on the sweep (the product is symmetric, so the common operand order serves the
// in-place two-image form too); then pointers, step, size, where the C3 and C4 two-image
// members test both extents first.
template <class T>
void MulScaleSweepAndOrder(Rng& rng, std::vector<M<T>> members) {
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
  MulScaleSweepAndOrder<Tpx8u>(rng, {MS_TYPE(8u)}), MulScaleSweepAndOrder<Tpx16u>(rng, {MS_TYPE(16u)});
}

#ifdef TPX_HAVE_OPENCV
// OpenCV as an independent oracle where its rounding is the same (sf 0; 8u products scaled by a
// power of two are exact in float and OpenCV rounds them half even).
TEST(ScaledOracle, OpenCvAgrees) {
  ForEachType([&](auto t) {
    using T = decltype(t);
    if constexpr (!std::is_same_v<T, float>) {
      const std::vector<M<T>> ms = Members<T>();  // C1 R members: Add, Sub, Mul at 0, 16, 32
      cv::RNG rng(81);
      cv::Mat a(37, 71, cv::DataType<T>::type), b(37, 71, a.type()), d(37, 71, a.type()), want;
      rng.fill(a, cv::RNG::UNIFORM, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max() + 1.0);
      rng.fill(b, cv::RNG::UNIFORM, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max() + 1.0);
      auto run = [&](const M<T>& m, int sf) {
        const long long st = a.step[0];
        ASSERT_EQ(m.call(Args<T>{a.ptr<T>(), st, b.ptr<T>(), st, d.ptr<T>(), st, TpxSizeL{71, 37}, nullptr, sf}), tpxOk);
        EXPECT_EQ(cv::norm(d, want, cv::NORM_INF), 0) << m.name << " sf " << sf;
      };
      cv::add(a, b, want), run(ms[0], 0);
      cv::subtract(b, a, want), run(ms[16], 0);  // the first image is the subtrahend
      cv::multiply(a, b, want), run(ms[32], 0);
      if (!std::is_same_v<T, Tpx8u>) return;
      for (int sf = 1; sf <= 9; ++sf) cv::multiply(a, b, want, 1.0 / (1 << sf)), run(ms[32], sf);
      cv::addWeighted(a, 0.5, b, 0.5, 0.0, want), run(ms[0], 1);
    }
  });
}
#endif

}  // namespace
