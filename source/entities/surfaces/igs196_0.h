// The sphere (type 196, form 0): its centre and radius.
#pragma once

#include "entities/surfaces/igsAnalyticSurface.h"

class igs196_0 : public igsAnalyticSurface<igsUnparameterizedSurface, 1, 1> {
  IGS_ANALYTIC_CLASS(igs196_0)
  IGS_ANALYTIC_REFERENCE(centre, 0)
  IGS_ANALYTIC_NUMBER(radius, 0)
};
