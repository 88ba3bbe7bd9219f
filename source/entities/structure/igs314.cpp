#include "entities/structure/igs314.h"

#include "entities/structure/igsAttributeErrors.h"
#include "sections/igsColour.h"

IGS_ENTITY_DEFINE_OWN_DE(igs314, igsStructure, 314, 0)

namespace {

// A Directory Entry that names a colour definition gives the name that the definition holds.
utString definition_name(igsObject const& definition) {
  return static_cast<igs314 const&>(definition).name();
}
[[maybe_unused]] igsColour::DefinitionNameReader const registered_reader =
    igsColour::set_definition_name_reader(definition_name);

} // namespace

int igs314::nearest_colour_number() const {
  // Indexed by 4 for red on, 2 for green, 1 for blue.
  static igsColourType const nearest[] = {igsBlack, igsBlue,    igsGreen,  igsCyan,
                                          igsRed,   igsMagenta, igsYellow, igsWhite};
  int index = (m_red >= 50.0 ? 4 : 0) + (m_green >= 50.0 ? 2 : 0) + (m_blue >= 50.0 ? 1 : 0);
  return nearest[index];
}

// A blank name field leaves "none".
int igs314::read_pd_data(igsInStream& in) {
  double red = 0.0, green = 0.0, blue = 0.0;
  utString name;
  igs_read_fields(in, red, green, blue, name);
  set_colours(red, green, blue);
  if (!name.is_null()) set_name(name);
  return 1;
}

void igs314::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_red, m_green, m_blue, m_name);
}

void igs314::print_pd_data(utOstream&) const {}

void igs314::check_pd() const {
  auto outside = [](double percent) { return percent < 0.0 || percent > 100.0; };
  if (outside(m_red)) raise_error<igs314InvalidRedCoordinate>();
  if (outside(m_green)) raise_error<igs314InvalidGreenCoordinate>();
  if (outside(m_blue)) raise_error<igs314InvalidBlueCoordinate>();
}

// A colour definition may not name another definition, nor no colour, in its own colour field.
void igs314::check_de() const {
  check_directory_entry(IGS_DE_LINE_FONT | IGS_DE_LEVEL | IGS_DE_MATRIX);
  int colour = directory_entry().colour().value();
  if (colour < igsBlack || colour > igsWhite) raise_error<igs314InvalidDEColourNumber>();
  check_directory_entry(IGS_DE_STATUS | IGS_DE_LINE_WEIGHT | IGS_DE_SUBSCRIPT);
}

int igs314InvalidDEColourNumber::fix() {
  igs314* colour = igs_error_entity<igs314>(key());
  return colour && colour->directory_entry().set_colour(igsColour(colour->nearest_colour_number()));
}
