// One patch of a parametric spline surface: for each of x, y and z the 16 coefficients of a
// bicubic polynomial in s and t, held as four cubics in s, one for each power of t. A value,
// made unset.
#pragma once

#include "entities/curves/igsCubicCoefficients.h"

class igsCubicPatch {
 public:
  // Copy the three sets of 16 out of the patch, or into it.
  void coefficients(double* const x, double* const y, double* const z) const;
  void set_coefficients(double const* const x, double const* const y, double const* const z);
  void become(igsCubicPatch const& other) { *this = other; }
  // 1 unless one of the 48 is unset.
  int valid() const;
  // The x, y and z blocks of four lines, four values a line, each value followed by "," but
  // the last of all.
  void print(utOstream& out) const;

 private:
  // x in rows 0 to 3, y in 4 to 7, z in 8 to 11.
  igsCubicCoefficients m_rows[12];
};
