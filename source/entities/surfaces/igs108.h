// The plane (type 108): the coefficients of A x + B y + C z = D, and in forms 1 and -1 (the
// bounded plane, and the plane that bounds a hole) the curve of its boundary, with a place and
// size for its display symbol.
#pragma once

#include "entities/igsChildCheck.h"
#include "entities/igsEntityBases.h"

class igs108 : public igsChildEntity<igsUnparameterizedSurface> {
  IGS_ENTITY_CLASS(igs108)

  void planar_coefficients(double& a, double& b, double& c, double& d) const;
  // Refuses (0) a normal of three exact zeros; d is not looked at.
  int set_planar_coefficients(double a, double b, double c, double d);
  igsObjectPtr const& boundary_curve() const { return m_boundary; }
  // Refuses a null curve.
  int set_boundary_curve(igsObjectPtr const& curve);
  giPoint3 display_symbol_location() const { return m_symbol_location; }
  double display_symbol_size() const { return m_symbol_size; }
  // Refuses an invalid location; the size is not tested.
  int set_display_symbol(giPoint3 const& location, double size);

 protected:
  void unreference_children() override;

 private:
  double m_a = igs_unset_double;
  double m_b = igs_unset_double;
  double m_c = igs_unset_double;
  double m_d = igs_unset_double;
  igsObjectPtr m_boundary;
  giPoint3 m_symbol_location;
  double m_symbol_size = igs_unset_double;
};
