#include "sections/igsColour.h"

#include "core/igsObject.h"
#include "sections/igsDirectoryEntry.h"
#include "sections/igsEntityKind.h"
#include "support/utOstream.h"

namespace {

constexpr auto colour_names = IGS_ATTRIBUTE_NAMES(IGS_COLOUR_TYPE_LIST);

igsColour::DefinitionNameReader definition_name_reader = nullptr;

int is_colour_definition(igsObjectPtr const& object) {
  return igs_typeof_class(object, igs314_class);
}

igsDefinitionValue const& colour_of(igsDirectoryEntry const& de) {
  return de.colour();
}

} // namespace

int igsColour::colour_value() const {
  return resolved_value(colour_of);
}

igsColourType igsColour::colour_type() const {
  return colour_names.type(value(), igsNoColour);
}

utString igsColour::colour_name() const {
  if (predefined()) return colour_names.name(value(), "Unknown colour");
  if (definition_name_reader && is_colour_definition(definition())) {
    utString name = definition_name_reader(*definition());
    if (name.length() > 0) return name;
  }
  return definition_name();
}

int igsColour::set_colour_definition(igsObjectPtr const& definition) {
  if (!is_colour_definition(definition)) return 0;
  return set_definition(definition, -definition->de_number());
}

int igsColour::valid() const {
  return igsDefinitionValue::valid(std::size(colour_names.names), is_colour_definition);
}

void igsColour::print(utOstream& out) const {
  if (predefined())
    out << value() << "(" << colour_name() << ")";
  else
    out << "RGB values not supported";
}

igsColour::DefinitionNameReader igsColour::set_definition_name_reader(DefinitionNameReader reader) {
  DefinitionNameReader before = definition_name_reader;
  definition_name_reader = reader;
  return before;
}

utOstream& operator<<(utOstream& out, igsColour const& colour) {
  colour.print(out);
  return out;
}
