#include "entities/structure/igs310.h"

#include "entities/structure/igsAttributeErrors.h"
#include "sections/igsDefinitionValue.h"

#include <cmath>

IGS_ENTITY_DEFINE(igs310, igsStructure, 310, 0, IGS_DE_ALL)

namespace {

// A grid coordinate as the integer that a file holds; 0 for what no integer holds (an unset
// point of a record that ended early).
int grid(double value) {
  return std::fabs(value) < 2147483647.0 ? static_cast<int>(value) : 0;
}

// One character: code, next X, next Y (always 0 here: the next start point lies on the base
// line), count of motions, then a flag and an end point per motion.
igsCharacter read_character_shape(igsInStream& in, int scale) {
  int ascii_code = 0, next_x = 0, next_y = 0, motions = 0;
  igs_read_fields(in, ascii_code, next_x, next_y, motions);
  igsCharacter character(scale, next_x, motions, ascii_code);
  for (int k = 0; k < motions && !in.frozen(); ++k) {
    int pen = 0, x = 0, y = 0;
    igs_read_fields(in, pen, x, y);
    character.draw_line(k, character.read_end_point(k), giPoint2(x, y), pen);
  }
  return character;
}

} // namespace

void igs310::set_num_characters(int count) {
  m_count = count;
  if (count < 0) return;
  m_characters.clear();
  m_characters.expand(count);
}

void igs310::set_superseded_font(int font) {
  m_superseded = font;
  m_superseded_definition = igsDefinitionValue::definition_of_field(font);
}

void igs310::add_character(igsCharacter const& character, int index) {
  m_characters.enter(index, character);
}

igsCharacter const& igs310::read_character(int index) const {
  static igsCharacter const unset;
  return 0 <= index && index < m_characters.size() ? m_characters[index] : unset;
}

int igs310::read_pd_data(igsInStream& in) {
  int font_code = 0, superseded = 0, scale = 0, count = 0;
  utString name;
  igs_read_fields(in, font_code, name, superseded, scale, count);
  m_font_code = font_code;
  m_font_name = name;
  set_superseded_font(superseded);
  m_scale = scale;
  m_count = count;
  return igs_read_members(in, count, m_characters,
                          [&in, scale] { return read_character_shape(in, scale); });
}

void igs310::write_pd_data(igsOutStream& out) {
  // A definition superseded is written by its DE number in the file written.
  igsObjectPtr const& superseded = m_superseded_definition;
  igs_write_fields(out, m_font_code, m_font_name,
                   superseded ? -superseded->de_number() : m_superseded, m_scale,
                   m_characters.size());
  for (igsCharacter const& c : m_characters) {
    giPoint2 const& next = c.next_start_point();
    igs_write_fields(out, c.ascii_code(), grid(next.x()), grid(next.y()), c.number_of_flags());
    for (int k = 0; k < c.number_of_flags(); ++k) {
      giPoint2 const& end = c.read_end_point(k + 1);
      igs_write_fields(out, c.read_pen_status(k), grid(end.x()), grid(end.y()));
    }
  }
}

void igs310::print_pd_data(utOstream&) const {}

// The font code is not checked.
void igs310::check_pd() const {
  if (m_font_name.is_null()) raise_error<igs310InvalidString>();
  if (m_superseded == 0) {
    raise_error<igs310NullFontToSupersede>();
  } else if (m_superseded < 0) {
    igsObjectPtr const& font = m_superseded_definition;
    if (!font || !font->typeof(igs310::type())) raise_error<igs310InvalidFontToSupersede>();
  }
  if (m_count < 1) raise_error<igs310InvalidSize>();
  if (m_scale < 1) raise_error<igs310InvalidScale>();
  for (int i = 0; i < m_characters.size(); ++i)
    if (m_characters[i].number_of_pen_motions() < 1) raise_error<igs310InvalidCharacter>(i);
}

void igs310::unreference_children() {
  igsObject::unreference_children();
  m_superseded_definition.unreference();
}
