// The ruled surface (type 118): the lines between two rails, each a curve or a point, with the
// flags that say whether the second rail runs reversed and whether the surface is developable.
#pragma once

#include "entities/igsChildCheck.h"
#include "entities/igsEntityBases.h"

class igs118 : public igsChildEntity<igsParameterizedSurface> {
  IGS_ENTITY_CLASS(igs118)

  igsObjectPtr const& rail_curve_1() const { return m_rail_1; }
  igsObjectPtr const& rail_curve_2() const { return m_rail_2; }
  // Refuse a null rail; the kind is not tested.
  int set_rail_curve_1(igsObjectPtr const& rail);
  int set_rail_curve_2(igsObjectPtr const& rail);
  int direction_flag() const { return m_direction; }
  int developable_flag() const { return m_developable; }

 protected:
  void unreference_children() override;

 private:
  igsObjectPtr m_rail_1;
  igsObjectPtr m_rail_2;
  int m_direction = 0;
  int m_developable = 0;
};
