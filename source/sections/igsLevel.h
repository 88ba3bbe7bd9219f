// The level of a Directory Entry: a level number, or a reference to a definition entity that
// lists several levels. Level lists are kept so that they are written back, but they are not
// supported: such a level is not valid.
#pragma once

#include "sections/igsDefinitionValue.h"

class utOstream;

class igsLevel : public igsDefinitionValue {
 public:
  // The largest level number that a D line field can hold.
  static constexpr int max_level = 99999999;

  // Level 0.
  igsLevel() : igsDefinitionValue(0, 0) {}
  // A negative value is a level list, bound to DE number -value, with value 0; any other is
  // the level number.
  explicit igsLevel(int value) : igsDefinitionValue(value, value < 0 ? 0 : value) {}

  void become(igsLevel const& other) { igsDefinitionValue::become(other); }

  int predefined_level() const { return predefined(); }
  igsObjectPtr const& level_list() const { return definition(); }
  // The level number when predefined, else 0.
  int level() const { return predefined() ? value() : 0; }

  // Refuses a negative number and one above max_level; drops a level list.
  int set_level(int level);
  // Refuses a null reference; the value becomes 0.
  int set_level_list(igsObjectPtr const& list);

  // A level number from 0 to max_level; a level list is not valid.
  int valid() const;
  void print(utOstream& out) const;
};

utOstream& operator<<(utOstream& out, igsLevel const& level);
