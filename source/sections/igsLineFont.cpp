#include "sections/igsLineFont.h"

#include "core/igsObject.h"
#include "sections/igsDirectoryEntry.h"
#include "sections/igsEntityKind.h"
#include "support/utOstream.h"

namespace {

constexpr auto pattern_names = IGS_ATTRIBUTE_NAMES(IGS_PATTERN_LIST);

int is_line_font_definition(igsObjectPtr const& object) {
  return igs_typeof_class(object, igs304_1_class) || igs_typeof_class(object, igs304_2_class);
}

igsDefinitionValue const& line_font_of(igsDirectoryEntry const& de) {
  return de.line_font();
}

} // namespace

int igsLineFont::pattern_value() const {
  return resolved_value(line_font_of);
}

igsPattern igsLineFont::pattern_type() const {
  return pattern_names.type(value(), igsSolid);
}

utString igsLineFont::pattern_name() const {
  if (!predefined()) return definition_name();
  return pattern_names.name(value(), "Unknown pattern");
}

int igsLineFont::set_line_font_definition(igsObjectPtr const& definition) {
  return set_definition(definition, definition ? -definition->de_number() : 0);
}

int igsLineFont::valid() const {
  return igsDefinitionValue::valid(std::size(pattern_names.names), is_line_font_definition);
}

void igsLineFont::print(utOstream& out) const {
  if (predefined())
    out << value() << "(" << pattern_name() << ")";
  else
    out << "line font defintion not supported";
}

utOstream& operator<<(utOstream& out, igsLineFont const& line_font) {
  line_font.print(out);
  return out;
}
