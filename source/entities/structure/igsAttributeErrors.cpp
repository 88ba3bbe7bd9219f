#include "entities/structure/igsAttributeErrors.h"

#define IGS_ERROR IGS_ERROR_DEFINE
#include "entities/structure/igsAttributeErrors.def"
