// Character classes, number parsers and an eight-byte load for the scans of the input
// pipeline. The classes and parsers behave as the C library's isspace, isdigit, strtol and
// strtod in the "C" locale, whatever locale the host has set, and need no look-up and no
// allocation.
#pragma once

#include <climits>
#include <cstdint>
#include <cstring>

// Eight bytes of text as one word, for scans that look at eight characters at a time.
inline std::uint64_t igs_load8(char const* p) {
  std::uint64_t x;
  std::memcpy(&x, p, sizeof x);
  return x;
}

// White space of the "C" locale: blank, tab, LF, VT, FF and CR.
inline bool igs_is_space(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}
inline bool igs_is_digit(char c) {
  return c >= '0' && c <= '9';
}

// Reads a decimal integer the way strtol(text, &end, 10) does: leading white space, an
// optional sign, then digits. Without digits the result is 0 and end is text. A value beyond
// the range of int is clamped to INT_MIN or INT_MAX; end still passes every digit. The text
// must end in a NUL or another character that is no digit.
inline int igs_parse_int(char const* text, char const*& end) {
  char const* s = text;
  while (igs_is_space(*s)) ++s;
  bool negative = false;
  if (*s == '+' || *s == '-') negative = *s++ == '-';
  if (!igs_is_digit(*s)) {
    end = text;
    return 0;
  }
  // Nine digits or fewer cannot leave the range of int, and that is nearly every field.
  unsigned small = 0;
  int n = 0;
  for (; n < 9 && igs_is_digit(s[n]); ++n) small = small * 10 + static_cast<unsigned>(s[n] - '0');
  if (!igs_is_digit(s[n])) {
    end = s + n;
    return negative ? -static_cast<int>(small) : static_cast<int>(small);
  }
  // Accumulate as a negative number, so that INT_MIN is reached without overflow.
  long long value = 0;
  constexpr long long limit = -static_cast<long long>(INT_MAX) - 2;
  for (; igs_is_digit(*s); ++s)
    if (value > limit) value = value * 10 - (*s - '0');
  end = s;
  if (!negative) value = -value;
  if (value > INT_MAX) return INT_MAX;
  if (value < INT_MIN) return INT_MIN;
  return static_cast<int>(value);
}

// Reads a real number the way strtod(text, &end) does in the "C" locale, with the same value
// and the same stop position (hexadecimal, infinity and NaN forms included), with two
// differences that keep written values intact: a D exponent reads exactly as an E exponent,
// and a value beyond the largest double is held at it instead of becoming infinite. Without a
// number the result is 0.0 and end is text.
double igs_parse_real(char const* text, char const*& end);
