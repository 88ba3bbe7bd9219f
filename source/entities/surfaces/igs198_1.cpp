#include "entities/surfaces/igs198_1.h"

#include "entities/surfaces/igsSurfaceErrors.h"

IGS_ANALYTIC_DEFINE(igs198_1, igsParameterizedSurface, 198, 1, IGS_TORUS_LAYOUT(igs198_1),
                    IGS_REFERENCE_DIRECTION(igs198_1, "Reference Ptr "))
