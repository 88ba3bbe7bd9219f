#include "input/igsDecoder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

TEST(igsNumberText, ParsersAgreeWithTheCLibrary) {
  char const* texts[] = {
      "0", "12", "-7", "+5", "  42", "\t 3x", "", "-", "+", "x", "1e5", "1.5E-3", ".5", "5.", ".",
      "-.5", "+.5", "1e", "1e+", "1.5D3", "1.5D", "-2.5d-3", "1.79769313486232D+308", "0x1p3",
      "0X10", "-0x8", "inf", "-Infinity", "nan", "NAN(123)", "1e400", "-1e400", "1e-400",
      "4.9e-324", "2.5e-310", "00012", "1..2", "+-5", "-+5", " +5", "1,5", "\n5", "-0", "0e999",
      "9007199254740993", "9.999999999999999e22", "123456789012345678901234567890",
      "0.1000000000000000055511151231257827", "1.7976931348623157e308",
      "0.000000000000000000000000000123", "1234567890123456789.5",
      // Integers where nine digits end and the range of int ends.
      "999999999", "-999999999", "1000000000", "2147483647", "2147483648", "-2147483648",
      "-2147483649", "0000000000012", "4294967296"};
  for (char const* text : texts) {
    SCOPED_TRACE(std::string("text \"") + text + "\"");
    // The reader takes a D exponent as an E exponent, and holds overflow at the largest double.
    std::string e_text(text);
    for (char& c : e_text)
      if (c == 'D' || c == 'd') c = 'E';
    char* c_end = nullptr;
    double c_real = std::strtod(e_text.c_str(), &c_end);
    c_end = const_cast<char*>(text) + (c_end - e_text.c_str());
    if (std::isinf(c_real) && std::strpbrk(text, "iI") == nullptr)
      c_real = std::copysign(DBL_MAX, c_real);
    char const* end = nullptr;
    double real = igs_parse_real(text, end);
    EXPECT_EQ(end - text, c_end - text);
    if (std::isnan(c_real))
      EXPECT_TRUE(std::isnan(real));
    else
      EXPECT_EQ(std::memcmp(&real, &c_real, sizeof real), 0) << real << " vs " << c_real;
    long c_int = std::strtol(text, &c_end, 10);
    int value = igs_parse_int(text, end);
    EXPECT_EQ(end - text, c_end - text);
    EXPECT_EQ(value, c_int > INT_MAX ? INT_MAX : c_int < INT_MIN ? INT_MIN : c_int);
  }
}

TEST(igsDecoder, WaysAndStatesBelowTheStream) {
  igsIntDecoder integer;
  integer.reset_fast_decode();
  EXPECT_EQ(integer.decode_fast("   -8;"), 5); // leading blanks count as used
  EXPECT_EQ(integer.decoded_value(), -8);
  integer.decode(); // the fast way left nothing to decode
  EXPECT_EQ(integer.decoded_value(), -8);

  igsDoubleDecoder real;
  real.reset_fast_decode();
  EXPECT_EQ(real.decode_fast("2.D,"), 3); // a D without exponent is used up
  EXPECT_EQ(real.decoded_value(), 2.0);

  // The Hollerith decoder recognises no delimiter while body characters are due.
  igsHolerithDecoder holerith;
  EXPECT_EQ(holerith.fast_decode_avail(), 0);
  holerith.reset_slow_decode();
  int cont = 0;
  int check = 0;
  for (char c : std::string("2H,")) holerith.accept_character(c, cont, check);
  EXPECT_TRUE(holerith.char_expected());
  EXPECT_EQ(check, 0);
  holerith.accept_character(',', cont, check);
  EXPECT_EQ(check, 1);
  holerith.decode();
  EXPECT_EQ(holerith.decoded_value(), ",,");

  // The string decoder's slow way drops blanks in front and line ends, and stops at a NUL.
  igsStrDecoder text;
  text.reset_slow_decode();
  for (char c : std::string("  AB C\nD \0X", 11)) text.accept_character(c, cont, check);
  EXPECT_EQ(cont, 0);
  text.decode();
  EXPECT_EQ(text.decoded_value(), "AB CD ");
  igsIOErrorcoDynArr errors;
  text.collect_errors(errors);
  ASSERT_EQ(errors.size(), 1);
  EXPECT_EQ(errors[0].error_type(), igsIOValuePresent);
}

} // namespace
