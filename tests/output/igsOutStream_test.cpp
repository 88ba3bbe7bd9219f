#include "outputTestSupport.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace igs_output_test;

namespace {

// Runs calls on the stream, one a word: a section letter sets the section; i, r and b write an
// integer, a real and a back pointer that ends the record; h writes a Hollerith string (X*n is
// n times X); fW:N and sW:TEXT write a fixed-width integer and string of W columns; d sets the
// two delimiters; +N pushes a real format of N digits and - pops one.
void run(igsOutStream& s, std::string const& calls) {
  std::istringstream words(calls);
  for (std::string w; words >> w;) {
    std::string arg = w.substr(1);
    if (size_t star = arg.find('*'); w[0] == 'h' && star != std::string::npos)
      arg = repeat(arg[0], std::stoi(arg.substr(star + 1)));
    size_t colon = arg.find(':');
    std::string after = colon == std::string::npos ? "" : arg.substr(colon + 1);
    if (w[0] == 'i') {
      s.write_integer(std::stoi(arg));
    } else if (w[0] == 'b') {
      s.set_backpointer(std::stoi(arg));
    } else if (w[0] == '+') {
      s.push_double_format(20, std::stoi(arg));
    } else if (w[0] == 'r') {
      s.write_double(std::stod(arg));
    } else if (w[0] == 'h') {
      s.write_holerith(arg.c_str());
    } else if (w[0] == 'f') {
      s.write_integer(std::stoi(arg), std::stoi(after));
    } else if (w[0] == 's') {
      s.write_string(std::stoi(arg), after.c_str());
    } else if (w[0] == 'd') {
      s.set_delimiters(arg.substr(0, 1).c_str(), arg.substr(1).c_str());
    } else if (w[0] == '-') {
      s.pop_double_format();
    } else {
      s.set_section(static_cast<igsFileSection>(std::string("SGDPT").find(w[0])));
    }
  }
}

struct LayoutCase {
  char const* what;
  std::string calls;
  Lines expected;
};

std::string const A57 = repeat('A', 57);
std::string const digits100 = [] {
  std::string s; // 0123456789012... : a body whose every column can be told apart
  for (int i = 0; i < 100; ++i) s += static_cast<char>('0' + i % 10);
  return s;
}();

std::vector<LayoutCase> const layout_cases = {
    {"a number that would end in column 64 moves whole, with its delimiter's column",
     "P hA*57 i123 b3",
     {record('P', 1, "57H" + A57 + ",", 1), record('P', 2, "123;", 1)}},
    {"a number ending in column 63 stays, and its record delimiter takes column 64",
     "P hA*57 i12 b3",
     {record('P', 1, "57H" + A57 + ",12;", 1)}},
    {"a delimiter in the last data column finishes the line",
     "P hA*60 i7 b3",
     {record('P', 1, "60H" + repeat('A', 60) + ",", 1), record('P', 2, "7;", 1)}},
    {"a Hollerith body runs on over the line end with no gap",
     "P i1 h" + digits100 + " b3",
     {record('P', 1, "1,100H" + digits100.substr(0, 58), 1),
      record('P', 2, digits100.substr(58) + ";", 1)}},
    {"an nH prefix that does not fit moves to the next line with its body",
     "P hA*59 hABCDE b3",
     {record('P', 1, "59H" + repeat('A', 59) + ",", 1), record('P', 2, "5HABCDE;", 1)}},
    {"a record delimiter behind a field that ends in the last data column",
     "P hA*61 b3",
     {record('P', 1, "61H" + repeat('A', 61), 1), record('P', 2, ";", 1)}},
    {"sequence numbers run on over records, each line with its record's back pointer",
     "P i110 r0 r1.5 b3 i116 b5 i126 hA*56 r1.25 b7",
     {record('P', 1, "110,0.,1.5;", 1), record('P', 2, "116;", 3),
      record('P', 3, "126,56H" + repeat('A', 56) + ",", 5), record('P', 4, "1.25;", 5)}},
    {"other delimiters",
     "P d|# i1 r2.5 hA,B b3 r-1e-20 b5",
     {record('P', 1, "1|2.5|3HA,B#", 1), record('P', 2, "-1.D-20#", 3)}},
    {"a format pushed for parametric values, and one pop too many changes nothing",
     "P r3.14159265358979 +9 r-3.14159265358979e-10 - - r0.333333333333333 b3",
     {record('P', 1, "3.14159265358979,-3.14159265D-10,0.333333333333333;", 1)}},
    {"an empty Global field is 0H, and leaving the section ends its record",
     "G h, h; h i5 r1e20 D",
     {record('G', 1, "1H,,1H;,0H,5,1.D+20;")}},
    {"a Global record delimiter in column 1 behind a full line",
     "G hA*69 T",
     {record('G', 1, "69H" + repeat('A', 69)), record('G', 2, ";")}},
    {"changing the section with nothing written sends no line but a record delimiter",
     "S D P b3 T S",
     {record('P', 1, ";", 1)}},
    // The caller's limit of a fixed field: a longer text starts with the field.
    {"fixed fields stand right-justified and a full line finishes itself",
     "D f8:5 f8:-12 s8:AB s48: f8:1234567 s3:TOOLONG",
     {record('D', 1, "       5     -12      AB"), record('D', 2, " 1234567TOOLONG")}},
    {"a started line goes out when the stream is destroyed", "S s4:ab", {record('S', 1, "  ab")}},
    {"lines before any section are all data", "s80:X G", {repeat(' ', 79) + "X"}},
};

TEST(igsOutStream, LaysFieldsIntoLines) {
  for (auto const& c : layout_cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(written([&](igsOutStream& s) { run(s, c.calls); }), c.expected);
  }
}

TEST(igsOutStream, StreamsThatFailOtherwise) {
  {
    // A stream told to throw for its bad bit does not throw: only the codes tell.
    FailingBuf failing(0);
    std::ostream out(&failing);
    out.exceptions(std::ios::badbit | std::ios::failbit);
    igsOutStream s(&out);
    s.set_section(igsSectionStart);
    EXPECT_NO_THROW(s.write_string(72, "x"));
    EXPECT_EQ(out.rdstate(), std::ios::goodbit);
    EXPECT_TRUE(s.error_type(igsIOStreamBad) && s.error_type(igsIOStreamFailed));
  }
  {
    // A stream that failed before takes nothing.
    std::ostringstream out;
    out.setstate(std::ios::failbit);
    igsOutStream s(&out);
    s.set_section(igsSectionStart);
    s.write_string(72, "x");
    EXPECT_EQ(codes_of_stream(s), (Codes{igsIOStreamFailed}));
    EXPECT_TRUE(out.str().empty());
  }
  {
    // No destination at all counts as a bad stream.
    igsOutStream s(nullptr);
    s.set_section(igsSectionStart);
    s.write_string(72, "x");
    EXPECT_EQ(codes_of_stream(s), (Codes{igsIOStreamBad, igsIOStreamFailed}));
    EXPECT_TRUE(s.frozen());
  }
  {
    // A flush that fails when the destination changes is reported too.
    FailingBuf failing(1000, true);
    std::ostream out(&failing);
    std::ostringstream other;
    igsOutStream s(&out);
    s.set_section(igsSectionStart);
    s.write_string(72, "x");
    s.set_destination(&other);
    EXPECT_EQ(failing.text().size(), 81u);
    EXPECT_EQ(codes_of_stream(s), (Codes{igsIOStreamBad, igsIOStreamFailed}));
    EXPECT_TRUE(out.bad());
  }
}

TEST(igsOutBuffer, LineNumberLimit) {
  TailBuf tail;
  std::ostream out(&tail);
  igsOutBuffer buffer(&out);
  buffer.set_section(igsSectionDirectory);
  for (int i = 0; i < 9999999; ++i) buffer += 72;
  EXPECT_EQ(tail.last(), record('D', 9999999, "") + "\n");
  EXPECT_FALSE(buffer.frozen());
  buffer.append("X", 1);
  buffer += 71;
  // Line 10000000 goes out with its tail blank, and the buffer stops for good.
  EXPECT_EQ(tail.last(), "X" + repeat(' ', 79) + "\n");
  EXPECT_TRUE(buffer.frozen());
  long long bytes = tail.bytes();
  buffer.append("Y", 1);
  buffer += 200;
  buffer.set_section(igsSectionParameter);
  EXPECT_EQ(tail.bytes(), bytes);
  igsIOErrorcoDynArr errors;
  buffer.collect_errors(errors);
  EXPECT_EQ(igs_input_test::codes_of(errors), (Codes{igsIOLineNumberTooLarge}));
  EXPECT_EQ(buffer.reset(), 0);
  errors.shrink(0);
  buffer.collect_errors(errors);
  EXPECT_EQ(igs_input_test::codes_of(errors), (Codes{igsIOLineNumberTooLarge}));
  EXPECT_EQ(buffer.num_lines(igsSectionDirectory), 10000000);
}

} // namespace
