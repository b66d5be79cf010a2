// The only place that names the vector level of this build. Kernels take the level as a
// template argument; drivers pass kIsa, and tests instantiate both to compare the twins.
#pragma once

namespace tpx {

enum class Isa { kScalar, kAvx };

#ifdef TPX_TEST_SCALAR_ONLY  // test build only: every driver takes the scalar twins
inline constexpr Isa kIsa = Isa::kScalar;
#else
inline constexpr Isa kIsa = Isa::kAvx;
#endif

}  // namespace tpx
