// The values of fields that nothing has set yet, as a new object holds them. Points and
// vectors are unset when default-constructed (their `invalid` test), references when null.
#pragma once

#include "support/giGeometry.h"

inline constexpr double igs_unset_double = gi_unset_double;        // the most negative double
inline constexpr int igs_unset_int = static_cast<int>(0x80000001); // one above the smallest int

inline int igs_unset(double value) {
  return value == igs_unset_double;
}
inline int igs_unset(int value) {
  return value == igs_unset_int;
}
