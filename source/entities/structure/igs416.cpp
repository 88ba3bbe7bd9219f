#include "entities/structure/igs416.h"

#include "entities/structure/igsAttributeErrors.h"

IGS_ENTITY_DEFINE(igs416, igsDefinition, 416, 0, igs_de_without_matrix)

int igs416::read_pd_data(igsInStream& in) {
  utString name;
  igs_read_field(in, name);
  m_file_name = name;
  if (names_entity()) {
    utString entity_name;
    igs_read_field(in, entity_name);
    m_entity_name = entity_name;
  }
  return 1;
}

void igs416::write_pd_data(igsOutStream& out) {
  igs_write_field(out, m_file_name);
  if (names_entity()) igs_write_field(out, m_entity_name);
}

void igs416::print_pd_data(utOstream&) const {}

void igs416::check_pd() const {
  if (m_file_name.is_null()) raise_error<igs416InvalidExternalFileName>();
  if (names_entity() && m_entity_name.is_null()) raise_error<igs416InvalidExternalEntityName>();
}
