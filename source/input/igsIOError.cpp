#include "input/igsIOError.h"

char igs_section_letter(igsFileSection section) {
  static char const letters[] = "SGDPT ";
  return static_cast<unsigned>(section) <= igsSectionNone ? letters[section] : ' ';
}

char const* igs_io_error_name(igsIOErrorCode code) {
  switch (code) {
  case igsIOValuePresent:
    return "igsIOValuePresent";
  case igsIOEmbeddedBlank:
    return "igsIOEmbeddedBlank";
  case igsIOBadValue:
    return "igsIOBadValue";
  case igsIOSplitValue:
    return "igsIOSplitValue";
  case igsIOEntityEnd:
    return "igsIOEntityEnd";
  case igsIOSectionEnd:
    return "igsIOSectionEnd";
  case igsIOBadBackpointer:
    return "igsIOBadBackpointer";
  case igsIOBadLineNumber:
    return "igsIOBadLineNumber";
  case igsIOLineSequence:
    return "igsIOLineSequence";
  case igsIOBadSectionLetter:
    return "igsIOBadSectionLetter";
  case igsIOStreamBad:
    return "igsIOStreamBad";
  case igsIOEndOfFile:
    return "igsIOEndOfFile";
  case igsIOStreamFailed:
    return "igsIOStreamFailed";
  case igsIOLineNumberTooLarge:
    return "igsIOLineNumberTooLarge";
  case igsIOBackpointerTooLarge:
    return "igsIOBackpointerTooLarge";
  case igsIONotANumber:
    return "igsIONotANumber";
  case igsIOStartLineSequence:
    return "igsIOStartLineSequence";
  case igsIONullCharacter:
    return "igsIONullCharacter";
  case igsIOBlankLine:
    return "igsIOBlankLine";
  }
  return "igsIOUnknownCode";
}

int igs_add_io_error(igsIOErrorcoDynArr& list, igsIOErrorCode code) {
  if (igs_has_io_error(list, code)) return 0;
  return list.append(igsIOError(code));
}

int igs_has_io_error(igsIOErrorcoDynArr const& list, igsIOErrorCode code) {
  for (igsIOError const& e : list)
    if (e.error_type() == code) return 1;
  return 0;
}
