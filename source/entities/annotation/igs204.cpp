#include "entities/annotation/igs204.h"

#include "entities/annotation/igsAnnotationErrors.h"

IGS_ENTITY_DEFINE(igs204, igsDimension, 204, 0, IGS_DE_ALL)

void igs204::set_first_curve(igsObjectPtr const& curve) {
  m_first = curve;
  if (curve) m_num_curves = 1;
}

void igs204::set_second_curve(igsObjectPtr const& curve) {
  m_second = curve;
  if (curve) m_num_curves = m_num_curves == 1 ? 2 : 1;
}

void igs204::unreference_children() {
  igsDimension::unreference_children();
  m_first.unreference();
  m_second.unreference();
}

// The curves are set only where the file names one; leaders of 0 stand as null ones, witness
// lines of 0 are none.
int igs204::read_pd_data(igsInStream& in) {
  int first = 0, second = 0;
  set_note(igs_read_value<igsObjectPtr>(in));
  igs_read_fields(in, first, second);
  if (first) set_first_curve(igsObjectPtr(first));
  if (second) set_second_curve(igsObjectPtr(second));
  read_leader_pair(in);
  read_witness_pair(in);
  set_index_list();
  return 1;
}

void igs204::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, general_note(), m_first, m_second);
  write_leaders_pd(out, 2);
  write_witnesses_pd(out, 2);
}

void igs204::print_pd_data(utOstream&) const {}

void igs204::check_pd() const {
  igsDimension::check_pd();
  check_two_leaders<igs204InvalidNumberOfLeaders, igs204InvalidLeader>();
  if (!m_first) raise_error<igs204InvalidNumberOfCurves>();
  check_witnesses<igs204NullWitnessLinePointer, igs204InvalidWitnessLine>();
}

IGS_DIMENSION_DROP_REPAIR(igs204InvalidLeader, igs204, igs_named_leader, leaders, igsDrop::bad_if_any,
                          left == 2)
IGS_DIMENSION_DROP_REPAIR(igs204InvalidWitnessLine, igs204, igs_named_witness, witnesses,
                          igsDrop::bad, 1)
IGS_DIMENSION_DROP_FIX(igs204NullWitnessLinePointer, witnesses, igsDrop::null, 1)
