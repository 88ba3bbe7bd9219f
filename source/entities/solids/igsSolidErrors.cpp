#include "entities/solids/igsSolidErrors.h"

#define IGS_ERROR IGS_ERROR_DEFINE
#include "entities/solids/igsSolidErrors.def"
