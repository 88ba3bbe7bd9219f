// The text display template (type 312): the look of a word of text (box, font, angles,
// mirroring, alignment and corner), absolute (form 0) or incremental (form 1).
#pragma once

#include "entities/annotation/igsWord.h"
#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"

class igs312 : public igsStructure {
  IGS_ENTITY_CLASS(igs312)

  igsWord const& word() const { return m_word; }
  // 1 for incremental, 0 for absolute.
  int form_flag() const { return m_form_flag; }
  // A negative code names a text font definition by minus its DE number; a code of a
  // predefined font sets that font; any other code leaves the word as it was.
  void set_font_code(int code);
  // 1 makes the template incremental; any other number leaves it. The DE form follows the
  // flag.
  void set_form_number(int form);
  void set_box_dimensions(double length, double height) {
    m_word.set_box_dimensions(length, height);
  }
  void set_corner(giPoint3 const& corner) { m_word.set_start_point(corner); }
  void set_slant_angle(giAngle const& angle) { m_word.set_slant_angle(angle); }
  void set_rotation_angle(giAngle const& angle) { m_word.set_rotation_angle(angle); }
  void set_text_appearance(igsMirror_Status mirror, igsAlignment_Status alignment) {
    m_word.set_text_appearance(mirror, alignment);
  }

 protected:
  void unreference_children() override;

 private:
  int m_form_flag = 0;
  igsWord m_word;
};
