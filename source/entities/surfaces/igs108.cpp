#include "entities/surfaces/igs108.h"

#include "entities/surfaces/igsSurfaceErrors.h"

#include <cmath>

IGS_ENTITY_DEFINE(igs108, igsUnparameterizedSurface, 108, 0, IGS_DE_ALL)

void igs108::planar_coefficients(double& a, double& b, double& c, double& d) const {
  a = m_a;
  b = m_b;
  c = m_c;
  d = m_d;
}

int igs108::set_planar_coefficients(double a, double b, double c, double d) {
  if (a == 0.0 && b == 0.0 && c == 0.0) return 0;
  m_a = a;
  m_b = b;
  m_c = c;
  m_d = d;
  return 1;
}

int igs108::set_boundary_curve(igsObjectPtr const& curve) {
  return igs_set_reference(m_boundary, curve);
}

int igs108::set_display_symbol(giPoint3 const& location, double size) {
  if (location.invalid()) return 0;
  m_symbol_location = location;
  m_symbol_size = size;
  return 1;
}

int igs108::read_pd_data(igsInStream& in) {
  igs_read_fields(in, m_a, m_b, m_c, m_d, m_boundary, m_symbol_location, m_symbol_size);
  return 1;
}

void igs108::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_a, m_b, m_c, m_d, m_boundary, m_symbol_location, m_symbol_size);
}

void igs108::print_pd_data(utOstream& out) const {
  out << "Coefficients = {\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    nested << "A = " << m_a << "\n";
    nested << "B = " << m_b << "\n";
    nested << "C = " << m_c << "\n";
    nested << "D = " << m_d << "\n";
  }
  out << "}\n";
  igs_print_reference(out, "BoundaryCurve", m_boundary);
  out << "DisplaySymbolLocation = " << m_symbol_location << "\n";
  out << "DisplaySymbolSize = " << m_symbol_size << "\n";
}

// The curve is not tested for lying in the plane, nor for closure. An unset size counts as
// negative; a size of 0 needs no location.
void igs108::check_pd() const {
  if (igs_unset(m_a) || igs_unset(m_b) || igs_unset(m_c) || igs_unset(m_d))
    raise_error<igs108NoConstruct>();
  double const tiny = kvnTolMinValue.value();
  if (m_a == 0.0 && m_b == 0.0 && m_c == 0.0)
    raise_error<igs108AllZeroCoeffs>();
  else if (std::fabs(m_a) < tiny && std::fabs(m_b) < tiny && std::fabs(m_c) < tiny)
    raise_error<igs108AllCoeffsTooSmall>();
  if (directory_entry().form_number() == 0) {
    if (m_boundary) raise_error<igs108UnexpectedBoundaryCurve>();
  } else {
    check_reference<igs108NullBoundaryCurvePtr, igs108InvalidBoundaryType,
                    igs108InvalidBoundaryCurveData>(m_boundary, igs_kind_of<igsCurve>);
  }
  if (m_symbol_size < 0.0)
    raise_error<igs108NegativeSymbolSize>(m_symbol_size);
  else if (m_symbol_size > 0.0 && m_symbol_location.invalid())
    raise_error<igs108InvalidSymbolPosition>();
}

void igs108::unreference_children() {
  igsObject::unreference_children();
  m_boundary.unreference();
}

// A bounded plane that has lost its curve becomes an unbounded one.
int igs108NullBoundaryCurvePtr::fix() {
  igs108* plane = igs_error_entity<igs108>(key());
  if (!plane) return 0;
  plane->directory_entry().set_form_number(0);
  return 1;
}

int igs108InvalidBoundaryType::fix() {
  return igs_replace_child_by_curve(key(), &igs108::boundary_curve, &igs108::set_boundary_curve);
}

IGS_CHILD_REPAIR(igs108InvalidBoundaryCurveData, igs108, igs_child_at<&igs108::boundary_curve>)
