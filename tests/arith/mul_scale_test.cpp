// MulScale and MulCScale: the fraction product against its rule, kernel twins, every member with
// guards and alpha, and the pointers-step-size check order with the wrappers' extent test.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "arith/mul_scale_rows.h"
#include "arith/point_rows.h"
#include "pairs.h"
#include "support/image.h"
#include "support/random.h"
#include "support/sweep.h"
#include "tpxip.h"

namespace {

using namespace tpx;
using namespace tpx::arith;
using namespace tpxtest;

// The rule in 64-bit integer maths.
template <class T>
T RefMulScale(T a, T b) {
  const unsigned long long t = static_cast<unsigned long long>(a) * b;
  const int k = sizeof(T) == 1 ? 8 : 16;
  return static_cast<T>((t + 1 + (t >> k)) >> k);
}

TEST(MulScaleRule, WorkedValues) {
  EXPECT_EQ(RefMulScale<Tpx8u>(128, 128), 64);
  EXPECT_EQ(RefMulScale<Tpx8u>(255, 255), 255);
  EXPECT_EQ(RefMulScale<Tpx8u>(255, 1), 1);
  EXPECT_EQ(RefMulScale<Tpx16u>(65535, 65535), 65535);
  EXPECT_EQ(RefMulScale<Tpx16u>(65535, 1), 1);
  for (int v : {0, 1, 77, 255}) EXPECT_EQ(RefMulScale<Tpx8u>(0, static_cast<Tpx8u>(v)), 0);
  // Multiplying by the maximum is the identity.
  for (int v = 0; v < 256; ++v) EXPECT_EQ(RefMulScale<Tpx8u>(static_cast<Tpx8u>(v), 255), v);
  for (int v = 0; v < 65536; v += 251) EXPECT_EQ(RefMulScale<Tpx16u>(static_cast<Tpx16u>(v), 65535), v);
}

template <class T>
void Pairs(const std::vector<T>& values) {
  std::vector<T> x, y;
  CrossPairs(values, x, y);
  // Every length's tail, then the whole set.
  for (std::ptrdiff_t n : {std::ptrdiff_t(0), std::ptrdiff_t(1), std::ptrdiff_t(7), std::ptrdiff_t(23),
                           std::ptrdiff_t(49), static_cast<std::ptrdiff_t>(x.size())}) {
    std::vector<T> s(n + 4, T(9)), a(n + 4, T(9));
    PointRow<MulScaleOp<T>, Isa::kScalar, false>(x.data(), RowOperand<T>{y.data()}, s.data(), n, NoParams{});
    PointRow<MulScaleOp<T>, Isa::kAvx, false>(x.data(), RowOperand<T>{y.data()}, a.data(), n, NoParams{});
    ASSERT_EQ(0, std::memcmp(s.data(), a.data(), s.size() * sizeof(T))) << n;
    for (std::ptrdiff_t i = 0; i < n; ++i) ASSERT_EQ(+a[i], +RefMulScale(x[i], y[i])) << +x[i] << " " << +y[i];
    for (std::size_t i = n; i < s.size(); ++i) ASSERT_EQ(+a[i], 9);
  }
}

TEST(MulScaleKernels, AvxEqualsScalarAndRule) {
  std::vector<Tpx8u> all(256);
  for (int i = 0; i < 256; ++i) all[i] = static_cast<Tpx8u>(i);
  Pairs(all);
  std::vector<Tpx16u> grid;
  for (int i = 0; i < 65536; i += 263) grid.push_back(static_cast<Tpx16u>(i));
  for (int i : {1, 2, 255, 256, 0x7fff, 0x8000, 0xfffe, 0xffff}) grid.push_back(static_cast<Tpx16u>(i));
  Pairs(grid);
}

// ---- Members -----------------------------------------------------------------------------------
template <class T>
struct Args {
  const T* src1;
  int step1;
  const T* src2;
  int step2;
  T* dst;
  int dstStep;
  TpxSize roi;
  const T* value;
};
template <class T>
struct Member {
  const char* name;
  Layout layout;
  bool isConst, inPlace;
  TpxStatus (*call)(const Args<T>&);
};

#define MS_VAL_C1 *a.value
#define MS_VAL_C3 a.value
#define MS_VAL_C4 a.value
#define MS_VAL_AC4 a.value
#define MS_MEMBER(T, L)                                                                               \
  {"MulScale_" #T "_" #L "R", Layout::L, false, false, [](const Args<Tpx##T>& a) {                    \
     return tpxiMulScale_##T##_##L##R(a.src1, a.step1, a.src2, a.step2, a.dst, a.dstStep, a.roi);     \
   }},                                                                                                \
      {"MulScale_" #T "_" #L "IR", Layout::L, false, true, [](const Args<Tpx##T>& a) {                \
         return tpxiMulScale_##T##_##L##IR(a.src1, a.step1, a.dst, a.dstStep, a.roi);                 \
       }},                                                                                            \
      {"MulCScale_" #T "_" #L "R", Layout::L, true, false, [](const Args<Tpx##T>& a) {                \
         return tpxiMulCScale_##T##_##L##R(a.src1, a.step1, MS_VAL_##L, a.dst, a.dstStep, a.roi);     \
       }},                                                                                            \
      {"MulCScale_" #T "_" #L "IR", Layout::L, true, true, [](const Args<Tpx##T>& a) {                \
         return tpxiMulCScale_##T##_##L##IR(MS_VAL_##L, a.dst, a.dstStep, a.roi);                     \
       }},
