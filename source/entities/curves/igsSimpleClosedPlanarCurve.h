// The simple closed planar curve (type 106, form 63): a closed polygon of planar points with a
// common Z, whose last point repeats the first.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"
#include "support/coNames.h"

class igsSimpleClosedPlanarCurve : public igsCurve {
  IGS_ENTITY_CLASS(igsSimpleClosedPlanarCurve)

  int number_of_points() const { return m_points.size(); }
  // 0 when the index is out of range.
  int point(int index, giPoint2& point) const;
  // Needs a valid point and an index of 0 or more; the list grows to hold the index.
  int set_point(int index, giPoint2 const& point);
  double z_level() const { return m_z_level; }
  void set_z_level(double z) { m_z_level = z; }

 protected:
  void print_tuples(utOstream& out) const;

 private:
  double m_z_level = igs_unset_double;
  giPoint2coDynArr m_points;
};
