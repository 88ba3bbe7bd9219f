// The face (type 510, form 1): a surface bounded by a list of loops, the first of which may be
// its outer loop.
#pragma once

#include "entities/solids/igsBrepEntity.h"
#include "support/coNames.h"

class igs510 : public igsBrepEntity<igsObject> {
  IGS_ENTITY_CLASS(igs510)

  igsObjectPtr const& basis_surface() const { return m_surface; }
  // 1 when the first loop is the outer loop, 0 when it is not.
  int outer_loop() const { return m_outer_loop; }
  int num_loops() const { return m_loops.size(); }
  // The loop at the index; a null reference outside the list.
  igsObjectPtr const& loop(int index) const { return igs_element(m_loops, index); }
  // Not in the file: set when solids are taken apart into faces.
  int orientation() const { return m_orientation; }
  int solid_id() const { return m_solid_id; }

  // Store without a test; a null surface too.
  void set_basis_surface(igsObjectPtr surface) { m_surface = std::move(surface); }
  void set_outer_loop(int flag) { m_outer_loop = flag; }
  void set_orientation(int orientation) { m_orientation = orientation; }
  void set_solid_id(int id) { m_solid_id = id; }
  // Stores the loop, growing the list to index + 1; 0 for a negative index or when the list
  // could not grow.
  int set_loop(igsObjectPtr loop, int index) {
    return igs_store_element(m_loops, index, std::move(loop), 1);
  }

 protected:
  void unreference_children() override;

 private:
  [[no_unique_address]] igsObjectPtr m_surface; // the flag stands in its tail padding
  int m_outer_loop = igs_unset_int;
  igsObjectPtrcoDynArr m_loops;
  int m_orientation = igs_unset_int;
  int m_solid_id = 0;
};
