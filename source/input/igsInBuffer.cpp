#include "input/igsInBuffer.h"

namespace {

// The codes that describe a line itself; the others either stop the reader (another section
// or entity) or stop the whole stream.
constexpr unsigned line_codes =
    igsIOCodeList::bit(igsIOBadLineNumber) | igsIOCodeList::bit(igsIOLineSequence) |
    igsIOCodeList::bit(igsIOStartLineSequence) | igsIOCodeList::bit(igsIONullCharacter) |
    igsIOCodeList::bit(igsIOBlankLine);

} // namespace

igsInBuffer::igsInBuffer(std::istream& stream) : m_filler(stream), m_line(81, 80) {
  m_line.append('\0');
  m_line.shrink(0);
  m_cursor = m_end = m_line.data();
  *this += 0;
}

igsInBuffer::~igsInBuffer() = default;

void igsInBuffer::get_next_line() {
  // A stop stays a stop on the new line: the frozen character of the old one is gone with it.
  int was_frozen = m_frozen;
  m_frozen = 0;
  m_filler.codes().begin_line();
  m_checker.codes().begin_line();
  int result = m_filler.get(*this) ? 1 : 0;
  if (m_line.size() == 0) {
    m_line.append('\0');
    m_line.shrink(0);
  }
  m_cursor = m_line.data();
  int data_end = 0;
  if (result && m_checker.check(*this, data_end)) result = 2;
  m_end = m_cursor + data_end;
  if (result < 2 || was_frozen) freeze();
  // A line skipped while stopped is not read: what was held back for it goes with it.
  m_held_filler = m_held_checker = 0;
  if (m_frozen && !fatal_error()) {
    m_held_filler = m_filler.codes().withhold_line_codes(line_codes);
    m_held_checker = m_checker.codes().withhold_line_codes(line_codes);
  }
  if (m_callback_fn) m_callback_fn();
}

void igsInBuffer::freeze() {
  if (m_frozen) return;
  m_saved = *m_cursor;
  m_frozen = 1;
  *m_cursor = '\0';
}

int igsInBuffer::reset() {
  while (m_frozen) {
    int cleared = m_filler.reset() && m_checker.reset();
    m_filler.codes().give_back(m_held_filler);
    m_checker.codes().give_back(m_held_checker);
    m_held_filler = m_held_checker = 0;
    if (!cleared) return 0;
    *m_cursor = m_saved;
    m_frozen = 0;
    if (m_cursor == m_line.data()) return 1;
    get_next_line();
  }
  return 1;
}

void igsInBuffer::collect_errors(igsIOErrorcoDynArr& errors) {
  m_filler.collect_errors(errors);
  m_checker.collect_errors(errors);
}

void igsInBuffer::position(igsFileSection& section, int& line, int& column) const {
  m_checker.position(section, line);
  column = static_cast<int>(m_cursor - m_line.data());
}
