#ifndef TPXIP_REDUCTIONS_H
#define TPXIP_REDUCTIONS_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Whole-image reductions. Results go through the result pointers only; C1 members take one
 * result, C3 and AC4 members arrays of three (AC4: the fourth sample of a pixel is never read
 * into a result), C4 members arrays of four. Sum, Mean and the extreme families accept any
 * step, zero and negative included. */

/* Sum of each channel. Integer samples are summed exactly and converted to Tpx64f once. The
 * float members add in an order that is part of their result: tpxiSum_32f_C1R adds rows of up to
 * 16 samples in Tpx64f; wider rows in Tpx64f with hint tpxAlgHintAccurate and otherwise in
 * Tpx32f, with eight- and four-lane accumulators over the whole image whose entry depends on
 * each row's address. tpxiSum_32f_C3R: Tpx64f up to 13 pixels a row or with the accurate hint,
 * otherwise Tpx32f within each row. tpxiSum_32f_C4R: Tpx32f only with tpxAlgHintFast. */
TPXAPI TpxStatus tpxiSum_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx64f* pSum);
TPXAPI TpxStatus tpxiSum_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx64f pSum[3]);
TPXAPI TpxStatus tpxiSum_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx64f pSum[4]);
TPXAPI TpxStatus tpxiSum_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx64f* pSum);
TPXAPI TpxStatus tpxiSum_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx64f pSum[3]);
TPXAPI TpxStatus tpxiSum_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx64f pSum[4]);
TPXAPI TpxStatus tpxiSum_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx64f* pSum);
TPXAPI TpxStatus tpxiSum_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx64f pSum[3]);
TPXAPI TpxStatus tpxiSum_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx64f pSum[4]);
TPXAPI TpxStatus tpxiSum_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx64f* pSum, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiSum_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx64f pSum[3], TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiSum_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx64f pSum[4], TpxHintAlgorithm hint);

/* Mean of each channel: the sum over width * height taken as a signed 32-bit product (a larger
 * area wraps). C1 members divide; C3 and C4 members multiply by the reciprocal of the area. */
TPXAPI TpxStatus tpxiMean_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx64f* pMean);
TPXAPI TpxStatus tpxiMean_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx64f pMean[3]);
TPXAPI TpxStatus tpxiMean_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx64f pMean[4]);
TPXAPI TpxStatus tpxiMean_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx64f* pMean);
TPXAPI TpxStatus tpxiMean_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx64f pMean[3]);
TPXAPI TpxStatus tpxiMean_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx64f pMean[4]);
TPXAPI TpxStatus tpxiMean_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx64f* pMean);
TPXAPI TpxStatus tpxiMean_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx64f pMean[3]);
TPXAPI TpxStatus tpxiMean_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx64f pMean[4]);
TPXAPI TpxStatus tpxiMean_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx64f* pMean, TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiMean_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx64f pMean[3], TpxHintAlgorithm hint);
TPXAPI TpxStatus tpxiMean_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx64f pMean[4], TpxHintAlgorithm hint);

/* Smallest and largest sample of each channel. Float members use the processor's vector
 * minimum and maximum; a region that holds NaN has no defined result. */
TPXAPI TpxStatus tpxiMin_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u* pMin);
TPXAPI TpxStatus tpxiMin_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMin[3]);
TPXAPI TpxStatus tpxiMin_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMin[4]);
TPXAPI TpxStatus tpxiMin_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMin[3]);
TPXAPI TpxStatus tpxiMin_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u* pMin);
TPXAPI TpxStatus tpxiMin_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMin[3]);
TPXAPI TpxStatus tpxiMin_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMin[4]);
TPXAPI TpxStatus tpxiMin_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMin[3]);
TPXAPI TpxStatus tpxiMin_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s* pMin);
TPXAPI TpxStatus tpxiMin_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMin[3]);
TPXAPI TpxStatus tpxiMin_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMin[4]);
TPXAPI TpxStatus tpxiMin_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMin[3]);
TPXAPI TpxStatus tpxiMin_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f* pMin);
TPXAPI TpxStatus tpxiMin_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMin[3]);
TPXAPI TpxStatus tpxiMin_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMin[4]);
TPXAPI TpxStatus tpxiMin_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMin[3]);

TPXAPI TpxStatus tpxiMax_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u* pMax);
TPXAPI TpxStatus tpxiMax_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMax[3]);
TPXAPI TpxStatus tpxiMax_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMax[4]);
TPXAPI TpxStatus tpxiMax_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMax[3]);
TPXAPI TpxStatus tpxiMax_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u* pMax);
TPXAPI TpxStatus tpxiMax_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMax[3]);
TPXAPI TpxStatus tpxiMax_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMax[4]);
TPXAPI TpxStatus tpxiMax_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMax[3]);
TPXAPI TpxStatus tpxiMax_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s* pMax);
TPXAPI TpxStatus tpxiMax_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMax[3]);
TPXAPI TpxStatus tpxiMax_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMax[4]);
TPXAPI TpxStatus tpxiMax_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMax[3]);
TPXAPI TpxStatus tpxiMax_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f* pMax);
TPXAPI TpxStatus tpxiMax_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMax[3]);
TPXAPI TpxStatus tpxiMax_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMax[4]);
TPXAPI TpxStatus tpxiMax_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMax[3]);

