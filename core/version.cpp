// The build's identification record.
#include "core/export.h"

namespace {
constexpr TpxLibraryVersion kVersion = {
    2022, 1, 0, 0xC8D62893u, {'e', '9', 0, 0},
    "tpxIP AVX (e9)", "2022.1.0 (r0xc8d62893)", "Jan 30 2025",
};
}  // namespace

TPX_API const TpxLibraryVersion* tpxiGetLibVersion(void) { return &kVersion; }
