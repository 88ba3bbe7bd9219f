#include "inputTestSupport.h"

#include "support/kvnabs.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace igs_input_test;

namespace {

using Codes = std::vector<igsIOErrorCode>;
Codes const none;
Codes const end_of_input = {igsIOEndOfFile, igsIOStreamFailed};

// Catches the line-level warnings that go to the process-wide error sink.
struct WarningCatcher {
  WarningCatcher() { get_igs_stream().set_error_stream(&sink); }
  ~WarningCatcher() { get_igs_stream().set_error_stream(nullptr); }
  kvnabsStringOutput sink;
};

std::string const missing_point_warning =
    "Warning: This file is corrupt - it contains lines missing a decimal point at the start.\n"
    "A decimal point will be inserted at the start of such lines.\n";
std::string const double_point_warning =
    "Warning: This file is corrupt - it contains lines starting with two decimal points.\n"
    "One of the decimal points will be removed from such lines.\n ";

std::string repeat(char c, int n) {
  return std::string(static_cast<size_t>(n), c);
}

TEST(igsInBufferFiller, EveryLineEndGivesTheSameRecords) {
  auto lines = sound_file();
  FillerRun lf = fill(join(lines, "\n"));
  EXPECT_EQ(lf.lines, lines);
  EXPECT_EQ(lf.end_codes, end_of_input);
  for (auto const& c : lf.codes) EXPECT_EQ(c, none);

  EXPECT_EQ(fill(join(lines, "\r\n")).lines, lines);
  EXPECT_EQ(fill(join(lines, "\r")).lines, lines);
  // No line ends at all: the bytes fall into 80-column records.
  FillerRun run_on = fill(join(lines, ""));
  EXPECT_EQ(run_on.lines, lines);
  EXPECT_EQ(run_on.end_codes, end_of_input);
  // No line end behind the last record.
  std::string last_open = join(lines);
  last_open.pop_back();
  EXPECT_EQ(fill(last_open).lines, lines);
}

TEST(igsInBufferFiller, ShortAndOverlongLinesComeOutAsEightyColumns) {
  std::string s1 = record('S', 1, "");
  // Trailing blanks cut away, down to the letter and the number.
  EXPECT_EQ(fill("S1\n").lines, std::vector<std::string>{s1});
  EXPECT_EQ(fill("S      1\n").lines, std::vector<std::string>{s1});
  // Blanks behind column 80.
  EXPECT_EQ(fill(s1 + "      \n").lines, std::vector<std::string>{s1});
  // A Parameter line whose data ran out early keeps its back pointer in place.
  EXPECT_EQ(fill("1,2;      7P      3\n").lines,
            std::vector<std::string>{record('P', 3, "1,2;", 7)});
  // More than seven digits: those in front are lost.
  EXPECT_EQ(fill("S123456789\n").lines, std::vector<std::string>{record('S', 3456789, "")});
}

TEST(igsInBufferFiller, TabsBecomeBlanksAndNulBytesAreReported) {
  std::string s1 = record('S', 1, "one two");
  std::string tabbed = s1;
  tabbed[3] = '\t';
  FillerRun run = fill(tabbed + "\n");
  EXPECT_EQ(run.lines, std::vector<std::string>{s1});
  EXPECT_EQ(run.codes[0], none); // tabs are repaired silently

  std::string with_nul = s1;
  with_nul[3] = '\0';
  with_nul[75] = '\0'; // inside the sequence field
  run = fill(with_nul + "\n" + record('S', 2, "") + "\n");
  std::string repaired = s1;
  EXPECT_EQ(run.lines[0], repaired);
  EXPECT_EQ(run.codes[0], Codes{igsIONullCharacter});
  EXPECT_EQ(run.codes[1], none);

  // A tab in the sequence field.
  EXPECT_EQ(fill("S\t1\n").lines, std::vector<std::string>{record('S', 1, "")});
}

TEST(igsInBufferFiller, OtherControlBytesStayButWhiteSpaceCountsAsBlank) {
  // A form feed and a vertical tab make a line of white space: it is dropped.
  FillerRun run = fill(record('S', 1, "") + "\n\f\v \n" + record('S', 2, "") + "\n");
  ASSERT_EQ(run.lines.size(), 2u);
  EXPECT_EQ(run.codes[1], Codes{igsIOBlankLine});
  // Other control bytes are data: a ^Z behind the last record is a fragment of its own,
  // handed on with the break marker that waited for more text turned into a blank.
  run = fill(record('T', 1, "") + "\n\x1a");
  EXPECT_EQ(run.lines, (std::vector<std::string>{record('T', 1, ""), "\x1a "}));
  EXPECT_EQ(run.end_codes, end_of_input);
  // A control byte inside the data stays as it is.
  std::string bell = record('S', 1, "a\x07z");
  EXPECT_EQ(fill(bell + "\n").lines, std::vector<std::string>{bell});
}

TEST(igsInBufferFiller, BlankLinesAreDroppedAndReported) {
  std::string s1 = record('S', 1, "x");
  std::string s2 = record('S', 2, "y");
  FillerRun run = fill(s1 + "\n\n   \n" + s2 + "\n");
  EXPECT_EQ(run.lines, (std::vector<std::string>{s1, s2}));
  EXPECT_EQ(run.codes[1], Codes{igsIOBlankLine});
  // A blank line at the start of the file.
  run = fill("\r\n" + s1 + "\r\n");
  EXPECT_EQ(run.lines, std::vector<std::string>{s1});
  EXPECT_EQ(run.codes[0], Codes{igsIOBlankLine});
  // One empty line behind the last record is the end of input; two make a blank line.
  EXPECT_EQ(fill(s1 + "\n\n").end_codes, end_of_input);
  EXPECT_EQ(fill(s1 + "\n\n\n").end_codes,
            (Codes{igsIOBlankLine, igsIOEndOfFile, igsIOStreamFailed}));
}

TEST(igsInBufferFiller, FoldedRecordsAreJoinedBehindABreakMarker) {
  std::string d1 =
      record('D', 1, "     110       1       0       0       0       0       0       000000000");
  ASSERT_EQ(d1[40], ' ');
  // The blank at the fold was lost: the marker stands in for it and the record is exact.
  FillerRun run = fill(d1.substr(0, 40) + "\n" + d1.substr(41) + "\n");
  EXPECT_EQ(run.lines, std::vector<std::string>{d1});
  EXPECT_EQ(run.codes[0], none);
  // Nothing was lost: the record comes back one column wider, with a blank at the fold.
  run = fill(d1.substr(0, 40) + "\n" + d1.substr(40) + "\n");
  EXPECT_EQ(run.lines, std::vector<std::string>{d1.substr(0, 40) + " " + d1.substr(40)});
  // A record in three pieces.
  run = fill(d1.substr(0, 20) + "\n" + d1.substr(21, 20) + "\n" + d1.substr(42) + "\n");
  EXPECT_EQ(run.lines, std::vector<std::string>{d1});
  // Pieces that make a line one column too long: the first marker goes, the others become
  // blanks.
  run = fill(repeat('a', 20) + "\n" + repeat('b', 20) + "\n" + repeat('c', 20) + "\n" +
             repeat('d', 18) + "\n");
  EXPECT_EQ(run.lines, std::vector<std::string>{repeat('a', 20) + repeat('b', 20) + " " +
                                                repeat('c', 20) + " " + repeat('d', 18)});
  // Far too long: every marker goes, and the record is cut at 80 columns.
  run = fill(repeat('a', 30) + "\n" + repeat('b', 30) + "\n" + repeat('c', 50) + "\n");
  ASSERT_EQ(run.lines.size(), 2u);
  EXPECT_EQ(run.lines[0], repeat('a', 30) + repeat('b', 30) + repeat('c', 20));
  EXPECT_EQ(run.lines[1], repeat('c', 30) + " "); // the last fragment, handed on at the end
}

TEST(igsInBufferFiller, OverlongLinesAreCutIntoRecords) {
  // 200 characters that hold no record: two records of 80 columns, and the last 40 wait to
  // be joined to the next physical line with nothing between them.
  FillerRun run = fill(repeat('x', 200) + "\nS      1\n");
  EXPECT_EQ(run.lines, (std::vector<std::string>{repeat('x', 80), repeat('x', 80),
                                                 record('S', 1, repeat('x', 40))}));
  // Two records run together on one physical line.
  std::string s1 = record('S', 1, "first");
  std::string s2 = record('S', 2, "second");
  EXPECT_EQ(fill(s1 + s2 + "\n").lines, (std::vector<std::string>{s1, s2}));
  // Three in a row and a fourth on a line of its own.
  std::string s3 = record('S', 3, "third");
  std::string s4 = record('S', 4, "fourth");
  EXPECT_EQ(fill(s1 + s2 + s3 + "\n" + s4 + "\n").lines,
            (std::vector<std::string>{s1, s2, s3, s4}));
}

TEST(igsInBufferFiller, CarriageReturnInMidLineSplitsIt) {
  // The text between the CR and the LF is joined to the next physical line.
  FillerRun run = fill("S      1\rS      2\nS      3\n");
  EXPECT_EQ(run.lines, (std::vector<std::string>{record('S', 1, ""), record('S', 3, "S      2")}));
  // A CR in a line that is cut into records: the cut-off part keeps its place in front of the
  // text behind the CR, and nothing is lost.
  run = fill(repeat('A', 100) + "\r" + repeat('B', 10) + "\nS      1\n");
  EXPECT_EQ(run.lines, (std::vector<std::string>{
                           repeat('A', 80), record('S', 1, repeat('A', 20) + repeat('B', 10))}));
}

TEST(igsInBufferFiller, LostDecimalPointIsPutBackOnParameterContinuations) {
  WarningCatcher warnings;
  std::string p1 = record('P', 1, "126,1,1,0,0,1,0,0.,0.,1.,1., ", 1);
  std::string p2 = record('P', 2, ".5,0.5,0.,0.,", 1);
  std::string p3 = record('P', 3, ".25,1.,2.,3., ", 1);
  std::string p4 = record('P', 4, ".75,0.,1.;", 1);
  // p2 and p4 lost their first character and follow lines that ended in ", ": both get their
  // point back, and the message is printed once.
  FillerRun run = fill(p1 + "\n" + p2.substr(1) + "\n" + p3 + "\n" + p4.substr(1) + "\n");
  EXPECT_EQ(run.lines, (std::vector<std::string>{p1, p2, p3, p4}));
  EXPECT_EQ(warnings.sink.text(), missing_point_warning);

  // Behind a line whose last delimiter has data behind it the line is only padded.
  warnings.sink.clear();
  std::string p3_full = record('P', 3, ".25,1.,2.,3.,4.", 1);
  run = fill(p3_full + "\n" + p4.substr(1) + "\n");
  EXPECT_EQ(run.lines[1], record('P', 4, "75,0.,1.;", 1));

  // A number with its own point, and a line that is no continuation, stay as they are.
  warnings.sink.clear();
  std::string p2_whole = record('P', 2, "5.0,0.5;", 1);
  run = fill(p1 + "\n" + p2_whole.substr(0, 35) + p2_whole.substr(36) + "\n");
  EXPECT_EQ(run.lines[1], p2_whole);
  run = fill(record('P', 1, "1.;", 1) + "\n" + p2.substr(1) + "\n");
  EXPECT_EQ(run.lines[1], record('P', 2, "5,0.5,0.,0.,", 1));
  EXPECT_EQ(warnings.sink.text(), "");
}

TEST(igsInBufferFiller, DoubledDecimalPointIsRemoved) {
  WarningCatcher warnings;
  std::string p1 = record('P', 1, ".5,1.,", 1);
  std::string p2 = record('P', 2, ".25;", 1);
  FillerRun run = fill("." + p1 + "\n." + p2 + "\n");
  EXPECT_EQ(run.lines, (std::vector<std::string>{p1, p2}));
  EXPECT_EQ(warnings.sink.text(), double_point_warning);
  // A stray character in front of a line just shifts its data.
  run = fill("x" + p1 + "\n");
  EXPECT_EQ(run.lines, std::vector<std::string>{record('P', 1, "x.5,1.,", 1)});
}

TEST(igsInBufferFiller, EndOfInputIsFatalAndStaysRecorded) {
  std::istringstream in(record('S', 1, "") + "\n");
  std::istringstream empty;
  LineHolder holder(empty);
  igsInBufferFiller filler(in);
  EXPECT_TRUE(filler.get(holder));
  EXPECT_FALSE(filler.fatal_error());
  EXPECT_FALSE(filler.get(holder));
  EXPECT_EQ(holder.buffer().size(), 0);
  EXPECT_TRUE(filler.fatal_error());
  EXPECT_FALSE(filler.reset());
  igsIOErrorcoDynArr first;
  filler.collect_errors(first);
  igsIOErrorcoDynArr second;
  filler.collect_errors(second);
  EXPECT_EQ(first.size(), 2);
  EXPECT_EQ(second.size(), 2); // a fatal filler keeps its list
  // The host's stream is left as peek and get would leave it.
  EXPECT_TRUE(in.eof());
  EXPECT_TRUE(in.fail());
  EXPECT_FALSE(in.bad());

  // A stream that is bad from the start.
  std::istringstream broken("S      1\n");
  broken.setstate(std::ios::badbit);
  {
    igsInBufferFiller bad(broken);
    EXPECT_FALSE(bad.get(holder));
    igsIOErrorcoDynArr codes;
    bad.collect_errors(codes);
    ASSERT_EQ(codes.size(), 3);
    EXPECT_EQ(codes[0].error_type(), igsIOEndOfFile);
    EXPECT_EQ(codes[1].error_type(), igsIOStreamBad);
    EXPECT_EQ(codes[2].error_type(), igsIOStreamFailed);
  }
  // A stream that asked for exceptions gets none from the library.
  std::istringstream strict("S      1\n");
  strict.exceptions(std::ios::eofbit | std::ios::failbit);
  igsInBufferFiller quiet(strict);
  EXPECT_TRUE(quiet.get(holder));
  EXPECT_FALSE(quiet.get(holder));
  EXPECT_TRUE(quiet.fatal_error());
}

// A stream buffer without a get area: every byte comes through underflow and uflow.
class TrickleBuf : public std::streambuf {
 public:
  explicit TrickleBuf(std::string text) : m_text(std::move(text)) {}