TPXAPI TpxStatus tpxiMinMax_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u* pMin, Tpx8u* pMax);
TPXAPI TpxStatus tpxiMinMax_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMin[3], Tpx8u pMax[3]);
TPXAPI TpxStatus tpxiMinMax_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMin[4], Tpx8u pMax[4]);
TPXAPI TpxStatus tpxiMinMax_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMin[3], Tpx8u pMax[3]);
TPXAPI TpxStatus tpxiMinMax_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u* pMin, Tpx16u* pMax);
TPXAPI TpxStatus tpxiMinMax_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMin[3], Tpx16u pMax[3]);
TPXAPI TpxStatus tpxiMinMax_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMin[4], Tpx16u pMax[4]);
TPXAPI TpxStatus tpxiMinMax_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMin[3], Tpx16u pMax[3]);
TPXAPI TpxStatus tpxiMinMax_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s* pMin, Tpx16s* pMax);
TPXAPI TpxStatus tpxiMinMax_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMin[3], Tpx16s pMax[3]);
TPXAPI TpxStatus tpxiMinMax_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMin[4], Tpx16s pMax[4]);
TPXAPI TpxStatus tpxiMinMax_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMin[3], Tpx16s pMax[3]);
TPXAPI TpxStatus tpxiMinMax_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f* pMin, Tpx32f* pMax);
TPXAPI TpxStatus tpxiMinMax_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMin[3], Tpx32f pMax[3]);
TPXAPI TpxStatus tpxiMinMax_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMin[4], Tpx32f pMax[4]);
TPXAPI TpxStatus tpxiMinMax_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMin[3], Tpx32f pMax[3]);

/* Extreme of each channel with its position: the first in row-major order (of two rows with
 * the same extreme the upper wins, within the row the leftmost), counted from the region's
 * top-left pixel. A float channel whose first sample is NaN reports NaN, row 0 and column width. */
TPXAPI TpxStatus tpxiMinIndx_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u* pMin, int* pIndexX, int* pIndexY);
TPXAPI TpxStatus tpxiMinIndx_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMin[3], int pIndexX[3], int pIndexY[3]);
TPXAPI TpxStatus tpxiMinIndx_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMin[4], int pIndexX[4], int pIndexY[4]);
TPXAPI TpxStatus tpxiMinIndx_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMin[3], int pIndexX[3], int pIndexY[3]);
TPXAPI TpxStatus tpxiMinIndx_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u* pMin, int* pIndexX, int* pIndexY);
TPXAPI TpxStatus tpxiMinIndx_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMin[3], int pIndexX[3], int pIndexY[3]);
TPXAPI TpxStatus tpxiMinIndx_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMin[4], int pIndexX[4], int pIndexY[4]);
TPXAPI TpxStatus tpxiMinIndx_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMin[3], int pIndexX[3], int pIndexY[3]);
TPXAPI TpxStatus tpxiMinIndx_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s* pMin, int* pIndexX, int* pIndexY);
TPXAPI TpxStatus tpxiMinIndx_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMin[3], int pIndexX[3], int pIndexY[3]);
TPXAPI TpxStatus tpxiMinIndx_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMin[4], int pIndexX[4], int pIndexY[4]);
TPXAPI TpxStatus tpxiMinIndx_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMin[3], int pIndexX[3], int pIndexY[3]);
TPXAPI TpxStatus tpxiMinIndx_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f* pMin, int* pIndexX, int* pIndexY);
TPXAPI TpxStatus tpxiMinIndx_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMin[3], int pIndexX[3], int pIndexY[3]);
TPXAPI TpxStatus tpxiMinIndx_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMin[4], int pIndexX[4], int pIndexY[4]);
TPXAPI TpxStatus tpxiMinIndx_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMin[3], int pIndexX[3], int pIndexY[3]);

