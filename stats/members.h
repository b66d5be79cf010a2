// Member lists of the reduction families. The exports expand from them, and the tests expand
// the same lists into their case tables, so no member is missing from either.
#pragma once

// Sum and Mean: integer members (no hint) and float members (with hint).
#define TPX_SUM_INT_MEMBERS(X) \
  X(8u, C1) X(8u, C3) X(8u, C4) X(16u, C1) X(16u, C3) X(16u, C4) X(16s, C1) X(16s, C3) X(16s, C4)
#define TPX_SUM_FLOAT_MEMBERS(X) X(32f, C1) X(32f, C3) X(32f, C4)

// Min, Max, MinMax, MinIndx and MaxIndx share one list.
#define TPX_EXTREME_MEMBERS(X)                                                                 \
  X(8u, C1) X(8u, C3) X(8u, C4) X(8u, AC4) X(16u, C1) X(16u, C3) X(16u, C4) X(16u, AC4)        \
  X(16s, C1) X(16s, C3) X(16s, C4) X(16s, AC4) X(32f, C1) X(32f, C3) X(32f, C4) X(32f, AC4)

#define TPX_BLOCK_MINMAX_MEMBERS(X) X(8u) X(16u) X(16s) X(32f)

#define TPX_COUNT_IN_RANGE_MEMBERS(X) X(8u, C1) X(8u, C3) X(8u, AC4) X(32f, C1) X(32f, C3) X(32f, AC4)
