// The coefficients A, B, C, D of a cubic polynomial in one coordinate, A + B t + C t^2 + D t^3:
// a value, shared by the parametric spline curve and the rows of the patches of the parametric
// spline surface. Made unset.
#pragma once

#include "core/igsUnset.h"
#include "support/utOstream.h"

class igsCubicCoefficients {
 public:
  // 1 unless one of the four is unset.
  int valid() const;
  void coefficients(double* const values) const;
  void set_coefficients(double const* const values);
  void become(igsCubicCoefficients const& other) { *this = other; }
  // The four values separated by ",", with no end of line.
  void print(utOstream& out) const;

 private:
  double m_values[4] = {igs_unset_double, igs_unset_double, igs_unset_double, igs_unset_double};
};
