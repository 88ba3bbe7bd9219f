#include "core/igsFileErrors.h"

#define IGS_ERROR IGS_ERROR_DEFINE
#include "core/igsFileErrors.def"

// The damage below was dealt with while reading; the repair only says so.

int igsFileDENullCharacters::fix() {
  message("Warning : There were null characters found in line %d of the Directory Entry "
          "section.\nThese have been replaced with spaces.\n",
          line());
  return 1;
}

int igsFileNoPDData::fix() {
  message("Warning : There is no Parameter Data associated with object DE %d.\n", de_number());
  return 1;
}

int igsFilePDNullCharacters::fix() {
  message("Warning : There were null characters found in the Parameter Data for DE %d.\nThese "
          "have been replaced with spaces.\n",
          de_number());
  return 1;
}

int igsFileInvalidLineNumbers::fix() {
  message("Warning : There were out of sequence line numbers found in this file.\nThis may "
          "cause some data to be processed incorrectly.\n");
  return 1;
}

int igsFileBlankLine::fix() {
  message("Warning : There are blank line(s) in this file.\n");
  return 1;
}

// A file beyond the limits of the line number fields cannot be written; nothing repairs that.

int igsFileLineNumberTooLarge::fix() {
  message("Error: %s limit of 10 million lines per section exceeded.\nSee the Frequently Asked "
          "Questions in the Help for more details",
          "IGES");
  return 0;
}

int igsFileBackPtrTooLarge::fix() {
  message("Error: %s limit of 5 million entities exceeded.\nSee the Frequently Asked Questions "
          "in the Help for more details",
          "IGES");
  return 0;
}
