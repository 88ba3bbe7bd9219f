// The right circular cone (type 194, form 0): a point on its axis, the axis direction, the
// radius there and the semi-angle in degrees.
#pragma once

#include "entities/surfaces/igsAnalyticSurface.h"

class igs194_0 : public igsAnalyticSurface<igsUnparameterizedSurface, 2, 2> {
  IGS_ANALYTIC_CLASS(igs194_0)
  IGS_ANALYTIC_REFERENCE(location, 0)
  IGS_ANALYTIC_REFERENCE(axis, 1)
  IGS_ANALYTIC_NUMBER(radius, 0)
  IGS_ANALYTIC_NUMBER(semi_angle, 1)
};
