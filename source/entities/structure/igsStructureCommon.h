// What the structure entities share beside the entity pattern: the Directory Entry checks of
// the entities that take no matrix, and the parametric precision of the transformations.
#pragma once

#include "output/igsOutStream.h"
#include "sections/igsDECheck.h"
#include "support/coResource.h"

// The full list of Directory Entry checks but the matrix: groups, views, drawings, instances
// and directions are not transformed by a matrix of their own.
inline constexpr unsigned igs_de_without_matrix = IGS_DE_ALL & ~IGS_DE_MATRIX;

// Writes the reals of the stream with the parametric precision while it stands.
class igsParametricFormat {
 public:
  explicit igsParametricFormat(igsOutStream& out) : m_out(out) {
    m_out.push_double_format(kvnOptDoubleFieldWidth.value(),
                             kvnOptDoubleParametricPrecision.value());
  }
  ~igsParametricFormat() { m_out.pop_double_format(); }
  igsParametricFormat(igsParametricFormat const&) = delete;
  igsParametricFormat& operator=(igsParametricFormat const&) = delete;

 private:
  igsOutStream& m_out;
};
