#include "entities/curves/igsSimpleClosedPlanarCurve.h"

#include "entities/curves/igsCurveErrors.h"
#include "entities/curves/igsTupleList.h"
#include "support/utMath.h"

IGS_ENTITY_DEFINE(igsSimpleClosedPlanarCurve, igsCurve, 106, 63, IGS_DE_ALL)

int igsSimpleClosedPlanarCurve::point(int index, giPoint2& point) const {
  if (index < 0 || index >= m_points.size()) return 0;
  point = m_points[index];
  return 1;
}

int igsSimpleClosedPlanarCurve::set_point(int index, giPoint2 const& point) {
  if (point.invalid() || index < 0 || index == utMath::max_int()) return 0;
  if (m_points.size() <= index && !m_points.expand(index + 1)) return 0;
  m_points[index] = point;
  return 1;
}

// The flag is always 1: planar points with a common Z, which comes before them. A record that
// ends before its count is reached gives the points it holds.
int igsSimpleClosedPlanarCurve::read_pd_data(igsInStream& in) {
  int ip = 0;
  in.read_integer(ip);
  if (ip != 1) {
    raise_error<igsSCPCInvalidIP>(ip);
    return 0;
  }
  int count = 0;
  in.read_integer(count);
  if (count < 0) {
    raise_error<igsSCPCBadNumTuples>(count);
    return 0;
  }
  m_points.clear();
  if (!igs_reserve(m_points, count)) return 0;
  double z = 0.0;
  in.read_double(z);
  m_z_level = z;
  for (int i = 0; i < count && !in.frozen(); ++i) {
    giPoint2 point;
    igs_read_field(in, point);
    if (!m_points.append(point)) return 0;
  }
  return 1;
}

void igsSimpleClosedPlanarCurve::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, 1, m_points.size(), m_z_level);
  for (giPoint2 const& point : m_points) igs_write_field(out, point);
}

void igsSimpleClosedPlanarCurve::print_pd_data(utOstream& out) const {
  igs_print_tuple_flags(out, "XYCommonZ", m_points.size());
  print_tuples(out);
}

void igsSimpleClosedPlanarCurve::print_tuples(utOstream& out) const {
  igs_print_planar_tuples(out, m_z_level, m_points.size(), [this](int i) { return m_points[i]; });
}

// The closure test needs a polygon, so it is skipped below three points.
void igsSimpleClosedPlanarCurve::check_pd() const {
  int count = m_points.size();
  if (count < 3) raise_error<igsSCPCNoPoints>(count);
  for (int i = 0; i < count; ++i)
    if (m_points[i].invalid()) raise_error<igsSCPCInvalidPoint>(i);
  if (igs_unset(m_z_level)) raise_error<igsSCPCInvalidZLevel>();
  if (count < 3) return;
  double tolerance = kvnTolClosureCurve3d.value();
  if (!m_points[0].coincident(m_points[count - 1], tolerance))
    raise_error<igsSCPCNotClosed>(tolerance);
}
