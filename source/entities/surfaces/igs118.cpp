#include "entities/surfaces/igs118.h"

#include "entities/curves/igs116.h"
#include "entities/surfaces/igsSurfaceErrors.h"

IGS_ENTITY_DEFINE(igs118, igsParameterizedSurface, 118, 0, IGS_DE_ALL)

int igs118::set_rail_curve_1(igsObjectPtr const& rail) {
  return igs_set_reference(m_rail_1, rail);
}
int igs118::set_rail_curve_2(igsObjectPtr const& rail) {
  return igs_set_reference(m_rail_2, rail);
}

int igs118::read_pd_data(igsInStream& in) {
  igs_read_fields(in, m_rail_1, m_rail_2, m_direction, m_developable);
  return 1;
}

void igs118::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_rail_1, m_rail_2, m_direction, m_developable);
}

static void print_flag(utOstream& out, char const* label, int flag) {
  out << label << flag << igs_flag_word(flag, "(True)", "(False)", "(Unknown)") << "\n";
}

void igs118::print_pd_data(utOstream& out) const {
  igs_print_reference(out, "RailCurve1", m_rail_1);
  igs_print_reference(out, "RailCurve2", m_rail_2);
  print_flag(out, "ReverseCurve = ", m_direction);
  print_flag(out, "Developable = ", m_developable);
}

// A rail may be a point, but only one of them. Whether the rails run the same way is not
// looked at: the flag stands as it is.
static int curve_or_point(igsObject const& rail) {
  return rail.typeof(igsCurve::type()) || rail.isa(igs116::type());
}

void igs118::check_pd() const {
  if (!igs_flag_valid(m_direction)) raise_error<igs118InvalidDirection>(m_direction);
  if (!igs_flag_valid(m_developable)) raise_error<igs118InvalidDevelopableFlag>(m_developable);
  check_reference<igs118NullRailCurve1Ptr, igs118InvalidRailCurve1Type,
                  igs118InvalidRailCurve1Data>(m_rail_1, curve_or_point);
  check_reference<igs118NullRailCurve2Ptr, igs118InvalidRailCurve2Type,
                  igs118InvalidRailCurve2Data>(m_rail_2, curve_or_point);
  if (m_rail_1 && m_rail_2 && m_rail_1->isa(igs116::type()) && m_rail_2->isa(igs116::type()))
    raise_error<igs118BothRailCurvesPoints>();
}

void igs118::unreference_children() {
  igsObject::unreference_children();
  m_rail_1.unreference();
  m_rail_2.unreference();
}

int igs118InvalidRailCurve1Type::fix() {
  return igs_replace_child_by_curve(key(), &igs118::rail_curve_1, &igs118::set_rail_curve_1);
}
int igs118InvalidRailCurve2Type::fix() {
  return igs_replace_child_by_curve(key(), &igs118::rail_curve_2, &igs118::set_rail_curve_2);
}

IGS_CHILD_REPAIR(igs118InvalidRailCurve1Data, igs118, igs_child_at<&igs118::rail_curve_1>)
IGS_CHILD_REPAIR(igs118InvalidRailCurve2Data, igs118, igs_child_at<&igs118::rail_curve_2>)
