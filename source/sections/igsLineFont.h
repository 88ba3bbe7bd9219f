// The line font pattern of a Directory Entry: a pattern number, or a reference to a line font
// definition entity (304, form 1 or 2) held as minus its DE number.
#pragma once

#include "sections/igsAttributeNames.h"
#include "sections/igsDefinitionValue.h"
#include "support/utString.h"

class utOstream;

class igsLineFont : public igsDefinitionValue {
 public:
  // Solid, with no definition.
  igsLineFont() : igsDefinitionValue(0, igsSolid) {}
  // A negative value is a definition, bound to DE number -value; the value is kept either way.
  explicit igsLineFont(int value) : igsDefinitionValue(value, value) {}

  void become(igsLineFont const& other) { igsDefinitionValue::become(other); }

  int predefined_pattern() const { return predefined(); }
  igsObjectPtr const& line_font_definition() const { return definition(); }
  // The pattern when predefined; else the pattern that the definitions lead to.
  int pattern_value() const;
  // Whether the pattern, through the definitions, is one of Solid to Dotted: what a line font
  // definition's own Directory Entry must give.
  int names_pattern() const {
    int pattern = pattern_value();
    return igsSolid <= pattern && pattern <= igsDotted;
  }
  // The stored value when it is a pattern, else Solid.
  igsPattern pattern_type() const;
  // The pattern's name or "Unknown pattern"; "ig" and the DE number of a definition.
  utString pattern_name() const;

  void set_pattern(igsPattern pattern) { set_value(pattern); }
  // Refuses a null reference; else the value becomes minus its DE number.
  int set_line_font_definition(igsObjectPtr const& definition);

  // A pattern number from 0 to 5, or a line font definition whose DE number the value holds.
  int valid() const;
  void print(utOstream& out) const;
};

utOstream& operator<<(utOstream& out, igsLineFont const& line_font);
