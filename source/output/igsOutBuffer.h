// The 80-column line under construction, and the two parts that finish it: the formatter puts
// section letter, sequence number and back pointer in, the purger sends the line away.
#pragma once

#include "input/igsIOCodeList.h"
#include "input/igsIOError.h"

#include <cstring>
#include <iosfwd>

class igsOutBuffer;

// Sends finished lines to the destination stream and notes when the stream fails.
class igsOutBufferPurger {
 public:
  explicit igsOutBufferPurger(std::ostream* destination) : m_destination(destination) {}
  // Flushes the destination.
  virtual ~igsOutBufferPurger();
  igsOutBufferPurger(igsOutBufferPurger const&) = delete;
  igsOutBufferPurger& operator=(igsOutBufferPurger const&) = delete;

  // Writes the 80 characters of the line and an LF; 0 if the stream failed.
  int purge(igsOutBuffer& buffer);
  // Flushes the old destination, then takes the new one; not owned, may be null.
  void set_destination(std::ostream* destination);
  // Records igsIOStreamBad for the stream's bad bit and igsIOStreamFailed for its fail or bad
  // bit; a missing stream counts as bad. 1 if neither was seen.
  int stream_valid();
  // Whether no code is recorded.
  int reset() const { return m_errors.empty(); }
  // Appends the codes and forgets them.
  void collect_errors(igsIOErrorcoDynArr& errors);

 private:
  void set_error(igsIOErrorCode code) { igs_add_io_error(m_errors, code); }
  // Sends what the stream holds on; a failure marks the stream bad.
  void flush();
  // Sets the stream's bad bit, unless the stream was told to throw for it.
  void mark_bad();

  std::ostream* m_destination;
  igsIOErrorcoDynArr m_errors;
};

// Numbers the lines of each section and writes the tail of every line.
class igsOutBufferFormatter {
 public:
  // The largest number that fits into the seven columns of a line number or back pointer.
  static constexpr int max_number = 9999999;

  igsOutBufferFormatter() = default;

  // Counts the line and writes its tail behind the data columns. 0, and the tail left blank,
  // when the line number or the back pointer does not fit into its seven columns.
  int format(igsOutBuffer& buffer);
  // Starts counting the section's lines from 0; returns the number of its data columns.
  int set_section(igsFileSection section);
  void set_backpointer(int backpointer) { m_backpointer = backpointer; }
  // 0 once a number was too large; else forgets the codes and returns 1.
  int reset() { return m_errors.reset(); }
  // Appends the codes. A number that was too large stays recorded for good.
  void collect_errors(igsIOErrorcoDynArr& errors) { m_errors.collect(errors); }
  // The section in hand and the number of the line finished last.
  void position(igsFileSection& section, int& line) const {
    section = m_section;
    line = m_line_number;
  }
  int num_lines(igsFileSection section) const {
    return numbered(section) ? m_line_counts[section] : 0;
  }
  int fatal_error() const { return m_errors.fatal(); }

 private:
  static bool numbered(igsFileSection section) {
    return section >= igsSectionStart && section < igsSectionNone;
  }
  static char convert_section_to_char(igsFileSection section) {
    return igs_section_letter(section);
  }
  void set_error(igsIOErrorCode code) { m_errors.record(code, 1); }

  int m_line_counts[igsSectionNone] = {};
  igsFileSection m_section = igsSectionNone;
  int m_line_number = 0;
  int m_backpointer = 1;
  igsIOCodeList m_errors;
};

// Holds the line under construction and a cursor into it. Moving the cursor onto or past the
// end of the data columns finishes the line: the formatter writes its tail, the purger sends
// it, and the line is blank again. A line that could not be finished freezes the buffer: the
// cursor stays in column 1 and further text goes nowhere until the codes are collected and
// `reset` succeeds.
class igsOutBuffer {
 public:
  static constexpr int line_size = 80;

  explicit igsOutBuffer(std::ostream* destination);
  // Finishes a started line.
  virtual ~igsOutBuffer();
  igsOutBuffer(igsOutBuffer const&) = delete;
  igsOutBuffer& operator=(igsOutBuffer const&) = delete;

  // The cursor: the next free column.
  char* operator()() const { return m_cursor; }
  // Moves the cursor on; reaching or passing the end of the data columns finishes the line.
  // Does nothing while frozen.
  void operator+=(unsigned int n) {
    if (m_frozen) return;
    if (n < static_cast<unsigned int>(m_end - m_cursor))
      m_cursor += n;
    else
      prepare_for_next_line();
  }
  // Copies the text to the cursor and moves it on. Text that runs past the end of the data
  // columns goes on at the start of the next line, so nothing is written outside the line.
  // Does nothing while frozen.
  void append(char const* text, int n) {
    if (n <= 0) return;
    if (!m_frozen && static_cast<unsigned int>(n) < static_cast<unsigned int>(m_end - m_cursor)) {
      std::memcpy(m_cursor, text, static_cast<size_t>(n));
      m_cursor += n;
    } else {
      append_across(text, n);
    }
  }

  int capacity() const { return line_size; }
  // The data columns of the section: 64 in the Parameter section, 72 in the others, 80 before
  // a section is set.
  int max_space() const { return static_cast<int>(m_end - m_line); }
  int free_space() const { return static_cast<int>(m_end - m_cursor); }

  // Each of these first finishes a started line.
  void set_section(igsFileSection section);
  void set_backpointer(int backpointer);
  void set_destination(std::ostream* destination);

  // Ends a freeze: 1 when text can be written again; 0 while the purger's codes are not
  // collected or a number was too large.
  int reset();
  // The formatter's codes, then the purger's.
  void collect_errors(igsIOErrorcoDynArr& errors);
  // The section, the number of the line finished last, and the cursor's column counted from 0.
  void position(igsFileSection& section, int& line, int& column) const;
  int num_lines(igsFileSection section) const { return m_formatter.num_lines(section); }
  int frozen() const { return m_frozen; }

 protected:
  igsFileSection section() const {
    igsFileSection section;
    int line;
    m_formatter.position(section, line);
    return section;
  }
  // Finishes the line if the cursor has left column 1.
  void finish_line() {
    if (m_cursor != m_line) prepare_for_next_line();
  }
  bool at_line_start() const { return m_cursor == m_line; }

 private:
  friend class igsOutBufferFormatter;
  friend class igsOutBufferPurger;

  void prepare_for_next_line();
  void clean_buffer();
  // The text that reaches the end of the line, over as many lines as it takes.
  void append_across(char const* text, int n);
  static void count_bools(int flag, int& count) {
    if (flag) ++count;
  }

  igsOutBufferPurger m_purger;
  igsOutBufferFormatter m_formatter;
  char m_line[line_size + 1]; // the LF stays behind the 80 columns
  char* m_cursor = m_line;
  char* m_end = m_line + line_size;
  int m_frozen = 0;
};
