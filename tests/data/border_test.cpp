// Border copies and the border-type value: every member and form against a pixel-by-pixel model
// of the index rules, the row kernels against their scalar twins, guard bands, the check order,
// the 64-bit frame, and OpenCV's copyMakeBorder as an independent oracle.
#include <functional>
#include <string>
#include <tuple>

#include "core/border_type.h"
#include "data/border_members.h"
#include "data/border_rows.h"
#include "tests/data/data_support.h"

namespace {

using namespace datatest;  // NOLINT
using tpx::BorderKind;
using tpx::Isa;
using tpx::Layout;

const BorderKind kKinds[] = {BorderKind::kRepl,       BorderKind::kWrap,  BorderKind::kMirror,
                             BorderKind::kMirrorEdge, BorderKind::kConst, BorderKind::kTransp};

// Where a virtual index reads, by walking reflections and periods one step at a time; -1: none.
long long ModelIndex(BorderKind kind, long long i, long long n) {
  while (i < 0 || i >= n) {
    switch (kind) {
      case BorderKind::kRepl: return i < 0 ? 0 : n - 1;
      case BorderKind::kWrap: i += i < 0 ? n : -n; break;
      case BorderKind::kMirror: i = n == 1 ? 0 : i < 0 ? -i : 2 * (n - 1) - i; break;
      case BorderKind::kMirrorEdge: i = i < 0 ? -i - 1 : 2 * n - 1 - i; break;
      default: return -1;
    }
  }
  return i;
}


// ---- Members: the R, IR, R_L and IR_L forms of each, the caller's value first ----
// Passes the value where the export takes one: a pixel by pointer, or one sample for C1.
template <class T, class F>
auto WithValue(F f) {
  return [f](const T* v, auto... a) -> TpxStatus {
    if constexpr (std::is_invocable_v<F, decltype(a)..., const T*>) return f(a..., v);
    else if constexpr (std::is_invocable_v<F, decltype(a)..., T>) return f(a..., *v);
    else return f(a...);
  };
}

template <class T>
struct Member {
  std::string name;
  BorderKind kind;
  Layout layout;
  std::function<TpxStatus(const T*, const T*, int, TpxSize, T*, int, TpxSize, int, int)> r;
  std::function<TpxStatus(const T*, T*, int, TpxSize, TpxSize, int, int)> ir;
  std::function<TpxStatus(const T*, const T*, long long, TpxSizeL, T*, long long, TpxSizeL, long long, long long)> rl;
  std::function<TpxStatus(const T*, T*, long long, TpxSizeL, TpxSizeL, long long, long long)> irl;
};

struct Geometry {
  int w, h, left, top, right, bottom, srcPad, srcMis, dstPad, dstMis;
  int dw() const { return left + w + right; }
  int dh() const { return top + h + bottom; }
};

// Widths up to maxW and sometimes beyond, borders of 0, small, or up to three source periods.
Geometry RandomGeometry(Rng& rng, int maxW) {
  const int w = rng.Chance(0.1) ? rng.Int(maxW, 4 * maxW) : rng.Int(1, maxW), h = rng.Int(1, 7);
  auto border = [&](int n) { return rng.Chance(0.2) ? 0 : rng.Chance(0.5) ? rng.Int(1, 3) : rng.Int(0, 3 * n + 5); };
  const int left = border(w), top = border(h), right = border(w), bottom = border(h);
  return {w, h, left, top, right, bottom, rng.Int(0, 2) * 7, rng.Int(0, 3), rng.Int(0, 2) * 5, rng.Int(0, 3)};
}

// A random source and destination for g, and the destination a call must leave (for the in-place
// forms with the source already in place). AC4 border pixels keep alpha; rows above and below are
// whole copies of an edge row.
template <class T>
struct Scene {
  GuardedImage<T> src, dst, want;
  T value[4];
  Scene(BorderKind kind, int S, bool ac4, bool inPlace, const Geometry& g, Rng& rng)
      : src(g.w, g.h, S, g.srcPad, g.srcMis), dst(g.dw(), g.dh(), S, g.dstPad, g.dstMis), want(g.dw(), g.dh(), S) {
    tpxtest::FillRandom(src, rng);
    tpxtest::FillRandom(dst, rng);
    for (T& v : value) v = rng.template Sample<T>();
    for (int y = 0; y < g.h && inPlace; ++y)
      std::memcpy(&dst.At(g.left, g.top + y), src.Row(y), static_cast<std::size_t>(g.w * S) * sizeof(T));
    want.CopyFrom(dst);
    for (int y = g.top; y < g.top + g.h; ++y)
      for (int x = 0; x < g.dw(); ++x) {
        const long long i = x - g.left, j = ModelIndex(kind, i, g.w);
        for (int c = 0; c < (i >= 0 && i < g.w ? S : ac4 ? 3 : S); ++c)
          if (j >= 0) want.At(x, y, c) = src.At(int(j), y - g.top, c);
          else if (kind == BorderKind::kConst) want.At(x, y, c) = value[c];
      }
    for (int y = 0; y < g.dh(); ++y) {
      if ((y >= g.top && y < g.top + g.h) || kind == BorderKind::kTransp) continue;
      for (int x = 0; x < g.dw() && kind == BorderKind::kConst; ++x)
        for (int c = 0; c < (ac4 ? 3 : S); ++c) want.At(x, y, c) = value[c];
      if (kind != BorderKind::kConst)
        std::memcpy(want.Row(y), want.Row(g.top + int(ModelIndex(kind, y - g.top, g.h))), static_cast<std::size_t>(g.dw() * S) * sizeof(T));
    }
  }
};

TEST(BorderType, StepsInOrderWithNamedSets) {
  using tpx::CheckBorderType;
  for (int v = -300; v <= 600; ++v) {
    const bool ok = v <= 255 && (v == 240 || (v & 15) == 6), okRm = v <= 255 && (v == 240 || (v & 13) == 1);
    EXPECT_EQ(CheckBorderType(v, tpx::kBorderConstOnly) == tpxOk, ok) << v;
    EXPECT_EQ(CheckBorderType(v, tpx::kBorderReplMirror) == tpxOk, okRm) << v;
    EXPECT_EQ(CheckBorderType(v, tpx::kBorderConstTransp) == tpxOk, v <= 255 && (v == 240 || (v & 14) == 6)) << v;
    EXPECT_EQ(CheckBorderType(v, tpx::kBorderReplMirrorConst) == tpxOk, ok || okRm) << v;
  }
  EXPECT_EQ(CheckBorderType(256, tpx::BorderSet{0xFFFF}), tpxErrBorder);  // above 255 whatever the set
  EXPECT_EQ(CheckBorderType(240, tpx::BorderSet{0}), tpxOk);  // 240 stands alone
  EXPECT_EQ(CheckBorderType(0x70, tpx::kBorderReplMirrorConst), tpxErrBorder);
  EXPECT_EQ(tpx::BorderKindOf(0xF3), BorderKind::kMirror);
  EXPECT_EQ(tpx::BorderInMemFlags(0xA6), tpxBorderInMemBottom | tpxBorderInMemRight);
}

// The whole routine for every kind (MirrorEdge and Transp included, which only the filter
// families reach): scalar against the model, vector and streamed vector against scalar. The
// layouts give every pixel size of the repeat and reverse kernels (1, 2, 3, 4, 6, 8, 12, 16 bytes).
template <class T, Layout... kLs>
void ExtendTwins(Rng& rng) {
  const auto one = [&](auto layout) {
    constexpr Layout kL = decltype(layout)::value;
    for (int trial = 0; trial < 60; ++trial) {
      const BorderKind kind = kKinds[trial % 6];
      const Geometry g = RandomGeometry(rng, 3 * 32 / static_cast<int>(sizeof(T)) + 3);
      Scene<T> a(kind, tpx::Stride(kL), tpx::KeepsAlpha(kL), false, g, rng);
      GuardedImage<T> b = Clone(a.dst, g.dstPad, g.dstMis), c = Clone(a.dst, g.dstPad, g.dstMis);
      const tpx::BorderValue<T, kL> value(a.value);
      const tpx::BorderExtent ext{g.left, g.top, g.right, g.bottom};
      const T* s = a.src.Data();
      tpx::ExtendImage<T, kL, Isa::kScalar>(kind, s, a.src.Step(), g.w, g.h, a.dst.Data(), a.dst.Step(), ext, &value);
      tpx::ExtendImage<T, kL, Isa::kAvx>(kind, s, a.src.Step(), g.w, g.h, b.Data(), b.Step(), ext, &value);
      tpx::ExtendImage<T, kL, Isa::kAvx>(kind, s, a.src.Step(), g.w, g.h, c.Data(), c.Step(), ext, &value, true);
      ASSERT_TRUE(Same(a.dst, a.want)) << "kind " << int(kind) << " w=" << g.w;
      ASSERT_TRUE(Same(b, a.dst)) << "kind " << int(kind);
      ASSERT_TRUE(Same(c, a.dst)) << "streamed, kind " << int(kind);
    }
  };
  (one(std::integral_constant<Layout, kLs>{}), ...);
}

TEST(BorderRows, ScalarAndVectorRoutinesAgree) {
  Rng rng(5);
  ExtendTwins<Tpx8u, Layout::C1, Layout::C3, Layout::AC4>(rng), ExtendTwins<Tpx16s, Layout::C1>(rng);
  ExtendTwins<Tpx16u, Layout::C3, Layout::C4>(rng), ExtendTwins<Tpx32f, Layout::C1, Layout::C4>(rng);
  ExtendTwins<Tpx32s, Layout::C3, Layout::AC4>(rng);
}

// Forms R, IR, R_L, IR_L, and (4) R given the source's place in the destination as both pointers,
// which Replicate, Mirror and Wrap take as IR (only Wrap looks at srcStep first).
template <class T>
::testing::AssertionResult CheckCall(const Member<T>& m, int form, const Geometry& g, Rng& rng) {
  Scene<T> s(m.kind, tpx::Stride(m.layout), m.layout == Layout::AC4, form % 2 == 1 || form == 4, g, rng);
  const GuardedImage<T> srcBefore = Clone(s.src);
  T* in = &s.dst.At(g.left, g.top);
  const TpxSize sr{g.w, g.h}, dr{g.dw(), g.dh()};
  const TpxSizeL srl{g.w, g.h}, drl{g.dw(), g.dh()};
  const T* v = s.value;
  const long long wide = g.dh() == 1 ? 0x100000000LL : 0;  // one row: the _L forms take steps past 32 bits
  const TpxStatus st =
      form == 0   ? m.r(v, s.src.Data(), s.src.Step(), sr, s.dst.Data(), s.dst.Step(), dr, g.top, g.left)
      : form == 1 ? m.ir(v, in, s.dst.Step(), sr, dr, g.top, g.left)
      : form == 2 ? m.rl(v, s.src.Data(), s.src.Step() + wide, srl, s.dst.Data(), s.dst.Step() + wide, drl, g.top, g.left)
      : form == 3 ? m.irl(v, in, s.dst.Step() + wide, srl, drl, g.top, g.left)
                  : m.r(v, in, m.kind == BorderKind::kWrap ? s.dst.Step() : -5, sr, in, s.dst.Step(), dr, g.top, g.left);
  ::testing::AssertionResult fail = ::testing::AssertionFailure()
      << m.name << " form " << form << " w=" << g.w << " h=" << g.h << " l/t/r/b=" << g.left << "/" << g.top << "/"
      << g.right << "/" << g.bottom << ": ";
  if (st != tpxOk) return fail << "status " << st;
  if (auto r = Same(s.dst, s.want); !r) return fail << r.message();
  if (auto r = Same(s.src, srcBefore); !r) return fail << "source: " << r.message();
#ifdef TPX_HAVE_OPENCV
  // copyMakeBorder agrees where it has the rule (it too reflects past one period).
  const int cvKinds[] = {0, cv::BORDER_REPLICATE, cv::BORDER_WRAP, cv::BORDER_REFLECT_101, 0, 0, cv::BORDER_CONSTANT};
  if (form == 0 && m.layout != Layout::AC4)
    if (auto r = LikeOpenCv(s.src, s.dst, [&](const cv::Mat& a, cv::Mat& b) {
          cv::copyMakeBorder(a, b, g.top, g.bottom, g.left, g.right, cvKinds[int(m.kind)], cv::Scalar(v[0], v[1], v[2], v[3]));
        }); !r)
      return fail << r.message();
#endif
  return ::testing::AssertionSuccess();
}

TEST(BorderCopy, EveryMemberAndFormMatchesTheModel) {
  Rng rng(0xB0DE);
  int members = 0;
  const auto run = [&](const auto& m) {
    ++members;
    for (int form = 0; form < (m.kind == BorderKind::kConst ? 4 : 5); ++form)
      for (int trial = 0; trial < 10; ++trial) {
        Geometry g = RandomGeometry(rng, 3 * 16 + 3);
        if (trial == 0) g.h = 1, g.top = g.bottom = 0;
        ASSERT_TRUE(CheckCall(m, form, g, rng));
      }
  };
#define TPX_T_FORM(Name, T, L, F) WithValue<Tpx##T>(tpxi##Name##_##T##_##L##F)
#define TPX_T_RUN(Name, Kind, T, L)                                                                               \
  run(Member<Tpx##T>{"tpxi" #Name "_" #T "_" #L, BorderKind::Kind, Layout::L, TPX_T_FORM(Name, T, L, R),           \
                     TPX_T_FORM(Name, T, L, IR), TPX_T_FORM(Name, T, L, R_L), TPX_T_FORM(Name, T, L, IR_L)});
#define TPX_T_CONST(T, L) TPX_T_RUN(CopyConstBorder, kConst, T, L)
#define TPX_T_REPL(T, L) TPX_T_RUN(CopyReplicateBorder, kRepl, T, L)
#define TPX_T_MIRROR(T, L) TPX_T_RUN(CopyMirrorBorder, kMirror, T, L)
#define TPX_T_WRAP(T, L) TPX_T_RUN(CopyWrapBorder, kWrap, T, L)
  TPX_CONST_BORDER_MEMBERS(TPX_T_CONST)
  TPX_REPLICATE_BORDER_MEMBERS(TPX_T_REPL)
  TPX_MIRROR_BORDER_MEMBERS(TPX_T_MIRROR)
  TPX_WRAP_BORDER_MEMBERS(TPX_T_WRAP)
  EXPECT_EQ(members, 57);  // 20 Const, 20 Replicate, 15 Mirror, 2 Wrap
}

