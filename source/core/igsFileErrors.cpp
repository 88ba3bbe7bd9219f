#include "core/igsFileErrors.h"

#define IGS_ERROR IGS_ERROR_DEFINE
#include "core/igsFileErrors.def"

// The damage below was dealt with while reading; the repair only says so.
IGS_ERROR_MESSAGE_FIX(igsFileDENullCharacters, 1,
                      "Warning : There were null characters found in line %d of the Directory "
                      "Entry section.\nThese have been replaced with spaces.\n",
                      line())
IGS_ERROR_MESSAGE_FIX(igsFileNoPDData, 1,
                      "Warning : There is no Parameter Data associated with object DE %d.\n",
                      de_number())
IGS_ERROR_MESSAGE_FIX(igsFilePDNullCharacters, 1,
                      "Warning : There were null characters found in the Parameter Data for DE "
                      "%d.\nThese have been replaced with spaces.\n",
                      de_number())
IGS_ERROR_MESSAGE_FIX(igsFileInvalidLineNumbers, 1,
                      "Warning : There were out of sequence line numbers found in this file.\n"
                      "This may cause some data to be processed incorrectly.\n")
IGS_ERROR_MESSAGE_FIX(igsFileBlankLine, 1, "Warning : There are blank line(s) in this file.\n")

// A file beyond the limits of the line number fields cannot be written; nothing repairs that.
IGS_ERROR_MESSAGE_FIX(igsFileLineNumberTooLarge, 0,
                      "Error: %s limit of 10 million lines per section exceeded.\nSee the "
                      "Frequently Asked Questions in the Help for more details",
                      "IGES")
IGS_ERROR_MESSAGE_FIX(igsFileBackPtrTooLarge, 0,
                      "Error: %s limit of 5 million entities exceeded.\nSee the Frequently Asked "
                      "Questions in the Help for more details",
                      "IGES")
