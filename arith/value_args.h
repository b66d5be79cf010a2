// The constant argument of the constant forms: a sample by value for C1, a pointer to the
// channels' samples for C3, C4 and AC4. Export macros use TPX_VAL_PARAM_<layout>(type) in the
// signature and TPX_VAL_PTR_<layout> to pass it on as a pointer.
#pragma once

#define TPX_VAL_PARAM_C1(T) Tpx##T value
#define TPX_VAL_PARAM_C3(T) const Tpx##T* value
#define TPX_VAL_PARAM_C4(T) const Tpx##T* value
#define TPX_VAL_PARAM_AC4(T) const Tpx##T* value
#define TPX_VAL_PTR_C1 &value
#define TPX_VAL_PTR_C3 value
#define TPX_VAL_PTR_C4 value
#define TPX_VAL_PTR_AC4 value
