// The plane surface (type 190, form 0): a point on the plane and its normal direction.
#pragma once

#include "entities/surfaces/igsAnalyticSurface.h"

class igs190_0 : public igsAnalyticSurface<igsUnparameterizedSurface, 2, 0> {
  IGS_ANALYTIC_CLASS(igs190_0)
  IGS_ANALYTIC_REFERENCE(location, 0)
  IGS_ANALYTIC_REFERENCE(normal, 1)
};
