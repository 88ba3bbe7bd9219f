#include "entities/structure/igsStructureErrors.h"

#define IGS_ERROR IGS_ERROR_DEFINE
#include "entities/structure/igsStructureErrors.def"
