#include "entities/solids/igs504.h"

#include "entities/solids/igsBrepEntity.h"
#include "entities/solids/igsSolidErrors.h"

IGS_ENTITY_DEFINE(igs504, igsObject, 504, 1, IGS_DE_ALL & ~IGS_DE_MATRIX)

int igsEdge::valid() const {
  return m_first_offset >= 0 && m_second_offset >= 0 && m_first_list && m_second_list;
}

// An offset that was never set prints as undefined; the others as the file numbers them.
static void print_offset(utOstream& out, char const* label, int offset) {
  out << label;
  if (igs_unset(offset))
    out << "(Undefined)";
  else
    out << igs_index_to_file(offset);
  out << "\n";
}

void igsEdge::print_pd_data(utOstream& out) const {
  igs_print_reference(out, "Curve Ptr ", m_curve);
  igs_print_reference(out, "First list Ptr ", m_first_list);
  igs_print_reference(out, "Second list Ptr ", m_second_list);
  print_offset(out, "First offset = ", m_first_offset);
  print_offset(out, "Second offset = ", m_second_offset);
}

void igsEdge::unreference_children() {
  m_curve.unreference();
  m_first_list.unreference();
  m_second_list.unreference();
}

igsEdge const& igs504::edge(int index) const {
  return igs_element(m_edges, index);
}

int igs504::set_edge(int index, igsEdge const& edge) {
  return igs_store_element(m_edges, index, edge, 0);
}

// A count below 1 reads as an empty list, which the check reports. An index of 0 in the file
// is held as -1 and found out of range by the loops that use the edge.
int igs504::read_pd_data(igsInStream& in) {
  int count = 0;
  in.read_integer(count);
  return igs_read_members(in, count, m_edges, [&] {
    igsObjectPtr curve, first, second;
    int first_index = 0, second_index = 0;
    igs_read_fields(in, curve, first, first_index, second, second_index);
    igsEdge edge;
    edge.set_curve(std::move(curve));
    edge.set_first_vertex(std::move(first), igs_index_from_file(first_index));
    edge.set_second_vertex(std::move(second), igs_index_from_file(second_index));
    return edge;
  });
}

void igs504::write_pd_data(igsOutStream& out) {
  igs_write_field(out, m_edges.size());
  for (igsEdge const& edge : m_edges)
    igs_write_fields(out, edge.curve(), edge.first_vertex_list(),
                     igs_index_to_file(edge.first_offset()), edge.second_vertex_list(),
                     igs_index_to_file(edge.second_offset()));
}

void igs504::print_pd_data(utOstream& out) const {
  out << "Number of edges = " << m_edges.size() << "\n";
  for (int i = 0; i < m_edges.size(); ++i)
    igs_print_numbered(out, "Edge", i, " ", [&](utOstream& o) { m_edges[i].print_pd_data(o); });
}

// The edges themselves are judged by the loops that use them.
void igs504::check_pd() const {
  if (m_edges.empty()) raise_error<igs504NoEdges>();
}

void igs504::unreference_children() {
  igsObject::unreference_children();
  for (igsEdge& edge : m_edges) edge.unreference_children();
}
