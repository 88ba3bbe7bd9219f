// What the stream writes, checked against the C library and read back through igsInStream.
#include "outputTestSupport.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>

using namespace igs_output_test;

namespace {

// The value as it stands in a file written with `precision` significant digits.
double rounded(double value, int precision) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*G", precision, value);
  return std::strtod(text, nullptr);
}

// Reals of every magnitude, of every sign, and with all the digits a precision allows.
std::vector<double> generated_reals(int count, unsigned seed) {
  std::vector<double> values = {0.0,
                                -0.0,
                                1.0,
                                -1.0,
                                0.1,
                                1e-300,
                                -1e-300,
                                1e300,
                                -1e300,
                                DBL_MAX,
                                -DBL_MAX,
                                DBL_MIN,
                                std::numeric_limits<double>::denorm_min(),
                                0.123456789012345,
                                -987654321098765.0,
                                123456789012345e-20,
                                1.0 / 3.0,
                                2.0 / 3.0};
  std::mt19937_64 random(seed);
  std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
  std::uniform_int_distribution<int> exponent(-320, 300);
  std::uniform_int_distribution<int> small(-6, 6);
  while (static_cast<int>(values.size()) < count) {
    double m = mantissa(random);
    values.push_back(m * std::pow(10.0, values.size() % 3 ? small(random) : exponent(random)));
  }
  return values;
}

// One value of a mixed record: i integer, r real, h Hollerith text.
struct Value {
  char type;
  int integer = 0;
  double real = 0.0;
  std::string text;
};

std::vector<Value> generated_values(int count, unsigned seed) {
  std::vector<Value> values;
  for (int v : {INT_MAX, INT_MIN, static_cast<int>(0x80000001), 0, -1})
    values.push_back({'i', v, 0.0, ""});
  for (double r : generated_reals(40, seed)) values.push_back({'r', 0, r, ""});
  for (std::string s :
       std::vector<std::string>{"", " ", "A", ",", ";", "1H,", "3HA;B", "|#|#", "a  b", "  lead",
                                std::string(64, 'x'), std::string(200, 'y')})
    values.push_back({'h', 0, 0.0, s});
  std::mt19937 random(seed);
  std::uniform_int_distribution<int> type(0, 2);
  std::uniform_int_distribution<int> integer(INT_MIN, INT_MAX);
  std::uniform_int_distribution<int> length(0, 180);
  std::string const alphabet = "ABCXYZ0123456789 ,;|#H.+-Dabc";
  std::uniform_int_distribution<size_t> letter(0, alphabet.size() - 1);
  std::vector<double> reals = generated_reals(count, seed + 1);
  while (static_cast<int>(values.size()) < count) {
    Value v{"irh"[type(random)], 0, 0.0, ""};
    v.integer = integer(random);
    v.real = reals[values.size()];
    for (int n = length(random); n > 0; --n) v.text += alphabet[letter(random)];
    values.push_back(v);
  }
  return values;
}

struct Delimiters {
  char parameter;
  char record;
};

void write(igsOutStream& s, Value const& v) {
  if (v.type == 'i')
    s.write_integer(v.integer);
  else if (v.type == 'r')
    s.write_double(v.real);
  else
    s.write_holerith(v.text.c_str());
}

// A real as the reader gives it back: exactly the value of the 15 digits written, D exponents,
// subnormal values and the largest doubles included (those round up at 15 digits and are held
// at the largest finite double, so the unset value survives a round trip).
void expect_read_back(double got, double written) {
  double expected = rounded(written, 15);
  if (std::isinf(expected)) expected = std::copysign(DBL_MAX, expected);
  char text[64];
  std::snprintf(text, sizeof text, "%.15G", written);
  EXPECT_EQ(got, expected) << text;
}

