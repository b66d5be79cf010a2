// Transpose. A call whose source and destination are the same image (same pointer, same step)
// runs the in-place form before any check. Check order: pointers, then the extents; the in-place
// forms also refuse a width other than the height.
#include "core/checks.h"
#include "core/export.h"
#include "core/layout.h"
#include "data/transpose_rows.h"

namespace tpx {
namespace {

template <class T, int kS>
TpxStatus TransposeInPlaceImpl(T* p, int step, TpxSize roi) {
  if (!p) return tpxErrNullPtr;
  if (BadSize(roi) || roi.width != roi.height) return tpxErrSize;
  TransposeSquareInPlace<static_cast<int>(sizeof(T)) * kS>(reinterpret_cast<unsigned char*>(p), step, roi.width);
  return tpxOk;
}

template <class T, int kS>
TpxStatus TransposeImpl(const T* s, int ss, T* d, int ds, TpxSize roi) {
  if (s == d && ss == ds) return TransposeInPlaceImpl<T, kS>(d, ds, roi);
  if (const TpxStatus st = CheckImage<CheckOrder::kPtrSize>({s, d}, roi)) return st;
  TransposeImage<static_cast<int>(sizeof(T)) * kS>(reinterpret_cast<const unsigned char*>(s), ss,
                                                   reinterpret_cast<unsigned char*>(d), ds, roi);
  return tpxOk;
}

}  // namespace
}  // namespace tpx

#define TPX_TRANSPOSE_TYPES(X) X(8u) X(16u) X(16s) X(32s) X(32f)

#define TPX_DEFINE_TRANSPOSE_FORM(T, N)                                                               \
  TPX_API TpxStatus tpxiTranspose_##T##_C##N##R(const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, \
                                                TpxSize roiSize) {                                    \
    return tpx::TransposeImpl<Tpx##T, N>(pSrc, srcStep, pDst, dstStep, roiSize);                      \
  }                                                                                                   \
  TPX_API TpxStatus tpxiTranspose_##T##_C##N##IR(Tpx##T* pSrcDst, int srcDstStep, TpxSize roiSize) {  \
    return tpx::TransposeInPlaceImpl<Tpx##T, N>(pSrcDst, srcDstStep, roiSize);                        \
  }
#define TPX_DEFINE_TRANSPOSE(T) \
  TPX_DEFINE_TRANSPOSE_FORM(T, 1) TPX_DEFINE_TRANSPOSE_FORM(T, 3) TPX_DEFINE_TRANSPOSE_FORM(T, 4)

TPX_TRANSPOSE_TYPES(TPX_DEFINE_TRANSPOSE)

// 32fc: one 8-byte element a pixel; no in-place export, but the same-image call still diverts.
TPX_API TpxStatus tpxiTranspose_32fc_C1R(const Tpx32fc* pSrc, int srcStep, Tpx32fc* pDst, int dstStep,
                                         TpxSize roiSize) {
  return tpx::TransposeImpl<Tpx32fc, 1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
