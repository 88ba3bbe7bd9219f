#include "entities/curves/igs104.h"

#include "entities/curves/igsCurveErrors.h"
#include "support/utMath.h"

IGS_ENTITY_DEFINE(igs104, igsTrimmedConic, 104, 0, IGS_DE_ALL)

int igsConicCoeffs::valid() const {
  for (double value : m_values)
    if (igs_unset(value)) return 0;
  return 1;
}

// Q2 and Q3 are the invariants of the quadratic part, Q1 the determinant of the symmetric
// matrix of the conic. The bands of the tolerance decide first; the exact signs catch what
// falls between them.
igsConicType igsConicCoeffs::conic_type() const {
  double const t = kvnTolConicIsParabola.value();
  auto [a, b2, c, d2, e2, f] = m_values;
  double b = b2 / 2, d = d2 / 2, e = e2 / 2;
  double q3 = a + c;
  double q2 = a * c - b * b;
  double q1 = (f * c - e * e) * a - (b * f - d * e) * b + (b * e - d * c) * d;
  if (q2 > t && t > q3 * q1) return igsConicEllipse;
  if (q2 < -t && utMath::abs(q1) > t) return igsConicHyperbola;
  if (q2 >= -t && q2 <= t && utMath::abs(q1) > t) return igsConicParabola;
  if (q2 > 0.0 && q3 * q1 < 0.0) return igsConicEllipse;
  if (q2 < 0.0 && q1 != 0.0) return igsConicHyperbola;
  if (q2 == 0.0 && q1 != 0.0) return igsConicParabola;
  return igsConicUnknown;
}

int igs104::set_coeffs(igsConicCoeffs const& coeffs) {
  if (coeffs.conic_type() == igsConicUnknown) return 0;
  m_coeffs = coeffs;
  return 1;
}

int igs104::read_pd_data(igsInStream& in) {
  double values[6] = {0.0, 0.0, 0.0, 0.0, 0.0, 0.0};
  double z = 0.0;
  giPoint2 start, end;
  for (double& value : values) igs_read_field(in, value);
  igs_read_fields(in, z, start, end);
  m_coeffs = igsConicCoeffs(values);
  m_z_level = z;
  m_start = start;
  m_end = end;
  return 1;
}

void igs104::write_pd_data(igsOutStream& out) {
  double values[6];
  m_coeffs.coeffs(values);
  for (double value : values) igs_write_field(out, value);
  igs_write_fields(out, m_z_level, m_start, m_end);
}

void igs104::print_pd_data(utOstream& out) const {
  double values[6];
  m_coeffs.coeffs(values);
  out << "ConicCoefficients = {\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    char const* const labels[] = {"A = ", "B = ", "C = ", "D = ", "E = ", "F = "};
    for (int i = 0; i < 6; ++i) nested << labels[i] << values[i] << "\n";
  }
  out << "}\n";
  out << "Z-level = " << m_z_level << "\n";
  out << "Start point = " << m_start << "\n";
  out << "End point = " << m_end << "\n";
}

// The form must say the kind of the coefficients; form 0 says nothing, and only a degenerate
// conic fails it. Unset coefficients are classified all the same.
void igs104::check_pd() const {
  if (!valid_pd() || !m_coeffs.valid()) raise_error<igs104NoConstruct>();
  igsConicType c = m_coeffs.conic_type();
  switch (directory_entry().form_number()) {
  case 0:
    if (c == igsConicUnknown) raise_error<igs104UnknownType>();
    break;
  case 1:
    if (c != igsConicEllipse) raise_error<igs104NotEllipse>();
    break;
  case 2:
    if (c != igsConicHyperbola) raise_error<igs104NotHyperbola>();
    break;
  case 3:
    if (c != igsConicParabola) raise_error<igs104NotParabola>();
    break;
  default:
    break;
  }
}

// The form is set to the kind that the coefficients say now, unless that is the kind the
// error denies; a degenerate conic has no form to take.
static int fix_form(int key, igsConicType denied) {
  igs104* conic = igs_error_entity<igs104>(key);
  if (!conic) return 0;
  igsConicType c = conic->coeffs().conic_type();
  if (c == igsConicUnknown) return 0;
  if (c != denied) conic->directory_entry().set_form_number(igs_conic_form(c));
  return 1;
}

int igs104NotEllipse::fix() {
  return fix_form(key(), igsConicEllipse);
}
int igs104NotHyperbola::fix() {
  return fix_form(key(), igsConicHyperbola);
}
int igs104NotParabola::fix() {
  return fix_form(key(), igsConicParabola);
}
