#include "entities/curves/igsCubicCoefficients.h"

int igsCubicCoefficients::valid() const {
  for (double value : m_values)
    if (igs_unset(value)) return 0;
  return 1;
}

void igsCubicCoefficients::coefficients(double* const values) const {
  for (int i = 0; i < 4; ++i) values[i] = m_values[i];
}

void igsCubicCoefficients::set_coefficients(double const* const values) {
  for (int i = 0; i < 4; ++i) m_values[i] = values[i];
}

void igsCubicCoefficients::print(utOstream& out) const {
  out << m_values[0] << "," << m_values[1] << "," << m_values[2] << "," << m_values[3];
}

char const* igs_spline_type_word(int type) {
  static char const* const words[] = {
      "(Linear)",  "(Quadratic)", "(Cubic)", "(Wilson-Fowler)", "(Modified Wilson-Fowler)",
      "(B Spline)"};
  return static_cast<unsigned>(type - 1) < 6u ? words[type - 1] : "(Unknown)";
}

void igs_print_breakpoints(utOstream& out, char const* heading,
                           coDynArr<double> const& breakpoints) {
  out << heading << "\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    for (double value : breakpoints) nested << value << "\n";
  }
  out << "}\n";
}

int igs_read_breakpoints(igsInStream& in, coDynArr<double>& breakpoints, int count) {
  return igs_read_counted(in, breakpoints, count, igs_max_initial_reserve, [&] {
    double value = 0.0;
    in.read_double(value);
    return value;
  });
}
