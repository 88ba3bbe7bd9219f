// The loop (type 508, form 1) and its records. A loop is a list of oriented edges, each naming
// an edge of an edge list or a vertex of a vertex list by list and index, with the curves of
// that edge in the parameter space of the face (its half edges). The loop is where the
// boundary representation is cross-checked: it follows each list, holds each index to the
// size of the list, and looks into the edge that the index selects.
#pragma once

#include "entities/solids/igsBrepEntity.h"

// A curve of an oriented edge in the parameter space of a surface: a value.
class igsHalfEdge {
 public:
  igsObjectPtr const& curve() const { return m_curve; }
  int isoparametric() const { return m_isoparametric; }
  void set_curve(igsObjectPtr curve) { m_curve = std::move(curve); }
  void set_isoparametric(int flag) { m_isoparametric = flag; }
  // 1 when the curve is a curve and the flag is 0 or 1.
  int valid() const;
  void print_pd_data(utOstream& out) const;
  void unreference_children() { m_curve.unreference(); }

 private:
  // The flag stands in the reference's tail padding, as in the records below.
  [[no_unique_address]] igsObjectPtr m_curve;
  int m_isoparametric = igs_unset_int;
};
using igsHalfEdgecoDynArr = coDynArr<igsHalfEdge>;
using igsHalfEdgeExactArr = igsExactArray<igsHalfEdge>;

// One member of a loop: an edge (type 0) of an edge list, or a vertex (type 1) of a vertex
// list, by its 0-based index in the list, with its direction and its half edges. A value. The
// half edges are its private base rather than a member, so that the first field below lies in
// the base's padding: 40 bytes a record instead of 48, in files that hold them by the hundred
// thousand.
class igsOrientedEdge : private igsHalfEdgeExactArr {
 public:
  enum { edge = 0, vertex = 1 };

  int edge_type() const { return m_edge_type; }
  igsObjectPtr const& list() const { return m_list; }
  int list_index() const { return m_list_index; }
  int orientation() const { return m_orientation; }
  int num_half_edges() const { return size(); }
  // The half edge at the index; a default-made one outside the list.
  igsHalfEdge const& half_edge(int index) const { return element(index); }
  void set_edge_type(int type) { m_edge_type = type; }
  void set_list(igsObjectPtr list) { m_list = std::move(list); }
  void set_list_index(int index) { m_list_index = index; }
  void set_orientation(int orientation) { m_orientation = orientation; }
  // A hint of the count to come, which this record, holding its half edges exactly, does not
  // need; the number of half edges stays.
  void set_num_half_edges(int) {}
  // Stores the half edge, growing the list to index + 1; 0 for a negative index or when the
  // list could not grow.
  int set_half_edge(int index, igsHalfEdge half_edge) { return store(index, std::move(half_edge)); }
  // Takes the half edges of the list in place of its own; 0 when there was no memory.
  int set_half_edges(igsHalfEdgecoDynArr& half_edges) { return take(half_edges); }
  // 1 when the list is an edge list with type 0 or a vertex list with type 1, the index lies
  // in it, the orientation is 0 or 1 and every half edge is valid.
  int valid() const;
  void print_pd_data(utOstream& out) const;
  // Drops the list, then each half edge's curve.
  void unreference_children();

 private:
  [[no_unique_address]] igsObjectPtr m_list;
  int m_edge_type = igs_unset_int;
  int m_list_index = igs_unset_int;
  int m_orientation = igs_unset_int;
};
using igsOrientedEdgecoDynArr = coDynArr<igsOrientedEdge>;

class igs508 : public igsBrepEntity<igsObject> {
  IGS_ENTITY_CLASS(igs508)

  int num_oriented_edges() const { return m_oriented_edges.size(); }
  // The oriented edge at the index; a default-made one outside the list.
  igsOrientedEdge const& oriented_edge(int index) const;
  // Copies the record in, growing the list to index + 1; 0 for a negative index or when the
  // list could not grow.
  int set_oriented_edge(int index, igsOrientedEdge oriented_edge);

 protected:
  void unreference_children() override;

 private:
  template <class WrongType, class OutOfRange, class Invalid>
  int check_list(int i, int edge_type, int count) const;
  void check_oriented_edges() const;
  void check_edge(int i) const;
  void check_halfedges(int i) const;

  igsOrientedEdgecoDynArr m_oriented_edges;
};
