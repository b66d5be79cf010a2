// Per-channel arguments of the decision families: a sample by value in C1 members, a pointer to
// one entry a channel in C3, C4 and AC4 members (AC4 reads three entries).
#pragma once
#include <type_traits>

#include "core/layout.h"

namespace tpx {

template <class T, Layout kL>
using ChannelArg = std::conditional_t<kL == Layout::C1, T, const T*>;

// For the pointer checks: the pointer itself, or a non-null stand-in for a by-value sample.
template <class A>
inline const void* ArgPtr(A a) {
  if constexpr (std::is_pointer_v<A>) {
    return a;
  } else {
    static const char kByValue = 0;
    return &kByValue;
  }
}

// Entry c of a per-channel argument (c < Processed(kL)).
template <class T, Layout kL>
inline T ArgAt(ChannelArg<T, kL> a, int c) {
  if constexpr (kL == Layout::C1) {
    (void)c;
    return a;
  } else {
    return a[c];
  }
}

}  // namespace tpx
