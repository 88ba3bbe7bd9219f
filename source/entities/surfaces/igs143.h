// The bounded surface (type 143): a basis surface and the boundaries (141s) that cut it.
#pragma once

#include "entities/surfaces/igsOnSurface.h"

class igs143 : public igsOnSurface<igsObject> {
  IGS_ENTITY_CLASS(igs143)

  // 0 model-space curves only, 1 both; as the file holds it.
  int bounded_surface_representation() const { return m_representation; }
  void set_bounded_surface_representation(int value) { m_representation = value; }
  int number_of_boundaries() const { return m_boundaries.size(); }
  // 1 and the boundary for a position in range; else 0.
  int boundary(int position, igsObjectPtr& boundary) const {
    return igs_member(m_boundaries, position, boundary);
  }
  // Refuses a negative position and a null boundary; grows the list to hold the position.
  int set_boundary(int position, igsObjectPtr const& boundary) {
    return boundary && igs_set_member(m_boundaries, position, boundary);
  }

 protected:
  void unreference_children() override;

 private:
  int m_representation = 0;
  igsObjectPtrcoDynArr m_boundaries;
};
