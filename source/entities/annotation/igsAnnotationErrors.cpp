#include "entities/annotation/igsAnnotationErrors.h"

#define IGS_ERROR IGS_ERROR_DEFINE
#include "entities/annotation/igsAnnotationErrors.def"
