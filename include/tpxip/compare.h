#ifndef TPXIP_COMPARE_H
#define TPXIP_COMPARE_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Compare and threshold.
 *
 * Threshold families keep the sample type. GT clamps from above (d = min(s, threshold)), LT from
 * below (d = max(s, threshold)); a 32f NaN sample yields the threshold there. GTVal and LTVal
 * replace a sample above (below) the threshold by the value and keep a NaN sample; LTValGTVal does
 * both and refuses thresholdGT < thresholdLT. tpxiThreshold_* and tpxiThreshold_Val_* take cmpOp
 * tpxCmpLess (LT forms) or tpxCmpGreater (GT forms) and refuse the others. Every comparison is
 * strict. C1 members take samples by value; C3, C4 and AC4 members one entry a channel (AC4: three,
 * and the destination's fourth sample stays). IR members work in place. */
TPXAPI TpxStatus tpxiThreshold_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, Tpx8u threshold, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx8u threshold, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, Tpx16u threshold, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx16u threshold, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, Tpx16s threshold, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx16s threshold, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, Tpx32f threshold, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx32f threshold, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f threshold[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f threshold[3], TpxCmpOp cmpOp);

TPXAPI TpxStatus tpxiThreshold_GT_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, Tpx8u threshold);
TPXAPI TpxStatus tpxiThreshold_GT_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx8u threshold);
TPXAPI TpxStatus tpxiThreshold_GT_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, Tpx16u threshold);
TPXAPI TpxStatus tpxiThreshold_GT_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx16u threshold);
TPXAPI TpxStatus tpxiThreshold_GT_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, Tpx16s threshold);
TPXAPI TpxStatus tpxiThreshold_GT_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx16s threshold);
TPXAPI TpxStatus tpxiThreshold_GT_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, Tpx32f threshold);
TPXAPI TpxStatus tpxiThreshold_GT_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx32f threshold);
TPXAPI TpxStatus tpxiThreshold_GT_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f threshold[3]);
TPXAPI TpxStatus tpxiThreshold_GT_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f threshold[3]);

TPXAPI TpxStatus tpxiThreshold_LT_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, Tpx8u threshold);
TPXAPI TpxStatus tpxiThreshold_LT_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx8u threshold);
TPXAPI TpxStatus tpxiThreshold_LT_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, Tpx16u threshold);
TPXAPI TpxStatus tpxiThreshold_LT_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx16u threshold);
TPXAPI TpxStatus tpxiThreshold_LT_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, Tpx16s threshold);
TPXAPI TpxStatus tpxiThreshold_LT_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx16s threshold);
TPXAPI TpxStatus tpxiThreshold_LT_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, Tpx32f threshold);
TPXAPI TpxStatus tpxiThreshold_LT_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx32f threshold);
TPXAPI TpxStatus tpxiThreshold_LT_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f threshold[3]);
TPXAPI TpxStatus tpxiThreshold_LT_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f threshold[3]);

TPXAPI TpxStatus tpxiThreshold_Val_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, Tpx8u threshold, Tpx8u value, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx8u threshold, Tpx8u value, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u threshold[3], const Tpx8u value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u threshold[3], const Tpx8u value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u threshold[3], const Tpx8u value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u threshold[3], const Tpx8u value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, Tpx16u threshold, Tpx16u value, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx16u threshold, Tpx16u value, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u threshold[3], const Tpx16u value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u threshold[3], const Tpx16u value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u threshold[3], const Tpx16u value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u threshold[3], const Tpx16u value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, Tpx16s threshold, Tpx16s value, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx16s threshold, Tpx16s value, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s threshold[3], const Tpx16s value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s threshold[3], const Tpx16s value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s threshold[3], const Tpx16s value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s threshold[3], const Tpx16s value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, Tpx32f threshold, Tpx32f value, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx32f threshold, Tpx32f value, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f threshold[3], const Tpx32f value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f threshold[3], const Tpx32f value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f threshold[3], const Tpx32f value[3], TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiThreshold_Val_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f threshold[3], const Tpx32f value[3], TpxCmpOp cmpOp);

