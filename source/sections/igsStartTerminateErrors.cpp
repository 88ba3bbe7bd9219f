#include "sections/igsStartTerminateErrors.h"

#include "sections/igsTerminateSection.h"

#define IGS_ERROR IGS_ERROR_DEFINE
#include "sections/igsStartTerminateErrors.def"

IGS_ERROR_MESSAGE_FIX(igsStartSectionInvalid, 1,
                      "Warning : The start section of this file cannot be read.\n")

// The count becomes what the stream counted; the setter keeps a count it cannot take.
int igsTerminateSectionBadCount::fix() {
  if (igsTerminateSection* terminate = key()) terminate->set_lines(section(), lines_counted());
  return 1;
}
