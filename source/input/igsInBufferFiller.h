// Fetches the bytes of one record from the stream and repairs them into 80 columns.
#pragma once

#include "input/igsIOCodeList.h"
#include "support/coNames.h"

#include <istream>

class igsInBuffer;
class igsInBufferChecker;

// Turns the bytes of a file, however damaged, into one record at a time. Line ends may be CR,
// LF, CR LF or missing; NUL bytes, tabs, blank lines, records broken in two or run together,
// trailing blanks cut away and a decimal point lost or doubled at the start of a Parameter
// continuation line are repaired here. Problems are recorded as codes, each at most once
// until collected; end of input and a failed stream are fatal and stay recorded.
class igsInBufferFiller {
 public:
  explicit igsInBufferFiller(std::istream& stream);
  virtual ~igsInBufferFiller();
  igsInBufferFiller(igsInBufferFiller const&) = delete;
  igsInBufferFiller& operator=(igsInBufferFiller const&) = delete;

  // Delivers the next record into the buffer's line, NUL-terminated behind its size.
  // Returns nonzero if the line is not empty.
  int get(igsInBuffer& buffer);
  // Appends the recorded codes; a filler without a fatal code then forgets them.
  void collect_errors(igsIOErrorcoDynArr& errors) { m_errors.collect(errors); }
  unsigned code_bits() const { return m_errors.codes(); }
  int fatal_error() const { return m_errors.fatal(); }
  // 0 if a fatal code is recorded; else forgets the codes and returns 1.
  int reset() { return m_errors.reset(); }
  // The recorded codes, for the buffer that holds back those of a line where it stops.
  igsIOCodeList& codes() { return m_errors; }
  void set_param_delimiter(char c) { m_param_delimiter = c; }
  void set_record_delimiter(char c) { m_record_delimiter = c; }

  // Whether a Hollerith string that starts on the line runs past its end: the count in front
  // of the last "H" reaches beyond the text.
  int in_holerith_string(charcoDynArr const& line) const;

 private:
  // Text under repair. Its store only grows and all its elements stay constructed, so that the
  // length can move freely without touching the characters.
  class Text {
   public:
    char* data() { return m_store.data(); }
    char const* data() const { return m_store.data(); }
    int size() const { return m_length; }
    // Room for n more characters (and a NUL) behind the text; returns where they start, or
    // null if the store cannot grow. The length is not changed.
    char* room(int n);
    // Lengthens the text by n characters written through `room`.
    void grow(int n) { m_length += n; }
    void cut(int n) { m_length = n < m_length ? n : m_length; }
    void append(char c);
    void append(char const* text, int n);
    void insert_front(char c);
    void erase_front();

   private:
    charcoDynArr m_store;
    int m_length = 0;
  };

  // The byte source: the stream's buffer read in place, with the stream's state bits kept as
  // istream::peek and istream::get would leave them.
  int good() const { return m_state == std::ios::goodbit; }
  void set_state(std::ios::iostate bits);
  int peek_char();
  int read_chars(char* destination, int most);
  void take_char();

  int take_whole_record(charcoDynArr& line, igsInBufferChecker const& checker);
  void deliver(charcoDynArr& line, char const* text, int length);
  int get_line();
  int buffer_empty() const;
  static int formatted_record(char const* text, int length);
  void check_buffer(int has127s, int& missing);
  void replace_tabs();
  int looks_like_iges(int& index) const;
  static int iges_char(char c);
  static int newline_char(char c) { return c == '\r' || c == '\n'; }
  void insert_point(int index);
  void remove_point();
  void remove_excess_127s();
  void replace_127s();
  void store_overflow(int at);
  void format_buffer();
  void remove_trailing_spaces();
  void reset_temp_buffers();
  void pad_buffer(int width);
  int check_for_continuation(char const* text, int length) const;
  void set_error(igsIOErrorCode code);

  std::istream& m_stream;
  std::streambuf* m_source;
  std::ios::iostate m_state;
  igsIOCodeList m_errors;
  int m_continuation = 0; // -1: not yet known for the record in m_line
  char m_param_delimiter = ',';
  char m_record_delimiter = ';';
  int m_missing_point_warning = 1;
  int m_double_point_warning = 1;
  Text m_line;     // the record being made
  Text m_overflow; // text read but not yet delivered
  char m_sequence[7];
  char m_backpointer[7];
};