TPXAPI TpxStatus tpxiThreshold_GTVal_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, Tpx8u threshold, Tpx8u value);
TPXAPI TpxStatus tpxiThreshold_GTVal_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx8u threshold, Tpx8u value);
TPXAPI TpxStatus tpxiThreshold_GTVal_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u threshold[3], const Tpx8u value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u threshold[3], const Tpx8u value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u threshold[3], const Tpx8u value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u threshold[3], const Tpx8u value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u threshold[4], const Tpx8u value[4]);
TPXAPI TpxStatus tpxiThreshold_GTVal_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u threshold[4], const Tpx8u value[4]);
TPXAPI TpxStatus tpxiThreshold_GTVal_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, Tpx16u threshold, Tpx16u value);
TPXAPI TpxStatus tpxiThreshold_GTVal_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx16u threshold, Tpx16u value);
TPXAPI TpxStatus tpxiThreshold_GTVal_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u threshold[3], const Tpx16u value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u threshold[3], const Tpx16u value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u threshold[3], const Tpx16u value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u threshold[3], const Tpx16u value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u threshold[4], const Tpx16u value[4]);
TPXAPI TpxStatus tpxiThreshold_GTVal_16u_C4IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u threshold[4], const Tpx16u value[4]);
TPXAPI TpxStatus tpxiThreshold_GTVal_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, Tpx16s threshold, Tpx16s value);
TPXAPI TpxStatus tpxiThreshold_GTVal_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx16s threshold, Tpx16s value);
TPXAPI TpxStatus tpxiThreshold_GTVal_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s threshold[3], const Tpx16s value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s threshold[3], const Tpx16s value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s threshold[3], const Tpx16s value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s threshold[3], const Tpx16s value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s threshold[4], const Tpx16s value[4]);
TPXAPI TpxStatus tpxiThreshold_GTVal_16s_C4IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s threshold[4], const Tpx16s value[4]);
TPXAPI TpxStatus tpxiThreshold_GTVal_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, Tpx32f threshold, Tpx32f value);
TPXAPI TpxStatus tpxiThreshold_GTVal_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx32f threshold, Tpx32f value);
TPXAPI TpxStatus tpxiThreshold_GTVal_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f threshold[3], const Tpx32f value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f threshold[3], const Tpx32f value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f threshold[3], const Tpx32f value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f threshold[3], const Tpx32f value[3]);
TPXAPI TpxStatus tpxiThreshold_GTVal_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f threshold[4], const Tpx32f value[4]);
TPXAPI TpxStatus tpxiThreshold_GTVal_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f threshold[4], const Tpx32f value[4]);

TPXAPI TpxStatus tpxiThreshold_LTVal_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, Tpx8u threshold, Tpx8u value);
TPXAPI TpxStatus tpxiThreshold_LTVal_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx8u threshold, Tpx8u value);
TPXAPI TpxStatus tpxiThreshold_LTVal_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u threshold[3], const Tpx8u value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u threshold[3], const Tpx8u value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u threshold[3], const Tpx8u value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u threshold[3], const Tpx8u value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_8u_C4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u threshold[4], const Tpx8u value[4]);
TPXAPI TpxStatus tpxiThreshold_LTVal_8u_C4IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u threshold[4], const Tpx8u value[4]);
TPXAPI TpxStatus tpxiThreshold_LTVal_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, Tpx16u threshold, Tpx16u value);
TPXAPI TpxStatus tpxiThreshold_LTVal_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx16u threshold, Tpx16u value);
TPXAPI TpxStatus tpxiThreshold_LTVal_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u threshold[3], const Tpx16u value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u threshold[3], const Tpx16u value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u threshold[3], const Tpx16u value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u threshold[3], const Tpx16u value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_16u_C4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u threshold[4], const Tpx16u value[4]);
TPXAPI TpxStatus tpxiThreshold_LTVal_16u_C4IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u threshold[4], const Tpx16u value[4]);
TPXAPI TpxStatus tpxiThreshold_LTVal_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, Tpx16s threshold, Tpx16s value);
TPXAPI TpxStatus tpxiThreshold_LTVal_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx16s threshold, Tpx16s value);
TPXAPI TpxStatus tpxiThreshold_LTVal_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s threshold[3], const Tpx16s value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s threshold[3], const Tpx16s value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s threshold[3], const Tpx16s value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s threshold[3], const Tpx16s value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_16s_C4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s threshold[4], const Tpx16s value[4]);
TPXAPI TpxStatus tpxiThreshold_LTVal_16s_C4IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s threshold[4], const Tpx16s value[4]);
TPXAPI TpxStatus tpxiThreshold_LTVal_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, Tpx32f threshold, Tpx32f value);
TPXAPI TpxStatus tpxiThreshold_LTVal_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx32f threshold, Tpx32f value);
TPXAPI TpxStatus tpxiThreshold_LTVal_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f threshold[3], const Tpx32f value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f threshold[3], const Tpx32f value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f threshold[3], const Tpx32f value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f threshold[3], const Tpx32f value[3]);
TPXAPI TpxStatus tpxiThreshold_LTVal_32f_C4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f threshold[4], const Tpx32f value[4]);
TPXAPI TpxStatus tpxiThreshold_LTVal_32f_C4IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f threshold[4], const Tpx32f value[4]);

