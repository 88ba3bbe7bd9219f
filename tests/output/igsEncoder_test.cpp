#include "outputTestSupport.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <vector>

using igs_output_test::KeyOverride;

namespace {

struct Piece {
  std::string text;
  int split;
  bool operator==(Piece const&) const = default;
};
using Pieces = std::vector<Piece>;

std::ostream& operator<<(std::ostream& os, Piece const& p) {
  return os << '"' << p.text << "\"/" << p.split;
}

// The pieces of the last encode, read both ways an encoder offers them.
Pieces pieces(igsEncoder const& encoder) {
  Pieces result;
  for (int i = 0; i < encoder.num_items(); ++i) {
    std::string text(encoder.item_text(i));
    EXPECT_EQ(std::string(encoder.get_string(i).view()), text);
    result.push_back({text, encoder.get_split_flag(i)});
  }
  return result;
}

template <class Encoder, class Value> Pieces encoded(Encoder& encoder, Value const& value) {
  encoder.reset();
  encoder.encode(value);
  return pieces(encoder);
}

std::string real(igsDoubleEncoder& encoder, double value) {
  Pieces p = encoded(encoder, value);
  return p.size() == 1 && p[0].split == 0 ? p[0].text : "bad pieces";
}

// The text as printf makes it with the format, then trimmed and given its point and D
// exponent: the reference that the encoder must match byte for byte.
std::string reference(char const* format, double value) {
  char text[1024];
  std::snprintf(text, sizeof text, format, value);
  std::string s(text);
  s.erase(s.find_last_not_of(' ') + 1);
  size_t e = s.find('E');
  if (e != std::string::npos) s[e] = 'D';
  if (s.find('.') == std::string::npos) s.insert(e != std::string::npos ? e : s.size(), ".");
  return s == "-0." ? "0." : s;
}

TEST(igsIntEncoder, DecimalTextInOnePiece) {
  igsIntEncoder e;
  std::pair<int, char const*> const cases[] = {
      {0, "0"}, {-1, "-1"}, {INT_MAX, "2147483647"}, {INT_MIN, "-2147483648"}};
  for (auto const& [value, text] : cases) {
    EXPECT_EQ(encoded(e, value), (Pieces{{text, 0}}));
    EXPECT_EQ(e.value(), value);
  }
  // Out-of-range indices give nothing rather than reading past the pieces.
  EXPECT_TRUE(e.get_string(1).is_null());
  EXPECT_TRUE(e.get_string(-1).is_null());
  EXPECT_EQ(e.get_split_flag(5), 0);
  e.reset();
  EXPECT_EQ(e.num_items(), 0);
}

TEST(igsDoubleEncoder, EveryRealHasAPointAndADExponent) {
  igsDoubleEncoder e;
  EXPECT_EQ(std::string(e.current_format().view()), "%-20.15G");
  std::pair<double, char const*> const cases[] = {
      {1.0, "1."},
      {-0.0, "0."},
      {1e15, "1.D+15"},
      {1e14, "100000000000000."},
      {1234567890123456.0, "1.23456789012346D+15"},
      {0.0001, "0.0001"},
      {0.00001, "1.D-05"},
      {-2.0 / 3.0, "-0.666666666666667"},
      {DBL_MAX, "1.79769313486232D+308"},
      {std::numeric_limits<double>::denorm_min(), "4.94065645841247D-324"},
      {-std::numeric_limits<double>::infinity(), "-INF."},
      {std::numeric_limits<double>::quiet_NaN(), "NAN."},
  };
  for (auto const& [value, text] : cases) {
    EXPECT_EQ(real(e, value), text) << value;
    EXPECT_EQ(real(e, value), reference("%-20.15G", value));
  }
  EXPECT_TRUE(std::isnan(e.value()));
}

TEST(igsDoubleEncoder, FormatStackAndPrecisionKeys) {
  {
    // The precision key is read when the encoder is made; the width never shows.
    KeyOverride precision(kvnOptDoubleGeometricPrecision, 6);
    KeyOverride width(kvnOptDoubleFieldWidth, 30);
    igsDoubleEncoder e;
    EXPECT_EQ(std::string(e.current_format().view()), "%-30.6G");
    EXPECT_EQ(real(e, 3.14159265358979), "3.14159");
    EXPECT_EQ(real(e, 1234567.0), "1.23457D+06");
    EXPECT_EQ(real(e, 100000.0), "100000.");
  }
  igsDoubleEncoder e; // the keys are back at their defaults
  double const third = 1.0 / 3.0;
  std::string before = real(e, third);
  EXPECT_EQ(before, "0.333333333333333");
  e.push_format(20, 10);
  EXPECT_EQ(std::string(e.current_format().view()), "%-20.10G");
  EXPECT_EQ(real(e, third), "0.3333333333");
  EXPECT_EQ(real(e, 12345678901.0), "1.23456789D+10");
  e.push_format(5, 3);
  EXPECT_EQ(real(e, third), "0.333");
  e.pop_format();
  EXPECT_EQ(real(e, third), "0.3333333333");
  e.pop_format();
  EXPECT_EQ(real(e, third), before);
  // The format made at construction cannot be popped.
  e.pop_format();
  e.pop_format();
  EXPECT_EQ(e.num_formats(), 1);
  EXPECT_EQ(real(e, third), before);
  // Precisions printf would treat specially: 0 counts as 1, a negative one as none (6).
  e.push_format(20, 0);
  EXPECT_EQ(real(e, 2.5), "2.");
  EXPECT_EQ(real(e, 25.0), "2.D+01"); // a tie goes to the even digit, as in printf
  EXPECT_EQ(real(e, 35.0), "4.D+01");
  e.push_format(20, -4);
  EXPECT_EQ(real(e, third), "0.333333");
  // A precision beyond what a text can hold is cut to what fits: no overflow.
  e.push_format(20, 5000);
  std::string longest = real(e, -std::numeric_limits<double>::denorm_min());
  EXPECT_LE(longest.size(), static_cast<size_t>(igsDoubleEncoder::max_text));
  EXPECT_EQ(longest.substr(0, 8), "-4.94065");
  EXPECT_EQ(longest.substr(longest.size() - 5), "D-324");
}

TEST(igsDoubleEncoder, MatchesPrintfForGeneratedValuesAndPrecisions) {
  std::mt19937_64 random(20261122);
  std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
  std::uniform_int_distribution<int> exponent(-330, 310);
  std::vector<double> values = {0.5, 0.05, 9.5, 99.5, 999999.5, 0.000095, 1e-5, 1e16, 1e17};
  for (int i = 0; i < 3000; ++i)
    values.push_back(mantissa(random) * std::pow(10.0, exponent(random)));
  for (int i = 0; i < 1000; ++i) values.push_back(std::round(mantissa(random) * 1e6) / 1e3);
  int const precisions[] = {1, 2, 3, 6, 7, 10, 14, 15, 16, 17, 20, 40, 120};
  igsDoubleEncoder e;
  for (int precision : precisions) {
    e.push_format(20, precision);
    char format[32];
    std::snprintf(format, sizeof format, "%%-20.%dG", precision);
    int mismatches = 0;
    for (double v : values)
      if (real(e, v) != reference(format, v) && ++mismatches < 5)
        ADD_FAILURE() << format << " " << v << ": " << real(e, v) << " vs " << reference(format, v);
    EXPECT_EQ(mismatches, 0) << format;
    e.pop_format();
  }
}

TEST(igsStringEncoders, HollerithCountsTrimmedBytesAndStringsStayWhole) {
  igsHolerithEncoder h;
  struct Case {
    utString value;
    Pieces expected;
  };
  Case const cases[] = {
      {"A B  ", {{"3H", 0}, {"A B", 1}}},
      {utString(), {{"0H", 0}, {"", 1}}},
      {"   ", {{"0H", 0}, {"", 1}}},
      {"x,y;z\t\n\r\v\f ", {{"5H", 0}, {"x,y;z", 1}}},
      {"\tlead", {{"5H", 0}, {"\tlead", 1}}},
      {"two\nlines\rhere", {{"14H", 0}, {"two lines here", 1}}}, // no line end inside a record
      {"\xC3\x84"
       "B",
       {{"3H", 0},
        {"\xC3\x84"
         "B",
         1}}}, // bytes, not characters
      {utString(std::string(120, 'q')), {{"120H", 0}, {std::string(120, 'q'), 1}}},
  };
  for (auto const& c : cases) {
    EXPECT_EQ(encoded(h, c.value), c.expected) << c.value.c_str();
    std::string kept(c.value.view()); // the value is kept untrimmed, line ends made blanks
    for (char& ch : kept)
      if (ch == '\n' || ch == '\r') ch = ' ';
    EXPECT_EQ(std::string(h.value().view()), kept);
  }
  igsStrEncoder s;
  EXPECT_EQ(encoded(s, utString("  AB  ")), (Pieces{{"  AB  ", 0}}));
  EXPECT_EQ(encoded(s, utString("")), (Pieces{{"", 0}}));
  EXPECT_EQ(s.value(), "");
}

} // namespace