 protected:
  int_type underflow() override {
    return m_at < m_text.size() ? traits_type::to_int_type(m_text[m_at]) : traits_type::eof();
  }
  int_type uflow() override {
    int_type c = underflow();
    if (c != traits_type::eof()) ++m_at;
    return c;
  }

 private:
  std::string m_text;
  size_t m_at = 0;
};

TEST(igsInBufferFiller, UnbufferedSourceGivesTheSameRecords) {
  std::string s1 = record('S', 1, "first");
  std::string s2 = record('S', 2, "second");
  std::string bytes = s1 + "\r\n" + s2 + s1.substr(0, 3) + "\r\n\r\n" + repeat('q', 170) + "\n";
  TrickleBuf source(bytes);
  std::istream in(&source);
  std::istringstream empty;
  LineHolder holder(empty);
  igsInBufferFiller filler(in);
  std::vector<std::string> lines;
  while (filler.get(holder)) lines.push_back(holder.line());
  EXPECT_EQ(lines, fill(bytes).lines);
  EXPECT_EQ(lines.size(), 5u);
}

// A stream buffer that hands its text out in chunks, so that records straddle the ends of
// its get area.
class ChunkBuf : public std::streambuf {
 public:
  ChunkBuf(std::string text, size_t chunk) : m_text(std::move(text)), m_chunk(chunk) {}

