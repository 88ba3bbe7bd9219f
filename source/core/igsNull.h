// The Null entity (type 0): a Directory Entry that stands for nothing. It is read so that the
// file's numbering holds, and dropped after reading.
#pragma once

#include "core/igsFactory.h"

class igsNull : public igsObject {
  IGS_ENTITY_CLASS(igsNull)
};
