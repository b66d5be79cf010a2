// Deterministic random data for tests, mixed with the values where rules change.
#pragma once
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "support/image.h"

namespace tpxtest {

class Rng {
 public:
  explicit Rng(std::uint64_t seed = 0x5EED) : gen_(seed) {}
  std::uint64_t Bits() { return gen_(); }
  int Int(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(gen_); }  // [lo, hi]
  double Real(double lo, double hi) { return std::uniform_real_distribution<double>(lo, hi)(gen_); }
  bool Chance(double p) { return Real(0, 1) < p; }

  // A sample of T over the whole range (floats: a wide finite range).
  template <class T>
  T Sample() {
    if constexpr (std::is_floating_point_v<T>) {
      return static_cast<T>(Real(-1000.0, 1000.0));
    } else {
      using W = std::conditional_t<std::is_signed_v<T>, long long, unsigned long long>;
      return static_cast<T>(std::uniform_int_distribution<W>(std::numeric_limits<T>::lowest(),
                                                             std::numeric_limits<T>::max())(gen_));
    }
  }

 private:
  std::mt19937_64 gen_;
};

// The extremes of T and the values next to them, which most saturation rules turn on.
template <class T>
std::vector<T> Extremes() {
  if constexpr (std::is_floating_point_v<T>) {
    return {T(0), T(-0.0), T(1), T(-1), T(0.5), T(-0.5), T(1.5), T(2.5), std::numeric_limits<T>::max(),
            std::numeric_limits<T>::lowest(), std::numeric_limits<T>::infinity(),
            -std::numeric_limits<T>::infinity(), std::numeric_limits<T>::quiet_NaN()};
  } else {
    const T lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
    return {T(0), T(1), lo, T(lo + 1), hi, T(hi - 1), T(hi / 2), T(hi / 2 + 1)};
  }
}

// Fills the region with random samples; with probability pSpecial a sample is drawn from
// `special` instead (Extremes<T>() when empty).
template <class T>
void FillRandom(GuardedImage<T>& img, Rng& rng, double pSpecial = 0.1, std::vector<T> special = {}) {
  if (special.empty()) special = Extremes<T>();
  for (int y = 0; y < img.Height(); ++y)
    for (int i = 0; i < img.RowSamples(); ++i)
      img.Row(y)[i] = rng.Chance(pSpecial) ? special[rng.Int(0, static_cast<int>(special.size()) - 1)]
                                           : rng.template Sample<T>();
}

// Fills the region with samples drawn from a small set (many exact ties).
template <class T>
void FillFrom(GuardedImage<T>& img, Rng& rng, const std::vector<T>& values) {
  for (int y = 0; y < img.Height(); ++y)
    for (int i = 0; i < img.RowSamples(); ++i)
      img.Row(y)[i] = values[rng.Int(0, static_cast<int>(values.size()) - 1)];
}

}  // namespace tpxtest
