// The frame shared by Convert and Scale: the row loop over an image (one long row where every
// step is the row, AC4 rows that keep the fourth sample, streaming stores when chosen) and the
// two tests that choose streaming.
#pragma once
#include <cstddef>
#include <type_traits>

#include "core/isa.h"
#include "core/layout.h"
#include "core/rows.h"
#include "core/stream.h"
#include "data/convert_rows.h"
#include "tpxcore.h"
#include "tpxip/types.h"

namespace tpx::cvt {

// Runs op over the region. C1, C3 and C4 rows are flat rows of width * channels samples, and
// the image is one long row where both steps equal the row's byte width. kStream writes with
// non-temporal stores and ends on a fence. AC4 rows blend into the destination, which they
// read first, so they keep plain stores whatever kStream says.
template <Layout kL, bool kStream = false, class Op>
inline void RunRows(const typename Op::Src* src, std::ptrdiff_t srcStep, typename Op::Dst* dst,
                    std::ptrdiff_t dstStep, TpxSize roi, const Op& op) {
  using S = typename Op::Src;
  using D = typename Op::Dst;
  if constexpr (kL == Layout::AC4) {
    ForEachRow(roi.height, [&](const S* s, D* d) { ConvertRowAc4<kIsa>(s, d, roi.width, op); },
               MakePlane(src, srcStep), MakePlane(dst, dstStep));
  } else {
    ForEachRowCoalesced(roi.height, roi.width * Stride(kL),
                        [&](int n, const S* s, D* d) { ConvertRow<kIsa, kStream>(s, d, n, op); },
                        MakePlane(src, srcStep), MakePlane(dst, dstStep));
    if constexpr (kStream) StreamFence();
  }
}

// The queries of the row-streaming test, injectable for tests.
struct RowStreamQueries {
  CacheSizeQuery cache = tpxGetMaxCacheSizeB;
  CacheSizeQuery line = tpx_get_cache_line_size;
};

// Streaming rows for the integer-source scaled members that have them: the destination row is
// at least two cache lines (a shorter row has no whole line to stream), the cache query
// succeeded, and the bytes read and written together reach the largest cache. Both sizes are
// asked on every call; a failed line query keeps plain stores.
inline bool ChooseStreamingRows(long long rowBytes, long long totalBytes, RowStreamQueries q) {
  int line = 0;
  if (q.line(&line) != 0 || rowBytes < 2LL * line) return false;
  int cache = 0;
  if (q.cache(&cache) != 0) return false;
  return totalBytes >= cache;
}

}  // namespace tpx::cvt
