#ifndef TPXIP_REDUCTIONS_H
#define TPXIP_REDUCTIONS_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_REDUCTIONS_H */
