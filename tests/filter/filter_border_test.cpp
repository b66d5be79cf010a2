// The general filter against a plain correlation model: every member, many kernel sizes,
// regions smaller than, equal to and larger than the kernel, every border kind with and
// without in-memory sides, padded and misaligned images, guard bands around the destination.
#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "filter_model.h"

namespace {

using namespace filtertest;

const std::vector<TpxSize> kKernels = {{1, 1}, {2, 2}, {1, 5}, {5, 1}, {3, 3}, {5, 5}, {7, 5}, {11, 11}, {2, 3}, {4, 4}};
const std::vector<int> kBorders = {1, 3, 6, 240, 1 | 0x10, 3 | 0x40 | 0x20, 6 | 0x80, 3 | 0x10 | 0x80, 1 | 0x70};

// Regions around the kernel's size: smaller, equal, one larger, and wide enough for the vector
// routes (>= 16 pixels) with a tail.
std::vector<TpxSize> Regions(TpxSize k) {
  std::vector<TpxSize> out;
  for (int w : {1, k.width, k.width + 1, 37})
    for (int h : {1, k.height, k.height + 3})
      if (w >= 1 && h >= 1) out.push_back({w, h});
  return out;
}

// The 32f and 64f members also get a tall narrow region: their side strips are a vector wide
// and pass through the scratch in several bands of rows.
std::vector<TpxSize> TallToo(std::vector<TpxSize> v) {
  v.push_back({19, 131});
  return v;
}

// Runs one member with a prepared spec on random data and compares with `expect`.
template <class T, int kCh, class Expect>
void Compare(Rng& rng, Prepared& p, TpxSize k, TpxSize roi, int bt, Expect expect, const char* what) {
  const int M = 12;
  World<T> world(roi.width, roi.height, M, kCh, rng.Int(0, 5), rng.Int(0, 3));
  tpxtest::FillRandom(world.img, rng, 0.15);
  if constexpr (std::is_floating_point_v<T>) {  // keep sums finite: NaN is checked elsewhere
    for (int y = 0; y < world.img.Height(); ++y)
      for (int i = 0; i < world.img.RowSamples(); ++i)
        if (!std::isfinite(world.img.Row(y)[i]) || std::abs(world.img.Row(y)[i]) > 1e6) world.img.Row(y)[i] = T(0.5);
  }
  GuardedImage<T> dst(roi.width, roi.height, kCh, rng.Int(0, 4), rng.Int(0, 3));
  T value[4];
  for (int c = 0; c < 4; ++c) value[c] = rng.template Sample<T>();
  if constexpr (std::is_floating_point_v<T>) value[0] = T(-3.25), value[1] = T(7), value[2] = T(0.125), value[3] = T(100);
  ASSERT_EQ(tpxOk, (Run<T, kCh>(world.Region(), world.Step(), dst.Data(), dst.Step(), roi, bt, value, p.Spec(), p.Buf())))
      << what;
  const Extended<T> ext(world, bt, value, k.width, k.height);
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < kCh; ++c) {
        const T want = expect(ext, x, y, c);
        const T got = dst.At(x, y, c);
        ASSERT_EQ(0, std::memcmp(&want, &got, sizeof(T)))
            << what << " k=" << k.width << "x" << k.height << " roi=" << roi.width << "x" << roi.height << " bt=" << bt
            << " at " << x << "," << y << "," << c << " want " << +want << " got " << +got;
      }
  ASSERT_TRUE(dst.GuardsIntact()) << what;
}

// Integer kernel with a divisor 2^shift and a mode under which every route of the integer
// kinds gives the same result: exact value / 2^shift, rounded by the mode, saturated.
template <class T, int kCh>
void IntegerKernelMember(int seed) {
  Rng rng(seed);
  for (TpxSize k : kKernels) {
    const int n = k.width * k.height;
    for (TpxSize roi : Regions(k)) {
      Prepared p;
      ASSERT_EQ(tpxOk, p.Size(k, roi, kDataType<T>, 7, kCh));
      std::vector<Tpx16s> K(n);
      const int bound = ExactBound<T>(600, n);
      for (auto& v : K) v = static_cast<Tpx16s>(rng.Int(-bound, bound));
      const int shift = rng.Int(0, 4);
      const int modes[] = {1, 2, 16, 17, 18};
      const int mode = modes[rng.Int(0, 4)];
      const TpxStatus st = tpxiFilterBorderInit_16s(K.data(), k, 1 << shift, kDataType<T>, kCh, mode, p.Spec());
      ASSERT_GE(st, 0);
      for (int bt : kBorders) {
        Compare<T, kCh>(rng, p, k, roi, bt, [&](const Extended<T>& e, int x, int y, int c) {
          const long double a = Correlate<T, Tpx16s, long double>(e, K, k.width, k.height, x, y, c);
          const int m = mode & 3;
          const long double q = a / (1 << shift);
          // 16u, and 16s with several channels or a thin kernel, take the float path: the float
          // table rounds symmetrically about zero.
          const bool floatPath = std::is_same_v<T, Tpx16u> ||
              (std::is_same_v<T, Tpx16s> && (kCh != 1 || k.width < 3 || k.height == 1));
          if (floatPath) return Saturate<T>(RoundExact(q, m));
          // integer rows: 0 with the accurate flag is a floor (arithmetic shift), 2 is half up
          const long long r = (m == 0) ? static_cast<long long>(std::floor(q))
                            : (m == 2) ? static_cast<long long>(std::floor(q + 0.5L)) : RoundExact(q, 1);
          return Saturate<T>(r);
        }, "int-kernel");
      }
    }
  }
}

