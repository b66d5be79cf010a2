#ifndef TPXIP_BORDER_H
#define TPXIP_BORDER_H
#include "tpxip/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif /* TPXIP_BORDER_H */
