// The common part of the Directory Entry attributes that are either a number or a pointer to
// a definition entity (line font, colour, level). In a D line such a field holds a small
// number, or minus the DE number of the definition entity. It is kept twice, as a reference
// and as the integer value, and is "predefined" when the reference is null.
#pragma once

#include "core/igsObjectPtr.h"

class igsDirectoryEntry;
class utString;

class igsDefinitionValue {
 public:
  // The reference of a field: bound to DE number -field for a negative field, else null.
  static igsObjectPtr definition_of_field(int field);

  // Whether there is no definition (a reference to a DE number without an entity is none).
  int predefined() const { return !m_definition; }
  igsObjectPtr const& definition() const { return m_definition; }
  // The value as stored: the number, or minus the DE number the definition had when it was
  // read or set.
  int value() const { return m_value; }
  // What a D line holds: the value when predefined, else minus the definition's current DE
  // number.
  int field() const;
  void unreference_children() { m_definition.unreference(); }

 protected:
  igsDefinitionValue(igsObjectPtr const& definition, int value)
      : m_definition(definition), m_value(value) {}

  void become(igsDefinitionValue const& other) {
    m_definition = other.m_definition;
    m_value = other.m_value;
  }
  // Stores the number and drops the definition.
  void set_value(int value) {
    m_value = value;
    m_definition = igsObjectPtr();
  }
  // Refuses a null reference; else stores it with the value.
  int set_definition(igsObjectPtr const& definition, int value);
  // Minus the DE number of the definition; the caller has tested it.
  int minus_de_number() const;
  // Predefined: the value, as unsigned, is below `count`. Otherwise the definition passes the
  // kind test and the value is minus its current DE number.
  int valid(unsigned count, int (*kind)(igsObjectPtr const&)) const;
  // The value when predefined; else the same attribute of the definition's own Directory
  // Entry, followed until a predefined one is met. A chain that runs in a circle gives 0.
  int resolved_value(igsDefinitionValue const& (*attribute)(igsDirectoryEntry const&)) const;
  // "ig" and the definition's DE number.
  utString definition_name() const;

 private:
  // The value stands in the reference's tail padding: a Directory Entry holds three of these.
  [[no_unique_address]] igsObjectPtr m_definition;
  int m_value;
};
