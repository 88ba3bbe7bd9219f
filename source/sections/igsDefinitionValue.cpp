#include "sections/igsDefinitionValue.h"

#include "core/igsFile.h"
#include "core/igsObject.h"
#include "sections/igsDirectoryEntry.h"

#include <climits>
#include <new>

igsObjectPtr igsDefinitionValue::definition_of_field(int field) {
  // INT_MIN has no positive counterpart; it is even, and so names no DE anyway.
  if (field >= 0 || field == INT_MIN) return igsObjectPtr();
  return igsObjectPtr(-field);
}

igsObjectPtr const& igsDefinitionValue::definition() const {
  static igsObjectPtr const none;
  Defined const* d = defined();
  return d ? d->definition : none;
}

void igsDefinitionValue::unreference_children() {
  if (Defined* d = defined()) d->definition.unreference();
}

void igsDefinitionValue::become(igsDefinitionValue const& other) {
  if (this == &other) return;
  Defined const* theirs = other.defined();
  if (!theirs || !store(theirs->definition, theirs->value)) set_value(other.value());
}

int igsDefinitionValue::field() const {
  return predefined() ? value() : minus_de_number();
}

int igsDefinitionValue::set_definition(igsObjectPtr const& definition, int value) {
  return definition && store(definition, value);
}

int igsDefinitionValue::store(igsObjectPtr const& definition, int value) {
  if (!definition.bound()) return 0;
  if (Defined* d = defined()) {
    d->definition = definition;
    d->value = value;
    return 1;
  }
  Defined* d = new (std::nothrow) Defined{definition, value};
  if (!d) return 0;
  m_word = reinterpret_cast<std::uintptr_t>(d);
  return 1;
}

int igsDefinitionValue::minus_de_number() const {
  return -definition()->de_number();
}

int igsDefinitionValue::valid(unsigned count, int (*kind)(igsObjectPtr const&)) const {
  if (predefined()) return static_cast<unsigned>(value()) < count;
  return kind(definition()) && value() == minus_de_number();
}

int igsDefinitionValue::resolved_value(
    igsDefinitionValue const& (*attribute)(igsDirectoryEntry const&)) const {
  if (predefined()) return value();
  // A chain longer than the file has slots must have come back on itself.
  int steps = definition()->file().num_slots();
  igsDefinitionValue const* at = this;
  while (!at->predefined()) {
    if (steps-- < 0) return 0;
    at = &attribute(at->definition()->directory_entry());
  }
  return at->value();
}

utString igsDefinitionValue::definition_name() const {
  utString name("ig");
  name << definition()->de_number();
  return name;
}
