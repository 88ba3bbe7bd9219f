// The leader (type 214): an arrowhead at a point and the segments of the line that leads from
// it; its form is the shape of the arrowhead.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"
#include "support/coNames.h"

class igs214 : public igsAnnotation {
  IGS_ENTITY_CLASS(igs214)

  // The number of segments as read or set; a negative one stays for the check to find.
  int number_of_segments() const { return m_num_segments; }
  // Stores the number; one not below 0 makes that many unset segment ends. 0 when they could
  // not be made, and nothing changed.
  int set_num_segments(int n);
  // The end of the segment at an index; an unset point out of range.
  giPoint2 segment_endpoint(int index) const;
  // Stores the end at an index in range and gives 1; 0 elsewhere.
  int add_segment(giPoint2 const& point, int index);
  giPoint2 const& arrow_coords() const { return m_arrow; }
  void set_arrow_coords(giPoint2 const& point) { m_arrow = point; }
  double height() const { return m_height; }
  double length() const { return m_length; }
  void set_arrowhead_dim(double height, double length) {
    m_height = height;
    m_length = length;
  }
  double z_depth() const { return m_z_depth; }
  void set_z_depth(double z) { m_z_depth = z; }
  int form_number() const { return directory_entry().form_number(); }

 private:
  int m_num_segments = igs_unset_int;
  giPoint2coDynArr m_segments;
  giPoint2 m_arrow;
  double m_height = igs_unset_double;
  double m_length = igs_unset_double;
  double m_z_depth = -2147483647.0;
};
