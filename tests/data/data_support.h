// Shared pieces of the copy-and-rearrange tests: fake cache queries, the sweep of an export over
// shapes against a reference model, bytewise comparison with guards, and vector-versus-scalar runs.
#pragma once
#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <vector>

#include "core/isa.h"
#include "support/image.h"
#include "support/random.h"
#include "support/sweep.h"
#include "tpxip.h"
#ifdef TPX_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace datatest {

using tpxtest::GuardedImage;
using tpxtest::Rng;
using tpxtest::Shape;

// The sample types of the family, for member tables and typed tests.
#define DATATEST_TYPES(X) X(8u) X(16u) X(16s) X(32s) X(32f)
using AllTypes = ::testing::Types<Tpx8u, Tpx16u, Tpx16s, Tpx32s, Tpx32f>;
// One family's members of one type in the layouts C1, C3, C4, AC4: DATATEST_L4(tpxiCopy, 8u, MR).
#define DATATEST_L4(P, TT, S) {P##_##TT##_C1##S, P##_##TT##_C3##S, P##_##TT##_C4##S, P##_##TT##_AC4##S}
#define DATATEST_TYPED_SUITE(Name)                 \
  template <class T>                               \
  class Name : public ::testing::Test {};          \
  TYPED_TEST_SUITE(Name, datatest::AllTypes)
// A file's member tables and typed suite: the file defines DATATEST_TABLES(TT), the static members
// of Api<Tpx##TT>, then writes DATATEST_API(Suite);
#define DATATEST_SPECIALIZE(TT) template <> struct Api<Tpx##TT> { DATATEST_TABLES(TT) };
#define DATATEST_API(Suite)               \
  template <class T>                      \
  struct Api;                             \
  DATATEST_TYPES(DATATEST_SPECIALIZE)     \
  DATATEST_TYPED_SUITE(Suite)

// Layouts C1, C3, C4, AC4 in this order: samples a pixel and samples an operation writes.
inline constexpr int kLayoutChannels[4] = {1, 3, 4, 4};
inline constexpr int kLayoutWritten[4] = {1, 3, 4, 3};

template <class T>
constexpr int Vec() { return static_cast<int>(32 / sizeof(T)); }

// Cache queries for the drivers; each counts itself in g_cacheQueries.
inline int g_cacheQueries = 0;
inline int CacheTiny(int* size) { return ++g_cacheQueries, *size = 1, 0; }            // every call past a floor streams
inline int CacheUnknown(int* size) { return ++g_cacheQueries, *size = 0, -1; }        // plain stores
inline int CacheHuge(int* size) { return ++g_cacheQueries, *size = 0x7fffffff, 0; }   // plain stores, query succeeds

// A copy of an image's region with guard bands of its own, padSamples and misalign as given.
template <class T>
GuardedImage<T> Clone(const GuardedImage<T>& img, int padSamples = 0, int misalign = 0) {
  GuardedImage<T> c(img.Width(), img.Height(), img.Channels(), padSamples, misalign);
  c.CopyFrom(img);
  return c;
}

template <class F>
void Each(int w, int h, F&& f) {
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) f(x, y);
}

// Untouched guard bands and bytewise equal samples.
template <class T>
::testing::AssertionResult Same(const GuardedImage<T>& got, const GuardedImage<T>& want) {
  int i = 0, y = 0;
  if (!got.GuardsIntact()) return ::testing::AssertionFailure() << "written outside the region";
  if (tpxtest::SameSamples(got, want, &i, &y)) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "sample " << i << " of row " << y << " in " << want.Width() << "x" << want.Height();
}

// Check order: call(faults) makes one call with the faults of a bit set, bit i standing for
// order[i] (tpxOk: a fault the family ignores). For every set the status must be its first fault's.
template <class Call>
::testing::AssertionResult FirstFaultWins(const std::vector<TpxStatus>& order, Call&& call) {
  for (int f = 0; f < 1 << order.size(); ++f)
    if (const TpxStatus want = f ? order[__builtin_ctz(f)] : tpxOk, got = call(f); got != want)
      return ::testing::AssertionFailure() << "faults " << f << ": status " << got << " instead of " << want;
  return ::testing::AssertionSuccess();
}

