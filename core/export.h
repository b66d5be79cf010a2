// Export marker for definitions. The public header already gives every export default
// visibility; repeating it here keeps a definition exported even if its prototype moves.
#pragma once
#include "tpxip.h"

#define TPX_API extern "C" TPXAPI
