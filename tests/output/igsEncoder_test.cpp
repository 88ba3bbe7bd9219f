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

} // namespace
