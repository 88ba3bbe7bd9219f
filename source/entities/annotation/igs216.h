// The linear dimension (type 216): a distance, with two leaders and up to two witness lines;
// its form says whether it is measured along a line, horizontally or vertically.
#pragma once

#include "entities/annotation/igsDimension.h"

class igs216 : public igsDimension {
  IGS_ENTITY_CLASS(igs216)

  int form_number() const { return directory_entry().form_number(); }
};
