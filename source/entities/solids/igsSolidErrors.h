// The error classes of the boundary representation entities.
#pragma once

#include "errors/igsErrorClass.h"

#define IGS_ERROR IGS_ERROR_DECLARE
#include "entities/solids/igsSolidErrors.def"
