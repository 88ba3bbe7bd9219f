// The line entity (type 110): a segment from a start point to an end point.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"

class igs110 : public igsCurve {
  IGS_ENTITY_CLASS(igs110)

  giPoint3 start_point() const { return m_start; }
  giPoint3 end_point() const { return m_end; }
  // Store a valid point and return 1; keep the old one and return 0 for an invalid point.
  int set_start_point(giPoint3 const& point) { return igs_set_valid(m_start, point); }
  int set_end_point(giPoint3 const& point) { return igs_set_valid(m_end, point); }
  int coincident_end_points(double tolerance) const { return m_start.coincident(m_end, tolerance); }

 private:
  giPoint3 m_start;
  giPoint3 m_end;
};
