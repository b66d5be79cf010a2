/* tpxIP: version record and image memory. */
#ifndef TPXIP_MEMORY_H
#define TPXIP_MEMORY_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* The build's fixed identification record; constant, never freed. */
TPXAPI const TpxLibraryVersion* tpxiGetLibVersion(void);

/* Image allocators: rows padded to a multiple of 64 bytes, memory not zeroed. The step is
   written as far as the allocation came: 0 for bad extents, the pitch once it is known. */
TPXAPI Tpx8u* tpxiMalloc_8u_C1(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx8u* tpxiMalloc_8u_C2(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx8u* tpxiMalloc_8u_C3(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx8u* tpxiMalloc_8u_C4(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx8u* tpxiMalloc_8u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx16u* tpxiMalloc_16u_C1(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx16u* tpxiMalloc_16u_C2(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx16u* tpxiMalloc_16u_C3(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx16u* tpxiMalloc_16u_C4(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx16u* tpxiMalloc_16u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx16s* tpxiMalloc_16s_C1(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx16s* tpxiMalloc_16s_C2(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx16s* tpxiMalloc_16s_C3(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx16s* tpxiMalloc_16s_C4(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx16s* tpxiMalloc_16s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32s* tpxiMalloc_32s_C1(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32s* tpxiMalloc_32s_C2(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32s* tpxiMalloc_32s_C3(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32s* tpxiMalloc_32s_C4(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32s* tpxiMalloc_32s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32f* tpxiMalloc_32f_C1(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32f* tpxiMalloc_32f_C2(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32f* tpxiMalloc_32f_C3(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32f* tpxiMalloc_32f_C4(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32f* tpxiMalloc_32f_AC4(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32sc* tpxiMalloc_32sc_C1(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32sc* tpxiMalloc_32sc_C2(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32sc* tpxiMalloc_32sc_C3(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32sc* tpxiMalloc_32sc_C4(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32sc* tpxiMalloc_32sc_AC4(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32fc* tpxiMalloc_32fc_C1(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32fc* tpxiMalloc_32fc_C2(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32fc* tpxiMalloc_32fc_C3(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32fc* tpxiMalloc_32fc_C4(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx32fc* tpxiMalloc_32fc_AC4(int widthPixels, int heightPixels, int* pStepBytes);
TPXAPI Tpx8u* tpxiMalloc_8u_C1_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx8u* tpxiMalloc_8u_C2_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx8u* tpxiMalloc_8u_C3_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx8u* tpxiMalloc_8u_C4_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx8u* tpxiMalloc_8u_AC4_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx16u* tpxiMalloc_16u_C1_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx16u* tpxiMalloc_16u_C2_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx16u* tpxiMalloc_16u_C3_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx16u* tpxiMalloc_16u_C4_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx16u* tpxiMalloc_16u_AC4_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx16s* tpxiMalloc_16s_C1_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx16s* tpxiMalloc_16s_C2_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx16s* tpxiMalloc_16s_C3_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx16s* tpxiMalloc_16s_C4_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx16s* tpxiMalloc_16s_AC4_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32s* tpxiMalloc_32s_C1_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32s* tpxiMalloc_32s_C2_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32s* tpxiMalloc_32s_C3_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32s* tpxiMalloc_32s_C4_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32s* tpxiMalloc_32s_AC4_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32f* tpxiMalloc_32f_C1_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32f* tpxiMalloc_32f_C2_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32f* tpxiMalloc_32f_C3_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32f* tpxiMalloc_32f_C4_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32f* tpxiMalloc_32f_AC4_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32sc* tpxiMalloc_32sc_C1_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32sc* tpxiMalloc_32sc_C2_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32sc* tpxiMalloc_32sc_C3_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32sc* tpxiMalloc_32sc_C4_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32sc* tpxiMalloc_32sc_AC4_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32fc* tpxiMalloc_32fc_C1_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32fc* tpxiMalloc_32fc_C2_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32fc* tpxiMalloc_32fc_C3_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32fc* tpxiMalloc_32fc_C4_L(long long widthPixels, long long heightPixels, long long* pStepBytes);
TPXAPI Tpx32fc* tpxiMalloc_32fc_AC4_L(long long widthPixels, long long heightPixels, long long* pStepBytes);

/* Releases a block of any tpxiMalloc_* member; null does nothing. */
TPXAPI void tpxiFree(void* ptr);

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_MEMORY_H */
