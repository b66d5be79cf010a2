/* tpxIP: image-processing primitives with a plain C interface.
 *
 * Every export checks its arguments in its family's order, stops at the first fault with a
 * negative status and writes nothing then; otherwise it does the work and returns tpxOk or a
 * positive warning. Images are (pointer to the first sample of the region, step in bytes,
 * extent in pixels); steps may be any value the family accepts. Families with prepared state
 * use GetSize -> caller allocation -> Init -> run with a caller work buffer; the caller frees. */
#ifndef TPXIP_H
#define TPXIP_H
#include "tpxip/types.h"
#include "tpxip/memory.h"
#include "tpxip/arithmetic.h"
#include "tpxip/compare.h"
#include "tpxip/copy.h"
#include "tpxip/convert.h"
#include "tpxip/border.h"
#include "tpxip/filter.h"
#include "tpxip/reductions.h"
#endif /* TPXIP_H */
