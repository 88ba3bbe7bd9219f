#include "entities/structure/igs123.h"

#include "entities/structure/igsStructureErrors.h"

IGS_ENTITY_DEFINE(igs123, igsObject, 123, 0, igs_de_without_matrix)

int igs123::read_pd_data(igsInStream& in) {
  giVector3 direction;
  igs_read_field(in, direction);
  m_direction = direction;
  return 1;
}

void igs123::write_pd_data(igsOutStream& out) {
  igsParametricFormat parametric(out);
  igs_write_field(out, m_direction);
}

void igs123::print_pd_data(utOstream& out) const {
  out << "Direction = " << m_direction << "\n";
}

void igs123::check_pd() const {
  if (m_direction.invalid()) raise_error<igs123NoConstruct>();
}
