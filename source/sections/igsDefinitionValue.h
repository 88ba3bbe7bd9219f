// The common part of the Directory Entry attributes that are either a number or a pointer to
// a definition entity (line font, colour, level). In a D line such a field holds a small
// number, or minus the DE number of the definition entity. It is kept twice, as a reference
// and as the integer value, and is "predefined" when the reference is null.
#pragma once

#include "core/igsObjectPtr.h"

#include <cstdint>
#include <utility>

class igsDirectoryEntry;
class utString;

class igsDefinitionValue {
 public:
  igsDefinitionValue(igsDefinitionValue const& other) : igsDefinitionValue() { become(other); }
  igsDefinitionValue(igsDefinitionValue&& other) noexcept : m_word(other.m_word) {
    other.m_word = predefined_word(0);
  }
  igsDefinitionValue& operator=(igsDefinitionValue const& other) {
    become(other);
    return *this;
  }
  igsDefinitionValue& operator=(igsDefinitionValue&& other) noexcept {
    std::swap(m_word, other.m_word);
    return *this;
  }
  ~igsDefinitionValue() { delete defined(); }

  // The reference of a field: bound to DE number -field for a negative field, else null.
  static igsObjectPtr definition_of_field(int field);

  // Whether there is no definition (a reference to a DE number without an entity is none).
  int predefined() const {
    Defined const* d = defined();
    return !d || !d->definition;
  }
  igsObjectPtr const& definition() const;
  // The value as stored: the number, or minus the DE number the definition had when it was
  // read or set.
  int value() const {
    Defined const* d = defined();
    return d ? d->value : static_cast<int>(static_cast<std::intptr_t>(m_word) >> 1);
  }
  // What a D line holds: the value when predefined, else minus the definition's current DE
  // number.
  int field() const;
  void unreference_children();

 protected:
  // The value of a D line field. A negative field is bound to DE number -field (even one
  // without an entity yet) and kept with the value; if there is no memory for it, the value
  // stands alone.
  igsDefinitionValue(int field, int value) : m_word(predefined_word(value)) {
    if (field < 0) store(definition_of_field(field), value);
  }

  void become(igsDefinitionValue const& other);
  // Stores the number and drops the definition.
  void set_value(int value) {
    delete defined();
    m_word = predefined_word(value);
  }
  // Refuses a null reference (or no memory for it); else stores it with the value.
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
  struct Defined {
    igsObjectPtr definition;
    int value;
  };
  igsDefinitionValue() = default;
  // Keeps a bound reference with the value; 0 if there was no memory for them.
  int store(igsObjectPtr const& definition, int value);
  static std::uintptr_t predefined_word(int value) {
    return (static_cast<std::uintptr_t>(static_cast<std::intptr_t>(value)) << 1) | 1u;
  }
  Defined* defined() const { return m_word & 1u ? nullptr : reinterpret_cast<Defined*>(m_word); }

  // A Directory Entry holds three of these, and nearly every one is a plain number: the word
  // holds the number, shifted and marked in its low bit, or else the address of the block that
  // keeps a definition with its value.
  std::uintptr_t m_word = predefined_word(0);
};
