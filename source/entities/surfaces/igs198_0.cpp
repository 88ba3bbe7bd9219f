#include "entities/surfaces/igs198_0.h"

#include "entities/surfaces/igsSurfaceErrors.h"

IGS_ANALYTIC_DEFINE(igs198_0, igsUnparameterizedSurface, 198, 0, IGS_TORUS_LAYOUT(igs198_0))
