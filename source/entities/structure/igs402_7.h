// The unordered group without back pointers (type 402, form 7): a group as igsGroup reads,
// writes and checks it.
#pragma once

#include "entities/structure/igsGroup.h"

class igs402_7 : public igsGroup {
  IGS_ENTITY_IDENTITY(igs402_7)
};
