#include "entities/structure/igsGroup.h"

#include "entities/structure/igsStructureErrors.h"

IGS_ENTITY_DEFINE(igsGroup, igsCompound, 402, 14, igs_de_without_matrix)

int igsGroup::read_pd_data(igsInStream& in) {
  int count = 0;
  in.read_integer(count);
  return read_entities(in, count);
}

void igsGroup::write_pd_data(igsOutStream& out) {
  out.write_integer(m_entities.written_count());
  write_entities(out);
}

void igsGroup::print_pd_data(utOstream&) const {}

void igsGroup::check_pd() const {
  if (number_of_entities() < 0) raise_error<igsGroupInvalidEntitySize>();
  check_entities<igsGroupNullEntityPointer, igsGroupBadSubEntity>();
}
