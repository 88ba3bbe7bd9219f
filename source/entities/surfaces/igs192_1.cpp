#include "entities/surfaces/igs192_1.h"

#include "entities/surfaces/igsSurfaceErrors.h"

IGS_ANALYTIC_DEFINE(igs192_1, igsParameterizedSurface, 192, 1, IGS_CYLINDER_LAYOUT(igs192_1),
                    IGS_REFERENCE_DIRECTION(igs192_1, "Reference direction Ptr "))
