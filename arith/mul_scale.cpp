// MulScale and MulCScale: products as fractions of the type's maximum, 8u and 16u, in C1, C3,
// C4 and AC4, out of place and in place. No scale factor, no rounding mode, no _L twins.
#include <cstddef>

#include "arith/mul_scale_rows.h"
#include "arith/point_rows.h"
#include "arith/value_args.h"
#include "core/checks.h"
#include "core/export.h"

namespace tpx::arith {
namespace {

// Checks: pointers, step (below 1), size. The C3 and C4 members of the two-image form widen
// the row of the C1 path and so test both extents first.
template <class T, Layout kL>
TpxStatus MulScale(const T* y, int yStep, const T* x, int xStep, T* d, int dStep, TpxSize roi,
                   std::initializer_list<long long> steps) {
  if constexpr (kL == Layout::C3 || kL == Layout::C4)
    if (BadSize(roi)) return tpxErrSize;
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrStepSize>({y, x, d}, roi, steps); st != tpxOk)
    return st;
  BinaryRows<MulScaleOp<T>, kL>(x, xStep, y, yStep, d, dStep, roi, NoParams{});
  return tpxOk;
}

// Checks: pointers (the constant's among them), step, size.
template <class T, Layout kL>
TpxStatus MulCScale(const T* s, int sStep, const T* value, T* d, int dStep, TpxSize roi,
                    std::initializer_list<long long> steps) {
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrStepSize>({s, value, d}, roi, steps); st != tpxOk)
    return st;
  ConstRows<MulScaleOp<T>, kL>(s, sStep, PixelConst<T, kL>(value), d, dStep, roi, NoParams{});
  return tpxOk;
}

}  // namespace
}  // namespace tpx::arith

#define TPX_DEFINE_MUL_SCALE(T, L)                                                                 \
  TPX_API TpxStatus tpxiMulScale_##T##_##L##R(const Tpx##T* pSrc1, int src1Step,                  \
                                              const Tpx##T* pSrc2, int src2Step, Tpx##T* pDst,     \
                                              int dstStep, TpxSize roiSize) {                      \
    return tpx::arith::MulScale<Tpx##T, tpx::Layout::L>(pSrc1, src1Step, pSrc2, src2Step, pDst,   \
                                                        dstStep, roiSize,                          \
                                                        {src1Step, src2Step, dstStep});            \
  }                                                                                                \
  TPX_API TpxStatus tpxiMulScale_##T##_##L##IR(const Tpx##T* pSrc, int srcStep, Tpx##T* pSrcDst,  \
                                               int srcDstStep, TpxSize roiSize) {                  \
    return tpx::arith::MulScale<Tpx##T, tpx::Layout::L>(pSrc, srcStep, pSrcDst, srcDstStep,       \
                                                        pSrcDst, srcDstStep, roiSize,              \
                                                        {srcStep, srcDstStep});                    \
  }                                                                                                \
  TPX_API TpxStatus tpxiMulCScale_##T##_##L##R(const Tpx##T* pSrc, int srcStep,                   \
                                               TPX_VAL_PARAM_##L(T), Tpx##T* pDst, int dstStep, \
                                               TpxSize roiSize) {                                  \
    return tpx::arith::MulCScale<Tpx##T, tpx::Layout::L>(pSrc, srcStep, TPX_VAL_PTR_##L, pDst, \
                                                         dstStep, roiSize, {srcStep, dstStep});    \
  }                                                                                                \
  TPX_API TpxStatus tpxiMulCScale_##T##_##L##IR(TPX_VAL_PARAM_##L(T), Tpx##T* pSrcDst,         \
                                                int srcDstStep, TpxSize roiSize) {                 \
    return tpx::arith::MulCScale<Tpx##T, tpx::Layout::L>(pSrcDst, srcDstStep, TPX_VAL_PTR_##L, \
                                                         pSrcDst, srcDstStep, roiSize,             \
                                                         {srcDstStep});                            \
  }

#define TPX_MUL_SCALE_MEMBERS(X) \
  X(8u, C1) X(8u, C3) X(8u, C4) X(8u, AC4) X(16u, C1) X(16u, C3) X(16u, C4) X(16u, AC4)

TPX_MUL_SCALE_MEMBERS(TPX_DEFINE_MUL_SCALE)
