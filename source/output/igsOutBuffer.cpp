#include "output/igsOutBuffer.h"

#include <charconv>
#include <cstring>
#include <ostream>

// Purger

igsOutBufferPurger::~igsOutBufferPurger() {
  flush();
}

int igsOutBufferPurger::purge(igsOutBuffer& buffer) {
  std::ostream* out = m_destination;
  int written = 1;
  // The line goes straight to the stream buffer in one piece. A stream that failed before
  // takes nothing, as the stream's own output functions would do.
  if (out && !(out->rdstate() & (std::ios::badbit | std::ios::failbit))) {
    std::streambuf* target = out->rdbuf();
    std::streamsize const size = igsOutBuffer::line_size + 1;
    if (!target || target->sputn(buffer.m_line, size) != size) {
      mark_bad();
      written = 0;
    }
  }
  int valid = stream_valid();
  return valid && written;
}

void igsOutBufferPurger::set_destination(std::ostream* destination) {
  flush();
  m_destination = destination;
}

int igsOutBufferPurger::stream_valid() {
  std::ios::iostate state = m_destination ? m_destination->rdstate() : std::ios::badbit;
  if (state & std::ios::badbit) set_error(igsIOStreamBad);
  if (state & (std::ios::badbit | std::ios::failbit)) set_error(igsIOStreamFailed);
  return !(state & (std::ios::badbit | std::ios::failbit));
}

void igsOutBufferPurger::collect_errors(igsIOErrorcoDynArr& errors) {
  for (igsIOError const& e : m_errors) errors.append(e);
  m_errors.shrink(0);
}

void igsOutBufferPurger::flush() {
  std::ostream* out = m_destination;
  if (!out || (out->rdstate() & (std::ios::badbit | std::ios::failbit))) return;
  std::streambuf* target = out->rdbuf();
  if (target && target->pubsync() == -1) {
    mark_bad();
    stream_valid();
  }
}

void igsOutBufferPurger::mark_bad() {
  std::ostream* out = m_destination;
  // A stream that would throw for the bad bit is left as it is; the codes say it all.
  if (((out->rdstate() | std::ios::badbit) & out->exceptions()) == 0)
    out->setstate(std::ios::badbit);
  set_error(igsIOStreamBad);
  set_error(igsIOStreamFailed);
}

// Formatter

namespace {

// Writes the value right-justified into the seven columns that start at field.
void put_number(char* field, int value) {
  char digits[12];
  auto printed = std::to_chars(digits, digits + sizeof digits, value);
  size_t n = static_cast<size_t>(printed.ptr - digits);
  std::memset(field, ' ', 7 - n);
  std::memcpy(field + 7 - n, digits, n);
}

bool fits(int value) {
  return value >= -999999 && value <= igsOutBufferFormatter::max_number;
}

} // namespace

int igsOutBufferFormatter::format(igsOutBuffer& buffer) {
  // Before a section is set the line is all data and carries no tail.
  if (!numbered(m_section)) return 1;
  m_line_number = ++m_line_counts[m_section];
  int backpointer_fits = fits(m_backpointer);
  if (!backpointer_fits) set_error(igsIOBackpointerTooLarge);
  if (m_line_number > max_number) {
    set_error(igsIOLineNumberTooLarge);
    return 0;
  }
  if (!backpointer_fits) return 0;
  // " %7d%c%7d" in the Parameter section, "%c%7d" elsewhere, behind the data columns.
  char* tail = buffer.m_end;
  if (m_section == igsSectionParameter) {
    *tail++ = ' ';
    put_number(tail, m_backpointer);
    tail += 7;
  }
  *tail = convert_section_to_char(m_section);
  put_number(tail + 1, m_line_number);
  return 1;
}

int igsOutBufferFormatter::set_section(igsFileSection section) {
  if (!numbered(section)) {
    m_section = igsSectionNone;
    return igsOutBuffer::line_size;
  }
  m_line_counts[section] = 0;
  m_section = section;
  m_line_number = 0;
  if (section != igsSectionParameter) return 72;
  m_backpointer = 1;
  return 64;
}

// Buffer

igsOutBuffer::igsOutBuffer(std::ostream* destination) : m_purger(destination) {
  clean_buffer();
  m_line[line_size] = '\n';
}

igsOutBuffer::~igsOutBuffer() {
  finish_line();
}

void igsOutBuffer::append_across(char const* text, int n) {
  while (n > 0 && !m_frozen) {
    int room = free_space();
    int part = n < room ? n : room;
    std::memcpy(m_cursor, text, static_cast<size_t>(part));
    text += part;
    n -= part;
    *this += static_cast<unsigned int>(part);
  }
}

void igsOutBuffer::set_section(igsFileSection section) {
  finish_line();
  m_end = m_line + m_formatter.set_section(section);
}

void igsOutBuffer::set_backpointer(int backpointer) {
  finish_line();
  m_formatter.set_backpointer(backpointer);
}

void igsOutBuffer::set_destination(std::ostream* destination) {
  finish_line();
  m_purger.set_destination(destination);
}

int igsOutBuffer::reset() {
  while (m_frozen) {
    int answers = 0;
    count_bools(m_purger.reset(), answers);
    count_bools(m_formatter.reset(), answers);
    if (answers != 2) return 0;
    m_frozen = 0;
    finish_line();
  }
  return 1;
}

void igsOutBuffer::collect_errors(igsIOErrorcoDynArr& errors) {
  m_formatter.collect_errors(errors);
  m_purger.collect_errors(errors);
}

void igsOutBuffer::position(igsFileSection& section, int& line, int& column) const {
  m_formatter.position(section, line);
  column = static_cast<int>(m_cursor - m_line);
}

void igsOutBuffer::prepare_for_next_line() {
  m_cursor = m_line;
  int formatted = m_formatter.format(*this);
  // A line that could not be numbered still goes out, with its tail blank.
  int purged = m_purger.purge(*this);
  clean_buffer();
  if (!formatted || !purged) m_frozen = 1;
}

void igsOutBuffer::clean_buffer() {
  std::memset(m_line, ' ', line_size);
}