TPXAPI TpxStatus tpxiThreshold_LTValGTVal_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, Tpx8u thresholdLT, Tpx8u valueLT, Tpx8u thresholdGT, Tpx8u valueGT);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_8u_C1IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx8u thresholdLT, Tpx8u valueLT, Tpx8u thresholdGT, Tpx8u valueGT);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_8u_C3R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u thresholdLT[3], const Tpx8u valueLT[3], const Tpx8u thresholdGT[3],
    const Tpx8u valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_8u_C3IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u thresholdLT[3], const Tpx8u valueLT[3], const Tpx8u thresholdGT[3],
    const Tpx8u valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_8u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, const Tpx8u thresholdLT[3], const Tpx8u valueLT[3], const Tpx8u thresholdGT[3],
    const Tpx8u valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_8u_AC4IR(Tpx8u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx8u thresholdLT[3], const Tpx8u valueLT[3], const Tpx8u thresholdGT[3],
    const Tpx8u valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, Tpx16u thresholdLT, Tpx16u valueLT, Tpx16u thresholdGT, Tpx16u valueGT);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_16u_C1IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx16u thresholdLT, Tpx16u valueLT, Tpx16u thresholdGT, Tpx16u valueGT);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_16u_C3R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u thresholdLT[3], const Tpx16u valueLT[3], const Tpx16u thresholdGT[3],
    const Tpx16u valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_16u_C3IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u thresholdLT[3], const Tpx16u valueLT[3], const Tpx16u thresholdGT[3],
    const Tpx16u valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_16u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, const Tpx16u thresholdLT[3], const Tpx16u valueLT[3], const Tpx16u thresholdGT[3],
    const Tpx16u valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_16u_AC4IR(Tpx16u* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16u thresholdLT[3], const Tpx16u valueLT[3], const Tpx16u thresholdGT[3],
    const Tpx16u valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, Tpx16s thresholdLT, Tpx16s valueLT, Tpx16s thresholdGT, Tpx16s valueGT);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_16s_C1IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx16s thresholdLT, Tpx16s valueLT, Tpx16s thresholdGT, Tpx16s valueGT);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_16s_C3R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s thresholdLT[3], const Tpx16s valueLT[3], const Tpx16s thresholdGT[3],
    const Tpx16s valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_16s_C3IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s thresholdLT[3], const Tpx16s valueLT[3], const Tpx16s thresholdGT[3],
    const Tpx16s valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_16s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, const Tpx16s thresholdLT[3], const Tpx16s valueLT[3], const Tpx16s thresholdGT[3],
    const Tpx16s valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_16s_AC4IR(Tpx16s* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx16s thresholdLT[3], const Tpx16s valueLT[3], const Tpx16s thresholdGT[3],
    const Tpx16s valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, Tpx32f thresholdLT, Tpx32f valueLT, Tpx32f thresholdGT, Tpx32f valueGT);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_32f_C1IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    Tpx32f thresholdLT, Tpx32f valueLT, Tpx32f thresholdGT, Tpx32f valueGT);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_32f_C3R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f thresholdLT[3], const Tpx32f valueLT[3], const Tpx32f thresholdGT[3],
    const Tpx32f valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_32f_C3IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f thresholdLT[3], const Tpx32f valueLT[3], const Tpx32f thresholdGT[3],
    const Tpx32f valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_32f_AC4R(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, const Tpx32f thresholdLT[3], const Tpx32f valueLT[3], const Tpx32f thresholdGT[3],
    const Tpx32f valueGT[3]);
TPXAPI TpxStatus tpxiThreshold_LTValGTVal_32f_AC4IR(Tpx32f* pSrcDst, int srcDstStep, TpxSize roiSize,
    const Tpx32f thresholdLT[3], const Tpx32f valueLT[3], const Tpx32f thresholdGT[3],
    const Tpx32f valueGT[3]);

/* Comparisons write one Tpx8u a pixel: 255 where the relation a op b holds on every channel
 * considered (three in C3 and AC4, four in C4), 0 elsewhere. cmpOp: 0 less, 1 less or equal, 2
 * equal, 3 greater or equal, 4 greater; any other value does nothing and returns tpxOk. A 32f
 * NaN makes every relation false. */
