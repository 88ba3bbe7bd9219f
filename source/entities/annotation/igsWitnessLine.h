// The witness line (type 106, form 40): an odd number of points, at least three, that lead
// from the dimensioned geometry to the dimension line.
#pragma once

#include "entities/annotation/igs106Base.h"

class igsWitnessLine : public igs106Forms<40, 40> {
  IGS_ENTITY_IDENTITY(igsWitnessLine)

 protected:
  void check_pd() const override;
};
