// The vertex list (type 502, form 1): the points that the edges of a boundary representation
// name by their index in it.
#pragma once

#include "entities/igsEntity.h"
#include "support/coNames.h"

class igs502 : public igsObject {
  IGS_ENTITY_CLASS(igs502)

  int num_vertices() const { return m_vertices.size(); }
  // The point at the index; an unset point outside the list.
  giPoint3 const& vertex(int index) const;
  // Stores the point, without a test of it, at an index below the count; 0 elsewhere.
  int set_vertex(int index, giPoint3 const& point);
  // Makes room for the size and raises the count to it; never lowers the count. 0 when the
  // list could not grow.
  int set_size(int size) { return m_vertices.expand(size); }

 private:
  giPoint3coDynArr m_vertices;
};
