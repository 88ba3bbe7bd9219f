#include "input/igsInBufferFiller.h"

#include "input/igsInBuffer.h"
#include "input/igsNumberText.h"
#include "support/kvnabs.h"

#include <cstdint>
#include <cstring>

namespace {

constexpr int record_width = 80;
constexpr int most_held = 160;    // bytes held for one physical line
constexpr int most_asked = 80;    // bytes asked of the stream at a time
constexpr int letter_column = 72; // index of a well-placed section letter
constexpr int field_width = 7;    // sequence number and back pointer
constexpr char break_marker = 127;

// Eight bytes at a time: whether any byte is below n (n at most 128), or equals b.
constexpr std::uint64_t low_bits = 0x0101010101010101ULL;
constexpr std::uint64_t high_bits = 0x8080808080808080ULL;
std::uint64_t any_below(std::uint64_t x, unsigned n) {
  return (x - low_bits * n) & ~x & high_bits;
}
std::uint64_t any_equal(std::uint64_t x, char b) {
  std::uint64_t v = x ^ (low_bits * static_cast<unsigned char>(b));
  return (v - low_bits) & ~v & high_bits;
}

// The get area of a stream buffer, scanned and consumed in place. The members are protected
// in std::streambuf; naming them through a derived class gives pointers to them.
struct GetArea : std::streambuf {
  static char const* next(std::streambuf* b) { return (b->*&GetArea::gptr)(); }
  static char const* end(std::streambuf* b) { return (b->*&GetArea::egptr)(); }
  static void skip(std::streambuf* b, int n) { (b->*&GetArea::gbump)(n); }
};

} // namespace

