// Copy in all its forms, and Dup. Check order: pointers, then the extents; no step check.
#include <type_traits>

#include "core/checks.h"
#include "core/export.h"
#include "core/layout.h"
#include "core/ltwin.h"
#include "core/region.h"
#include "data/mask_rows.h"
#include "data/pixel_rows.h"
#include "data/planar_rows.h"

namespace tpx {
namespace {

constexpr auto kOrder = CheckOrder::kPtrSize;

template <class T, Layout kL>
TpxStatus CopyImpl(const T* s, int ss, T* d, int ds, TpxSize roi) {
  if (const TpxStatus st = CheckImage<kOrder>({s, d}, roi)) return st;
  CopyRegion<T, kL>(s, ss, d, ds, roi);
  return tpxOk;
}

// The single-row helper of the _L walk: its own null and width checks.
template <class T, Layout kL>
TpxStatus CopyPiece(const T* s, T* d, int n) {
  if (const TpxStatus st = CheckImage<kOrder>({s, d}, TpxSize{n, 1})) return st;
  CopyRegion<T, kL>(s, 0, d, 0, TpxSize{n, 1});
  return tpxOk;
}

template <class T, Layout kL>
TpxStatus CopyImplL(const T* s, long long ss, T* d, long long ds, TpxSizeL roi) {
  constexpr int S = Stride(kL);
  return LTwin(
      roi, {ss, ds}, S,
      [&](TpxSize r) { return CopyImpl<T, kL>(s, static_cast<int>(ss), d, static_cast<int>(ds), r); },
      [&](long long y, long long x, int n) {
        return CopyPiece<T, kL>(PixelAt(s, ss, x, y, S), PixelAt(d, ds, x, y, S), n);
      });
}

template <class T, Layout kL>
TpxStatus CopyMaskedImpl(const T* s, int ss, T* d, int ds, TpxSize roi, const Tpx8u* m, int ms) {
  if (const TpxStatus st = CheckImage<kOrder>({s, d, m}, roi)) return st;
  ForEachRow(roi.height, [&](const T* rs, T* rd, const Tpx8u* rm) { MaskedRow<kIsa, T, kL, true>(rs, rd, rm, roi.width); },
             MakePlane(s, ss), MakePlane(d, ds), MakePlane(m, ms));
  return tpxOk;
}

// Byte range [lo, hi) that the rows of a one-channel image (pointer on the channel, kS samples
// a pixel) touch, for any sign of the step.
template <class T, int kS>
void ChannelRange(const T* p, int step, TpxSize roi, std::uintptr_t* lo, std::uintptr_t* hi) {
  const std::uintptr_t first = reinterpret_cast<std::uintptr_t>(p);
  const std::uintptr_t last = reinterpret_cast<std::uintptr_t>(PixelAt(p, step, 0, roi.height - 1, kS));
  const std::uintptr_t row = (static_cast<std::uintptr_t>(roi.width - 1) * kS + 1) * sizeof(T);
  *lo = first < last ? first : last;
  *hi = (first < last ? last : first) + row;
}

// Channel forms: kSi/kSo samples a source/destination pixel, from[] as in PixelMap; a side whose
// pointer stands on a channel owns only that sample of its last pixel. C3CR and C4CR
// (kOverlapTest) take a plain sample loop, row by row, where the two address ranges overlap.
template <class T, int kSi, int kSo, bool kOverlapTest = false>
TpxStatus ChannelImpl(const T* s, int ss, T* d, int ds, TpxSize roi, std::initializer_list<int> from,
                      int srcLast, int dstLast) {
  if (const TpxStatus st = CheckImage<kOrder>({s, d}, roi)) return st;
  if constexpr (kOverlapTest) {
    std::uintptr_t slo, shi, dlo, dhi;
    ChannelRange<T, kSi>(s, ss, roi, &slo, &shi);
    ChannelRange<T, kSo>(d, ds, roi, &dlo, &dhi);
    if (slo < dhi && dlo < shi) {
      ForEachRow(roi.height, [&](const T* rs, T* rd) {
        for (int i = 0; i < roi.width; ++i) rd[i * kSo] = rs[i * kSi];
      }, MakePlane(s, ss), MakePlane(d, ds));
      return tpxOk;
    }
  }
  const PixelMap<T, kSi, kSo> map(from.begin(), T{}, false, srcLast, dstLast);
  MapImage(s, ss, d, ds, roi, map);
  return tpxOk;
}

template <class T, int kC>
TpxStatus ToPlanarImpl(const T* s, int ss, T* const* d, int ds, TpxSize roi) {
  if (!d) return tpxErrNullPtr;
  if (const TpxStatus st = CheckImage<kOrder>({s, d[0], d[1], d[2], d[kC - 1]}, roi)) return st;
  ToPlanarImage<T, kC, std::is_same_v<T, Tpx32f>>(s, ss, d, ds, roi);
  return tpxOk;
}

template <class T, int kC>
TpxStatus FromPlanarImpl(const T* const* s, int ss, T* d, int ds, TpxSize roi) {
  if (!s) return tpxErrNullPtr;
  if (const TpxStatus st = CheckImage<kOrder>({s[0], s[1], s[2], s[kC - 1], d}, roi)) return st;
  FromPlanarImage<T, kC, std::is_same_v<T, Tpx32f>>(s, ss, d, ds, roi);
  return tpxOk;
}

}  // namespace
}  // namespace tpx

