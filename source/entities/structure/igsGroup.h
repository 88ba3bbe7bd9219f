// The groups of the associativity entity (type 402): a list of entities that belong together.
// This class serves the ordered groups (forms 14 and 15); igs402_1 and igs402_7 are the
// unordered ones, and igs402_16 the planar associativity, which adds a transformation.
#pragma once

#include "entities/structure/igsCompound.h"

class igsGroup : public igsCompound {
  IGS_ENTITY_CLASS(igsGroup)
};
