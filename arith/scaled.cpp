// Scaled arithmetic: Add, Sub, Mul of two images and AddC, SubC, MulC of an image and a
// constant, for 8u, 16u, 16s (with scale factor) and 32f, in C1, C3, C4 and AC4, out of place
// and in place, with their _L twins. One driver per form; every export below is an
// instantiation from the member lists at the end of the file.
#include <cstddef>
#include <type_traits>

#include "arith/point_rows.h"
#include "arith/scaled_rows.h"
#include "arith/value_args.h"
#include "core/checks.h"
#include "core/export.h"
#include "core/ltwin.h"
#include "core/region.h"

namespace tpx::arith {
namespace {

template <class T>
constexpr bool kIsFloat = std::is_same_v<T, Tpx32f>;

// Where every result is 0 the region is filled; the 16-bit types share the 16s fill.
template <class T, Layout kL>
void FillZero(T* d, std::ptrdiff_t dStep, TpxSize roi) {
  if constexpr (sizeof(T) == 2)
    ZeroRegion<Tpx16s, kL>(reinterpret_cast<Tpx16s*>(d), dStep, roi);
  else
    ZeroRegion<T, kL>(d, dStep, roi);
}

// Two images. Checks: pointers, size; no step check. x is the minuend of Sub: pSrc2, or pSrcDst
// in place; y is pSrc1 or pSrc. The C3 and C4 members of 32f are wrappers that widen the row of
// the C1 path and so test the width before anything else.
template <Op kOp, class T, Layout kL>
TpxStatus Binary(const T* y, std::ptrdiff_t yStep, const T* x, std::ptrdiff_t xStep, T* d,
                 std::ptrdiff_t dStep, TpxSize roi, int sf) {
  if constexpr (kIsFloat<T> && (kL == Layout::C3 || kL == Layout::C4))
    if (roi.width < 1) return tpxErrSize;
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSize>({y, x, d}, roi); st != tpxOk) return st;
  if constexpr (kIsFloat<T>) {
    BinaryRows<FloatOp<kOp>, kL>(x, xStep, y, yStep, d, dStep, roi, NoParams{});
  } else {
    const bool computed = WithSfKernel<kOp, T, false>(sf, [&](auto op) {
      BinaryRows<decltype(op), kL>(x, xStep, y, yStep, d, dStep, roi, SfParams{sf});
    });
    if (!computed) FillZero<T, kL>(d, dStep, roi);
  }
  return tpxOk;
}

// An image and a constant. Checks: pointers (the constant's pointer among them), size. Integer
// members first take the constant's shortcuts: MulC by 0 fills whatever sf is; MulC by 1 and
// AddC, SubC by 0 at sf 0 copy the source (in place: nothing to do). 32f members always compute,
// so that NaN, infinities and signed zeros behave as in any float product or sum.
template <Op kOp, class T, Layout kL, bool kInPlace>
TpxStatus Const(const T* s, std::ptrdiff_t sStep, const T* value, T* d, std::ptrdiff_t dStep,
                TpxSize roi, int sf) {
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSize>({s, value, d}, roi); st != tpxOk) return st;
  const PixelConst<T, kL> k(value);
  if constexpr (kIsFloat<T>) {
    ConstRows<FloatOp<kOp>, kL>(s, sStep, k, d, dStep, roi, NoParams{});
  } else {
    if (kOp == Op::kMul && k.All(T(0))) {
      FillZero<T, kL>(d, dStep, roi);
      return tpxOk;
    }
    if (sf == 0 && k.All(T(kOp == Op::kMul ? 1 : 0))) {
      if (!kInPlace) CopyRegion<T, kL>(s, sStep, d, dStep, roi);
      return tpxOk;
    }
    const bool computed = WithSfKernel<kOp, T, true>(sf, [&](auto op) {
      ConstRows<decltype(op), kL>(s, sStep, k, d, dStep, roi, SfParams{sf});
    });
    if (!computed) FillZero<T, kL>(d, dStep, roi);
  }
  return tpxOk;
}

// ---- _L twins: narrowed call, or a walk of single-row pieces through the same driver ----------
template <class T>
T* At(T* p, long long step, long long y, long long x, int pixelSamples) {
  return PixelAt(p, static_cast<std::ptrdiff_t>(step), x, y, pixelSamples);
}

