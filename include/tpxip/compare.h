#ifndef TPXIP_COMPARE_H
#define TPXIP_COMPARE_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_COMPARE_H */
