// Border copies: tpxiCopyConstBorder_*, tpxiCopyReplicateBorder_*, tpxiCopyMirrorBorder_*,
// tpxiCopyWrapBorder_*. One driver over (kind, type, layout) serves every member, its in-place
// form and both widths; the rows are written by the shared border routines of border_rows.h.
#include <climits>

#include "core/border_type.h"
#include "core/checks.h"
#include "core/export.h"
#include "core/layout.h"
#include "core/ltwin.h"
#include "core/rows.h"
#include "core/stream.h"
#include "data/border_members.h"
#include "data/border_rows.h"

namespace tpx {
namespace {

// Query floor of the constant border drivers, in destination pixels: about 6 MiB of
// destination, with the pixel size taken up to a power of two and at most 8 bytes.
constexpr long long ConstBorderStreamFloor(int pixelBytes) {
  return pixelBytes == 1 ? 0x600001 : pixelBytes == 2 ? 0x300001 : pixelBytes <= 4 ? 0x180001 : 0xC0001;
}

struct BorderGeometry {
  TpxSizeL src, dst;
  long long top, left;
};

inline TpxSizeL Wide(TpxSize s) { return {s.width, s.height}; }
inline TpxSize Narrow(TpxSizeL s) { return {static_cast<int>(s.width), static_cast<int>(s.height)}; }

// Pointers, then steps below 1, then every size rule; no step is compared with a row.
inline TpxStatus CheckBorderCopy(PtrList ptrs, StepList steps, const BorderGeometry& g) {
  if (AnyNull(ptrs)) return tpxErrNullPtr;
  if (AnyBadStep(steps)) return tpxErrStep;
  if (BadSize(g.src) || BadSize(g.dst) || g.top < 0 || g.left < 0 ||
      g.left > g.dst.width - g.src.width || g.top > g.dst.height - g.src.height)
    return tpxErrSize;
  return tpxOk;
}

template <BorderKind kKind, class T, Layout kL>
void RunBorderCopy(const T* src, std::ptrdiff_t srcStep, T* dst, std::ptrdiff_t dstStep,
                   const BorderGeometry& g, const T* value) {
  const BorderExtent b{g.left, g.top, g.dst.width - g.src.width - g.left, g.dst.height - g.src.height - g.top};
  if constexpr (kKind == BorderKind::kConst) {
    const BorderValue<T, kL> v(value);
    long long pixels = 0;
    if (__builtin_mul_overflow(g.dst.width, g.dst.height, &pixels)) pixels = LLONG_MAX;
    const bool stream = ChooseStreaming(pixels, ConstBorderStreamFloor(static_cast<int>(sizeof(T)) * Stride(kL)));
    ExtendImage<T, kL>(kKind, src, srcStep, g.src.width, g.src.height, dst, dstStep, b, &v, stream);
  } else {
    ExtendImage<T, kL>(kKind, src, srcStep, g.src.width, g.src.height, dst, dstStep, b, nullptr);
  }
}

// In place: the source stands inside the destination, which starts `top` rows above and
// `left` pixels to the left of it. Checks: pointers, step, sizes.
template <BorderKind kKind, class T, Layout kL>
TpxStatus BorderIR(T* pSrc, long long step, TpxSizeL srcRoi, TpxSizeL dstRoi, long long top, long long left,
                   const T* value) {
  const BorderGeometry g{srcRoi, dstRoi, top, left};
  const TpxStatus st = CheckBorderCopy(kKind == BorderKind::kConst ? PtrList{pSrc, value} : PtrList{pSrc}, {step}, g);
  if (st != tpxOk) return st;
  T* dst = PixelAt(pSrc, static_cast<std::ptrdiff_t>(step), -left, -top, Stride(kL));
  RunBorderCopy<kKind, T, kL>(pSrc, static_cast<std::ptrdiff_t>(step), dst, static_cast<std::ptrdiff_t>(step), g, value);
  return tpxOk;
}

// Replicate and Mirror take pSrc == pDst to the in-place form before any check (with dstStep;
// srcStep is not looked at), Wrap after its checks, Const never.
template <BorderKind kKind, class T, Layout kL>
TpxStatus BorderR(const T* pSrc, long long srcStep, TpxSizeL srcRoi, T* pDst, long long dstStep, TpxSizeL dstRoi,
                  long long top, long long left, const T* value) {
  constexpr bool kDivertFirst = kKind == BorderKind::kRepl || kKind == BorderKind::kMirror;
  if constexpr (kDivertFirst)
    if (pSrc == pDst) return BorderIR<kKind, T, kL>(pDst, dstStep, srcRoi, dstRoi, top, left, value);
  const BorderGeometry g{srcRoi, dstRoi, top, left};
  const TpxStatus st = CheckBorderCopy(
      kKind == BorderKind::kConst ? PtrList{pSrc, pDst, value} : PtrList{pSrc, pDst}, {srcStep, dstStep}, g);
  if (st != tpxOk) return st;
  if constexpr (kKind == BorderKind::kWrap)
    if (pSrc == pDst) return BorderIR<kKind, T, kL>(pDst, dstStep, srcRoi, dstRoi, top, left, value);
  RunBorderCopy<kKind, T, kL>(pSrc, static_cast<std::ptrdiff_t>(srcStep), pDst, static_cast<std::ptrdiff_t>(dstStep),
                              g, value);
  return tpxOk;
}

// The _L frame: where the steps, both areas and both borders fit, the 32-bit export runs with
// the narrowed arguments and its status stands. Otherwise an empty extent is tpxOk, and the
// same driver runs in 64-bit arithmetic.
inline bool FitsNarrow(long long v) { return AbsU(v) <= kLNarrowLimit; }
template <class NarrowCall, class WideCall>
TpxStatus BorderL(TpxSizeL src, TpxSizeL dst, StepList steps, long long top, long long left,
                  NarrowCall&& narrow, WideCall&& wide) {
  if (LTwinFits(src, steps) && LTwinFits(dst, {}) && FitsNarrow(top) && FitsNarrow(left)) return narrow();
  if (BadSize(src) || BadSize(dst)) return tpxOk;
  return wide();
}

}  // namespace
}  // namespace tpx

