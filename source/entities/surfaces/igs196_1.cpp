#include "entities/surfaces/igs196_1.h"

#include "entities/surfaces/igsSurfaceErrors.h"

IGS_ANALYTIC_DEFINE(igs196_1, igsParameterizedSurface, 196, 1, IGS_SPHERE_LAYOUT(igs196_1),
                    IGS_ANALYTIC_POINTER(igs196_1, Axis, igs_exactly<igs123>, "Axis Ptr "),
                    IGS_REFERENCE_DIRECTION(igs196_1, "Reference Ptr "))
