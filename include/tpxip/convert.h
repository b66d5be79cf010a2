#ifndef TPXIP_CONVERT_H
#define TPXIP_CONVERT_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_CONVERT_H */