using tpx::BorderKind;
using tpx::Layout;

// VPARAM: the value parameter of the member (none, a sample, or a pointer to the samples);
// VARG: the value as a pointer for the driver; VFWD: the value passed on to the 32-bit export.
#define TPX_DEFINE_BORDER(Name, Kind, T, L, VPARAM, VARG, VFWD)                                         \
  TPX_API TpxStatus tpxi##Name##_##T##_##L##R(const Tpx##T* pSrc, int srcStep, TpxSize srcRoiSize,       \
                                              Tpx##T* pDst, int dstStep, TpxSize dstRoiSize,            \
                                              int topBorderHeight, int leftBorderWidth VPARAM(T)) {     \
    return tpx::BorderR<BorderKind::Kind, Tpx##T, Layout::L>(pSrc, srcStep, tpx::Wide(srcRoiSize), pDst,  \
        dstStep, tpx::Wide(dstRoiSize), topBorderHeight, leftBorderWidth, VARG);                        \
  }                                                                                                     \
  TPX_API TpxStatus tpxi##Name##_##T##_##L##IR(Tpx##T* pSrc, int srcDstStep, TpxSize srcRoiSize,         \
                                               TpxSize dstRoiSize, int topBorderHeight,                 \
                                               int leftBorderWidth VPARAM(T)) {                         \
    return tpx::BorderIR<BorderKind::Kind, Tpx##T, Layout::L>(pSrc, srcDstStep, tpx::Wide(srcRoiSize),    \
        tpx::Wide(dstRoiSize), topBorderHeight, leftBorderWidth, VARG);                                 \
  }                                                                                                     \
  TPX_API TpxStatus tpxi##Name##_##T##_##L##R_L(const Tpx##T* pSrc, long long srcStep,                   \
                                                TpxSizeL srcRoiSize, Tpx##T* pDst, long long dstStep,   \
                                                TpxSizeL dstRoiSize, long long topBorderHeight,         \
                                                long long leftBorderWidth VPARAM(T)) {                  \
    return tpx::BorderL(                                                                                \
        srcRoiSize, dstRoiSize, {srcStep, dstStep}, topBorderHeight, leftBorderWidth,                   \
        [&] {                                                                                           \
          return tpxi##Name##_##T##_##L##R(pSrc, static_cast<int>(srcStep), tpx::Narrow(srcRoiSize),    \
              pDst, static_cast<int>(dstStep), tpx::Narrow(dstRoiSize),                                 \
              static_cast<int>(topBorderHeight), static_cast<int>(leftBorderWidth) VFWD);               \
        },                                                                                              \
        [&] {                                                                                           \
          return tpx::BorderR<BorderKind::Kind, Tpx##T, Layout::L>(pSrc, srcStep, srcRoiSize, pDst,     \
              dstStep, dstRoiSize, topBorderHeight, leftBorderWidth, VARG);                             \
        });                                                                                             \
  }                                                                                                     \
  TPX_API TpxStatus tpxi##Name##_##T##_##L##IR_L(Tpx##T* pSrc, long long srcDstStep,                     \
                                                 TpxSizeL srcRoiSize, TpxSizeL dstRoiSize,              \
                                                 long long topBorderHeight,                             \
                                                 long long leftBorderWidth VPARAM(T)) {                 \
    return tpx::BorderL(                                                                                \
        srcRoiSize, dstRoiSize, {srcDstStep}, topBorderHeight, leftBorderWidth,                         \
        [&] {                                                                                           \
          return tpxi##Name##_##T##_##L##IR(pSrc, static_cast<int>(srcDstStep), tpx::Narrow(srcRoiSize), \
              tpx::Narrow(dstRoiSize), static_cast<int>(topBorderHeight),                               \
              static_cast<int>(leftBorderWidth) VFWD);                                                  \
        },                                                                                              \
        [&] {                                                                                           \
          return tpx::BorderIR<BorderKind::Kind, Tpx##T, Layout::L>(pSrc, srcDstStep, srcRoiSize,       \
              dstRoiSize, topBorderHeight, leftBorderWidth, VARG);                                      \
        });                                                                                             \
  }