#define MS_TYPE(T) MS_MEMBER(T, C1) MS_MEMBER(T, C3) MS_MEMBER(T, C4) MS_MEMBER(T, AC4)

template <class T>
std::vector<Member<T>> Members();
template <>
std::vector<Member<Tpx8u>> Members() { return {MS_TYPE(8u)}; }
template <>
std::vector<Member<Tpx16u>> Members() { return {MS_TYPE(16u)}; }

template <class T>
void Sweep(std::uint64_t seed) {
  Rng rng(seed);
  for (const Member<T>& m : Members<T>()) {
    for (const Shape& s : Shapes(16 / static_cast<int>(sizeof(T)))) {
      const int ch = Stride(m.layout);
      GuardedImage<T> a(s.width, s.height, ch, s.padSamples, s.misalign);
      GuardedImage<T> b(s.width, s.height, ch, s.padSamples + 1, (s.misalign + 3) % 4);
      GuardedImage<T> d(s.width, s.height, ch, (s.padSamples + 5) % 9, (s.misalign + 1) % 5);
      FillRandom(a, rng);
      FillRandom(b, rng);
      FillRandom(d, rng);
      T value[4];
      for (T& v : value) v = rng.Chance(0.2) ? Extremes<T>()[rng.Int(0, 7)] : rng.Sample<T>();
      std::vector<T> want;
      for (int y = 0; y < s.height; ++y)
        for (int i = 0; i < s.width * ch; ++i) {
          const T old = d.Row(y)[i];
          if (m.layout == Layout::AC4 && i % 4 == 3) {
            want.push_back(old);
            continue;
          }
          const T first = m.inPlace ? old : a.Row(y)[i];
          want.push_back(RefMulScale<T>(first, m.isConst ? value[i % ch] : b.Row(y)[i]));
        }
      // The two-image in-place form multiplies pSrcDst by pSrc: a plays pSrc.
      if (!m.isConst && m.inPlace) {
        want.clear();
        for (int y = 0; y < s.height; ++y)
          for (int i = 0; i < s.width * ch; ++i)
            want.push_back((m.layout == Layout::AC4 && i % 4 == 3) ? d.Row(y)[i] : RefMulScale<T>(d.Row(y)[i], a.Row(y)[i]));
      }
      const Args<T> args{a.Data(), a.Step(), b.Data(), b.Step(), d.Data(), d.Step(), d.Size(), value};
      ASSERT_EQ(m.call(args), tpxOk) << m.name;
      ASSERT_EQ(d.Samples(), want) << m.name << " w=" << s.width << " h=" << s.height;
      ASSERT_TRUE(a.GuardsIntact() && b.GuardsIntact() && d.GuardsIntact()) << m.name;
    }
  }
}

TEST(MulScaleExports, EveryMemberMatchesTheRule) {
  Sweep<Tpx8u>(51);
  Sweep<Tpx16u>(52);
}

// Pointers, then step, then size; the C3 and C4 two-image members test both extents first.
template <class T>
void Order() {
  T buf[64] = {};
  for (const Member<T>& m : Members<T>()) {
    const bool extentsFirst = !m.isConst && (m.layout == Layout::C3 || m.layout == Layout::C4);
    Args<T> a{buf, 16, buf, 16, nullptr, 0, TpxSize{0, 1}, buf};
    EXPECT_EQ(m.call(a), extentsFirst ? tpxErrSize : tpxErrNullPtr) << m.name;
    a.roi = TpxSize{1, 0};
    EXPECT_EQ(m.call(a), extentsFirst ? tpxErrSize : tpxErrNullPtr) << m.name;
    a.dst = buf;
    EXPECT_EQ(m.call(a), extentsFirst ? tpxErrSize : tpxErrStep) << m.name;
    a.roi = TpxSize{4, 2};
    EXPECT_EQ(m.call(a), tpxErrStep) << m.name;
    a.dstStep = 2;  // a step is only tested against 1, never against the row
    EXPECT_EQ(m.call(a), tpxOk) << m.name;
    a.step1 = -16;  // the first image's step counts, but only where the member has it
    EXPECT_EQ(m.call(a), m.isConst && m.inPlace ? tpxOk : tpxErrStep) << m.name;
    a.step1 = 16;
    a.roi = TpxSize{-3, 2};
    EXPECT_EQ(m.call(a), tpxErrSize) << m.name;
  }
}

TEST(MulScaleExports, PointersStepSize) {
  Order<Tpx8u>();
  Order<Tpx16u>();
}

}  // namespace
