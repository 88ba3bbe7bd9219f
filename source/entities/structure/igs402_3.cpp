#include "entities/structure/igs402_3.h"

#include "entities/structure/igs410_0.h"
#include "entities/structure/igsStructureErrors.h"

IGS_ENTITY_DEFINE(igs402_3, igsCompound, 402, 3, igs_de_without_matrix)

// Both counts come first, then the views, then the entities.
int igs402_3::read_pd_data(igsInStream& in) {
  int views = 0, count = 0;
  igs_read_fields(in, views, count);
  return m_views.read(in, views, igs_read_reference) && read_entities(in, count);
}

void igs402_3::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_views.written_count(), m_entities.written_count());
  m_views.write(out, igs_write_reference);
  write_entities(out);
}

void igs402_3::print_pd_data(utOstream&) const {}

// The entities are not checked from here: a view list says where they are seen, not what
// they are.
void igs402_3::check_pd() const {
  if (number_of_views() < 0) raise_error<igs402_3InvalidViewSize>();
  if (number_of_entities() < 0) raise_error<igs402_3InvalidEntitySize>();
  for (igsObjectPtr const& view : m_views.members())
    if (!view)
      raise_error<igs402_3NullViewPointer>();
    else if (!view->typeof(igs410_0::type()))
      raise_error<igs402_3InvalidViewPointer>();
  for (igsObjectPtr const& entity : m_entities.members())
    if (!entity) raise_error<igs402_3NullEntityPointer>();
}

void igs402_3::unreference_children() {
  igsCompound::unreference_children();
  m_views.unreference();
}
