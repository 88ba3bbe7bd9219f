// The general symbol (type 228): a note, the geometry that draws the symbol and any number of
// leaders. Form 0 may have no note. A geometry reference that stays bad after its own repairs
// is dropped, as the leaders are.
#pragma once

#include "entities/annotation/igsDimension.h"

class igs228 : public igsDimension {
  IGS_ENTITY_CLASS(igs228)

  // The number of geometry references as read or set; a negative one stays for the check.
  int num_objects() const { return m_num_objects; }
  // Stores the number; one not below 0 makes that many null references in place of the
  // geometry. 0 when they could not be made, and nothing changed.
  int set_num_objects(int n);
  // Stores the reference at an index in range and gives 1; 0 elsewhere.
  int add_geometry(igsObjectPtr const& geometry, int index);
  // The reference at an index; a null one out of range.
  igsObjectPtr const& get_geometry(int index) const;
  int get_geom_index(int original) const { return m_geometry_index.current(original); }
  void set_geom_index(int original, int current) { m_geometry_index.set(original, current); }
  void set_index_list() const override;
  int form_number() const { return directory_entry().form_number(); }

  // The repair of a bad geometry reference: drops those whose entities have logged errors and
  // gives the number left.
  int drop_bad_geometry();

 protected:
  void unreference_children() override;

 private:
  igsObjectPtrcoDynArr m_geometry;
  int m_num_objects = 0;
  mutable igsIndexList m_geometry_index;
};
