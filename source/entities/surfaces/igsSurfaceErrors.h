// The error classes of the plane, analytic, spline and swept surfaces.
#pragma once

#include "errors/igsErrorClass.h"

#define IGS_ERROR IGS_ERROR_DECLARE
#include "entities/surfaces/igsSurfaceErrors.def"
