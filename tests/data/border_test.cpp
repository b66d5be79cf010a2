// Border copies and the border-type value: every member against a pixel-by-pixel model of the
// index rules, the row kernels against their scalar twins, guard bands, the AC4 rules, the check
// order, the 64-bit frame, and OpenCV's copyMakeBorder as an independent oracle.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "core/border_type.h"
#include "data/border_members.h"
#include "data/border_rows.h"
#include "support/image.h"
#include "support/random.h"
#include "tpxip.h"

#ifdef TPX_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using tpx::BorderKind;
using tpx::Isa;
using tpx::Layout;
using tpxtest::GuardedImage;
using tpxtest::Rng;

// ---- The model ---------------------------------------------------------------------------------
// Where a virtual index reads, by walking reflections and periods one step at a time.
long long ModelIndex(BorderKind kind, long long i, long long n) {
  switch (kind) {
    case BorderKind::kRepl:
      return i < 0 ? 0 : i >= n ? n - 1 : i;
    case BorderKind::kWrap:
      while (i < 0) i += n;
      while (i >= n) i -= n;
      return i;
    case BorderKind::kMirror:
      if (n == 1) return 0;
      while (i < 0 || i >= n) i = i < 0 ? -i : 2 * (n - 1) - i;
      return i;
    case BorderKind::kMirrorEdge:
      while (i < 0 || i >= n) i = i < 0 ? -i - 1 : 2 * n - 1 - i;
      return i;
    default:
      return (i >= 0 && i < n) ? i : -1;
  }
}

// The destination a call must leave: `before` is the destination as it stood (for the in-place
// forms, with the source already in it), `src` reads source pixel (x, y) sample c.
template <class T, class Src>
std::vector<T> ModelImage(BorderKind kind, int S, bool ac4, Src src, long long w, long long h,
                          std::vector<T> before, long long dw, long long dh, long long top, long long left,
                          const T* value) {
  std::vector<T>& d = before;
  const int written = ac4 ? 3 : S;  // samples a border pixel gets
  auto at = [&](long long x, long long y) { return &d[static_cast<std::size_t>((y * dw + x) * S)]; };
  for (long long y = top; y < top + h; ++y)
    for (long long x = 0; x < dw; ++x) {
      const long long i = x - left;
      if (i >= 0 && i < w) {
        for (int c = 0; c < S; ++c) at(x, y)[c] = src(i, y - top, c);
      } else if (kind == BorderKind::kConst) {
        for (int c = 0; c < written; ++c) at(x, y)[c] = value[c];
      } else if (kind != BorderKind::kTransp) {
        for (int c = 0; c < written; ++c) at(x, y)[c] = src(ModelIndex(kind, i, w), y - top, c);
      }
    }
  for (long long y = 0; y < dh; ++y) {
    if ((y >= top && y < top + h) || kind == BorderKind::kTransp) continue;
    if (kind == BorderKind::kConst) {
      for (long long x = 0; x < dw; ++x)
        for (int c = 0; c < written; ++c) at(x, y)[c] = value[c];
    } else {
      const long long from = top + ModelIndex(kind, y - top, h);
      std::memcpy(at(0, y), at(0, from), static_cast<std::size_t>(dw * S) * sizeof(T));
    }
  }
  return d;
}

