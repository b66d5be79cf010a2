#ifndef TPXIP_FILTER_H
#define TPXIP_FILTER_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* ---- General filters with a user kernel of any size ----------------------------------------
 * Protocol: tpxiFilterBorderGetSize -> caller allocates the spec and the work buffer ->
 * tpxiFilterBorderInit_16s/_32f/_64f -> optionally tpxiFilterBorderSetMode -> any number of
 * tpxiFilterBorder_* calls. The spec starts at the next 64-byte boundary of the caller's block.
 * The result is correlation with the anchor ((kw - 1) >> 1, (kh - 1) >> 1):
 *   dst(x, y) = sum K[i][j] * src(x - ax + j, y - ay + i).
 * borderType: 1 replicate, 3 mirror, 6 constant (borderValue), with the in-memory flags
 * 0x10 top, 0x20 bottom, 0x40 left, 0x80 right; 240 reads real neighbours on every side. */
TPXAPI TpxStatus tpxiFilterBorderGetSize(TpxSize kernelSize, TpxSize roiSize, int dataType,
                                         int kernelType, int numChannels, int* pSpecSize,
                                         int* pBufferSize);
TPXAPI TpxStatus tpxiFilterBorderInit_16s(const Tpx16s* pKernel, TpxSize kernelSize, int divisor,
                                          int dataType, int numChannels, int roundMode,
                                          void* pSpec);
TPXAPI TpxStatus tpxiFilterBorderInit_32f(const Tpx32f* pKernel, TpxSize kernelSize, int dataType,
                                          int numChannels, int roundMode, void* pSpec);
TPXAPI TpxStatus tpxiFilterBorderInit_64f(const Tpx64f* pKernel, TpxSize kernelSize, int dataType,
                                          int numChannels, int roundMode, void* pSpec);
TPXAPI TpxStatus tpxiFilterBorderSetMode(int hint, int offset, void* pSpec);

TPXAPI TpxStatus tpxiFilterBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxSize roiSize, int borderType, const Tpx8u* borderValue,
                                         const void* pSpec, Tpx8u* pBuffer);
TPXAPI TpxStatus tpxiFilterBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxSize roiSize, int borderType, const Tpx8u* borderValue,
                                         const void* pSpec, Tpx8u* pBuffer);
TPXAPI TpxStatus tpxiFilterBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
                                         TpxSize roiSize, int borderType, const Tpx8u* borderValue,
                                         const void* pSpec, Tpx8u* pBuffer);
TPXAPI TpxStatus tpxiFilterBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst,
                                          int dstStep, TpxSize roiSize, int borderType,
                                          const Tpx16u* borderValue, const void* pSpec,
                                          Tpx8u* pBuffer);
TPXAPI TpxStatus tpxiFilterBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst,
                                          int dstStep, TpxSize roiSize, int borderType,
                                          const Tpx16u* borderValue, const void* pSpec,
                                          Tpx8u* pBuffer);
TPXAPI TpxStatus tpxiFilterBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst,
                                          int dstStep, TpxSize roiSize, int borderType,
                                          const Tpx16u* borderValue, const void* pSpec,
                                          Tpx8u* pBuffer);
TPXAPI TpxStatus tpxiFilterBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst,
                                          int dstStep, TpxSize roiSize, int borderType,
                                          const Tpx16s* borderValue, const void* pSpec,
                                          Tpx8u* pBuffer);
TPXAPI TpxStatus tpxiFilterBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst,
                                          int dstStep, TpxSize roiSize, int borderType,
                                          const Tpx16s* borderValue, const void* pSpec,
                                          Tpx8u* pBuffer);
TPXAPI TpxStatus tpxiFilterBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst,
                                          int dstStep, TpxSize roiSize, int borderType,
                                          const Tpx16s* borderValue, const void* pSpec,
                                          Tpx8u* pBuffer);
TPXAPI TpxStatus tpxiFilterBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst,
                                          int dstStep, TpxSize roiSize, int borderType,
                                          const Tpx32f* borderValue, const void* pSpec,
                                          Tpx8u* pBuffer);
TPXAPI TpxStatus tpxiFilterBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst,
                                          int dstStep, TpxSize roiSize, int borderType,
                                          const Tpx32f* borderValue, const void* pSpec,
                                          Tpx8u* pBuffer);
TPXAPI TpxStatus tpxiFilterBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst,
                                          int dstStep, TpxSize roiSize, int borderType,
                                          const Tpx32f* borderValue, const void* pSpec,
                                          Tpx8u* pBuffer);
TPXAPI TpxStatus tpxiFilterBorder_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst,
                                          int dstStep, TpxSize roiSize, int borderType,
                                          const Tpx64f* borderValue, const void* pSpec,
                                          Tpx8u* pBuffer);

/* ---- The older 64f filter: true convolution with a caller anchor, no border handling ------
 * K[i][j] meets src(x + anchor.x - j, y + anchor.y - i); the source must hold the whole
 * neighbourhood of every destination pixel. */
TPXAPI TpxStatus tpxiFilterGetBufSize_64f_C1R(TpxSize kernelSize, int roiWidth, int* pSize);
TPXAPI TpxStatus tpxiFilter_64f_C1R(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
                                    TpxSize dstRoiSize, const Tpx64f* pKernel, TpxSize kernelSize,
                                    TpxPoint anchor, Tpx8u* pBuffer);

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_FILTER_H */
