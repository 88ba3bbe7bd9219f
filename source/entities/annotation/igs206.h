// The diameter dimension (type 206): the diameter of a circle, with one leader or two and the
// centre of the circle.
#pragma once

#include "entities/annotation/igsDimension.h"

class igs206 : public igsDimension {
  IGS_ENTITY_CLASS(igs206)

  // The centre of the circle.
  giPoint2 const& point() const { return m_point; }
  void set_point(giPoint2 const& point) { m_point = point; }
  int form_number() const { return directory_entry().form_number(); }

 private:
  giPoint2 m_point;
};