template <Op kOp, class T, Layout kL>
TpxStatus BinaryL(const T* y, long long yStep, const T* x, long long xStep, T* d, long long dStep,
                  TpxSizeL roi, int sf) {
  constexpr int kPs = Stride(kL);
  return LTwin(roi, {yStep, xStep, dStep}, kPs,
      [&](TpxSize r) { return Binary<kOp, T, kL>(y, yStep, x, xStep, d, dStep, r, sf); },
      [&](long long row, long long col, int n) {
        return Binary<kOp, T, kL>(At(y, yStep, row, col, kPs), 0, At(x, xStep, row, col, kPs), 0,
                                  At(d, dStep, row, col, kPs), 0, TpxSize{n, 1}, sf);
      });
}

template <Op kOp, class T, Layout kL, bool kInPlace>
TpxStatus ConstL(const T* s, long long sStep, const T* value, T* d, long long dStep, TpxSizeL roi,
                 int sf) {
  constexpr int kPs = Stride(kL);
  return LTwin(roi, {sStep, dStep}, kPs,
      [&](TpxSize r) { return Const<kOp, T, kL, kInPlace>(s, sStep, value, d, dStep, r, sf); },
      [&](long long row, long long col, int n) {
        return Const<kOp, T, kL, kInPlace>(At(s, sStep, row, col, kPs), 0, value,
                                           At(d, dStep, row, col, kPs), 0, TpxSize{n, 1}, sf);
      });
}

}  // namespace
}  // namespace tpx::arith

// ---- Exports -----------------------------------------------------------------------------------
// Integer members end on RSfs / IRSfs and take scaleFactor; 32f members end on R / IR.
#define TPX_SF_ARG_8u , int scaleFactor
#define TPX_SF_ARG_16u , int scaleFactor
#define TPX_SF_ARG_16s , int scaleFactor
#define TPX_SF_ARG_32f
#define TPX_SF_VAL_8u scaleFactor
#define TPX_SF_VAL_16u scaleFactor
#define TPX_SF_VAL_16s scaleFactor
#define TPX_SF_VAL_32f 0
#define TPX_SFX_8u Sfs
#define TPX_SFX_16u Sfs
#define TPX_SFX_16s Sfs
#define TPX_SFX_32f
#define TPX_CAT5(a, b, c, d, e) a##b##c##d##e
#define TPX_NAME(OP, T, L, FORM, SFX, TAIL) TPX_CAT5(tpxi##OP##_, T, _##L, FORM, SFX##TAIL)
#define TPX_NAME_(OP, T, L, FORM, SFX, TAIL) TPX_NAME(OP, T, L, FORM, SFX, TAIL)

#define TPX_DEFINE_BINARY(OP, T, L)                                                                \
  TPX_API TpxStatus TPX_NAME_(OP, T, L, R, TPX_SFX_##T, )(                                         \
      const Tpx##T* pSrc1, int src1Step, const Tpx##T* pSrc2, int src2Step, Tpx##T* pDst,          \
      int dstStep, TpxSize roiSize TPX_SF_ARG_##T) {                                               \
    return tpx::arith::Binary<tpx::arith::Op::k##OP, Tpx##T, tpx::Layout::L>(                      \
        pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, TPX_SF_VAL_##T);                 \
  }                                                                                                \
  TPX_API TpxStatus TPX_NAME_(OP, T, L, IR, TPX_SFX_##T, )(                                        \
      const Tpx##T* pSrc, int srcStep, Tpx##T* pSrcDst, int srcDstStep,                            \
      TpxSize roiSize TPX_SF_ARG_##T) {                                                            \
    return tpx::arith::Binary<tpx::arith::Op::k##OP, Tpx##T, tpx::Layout::L>(                      \
        pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, TPX_SF_VAL_##T);         \
  }                                                                                                \
  TPX_API TpxStatus TPX_NAME_(OP, T, L, R, TPX_SFX_##T, _L)(                                       \
      const Tpx##T* pSrc1, long long src1Step, const Tpx##T* pSrc2, long long src2Step,            \
      Tpx##T* pDst, long long dstStep, TpxSizeL roiSize TPX_SF_ARG_##T) {                          \
    return tpx::arith::BinaryL<tpx::arith::Op::k##OP, Tpx##T, tpx::Layout::L>(                     \
        pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, TPX_SF_VAL_##T);                 \
  }                                                                                                \
  TPX_API TpxStatus TPX_NAME_(OP, T, L, IR, TPX_SFX_##T, _L)(                                      \
      const Tpx##T* pSrc, long long srcStep, Tpx##T* pSrcDst, long long srcDstStep,                \
      TpxSizeL roiSize TPX_SF_ARG_##T) {                                                           \
    return tpx::arith::BinaryL<tpx::arith::Op::k##OP, Tpx##T, tpx::Layout::L>(                     \
        pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, TPX_SF_VAL_##T);         \
  }

