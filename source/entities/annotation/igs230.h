// The sectioned area (type 230): the area inside a boundary curve and outside its island
// curves, filled with a pattern of lines.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"
#include "support/coNames.h"

class igs230 : public igsAnnotation {
  IGS_ENTITY_CLASS(igs230)

  igsObjectPtr const& exterior_curve() const { return m_exterior; }
  void set_exterior_curve(igsObjectPtr const& curve) { m_exterior = curve; }
  // The island curve at an index; a null reference out of range.
  igsObjectPtr const& island_curve(int index) const;
  // Stores the curve at an index in range and gives 1; 0 elsewhere.
  int set_interior_curve(igsObjectPtr const& curve, int index);
  // Stores the number; one not below 0 makes that many null references in place of the
  // island curves. 0 when they could not be made, and nothing changed.
  int set_number_of_island_curves(int n);
  // As read or set; a negative number stays for the check to find.
  int number_of_interior_curves() const { return m_num_islands; }

  // The fill pattern, 0 to 19. Patterns 0 (none) and 19 (solid) have no lines, so setting one
  // of them puts the point, Z, distance and angle to 0.
  int pattern_code() const { return m_pattern; }
  void set_fill_pattern_code(int code);
  // A point that a line of the pattern passes through.
  giPoint2 const& point() const { return m_point; }
  void set_point(double x, double y) { m_point = giPoint2(x, y); }
  // The distance between the lines of the pattern.
  double pattern_spacing() const { return m_distance; }
  void set_distance(double distance) { m_distance = distance; }
  double z_depth() const { return m_z_depth; }
  void set_z_depth(double z) { m_z_depth = z; }
  giAngle const& angle() const { return m_angle; }
  void set_angle(giAngle const& angle) { m_angle = angle; }

 protected:
  void unreference_children() override;

 private:
  int has_pattern_lines() const { return m_pattern != 0 && m_pattern != 19; }

  igsObjectPtrcoDynArr m_islands;
  igsObjectPtr m_exterior;
  int m_pattern = igs_unset_int;
  giPoint2 m_point;
  double m_distance = igs_unset_double;
  double m_z_depth = igs_unset_double;
  giAngle m_angle{giAngleTangentTag, 1.0};
  int m_num_islands = igs_unset_int;
};
