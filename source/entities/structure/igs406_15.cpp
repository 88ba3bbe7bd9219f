#include "entities/structure/igs406_15.h"

#include "entities/structure/igsAttributeErrors.h"

IGS_ENTITY_DEFINE(igs406_15, igsDefinition, 406, 15,
                  IGS_DE_LEVEL | IGS_DE_STATUS | IGS_DE_SUBSCRIPT)

// A name property holds one property, the name; any other count gives the record up.
int igs406_15::read_pd_data(igsInStream& in) {
  int count = 0;
  igs_read_field(in, count);
  if (count != 1) return raise_error<igs406BadNumProperties>(), 0;
  utString name;
  igs_read_field(in, name);
  m_name = name;
  return 1;
}

void igs406_15::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, 1, m_name);
}

void igs406_15::print_pd_data(utOstream&) const {}

void igs406_15::check_pd() const {
  if (m_name.is_null()) raise_error<igs406NoString>();
}
