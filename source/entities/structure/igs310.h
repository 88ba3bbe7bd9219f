// The text font definition (type 310): the shapes of the characters of a font, drawn as pen
// motions on a grid, and the font that it supersedes.
#pragma once

#include "core/igsUnset.h"
#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"
#include "entities/structure/igsCharacter.h"

class igs310 : public igsStructure {
  IGS_ENTITY_CLASS(igs310)

  // Stores the count; a count not below 0 gives a fresh array of that many characters, so that
  // a negative one stays for the check to find, with no characters.
  void set_num_characters(int count);
  void set_scale(int scale) { m_scale = scale; }
  void set_font_code(int code) { m_font_code = code; }
  void set_font_name(utString const& name) { m_font_name = name; }
  // A font code if positive; minus the DE number of another text font definition if negative,
  // which then is held as a reference too.
  void set_superseded_font(int font);
  // Stores a copy at the index, growing the array to hold it; a negative index is ignored.
  void add_character(igsCharacter const& character, int index);
  // The character at an index in range, else an unset one.
  igsCharacter const& read_character(int index) const;

  int num_characters() const { return m_count; }
  int number_of_shapes() const { return m_characters.size(); }
  int scale() const { return m_scale; }
  int font_code() const { return m_font_code; }
  utString const& font_name() const { return m_font_name; }
  int superseded_font() const { return m_superseded; }
  igsObjectPtr const& superseded_definition() const { return m_superseded_definition; }

 protected:
  void unreference_children() override;

 private:
  int m_count = igs_unset_int;
  int m_scale = igs_unset_int;
  int m_font_code = igs_unset_int;
  utString m_font_name;
  int m_superseded = 0;
  igsObjectPtr m_superseded_definition;
  coDynArr<igsCharacter> m_characters;
};
