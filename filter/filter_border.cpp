// The general filter family: size query, Init of the three kernel types, SetMode and the
// tpxiFilterBorder_* run over the border engine. Exports are generated from the member list.
#include "filter/filter_border.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "core/border_type.h"
#include "core/codes.h"
#include "core/export.h"
#include "core/isa.h"
#include "core/sizes.h"
#include "filter/border_engine.h"
#include "filter/filter_rows.h"
#include "filter/filter_sizes.h"
#include "filter/filter_spec.h"
#include "tpxcore.h"

namespace tpx::filter {

// ---- Size query ------------------------------------------------------------------------------
// Order: sizes; data type (with the 64f pair apart); channels; output pointers; kernel type.
TpxStatus FilterBorderGetSize(TpxSize k, TpxSize roi, int dataType, int kernelType, int ch, int* pSpecSize,
                              int* pBufferSize, FeatureQuery feature) {
  if (k.width < 1 || k.height < 1 || roi.width < 1 || roi.height < 1) return tpxErrSize;
  const int kw = k.width, kh = k.height;
  const long long kk = static_cast<long long>(kw) * kh;
  auto align64 = [](ByteCount v) { return v.RoundUp(64); };
  if (!DataTypeIs8u16u16s32f(dataType)) {
    if (dataType != 19 || kernelType != 19) return tpxErrDataType;
    if (ch != 1) return tpxErrChannelCount;
    if (!pSpecSize || !pBufferSize) return tpxErrNullPtr;
    const ByteCount spec = align64(ByteCount(kk) * 8) + 191;
    if (spec.Exceeded()) return tpxErrExceededSize;
    const unsigned long long buf = static_cast<unsigned long long>(BorderBytes(kw, kh, roi.width, roi.height, 8, 1)) +
                                   static_cast<unsigned long long>(Filter64fBufBytes(kw, kh, roi.width)) + 126;
    *pSpecSize = static_cast<int>(spec.Value());
    if (buf >= 0x80000000ull) {
      *pBufferSize = 0;
      return tpxErrExceededSize;
    }
    *pBufferSize = static_cast<int>(buf);
    return tpxOk;
  }
  const bool knownKernel = kernelType == 7 || kernelType == 13;
  if (ch < 1 || ch > 4) return knownKernel ? tpxErrChannelCount : tpxErrDataType;
  if (!pSpecSize || !pBufferSize) return knownKernel ? tpxErrNullPtr : tpxErrDataType;
  if (!knownKernel) return tpxErrDataType;
  // 16u always, and 16s where Init takes the float path, keep a float kernel.
  const bool floatPath16s = dataType == 7 && (kw == 1 || kh == 1 || ch == 3 || ch == 4 || (ch == 1 && kw < 3));
  const int eff = (dataType == 5 || floatPath16s) ? 13 : kernelType;
  const int kshift = eff == 13 ? 2 : 1;
  const ByteCount spec = align64(ByteCount(kk << kshift)) + 191 +
                         align64(ByteCount(static_cast<long long>((kw + 1) & ~1)) * kh * 80);
  if (spec.Exceeded()) return tpxErrExceededSize;
  const bool wide = dataType == 1 && eff == 13 && feature(0x8000000ULL);
  const unsigned long long buf =
      static_cast<unsigned long long>(BorderBytes(kw, kh, roi.width, roi.height, SampleBytes(dataType), ch)) +
      static_cast<unsigned long long>(WorkBytes(kw, kh, roi.width, dataType, eff, ch, wide)) + 63;
  *pSpecSize = static_cast<int>(spec.Value());
  if (buf >= 0x80000000ull) {
    *pBufferSize = 0;
    return tpxErrExceededSize;
  }
  *pBufferSize = static_cast<int>(buf);
  return tpxOk;
}

// ---- Init ------------------------------------------------------------------------------------
namespace {

void ClearHeader(FilterBorderSpec* s, TpxSize k, int ch) {
  std::memset(s, 0, kSpecHeaderBytes);
  s->kernelWidth = k.width;
  s->kernelHeight = k.height;
  s->numChannels = ch;
}

// Divisor 1 throughout: the float kinds carry their scale in the kernel.
void UnitDivisor(FilterBorderSpec* s) {
  s->divKind = kDivOne;
  s->shift = 0;
  s->half = 0;
  s->scale = 1.0f;
  s->divisorScaled = 1.0f;
  s->divisor = 1;
  s->divisorD = 1.0;
  s->shiftMask = 0;
  s->divisorF = 1.0f;
}

// Pair table: row by row in the caller's order, each pair (a, b) of a row as a,b,a,b,a,b,a,b
// and an odd last coefficient c as c,0,c,0,c,0,c,0; for 16s a second block with each pair
// swapped follows. Building stops at the first coefficient of 32767 or -32768, and the table
// is then not used.
bool BuildPairTable(const Tpx16s* rev, int kw, int kh, bool second, Tpx16s* t) {
  const int np = (kw + 1) >> 1, n = kw * kh;
  const KernelView<Tpx16s> k = ReversedView(rev, n);
  const std::ptrdiff_t swapped = static_cast<std::ptrdiff_t>(np) * 8 * kh;
  auto bad = [](Tpx16s c) { return static_cast<std::uint16_t>(c - 32767) < 2; };
  for (int i = 0; i < kh; ++i) {
    for (int p = 0; p < np; ++p) {
      const Tpx16s a = k.At(i * kw + 2 * p);
      if (bad(a)) return false;
      Tpx16s b = 0;
      if (2 * p + 1 < kw) {
        b = k.At(i * kw + 2 * p + 1);
        if (bad(b)) return false;
      }
      Tpx16s* e = t + (static_cast<std::ptrdiff_t>(i) * np + p) * 8;
      for (int q = 0; q < 4; ++q) {
        e[2 * q] = a;
        e[2 * q + 1] = b;
        if (second) {
          e[swapped + 2 * q] = b;
          e[swapped + 2 * q + 1] = a;
        }
      }
    }
  }
  return true;
}

}  // namespace

TpxStatus FilterBorderInit32f(const Tpx32f* pKernel, TpxSize k, int dataType, int ch, int roundMode, void* pSpec) {
  if (!pKernel || !pSpec) return tpxErrNullPtr;
  if (k.width < 1 || k.height < 1) return tpxErrSize;
  if (!DataTypeIs8u16u16s32f(dataType)) return tpxErrDataType;
  if (ch < 1 || ch > 4) return tpxErrChannelCount;
  if (RoundModeBad(roundMode)) return tpxErrRoundMode;
  FilterBorderSpec* s = SpecAt(pSpec);
  const int n = k.width * k.height;
  float* area = reinterpret_cast<float*>(KernelArea(s));
  // The kernel may already stand in the kernel area (Init_16s on its float path): reverse it
  // there before the header is written over nothing it needs.
  if (pKernel == area) {
    std::reverse(area, area + n);
  } else {
    for (int i = 0; i < n; ++i) area[i] = pKernel[n - 1 - i];
  }
  ClearHeader(s, k, ch);
  UnitDivisor(s);
  s->kind = dataType == 1 ? kKind8u32f : dataType == 7 ? kKind16s32f : dataType == 5 ? kKind16u32f : kKind32f;
  s->kernelF = area;
  s->kernel16 = area;
  s->kernel64 = area;
  s->roundMode = static_cast<std::uint32_t>(roundMode) & ~kRoundAccurate;
  if (dataType != 13 && ch != 2) {  // forward copy for the vector rows of the float kinds
    float* alt = reinterpret_cast<float*>(reinterpret_cast<unsigned char*>(s) + TableOffset(s, 4));
    for (int i = 0; i < n; ++i) alt[i] = area[n - 1 - i];
    s->kernelAlt = alt;
  }
  return (roundMode & 16) ? tpxWarnRoundFlagDropped : tpxOk;
}

TpxStatus FilterBorderInit16s(const Tpx16s* pKernel, TpxSize k, int divisor, int dataType, int ch, int roundMode,
                              void* pSpec) {
  if (!pKernel || !pSpec) return tpxErrNullPtr;
  if (k.width < 1 || k.height < 1) return tpxErrSize;
  bool warn = false;
  const bool flag = (roundMode & 16) != 0;
  const bool keepFlag = dataType == 7 && ch == 1;  // its type and channels already hold
  if (flag && dataType != 1 && !keepFlag) warn = true;
  if (!(flag && keepFlag)) {
    if (dataType != 1 && dataType != 5 && dataType != 7) return tpxErrDataType;
    if (ch < 1 || ch > 4) return tpxErrChannelCount;
  }
  if (RoundModeBad(roundMode)) return tpxErrRoundMode;
  if (divisor == 0) return tpxErrZeroDivisorArg;
  const int kw = k.width, kh = k.height, n = kw * kh;
  FilterBorderSpec* s = SpecAt(pSpec);
  const bool floatPath = dataType == 5 || (dataType == 7 && (ch == 3 || ch == 4 || kw == 1 || kh == 1 || (ch == 1 && kw < 3)));
  if (floatPath) {
    float* area = reinterpret_cast<float*>(KernelArea(s));
    const double inv = 1.0 / static_cast<double>(divisor);
    for (int i = 0; i < n; ++i) area[i] = static_cast<float>(inv * static_cast<double>(pKernel[i]));
    return FilterBorderInit32f(area, k, dataType, ch, roundMode, pSpec);
  }
  ClearHeader(s, k, ch);
  Tpx16s* rev = reinterpret_cast<Tpx16s*>(KernelArea(s));
  for (int i = 0; i < n; ++i) rev[i] = pKernel[n - 1 - i];
  Tpx16s* table = reinterpret_cast<Tpx16s*>(reinterpret_cast<unsigned char*>(s) + TableOffset(s, 2));
  s->kernel16 = rev;
  s->kernelF = rev;
  s->kernel64 = rev;
  s->pairTable = table;
  s->pairTableValid = BuildPairTable(rev, kw, kh, dataType == 7, table) ? 1u : 0u;
  const std::uint32_t d = static_cast<std::uint32_t>(divisor);
  s->divisor = divisor;
  s->divisorF = static_cast<float>(divisor);
  if (divisor == 1) {
    UnitDivisor(s);
  } else if (((d | 0x80000000u) & (d - 1u)) == 0) {
    const int sh = __builtin_ctz(d);
    s->divKind = kDivPow2;
    s->shift = static_cast<std::uint32_t>(sh);
    s->half = 1u << (sh - 1);
    s->scale = std::ldexp(1.0f, -sh);
    s->divisorScaled = s->scale;
    s->divisorD = std::ldexp(1.0, -sh);
    s->shiftMask = (1u << sh) - 1u;
  } else {
    s->divKind = kDivOther;
    s->scale = 1.0f / static_cast<float>(divisor);
    s->divisorScaled = static_cast<float>(divisor);
    s->divisorD = static_cast<double>(divisor);
  }
  s->divisorF = static_cast<float>(divisor);
  s->kind = dataType == 1 ? kKind8u16s : kKind16s16s;
  std::uint32_t mode = static_cast<std::uint32_t>(roundMode);
  if (warn) mode &= ~kRoundAccurate;  // the flag is dropped where the warning says so
  s->roundMode = mode;
  return warn ? tpxWarnRoundFlagDropped : tpxOk;
}

TpxStatus FilterBorderInit64f(const Tpx64f* pKernel, TpxSize k, int dataType, int ch, int roundMode, void* pSpec) {
  if (!pKernel || !pSpec) return tpxErrNullPtr;
  if (k.width < 1 || k.height < 1) return tpxErrSize;
  if (dataType != 19) return tpxErrDataType;
  if (ch != 1) return tpxErrChannelCount;
  if ((roundMode & ~16) != 1) return tpxErrRoundMode;
  FilterBorderSpec* s = SpecAt(pSpec);
  ClearHeader(s, k, 1);
  UnitDivisor(s);
  const int n = k.width * k.height;
  double* area = reinterpret_cast<double*>(KernelArea(s));
  for (int i = 0; i < n; ++i) area[i] = pKernel[n - 1 - i];
  s->kind = kKind64f;
  s->kernel16 = area;
  s->kernelF = area;
  s->kernel64 = area;
  s->roundMode = static_cast<std::uint32_t>(roundMode);
  return tpxOk;
}

// Offsets are refused by the kinds that cannot carry them (16s and 32f kernels on 16s, 32f
// and 64f data). The accurate hint sets the flag where an integer row honours it.
TpxStatus FilterBorderSetMode(int hint, int offset, void* pSpec) {
  if (!pSpec) return tpxErrNullPtr;
  FilterBorderSpec* s = SpecAt(pSpec);
  if (s->kind == kKind16s16s || s->kind == kKind16s32f || s->kind == kKind32f) {
    if (offset != 0) return tpxErrNotSupportedMode;
  } else if (s->kind == kKind64f) {
    return offset != 0 ? tpxErrNotSupportedMode : tpxOk;
  }
  if (hint == 2) {
    if (s->kind == kKind8u16s || (s->kind == kKind16s16s && s->numChannels == 1)) s->roundMode |= kRoundAccurate;
  } else {
    s->roundMode &= 3u;
  }
  s->offset = offset;
  // The scalar rows add the offset before the divide, so the integer kinds carry it in
  // accumulator units.
  s->offsetF = s->kind > 2 ? static_cast<float>(offset) : static_cast<float>(WrapMul(offset, s->divisor));
  s->hint = hint;
  return tpxOk;
}

// ---- Run -------------------------------------------------------------------------------------
namespace {

Window WindowOf(const FilterBorderSpec* s) {
  const Reach r = KernelReach(s->kernelWidth, s->kernelHeight);
  return {s->kernelWidth, s->kernelHeight, r.left, r.top};
}

IntRowParams IntParamsOf(const FilterBorderSpec* s) {
  IntRowParams p{};
  p.win = WindowOf(s);
  p.rev = reinterpret_cast<const Tpx16s*>(KernelArea(s));
  p.pairs = s->pairTableValid
                ? reinterpret_cast<const __m128i*>(reinterpret_cast<const unsigned char*>(s) + TableOffset(s, 2))
                : nullptr;
  p.roundMode = s->roundMode;
  p.divKind = s->divKind;
  p.shift = static_cast<int>(s->shift);
  p.half = static_cast<int>(s->half);
  p.offset = s->offset;
  p.divisor = s->divisor;
  p.scale = s->scale;
  p.offsetF = s->offsetF;
  p.divisorD = s->divisorD;
  return p;
}

FloatRowParams FloatParamsOf(const FilterBorderSpec* s) {
  FloatRowParams p{};
  p.win = WindowOf(s);
  const int n = s->kernelWidth * s->kernelHeight;
  if (s->kernelAlt && s->kind >= kKind8u32f && s->kind <= kKind16u32f)
    p.k = {reinterpret_cast<const float*>(reinterpret_cast<const unsigned char*>(s) + TableOffset(s, 4)), 1};
  else
    p.k = ReversedView(reinterpret_cast<const float*>(KernelArea(s)), n);
  p.offsetF = s->offsetF;
  p.mode = static_cast<int>(s->roundMode & 3);
  return p;
}

// Check order: pointers; the constant of a constant border; size; steps (the source only for
// its sign, the destination against one row of single samples, channels left out on purpose);
// border type. The spec is not checked: a spec of another type or channel count runs as it is.
template <class T, int kCh>
TpxStatus FilterBorderRun(const T* pSrc, int srcStep, T* pDst, int dstStep, TpxSize roi, int borderType,
                          const T* borderValue, const void* pSpec, Tpx8u* pBuffer) {
  if (!pSrc || !pDst || !pSpec || !pBuffer) return tpxErrNullPtr;
  if ((borderType & 15) == 6 && !borderValue) return tpxErrNullPtr;
  if (roi.width < 1 || roi.height < 1) return tpxErrSize;
  if (srcStep < 1 || static_cast<long long>(roi.width) * static_cast<long long>(sizeof(T)) > dstStep) return tpxErrStep;
  if (static_cast<unsigned>(borderType) >= 256u) return tpxErrBorder;  // negatives too
  if (const TpxStatus st = CheckBorderType(borderType, kBorderReplMirrorConst); st != tpxOk) return st;

  const FilterBorderSpec* s = SpecAt(pSpec);
  const int kw = s->kernelWidth, kh = s->kernelHeight;
  const WorkSplit ws = SplitBuffer(pBuffer, BorderBytes(kw, kh, roi.width, roi.height, sizeof(T), kCh));
  T* scratch = reinterpret_cast<T*>(ws.scratch);
  auto engine = [&](auto&& rows, int sideMin = 0) {
    RunBorderEngine<T, kCh>(pSrc, srcStep, pDst, dstStep, roi, kw, kh, borderType, borderValue, scratch, rows,
                            sideMin);
  };
  // The 32f and 64f rows compute the same sums on any width, so their side strips are made as
  // wide as one vector: the narrow form would otherwise run down both sides of the image.
  if constexpr (std::is_same_v<T, Tpx32f>) {
    const Window win = WindowOf(s);
    const float* rev = reinterpret_cast<const float*>(KernelArea(s));
    engine([&](const T* sp, std::ptrdiff_t ss, T* dp, std::ptrdiff_t ds, int w, int h) {
      Float32Rows<kCh, kIsa>(sp, ss, dp, ds, w, h, win, rev);
    }, (8 + kCh - 1) / kCh);
  } else if constexpr (std::is_same_v<T, Tpx64f>) {
    const Window win = WindowOf(s);
    const KernelView<double> k = ReversedView(reinterpret_cast<const double*>(KernelArea(s)), kw * kh);
    engine([&](const T* sp, std::ptrdiff_t ss, T* dp, std::ptrdiff_t ds, int w, int h) {
      Float64Rows<kIsa>(sp, ss, dp, ds, w, h, win, k);
    }, 4);
  } else if (s->kind <= kKind16s16s) {
    const IntRowParams p = IntParamsOf(s);
    engine([&](const T* sp, std::ptrdiff_t ss, T* dp, std::ptrdiff_t ds, int w, int h) {
      IntRows<T, kCh, kIsa>(sp, ss, dp, ds, w, h, p);
    });
  } else {
    const FloatRowParams p = FloatParamsOf(s);
    engine([&](const T* sp, std::ptrdiff_t ss, T* dp, std::ptrdiff_t ds, int w, int h) {
      FloatKindRows<T, kCh, kIsa>(sp, ss, dp, ds, w, h, p);
    });
  }
  return tpxOk;
}

}  // namespace
}  // namespace tpx::filter

