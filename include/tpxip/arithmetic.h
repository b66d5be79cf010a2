#ifndef TPXIP_ARITHMETIC_H
#define TPXIP_ARITHMETIC_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* tpxIP: scaled arithmetic.

   Integer members (8u, 16u, 16s, suffix Sfs) take the exact result of the operation, scale it by
   2^-scaleFactor with round to nearest, ties to even, and saturate to the destination type.
   Every scale factor has a defined effect (negative ones shift left and saturate). 32f members
   compute in single precision without saturation. AC4 leaves the fourth sample of each
   destination pixel as it was. Checks: null pointers, then an extent below 1; no step check
   (a step of 0 or below is used as given). The two-image C3 and C4 members of 32f widen the row
   of their C1 form and test the width before the pointers. _L twins take 64-bit steps and
   TpxSizeL. */

/* Sum of two images: pSrc1 + pSrc2, in place pSrcDst + pSrc. */
TPXAPI TpxStatus tpxiAdd_8u_C1RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_C1IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_C1RSfs_L(const Tpx8u* pSrc1, long long src1Step, const Tpx8u* pSrc2, long long src2Step, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_C1IRSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_C3RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_C3IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_C3RSfs_L(const Tpx8u* pSrc1, long long src1Step, const Tpx8u* pSrc2, long long src2Step, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_C3IRSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_C4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_C4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_C4RSfs_L(const Tpx8u* pSrc1, long long src1Step, const Tpx8u* pSrc2, long long src2Step, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_C4IRSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_AC4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_AC4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_AC4RSfs_L(const Tpx8u* pSrc1, long long src1Step, const Tpx8u* pSrc2, long long src2Step, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_8u_AC4IRSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_C1RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_C1IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_C1RSfs_L(const Tpx16u* pSrc1, long long src1Step, const Tpx16u* pSrc2, long long src2Step, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_C1IRSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_C3RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_C3IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_C3RSfs_L(const Tpx16u* pSrc1, long long src1Step, const Tpx16u* pSrc2, long long src2Step, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_C3IRSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_C4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_C4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_C4RSfs_L(const Tpx16u* pSrc1, long long src1Step, const Tpx16u* pSrc2, long long src2Step, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_C4IRSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_AC4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_AC4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_AC4RSfs_L(const Tpx16u* pSrc1, long long src1Step, const Tpx16u* pSrc2, long long src2Step, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16u_AC4IRSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_C1RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_C1IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_C1RSfs_L(const Tpx16s* pSrc1, long long src1Step, const Tpx16s* pSrc2, long long src2Step, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_C1IRSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_C3RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_C3IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_C3RSfs_L(const Tpx16s* pSrc1, long long src1Step, const Tpx16s* pSrc2, long long src2Step, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_C3IRSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_C4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_C4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_C4RSfs_L(const Tpx16s* pSrc1, long long src1Step, const Tpx16s* pSrc2, long long src2Step, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_C4IRSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_AC4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_AC4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_AC4RSfs_L(const Tpx16s* pSrc1, long long src1Step, const Tpx16s* pSrc2, long long src2Step, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_16s_AC4IRSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAdd_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAdd_32f_C1IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAdd_32f_C1R_L(const Tpx32f* pSrc1, long long src1Step, const Tpx32f* pSrc2, long long src2Step, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiAdd_32f_C1IR_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiAdd_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAdd_32f_C3IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAdd_32f_C3R_L(const Tpx32f* pSrc1, long long src1Step, const Tpx32f* pSrc2, long long src2Step, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiAdd_32f_C3IR_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiAdd_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAdd_32f_C4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAdd_32f_C4R_L(const Tpx32f* pSrc1, long long src1Step, const Tpx32f* pSrc2, long long src2Step, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiAdd_32f_C4IR_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiAdd_32f_AC4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAdd_32f_AC4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAdd_32f_AC4R_L(const Tpx32f* pSrc1, long long src1Step, const Tpx32f* pSrc2, long long src2Step, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiAdd_32f_AC4IR_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);

/* Difference of two images: pSrc2 - pSrc1 (the first image is the subtrahend); in place
   pSrcDst - pSrc. Unsigned types clamp a negative difference at 0. */
TPXAPI TpxStatus tpxiSub_8u_C1RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_C1IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_C1RSfs_L(const Tpx8u* pSrc1, long long src1Step, const Tpx8u* pSrc2, long long src2Step, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_C1IRSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_C3RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_C3IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_C3RSfs_L(const Tpx8u* pSrc1, long long src1Step, const Tpx8u* pSrc2, long long src2Step, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_C3IRSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_C4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_C4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_C4RSfs_L(const Tpx8u* pSrc1, long long src1Step, const Tpx8u* pSrc2, long long src2Step, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_C4IRSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_AC4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_AC4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_AC4RSfs_L(const Tpx8u* pSrc1, long long src1Step, const Tpx8u* pSrc2, long long src2Step, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_8u_AC4IRSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_C1RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_C1IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_C1RSfs_L(const Tpx16u* pSrc1, long long src1Step, const Tpx16u* pSrc2, long long src2Step, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_C1IRSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_C3RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_C3IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_C3RSfs_L(const Tpx16u* pSrc1, long long src1Step, const Tpx16u* pSrc2, long long src2Step, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_C3IRSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_C4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_C4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_C4RSfs_L(const Tpx16u* pSrc1, long long src1Step, const Tpx16u* pSrc2, long long src2Step, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_C4IRSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_AC4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_AC4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_AC4RSfs_L(const Tpx16u* pSrc1, long long src1Step, const Tpx16u* pSrc2, long long src2Step, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16u_AC4IRSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_C1RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_C1IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_C1RSfs_L(const Tpx16s* pSrc1, long long src1Step, const Tpx16s* pSrc2, long long src2Step, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_C1IRSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_C3RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_C3IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_C3RSfs_L(const Tpx16s* pSrc1, long long src1Step, const Tpx16s* pSrc2, long long src2Step, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_C3IRSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_C4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_C4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_C4RSfs_L(const Tpx16s* pSrc1, long long src1Step, const Tpx16s* pSrc2, long long src2Step, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_C4IRSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_AC4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_AC4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_AC4RSfs_L(const Tpx16s* pSrc1, long long src1Step, const Tpx16s* pSrc2, long long src2Step, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_16s_AC4IRSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSub_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSub_32f_C1IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSub_32f_C1R_L(const Tpx32f* pSrc1, long long src1Step, const Tpx32f* pSrc2, long long src2Step, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiSub_32f_C1IR_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiSub_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSub_32f_C3IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSub_32f_C3R_L(const Tpx32f* pSrc1, long long src1Step, const Tpx32f* pSrc2, long long src2Step, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiSub_32f_C3IR_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiSub_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSub_32f_C4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSub_32f_C4R_L(const Tpx32f* pSrc1, long long src1Step, const Tpx32f* pSrc2, long long src2Step, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiSub_32f_C4IR_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiSub_32f_AC4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSub_32f_AC4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSub_32f_AC4R_L(const Tpx32f* pSrc1, long long src1Step, const Tpx32f* pSrc2, long long src2Step, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiSub_32f_AC4IR_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);

/* Product of two images. */
TPXAPI TpxStatus tpxiMul_8u_C1RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_C1IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_C1RSfs_L(const Tpx8u* pSrc1, long long src1Step, const Tpx8u* pSrc2, long long src2Step, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_C1IRSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_C3RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_C3IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_C3RSfs_L(const Tpx8u* pSrc1, long long src1Step, const Tpx8u* pSrc2, long long src2Step, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_C3IRSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_C4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_C4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_C4RSfs_L(const Tpx8u* pSrc1, long long src1Step, const Tpx8u* pSrc2, long long src2Step, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_C4IRSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_AC4RSfs(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_AC4IRSfs(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_AC4RSfs_L(const Tpx8u* pSrc1, long long src1Step, const Tpx8u* pSrc2, long long src2Step, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_8u_AC4IRSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_C1RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_C1IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_C1RSfs_L(const Tpx16u* pSrc1, long long src1Step, const Tpx16u* pSrc2, long long src2Step, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_C1IRSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_C3RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_C3IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_C3RSfs_L(const Tpx16u* pSrc1, long long src1Step, const Tpx16u* pSrc2, long long src2Step, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_C3IRSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_C4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_C4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_C4RSfs_L(const Tpx16u* pSrc1, long long src1Step, const Tpx16u* pSrc2, long long src2Step, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_C4IRSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_AC4RSfs(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_AC4IRSfs(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_AC4RSfs_L(const Tpx16u* pSrc1, long long src1Step, const Tpx16u* pSrc2, long long src2Step, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16u_AC4IRSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_C1RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_C1IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_C1RSfs_L(const Tpx16s* pSrc1, long long src1Step, const Tpx16s* pSrc2, long long src2Step, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_C1IRSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_C3RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_C3IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_C3RSfs_L(const Tpx16s* pSrc1, long long src1Step, const Tpx16s* pSrc2, long long src2Step, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_C3IRSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_C4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_C4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_C4RSfs_L(const Tpx16s* pSrc1, long long src1Step, const Tpx16s* pSrc2, long long src2Step, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_C4IRSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_AC4RSfs(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_AC4IRSfs(const Tpx16s* pSrc, int srcStep, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_AC4RSfs_L(const Tpx16s* pSrc1, long long src1Step, const Tpx16s* pSrc2, long long src2Step, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_16s_AC4IRSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMul_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMul_32f_C1IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMul_32f_C1R_L(const Tpx32f* pSrc1, long long src1Step, const Tpx32f* pSrc2, long long src2Step, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiMul_32f_C1IR_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiMul_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMul_32f_C3IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMul_32f_C3R_L(const Tpx32f* pSrc1, long long src1Step, const Tpx32f* pSrc2, long long src2Step, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiMul_32f_C3IR_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiMul_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMul_32f_C4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMul_32f_C4R_L(const Tpx32f* pSrc1, long long src1Step, const Tpx32f* pSrc2, long long src2Step, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiMul_32f_C4IR_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiMul_32f_AC4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMul_32f_AC4IR(const Tpx32f* pSrc, int srcStep, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMul_32f_AC4R_L(const Tpx32f* pSrc1, long long src1Step, const Tpx32f* pSrc2, long long src2Step, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiMul_32f_AC4IR_L(const Tpx32f* pSrc, long long srcStep, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);

/* Image plus a constant (one per channel for C3, C4 and AC4). */
TPXAPI TpxStatus tpxiAddC_8u_C1RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u value, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_C1IRSfs(Tpx8u value, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_C1RSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u value, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_C1IRSfs_L(Tpx8u value, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_C3RSfs(const Tpx8u* pSrc, int srcStep, const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_C3IRSfs(const Tpx8u value[3], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_C3RSfs_L(const Tpx8u* pSrc, long long srcStep, const Tpx8u value[3], Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_C3IRSfs_L(const Tpx8u value[3], Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_C4RSfs(const Tpx8u* pSrc, int srcStep, const Tpx8u value[4], Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_C4IRSfs(const Tpx8u value[4], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_C4RSfs_L(const Tpx8u* pSrc, long long srcStep, const Tpx8u value[4], Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_C4IRSfs_L(const Tpx8u value[4], Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_AC4RSfs(const Tpx8u* pSrc, int srcStep, const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_AC4IRSfs(const Tpx8u value[3], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_AC4RSfs_L(const Tpx8u* pSrc, long long srcStep, const Tpx8u value[3], Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_8u_AC4IRSfs_L(const Tpx8u value[3], Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u value, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_C1IRSfs(Tpx16u value, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_C1RSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u value, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_C1IRSfs_L(Tpx16u value, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_C3RSfs(const Tpx16u* pSrc, int srcStep, const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_C3IRSfs(const Tpx16u value[3], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_C3RSfs_L(const Tpx16u* pSrc, long long srcStep, const Tpx16u value[3], Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_C3IRSfs_L(const Tpx16u value[3], Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_C4RSfs(const Tpx16u* pSrc, int srcStep, const Tpx16u value[4], Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_C4IRSfs(const Tpx16u value[4], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_C4RSfs_L(const Tpx16u* pSrc, long long srcStep, const Tpx16u value[4], Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_C4IRSfs_L(const Tpx16u value[4], Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_AC4RSfs(const Tpx16u* pSrc, int srcStep, const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_AC4IRSfs(const Tpx16u value[3], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_AC4RSfs_L(const Tpx16u* pSrc, long long srcStep, const Tpx16u value[3], Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16u_AC4IRSfs_L(const Tpx16u value[3], Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_C1RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s value, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_C1IRSfs(Tpx16s value, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_C1RSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s value, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_C1IRSfs_L(Tpx16s value, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_C3RSfs(const Tpx16s* pSrc, int srcStep, const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_C3IRSfs(const Tpx16s value[3], Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_C3RSfs_L(const Tpx16s* pSrc, long long srcStep, const Tpx16s value[3], Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_C3IRSfs_L(const Tpx16s value[3], Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_C4RSfs(const Tpx16s* pSrc, int srcStep, const Tpx16s value[4], Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_C4IRSfs(const Tpx16s value[4], Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_C4RSfs_L(const Tpx16s* pSrc, long long srcStep, const Tpx16s value[4], Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_C4IRSfs_L(const Tpx16s value[4], Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_AC4RSfs(const Tpx16s* pSrc, int srcStep, const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_AC4IRSfs(const Tpx16s value[3], Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_AC4RSfs_L(const Tpx16s* pSrc, long long srcStep, const Tpx16s value[3], Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_16s_AC4IRSfs_L(const Tpx16s value[3], Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiAddC_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f value, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAddC_32f_C1IR(Tpx32f value, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAddC_32f_C1R_L(const Tpx32f* pSrc, long long srcStep, Tpx32f value, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiAddC_32f_C1IR_L(Tpx32f value, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiAddC_32f_C3R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAddC_32f_C3IR(const Tpx32f value[3], Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAddC_32f_C3R_L(const Tpx32f* pSrc, long long srcStep, const Tpx32f value[3], Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiAddC_32f_C3IR_L(const Tpx32f value[3], Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiAddC_32f_C4R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[4], Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAddC_32f_C4IR(const Tpx32f value[4], Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAddC_32f_C4R_L(const Tpx32f* pSrc, long long srcStep, const Tpx32f value[4], Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiAddC_32f_C4IR_L(const Tpx32f value[4], Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiAddC_32f_AC4R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAddC_32f_AC4IR(const Tpx32f value[3], Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiAddC_32f_AC4R_L(const Tpx32f* pSrc, long long srcStep, const Tpx32f value[3], Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiAddC_32f_AC4IR_L(const Tpx32f value[3], Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);

/* Image minus a constant. */
TPXAPI TpxStatus tpxiSubC_8u_C1RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u value, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_C1IRSfs(Tpx8u value, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_C1RSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u value, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_C1IRSfs_L(Tpx8u value, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_C3RSfs(const Tpx8u* pSrc, int srcStep, const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_C3IRSfs(const Tpx8u value[3], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_C3RSfs_L(const Tpx8u* pSrc, long long srcStep, const Tpx8u value[3], Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_C3IRSfs_L(const Tpx8u value[3], Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_C4RSfs(const Tpx8u* pSrc, int srcStep, const Tpx8u value[4], Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_C4IRSfs(const Tpx8u value[4], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_C4RSfs_L(const Tpx8u* pSrc, long long srcStep, const Tpx8u value[4], Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_C4IRSfs_L(const Tpx8u value[4], Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_AC4RSfs(const Tpx8u* pSrc, int srcStep, const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_AC4IRSfs(const Tpx8u value[3], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_AC4RSfs_L(const Tpx8u* pSrc, long long srcStep, const Tpx8u value[3], Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_8u_AC4IRSfs_L(const Tpx8u value[3], Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u value, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_C1IRSfs(Tpx16u value, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_C1RSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u value, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_C1IRSfs_L(Tpx16u value, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_C3RSfs(const Tpx16u* pSrc, int srcStep, const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_C3IRSfs(const Tpx16u value[3], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_C3RSfs_L(const Tpx16u* pSrc, long long srcStep, const Tpx16u value[3], Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_C3IRSfs_L(const Tpx16u value[3], Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_C4RSfs(const Tpx16u* pSrc, int srcStep, const Tpx16u value[4], Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_C4IRSfs(const Tpx16u value[4], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_C4RSfs_L(const Tpx16u* pSrc, long long srcStep, const Tpx16u value[4], Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_C4IRSfs_L(const Tpx16u value[4], Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_AC4RSfs(const Tpx16u* pSrc, int srcStep, const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_AC4IRSfs(const Tpx16u value[3], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_AC4RSfs_L(const Tpx16u* pSrc, long long srcStep, const Tpx16u value[3], Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16u_AC4IRSfs_L(const Tpx16u value[3], Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_C1RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s value, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_C1IRSfs(Tpx16s value, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_C1RSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s value, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_C1IRSfs_L(Tpx16s value, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_C3RSfs(const Tpx16s* pSrc, int srcStep, const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_C3IRSfs(const Tpx16s value[3], Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_C3RSfs_L(const Tpx16s* pSrc, long long srcStep, const Tpx16s value[3], Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_C3IRSfs_L(const Tpx16s value[3], Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_C4RSfs(const Tpx16s* pSrc, int srcStep, const Tpx16s value[4], Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_C4IRSfs(const Tpx16s value[4], Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_C4RSfs_L(const Tpx16s* pSrc, long long srcStep, const Tpx16s value[4], Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_C4IRSfs_L(const Tpx16s value[4], Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_AC4RSfs(const Tpx16s* pSrc, int srcStep, const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_AC4IRSfs(const Tpx16s value[3], Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_AC4RSfs_L(const Tpx16s* pSrc, long long srcStep, const Tpx16s value[3], Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_16s_AC4IRSfs_L(const Tpx16s value[3], Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiSubC_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f value, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSubC_32f_C1IR(Tpx32f value, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSubC_32f_C1R_L(const Tpx32f* pSrc, long long srcStep, Tpx32f value, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiSubC_32f_C1IR_L(Tpx32f value, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiSubC_32f_C3R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSubC_32f_C3IR(const Tpx32f value[3], Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSubC_32f_C3R_L(const Tpx32f* pSrc, long long srcStep, const Tpx32f value[3], Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiSubC_32f_C3IR_L(const Tpx32f value[3], Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiSubC_32f_C4R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[4], Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSubC_32f_C4IR(const Tpx32f value[4], Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSubC_32f_C4R_L(const Tpx32f* pSrc, long long srcStep, const Tpx32f value[4], Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiSubC_32f_C4IR_L(const Tpx32f value[4], Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiSubC_32f_AC4R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSubC_32f_AC4IR(const Tpx32f value[3], Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiSubC_32f_AC4R_L(const Tpx32f* pSrc, long long srcStep, const Tpx32f value[3], Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiSubC_32f_AC4IR_L(const Tpx32f value[3], Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);

/* Image times a constant. A zero constant fills the destination with 0 whatever the scale
   factor; a constant of 1 with scale factor 0 copies. */
TPXAPI TpxStatus tpxiMulC_8u_C1RSfs(const Tpx8u* pSrc, int srcStep, Tpx8u value, Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_C1IRSfs(Tpx8u value, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_C1RSfs_L(const Tpx8u* pSrc, long long srcStep, Tpx8u value, Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_C1IRSfs_L(Tpx8u value, Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_C3RSfs(const Tpx8u* pSrc, int srcStep, const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_C3IRSfs(const Tpx8u value[3], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_C3RSfs_L(const Tpx8u* pSrc, long long srcStep, const Tpx8u value[3], Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_C3IRSfs_L(const Tpx8u value[3], Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_C4RSfs(const Tpx8u* pSrc, int srcStep, const Tpx8u value[4], Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_C4IRSfs(const Tpx8u value[4], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_C4RSfs_L(const Tpx8u* pSrc, long long srcStep, const Tpx8u value[4], Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_C4IRSfs_L(const Tpx8u value[4], Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_AC4RSfs(const Tpx8u* pSrc, int srcStep, const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_AC4IRSfs(const Tpx8u value[3], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_AC4RSfs_L(const Tpx8u* pSrc, long long srcStep, const Tpx8u value[3], Tpx8u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_8u_AC4IRSfs_L(const Tpx8u value[3], Tpx8u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx16u value, Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_C1IRSfs(Tpx16u value, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_C1RSfs_L(const Tpx16u* pSrc, long long srcStep, Tpx16u value, Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_C1IRSfs_L(Tpx16u value, Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_C3RSfs(const Tpx16u* pSrc, int srcStep, const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_C3IRSfs(const Tpx16u value[3], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_C3RSfs_L(const Tpx16u* pSrc, long long srcStep, const Tpx16u value[3], Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_C3IRSfs_L(const Tpx16u value[3], Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_C4RSfs(const Tpx16u* pSrc, int srcStep, const Tpx16u value[4], Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_C4IRSfs(const Tpx16u value[4], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_C4RSfs_L(const Tpx16u* pSrc, long long srcStep, const Tpx16u value[4], Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_C4IRSfs_L(const Tpx16u value[4], Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_AC4RSfs(const Tpx16u* pSrc, int srcStep, const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_AC4IRSfs(const Tpx16u value[3], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_AC4RSfs_L(const Tpx16u* pSrc, long long srcStep, const Tpx16u value[3], Tpx16u* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16u_AC4IRSfs_L(const Tpx16u value[3], Tpx16u* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_C1RSfs(const Tpx16s* pSrc, int srcStep, Tpx16s value, Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_C1IRSfs(Tpx16s value, Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_C1RSfs_L(const Tpx16s* pSrc, long long srcStep, Tpx16s value, Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_C1IRSfs_L(Tpx16s value, Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_C3RSfs(const Tpx16s* pSrc, int srcStep, const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_C3IRSfs(const Tpx16s value[3], Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_C3RSfs_L(const Tpx16s* pSrc, long long srcStep, const Tpx16s value[3], Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_C3IRSfs_L(const Tpx16s value[3], Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_C4RSfs(const Tpx16s* pSrc, int srcStep, const Tpx16s value[4], Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_C4IRSfs(const Tpx16s value[4], Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_C4RSfs_L(const Tpx16s* pSrc, long long srcStep, const Tpx16s value[4], Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_C4IRSfs_L(const Tpx16s value[4], Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_AC4RSfs(const Tpx16s* pSrc, int srcStep, const Tpx16s value[3], Tpx16s* pDst, int dstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_AC4IRSfs(const Tpx16s value[3], Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_AC4RSfs_L(const Tpx16s* pSrc, long long srcStep, const Tpx16s value[3], Tpx16s* pDst, long long dstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_16s_AC4IRSfs_L(const Tpx16s value[3], Tpx16s* pSrcDst, long long srcDstStep, TpxSizeL roiSize, int scaleFactor);
TPXAPI TpxStatus tpxiMulC_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f value, Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulC_32f_C1IR(Tpx32f value, Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulC_32f_C1R_L(const Tpx32f* pSrc, long long srcStep, Tpx32f value, Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiMulC_32f_C1IR_L(Tpx32f value, Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiMulC_32f_C3R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulC_32f_C3IR(const Tpx32f value[3], Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulC_32f_C3R_L(const Tpx32f* pSrc, long long srcStep, const Tpx32f value[3], Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiMulC_32f_C3IR_L(const Tpx32f value[3], Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiMulC_32f_C4R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[4], Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulC_32f_C4IR(const Tpx32f value[4], Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulC_32f_C4R_L(const Tpx32f* pSrc, long long srcStep, const Tpx32f value[4], Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiMulC_32f_C4IR_L(const Tpx32f value[4], Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiMulC_32f_AC4R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[3], Tpx32f* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulC_32f_AC4IR(const Tpx32f value[3], Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulC_32f_AC4R_L(const Tpx32f* pSrc, long long srcStep, const Tpx32f value[3], Tpx32f* pDst, long long dstStep, TpxSizeL roiSize);
TPXAPI TpxStatus tpxiMulC_32f_AC4IR_L(const Tpx32f value[3], Tpx32f* pSrcDst, long long srcDstStep, TpxSizeL roiSize);

/* Product of two images as fractions of the type's maximum: t = a * b exactly, then
   (t + 1 + (t >> 8)) >> 8 for 8u and (t + 1 + (t >> 16)) >> 16 for 16u. Checks: pointers, step
   (below 1 fails), size. C3 and C4 members test both extents first. */
TPXAPI TpxStatus tpxiMulScale_8u_C1R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_8u_C1IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_8u_C3R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_8u_C3IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_8u_C4R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_8u_C4IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_8u_AC4R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_8u_AC4IR(const Tpx8u* pSrc, int srcStep, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_16u_C1R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_16u_C1IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_16u_C3R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_16u_C3IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_16u_C4R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_16u_C4IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_16u_AC4R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulScale_16u_AC4IR(const Tpx16u* pSrc, int srcStep, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize);

/* The same with a constant as the second operand; all members check pointers, step, size. */
TPXAPI TpxStatus tpxiMulCScale_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u value, Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_8u_C1IR(Tpx8u value, Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_8u_C3R(const Tpx8u* pSrc, int srcStep, const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_8u_C3IR(const Tpx8u value[3], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_8u_C4R(const Tpx8u* pSrc, int srcStep, const Tpx8u value[4], Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_8u_C4IR(const Tpx8u value[4], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_8u_AC4R(const Tpx8u* pSrc, int srcStep, const Tpx8u value[3], Tpx8u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_8u_AC4IR(const Tpx8u value[3], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u value, Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_16u_C1IR(Tpx16u value, Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_16u_C3R(const Tpx16u* pSrc, int srcStep, const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_16u_C3IR(const Tpx16u value[3], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_16u_C4R(const Tpx16u* pSrc, int srcStep, const Tpx16u value[4], Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_16u_C4IR(const Tpx16u value[4], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_16u_AC4R(const Tpx16u* pSrc, int srcStep, const Tpx16u value[3], Tpx16u* pDst, int dstStep, TpxSize roiSize);
TPXAPI TpxStatus tpxiMulCScale_16u_AC4IR(const Tpx16u value[3], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize);

/* Image times a double constant (one per channel): the product is formed in double, narrowed
   to float, clamped to the destination range in float and converted by roundMode: 2 adds 0.5 in
   double and truncates, 0 rounds down, 1 rounds to nearest even; any other value uses the
   calling thread's current rounding direction. The rounding control is restored before return.
   hint has no effect. Checks: pointers, then size. */
TPXAPI TpxStatus tpxiMulC64f_8u_C1R(const Tpx8u* pSrc, int srcStep, const Tpx64f value[1], Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_8u_C1IR(const Tpx64f value[1], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_8u_C3R(const Tpx8u* pSrc, int srcStep, const Tpx64f value[3], Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_8u_C3IR(const Tpx64f value[3], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_8u_C4R(const Tpx8u* pSrc, int srcStep, const Tpx64f value[4], Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_8u_C4IR(const Tpx64f value[4], Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_16u_C1R(const Tpx16u* pSrc, int srcStep, const Tpx64f value[1], Tpx16u* pDst, int dstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_16u_C1IR(const Tpx64f value[1], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_16u_C3R(const Tpx16u* pSrc, int srcStep, const Tpx64f value[3], Tpx16u* pDst, int dstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_16u_C3IR(const Tpx64f value[3], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_16u_C4R(const Tpx16u* pSrc, int srcStep, const Tpx64f value[4], Tpx16u* pDst, int dstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_16u_C4IR(const Tpx64f value[4], Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_16s_C1R(const Tpx16s* pSrc, int srcStep, const Tpx64f value[1], Tpx16s* pDst, int dstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_16s_C1IR(const Tpx64f value[1], Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_16s_C3R(const Tpx16s* pSrc, int srcStep, const Tpx64f value[3], Tpx16s* pDst, int dstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_16s_C3IR(const Tpx64f value[3], Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_16s_C4R(const Tpx16s* pSrc, int srcStep, const Tpx64f value[4], Tpx16s* pDst, int dstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_16s_C4IR(const Tpx64f value[4], Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_32f_C1R(const Tpx32f* pSrc, int srcStep, const Tpx64f value[1], Tpx32f* pDst, int dstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_32f_C1IR(const Tpx64f value[1], Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_32f_C3R(const Tpx32f* pSrc, int srcStep, const Tpx64f value[3], Tpx32f* pDst, int dstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_32f_C3IR(const Tpx64f value[3], Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_32f_C4R(const Tpx32f* pSrc, int srcStep, const Tpx64f value[4], Tpx32f* pDst, int dstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiMulC64f_32f_C4IR(const Tpx64f value[4], Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize, TpxHintAlgorithm hint, TpxRoundMode roundMode);

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_ARITHMETIC_H */
