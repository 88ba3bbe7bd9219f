#include "entities/surfaces/igs190_0.h"

#include "entities/surfaces/igsSurfaceErrors.h"

IGS_ANALYTIC_DEFINE(igs190_0, igsUnparameterizedSurface, 190, 0,
                    IGS_PLANE_SURFACE_LAYOUT(igs190_0, " "))

// A child that fails its check may be cleared by its own repairs.
IGS_CHILD_REPAIR(igs190_0InvalidLocation, igs190_0, igs_child_at<&igs190_0::location>)
IGS_CHILD_REPAIR(igs190_0InvalidDirection, igs190_0, igs_child_at<&igs190_0::normal>)
