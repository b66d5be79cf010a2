// tpxiCompare_*, tpxiCompareC_*, tpxiCompareEqualEps_32f_*, tpxiCompareEqualEpsC_32f_*: a one-
// channel 0/255 mask of the pixels whose considered channels all satisfy the relation.
// Checks: pointers (the value pointer outside C1 among them), steps, size; then cmpOp, where
// a value above 4 runs nothing and succeeds, or eps, where a value below 0 is refused.
#include "arith/compare.h"

#include <cstdint>
#include <initializer_list>
#include <type_traits>

#include "arith/channel_arg.h"
#include "arith/pixel_runs.h"
#include "core/checks.h"
#include "core/export.h"
#include "core/stream.h"

namespace tpx {
namespace {

// 8u images that are all 16-byte aligned, pointers and steps, take non-temporal stores for the
// mask from 0x100001 bytes of rows on (the steps of the call added, times the height).
inline constexpr long long kCompare8uStreamBytes = 0x100001;

bool StreamMask8u(std::initializer_list<const void*> ptrs, std::initializer_list<int> steps, int height) {
  long long rows = 0;
  for (const void* p : ptrs)
    if (reinterpret_cast<std::uintptr_t>(p) % 16 != 0) return false;
  for (int s : steps) {
    if (s % 16 != 0) return false;
    rows += s;
  }
  return rows * height >= kCompare8uStreamBytes;
}

// Runs run(std::bool_constant<stream>) and fences after streaming stores; other types than 8u
// never stream.
template <class T, class Run>
void WithStreaming(std::initializer_list<const void*> ptrs, std::initializer_list<int> steps,
                   int height, Run&& run) {
  if constexpr (std::is_same_v<T, Tpx8u>) {
    if (StreamMask8u(ptrs, steps, height)) {
      run(std::true_type{});
      StreamFence();
      return;
    }
  }
  run(std::false_type{});
}

template <class T, Layout kL, class Rel>
void CompareImages(const T* a, int aStep, const T* b, int bStep, Tpx8u* d, int dStep, TpxSize roi,
                   const Rel& rel) {
  WithStreaming<T>({a, b, d}, {aStep, bStep, dStep}, roi.height, [&](auto stream) {
    ForEachPixelRun(roi, [&](int n, const T* ra, const T* rb, Tpx8u* rd) {
      CompareRow<T, kL, kIsa, decltype(stream)::value>(RowOperand<T, kL>{ra}, RowOperand<T, kL>{rb}, rd, n, rel);
    }, MakePixelPlane(a, aStep, Stride(kL)), MakePixelPlane(b, bStep, Stride(kL)), MakePixelPlane(d, dStep, 1));
  });
}

// kValueFirst: the constant is the first operand of the relation.
template <class T, Layout kL, bool kValueFirst, class Rel>
void CompareWithValue(const T* a, int aStep, const ConstOperand<T, kL>& v, Tpx8u* d, int dStep,
                      TpxSize roi, const Rel& rel) {
  WithStreaming<T>({a, d}, {aStep, dStep}, roi.height, [&](auto stream) {
    constexpr bool kNT = decltype(stream)::value;
    ForEachPixelRun(roi, [&](int n, const T* ra, Tpx8u* rd) {
      const RowOperand<T, kL> row{ra};
      if constexpr (kValueFirst)
        CompareRow<T, kL, kIsa, kNT>(v, row, rd, n, rel);
      else
        CompareRow<T, kL, kIsa, kNT>(row, v, rd, n, rel);
    }, MakePixelPlane(a, aStep, Stride(kL)), MakePixelPlane(d, dStep, 1));
  });
}

// Three kernels: cmpOp 0, 1, 2 run less, less-or-equal and equal on (a, b); 3 and 4 run
// less-or-equal and less with the operands exchanged. run(rel, exchanged).
template <class T, class Run>
void ByRelation(int cmpOp, Run&& run) {
  switch (cmpOp) {
    case tpxCmpLess: run(RelLess<T>{}, std::false_type{}); break;
    case tpxCmpLessEq: run(RelLessEq<T>{}, std::false_type{}); break;
    case tpxCmpEq: run(RelEq<T>{}, std::false_type{}); break;
    case tpxCmpGreaterEq: run(RelLessEq<T>{}, std::true_type{}); break;
    case tpxCmpGreater: run(RelLess<T>{}, std::true_type{}); break;
    default: break;  // above 4 (or negative): nothing runs, and that is success
  }
}

template <class T, Layout kL>
TpxStatus Compare(const T* a, int aStep, const T* b, int bStep, Tpx8u* d, int dStep, TpxSize roi,
                  int cmpOp) {
  const TpxStatus st = CheckImage<CheckOrder::kPtrStepSize>({a, b, d}, roi, {aStep, bStep, dStep});
  if (st != tpxOk) return st;
  ByRelation<T>(cmpOp, [&](const auto& rel, auto exchanged) {
    if constexpr (decltype(exchanged)::value)
      CompareImages<T, kL>(b, bStep, a, aStep, d, dStep, roi, rel);
    else
      CompareImages<T, kL>(a, aStep, b, bStep, d, dStep, roi, rel);
  });
  return tpxOk;
}

template <class T, Layout kL>
const T* ValuePtr(const ChannelArg<T, kL>& value) {
  if constexpr (kL == Layout::C1)
    return &value;
  else
    return value;
}

template <class T, Layout kL>
TpxStatus CompareC(const T* a, int aStep, ChannelArg<T, kL> value, Tpx8u* d, int dStep, TpxSize roi,
                   int cmpOp) {
  const TpxStatus st = CheckImage<CheckOrder::kPtrStepSize>({ArgPtr(value), a, d}, roi, {aStep, dStep});
  if (st != tpxOk) return st;
  const ConstOperand<T, kL> v(ValuePtr<T, kL>(value));
  ByRelation<T>(cmpOp, [&](const auto& rel, auto exchanged) {
    CompareWithValue<T, kL, decltype(exchanged)::value>(a, aStep, v, d, dStep, roi, rel);
  });
  return tpxOk;
}

template <class T, Layout kL>
TpxStatus CompareEqualEps(const T* a, int aStep, const T* b, int bStep, Tpx8u* d, int dStep,
                          TpxSize roi, Tpx32f eps) {
  const TpxStatus st = CheckImage<CheckOrder::kPtrStepSize>({a, b, d}, roi, {aStep, bStep, dStep});
  if (st != tpxOk) return st;
  if (eps < 0) return tpxErrEpsilon;  // a NaN eps passes, and then nothing is equal
  CompareImages<T, kL>(a, aStep, b, bStep, d, dStep, roi, RelEqualEps(eps));
  return tpxOk;
}

template <class T, Layout kL>
TpxStatus CompareEqualEpsC(const T* a, int aStep, ChannelArg<T, kL> value, Tpx8u* d, int dStep,
                           TpxSize roi, Tpx32f eps) {
  const TpxStatus st = CheckImage<CheckOrder::kPtrStepSize>({ArgPtr(value), a, d}, roi, {aStep, dStep});
  if (st != tpxOk) return st;
  if (eps < 0) return tpxErrEpsilon;
  const ConstOperand<T, kL> v(ValuePtr<T, kL>(value));
  CompareWithValue<T, kL, false>(a, aStep, v, d, dStep, roi, RelEqualEps(eps));
  return tpxOk;
}

}  // namespace
}  // namespace tpx

