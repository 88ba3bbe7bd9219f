#include "input/igsInBufferFiller.h"

#include "input/igsInBuffer.h"
#include "input/igsNumberText.h"
#include "support/kvnabs.h"

#include <cstring>

namespace {

constexpr int record_width = 80;
constexpr int most_held = 160;    // bytes held for one physical line
constexpr int most_asked = 80;    // bytes asked of the stream at a time
constexpr int letter_column = 72; // index of a well-placed section letter
constexpr int field_width = 7;    // sequence number and back pointer
constexpr char break_marker = 127;

// The get area of a stream buffer, scanned and consumed in place. The members are protected
// in std::streambuf; naming them through a derived class gives pointers to them.
struct GetArea : std::streambuf {
  static char const* next(std::streambuf* b) { return (b->*&GetArea::gptr)(); }
  static char const* end(std::streambuf* b) { return (b->*&GetArea::egptr)(); }
  static void skip(std::streambuf* b, int n) { (b->*&GetArea::gbump)(n); }
};

// Room for n more characters behind the line's size; returns where they start, or null.
char* grow(charcoDynArr& line, int n) {
  int old = line.size();
  if (!line.expand(old + n)) return nullptr;
  return line.data() + old;
}

void insert_front(charcoDynArr& line, char c) {
  int n = line.size();
  if (!grow(line, 1)) return;
  char* p = line.data();
  std::memmove(p + 1, p, static_cast<size_t>(n));
  p[0] = c;
}

void append(charcoDynArr& line, char const* text, int n) {
  if (char* p = grow(line, n)) std::memcpy(p, text, static_cast<size_t>(n));
}

} // namespace

igsInBufferFiller::igsInBufferFiller(std::istream& stream)
    : m_stream(stream), m_source(stream.rdbuf()), m_state(stream.rdstate()), m_overflow(81, 80) {
  if (!m_source) m_state |= std::ios::badbit;
  reset_temp_buffers();
}

igsInBufferFiller::~igsInBufferFiller() = default;

// --- byte source -------------------------------------------------------------------------

void igsInBufferFiller::set_state(std::ios::iostate bits) {
  m_state |= bits;
  // The host's stream shows the same bits, unless it asked to be told of them by an
  // exception: the library throws nothing.
  if (((m_stream.rdstate() | bits) & m_stream.exceptions()) == 0) m_stream.setstate(bits);
}

// As istream::peek: a stream that is not good gains the fail bit; end of input the eof bit.
int igsInBufferFiller::peek_char() {
  if (!good()) {
    set_state(std::ios::failbit);
    return std::char_traits<char>::eof();
  }
  int c = m_source->sgetc();
  if (c == std::char_traits<char>::eof()) set_state(std::ios::eofbit);
  return c;
}

// As istream::get(destination, most + 1, '\n'): at most `most` bytes, stopping in front of an
// LF; end of input sets the eof bit, and nothing read sets the fail bit.
int igsInBufferFiller::read_chars(char* destination, int most) {
  if (!good()) {
    set_state(std::ios::failbit);
    return 0;
  }
  int count = 0;
  while (count < most) {
    char const* next = GetArea::next(m_source);
    long available = GetArea::end(m_source) - next;
    if (available <= 0) {
      int c = m_source->sgetc(); // refills the get area
      if (c == std::char_traits<char>::eof()) {
        set_state(std::ios::eofbit);
        break;
      }
      next = GetArea::next(m_source);
      available = GetArea::end(m_source) - next;
      if (available <= 0) { // a source without a get area: one byte at a time
        if (c == '\n') break;
        destination[count++] = static_cast<char>(c);
        m_source->sbumpc();
        continue;
      }
    }
    int n = available < most - count ? static_cast<int>(available) : most - count;
    void const* lf = std::memchr(next, '\n', static_cast<size_t>(n));
    if (lf) n = static_cast<int>(static_cast<char const*>(lf) - next);
    std::memcpy(destination + count, next, static_cast<size_t>(n));
    GetArea::skip(m_source, n);
    count += n;
    if (lf) break;
  }
  if (count == 0) set_state(std::ios::failbit);
  return count;
}

