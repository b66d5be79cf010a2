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

namespace {

// ---- Check order --------------------------------------------------------------------------------------
// A destination that must stay as it is: any write shows.
struct Untouched {
  GuardedImage<Tpx8u> img{12, 6, 1, 4, 1};
  std::vector<Tpx8u> before;
  Untouched() {
    Rng rng(1);
    tpxtest::FillRandom(img, rng);
    before = img.Samples();
  }
  bool Same() const { return SameBytes(img.Samples(), before) && img.GuardsIntact(); }
};

TEST(BorderCopyChecks, OrderIsPointersStepsSizes) {
  Tpx8u src[64] = {};
  Untouched d;
  const TpxSize s{4, 3}, dd{12, 6}, empty{0, 3};
  // Null beside a bad step, bad step beside a bad size: the earlier check wins in each family.
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R(nullptr, 0, empty, d.img.Data(), 12, dd, 1, 1), tpxErrNullPtr);
  EXPECT_EQ(tpxiCopyMirrorBorder_8u_C1R(src, 0, empty, d.img.Data(), 12, dd, 1, 1), tpxErrStep);
  EXPECT_EQ(tpxiCopyConstBorder_8u_C1R(src, 4, s, d.img.Data(), -1, empty, 1, 1, 9), tpxErrStep);
  EXPECT_EQ(tpxiCopyWrapBorder_32s_C1R(nullptr, 4, s, nullptr, 0, empty, -1, -1), tpxErrNullPtr);
  const Tpx8u* noValue = nullptr;
  EXPECT_EQ(tpxiCopyConstBorder_8u_C3R(src, 0, empty, d.img.Data(), 12, dd, 1, 1, noValue), tpxErrNullPtr);
  EXPECT_EQ(tpxiCopyConstBorder_8u_C3IR(src + 20, 0, s, dd, 1, 1, noValue), tpxErrNullPtr);
  // The size rules, each alone.
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R(src, 4, s, d.img.Data(), 12, dd, -1, 0), tpxErrSize);
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R(src, 4, s, d.img.Data(), 12, dd, 0, -1), tpxErrSize);
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R(src, 4, s, d.img.Data(), 12, dd, 0, 9), tpxErrSize);   // 4 + 9 > 12
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R(src, 4, s, d.img.Data(), 12, dd, 4, 0), tpxErrSize);   // 3 + 4 > 6
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R(src, 4, s, d.img.Data(), 12, {12, 0}, 0, 0), tpxErrSize);
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R(src, 4, {0, 0}, d.img.Data(), 12, dd, 0, 0), tpxErrSize);
  EXPECT_EQ(tpxiCopyMirrorBorder_8u_C1R(src, 4, s, d.img.Data(), 12, dd, 0x7fffffff, 0x7fffffff), tpxErrSize);
  // The sizes are checked in 64 bits: a border that would wrap in 32 is still too large.
  EXPECT_EQ(tpxiCopyWrapBorder_32f_C1R(reinterpret_cast<const Tpx32f*>(src), 16, s,
                                       reinterpret_cast<Tpx32f*>(d.img.Data()), 48, {0x7fffffff, 6}, 0, 0x7ffffffe),
            tpxErrSize);
  // A step of 1 is never compared with the row.
  EXPECT_EQ(tpxiCopyConstBorder_8u_C1IR(src, 1, {1, 1}, {1, 1}, 0, 0, 3), tpxOk);
  EXPECT_TRUE(d.Same());
}

