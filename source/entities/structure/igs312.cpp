#include "entities/structure/igs312.h"

#include "entities/structure/igsAttributeErrors.h"
#include "sections/igsDefinitionValue.h"

#include <cfloat>

IGS_ENTITY_DEFINE(igs312, igsStructure, 312, 0, IGS_DE_ALL)

void igs312::set_font_code(int code) {
  if (code < 0) {
    m_word.set_font_definition_entity(igsDefinitionValue::definition_of_field(code));
    m_word.set_font_code(0);
    return;
  }
  igsWord predefined;
  predefined.set_font_code(code);
  if (!predefined.valid_font_code()) return;
  m_word.set_font_code(code);
  m_word.set_font_definition_entity(igsObjectPtr());
}

void igs312::set_form_number(int form) {
  if (form == 1) m_form_flag = 1;
  directory_entry().set_form_number(m_form_flag);
}

int igs312::read_pd_data(igsInStream& in) {
  double length = 0.0, height = 0.0, slant = 0.0, rotation = 0.0;
  int font_code = 0, mirror = 0, alignment = 0;
  giPoint3 corner;
  igs_read_fields(in, length, height, font_code, slant, rotation, mirror, alignment, corner);
  set_box_dimensions(length, height);
  set_font_code(font_code);
  set_slant_angle(giAngle(giAngleRadiansTag, slant));
  set_rotation_angle(giAngle(giAngleRadiansTag, rotation));
  set_text_appearance(static_cast<igsMirror_Status>(mirror),
                      static_cast<igsAlignment_Status>(alignment));
  set_corner(corner);
  set_form_number(directory_entry().form_number());
  return 1;
}

// A font definition is written as minus its DE number. A word whose definition is gone (deleted
// by a repair) has code 0, which a reader ignores, keeping the standard font 1: 1 is written.
void igs312::write_pd_data(igsOutStream& out) {
  igsObjectPtr const& font = m_word.font_definition_entity();
  int font_code = font ? -font->de_number() : m_word.font_code() ? m_word.font_code() : 1;
  igs_write_fields(out, m_word.box_length(), m_word.box_height(), font_code,
                   m_word.slant_angle().angle(giAngleRadiansTag),
                   m_word.rotation_angle().angle(giAngleRadiansTag), m_word.mirror_status(),
                   m_word.alignment_status(), m_word.start_point());
  directory_entry().set_form_number(m_form_flag);
}

void igs312::print_pd_data(utOstream&) const {}

void igs312::check_pd() const {
  if (m_word.box_length() <= 0.0) raise_error<igs312InvalidBoxLength>(m_word.box_length());
  if (m_word.box_height() <= 0.0) raise_error<igs312InvalidBoxHeight>(m_word.box_height());
  double slant = m_word.slant_angle().angle(giAngleRadiansTag);
  if (slant == DBL_MAX) raise_error<igs312InvalidSlantAngle>(slant);
  double rotation = m_word.rotation_angle().angle(giAngleRadiansTag);
  if (rotation == DBL_MAX) raise_error<igs312InvalidRotationAngle>(rotation);
  if (static_cast<unsigned>(m_word.mirror_status()) > 2u)
    raise_error<igs312InvalidTextMirrorFlag>(m_word.mirror_status());
  if (!igs_flag_valid(m_word.alignment_status()))
    raise_error<igs312InvalidTextAlignmentFlag>(m_word.alignment_status());
  if (!m_word.valid_font_code()) raise_error<igs312InvalidFontCode>();
}

void igs312::unreference_children() {
  igsObject::unreference_children();
  m_word.unreference_children();
}