// Float kernel of multiples of 1/8 (sums exact), every mode: the table of the type.
template <class T, int kCh>
void FloatKernelMember(int seed) {
  Rng rng(seed);
  for (TpxSize k : kKernels) {
    const int n = k.width * k.height;
    for (TpxSize roi : Regions(k)) {
      Prepared p;
      ASSERT_EQ(tpxOk, p.Size(k, roi, kDataType<T>, 13, kCh));
      std::vector<float> K(n);
      const int bound = ExactBound<T>(40, n);
      for (auto& v : K) v = static_cast<float>(rng.Int(-bound, bound)) / 8.0f;
      const int mode = rng.Int(0, 2);
      ASSERT_EQ(tpxOk, tpxiFilterBorderInit_32f(K.data(), k, kDataType<T>, kCh, mode, p.Spec()));
      for (int bt : kBorders) {
        Compare<T, kCh>(rng, p, k, roi, bt, [&](const Extended<T>& e, int x, int y, int c) {
          const long double a = Correlate<T, float, long double>(e, K, k.width, k.height, x, y, c);
          return Saturate<T>(RoundExact(a, mode));
        }, "float-kernel");
      }
    }
  }
}

// 32f and 64f: the sum in the sample's width, taps in the caller's order from the first
// product, stored as it is (bit-exact).
template <class T, int kCh>
void FloatDataMember(int seed) {
  Rng rng(seed);
  for (TpxSize k : kKernels) {
    const int n = k.width * k.height;
    for (TpxSize roi : TallToo(Regions(k))) {
      Prepared p;
      const int kt = std::is_same_v<T, double> ? 19 : 13;
      ASSERT_EQ(tpxOk, p.Size(k, roi, kDataType<T>, kt, kCh));
      std::vector<T> K(n);
      for (auto& v : K) v = static_cast<T>(rng.Real(-2, 2));
      if constexpr (std::is_same_v<T, double>)
        ASSERT_EQ(tpxOk, tpxiFilterBorderInit_64f(K.data(), k, 19, 1, 1, p.Spec()));
      else
        ASSERT_EQ(tpxOk, tpxiFilterBorderInit_32f(K.data(), k, 13, kCh, 1, p.Spec()));
      for (int bt : kBorders) {
        Compare<T, kCh>(rng, p, k, roi, bt, [&](const Extended<T>& e, int x, int y, int c) {
          const int ax = (k.width - 1) >> 1, ay = (k.height - 1) >> 1;
          T acc = 0;
          for (int i = 0; i < k.height; ++i)
            for (int j = 0; j < k.width; ++j) {
              const T prod = K[i * k.width + j] * e(x - ax + j, y - ay + i, c);
              acc = (i == 0 && j == 0) ? prod : acc + prod;
            }
          return acc;
        }, "float-data");
      }
    }
  }
}

TEST(FilterBorderModel, Integer8u) {
  IntegerKernelMember<Tpx8u, 1>(11);
  IntegerKernelMember<Tpx8u, 3>(12);
  IntegerKernelMember<Tpx8u, 4>(13);
}
TEST(FilterBorderModel, Integer16s) {  // C1 takes the integer rows; C3, C4 and thin kernels the float path
  IntegerKernelMember<Tpx16s, 1>(21);
  IntegerKernelMember<Tpx16s, 3>(22);
  IntegerKernelMember<Tpx16s, 4>(23);
}
TEST(FilterBorderModel, Integer16uThroughFloatPath) {
  IntegerKernelMember<Tpx16u, 1>(31);
  IntegerKernelMember<Tpx16u, 3>(32);
  IntegerKernelMember<Tpx16u, 4>(33);
}
TEST(FilterBorderModel, FloatKernel8u16u16s) {
  FloatKernelMember<Tpx8u, 1>(41);
  FloatKernelMember<Tpx8u, 3>(42);
  FloatKernelMember<Tpx8u, 4>(43);
  FloatKernelMember<Tpx16u, 1>(44);
  FloatKernelMember<Tpx16u, 3>(45);
  FloatKernelMember<Tpx16u, 4>(46);
  FloatKernelMember<Tpx16s, 1>(47);
  FloatKernelMember<Tpx16s, 3>(48);
  FloatKernelMember<Tpx16s, 4>(49);
}
TEST(FilterBorderModel, Float32And64) {
  FloatDataMember<Tpx32f, 1>(51);
  FloatDataMember<Tpx32f, 3>(52);
  FloatDataMember<Tpx32f, 4>(53);
  FloatDataMember<Tpx64f, 1>(54);
}

}  // namespace
