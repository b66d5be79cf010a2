// The members of tpxiConvert_* and tpxiScale_*, as data. data/convert.cpp and data/scale.cpp
// expand the exports from these lists, and the tests expand one case per member from them.
// Each entry is X(source code, destination code).
#pragma once

// Plain widening and narrowing, in C1R, C3R, C4R and AC4R.
#define TPX_CONVERT_PLAIN_4L(X)                                                            \
  X(8u, 16u) X(8u, 16s) X(8u, 32s) X(8u, 32f) X(8s, 32s) X(8s, 32f) X(16u, 32s) X(16u, 32f) \
  X(16s, 32s) X(16s, 32f) X(16u, 8u) X(16s, 8u) X(32s, 8u) X(32s, 8s)
// Plain widening in C1R only.
#define TPX_CONVERT_PLAIN_C1(X) X(8s, 16s) X(8s, 64f) X(16u, 32u) X(32s, 32f) X(32u, 32f)
// Signed to unsigned with negative samples at 0, C1Rs.
#define TPX_CONVERT_RS(X) X(8s, 8u) X(8s, 16u) X(8s, 32u) X(16s, 16u) X(16s, 32u) X(32s, 32u)
// 32f to integer with a rounding mode, in C1R, C3R, C4R and AC4R.
#define TPX_CONVERT_ROUND_4L(X) X(32f, 8u) X(32f, 8s) X(32f, 16u) X(32f, 16s)
// Float to integer with a rounding mode and a scale factor, C1RSfs.
#define TPX_CONVERT_FLOAT_SFS(X)                                                               \
  X(32f, 8u) X(32f, 8s) X(32f, 16u) X(32f, 16s) X(32f, 32s) X(32f, 32u) X(64f, 8u) X(64f, 8s) \
  X(64f, 16u) X(64f, 16s)
// Integer to integer with a rounding mode and a scale factor, C1RSfs.
#define TPX_CONVERT_INT_SFS(X)                                                                \
  X(32s, 16s) X(32s, 16u) X(32u, 8u) X(32u, 8s) X(32u, 16u) X(32u, 16s) X(32u, 32s) X(16u, 16s) \
  X(16u, 8s) X(16s, 8s) X(8u, 8s)
// The in-place member tpxiConvert_32f32u_C1IRSfs stands alone.

// Scale with Tpx32f limits, in C1R, C3R, C4R and AC4R.
#define TPX_SCALE_LIMITS_4L(X) X(8u, 32f) X(32f, 8u)
// Scale between integer types over their full ranges, with a hint, in the four layouts.
#define TPX_SCALE_HINT_4L(X) X(8u, 16u) X(8u, 16s) X(8u, 32s) X(16u, 8u) X(16s, 8u) X(32s, 8u)

// Expands M(S, D, L) for each of the four layouts.
#define TPX_FOUR_LAYOUTS(M, S, D) M(S, D, C1) M(S, D, C3) M(S, D, C4) M(S, D, AC4)
