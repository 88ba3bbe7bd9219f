#include "entities/surfaces/igs194_0.h"

#include "entities/surfaces/igsSurfaceErrors.h"

IGS_ANALYTIC_DEFINE(igs194_0, igsUnparameterizedSurface, 194, 0, IGS_CONE_LAYOUT(igs194_0))
