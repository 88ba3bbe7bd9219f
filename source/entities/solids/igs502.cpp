#include "entities/solids/igs502.h"

#include "entities/solids/igsBrepEntity.h"
#include "entities/solids/igsSolidErrors.h"

IGS_ENTITY_DEFINE(igs502, igsObject, 502, 1, IGS_DE_ALL & ~IGS_DE_MATRIX)

giPoint3 const& igs502::vertex(int index) const {
  return igs_element(m_vertices, index);
}

int igs502::set_vertex(int index, giPoint3 const& point) {
  return igs_store_element(m_vertices, index, point, 0);
}

// A negative count fails the read.
int igs502::read_pd_data(igsInStream& in) {
  int count = 0;
  in.read_integer(count);
  if (count < 0) return 0;
  return igs_read_members(in, count, m_vertices, [&] {
    giPoint3 point;
    igs_read_field(in, point);
    return point;
  });
}

void igs502::write_pd_data(igsOutStream& out) {
  igs_write_field(out, m_vertices.size());
  for (giPoint3 const& point : m_vertices) igs_write_field(out, point);
}

void igs502::print_pd_data(utOstream& out) const {
  for (int i = 0; i < m_vertices.size(); ++i) {
    giPoint3 const& p = m_vertices[i];
    out << "Vertex (" << igs_index_to_file(i) << ") = { " << p.x() << ", " << p.y() << ", "
        << p.z() << " }\n";
  }
}

// One error for each unset point; the error does not say which.
void igs502::check_pd() const {
  if (m_vertices.empty()) raise_error<igs502NoVertices>();
  for (giPoint3 const& point : m_vertices)
    if (point.invalid()) raise_error<igs502InvalidVertex>();
}