using namespace tpx::filter;

TPX_API TpxStatus tpxiFilterBorderGetSize(TpxSize kernelSize, TpxSize roiSize, int dataType, int kernelType,
                                          int numChannels, int* pSpecSize, int* pBufferSize) {
  return FilterBorderGetSize(kernelSize, roiSize, dataType, kernelType, numChannels, pSpecSize, pBufferSize,
                             ownGetFeature);
}
TPX_API TpxStatus tpxiFilterBorderInit_16s(const Tpx16s* pKernel, TpxSize kernelSize, int divisor, int dataType,
                                           int numChannels, int roundMode, void* pSpec) {
  return FilterBorderInit16s(pKernel, kernelSize, divisor, dataType, numChannels, roundMode, pSpec);
}
TPX_API TpxStatus tpxiFilterBorderInit_32f(const Tpx32f* pKernel, TpxSize kernelSize, int dataType,
                                           int numChannels, int roundMode, void* pSpec) {
  return FilterBorderInit32f(pKernel, kernelSize, dataType, numChannels, roundMode, pSpec);
}
TPX_API TpxStatus tpxiFilterBorderInit_64f(const Tpx64f* pKernel, TpxSize kernelSize, int dataType,
                                           int numChannels, int roundMode, void* pSpec) {
  return FilterBorderInit64f(pKernel, kernelSize, dataType, numChannels, roundMode, pSpec);
}
TPX_API TpxStatus tpxiFilterBorderSetMode(int hint, int offset, void* pSpec) {
  return FilterBorderSetMode(hint, offset, pSpec);
}

#define TPX_FILTER_BORDER_MEMBERS(X) \
  X(8u, C1, 1) X(8u, C3, 3) X(8u, C4, 4) X(16u, C1, 1) X(16u, C3, 3) X(16u, C4, 4) \
  X(16s, C1, 1) X(16s, C3, 3) X(16s, C4, 4) X(32f, C1, 1) X(32f, C3, 3) X(32f, C4, 4) X(64f, C1, 1)

#define TPX_DEFINE_FILTER_BORDER(T, L, CH)                                                             \
  TPX_API TpxStatus tpxiFilterBorder_##T##_##L##R(const Tpx##T* pSrc, int srcStep, Tpx##T* pDst,       \
                                                  int dstStep, TpxSize roiSize, int borderType,        \
                                                  const Tpx##T* borderValue, const void* pSpec,        \
                                                  Tpx8u* pBuffer) {                                    \
    return FilterBorderRun<Tpx##T, CH>(pSrc, srcStep, pDst, dstStep, roiSize, borderType, borderValue, \
                                       pSpec, pBuffer);                                                \
  }
TPX_FILTER_BORDER_MEMBERS(TPX_DEFINE_FILTER_BORDER)
