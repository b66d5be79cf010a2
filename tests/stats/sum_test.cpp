// Sum and Mean: exact integer sums, the three one-channel float paths against a model of their
// walk, the three- and four-channel rules, the mean's divisor, and every kernel twin.
#include <cmath>
#include <cstdint>
#include <vector>

#include "stats/members.h"
#include "stats/sum_rows.h"
#include "tests/stats/reductions_support.h"

namespace tpxstats {
namespace {

using namespace tpx::stats;
using tpx::Isa;

// ---- Models of the one-channel float walk, from the rule ---------------------------------
int Prefix(const float* p) { return static_cast<int>((reinterpret_cast<std::uintptr_t>(p) % 64) / 8); }
bool On64(const float* p) { return reinterpret_cast<std::uintptr_t>(p) % 64 == 0; }

struct FastModel {
  float A[8] = {}, B[4] = {};
  void Row(const float* p, int w) {
    int i = 0;
    for (; i < Prefix(p); ++i) B[0] += p[i];
    const int n = w - Prefix(p), r = n % 16;
    for (int b = 0; b < n / 16; ++b, i += 16)
      for (int l = 0; l < 8; ++l) A[l] += p[i + l] + p[i + 8 + l];
    if (r >= 8) {
      for (int l = 0; l < 8; ++l) A[l] += p[i + l];
      i += 8;
    }
    if ((r >= 8 && (r & 4)) || (r < 8 && On64(p) && r >= 4)) {
      for (int l = 0; l < 4; ++l) B[l] += p[i + l];
      i += 4;
    }
    for (; i < w; ++i) B[0] += p[i];
  }
  double Result() const {
    float T[4];
    for (int l = 0; l < 4; ++l) T[l] = A[l] + (B[l] + A[4 + l]);
    return static_cast<double>(static_cast<float>((T[0] + T[2]) + (T[1] + T[3])));
  }
};

struct AccurateModel {
  double D[4] = {};
  void Row(const float* p, int w) {
    int i = 0;
    for (; i < Prefix(p); ++i) D[0] += p[i];
    for (; i + 8 <= w; i += 8)
      for (int l = 0; l < 4; ++l) D[l] += static_cast<double>(p[i + l]) + static_cast<double>(p[i + 4 + l]);
    for (; i < w; ++i) D[0] += p[i];
  }
  double Result() const { return (D[0] + D[2]) + (D[1] + D[3]); }
};

double NarrowModel(const GuardedImage<float>& img) {
  double total = 0;
  for (int y = 0; y < img.Height(); ++y) {
    const float* p = img.Row(y);
    const int w = img.Width();
    double l[2] = {0, 0};
    for (int i = 0; i < (w & ~1); ++i) l[i % 2] += p[i];
    if (w >= 2) total += l[0] + l[1];
    if (w % 2) total += p[w - 1];
  }
  return total;
}

double C1Model(const GuardedImage<float>& img, int hint) {
  if (img.Width() <= 16) return NarrowModel(img);
  FastModel f;
  AccurateModel a;
  for (int y = 0; y < img.Height(); ++y) (hint == 2 ? a.Row(img.Row(y), img.Width()) : f.Row(img.Row(y), img.Width()));
  return hint == 2 ? a.Result() : f.Result();
}

// ---- Kernel twins ----------------------------------------------------------------------------
template <class T, int kS>
void ExactTwins(Rng& rng) {
  for (int n = 0; n <= 3 * 48 + 3 * kS; n += kS)
    for (int mis : {0, 1, 5}) {
      GuardedImage<T> img(n / kS + 1, 1, kS, 0, mis);
      tpxtest::FillRandom(img, rng, 0.3);
      long long ref[kS] = {}, s[kS] = {}, v[kS] = {};
      for (int i = 0; i < n; ++i) ref[i % kS] += img.Row(0)[i];
      SumRowExact<Isa::kScalar, T, kS>(img.Data(), n, s);
      SumRowExact<Isa::kAvx, T, kS>(img.Data(), n, v);
      for (int c = 0; c < kS; ++c) ASSERT_TRUE(ref[c] == s[c] && ref[c] == v[c]) << "n=" << n << " c=" << c;
    }
  // A whole stripe of the type's extreme values: no lane may overflow.
  std::vector<T> full(kSumStripe<kS>, std::numeric_limits<T>::max()), low(kSumStripe<kS>, std::numeric_limits<T>::lowest());
  for (const auto* data : {&full, &low}) {
    long long v[kS] = {};
    SumRowExact<Isa::kAvx, T, kS>(data->data(), kSumStripe<kS>, v);
    for (int c = 0; c < kS; ++c) ASSERT_EQ(v[c], static_cast<long long>((*data)[0]) * (kSumStripe<kS> / kS));
  }
}

TEST(SumKernels, ExactIntegerRowsEqualTheirTwinAndTheExactSum) {
  Rng rng(1);
  ExactTwins<Tpx8u, 1>(rng), ExactTwins<Tpx8u, 3>(rng), ExactTwins<Tpx8u, 4>(rng);
  ExactTwins<Tpx16u, 1>(rng), ExactTwins<Tpx16u, 3>(rng), ExactTwins<Tpx16u, 4>(rng);
  ExactTwins<Tpx16s, 1>(rng), ExactTwins<Tpx16s, 3>(rng), ExactTwins<Tpx16s, 4>(rng);
}

// Every width and start address of a 64-byte line; lanes carried in from earlier rows.
TEST(SumKernels, FloatRowsEqualTheirTwinBitForBit) {
  Rng rng(2);
  std::vector<int> widths;
  for (int w = 1; w <= 3 * 16 + 3; ++w) widths.push_back(w);
  widths.insert(widths.end(), {97, 255, 1001});
  for (int w : widths)
    for (int mis = 0; mis < 16; ++mis) {
      GuardedImage<float> img(w, 1, 1, 0, mis);
      tpxtest::FillRandom(img, rng, 0.0);
      const float* p = img.Data();
      ASSERT_TRUE(SameBits(SumRowNarrow32f<Isa::kScalar>(p, w, 3.25), SumRowNarrow32f<Isa::kAvx>(p, w, 3.25)));
      FastLanes32f fs, fv;
      double ds[4] = {1, 2, 3, 4}, dv[4] = {1, 2, 3, 4};
      for (int l = 0; l < 8; ++l) fs.a[l] = fv.a[l] = static_cast<float>(l) * 0.1f;
      fs.b[1] = fv.b[1] = 7.0f;
      SumRowFast32f<Isa::kScalar>(p, w, fs);
      SumRowFast32f<Isa::kAvx>(p, w, fv);
      SumRowAccurate32f<Isa::kScalar>(p, w, ds);
      SumRowAccurate32f<Isa::kAvx>(p, w, dv);
      ASSERT_EQ(0, std::memcmp(&fs, &fv, sizeof fs)) << "w=" << w << " mis=" << mis;
      ASSERT_EQ(0, std::memcmp(ds, dv, sizeof ds)) << "w=" << w << " mis=" << mis;
      float rs[3], rv[3];
      SumRowC3Fast32f<Isa::kScalar>(p, w / 3 * 3, rs);
      SumRowC3Fast32f<Isa::kAvx>(p, w / 3 * 3, rv);
      ASSERT_EQ(0, std::memcmp(rs, rv, sizeof rs)) << "w=" << w << " mis=" << mis;
    }
}

template <int kVecs, int kS, class P>
void LaneSumTwins(Rng& rng) {
  constexpr int kB = kVecs * P::kN;
  for (int n = 0; n <= 3 * kB + kS; n += kS) {
    GuardedImage<float> img(n + 1, 1, 1, 0, n % 5);
    tpxtest::FillRandom(img, rng, 0.0);
    alignas(32) typename P::Acc s[kB], v[kB], os[kS], ov[kS];
    for (int j = 0; j < kB; ++j) s[j] = v[j] = static_cast<typename P::Acc>(j) * 0.25f;
    SweepLanes<Isa::kScalar, kVecs, P>(img.Data(), n, s);
    SweepLanes<Isa::kAvx, kVecs, P>(img.Data(), n, v);
    FoldLanes<Isa::kScalar, kVecs, kS, P>(s, os);
    FoldLanes<Isa::kAvx, kVecs, kS, P>(v, ov);
    ASSERT_EQ(0, std::memcmp(os, ov, sizeof os)) << "n=" << n;
  }
}

TEST(SumKernels, ChannelLanesEqualTheirTwinBitForBit) {
  Rng rng(3);
  LaneSumTwins<kSumVecsC3, 3, AddLanes32f>(rng), LaneSumTwins<kSumVecsC3, 3, AddLanes64f>(rng);
  LaneSumTwins<kSumVecsC4, 4, AddLanes32f>(rng), LaneSumTwins<kSumVecsC4, 4, AddLanes64f>(rng);
}

// ---- Exports -------------------------------------------------------------------------------
template <class T, int kS, class Sum, class Mean>
void IntegerMember(Sum sum, Mean mean) {
  Rng rng(4);
  for (const auto& s : tpxtest::Shapes(16)) {
    GuardedImage<T> img(s.width, s.height, kS, s.padSamples, s.misalign);
    tpxtest::FillRandom(img, rng, 0.3);
    long long ref[4] = {};
    for (int y = 0; y < s.height; ++y)
      for (int i = 0; i < img.RowSamples(); ++i) ref[i % kS] += img.Row(y)[i];
    Guarded<double> got(kS), avg(kS);
    ASSERT_EQ(tpxOk, sum(img.Data(), img.Step(), img.Size(), got.get()));
    ASSERT_EQ(tpxOk, mean(img.Data(), img.Step(), img.Size(), avg.get()));
    ASSERT_TRUE(got.Intact(kS) && avg.Intact(kS));
    const double area = static_cast<double>(s.width) * s.height;
    for (int c = 0; c < kS; ++c) {
      ASSERT_EQ(got[c], static_cast<double>(ref[c])) << s.width << "x" << s.height;
      ASSERT_EQ(avg[c], kS == 1 ? got[c] / area : got[c] * (1.0 / area));
    }
#ifdef TPX_HAVE_OPENCV
    const cv::Scalar cs = cv::sum(CvView(img, kS));
    for (int c = 0; c < kS; ++c) ASSERT_EQ(got[c], cs[c]);
#endif
  }
  // One long row where the step is the row, any step otherwise: 0 repeats the first row.
  GuardedImage<T> img(37, 5, kS);
  tpxtest::FillRandom(img, rng);
  double contiguous[4], repeated[4];
  ASSERT_EQ(tpxOk, sum(img.Data(), img.Step(), img.Size(), contiguous));
  ASSERT_EQ(tpxOk, sum(img.Data(), 0, img.Size(), repeated));
  for (int c = 0; c < kS; ++c) {
    long long row = 0, all = 0;
    for (int y = 0; y < 5; ++y)
      for (int x = 0; x < 37; ++x) (y == 0 ? row : all) += img.At(x, y, c);
    EXPECT_EQ(repeated[c], 5.0 * static_cast<double>(row));
    EXPECT_EQ(contiguous[c], static_cast<double>(all + row));
  }
}

TEST(SumExports, IntegerMembersAreExact) {
#define X(t, L) IntegerMember<Tpx##t, tpx::Stride(Layout::L)>(tpxiSum_##t##_##L##R, tpxiMean_##t##_##L##R);
  TPX_SUM_INT_MEMBERS(X)
#undef X
}

// The one-channel float sum equals the model of its walk to the bit, for every width across
// the narrow/wide threshold, every start address of a line, padded steps and every hint.
TEST(SumExports, FloatOneChannelFollowsItsWalk) {
  Rng rng(5);
  for (int w : {1, 2, 3, 15, 16, 17, 18, 23, 24, 25, 28, 31, 32, 33, 40, 47, 51, 97, 1001})
    for (int mis = 0; mis < 16; ++mis)
      for (int pad : {0, 3}) {
        GuardedImage<float> img(w, 1 + (w + mis) % 4, 1, pad, mis);
        tpxtest::FillRandom(img, rng, 0.0);
        for (int hint : {0, 1, 2, 3, -1}) {
          double got = 0, avg = 0;
          ASSERT_EQ(tpxOk, tpxiSum_32f_C1R(img.Data(), img.Step(), img.Size(), &got, hint));
          ASSERT_EQ(tpxOk, tpxiMean_32f_C1R(img.Data(), img.Step(), img.Size(), &avg, hint));
          ASSERT_TRUE(SameBits(got, C1Model(img, hint))) << "w=" << w << " mis=" << mis << " hint=" << hint;
          ASSERT_TRUE(SameBits(avg, got / (static_cast<double>(w) * img.Height())));
        }
      }
}

// 16 samples add in Tpx64f for every hint; 17 in Tpx32f unless the hint is 2. And the fast
// path's prefix follows the row address, so the same row 8 bytes further can sum differently.
TEST(SumExports, FloatOneChannelThresholdAndAddress) {
  GuardedImage<float> img(17, 1);
  for (int i = 0; i < 17; ++i) img.At(i, 0) = i % 2 ? 1.0f : 1e8f;
  const double exact16 = 8 * 1e8 + 8, exact17 = 9 * 1e8 + 8;
  for (int hint : {0, 1, 2}) {
    double s16 = 0, s17 = 0;
    tpxiSum_32f_C1R(img.Data(), img.Step(), TpxSize{16, 1}, &s16, hint);
    tpxiSum_32f_C1R(img.Data(), img.Step(), TpxSize{17, 1}, &s17, hint);
    EXPECT_EQ(s16, exact16);
    if (hint == 2) EXPECT_EQ(s17, exact17);
    else EXPECT_NE(s17, exact17);
  }
  bool differs = false;
  Rng rng(6);
  for (int trial = 0; trial < 50 && !differs; ++trial) {
    GuardedImage<float> a(40, 1, 1, 0, 0), b(40, 1, 1, 0, 2);
    tpxtest::FillRandom(a, rng, 0.0);
    b.CopyFrom(a);
    double sa = 0, sb = 0;
    tpxiSum_32f_C1R(a.Data(), a.Step(), a.Size(), &sa, 0);
    tpxiSum_32f_C1R(b.Data(), b.Step(), b.Size(), &sb, 0);
    ASSERT_TRUE(SameBits(sa, C1Model(a, 0)) && SameBits(sb, C1Model(b, 0)));
    differs = sa != sb;
  }
  EXPECT_TRUE(differs);
}

// Three channels: the float error of the wide default path is that of one row; its rows are
// totalled in Tpx64f. Four channels: Tpx32f over the whole image only with hint 1.
TEST(SumExports, FloatMultiChannelPrecisionAndScope) {
  // One odd sample near 2^23 a row and channel: each row sums exactly in Tpx32f, while a
  // Tpx32f total over the 9 rows (an odd integer above 2^26) cannot be exact.
  const int w = 20, h = 9;
  GuardedImage<float> c3(w, h, 3), c4(w, h, 4);
  for (int y = 0; y < h; ++y)
    for (int c = 0; c < 4; ++c) {
      if (c < 3) c3.At(0, y, c) = 8388609.0f + 2.0f * c;
      c4.At(0, y, c) = 8388609.0f + 2.0f * c;
    }
  for (int hint : {0, 1, 2, 5}) {
    double s3[3], s4[4];
    ASSERT_EQ(tpxOk, tpxiSum_32f_C3R(c3.Data(), c3.Step(), c3.Size(), s3, hint));
    ASSERT_EQ(tpxOk, tpxiSum_32f_C4R(c4.Data(), c4.Step(), c4.Size(), s4, hint));
    for (int c = 0; c < 3; ++c) EXPECT_EQ(s3[c], h * (8388609.0 + 2 * c)) << hint;
    for (int c = 0; c < 4; ++c) {
      if (hint == 1) EXPECT_NE(s4[c], h * (8388609.0 + 2 * c)) << c;
      else EXPECT_EQ(s4[c], h * (8388609.0 + 2 * c)) << c << " hint " << hint;
    }
  }
}

// Every float member, every path: channels routed right (integer data, exact on every path)
// and random data within each path's precision; the narrow three-channel path to the bit.
template <int kS, class Sum, class Mean>
void FloatMember(Sum sum, Mean mean) {
  Rng rng(7);
  for (const auto& s : tpxtest::Shapes(8, {97, 255})) {
    GuardedImage<float> ints(s.width, s.height, kS, s.padSamples, s.misalign);
    GuardedImage<float> real(s.width, s.height, kS, s.padSamples, s.misalign);
    tpxtest::FillRandom(real, rng, 0.0);
    for (int y = 0; y < s.height; ++y)
      for (int i = 0; i < ints.RowSamples(); ++i) ints.Row(y)[i] = static_cast<float>(rng.Int(-100, 100));
    double exact[4] = {}, exactR[4] = {}, absR[4] = {};
    for (int y = 0; y < s.height; ++y)
      for (int i = 0; i < ints.RowSamples(); ++i) {
        exact[i % kS] += ints.Row(y)[i];
        exactR[i % kS] += real.Row(y)[i];
        absR[i % kS] += std::fabs(real.Row(y)[i]);
      }
    for (int hint : {0, 1, 2}) {
      Guarded<double> a(kS), b(kS), m(kS);
      ASSERT_EQ(tpxOk, sum(ints.Data(), ints.Step(), ints.Size(), a.get(), hint));
      ASSERT_EQ(tpxOk, sum(real.Data(), real.Step(), real.Size(), b.get(), hint));
      ASSERT_EQ(tpxOk, mean(real.Data(), real.Step(), real.Size(), m.get(), hint));
      ASSERT_TRUE(a.Intact(kS) && b.Intact(kS) && m.Intact(kS));
      const bool f32 = kS == 4 ? hint == 1 : (kS == 1 ? s.width > 16 && hint != 2 : s.width > 13 && hint != 2);
      const double area = static_cast<double>(s.width) * s.height;
      for (int c = 0; c < kS; ++c) {
        ASSERT_EQ(a[c], exact[c]) << "w=" << s.width << " c=" << c << " hint=" << hint;
        ASSERT_NEAR(b[c], exactR[c], (f32 ? 1e-4 : 1e-13) * absR[c] + 1e-30);
        ASSERT_EQ(m[c], kS == 1 ? b[c] / area : b[c] * (1.0 / area));
      }
      if (kS == 3 && s.width <= 13) {  // Tpx64f in pixel order
        double t[3] = {};
        for (int y = 0; y < s.height; ++y)
          for (int i = 0; i < real.RowSamples(); ++i) t[i % 3] += real.Row(y)[i];
        for (int c = 0; c < 3; ++c) ASSERT_TRUE(SameBits(b[c], t[c]));
      }
    }
#ifdef TPX_HAVE_OPENCV
    const cv::Scalar cs = cv::sum(CvView(ints, kS));
    for (int c = 0; c < kS; ++c) ASSERT_EQ(exact[c], cs[c]);
#endif
  }
}

TEST(SumExports, FloatMembersRouteChannelsAndKeepTheirPrecision) {
#define X(t, L) FloatMember<tpx::Stride(Layout::L)>(tpxiSum_##t##_##L##R, tpxiMean_##t##_##L##R);
  TPX_SUM_FLOAT_MEMBERS(X)
#undef X
}

// ---- Mean's divisor and the check orders -------------------------------------------------
TEST(MeanExports, DivideInOneChannelMultiplyByReciprocalInThreeAndFour) {
  // Area 3 and sum 5: 5 / 3 and 5 * (1 / 3) differ in the last bit.
  ASSERT_NE(5.0 / 3.0, 5.0 * (1.0 / 3.0));
  const Tpx16s px[12] = {5, 5, 5, 5, 0, 0, 0, 0, 0, 0, 0, 0};
  double m1 = 0, m3[3], m4[4];
  ASSERT_EQ(tpxOk, tpxiMean_16s_C1R(px + 3, 6, TpxSize{3, 1}, &m1));  // 5, 0, 0
  ASSERT_EQ(tpxOk, tpxiMean_16s_C3R(px, 6, TpxSize{1, 3}, m3));       // channel 1: 5, 0, 0
  ASSERT_EQ(tpxOk, tpxiMean_16s_C4R(px, 24, TpxSize{3, 1}, m4));      // channel 0: 5, 0, 0
  EXPECT_EQ(m1, 5.0 / 3.0);
  EXPECT_EQ(m3[1], 5.0 * (1.0 / 3.0));
  EXPECT_EQ(m4[0], 5.0 * (1.0 / 3.0));
}

TEST(MeanExports, AreaWrapsAtThirtyTwoBits) {
  // 65536 x 32768 pixels = 2^31: the divisor wraps to -2^31. Step 0 reads one row throughout.
  std::vector<Tpx8u> row(65536, 1);
  double m = 0;
  ASSERT_EQ(tpxOk, tpxiMean_8u_C1R(row.data(), 0, TpxSize{65536, 32768}, &m));
  EXPECT_EQ(m, 2147483648.0 / -2147483648.0);
}

TEST(SumExports, CheckOrders) {
  Tpx8u px[4] = {};
  float fx[4] = {};
  double r[4];
  const TpxSize ok{1, 1}, empty{0, 1};
  // Pointers before size; no step check at all.
  EXPECT_EQ(tpxErrNullPtr, tpxiSum_8u_C1R(nullptr, 1, empty, r));
  EXPECT_EQ(tpxErrNullPtr, tpxiSum_8u_C3R(px, 1, empty, nullptr));
  EXPECT_EQ(tpxErrSize, tpxiSum_32f_C4R(fx, -5, TpxSize{1, 0}, r, 0));
  const Tpx16s up[4] = {-3, 0, 0, 10};
  EXPECT_EQ(tpxOk, tpxiSum_16s_C1R(up + 3, -6, TpxSize{1, 2}, r));  // rows up[3], up[0]
  EXPECT_EQ(7.0, r[0]);
  // Mean: its own pointer first, then the sum's checks as they stand; nothing written on failure.
  r[0] = 42;
  EXPECT_EQ(tpxErrNullPtr, tpxiMean_8u_C1R(nullptr, 1, empty, nullptr));
  EXPECT_EQ(tpxErrNullPtr, tpxiMean_32f_C1R(nullptr, 1, empty, r, 0));
  EXPECT_EQ(tpxErrSize, tpxiMean_32f_C3R(fx, 0, empty, r, 2));
  EXPECT_EQ(42, r[0]);
  const Tpx16u px16[4] = {1, 2, 3, 4};
  EXPECT_EQ(tpxOk, tpxiMean_16u_C4R(px16, 0, ok, r));
  EXPECT_EQ(4.0, r[3]);
}

}  // namespace
}  // namespace tpxstats
