// Image allocators, the version record and the core layer.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>

#include "tpxcore.h"
#include "tpxip.h"

namespace {

bool Aligned64(const void* p) { return (reinterpret_cast<std::uintptr_t>(p) & 63u) == 0; }

TEST(Version, RecordIsTheBuildsIdentity) {
  const TpxLibraryVersion* v = tpxiGetLibVersion();
  ASSERT_NE(v, nullptr);
  EXPECT_EQ(v, tpxiGetLibVersion());
  EXPECT_EQ(v->major, 2022);
  EXPECT_EQ(v->minor, 1);
  EXPECT_EQ(v->majorBuild, 0);
  EXPECT_EQ(v->build, 0xC8D62893u);
  EXPECT_EQ(0, std::memcmp(v->targetCpu, "e9\0\0", 4));
  EXPECT_STREQ(v->Name, "tpxIP AVX (e9)");
  EXPECT_STREQ(v->Version, "2022.1.0 (r0xc8d62893)");
  EXPECT_STREQ(v->BuildDate, "Jan 30 2025");
}

// Each member's pixel size, so that one table drives all 35 and their _L twins.
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
const Member kMembers[] = {TPX_MEMBERS(8u, 1),  TPX_MEMBERS(16u, 2), TPX_MEMBERS(16s, 2),
                           TPX_MEMBERS(32s, 4), TPX_MEMBERS(32f, 4), TPX_MEMBERS(32sc, 8),
                           TPX_MEMBERS(32fc, 8)};

TEST(Malloc, AllMembersPadRowsTo64AndAlign) {
  for (const Member& m : kMembers) {
    SCOPED_TRACE(m.name);
    for (int w : {1, 2, 15, 16, 17, 63, 64, 65, 1000}) {
      int step = -1;
      void* p = m.m32(w, 3, &step);
      ASSERT_NE(p, nullptr);
      const int row = w * m.pixelBytes;
      EXPECT_EQ(step, (row + 63) / 64 * 64) << "w=" << w;
      EXPECT_TRUE(Aligned64(p));
      std::memset(p, 0x5A, static_cast<std::size_t>(step) * 3);  // the whole block is usable
      tpxiFree(p);

      long long stepL = -1;
      void* q = m.m64(w, 3, &stepL);
      ASSERT_NE(q, nullptr);
      EXPECT_EQ(stepL, (row + 63) / 64 * 64);
      EXPECT_TRUE(Aligned64(q));
      tpxiFree(q);
    }
  }
}

TEST(Malloc, SmallestImages) {
  int step = 0;
  void* p = tpxiMalloc_8u_C1(1, 1, &step);
  ASSERT_NE(p, nullptr);
  EXPECT_EQ(step, 64);
  tpxiFree(p);
  p = tpxiMalloc_8u_C1(65, 1, &step);
  ASSERT_NE(p, nullptr);
  EXPECT_EQ(step, 128);
  tpxiFree(p);
}

TEST(Malloc, StepRecordsHowFarTheAllocationCame) {
  for (const Member& m : kMembers) {
    SCOPED_TRACE(m.name);
    EXPECT_EQ(m.m32(8, 8, nullptr), nullptr);
    EXPECT_EQ(m.m64(8, 8, nullptr), nullptr);
    // Bad extents: the step is reset to 0 before they are tested.
    for (auto wh : {std::pair<int, int>{0, 5}, {5, 0}, {-1, 5}, {5, -7}}) {
      int step = 1234;
      EXPECT_EQ(m.m32(wh.first, wh.second, &step), nullptr);
      EXPECT_EQ(step, 0);
      long long stepL = 1234;
      EXPECT_EQ(m.m64(wh.first, wh.second, &stepL), nullptr);
      EXPECT_EQ(stepL, 0);
    }
    // A width whose row cannot be held in 31 bits: refused with the step still 0.
    if (m.pixelBytes > 1) {
      int step = 1234;
      EXPECT_EQ(m.m32(0x7fffffff / m.pixelBytes + 1, 1, &step), nullptr);
      EXPECT_EQ(step, 0);
    }
    // The pitch is known, the total is too large: the step stays written.
    int step = 0;
    EXPECT_EQ(m.m32(0x10000 / m.pixelBytes, 0x10000, &step), nullptr);
    EXPECT_EQ(step, 0x10000);
  }
}

TEST(Malloc, WidestRowsOf32BitMembers) {
  int step = 0;
  // The rounded pitch 0x80000000 passes the round-up test and is written; as a product with
  // the height it exceeds the limit.
  EXPECT_EQ(tpxiMalloc_8u_C1(0x7fffffff, 1, &step), nullptr);
  EXPECT_EQ(static_cast<unsigned>(step), 0x80000000u);
  step = 77;
  EXPECT_EQ(tpxiMalloc_8u_C3(715827883, 1, &step), nullptr);
  EXPECT_EQ(step, 0);
  // 715827882 * 3 = 0x7ffffffe fits a row: the pitch rounds to 0x80000000 and is written.
  EXPECT_EQ(tpxiMalloc_8u_C3(715827882, 1, &step), nullptr);
  EXPECT_EQ(static_cast<unsigned>(step), 0x80000000u);
}

TEST(Malloc, LongFormsPassThe32BitLimits) {
  long long step = 0;
  // 64 KiB x 40000 rows = 2.5 GiB: refused by the 32-bit form, allowed here.
  int step32 = 0;
  EXPECT_EQ(tpxiMalloc_8u_C1(0x10000, 40000, &step32), nullptr);
  EXPECT_EQ(step32, 0x10000);
  void* p = tpxiMalloc_8u_C1_L(0x10000, 40000, &step);
  EXPECT_EQ(step, 0x10000);
  if (p) {
    EXPECT_TRUE(Aligned64(p));
    tpxiFree(p);
  }
  // A pitch that overflows 63 bits rounds to 0 and is refused before it is written.
  step = 5;
  EXPECT_EQ(tpxiMalloc_8u_C1_L(0x7fffffffffffffffLL, 1, &step), nullptr);
  EXPECT_EQ(step, 0);
  // A row too wide for a signed 64-bit count of bytes.
  step = 5;
  EXPECT_EQ(tpxiMalloc_32f_C3_L(0x7fffffffffffffffLL / 12 + 1, 1, &step), nullptr);
  EXPECT_EQ(step, 0);
  // Both high halves set: the product cannot fit; the pitch stays written.
  EXPECT_EQ(tpxiMalloc_8u_C1_L(0x100000000LL, 0x100000000LL, &step), nullptr);
  EXPECT_EQ(step, 0x100000000LL);
  // Only one high half set, and still too large for 63 bits.
  EXPECT_EQ(tpxiMalloc_8u_C1_L(0x4000000000000000LL, 2, &step), nullptr);
  EXPECT_EQ(step, 0x4000000000000000LL);
  // Large enough to be refused by the allocator itself: the step is written.
  EXPECT_EQ(tpxiMalloc_8u_C1_L(0x40000000, 0x40000000, &step), nullptr);
  EXPECT_EQ(step, 0x40000000);
}

TEST(Malloc, FreeTakesNull) { tpxiFree(nullptr); }

TEST(CoreLayer, AllocatorsAlignAndRefuseNonPositiveCounts) {
  for (int n : {1, 63, 64, 65, 4096}) {
    void* p = tpxMalloc(n);
    ASSERT_NE(p, nullptr);
    EXPECT_TRUE(Aligned64(p));
    tpxFree(p);
    p = tpxMalloc_L(n);
    ASSERT_NE(p, nullptr);
    EXPECT_TRUE(Aligned64(p));
    tpxFree(p);
  }
  EXPECT_EQ(tpxMalloc(0), nullptr);
  EXPECT_EQ(tpxMalloc(-5), nullptr);
  EXPECT_EQ(tpxMalloc_L(0), nullptr);
  EXPECT_EQ(tpxMalloc_L(-1), nullptr);
  EXPECT_EQ(tpxMalloc_L(0x7fffffffffffffffLL), nullptr);
  tpxFree(nullptr);
}

TEST(CoreLayer, ProcessorFacts) {
  int cache = 0;
  EXPECT_EQ(tpxGetMaxCacheSizeB(&cache), 0) << "this machine's caches are described by CPUID";
  EXPECT_GE(cache, 32 * 1024);
  int cache2 = 0;
  tpxGetMaxCacheSizeB(&cache2);
  EXPECT_EQ(cache, cache2);
  int line = 0;
  EXPECT_EQ(tpx_get_cache_line_size(&line), 0);
  EXPECT_TRUE(line == 32 || line == 64 || line == 128) << line;
  // This build needs AVX, so the query must find it; an empty mask asks for nothing.
  EXPECT_NE(ownGetFeature(TPX_FEATURE_AVX), 0);
  EXPECT_NE(ownGetFeature(TPX_FEATURE_SSE2 | TPX_FEATURE_AVX), 0);
  EXPECT_EQ(ownGetFeature(0), 0);
  EXPECT_EQ(ownGetFeature(1ULL << 63), 0);  // a bit no feature stands for
}

}  // namespace
