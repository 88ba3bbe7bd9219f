// The parameterised right circular cylinder (type 192, form 1): a point on its axis, the axis
// direction, the radius and a reference direction.
#pragma once

#include "entities/surfaces/igsAnalyticSurface.h"

class igs192_1 : public igsAnalyticSurface<igsParameterizedSurface, 3, 1> {
  IGS_ANALYTIC_CLASS(igs192_1)
  IGS_ANALYTIC_REFERENCE(location, 0)
  IGS_ANALYTIC_REFERENCE(axis, 1)
  IGS_ANALYTIC_NUMBER(radius, 0)
  IGS_ANALYTIC_REFERENCE(reference, 2)
};
