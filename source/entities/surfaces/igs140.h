// The offset surface (type 140): a basis surface moved along its normal by a signed distance,
// the offset indicator giving the direction.
#pragma once

#include "entities/surfaces/igsOnSurface.h"

class igs140 : public igsOnSurface<igsParameterizedSurface> {
  IGS_ENTITY_CLASS(igs140)

  double offset_distance() const { return m_distance; }
  void set_offset_distance(double distance) { m_distance = distance; }
  giPoint3 const& offset_indicator() const { return m_indicator; }
  // Refuses an unset point.
  int set_offset_indicator(giPoint3 const& indicator) {
    return igs_set_valid(m_indicator, indicator);
  }

 private:
  double m_distance = igs_unset_double;
  giPoint3 m_indicator;
};
