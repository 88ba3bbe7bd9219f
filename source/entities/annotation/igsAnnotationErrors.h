// The error classes of the notes, leaders, annotation curves, dimensions, general symbols and
// sectioned areas.
#pragma once

#include "errors/igsErrorClass.h"

#define IGS_ERROR IGS_ERROR_DECLARE
#include "entities/annotation/igsAnnotationErrors.def"
