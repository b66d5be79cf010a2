// Internal pieces of the older 64f filter (true convolution with a caller anchor).
#pragma once
#include <cstddef>

#include "core/isa.h"
#include "tpxip/types.h"

namespace tpx::filter {

// Column blocks of the sum: returns the columns covered by leading blocks of four, and the
// widths of the blocks that follow them.
int Filter64fBlocks(int kw, int kh, int (&widths)[4], int* count);

template <Isa kI>
void Filter64fRows(const double* src, std::ptrdiff_t srcStep, double* dst, std::ptrdiff_t dstStep, TpxSize roi,
                   const double* K, int kw, int kh, TpxPoint anchor);

}  // namespace tpx::filter