#ifdef TPX_HAVE_OPENCV
// OpenCV as an oracle: op(source, result) on a cv::Mat header of the source's region must give
// the samples of `got`, bytewise.
template <class T, class Op>
::testing::AssertionResult LikeOpenCv(const GuardedImage<T>& src, const GuardedImage<T>& got, Op&& op) {
  cv::Mat want;
  op(cv::Mat(src.Height(), src.Width(), CV_MAKETYPE(cv::DataType<T>::depth, src.Channels()), const_cast<T*>(src.Data()),
             static_cast<std::size_t>(src.Step())), want);
  for (int y = 0; y < got.Height(); ++y)
    if (want.size() != cv::Size(got.Width(), got.Height()) || std::memcmp(want.ptr(y), got.Row(y), got.RowSamples() * sizeof(T)))
      return ::testing::AssertionFailure() << "row " << y << " of " << got.Width() << "x" << got.Height() << " differs from OpenCV";
  return ::testing::AssertionSuccess();
}
#endif

// The destination of a sweep: random at the source's extents, random at swapped extents, or a
// copy of the source for the in-place forms.
enum Dst { kFresh, kSwapped, kCopyOfSrc };

// Runs call(src, dst) over the shapes, source of srcCh and destination of dstCh samples a pixel,
// random contents. px(src, want, x, y) turns the destination's samples before the call into the
// expected ones, for every source pixel.
template <class T, class Call, class Px>
void Sweep(const std::vector<Shape>& shapes, int srcCh, int dstCh, Rng& rng, Call&& call, Px&& px, Dst mode = kFresh) {
  for (const Shape sh : shapes) {
    const int w = mode == kSwapped ? sh.height : sh.width, h = mode == kSwapped ? sh.width : sh.height;
    GuardedImage<T> src(sh.width, sh.height, srcCh, sh.padSamples, sh.misalign);
    GuardedImage<T> dst(w, h, dstCh, (sh.padSamples * 3) % 7, (sh.misalign + 3) % 5);
    tpxtest::FillRandom(src, rng);
    if (mode == kCopyOfSrc) dst.CopyFrom(src);
    else tpxtest::FillRandom(dst, rng);
    GuardedImage<T> want = Clone(dst);
    ASSERT_EQ(tpxOk, call(src, dst)) << sh.width << "x" << sh.height;
    Each(sh.width, sh.height, [&](int x, int y) { px(src, want, x, y); });
    ASSERT_TRUE(Same(dst, want)) << sh.width << "x" << sh.height << " pad " << sh.padSamples << " mis " << sh.misalign;
  }
}

// Runs f(dst, query) on `a` with a one-byte cache (every driver past its floor streams) and on a
// copy with no known cache (plain stores): both must end equal, with the guards intact.
template <class T, class F>
void StreamsLikePlain(GuardedImage<T>& a, F&& f) {
  GuardedImage<T> b = Clone(a);
  f(a, CacheTiny);
  f(b, CacheUnknown);
  ASSERT_TRUE(Same(a, b));
}

using Avx = std::integral_constant<tpx::Isa, tpx::Isa::kAvx>;
using Scalar = std::integral_constant<tpx::Isa, tpx::Isa::kScalar>;

// Runs k(isa, buffers) with the vector kernels on random 64-byte aligned buffers of the given
// sample counts and with their scalar twins on copies of them: every buffer must end bytewise
// equal, and nothing past a buffer's end may be written.
template <class T, class K>
::testing::AssertionResult Twin(Rng& rng, const std::vector<int>& sizes, K&& k) {
  std::vector<GuardedImage<T>> a, b;  // reserved: never moved, the pointers stay
  a.reserve(sizes.size()), b.reserve(sizes.size());
  std::vector<T*> pa, pb;
  for (int n : sizes) {
    tpxtest::FillRandom(a.emplace_back(n, 1), rng);
    pa.push_back(a.back().Data()), pb.push_back(b.emplace_back(Clone(a.back())).Data());
  }
  k(Avx{}, pa.data());
  k(Scalar{}, pb.data());
  for (std::size_t i = 0; i < sizes.size(); ++i)
    if (::testing::AssertionResult r = Same(a[i], b[i]); !r || !b[i].GuardsIntact())
      return ::testing::AssertionFailure() << "buffer " << i << ": " << r.message();
  return ::testing::AssertionSuccess();
}

// A mask of w x h with a random step and misalignment and random zeros: runs of zeros and
// non-zeros, so that whole 16-pixel steps of either kind occur beside mixed ones.
inline std::unique_ptr<GuardedImage<Tpx8u>> RandomMask(int w, int h, Rng& rng) {
  auto m = std::make_unique<GuardedImage<Tpx8u>>(w, h, 1, rng.Int(0, 9), rng.Int(0, 5));
  int run = 0;
  bool on = rng.Chance(0.5);
  Each(w, h, [&](int x, int y) {
    if (run-- <= 0) on = !on, run = rng.Chance(0.5) ? rng.Int(0, 3) : rng.Int(10, 40);
    m->At(x, y) = on ? static_cast<Tpx8u>(rng.Int(1, 255)) : 0;
  });
  return m;
}

}  // namespace datatest
