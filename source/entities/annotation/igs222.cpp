#include "entities/annotation/igs222.h"

#include "entities/annotation/igsAnnotationErrors.h"

IGS_ENTITY_DEFINE(igs222, igsDimension, 222, 0, IGS_DE_ALL)

// Leaders of 0 stand as null ones; the second leader only in form 1.
int igs222::read_pd_data(igsInStream& in) {
  set_note(igs_read_value<igsObjectPtr>(in));
  read_leader(in, true);
  igs_read_field(in, m_point);
  if (form_number() == 1) read_leader(in, true);
  set_index_list();
  return 1;
}

void igs222::write_pd_data(igsOutStream& out) {
  igs_write_field(out, general_note());
  write_leaders_pd(out, 1);
  igs_write_field(out, m_point);
  if (form_number() == 1) igs_write_field(out, leader(1));
}

void igs222::print_pd_data(utOstream&) const {}

void igs222::check_pd() const {
  igsDimension::check_pd();
  if (m_point.invalid()) raise_error<igs222InvalidPoint>();
  if (!leader(0))
    raise_error<igs222NullFirstLeaderPointer>();
  else if (!sound_leader(leader(0)))
    raise_error<igs222InvalidFirstLeader>();
  if (form_number() != 1) return;
  if (!leader(1))
    raise_error<igs222NullSecondLeaderPointer>();
  else if (!sound_leader(leader(1)))
    raise_error<igs222InvalidSecondLeader>();
}

int igs222::repair_leaders(igsDrop what, int& changed) {
  int form = form_number();
  int left = drop_leaders(what);
  changed = left == 1 && form != 0 && directory_entry().set_form_number(0);
  return left == 1 || (left == 2 && form == 1);
}

// The four errors of the leaders share the repair; a null leader is dropped by itself.
#define IGS_222_LEADER_FIX(Name, what)                                                             \
  int Name::fix() {                                                                                \
    igs222* dimension = igs_error_entity<igs222>(key());                                           \
    if (!dimension) return 0;                                                                      \
    int changed = 0;                                                                               \
    int result = dimension->repair_leaders(what, changed);                                         \
    if (changed) message("Warning : Changed form number of entity ig%d to 0 (from 1).\n", key());  \
    return result;                                                                                 \
  }
IGS_222_LEADER_FIX(igs222NullFirstLeaderPointer, igsDrop::null)
IGS_222_LEADER_FIX(igs222NullSecondLeaderPointer, igsDrop::null)
IGS_222_LEADER_FIX(igs222InvalidFirstLeader, igsDrop::bad_if_any)
IGS_222_LEADER_FIX(igs222InvalidSecondLeader, igsDrop::bad_if_any)
IGS_CHILD_OBJ(igs222InvalidFirstLeader, igs222, (igs_leader_at<0>))
IGS_CHILD_OBJ(igs222InvalidSecondLeader, igs222, (igs_leader_at<1>))
