#include "entities/surfaces/igs192_0.h"

#include "entities/surfaces/igsSurfaceErrors.h"

IGS_ANALYTIC_DEFINE(igs192_0, igsUnparameterizedSurface, 192, 0, IGS_CYLINDER_LAYOUT(igs192_0))
