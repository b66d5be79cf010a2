// This machine's memory bandwidth for the patterns the families have: copy, read, and two
// reads with one write, each over the same number of bytes as the case it is compared with.
#include <immintrin.h>

#include <cstdlib>
#include <cstring>
#include <set>
#include <string>
#include <utility>

#include "harness.h"

namespace tpxbench {
namespace {

std::set<std::pair<int, long long>>& Needed() {
  static std::set<std::pair<int, long long>> needed;
  return needed;
}

struct Buffers {
  explicit Buffers(long long n) : n(n) {
    for (auto*& p : buf) {
      p = static_cast<unsigned char*>(std::aligned_alloc(64, (n + 63) / 64 * 64));
      std::memset(p, 1, n);
    }
  }
  ~Buffers() {
    for (auto* p : buf) std::free(p);
  }
  long long n;
  unsigned char* buf[3];
};

void Copy(const unsigned char* s, unsigned char* d, long long n) {
  long long i = 0;
  for (; i + 128 <= n; i += 128)
    for (int k = 0; k < 128; k += 32)
      _mm256_store_si256(reinterpret_cast<__m256i*>(d + i + k),
                         _mm256_load_si256(reinterpret_cast<const __m256i*>(s + i + k)));
  for (; i < n; ++i) d[i] = s[i];
}

int Read(const unsigned char* s, long long n) {
  __m256 acc0 = _mm256_setzero_ps(), acc1 = acc0, acc2 = acc0, acc3 = acc0;
  long long i = 0;
  for (; i + 128 <= n; i += 128) {
    acc0 = _mm256_or_ps(acc0, _mm256_load_ps(reinterpret_cast<const float*>(s + i)));
    acc1 = _mm256_or_ps(acc1, _mm256_load_ps(reinterpret_cast<const float*>(s + i + 32)));
    acc2 = _mm256_or_ps(acc2, _mm256_load_ps(reinterpret_cast<const float*>(s + i + 64)));
    acc3 = _mm256_or_ps(acc3, _mm256_load_ps(reinterpret_cast<const float*>(s + i + 96)));
  }
  int r = _mm256_movemask_ps(_mm256_or_ps(_mm256_or_ps(acc0, acc1), _mm256_or_ps(acc2, acc3)));
  for (; i < n; ++i) r |= s[i];
  return r;
}

void TwoReadsOneWrite(const unsigned char* a, const unsigned char* b, unsigned char* d, long long n) {
  long long i = 0;
  for (; i + 32 <= n; i += 32) {
    const __m256 x = _mm256_load_ps(reinterpret_cast<const float*>(a + i));
    const __m256 y = _mm256_load_ps(reinterpret_cast<const float*>(b + i));
    _mm256_store_ps(reinterpret_cast<float*>(d + i), _mm256_or_ps(x, y));
  }
  for (; i < n; ++i) d[i] = a[i] | b[i];
}

const char* KindName(int k) { return k == 1 ? "copy" : k == 2 ? "read" : "r2w1"; }

}  // namespace

void NeedBaseline(Bw kind, long long streamBytes) {
  if (streamBytes > 0) Needed().insert({static_cast<int>(kind), streamBytes});
}

// Called by main after every case has registered.
void RegisterBaselines() {
  for (auto [kind, bytes] : Needed()) {
    const std::string name = std::string("BW/") + KindName(kind) + "/" + std::to_string(bytes);
    benchmark::RegisterBenchmark(name.c_str(), [kind = kind, bytes = bytes](benchmark::State& st) {
      Buffers b(bytes);
      int sink = 0;
      for (auto _ : st) {
        if (kind == 1) Copy(b.buf[0], b.buf[1], bytes);
        if (kind == 2) sink += Read(b.buf[0], bytes);
        if (kind == 3) TwoReadsOneWrite(b.buf[0], b.buf[1], b.buf[2], bytes);
        benchmark::ClobberMemory();
      }
      benchmark::DoNotOptimize(sink);
      const int streams = kind == 1 ? 2 : kind == 2 ? 1 : 3;
      st.SetBytesProcessed(st.iterations() * bytes * streams);
    })->Unit(benchmark::kMicrosecond);
  }
}

}  // namespace tpxbench
