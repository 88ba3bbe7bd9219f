#include "entities/annotation/igs206.h"

#include "entities/annotation/igsAnnotationErrors.h"

IGS_ENTITY_DEFINE(igs206, igsDimension, 206, 0, IGS_DE_ALL)

// The first leader stands also when 0 (a null one); the second only where the file names one.
int igs206::read_pd_data(igsInStream& in) {
  set_note(igs_read_value<igsObjectPtr>(in));
  read_leader(in, true);
  read_leader(in, false);
  igs_read_field(in, m_point);
  set_index_list();
  return 1;
}

void igs206::write_pd_data(igsOutStream& out) {
  igs_write_field(out, general_note());
  write_leaders_pd(out, 2);
  igs_write_field(out, m_point);
}

void igs206::print_pd_data(utOstream&) const {}

// One leader is enough, the first or the second.
void igs206::check_pd() const {
  igsDimension::check_pd();
  if (leader(0) && !sound_leader(leader(0))) raise_error<igs206InvalidLeader>(0);
  if (!leader(0) && !leader(1)) raise_error<igs206InvalidNumberOfLeaders>();
  if (leader(1) && !sound_leader(leader(1))) raise_error<igs206InvalidLeader>(1);
  if (m_point.invalid()) raise_error<igs206InvalidPoint>(m_point.x(), m_point.y());
}

IGS_DIMENSION_DROP_REPAIR(igs206InvalidLeader, igs206, igs_named_leader, leaders, igsDrop::bad_if_any,
                          left >= 1)
