#include "entities/igsChildCheck.h"

#include "core/igsFile.h"
#include "operations/igsConvert.h"

igsObject* igs_curve_of(igsObjectPtr const& child) {
  if (!child || child->num_logged_errors()) return nullptr;
  return igsConvert::to_curve(child());
}

int igs_take_place_of_lone_child(igsObjectPtr const& child, igsObject* entity) {
  if (!child || child->num_references() != 2) return 0;
  entity->file().replace_entity(child(), entity);
  return 1;
}
