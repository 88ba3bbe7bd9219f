#include "entities/annotation/igsWord.h"

#include <cstring>

int igsWord::written_characters() const {
  // A write turns line ends and NULs into blanks and cuts the white space at the end.
  static char const trimmed[] = {' ', '\f', '\n', '\r', '\t', '\v', '\0'};
  int n = m_string.length();
  while (n > 0 && std::memchr(trimmed, m_string[n - 1], sizeof trimmed)) --n;
  return n;
}

int igsWord::valid_font_code() const {
  static int const predefined[] = {1, 2, 3, 6, 12, 13, 14, 17, 18, 19, 1001, 1002, 1003, 2001};
  for (int code : predefined)
    if (m_font_code == code) return 1;
  return m_font_code == 0 && m_font;
}
