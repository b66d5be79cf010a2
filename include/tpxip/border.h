/* tpxIP: border copies. Each copies an image into a larger one and synthesises what lies
 * around it: Const (a value), Replicate (the nearest edge pixel), Mirror (mirrored about the
 * edge pixel, which is not repeated), Wrap (the image repeated). The right and bottom borders
 * are what remains of the destination: dstRoiSize.width - srcRoiSize.width - leftBorderWidth
 * and dstRoiSize.height - srcRoiSize.height - topBorderHeight; borders may be many times wider
 * than the source. Checks: null pointers, then steps below 1, then sizes (any extent below 1,
 * a negative border, or a source that does not fit at (left, top) of the destination).
 * Replicate and Mirror take pSrc == pDst for the in-place form before any check, Wrap after
 * its checks, Const never.
 * IR forms: pSrc is the source's first pixel inside the large image; the destination starts
 * topBorderHeight rows above and leftBorderWidth pixels to the left of it. Only the borders
 * are written.
 * AC4: Replicate's side borders keep the destination's alpha while the source rows bring
 * theirs; Const writes three of four samples of every border pixel and copies the source
 * rows whole. Const takes a sample for C1, three samples for C3 and AC4, four for C4. */
#ifndef TPXIP_BORDER_H
#define TPXIP_BORDER_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* ---- tpxiCopyConstBorder ---- */
TPXAPI TpxStatus tpxiCopyConstBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx8u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Tpx8u value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_C1R_L(const Tpx8u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx8u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, Tpx8u value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_C1IR(Tpx8u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Tpx8u value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_C1IR_L(Tpx8u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, Tpx8u value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx8u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx8u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_C3R_L(const Tpx8u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx8u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx8u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_C3IR(Tpx8u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx8u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_C3IR_L(Tpx8u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx8u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx8u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx8u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_C4R_L(const Tpx8u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx8u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx8u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_C4IR(Tpx8u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx8u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_C4IR_L(Tpx8u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx8u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx8u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx8u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_AC4R_L(const Tpx8u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx8u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx8u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_AC4IR(Tpx8u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx8u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_8u_AC4IR_L(Tpx8u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx8u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Tpx16u value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_C1R_L(const Tpx16u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, Tpx16u value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_C1IR(Tpx16u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Tpx16u value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_C1IR_L(Tpx16u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, Tpx16u value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx16u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_C3R_L(const Tpx16u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx16u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_C3IR(Tpx16u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx16u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_C3IR_L(Tpx16u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx16u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx16u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_C4R_L(const Tpx16u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx16u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_C4IR(Tpx16u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx16u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_C4IR_L(Tpx16u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx16u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx16u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_AC4R_L(const Tpx16u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx16u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_AC4IR(Tpx16u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx16u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16u_AC4IR_L(Tpx16u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx16u* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Tpx16s value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_C1R_L(const Tpx16s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, Tpx16s value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_C1IR(Tpx16s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Tpx16s value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_C1IR_L(Tpx16s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, Tpx16s value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx16s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_C3R_L(const Tpx16s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx16s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_C3IR(Tpx16s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx16s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_C3IR_L(Tpx16s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx16s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx16s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_C4R_L(const Tpx16s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx16s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_C4IR(Tpx16s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx16s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_C4IR_L(Tpx16s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx16s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx16s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_AC4R_L(const Tpx16s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx16s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_AC4IR(Tpx16s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx16s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_16s_AC4IR_L(Tpx16s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx16s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_C1R(const Tpx32s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Tpx32s value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_C1R_L(const Tpx32s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, Tpx32s value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_C1IR(Tpx32s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Tpx32s value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_C1IR_L(Tpx32s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, Tpx32s value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_C3R(const Tpx32s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx32s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_C3R_L(const Tpx32s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx32s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_C3IR(Tpx32s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx32s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_C3IR_L(Tpx32s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx32s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_C4R(const Tpx32s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx32s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_C4R_L(const Tpx32s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx32s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_C4IR(Tpx32s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx32s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_C4IR_L(Tpx32s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx32s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_AC4R(const Tpx32s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx32s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_AC4R_L(const Tpx32s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx32s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_AC4IR(Tpx32s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx32s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32s_AC4IR_L(Tpx32s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx32s* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32f* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Tpx32f value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_C1R_L(const Tpx32f* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32f* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, Tpx32f value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_C1IR(Tpx32f* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Tpx32f value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_C1IR_L(Tpx32f* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, Tpx32f value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32f* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx32f* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_C3R_L(const Tpx32f* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32f* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx32f* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_C3IR(Tpx32f* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx32f* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_C3IR_L(Tpx32f* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx32f* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32f* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx32f* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_C4R_L(const Tpx32f* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32f* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx32f* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_C4IR(Tpx32f* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx32f* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_C4IR_L(Tpx32f* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx32f* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32f* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx32f* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_AC4R_L(const Tpx32f* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32f* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx32f* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_AC4IR(Tpx32f* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Tpx32f* value);
TPXAPI TpxStatus tpxiCopyConstBorder_32f_AC4IR_L(Tpx32f* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth, const Tpx32f* value);

/* ---- tpxiCopyReplicateBorder ---- */
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx8u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_C1R_L(const Tpx8u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx8u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_C1IR(Tpx8u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_C1IR_L(Tpx8u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx8u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_C3R_L(const Tpx8u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx8u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_C3IR(Tpx8u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_C3IR_L(Tpx8u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx8u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_C4R_L(const Tpx8u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx8u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_C4IR(Tpx8u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_C4IR_L(Tpx8u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx8u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_AC4R_L(const Tpx8u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx8u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_AC4IR(Tpx8u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_8u_AC4IR_L(Tpx8u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_C1R_L(const Tpx16u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_C1IR(Tpx16u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_C1IR_L(Tpx16u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_C3R_L(const Tpx16u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_C3IR(Tpx16u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_C3IR_L(Tpx16u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_C4R_L(const Tpx16u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_C4IR(Tpx16u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_C4IR_L(Tpx16u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_AC4R_L(const Tpx16u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_AC4IR(Tpx16u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16u_AC4IR_L(Tpx16u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_C1R_L(const Tpx16s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_C1IR(Tpx16s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_C1IR_L(Tpx16s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_C3R_L(const Tpx16s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_C3IR(Tpx16s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_C3IR_L(Tpx16s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_C4R_L(const Tpx16s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_C4IR(Tpx16s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_C4IR_L(Tpx16s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_AC4R_L(const Tpx16s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_AC4IR(Tpx16s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_16s_AC4IR_L(Tpx16s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_C1R(const Tpx32s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_C1R_L(const Tpx32s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_C1IR(Tpx32s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_C1IR_L(Tpx32s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_C3R(const Tpx32s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_C3R_L(const Tpx32s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_C3IR(Tpx32s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_C3IR_L(Tpx32s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_C4R(const Tpx32s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_C4R_L(const Tpx32s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_C4IR(Tpx32s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_C4IR_L(Tpx32s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_AC4R(const Tpx32s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_AC4R_L(const Tpx32s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_AC4IR(Tpx32s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32s_AC4IR_L(Tpx32s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32f* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_C1R_L(const Tpx32f* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32f* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_C1IR(Tpx32f* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_C1IR_L(Tpx32f* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32f* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_C3R_L(const Tpx32f* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32f* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_C3IR(Tpx32f* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_C3IR_L(Tpx32f* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32f* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_C4R_L(const Tpx32f* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32f* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_C4IR(Tpx32f* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_C4IR_L(Tpx32f* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32f* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_AC4R_L(const Tpx32f* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32f* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_AC4IR(Tpx32f* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyReplicateBorder_32f_AC4IR_L(Tpx32f* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);

/* ---- tpxiCopyMirrorBorder ---- */
TPXAPI TpxStatus tpxiCopyMirrorBorder_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx8u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_8u_C1R_L(const Tpx8u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx8u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_8u_C1IR(Tpx8u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_8u_C1IR_L(Tpx8u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx8u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_8u_C3R_L(const Tpx8u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx8u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_8u_C3IR(Tpx8u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_8u_C3IR_L(Tpx8u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx8u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_8u_C4R_L(const Tpx8u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx8u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_8u_C4IR(Tpx8u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_8u_C4IR_L(Tpx8u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16u_C1R_L(const Tpx16u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16u_C1IR(Tpx16u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16u_C1IR_L(Tpx16u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16u_C3R_L(const Tpx16u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16u_C3IR(Tpx16u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16u_C3IR_L(Tpx16u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16u* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16u_C4R_L(const Tpx16u* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16u* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16u_C4IR(Tpx16u* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16u_C4IR_L(Tpx16u* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16s_C1R_L(const Tpx16s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16s_C1IR(Tpx16s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16s_C1IR_L(Tpx16s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16s_C3R_L(const Tpx16s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16s_C3IR(Tpx16s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16s_C3IR_L(Tpx16s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx16s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16s_C4R_L(const Tpx16s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx16s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16s_C4IR(Tpx16s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_16s_C4IR_L(Tpx16s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32s_C1R(const Tpx32s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32s_C1R_L(const Tpx32s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32s_C1IR(Tpx32s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32s_C1IR_L(Tpx32s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32s_C3R(const Tpx32s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32s_C3R_L(const Tpx32s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32s_C3IR(Tpx32s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32s_C3IR_L(Tpx32s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32s_C4R(const Tpx32s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32s_C4R_L(const Tpx32s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32s_C4IR(Tpx32s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32s_C4IR_L(Tpx32s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32f* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32f_C1R_L(const Tpx32f* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32f* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32f_C1IR(Tpx32f* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32f_C1IR_L(Tpx32f* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32f* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32f_C3R_L(const Tpx32f* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32f* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32f_C3IR(Tpx32f* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32f_C3IR_L(Tpx32f* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32f* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32f_C4R_L(const Tpx32f* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32f* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32f_C4IR(Tpx32f* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyMirrorBorder_32f_C4IR_L(Tpx32f* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);

/* ---- tpxiCopyWrapBorder ---- */
TPXAPI TpxStatus tpxiCopyWrapBorder_32s_C1R(const Tpx32s* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32s* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyWrapBorder_32s_C1R_L(const Tpx32s* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32s* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyWrapBorder_32s_C1IR(Tpx32s* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyWrapBorder_32s_C1IR_L(Tpx32s* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyWrapBorder_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxSize srcRoiSize, Tpx32f* pDst, int dstStep, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyWrapBorder_32f_C1R_L(const Tpx32f* pSrc, long long srcStep, TpxSizeL srcRoiSize, Tpx32f* pDst, long long dstStep, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);
TPXAPI TpxStatus tpxiCopyWrapBorder_32f_C1IR(Tpx32f* pSrc, int srcDstStep, TpxSize srcRoiSize, TpxSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
TPXAPI TpxStatus tpxiCopyWrapBorder_32f_C1IR_L(Tpx32f* pSrc, long long srcDstStep, TpxSizeL srcRoiSize, TpxSizeL dstRoiSize, long long topBorderHeight, long long leftBorderWidth);

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_BORDER_H */
