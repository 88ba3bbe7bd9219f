// The torus (type 198, form 0): its centre, axis direction, major and minor radius.
#pragma once

#include "entities/surfaces/igsAnalyticSurface.h"

class igs198_0 : public igsAnalyticSurface<igsUnparameterizedSurface, 2, 2> {
  IGS_ANALYTIC_CLASS(igs198_0)
  IGS_ANALYTIC_REFERENCE(centre, 0)
  IGS_ANALYTIC_REFERENCE(axis, 1)
  IGS_ANALYTIC_RADII
};
