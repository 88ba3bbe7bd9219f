// The planar associativity (type 402, form 16): a group of entities that lie in one plane,
// with the transformation matrix that places the plane.
#pragma once

#include "entities/structure/igsGroup.h"

class igs402_16 : public igsGroup {
  IGS_ENTITY_CLASS(igs402_16)

  // The number of transformations, which must be 1.
  int number_of_transforms() const { return m_number_of_transforms; }
  void set_number_of_transforms(int n) { m_number_of_transforms = n; }
  igsObjectPtr const& get_transform() const { return m_transform; }
  void set_transform(igsObjectPtr const& transform) { m_transform = transform; }
  // Makes a new identity matrix the transformation; 0 if it could not be made.
  int set_identity_transform();

 private:
  int m_number_of_transforms = igs_unset_int;
  igsObjectPtr m_transform;
};
