// Comparison families: the member lists (tests expand the same lists) and the row kernels.
#pragma once
#include "arith/compare_rows.h"

// Compare and CompareC: every type in every layout. The eps forms: 32f only.
#define TPX_COMPARE_LAYOUTS(X, T) X(T, C1) X(T, C3) X(T, C4) X(T, AC4)
#define TPX_COMPARE_MEMBERS(X) \
  TPX_COMPARE_LAYOUTS(X, 8u) TPX_COMPARE_LAYOUTS(X, 16u) TPX_COMPARE_LAYOUTS(X, 16s) TPX_COMPARE_LAYOUTS(X, 32f)
#define TPX_COMPARE_EPS_LAYOUTS(X) X(C1) X(C3) X(C4) X(AC4)
