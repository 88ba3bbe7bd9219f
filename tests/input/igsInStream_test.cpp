#include "inputTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <set>

using namespace igs_input_test;

namespace {

// A stream over the lines, standing readable on the first of them.
struct Reader {
  explicit Reader(Lines const& lines) : in(join(lines)), stream(in) { stream.reset(); }
  Codes codes() { return codes_of(stream.errors()); }
  int integer() {
    int v = -1;
    stream.read_integer(v);
    return v;
  }
  std::string holerith() {
    utString v;
    stream.read_holerith(v);
    return std::string(v.view());
  }
  int line() const { return where(0); }
  int column() const { return where(1); }
  int where(int which) const {
    igsFileSection section;
    int at[2] = {};
    stream.position(section, at[0], at[1]);
    return at[which];
  }
  std::istringstream in;
  igsInStream stream;
};

// One delimited read: i integer, r real, h Hollerith; the value as text, and the codes that
// stand after it.
struct Read {
  char type;
  std::string value;
  Codes codes;
};

struct FieldCase {
  char const* what;
  Lines lines;
  std::vector<Read> reads;
};

Codes const present = {igsIOValuePresent};
Codes const blank = {igsIOValuePresent, igsIOEmbeddedBlank};
Codes const bad = {igsIOValuePresent, igsIOBadValue};

std::string blanks(int n) {
  return repeat(' ', n);
}

std::vector<FieldCase> const field_cases = {
    {"values and defaults",
     {record('P', 1, "126,12,,-3,+.5,1.5D3,1.5 D3,1 2,NAN,;", 1)},
     {{'i', "126", present},
      {'i', "12", present},
      {'i', "0", {}}, // defaulted: no code at all
      {'i', "-3", present},
      {'r', "0.5", present},
      {'r', "1500", present}, // the fast way reads a D exponent too
      {'r', "1500", blank},
      {'i', "12", blank},
      {'r', "nan", {igsIONotANumber, igsIOValuePresent}},
      {'i', "0", {}}, // the record delimiter stops the buffer
      {'r', "0", {}},
      {'h', "", {}}}},
    {"damaged values",
     {record('P', 1, "1 0,ABC,X1.5,99999999999,-99999999999,1.0 2.0,2.5D-1;", 1)},
     {{'i', "10", blank},
      {'i', "0", bad},
      {'r', "0", bad},
      {'i', "2147483647", present},
      {'i', "-2147483648", present},
      {'r', "1.02", {igsIOValuePresent, igsIOEmbeddedBlank, igsIOBadValue}},
      {'r', "0.25", present}}},
    {"Hollerith strings",
     {record('P', 1, "4HABCD,4HAB,D,4hab;d,3HA  BC,3HA    BCDEF,5HA    B,2HABC,", 1),
      record('P', 2, "5HAB,D,7,0H,,0HX,8;", 1)},
     {{'h', "ABCD", present},
      {'h', "AB,D", present},
      {'h', "ab;d", present},
      {'h', "A B", present}, // count 5 for 3: a doubled blank goes first, then the tail
      {'h', "A B", present},
      {'h', "A   B", present}, // the excess is used up: the other blanks stay
      {'h', "AB", present},
      {'h', "AB,D,", present}, // shorter than declared: the delimiters behind are taken in
      {'h', "", present},
      {'h', "", {}},
      {'h', "", bad},
      {'h', "X", present}, // the bad character starts the next field
      {'i', "8", present}}},
    // In the Parameter section a value over a line end joins silently.
    {"across Parameter line ends",
     {record('P', 1, "1," + blanks(40), 1), record('P', 2, blanks(10) + "2,", 1),
      record('P', 3, blanks(60) + "1.25", 1), record('P', 4, ",3.5,", 1),
      record('P', 5, blanks(62) + "12", 1), record('P', 6, "34,", 1),
      record('P', 7, blanks(56) + "10HABCDE", 1), record('P', 8, "FGHIJ,;", 1)},
     {{'i', "1", present},
      {'i', "2", present},
      {'r', "1.25", present},
      {'r', "3.5", present},
      {'i', "1234", present},
      {'h', "ABCDEFGHIJ", present},
      {'i', "0", {}}}},
    // In the Global section the decoder sees the line end.
    {"across Global line ends",
     {record('G', 1, blanks(70) + "12"), record('G', 2, "34,1" + blanks(67) + "5"),
      record('G', 3, "6,3HAB" + blanks(66)), record('G', 4, "C,")},
     {{'i', "1234", {igsIOValuePresent, igsIOSplitValue}},
      {'i', "156", {igsIOValuePresent, igsIOEmbeddedBlank, igsIOSplitValue}},
      {'h', "AB ", present}}},
    // The end of input stands in the filler, fatal, and comes with each decoder's codes.
    {"a body cut short by the end of input",
     {record('G', 1, "5HAB")},
     {{'h',
       "AB   ",
       {igsIOEndOfFile, igsIOStreamFailed, igsIOEndOfFile, igsIOStreamFailed, igsIOEndOfFile,
        igsIOStreamFailed, igsIOValuePresent, igsIOEndOfFile, igsIOStreamFailed}}}},
};

TEST(igsInStream, ReadsDelimitedFields) {
  for (auto const& c : field_cases) {
    SCOPED_TRACE(c.what);
    Reader r(c.lines);
    for (auto const& read : c.reads) {
      SCOPED_TRACE(read.value);
      if (read.type == 'i') {
        EXPECT_EQ(r.integer(), std::strtol(read.value.c_str(), nullptr, 10));
      } else if (read.type == 'r') {
        double v = -1.0;
        r.stream.read_double(v);
        double expected = std::strtod(read.value.c_str(), nullptr);
        if (std::isnan(expected))
          EXPECT_TRUE(std::isnan(v));
        else
          EXPECT_EQ(v, expected);
      } else {
        EXPECT_EQ(r.holerith(), read.value);
      }
      EXPECT_EQ(r.codes(), read.codes);
      EXPECT_EQ(r.stream.error(), !read.codes.empty());
    }
  }
}

TEST(igsInStream, CodesStandUntilCollectedAndCarryTheirLocation) {
  // A blank line and a NUL between the two Global lines.
  Reader r({record('G', 1, "1H,,1H;,4Htest,"), "", with(record('G', 2, "1 2,3;"), 30, '\0')});
  EXPECT_EQ(r.holerith(), ",");
  EXPECT_EQ(r.holerith(), ";");
  EXPECT_EQ(r.holerith(), "test");
  EXPECT_EQ(r.integer(), 12);
  // The line codes of the fetch, the integer's codes, then the code that the Hollerith reads
  // left; all where the cursor stands now.
  EXPECT_EQ(describe(r.stream.errors()),
            (Lines{"igsIOBlankLine@G2:4", "igsIONullCharacter@G2:4", "igsIOValuePresent@G2:4",
                   "igsIOEmbeddedBlank@G2:4", "igsIOValuePresent@G2:4"}));
  EXPECT_EQ(r.integer(), 3);
  EXPECT_EQ(describe(r.stream.errors()), Lines{"igsIOValuePresent@G2:6"});
  // Every code has a name of its own.
  std::set<std::string> names;
  for (int code = 0; code <= igsIOBlankLine + 1; ++code)
    names.insert(igs_io_error_name(static_cast<igsIOErrorCode>(code)));
  EXPECT_EQ(names.size(), 20u); // 19 codes and the name of any other number
}

} // namespace
