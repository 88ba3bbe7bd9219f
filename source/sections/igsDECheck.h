// The checks of an entity's Directory Entry. Each entity class runs the subset that applies to
// it, always in this order; its check_de is one call to igsObject::check_directory_entry.
#pragma once

enum igsDECheckStep : unsigned {
  IGS_DE_LINE_FONT = 1u << 0,   // igsDEInvalidLineFont
  IGS_DE_LEVEL = 1u << 1,       // igsDEInvalidLevel
  IGS_DE_MATRIX = 1u << 2,      // igsDEInvalidMatrix, igsDEInvalidMatrixData
  IGS_DE_COLOUR = 1u << 3,      // igsDEInvalidColour
  IGS_DE_STATUS = 1u << 4,      // igsDEInvalidStatusFlags
  IGS_DE_ENTITY_USE = 1u << 5,  // igsDEInvalidEntityUse (before the line weight)
  IGS_DE_LINE_WEIGHT = 1u << 6, // igsDEInvalidLineWeight
  IGS_DE_SUBSCRIPT = 1u << 7,   // igsDEInvalidEntitySubscript
  // igsDEInvalidLineFont unless the line font's pattern is solid (1), in the place of
  // IGS_DE_LINE_FONT: annotation is drawn solid.
  IGS_DE_SOLID_LINE_FONT = 1u << 8
};

// The full list, which most entity classes run.
inline constexpr unsigned IGS_DE_ALL = IGS_DE_LINE_FONT | IGS_DE_LEVEL | IGS_DE_MATRIX |
                                       IGS_DE_COLOUR | IGS_DE_STATUS | IGS_DE_LINE_WEIGHT |
                                       IGS_DE_SUBSCRIPT;
// The full list but the matrix, for the entities that a matrix of their own does not
// transform.
inline constexpr unsigned igs_de_without_matrix = IGS_DE_ALL & ~IGS_DE_MATRIX;
