// Image allocators, the version record and the core layer.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <tuple>
#include <vector>

#include "tpxcore.h"
#include "tpxip.h"

namespace {

bool Aligned64(const void* p) { return (reinterpret_cast<std::uintptr_t>(p) & 63u) == 0; }

TEST(Version, RecordIsTheBuildsIdentity) {
  const TpxLibraryVersion* v = tpxiGetLibVersion();
  ASSERT_EQ(v, tpxiGetLibVersion());
  EXPECT_TRUE(v->major == 2022 && v->minor == 1 && v->majorBuild == 0 && v->build == 0xC8D62893u && !std::memcmp(v->targetCpu, "e9\0\0", 4));
  EXPECT_EQ(std::string(v->Name) + "|" + v->Version + "|" + v->BuildDate, "tpxIP AVX (e9)|2022.1.0 (r0xc8d62893)|Jan 30 2025");
}

// One table drives all 35 members and their _L twins.
struct Member {
  const char* name;
  int pixelBytes;
  void* (*m32)(int, int, int*);
  void* (*m64)(long long, long long, long long*);
};
#define TPX_MEMBER(T, L, PB)                                                                    \
  Member{"tpxiMalloc_" #T "_" #L, PB,                                                            \
         [](int w, int h, int* s) -> void* { return tpxiMalloc_##T##_##L(w, h, s); },            \
         [](long long w, long long h, long long* s) -> void* { return tpxiMalloc_##T##_##L##_L(w, h, s); }}
#define TPX_MEMBERS(T, S) \
  TPX_MEMBER(T, C1, S), TPX_MEMBER(T, C2, 2 * S), TPX_MEMBER(T, C3, 3 * S), TPX_MEMBER(T, C4, 4 * S), \
      TPX_MEMBER(T, AC4, 4 * S)
const Member kMembers[] = {TPX_MEMBERS(8u, 1),  TPX_MEMBERS(16u, 2), TPX_MEMBERS(16s, 2), TPX_MEMBERS(32s, 4),
                           TPX_MEMBERS(32f, 4), TPX_MEMBERS(32sc, 8), TPX_MEMBERS(32fc, 8)};

TEST(Malloc, EveryMemberPadsRowsTo64AndWritesTheStepAsFarAsItCame) {
  for (const Member& m : kMembers) {
    SCOPED_TRACE(m.name);
    for (int w : {1, 2, 15, 16, 17, 63, 64, 65, 1000}) {
      int step = -1;
      long long stepL = -1;
      void *p = m.m32(w, 3, &step), *q = m.m64(w, 3, &stepL);
      ASSERT_TRUE(p && q && Aligned64(p) && Aligned64(q));
      EXPECT_TRUE(step == (w * m.pixelBytes + 63) / 64 * 64 && stepL == step) << w;
      std::memset(p, 0x5A, static_cast<std::size_t>(step) * 3);  // the whole block is usable
      tpxiFree(p);
      tpxiFree(q);
    }
    EXPECT_TRUE(!m.m32(8, 8, nullptr) && !m.m64(8, 8, nullptr));
    for (auto [w, h] : {std::pair{0, 5}, {5, 0}, {-1, 5}, {5, -7}}) {  // bad extents: step reset to 0
      int step = 1234;
      long long stepL = 1234;
      EXPECT_TRUE(!m.m32(w, h, &step) && !m.m64(w, h, &stepL) && step + stepL == 0) << w << "x" << h;
    }
    int step = 1234;  // a row that cannot be held in 31 bits: refused with the step still 0
    if (m.pixelBytes > 1) EXPECT_TRUE(!m.m32(0x7fffffff / m.pixelBytes + 1, 1, &step) && step == 0);
    EXPECT_EQ(m.m32(0x10000 / m.pixelBytes, 0x10000, &step), nullptr);  // pitch known, total too large
    EXPECT_EQ(step, 0x10000);
  }
}

TEST(Malloc, WidestRowsAndLongForms) {
  int step = 0;
  // A pitch of 0x80000000 passes the round-up test and is written; the total is refused.
  for (auto [w, c3, want] : {std::tuple{0x7fffffff, false, 0x80000000u}, {715827883, true, 0u}, {715827882, true, 0x80000000u}}) {
    EXPECT_EQ(c3 ? tpxiMalloc_8u_C3(w, 1, &step) : tpxiMalloc_8u_C1(w, 1, &step), nullptr);
    EXPECT_EQ(static_cast<unsigned>(step), want) << w;
  }
  long long stepL = 0;
  EXPECT_EQ(tpxiMalloc_8u_C1(0x10000, 40000, &step), nullptr);  // 2.5 GiB: the long form only
  void* p = tpxiMalloc_8u_C1_L(0x10000, 40000, &stepL);
  EXPECT_TRUE(step == 0x10000 && stepL == 0x10000 && Aligned64(p));
  tpxiFree(p);
  // {width, height, pixel bytes, step written}: a pitch past 63 bits or a row past a signed
  // 64-bit count leaves 0; both high halves set, one set and still too large, and the
  // allocator's own refusal leave the pitch.
  const long long cases[][4] = {{0x7fffffffffffffffLL, 1, 1, 0}, {0x100000000LL, 0x100000000LL, 1, 0x100000000LL},
                                {0x4000000000000000LL, 2, 1, 0x4000000000000000LL}, {0x40000000, 0x40000000, 1, 0x40000000},
                                {0x7fffffffffffffffLL / 12 + 1, 1, 12, 0}};
  for (auto& c : cases) {
    stepL = 5;
    EXPECT_EQ(c[2] == 1 ? static_cast<void*>(tpxiMalloc_8u_C1_L(c[0], c[1], &stepL)) : tpxiMalloc_32f_C3_L(c[0], c[1], &stepL), nullptr);
    EXPECT_EQ(stepL, c[3]) << c[0];
  }
}

TEST(CoreLayer, AllocatorsAndProcessorFacts) {
  for (int n : {1, 63, 64, 65, 4096})
    for (void* p : {tpxMalloc(n), tpxMalloc_L(n)}) {
      EXPECT_TRUE(p && Aligned64(p));
      tpxFree(p);
    }
  for (long long n : {0LL, -5LL, 0x7fffffffffffffffLL}) EXPECT_EQ(tpxMalloc_L(n), nullptr);
  EXPECT_EQ(tpxMalloc(0), nullptr);
  EXPECT_EQ(tpxMalloc(-5), nullptr);
  tpxFree(nullptr);
  tpxiFree(nullptr);
  int cache = 0, cache2 = 0, line = 0;
  EXPECT_EQ(tpxGetMaxCacheSizeB(&cache), 0);
  tpxGetMaxCacheSizeB(&cache2);
  EXPECT_TRUE(cache >= 32 * 1024 && cache == cache2) << cache;
  EXPECT_EQ(tpx_get_cache_line_size(&line), 0);
  EXPECT_TRUE(line == 32 || line == 64 || line == 128) << line;
  // This build needs AVX; an empty mask or a bit no feature stands for finds nothing.
  EXPECT_NE(ownGetFeature(TPX_FEATURE_AVX), 0);
  EXPECT_NE(ownGetFeature(TPX_FEATURE_SSE2 | TPX_FEATURE_AVX), 0);
  EXPECT_EQ(ownGetFeature(0) | ownGetFeature(1ULL << 63), 0);
}

}  // namespace
