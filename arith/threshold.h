// Threshold family: the region driver and the member lists (tests expand the same lists).
#pragma once
#include <type_traits>

#include "arith/channel_arg.h"
#include "arith/pixel_runs.h"
#include "arith/threshold_rows.h"
#include "core/stream.h"

namespace tpx {

// Members: every type in C1, C3 and AC4; GTVal and LTVal also in C4.
#define TPX_THRESHOLD_TYPES(X, L) X(8u, L) X(16u, L) X(16s, L) X(32f, L)
#define TPX_THRESHOLD_MEMBERS(X) \
  TPX_THRESHOLD_TYPES(X, C1) TPX_THRESHOLD_TYPES(X, C3) TPX_THRESHOLD_TYPES(X, AC4)
#define TPX_THRESHOLD_VAL_MEMBERS(X) TPX_THRESHOLD_MEMBERS(X) TPX_THRESHOLD_TYPES(X, C4)

// 16u members stream their stores from this many samples on, where the image is at least as
// large as the largest cache.
inline constexpr long long kThreshold16uStreamFloor = 0x40001;

// Runs Op over the region with params[j][c], parameter j of channel c. Rows and the query are
// as for every pointwise driver: one run where the steps equal the row, and the cache query
// only for 16u, counted in samples of the image.
template <class Op, class T, Layout kL, Isa kI = kIsa>
inline void ThresholdRegion(const T* src, int srcStep, T* dst, int dstStep, TpxSize roi,
                            const T (&params)[Op::kParams][4],
                            CacheSizeQuery query = tpxGetMaxCacheSizeB) {
  const ThreshTile<Op, T, kL> tile(params);
  constexpr int kC = Stride(kL);
  auto run = [&](auto stream) {
    ForEachPixelRun(roi, [&](int pixels, const T* s, T* d) {
      ThresholdRow<Op, T, kL, kI, decltype(stream)::value>(s, d, pixels * kC, tile);
    }, MakePixelPlane(src, srcStep, kC), MakePixelPlane(dst, dstStep, kC));
  };
  if constexpr (std::is_same_v<T, Tpx16u>) {
    const long long samples = static_cast<long long>(roi.width) * kC * roi.height;
    if (ChooseStreaming(samples, kThreshold16uStreamFloor, query)) {
      run(std::true_type{});
      StreamFence();
      return;
    }
  }
  run(std::false_type{});
}

}  // namespace tpx
