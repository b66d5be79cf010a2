#ifndef TPXIP_COPY_H
#define TPXIP_COPY_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_COPY_H */
