#include "input/igsDecoder.h"
#include "input/igsNumberText.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

using Codes = std::vector<igsIOErrorCode>;

Codes codes(igsDecoder& decoder) {
  igsIOErrorcoDynArr errors;
  decoder.collect_errors(errors);
  Codes list;
  for (auto const& e : errors) list.push_back(e.error_type());
  return list;
}

// Runs the slow way over the text as the engine would, stopping where the decoder asks or at
// a delimiter it would recognise; returns the number of characters taken.
int feed(igsDecoder& decoder, std::string const& text) {
  decoder.reset_fast_decode();
  decoder.reset_slow_decode();
  int check = 1;
  int taken = 0;
  for (char c : text) {
    if (check && (c == ',' || c == ';')) break;
    int cont = 0;
    decoder.accept_character(c, cont, check);
    if (!cont) break;
    ++taken;
  }
  decoder.decode();
  return taken;
}

TEST(igsNumberText, ParsersAgreeWithTheCLibrary) {
  char const* texts[] = {"0",
                         "12",
                         "-7",
                         "+5",
                         "  42",
                         "\t 3x",
                         "",
                         "-",
                         "+",
                         "x",
                         "1e5",
                         "1.5E-3",
                         ".5",
                         "5.",
                         ".",
                         "-.5",
                         "+.5",
                         "1e",
                         "1e+",
                         "1.5D3",
                         "0x1p3",
                         "0X10",
                         "-0x8",
                         "inf",
                         "-Infinity",
                         "nan",
                         "NAN(123)",
                         "1e400",
                         "-1e400",
                         "1e-400",
                         "4.9e-324",
                         "2.5e-310",
                         "00012",
                         "1..2",
                         "+-5",
                         "-+5",
                         " +5",
                         "1,5",
                         "\n5",
                         "9.999999999999999e22",
                         "123456789012345678901234567890",
                         "0.1000000000000000055511151231257827",
                         "1.7976931348623157e308"};
  for (char const* text : texts) {
    SCOPED_TRACE(std::string("text \"") + text + "\"");
    char* c_end = nullptr;
    double c_real = std::strtod(text, &c_end);
    char const* end = nullptr;
    double real = igs_parse_real(text, end);
    EXPECT_EQ(end - text, c_end - text);
    if (std::isnan(c_real))
      EXPECT_TRUE(std::isnan(real));
    else
      EXPECT_EQ(std::memcmp(&real, &c_real, sizeof real), 0) << real << " vs " << c_real;

    errno = 0;
    long c_int = std::strtol(text, &c_end, 10);
    int value = igs_parse_int(text, end);
    EXPECT_EQ(end - text, c_end - text);
    long clamped = c_int > INT_MAX ? INT_MAX : c_int < INT_MIN ? INT_MIN : c_int;
    EXPECT_EQ(value, clamped);
  }
  char const* end = nullptr;
  EXPECT_EQ(igs_parse_int("2147483648", end), INT_MAX);
  EXPECT_EQ(igs_parse_int("-2147483648", end), INT_MIN);
  EXPECT_EQ(igs_parse_int("-2147483647", end), -2147483647);
}

