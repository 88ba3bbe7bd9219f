#include "entities/annotation/igs202.h"

#include "entities/annotation/igsAnnotationErrors.h"

IGS_ENTITY_DEFINE(igs202, igsDimension, 202, 0, IGS_DE_ALL)

// Witness lines are optional, leaders not: a leader of 0 stands as a null one.
int igs202::read_pd_data(igsInStream& in) {
  set_note(igs_read_value<igsObjectPtr>(in));
  read_witness_pair(in);
  igs_read_fields(in, m_point, m_radius);
  read_leader_pair(in);
  set_index_list();
  return 1;
}

void igs202::write_pd_data(igsOutStream& out) {
  igs_write_field(out, general_note());
  write_witnesses_pd(out, 2);
  igs_write_fields(out, m_point, m_radius);
  write_leaders_pd(out, 2);
}

void igs202::print_pd_data(utOstream&) const {}

void igs202::check_pd() const {
  igsDimension::check_pd();
  if (check_two_leaders<igs202InvalidNumberOfLeaders, igs202InvalidLeader>() && leader(0) == leader(1))
    raise_error<igs202DuplicateLeaders>();
  if (m_point.invalid()) raise_error<igs202InvalidPoint>(m_point.x(), m_point.y());
  if (m_radius <= 0.0) raise_error<igs202InvalidRadius>(m_radius);
  check_witnesses<igs202NullWitnessLinePointer, igs202InvalidWitnessLine>();
}

IGS_DIMENSION_DROP_REPAIR(igs202InvalidLeader, igs202, igs_named_leader, leaders, igsDrop::bad_if_any,
                          left == 2)
IGS_DIMENSION_DROP_REPAIR(igs202InvalidWitnessLine, igs202, igs_named_witness, witnesses,
                          igsDrop::bad, 1)
IGS_DIMENSION_DROP_FIX(igs202NullWitnessLinePointer, witnesses, igsDrop::null, 1)
