#include "entities/solids/igs508.h"

#include "entities/igsEntityBases.h"
#include "entities/solids/igs502.h"
#include "entities/solids/igs504.h"
#include "entities/solids/igsSolidErrors.h"

#include <algorithm>

IGS_ENTITY_DEFINE(igs508, igsObject, 508, 1, IGS_DE_ALL & ~IGS_DE_MATRIX)

int igsHalfEdge::valid() const {
  return m_curve && m_curve->typeof(igsCurve::type()) && igs_flag_valid(m_isoparametric);
}

void igsHalfEdge::print_pd_data(utOstream& out) const {
  igs_print_reference(out, "Curve ptr", m_curve);
  out << "Curve is isoparametric = " << igs_flag_word(m_isoparametric, "TRUE", "FALSE", "Unknown")
      << "\n";
}

// The number of members of the list that an oriented edge of this type may name, and whether
// the list is of the class that goes with the type.
static int list_fits(igsObjectPtr const& list, int edge_type, int& count) {
  if (!list) return 0;
  if (edge_type == igsOrientedEdge::edge && list->isa(igs504::type())) {
    count = static_cast<igs504 const&>(*list).num_edges();
    return 1;
  }
  if (edge_type == igsOrientedEdge::vertex && list->isa(igs502::type())) {
    count = static_cast<igs502 const&>(*list).num_vertices();
    return 1;
  }
  return 0;
}

int igsOrientedEdge::valid() const {
  int count = 0;
  if (!list_fits(m_list, m_edge_type, count) || !igs_index_in(m_list_index, count) ||
      !igs_flag_valid(m_orientation))
    return 0;
  return std::all_of(begin(), end(),
                     [](igsHalfEdge const& h) { return h.valid(); });
}

void igsOrientedEdge::print_pd_data(utOstream& out) const {
  out << "Type of edge = " << igs_flag_word(m_edge_type, "Vertex", "Edge", "Unknown edge type")
      << "\n";
  igs_print_reference(out, "List", m_list);
  out << "List index = ";
  if (igs_unset(m_list_index))
    out << "(undefined)";
  else
    out << igs_index_to_file(m_list_index);
  out << "\n";
  out << "Orientation = " << igs_flag_word(m_orientation, "TRUE", "FALSE", "unknown orientation")
      << "\n";
  out << "Number of half edges = " << size() << "\n";
  for (int j = 0; j < size(); ++j)
    igs_print_numbered(out, "Half Edge", j, " ", [&](utOstream& o) { (*this)[j].print_pd_data(o); });
}

void igsOrientedEdge::unreference_children() {
  m_list.unreference();
  for (igsHalfEdge& half_edge : *this) half_edge.unreference_children();
}

igsOrientedEdge const& igs508::oriented_edge(int index) const {
  return igs_element(m_oriented_edges, index);
}

int igs508::set_oriented_edge(int index, igsOrientedEdge oriented_edge) {
  return igs_store_element(m_oriented_edges, index, std::move(oriented_edge), 1);
}

// The count pairs of flag and curve of one oriented edge, gathered in the scratch list and
// handed to the record whole.
static int read_half_edges(igsInStream& in, int count, igsHalfEdgecoDynArr& scratch,
                           igsOrientedEdge& oriented) {
  int read = igs_read_members(in, count, scratch, [&] {
    int flag = 0;
    igsObjectPtr curve;
    igs_read_fields(in, flag, curve);
    igsHalfEdge half_edge;
    half_edge.set_isoparametric(flag);
    half_edge.set_curve(std::move(curve));
    return half_edge;
  });
  return read && oriented.set_half_edges(scratch);
}

