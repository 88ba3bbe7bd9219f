// The error classes of the curve and point entities.
#pragma once

#include "errors/igsErrorClass.h"

#define IGS_ERROR IGS_ERROR_DECLARE
#include "entities/curves/igsCurveErrors.def"