template <class T>
bool SameBytes(const std::vector<T>& a, const std::vector<T>& b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

// ---- Members as data ---------------------------------------------------------------------------
template <class T>
struct Member {
  std::string name;
  BorderKind kind;
  Layout layout;
  std::function<TpxStatus(const T*, int, TpxSize, T*, int, TpxSize, int, int, const T*)> r;
  std::function<TpxStatus(T*, int, TpxSize, TpxSize, int, int, const T*)> ir;
  std::function<TpxStatus(const T*, long long, TpxSizeL, T*, long long, TpxSizeL, long long, long long, const T*)> rl;
  std::function<TpxStatus(T*, long long, TpxSizeL, TpxSizeL, long long, long long, const T*)> irl;
};

using Registry = std::tuple<std::vector<Member<Tpx8u>>, std::vector<Member<Tpx16u>>, std::vector<Member<Tpx16s>>,
                            std::vector<Member<Tpx32s>>, std::vector<Member<Tpx32f>>>;

#define TPX_T_VALUE_C1 , *v
#define TPX_T_VALUE_C3 , v
#define TPX_T_VALUE_C4 , v
#define TPX_T_VALUE_AC4 , v
#define TPX_T_ADD(Name, Kind, T, L, VAL)                                                                    \
  std::get<std::vector<Member<Tpx##T>>>(reg).push_back(Member<Tpx##T>{                                      \
      "tpxi" #Name "_" #T "_" #L, BorderKind::Kind, Layout::L,                                              \
      [](const Tpx##T* s, int ss, TpxSize sr, Tpx##T* d, int ds, TpxSize dr, int t, int l,                  \
         [[maybe_unused]] const Tpx##T* v) { return tpxi##Name##_##T##_##L##R(s, ss, sr, d, ds, dr, t, l VAL); }, \
      [](Tpx##T* s, int ss, TpxSize sr, TpxSize dr, int t, int l, [[maybe_unused]] const Tpx##T* v) {       \
        return tpxi##Name##_##T##_##L##IR(s, ss, sr, dr, t, l VAL);                                          \
      },                                                                                                    \
      [](const Tpx##T* s, long long ss, TpxSizeL sr, Tpx##T* d, long long ds, TpxSizeL dr, long long t,     \
         long long l, [[maybe_unused]] const Tpx##T* v) {                                                   \
        return tpxi##Name##_##T##_##L##R_L(s, ss, sr, d, ds, dr, t, l VAL);                                  \
      },                                                                                                    \
      [](Tpx##T* s, long long ss, TpxSizeL sr, TpxSizeL dr, long long t, long long l,                       \
         [[maybe_unused]] const Tpx##T* v) { return tpxi##Name##_##T##_##L##IR_L(s, ss, sr, dr, t, l VAL); }});
#define TPX_T_CONST(T, L) TPX_T_ADD(CopyConstBorder, kConst, T, L, TPX_T_VALUE_##L)
#define TPX_T_REPL(T, L) TPX_T_ADD(CopyReplicateBorder, kRepl, T, L, )
#define TPX_T_MIRROR(T, L) TPX_T_ADD(CopyMirrorBorder, kMirror, T, L, )
#define TPX_T_WRAP(T, L) TPX_T_ADD(CopyWrapBorder, kWrap, T, L, )

const Registry& Members() {
  static const Registry all = [] {
    Registry reg;
    TPX_CONST_BORDER_MEMBERS(TPX_T_CONST)
    TPX_REPLICATE_BORDER_MEMBERS(TPX_T_REPL)
    TPX_MIRROR_BORDER_MEMBERS(TPX_T_MIRROR)
    TPX_WRAP_BORDER_MEMBERS(TPX_T_WRAP)
    return reg;
  }();
  return all;
}

template <class Fn>
void ForEveryType(Fn&& fn) {
  std::apply([&](const auto&... lists) { (fn(lists), ...); }, Members());
}

int MemberCount() {
  int n = 0;
  ForEveryType([&](const auto& list) { n += static_cast<int>(list.size()); });
  return n;
}

// ---- One call against the model -------------------------------------------------------------------
enum class Form { kR, kIR, kRL, kIRL };

struct Geometry {
  int w, h, left, top, right, bottom;
  int srcPad, srcMis, dstPad, dstMis;
};

Geometry RandomGeometry(Rng& rng, int maxW) {
  Geometry g{};
  g.w = rng.Chance(0.1) ? rng.Int(maxW, 4 * maxW) : rng.Int(1, maxW);
  g.h = rng.Int(1, 7);
  auto border = [&](int n) { return rng.Chance(0.2) ? 0 : rng.Chance(0.5) ? rng.Int(1, 3) : rng.Int(0, 3 * n + 5); };
  g.left = border(g.w);
  g.right = border(g.w);
  g.top = border(g.h);
  g.bottom = border(g.h);
  g.srcPad = rng.Int(0, 2) * 7;
  g.srcMis = rng.Int(0, 3);
  g.dstPad = rng.Int(0, 2) * 5;
  g.dstMis = rng.Int(0, 3);
  return g;
}

template <class T>
::testing::AssertionResult CheckCall(const Member<T>& m, Form form, const Geometry& g, Rng& rng) {
  const int S = tpx::Stride(m.layout);
  const bool ac4 = m.layout == Layout::AC4;
  const int dw = g.left + g.w + g.right, dh = g.top + g.h + g.bottom;
  GuardedImage<T> src(g.w, g.h, S, g.srcPad, g.srcMis);
  GuardedImage<T> dst(dw, dh, S, g.dstPad, g.dstMis);
  tpxtest::FillRandom(src, rng);
  tpxtest::FillRandom(dst, rng);
  T value[4];
  for (T& v : value) v = rng.template Sample<T>();
  const bool inPlace = form == Form::kIR || form == Form::kIRL;
  if (inPlace)
    for (int y = 0; y < g.h; ++y)
      std::memcpy(&dst.At(g.left, g.top + y), src.Row(y), static_cast<std::size_t>(g.w * S) * sizeof(T));
  const std::vector<T> srcBefore = src.Samples();
  const std::vector<T> want = ModelImage<T>(
      m.kind, S, ac4, [&](long long x, long long y, int c) { return src.At(static_cast<int>(x), static_cast<int>(y), c); },
      g.w, g.h, dst.Samples(), dw, dh, g.top, g.left, value);
  const TpxSize sr{g.w, g.h}, dr{dw, dh};
  const TpxSizeL srl{g.w, g.h}, drl{dw, dh};
  TpxStatus st = tpxOk;
  switch (form) {
    case Form::kR: st = m.r(src.Data(), src.Step(), sr, dst.Data(), dst.Step(), dr, g.top, g.left, value); break;
    case Form::kIR: st = m.ir(&dst.At(g.left, g.top), dst.Step(), sr, dr, g.top, g.left, value); break;
    case Form::kRL: st = m.rl(src.Data(), src.Step(), srl, dst.Data(), dst.Step(), drl, g.top, g.left, value); break;
    case Form::kIRL: st = m.irl(&dst.At(g.left, g.top), dst.Step(), srl, drl, g.top, g.left, value); break;
  }
  const std::string where = m.name + " form " + std::to_string(static_cast<int>(form)) + " w=" + std::to_string(g.w) +
                            " h=" + std::to_string(g.h) + " l/t/r/b=" + std::to_string(g.left) + "/" +
                            std::to_string(g.top) + "/" + std::to_string(g.right) + "/" + std::to_string(g.bottom);
  if (st != tpxOk) return ::testing::AssertionFailure() << where << ": status " << st;
  if (!SameBytes(dst.Samples(), want)) return ::testing::AssertionFailure() << where << ": samples differ";
  if (!dst.GuardsIntact()) return ::testing::AssertionFailure() << where << ": wrote outside the destination";
  if (!SameBytes(src.Samples(), srcBefore) || !src.GuardsIntact())
    return ::testing::AssertionFailure() << where << ": touched the source";
  return ::testing::AssertionSuccess();
}

// ---- The border-type value ------------------------------------------------------------------------
TEST(BorderType, StepsInOrderWithNamedSets) {
  using tpx::CheckBorderType;
  for (int v = -300; v <= 600; ++v) {
    const bool over = v > 255;
    // The two commonest sets are the single tests (v & 15) != 6 and (v & 13) != 1.
    EXPECT_EQ(CheckBorderType(v, tpx::kBorderConstOnly) == tpxOk, !over && (v == 240 || (v & 15) == 6)) << v;
    EXPECT_EQ(CheckBorderType(v, tpx::kBorderReplMirror) == tpxOk, !over && (v == 240 || (v & 13) == 1)) << v;
    EXPECT_EQ(CheckBorderType(v, tpx::kBorderConstTransp) == tpxOk, !over && (v == 240 || (v & 14) == 6)) << v;
    EXPECT_EQ(CheckBorderType(v, tpx::kBorderReplMirrorConst) == tpxOk,
              !over && (v == 240 || (v & 15) == 6 || (v & 13) == 1)) << v;
  }
  EXPECT_EQ(CheckBorderType(tpxBorderConst | tpxBorderInMemTop, tpx::kBorderConstOnly), tpxOk);
  EXPECT_EQ(CheckBorderType(256, tpx::MakeBorderSet({BorderKind::kRepl, BorderKind::kWrap, BorderKind::kMirror,
                                                      BorderKind::kMirrorEdge, BorderKind::kConst, BorderKind::kTransp})),
            tpxErrBorder);
  EXPECT_EQ(CheckBorderType(256 + 6, tpx::kBorderConstOnly), tpxErrBorder);
  // 240 stands alone: a nibble of 0 with some of the flags is a nibble of 0.
  EXPECT_EQ(CheckBorderType(240, tpx::BorderSet{0}), tpxOk);
  EXPECT_EQ(CheckBorderType(0x70, tpx::kBorderReplMirrorConst), tpxErrBorder);
  EXPECT_EQ(tpx::BorderKindOf(0xF3), BorderKind::kMirror);
  EXPECT_EQ(tpx::BorderInMemFlags(0xA6), tpxBorderInMemBottom | tpxBorderInMemRight);
}

// ---- Index rules and runs ---------------------------------------------------------------------------
TEST(BorderIndex, AgreesWithTheStepwiseModel) {
  const BorderKind kinds[] = {BorderKind::kRepl, BorderKind::kWrap, BorderKind::kMirror, BorderKind::kMirrorEdge,
                              BorderKind::kConst, BorderKind::kTransp};
  for (BorderKind k : kinds)
    for (long long n = 1; n <= 9; ++n)
      for (long long i = -60; i <= 60; ++i)
        ASSERT_EQ(tpx::BorderIndex(k, i, n), ModelIndex(k, i, n)) << int(k) << " n=" << n << " i=" << i;
  // Worked rows: Mirror of width 3 with a left border of 5, Wrap of width 2 with 3.
  std::vector<long long> got;
  for (long long i = -5; i < 3; ++i) got.push_back(tpx::BorderIndex(BorderKind::kMirror, i, 3));
  EXPECT_EQ(got, (std::vector<long long>{1, 0, 1, 2, 1, 0, 1, 2}));
  got.clear();
  for (long long i = -3; i < 2; ++i) got.push_back(tpx::BorderIndex(BorderKind::kWrap, i, 2));
  EXPECT_EQ(got, (std::vector<long long>{1, 0, 1, 0, 1}));
  // Far away, in one division.
  EXPECT_EQ(tpx::BorderIndex(BorderKind::kMirror, -1000000000003LL, 5), 3);
  EXPECT_EQ(tpx::BorderIndex(BorderKind::kWrap, 1000000000003LL, 7), 1000000000003LL % 7);
}

TEST(BorderRuns, CoverTheRangeInOrderAndReadWhatTheRuleSays) {
  Rng rng(11);
  const BorderKind kinds[] = {BorderKind::kRepl, BorderKind::kWrap, BorderKind::kMirror, BorderKind::kMirrorEdge,
                              BorderKind::kConst, BorderKind::kTransp};
  for (int trial = 0; trial < 3000; ++trial) {
    const BorderKind k = kinds[trial % 6];
    const long long n = rng.Int(1, 12);
    const long long first = rng.Int(-80, 80), count = rng.Int(0, 90);
    long long next = 0;
    bool ok = true;
    tpx::ForEachBorderRun(k, first, count, n, [&](const tpx::BorderRun& r) {
      ok = ok && r.at == next && r.len > 0;
      for (long long j = 0; j < r.len; ++j) {
        const long long i = first + r.at + j, want = ModelIndex(k, i, n);
        switch (r.op) {
          case tpx::RunOp::kForward: ok = ok && want == r.src + j; break;
          case tpx::RunOp::kBackward: ok = ok && want == r.src - j; break;
          case tpx::RunOp::kRepeat: ok = ok && want == r.src; break;
          case tpx::RunOp::kValue: ok = ok && want == -1 && k == BorderKind::kConst; break;
          case tpx::RunOp::kKeep: ok = ok && want == -1 && k == BorderKind::kTransp; break;
        }
      }
      next += r.len;
    });
    ASSERT_TRUE(ok && next == count) << int(k) << " n=" << n << " first=" << first << " count=" << count;
  }
}

// ---- Row kernels: the vector forms against their scalar twins -----------------------------------------
template <int kP>
void CheckPixelKernels(Rng& rng) {
  constexpr int kGuard = 32;
  for (int count = 0; count <= 3 * 48 / kP + 3; ++count)
    for (int mis : {0, 1, 5}) {
      std::vector<unsigned char> src(kGuard + (count + 2) * kP), a(2 * kGuard + count * kP + 16, 0xA5), b = a;
      for (auto& x : src) x = static_cast<unsigned char>(rng.Bits());
      unsigned char* da = a.data() + kGuard + mis;
      unsigned char* db = b.data() + kGuard + mis;
      tpx::RepeatPixel<kP, Isa::kScalar>(src.data() + kGuard, da, count);
      tpx::RepeatPixel<kP, Isa::kAvx>(src.data() + kGuard, db, count);
      ASSERT_EQ(a, b) << "repeat P=" << kP << " count=" << count << " mis=" << mis;
      // Reversal reads the pixels that end at `first`, backward.
      const unsigned char* first = src.data() + kGuard + (count > 0 ? count - 1 : 0) * kP;
      tpx::ReversePixels<kP, Isa::kScalar>(first, da, count);
      tpx::ReversePixels<kP, Isa::kAvx>(first, db, count);
      ASSERT_EQ(a, b) << "reverse P=" << kP << " count=" << count << " mis=" << mis;
      for (int k = 0; k < count; ++k) ASSERT_EQ(0, std::memcmp(db + k * kP, first - k * kP, kP));
      for (int i = 0; i < kGuard + mis; ++i) ASSERT_EQ(b[i], 0xA5);
      for (std::size_t i = kGuard + mis + count * kP; i < b.size(); ++i) ASSERT_EQ(b[i], 0xA5);
    }
}

TEST(BorderKernels, VectorTwinsEqualScalarAndStayInside) {
  Rng rng(3);
  CheckPixelKernels<1>(rng);
  CheckPixelKernels<2>(rng);
  CheckPixelKernels<3>(rng);
  CheckPixelKernels<4>(rng);
  CheckPixelKernels<6>(rng);
  CheckPixelKernels<8>(rng);
  CheckPixelKernels<12>(rng);
  CheckPixelKernels<16>(rng);
}

// The whole routine, scalar against vector, for every kind (MirrorEdge and Transp included,
// which the filter families will reach), and the streaming path against the plain one.
template <class T, Layout kL>
void CheckExtendImageTwins(Rng& rng) {
  const BorderKind kinds[] = {BorderKind::kRepl, BorderKind::kWrap, BorderKind::kMirror, BorderKind::kMirrorEdge,
                              BorderKind::kConst, BorderKind::kTransp};
  constexpr int S = tpx::Stride(kL);
  for (int trial = 0; trial < 60; ++trial) {
    const BorderKind kind = kinds[trial % 6];
    const Geometry g = RandomGeometry(rng, 3 * 32 / static_cast<int>(sizeof(T)) + 3);
    const int dw = g.left + g.w + g.right, dh = g.top + g.h + g.bottom;
    GuardedImage<T> src(g.w, g.h, S, g.srcPad, g.srcMis);
    GuardedImage<T> a(dw, dh, S, g.dstPad, g.dstMis), b(dw, dh, S, g.dstPad, g.dstMis), c(dw, dh, S, g.dstPad, g.dstMis);
    tpxtest::FillRandom(src, rng);
    tpxtest::FillRandom(a, rng);
    b.CopyFrom(a);
    c.CopyFrom(a);
    T v[4];
    for (T& x : v) x = rng.template Sample<T>();
    const tpx::BorderValue<T, kL> value(v);
    const tpx::BorderExtent ext{g.left, g.top, g.right, g.bottom};
    tpx::ExtendImage<T, kL, Isa::kScalar>(kind, src.Data(), src.Step(), g.w, g.h, a.Data(), a.Step(), ext, &value);
    tpx::ExtendImage<T, kL, Isa::kAvx>(kind, src.Data(), src.Step(), g.w, g.h, b.Data(), b.Step(), ext, &value);
    tpx::ExtendImage<T, kL, Isa::kAvx>(kind, src.Data(), src.Step(), g.w, g.h, c.Data(), c.Step(), ext, &value, true);
    ASSERT_TRUE(SameBytes(a.Samples(), b.Samples())) << "kind " << int(kind) << " w=" << g.w;
    ASSERT_TRUE(SameBytes(a.Samples(), c.Samples())) << "streamed, kind " << int(kind) << " w=" << g.w;
    ASSERT_TRUE(b.GuardsIntact() && c.GuardsIntact());
  }
}

TEST(BorderRows, ScalarAndVectorRoutinesAgree) {
  Rng rng(5);
  CheckExtendImageTwins<Tpx8u, Layout::C1>(rng);
  CheckExtendImageTwins<Tpx8u, Layout::C3>(rng);
  CheckExtendImageTwins<Tpx8u, Layout::AC4>(rng);
  CheckExtendImageTwins<Tpx16s, Layout::C1>(rng);
  CheckExtendImageTwins<Tpx16u, Layout::C3>(rng);
  CheckExtendImageTwins<Tpx16u, Layout::C4>(rng);
  CheckExtendImageTwins<Tpx32f, Layout::C1>(rng);
  CheckExtendImageTwins<Tpx32s, Layout::C3>(rng);
  CheckExtendImageTwins<Tpx32f, Layout::C4>(rng);
  CheckExtendImageTwins<Tpx32s, Layout::AC4>(rng);
}

// MirrorEdge and Transp have no export here; the model checks them through the routine.
TEST(BorderRows, EveryKindMatchesTheModel) {
  Rng rng(8);
  const BorderKind kinds[] = {BorderKind::kMirrorEdge, BorderKind::kTransp, BorderKind::kWrap};
  for (int trial = 0; trial < 150; ++trial) {
    const BorderKind kind = kinds[trial % 3];
    const Geometry g = RandomGeometry(rng, 40);
    const int dw = g.left + g.w + g.right, dh = g.top + g.h + g.bottom;
    GuardedImage<Tpx16u> src(g.w, g.h, 3, g.srcPad, g.srcMis), dst(dw, dh, 3, g.dstPad, g.dstMis);
    tpxtest::FillRandom(src, rng);
    tpxtest::FillRandom(dst, rng);
    const std::vector<Tpx16u> want = ModelImage<Tpx16u>(
        kind, 3, false, [&](long long x, long long y, int c) { return src.At(int(x), int(y), c); }, g.w, g.h,
        dst.Samples(), dw, dh, g.top, g.left, nullptr);
    tpx::ExtendImage<Tpx16u, Layout::C3>(kind, src.Data(), src.Step(), g.w, g.h, dst.Data(), dst.Step(),
                                         {g.left, g.top, g.right, g.bottom}, nullptr);
    ASSERT_TRUE(SameBytes(dst.Samples(), want)) << int(kind) << " w=" << g.w << " l=" << g.left << " r=" << g.right;
    ASSERT_TRUE(dst.GuardsIntact());
  }
}

// ---- Every export against the model ---------------------------------------------------------------------
TEST(BorderCopy, EveryMemberAndFormMatchesTheModel) {
  ASSERT_EQ(MemberCount(), 57);  // 20 Const, 20 Replicate, 15 Mirror, 2 Wrap; each R and IR, each _L
  Rng rng(0xB0DE);
  ForEveryType([&](const auto& list) {
    for (const auto& m : list)
      for (Form form : {Form::kR, Form::kIR, Form::kRL, Form::kIRL})
        for (int trial = 0; trial < 10; ++trial) {
          const Geometry g = RandomGeometry(rng, 3 * 16 + 3);
          ASSERT_TRUE(CheckCall(m, form, g, rng));
        }
  });
}

}  // namespace