 protected:
  int_type underflow() override {
    if (gptr() < egptr()) return traits_type::to_int_type(*gptr());
    if (m_at >= m_text.size()) return traits_type::eof();
    size_t n = std::min(m_chunk, m_text.size() - m_at);
    char* begin = m_text.data() + m_at;
    setg(begin, begin, begin + n);
    m_at += n;
    return traits_type::to_int_type(*begin);
  }

 private:
  std::string m_text;
  size_t m_chunk;
  size_t m_at = 0;
};

TEST(igsInBufferFiller, AnyChunkingOfTheStreamGivesTheSameRecordsAndCodes) {
  WarningCatcher warnings;
  auto file = sound_file();
  std::string p1 = record('P', 1, "126,1,1,0,0,1,0,0.,0.,1.,1., ", 1);
  std::string p2 = record('P', 2, ".5,0.5,0.,0.;", 1);
  std::string with_nul = file[3];
  with_nul[20] = '\0';
  std::string bytes = file[0] + "\r\n" + file[1] + file[2] + "\n\n" + with_nul + "\r" +
                      file[4].substr(0, 30) + "\n" + file[4].substr(31) + "\r\n" + p1 + "\n" +
                      p2.substr(1) + "\n" + "S1\n" + repeat('z', 170) + "\r\n" + file[6];
  FillerRun whole = fill(bytes);
  // S1, S2, G1, D1, D2 (whose fold lost a character), P1, P2 (its point put back), S1, two
  // records of z and the last ten z joined to the Terminate line.
  ASSERT_EQ(whole.lines.size(), 11u);
  EXPECT_EQ(whole.lines[3], file[3]);
  EXPECT_EQ(whole.lines[6], p2);
  EXPECT_EQ(whole.lines[10], record('T', 1, repeat('z', 10) + file[6].substr(0, 32)));
  // The two LF behind S2 and G1 end the physical line and then the waiting G1: no blank line.
  EXPECT_EQ(whole.codes[3], Codes{igsIONullCharacter});
  for (size_t chunk : {1u, 7u, 79u, 80u, 81u, 82u, 161u}) {
    SCOPED_TRACE("chunk " + std::to_string(chunk));
    ChunkBuf source(bytes, chunk);
    std::istream in(&source);
    std::istringstream empty;
    LineHolder holder(empty);
    igsInBufferFiller filler(in);
    FillerRun run;
    while (filler.get(holder)) {
      run.lines.push_back(holder.line());
      igsIOErrorcoDynArr errors;
      filler.collect_errors(errors);
      std::vector<igsIOErrorCode> codes;
      for (auto const& e : errors) codes.push_back(e.error_type());
      run.codes.push_back(codes);
    }
    EXPECT_EQ(run.lines, whole.lines);
    EXPECT_EQ(run.codes, whole.codes);
    EXPECT_TRUE(in.eof());
  }
}

TEST(igsInBufferFiller, ContinuationAndHollerithQueries) {
  std::istringstream empty;
  igsInBufferFiller filler(empty);
  auto line = [](std::string const& text) {
    charcoDynArr a;
    for (char c : text) a.append(c);
    return a;
  };
  EXPECT_TRUE(filler.in_holerith_string(line("1,2,10HABC")));   // 6 + 10 reaches past 10
  EXPECT_FALSE(filler.in_holerith_string(line("1,2,3HABC,4"))); // ends at index 7
  EXPECT_TRUE(filler.in_holerith_string(line("3HAB")));         // from the start of the line
  EXPECT_FALSE(filler.in_holerith_string(line("no letter h")));
}

} // namespace
