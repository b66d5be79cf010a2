#ifndef TPXIP_CONVERT_H
#define TPXIP_CONVERT_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* tpxiConvert_* changes an image's sample type; tpxiScale_* maps a type's range onto another
   range. C3 and C4 members treat a row as width * 3 or width * 4 samples; AC4 members leave the
   fourth sample of each destination pixel as it was. Argument-free Convert members check
   pointers and size; the others, and every Scale member, check pointers, size and steps. */

/* ---- Convert: widening is exact, narrowing saturates --------------------------------------- */
TPXAPI TpxStatus tpxiConvert_8u16u_C1R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u16u_C3R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u16u_C4R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u16u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u16s_C3R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u16s_C4R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u16s_AC4R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u32s_C1R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u32s_C3R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u32s_C4R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u32s_AC4R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u32f_C1R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u32f_C3R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u32f_C4R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8u32f_AC4R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8s32s_C1R(const Tpx8s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8s32s_C3R(const Tpx8s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8s32s_C4R(const Tpx8s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8s32s_AC4R(const Tpx8s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8s32f_C1R(const Tpx8s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8s32f_C3R(const Tpx8s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8s32f_C4R(const Tpx8s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8s32f_AC4R(const Tpx8s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16u32s_C1R(const Tpx16u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16u32s_C3R(const Tpx16u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16u32s_C4R(const Tpx16u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16u32s_AC4R(const Tpx16u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16u32f_C1R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16u32f_C3R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16u32f_C4R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16u32f_AC4R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16s32s_C1R(const Tpx16s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16s32s_C3R(const Tpx16s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16s32s_C4R(const Tpx16s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16s32s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16s32f_C1R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16s32f_C3R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16s32f_C4R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16s32f_AC4R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16u8u_C1R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16u8u_C3R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16u8u_C4R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16u8u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16s8u_C1R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16s8u_C3R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16s8u_C4R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16s8u_AC4R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_32s8u_C1R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_32s8u_C3R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_32s8u_C4R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_32s8u_AC4R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_32s8s_C1R(const Tpx32s* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_32s8s_C3R(const Tpx32s* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_32s8s_C4R(const Tpx32s* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_32s8s_AC4R(const Tpx32s* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8s16s_C1R(const Tpx8s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8s64f_C1R(const Tpx8s* pSrc, int srcStep, Tpx64f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16u32u_C1R(const Tpx16u* pSrc, int srcStep, Tpx32u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_32s32f_C1R(const Tpx32s* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_32u32f_C1R(const Tpx32u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize);
/* Signed to unsigned of at least the same width: negative samples become 0. */
TPXAPI TpxStatus tpxiConvert_8s8u_C1Rs(const Tpx8s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8s16u_C1Rs(const Tpx8s* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_8s32u_C1Rs(const Tpx8s* pSrc, int srcStep, Tpx32u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16s16u_C1Rs(const Tpx16s* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_16s32u_C1Rs(const Tpx16s* pSrc, int srcStep, Tpx32u* pDst, int dstStep,
    TpxSize roiSize);
TPXAPI TpxStatus tpxiConvert_32s32u_C1Rs(const Tpx32s* pSrc, int srcStep, Tpx32u* pDst, int dstStep,
    TpxSize roiSize);
/* ---- Convert from 32f with a rounding mode: 0 truncates, 1 rounds half to even, any other
   value rounds half away from zero; NaN stores the maximum; the result saturates. ---------- */
TPXAPI TpxStatus tpxiConvert_32f8u_C1R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f8u_C3R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f8u_C4R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f8u_AC4R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f8s_C1R(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f8s_C3R(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f8s_C4R(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f8s_AC4R(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f16u_C1R(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f16u_C3R(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f16u_C4R(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f16u_AC4R(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f16s_C1R(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f16s_C3R(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f16s_C4R(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
TPXAPI TpxStatus tpxiConvert_32f16s_AC4R(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode);
/* ---- Convert with a rounding mode and a scale factor: the value times 2^-scaleFactor ------ */
TPXAPI TpxStatus tpxiConvert_32f8u_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_32f8s_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_32f16u_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_32f16s_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_32f32s_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_32f32u_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx32u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_64f8u_C1RSfs(const Tpx64f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_64f8s_C1RSfs(const Tpx64f* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_64f16u_C1RSfs(const Tpx64f* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_64f16s_C1RSfs(const Tpx64f* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_32s16s_C1RSfs(const Tpx32s* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_32s16u_C1RSfs(const Tpx32s* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_32u8u_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_32u8s_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_32u16u_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_32u16s_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_32u32s_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_16u16s_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_16u8s_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_16s8s_C1RSfs(const Tpx16s* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
TPXAPI TpxStatus tpxiConvert_8u8s_C1RSfs(const Tpx8u* pSrc, int srcStep, Tpx8s* pDst, int dstStep,
    TpxSize roiSize, TpxRoundMode roundMode, int scaleFactor);
/* In place: the image holds 32f samples on entry and their 32u results on return (hence the
   Tpx32u pointer); the float rule is that of tpxiConvert_32f32u_C1RSfs. */
TPXAPI TpxStatus tpxiConvert_32f32u_C1IRSfs(Tpx32u* pSrcDst, int srcDstStep, TpxSize roiSize,
    TpxRoundMode roundMode, int scaleFactor);
/* ---- Scale: maps a range onto another. vMax - vMin must be above 0 (tpxErrScaleRange,
   tested before anything else). 8u32f: d = vMin + s * (vMax - vMin) / 255; 32f8u: the inverse,
   rounded half to even and saturated. --------------------------------------------------- */
TPXAPI TpxStatus tpxiScale_8u32f_C1R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, Tpx32f vMin, Tpx32f vMax);
TPXAPI TpxStatus tpxiScale_8u32f_C3R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, Tpx32f vMin, Tpx32f vMax);
TPXAPI TpxStatus tpxiScale_8u32f_C4R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, Tpx32f vMin, Tpx32f vMax);
TPXAPI TpxStatus tpxiScale_8u32f_AC4R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep,
    TpxSize roiSize, Tpx32f vMin, Tpx32f vMax);
TPXAPI TpxStatus tpxiScale_32f8u_C1R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, Tpx32f vMin, Tpx32f vMax);
TPXAPI TpxStatus tpxiScale_32f8u_C3R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, Tpx32f vMin, Tpx32f vMax);
TPXAPI TpxStatus tpxiScale_32f8u_C4R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, Tpx32f vMin, Tpx32f vMax);
TPXAPI TpxStatus tpxiScale_32f8u_AC4R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, Tpx32f vMin, Tpx32f vMax);
/* Between integer types, full range onto full range. Widening is exact. Narrowing rounds half
   to even; hint tpxAlgHintAccurate (2) computes in double precision, any other hint in
   single precision (the two differ only for 32s sources). */
TPXAPI TpxStatus tpxiScale_8u16u_C1R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_8u16u_C3R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_8u16u_C4R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_8u16u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_8u16s_C3R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_8u16s_C4R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_8u16s_AC4R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_8u32s_C1R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_8u32s_C3R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_8u32s_C4R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_8u32s_AC4R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_16u8u_C1R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_16u8u_C3R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_16u8u_C4R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_16u8u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_16s8u_C1R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_16s8u_C3R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_16s8u_C4R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_16s8u_AC4R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_32s8u_C1R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_32s8u_C3R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_32s8u_C4R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiScale_32s8u_AC4R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep,
    TpxSize roiSize, TpxHintAlgorithm hint);

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_CONVERT_H */
