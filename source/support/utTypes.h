// Small tags and truth values used across the library.
#pragma once

// Selects a copying constructor or `become`.
enum utCopy { utCopyTag = 0 };

// An int used as a truth value (0 false, anything else true).
using utBool = int;

// Reports a failed internal assertion with its source position; the library goes on.
void ut_report_assert_failure(char const* expression, char const* file, int line);

#define UT_ASSERT(expr) ((expr) ? (void)0 : ut_report_assert_failure(#expr, __FILE__, __LINE__))
