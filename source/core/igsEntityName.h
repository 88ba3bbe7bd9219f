// The name of an entity type, as igsObject::name gives it.
#pragma once

#include "support/utString.h"

// The name under which the entity tables list the type; an empty string for a type they do
// not name.
utString const& igs_entity_type_name(int type);
