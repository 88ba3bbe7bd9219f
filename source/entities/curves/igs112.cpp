#include "entities/curves/igs112.h"

#include "entities/curves/igsCurveErrors.h"

#include <climits>

IGS_ENTITY_DEFINE(igs112, igsCurve, 112, 0, IGS_DE_ALL)

int igs112::set_number_of_segments(int n) {
  if (n < 1 || n == INT_MAX || m_breakpoints.size()) return 0;
  if (!m_segments.expand(n) || !m_breakpoints.expand(n + 1)) {
    m_segments.clear(1);
    m_breakpoints.clear(1);
    return 0;
  }
  for (double& value : m_breakpoints) value = igs_unset_double;
  return 1;
}

int igs112::breakpoint(int index, double& value) const {
  if (index < 0 || index >= m_breakpoints.size()) return 0;
  value = m_breakpoints[index];
  return 1;
}

int igs112::set_breakpoint(int index, double value) {
  if (index < 0 || index >= m_breakpoints.size()) return 0;
  m_breakpoints[index] = value;
  return 1;
}

int igs112::set_all_breakpoints(int count, double const* const values) {
  if (!m_breakpoints.size() || count != m_breakpoints.size()) return 0;
  for (int i = 0; i < count; ++i) m_breakpoints[i] = values[i];
  return 1;
}

int igs112::segment(int i, igsCubicCoefficients& x, igsCubicCoefficients& y,
                    igsCubicCoefficients& z, double& t0, double& t1) const {
  if (!segment_in_range(i)) return 0;
  x = m_segments[i].x;
  y = m_segments[i].y;
  z = m_segments[i].z;
  t0 = m_breakpoints[i];
  t1 = m_breakpoints[i + 1];
  return 1;
}

int igs112::x_coefficients(int i, igsCubicCoefficients& x) const {
  return segment_in_range(i) && (x = m_segments[i].x, 1);
}
int igs112::y_coefficients(int i, igsCubicCoefficients& y) const {
  return segment_in_range(i) && (y = m_segments[i].y, 1);
}
int igs112::z_coefficients(int i, igsCubicCoefficients& z) const {
  return segment_in_range(i) && (z = m_segments[i].z, 1);
}

int igs112::set_xyz_coefficients(int i, igsCubicCoefficients const& x,
                                 igsCubicCoefficients const& y, igsCubicCoefficients const& z) {
  if (!segment_in_range(i) || !x.valid() || !y.valid() || !z.valid()) return 0;
  m_segments[i] = {x, y, z};
  return 1;
}

void igs112::xyz_derivatives(igsCubicDerivatives& x, igsCubicDerivatives& y,
                             igsCubicDerivatives& z) const {
  x = m_derivatives[0];
  y = m_derivatives[1];
  z = m_derivatives[2];
}

int igs112::set_xyz_derivatives(igsCubicDerivatives const& x, igsCubicDerivatives const& y,
                                igsCubicDerivatives const& z) {
  if (!x.valid() || !y.valid() || !z.valid()) return 0;
  m_derivatives[0] = x;
  m_derivatives[1] = y;
  m_derivatives[2] = z;
  return 1;
}

int igs112::set_continuity(int continuity) {
  if (static_cast<unsigned>(continuity) > 3u) return 0;
  m_continuity = continuity;
  return 1;
}

// --- Reading and writing -------------------------------------------------------------------

// Four values of the record; missing ones read as defaulted fields.
static void read_four(igsInStream& in, double* values) {
  for (int k = 0; k < 4; ++k) {
    values[k] = 0.0;
    in.read_double(values[k]);
  }
}

// A count that the record does not hold is a damaged count: the curve then has no size.
int igs112::read_pd_data(igsInStream& in) {
  int type = 0, dimensionality = 0, n = 0;
  igs_read_fields(in, type, m_continuity, dimensionality, n);
  m_spline_type = static_cast<igsSplineType>(type);
  m_dimensionality = static_cast<igsSplineDimensionality>(dimensionality);
  if (n < 1 || n == INT_MAX) {
    raise_error<igs112BadNumSegments>(n);
    return 0;
  }
  // A curve is sized once: a further record of the same entity, which a file whose back
  // pointers repeat gives, leaves the segments of the first as they were.
  if (m_breakpoints.size()) return 0;
  if (igs_read_breakpoints(in, m_breakpoints, n + 1) && read_segments(in) && read_derivatives(in))
    return 1;
  raise_error<igs112BadNumSegments>(n);
  m_breakpoints.clear(1);
  m_segments.clear(1);
  return 0;
}

