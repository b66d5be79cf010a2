/* tpxIP: moving samples without arithmetic: Copy, Set, Dup, SwapChannels, Transpose, Mirror.
   Copy, Set, Dup and Transpose check pointers, then the extents, and never the steps. */
#ifndef TPXIP_COPY_H
#define TPXIP_COPY_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif
/* Copy: C1R/C3R/C4R all samples, AC4R the first three (destination alpha stays). Source and
   destination must not overlap; only C3CR/C4CR detect overlap and then copy sample by sample. */
TPXAPI TpxStatus tpxiCopy_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C1R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_AC4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);

/* Copy, 64-bit extents and steps. */
TPXAPI TpxStatus tpxiCopy_8u_C1R_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_8u_C3R_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_8u_C4R_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_8u_AC4R_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C1R_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C3R_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C4R_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_16u_AC4R_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C1R_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C3R_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C4R_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_16s_AC4R_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C1R_L(const Tpx32s* pSrc, long long srcStep, Tpx32s* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C3R_L(const Tpx32s* pSrc, long long srcStep, Tpx32s* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C4R_L(const Tpx32s* pSrc, long long srcStep, Tpx32s* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_32s_AC4R_L(const Tpx32s* pSrc, long long srcStep, Tpx32s* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C1R_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C3R_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C4R_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiCopy_32f_AC4R_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);

/* Masked copy: pixels whose mask sample is non-zero; AC4MR keeps destination alpha. */
TPXAPI TpxStatus tpxiCopy_8u_C1MR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_8u_C3MR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_8u_C4MR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_8u_AC4MR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_16u_C1MR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_16u_C3MR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_16u_C4MR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_16u_AC4MR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_16s_C1MR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_16s_C3MR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_16s_C4MR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_16s_AC4MR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_32s_C1MR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_32s_C3MR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_32s_C4MR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_32s_AC4MR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_32f_C1MR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_32f_C3MR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_32f_C4MR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiCopy_32f_AC4MR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);

/* Channel copies: the pointers of a C side point at the chosen channel's first sample.
   C3CR/C4CR one channel to one channel, C3C1R/C4C1R gather, C1C3R/C1C4R scatter (other
   channels stay), C3AC4R (destination alpha stays), AC4C3R (source alpha not read). */
TPXAPI TpxStatus tpxiCopy_8u_C3CR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_8u_C4CR(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_8u_C3C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_8u_C4C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_8u_C1C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_8u_C1C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_8u_C3AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_8u_AC4C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C3CR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C4CR(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C3C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C4C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C1C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C1C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C3AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_AC4C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C3CR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C4CR(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C3C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C4C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C1C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C1C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C3AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_AC4C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C3CR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C4CR(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C3C1R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C4C1R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C1C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C1C4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C3AC4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_AC4C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C3CR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C4CR(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C3C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C4C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C1C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C1C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C3AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_AC4C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);

/* Interleaved to planar and back: the planar side is an array of plane pointers with one step. */
TPXAPI TpxStatus tpxiCopy_8u_C3P3R(const Tpx8u* pSrc, int srcStep, Tpx8u* const pDst[3], int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_8u_C4P4R(const Tpx8u* pSrc, int srcStep, Tpx8u* const pDst[4], int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_8u_P3C3R(const Tpx8u* const pSrc[3], int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_8u_P4C4R(const Tpx8u* const pSrc[4], int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C3P3R(const Tpx16u* pSrc, int srcStep, Tpx16u* const pDst[3], int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_C4P4R(const Tpx16u* pSrc, int srcStep, Tpx16u* const pDst[4], int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_P3C3R(const Tpx16u* const pSrc[3], int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16u_P4C4R(const Tpx16u* const pSrc[4], int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C3P3R(const Tpx16s* pSrc, int srcStep, Tpx16s* const pDst[3], int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_C4P4R(const Tpx16s* pSrc, int srcStep, Tpx16s* const pDst[4], int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_P3C3R(const Tpx16s* const pSrc[3], int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_16s_P4C4R(const Tpx16s* const pSrc[4], int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C3P3R(const Tpx32s* pSrc, int srcStep, Tpx32s* const pDst[3], int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_C4P4R(const Tpx32s* pSrc, int srcStep, Tpx32s* const pDst[4], int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_P3C3R(const Tpx32s* const pSrc[3], int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32s_P4C4R(const Tpx32s* const pSrc[4], int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C3P3R(const Tpx32f* pSrc, int srcStep, Tpx32f* const pDst[3], int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_C4P4R(const Tpx32f* pSrc, int srcStep, Tpx32f* const pDst[4], int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_P3C3R(const Tpx32f* const pSrc[3], int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiCopy_32f_P4C4R(const Tpx32f* const pSrc[4], int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);

/* Set: fill with one pixel value. C3CR/C4CR fill one channel (the pointer selects it), AC4
   forms keep alpha, masked forms write where the mask is non-zero. */
TPXAPI TpxStatus tpxiSet_8u_C1R(Tpx8u value, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_8u_C3R(const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_8u_C4R(const Tpx8u value[4], Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_8u_AC4R(const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_8u_C3CR(Tpx8u value, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_8u_C4CR(Tpx8u value, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_8u_C1MR(Tpx8u value, Tpx8u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_8u_C3MR(const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_8u_C4MR(const Tpx8u value[4], Tpx8u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_8u_AC4MR(const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_16u_C1R(Tpx16u value, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_16u_C3R(const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_16u_C4R(const Tpx16u value[4], Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_16u_AC4R(const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_16u_C3CR(Tpx16u value, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_16u_C4CR(Tpx16u value, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_16u_C1MR(Tpx16u value, Tpx16u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_16u_C3MR(const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_16u_C4MR(const Tpx16u value[4], Tpx16u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_16u_AC4MR(const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_16s_C1R(Tpx16s value, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_16s_C3R(const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_16s_C4R(const Tpx16s value[4], Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_16s_AC4R(const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_16s_C3CR(Tpx16s value, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_16s_C4CR(Tpx16s value, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_16s_C1MR(Tpx16s value, Tpx16s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_16s_C3MR(const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_16s_C4MR(const Tpx16s value[4], Tpx16s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_16s_AC4MR(const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_32s_C1R(Tpx32s value, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_32s_C3R(const Tpx32s value[3], Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_32s_C4R(const Tpx32s value[4], Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_32s_AC4R(const Tpx32s value[3], Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_32s_C3CR(Tpx32s value, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_32s_C4CR(Tpx32s value, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_32s_C1MR(Tpx32s value, Tpx32s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_32s_C3MR(const Tpx32s value[3], Tpx32s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_32s_C4MR(const Tpx32s value[4], Tpx32s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_32s_AC4MR(const Tpx32s value[3], Tpx32s* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_32f_C1R(Tpx32f value, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_32f_C3R(const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_32f_C4R(const Tpx32f value[4], Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_32f_AC4R(const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_32f_C3CR(Tpx32f value, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_32f_C4CR(Tpx32f value, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSet_32f_C1MR(Tpx32f value, Tpx32f* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_32f_C3MR(const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_32f_C4MR(const Tpx32f value[4], Tpx32f* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);
TPXAPI TpxStatus tpxiSet_32f_AC4MR(const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxSize roiSize,
    const Tpx8u* pMask, int maskStep);

/* Dup: each source sample to every channel of the destination pixel. */
TPXAPI TpxStatus tpxiDup_8u_C1C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiDup_8u_C1C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);

/* SwapChannels: destination channel i receives source channel dstOrder[i]. In C3C4R an entry
   of 3 writes val and a larger entry leaves that destination channel as it is. */
TPXAPI TpxStatus tpxiSwapChannels_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[4]);
TPXAPI TpxStatus tpxiSwapChannels_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_8u_C3C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[4], Tpx8u val);
TPXAPI TpxStatus tpxiSwapChannels_8u_C4C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[4]);
TPXAPI TpxStatus tpxiSwapChannels_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_16u_C3C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[4], Tpx16u val);
TPXAPI TpxStatus tpxiSwapChannels_16u_C4C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[4]);
TPXAPI TpxStatus tpxiSwapChannels_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_16s_C3C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[4], Tpx16s val);
TPXAPI TpxStatus tpxiSwapChannels_16s_C4C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_32s_C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_32s_C4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[4]);
TPXAPI TpxStatus tpxiSwapChannels_32s_AC4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_32s_C3C4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[4], Tpx32s val);
TPXAPI TpxStatus tpxiSwapChannels_32s_C4C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[4]);
TPXAPI TpxStatus tpxiSwapChannels_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_32f_C3C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[4], Tpx32f val);
TPXAPI TpxStatus tpxiSwapChannels_32f_C4C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize,
    const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, const int dstOrder[3]);
TPXAPI TpxStatus tpxiSwapChannels_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, const int dstOrder[4]);

/* Transpose: roiSize is the source's extent; the destination is roiSize.height pixels wide.
   A call with pSrc == pDst and equal steps runs the in-place form; IR forms take square images. */
TPXAPI TpxStatus tpxiTranspose_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_32s_C1R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_32s_C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_32s_C4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_32fc_C1R(const Tpx32fc* pSrc, int srcStep, Tpx32fc* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_16u_C4IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_16s_C4IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_32s_C1IR(Tpx32s* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_32s_C3IR(Tpx32s* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_32s_C4IR(Tpx32s* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiTranspose_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);

/* Mirror about tpxAxisHorizontal (0), tpxAxisVertical (1), both (2), or a diagonal (3: the main
   diagonal, 4: the other one; the destination's extents are the source's swapped). */
TPXAPI TpxStatus tpxiMirror_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32s_C1R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32s_C3R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32s_C4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32s_AC4R(const Tpx32s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxSize roiSize,
    TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16u_C4IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16s_C4IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32s_C1IR(Tpx32s* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32s_C3IR(Tpx32s* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32s_C4IR(Tpx32s* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32s_AC4IR(Tpx32s* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);
TPXAPI TpxStatus tpxiMirror_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize, TpxAxis flip);

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_COPY_H */
