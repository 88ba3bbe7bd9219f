#include "input/igsNumberText.h"

#include <cerrno>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

// Reads the common real in one pass: at most 19 significant digits whose value is below 2^53,
// and a power of ten within 22 of zero. Mantissa and power are then exact doubles, and one
// multiplication or division rounds correctly, which is what strtod gives. Returns false for
// anything else, leaving it to the general road.
static bool parse_plain_real(char const* p, bool negative, double& value, char const*& end) {
  static constexpr double powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                      1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                      1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  std::uint64_t mantissa = 0;
  int digits = 0;
  int exponent = 0;
  char const* q = p;
  while (*q == '0') ++q;
  for (; igs_is_digit(*q); ++q, ++digits) {
    if (digits == 19) return false;
    mantissa = mantissa * 10 + static_cast<unsigned>(*q - '0');
  }
  if (*q == '.') {
    ++q;
    if (digits == 0)
      for (; *q == '0'; ++q) --exponent;
    for (; igs_is_digit(*q); ++q, ++digits, --exponent) {
      if (digits == 19) return false;
      mantissa = mantissa * 10 + static_cast<unsigned>(*q - '0');
    }
  }
  if (*q == 'e' || *q == 'E' || *q == 'd' || *q == 'D') {
    char const* e = q + 1;
    bool negative_power = false;
    if (*e == '+' || *e == '-') negative_power = *e++ == '-';
    if (igs_is_digit(*e)) {
      int power = 0;
      for (; igs_is_digit(*e); ++e)
        if (power < 100000) power = power * 10 + (*e - '0');
      exponent += negative_power ? -power : power;
      q = e;
    }
  }
  if (mantissa == 0) {
    value = negative ? -0.0 : 0.0;
  } else {
    if (mantissa > (std::uint64_t(1) << 53) || exponent < -22 || exponent > 22) return false;
    value = static_cast<double>(mantissa);
    value = exponent < 0 ? value / powers[-exponent] : value * powers[exponent];
    if (negative) value = -value;
  }
  end = q;
  return true;
}

static bool is_real_char(char c) {
  return igs_is_digit(c) || c == '.' || c == 'e' || c == 'E' || c == '+' || c == '-';
}

// Where a D exponent (Fortran style) stands at p: "D", an optional sign, a digit.
static bool d_exponent_at(char const* p) {
  if (*p != 'D' && *p != 'd') return false;
  ++p;
  if (*p == '+' || *p == '-') ++p;
  return igs_is_digit(*p);
}

// strtod, with a value too large for a double held at the largest finite one: a file that
// spells the largest double at fewer digits rounds past it, and must not read as infinity.
static double c_library_real(char const* text, char const*& end) {
  char* stop = nullptr;
  errno = 0;
  double value = std::strtod(text, &stop);
  if (errno == ERANGE && std::isinf(value)) value = std::copysign(DBL_MAX, value);
  end = stop;
  return value;
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
  if (plain && (igs_is_digit(*mantissa) || igs_is_digit(mantissa[1]))) {
    double value = 0.0;
    if (parse_plain_real(mantissa, mantissa != first, value, end)) return value;
  }
  if (plain) {
    char const* last = mantissa;
    while (is_real_char(*last)) ++last;
    // A D exponent is read exactly as the E exponent it stands for, from a copy.
    char copy[80];
    char const* from = first;
    if (d_exponent_at(last) && last - first < 40) {
      char const* stop = last + 1;
      while (is_real_char(*stop)) ++stop;
      if (stop - first < static_cast<long>(sizeof copy)) {
        std::memcpy(copy, first, static_cast<size_t>(stop - first));
        copy[last - first] = 'E';
        copy[stop - first] = '\0';
        last = copy + (stop - first);
        from = copy;
      }
    }
    double value = 0.0;
    auto [stop, ec] = std::from_chars(from, last, value);
    if (ec == std::errc::invalid_argument) {
      end = text;
      return 0.0;
    }
    if (ec == std::errc() || ec == std::errc::result_out_of_range) {
      if (ec == std::errc::result_out_of_range) value = c_library_real(from, stop);
      end = first + (stop - from);
      return value;
    }
  }
  return c_library_real(text, end);
}
