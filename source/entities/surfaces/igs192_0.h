// The right circular cylinder (type 192, form 0): a point on its axis, the axis direction and
// the radius.
#pragma once

#include "entities/surfaces/igsAnalyticSurface.h"

class igs192_0 : public igsAnalyticSurface<igsUnparameterizedSurface, 2, 1> {
  IGS_ANALYTIC_CLASS(igs192_0)
  IGS_ANALYTIC_REFERENCE(location, 0)
  IGS_ANALYTIC_REFERENCE(axis, 1)
  IGS_ANALYTIC_NUMBER(radius, 0)
};
