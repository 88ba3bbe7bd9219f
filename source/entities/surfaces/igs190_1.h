// The parameterised plane surface (type 190, form 1): a point on the plane, its normal and a
// reference direction in the plane.
#pragma once

#include "entities/surfaces/igsAnalyticSurface.h"

class igs190_1 : public igsAnalyticSurface<igsParameterizedSurface, 3, 0> {
  IGS_ANALYTIC_CLASS(igs190_1)
  IGS_ANALYTIC_REFERENCE(location, 0)
  IGS_ANALYTIC_REFERENCE(normal, 1)
  IGS_ANALYTIC_REFERENCE(reference, 2)
};
