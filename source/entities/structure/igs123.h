// The direction entity (type 123): a vector in space.
#pragma once

#include "entities/igsEntity.h"

class igs123 : public igsObject {
  IGS_ENTITY_CLASS(igs123)

  giVector3 const& direction() const { return m_direction; }
  int set_direction(giVector3 const& direction) {
    m_direction = direction;
    return 1;
  }

 private:
  giVector3 m_direction;
};
