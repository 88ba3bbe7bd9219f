#include "entities/annotation/igsWitnessLine.h"

#include "entities/annotation/igsAnnotationErrors.h"
#include "support/utMath.h"

IGS_ENTITY_DEFINE(igsWitnessLine, igs106Base, 106, 40, igs_106_annotation_de_steps)

namespace {

// Whether no two of the points lie farther apart than the tolerance; so for no point at all.
int all_coincident(giPoint2coDynArr const& points, double tolerance) {
  int n = points.size();
  // A point away from the first settles it in one pass, as in nearly every line.
  for (int i = 1; i < n; ++i)
    if (!points[0].coincident(points[i], tolerance)) return 0;
  // All lie within the tolerance of the first. Within a box of that diagonal every pair does;
  // only a wider box leaves pairs to compare.
  if (n == 0) return 1;
  double x0 = points[0].x(), x1 = x0, y0 = points[0].y(), y1 = y0;
  for (giPoint2 const& p : points) {
    x0 = utMath::min(x0, p.x()), x1 = utMath::max(x1, p.x());
    y0 = utMath::min(y0, p.y()), y1 = utMath::max(y1, p.y());
  }
  if (giPoint2(x0, y0).coincident(giPoint2(x1, y1), tolerance)) return 1;
  for (int i = 1; i < n; ++i)
    for (int j = i + 1; j < n; ++j)
      if (!points[i].coincident(points[j], tolerance)) return 0;
  return 1;
}

} // namespace

void igsWitnessLine::check_pd() const {
  if (size() < 3 || utMath::remd(size(), 2.0) < 0.1) raise_error<igsWitnessLineInvalidSize>(size());
  if (all_coincident(points(), kvnTolCoincPoint2d.value()))
    raise_error<igsWitnessLineCoincidentPoints>();
  igs106Base::check_pd();
}
