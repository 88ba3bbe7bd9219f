#include "entities/curves/igsCurveErrors.h"

#define IGS_ERROR IGS_ERROR_DEFINE
#include "entities/curves/igsCurveErrors.def"
