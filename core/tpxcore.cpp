// The core layer: aligned memory, the largest cache size, the cache line size and the one
// processor feature query. Nothing here holds mutable state; processor facts are read once.
#include "tpxcore.h"

#include <cpuid.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <initializer_list>

namespace {

constexpr std::size_t kAlign = 64;

void* AlignedBlock(long long length) {
  if (length < 1) return nullptr;
  // Round the request up so that aligned_alloc's size rule holds; never wraps here because
  // length is at most 2^63 - 1 and the round-up is done in unsigned arithmetic with a check.
  const unsigned long long n = static_cast<unsigned long long>(length);
  const unsigned long long rounded = (n + kAlign - 1) & ~static_cast<unsigned long long>(kAlign - 1);
  if (rounded < n || rounded > SIZE_MAX) return nullptr;
  return std::aligned_alloc(kAlign, static_cast<std::size_t>(rounded));
}

struct Regs {
  unsigned a = 0, b = 0, c = 0, d = 0;
};

bool Cpuid(unsigned leaf, unsigned sub, Regs* r) {
  if (__get_cpuid_max(leaf & 0x80000000u, nullptr) < leaf) return false;
  __cpuid_count(leaf, sub, r->a, r->b, r->c, r->d);
  return true;
}

// Walks the deterministic cache parameter leaf (4 on Intel, 0x8000001D on AMD) and returns
// the largest data or unified cache in bytes, or 0 where the leaf is absent.
long long LargestCacheFromCpuid() {
  Regs v;
  if (!Cpuid(0, 0, &v)) return 0;
  const bool amd = v.b == 0x68747541u;  // "Auth"enticAMD
  const unsigned leaf = amd ? 0x8000001Du : 4u;
  long long best = 0;
  for (unsigned sub = 0; sub < 16; ++sub) {
    Regs r;
    if (!Cpuid(leaf, sub, &r)) break;
    const unsigned type = r.a & 31u;
    if (type == 0) break;       // no more caches
    if (type == 2) continue;    // instruction cache
    const long long ways = ((r.b >> 22) & 0x3FFu) + 1;
    const long long parts = ((r.b >> 12) & 0x3FFu) + 1;
    const long long line = (r.b & 0xFFFu) + 1;
    const long long sets = static_cast<long long>(r.c) + 1;
    const long long bytes = ways * parts * line * sets;
    if (bytes > best) best = bytes;
  }
  return best;
}

long long LargestCacheFromOs() {
  long long best = 0;
  for (int name : {_SC_LEVEL1_DCACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL3_CACHE_SIZE,
                   _SC_LEVEL4_CACHE_SIZE}) {
    const long v = sysconf(name);
    if (v > best) best = v;
  }
  return best;
}

bool OsSavesState(unsigned long long xcr0Bits) {
  Regs r;
  if (!Cpuid(1, 0, &r) || !(r.c & (1u << 27))) return false;  // OSXSAVE
  unsigned lo = 0, hi = 0;
  __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
  const unsigned long long xcr0 = (static_cast<unsigned long long>(hi) << 32) | lo;
  return (xcr0 & xcr0Bits) == xcr0Bits;
}

unsigned long long Features() {
  unsigned long long f = 0;
  Regs r1, r7;
  if (!Cpuid(1, 0, &r1)) return 0;
  Cpuid(7, 0, &r7);
  if (r1.d & (1u << 26)) f |= TPX_FEATURE_SSE2;
  if (r1.c & (1u << 9)) f |= TPX_FEATURE_SSSE3;
  if (r1.c & (1u << 19)) f |= TPX_FEATURE_SSE41;
  if (r1.c & (1u << 20)) f |= TPX_FEATURE_SSE42;
  const bool ymm = OsSavesState(0x6);     // XMM and YMM state
  const bool zmm = OsSavesState(0xE6);    // plus opmask and both ZMM halves
  if (ymm && (r1.c & (1u << 28))) f |= TPX_FEATURE_AVX;
  if (ymm && (r7.b & (1u << 5))) f |= TPX_FEATURE_AVX2;
  if (ymm && (r1.c & (1u << 12))) f |= TPX_FEATURE_FMA;
  if (zmm && (r7.b & (1u << 16))) f |= TPX_FEATURE_AVX512F;
  return f;
}

}  // namespace

extern "C" {

void* tpxMalloc(int length) { return AlignedBlock(length); }

void* tpxMalloc_L(long long length) { return AlignedBlock(length); }

void tpxFree(void* ptr) { std::free(ptr); }

int tpxGetMaxCacheSizeB(int* pSizeBytes) {
  if (!pSizeBytes) return -1;
  // The answer is immutable for the life of the process; a function-local constant keeps the
  // processor from being asked again (each CPUID traps to the hypervisor on a VM).
  static const long long largest = [] {
    const long long c = LargestCacheFromCpuid();
    return c > 0 ? c : LargestCacheFromOs();
  }();
  if (largest <= 0) return -1;
  *pSizeBytes = largest > 0x7fffffff ? 0x7fffffff : static_cast<int>(largest);
  return 0;
}

int tpx_get_cache_line_size(int* pSizeBytes) {
  if (!pSizeBytes) return -1;
  Regs r;
  int line = 0;
  if (Cpuid(1, 0, &r)) line = static_cast<int>(((r.b >> 8) & 0xFFu) * 8u);  // CLFLUSH size
  *pSizeBytes = line > 0 ? line : 64;
  return 0;
}

int ownGetFeature(unsigned long long mask) {
  static const unsigned long long features = Features();
  return mask != 0 && (features & mask) == mask;
}

}  // extern "C"
