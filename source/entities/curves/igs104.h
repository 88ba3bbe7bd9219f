// The conic arc entity (type 104, forms 0 to 3): part of the conic A x^2 + B xy + C y^2 + D x +
// E y + F = 0 in the plane Z = ZT, from the start point to the end point. The coefficients
// alone say what the conic is; the form (1 ellipse, 2 hyperbola, 3 parabola, 0 not said) is
// held to them.
#pragma once

#include "entities/curves/igsTrimmedConic.h"

// The kinds of conic. Parabola and hyperbola go the other way round from their forms.
enum igsConicType : int {
  igsConicUnknown = 0,
  igsConicEllipse = 1,
  igsConicParabola = 2,
  igsConicHyperbola = 3
};

// The form that says the kind.
inline int igs_conic_form(igsConicType type) {
  static int const forms[] = {0, 1, 3, 2};
  return forms[type];
}

// A, B, C, D, E, F: a plain value, made unset.
class igsConicCoeffs {
 public:
  igsConicCoeffs() = default;
  igsConicCoeffs(double a, double b, double c, double d, double e, double f)
      : m_values{a, b, c, d, e, f} {}
  explicit igsConicCoeffs(double const* const values) {
    for (int i = 0; i < 6; ++i) m_values[i] = values[i];
  }
  void become(igsConicCoeffs const& other) { *this = other; }
  void coeffs(double* const values) const {
    for (int i = 0; i < 6; ++i) values[i] = m_values[i];
  }
  // 1 unless one of the six is unset.
  int valid() const;
  // The kind, by the determinants of the conic; 0 for a degenerate one.
  igsConicType conic_type() const;

 private:
  double m_values[6] = {igs_unset_double, igs_unset_double, igs_unset_double,
                        igs_unset_double, igs_unset_double, igs_unset_double};
};

class igs104 : public igsTrimmedConic {
  IGS_ENTITY_CLASS(igs104)

  igsConicCoeffs const& coeffs() const { return m_coeffs; }
  // Stores coefficients of a known kind and gives 1; 0 and nothing stored for a degenerate
  // conic.
  int set_coeffs(igsConicCoeffs const& coeffs);

 private:
  igsConicCoeffs m_coeffs;
};
