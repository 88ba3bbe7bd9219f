// An entity whose type or form has no class. It keeps its Directory Entry's place while the
// file is read, and is dropped after reading.
#pragma once

#include "core/igsFactory.h"

class igsUnknown : public igsObject {
  IGS_ENTITY_CLASS(igsUnknown)
};
