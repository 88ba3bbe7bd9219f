#include "entities/annotation/igs230.h"

#include "entities/annotation/igsAnnotationErrors.h"

IGS_ENTITY_DEFINE(igs230, igsAnnotation, 230, 0, IGS_DE_ALL)

igsObjectPtr const& igs230::island_curve(int index) const {
  static igsObjectPtr const none;
  return index >= 0 && index < m_islands.size() ? m_islands[index] : none;
}

int igs230::set_interior_curve(igsObjectPtr const& curve, int index) {
  if (index < 0 || index >= m_islands.size()) return 0;
  m_islands[index] = curve;
  return 1;
}

int igs230::set_number_of_island_curves(int n) {
  if (n >= 0) {
    igsObjectPtrcoDynArr islands;
    if (!islands.expand(n)) return 0;
    m_islands = std::move(islands);
  }
  m_num_islands = n;
  return 1;
}

void igs230::set_fill_pattern_code(int code) {
  m_pattern = code;
  if (has_pattern_lines()) return;
  m_z_depth = 0.0;
  m_point = giPoint2(0.0, 0.0);
  m_angle = giAngle(giAngle0Tag);
  m_distance = 0.0;
}

void igs230::unreference_children() {
  igsObject::unreference_children();
  m_exterior.unreference();
  for (igsObjectPtr& island : m_islands) island.unreference();
}

// The values of the pattern are taken as the file gives them, for every pattern.
int igs230::read_pd_data(igsInStream& in) {
  int pattern = 0;
  double z = 0.0, distance = 0.0, angle = 0.0;
  giPoint2 point;
  igs_read_fields(in, m_exterior, pattern, point, z, distance, angle);
  set_fill_pattern_code(pattern);
  m_point = point;
  m_z_depth = z;
  m_distance = distance;
  m_angle = giAngle(giAngleRadiansTag, angle);
  int count = 0;
  in.read_integer(count);
  m_num_islands = count;
  if (!igs_read_counted_members(in, count, m_islands,
                                [&] { return igs_read_value<igsObjectPtr>(in); }))
    return 0;
  if (count > 0) m_num_islands = m_islands.size();
  return 1;
}

// A pattern without lines writes zeros for its values.
void igs230::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_exterior, m_pattern);
  if (has_pattern_lines())
    igs_write_fields(out, m_point, m_z_depth, m_distance, m_angle.angle(giAngleRadiansTag));
  else
    igs_write_fields(out, 0.0, 0.0, 0.0, 0.0, 0.0);
  igs_write_field(out, m_islands.size());
  for (igsObjectPtr const& island : m_islands) igs_write_field(out, island);
}

void igs230::print_pd_data(utOstream&) const {}

// A negative pattern code passes; a spacing of 0 too.
void igs230::check_pd() const {
  if (!m_exterior) raise_error<igs230NullExteriorCurve>();
  if (m_pattern > 19) raise_error<igs230InvalidPatternCode>();
  if (m_point.invalid()) raise_error<igs230InvalidPoint>();
  if (m_distance < 0.0) raise_error<igs230InvalidLineSpacing>();
  if (m_num_islands < 0) {
    raise_error<igs230InvalidNumberOfInteriorCurves>();
    return;
  }
  for (int i = 0; i < m_islands.size(); ++i)
    if (!m_islands[i]) raise_error<igs230NullInteriorCurve>(i);
}
