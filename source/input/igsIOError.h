// Sections of a file, and the stream-level events met while reading or writing lines.
#pragma once

#include "support/coNames.h"

enum igsFileSection {
  igsSectionStart = 0,
  igsSectionGlobal = 1,
  igsSectionDirectory = 2,
  igsSectionParameter = 3,
  igsSectionTerminate = 4,
  igsSectionNone = 5
};

enum igsIOErrorCode {
  igsIOValuePresent = 0,         // the field held a value
  igsIOEmbeddedBlank = 1,        // a blank inside a value
  igsIOBadValue = 2,             // characters left behind an integer or an empty Hollerith string
  igsIOSplitValue = 4,           // a value ran over a line end
  igsIOEntityEnd = 5,            // the back pointer changed
  igsIOSectionEnd = 6,           // the section changed
  igsIOBadBackpointer = 7,       // columns 66-72 of an 80-column P line are no number (fatal)
  igsIOBadLineNumber = 8,        // the last seven columns are no number
  igsIOLineSequence = 9,         // line number out of sequence
  igsIOBadSectionLetter = 10,    // no section letter in column 73 (fatal)
  igsIOStreamBad = 12,           // the stream's bad bit (fatal on input)
  igsIOEndOfFile = 13,           // nothing more to deliver (fatal)
  igsIOStreamFailed = 14,        // the stream's fail or bad bit (fatal on input)
  igsIOLineNumberTooLarge = 15,  // output line number above 9999999 (fatal)
  igsIOBackpointerTooLarge = 16, // output back pointer above 9999999 (fatal)
  igsIONotANumber = 17,          // a real decoded to NaN
  igsIOStartLineSequence = 18,   // line number out of sequence in the Start section
  igsIONullCharacter = 19,       // a NUL byte became a blank
  igsIOBlankLine = 20            // a blank line was dropped
};

// The letter of a section in column 73, or ' ' for igsSectionNone.
char igs_section_letter(igsFileSection section);
// The name of a code, for messages ("igsIOBlankLine").
char const* igs_io_error_name(igsIOErrorCode code);

// One stream-level event: its code, and where the cursor stood when it was collected.
class igsIOError {
 public:
  igsIOError() = default;
  explicit igsIOError(igsIOErrorCode code) : m_code(code) {}
  igsIOErrorCode error_type() const { return m_code; }
  void set_error_type(igsIOErrorCode code) { m_code = code; }
  void set_location(igsFileSection section, int line, int column) {
    m_section = section;
    m_line = line;
    m_column = column;
  }
  igsFileSection section() const { return m_section; }
  int line() const { return m_line; }
  int column() const { return m_column; }

 private:
  igsIOErrorCode m_code = igsIOValuePresent;
  igsFileSection m_section = igsSectionNone;
  int m_line = 0;
  int m_column = 0;
};

// Adds the code to the list unless it is there already; returns 1 if it was added.
int igs_add_io_error(igsIOErrorcoDynArr& list, igsIOErrorCode code);
// Whether the list holds the code.
int igs_has_io_error(igsIOErrorcoDynArr const& list, igsIOErrorCode code);
