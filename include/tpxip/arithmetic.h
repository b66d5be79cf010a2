#ifndef TPXIP_ARITHMETIC_H
#define TPXIP_ARITHMETIC_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_ARITHMETIC_H */
