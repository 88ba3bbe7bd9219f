#include "input/igsDecoder.h"

#include "input/igsNumberText.h"
#include "support/kvnabs.h"
#include "support/utMath.h"

#include <cmath>
#include <cstring>
#include <string_view>

namespace {
constexpr char data_end_mark = '\n';
}

// --- igsDecoder --------------------------------------------------------------------------

igsDecoder::igsDecoder(int fast_available) : m_fast_available(fast_available), m_text(32, 0) {}

igsDecoder::~igsDecoder() = default;

utString igsDecoder::decode_string(char const* text) const {
  int length = static_cast<int>(std::strlen(text));
  return kvaString(kvaStringInputDefault, text, length).string();
}

// --- igsStateDecoder ---------------------------------------------------------------------

void igsStateDecoder::accept_character(char c, int& cont, int& check_delimiter) {
  use_character(c);
  cont = m_state != frozen_state;
  check_delimiter = 1;
}

void igsStateDecoder::use_character(char c) {
  int newline = c == data_end_mark;
  int blank = c == ' ';
  switch (m_state) {
  case start_state:
    if (newline || blank) return;
    set_error(igsIOValuePresent);
    m_state = m_storing;
    use_character(c);
    return;
  case storing_state:
    if (newline)
      m_state = split_line_state;
    else if (blank)
      m_state = embedded_blank_state;
    else
      store_character(c);
    return;
  case embedded_blank_state:
    if (newline)
      m_state = embedded_split_state;
    else if (!blank)
      break;
    return;
  case split_line_state:
    if (blank)
      m_state = embedded_split_state;
    else if (!newline)
      break;
    return;
  case embedded_split_state:
    if (newline || blank) return;
    break;
  case storing_string_state:
    string_character(c);
    return;
  case frozen_state:
    return;
  }
  // A character that goes on with the value after blanks or a line end.
  if (m_state != split_line_state) set_error(igsIOEmbeddedBlank);
  if (m_state != embedded_blank_state) set_error(igsIOSplitValue);
  m_state = storing_state;
  store_character(c);
}

// --- igsIntDecoder -----------------------------------------------------------------------

void igsIntDecoder::active_decode() {
  if (terminate_text()) {
    char const* end = nullptr;
    m_value = igs_parse_int(buffer(), end);
    if (*end) set_error(igsIOBadValue);
  }
  stop();
}

// --- igsDoubleDecoder --------------------------------------------------------------------

int igsDoubleDecoder::decode_fast(char const* text) {
  char const* end = nullptr;
  m_value = igs_parse_real(text, end);
  if (*end == 'D' || *end == 'd') {
    char const* exponent_end = nullptr;
    int exponent = igs_parse_int(end + 1, exponent_end);
    m_value *= utMath::pow(10.0, exponent);
    end = exponent_end;
  }
  if (std::isnan(m_value)) set_error(igsIONotANumber);
  stop();
  int used = static_cast<int>(end - text);
  check_for_default(text, used);
  return used;
}

// Text left behind the number counts as a bad value, as it does for an integer.
void igsDoubleDecoder::active_decode() {
  if (terminate_text()) {
    char const* end = nullptr;
    m_value = igs_parse_real(buffer(), end);
    if (std::isnan(m_value)) set_error(igsIONotANumber);
    if (*end) set_error(igsIOBadValue);
  }
  stop();
}

// --- igsStrDecoder -----------------------------------------------------------------------

utString igsStrDecoder::recent_or_new(char const* text) {
  std::string_view view(text);
  for (utString const& recent : m_recent)
    if (!recent.is_null() && recent.view() == view) return recent;
  utString made = decode_string(text);
  m_recent[m_oldest] = made;
  m_oldest = 1 - m_oldest;
  return made;
}

int igsStrDecoder::decode_fast(char const* text) {
  m_value = recent_or_new(text);
  stop();
  check_for_default(text, m_value.length());
  return m_value.length();
}

void igsStrDecoder::string_character(char c) {
  if (c == '\0')
    m_state = frozen_state;
  else if (c != data_end_mark)
    add_to_buffer(c);
}

void igsStrDecoder::active_decode() {
  if (terminate_text()) m_value = recent_or_new(buffer());
  stop();
}

// --- igsHolerithDecoder ------------------------------------------------------------------

void igsHolerithDecoder::accept_character(char c, int& cont, int& check_delimiter) {
  use_character(c);
  cont = m_state != frozen_state;
  check_delimiter = !char_expected();
}

void igsHolerithDecoder::store_character(char c) {
  if (c == 'H' || c == 'h')
    decode_holerith_length();
  else
    add_to_buffer(c);
}

void igsHolerithDecoder::decode_holerith_length() {
  if (terminate_text()) {
    char const* end = nullptr;
    m_length = igs_parse_int(buffer(), end);
  }
  reset_buffer();
  m_state = storing_string_state;
}

void igsHolerithDecoder::string_character(char c) {
  if (c == data_end_mark) return;
  if (m_length > 0) {
    add_to_buffer(c);
    ++m_count;
  } else if (c != ' ') {
    set_error(igsIOBadValue);
    m_state = frozen_state;
  }
}

void igsHolerithDecoder::active_decode() {
  if (terminate_text()) m_value = m_count <= m_length ? decode_string(buffer()) : truncate_string();
  stop();
}

// Cuts an overlong body to the declared length: doubled blanks go first, from the left, then
// whatever lies behind the length.
utString igsHolerithDecoder::truncate_string() {
  // The result is built in place: it never runs ahead of the text it is taken from.
  char* text = buffer();
  char* out = text;
  int excess = m_count - m_length;
  int need = m_length;
  int kept = 0;
  char previous = '\0';
  for (int i = 0; need > 0 && text[i]; ++i) {
    char c = text[i];
    if (excess > 0 && c == ' ' && previous == ' ') {
      --excess;
    } else {
      out[kept++] = c;
      --need;
    }
    previous = c;
  }
  return kvaString(kvaStringInputDefault, out, kept).string();
}
