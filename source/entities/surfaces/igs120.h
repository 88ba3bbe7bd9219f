// The surface of revolution (type 120): a generatrix curve turned about an axis line from a
// start to an end angle, in radians.
#pragma once

#include "entities/igsChildCheck.h"
#include "entities/igsEntityBases.h"

class igs120 : public igsChildEntity<igsParameterizedSurface> {
  IGS_ENTITY_CLASS(igs120)

  // The angles before any are given; unlike the unset double of other classes.
  static constexpr double default_angle = -2147483647.0;

  igsObjectPtr const& axis() const { return m_axis; }
  igsObjectPtr const& generatrix() const { return m_generatrix; }
  double start_angle() const { return m_start; }
  double end_angle() const { return m_end; }
  // Refuse a null reference.
  int set_axis(igsObjectPtr const& axis);
  int set_generatrix(igsObjectPtr const& generatrix);
  // Stores the angles if the end lies above the start by at most a full turn, without
  // tolerance; else gives 0 and changes nothing.
  int set_start_end_angle(double start, double end);

 protected:
  void unreference_children() override;

 private:
  igsObjectPtr m_generatrix;
  igsObjectPtr m_axis;
  double m_start = default_angle;
  double m_end = default_angle;
};
