// Threshold family: every export against a plain model of its rule on samples with many exact
// ties, guard bands and AC4 alpha, the row kernel's AVX twin against its scalar twin, the 16u
// streaming choice, and the check order.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>

#include "arith/threshold.h"
#include "arith_util.h"
#include "tpxip.h"

namespace {

using namespace decide;
using tpx::Isa;

enum class Fam { kByOp, kGT, kLT, kValByOp, kGTVal, kLTVal, kLTValGTVal };

template <class T>
struct Args {
  T t[4], v[4], tGT[4], vGT[4];  // the row rules' parameter order; LTValGTVal: t, v are the LT pair
  int cmpOp = 0;
};

// The rules as written. GT and LT are the processor's minimum and maximum with the sample
// first: the sample only where it is strictly below (above), so NaN or a tie gives t.
template <class T>
T Model(Fam f, T s, const Args<T>& a, int c) {
  const T t = a.t[c], v = a.v[c];
  switch (f) {
    case Fam::kByOp: return Model(a.cmpOp == 0 ? Fam::kLT : Fam::kGT, s, a, c);
    case Fam::kGT: return s < t ? s : t;
    case Fam::kLT: return s > t ? s : t;
    case Fam::kValByOp: return Model(a.cmpOp == 0 ? Fam::kLTVal : Fam::kGTVal, s, a, c);
    case Fam::kGTVal: return s > t ? v : s;
    case Fam::kLTVal: return s < t ? v : s;
    case Fam::kLTValGTVal: return s < t ? v : s > a.tGT[c] ? a.vGT[c] : s;
  }
  return s;
}

template <class T>
struct Case {
  std::string name;
  Fam fam;
  Layout layout;
  std::function<TpxStatus(const T*, int, T*, int, TpxSize, const Args<T>&)> r;
  std::function<TpxStatus(T*, int, TpxSize, const Args<T>&)> ir;
};

template <class T>
auto& Cases() { return Registry<Case<T>>(); }

#define ARGS_1(T, L) ChArg<Layout::L>(a.t)
#define ARGS_OP(T, L) ARGS_1(T, L), a.cmpOp
#define ARGS_2(T, L) ARGS_1(T, L), ChArg<Layout::L>(a.v)
#define ARGS_2OP(T, L) ARGS_2(T, L), a.cmpOp
#define ARGS_4(T, L) ARGS_2(T, L), ChArg<Layout::L>(a.tGT), ChArg<Layout::L>(a.vGT)
#define ADD_CASE(FamName, F, ARGS, T, L)                                                                          \
  Cases<Tpx##T>().push_back(Case<Tpx##T>{"tpxiThreshold" #FamName "_" #T "_" #L "R", F, Layout::L,                 \
      [](const Tpx##T* s, int ss, Tpx##T* d, int ds, TpxSize r, const Args<Tpx##T>& a) {                          \
        return tpxiThreshold##FamName##_##T##_##L##R(s, ss, d, ds, r, ARGS(T, L)); },                             \
      [](Tpx##T* d, int ds, TpxSize r, const Args<Tpx##T>& a) { return tpxiThreshold##FamName##_##T##_##L##IR(d, ds, r, ARGS(T, L)); }}),
#define ADD_ALL(T, L)                                                                                         \
  ADD_CASE(, Fam::kByOp, ARGS_OP, T, L) ADD_CASE(_GT, Fam::kGT, ARGS_1, T, L) ADD_CASE(_LT, Fam::kLT, ARGS_1, T, L) \
  ADD_CASE(_Val, Fam::kValByOp, ARGS_2OP, T, L) ADD_CASE(_LTValGTVal, Fam::kLTValGTVal, ARGS_4, T, L)
#define ADD_VALS(T, L) ADD_CASE(_GTVal, Fam::kGTVal, ARGS_2, T, L) ADD_CASE(_LTVal, Fam::kLTVal, ARGS_2, T, L)
const bool kRegistered = (TPX_THRESHOLD_MEMBERS(ADD_ALL) TPX_THRESHOLD_VAL_MEMBERS(ADD_VALS) true);

template <class T>
Args<T> RandomArgs(Rng& rng) {
  const std::vector<T> piv = Pivots<T>(), around = SamplesAround<T>(), ext = Extremes<T>();
  auto pick = [&](const std::vector<T>& v) { return v[rng.Int(0, int(v.size()) - 1)]; };
  Args<T> a;
  for (int c = 0; c < 4; ++c) {
    a.t[c] = pick(rng.Chance(0.8) ? piv : ext), a.tGT[c] = pick(rng.Chance(0.8) ? piv : ext);  // NaN among them
    a.v[c] = pick(around), a.vGT[c] = pick(around);
    if (a.tGT[c] < a.t[c]) std::swap(a.tGT[c], a.t[c]);
  }
  a.cmpOp = rng.Chance(0.5) ? tpxCmpLess : tpxCmpGreater;
  return a;
}

// Expected destination: the model on processed samples, the old destination elsewhere.
template <class T>
void Expect(const Case<T>& k, const GuardedImage<T>& src, const GuardedImage<T>& old, GuardedImage<T>& want, const Args<T>& a) {
  const int ch = want.Channels();
  want.CopyFrom(old);
  for (int y = 0; y < src.Height(); ++y)
    for (int i = 0; i < src.RowSamples(); ++i)
      if (i % ch < tpx::Processed(k.layout)) want.Row(y)[i] = Model(k.fam, src.Row(y)[i], a, i % ch);
}

TEST(Threshold, EveryExportFollowsItsRuleOnTiesNaNAndAlpha) {
  Rng rng(0x7E5);
  ForEachType([&](auto tag) {
    using T = decltype(tag);
    for (const Case<T>& k : Cases<T>()) {
      const int ch = tpx::Stride(k.layout);
      for (const tpxtest::Shape& sh : decide::Shapes(Lanes<T>())) {
        GuardedImage<T> src(sh.width, sh.height, ch, sh.padSamples, sh.misalign), want(sh.width, sh.height, ch),
            dst(sh.width, sh.height, ch, (sh.padSamples * 7) % 11, (sh.misalign + 2) % 5);
        FillFrom(src, rng, SamplesAround<T>()), FillFrom(dst, rng, SamplesAround<T>());
        const Args<T> a = RandomArgs<T>(rng);
        Expect(k, src, dst, want, a);
        const std::string where = k.name + " " + std::to_string(sh.width) + "x" + std::to_string(sh.height);
        ASSERT_TRUE(k.r(src.Data(), src.Step(), dst.Data(), dst.Step(), src.Size(), a) == tpxOk && SameSamples(dst, want) && dst.GuardsIntact())
            << where;
        // In place on the same source: the alpha of the source image itself stays.
        Expect(k, src, src, want, a);
        ASSERT_TRUE(k.ir(src.Data(), src.Step(), src.Size(), a) == tpxOk && SameSamples(src, want) && src.GuardsIntact()) << where << " IR";
      }
    }
  });
}

// The row kernel: AVX twin (plain and streaming stores) against the scalar twin, bit-exact, for
// every rule, type and layout, every length up to 3V+3 pixels and every misalignment.
template <class Op, class T, Layout L>
void TwinsAgree(Rng& rng) {
  constexpr int C = tpx::Stride(L);
  T params[Op::kParams][4];
  const Args<T> a = RandomArgs<T>(rng);
  std::memcpy(params, &a, sizeof(params));
  const tpx::ThreshTile<Op, T, L> tile(params);
  for (int px = 0; px <= 3 * Lanes<T>() + 3; ++px)
    for (int mis = 0; mis < 4; ++mis) {
      // Out of place over an old destination; in place (ip) with streaming stores where the head
      // reaches the boundary.
      GuardedImage<T> s(px, 1, C, 0, mis), ref(px, 1, C, 0, 3 - mis), got(px, 1, C), ip0(px, 1, C, 0, mis), ip1(px, 1, C, 0, (mis + 1) % 4);
      FillFrom(s, rng, SamplesAround<T>()), FillFrom(ref, rng, SamplesAround<T>());
      got.CopyFrom(ref), ip0.CopyFrom(s), ip1.CopyFrom(s);
      tpx::ThresholdRow<Op, T, L, Isa::kScalar>(s.Data(), ref.Data(), px * C, tile);
      tpx::ThresholdRow<Op, T, L, Isa::kAvx>(s.Data(), got.Data(), px * C, tile);
      tpx::ThresholdRow<Op, T, L, Isa::kScalar>(ip0.Data(), ip0.Data(), px * C, tile);
      tpx::ThresholdRow<Op, T, L, Isa::kAvx, true>(ip1.Data(), ip1.Data(), px * C, tile);
      ASSERT_TRUE(SameSamples(ref, got) && got.GuardsIntact() && SameSamples(ip0, ip1) && ip1.GuardsIntact()) << px << " " << mis;
    }
}

TEST(Threshold, AvxRowEqualsScalarRow) {
  Rng rng(0x7A1);
  ForEachType([&](auto tag) {
    using T = decltype(tag);
    ForEachLayout([&](auto lay) {
      std::apply([&](auto... op) { (TwinsAgree<decltype(op), T, lay.value>(rng), ...); },
                 std::tuple<tpx::ThreshGT, tpx::ThreshLT, tpx::ThreshGTVal, tpx::ThreshLTVal, tpx::ThreshLTValGTVal>{});
    });
  });
}

// 16u members ask for the cache size only from 0x40001 samples on, and stream where the image
// is at least that large; the samples come out the same either way.
int gQueries = 0;
int SmallCache(int* size) { ++gQueries; *size = 1; return 0; }
int UnknownCache(int*) { ++gQueries; return 1; }

TEST(Threshold, StreamingFor16uIsChosenBySizeAndChangesNothing) {
  using Op = tpx::ThreshLTValGTVal;
  const Tpx16u params[4][4] = {{100, 100, 100}, {7, 7, 7}, {250, 250, 250}, {9, 9, 9}};
  auto run = [&](GuardedImage<Tpx16u>& s, GuardedImage<Tpx16u>& d, tpx::CacheSizeQuery q) {
    if (s.Channels() == 1) tpx::ThresholdRegion<Op, Tpx16u, Layout::C1>(s.Data(), s.Step(), d.Data(), d.Step(), s.Size(), params, q);
    else tpx::ThresholdRegion<Op, Tpx16u, Layout::C3>(s.Data(), s.Step(), d.Data(), d.Step(), s.Size(), params, q);
  };
  // The amount is counted in samples: 0x40000 and 0x40001 in C1, 87382 C3 pixels = 0x40002.
  for (auto [width, ch, asks] : {std::tuple{0x40000, 1, 0}, {0x40001, 1, 1}, {87382, 3, 1}}) {
    GuardedImage<Tpx16u> s(width, 1, ch), d(width, 1, ch);
    gQueries = 0;
    run(s, d, SmallCache);
    EXPECT_EQ(gQueries, asks) << width;
  }
  Rng rng(0x16);
  GuardedImage<Tpx16u> s(301, 299, 3, 5, 1), plain(301, 299, 3, 3, 2), streamed(301, 299, 3, 1, 3), ref(301, 299, 3);
  tpxtest::FillFrom(s, rng, SamplesAround<Tpx16u>());
  run(s, plain, UnknownCache), run(s, streamed, SmallCache);
  tpx::ThresholdRegion<Op, Tpx16u, Layout::C3, Isa::kScalar>(s.Data(), s.Step(), ref.Data(), ref.Step(), s.Size(), params);
  EXPECT_TRUE(SameSamples(plain, ref) && SameSamples(streamed, ref) && plain.GuardsIntact() && streamed.GuardsIntact());
}

// Pointers, size, step, then the family's own argument; _Val tests cmpOp first of all.
TEST(Threshold, CheckOrderWithTwoFaults) {
  Tpx8u img[64] = {}, keep[64];
  std::memset(keep, 0x5A, sizeof(keep));
  const TpxSize ok{4, 4}, empty{0, 4};
  const Tpx8u three[3] = {1, 2, 3}, lower[3] = {5, 5, 5}, upper[3] = {9, 9, 4};
  // Null and empty: the pointer first. Empty and bad step: the size first.
  EXPECT_EQ(tpxiThreshold_GT_8u_C1R(nullptr, 4, keep, 4, empty, 1), tpxErrNullPtr);
  EXPECT_EQ(tpxiThreshold_GT_16s_C1IR(reinterpret_cast<Tpx16s*>(img), 0, empty, 1), tpxErrSize);
  EXPECT_EQ(tpxiThreshold_GTVal_8u_C3R(img, 12, keep, 12, empty, three, nullptr), tpxErrNullPtr);
  EXPECT_EQ(tpxiThreshold_LTVal_8u_C4IR(img, 16, empty, nullptr, three), tpxErrNullPtr);
  // cmpOp: after the step checks in tpxiThreshold_*, ahead of everything in _Val.
  EXPECT_EQ(tpxiThreshold_8u_C1R(img, 0, keep, 4, ok, 1, tpxCmpLessEq), tpxErrStep);
  EXPECT_EQ(tpxiThreshold_Val_32f_C3IR(nullptr, 0, empty, nullptr, nullptr, 2), tpxErrNotSupportedMode);
  for (int op : {1, 2, 3, 5, 12, -1, -4, 0x7ffffffc})
    EXPECT_EQ(tpxiThreshold_8u_C1R(img, 4, keep, 4, ok, 1, op), tpxErrNotSupportedMode) << op;
  // Threshold order: after pointers (all four tested), size and step; channel by channel.
  EXPECT_EQ(tpxiThreshold_LTValGTVal_8u_C1R(img, 0, keep, 4, ok, 9, 0, 5, 0), tpxErrStep);
  EXPECT_EQ(tpxiThreshold_LTValGTVal_8u_C3R(img, 12, keep, 12, empty, lower, three, nullptr, three), tpxErrNullPtr);
  EXPECT_EQ(tpxiThreshold_LTValGTVal_8u_C3R(img, 12, keep, 12, ok, lower, three, upper, three), tpxErrThresholdOrder);
  EXPECT_EQ(tpxiThreshold_LTValGTVal_8u_AC4R(img, 16, keep, 16, ok, lower, three, upper, three), tpxErrThresholdOrder);
  for (Tpx8u b : keep) ASSERT_EQ(b, 0x5A);  // no failing call wrote anything
}

}  // namespace
