// The angular dimension (type 202): the angle between two witness lines, shown by two leaders
// along an arc about a vertex point.
#pragma once

#include "entities/annotation/igsDimension.h"

class igs202 : public igsDimension {
  IGS_ENTITY_CLASS(igs202)

  // The vertex of the angle.
  giPoint2 const& point() const { return m_point; }
  void set_point(giPoint2 const& point) { m_point = point; }
  // The radius of the arc of the leaders.
  double radius() const { return m_radius; }
  void set_radius(double radius) { m_radius = radius; }
  int form_number() const { return directory_entry().form_number(); }

 private:
  giPoint2 m_point;
  double m_radius = igs_unset_double;
};
