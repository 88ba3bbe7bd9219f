// The trimmed parametric surface (type 144): a basis surface cut by an outer boundary and any
// number of inner ones, each a curve on the surface (142).
#pragma once

#include "entities/surfaces/igsOnSurface.h"

class igs144 : public igsOnSurface<igsObject> {
  IGS_ENTITY_CLASS(igs144)

  // 0 when the outer boundary is the boundary of the surface, 1 when it is not; as the file
  // holds it.
  int outer_boundary_flag() const { return m_outer_flag; }
  void set_outer_boundary_flag(int flag) { m_outer_flag = flag; }
  igsObjectPtr const& outer_boundary() const { return m_outer; }
  // Refuses a null boundary.
  int set_outer_boundary(igsObjectPtr const& boundary) {
    return igs_set_reference(m_outer, boundary);
  }
  int number_of_inner_boundaries() const { return m_inner.size(); }
  // 1 and the boundary for a position in range; else 0.
  int inner_boundary(int position, igsObjectPtr& boundary) const {
    return igs_member(m_inner, position, boundary);
  }
  // Refuses a negative position and a null boundary; grows the list to hold the position.
  int set_inner_boundary(int position, igsObjectPtr const& boundary) {
    return boundary && igs_set_member(m_inner, position, boundary);
  }
  // Empties the list, then stores each member at its own position. A null member leaves its
  // place null (if a later member follows) and makes the result 0.
  int set_inner_boundaries(igsObjectPtrcoDynArr const& boundaries);

 protected:
  void unreference_children() override;

 private:
  [[no_unique_address]] igsObjectPtr m_outer; // the flag stands in its tail padding
  int m_outer_flag = 1;
  igsObjectPtrcoDynArr m_inner;
};
