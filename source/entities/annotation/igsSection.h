// The section line (type 106, forms 31 to 38, one for each hatching pattern): pairs of points,
// each pair one line of the hatching.
#pragma once

#include "entities/annotation/igs106Base.h"

class igsSection : public igs106Forms<31, 38> {
  IGS_ENTITY_IDENTITY(igsSection)

 protected:
  void check_pd() const override;
};