// As istream::get() after a peek has seen the character.
void igsInBufferFiller::take_char() {
  if (good()) m_source->sbumpc();
}

// --- records -----------------------------------------------------------------------------

int igsInBufferFiller::get(igsInBuffer& buffer) {
  charcoDynArr& line = buffer.buffer();
  line.shrink(0);
  int missing = record_width;
  int has127s = 0;
  while (get_line(line)) {
    if (buffer_empty(line)) {
      set_error(igsIOBlankLine);
      line.shrink(0);
      continue;
    }
    check_buffer(line, has127s, missing);
    if (missing <= 0) break;
    line.append(break_marker);
    has127s = 1;
  }
  if (has127s) replace_127s(line);
  m_continuation = check_for_continuation(line);
  line.append('\0');
  line.shrink(line.size() - 1);
  if (line.size() == 0 && peek_char() == std::char_traits<char>::eof()) set_error(igsIOEndOfFile);
  if (m_state & std::ios::badbit) set_error(igsIOStreamBad);
  if (m_state & (std::ios::failbit | std::ios::badbit)) set_error(igsIOStreamFailed);
  return line.size() != 0;
}

// Appends one physical line. CR, LF and CR LF end it; text behind a CR in mid-line waits in
// the overflow store for the next call.
int igsInBufferFiller::get_line(charcoDynArr& line) {
  int entry = line.size();
  if (int pending = m_overflow.size()) {
    char* text = m_overflow.data();
    int i = 0;
    char* out = grow(line, pending);
    if (!out) return 0;
    for (; i < pending && !newline_char(text[i]); ++i) {
      char c = text[i];
      if (c == '\0') {
        c = ' ';
        set_error(igsIONullCharacter);
      }
      out[i] = c;
    }
    line.shrink(entry + i);
    if (i < pending) {
      int rest = pending - i - 1;
      std::memmove(text, text + i + 1, static_cast<size_t>(rest));
      m_overflow.shrink(rest);
      return 1;
    }
    m_overflow.shrink(0);
  }

  int met_cr = 0;
  int met_lf = 0;
  while (good()) {
    int c = peek_char();
    if (c == std::char_traits<char>::eof()) break;
    if (c == '\n') {
      met_lf = 1;
      break;
    }
    if (met_cr || line.size() >= most_held) break;
    int old = line.size();
    int want = most_held - old < most_asked ? most_held - old : most_asked;
    char* text = grow(line, want);
    if (!text) break;
    int got = read_chars(text, want);
    int valid = got;
    for (int i = 0; i < got; ++i) {
      char& ch = text[i];
      if (ch == '\0') {
        ch = ' ';
        set_error(igsIONullCharacter);
      } else if (newline_char(ch)) {
        valid = i;
        met_cr = 1;
        break;
      }
    }
    if (valid + 1 < got) {
      m_overflow.shrink(0);
      append(m_overflow, text + valid + 1, got - valid - 1);
    }
    line.shrink(old + valid);
  }
  if (met_lf) take_char();
  if (line.size() > entry) return 1;
  if (!good()) return 0;
  return peek_char() != std::char_traits<char>::eof();
}

int igsInBufferFiller::buffer_empty(charcoDynArr const& line) const {
  for (char c : line)
    if (!igs_is_space(c)) return 0;
  return 1;
}

