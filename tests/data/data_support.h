// Shared pieces of the copy-and-rearrange tests: fake cache queries, the sweep that runs an
// export over every shape against a reference model, and bytewise comparison with guards.
#pragma once
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

#include "support/image.h"
#include "support/random.h"
#include "support/sweep.h"
#include "tpxip.h"

namespace datatest {

using tpxtest::GuardedImage;
using tpxtest::Rng;

// The sample types of the family, for member tables and typed tests.
#define DATATEST_TYPES(X) X(8u) X(16u) X(16s) X(32s) X(32f)
using AllTypes = ::testing::Types<Tpx8u, Tpx16u, Tpx16s, Tpx32s, Tpx32f>;

// Layouts C1, C3, C4, AC4 in this order: samples a pixel and samples an operation writes.
inline constexpr int kLayoutChannels[4] = {1, 3, 4, 4};
inline constexpr int kLayoutWritten[4] = {1, 3, 4, 3};

inline int CacheTiny(int* size) { *size = 1; return 0; }            // every call past a floor streams
inline int CacheUnknown(int* size) { *size = 0; return -1; }        // plain stores
inline int CacheHuge(int* size) { *size = 0x7fffffff; return 0; }   // plain stores, query succeeds

// Samples of an image without padding, as the reference models see it.
template <class T>
struct Plain {
  int w, h, ch;
  std::vector<T> v;
  explicit Plain(const GuardedImage<T>& img) : w(img.Width()), h(img.Height()), ch(img.Channels()), v(img.Samples()) {}
  T& At(int x, int y, int c = 0) { return v[(static_cast<std::size_t>(y) * w + x) * ch + c]; }
  const T& At(int x, int y, int c = 0) const { return v[(static_cast<std::size_t>(y) * w + x) * ch + c]; }
};

// Bytewise equality of an image with the expected samples, and untouched guard bands.
template <class T>
::testing::AssertionResult Same(const GuardedImage<T>& got, const Plain<T>& want) {
  if (!got.GuardsIntact()) return ::testing::AssertionFailure() << "written outside the region";
  const std::vector<T> g = got.Samples();
  for (std::size_t i = 0; i < g.size(); ++i)
    if (std::memcmp(&g[i], &want.v[i], sizeof(T)) != 0) {
      const std::size_t px = i / want.ch;
      return ::testing::AssertionFailure() << "sample " << i % want.ch << " of pixel (" << px % want.w << ", "
                                           << px / want.w << ") in " << want.w << "x" << want.h;
    }
  return ::testing::AssertionSuccess();
}

// Runs call(src, dst) over every shape of tpxtest::Shapes(V), source of srcCh and destination of
// dstCh samples a pixel at the same extents, random contents in both. ref(src, want) turns the
// destination's samples before the call into the expected ones.
template <class T, class Call, class Ref>
void Sweep(int srcCh, int dstCh, int V, Rng& rng, Call&& call, Ref&& ref) {
  for (const tpxtest::Shape sh : tpxtest::Shapes(V)) {
    GuardedImage<T> src(sh.width, sh.height, srcCh, sh.padSamples, sh.misalign);
    GuardedImage<T> dst(sh.width, sh.height, dstCh, (sh.padSamples * 3) % 7, (sh.misalign + 3) % 5);
    tpxtest::FillRandom(src, rng);
    tpxtest::FillRandom(dst, rng);
    Plain<T> want(dst);
    ref(Plain<T>(src), want);
    ASSERT_EQ(tpxOk, call(src, dst)) << sh.width << "x" << sh.height;
    ASSERT_TRUE(Same(dst, want)) << "pad " << sh.padSamples << " mis " << sh.misalign;
  }
}

// Bits of a mask with random zeros: runs of zeros and non-zeros, so that whole 16-pixel steps of
// either kind occur beside mixed ones.
inline void FillMask(GuardedImage<Tpx8u>& m, Rng& rng) {
  for (int y = 0; y < m.Height(); ++y) {
    int run = 0;
    bool on = rng.Chance(0.5);
    for (int x = 0; x < m.Width(); ++x) {
      if (run-- <= 0) {
        on = !on;
        run = rng.Chance(0.5) ? rng.Int(0, 3) : rng.Int(10, 40);
      }
      m.At(x, y) = on ? static_cast<Tpx8u>(rng.Int(1, 255)) : 0;
    }
  }
}

}  // namespace datatest