TPXAPI TpxStatus tpxiCompare_8u_C1R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompare_8u_C3R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompare_8u_C4R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompare_8u_AC4R(const Tpx8u* pSrc1, int src1Step, const Tpx8u* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);

TPXAPI TpxStatus tpxiCompare_16u_C1R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompare_16u_C3R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompare_16u_C4R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompare_16u_AC4R(const Tpx16u* pSrc1, int src1Step, const Tpx16u* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);

TPXAPI TpxStatus tpxiCompare_16s_C1R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompare_16s_C3R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompare_16s_C4R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompare_16s_AC4R(const Tpx16s* pSrc1, int src1Step, const Tpx16s* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);

TPXAPI TpxStatus tpxiCompare_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompare_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompare_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompare_32f_AC4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2, int src2Step,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);

TPXAPI TpxStatus tpxiCompareC_8u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u value, Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompareC_8u_C3R(const Tpx8u* pSrc, int srcStep, const Tpx8u value[3], Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompareC_8u_C4R(const Tpx8u* pSrc, int srcStep, const Tpx8u value[4], Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompareC_8u_AC4R(const Tpx8u* pSrc, int srcStep, const Tpx8u value[3], Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);

TPXAPI TpxStatus tpxiCompareC_16u_C1R(const Tpx16u* pSrc, int srcStep, Tpx16u value, Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompareC_16u_C3R(const Tpx16u* pSrc, int srcStep, const Tpx16u value[3], Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompareC_16u_C4R(const Tpx16u* pSrc, int srcStep, const Tpx16u value[4], Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompareC_16u_AC4R(const Tpx16u* pSrc, int srcStep, const Tpx16u value[3], Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);

TPXAPI TpxStatus tpxiCompareC_16s_C1R(const Tpx16s* pSrc, int srcStep, Tpx16s value, Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompareC_16s_C3R(const Tpx16s* pSrc, int srcStep, const Tpx16s value[3], Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompareC_16s_C4R(const Tpx16s* pSrc, int srcStep, const Tpx16s value[4], Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompareC_16s_AC4R(const Tpx16s* pSrc, int srcStep, const Tpx16s value[3], Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);

TPXAPI TpxStatus tpxiCompareC_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f value, Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompareC_32f_C3R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[3], Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompareC_32f_C4R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[4], Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);
TPXAPI TpxStatus tpxiCompareC_32f_AC4R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[3], Tpx8u* pDst,
    int dstStep, TpxSize roiSize, TpxCmpOp cmpOp);

/* 255 where |a - b| <= eps on every considered channel (difference in single precision); eps below
 * 0 gives tpxErrEpsilon, a NaN eps or a NaN difference gives 0. */
TPXAPI TpxStatus tpxiCompareEqualEps_32f_C1R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2,
    int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, Tpx32f eps);
TPXAPI TpxStatus tpxiCompareEqualEps_32f_C3R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2,
    int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, Tpx32f eps);
TPXAPI TpxStatus tpxiCompareEqualEps_32f_C4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2,
    int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, Tpx32f eps);
TPXAPI TpxStatus tpxiCompareEqualEps_32f_AC4R(const Tpx32f* pSrc1, int src1Step, const Tpx32f* pSrc2,
    int src2Step, Tpx8u* pDst, int dstStep, TpxSize roiSize, Tpx32f eps);
TPXAPI TpxStatus tpxiCompareEqualEpsC_32f_C1R(const Tpx32f* pSrc, int srcStep, Tpx32f value,
    Tpx8u* pDst, int dstStep, TpxSize roiSize, Tpx32f eps);
TPXAPI TpxStatus tpxiCompareEqualEpsC_32f_C3R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[3],
    Tpx8u* pDst, int dstStep, TpxSize roiSize, Tpx32f eps);
TPXAPI TpxStatus tpxiCompareEqualEpsC_32f_C4R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[4],
    Tpx8u* pDst, int dstStep, TpxSize roiSize, Tpx32f eps);
TPXAPI TpxStatus tpxiCompareEqualEpsC_32f_AC4R(const Tpx32f* pSrc, int srcStep, const Tpx32f value[3],
    Tpx8u* pDst, int dstStep, TpxSize roiSize, Tpx32f eps);

/* Otsu's threshold of the region's 256-bin histogram: the bin of the first largest between-class
 * value; an image of one value gives 0. Needs srcStep >= width (tpxErrStep otherwise). */
TPXAPI TpxStatus tpxiComputeThreshold_Otsu_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize,
    Tpx8u* pThreshold);

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_COMPARE_H */
