#include "entities/solids/igs510.h"

#include "entities/igsEntityBases.h"
#include "entities/solids/igs508.h"
#include "entities/solids/igsSolidErrors.h"

IGS_ENTITY_DEFINE(igs510, igsObject, 510, 1, IGS_DE_ALL & ~IGS_DE_MATRIX)

// The count stands ahead of the flag; a count below 1 reads no loops.
int igs510::read_pd_data(igsInStream& in) {
  igsObjectPtr surface;
  int count = 0, outer = 0;
  igs_read_fields(in, surface, count, outer);
  m_surface = std::move(surface);
  m_outer_loop = outer;
  return igs_read_members(in, count, m_loops, [&] {
    igsObjectPtr loop;
    igs_read_field(in, loop);
    return loop;
  });
}

void igs510::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_surface, m_loops.size(), m_outer_loop);
  for (igsObjectPtr const& loop : m_loops) igs_write_field(out, loop);
}

void igs510::print_pd_data(utOstream& out) const {
  igs_print_reference(out, "Surface Ptr", m_surface);
  out << "First loop is outer = " << igs_flag_word(m_outer_loop, "True", "False", "(undefined)")
      << "\n";
  out << "Number of loops = " << m_loops.size() << "\n";
  for (int i = 0; i < m_loops.size(); ++i)
    igs_print_numbered(out, "Loop", i, "", [&](utOstream& o) {
      if (m_loops[i])
        m_loops[i]->print(o);
      else
        o << "(NullPointer)\n";
    });
}

// A face lies on a surface, never on a trimmed one.
void igs510::check_pd() const {
  check_child<igs510NullSurface, igs510WrongSurfaceType, igs510InvalidSurface>(
      m_surface, igs_kind_of<igsSurface>);
  if (!igs_flag_valid(m_outer_loop)) raise_error<igs510InvalidOuterLoopFlag>();
  if (m_loops.empty()) raise_error<igs510NoLoops>();
  for (int i = 0; i < m_loops.size(); ++i) {
    igsObjectPtr const& loop = m_loops[i];
    if (!loop) {
      raise_error<igs510NullLoop>();
      continue;
    }
    if (!loop->isa(igs508::type())) raise_error<igs510WrongLoopType>();
    if (!loop->check()) raise_error<igs510InvalidLoop>(i);
  }
}

void igs510::unreference_children() {
  igsObject::unreference_children();
  m_surface.unreference();
  for (igsObjectPtr& loop : m_loops) loop.unreference();
}

int igs510InvalidOuterLoopFlag::fix() {
  igs510* face = igs_error_entity<igs510>(key());
  if (!face) return 0;
  face->set_outer_loop(0);
  return 1;
}

static igsObject const* surface_child(igs510 const& face, igs510InvalidSurface const&) {
  return igs_target(face.basis_surface());
}
static igsObject const* loop_child(igs510 const& face, igs510InvalidLoop const& e) {
  return igs_target(face.loop(e.loop()));
}

IGS_CHILD_REPAIR(igs510InvalidSurface, igs510, surface_child)
IGS_CHILD_REPAIR(igs510InvalidLoop, igs510, loop_child)
