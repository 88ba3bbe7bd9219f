#include "entities/curves/igs100.h"

#include "entities/curves/igsCurveErrors.h"
#include "support/utMath.h"

IGS_ENTITY_DEFINE(igs100, igsTrimmedConic, 100, 0, IGS_DE_ALL)

int igs100::read_pd_data(igsInStream& in) {
  double z = 0.0;
  giPoint2 centre, start, end;
  igs_read_fields(in, z, centre, start, end);
  m_z_level = z;
  m_centre = centre;
  m_start = start;
  m_end = end;
  return 1;
}

void igs100::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_z_level, m_centre, m_start, m_end);
}

void igs100::print_pd_data(utOstream& out) const {
  out << "ZLevel = " << m_z_level << "\n";
  out << "Centre = " << m_centre << "\n";
  out << "StartPoint = " << m_start << "\n";
  out << "EndPoint = " << m_end << "\n";
}

// At most one error: an arc that cannot be built has no radius to judge.
void igs100::check_pd() const {
  if (m_centre.invalid() || !valid_pd()) {
    raise_error<igs100NoConstruct>();
    return;
  }
  double r1 = distance(m_centre, m_start);
  double r2 = distance(m_centre, m_end);
  if ((r1 + r2) * 0.5 <= 0.0) {
    raise_error<igs100ZeroRadius>();
    return;
  }
  // Measured against the sum of the radii.
  if (utMath::abs(r1 - r2) / (r1 + r2) > kvnTolRadiusDiff.value())
    raise_error<igs100InconsistRad>();
}

int igs100::equalise_radii() {
  if (m_centre.invalid() || !valid_pd()) return 0;
  giPoint2 middle = m_start + (m_end - m_start) * 0.5;
  giVector2 half = middle - m_start;
  giVector2 across = half.orthogonal();
  double across_squared = across.dot(across);
  // Equal ends: a full circle has no chord, and any centre gives equal radii.
  if (across_squared <= 0.0) return 0;
  double r1 = distance(m_centre, m_start);
  double r2 = distance(m_centre, m_end);
  double radius = (r1 + r2) * 0.5;
  double s = (radius * radius - half.dot(half)) / across_squared;
  double t = s > 0.0 ? utMath::sqrt(s) : 0.0;
  giPoint2 c1 = middle + across * t;
  giPoint2 c2 = middle - across * t;
  set_centre(distance(m_centre, c1) <= distance(m_centre, c2) ? c1 : c2);
  return 1;
}

int igs100InconsistRad::fix() {
  igs100* arc = igs_error_entity<igs100>(key());
  return arc && arc->equalise_radii();
}