// A negative count fails the read; the count of half edges is not tested, and one below 1
// reads none. A record that ends early gives the members it holds.
int igs508::read_pd_data(igsInStream& in) {
  int count = 0;
  in.read_integer(count);
  if (count < 0) return 0;
  igsHalfEdgecoDynArr scratch;
  int half_edges_read = 1;
  int read = igs_read_members(in, count, m_oriented_edges, [&] {
    int type = 0, index = 0, orientation = 0, half_edges = 0;
    igsObjectPtr list;
    igs_read_fields(in, type, list, index, orientation, half_edges);
    igsOrientedEdge oriented;
    oriented.set_edge_type(type);
    oriented.set_list(std::move(list));
    oriented.set_list_index(igs_index_from_file(index));
    oriented.set_orientation(orientation);
    if (half_edges > 0 && !read_half_edges(in, half_edges, scratch, oriented))
      half_edges_read = 0;
    return oriented;
  });
  return read && half_edges_read;
}

void igs508::write_pd_data(igsOutStream& out) {
  igs_write_field(out, m_oriented_edges.size());
  for (igsOrientedEdge const& e : m_oriented_edges) {
    igs_write_fields(out, e.edge_type(), e.list(), igs_index_to_file(e.list_index()),
                     e.orientation(), e.num_half_edges());
    for (int j = 0; j < e.num_half_edges(); ++j)
      igs_write_fields(out, e.half_edge(j).isoparametric(), e.half_edge(j).curve());
  }
}

void igs508::print_pd_data(utOstream& out) const {
  out << "Number of oriented edges = " << m_oriented_edges.size() << "\n";
  for (int i = 0; i < m_oriented_edges.size(); ++i)
    igs_print_numbered(out, "Oriented Edge", i, " ",
                       [&](utOstream& o) { m_oriented_edges[i].print_pd_data(o); });
}

void igs508::check_pd() const {
  if (m_oriented_edges.empty()) raise_error<igs508NoOrientatedEdges>();
  check_oriented_edges();
}

// The list of oriented edge i, known to be of the class that its type should go with: the
// type, the index against the count, the list's own check. 1 when the index is in range and
// the list sound.
template <class WrongType, class OutOfRange, class Invalid>
int igs508::check_list(int i, int edge_type, int count) const {
  igsOrientedEdge const& oriented = m_oriented_edges[i];
  if (oriented.edge_type() != edge_type) raise_error<WrongType>(i);
  int in_range = igs_index_in(oriented.list_index(), count);
  if (!in_range) raise_error<OutOfRange>(i);
  int sound = oriented.list()->check();
  if (!sound) raise_error<Invalid>(i);
  return in_range && sound;
}

void igs508::check_oriented_edges() const {
  for (int i = 0; i < m_oriented_edges.size(); ++i) {
    igsOrientedEdge const& oriented = m_oriented_edges[i];
    igsObjectPtr const& list = oriented.list();
    if (!list) {
      raise_error<igs508OrientatedEdgeNullList>(i);
    } else if (list->isa(igs504::type())) {
      if (check_list<igs508OrientatedEdgeWrong504EdgeType, igs508OrientatedEdge504OffsetOutOfRange,
                     igs508OrientatedEdge504InvalidList>(
              i, igsOrientedEdge::edge, static_cast<igs504 const&>(*list).num_edges()))
        check_edge(i);
    } else if (list->isa(igs502::type())) {
      check_list<igs508OrientatedEdgeWrong502EdgeType, igs508OrientatedEdge502OffsetOutOfRange,
                 igs508OrientatedEdge502InvalidList>(
          i, igsOrientedEdge::vertex, static_cast<igs502 const&>(*list).num_vertices());
    } else {
      raise_error<igs508OrientatedEdgeWrongListType>(i);
    }
    if (!igs_flag_valid(oriented.orientation()))
      raise_error<igs508OrientatedEdgeInvalidEdgeDirection>(i);
    check_halfedges(i);
  }
}

// The number of vertices of a list that passed as a vertex list.
static int vertices_of(igsObjectPtr const& list) {
  return static_cast<igs502 const&>(*list).num_vertices();
}