TEST(igsDecoder, IntegerFastAndSlowWays) {
  igsIntDecoder d;
  EXPECT_EQ(d.fast_decode_avail(), 1);
  d.reset_fast_decode();
  EXPECT_EQ(d.decode_fast("12,"), 2);
  EXPECT_EQ(d.decoded_value(), 12);
  EXPECT_EQ(codes(d), Codes{igsIOValuePresent});
  d.decode(); // the fast way left nothing to decode
  EXPECT_EQ(d.decoded_value(), 12);
  // A defaulted field uses nothing and says nothing.
  d.reset_fast_decode();
  EXPECT_EQ(d.decode_fast(","), 0);
  EXPECT_EQ(d.decoded_value(), 0);
  EXPECT_EQ(codes(d), Codes{});
  // Leading blanks count as used.
  EXPECT_EQ(d.decode_fast("   -8;"), 5);
  EXPECT_EQ(d.decoded_value(), -8);
  codes(d);

  EXPECT_EQ(feed(d, "1 2,"), 3);
  EXPECT_EQ(d.decoded_value(), 12);
  EXPECT_EQ(codes(d), (Codes{igsIOValuePresent, igsIOEmbeddedBlank}));
  feed(d, "  7  ,");
  EXPECT_EQ(d.decoded_value(), 7);
  EXPECT_EQ(codes(d), Codes{igsIOValuePresent}); // blanks behind the value say nothing
  feed(d, "12\n34,");
  EXPECT_EQ(d.decoded_value(), 1234);
  EXPECT_EQ(codes(d), (Codes{igsIOValuePresent, igsIOSplitValue}));
  feed(d, "12 \n 34,");
  EXPECT_EQ(d.decoded_value(), 1234);
  EXPECT_EQ(codes(d), (Codes{igsIOValuePresent, igsIOEmbeddedBlank, igsIOSplitValue}));
  feed(d, "12\n \n34,");
  EXPECT_EQ(d.decoded_value(), 1234);
  EXPECT_EQ(codes(d), (Codes{igsIOValuePresent, igsIOEmbeddedBlank, igsIOSplitValue}));
  // Text behind the number: the part in front stands.
  feed(d, "12AB,");
  EXPECT_EQ(d.decoded_value(), 12);
  EXPECT_EQ(codes(d), (Codes{igsIOValuePresent, igsIOBadValue}));
  feed(d, "ABC,");
  EXPECT_EQ(d.decoded_value(), 0);
  EXPECT_EQ(codes(d), (Codes{igsIOValuePresent, igsIOBadValue}));
  // Nothing but blanks and line ends.
  feed(d, " \n ,");
  EXPECT_EQ(d.decoded_value(), 0);
  EXPECT_EQ(codes(d), Codes{});
}

TEST(igsDecoder, RealFastAndSlowWays) {
  igsDoubleDecoder d;
  struct Case {
    char const* text;
    int used;
    double value;
  } const fast[] = {{"1.5D3,", 5, 1500.0}, {"1.5d-2,", 6, 1.5 * (1.0 / 10.0 / 10.0)},
                    {"-2.E+1;", 6, -20.0}, {".5,", 2, 0.5},
                    {"2.D,", 3, 2.0},      {"3,", 1, 3.0},
                    {"1.0E,", 3, 1.0},     {"+.25,", 4, 0.25},
                    {"1.5 D3,", 3, 1.5},   {"0.1,", 3, 0.1}};
  for (auto const& c : fast) {
    SCOPED_TRACE(c.text);
    d.reset_fast_decode();
    EXPECT_EQ(d.decode_fast(c.text), c.used);
    EXPECT_EQ(d.decoded_value(), c.value);
    EXPECT_EQ(codes(d), Codes{igsIOValuePresent});
  }
  d.reset_fast_decode();
  EXPECT_EQ(d.decode_fast("NAN,"), 3);
  EXPECT_TRUE(std::isnan(d.decoded_value()));
  EXPECT_EQ(codes(d), (Codes{igsIONotANumber, igsIOValuePresent}));

  feed(d, "1.5 D3,");
  EXPECT_EQ(d.decoded_value(), 1500.0);
  EXPECT_EQ(codes(d), (Codes{igsIOValuePresent, igsIOEmbeddedBlank}));
  feed(d, "1.234567D-5,"); // the slow way reads the D as an E
  EXPECT_EQ(d.decoded_value(), 1.234567e-5);
  feed(d, "-3.\n25,");
  EXPECT_EQ(d.decoded_value(), -3.25);
  EXPECT_EQ(codes(d), (Codes{igsIOValuePresent, igsIOSplitValue}));
  feed(d, "nan ,");
  EXPECT_TRUE(std::isnan(d.decoded_value()));
  EXPECT_EQ(codes(d), (Codes{igsIOValuePresent, igsIONotANumber}));
  // Text left behind a real is reported as it is behind an integer.
  feed(d, "1.0 2.0,");
  EXPECT_EQ(d.decoded_value(), 1.02);
  EXPECT_EQ(codes(d), (Codes{igsIOValuePresent, igsIOEmbeddedBlank, igsIOBadValue}));
  feed(d, "X1,");
  EXPECT_EQ(d.decoded_value(), 0.0);
  EXPECT_EQ(codes(d), (Codes{igsIOValuePresent, igsIOBadValue}));
}

