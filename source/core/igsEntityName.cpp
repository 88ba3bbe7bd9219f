#include "core/igsEntityName.h"

// The library does not carry the tables of entity names yet, so no type has a name. This is
// the one place that asks them.
utString const& igs_entity_type_name(int) {
  static utString const none("");
  return none;
}
