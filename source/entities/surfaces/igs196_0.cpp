#include "entities/surfaces/igs196_0.h"

#include "entities/surfaces/igsSurfaceErrors.h"

IGS_ANALYTIC_DEFINE(igs196_0, igsUnparameterizedSurface, 196, 0, IGS_SPHERE_LAYOUT(igs196_0))
