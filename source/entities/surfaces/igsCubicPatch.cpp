#include "entities/surfaces/igsCubicPatch.h"

void igsCubicPatch::coefficients(double* const x, double* const y, double* const z) const {
  double* const blocks[3] = {x, y, z};
  for (int r = 0; r < 12; ++r) m_rows[r].coefficients(blocks[r / 4] + 4 * (r % 4));
}

void igsCubicPatch::set_coefficients(double const* const x, double const* const y,
                                     double const* const z) {
  double const* const blocks[3] = {x, y, z};
  for (int r = 0; r < 12; ++r) m_rows[r].set_coefficients(blocks[r / 4] + 4 * (r % 4));
}

int igsCubicPatch::valid() const {
  for (igsCubicCoefficients const& row : m_rows)
    if (!row.valid()) return 0;
  return 1;
}

void igsCubicPatch::print(utOstream& out) const {
  for (int r = 0; r < 12; ++r) {
    m_rows[r].print(out);
    out << (r < 11 ? ",\n" : "\n");
  }
}
