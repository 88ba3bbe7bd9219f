// One text string of a general note (and of a text display template): the text with the box
// it is set in, its font, its angles, its mirroring and its start point.
#pragma once

#include "core/igsObjectPtr.h"
#include "core/igsUnset.h"
#include "support/giGeometry.h"
#include "support/utString.h"

// How the text is mirrored: not, about the axis perpendicular to its base line, or about its
// base line.
enum igsMirror_Status : int { igsMirrorNone = 0, igsMirrorPerpendicular = 1, igsMirrorBaseLine = 2 };
// How the characters stand along the text: horizontally or vertically.
enum igsAlignment_Status : int { igsAlignmentHorizontal = 0, igsAlignmentVertical = 1 };

class igsWord {
 public:
  igsWord() = default;
  igsWord(utString const& text, double height, double length)
      : m_string(text), m_box_length(length), m_box_height(height) {}

  utString const& string() const { return m_string; }
  // 0 for a string with no text.
  int num_characters() const { return m_string.length(); }
  // The number of characters that a write gives: the text less the white space at its end
  // (and the characters that a write turns into blanks there).
  int written_characters() const;
  double box_length() const { return m_box_length; }
  double box_height() const { return m_box_height; }
  void set_box_dimensions(double length, double height) {
    m_box_length = length;
    m_box_height = height;
  }
  // A positive code names a font; 0 means the font definition entity does.
  int font_code() const { return m_font_code; }
  void set_font_code(int code) { m_font_code = code; }
  igsObjectPtr const& font_definition_entity() const { return m_font; }
  void set_font_definition_entity(igsObjectPtr const& font) { m_font = font; }
  giAngle const& slant_angle() const { return m_slant; }
  void set_slant_angle(giAngle const& angle) { m_slant = angle; }
  giAngle const& rotation_angle() const { return m_rotation; }
  void set_rotation_angle(giAngle const& angle) { m_rotation = angle; }
  int mirror_status() const { return m_mirror; }
  int alignment_status() const { return m_alignment; }
  void set_text_appearance(igsMirror_Status mirror, igsAlignment_Status alignment) {
    m_mirror = mirror;
    m_alignment = alignment;
  }
  giPoint3 const& start_point() const { return m_start; }
  void set_start_point(giPoint3 const& point) { m_start = point; }
  // Gives up the reference to the font definition.
  void unreference_children() { m_font.unreference(); }

  // A code of the predefined fonts, or 0 with a font definition entity.
  int valid_font_code() const;

 private:
  utString m_string;
  double m_box_length = igs_unset_double;
  double m_box_height = igs_unset_double;
  int m_font_code = 1;
  igsObjectPtr m_font;
  giAngle m_slant{giAngle90Tag};
  giAngle m_rotation{giAngle0Tag};
  int m_mirror = igsMirrorNone;
  int m_alignment = igsAlignmentHorizontal;
  giPoint3 m_start;
};
