// The flag note (type 208): a general label in a flag, whose corner and angle it gives.
#pragma once

#include "entities/annotation/igs210.h"

class igs208 : public igs210 {
  IGS_ENTITY_CLASS(igs208)

  // The lower left corner of the flag.
  giPoint3 const& corner() const { return m_corner; }
  void set_corner(giPoint3 const& corner) { m_corner = corner; }
  giAngle const& rotation_angle() const { return m_angle; }
  void set_angle(giAngle const& angle) { m_angle = angle; }

 private:
  giPoint3 m_corner;
  giAngle m_angle;
};
