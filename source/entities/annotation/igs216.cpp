#include "entities/annotation/igs216.h"

#include "entities/annotation/igsAnnotationErrors.h"

IGS_ENTITY_DEFINE(igs216, igsDimension, 216, 0, IGS_DE_ALL)

// Leaders of 0 stand as null ones; witness lines of 0 are none.
int igs216::read_pd_data(igsInStream& in) {
  set_note(igs_read_value<igsObjectPtr>(in));
  read_leader_pair(in);
  read_witness_pair(in);
  set_index_list();
  return 1;
}

void igs216::write_pd_data(igsOutStream& out) {
  igs_write_field(out, general_note());
  write_leaders_pd(out, 2);
  write_witnesses_pd(out, 2);
}

void igs216::print_pd_data(utOstream&) const {}

void igs216::check_pd() const {
  igsDimension::check_pd();
  check_two_leaders<igs216InvalidNumberOfLeaders, igs216InvalidLeader>();
  check_witnesses<igs216NullWitnessLinePointer, igs216InvalidWitnessLine>();
}

IGS_DIMENSION_DROP_REPAIR(igs216InvalidLeader, igs216, igs_named_leader, leaders, igsDrop::bad_if_any,
                          left == 2)
IGS_DIMENSION_DROP_REPAIR(igs216InvalidWitnessLine, igs216, igs_named_witness, witnesses,
                          igsDrop::bad, 1)
IGS_DIMENSION_DROP_FIX(igs216NullWitnessLinePointer, witnesses, igsDrop::null, 1)
