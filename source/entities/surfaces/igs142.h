// The curve on a parametric surface (type 142): a curve given in the parameter space of its
// basis surface, in model space, or both, and which of them the sender prefers.
#pragma once

#include "entities/surfaces/igsOnSurface.h"

enum igs142CurveCreation : int {
  igs142CreationUnspecified,
  igs142Projection,
  igs142Intersection,
  igs142Isoparametric
};
enum igs142PreferredRep : int {
  igs142PreferUnspecified,
  igs142PreferParametric,
  igs142PreferModelSpace,
  igs142PreferBoth
};

class igs142 : public igsOnSurface<igsObject> {
  IGS_ENTITY_CLASS(igs142)

  igsObjectPtr const& curve_2d() const { return m_curve_2d; }
  igsObjectPtr const& curve_3d() const { return m_curve_3d; }
  // The values as the file holds them, valid or not.
  int curve_creation() const { return m_creation; }
  int preferred_representation() const { return m_preferred; }
  // Store without any test; null curves are allowed.
  void set_curve_2d(igsObjectPtr const& curve) { m_curve_2d = curve; }
  void set_curve_3d(igsObjectPtr const& curve) { m_curve_3d = curve; }
  void set_curve_creation(igs142CurveCreation creation) { m_creation = creation; }
  void set_preferred_representation(igs142PreferredRep preferred) { m_preferred = preferred; }

 protected:
  void unreference_children() override;

 private:
  // Each number stands in the tail padding of the reference before it.
  [[no_unique_address]] igsObjectPtr m_curve_2d;
  int m_creation = igs142CreationUnspecified;
  [[no_unique_address]] igsObjectPtr m_curve_3d;
  int m_preferred = igs142PreferUnspecified;
};
