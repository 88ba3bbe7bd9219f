// The four status digits of a Directory Entry: blank status, subordinate entity switch, entity
// use flag and hierarchy. Each is stored as the file held it; the enumeration getters give
// the first enumerator for a value out of range.
#pragma once

#include "sections/igsAttributeNames.h"

#include <cstdint>

class utOstream;

class igsStatusFlags {
 public:
  // All 0.
  igsStatusFlags() = default;
  // Stores the values as they are. Each is kept in a byte, which holds whatever the two
  // columns of a D line field can; a value beyond a byte is kept as the nearer end of its
  // range, out of range of every enumeration as the value itself is.
  igsStatusFlags(int blank, int subordinate, int use, int hierarchy)
      : m_values{byte(blank), byte(subordinate), byte(use), byte(hierarchy)} {}

  // Copies through the enumerations: a value out of range becomes 0.
  void become(igsStatusFlags const& other);
  // Compares the stored values.
  bool operator==(igsStatusFlags const& other) const = default;

  igsBlankStatus blank_status() const;
  igsSubordinateStatus subordinate_status() const;
  igsEntityUse entity_use() const;
  igsHierarchy hierarchy() const;

  int blank_status_value() const { return m_values[blank_flag]; }
  int subordinate_status_value() const { return m_values[subordinate_flag]; }
  int entity_use_value() const { return m_values[use_flag]; }
  int hierarchy_value() const { return m_values[hierarchy_flag]; }

  // The name of the stored value, "Unknown" out of range.
  char const* blank_status_name() const { return name(blank_flag); }
  char const* subordinate_status_name() const { return name(subordinate_flag); }
  char const* entity_use_name() const { return name(use_flag); }
  char const* hierarchy_name() const { return name(hierarchy_flag); }

  void set_blank_status(igsBlankStatus status) { m_values[blank_flag] = byte(status); }
  void set_subordinate_status(igsSubordinateStatus status) {
    m_values[subordinate_flag] = byte(status);
  }
  void set_entity_use(igsEntityUse use) { m_values[use_flag] = byte(use); }
  void set_hierarchy(igsHierarchy hierarchy) { m_values[hierarchy_flag] = byte(hierarchy); }

  // Every value names an enumerator.
  int valid() const;
  // Four lines, "BlankStatus = 0(Visible)" and so on; the last has no line end.
  void print(utOstream& out) const;

 private:
  enum Flag { blank_flag, subordinate_flag, use_flag, hierarchy_flag, flag_count };
  char const* name(Flag flag) const;
  static std::int8_t byte(int value) {
    return static_cast<std::int8_t>(value < INT8_MIN   ? INT8_MIN
                                    : value > INT8_MAX ? INT8_MAX
                                                       : value);
  }

  std::int8_t m_values[flag_count] = {};
};

utOstream& operator<<(utOstream& out, igsStatusFlags const& flags);