// Reads the value back and compares it with what was written; the only code to stand is the
// one that says that the field held a value. Where the record delimiter stands in the last
// data column, the read of the last field steps onto the next line and meets the next record
// or section there.
void read_and_compare(igsInStream& r, Value const& v, bool last = false) {
  if (v.type == 'i') {
    int got = 0;
    r.read_integer(got);
    EXPECT_EQ(got, v.integer);
  } else if (v.type == 'r') {
    double got = 0.0;
    r.read_double(got);
    expect_read_back(got, v.real);
  } else {
    utString got;
    r.read_holerith(got);
    std::string trimmed = v.text.substr(0, v.text.find_last_not_of(' ') + 1);
    EXPECT_EQ(std::string(got.view()), trimmed);
  }
  Codes codes = igs_input_test::codes_of(r.errors());
  if (last)
    std::erase_if(codes, [](auto c) { return c == igsIOEntityEnd || c == igsIOSectionEnd; });
  EXPECT_EQ(codes, Codes{igsIOValuePresent});
}

// Moves the reader over a stop at a record end, a new section or a new back pointer; 0 if
// it stays stopped.
int next_record(igsInStream& r) {
  for (int i = 0; i < 3 && r.frozen(); ++i)
    if (!r.reset()) return 0;
  r.errors(); // what the stop left: the new section or back pointer
  return !r.frozen();
}

void round_trip(Delimiters d, unsigned seed) {
  std::vector<Value> global = generated_values(300, seed);
  std::vector<Value> parameter = generated_values(3000, seed + 7);
  std::vector<int> fixed;
  std::mt19937 random(seed);
  std::uniform_int_distribution<int> eight_digits(-9999999, 99999999);
  for (int i = 0; i < 9 * 40; ++i) fixed.push_back(eight_digits(random));
  std::vector<size_t> record_ends;
  for (size_t end = 0; end < parameter.size();) {
    end += 1 + (end * 7919) % 61;
    record_ends.push_back(end < parameter.size() ? end : parameter.size());
  }

  std::ostringstream out;
  {
    igsOutStream s(&out);
    s.set_delimiters(utString(std::string(1, d.parameter)), utString(std::string(1, d.record)));
    s.set_section(igsSectionGlobal);
    for (Value const& v : global) write(s, v);
    s.set_section(igsSectionDirectory);
    for (int v : fixed) s.write_integer(8, v);
    s.write_string(8, "ABC");
    s.set_section(igsSectionParameter);
    size_t i = 0;
    for (size_t record = 0; record < record_ends.size(); ++record) {
      for (; i < record_ends[record]; ++i) write(s, parameter[i]);
      s.set_backpointer(static_cast<int>(2 * record + 3));
    }
    s.set_section(igsSectionTerminate);
    EXPECT_FALSE(s.error());
  }
  for (std::string const& line : lines_of(out.str())) ASSERT_EQ(line.size(), 80u) << line;

  std::istringstream in(out.str());
  igsInStream r(in);
  r.set_param_delimiter(d.parameter);
  r.set_record_delimiter(d.record);
  EXPECT_TRUE(next_record(r));
  for (size_t i = 0; i < global.size(); ++i) {
    SCOPED_TRACE("Global field " + std::to_string(i));
    read_and_compare(r, global[i], i + 1 == global.size());
  }
  EXPECT_TRUE(next_record(r));
  for (int v : fixed) {
    int got = 0;
    r.read_integer(8, got);
    EXPECT_EQ(got, v);
    EXPECT_EQ(igs_input_test::codes_of(r.errors()), Codes{igsIOValuePresent});
  }
  utString text;
  r.read_string(8, text);
  EXPECT_EQ(text, "     ABC");
  EXPECT_EQ(igs_input_test::codes_of(r.errors()), Codes{igsIOValuePresent});
  r.skip_line();
  EXPECT_TRUE(next_record(r));
  size_t i = 0;
  for (size_t record = 0; record < record_ends.size(); ++record) {
    SCOPED_TRACE("Parameter record " + std::to_string(record));
    EXPECT_EQ(r.backpointer(), static_cast<int>(2 * record + 1));
    for (; i < record_ends[record]; ++i)
      read_and_compare(r, parameter[i], i + 1 == record_ends[record]);
    EXPECT_TRUE(r.frozen()); // the record delimiter
    EXPECT_EQ(next_record(r), record + 1 < record_ends.size());
  }
  EXPECT_TRUE(r.fatal_error());
  EXPECT_TRUE(r.error_type(igsIOEndOfFile));
}

TEST(igsOutStream, WrittenFieldsReadBackEqual) {
  round_trip({',', ';'}, 17);
  round_trip({'|', '#'}, 29);
  round_trip({';', ','}, 31);
}

} // namespace
