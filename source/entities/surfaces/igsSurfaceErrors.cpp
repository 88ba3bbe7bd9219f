#include "entities/surfaces/igsSurfaceErrors.h"

#define IGS_ERROR IGS_ERROR_DEFINE
#include "entities/surfaces/igsSurfaceErrors.def"
