#include "entities/solids/igs186.h"

#include "entities/solids/igsSolidErrors.h"

IGS_ENTITY_DEFINE(igs186, igsSolid, 186, 0, IGS_DE_ALL & ~IGS_DE_MATRIX)

// A count of void shells below 1 reads none.
int igs186::read_pd_data(igsInStream& in) {
  m_outer = igs_read_oriented<igsOrientedShell>(in);
  int count = 0;
  in.read_integer(count);
  return igs_read_members(in, count, m_voids,
                          [&] { return igs_read_oriented<igsOrientedShell>(in); });
}

void igs186::write_pd_data(igsOutStream& out) {
  igs_write_oriented(out, m_outer);
  igs_write_field(out, m_voids.size());
  for (igsOrientedShell const& shell : m_voids) igs_write_oriented(out, shell);
}

void igs186::print_pd_data(utOstream& out) const {
  out << "Outer oriented shell = { \n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    m_outer.print_pd_data(nested);
  }
  out << "}\n";
  out << "Number of void oriented shells = " << m_voids.size() << "\n";
  for (int i = 0; i < m_voids.size(); ++i)
    igs_print_numbered(out, "Void oriented shell", i, " ",
                       [&](utOstream& o) { m_voids[i].print_pd_data(o); });
}

// Neither closure nor any geometry is tested.
void igs186::check_pd() const {
  check_child<igs186OuterShellNullShell, igs186OuterShellWrongShellType,
              igs186OuterShellInvalidShell>(m_outer.shell(), igs_exactly<igs514>);
  if (!igs_flag_valid(m_outer.orientation())) raise_error<igs186OuterShellInvalidOrientation>();
  for (int i = 0; i < m_voids.size(); ++i) {
    check_child<igs186InnerShellNullShell, igs186InnerShellWrongShellType,
                igs186InnerShellInvalidShell>(m_voids[i].shell(), igs_exactly<igs514>, i);
    if (!igs_flag_valid(m_voids[i].orientation()))
      raise_error<igs186InnerShellInvalidOrientation>(i);
  }
}

void igs186::unreference_children() {
  igsObject::unreference_children();
  m_outer.unreference_children();
  for (igsOrientedShell& shell : m_voids) shell.unreference_children();
}

// The solid gets a new shell without faces in the place of what its outer pointer named, which
// loses this reference. The error stays: a shell without faces is no outer shell either.
int igs186OuterShellWrongShellType::fix() {
  igs186* solid = igs_error_entity<igs186>(key());
  if (!solid) return 0;
  igs514* shell = new (std::nothrow) igs514;
  if (!shell) return 0;
  igsOrientedShell outer;
  outer.set_shell(igsObjectPtr(shell->de_number()));
  outer.set_orientation(0);
  solid->set_outer_shell(std::move(outer));
  return 0;
}

static igsObject const* outer_child(igs186 const& solid, igs186OuterShellInvalidShell const&) {
  return igs_target(solid.outer_shell().shell());
}
static igsObject const* void_child(igs186 const& solid, igs186InnerShellInvalidShell const& e) {
  return igs_target(solid.void_shell(e.i()).shell());
}

IGS_CHILD_REPAIR(igs186OuterShellInvalidShell, igs186, outer_child)
IGS_CHILD_REPAIR(igs186InnerShellInvalidShell, igs186, void_child)
