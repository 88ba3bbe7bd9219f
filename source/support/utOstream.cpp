#include "support/utOstream.h"

#include <charconv>
#include <cstring>

utOstream::utOstream(std::ostream& target) : m_state(std::make_shared<State>()) {
  m_state->target = &target;
}

utOstream::utOstream(utOstreamTab, utOstream const& parent, int levels, int)
    : m_state(parent.m_state), m_indent(parent.m_indent + (levels > 0 ? levels : 0)) {}

void utOstream::write(char const* text, size_t length) {
  std::ostream& out = *m_state->target;
  while (length) {
    if (m_state->at_line_start && *text != '\n')
      for (int i = 0; i < m_indent; ++i) out.write("  ", 2);
    char const* newline = static_cast<char const*>(std::memchr(text, '\n', length));
    size_t chunk = newline ? static_cast<size_t>(newline - text) + 1 : length;
    out.write(text, static_cast<std::streamsize>(chunk));
    m_state->at_line_start = newline != nullptr;
    text += chunk;
    length -= chunk;
  }
}

utOstream& utOstream::operator<<(char const* text) {
  if (text) write(text, std::strlen(text));
  return *this;
}

utOstream& utOstream::operator<<(char c) {
  write(&c, 1);
  return *this;
}

template <class T> static utOstream& write_integer(utOstream& os, T value) {
  char digits[24];
  auto result = std::to_chars(digits, digits + sizeof digits, value);
  os.write(digits, static_cast<size_t>(result.ptr - digits));
  return os;
}

utOstream& utOstream::operator<<(int value) {
  return write_integer(*this, value);
}
utOstream& utOstream::operator<<(unsigned value) {
  return write_integer(*this, value);
}
utOstream& utOstream::operator<<(long value) {
  return write_integer(*this, value);
}

void ut_format_double(double value, char* buffer, size_t size) {
  auto result = std::to_chars(buffer, buffer + size - 1, value);
  *result.ptr = '\0';
}

utOstream& utOstream::operator<<(double value) {
  char text[32];
  ut_format_double(value, text, sizeof text);
  return *this << text;
}

utOstream& utOstream::operator<<(utString const& text) {
  write(text.c_str(), static_cast<size_t>(text.length()));
  return *this;
}

utOstream& utOstream::operator<<(giPoint2 const& p) {
  return *this << "(" << p.x() << ", " << p.y() << ")";
}

utOstream& utOstream::operator<<(giPoint3 const& p) {
  return *this << "(" << p.x() << ", " << p.y() << ", " << p.z() << ")";
}

utOstream& utOstream::operator<<(giVector2 const& v) {
  return *this << "(" << v.x() << ", " << v.y() << ")";
}

utOstream& utOstream::operator<<(giVector3 const& v) {
  return *this << "(" << v.x() << ", " << v.y() << ", " << v.z() << ")";
}

utOstream& utOstream::operator<<(std::ostream& (*manipulator)(std::ostream&)) {
  if (manipulator == static_cast<std::ostream& (*)(std::ostream&)>(std::endl)) {
    write("\n", 1);
  } else {
    manipulator(*m_state->target);
  }
  return *this;
}
