#include "entities/surfaces/igs194_1.h"

#include "entities/surfaces/igsSurfaceErrors.h"

IGS_ANALYTIC_DEFINE(igs194_1, igsParameterizedSurface, 194, 1, IGS_CONE_LAYOUT(igs194_1),
                    IGS_REFERENCE_DIRECTION(igs194_1, "Reference direction Ptr "))
