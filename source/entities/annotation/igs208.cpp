#include "entities/annotation/igs208.h"

#include "entities/annotation/igsAnnotationErrors.h"

IGS_ENTITY_DEFINE(igs208, igs210, 208, 0, IGS_DE_ALL)

int igs208::read_pd_data(igsInStream& in) {
  double angle = 0.0;
  igs_read_fields(in, m_corner, angle);
  m_angle = giAngle(giAngleRadiansTag, angle);
  return read_label(in);
}

void igs208::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_corner, m_angle.angle(giAngleRadiansTag));
  write_label(out);
}

void igs208::print_pd_data(utOstream&) const {}

// A flag note may have no leader.
void igs208::check_pd() const {
  igsDimension::check_pd();
  if (leader_count() < 0) raise_error<igs208InvalidNumberOfLeaders>();
  check_leaders<igs208NullLeaderPointer, igs208InvalidLeader>();
  if (m_corner.invalid()) raise_error<igs208InvalidPoint>(m_corner.x(), m_corner.y(), m_corner.z());
}

IGS_DIMENSION_DROP_REPAIR(igs208InvalidLeader, igs208, igs_named_leader, leaders, igsDrop::bad_if_any,
                          1)
