// Fills one scratch strip of the border engine through the shared border rows: the source
// rectangle is copied into the middle of a packed image and the margins are made by the border
// rule (1 replicate, 3 mirror, 6 constant), in the order every border copy keeps: each source
// row with its sides, then the rows below, then the rows above.
#pragma once
#include <cstddef>
#include <optional>

#include "core/border_type.h"
#include "core/layout.h"
#include "data/border_rows.h"

namespace tpx::filter {

constexpr Layout LayoutOf(int ch) { return ch == 1 ? Layout::C1 : ch == 3 ? Layout::C3 : Layout::C4; }

template <class T, int kCh>
void StripBorder(const T* src, std::ptrdiff_t srcStep, int w, int h, T* dst, std::ptrdiff_t dstStep,
                 int left, int top, int right, int bottom, int kind, const T* value) {
  constexpr Layout kL = LayoutOf(kCh);
  const BorderKind k = static_cast<BorderKind>(kind);
  std::optional<BorderValue<T, kL>> v;
  if (k == BorderKind::kConst) v.emplace(value);
  ExtendImage<T, kL>(k, src, srcStep, w, h, dst, dstStep, BorderExtent{left, top, right, bottom},
                     v ? &*v : nullptr);
}

}  // namespace tpx::filter
