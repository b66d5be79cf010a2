// The one row copy and the one row fill of the library, plain and streaming, and the
// two-stage test that chooses streaming (non-temporal) stores for large images.
#pragma once
#include <immintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/isa.h"
#include "tpxcore.h"

namespace tpx {

// ---- When to stream -------------------------------------------------------------------------
// The query, injectable so that tests can drive both paths on small images.
using CacheSizeQuery = int (*)(int* pSizeBytes);

// Stage 1: an amount below the family's floor keeps plain stores and asks nothing.
// Stage 2: otherwise ask for the largest cache; stream if the query succeeded and the amount is
// at least the reported size. The amount is in the family's own unit (samples or pixels).
inline bool ChooseStreaming(long long amount, long long floor,
                            CacheSizeQuery query = tpxGetMaxCacheSizeB) {
  if (amount < floor) return false;
  int cache = 0;
  if (query(&cache) != 0) return false;
  return amount >= cache;
}

// Streaming stores are weakly ordered: a call that used them ends on this fence.
inline void StreamFence() { _mm_sfence(); }

// ---- Row copy -----------------------------------------------------------------------------
// Plain copies of at least this many bytes are one string move (rep movsb): on cores with fast
// string moves it writes whole lines without reading them first, which on rows that run out of
// the L2 is worth about a tenth over vector stores; below it the vector loop is as fast or
// faster.
// Sanitizer builds keep the vector loop, whose accesses they can check; the bytes are the same.
inline constexpr std::size_t kCopyStringMinBytes = 2048;

inline void CopyString(const unsigned char* s, unsigned char* d, std::size_t n) {
  asm volatile("rep movsb" : "+D"(d), "+S"(s), "+c"(n) : : "memory");
}

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kCopyStringAllowed = false;
#else
inline constexpr bool kCopyStringAllowed = true;
#endif

// d[0, n) = s[0, n) in bytes. n >= 0; s and d must not overlap. Long plain rows: one string
// move. Otherwise V = 32 bytes, unrolled by 4, stores aligned to d after a plain head; tail:
// overlapping last vector where n >= 32, scalar bytes below that. kStream writes the aligned
// vectors with non-temporal stores (head and tail plain); the caller fences.
template <Isa kI, bool kStream = false>
inline void CopyBytes(const void* src, void* dst, std::size_t n) {
  const auto* s = static_cast<const unsigned char*>(src);
  auto* d = static_cast<unsigned char*>(dst);
  if constexpr (kI == Isa::kScalar) {
    for (std::size_t i = 0; i < n; ++i) d[i] = s[i];
  } else {
    if (n < 32) {
      std::memcpy(d, s, n);
      return;
    }
    if (!kStream && kCopyStringAllowed && n >= kCopyStringMinBytes) {
      CopyString(s, d, n);
      return;
    }
    auto load = [s](std::size_t k) { return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(s + k)); };
    auto store = [d](std::size_t k, __m256i v) {
      if constexpr (kStream)
        _mm256_stream_si256(reinterpret_cast<__m256i*>(d + k), v);
      else
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(d + k), v);
    };
    // A plain head up to a 32-byte boundary of d: from there no store splits a cache line,
    // which on rows at odd offsets (border interiors, padded images) is worth a third.
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(d), load(0));
    std::size_t i = (0u - reinterpret_cast<std::uintptr_t>(d)) & 31u;
    for (; i + 128 <= n; i += 128) {
      const __m256i a = load(i), b = load(i + 32), c = load(i + 64), e = load(i + 96);
      store(i, a);
      store(i + 32, b);
      store(i + 64, c);
      store(i + 96, e);
    }
    for (; i + 32 <= n; i += 32) store(i, load(i));
    if (i < n)
      _mm256_storeu_si256(reinterpret_cast<__m256i*>(d + n - 32),
                          _mm256_loadu_si256(reinterpret_cast<const __m256i*>(s + n - 32)));
  }
}

// ---- Row fill -----------------------------------------------------------------------------
// A fill pattern of 1 to 32 bytes (a sample, or a C3/C4 pixel of any type), expanded once per
// call into a block whose length is a multiple of both 32 and the pattern, so that the store
// loop never shifts data. Pattern lengths that are not a divisor of 96 or 64 are not used.
struct FillPattern {
  alignas(32) unsigned char block[96 + 32];
  int patternBytes;
  int blockBytes;  // 32, 64 or 96

  FillPattern(const void* pattern, int bytes) : patternBytes(bytes) {
    blockBytes = (32 % bytes == 0) ? 32 : (64 % bytes == 0) ? 64 : 96;
    const auto* p = static_cast<const unsigned char*>(pattern);
    for (int i = 0; i < static_cast<int>(sizeof(block)); ++i) block[i] = p[i % bytes];
  }
};

// Fills n bytes of d, which starts at phase 0 of the pattern; n is a multiple of the pattern
// length. V = 32 bytes. Tail: scalar bytes. kStream: plain head up to a 32-byte boundary of d,
// then non-temporal stores; the caller fences.
template <Isa kI, bool kStream = false>
inline void FillBytes(void* dst, std::size_t n, const FillPattern& pat) {
  auto* d = static_cast<unsigned char*>(dst);
  const std::size_t pb = static_cast<std::size_t>(pat.patternBytes);
  if constexpr (kI == Isa::kScalar) {
    for (std::size_t i = 0; i < n; ++i) d[i] = pat.block[i % pb];
  } else {
    std::size_t i = 0;
    if constexpr (kStream) {
      const std::size_t head = (0u - reinterpret_cast<std::uintptr_t>(d)) & 31u;
      for (; i < head && i < n; ++i) d[i] = pat.block[i % pb];
    }
    // Byte i of d holds block[i % blockBytes]; 32 bytes from there are still inside block.
    const std::size_t bb = static_cast<std::size_t>(pat.blockBytes);
    auto at = [&pat, bb](std::size_t k) {
      return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(pat.block + k % bb));
    };
    auto store = [d](std::size_t k, __m256i v) {
      if constexpr (kStream)
        _mm256_stream_si256(reinterpret_cast<__m256i*>(d + k), v);
      else
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(d + k), v);
    };
    const __m256i v0 = at(i), v1 = at(i + 32), v2 = at(i + 64);
    if (bb == 96) {
      for (; i + 96 <= n; i += 96) { store(i, v0); store(i + 32, v1); store(i + 64, v2); }
    } else {  // 32 or 64: a step of 128 keeps the phase, and v2 equals v0
      const __m256i v3 = at(i + 96);
      for (; i + 128 <= n; i += 128) { store(i, v0); store(i + 32, v1); store(i + 64, v2); store(i + 96, v3); }
    }
    for (; i + 32 <= n; i += 32) store(i, at(i));
    for (; i < n; ++i) d[i] = pat.block[i % pb];
  }
}

}  // namespace tpx
