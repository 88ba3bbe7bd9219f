// The edge list (type 504, form 1) and its records: each edge names its curve and its two
// vertices, as a vertex list and an index in it. An edge is judged by the loops that use it.
#pragma once

#include "entities/igsEntity.h"
#include "support/coDynArr.h"

// One edge of an edge list: a value, with no Directory Entry of its own. Offsets are 0-based.
class igsEdge {
 public:
  igsObjectPtr const& curve() const { return m_curve; }
  igsObjectPtr const& first_vertex_list() const { return m_first_list; }
  igsObjectPtr const& second_vertex_list() const { return m_second_list; }
  int first_offset() const { return m_first_offset; }
  int second_offset() const { return m_second_offset; }
  // The setters take references by value and move them in: see igs_store_element.
  void set_curve(igsObjectPtr curve) { m_curve = std::move(curve); }
  void set_first_vertex(igsObjectPtr list, int offset) {
    m_first_list = std::move(list);
    m_first_offset = offset;
  }
  void set_second_vertex(igsObjectPtr list, int offset) {
    m_second_list = std::move(list);
    m_second_offset = offset;
  }
  // 1 when both lists are there and both offsets are not negative; neither the curve nor the
  // size of the lists is looked at.
  int valid() const;
  void print_pd_data(utOstream& out) const;
  // Drops the curve, then the first list, then the second.
  void unreference_children();

 private:
  // Each offset stands in the tail padding of its list's reference.
  igsObjectPtr m_curve;
  [[no_unique_address]] igsObjectPtr m_first_list;
  int m_first_offset = igs_unset_int;
  [[no_unique_address]] igsObjectPtr m_second_list;
  int m_second_offset = igs_unset_int;
};
using igsEdgecoDynArr = coDynArr<igsEdge>;

class igs504 : public igsObject {
  IGS_ENTITY_CLASS(igs504)

  int num_edges() const { return m_edges.size(); }
  // The edge at the index; a default-made one outside the list.
  igsEdge const& edge(int index) const;
  // Copies the edge into the slot of an index below the count; 0 elsewhere.
  int set_edge(int index, igsEdge const& edge);
  // Makes room for the size and raises the count to it; never lowers the count.
  int set_size(int size) { return m_edges.expand(size); }

 protected:
  void unreference_children() override;

 private:
  igsEdgecoDynArr m_edges;
};