using tpx::kKeep;
using tpx::Layout;

#define TPX_COPY_TYPES(X) X(8u) X(16u) X(16s) X(32s) X(32f)

#define TPX_COPY_ARGS(T) const Tpx##T *pSrc, int srcStep, Tpx##T *pDst, int dstStep, TpxSize roiSize
#define TPX_COPY_PASS pSrc, srcStep, pDst, dstStep, roiSize

#define TPX_DEFINE_COPY_PLAIN(T, L)                                                                     \
  TPX_API TpxStatus tpxiCopy_##T##_##L##R(TPX_COPY_ARGS(T)) {                                           \
    return tpx::CopyImpl<Tpx##T, Layout::L>(TPX_COPY_PASS);                                              \
  }                                                                                                     \
  TPX_API TpxStatus tpxiCopy_##T##_##L##R_L(const Tpx##T* pSrc, long long srcStep, Tpx##T* pDst,        \
                                            long long dstStep, TpxSizeL roiSize) {                      \
    return tpx::CopyImplL<Tpx##T, Layout::L>(TPX_COPY_PASS);                                             \
  }                                                                                                     \
  TPX_API TpxStatus tpxiCopy_##T##_##L##MR(TPX_COPY_ARGS(T), const Tpx8u* pMask, int maskStep) {        \
    return tpx::CopyMaskedImpl<Tpx##T, Layout::L>(TPX_COPY_PASS, pMask, maskStep);                       \
  }

#define TPX_DEFINE_COPY_CHANNEL(T, NAME, SI, SO, OVERLAP, SRC_LAST, DST_LAST, ...)                      \
  TPX_API TpxStatus tpxiCopy_##T##_##NAME(TPX_COPY_ARGS(T)) {                                          \
    return tpx::ChannelImpl<Tpx##T, SI, SO, OVERLAP>(TPX_COPY_PASS, {__VA_ARGS__}, SRC_LAST, DST_LAST); \
  }

#define TPX_DEFINE_COPY_PLANAR(T, C, TO, FROM)                                                                  \
  TPX_API TpxStatus tpxiCopy_##T##_##TO(const Tpx##T* pSrc, int srcStep, Tpx##T* const pDst[C], \
                                                 int dstStep, TpxSize roiSize) {                        \
    return tpx::ToPlanarImpl<Tpx##T, C>(TPX_COPY_PASS);                                                  \
  }                                                                                                     \
  TPX_API TpxStatus tpxiCopy_##T##_##FROM(const Tpx##T* const pSrc[C], int srcStep, Tpx##T* pDst, \
                                                 int dstStep, TpxSize roiSize) {                        \
    return tpx::FromPlanarImpl<Tpx##T, C>(TPX_COPY_PASS);                                                \
  }

#define TPX_DEFINE_COPY_TYPE(T)                                                   \
  TPX_DEFINE_COPY_PLAIN(T, C1)                                                    \
  TPX_DEFINE_COPY_PLAIN(T, C3)                                                    \
  TPX_DEFINE_COPY_PLAIN(T, C4)                                                    \
  TPX_DEFINE_COPY_PLAIN(T, AC4)                                                   \
  TPX_DEFINE_COPY_CHANNEL(T, C3CR, 3, 3, true, 1, 1, 0, kKeep, kKeep)             \
  TPX_DEFINE_COPY_CHANNEL(T, C4CR, 4, 4, true, 1, 1, 0, kKeep, kKeep, kKeep)      \
  TPX_DEFINE_COPY_CHANNEL(T, C3C1R, 3, 1, false, 1, 1, 0)                         \
  TPX_DEFINE_COPY_CHANNEL(T, C4C1R, 4, 1, false, 1, 1, 0)                         \
  TPX_DEFINE_COPY_CHANNEL(T, C1C3R, 1, 3, false, 1, 1, 0, kKeep, kKeep)           \
  TPX_DEFINE_COPY_CHANNEL(T, C1C4R, 1, 4, false, 1, 1, 0, kKeep, kKeep, kKeep)    \
  TPX_DEFINE_COPY_CHANNEL(T, C3AC4R, 3, 4, false, 3, 4, 0, 1, 2, kKeep)           \
  TPX_DEFINE_COPY_CHANNEL(T, AC4C3R, 4, 3, false, 4, 3, 0, 1, 2)                  \
  TPX_DEFINE_COPY_PLANAR(T, 3, C3P3R, P3C3R)                                                  \
  TPX_DEFINE_COPY_PLANAR(T, 4, C4P4R, P4C4R)

TPX_COPY_TYPES(TPX_DEFINE_COPY_TYPE)

// Dup: the source sample to every channel of the destination pixel.
TPX_API TpxStatus tpxiDup_8u_C1C3R(TPX_COPY_ARGS(8u)) {
  return tpx::ChannelImpl<Tpx8u, 1, 3>(TPX_COPY_PASS, {0, 0, 0}, 1, 3);
}
TPX_API TpxStatus tpxiDup_8u_C1C4R(TPX_COPY_ARGS(8u)) {
  return tpx::ChannelImpl<Tpx8u, 1, 4>(TPX_COPY_PASS, {0, 0, 0, 0}, 1, 4);
}
