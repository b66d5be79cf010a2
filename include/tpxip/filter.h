#ifndef TPXIP_FILTER_H
#define TPXIP_FILTER_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_FILTER_H */
