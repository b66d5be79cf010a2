// Internal entry points of the general filter family, reachable from tests with an injected
// feature query.
#pragma once
#include "filter/filter_sizes.h"
#include "tpxip/types.h"

namespace tpx::filter {

TpxStatus FilterBorderGetSize(TpxSize kernelSize, TpxSize roiSize, int dataType, int kernelType, int numChannels,
                              int* pSpecSize, int* pBufferSize, FeatureQuery feature);
TpxStatus FilterBorderInit16s(const Tpx16s* pKernel, TpxSize kernelSize, int divisor, int dataType, int numChannels,
                              int roundMode, void* pSpec);
TpxStatus FilterBorderInit32f(const Tpx32f* pKernel, TpxSize kernelSize, int dataType, int numChannels,
                              int roundMode, void* pSpec);
TpxStatus FilterBorderInit64f(const Tpx64f* pKernel, TpxSize kernelSize, int dataType, int numChannels,
                              int roundMode, void* pSpec);
TpxStatus FilterBorderSetMode(int hint, int offset, void* pSpec);

}  // namespace tpx::filter
