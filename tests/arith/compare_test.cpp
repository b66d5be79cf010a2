// Comparison families: every export and cmpOp against a plain model on ties, NaN and infinities,
// OpenCV's compare, the row kernel's AVX twin against its scalar twin, the eps forms, check order.
#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <string>

#include "arith/compare.h"
#include "arith_util.h"
#include "tpxip.h"
#ifdef TPX_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using namespace decide;
using tpx::Isa;

template <class T>
bool Holds(int op, T a, T b) {
  const bool r[5] = {a < b, a <= b, a == b, a >= b, a > b};
  return r[op];
}

// P is the last argument: cmpOp, or eps for the EqualEps forms.
template <class T, class P = int>
struct Case {
  std::string name;
  Layout layout;
  std::function<TpxStatus(const T*, int, const T*, int, Tpx8u*, int, TpxSize, P)> cmp;
  std::function<TpxStatus(const T*, int, const T*, Tpx8u*, int, TpxSize, P)> cmpC;
  // Runs both forms against the model mask: 255 where rel(sample, the other image's sample or
  // the constant) holds in every considered channel.
  template <class Rel>
  ::testing::AssertionResult Check(const GuardedImage<T>& a, const GuardedImage<T>& b, const T* v, GuardedImage<Tpx8u>& d,
                                   GuardedImage<Tpx8u>& want, P p, Rel rel) const {
    for (bool constant : {false, true}) {
      for (int y = 0; y < want.Height(); ++y)
        for (int x = 0; x < want.Width(); ++x) {
          bool all = true;
          for (int c = 0; c < tpx::Processed(layout); ++c) all = all && rel(a.At(x, y, c), constant ? v[c] : b.At(x, y, c));
          want.At(x, y) = all ? 255 : 0;
        }
      const TpxStatus st = constant ? cmpC(a.Data(), a.Step(), v, d.Data(), d.Step(), a.Size(), p)
                                    : cmp(a.Data(), a.Step(), b.Data(), b.Step(), d.Data(), d.Step(), a.Size(), p);
      if (st != tpxOk || !SameSamples(d, want) || !d.GuardsIntact()) return ::testing::AssertionFailure() << name << " constant " << constant;
    }
    return ::testing::AssertionSuccess();
  }
};
template <class T>
auto& Cases() { return Registry<Case<T>>(); }
#define ADD_CASE(T, L)                                                                                                  \
  Cases<Tpx##T>().push_back(Case<Tpx##T>{#T "_" #L "R", Layout::L, tpxiCompare_##T##_##L##R,                            \
      [](const Tpx##T* s, int ss, const Tpx##T* v, Tpx8u* d, int ds, TpxSize r, int op) {                               \
        return tpxiCompareC_##T##_##L##R(s, ss, ChArg<Layout::L>(v), d, ds, r, op); }}),
const bool kRegistered = (TPX_COMPARE_MEMBERS(ADD_CASE) true);
#define ADD_EPS(L)                                                                               \
  {#L, Layout::L, tpxiCompareEqualEps_32f_##L##R,                                                \
   [](const Tpx32f* s, int ss, const Tpx32f* v, Tpx8u* d, int ds, TpxSize r, Tpx32f eps) {       \
     return tpxiCompareEqualEpsC_32f_##L##R(s, ss, ChArg<Layout::L>(v), d, ds, r, eps);           \
   }},

// Every case on every shape, with samples of many ties, NaN and infinities in both images, and
// a constant of pivots of the exact length: check(k, a, b, value, d, want, where).
template <class T, class P, class F>
void Sweep(const std::vector<Case<T, P>>& cases, Rng& rng, F check, const std::vector<Shape>& shapes = decide::Shapes(16)) {
  for (const Case<T, P>& k : cases) {
    const int ch = tpx::Stride(k.layout);
    for (const tpxtest::Shape& sh : shapes) {
      GuardedImage<T> a(sh.width, sh.height, ch, sh.padSamples, sh.misalign);
      // Padding 0 leaves every image contiguous (one long run), except that every other such
      // shape gives the mask a step of a C-sample row, which must not pass for contiguous.
      const int maskPad = sh.padSamples == 0 && sh.height % 2 ? sh.width * (ch - 1) : sh.padSamples;
      GuardedImage<T> b(sh.width, sh.height, ch, sh.padSamples ? (sh.padSamples + 5) % 7 : 0, sh.misalign * 3 % 5);
      GuardedImage<Tpx8u> d(sh.width, sh.height, 1, maskPad, sh.misalign), want(sh.width, sh.height);
      FillFrom(a, rng, SamplesAround<T>()), FillFrom(b, rng, SamplesAround<T>());
      std::vector<T> value(tpx::Stride(k.layout) == 4 && k.layout != Layout::AC4 ? 4 : 3);
      for (T& v : value) v = Pivots<T>()[rng.Int(0, 4)];
      check(k, a, b, value.data(), d, want, k.name + " " + std::to_string(sh.width) + "x" + std::to_string(sh.height));
      if (::testing::Test::HasFatalFailure()) return;
    }
  }
}

TEST(Compare, EveryExportAndOpFollowsTheRuleOnTiesAndNaN) {
  Rng rng(0xC0);
  ForEachType([&](auto tag) {
    using T = decltype(tag);
    Sweep(Cases<T>(), rng, [&](const Case<T>& k, auto& a, auto& b, const T* v, auto& d, auto& want, const std::string& where) {
      for (int op = 0; op <= 4; ++op)
        ASSERT_TRUE(k.Check(a, b, v, d, want, op, [op](T x, T y) { return Holds(op, x, y); })) << where << " op " << op;
      // Above 4 (and below 0) nothing runs: the destination keeps the last mask.
      for (int op : {5, 7, INT_MAX, -1}) {
        ASSERT_EQ(k.cmp(a.Data(), a.Step(), b.Data(), b.Step(), d.Data(), d.Step(), a.Size(), op), tpxOk);
        ASSERT_EQ(k.cmpC(a.Data(), a.Step(), v, d.Data(), d.Step(), a.Size(), op), tpxOk);
        ASSERT_TRUE(SameSamples(d, want) && d.GuardsIntact()) << where << " op " << op;
      }
    });
  });
}

// Differences of the pivots hit 0.5, 2 and 3.5 exactly; a NaN eps makes nothing equal, and so
// does a NaN in both samples.
TEST(Compare, EqualEpsIsAbsoluteDifferenceAtMostEps) {
  Rng rng(0xE9);
  Sweep(std::vector<Case<float, float>>{TPX_COMPARE_EPS_LAYOUTS(ADD_EPS)}, rng,
        [&](const Case<float, float>& k, auto& a, auto& b, const float* v, auto& d, auto& want, const std::string& where) {
          for (float eps : {0.0f, -0.0f, 0.5f, 2.0f, 3.5f, INFINITY, NAN})
            ASSERT_TRUE(k.Check(a, b, v, d, want, eps, [eps](float x, float y) { return std::fabs(x - y) <= eps; })) << where << " eps " << eps;
        }, decide::Shapes(Lanes<float>()));
}

// Row kernel twins: every relation, operand form (image/image, image/constant, constant/image),
// type and layout, every pixel count to 3*16+3, misaligned sources and destination.
template <class T, Layout L, class Rel>
void TwinsAgree(Rng& rng, const Rel& rel) {
  constexpr int C = tpx::Stride(L);
  T v[4];
  for (T& x : v) x = Pivots<T>()[rng.Int(0, 4)];
  const tpx::ConstOperand<T, L> k(v);
  for (int px = 0; px <= 51; ++px)
    for (int mis = 0; mis < 4; ++mis) {
      GuardedImage<T> a(px, 1, C, 0, mis), b(px, 1, C, 0, 3 - mis);
      FillFrom(a, rng, SamplesAround<T>()), FillFrom(b, rng, Pivots<T>());
      const tpx::RowOperand<T, L> ra{a.Data()}, rb{b.Data()};
      auto agree = [&](const auto& x, const auto& y) {
        GuardedImage<Tpx8u> ref(px, 1, 1, 0, mis), got(px, 1, 1, 0, (mis + 5) % 16), nt(px, 1, 1, 0, mis);
        tpx::CompareRow<T, L, Isa::kScalar>(x, y, ref.Data(), px, rel);
        tpx::CompareRow<T, L, Isa::kAvx>(x, y, got.Data(), px, rel);
        tpx::CompareRow<T, L, Isa::kAvx, true>(x, y, nt.Data(), px, rel);  // streaming stores
        return SameSamples(ref, got) && SameSamples(ref, nt) && got.GuardsIntact() && nt.GuardsIntact();
      };
      ASSERT_TRUE(agree(ra, rb) && agree(ra, k) && agree(k, ra)) << px << " " << mis;
    }
}

TEST(Compare, AvxRowEqualsScalarRow) {
  Rng rng(0xC1);
  ForEachType([&](auto tag) {
    using T = decltype(tag);
    ForEachLayout([&](auto lay) {
      std::apply([&](auto... rel) { (TwinsAgree<T, lay.value>(rng, rel), ...); }, std::tuple<tpx::RelLess<T>, tpx::RelLessEq<T>, tpx::RelEq<T>>{});
      if constexpr (std::is_same_v<T, Tpx32f>)
        for (float eps : {0.0f, 0.5f, 2.0f}) TwinsAgree<T, lay.value>(rng, tpx::RelEqualEps(eps));
    });
  });
}

// Large 8u images aligned to 16 bytes in every pointer and step stream the mask; the masks are
// those of the rule all the same.
TEST(Compare, LargeAligned8uImagesGiveTheSameMasks) {
  Rng rng(0xA1);
  Sweep(std::vector<Case<Tpx8u>>{Cases<Tpx8u>()[0], Cases<Tpx8u>()[1], Cases<Tpx8u>()[3]}, rng,  // C1, C3, AC4
        [&](const Case<Tpx8u>& k, auto& a, auto& b, const Tpx8u* v, auto& d, auto& want, const std::string& where) {
          for (int op : {tpxCmpLessEq, tpxCmpGreater})
            EXPECT_TRUE(k.Check(a, b, v, d, want, op, [op](Tpx8u x, Tpx8u y) { return Holds(op, x, y); })) << where;
        }, {Shape{1024, 360, 0, 0}});
}

// Pointers, steps, size; then cmpOp (never refused) or eps.
TEST(Compare, CheckOrderWithTwoFaults) {
  Tpx8u a[64] = {}, d[16];
  std::memset(d, 0x5A, sizeof(d));
  const TpxSize ok{4, 4}, empty{4, 0};
  const Tpx8u three[3] = {1, 2, 3};
  const float f[16] = {};
  EXPECT_EQ(tpxiCompare_8u_C1R(a, 4, nullptr, 0, d, 4, empty, 0), tpxErrNullPtr);
  EXPECT_EQ(tpxiCompare_16s_C1R(nullptr, 8, nullptr, 8, d, 4, empty, 0), tpxErrNullPtr);
  EXPECT_EQ(tpxiCompare_8u_C3R(a, 12, a, 12, d, -4, empty, 9), tpxErrStep);  // step before size
  EXPECT_EQ(tpxiCompare_8u_C1R(a, 4, a, 4, d, 4, empty, 9), tpxErrSize);     // size before cmpOp
  EXPECT_EQ(tpxiCompareC_8u_C3R(a, 0, nullptr, d, 4, empty, 0), tpxErrNullPtr);
  EXPECT_EQ(tpxiCompareC_8u_AC4R(a, 0, three, d, 4, empty, 0), tpxErrStep);
  EXPECT_EQ(tpxiCompareEqualEps_32f_C1R(f, 16, f, 0, d, 4, ok, -1.0f), tpxErrStep);
  EXPECT_EQ(tpxiCompareEqualEps_32f_C1R(f, 16, f, 16, d, 4, empty, -1.0f), tpxErrSize);
  EXPECT_EQ(tpxiCompareEqualEpsC_32f_C1R(f, 16, 0.0f, d, 4, ok, -1.0f), tpxErrEpsilon);
  EXPECT_EQ(tpxiCompareEqualEpsC_32f_C3R(f, 48, nullptr, d, 4, empty, -1.0f), tpxErrNullPtr);
  for (Tpx8u b : d) ASSERT_EQ(b, 0x5A);
}


#ifdef TPX_HAVE_OPENCV
// OpenCV compares plane by plane (each against its own constant); the planes' masks of the
// considered channels are then combined with bitwise_and.
TEST(Compare, AgreesWithOpenCvCompare) {
  Rng rng(0xCF);
  const int cvOps[] = {cv::CMP_LT, cv::CMP_LE, cv::CMP_EQ, cv::CMP_GE, cv::CMP_GT};
  ForEachType([&](auto tag) {
    using T = decltype(tag);
    for (const Case<T>& k : Cases<T>()) {
      const int ch = tpx::Stride(k.layout), type = CV_MAKETYPE(cv::DataType<T>::depth, ch);
      GuardedImage<T> a(67, 9, ch, 3, 1), b(67, 9, ch, 0, 2);
      GuardedImage<Tpx8u> d(67, 9);
      FillFrom(a, rng, Pivots<T>()), FillFrom(b, rng, Pivots<T>());  // ties, no NaN
      std::vector<cv::Mat> pa, pb;
      cv::split(cv::Mat(9, 67, type, a.Data(), a.Step()), pa), cv::split(cv::Mat(9, 67, type, b.Data(), b.Step()), pb);
      const T value[4] = {Pivots<T>()[1], Pivots<T>()[2], Pivots<T>()[3], Pivots<T>()[0]};
      for (int op = 0; op <= 4; ++op)
        for (bool withValue : {false, true}) {
          cv::Mat all(9, 67, CV_8U, cv::Scalar(255)), m;
          for (int c = 0; c < tpx::Processed(k.layout); ++c) {
            cv::compare(pa[c], withValue ? cv::Mat(pa[c].size(), pa[c].type(), cv::Scalar(double(value[c]))) : pb[c], m, cvOps[op]);
            cv::bitwise_and(all, m, all);
          }
          ASSERT_EQ(withValue ? k.cmpC(a.Data(), a.Step(), value, d.Data(), d.Step(), a.Size(), op)
                              : k.cmp(a.Data(), a.Step(), b.Data(), b.Step(), d.Data(), d.Step(), a.Size(), op), tpxOk);
          ASSERT_EQ(cv::norm(cv::Mat(9, 67, CV_8U, d.Data(), d.Step()), all, cv::NORM_INF), 0) << k.name << " op " << op << " value " << withValue;
        }
    }
  });
}
#endif

}  // namespace
