#include "sections/igsEntityKind.h"

#include "core/igsObject.h"
#include "core/igsObjectPtr.h"

#include <cstring>

int igs_record_is(kvuTypeInfo const& record, char const* class_name) {
  return std::strcmp(record.name(), class_name) == 0;
}

int igs_record_kind_of(kvuTypeInfo const& record, char const* class_name) {
  if (igs_record_is(record, class_name)) return 1;
  for (kvuTypeInfo const* const* p = record.parents(); p && *p; ++p)
    if (igs_record_kind_of(**p, class_name)) return 1;
  return 0;
}

int igs_isa_class(igsObject const* object, char const* class_name) {
  return object && igs_record_is(object->objtype(), class_name);
}

int igs_typeof_class(igsObject const* object, char const* class_name) {
  return object && igs_record_kind_of(object->objtype(), class_name);
}

int igs_isa_class(igsObjectPtr const& object, char const* class_name) {
  return object && igs_record_is(object->objtype(), class_name);
}

int igs_typeof_class(igsObjectPtr const& object, char const* class_name) {
  return object && igs_record_kind_of(object->objtype(), class_name);
}
