#include "entities/annotation/igs210.h"

#include "entities/annotation/igsAnnotationErrors.h"

IGS_ENTITY_DEFINE(igs210, igsDimension, 210, 0, IGS_DE_ALL)

int igs210::read_label(igsInStream& in) {
  set_note(igs_read_value<igsObjectPtr>(in));
  if (!read_leader_list(in)) return 0;
  set_index_list();
  return 1;
}

void igs210::write_label(igsOutStream& out) const {
  igs_write_fields(out, general_note(), number_of_leaders());
  write_leaders_pd(out, number_of_leaders());
}

int igs210::read_pd_data(igsInStream& in) {
  return read_label(in);
}

void igs210::write_pd_data(igsOutStream& out) {
  write_label(out);
}

void igs210::print_pd_data(utOstream&) const {}

void igs210::check_pd() const {
  igsDimension::check_pd();
  if (leader_count() < 1) raise_error<igs210InvalidNumberOfLeaders>();
  check_leaders<igs210NullLeaderPointer, igs210InvalidLeader>();
}

IGS_DIMENSION_DROP_REPAIR(igs210InvalidLeader, igs210, igs_named_leader, leaders, igsDrop::bad_if_any,
                          left >= 1)