#define TPX_DEFINE_CONST(OP, T, L)                                                                 \
  TPX_API TpxStatus TPX_NAME_(OP##C, T, L, R, TPX_SFX_##T, )(                                      \
      const Tpx##T* pSrc, int srcStep, TPX_VAL_PARAM_##L(T), Tpx##T* pDst, int dstStep,            \
      TpxSize roiSize TPX_SF_ARG_##T) {                                                            \
    return tpx::arith::Const<tpx::arith::Op::k##OP, Tpx##T, tpx::Layout::L, false>(                \
        pSrc, srcStep, TPX_VAL_PTR_##L, pDst, dstStep, roiSize, TPX_SF_VAL_##T);                   \
  }                                                                                                \
  TPX_API TpxStatus TPX_NAME_(OP##C, T, L, IR, TPX_SFX_##T, )(                                     \
      TPX_VAL_PARAM_##L(T), Tpx##T* pSrcDst, int srcDstStep, TpxSize roiSize TPX_SF_ARG_##T) {     \
    return tpx::arith::Const<tpx::arith::Op::k##OP, Tpx##T, tpx::Layout::L, true>(                 \
        pSrcDst, srcDstStep, TPX_VAL_PTR_##L, pSrcDst, srcDstStep, roiSize, TPX_SF_VAL_##T);       \
  }                                                                                                \
  TPX_API TpxStatus TPX_NAME_(OP##C, T, L, R, TPX_SFX_##T, _L)(                                    \
      const Tpx##T* pSrc, long long srcStep, TPX_VAL_PARAM_##L(T), Tpx##T* pDst,                   \
      long long dstStep, TpxSizeL roiSize TPX_SF_ARG_##T) {                                        \
    return tpx::arith::ConstL<tpx::arith::Op::k##OP, Tpx##T, tpx::Layout::L, false>(               \
        pSrc, srcStep, TPX_VAL_PTR_##L, pDst, dstStep, roiSize, TPX_SF_VAL_##T);                   \
  }                                                                                                \
  TPX_API TpxStatus TPX_NAME_(OP##C, T, L, IR, TPX_SFX_##T, _L)(                                   \
      TPX_VAL_PARAM_##L(T), Tpx##T* pSrcDst, long long srcDstStep,                                 \
      TpxSizeL roiSize TPX_SF_ARG_##T) {                                                           \
    return tpx::arith::ConstL<tpx::arith::Op::k##OP, Tpx##T, tpx::Layout::L, true>(                \
        pSrcDst, srcDstStep, TPX_VAL_PTR_##L, pSrcDst, srcDstStep, roiSize, TPX_SF_VAL_##T);       \
  }

// Member lists: every operation, type and layout.
#define TPX_SCALED_LAYOUTS(X, OP, T) X(OP, T, C1) X(OP, T, C3) X(OP, T, C4) X(OP, T, AC4)
#define TPX_SCALED_TYPES(X, OP)                                                                    \
  TPX_SCALED_LAYOUTS(X, OP, 8u) TPX_SCALED_LAYOUTS(X, OP, 16u) TPX_SCALED_LAYOUTS(X, OP, 16s)      \
  TPX_SCALED_LAYOUTS(X, OP, 32f)
#define TPX_SCALED_MEMBERS(X) TPX_SCALED_TYPES(X, Add) TPX_SCALED_TYPES(X, Sub) TPX_SCALED_TYPES(X, Mul)

TPX_SCALED_MEMBERS(TPX_DEFINE_BINARY)
TPX_SCALED_MEMBERS(TPX_DEFINE_CONST)