TEST(BorderCopyChecks, InPlaceDiversionPerFamily) {
  Rng rng(2);
  GuardedImage<Tpx8u> img(10, 7, 1, 6, 2);
  tpxtest::FillRandom(img, rng);
  const TpxSize s{6, 3}, dd{10, 7};
  // Replicate and Mirror: pSrc == pDst goes to the in-place form before any check, with dstStep;
  // a srcStep of 0 is not looked at. The in-place form reads pSrc as the source inside the image.
  Tpx8u* p = &img.At(2, 1);
  auto model = [&](BorderKind k) {
    return ModelImage<Tpx8u>(k, 1, false, [&](long long x, long long y, int) { return img.At(int(x) + 2, int(y) + 1); },
                             6, 3, img.Samples(), 10, 7, 1, 2, nullptr);
  };
  std::vector<Tpx8u> want = model(BorderKind::kRepl);
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R(p, 0, s, p, img.Step(), dd, 1, 2), tpxOk);
  EXPECT_TRUE(SameBytes(img.Samples(), want));
  want = model(BorderKind::kMirror);
  EXPECT_EQ(tpxiCopyMirrorBorder_8u_C1R(p, -5, s, p, img.Step(), dd, 1, 2), tpxOk);
  EXPECT_TRUE(SameBytes(img.Samples(), want));
  EXPECT_TRUE(img.GuardsIntact());
  // The in-place checks look at dstStep, and at the one pointer: a null pair is a null source.
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R(p, 1, s, p, 0, dd, 1, 2), tpxErrStep);
  EXPECT_EQ(tpxiCopyMirrorBorder_8u_C1R(nullptr, 0, {0, 0}, nullptr, 0, dd, 1, 2), tpxErrNullPtr);
  // Wrap checks first (srcStep counts), then diverts.
  GuardedImage<Tpx32s> w(9, 5, 1, 3, 1);
  tpxtest::FillRandom(w, rng);
  Tpx32s* q = &w.At(3, 2);
  EXPECT_EQ(tpxiCopyWrapBorder_32s_C1R(q, 0, {2, 2}, q, w.Step(), {9, 5}, 2, 3), tpxErrStep);
  const std::vector<Tpx32s> wantW = ModelImage<Tpx32s>(
      BorderKind::kWrap, 1, false, [&](long long x, long long y, int) { return w.At(int(x) + 3, int(y) + 2); }, 2, 2,
      w.Samples(), 9, 5, 2, 3, nullptr);
  EXPECT_EQ(tpxiCopyWrapBorder_32s_C1R(q, 4, {2, 2}, q, w.Step(), {9, 5}, 2, 3), tpxOk);
  EXPECT_TRUE(SameBytes(w.Samples(), wantW));
  EXPECT_TRUE(w.GuardsIntact());
  // Const never diverts: srcStep is checked, and equal extents with no border are a copy.
  EXPECT_EQ(tpxiCopyConstBorder_8u_C1R(p, 0, s, p, img.Step(), s, 0, 0, 1), tpxErrStep);
  const std::vector<Tpx8u> before = img.Samples();
  EXPECT_EQ(tpxiCopyConstBorder_8u_C1R(p, img.Step(), s, p, img.Step(), s, 0, 0, 1), tpxOk);
  EXPECT_TRUE(SameBytes(img.Samples(), before));
}

TEST(BorderCopy, EqualExtentsWithoutBordersCopy) {
  Rng rng(4);
  GuardedImage<Tpx16s> src(7, 5, 3, 2, 1), dst(7, 5, 3, 0, 3);
  tpxtest::FillRandom(src, rng);
  EXPECT_EQ(tpxiCopyMirrorBorder_16s_C3R(src.Data(), src.Step(), {7, 5}, dst.Data(), dst.Step(), {7, 5}, 0, 0), tpxOk);
  EXPECT_TRUE(SameBytes(src.Samples(), dst.Samples()));
  EXPECT_TRUE(dst.GuardsIntact());
}