void igsInBufferFiller::check_buffer(charcoDynArr& line, int has127s, int& missing) {
  int length = line.size();
  replace_tabs(line);
  int index = 0;
  int iges = looks_like_iges(line, index);
  if (!iges) {
    if (length < record_width) {
      missing = record_width - length;
      return;
    }
    if (length == record_width) {
      format_buffer(line);
      missing = 0;
      return;
    }
    if (has127s) remove_excess_127s(line);
    store_overflow(line, record_width);
    iges = looks_like_iges(line, index);
  } else if (length >= most_held) {
    store_overflow(line, record_width);
    iges = looks_like_iges(line, index);
  }
  if (iges) {
    if (index < letter_column)
      insert_point(line, index);
    else if (index > letter_column)
      remove_point(line);
  }
  format_buffer(line);
  missing = 0;
}

void igsInBufferFiller::replace_tabs(charcoDynArr& line) const {
  char* p = line.data();
  char* end = p + line.size();
  while ((p = static_cast<char*>(std::memchr(p, '\t', static_cast<size_t>(end - p))))) *p++ = ' ';
}

// A record ends in a section letter followed by one group of digits, with blanks allowed
// around the digits. The scan runs from the end and never takes index 0 into the run.
int igsInBufferFiller::looks_like_iges(charcoDynArr const& line, int& index) const {
  char const* p = line.data();
  int i = line.size() - 1;
  if (i < 0) {
    index = 0;
    return 0;
  }
  int digits = 0;
  int gap = 0;
  for (; i > 0; --i) {
    char c = p[i];
    if (igs_is_digit(c)) {
      if (gap) {
        index = i;
        return 0;
      }
      digits = 1;
    } else if (igs_is_space(c)) {
      if (digits) gap = 1;
    } else {
      break;
    }
  }
  index = i;
  return digits && iges_char(p[i]);
}

int igsInBufferFiller::iges_char(char c) {
  return c == 'D' || c == 'G' || c == 'P' || c == 'S' || c == 'T';
}

// A Parameter continuation line that lost the decimal point in front of its first number.
void igsInBufferFiller::insert_point(charcoDynArr& line, int index) {
  char const* p = line.data();
  int size = line.size();
  if (size >= record_width || p[index] != 'P' || !m_continuation || !igs_is_digit(p[0])) return;
  int point = 0;
  int i = 0;
  for (; i < size && p[i] != m_param_delimiter; ++i)
    if (p[i] == '.') point = 1;
  if (i < size && point) return;
  insert_front(line, '.');
  if (m_missing_point_warning) {
    m_missing_point_warning = 0;
    igs_print_error_message(
        "Warning: This file is corrupt - it contains lines missing a decimal point at the "
        "start.\nA decimal point will be inserted at the start of such lines.\n");
  }
}

// A line that gained a second decimal point at its start.
void igsInBufferFiller::remove_point(charcoDynArr& line) {
  int size = line.size();
  char* p = line.data();
  if (size <= record_width || p[0] != '.' || p[1] != '.') return;
  if (m_double_point_warning) {
    m_double_point_warning = 0;
    igs_print_error_message(
        "Warning: This file is corrupt - it contains lines starting with two decimal "
        "points.\nOne of the decimal points will be removed from such lines.\n ");
  }
  std::memmove(p, p + 1, static_cast<size_t>(size - 1));
  line.shrink(size - 1);
}

// Drops break markers from the left, as many as the line is longer than a record.
void igsInBufferFiller::remove_excess_127s(charcoDynArr& line) const {
  char* p = line.data();
  int size = line.size();
  int running = size;
  int out = 0;
  for (int i = 0; i < size; ++i) {
    if (p[i] == break_marker && running > record_width) {
      --running;
      continue;
    }
    p[out++] = p[i];
  }
  line.shrink(out);
}

void igsInBufferFiller::replace_127s(charcoDynArr& line) const {
  for (char& c : line)
    if (c == break_marker) c = ' ';
}

// The text from `at` on waits for the next record, in front of any text already waiting.
void igsInBufferFiller::store_overflow(charcoDynArr& line, int at) {
  int size = line.size();
  if (at >= size) return;
  int moved = size - at;
  int waiting = m_overflow.size();
  if (!grow(m_overflow, moved)) return;
  char* store = m_overflow.data();
  std::memmove(store + moved, store, static_cast<size_t>(waiting));
  std::memcpy(store, line.data() + at, static_cast<size_t>(moved));
  line.shrink(at);
}

