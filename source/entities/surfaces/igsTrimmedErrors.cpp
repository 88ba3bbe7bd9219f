#include "entities/surfaces/igsTrimmedErrors.h"

#define IGS_ERROR IGS_ERROR_DEFINE
#include "entities/surfaces/igsTrimmedErrors.def"
