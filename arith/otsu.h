// Otsu's threshold: the histogram of an 8u region and the threshold rule on a histogram.
#pragma once
#include <cstdint>

#include "tpxip/types.h"

namespace tpx {

// hist[v] = number of samples equal to v in the region (width, height >= 1).
void Histogram256(const Tpx8u* src, int srcStep, TpxSize roi, std::uint64_t hist[256]);

// The bin k of the first largest between-class value of the histogram, 0 where no bin is a
// candidate (an image of one value).
Tpx8u OtsuThreshold(const std::uint64_t hist[256]);

}  // namespace tpx