// Puts a record back into its columns: data padded to its width, then (Parameter section)
// a blank and the back pointer, then the section letter and the sequence number, both
// right-justified.
void igsInBufferFiller::format_buffer(charcoDynArr& line) {
  remove_trailing_spaces(line);
  reset_temp_buffers();
  int size = line.size();
  if (size <= 1) return;
  char const* p = line.data();
  int i = size - 1;
  int digits = 0;
  int gap = 0;
  for (; i > 0; --i) {
    char c = p[i];
    if (igs_is_digit(c)) {
      if (gap) return;
      if (digits < field_width) m_sequence[field_width - 1 - digits] = c;
      ++digits;
    } else if (igs_is_space(c)) {
      if (digits) gap = 1;
    } else {
      break;
    }
  }
  char letter = p[i];
  if (!digits || !iges_char(letter)) return;
  int cut = i;
  int width = 72;
  if (letter == 'P') {
    width = 64;
    int taken = 0;
    while (taken < field_width && cut > 0 && igs_is_digit(p[cut - 1])) {
      m_backpointer[field_width - 1 - taken] = p[cut - 1];
      ++taken;
      --cut;
    }
  }
  line.shrink(cut);
  remove_trailing_spaces(line);
  pad_buffer(line, width);
  if (letter == 'P') {
    line.append(' ');
    append(line, m_backpointer, field_width);
  }
  line.append(letter);
  append(line, m_sequence, field_width);
}

void igsInBufferFiller::remove_trailing_spaces(charcoDynArr& line) const {
  int size = line.size();
  char const* p = line.data();
  while (size > 0 && p[size - 1] == ' ') --size;
  line.shrink(size);
}

void igsInBufferFiller::reset_temp_buffers() {
  std::memset(m_sequence, ' ', sizeof m_sequence);
  std::memset(m_backpointer, ' ', sizeof m_backpointer);
}

void igsInBufferFiller::pad_buffer(charcoDynArr& line, int width) const {
  int size = line.size();
  if (size >= width) return;
  if (char* p = grow(line, width - size)) std::memset(p, ' ', static_cast<size_t>(width - size));
}

// Whether the record stopped behind a parameter delimiter and a blank, with no record
// delimiter after it: the next line then continues a value list.
int igsInBufferFiller::check_for_continuation(charcoDynArr const& line) const {
  char const* p = line.data();
  for (int i = line.size() - 1; i >= 0; --i) {
    if (p[i] == m_record_delimiter) return 0;
    if (p[i] == m_param_delimiter && i + 1 < line.size() && p[i + 1] == ' ') return 1;
  }
  return 0;
}

int igsInBufferFiller::in_holerith_string(charcoDynArr const& line) const {
  char const* p = line.data();
  int size = line.size();
  int h = size - 1;
  while (h >= 0 && p[h] != 'H') --h;
  if (h < 0) return 0;
  int start = h;
  while (start > 0 && p[start - 1] != m_param_delimiter) --start;
  // The "H" itself ends the number, so the parse stays inside the line.
  char const* end = nullptr;
  long length = igs_parse_int(p + start, end);
  return h + length >= size;
}

void igsInBufferFiller::set_error(igsIOErrorCode code) {
  if (code >= igsIOStreamBad && code <= igsIOStreamFailed) m_fatal = 1;
  igs_add_io_error(m_errors, code);
}

void igsInBufferFiller::collect_errors(igsIOErrorcoDynArr& errors) {
  for (igsIOError const& e : m_errors) errors.append(e);
  if (!m_fatal) m_errors.shrink(0);
}

int igsInBufferFiller::reset() {
  if (m_fatal) return 0;
  m_errors.shrink(0);
  return 1;
}
