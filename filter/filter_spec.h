// The general filter's spec record, written by Init into caller memory at the next 64-byte
// boundary. The header is followed by the kernel copy (fully reversed: element n holds the
// caller's element N-1-n), then by the pair table (integer kinds) or the user-order float
// kernel (float kinds). Pointers in the header are informative: run code recomputes every
// address from the record's own position, so a byte copy to a block of the same alignment
// modulo 64 stays valid.
#pragma once
#include <cstddef>
#include <cstdint>

#include "core/align.h"
#include "tpxip/types.h"

namespace tpx::filter {

enum Kind : std::uint32_t {
  kKind8u16s = 0,   // 8u data, 16-bit integer kernel with a divisor
  kKind16s16s = 1,  // 16s data, 16-bit integer kernel with a divisor
  kKind8u32f = 3,
  kKind16s32f = 4,
  kKind16u32f = 5,
  kKind32f = 6,
  kKind64f = 7,
};

enum DivKind : std::uint32_t { kDivOne = 0, kDivPow2 = 1, kDivOther = 2 };

// Bit 4 of roundMode (the value 16) asks for the accurate finaliser of the integer kinds.
inline constexpr std::uint32_t kRoundAccurate = 16;

struct FilterBorderSpec {
  std::uint32_t kind;
  std::int32_t kernelWidth, kernelHeight;
  std::uint32_t divKind;
  std::uint32_t shift;
  std::uint32_t half;
  float scale;
  float divisorScaled;
  std::int32_t divisor;
  double divisorD;
  std::uint32_t shiftMask;
  float divisorF;
  std::uint32_t roundMode;
  std::int32_t offset;
  float offsetF;
  std::int32_t hint;
  const void* kernel16;
  const void* kernelF;
  const void* kernel64;
  const Tpx16s* pairTable;
  const float* kernelAlt;
  std::uint32_t pairTableValid;
  std::int32_t numChannels;
};

// The header occupies this many bytes; the kernel copy starts right after it.
inline constexpr std::size_t kSpecHeaderBytes = 128;
static_assert(sizeof(FilterBorderSpec) <= kSpecHeaderBytes, "spec header must fit its slot");

inline std::size_t Align64(std::size_t v) { return (v + 63) & ~std::size_t(63); }

// Addresses inside a record, from the record's own position.
inline unsigned char* KernelArea(FilterBorderSpec* s) {
  return reinterpret_cast<unsigned char*>(s) + kSpecHeaderBytes;
}
inline const unsigned char* KernelArea(const FilterBorderSpec* s) {
  return reinterpret_cast<const unsigned char*>(s) + kSpecHeaderBytes;
}
// The table area follows the kernel copy, whose elements are elemBytes wide.
inline std::size_t TableOffset(const FilterBorderSpec* s, std::size_t elemBytes) {
  return kSpecHeaderBytes +
         Align64(static_cast<std::size_t>(s->kernelWidth) * s->kernelHeight * elemBytes);
}

inline FilterBorderSpec* SpecAt(void* block) { return AlignUp64<FilterBorderSpec>(block); }
inline const FilterBorderSpec* SpecAt(const void* block) {
  return AlignUp64<FilterBorderSpec>(block);
}

// Element size of the kernel copy a kind keeps: 16-bit for the integer kinds, float for the
// float kinds, double for 64f.
inline std::size_t KernelElemBytes(std::uint32_t kind) {
  return kind <= kKind16s16s ? 2 : kind == kKind64f ? 8 : 4;
}

// The reaches of a kernel: the anchor is ((kw - 1) >> 1, (kh - 1) >> 1), so even sizes have
// one more neighbour to the right or below.
struct Reach {
  int left, top, right, bottom;
};
inline Reach KernelReach(int kw, int kh) {
  const int ax = (kw - 1) >> 1, ay = (kh - 1) >> 1;
  return {ax, ay, kw - 1 - ax, kh - 1 - ay};
}

}  // namespace tpx::filter
