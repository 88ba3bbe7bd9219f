#include "entities/surfaces/igs140.h"

#include "entities/surfaces/igsTrimmedErrors.h"

IGS_ENTITY_DEFINE(igs140, igsParameterizedSurface, 140, 0, IGS_DE_ALL)

int igs140::read_pd_data(igsInStream& in) {
  igs_read_fields(in, m_indicator, m_distance, m_surface);
  return 1;
}

void igs140::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_indicator, m_distance, m_surface);
}

void igs140::print_pd_data(utOstream& out) const {
  out << "OffsetIndicator = " << m_indicator << "\n";
  out << "OffsetDistance = " << m_distance << "\n";
  igs_print_reference(out, "BaseSurface", m_surface);
}

// The indicator need not have unit length, and a distance of 0 passes.
void igs140::check_pd() const {
  check_basis_surface<igs140NullSurfacePtr, igs140InvalidSurfaceType, igs140InvalidSurfaceData>();
  if (m_indicator.invalid()) raise_error<igs140InvalidOffsetIndicator>();
  if (igs_unset(m_distance)) raise_error<igs140InvalidOffsetDistance>();
}

IGS_CHILD_REPAIR(igs140InvalidSurfaceData, igs140, igs_child_at<&igs140::basis_surface>)
