#include "entities/annotation/igsSection.h"

#include "entities/annotation/igsAnnotationErrors.h"

IGS_ENTITY_DEFINE(igsSection, igs106Base, 106, 31, igs_106_annotation_de_steps)

// An even number of points, at least two.
void igsSection::check_pd() const {
  if (!pairs_of_points()) raise_error<igsSectionInvalidSize>(size());
  igs106Base::check_pd();
}
