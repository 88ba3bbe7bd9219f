#include "entities/curves/igs116.h"

#include "entities/curves/igsCurveErrors.h"

IGS_ENTITY_DEFINE(igs116, igsObject, 116, 0, IGS_DE_ALL)

int igs116::set_point(giPoint3 const& point) {
  if (!point.invalid()) m_point = point;
  return 1;
}

int igs116::set_display_symbol(igsObjectPtr const&) {
  return 0;
}

int igs116::read_pd_data(igsInStream& in) {
  giPoint3 point;
  igsObjectPtr symbol;
  igs_read_fields(in, point, symbol);
  m_point = point;
  m_display_symbol = symbol;
  return 1;
}

void igs116::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_point, m_display_symbol);
}

void igs116::print_pd_data(utOstream& out) const {
  out << "Coordinates = " << m_point << "\n";
  igs_print_reference(out, "DisplaySymbol", m_display_symbol);
}

// The display symbol is neither type-checked nor followed.
void igs116::check_pd() const {
  if (m_point.invalid()) raise_error<igs116InvalidPoint>();
}

void igs116::unreference_children() {
  igsObject::unreference_children();
  m_display_symbol.unreference();
}