int igs112::read_segments(igsInStream& in) {
  return igs_read_counted(in, m_segments, m_breakpoints.size() - 1, igs_max_initial_reserve / 12,
                          [&] {
                            Segment segment;
                            double values[4];
                            for (igsCubicCoefficients* c : {&segment.x, &segment.y, &segment.z}) {
                              read_four(in, values);
                              c->set_coefficients(values);
                            }
                            return segment;
                          });
}

int igs112::read_derivatives(igsInStream& in) {
  double values[4];
  for (igsCubicDerivatives& d : m_derivatives) {
    read_four(in, values);
    d.set_derivatives(values);
  }
  return 1;
}

static void write_four(igsOutStream& out, double const* values) {
  for (int k = 0; k < 4; ++k) out.write_double(values[k]);
}

// An unsized curve writes N = 0, which no reader takes.
void igs112::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, static_cast<int>(m_spline_type), m_continuity,
                   static_cast<int>(m_dimensionality), m_segments.size());
  {
    igsParametricFormat parametric(out);
    for (double value : m_breakpoints) out.write_double(value);
  }
  double values[4];
  for (Segment const& segment : m_segments)
    for (igsCubicCoefficients const* c : {&segment.x, &segment.y, &segment.z}) {
      c->coefficients(values);
      write_four(out, values);
    }
  for (igsCubicDerivatives const& d : m_derivatives) {
    d.derivatives(values);
    write_four(out, values);
  }
}

// --- Printing and checking -----------------------------------------------------------------

void igs112::print_segment(utOstream& out, int i) const {
  out << "Segment (" << i << ") = {\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    char const* const labels[] = {"XCoefficients = ", "YCoefficients = ", "ZCoefficients = "};
    igsCubicCoefficients const* c[] = {&m_segments[i].x, &m_segments[i].y, &m_segments[i].z};
    for (int k = 0; k < 3; ++k) {
      nested << labels[k];
      c[k]->print(nested);
      nested << "\n";
    }
  }
  out << "}\n";
}

void igs112::print_pd_data(utOstream& out) const {
  out << "SplineType = " << m_spline_type << igs_spline_type_word(m_spline_type) << "\n";
  out << "DegreeOfContinuity = " << m_continuity << "\n";
  out << "Dimensionality = " << m_dimensionality
      << (m_dimensionality == igsSplinePlanar      ? "(Planar)"
          : m_dimensionality == igsSplineNonPlanar ? "(Non-Planar)"
                                                   : "(Unknown)")
      << "\n";
  out << "NoOfSegments = " << m_segments.size() << "\n";
  igs_print_breakpoints(out, "Breakpoints = {", m_breakpoints);
  out << "Segments = {\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    for (int i = 0; i < m_segments.size(); ++i) print_segment(nested, i);
  }
  out << "}\n";
  out << "Derivatives = {\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    char const* const labels[] = {"XDerivatives = ", "YDerivatives = ", "ZDerivatives = "};
    for (int k = 0; k < 3; ++k) {
      nested << labels[k];
      m_derivatives[k].print(nested);
    }
  }
  out << "}\n";
}

// Raises all that it finds. The coefficients are not held to the spline type or the
// continuity: a linear curve may carry cubic terms.
void igs112::check_pd() const {
  if (static_cast<unsigned>(m_spline_type) - 1u > 5u)
    raise_error<igs112InvalidSplineType>(m_spline_type);
  if (static_cast<unsigned>(m_continuity) > 2u) raise_error<igs112InvalidContinuity>(m_continuity);
  if (static_cast<unsigned>(m_dimensionality) - 2u > 1u)
    raise_error<igs112InvalidDimensionality>(m_dimensionality);
  if (!m_segments.size()) raise_error<igs112NoConstruct>();
  igs_check_breakpoints(
      m_breakpoints, [&](int i) { raise_error<igs112UnsetBreakpoint>(i); },
      [&](int i, double value, double last) {
        raise_error<igs112BreakpointOutOfSequence>(i, value, last);
      });
  for (int i = 0; i < m_segments.size(); ++i)
    if (!m_segments[i].x.valid() || !m_segments[i].y.valid() || !m_segments[i].z.valid())
      raise_error<igs112InvalidCurveSegment>(i);
  for (igsCubicDerivatives const& d : m_derivatives)
    if (!d.valid()) {
      raise_error<igs112InvalidDerivatives>();
      break;
    }
}

int igs112InvalidSplineType::fix() {
  igs112* curve = igs_error_entity<igs112>(key());
  return curve && (curve->set_spline_type(igsSplineCubic), 1);
}
int igs112InvalidContinuity::fix() {
  igs112* curve = igs_error_entity<igs112>(key());
  return curve && curve->set_continuity(0);
}
int igs112InvalidDimensionality::fix() {
  igs112* curve = igs_error_entity<igs112>(key());
  return curve && (curve->set_dimensionality(igsSplineNonPlanar), 1);
}