igsInBufferFiller::igsInBufferFiller(std::istream& stream)
    : m_stream(stream), m_source(stream.rdbuf()), m_state(stream.rdstate()) {
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

// --- text under repair -------------------------------------------------------------------

char* igsInBufferFiller::Text::room(int n) {
  int need = m_length + n + 1;
  if (need > m_store.size() && !m_store.expand(need < 256 ? 256 : 2 * need)) return nullptr;
  return m_store.data() + m_length;
}

void igsInBufferFiller::Text::append(char c) {
  if (char* p = room(1)) {
    *p = c;
    ++m_length;
  }
}

void igsInBufferFiller::Text::append(char const* text, int n) {
  if (char* p = room(n)) {
    std::memcpy(p, text, static_cast<size_t>(n));
    m_length += n;
  }
}

void igsInBufferFiller::Text::insert_front(char c) {
  if (!room(1)) return;
  char* p = data();
  std::memmove(p + 1, p, static_cast<size_t>(m_length));
  p[0] = c;
  ++m_length;
}

void igsInBufferFiller::Text::erase_front() {
  if (m_length <= 0) return;
  char* p = data();
  std::memmove(p, p + 1, static_cast<size_t>(m_length - 1));
  --m_length;
}

// --- records -----------------------------------------------------------------------------

int igsInBufferFiller::get(igsInBuffer& buffer) {
  charcoDynArr& line = buffer.buffer();
  if (take_whole_record(line, buffer.m_checker)) return 1;
  if (m_continuation < 0) m_continuation = check_for_continuation(m_line.data(), m_line.size());
  m_line.cut(0);
  int missing = record_width;
  int has127s = 0;
  while (get_line()) {
    if (buffer_empty()) {
      set_error(igsIOBlankLine);
      m_line.cut(0);
      continue;
    }
    replace_tabs();
    if (formatted_record(m_line.data(), m_line.size())) break;
    check_buffer(has127s, missing);
    if (missing <= 0) break;
    m_line.append(break_marker);
    has127s = 1;
  }
  if (has127s) replace_127s();
  m_continuation = check_for_continuation(m_line.data(), m_line.size());
  deliver(line, m_line.data(), m_line.size());
  if (line.size() == 0 && peek_char() == std::char_traits<char>::eof()) set_error(igsIOEndOfFile);
  if (m_state & std::ios::badbit) set_error(igsIOStreamBad);
  if (m_state & (std::ios::failbit | std::ios::badbit)) set_error(igsIOStreamFailed);
  return line.size() != 0;
}

// The common case, taken straight from the stream's get area: an 80-column record followed by
// LF or CR LF, with no control character in it, that stands in its columns already. Every
// repair would leave it as it is, and the stream's state does not change. A record that
// continues the last one as the checker foretold stands in its columns.
int igsInBufferFiller::take_whole_record(charcoDynArr& line, igsInBufferChecker const& checker) {
  if (!good() || m_overflow.size() || !m_source) return 0;
  char const* p = GetArea::next(m_source);
  long available = GetArea::end(m_source) - p;
  if (available < record_width + 1) return 0;
  int ending = 0;
  if (p[record_width] == '\n')
    ending = 1;
  else if (available > record_width + 1 && p[record_width] == '\r' && p[record_width + 1] == '\n')
    ending = 2;
  if (!ending) return 0;
  std::uint64_t control = 0;
  for (int i = 0; i < record_width; i += 8) control |= any_below(igs_load8(p + i), ' ');
  if (control) return 0;
  if (!checker.continues_as_expected(p) && !checker.opens_next_entity(p) &&
      !formatted_record(p, record_width))
    return 0;
  // The record is kept: whether the next line continues it is asked only if that line needs
  // repair. Both copies have a size known here, which makes them a few moves.
  m_line.cut(0);
  char* kept = m_line.room(record_width);
  line.shrink(record_width + 1);
  if (!kept || !line.expand(record_width + 1)) return 0;
  std::memcpy(kept, p, record_width);
  m_line.grow(record_width);
  m_continuation = -1;
  std::memcpy(line.data(), p, record_width);
  line.data()[record_width] = '\0';
  line.shrink(record_width);
  GetArea::skip(m_source, record_width + ending);
  return 1;
}

// The record goes to the buffer's line, with a NUL behind it that the size does not count.
// The line keeps the size it had where it can, so that no character is written twice.
void igsInBufferFiller::deliver(charcoDynArr& line, char const* text, int length) {
  if (line.size() > length + 1)
    line.shrink(length + 1);
  else
    line.expand(length + 1);
  if (length >= 0 && line.size() == length + 1) {
    if (length > 0) std::memcpy(line.data(), text, static_cast<size_t>(length));
    line[length] = '\0';
    line.shrink(length);
  } else {
    line.shrink(0);
  }
}

// Appends one physical line. CR, LF and CR LF end it; text behind a CR in mid-line waits in
// the overflow store for the next call.
int igsInBufferFiller::get_line() {
  int entry = m_line.size();
  if (int pending = m_overflow.size()) {
    char* text = m_overflow.data();
    char* out = m_line.room(pending);
    if (!out) return 0;
    int i = 0;
    for (; i < pending && !newline_char(text[i]); ++i) {
      char c = text[i];
      if (c == '\0') {
        c = ' ';
        set_error(igsIONullCharacter);
      }
      out[i] = c;
    }
    m_line.grow(i);
    if (i < pending) {
      int rest = pending - i - 1;
      std::memmove(text, text + i + 1, static_cast<size_t>(rest));
      m_overflow.cut(rest);
      return 1;
    }
    m_overflow.cut(0);
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
    int size = m_line.size();
    if (met_cr || size >= most_held) break;
    int want = most_held - size < most_asked ? most_held - size : most_asked;
    char* text = m_line.room(want);
    if (!text) break;
    int got = read_chars(text, want);
    int valid = got;
    if (void const* cr = std::memchr(text, '\r', static_cast<size_t>(got))) {
      valid = static_cast<int>(static_cast<char const*>(cr) - text);
      met_cr = 1;
      m_overflow.append(text + valid + 1, got - valid - 1);
    }
    for (char* nul = text; (nul = static_cast<char*>(std::memchr(
                                nul, '\0', static_cast<size_t>(text + valid - nul))));) {
      *nul++ = ' ';
      set_error(igsIONullCharacter);
    }
    m_line.grow(valid);
  }
  if (met_lf) take_char();
  if (m_line.size() > entry) return 1;
  if (!good()) return 0;
  return peek_char() != std::char_traits<char>::eof();
}

int igsInBufferFiller::buffer_empty() const {
  char const* p = m_line.data();
  for (int i = 0, n = m_line.size(); i < n; ++i)
    if (!igs_is_space(p[i])) return 0;
  return 1;
}

// An 80-column record that stands in its columns already: a section letter in column 73, a
// right-justified number behind it and, in the Parameter section, a blank in column 65 and a
// right-justified back pointer. The repairs would leave it exactly as it is.
int igsInBufferFiller::formatted_record(char const* p, int length) {
  if (length != record_width) return 0;
  auto right_justified = [p](int from, int to, int need_digit) {
    int i = to - 1;
    if (need_digit && !igs_is_digit(p[i])) return 0;
    while (i >= from && igs_is_digit(p[i])) --i;
    while (i >= from && p[i] == ' ') --i;
    return i < from ? 1 : 0;
  };
  char letter = p[letter_column];
  if (!iges_char(letter) || !right_justified(letter_column + 1, record_width, 1)) return 0;
  if (letter != 'P') return 1;
  return p[64] == ' ' && right_justified(65, letter_column, 0);
}

void igsInBufferFiller::check_buffer(int has127s, int& missing) {
  int length = m_line.size();
  int index = 0;
  int iges = looks_like_iges(index);
  if (!iges) {
    if (length < record_width) {
      missing = record_width - length;
      return;
    }
    if (length == record_width) {
      format_buffer();
      missing = 0;
      return;
    }
    if (has127s) remove_excess_127s();
    store_overflow(record_width);
    iges = looks_like_iges(index);
  } else if (length >= most_held) {
    store_overflow(record_width);
    iges = looks_like_iges(index);
  }
  if (iges) {
    if (index < letter_column)
      insert_point(index);
    else if (index > letter_column)
      remove_point();
  }
  format_buffer();
  missing = 0;
}

void igsInBufferFiller::replace_tabs() {
  char* p = m_line.data();
  char* end = p + m_line.size();
  while ((p = static_cast<char*>(std::memchr(p, '\t', static_cast<size_t>(end - p))))) *p++ = ' ';
}

// A record ends in a section letter followed by one group of digits, with blanks allowed
// around the digits. The scan runs from the end and never takes index 0 into the run.
int igsInBufferFiller::looks_like_iges(int& index) const {
  char const* p = m_line.data();
  int i = m_line.size() - 1;
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
void igsInBufferFiller::insert_point(int index) {
  char const* p = m_line.data();
  int size = m_line.size();
  if (size >= record_width || p[index] != 'P' || !m_continuation || !igs_is_digit(p[0])) return;
  int point = 0;
  int i = 0;
  for (; i < size && p[i] != m_param_delimiter; ++i)
    if (p[i] == '.') point = 1;
  if (i < size && point) return;
  m_line.insert_front('.');
  if (m_missing_point_warning) {
    m_missing_point_warning = 0;
    igs_print_error_message(
        "Warning: This file is corrupt - it contains lines missing a decimal point at the "
        "start.\nA decimal point will be inserted at the start of such lines.\n");
  }
}

// A line that gained a second decimal point at its start.
void igsInBufferFiller::remove_point() {
  char const* p = m_line.data();
  if (m_line.size() <= record_width || p[0] != '.' || p[1] != '.') return;
  if (m_double_point_warning) {
    m_double_point_warning = 0;
    igs_print_error_message(
        "Warning: This file is corrupt - it contains lines starting with two decimal "
        "points.\nOne of the decimal points will be removed from such lines.\n ");
  }
  m_line.erase_front();
}

// Drops break markers from the left, as many as the line is longer than a record.
void igsInBufferFiller::remove_excess_127s() {
  char* p = m_line.data();
  int size = m_line.size();
  int running = size;
  int out = 0;
  for (int i = 0; i < size; ++i) {
    if (p[i] == break_marker && running > record_width) {
      --running;
      continue;
    }
    p[out++] = p[i];
  }
  m_line.cut(out);
}

void igsInBufferFiller::replace_127s() {
  char* p = m_line.data();
  for (int i = 0, n = m_line.size(); i < n; ++i)
    if (p[i] == break_marker) p[i] = ' ';
}

// The text from `at` on waits for the next record, in front of any text already waiting.
void igsInBufferFiller::store_overflow(int at) {
  int size = m_line.size();
  if (at >= size) return;
  int moved = size - at;
  int waiting = m_overflow.size();
  char* store = m_overflow.room(moved);
  if (!store) return;
  store = m_overflow.data();
  std::memmove(store + moved, store, static_cast<size_t>(waiting));
  std::memcpy(store, m_line.data() + at, static_cast<size_t>(moved));
  m_overflow.grow(moved);
  m_line.cut(at);
}

// Puts a record back into its columns: data padded to its width, then (Parameter section)
// a blank and the back pointer, then the section letter and the sequence number, both
// right-justified.
void igsInBufferFiller::format_buffer() {
  remove_trailing_spaces();
  reset_temp_buffers();
  int size = m_line.size();
  if (size <= 1) return;
  char const* p = m_line.data();
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
  m_line.cut(cut);
  remove_trailing_spaces();
  pad_buffer(width);
  if (letter == 'P') {
    m_line.append(' ');
    m_line.append(m_backpointer, field_width);
  }
  m_line.append(letter);
  m_line.append(m_sequence, field_width);
}

void igsInBufferFiller::remove_trailing_spaces() {
  int size = m_line.size();
  char const* p = m_line.data();
  while (size > 0 && p[size - 1] == ' ') --size;
  m_line.cut(size);
}

void igsInBufferFiller::reset_temp_buffers() {
  std::memset(m_sequence, ' ', sizeof m_sequence);
  std::memset(m_backpointer, ' ', sizeof m_backpointer);
}

void igsInBufferFiller::pad_buffer(int width) {
  int size = m_line.size();
  if (size >= width) return;
  if (char* p = m_line.room(width - size)) {
    std::memset(p, ' ', static_cast<size_t>(width - size));
    m_line.grow(width - size);
  }
}

// Whether the record stopped behind a parameter delimiter and a blank, with no record
// delimiter after it: the next line then continues a value list. The scan runs from the end;
// eight characters without either delimiter are passed over at once.
int igsInBufferFiller::check_for_continuation(char const* p, int length) const {
  int i = length;
  while (i > 0) {
    int from = i >= 8 ? i - 8 : 0;
    if (i - from == 8) {
      std::uint64_t x = igs_load8(p + from);
      if (!(any_equal(x, m_record_delimiter) | any_equal(x, m_param_delimiter))) {
        i = from;
        continue;
      }
    }
    for (int k = i - 1; k >= from; --k) {
      if (p[k] == m_record_delimiter) return 0;
      if (p[k] == m_param_delimiter && k + 1 < length && p[k + 1] == ' ') return 1;
    }
    i = from;
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

// A failed stream and the end of input are fatal.
void igsInBufferFiller::set_error(igsIOErrorCode code) {
  m_errors.record(code, code >= igsIOStreamBad && code <= igsIOStreamFailed);
}
