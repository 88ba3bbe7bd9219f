// The section of the line that an input stream stands on, which the section readers go by.
#pragma once

#include "input/igsInStream.h"

inline igsFileSection igs_stream_section(igsInStream const& in) {
  igsFileSection section;
  int line;
  int column;
  in.position(section, line, column);
  return section;
}