#define TPX_NO_VALUE(T)
#define TPX_VALUE_BY_VALUE(T) , Tpx##T value
#define TPX_VALUE_BY_POINTER(T) , const Tpx##T* value
#define TPX_COMMA_VALUE , value

// Const: C1 takes the sample by value, the other layouts a pointer to three or four samples.
#define TPX_VALUE_PARAM_C1 TPX_VALUE_BY_VALUE
#define TPX_VALUE_PARAM_C3 TPX_VALUE_BY_POINTER
#define TPX_VALUE_PARAM_C4 TPX_VALUE_BY_POINTER
#define TPX_VALUE_PARAM_AC4 TPX_VALUE_BY_POINTER
#define TPX_VALUE_ARG_C1 &value
#define TPX_VALUE_ARG_C3 value
#define TPX_VALUE_ARG_C4 value
#define TPX_VALUE_ARG_AC4 value

#define TPX_DEFINE_CONST_BORDER(T, L) \
  TPX_DEFINE_BORDER(CopyConstBorder, kConst, T, L, TPX_VALUE_PARAM_##L, TPX_VALUE_ARG_##L, TPX_COMMA_VALUE)
#define TPX_DEFINE_REPLICATE_BORDER(T, L) \
  TPX_DEFINE_BORDER(CopyReplicateBorder, kRepl, T, L, TPX_NO_VALUE, nullptr, )
#define TPX_DEFINE_MIRROR_BORDER(T, L) \
  TPX_DEFINE_BORDER(CopyMirrorBorder, kMirror, T, L, TPX_NO_VALUE, nullptr, )
#define TPX_DEFINE_WRAP_BORDER(T, L) \
  TPX_DEFINE_BORDER(CopyWrapBorder, kWrap, T, L, TPX_NO_VALUE, nullptr, )

TPX_CONST_BORDER_MEMBERS(TPX_DEFINE_CONST_BORDER)
TPX_REPLICATE_BORDER_MEMBERS(TPX_DEFINE_REPLICATE_BORDER)
TPX_MIRROR_BORDER_MEMBERS(TPX_DEFINE_MIRROR_BORDER)
TPX_WRAP_BORDER_MEMBERS(TPX_DEFINE_WRAP_BORDER)
