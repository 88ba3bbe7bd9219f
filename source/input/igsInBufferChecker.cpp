#include "input/igsInBufferChecker.h"

#include "input/igsInBuffer.h"
#include "input/igsNumberText.h"

namespace {

constexpr int record_width = 80;
constexpr int field_width = 7;       // sequence number and back pointer
constexpr int backpointer_at = 65;   // first column of the back pointer in an 80-column line
constexpr int separator_column = 64; // the blank in front of the back pointer
constexpr char data_end_mark = '\n';

// Reads a number field of a record as strtol would, and says where the parse stopped. A field
// of blanks and then digits only, the usual case, is read directly.
int parse_field(char const* text, char const*& end) {
  char const* p = text;
  char const* stop = text + field_width;
  while (p < stop && *p == ' ') ++p;
  if (p == stop || !igs_is_digit(*p)) return igs_parse_int(text, end);
  int value = 0;
  for (; p < stop && igs_is_digit(*p); ++p) value = value * 10 + (*p - '0');
  if (p < stop || igs_is_digit(*p)) return igs_parse_int(text, end);
  end = p;
  return value;
}

} // namespace

igsInBufferChecker::igsInBufferChecker() = default;
igsInBufferChecker::~igsInBufferChecker() = default;

int igsInBufferChecker::check(igsInBuffer& buffer, int& data_end) {
  cache_buffer_attribs(buffer);
  // Most records continue the one before in the way it foretold: they pass every check, and
  // comparing their tail with the foretold one says so at once.
  if (m_size == record_width && continues_as_expected(m_text)) {
    ++m_line_number;
    ++m_line_counts[m_section];
    m_expected_valid = advance_expected();
    foretell_next_entity();
    data_end = this->data_end(m_section);
    return 1;
  }
  // So do records that open the next entity, but for the end of the last one they mark.
  if (m_size == record_width && opens_next_entity(m_text)) {
    ++m_line_number;
    ++m_line_counts[m_section];
    m_backpointer += 2;
    set_error(igsIOEntityEnd);
    std::memcpy(m_expected, m_next_entity, sizeof m_next_entity);
    m_expected_valid = advance_expected();
    foretell_next_entity();
    data_end = this->data_end(m_section);
    return 0;
  }
  igsFileSection section = igsSectionNone;
  int line = 0;
  int backpointer = 0;
  data_end = 0;
  int syntax = check_syntax(section, line, backpointer);
  int parsed_line = line;
  int semantics = check_semantics(section, line, backpointer);
  m_section = section;
  m_line_number = line;
  m_backpointer = backpointer;
  m_expected_valid = 0;
  m_next_entity_valid = 0;
  // A sound record foretells the next one; so does one whose only fault is that it opens a
  // new entity.
  unsigned sound = semantics ? 0u : igsIOCodeList::bit(igsIOEntityEnd);
  if (syntax && m_errors.line_codes() == sound) expect_next(parsed_line);
  if (section != igsSectionNone) {
    ++m_line_counts[section];
    data_end = this->data_end(section);
  }
  return syntax && semantics;
}

// A sound 80-column record whose number fields are plain (blanks, then digits) foretells the
// next one: its own tail with the sequence number counted on by one in place.
void igsInBufferChecker::expect_next(int parsed_line) {
  if (m_size != record_width || parsed_line != m_line_number) return;
  int parameter = m_section == igsSectionParameter;
  int letter = record_width - 1 - field_width;
  for (int i = parameter ? backpointer_at : letter + 1; i < record_width; ++i)
    if (i != letter && m_text[i] != ' ' && !igs_is_digit(m_text[i])) return;
  std::memcpy(m_expected, m_text + separator_column, sizeof m_expected);
  m_expected_parameter = parameter;
  m_expected_valid = advance_expected();
  foretell_next_entity();
}

namespace {

// Adds `step` (1 or 2) to the number that the digits of a field hold, written in place as it
// was written: a blank in front of the digits counts as 0 and takes the digit it gets. 0 when
// there is no room for another digit.
int count_on(char* digits, int width, int step) {
  for (int i = width - 1; i >= 0; --i) {
    int digit = (digits[i] == ' ' ? 0 : digits[i] - '0') + step;
    if (digit < 10) {
      digits[i] = static_cast<char>('0' + digit);
      return 1;
    }
    digits[i] = static_cast<char>('0' + digit - 10);
    step = 1;
  }
  return 0;
}

} // namespace

// Counts the foretold sequence number on by one; 0 when it has no room for another digit.
int igsInBufferChecker::advance_expected() {
  return count_on(m_expected + (record_width - field_width - separator_column), field_width, 1);
}

// In the Parameter section, the foretold record of the next entity: the same line, with the
// back pointer counted on to the next DE number.
void igsInBufferChecker::foretell_next_entity() {
  m_next_entity_valid = 0;
  if (!m_expected_valid || !m_expected_parameter) return;
  std::memcpy(m_next_entity, m_expected, sizeof m_next_entity);
  m_next_entity_valid = count_on(m_next_entity + 1, field_width, 2);
}

