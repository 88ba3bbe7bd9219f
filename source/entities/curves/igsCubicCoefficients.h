// The coefficients A, B, C, D of a cubic polynomial in one coordinate, A + B t + C t^2 + D t^3:
// a value, shared by the parametric spline curve and the rows of the patches of the parametric
// spline surface. Made unset. With it what the two spline entities share: their breakpoints
// and the words of their spline type.
#pragma once

#include "entities/igsEntity.h"
#include "support/coDynArr.h"

class igsCubicCoefficients {
 public:
  // 1 unless one of the four is unset. Not virtual: a patch holds twelve of these.
  int valid() const;
  void coefficients(double* const values) const;
  void set_coefficients(double const* const values);
  void become(igsCubicCoefficients const& other) { *this = other; }
  // The four values separated by ",", with no end of line.
  void print(utOstream& out) const;

 private:
  double m_values[4] = {igs_unset_double, igs_unset_double, igs_unset_double, igs_unset_double};
};

// The value and the three derivative terms of one coordinate at the end of a spline curve:
// four values as above, printed with an end of line.
class igsCubicDerivatives : private igsCubicCoefficients {
 public:
  using igsCubicCoefficients::valid;
  void derivatives(double* const values) const { coefficients(values); }
  void set_derivatives(double const* const values) { set_coefficients(values); }
  void become(igsCubicDerivatives const& other) { *this = other; }
  void print(utOstream& out) const {
    igsCubicCoefficients::print(out);
    out << "\n";
  }
};

// "(Linear)" to "(B Spline)" for the spline types 1 to 6, else "(Unknown)".
char const* igs_spline_type_word(int type);

// The heading, the breakpoints one a line a tab level deeper, then "}".
void igs_print_breakpoints(utOstream& out, char const* heading,
                           coDynArr<double> const& breakpoints);

// Breakpoints in order, each compared with the greatest before it; equal ones pass.
template <class Unset, class OutOfSequence>
void igs_check_breakpoints(coDynArr<double> const& breakpoints, Unset const& unset,
                           OutOfSequence const& out_of_sequence) {
  double previous = igs_unset_double;
  for (int i = 0; i < breakpoints.size(); ++i) {
    double value = breakpoints[i];
    if (igs_unset(value)) unset(i);
    if (previous > value)
      out_of_sequence(i, value, previous);
    else
      previous = value;
  }
}

// Appends `count` values given by `read_one()`: within the room made first, and beyond it
// while the record lasts, so that a damaged count costs no more memory than the record holds.
// 0 when the record ended first or memory ran out.
template <class T, class ReadOne>
int igs_read_counted(igsInStream& in, coDynArr<T>& values, int count, int room,
                     ReadOne const& read_one) {
  if (!values.reserve(count < room ? count : room)) return 0;
  for (int i = 0; i < count; ++i)
    if ((i >= room && in.frozen()) || !values.append(read_one())) return 0;
  return 1;
}

// `count` breakpoints, as above.
int igs_read_breakpoints(igsInStream& in, coDynArr<double>& breakpoints, int count);