// ---- AC4 ---------------------------------------------------------------------------------------------------
TEST(BorderCopyAc4, ReplicateSidesKeepAlphaRowsCarryIt) {
  GuardedImage<Tpx8u> src(3, 2, 4), dst(7, 5, 4, 4, 1);
  for (int y = 0; y < 2; ++y)
    for (int x = 0; x < 3; ++x)
      for (int c = 0; c < 4; ++c) src.At(x, y, c) = static_cast<Tpx8u>(100 + 10 * y + 3 * x + c);
  for (int y = 0; y < 5; ++y)
    for (int x = 0; x < 7; ++x) {
      for (int c = 0; c < 3; ++c) dst.At(x, y, c) = 1;
      dst.At(x, y, 3) = static_cast<Tpx8u>(7 + y);  // each destination row its own alpha
    }
  ASSERT_EQ(tpxiCopyReplicateBorder_8u_AC4R(src.Data(), src.Step(), {3, 2}, dst.Data(), dst.Step(), {7, 5}, 2, 2), tpxOk);
  // Middle rows 2 and 3: side pixels take the edge colour and keep alpha 9 and 10; the row
  // itself brings the source's alpha.
  for (int y = 2; y < 4; ++y)
    for (int x = 0; x < 7; ++x) {
      const int sx = x < 2 ? 0 : x > 4 ? 2 : x - 2;
      for (int c = 0; c < 3; ++c) EXPECT_EQ(dst.At(x, y, c), src.At(sx, y - 2, c));
      EXPECT_EQ(dst.At(x, y, 3), (x >= 2 && x <= 4) ? src.At(sx, y - 2, 3) : 7 + y) << x << "," << y;
    }
  // Rows above are copies of row 2, the row below a copy of row 3, alpha and all.
  for (int y : {0, 1, 4})
    EXPECT_EQ(0, std::memcmp(dst.Row(y), dst.Row(y == 4 ? 3 : 2), 7 * 4)) << y;
  EXPECT_TRUE(dst.GuardsIntact());
}

TEST(BorderCopyAc4, ConstWritesThreeOfFourSamples) {
  GuardedImage<Tpx32f> src(2, 2, 4), dst(5, 4, 4, 0, 1);
  for (int i = 0; i < 8; ++i) src.Row(i / 4)[(i % 4) * 2] = src.Row(i / 4)[(i % 4) * 2 + 1] = float(i);
  for (int y = 0; y < 4; ++y)
    for (int i = 0; i < 20; ++i) dst.Row(y)[i] = -7.0f;
  const Tpx32f value[3] = {1.5f, 2.5f, 3.5f};
  ASSERT_EQ(tpxiCopyConstBorder_32f_AC4R(src.Data(), src.Step(), {2, 2}, dst.Data(), dst.Step(), {5, 4}, 1, 2, value),
            tpxOk);
  for (int y = 0; y < 4; ++y)
    for (int x = 0; x < 5; ++x) {
      const bool inside = y >= 1 && y < 3 && x >= 2 && x < 4;
      for (int c = 0; c < 4; ++c) {
        const float want = inside ? src.At(x - 2, y - 1, c) : c < 3 ? value[c] : -7.0f;
        EXPECT_EQ(dst.At(x, y, c), want) << x << "," << y << "," << c;
      }
    }
}

// ---- The 64-bit frame -------------------------------------------------------------------------------------
TEST(BorderCopyL, WideCallsRunInSixtyFourBits) {
  Rng rng(6);
  // One row each, so that steps beyond 32 bits are never taken: the call does not fit and the
  // 64-bit path must give what the model says.
  const long long huge = 0x100000000LL;
  for (int trial = 0; trial < 20; ++trial) {
    const int w = rng.Int(1, 9), left = rng.Int(0, 40), right = rng.Int(0, 40);
    GuardedImage<Tpx32f> src(w, 1), dst(left + w + right, 1);
    tpxtest::FillRandom(src, rng);
    tpxtest::FillRandom(dst, rng);
    const std::vector<Tpx32f> want = ModelImage<Tpx32f>(
        BorderKind::kMirror, 1, false, [&](long long x, long long, int) { return src.At(int(x), 0); }, w, 1,
        dst.Samples(), left + w + right, 1, 0, left, nullptr);
    ASSERT_EQ(tpxiCopyMirrorBorder_32f_C1R_L(src.Data(), huge, {w, 1}, dst.Data(), -huge, {left + w + right, 1}, 0, left),
              tpxErrStep);  // a negative step that does not fit still meets the step check
    ASSERT_EQ(tpxiCopyMirrorBorder_32f_C1R_L(src.Data(), huge, {w, 1}, dst.Data(), huge, {left + w + right, 1}, 0, left),
              tpxOk);
    ASSERT_TRUE(SameBytes(dst.Samples(), want));
    ASSERT_TRUE(dst.GuardsIntact());
  }
  Tpx8u px[4] = {};
  // Fits: narrowed, and the 32-bit status stands; empty extents give tpxErrSize.
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R_L(px, 4, {0, 1}, px + 1, 4, {1, 1}, 0, 0), tpxErrSize);
  // Does not fit: an empty extent is tpxOk at once, whatever else is wrong.
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R_L(nullptr, huge, {0, 1}, px, 4, {1, 1}, 0, 0), tpxOk);
  EXPECT_EQ(tpxiCopyConstBorder_8u_C1IR_L(px, huge, {1, 1}, {1, -2}, 0, 0, 5), tpxOk);
  // A border beyond 32 bits does not fit either, and then fails the size rule in 64 bits.
  EXPECT_EQ(tpxiCopyWrapBorder_32s_C1R_L(reinterpret_cast<Tpx32s*>(px), 4, {1, 1}, reinterpret_cast<Tpx32s*>(px), 4,
                                          {1, 1}, huge, 0),
            tpxErrSize);
  EXPECT_EQ(tpxiCopyMirrorBorder_8u_C1IR_L(px, 4, {1, 1}, {1, 1}, 0, -huge), tpxErrSize);
}

