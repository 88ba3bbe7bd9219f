#include "entities/annotation/igs220.h"

#include "entities/annotation/igsAnnotationErrors.h"
#include "entities/curves/igs100.h"
#include "entities/curves/igs102.h"
#include "entities/curves/igsSimpleClosedPlanarCurve.h"

IGS_ENTITY_DEFINE(igs220, igsDimension, 220, 0, IGS_DE_ALL)

void igs220::unreference_children() {
  igsDimension::unreference_children();
  m_encloser.unreference();
}

// The leader stands also when 0 (a null one); the encloser only where the file names one.
int igs220::read_pd_data(igsInStream& in) {
  set_note(igs_read_value<igsObjectPtr>(in));
  read_leader(in, true);
  int encloser = 0;
  in.read_integer(encloser);
  if (encloser) m_encloser = igsObjectPtr(encloser);
  set_index_list();
  return 1;
}

void igs220::write_pd_data(igsOutStream& out) {
  igs_write_field(out, general_note());
  write_leaders_pd(out, 1);
  igs_write_field(out, m_encloser);
}

void igs220::print_pd_data(utOstream&) const {}

void igs220::check_pd() const {
  igsDimension::check_pd();
  if (!leader(0))
    raise_error<igs220NullLeaderPointer>();
  else if (!sound_leader(leader(0)))
    raise_error<igs220InvalidLeader>();
  if (m_encloser && !m_encloser->isa(igs100::type()) &&
      !m_encloser->isa(igsSimpleClosedPlanarCurve::type()) && !m_encloser->isa(igs102::type()))
    raise_error<igs220InvalidTextEncloser>();
}

IGS_DIMENSION_DROP_REPAIR(igs220InvalidLeader, igs220, (igs_leader_at<0>), leaders,
                          igsDrop::bad_if_any, left == 1)
