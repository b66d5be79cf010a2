// Members of the border copies, as data: the exports and the tests expand from these lists.
// X(type code, layout); every member has an R and an IR form, each with its _L twin.
#pragma once

#define TPX_BORDER_LAYOUTS_C134(X, T) X(T, C1) X(T, C3) X(T, C4)
#define TPX_BORDER_LAYOUTS_ALL(X, T) TPX_BORDER_LAYOUTS_C134(X, T) X(T, AC4)
#define TPX_BORDER_TYPES(X, LAYOUTS) \
  LAYOUTS(X, 8u) LAYOUTS(X, 16u) LAYOUTS(X, 16s) LAYOUTS(X, 32s) LAYOUTS(X, 32f)

#define TPX_CONST_BORDER_MEMBERS(X) TPX_BORDER_TYPES(X, TPX_BORDER_LAYOUTS_ALL)
#define TPX_REPLICATE_BORDER_MEMBERS(X) TPX_BORDER_TYPES(X, TPX_BORDER_LAYOUTS_ALL)
#define TPX_MIRROR_BORDER_MEMBERS(X) TPX_BORDER_TYPES(X, TPX_BORDER_LAYOUTS_C134)
#define TPX_WRAP_BORDER_MEMBERS(X) X(32s, C1) X(32f, C1)
