// Specs and work buffers start at the next 64-byte boundary of the caller's block; every
// size formula carries the slack for it.
#pragma once
#include <cstdint>

namespace tpx {

inline std::uintptr_t AlignSlack64(const void* p) {
  return (0u - reinterpret_cast<std::uintptr_t>(p)) & 63u;
}
template <class T>
inline T* AlignUp64(void* p) {
  return reinterpret_cast<T*>(static_cast<unsigned char*>(p) + AlignSlack64(p));
}
template <class T>
inline const T* AlignUp64(const void* p) {
  return reinterpret_cast<const T*>(static_cast<const unsigned char*>(p) + AlignSlack64(p));
}

}  // namespace tpx
