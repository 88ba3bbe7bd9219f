#include "entities/annotation/igs212.h"

#include "entities/annotation/igsAnnotationErrors.h"
#include "sections/igsEntityKind.h"

#include <climits>

// A note is drawn solid: its line font must be the solid pattern.
IGS_ENTITY_DEFINE(igs212, igsAnnotation, 212, 0,
                  (IGS_DE_ALL & ~IGS_DE_LINE_FONT) | IGS_DE_SOLID_LINE_FONT)

namespace {

// The class of the text font definitions, named so that the test holds once it is built.
constexpr char text_font_class[] = "igs310";

// One string of the record: the character count (the text itself gives the length), box,
// font, angles, flags, start point and the text. A font code of 0 or below names the font
// definition entity, by minus its DE number.
igsWord read_word(igsInStream& in) {
  int characters = 0, font = 0, mirror = 0, alignment = 0;
  double length = 0.0, height = 0.0, slant = 0.0, rotation = 0.0;
  giPoint3 start;
  utString text;
  igs_read_fields(in, characters, length, height, font, slant, rotation, mirror, alignment, start);
  in.read_holerith(text);
  igsWord word(text, height, length);
  if (font > 0) {
    word.set_font_code(font);
  } else {
    word.set_font_definition_entity(igsObjectPtr(font == INT_MIN ? 0 : -font));
    word.set_font_code(0);
  }
  word.set_text_appearance(static_cast<igsMirror_Status>(mirror),
                           static_cast<igsAlignment_Status>(alignment));
  word.set_start_point(start);
  word.set_slant_angle(giAngle(giAngleRadiansTag, slant));
  word.set_rotation_angle(giAngle(giAngleRadiansTag, rotation));
  return word;
}

} // namespace

int igs212::set_num_strings(int n) {
  if (n >= 0) {
    coDynArr<igsWord> strings;
    if (!strings.expand(n)) return 0;
    m_strings = std::move(strings);
  }
  m_num_strings = n;
  return 1;
}

igsWord const& igs212::get_word(int index) const {
  static igsWord const none;
  return index >= 0 && index < m_strings.size() ? m_strings[index] : none;
}

int igs212::add_string(igsWord const& word, int index) {
  if (index < 0 || index >= m_strings.size()) return 0;
  m_strings[index] = word;
  return 1;
}

void igs212::unreference_children() {
  igsObject::unreference_children();
  for (igsWord& word : m_strings) word.unreference_children();
}

int igs212::read_pd_data(igsInStream& in) {
  int count = 0;
  in.read_integer(count);
  m_num_strings = count;
  if (!igs_read_counted_members(in, count, m_strings, [&] { return read_word(in); })) return 0;
  if (count > 0) m_num_strings = m_strings.size();
  return 1;
}

// The character count is that of the text as the write gives it, so it is always right. A font
// definition entity is written as minus its DE number, in the place of the code 0 that stands
// for it, so that the reference survives the round trip.
void igs212::write_pd_data(igsOutStream& out) {
  igs_write_field(out, m_strings.size());
  for (igsWord const& word : m_strings) {
    int font = word.font_code();
    if (font == 0 && word.font_definition_entity()) font = -word.font_definition_entity()->de_number();
    igs_write_fields(out, word.written_characters(), word.box_length(), word.box_height(), font,
                     word.slant_angle().angle(giAngleRadiansTag),
                     word.rotation_angle().angle(giAngleRadiansTag), word.mirror_status(),
                     word.alignment_status(), word.start_point());
    out.write_holerith(word.string());
  }
}

void igs212::print_pd_data(utOstream&) const {}

void igs212::check_pd() const {
  if (m_num_strings < 1) raise_error<igs212InvalidNumberOfStrings>(m_num_strings);
  for (int i = 0; i < m_strings.size(); ++i) {
    igsWord const& word = m_strings[i];
    if (word.string().is_null()) raise_error<igs212InvalidString>(i, word.string());
    if (word.box_length() <= 0.0) raise_error<igs212InvalidBoxLength>(i, word.box_length());
    if (word.box_height() <= 0.0) raise_error<igs212InvalidBoxHeight>(i, word.box_height());
    if (word.slant_angle().invalid())
      raise_error<igs212InvalidSlantAngle>(i, word.slant_angle().angle(giAngleRadiansTag));
    if (word.font_code() < 0) {
      if (!word.font_definition_entity())
        raise_error<igs212NullFontDefinitionEntity>(i);
      else if (!igs_isa_class(word.font_definition_entity(), text_font_class))
        raise_error<igs212InvalidFontDefinition>(i);
    }
    if (word.rotation_angle().invalid())
      raise_error<igs212InvalidRotationAngle>(i, word.rotation_angle().angle(giAngleRadiansTag));
    if (static_cast<unsigned>(word.mirror_status()) > 2u)
      raise_error<igs212InvalidTextMirrorFlag>(i, word.mirror_status());
    if (static_cast<unsigned>(word.alignment_status()) > 1u)
      raise_error<igs212InvalidTextAlignmentFlag>(i, word.alignment_status());
    if (!word.valid_font_code()) raise_error<igs212InvalidFontCode>(i);
    if (word.font_code() == 2001 && word.num_characters() % 4 != 0)
      raise_error<igs212InvalidFC2001StringLength>(i);
  }
}

// The repairs change a copy of the word that the error names and put it back.
namespace {

template <class Change> int repair_word(int key, int index, Change const& change) {
  igs212* note = igs_error_entity<igs212>(key);
  if (!note) return 0;
  igsWord word = note->get_word(index);
  change(word);
  return note->add_string(word, index);
}

} // namespace

int igs212InvalidSlantAngle::fix() {
  return repair_word(key(), index(), [](igsWord& w) { w.set_slant_angle(giAngle(giAngle90Tag)); });
}

int igs212InvalidRotationAngle::fix() {
  return repair_word(key(), index(),
                     [](igsWord& w) { w.set_rotation_angle(giAngle(giAngle0Tag)); });
}

// Each flag repair keeps the other flag where it is valid.
int igs212InvalidTextMirrorFlag::fix() {
  return repair_word(key(), index(), [](igsWord& w) {
    w.set_text_appearance(igsMirrorNone, w.alignment_status() == 1 ? igsAlignmentVertical
                                                                   : igsAlignmentHorizontal);
  });
}

int igs212InvalidTextAlignmentFlag::fix() {
  return repair_word(key(), index(), [](igsWord& w) {
    int mirror = w.mirror_status();
    w.set_text_appearance(mirror == 1 || mirror == 2 ? static_cast<igsMirror_Status>(mirror)
                                                     : igsMirrorNone,
                          igsAlignmentHorizontal);
  });
}

int igs212InvalidFontCode::fix() {
  return repair_word(key(), index(), [](igsWord& w) { w.set_font_code(1); });
}

int igs212InvalidFC2001StringLength::fix() {
  return repair_word(key(), index(), [](igsWord& w) { w.set_font_code(1); });
}
