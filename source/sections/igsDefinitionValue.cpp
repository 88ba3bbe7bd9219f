#include "sections/igsDefinitionValue.h"

#include "core/igsFile.h"
#include "core/igsObject.h"
#include "sections/igsDirectoryEntry.h"

#include <climits>

igsObjectPtr igsDefinitionValue::definition_of_field(int field) {
  // INT_MIN has no positive counterpart; it is even, and so names no DE anyway.
  if (field >= 0 || field == INT_MIN) return igsObjectPtr();
  return igsObjectPtr(-field);
}

int igsDefinitionValue::field() const {
  return predefined() ? m_value : minus_de_number();
}

int igsDefinitionValue::set_definition(igsObjectPtr const& definition, int value) {
  if (!definition) return 0;
  m_definition = definition;
  m_value = value;
  return 1;
}

int igsDefinitionValue::minus_de_number() const {
  return -m_definition->de_number();
}

int igsDefinitionValue::valid(unsigned count, int (*kind)(igsObjectPtr const&)) const {
  if (predefined()) return static_cast<unsigned>(m_value) < count;
  return kind(m_definition) && m_value == minus_de_number();
}

int igsDefinitionValue::resolved_value(
    igsDefinitionValue const& (*attribute)(igsDirectoryEntry const&)) const {
  if (predefined()) return m_value;
  // A chain longer than the file has slots must have come back on itself.
  int steps = m_definition->file().num_slots();
  igsDefinitionValue const* at = this;
  while (!at->predefined()) {
    if (steps-- < 0) return 0;
    at = &attribute(at->m_definition->directory_entry());
  }
  return at->m_value;
}

utString igsDefinitionValue::definition_name() const {
  utString name("ig");
  name << m_definition->de_number();
  return name;
}
