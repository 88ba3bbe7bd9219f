// The centre line (type 106, forms 20 and 21: through points, or through the centres of
// circles): pairs of points, each pair one line of the cross.
#pragma once

#include "entities/annotation/igs106Base.h"

class igsCentreLine : public igs106Forms<20, 21> {
  IGS_ENTITY_IDENTITY(igsCentreLine)

 protected:
  void check_pd() const override;
};
