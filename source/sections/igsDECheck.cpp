// The Directory Entry checks that every entity class runs a subset of, and the repairs of
// what they find.
#include "sections/igsDECheck.h"

#include "core/igsFile.h"
#include "core/igsObject.h"
#include "entities/structure/igs124.h"
#include "sections/igsDEErrors.h"
#include "sections/igsDirectoryEntry.h"
#include "sections/igsGlobalSection.h"

#define IGS_ERROR IGS_ERROR_DEFINE
#include "sections/igsDEErrors.def"

void igsObject::check_directory_entry(unsigned steps, int required_use) const {
  igsDirectoryEntry const& de = directory_entry();
  auto step = [steps](unsigned flag) { return (steps & flag) != 0; };

  if ((step(IGS_DE_LINE_FONT) && !de.line_font().valid()) ||
      (step(IGS_DE_SOLID_LINE_FONT) && de.line_font().pattern_value() != 1))
    raise_error<igsDEInvalidLineFont>();
  if (step(IGS_DE_LEVEL) && !de.level().valid()) raise_error<igsDEInvalidLevel>();
  if (igsObjectPtr const& matrix = de.matrix(); step(IGS_DE_MATRIX) && matrix) {
    // Both tests run: a matrix of the wrong kind is still checked.
    if (!matrix->isa(igs124::type())) raise_error<igsDEInvalidMatrix>();
    if (!matrix->check()) raise_error<igsDEInvalidMatrixData>();
  }
  if (step(IGS_DE_COLOUR) && !de.colour().valid()) raise_error<igsDEInvalidColour>();
  if (step(IGS_DE_STATUS) && !de.status_flags().valid()) raise_error<igsDEInvalidStatusFlags>();
  if (step(IGS_DE_ENTITY_USE) && de.status_flags().entity_use_value() != required_use)
    raise_error<igsDEInvalidEntityUse>(required_use);
  if (step(IGS_DE_LINE_WEIGHT)) {
    int weight = de.line_weight_number();
    if (weight < 0 || weight > file().global_section().max_number_of_line_weights())
      raise_error<igsDEInvalidLineWeight>();
  }
  if (step(IGS_DE_SUBSCRIPT) && de.entity_subscript() < 0)
    raise_error<igsDEInvalidEntitySubscript>();
}

// Repairs. Each reaches its entity through the DE number it is keyed by, and does nothing
// when no entity stands there any more.

namespace {

// The Directory Entry of the entity under the DE number, or null.
igsDirectoryEntry* entry(int de_number) {
  igsObjectPtr entity(de_number);
  return entity ? &entity->directory_entry() : nullptr;
}

} // namespace

int igsDEInvalidLineFont::fix() {
  igsDirectoryEntry* de = entry(key());
  return de && de->set_line_font(igsLineFont(0));
}

int igsDEInvalidLevel::fix() {
  igsDirectoryEntry* de = entry(key());
  return de && de->set_level(igsLevel(0));
}

int igsDEInvalidColour::fix() {
  igsDirectoryEntry* de = entry(key());
  return de && de->set_colour(igsColour(igsNoColour));
}

int igsDEInvalidLineWeight::fix() {
  igsDirectoryEntry* de = entry(key());
  return de && de->set_line_weight_number(0);
}

int igsDEInvalidEntityUse::fix() {
  igsDirectoryEntry* de = entry(key());
  if (!de) return 0;
  de->m_status_flags = igsStatusFlags(de->m_status_flags.blank_status_value(),
                                      de->m_status_flags.subordinate_status_value(), use(),
                                      de->m_status_flags.hierarchy_value());
  return 1;
}

// The matrix is found once: its repairs come first, and this one only sees whether they
// settled it.
int igsDEInvalidMatrixData::obj() {
  if (!cached_obj())
    if (igsDirectoryEntry* de = entry(key()); de && de->matrix())
      set_cached_obj(de->matrix()->de_number());
  return cached_obj() ? cached_obj() : key();
}

int igsDEInvalidMatrixData::fix() {
  igsDirectoryEntry* de = entry(key());
  if (!de) return 0;
  igsObjectPtr const& matrix = de->matrix();
  return !matrix || matrix->num_logged_errors() == 0;
}
