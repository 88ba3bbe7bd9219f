// The error classes of the B-spline surface, the offset surface and the trimmed surfaces.
#pragma once

#include "errors/igsErrorClass.h"

#define IGS_ERROR IGS_ERROR_DECLARE
#include "entities/surfaces/igsTrimmedErrors.def"
