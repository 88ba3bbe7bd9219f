// What the B-spline curve and the B-spline surface share: the store of their values in the
// order of the parameters, the checks of a knot vector and the repair that pulls close knots
// together, and the printing of flags and knots.
#pragma once

#include "entities/igsEntity.h"
#include "support/coNames.h"

#include <cmath>

// Reads `count` values into the store from `first` on. Within the room already made a record
// that ends early gives 0.0 for the values it lacks, as for any defaulted field; beyond it a
// value is taken only while the record lasts. 1 when all were read; 0 when the record ended
// first (`ended` is then 1) or the store could not grow.
int igs_read_values(igsInStream& in, doublecoDynArr& values, int first, int count, int& ended);

// From `first` on, a spline's store holds the weights of its control points, then their X, Y
// and Z. Weights that are all exactly 1, as a polynomial spline's are, are not kept: the store
// is then `points` values shorter and the coordinates start at `first`. Setting a weight
// other than 1 brings them back.
inline bool igs_unit_weights(doublecoDynArr const& values, int first, int points) {
  return values.size() == first + 3 * points;
}
inline int igs_first_coordinate(doublecoDynArr const& values, int first, int points) {
  return igs_unit_weights(values, first, points) ? first : first + points;
}
inline double igs_weight(doublecoDynArr const& values, int first, int points, int index) {
  return igs_unit_weights(values, first, points) ? 1.0 : values[first + index];
}
// 0 when the weights could not be brought back.
int igs_set_weight(doublecoDynArr& values, int first, int points, int index, double value);
// Reads the weights, then the coordinates, as igs_read_values does; the store then holds
// exactly the values up to the last coordinate.
int igs_read_weighted_points(igsInStream& in, doublecoDynArr& values, int first, int points,
                             int& ended);
// Writes the weights, then the coordinates.
void igs_write_weighted_points(igsOutStream& out, doublecoDynArr const& values, int first,
                               int points);
// The room to make before reading a store of `knots` knots and `points` control points: as
// for weights that are not kept, and not above igs_max_initial_reserve.
inline int igs_reading_room(long long knots, long long points) {
  long long room = knots + 3 * points;
  return room < igs_max_initial_reserve ? static_cast<int>(room) : igs_max_initial_reserve;
}

// The number, then its word: `truth` is the value that means true.
void igs_print_flag(utOstream& out, char const* label, int flag, int truth);
// The heading, then the knots one tab level deeper, one line for each run of equal knots,
// then "}".
void igs_print_knots(utOstream& out, char const* heading, double const* knots, int count);

// Knots closer than the tolerance become multiple knots, for a vector of n knots of order k:
// from the top of the range down, a close pair takes the upper knot's value; then from the
// bottom up, the lower knot's. The pair at the bottom of the range is left as it is. A vector
// of no order (an unsized one) has no range to walk.
template <class Get, class Set>
void igs_pull_close_knots(int k, int n, Get const& at, Set const& set) {
  if (k < 1) return;
  double const tolerance = kvnTolCoincBreakPoints.value();
  int const m = n - k;
  for (int i = m; i > k; --i) {
    double d = at(i) - at(i - 1);
    if (!(d > 0.0 && d < tolerance)) break;
    set(i - 1, at(i));
  }
  for (int i = k; i < m; ++i) {
    double d = at(i + 1) - at(i);
    if (d > 0.0 && d < tolerance) set(i + 1, at(i));
  }
}

// The base of the spline entities, between the entity class and its base in the class tree.
template <class Base> class igsSplineEntity : public Base {
 protected:
  igsSplineEntity() = default;

  // The checks of a vector of n knots of order k, with the limits of the parameter that run
  // over it. A knot is compared with the greatest knot before it, so that one knot too low
  // raises one error, not two; the range runs from knot k-1 to knot n-k, and equal knots in
  // it are multiple knots and pass. A missing vector (n 0) is skipped.
  template <class Unset, class OutOfSequence, class MinOut, class MaxOut, class NoRange,
            class TooClose>
  void check_knot_vector(double const* knots, int n, int k, double start, double end) const {
    if (!n) return;
    double last = igs_unset_double;
    for (int i = 0; i < n; ++i) {
      if (igs_unset(knots[i])) this->template raise_error<Unset>(i);
      if (last > knots[i])
        this->template raise_error<OutOfSequence>(i, knots[i], last);
      else
        last = knots[i];
    }
    if (k < 2) return;
    double lo = knots[k - 1], hi = knots[n - k];
    if (start < lo || start > hi) this->template raise_error<MinOut>(start, lo, hi);
    if (end < lo || end > hi) this->template raise_error<MaxOut>(end, lo, hi);
    if (lo >= hi) this->template raise_error<NoRange>(lo);
    double tolerance = kvnTolCoincBreakPoints.value();
    for (int i = k - 1; i < n - k; ++i) {
      double d = std::fabs(knots[i + 1] - knots[i]);
      if (d > 0.0 && d < tolerance) {
        this->template raise_error<TooClose>();
        break;
      }
    }
  }
};