using tpx::ChannelArg;
using tpx::Layout;

#define TPX_DEF_COMPARE(T, L)                                                                      \
  TPX_API TpxStatus tpxiCompare_##T##_##L##R(const Tpx##T* pSrc1, int src1Step, const Tpx##T* pSrc2, \
                                             int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, \
                                             TpxCmpOp cmpOp) {                                     \
    return tpx::Compare<Tpx##T, Layout::L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, \
                                           cmpOp);                                                 \
  }                                                                                                \
  TPX_API TpxStatus tpxiCompareC_##T##_##L##R(const Tpx##T* pSrc, int srcStep,                     \
                                              ChannelArg<Tpx##T, Layout::L> value, Tpx8u* pDst,    \
                                              int dstStep, TpxSize roiSize, TpxCmpOp cmpOp) {      \
    return tpx::CompareC<Tpx##T, Layout::L>(pSrc, srcStep, value, pDst, dstStep, roiSize, cmpOp);  \
  }
TPX_COMPARE_MEMBERS(TPX_DEF_COMPARE)

#define TPX_DEF_COMPARE_EPS(L)                                                                     \
  TPX_API TpxStatus tpxiCompareEqualEps_32f_##L##R(const Tpx32f* pSrc1, int src1Step,              \
                                                   const Tpx32f* pSrc2, int src2Step, Tpx8u* pDst, \
                                                   int dstStep, TpxSize roiSize, Tpx32f eps) {     \
    return tpx::CompareEqualEps<Tpx32f, Layout::L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, \
                                                   roiSize, eps);                                  \
  }                                                                                                \
  TPX_API TpxStatus tpxiCompareEqualEpsC_32f_##L##R(const Tpx32f* pSrc, int srcStep,               \
                                                    ChannelArg<Tpx32f, Layout::L> value,           \
                                                    Tpx8u* pDst, int dstStep, TpxSize roiSize,     \
                                                    Tpx32f eps) {                                  \
    return tpx::CompareEqualEpsC<Tpx32f, Layout::L>(pSrc, srcStep, value, pDst, dstStep, roiSize,  \
                                                    eps);                                          \
  }
TPX_COMPARE_EPS_LAYOUTS(TPX_DEF_COMPARE_EPS)
