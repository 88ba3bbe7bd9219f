// The shape of one character of a text font definition: pen motions on a grid, each from the
// end of the one before to its own end point, drawn or not.
#pragma once

#include "core/igsUnset.h"
#include "support/coNames.h"
#include "support/giGeometry.h"

class igsCharacter {
 public:
  igsCharacter() = default;
  // Sized for the motions, with its start point (0, 0) as end point 0 and its next start point
  // (next X, 0).
  igsCharacter(int scale, int next_x, int motions, int ascii_code);

  // Motion `motion` ends at `end`, drawn when `pen` is 0 (the pen down); it starts where the
  // motion before ended, so `start` is not stored. Motion 0 first puts the start point as end
  // point 0. A negative motion is ignored.
  void draw_line(int motion, giPoint2 const& start, giPoint2 const& end, int pen);
  // Below 1 does nothing; else n motions with fresh arrays of n flags and n + 1 points.
  void set_size(int motions);

  int number_of_pen_motions() const { return m_motions; }
  int ascii_code() const { return m_ascii_code; }
  int scale() const { return m_scale; }
  int next_x() const { return m_next_x; }
  giPoint2 const& start_point() const { return m_start; }
  giPoint2 const& next_start_point() const { return m_next_start; }
  // The motions the arrays hold; a damaged record can hold fewer than its count.
  int number_of_flags() const { return m_pen.size(); }
  // The point at an index in range, else an unset point.
  giPoint2 const& read_end_point(int index) const;
  // The flag of a motion in range, else 0.
  int read_pen_status(int motion) const;
  // Empty arrays, start points unset, a count, scale or next X not above 0, or a negative
  // character code.
  int invalid() const;

 protected:
  // Stores the point as end point `motion` + 1.
  void add_point(giPoint2 const& point, int motion);
  void add_pen_status(int pen, int motion);

 private:
  int m_motions = igs_unset_int;
  int m_ascii_code = igs_unset_int;
  utBoolcoDynArr m_pen;
  giPoint2coDynArr m_points;
  int m_scale = igs_unset_int;
  int m_next_x = igs_unset_int;
  giPoint2 m_start;
  giPoint2 m_next_start;
};
