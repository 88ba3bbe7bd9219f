// The unordered group with back pointers (type 402, form 1): a group as igsGroup reads,
// writes and checks it.
#pragma once

#include "entities/structure/igsGroup.h"

class igs402_1 : public igsGroup {
  IGS_ENTITY_IDENTITY(igs402_1)
};
