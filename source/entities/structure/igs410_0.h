// The view entity (type 410, form 0): a view number, a scale, and up to six planes that clip
// what the view shows. The view numbers of a file must be distinct; the file's check sees to
// that.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"
#include "entities/structure/igsStructureErrors.h"

class igs410_0 : public igsDefinition {
  IGS_ENTITY_CLASS(igs410_0)

  int view_number() const { return m_view_number; }
  double scale_factor() const { return m_scale_factor; }
  // Store without a test and return 1.
  int set_view_number(int number) {
    m_view_number = number;
    return 1;
  }
  int set_scale_factor(double scale) {
    m_scale_factor = scale;
    return 1;
  }

#define IGS_410_0_PLANE_ACCESSORS(Plane, plane)                                                    \
  igsObjectPtr const& plane##_plane() const {                                                      \
    return m_planes[Plane];                                                                        \
  }                                                                                                \
  int set_##plane##_plane(igsObjectPtr const& reference) {                                         \
    m_planes[Plane] = reference;                                                                   \
    return 1;                                                                                      \
  }
  IGS_410_0_PLANES(IGS_410_0_PLANE_ACCESSORS)
#undef IGS_410_0_PLANE_ACCESSORS

  // The planes by their place among the parameters, 0 (left) to 5 (front).
  enum Plane : int {
#define IGS_410_0_PLANE_NAME(Plane, plane) Plane,
    IGS_410_0_PLANES(IGS_410_0_PLANE_NAME)
#undef IGS_410_0_PLANE_NAME
        number_of_planes
  };
  igsObjectPtr const& plane(Plane p) const {
    return m_planes[p];
  }
  void set_plane(Plane p, igsObjectPtr const& reference) {
    m_planes[p] = reference;
  }

 protected:
  void unreference_children() override;

 private:
  int m_view_number = igs_unset_int;
  double m_scale_factor = 1.0;
  igsObjectPtr m_planes[number_of_planes];
};
