// Checks the section letter, line number and back pointer of each record.
#pragma once

#include "input/igsIOCodeList.h"
#include "input/igsNumberText.h"
#include "support/coNames.h"

class igsInBuffer;

// Reads the section letter, the sequence number and, in the Parameter section, the back
// pointer of each record; compares them with the previous record's; records what is wrong;
// and marks where the data of the record ends. A record of another section or of another
// entity fails the check just as a damaged one does, which is how readers learn that they
// have reached the end of what they read. Positions are counted from the end of the line,
// so that a record wider than 80 columns is still understood.
class igsInBufferChecker {
 public:
  igsInBufferChecker();
  ~igsInBufferChecker();

  // Checks the buffer's line and gives the number of data columns; may write a newline
  // (byte 10) at the data end. Returns 1 if the line is sound and continues the previous one.
  int check(igsInBuffer& buffer, int& data_end);
  int fatal_error() const { return m_errors.fatal(); }
  // 0 if a fatal code is recorded; else forgets the codes and returns 1.
  int reset() { return m_errors.reset(); }
  // The recorded codes, for the buffer that holds back those of a line where it stops.
  igsIOCodeList& codes() { return m_errors; }
  // Appends the recorded codes; a checker without a fatal code then forgets them.
  void collect_errors(igsIOErrorcoDynArr& errors) { m_errors.collect(errors); }
  unsigned code_bits() const { return m_errors.codes(); }
  void position(igsFileSection& section, int& line) const {
    section = m_section;
    line = m_line_number;
  }
  int backpointer() const { return m_backpointer; }
  int num_lines(igsFileSection section) const;
  // Whether an 80-column record continues the last one without fault in the way the last one
  // foretold: the same section letter and, in the Parameter section, the same back pointer,
  // and the next sequence number written as the last one was written. Such a record stands
  // in its columns and passes every check.
  int continues_as_expected(char const* record) const {
    if (!m_expected_valid || igs_load8(record + 72) != igs_load8(m_expected + 8)) return 0;
    return !m_expected_parameter || igs_load8(record + 64) == igs_load8(m_expected);
  }
  // Whether an 80-column Parameter record opens the entity whose DE number follows the last
  // one's, on the next line, written as the last record was: it passes every check, and ends
  // the last entity's data as any new back pointer does.
  int opens_next_entity(char const* record) const {
    return m_next_entity_valid && igs_load8(record + 72) == igs_load8(m_expected + 8) &&
           igs_load8(record + 64) == igs_load8(m_next_entity);
  }

 private:
  void cache_buffer_attribs(igsInBuffer& buffer);
  int check_syntax(igsFileSection& section, int& line, int& backpointer);
  int check_semantics(igsFileSection section, int& line, int backpointer);
  int check_section(igsFileSection& section);
  int check_line_number(int& line);
  int check_line_number_sequence(igsFileSection section, int& line);
  int check_section_sequence(igsFileSection section);
  int check_backpointer(igsFileSection section, int& value);
  int check_backpointer_sequence(igsFileSection section, int value);
  static int check_16bit_overflow(int& value);
  int check_separator_column(igsFileSection section);
  int data_end(igsFileSection section);
  static igsFileSection convert_char_to_section(char c);
  static void count_bools(int flag, int& count) { count += flag != 0; }
  void set_error(igsIOErrorCode code);
  void expect_next(int parsed_line);
  int advance_expected();
  void foretell_next_entity();
  char* m_text = nullptr;
  int m_size = 0;
  int m_line_counts[igsSectionNone] = {};
  igsFileSection m_section = igsSectionStart;
  int m_line_number = 0;
  int m_backpointer = 0;
  igsIOCodeList m_errors;
  // Columns 65 to 80 of the record that would continue the last one; the first eight count
  // in the Parameter section only.
  char m_expected[16];
  int m_expected_valid = 0;
  int m_expected_parameter = 0;
  // Columns 65 to 72 of a Parameter record that opens the next entity on the line foretold.
  char m_next_entity[8];
  int m_next_entity_valid = 0;
};
