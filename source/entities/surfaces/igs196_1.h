// The parameterised sphere (type 196, form 1): its centre, radius, axis direction and a
// reference direction.
#pragma once

#include "entities/surfaces/igsAnalyticSurface.h"

class igs196_1 : public igsAnalyticSurface<igsParameterizedSurface, 3, 1> {
  IGS_ANALYTIC_CLASS(igs196_1)
  IGS_ANALYTIC_REFERENCE(centre, 0)
  IGS_ANALYTIC_NUMBER(radius, 0)
  IGS_ANALYTIC_REFERENCE(axis, 1)
  IGS_ANALYTIC_REFERENCE(reference, 2)
};