// The edge that oriented edge i selects, its list known to be a sound edge list and the index
// in range: its curve, its two lists and the offsets into them.
void igs508::check_edge(int i) const {
  igsOrientedEdge const& oriented = m_oriented_edges[i];
  int e = oriented.list_index();
  igsEdge const& edge = static_cast<igs504 const&>(*oriented.list()).edge(e);
  check_child<igs508OrientatedEdge504EdgeNullCurve, igs508OrientatedEdge504EdgeWrongCurveType,
              igs508OrientatedEdge504EdgeInvalidCurve>(edge.curve(), igs_kind_of<igsCurve>, i, e);
  int first = check_child<igs508OrientatedEdge504EdgeNullFirstList,
                          igs508OrientatedEdge504EdgeWrongFirstListType,
                          igs508OrientatedEdge504EdgeInvalidFirstList>(
      edge.first_vertex_list(), igs_exactly<igs502>, i, e);
  int second = check_child<igs508OrientatedEdge504EdgeNullSecondList,
                           igs508OrientatedEdge504EdgeWrongSecondListType,
                           igs508OrientatedEdge504EdgeInvalidSecondList>(
      edge.second_vertex_list(), igs_exactly<igs502>, i, e);
  if (first && !igs_index_in(edge.first_offset(), vertices_of(edge.first_vertex_list())))
    raise_error<igs508OrientatedEdge504EdgeOutOfRangeFirstListOffset>(i, e);
  if (second && !igs_index_in(edge.second_offset(), vertices_of(edge.second_vertex_list())))
    raise_error<igs508OrientatedEdge504EdgeOutOfRangeSecondListOffset>(i, e);
}

void igs508::check_halfedges(int i) const {
  igsOrientedEdge const& oriented = m_oriented_edges[i];
  for (int j = 0; j < oriented.num_half_edges(); ++j) {
    igsHalfEdge const& half_edge = oriented.half_edge(j);
    check_child<igs508HalfEdgeNullCurve, igs508HalfEdgeWrongCurveType, igs508HalfEdgeInvalidCurve>(
        half_edge.curve(), igs_kind_of<igsCurve>, i, j);
    if (!igs_flag_valid(half_edge.isoparametric()))
      raise_error<igs508HalfEdgeInvalidCurveFlag>(i, j);
  }
}

void igs508::unreference_children() {
  igsObject::unreference_children();
  for (igsOrientedEdge& oriented : m_oriented_edges) oriented.unreference_children();
}

// Repairs. Each finds its loop by the error's key, then the oriented edge by position.

// Copies oriented edge i of the loop out, changes it and puts it back; 0 when the loop or the
// oriented edge is not there.
template <class Change> static int change_oriented_edge(int key, int i, Change const& change) {
  igs508* loop = igs_error_entity<igs508>(key);
  if (!loop || !igs_index_in(i, loop->num_oriented_edges())) return 0;
  igsOrientedEdge oriented = loop->oriented_edge(i);
  if (!change(oriented)) return 0;
  return loop->set_oriented_edge(i, std::move(oriented));
}

// The type is made to agree with the class of the list.
int igs508OrientatedEdgeWrong504EdgeType::fix() {
  return change_oriented_edge(key(), i(), [](igsOrientedEdge& oriented) {
    oriented.set_edge_type(igsOrientedEdge::edge);
    return 1;
  });
}

int igs508OrientatedEdgeWrong502EdgeType::fix() {
  return change_oriented_edge(key(), i(), [](igsOrientedEdge& oriented) {
    oriented.set_edge_type(igsOrientedEdge::vertex);
    return 1;
  });
}

int igs508OrientatedEdgeInvalidEdgeDirection::fix() {
  return change_oriented_edge(key(), i(), [](igsOrientedEdge& oriented) {
    oriented.set_orientation(1);
    return 1;
  });
}

