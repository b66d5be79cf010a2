// Argument checks of the call frame. A family names its order once; the export's first lines
// are then one call to CheckImage<order>(...) followed by the family's own arguments.
#pragma once
#include <cstdint>
#include <initializer_list>

#include "tpxip/types.h"

namespace tpx {

enum class CheckOrder {
  kPtrSize,      // pointers, size, no step check at all (Add, Copy, Set, Transpose, ...)
  kPtrSizeStep,  // pointers, size, step (Threshold, Scale, part of Convert, ...)
  kPtrStepSize,  // pointers, step, size (Compare, logic, MulScale, ...)
};

using PtrList = std::initializer_list<const void*>;
using StepList = std::initializer_list<long long>;

inline bool AnyNull(PtrList ptrs) {
  for (const void* p : ptrs)
    if (!p) return true;
  return false;
}
inline bool BadSize(TpxSize roi) { return roi.width < 1 || roi.height < 1; }
inline bool BadSize(TpxSizeL roi) { return roi.width < 1 || roi.height < 1; }
// A step check here is only "below 1": it is never compared with the row's width.
inline bool AnyBadStep(StepList steps) {
  for (long long s : steps)
    if (s < 1) return true;
  return false;
}

template <CheckOrder kOrder>
inline TpxStatus CheckImage(PtrList ptrs, TpxSize roi, StepList steps = {}) {
  if (AnyNull(ptrs)) return tpxErrNullPtr;
  if constexpr (kOrder == CheckOrder::kPtrStepSize) {
    if (AnyBadStep(steps)) return tpxErrStep;
    if (BadSize(roi)) return tpxErrSize;
  } else {
    if (BadSize(roi)) return tpxErrSize;
    if (kOrder == CheckOrder::kPtrSizeStep && AnyBadStep(steps)) return tpxErrStep;
  }
  return tpxOk;
}

}  // namespace tpx
