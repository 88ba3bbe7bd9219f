#include "output/igsEncoder.h"

#include "support/coResource.h"
#include "support/kvnabs.h"

#include <charconv>
#include <cstdio>
#include <cstring>

namespace {

// The bytes of the value in the output encoding. The store is the encoder's own, kept for the
// next field; a text that the conversion leaves as it was is shared, not copied.
utString converted(utString const& value, charcoDynArr& bytes) {
  kvaString(value).convert(kvaStringOutputDefault, bytes);
  std::string_view text(bytes.data(), static_cast<size_t>(bytes.size()));
  if (text == value.view() && !value.is_null()) return value;
  return utString(text);
}

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

void igsEncoder::append_text(char const* text, int length, int split_flag) {
  int start = m_text.size();
  if (length < 0) length = 0;
  // A field that cannot get its store loses no earlier piece: it is left out whole.
  if (!m_text.expand(start + length)) return;
  if (length > 0) std::memcpy(m_text.data() + start, text, static_cast<size_t>(length));
  if (!m_ends.append(start + length)) {
    m_text.shrink(start);
    return;
  }
  if (!m_split_flags.append(split_flag)) {
    m_ends.remove_last();
    m_text.shrink(start);
  }
}

void igsIntEncoder::encode(int value) {
  m_value = value;
  char text[16];
  auto printed = std::to_chars(text, text + sizeof text, value);
  append_text(text, static_cast<int>(printed.ptr - text), 0);
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

// The text that printf's "%.<precision>G" gives for the value, without its padding. The
// digits come from std::to_chars, which prints exactly what printf prints for the same
// precision but in lower case and far faster. A negative precision counts as none given (6),
// as in printf; a precision whose text could not fit is cut to the largest that fits.
int print_real(double value, int precision, char* text, int size) {
  if (precision < 0) precision = 6;
  int const widest = size - 16; // sign, "0.000", exponent and spare
  if (precision > widest) precision = widest;
  auto printed = std::to_chars(text, text + size, value, std::chars_format::general, precision);
  if (printed.ec != std::errc()) return 0;
  int n = static_cast<int>(printed.ptr - text);
  for (int i = 0; i < n; ++i)
    if (text[i] >= 'a' && text[i] <= 'z') text[i] = static_cast<char>(text[i] - 'a' + 'A');
  return n;
}

} // namespace

void igsDoubleEncoder::encode(double value) {
  m_value = value;
  // The format pads on the right with blanks that the trim would cut again, so the text is
  // printed without them: only the precision shows.
  char text[max_text + 2];
  int n = print_real(value, m_precisions.peek(), text, max_text);
  bool point = false;
  int exponent = -1;
  for (int i = 0; i < n; ++i) {
    if (text[i] == '.') {
      point = true;
    } else if (text[i] == 'E') {
      text[i] = 'D';
      exponent = i;
    }
  }
  if (!point) {
    int at = exponent >= 0 ? exponent : n;
    std::memmove(text + at + 1, text + at, static_cast<size_t>(n - at));
    text[at] = '.';
    ++n;
  }
  if (n == 3 && std::memcmp(text, "-0.", 3) == 0) {
    append_text("0.", 2, 0);
    return;
  }
  append_text(text, n, 0);
}

void igsStrEncoder::encode(utString const& value) {
  m_value = converted(value, m_bytes);
  append_string(m_value, 0);
}

void igsHolerithEncoder::encode(utString const& value) {
  m_value = converted(value, m_bytes);
  utString body = m_value.remove_trailing_chars(" \f\n\r\t\v");
  char prefix[24];
  append_text(prefix, print_count(prefix, sizeof prefix, static_cast<size_t>(body.length()), 'H'),
              0);
  append_string(body, 1);
}
