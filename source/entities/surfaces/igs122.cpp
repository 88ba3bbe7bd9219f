#include "entities/surfaces/igs122.h"

#include "entities/surfaces/igsSurfaceErrors.h"

IGS_ENTITY_DEFINE(igs122, igsParameterizedSurface, 122, 0, IGS_DE_ALL)

int igs122::set_directrix(igsObjectPtr const& directrix) {
  return igs_set_reference(m_directrix, directrix);
}

int igs122::read_pd_data(igsInStream& in) {
  igs_read_fields(in, m_directrix, m_end);
  return 1;
}

void igs122::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_directrix, m_end);
}

void igs122::print_pd_data(utOstream& out) const {
  igs_print_reference(out, "Directrix", m_directrix);
  out << "EndOfGeneratrix = " << m_end << "\n";
}

// That the end point differs from the directrix's start is not tested.
void igs122::check_pd() const {
  check_reference<igs122NullDirectrixPtr, igs122InvalidDirectrixType, igs122InvalidDirectrixData>(
      m_directrix, igs_kind_of<igsCurve>);
  if (m_end.invalid()) raise_error<igs122InvalidGeneratrixEndPt>();
}

void igs122::unreference_children() {
  igsObject::unreference_children();
  m_directrix.unreference();
}

int igs122InvalidDirectrixType::fix() {
  return igs_replace_child_by_curve(key(), &igs122::directrix, &igs122::set_directrix);
}

IGS_CHILD_REPAIR(igs122InvalidDirectrixData, igs122, igs_child_at<&igs122::directrix>)
