// tpxiConvert_*: every export is expanded from the member lists of data/convert_members.h and
// is one call of its class's driver (data/convert_drivers.h).
#include "core/export.h"
#include "data/convert_drivers.h"
#include "data/convert_members.h"

using tpx::Layout;
namespace cvt = tpx::cvt;

#define TPX_CONVERT_PLAIN(S, D, L)                                                               \
  TPX_API TpxStatus tpxiConvert_##S##D##_##L##R(const Tpx##S* pSrc, int srcStep, Tpx##D* pDst,    \
                                                int dstStep, TpxSize roiSize) {                  \
    return cvt::ConvertPlain<Tpx##S, Tpx##D, Layout::L>(pSrc, srcStep, pDst, dstStep, roiSize);  \
  }
#define TPX_CONVERT_PLAIN_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_CONVERT_PLAIN, S, D)
#define TPX_CONVERT_PLAIN_ONE(S, D) TPX_CONVERT_PLAIN(S, D, C1)
TPX_CONVERT_PLAIN_4L(TPX_CONVERT_PLAIN_ALL)
TPX_CONVERT_PLAIN_C1(TPX_CONVERT_PLAIN_ONE)

#define TPX_CONVERT_RS_ONE(S, D)                                                                  \
  TPX_API TpxStatus tpxiConvert_##S##D##_C1Rs(const Tpx##S* pSrc, int srcStep, Tpx##D* pDst,      \
                                              int dstStep, TpxSize roiSize) {                    \
    return cvt::ConvertPlain<Tpx##S, Tpx##D, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize); \
  }
TPX_CONVERT_RS(TPX_CONVERT_RS_ONE)

#define TPX_CONVERT_ROUND(S, D, L)                                                                   \
  TPX_API TpxStatus tpxiConvert_##S##D##_##L##R(const Tpx##S* pSrc, int srcStep, Tpx##D* pDst,        \
                                                int dstStep, TpxSize roiSize, TpxRoundMode roundMode) { \
    return cvt::ConvertFloat<Tpx##S, Tpx##D, Layout::L>(pSrc, srcStep, pDst, dstStep, roiSize,        \
                                                        roundMode, 0);                               \
  }
#define TPX_CONVERT_ROUND_ALL(S, D) TPX_FOUR_LAYOUTS(TPX_CONVERT_ROUND, S, D)
TPX_CONVERT_ROUND_4L(TPX_CONVERT_ROUND_ALL)

#define TPX_CONVERT_SFS_ONE(S, D)                                                                   \
  TPX_API TpxStatus tpxiConvert_##S##D##_C1RSfs(const Tpx##S* pSrc, int srcStep, Tpx##D* pDst,      \
                                                int dstStep, TpxSize roiSize, TpxRoundMode roundMode, \
                                                int scaleFactor) {                                 \
    return cvt::ConvertSfs<Tpx##S, Tpx##D>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode, scaleFactor); \
  }
TPX_CONVERT_FLOAT_SFS(TPX_CONVERT_SFS_ONE)
TPX_CONVERT_INT_SFS(TPX_CONVERT_SFS_ONE)

TPX_API TpxStatus tpxiConvert_32f32u_C1IRSfs(Tpx32u* pSrcDst, int srcDstStep, TpxSize roiSize,
                                             TpxRoundMode roundMode, int scaleFactor) {
  return cvt::ConvertFloatInPlace(pSrcDst, srcDstStep, roiSize, roundMode, scaleFactor);
}