// Where the data of a record ends. Global and Parameter lines get a newline there, so that a
// decoder walking over the data sees the line end.
int igsInBufferChecker::data_end(igsFileSection section) {
  int letter = m_size - 1 - field_width;
  switch (section) {
  case igsSectionGlobal:
    m_text[letter] = data_end_mark;
    return letter + 1;
  case igsSectionParameter: {
    int end = separator_column;
    if (m_size != record_width) {
      end = letter;
      for (int step = 0; step < 8 && end > 0; ++step)
        if (m_text[--end] == ' ') break;
    }
    m_text[end] = data_end_mark;
    return end;
  }
  case igsSectionStart:
  case igsSectionDirectory:
  case igsSectionTerminate:
    return letter;
  case igsSectionNone:
    break;
  }
  return 0;
}

void igsInBufferChecker::cache_buffer_attribs(igsInBuffer& buffer) {
  charcoDynArr& line = buffer.buffer();
  m_text = line.data();
  m_size = line.size();
}

int igsInBufferChecker::check_syntax(igsFileSection& section, int& line, int& backpointer) {
  int count = 0;
  count_bools(check_section(section), count);
  count_bools(check_line_number(line), count);
  count_bools(check_16bit_overflow(line), count);
  count_bools(check_backpointer(section, backpointer), count);
  count_bools(check_16bit_overflow(backpointer), count);
  count_bools(check_separator_column(section), count);
  return count == 6;
}

int igsInBufferChecker::check_semantics(igsFileSection section, int& line, int backpointer) {
  int count = 0;
  count_bools(check_line_number_sequence(section, line), count);
  count_bools(check_section_sequence(section), count);
  count_bools(check_backpointer_sequence(section, backpointer), count);
  return count == 3;
}

// A line too short to hold a section letter has none.
int igsInBufferChecker::check_section(igsFileSection& section) {
  int letter = m_size - 1 - field_width;
  section = letter >= 0 ? convert_char_to_section(m_text[letter]) : igsSectionNone;
  if (section != igsSectionNone) return 1;
  set_error(igsIOBadSectionLetter);
  return 0;
}

int igsInBufferChecker::check_line_number(int& line) {
  int start = m_size - field_width;
  if (start < 0) {
    set_error(igsIOBadLineNumber);
    return 1;
  }
  char const* end = nullptr;
  line = parse_field(m_text + start, end);
  if (end != m_text + start + field_width) set_error(igsIOBadLineNumber);
  return 1;
}

// A number that a 16-bit writer made negative is read back as the unsigned value.
int igsInBufferChecker::check_16bit_overflow(int& value) {
  if (value < 0) value += 65536;
  return value >= 0;
}

int igsInBufferChecker::check_backpointer(igsFileSection section, int& value) {
  if (section != igsSectionParameter) return 1;
  char const* end = nullptr;
  if (m_size == record_width) {
    value = parse_field(m_text + backpointer_at, end);
    if (end == m_text + backpointer_at + field_width) return 1;
    set_error(igsIOBadBackpointer);
    return 0;
  }
  // A line of another width: the back pointer stands behind the last blank in front of the
  // section letter.
  int letter = m_size - 1 - field_width;
  for (int i = letter - 1; i >= 0 && i >= letter - 10; --i) {
    if (m_text[i] == ' ') {
      value = igs_parse_int(m_text + i + 1, end);
      return 1;
    }
  }
  return 0;
}

// Column 65 of a Parameter line separates the data from the back pointer.
int igsInBufferChecker::check_separator_column(igsFileSection section) {
  if (section == igsSectionParameter && m_size > separator_column &&
      m_text[separator_column] != ' ')
    m_text[separator_column] = ' ';
  return 1;
}

// Within a section the number must run on by one; a wrong one is replaced, so that positions
// stay right. A new section must start at 1.
int igsInBufferChecker::check_line_number_sequence(igsFileSection section, int& line) {
  int expected = 1;
  if (section == m_section) {
    expected = m_line_number + 1;
    if (line != expected)
      set_error(section == igsSectionStart ? igsIOStartLineSequence : igsIOLineSequence);
    line = expected;
    return 1;
  }
  if (line != expected)
    set_error(section == igsSectionStart ? igsIOStartLineSequence : igsIOLineSequence);
  return 1;
}

int igsInBufferChecker::check_section_sequence(igsFileSection section) {
  if (section == m_section) return 1;
  set_error(igsIOSectionEnd);
  return 0;
}

int igsInBufferChecker::check_backpointer_sequence(igsFileSection section, int value) {
  if (section != igsSectionParameter || m_section != igsSectionParameter || value == m_backpointer)
    return 1;
  set_error(igsIOEntityEnd);
  return 0;
}

igsFileSection igsInBufferChecker::convert_char_to_section(char c) {
  switch (c) {
  case 'S':
    return igsSectionStart;
  case 'G':
    return igsSectionGlobal;
  case 'D':
    return igsSectionDirectory;
  case 'P':
    return igsSectionParameter;
  case 'T':
    return igsSectionTerminate;
  default:
    return igsSectionNone;
  }
}

int igsInBufferChecker::num_lines(igsFileSection section) const {
  if (section < igsSectionStart || section >= igsSectionNone) return 0;
  return m_line_counts[section];
}

// A bad back pointer and a missing section letter are fatal, and so would be code 11, which
// nothing raises.
void igsInBufferChecker::set_error(igsIOErrorCode code) {
  m_errors.record(code, code == igsIOBadBackpointer || code == igsIOBadSectionLetter || code == 11);
}
