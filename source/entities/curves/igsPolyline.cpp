#include "entities/curves/igsPolyline.h"

IGS_ENTITY_DEFINE(igsPolyline, igsCurve, 106, 11, IGS_DE_ALL)

int igsPolylineIPFormMismatch::fix() {
  return igsPolyline::repair_form(key());
}
