// The current record of an input file and the cursor that the field decoders walk over it.
#pragma once

#include "input/igsInBufferChecker.h"
#include "input/igsInBufferFiller.h"

// Holds one repaired 80-column record at a time, fetched by the filler and checked by the
// checker, and a cursor into it. The cursor stops (freezes) on a NUL at the places where a
// reader must stop: the first column of a line that failed its check (another section, another
// entity, damage) and a record delimiter. `reset` moves it on again unless a fatal code stands.
class igsInBuffer {
 public:
  explicit igsInBuffer(std::istream& stream);
  virtual ~igsInBuffer();
  igsInBuffer(igsInBuffer const&) = delete;
  igsInBuffer& operator=(igsInBuffer const&) = delete;

  char const& operator*() const { return *m_cursor; }
  char const* operator()() const { return m_cursor; }
  void operator++() { *this += 1; }
  // Moves the cursor on; reaching the end of the data fetches the next line. Does nothing
  // while frozen.
  void operator+=(unsigned int n) {
    if (m_frozen) return;
    if (static_cast<long>(n) < m_end - m_cursor)
      m_cursor += n;
    else
      get_next_line();
  }

  // Fetches and checks the next line; the cursor goes to its first column and freezes there
  // if the line failed its check or none came. A stopped buffer stays stopped on the new line.
  void get_next_line();
  void skip_line() { get_next_line(); }
  void freeze();
  // Ends a stop: 1 when the line is readable again, 0 (and still frozen) on a fatal code. A
  // stop at a record delimiter in mid-line drops the rest of that line. The codes that the
  // fetch of the line where the buffer stopped recorded about that line (NUL characters,
  // blank lines in front of it, its number) are held back while it stops and stand again
  // once it is readable: they belong to whoever reads that line, not to the reader that
  // stopped in front of it, and the reset that clears the codes must not lose them.
  int reset();
  int fatal_error() const { return m_filler.fatal_error() || m_checker.fatal_error(); }
  void collect_errors(igsIOErrorcoDynArr& errors);
  // The codes that the filler and the checker hold, one bit for each.
  unsigned code_bits() const { return m_filler.code_bits() | m_checker.code_bits(); }

  // The size of the current line.
  int capacity() const { return m_line.size(); }
  void position(igsFileSection& section, int& line, int& column) const;
  int backpointer() const { return m_checker.backpointer(); }
  int num_lines(igsFileSection section) const { return m_checker.num_lines(section); }
  int frozen() const { return m_frozen; }

  // Called after each line taken from the file, by every buffer of the process; null for none.
  static void set_line_read_callback(void (*callback)()) { m_callback_fn = callback; }

 protected:
  friend class igsInBufferFiller;
  friend class igsInBufferChecker;
  charcoDynArr& buffer() { return m_line; }
  // The cursor, writable for a decoder that plants a NUL behind a fixed-width field.
  char* cursor() { return m_cursor; }
  // Characters from the cursor to the NUL behind the line.
  long room() const { return m_line.data() + m_line.size() - m_cursor; }

 private:
  igsInBufferFiller m_filler;
  igsInBufferChecker m_checker;
  charcoDynArr m_line;
  char* m_cursor = nullptr;
  char* m_end = nullptr;
  char m_saved = 0;
  int m_frozen = 0;
  // The codes held back from the filler and from the checker, one bit for each code.
  unsigned m_held_filler = 0;
  unsigned m_held_checker = 0;

  static inline void (*m_callback_fn)() = nullptr;
};