TEST(igsDecoder, HollerithStrings) {
  igsHolerithDecoder d;
  EXPECT_EQ(d.fast_decode_avail(), 0);
  EXPECT_EQ(d.decode_fast("4HABCD,"), 0);
  struct Case {
    char const* text;
    int taken;
    char const* value;
    Codes codes;
  } const cases[] = {
      {"4HABCD,", 6, "ABCD", {igsIOValuePresent}},
      {"4HAB,D,", 6, "AB,D", {igsIOValuePresent}},
      {"4hab;d,", 6, "ab;d", {igsIOValuePresent}},
      // Count 5 for a declared 3: one doubled blank goes first, then the tail.
      {"3HA  BC,", 7, "A B", {igsIOValuePresent}},
      {"3HA    BCDEF;", 12, "A B", {igsIOValuePresent}},
      // Once the excess is used up, blanks are kept.
      {"5HA    B,", 8, "A   B", {igsIOValuePresent}},
      {"2HABC,", 5, "AB", {igsIOValuePresent}},
      // A body shorter than declared takes in the delimiters behind it.
      {"5HAB,D,7,", 8, "AB,D,", {igsIOValuePresent}},
      {"0H,", 2, "", {igsIOValuePresent}},
      {"0H  ,", 4, "", {igsIOValuePresent}},
      {"0HX,", 2, "", {igsIOValuePresent, igsIOBadValue}},
      {",", 0, "", {}},
      {"  3HA\nBC,", 8, "ABC", {igsIOValuePresent}},
      {"1 0HABCDEFGHIJ,", 14, "ABCDEFGHIJ", {igsIOValuePresent, igsIOEmbeddedBlank}},
      {"3H\n\nX\nYZ,", 8, "XYZ", {igsIOValuePresent}},
  };
  for (auto const& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(feed(d, c.text), c.taken);
    EXPECT_EQ(d.decoded_value(), c.value);
    EXPECT_FALSE(d.decoded_value().is_null());
    EXPECT_EQ(codes(d), c.codes);
  }
  // Body characters still due: no delimiter is recognised.
  d.reset_slow_decode();
  int cont = 0;
  int check = 0;
  for (char c : std::string("2H")) d.accept_character(c, cont, check);
  EXPECT_TRUE(d.char_expected());
  EXPECT_EQ(check, 0);
  d.accept_character(',', cont, check);
  d.accept_character(',', cont, check);
  EXPECT_FALSE(d.char_expected());
  EXPECT_EQ(check, 1);
  d.decode();
  EXPECT_EQ(d.decoded_value(), ",,");
  codes(d);
}

TEST(igsDecoder, FixedWidthStrings) {
  igsStrDecoder d;
  d.reset_fast_decode();
  EXPECT_EQ(d.decode_fast("        "), 8);
  EXPECT_EQ(d.decoded_value(), "        ");
  EXPECT_EQ(codes(d), Codes{igsIOValuePresent});
  EXPECT_EQ(d.decode_fast(""), 0);
  EXPECT_EQ(codes(d), Codes{});
  // The slow way drops blanks in front, keeps those inside and behind, and drops newlines.
  feed(d, "  AB C\nD ");
  EXPECT_EQ(d.decoded_value(), "AB CD ");
  EXPECT_EQ(codes(d), Codes{igsIOValuePresent});
  feed(d, "   ");
  EXPECT_EQ(d.decoded_value(), "");
  EXPECT_EQ(codes(d), Codes{});
  // A NUL stops it.
  d.reset_slow_decode();
  int cont = 1;
  int check = 0;
  d.accept_character('A', cont, check);
  d.accept_character('\0', cont, check);
  EXPECT_EQ(cont, 0);
  d.decode();
  EXPECT_EQ(d.decoded_value(), "A");
}

} // namespace
