// The general filter against a plain correlation model: every member, many kernel sizes,
// regions smaller than, equal to and larger than the kernel, every border kind with and
// without in-memory sides, padded and misaligned images, guard bands around the destination.
#include <gtest/gtest.h>

#include <vector>

#include "filter_model.h"

namespace {

using namespace filtertest;

const TpxSize kKernels[] = {{1, 1}, {2, 2}, {1, 5}, {5, 1}, {3, 3}, {5, 5}, {7, 5}, {11, 11}, {2, 3}, {4, 4}};
const int kBorders[] = {1, 3, 6, 240, 1 | 0x10, 3 | 0x40 | 0x20, 6 | 0x80, 3 | 0x10 | 0x80, 1 | 0x70};
enum Kind { kIntKernel, kFloatKernel, kFloatData };

// Integer kernels with a divisor 2^shift and a mode under which every route gives the same
// result; float kernels of multiples of 1/8 in every mode, bounded so that float sums stay
// exact; for 32f and 64f the sum in the sample's width, taps in the caller's order from the
// first product (zero taps and rare infinities and NaN included), bit-exact.
template <class T, int kCh>
void Member(Kind kind, int seed) {
  constexpr bool kFloat = std::is_floating_point_v<T>;
  Rng rng(seed);
  for (TpxSize k : kKernels) {
    const int n = k.width * k.height, ax = (k.width - 1) >> 1, ay = (k.height - 1) >> 1;
    std::vector<TpxSize> regions;
    for (int w : {1, k.width, k.width + 1, 72 / kCh + 5})  // smaller, equal, one larger, a block of 64 samples and a tail
      for (int h : {1, k.height, k.height + 3}) regions.push_back({w, h});
    if (kFloat) regions.push_back({19, 131});  // side strips in several bands of rows
    for (TpxSize roi : regions) {
      Prepared p;
      ASSERT_EQ(tpxOk, p.Size(k, roi, kDataType<T>, kind == kIntKernel ? 7 : kDataType<T> == 19 ? 19 : 13, kCh));
      long long maxAbs = 0;
      int bound = kind == kIntKernel ? 600 : 40;  // every sum of n taps below 2^24
      if constexpr (!kFloat) maxAbs = std::max<long long>(-static_cast<long long>(std::numeric_limits<T>::lowest()), std::numeric_limits<T>::max());
      while (bound > 1 && maxAbs * bound * n >= (1 << 24)) bound /= 2;
      std::vector<double> K(n);
      for (auto& v : K) v = kind == kIntKernel ? rng.Int(-bound, bound) : kind == kFloatKernel ? rng.Int(-bound, bound) / 8.0
                          : rng.Chance(0.1) ? (rng.Chance(0.5) ? 0.0 : -0.0) : static_cast<T>(rng.Real(-2, 2));
      const std::vector<Tpx16s> K16(K.begin(), K.end());
      const std::vector<float> K32(K.begin(), K.end());
      const int shift = rng.Int(0, 4), mode = kind == kIntKernel ? std::vector<int>{1, 2, 16, 17, 18}[rng.Int(0, 4)] : kind == kFloatKernel ? rng.Int(0, 2) : 1;
      if (kind == kIntKernel) ASSERT_GE(tpxiFilterBorderInit_16s(K16.data(), k, 1 << shift, kDataType<T>, kCh, mode, p.Spec()), 0);
      else if (kDataType<T> == 19) ASSERT_EQ(tpxOk, tpxiFilterBorderInit_64f(K.data(), k, 19, 1, 1, p.Spec()));
      else ASSERT_EQ(tpxOk, tpxiFilterBorderInit_32f(K32.data(), k, kDataType<T>, kCh, mode, p.Spec()));
      // 16u, and 16s with several channels or a thin kernel, take the float path.
      const bool floatPath = kind == kFloatKernel || std::is_same_v<T, Tpx16u> ||
                             (std::is_same_v<T, Tpx16s> && (kCh != 1 || k.width < 3 || k.height == 1));
      for (int bt : kBorders) {
        World<T> world(roi.width, roi.height, 12, kCh, rng.Int(0, 5), rng.Int(0, 3));
        if constexpr (kFloat) tpxtest::FillRandom<T>(world.img, rng, 0.01, {INFINITY, -INFINITY, NAN, T(0), T(-0.0)});
        else tpxtest::FillRandom(world.img, rng, 0.15);
        GuardedImage<T> dst(roi.width, roi.height, kCh, rng.Int(0, 4), rng.Int(0, 3));
        T value[4];
        for (T& v : value) v = kFloat ? T(rng.Int(-64, 64) / 8.0) : rng.template Sample<T>();
        ASSERT_EQ(tpxOk, (Run<T, kCh>(world.Region(), world.Step(), dst.Data(), dst.Step(), roi, bt, value, p.Spec(), p.Buf())));
        const Extended<T> e(world, bt, value, k.width, k.height);
        for (int y = 0; y < roi.height; ++y)
          for (int x = 0; x < roi.width; ++x)
            for (int c = 0; c < kCh; ++c) {
              auto at = [&](int i) { return e(x - ax + i % k.width, y - ay + i / k.width, c); };
              T want{};
              if constexpr (kFloat) {
                for (int i = 0; i < n; ++i) want = i ? T(want + static_cast<T>(K[i]) * at(i)) : static_cast<T>(K[i]) * at(i);
              } else {
                long double q = 0;
                for (int i = 0; i < n; ++i) q += static_cast<long double>(K[i]) * at(i);
                q /= 1 << (kind == kIntKernel ? shift : 0);
                const int m = mode & 3;  // integer rows: 0 (with the accurate flag) floors, 2 is half up
                want = Saturate<T>(floatPath ? RoundExact(q, m) : m == 0 ? static_cast<long long>(std::floor(q))
                                                              : m == 2 ? static_cast<long long>(std::floor(q + 0.5L)) : RoundExact(q, 1));
              }
              const T got = dst.At(x, y, c);
              ASSERT_TRUE(!std::memcmp(&want, &got, sizeof(T)) || (want != want && got != got))
                  << "type " << kDataType<T> << " C" << kCh << " kind " << kind << " k=" << k.width << "x" << k.height
                  << " roi=" << roi.width << "x" << roi.height << " bt=" << bt << " at " << x << "," << y << "," << c
                  << " want " << +want << " got " << +got;
            }
        ASSERT_TRUE(dst.GuardsIntact());
      }
    }
  }
}

template <class T, int... kCh>
void Members(Kind kind, int seed) { (Member<T, kCh>(kind, seed + kCh), ...); }

// 16s C1 takes the integer rows; C3, C4, thin kernels and 16u the float path.
TEST(FilterBorderModel, IntegerKinds) {
  for (Kind kind : {kIntKernel, kFloatKernel})
    Members<Tpx8u, 1, 3, 4>(kind, 10 + kind), Members<Tpx16s, 1, 3, 4>(kind, 20 + kind), Members<Tpx16u, 1, 3, 4>(kind, 30 + kind);
}
TEST(FilterBorderModel, FloatData) { Members<Tpx32f, 1, 3, 4>(kFloatData, 60), Members<Tpx64f, 1>(kFloatData, 65); }

}  // namespace
