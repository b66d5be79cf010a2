/* tpxcore: the small layer beneath tpxIP that supplies aligned memory and processor facts. */
#ifndef TPXCORE_H
#define TPXCORE_H
#if defined(__GNUC__)
#define TPXCORE_API __attribute__((visibility("default")))
#else
#define TPXCORE_API
#endif
#ifdef __cplusplus
extern "C" {
#endif

/* Memory aligned at 64 bytes, or null on failure or for a count below 1. */
TPXCORE_API void* tpxMalloc(int length);
TPXCORE_API void* tpxMalloc_L(long long length);
/* Releases a block of either allocator; null does nothing. */
TPXCORE_API void tpxFree(void* ptr);

/* Writes the size in bytes of the largest cache and returns 0; non-zero means unknown. */
TPXCORE_API int tpxGetMaxCacheSizeB(int* pSizeBytes);
/* Writes the cache line size in bytes and returns 0 (64 where the processor does not say). */
TPXCORE_API int tpx_get_cache_line_size(int* pSizeBytes);

/* Feature bits for ownGetFeature. A mask with several bits asks for all of them. Each bit
   counts only where the operating system has enabled the register state it needs. */
#define TPX_FEATURE_SSE2     0x00000001ULL
#define TPX_FEATURE_SSSE3    0x00000004ULL
#define TPX_FEATURE_SSE41    0x00000008ULL
#define TPX_FEATURE_SSE42    0x00000010ULL
#define TPX_FEATURE_AVX      0x00000100ULL
#define TPX_FEATURE_AVX2     0x00008000ULL
#define TPX_FEATURE_FMA      0x00010000ULL
/* 0x8000000 is AVX-512 Foundation: the processor has it and the OS saves ZMM and mask state.
   The filter family sizes its 8u-with-32f-kernel buffer for 512-bit rows where it is present. */
#define TPX_FEATURE_AVX512F  0x08000000ULL

/* Non-zero if the processor has every feature of the mask. */
TPXCORE_API int ownGetFeature(unsigned long long mask);

#ifdef __cplusplus
}
#endif
#endif /* TPXCORE_H */
