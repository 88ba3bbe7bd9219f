#include "inputTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace igs_input_test;

namespace {

using Codes = std::vector<igsIOErrorCode>;

// A stream over the lines, standing readable on the first of them.
struct Reader {
  explicit Reader(std::vector<std::string> const& lines) : in(join(lines)), stream(in) {
    stream.reset();
  }
  Codes codes() {
    Codes list;
    for (auto const& e : stream.errors()) list.push_back(e.error_type());
    return list;
  }
  int integer() {
    int v = -1;
    stream.read_integer(v);
    return v;
  }
  double real() {
    double v = -1.0;
    stream.read_double(v);
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

Codes const present = {igsIOValuePresent};
Codes const nothing;

std::string blanks(int n) {
  return std::string(static_cast<size_t>(n), ' ');
}

TEST(igsInStream, DelimitedFieldsAndDefaults) {
  Reader r({record('P', 1, "126,12,,-3,1.5D3,1.5 D3,1 2,+.5,NAN,4HAB,D,,0H,;", 1)});
  EXPECT_EQ(r.integer(), 126);
  EXPECT_EQ(r.codes(), present);
  EXPECT_EQ(r.integer(), 12);
  EXPECT_EQ(r.codes(), present);
  EXPECT_EQ(r.integer(), 0); // defaulted: no code at all
  EXPECT_EQ(r.codes(), nothing);
  EXPECT_FALSE(r.stream.error());
  EXPECT_EQ(r.integer(), -3);
  EXPECT_TRUE(r.stream.error());
  EXPECT_EQ(r.real(), 1500.0); // the fast way reads a D exponent too
  EXPECT_EQ(r.codes(), present);
  EXPECT_EQ(r.real(), 1500.0);
  EXPECT_EQ(r.codes(), (Codes{igsIOValuePresent, igsIOEmbeddedBlank}));
  EXPECT_EQ(r.integer(), 12);
  EXPECT_EQ(r.codes(), (Codes{igsIOValuePresent, igsIOEmbeddedBlank}));
  EXPECT_EQ(r.real(), 0.5);
  EXPECT_EQ(r.codes(), present);
  EXPECT_TRUE(std::isnan(r.real()));
  EXPECT_EQ(r.codes(), (Codes{igsIONotANumber, igsIOValuePresent}));
  EXPECT_TRUE(r.stream.error_type(igsIONotANumber));
  EXPECT_EQ(r.holerith(), "AB,D");
  EXPECT_EQ(r.codes(), present);
  EXPECT_EQ(r.holerith(), "");
  EXPECT_EQ(r.codes(), nothing);
  EXPECT_EQ(r.holerith(), ""); // "0H"
  EXPECT_EQ(r.codes(), present);
  // The record delimiter stops the buffer behind it.
  EXPECT_EQ(r.integer(), 0);
  EXPECT_TRUE(r.stream.frozen());
  // Codes are stamped with where the cursor stands.
  EXPECT_EQ(describe(r.stream.errors()), std::vector<std::string>{});
  EXPECT_EQ(r.column(), 48);
}

TEST(igsInStream, FrozenRecordGivesDefaultsUntilReset) {
  Reader r({record('P', 1, "1,2;9,", 1), record('P', 2, "3;", 1), record('P', 3, "4;", 5)});
  EXPECT_EQ(r.integer(), 1);
  EXPECT_EQ(r.integer(), 2);
  EXPECT_EQ(r.codes(), present);
  EXPECT_TRUE(r.stream.frozen());
  int column = r.column();
  EXPECT_EQ(column, 4);
  EXPECT_EQ(r.integer(), 0);
  EXPECT_EQ(r.real(), 0.0);
  EXPECT_EQ(r.holerith(), "");
  utString s("x");
  r.stream.read_string(3, s);
  EXPECT_EQ(s, "");
  EXPECT_EQ(r.codes(), nothing);
  EXPECT_EQ(r.column(), column);
  // The stop came in mid-line: reset drops the rest of it ("9,") and reads on.
  EXPECT_TRUE(r.stream.reset());
  EXPECT_EQ(r.line(), 2);
  EXPECT_EQ(r.integer(), 3);
  // A new entity stops the buffer at its first column; reset makes that line readable.
  EXPECT_TRUE(r.stream.reset());
  EXPECT_EQ(r.line(), 3);
  EXPECT_EQ(r.column(), 0);
  EXPECT_EQ(r.stream.backpointer(), 5);
  EXPECT_EQ(r.integer(), 4);
  // The end of input: defaults for ever, and reset refuses.
  EXPECT_FALSE(r.stream.reset());
  EXPECT_TRUE(r.stream.fatal_error());
  EXPECT_EQ(r.integer(), 0);
  EXPECT_TRUE(r.stream.error_type(igsIOEndOfFile));
  EXPECT_TRUE(r.stream.error_type(igsIOStreamFailed));
}

TEST(igsInStream, RecordDelimiterInTheLastDataColumn) {
  // The step past the ";" fetches the next line; the stop lands on its first column, and reset
  // does not skip it.
  Reader r({record('P', 1, blanks(60) + "123;", 1), record('P', 2, "7,8;", 1)});
  EXPECT_EQ(r.integer(), 123);
  EXPECT_TRUE(r.stream.frozen());
  EXPECT_EQ(r.line(), 2);
  EXPECT_EQ(r.column(), 0);
  EXPECT_EQ(r.integer(), 0);
  EXPECT_TRUE(r.stream.reset());
  EXPECT_EQ(r.line(), 2);
  EXPECT_EQ(r.integer(), 7);
  EXPECT_EQ(r.integer(), 8);
  // A defaulted field right before the record delimiter.
  Reader d({record('P', 1, "1,;", 1)});
  EXPECT_EQ(d.integer(), 1);
  EXPECT_EQ(d.codes(), present);
  EXPECT_EQ(d.integer(), 0);
  EXPECT_EQ(d.codes(), nothing);
  EXPECT_TRUE(d.stream.frozen());
}

TEST(igsInStream, ValuesAcrossParameterLineEnds) {
  Reader r({record('P', 1, "1," + blanks(40), 1), record('P', 2, blanks(10) + "2,", 1),
            record('P', 3, blanks(60) + "1.25", 1), record('P', 4, ",3.5,", 1),
            record('P', 5, blanks(62) + "12", 1), record('P', 6, "34,", 1),
            record('P', 7, blanks(56) + "10HABCDE", 1), record('P', 8, "FGHIJ,;", 1)});
  EXPECT_EQ(r.integer(), 1);
  EXPECT_EQ(r.integer(), 2); // blank lines and columns are crossed
  EXPECT_EQ(r.line(), 2);
  EXPECT_EQ(r.codes(), present);
  EXPECT_EQ(r.real(), 1.25); // the delimiter on the next line: the slow way, with no code
  EXPECT_EQ(r.codes(), present);
  EXPECT_EQ(r.real(), 3.5);
  EXPECT_EQ(r.codes(), present);
  EXPECT_EQ(r.integer(), 1234); // in the Parameter section a split value joins silently
  EXPECT_EQ(r.codes(), present);
  EXPECT_EQ(r.holerith(), "ABCDEFGHIJ");
  EXPECT_EQ(r.codes(), present);
  EXPECT_EQ(r.line(), 8);
  EXPECT_EQ(r.integer(), 0);
  EXPECT_TRUE(r.stream.frozen());
}

TEST(igsInStream, ValuesAcrossGlobalLineEnds) {
  // In the Global section the state machine sees the line end.
  Reader r({record('G', 1, blanks(70) + "12"), record('G', 2, "34,1" + blanks(67) + "5"),
            record('G', 3, "6,3HAB" + blanks(66)), record('G', 4, "C,2H", 0)});
  EXPECT_EQ(r.integer(), 1234);
  EXPECT_EQ(r.codes(), (Codes{igsIOValuePresent, igsIOSplitValue}));
  EXPECT_EQ(r.integer(), 156);
  EXPECT_EQ(r.codes(), (Codes{igsIOValuePresent, igsIOEmbeddedBlank, igsIOSplitValue}));
  // A Hollerith body runs on over the line end; the blanks of the data columns belong to it.
  EXPECT_EQ(r.holerith(), "AB ");
  EXPECT_EQ(r.codes(), present);
  // A body cut short by the end of input.
  // A body that the end of input cuts short keeps the blanks of the data columns, less the
  // doubled ones that make it too long.
  Reader e({record('G', 1, "5HAB")});
  EXPECT_EQ(e.holerith(), "AB   ");
}

TEST(igsInStream, FixedWidthFields) {
  Reader r({record('D', 1, "       55       " + blanks(8) + "  1 2   ABC     " + blanks(8)),
            record('S', 2, "start text")});
  int v = -1;
  r.stream.read_integer(8, v); // right-justified: the fast way
  EXPECT_EQ(v, 5);
  EXPECT_EQ(r.column(), 8);
  r.stream.read_integer(8, v); // left-justified: the slow way
  EXPECT_EQ(v, 5);
  EXPECT_EQ(r.codes(), present);
  r.stream.read_integer(8, v);
  EXPECT_EQ(v, 0);
  EXPECT_EQ(r.codes(), nothing);
  r.stream.read_integer(8, v);
  EXPECT_EQ(v, 12);
  EXPECT_EQ(r.codes(), (Codes{igsIOValuePresent, igsIOEmbeddedBlank}));
  utString s;
  r.stream.read_string(8, s);
  EXPECT_EQ(s, "ABC     ");
  r.stream.read_string(8, s);
  EXPECT_EQ(s.view(), blanks(8));
  EXPECT_EQ(r.codes(), present);
  EXPECT_EQ(r.column(), 48);
  // Wider than what is left of the line: the field ends with the line, and the cursor stays.
  r.stream.read_string(100, s);
  EXPECT_EQ(s, "D      1");
  EXPECT_EQ(r.column(), 48);
  r.stream.skip_line();
  EXPECT_TRUE(r.stream.reset());
  r.stream.read_string(72, s); // a whole Start line, and on to the next
  EXPECT_EQ(s.view(), "start text" + blanks(62));
  EXPECT_TRUE(r.stream.fatal_error());
}

TEST(igsInStream, OtherDelimiters) {
  Reader r({record('P', 1, "1|2.5D1|3HA,B|,|4#9|", 1), record('P', 2, "7;8,", 1)});
  r.stream.set_param_delimiter('|');
  r.stream.set_record_delimiter('#');
  EXPECT_EQ(r.integer(), 1);
  EXPECT_EQ(r.real(), 25.0);
  EXPECT_EQ(r.holerith(), "A,B");
  // Uncollected codes stand in each decoder: one from each of the three reads.
  EXPECT_EQ(r.codes(), Codes(3, igsIOValuePresent));
  EXPECT_EQ(r.integer(), 0); // "," is no delimiter now: the field holds a bad value
  EXPECT_EQ(r.codes(), (Codes{igsIOValuePresent, igsIOBadValue}));
  EXPECT_EQ(r.integer(), 4);
  EXPECT_TRUE(r.stream.frozen());
  EXPECT_TRUE(r.stream.reset());
  // The delimiters of a file that swapped them.
  r.stream.set_param_delimiter(';');
  r.stream.set_record_delimiter(',');
  EXPECT_EQ(r.integer(), 7);
  EXPECT_FALSE(r.stream.frozen());
  EXPECT_EQ(r.integer(), 8);
  EXPECT_TRUE(r.stream.frozen());
}

TEST(igsInStream, DamagedFieldsAreReported) {
  Reader r({record('P', 1, "1 0,ABC,X1.5,99999999999,-99999999999,2HABC,5HAB,D,7,0HX,8;", 1)});
  EXPECT_EQ(r.integer(), 10);
  EXPECT_EQ(r.codes(), (Codes{igsIOValuePresent, igsIOEmbeddedBlank}));
  EXPECT_EQ(r.integer(), 0);
  EXPECT_EQ(r.codes(), (Codes{igsIOValuePresent, igsIOBadValue}));
  EXPECT_EQ(r.real(), 0.0); // "X1.5"
  EXPECT_EQ(r.codes(), (Codes{igsIOValuePresent, igsIOBadValue}));
  EXPECT_EQ(r.integer(), 2147483647);
  EXPECT_EQ(r.integer(), -2147483647 - 1);
  EXPECT_EQ(r.codes(), present);
  EXPECT_EQ(r.holerith(), "AB");    // longer than declared
  EXPECT_EQ(r.holerith(), "AB,D,"); // shorter: the delimiters behind it are taken in
  EXPECT_EQ(r.holerith(), "");
  EXPECT_EQ(r.codes(), (Codes{igsIOValuePresent, igsIOBadValue}));
  // The bad character is left where it stood: the next field starts with it, and text with
  // no count in front of an "H" is taken as it is.
  EXPECT_EQ(r.holerith(), "X");
  EXPECT_EQ(r.codes(), (Codes{igsIOValuePresent}));
  EXPECT_EQ(r.integer(), 8);
}

TEST(igsInStream, CodesStandUntilCollectedAndCarryTheirLocation) {
  // A blank line and a NUL between the two Global lines.
  std::string g2 = record('G', 2, "1 2,3;");
  g2[30] = '\0';
  Reader r({record('G', 1, "1H,,1H;,4Htest,"), "", g2});
  EXPECT_EQ(r.holerith(), ",");
  EXPECT_EQ(r.holerith(), ";");
  EXPECT_EQ(r.holerith(), "test");
  EXPECT_EQ(r.integer(), 12);
  // Collected after the fourth read: the line codes of the fetch, the integer's codes, then
  // the code that the Hollerith reads left; all where the cursor stands now.
  std::vector<std::string> expected = {"igsIOBlankLine@G2:4", "igsIONullCharacter@G2:4",
                                       "igsIOValuePresent@G2:4", "igsIOEmbeddedBlank@G2:4",
                                       "igsIOValuePresent@G2:4"};
  EXPECT_EQ(describe(r.stream.errors()), expected);
  EXPECT_TRUE(r.stream.error_type(igsIOBlankLine));
  EXPECT_FALSE(r.stream.error_type(igsIOSplitValue));
  EXPECT_EQ(r.integer(), 3);
  EXPECT_EQ(describe(r.stream.errors()), std::vector<std::string>{"igsIOValuePresent@G2:6"});
}

} // namespace