// ---- OpenCV's copyMakeBorder as an independent oracle -----------------------------------------------------
#ifdef TPX_HAVE_OPENCV
template <class T>
void CompareWithOpenCv(int cvType, int S, Rng& rng) {
  const int cvKinds[] = {cv::BORDER_CONSTANT, cv::BORDER_REPLICATE, cv::BORDER_REFLECT_101, cv::BORDER_WRAP};
  for (int trial = 0; trial < 40; ++trial) {
    const int kindIx = trial % 4;
    const int w = rng.Int(1, 40), h = rng.Int(1, 9);
    // Reflection past one period of the source is our rule; OpenCV's keeps reflecting too.
    const int left = rng.Int(0, 3 * w), right = rng.Int(0, 3 * w), top = rng.Int(0, 3 * h), bottom = rng.Int(0, 3 * h);
    cv::Mat src(h, w, cvType);
    for (int y = 0; y < h; ++y)
      for (int i = 0; i < w * S; ++i) src.ptr<T>(y)[i] = rng.template Sample<T>();
    T value[4];
    for (T& v : value) v = rng.template Sample<T>();
    cv::Scalar cvValue;
    for (int c = 0; c < S; ++c) cvValue[c] = static_cast<double>(value[c]);
    cv::Mat want, got(h + top + bottom, w + left + right, cvType);
    cv::copyMakeBorder(src, want, top, bottom, left, right, cvKinds[kindIx], cvValue);
    const TpxSize sr{w, h}, dr{got.cols, got.rows};
    const int ss = static_cast<int>(src.step), ds = static_cast<int>(got.step);
    TpxStatus st = tpxErrBadArg;
    const Member<T>* m = nullptr;
    const BorderKind kinds[] = {BorderKind::kConst, BorderKind::kRepl, BorderKind::kMirror, BorderKind::kWrap};
    for (const auto& cand : std::get<std::vector<Member<T>>>(Members()))
      if (cand.kind == kinds[kindIx] && tpx::Stride(cand.layout) == S && cand.layout != Layout::AC4) m = &cand;
    if (!m) continue;  // Wrap has C1 32s and 32f only
    st = m->r(src.ptr<T>(), ss, sr, got.ptr<T>(), ds, dr, top, left, value);
    ASSERT_EQ(st, tpxOk);
    ASSERT_EQ(0, cv::norm(want, got, cv::NORM_INF)) << m->name << " w=" << w << " h=" << h << " l/t/r/b=" << left << "/"
                                                    << top << "/" << right << "/" << bottom;
  }
}

TEST(BorderCopyOracle, MatchesCopyMakeBorder) {
  Rng rng(9);
  CompareWithOpenCv<Tpx8u>(CV_8UC1, 1, rng);
  CompareWithOpenCv<Tpx8u>(CV_8UC3, 3, rng);
  CompareWithOpenCv<Tpx8u>(CV_8UC4, 4, rng);
  CompareWithOpenCv<Tpx16u>(CV_16UC1, 1, rng);
  CompareWithOpenCv<Tpx16s>(CV_16SC3, 3, rng);
  CompareWithOpenCv<Tpx32s>(CV_32SC1, 1, rng);
  CompareWithOpenCv<Tpx32f>(CV_32FC1, 1, rng);
  CompareWithOpenCv<Tpx32f>(CV_32FC4, 4, rng);
}
#endif

}  // namespace
