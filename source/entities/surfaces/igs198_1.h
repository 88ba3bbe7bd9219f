// The parameterised torus (type 198, form 1): its centre, axis direction, major and minor
// radius, and a reference direction.
#pragma once

#include "entities/surfaces/igsAnalyticSurface.h"

class igs198_1 : public igsAnalyticSurface<igsParameterizedSurface, 3, 2> {
  IGS_ANALYTIC_CLASS(igs198_1)
  IGS_ANALYTIC_REFERENCE(centre, 0)
  IGS_ANALYTIC_REFERENCE(axis, 1)
  IGS_ANALYTIC_RADII
  IGS_ANALYTIC_REFERENCE(reference, 2)
};
