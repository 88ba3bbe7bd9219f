#include "entities/surfaces/igs190_1.h"

#include "entities/surfaces/igsSurfaceErrors.h"

IGS_ANALYTIC_DEFINE(igs190_1, igsParameterizedSurface, 190, 1,
                    IGS_PLANE_SURFACE_LAYOUT(igs190_1, ""),
                    IGS_REFERENCE_DIRECTION(igs190_1, "Reference Ptr"))

// A child that fails its check may be cleared by its own repairs.
IGS_CHILD_REPAIR(igs190_1InvalidLocation, igs190_1, igs_child_at<&igs190_1::location>)
IGS_CHILD_REPAIR(igs190_1InvalidDirection, igs190_1, igs_child_at<&igs190_1::normal>)
IGS_CHILD_REPAIR(igs190_1InvalidReference, igs190_1, igs_child_at<&igs190_1::reference>)
