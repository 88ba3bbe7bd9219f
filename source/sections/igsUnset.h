// The value of an int field that nothing has set yet, as a file or a new object holds it.
#pragma once

inline constexpr int igs_unset_int = -2147483647; // 0x80000001