TEST(BorderCopyChecks, OrderIsPointersStepsSizes) {
  alignas(16) Tpx8u src[64] = {};
  Rng rng(1);
  GuardedImage<Tpx8u> d(12, 6, 1, 4, 1);  // must stay as it is: any write shows
  tpxtest::FillRandom(d, rng);
  const GuardedImage<Tpx8u> before = Clone(d);
  Tpx8u* p = d.Data();
  const TpxSize s{4, 3}, dd{12, 6}, empty{0, 3};
  // Null beside a bad step, bad step beside a bad size: the earlier check wins in each family.
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R(nullptr, 0, empty, p, 12, dd, 1, 1), tpxErrNullPtr);
  EXPECT_EQ(tpxiCopyMirrorBorder_8u_C1R(src, 0, empty, p, 12, dd, 1, 1), tpxErrStep);
  EXPECT_EQ(tpxiCopyConstBorder_8u_C1R(src, 4, s, p, -1, empty, 1, 1, 9), tpxErrStep);
  EXPECT_EQ(tpxiCopyWrapBorder_32s_C1R(nullptr, 4, s, nullptr, 0, empty, -1, -1), tpxErrNullPtr);
  const Tpx8u* noValue = nullptr;
  EXPECT_EQ(tpxiCopyConstBorder_8u_C3R(src, 0, empty, p, 12, dd, 1, 1, noValue), tpxErrNullPtr);
  EXPECT_EQ(tpxiCopyConstBorder_8u_C3IR(src + 20, 0, s, dd, 1, 1, noValue), tpxErrNullPtr);
  // The size rules, each alone: negative borders, source beyond the destination, empty extents.
  for (auto [dst, top, left] : {std::tuple{dd, -1, 0}, {dd, 0, -1}, {dd, 0, 9}, {dd, 4, 0}, {TpxSize{12, 0}, 0, 0}})
    EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R(src, 4, s, p, 12, dst, top, left), tpxErrSize) << top << " " << left;
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R(src, 4, {0, 0}, p, 12, dd, 0, 0), tpxErrSize);
  EXPECT_EQ(tpxiCopyMirrorBorder_8u_C1R(src, 4, s, p, 12, dd, 0x7fffffff, 0x7fffffff), tpxErrSize);
  // The sizes are checked in 64 bits: a border that would wrap in 32 is still too large.
  EXPECT_EQ(tpxiCopyWrapBorder_32f_C1R(reinterpret_cast<const Tpx32f*>(src), 16, s, reinterpret_cast<Tpx32f*>(p), 48,
                                       {0x7fffffff, 6}, 0, 0x7ffffffe), tpxErrSize);
  EXPECT_EQ(tpxiCopyConstBorder_8u_C1IR(src, 1, {1, 1}, {1, 1}, 0, 0, 3), tpxOk);  // a step of 1 is never compared
  // One pointer for both: Replicate and Mirror divert to the in-place checks (dstStep, a null
  // source); Wrap checks srcStep first; Const never diverts, and with no border it is a copy.
  Tpx8u* q = &d.At(2, 1);
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R(q, 1, s, q, 0, dd, 1, 2), tpxErrStep);
  EXPECT_EQ(tpxiCopyMirrorBorder_8u_C1R(nullptr, 0, {0, 0}, nullptr, 0, dd, 1, 2), tpxErrNullPtr);
  EXPECT_EQ(tpxiCopyWrapBorder_32s_C1R(reinterpret_cast<Tpx32s*>(p), 0, {2, 2}, reinterpret_cast<Tpx32s*>(p), 12, {3, 6}, 2, 0), tpxErrStep);
  EXPECT_EQ(tpxiCopyConstBorder_8u_C1R(q, 0, s, q, d.Step(), s, 0, 0, 1), tpxErrStep);
  EXPECT_EQ(tpxiCopyConstBorder_8u_C1R(q, d.Step(), s, q, d.Step(), s, 0, 0, 1), tpxOk);
  // _L: a negative step that does not fit still meets the step check; where everything fits the
  // 32-bit status stands; else an empty extent is tpxOk at once, and a border past 32 bits fails
  // the size rule in 64 bits.
  const long long huge = 0x100000000LL;
  EXPECT_EQ(tpxiCopyMirrorBorder_32f_C1R_L(reinterpret_cast<const Tpx32f*>(src), huge, {1, 1}, reinterpret_cast<Tpx32f*>(p),
                                           -huge, {3, 1}, 0, 1), tpxErrStep);
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R_L(src, 4, {0, 1}, p, 4, {1, 1}, 0, 0), tpxErrSize);
  EXPECT_EQ(tpxiCopyReplicateBorder_8u_C1R_L(nullptr, huge, {0, 1}, p, 4, {1, 1}, 0, 0), tpxOk);
  EXPECT_EQ(tpxiCopyConstBorder_8u_C1IR_L(p, huge, {1, 1}, {1, -2}, 0, 0, 5), tpxOk);
  EXPECT_EQ(tpxiCopyWrapBorder_32s_C1R_L(reinterpret_cast<const Tpx32s*>(src), 4, {1, 1}, reinterpret_cast<Tpx32s*>(p), 4,
                                         {1, 1}, huge, 0), tpxErrSize);
  EXPECT_EQ(tpxiCopyMirrorBorder_8u_C1IR_L(p, 4, {1, 1}, {1, 1}, 0, -huge), tpxErrSize);
  EXPECT_TRUE(Same(d, before));
}

}  // namespace
