// The base of the conic curves that are bounded by two points in a plane parallel to XY:
// the circular arc and the conic arc.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"

class igsTrimmedConic : public igsCurve {
  KVU_DECLARE_TYPE()
 public:
  giPoint2 const& start_point() const { return m_start; }
  giPoint2 const& end_point() const { return m_end; }
  void end_points(giPoint2& start, giPoint2& end) const {
    start = m_start;
    end = m_end;
  }
  // Store a valid point and return 1; keep the old one and return 0 for an invalid point.
  int set_start_point(giPoint2 const& point) { return igs_set_valid(m_start, point); }
  int set_end_point(giPoint2 const& point) { return igs_set_valid(m_end, point); }
  // ZT, the common Z of the plane of definition.
  double z_level() const { return m_z_level; }
  void set_z_level(double z) { m_z_level = z; }

 protected:
  igsTrimmedConic() = default;
  // 1 when both ends are valid and the Z level is set.
  int valid_pd() const { return !m_start.invalid() && !m_end.invalid() && !igs_unset(m_z_level); }

  // Read code stores what the file holds, good or bad.
  giPoint2 m_start;
  giPoint2 m_end;
  double m_z_level = igs_unset_double;
};
