#include "entities/annotation/igsCentreLine.h"

#include "entities/annotation/igsAnnotationErrors.h"

IGS_ENTITY_DEFINE(igsCentreLine, igs106Base, 106, 20, igs_106_annotation_de_steps)

// An even number of points, at least two.
void igsCentreLine::check_pd() const {
  if (!pairs_of_points()) raise_error<igsCentreLineInvalidSize>(size());
  igs106Base::check_pd();
}
