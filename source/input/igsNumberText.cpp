#include "input/igsNumberText.h"

#include <charconv>
#include <climits>
#include <cstdlib>

int igs_parse_int(char const* text, char const*& end) {
  char const* s = text;
  while (igs_is_space(*s)) ++s;
  bool negative = false;
  if (*s == '+' || *s == '-') negative = *s++ == '-';
  if (!igs_is_digit(*s)) {
    end = text;
    return 0;
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

static bool is_real_char(char c) {
  return igs_is_digit(c) || c == '.' || c == 'e' || c == 'E' || c == '+' || c == '-';
}

double igs_parse_real(char const* text, char const*& end) {
  char const* s = text;
  while (igs_is_space(*s)) ++s;
  // from_chars knows no leading plus, no hexadecimal prefix and gives no value out of range;
  // those rare forms, words such as "INF" and "NAN", and text that is no number at all take
  // the C library's road, which defines the result.
  bool plus = *s == '+';
  char const* first = s + plus;
  char const* mantissa = first + (!plus && *first == '-');
  bool plain = igs_is_digit(*mantissa) || *mantissa == '.';
  if (plain && mantissa[0] == '0' && (mantissa[1] == 'x' || mantissa[1] == 'X')) plain = false;
  if (plain) {
    char const* last = mantissa;
    while (is_real_char(*last)) ++last;
    double value = 0.0;
    auto [stop, ec] = std::from_chars(first, last, value);
    if (ec == std::errc()) {
      end = stop;
      return value;
    }
    if (ec == std::errc::invalid_argument) {
      end = text;
      return 0.0;
    }
  }
  char* stop = nullptr;
  double value = std::strtod(text, &stop);
  end = stop;
  return value;
}
