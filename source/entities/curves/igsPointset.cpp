#include "entities/curves/igsPointset.h"

// No line font and no line weight: the points are not drawn as a curve.
IGS_ENTITY_DEFINE(igsPointset, igsObject, 106, 1,
                  IGS_DE_LEVEL | IGS_DE_MATRIX | IGS_DE_COLOUR | IGS_DE_STATUS | IGS_DE_SUBSCRIPT)

int igsPointsetIPFormMismatch::fix() {
  return igsPointset::repair_form(key());
}
