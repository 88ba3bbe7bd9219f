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
