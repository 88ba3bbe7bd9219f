#include "outputTestSupport.h"

#include <gtest/gtest.h>

using namespace igs_output_test;

namespace {

std::string A(int n) {
  return repeat('A', n);
}

// 0123456789012... : a body whose every column can be told apart.
std::string digits(int n) {
  std::string s;
  for (int i = 0; i < n; ++i) s += static_cast<char>('0' + i % 10);
  return s;
}

// One call on the stream: a section letter sets the section; i, r and h write an integer, a
// real and a Hollerith string; f writes a fixed-width integer and s a fixed-width string of
// `width` columns; b ends a record with its back pointer; d sets the two delimiters; + pushes
// a real format of `width` digits and - pops one.
struct Op {
  char kind;
  std::string text = "";
  double number = 0;
  int width = 0;
};

void run(igsOutStream& s, Op const& op) {
  int const n = static_cast<int>(op.number);
  switch (op.kind) {
  case 'i': return s.write_integer(n);
  case 'r': return s.write_double(op.number);
  case 'h': return s.write_holerith(op.text.c_str());
  case 'f': return s.write_integer(op.width, n);
  case 's': return s.write_string(op.width, op.text.c_str());
  case 'b': return s.set_backpointer(n);
  case 'd': return s.set_delimiters(op.text.substr(0, 1).c_str(), op.text.substr(1).c_str());
  case '+': return s.push_double_format(20, op.width);
  case '-': return s.pop_double_format();
  default: s.set_section(static_cast<igsFileSection>(std::string("SGDPT").find(op.kind)));
  }
}

struct LayoutCase {
  char const* what;
  std::vector<Op> ops;
  Lines expected;
};

std::vector<LayoutCase> const layout_cases = {
    {"a number that would end in column 64 moves whole, with its delimiter's column",
     {{'P'}, {'h', A(57)}, {'i', "", 123}, {'b', "", 3}},
     {record('P', 1, "57H" + A(57) + ",", 1), record('P', 2, "123;", 1)}},
    {"a number ending in column 63 stays, and its record delimiter takes column 64",
     {{'P'}, {'h', A(57)}, {'i', "", 12}, {'b', "", 3}},
     {record('P', 1, "57H" + A(57) + ",12;", 1)}},
    {"a delimiter in the last data column finishes the line",
     {{'P'}, {'h', A(60)}, {'i', "", 7}, {'b', "", 3}},
     {record('P', 1, "60H" + A(60) + ",", 1), record('P', 2, "7;", 1)}},
    {"a Hollerith body runs on over the line end with no gap",
     {{'P'}, {'i', "", 1}, {'h', digits(100)}, {'b', "", 3}},
     {record('P', 1, "1,100H" + digits(100).substr(0, 58), 1),
      record('P', 2, digits(100).substr(58) + ";", 1)}},
    {"an nH prefix that does not fit moves to the next line with its body",
     {{'P'}, {'h', A(59)}, {'h', "ABCDE"}, {'b', "", 3}},
     {record('P', 1, "59H" + A(59) + ",", 1), record('P', 2, "5HABCDE;", 1)}},
    {"a record delimiter behind a field that ends in the last data column",
     {{'P'}, {'h', A(61)}, {'b', "", 3}},
     {record('P', 1, "61H" + A(61), 1), record('P', 2, ";", 1)}},
    {"sequence numbers run on over records, each line with its record's back pointer",
     {{'P'}, {'i', "", 110}, {'r', "", 0.0}, {'r', "", 1.5}, {'b', "", 3}, {'i', "", 116},
      {'b', "", 5}, {'i', "", 126}, {'h', A(56)}, {'r', "", 1.25}, {'b', "", 7}},
     {record('P', 1, "110,0.,1.5;", 1), record('P', 2, "116;", 3),
      record('P', 3, "126,56H" + A(56) + ",", 5), record('P', 4, "1.25;", 5)}},
    {"other delimiters",
     {{'P'}, {'d', "|#"}, {'i', "", 1}, {'r', "", 2.5}, {'h', "A,B"}, {'b', "", 3},
      {'r', "", -1e-20}, {'b', "", 5}},
     {record('P', 1, "1|2.5|3HA,B#", 1), record('P', 2, "-1.D-20#", 3)}},
    {"a format pushed for parametric values, and one pop too many changes nothing",
     {{'P'}, {'r', "", 3.14159265358979}, {'+', "", 0, 9}, {'r', "", -3.14159265358979e-10},
      {'-'}, {'-'}, {'r', "", 1.0 / 3.0}, {'b', "", 3}},
     {record('P', 1, "3.14159265358979,-3.14159265D-10,0.333333333333333;", 1)}},
    {"an empty Global field is 0H, and leaving the section ends its record",
     {{'G'}, {'h', ","}, {'h', ";"}, {'h', ""}, {'i', "", 5}, {'r', "", 1e20}, {'D'}},
     {record('G', 1, "1H,,1H;,0H,5,1.D+20;")}},
    {"a Global record delimiter in column 1 behind a full line",
     {{'G'}, {'h', A(69)}, {'T'}},
     {record('G', 1, "69H" + A(69)), record('G', 2, ";")}},
    {"changing the section with nothing written sends no line but a record delimiter",
     {{'S'}, {'D'}, {'P'}, {'b', "", 3}, {'T'}, {'S'}},
     {record('P', 1, ";", 1)}},
    // The caller's limit of a fixed field: a longer text starts with the field.
    {"fixed fields stand right-justified and a full line finishes itself",
     {{'D'}, {'f', "", 5, 8}, {'f', "", -12, 8}, {'s', "AB", 0, 8}, {'s', "", 0, 48},
      {'f', "", 1234567, 8}, {'s', "TOOLONG", 0, 3}},
     {record('D', 1, "       5     -12      AB"), record('D', 2, " 1234567TOOLONG")}},
    {"a started line goes out when the stream is destroyed",
     {{'S'}, {'s', "ab", 0, 4}},
     {record('S', 1, "  ab")}},
    {"lines before any section are all data", {{'s', "X", 0, 80}, {'G'}}, {repeat(' ', 79) + "X"}},
};

TEST(igsOutStream, LaysFieldsIntoLines) {
  for (auto const& c : layout_cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(written([&](igsOutStream& s) {
                for (Op const& op : c.ops) run(s, op);
              }),
              c.expected);
  }
}

TEST(igsOutStream, FailingStreamFreezesUntilCollectedAndReset) {
  FailingBuf failing(2 * 81 + 10);
  std::ostream out(&failing);
  std::ostringstream good; // the destination taken later, which must outlive the stream
  igsOutStream s(&out);
  s.set_section(igsSectionParameter);
  for (int i = 0; i < 40; ++i) s.write_integer(1000 + i); // 40 fields of 5: four lines
  EXPECT_TRUE(s.frozen());
  EXPECT_TRUE(out.bad());
  EXPECT_EQ(failing.text().size(), 2u * 81 + 10);
  // The codes stand, and reset refuses until they are collected.
  EXPECT_EQ(s.reset(), 0);
  igsFileSection section;
  int line = 0;
  int column = -1;
  s.position(section, line, column);
  EXPECT_EQ(line, 3); // the line that failed
  EXPECT_EQ(column, 0);
  EXPECT_EQ(describe_codes(s), (Lines{"igsIOStreamBad@P3:0", "igsIOStreamFailed@P3:0"}));
  EXPECT_TRUE(s.error_type(igsIOStreamBad));
  EXPECT_FALSE(s.error_type(igsIOLineNumberTooLarge));
  // Frozen, a write goes nowhere and the cursor stays.
  s.write_integer(5);
  s.position(section, line, column);
  EXPECT_EQ(column, 0);
  EXPECT_FALSE(s.error()); // the write cleared what was collected; nothing new
  EXPECT_EQ(s.reset(), 1);
  EXPECT_FALSE(s.frozen());
  // The stream is still bad: the next line fails again.
  for (int i = 0; i < 13; ++i) s.write_integer(2000 + i);
  EXPECT_TRUE(s.frozen());
  EXPECT_TRUE(s.error_type(igsIOStreamFailed));
  // A new destination takes the lines from there on; the numbers and the record run on.
  s.set_destination(&good);
  EXPECT_EQ(s.reset(), 1);
  s.write_integer(7);
  s.set_backpointer(3);
  EXPECT_FALSE(s.error());
  EXPECT_EQ(lines_of(good.str()), Lines{record('P', 5, ",7;", 1)});
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

TEST(igsOutStream, BackPointerLimit) {
  std::ostringstream out;
  igsOutStream s(&out);
  s.set_section(igsSectionParameter);
  s.write_integer(1);
  s.set_backpointer(9999999);
  s.write_integer(2);
  s.set_backpointer(10000000);
  EXPECT_FALSE(s.error());
  s.write_integer(3);
  s.set_backpointer(10000002); // the line of back pointer 10000000 goes out without its tail
  EXPECT_TRUE(s.frozen());
  s.write_integer(4);
  s.set_backpointer(10000004);
  EXPECT_EQ(codes_of_stream(s), (Codes{igsIOBackpointerTooLarge}));
  EXPECT_EQ(lines_of(out.str()), (Lines{record('P', 1, "1;", 1), record('P', 2, "2;", 9999999),
                                        "3;" + repeat(' ', 78)}));
  // Fatal for good: reset refuses and the code stays.
  EXPECT_EQ(s.reset(), 0);
  s.write_integer(5);
  EXPECT_TRUE(s.error_type(igsIOBackpointerTooLarge));
  EXPECT_EQ(s.num_lines(igsSectionParameter), 3);
  // A back pointer too small for its columns cannot be written either.
  std::ostringstream low;
  igsOutStream t(&low);
  t.set_section(igsSectionParameter);
  t.write_integer(1);
  t.set_backpointer(-1000000);
  t.write_integer(2);
  t.set_backpointer(3);
  EXPECT_TRUE(t.error_type(igsIOBackpointerTooLarge));
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