int igs508HalfEdgeInvalidCurveFlag::fix() {
  int j = this->j();
  return change_oriented_edge(key(), i(), [j](igsOrientedEdge& oriented) {
    if (!igs_index_in(j, oriented.num_half_edges())) return 0;
    igsHalfEdge half_edge = oriented.half_edge(j);
    half_edge.set_isoparametric(1);
    return oriented.set_half_edge(j, std::move(half_edge));
  });
}

// The edge at e of the edge list of oriented edge i; a default-made edge when there is none.
static igsEdge const& edge_of(igs508 const& loop, int i, int e) {
  static igsEdge const none;
  igsObjectPtr const& list = loop.oriented_edge(i).list();
  if (!list || !list->isa(igs504::type())) return none;
  return static_cast<igs504 const&>(*list).edge(e);
}

// 1 when the list is a vertex list and its vertex at the index is set. A vertex list may be
// invalid only in vertices that nothing here uses.
static int vertex_is_set(igsObjectPtr const& list, int index) {
  if (!list || !list->isa(igs502::type())) return 0;
  igs502 const& vertices = static_cast<igs502 const&>(*list);
  return igs_index_in(index, vertices.num_vertices()) && !vertices.vertex(index).invalid();
}

// The children that the errors name, found from the loop and the error's positions.
static igsObject const* list_child(igs508 const& loop, igs508OrientatedEdge504InvalidList const& e) {
  return igs_target(loop.oriented_edge(e.i()).list());
}
static igsObject const* curve_child(igs508 const& loop,
                                    igs508OrientatedEdge504EdgeInvalidCurve const& e) {
  return igs_target(edge_of(loop, e.i(), e.e()).curve());
}
static igsObject const* first_list_child(igs508 const& loop,
                                         igs508OrientatedEdge504EdgeInvalidFirstList const& e) {
  return igs_target(edge_of(loop, e.i(), e.e()).first_vertex_list());
}
static igsObject const* second_list_child(igs508 const& loop,
                                          igs508OrientatedEdge504EdgeInvalidSecondList const& e) {
  return igs_target(edge_of(loop, e.i(), e.e()).second_vertex_list());
}
static igsObject const* half_edge_child(igs508 const& loop, igs508HalfEdgeInvalidCurve const& e) {
  return igs_target(loop.oriented_edge(e.i()).half_edge(e.j()).curve());
}

IGS_CHILD_REPAIR(igs508OrientatedEdge504InvalidList, igs508, list_child)
IGS_CHILD_REPAIR(igs508OrientatedEdge504EdgeInvalidCurve, igs508, curve_child)
IGS_CHILD_REPAIR(igs508HalfEdgeInvalidCurve, igs508, half_edge_child)
IGS_CHILD_OBJ(igs508OrientatedEdge504EdgeInvalidFirstList, igs508, first_list_child)
IGS_CHILD_OBJ(igs508OrientatedEdge504EdgeInvalidSecondList, igs508, second_list_child)

int igs508OrientatedEdge502InvalidList::fix() {
  igs508 const* loop = igs_error_entity<igs508>(key());
  if (!loop) return 0;
  igsOrientedEdge const& oriented = loop->oriented_edge(i());
  return vertex_is_set(oriented.list(), oriented.list_index());
}

// The vertex of the edge at e of oriented edge i that the two members of igsEdge name.
static int edge_vertex_is_set(int key, int i, int e, igsObjectPtr const& (igsEdge::*list)() const,
                              int (igsEdge::*offset)() const) {
  igs508 const* loop = igs_error_entity<igs508>(key);
  if (!loop) return 0;
  igsEdge const& edge = edge_of(*loop, i, e);
  return vertex_is_set((edge.*list)(), (edge.*offset)());
}

int igs508OrientatedEdge504EdgeInvalidFirstList::fix() {
  return edge_vertex_is_set(key(), i(), e(), &igsEdge::first_vertex_list, &igsEdge::first_offset);
}

int igs508OrientatedEdge504EdgeInvalidSecondList::fix() {
  return edge_vertex_is_set(key(), i(), e(), &igsEdge::second_vertex_list,
                            &igsEdge::second_offset);
}
