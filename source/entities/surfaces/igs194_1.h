// The parameterised right circular cone (type 194, form 1): a point on its axis, the axis
// direction, the radius there, the semi-angle in degrees and a reference direction.
#pragma once

#include "entities/surfaces/igsAnalyticSurface.h"

class igs194_1 : public igsAnalyticSurface<igsParameterizedSurface, 3, 2> {
  IGS_ANALYTIC_CLASS(igs194_1)
  IGS_ANALYTIC_REFERENCE(location, 0)
  IGS_ANALYTIC_REFERENCE(axis, 1)
  IGS_ANALYTIC_NUMBER(radius, 0)
  IGS_ANALYTIC_NUMBER(semi_angle, 1)
  IGS_ANALYTIC_REFERENCE(reference, 2)
};
