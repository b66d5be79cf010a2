// Support code lives in headers; this unit gives the support library an object of its own.
#include "support/image.h"
#include "support/random.h"
#include "support/sweep.h"
