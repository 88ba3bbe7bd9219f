// The transformation matrix entity (type 124, forms 0 right-handed and 1 left-handed): a 3 by
// 3 rotation part and a translation, held as the top three rows of a 4 by 4 matrix whose
// fourth row is 0, 0, 0, 1. Every Directory Entry may point to one.
#pragma once

#include "entities/igsEntity.h"

class igs124 : public igsObject {
  IGS_ENTITY_CLASS(igs124)

  // The 4 by 4 matrix into m.
  void matrix(double (*m)[4]) const;
  // Stores all 16 values.
  void set_matrix(double const (*m)[4]);
  double value(int row, int column) const { return m_transform.value(row, column); }
  // Column c (0 to 2) of the 3 by 3 part.
  giVector3 column(int c) const {
    return {m_transform.value(0, c), m_transform.value(1, c), m_transform.value(2, c)};
  }
  // The determinant of the 3 by 3 part.
  double determinant() const;

  // The repairs of a determinant that does not fit the form; 1 when the fault is settled.
  int repair_handedness(int left_handed_error, double determinant);

 private:
  // New matrices start as the identity with element [3][3] unset, so that they fail the
  // homogeneity test until they are given values.
  static giXform3 initial_transform();

  giXform3 m_transform = initial_transform();
};
