// Image allocators: one definition over sample size and channel count, instantiated for the
// 35 members and their _L twins. Rows are padded to a multiple of 64 bytes.
#include <cstdint>

#include "core/export.h"
#include "core/layout.h"
#include "tpxcore.h"

namespace tpx {
namespace {

// 32-bit form. The step is written as far as the algorithm came: 0 for bad extents, the pitch
// once it is known, even where the allocation then fails.
template <class T, Layout kL>
T* MallocImage(int widthPixels, int heightPixels, int* pStepBytes) {
  if (!pStepBytes) return nullptr;
  *pStepBytes = 0;
  if (widthPixels < 1 || heightPixels < 1) return nullptr;
  constexpr std::uint32_t kPixelBytes = sizeof(T) * Stride(kL);  // AC4 counts four channels
  // A wider pixel first refuses a width whose row would not fit in a signed 32-bit count.
  if (kPixelBytes > 1 && static_cast<std::uint32_t>(widthPixels) > 0x7fffffffu / kPixelBytes)
    return nullptr;
  const std::uint32_t rowBytes = static_cast<std::uint32_t>(widthPixels) * kPixelBytes;
  const std::uint32_t step = (rowBytes + 63u) & ~63u;
  if (step < rowBytes) return nullptr;
  *pStepBytes = static_cast<int>(step);  // 0x80000000 reads back negative; see the next test
  const std::uint64_t total = static_cast<std::uint64_t>(step) * static_cast<std::uint64_t>(heightPixels);
  if (total > 0x7fffffffu) return nullptr;
  return static_cast<T*>(tpxMalloc(static_cast<int>(total)));
}

// 64-bit form: the same steps with the pitch masked to 63 bits, and the total tested on the
// high halves of both operands before the product is formed.
template <class T, Layout kL>
T* MallocImageL(long long widthPixels, long long heightPixels, long long* pStepBytes) {
  if (!pStepBytes) return nullptr;
  *pStepBytes = 0;
  if (widthPixels < 1 || heightPixels < 1) return nullptr;
  constexpr std::uint64_t kPixelBytes = sizeof(T) * Stride(kL);
  if (kPixelBytes > 1 && static_cast<std::uint64_t>(widthPixels) > 0x7fffffffffffffffull / kPixelBytes)
    return nullptr;
  const std::uint64_t rowBytes = static_cast<std::uint64_t>(widthPixels) * kPixelBytes;
  const std::uint64_t step = (rowBytes + 63u) & 0x7fffffffffffffc0ull;
  if (step < rowBytes) return nullptr;
  *pStepBytes = static_cast<long long>(step);
  const std::uint64_t h = static_cast<std::uint64_t>(heightPixels);
  if ((step >> 32) != 0 && (h >> 32) != 0) return nullptr;  // both high halves set: too large
  unsigned __int128 total = static_cast<unsigned __int128>(step) * h;
  if (total > 0x7fffffffffffffffull) return nullptr;
  return static_cast<T*>(tpxMalloc_L(static_cast<long long>(total)));
}

}  // namespace
}  // namespace tpx

#define TPX_DEFINE_MALLOC(T, L)                                                                  \
  TPX_API Tpx##T* tpxiMalloc_##T##_##L(int widthPixels, int heightPixels, int* pStepBytes) {     \
    return tpx::MallocImage<Tpx##T, tpx::Layout::L>(widthPixels, heightPixels, pStepBytes);      \
  }                                                                                              \
  TPX_API Tpx##T* tpxiMalloc_##T##_##L##_L(long long widthPixels, long long heightPixels,        \
                                           long long* pStepBytes) {                              \
    return tpx::MallocImageL<Tpx##T, tpx::Layout::L>(widthPixels, heightPixels, pStepBytes);     \
  }
#define TPX_MALLOC_LAYOUTS(T) \
  TPX_DEFINE_MALLOC(T, C1) TPX_DEFINE_MALLOC(T, C2) TPX_DEFINE_MALLOC(T, C3) \
  TPX_DEFINE_MALLOC(T, C4) TPX_DEFINE_MALLOC(T, AC4)

TPX_MALLOC_LAYOUTS(8u)
TPX_MALLOC_LAYOUTS(16u)
TPX_MALLOC_LAYOUTS(16s)
TPX_MALLOC_LAYOUTS(32s)
TPX_MALLOC_LAYOUTS(32f)
TPX_MALLOC_LAYOUTS(32sc)
TPX_MALLOC_LAYOUTS(32fc)

TPX_API void tpxiFree(void* ptr) { tpxFree(ptr); }
