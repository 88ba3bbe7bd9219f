#include "entities/structure/igs304_1.h"

#include "entities/structure/igs308.h"
#include "entities/structure/igsAttributeErrors.h"

IGS_ENTITY_DEFINE_OWN_DE(igs304_1, igsStructure, 304, 1)

int igs304_1::read_pd_data(igsInStream& in) {
  int orientation = 0;
  igsObjectPtr subfigure;
  double spacing = 0.0, scale = 0.0;
  igs_read_fields(in, orientation, subfigure, spacing, scale);
  set_orientation(orientation);
  set_subfigure(subfigure);
  set_spacing(spacing);
  set_scale(scale);
  return 1;
}

void igs304_1::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_orientation, m_subfigure, m_spacing, m_scale);
}

void igs304_1::print_pd_data(utOstream&) const {}

void igs304_1::check_pd() const {
  if (!igs_flag_valid(m_orientation)) raise_error<igs304_1InvalidOrientationFlag>(m_orientation);
  if (!m_subfigure)
    raise_error<igs304_1NullSubfigurePointer>();
  else if (!m_subfigure->isa(igs308::type()))
    raise_error<igs304_1InvalidSubfigure>();
  if (m_spacing <= 0.0) raise_error<igs304_1InvalidSpacing>(m_spacing);
  if (m_scale <= 0.0) raise_error<igs304_1InvalidScale>(m_scale);
}

void igs304_1::check_de() const {
  if (!directory_entry().line_font().names_pattern())
    raise_error<igs304_1InvalidDELineFontPattern>();
  check_directory_entry(IGS_DE_ALL & ~IGS_DE_LINE_FONT);
}

void igs304_1::unreference_children() {
  igsObject::unreference_children();
  m_subfigure.unreference();
}