TPXAPI TpxStatus tpxiMaxIndx_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u* pMax, int* pIndexX, int* pIndexY);
TPXAPI TpxStatus tpxiMaxIndx_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMax[3], int pIndexX[3], int pIndexY[3]);
TPXAPI TpxStatus tpxiMaxIndx_8u_C4R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMax[4], int pIndexX[4], int pIndexY[4]);
TPXAPI TpxStatus tpxiMaxIndx_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx8u pMax[3], int pIndexX[3], int pIndexY[3]);
TPXAPI TpxStatus tpxiMaxIndx_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u* pMax, int* pIndexX, int* pIndexY);
TPXAPI TpxStatus tpxiMaxIndx_16u_C3R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMax[3], int pIndexX[3], int pIndexY[3]);
TPXAPI TpxStatus tpxiMaxIndx_16u_C4R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMax[4], int pIndexX[4], int pIndexY[4]);
TPXAPI TpxStatus tpxiMaxIndx_16u_AC4R(const Tpx16u* pSrc, int srcStep, TpxSize roiSize, Tpx16u pMax[3], int pIndexX[3], int pIndexY[3]);
TPXAPI TpxStatus tpxiMaxIndx_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s* pMax, int* pIndexX, int* pIndexY);
TPXAPI TpxStatus tpxiMaxIndx_16s_C3R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMax[3], int pIndexX[3], int pIndexY[3]);
TPXAPI TpxStatus tpxiMaxIndx_16s_C4R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMax[4], int pIndexX[4], int pIndexY[4]);
TPXAPI TpxStatus tpxiMaxIndx_16s_AC4R(const Tpx16s* pSrc, int srcStep, TpxSize roiSize, Tpx16s pMax[3], int pIndexX[3], int pIndexY[3]);
TPXAPI TpxStatus tpxiMaxIndx_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f* pMax, int* pIndexX, int* pIndexY);
TPXAPI TpxStatus tpxiMaxIndx_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMax[3], int pIndexX[3], int pIndexY[3]);
TPXAPI TpxStatus tpxiMaxIndx_32f_C4R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMax[4], int pIndexX[4], int pIndexY[4]);
TPXAPI TpxStatus tpxiMaxIndx_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32f pMax[3], int pIndexX[3], int pIndexY[3]);

/* Extremes of every block of a grid of ceil(width / block width) by ceil(height / block height)
 * blocks; the last column and row of blocks may be partial. pDstMin or pDstMax may be null (not
 * both): only the other array is computed, and the global result that belongs to the missing
 * array, if asked for, receives the first sample of the image. Steps are in bytes. */
TPXAPI TpxStatus tpxiBlockMinMax_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxSize srcSize, Tpx8u* pDstMin, int dstMinStep, Tpx8u* pDstMax, int dstMaxStep, TpxSize blockSize, Tpx8u* pDstGlobalMin, Tpx8u* pDstGlobalMax);
TPXAPI TpxStatus tpxiBlockMinMax_16u_C1R(const Tpx16u* pSrc, int srcStep, TpxSize srcSize, Tpx16u* pDstMin, int dstMinStep, Tpx16u* pDstMax, int dstMaxStep, TpxSize blockSize, Tpx16u* pDstGlobalMin, Tpx16u* pDstGlobalMax);
TPXAPI TpxStatus tpxiBlockMinMax_16s_C1R(const Tpx16s* pSrc, int srcStep, TpxSize srcSize, Tpx16s* pDstMin, int dstMinStep, Tpx16s* pDstMax, int dstMaxStep, TpxSize blockSize, Tpx16s* pDstGlobalMin, Tpx16s* pDstGlobalMax);
TPXAPI TpxStatus tpxiBlockMinMax_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxSize srcSize, Tpx32f* pDstMin, int dstMinStep, Tpx32f* pDstMax, int dstMaxStep, TpxSize blockSize, Tpx32f* pDstGlobalMin, Tpx32f* pDstGlobalMax);

/* Number of samples of each channel with lowerBound <= sample <= upperBound (NaN never counts).
 * C3 and AC4 members take three bounds of each kind and write three counts. */
TPXAPI TpxStatus tpxiCountInRange_8u_C1R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx32u* pCounts, Tpx8u lowerBound, Tpx8u upperBound);
TPXAPI TpxStatus tpxiCountInRange_8u_C3R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx32u pCounts[3], const Tpx8u lowerBound[3], const Tpx8u upperBound[3]);
TPXAPI TpxStatus tpxiCountInRange_8u_AC4R(const Tpx8u* pSrc, int srcStep, TpxSize roiSize, Tpx32u pCounts[3], const Tpx8u lowerBound[3], const Tpx8u upperBound[3]);
TPXAPI TpxStatus tpxiCountInRange_32f_C1R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32u* pCounts, Tpx32f lowerBound, Tpx32f upperBound);
TPXAPI TpxStatus tpxiCountInRange_32f_C3R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32u pCounts[3], const Tpx32f lowerBound[3], const Tpx32f upperBound[3]);
TPXAPI TpxStatus tpxiCountInRange_32f_AC4R(const Tpx32f* pSrc, int srcStep, TpxSize roiSize, Tpx32u pCounts[3], const Tpx32f lowerBound[3], const Tpx32f upperBound[3]);

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_REDUCTIONS_H */
