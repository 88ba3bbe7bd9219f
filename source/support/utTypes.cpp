#include "support/utTypes.h"

#include "support/kvnabs.h"

void ut_report_assert_failure(char const* expression, char const* file, int line) {
  igs_print_error_message("Assertion failed: %s, at %s:%d\n", expression, file, line);
}
