#include "output/igsEncoder.h"

#include "support/coResource.h"
#include "support/kvnabs.h"

#include <charconv>
#include <cstdio>
#include <cstring>

namespace {

// Writes the decimal digits of a non-negative count, then `suffix`; returns the length.
int print_count(char* text, size_t size, size_t count, char suffix) {
  auto printed = std::to_chars(text, text + size - 1, count);
  *printed.ptr = suffix;
  return static_cast<int>(printed.ptr + 1 - text);
}

} // namespace

utString const& igsEncoder::get_string(int i) const {
  static utString const none;
  if (i < 0 || i >= num_items()) return none;
  for (; m_made <= i; ++m_made) {
    std::string_view text = item_text(m_made);
    m_items[m_made] = utString(text.data(), static_cast<int>(text.size()));
  }
  return m_items[i];
}

char* igsEncoder::text_room(int n) {
  if (n < 0) return nullptr;
  if (m_used + n > m_text.size()) {
    int grown = 2 * m_text.size();
    if (grown < 64) grown = 64;
    if (!m_text.expand(m_used + n > grown ? m_used + n : grown)) return nullptr;
  }
  return m_text.data() + m_used;
}

void igsEncoder::add_piece(int n, int split_flag) {
  // A piece that cannot get its entries is left out whole, and no earlier piece is lost.
  if (!m_ends.append(m_used + n)) return;
  if (!m_split_flags.append(split_flag)) {
    m_ends.remove_last();
    return;
  }
  m_used += n;
}

void igsEncoder::append_text(char const* text, int length, int split_flag) {
  if (length < 0) length = 0;
  char* at = text_room(length);
  if (!at) return;
  if (length > 0) std::memcpy(at, text, static_cast<size_t>(length));
  add_piece(length, split_flag);
}

void igsIntEncoder::encode(int value) {
  m_value = value;
  char* text = text_room(16);
  if (!text) return;
  auto printed = std::to_chars(text, text + 16, value);
  add_piece(static_cast<int>(printed.ptr - text), 0);
}

igsDoubleEncoder::igsDoubleEncoder() {
  push_format(kvnOptDoubleFieldWidth.value(), kvnOptDoubleGeometricPrecision.value());
}

utString igsDoubleEncoder::generate_format_string(int field_width, int precision) {
  char text[48];
  std::snprintf(text, sizeof text, "%%-%d.%dG", field_width, precision);
  return utString(text);
}

void igsDoubleEncoder::push_format(int field_width, int precision) {
  m_formats.insert_first(generate_format_string(field_width, precision));
  m_precisions.insert_first(precision);
}

void igsDoubleEncoder::pop_format() {
  if (m_formats.size() <= 1) return;
  m_formats.remove_first();
  m_precisions.remove_first();
}

namespace {

// The text that printf's "%.<precision>G" gives for the value, without its padding, but in
// lower case. The digits come from std::to_chars, which prints exactly what printf prints for
// the same precision, far faster. A negative precision counts as none given (6), as in
// printf; a precision whose text could not fit is cut to the largest that fits.
int print_real(double value, int precision, char* text, int size) {
  if (precision < 0) precision = 6;
  int const widest = size - 16; // sign, "0.000", exponent and spare
  if (precision > widest) precision = widest;
  auto printed = std::to_chars(text, text + size, value, std::chars_format::general, precision);
  return printed.ec == std::errc() ? static_cast<int>(printed.ptr - text) : 0;
}

} // namespace

void igsDoubleEncoder::encode(double value) {
  m_value = value;
  // The format pads on the right with blanks that the trim would cut again, so the text is
  // printed without them: only the precision shows. It is printed straight into the room of
  // the piece, with one byte to spare for a point.
  char* text = text_room(max_text + 1);
  if (!text) return;
  int n = print_real(value, m_precisions.peek(), text, max_text);
  // One pass: note the point, make the exponent a D, and the rest upper case as "%G" has it
  // ("INF", "NAN").
  bool point = false;
  int exponent = -1;
  for (int i = 0; i < n; ++i) {
    char c = text[i];
    if (c == '.') {
      point = true;
    } else if (c == 'e') {
      text[i] = 'D';
      exponent = i;
    } else if (c >= 'a' && c <= 'z') {
      text[i] = static_cast<char>(c - 'a' + 'A');
    }
  }
  if (!point) {
    int at = exponent >= 0 ? exponent : n;
    for (int i = n; i > at; --i) text[i] = text[i - 1];
    text[at] = '.';
    ++n;
  }
  if (n == 3 && text[0] == '-' && text[1] == '0' && text[2] == '.') {
    text[0] = '0';
    text[1] = '.';
    n = 2;
  }
  add_piece(n, 0);
}

// A text that the conversion leaves as it was is shared, not copied. A line end or a NUL inside
// the text would break the 80-column record it lands in, so each becomes a blank, as the reader
// turns a NUL into a blank.
void igsTextEncoder::convert(utString const& value) {
  kvaString(value).convert(kvaStringOutputDefault, m_bytes);
  for (char& c : m_bytes)
    if (c == '\n' || c == '\r' || c == '\0') c = ' ';
  std::string_view text(m_bytes.data(), static_cast<size_t>(m_bytes.size()));
  if (text == value.view() && !value.is_null())
    m_value = value;
  else
    m_value = utString(text);
}

void igsStrEncoder::encode(utString const& value) {
  convert(value);
  append_string(m_value, 0);
}

void igsHolerithEncoder::encode(utString const& value) {
  convert(value);
  utString body = m_value.remove_trailing_chars(" \f\n\r\t\v");
  char prefix[24];
  append_text(prefix, print_count(prefix, sizeof prefix, static_cast<size_t>(body.length()), 'H'),
              0);
  append_string(body, 1);
}
