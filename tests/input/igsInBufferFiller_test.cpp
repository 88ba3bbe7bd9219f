#include "inputTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace igs_input_test;

namespace {

Codes const end_of_input = {igsIOEndOfFile, igsIOStreamFailed};

struct LineCase {
  char const* what;
  std::string bytes;
  Lines lines;
  std::vector<Codes> codes = {}; // for the first records; the others record nothing
  Codes end = end_of_input;
};

std::string const s1 = record('S', 1, "first");
std::string const s2 = record('S', 2, "second");
std::string const d1 =
    record('D', 1, "     110       1       0       0       0       0       0       000000000");
std::string const p1 = record('P', 1, "126,1,1,0,0,1,0,0.,0.,1.,1., ", 1); // ends in ", "
std::string const p2 = record('P', 2, ".5,0.5,0.,0.,", 1);
std::string const p3 = record('P', 3, ".25,1.,2.,3., ", 1);
std::string const p4 = record('P', 4, ".75,0.,1.;", 1);

std::vector<LineCase> const line_cases = {
    {"trailing blanks cut", "S1\nS      2\n", {record('S', 1, ""), record('S', 2, "")}},
    {"short Parameter line", "1,2;      7P      3\n", {record('P', 3, "1,2;", 7)}},
    {"eight digits: the first is lost", "S123456789\n", {record('S', 3456789, "")}},
    {"tabs become blanks", with(s1, 5, '\t') + "\nS\t2\n", {s1, record('S', 2, "")}},
    {"NUL bytes become blanks",
     with(with(s1, 5, '\0'), 75, '\0') + "\n" + s2 + "\n",
     {s1, s2},
     {{igsIONullCharacter}}},
    {"blank lines are dropped", s1 + "\n\n \f\v \n" + s2 + "\n", {s1, s2}, {{}, {igsIOBlankLine}}},
    {"one empty line at the end is the end", s1 + "\n\n", {s1}},
    {"two empty lines at the end",
     s1 + "\n\n\n",
     {s1},
     {},
     {igsIOBlankLine, igsIOEndOfFile, igsIOStreamFailed}},
    {"a control byte is data", with(s1, 5, '\x07') + "\n", {with(s1, 5, '\x07')}},
    {"a last fragment is handed on", s1 + "\n\x1a", {s1, "\x1a "}},
    // A fold that lost the blank at the break: the marker stands in for it.
    {"folded record", d1.substr(0, 40) + "\n" + d1.substr(41) + "\n", {d1}},
    {"folded without loss: one column more",
     d1.substr(0, 40) + "\n" + d1.substr(40) + "\n",
     {d1.substr(0, 40) + " " + d1.substr(40)}},
    {"three pieces",
     d1.substr(0, 20) + "\n" + d1.substr(21, 20) + "\n" + d1.substr(42) + "\n",
     {d1}},
    // One column too many: the first marker goes, the others become blanks.
    {"pieces one too long",
     repeat('a', 20) + "\n" + repeat('b', 20) + "\n" + repeat('c', 20) + "\n" + repeat('d', 18) +
         "\n",
     {repeat('a', 20) + repeat('b', 20) + " " + repeat('c', 20) + " " + repeat('d', 18)}},
    {"pieces far too long",
     repeat('a', 30) + "\n" + repeat('b', 30) + "\n" + repeat('c', 50) + "\n",
     {repeat('a', 30) + repeat('b', 30) + repeat('c', 20), repeat('c', 30) + " "}},
    // 200 characters that hold no record: two records, and 40 that wait for the next line.
    {"overlong line",
     repeat('x', 200) + "\nS      1\n",
     {repeat('x', 80), repeat('x', 80), record('S', 1, repeat('x', 40))}},
    {"records run together", s1 + s2 + "\n", {s1, s2}},
    {"no line ends at all", s1 + s2 + s1 + s2, {s1, s2, s1, s2}},
    // A CR in mid-line ends it; the text up to the LF is joined to the next line.
    {"lone CR", "S      1\rS      2\nS      3\n", {record('S', 1, ""), record('S', 3, "S      2")}},
    {"lone CR behind a whole record",
     s1 + "\rS      2\nS      3\n",
     {s1, record('S', 3, "S      2")}},
    {"one column behind a whole record", s1 + "x\nS      2\n", {s1, record('S', 2, "x")}},
    {"CR in a line that is cut: nothing is lost",
     repeat('A', 100) + "\r" + repeat('B', 10) + "\nS      1\n",
     {repeat('A', 80), record('S', 1, repeat('A', 20) + repeat('B', 10))}},
    // Lines behind ", " that lost their leading point get it back.
    {"lost points",
     p1 + "\n" + p2.substr(1) + "\n" + p3 + "\n" + p4.substr(1) + "\n",
     {p1, p2, p3, p4}},
    {"no continuation: only padded",
     record('P', 3, ".25,1.,2.,3.,4.", 1) + "\n" + p4.substr(1) + "\n",
     {record('P', 3, ".25,1.,2.,3.,4.", 1), record('P', 4, "75,0.,1.;", 1)}},
    {"a point of its own",
     p1 + "\n" + record('P', 2, "5.0,0.5;", 1).erase(35, 1) + "\n",
     {p1, record('P', 2, "5.0,0.5;", 1)}},
    {"doubled points", "." + p2 + "\n." + p4 + "\n", {p2, p4}},
    {"a stray character shifts the data", "x" + p4 + "\n", {record('P', 4, "x.75,0.,1.;", 1)}},
};

TEST(igsInBufferFiller, RepairsLinesIntoRecords) {
  WarningCatcher warnings;
  for (auto const& c : line_cases) {
    SCOPED_TRACE(c.what);
    FillerRun run = fill(c.bytes);
    EXPECT_EQ(run.lines, c.lines);
    for (size_t i = 0; i < run.codes.size(); ++i)
      EXPECT_EQ(run.codes[i], i < c.codes.size() ? c.codes[i] : Codes{}) << "record " << i;
    EXPECT_EQ(run.end_codes, c.end);
  }
}

// Hands its text out in chunks, so that records straddle the ends of the get area; chunk 0
// keeps no get area at all, and every byte comes through underflow and uflow.
class ChunkBuf : public std::streambuf {
 public:
  ChunkBuf(std::string text, size_t chunk) : m_text(std::move(text)), m_chunk(chunk) {}

 protected:
  int_type underflow() override {
    if (gptr() < egptr()) return traits_type::to_int_type(*gptr());
    if (m_at >= m_text.size()) return traits_type::eof();
    if (m_chunk == 0) return traits_type::to_int_type(m_text[m_at]);
    size_t n = std::min(m_chunk, m_text.size() - m_at);
    setg(m_text.data() + m_at, m_text.data() + m_at, m_text.data() + m_at + n);
    m_at += n;
    return traits_type::to_int_type(*gptr());
  }
  int_type uflow() override {
    if (m_chunk) return std::streambuf::uflow();
    return m_at < m_text.size() ? traits_type::to_int_type(m_text[m_at++]) : traits_type::eof();
  }

 private:
  std::string m_text;
  size_t m_chunk;
  size_t m_at = 0;
};

TEST(igsInBufferFiller, AnyChunkingOfTheStreamGivesTheSameRecordsAndCodes) {
  WarningCatcher warnings;
  Lines file = sound_file();
  std::string bytes;
  for (auto const& c : line_cases) bytes += c.bytes;
  bytes += file[0] + "\r\n" + file[1] + file[2] + "\n\n" + with(file[3], 20, '\0') + "\r" +
           file[4].substr(0, 30) + "\n" + file[4].substr(31) + "\r\n" + file[6];
  FillerRun whole = fill(bytes);
  EXPECT_GT(whole.lines.size(), 40u);
  for (size_t chunk : {0u, 1u, 7u, 79u, 80u, 81u, 82u, 161u}) {
    SCOPED_TRACE("chunk " + std::to_string(chunk));
    ChunkBuf source(bytes, chunk);
    std::istream in(&source);
    FillerRun run = fill(in);
    EXPECT_EQ(run.lines, whole.lines);
    EXPECT_EQ(run.codes, whole.codes);
    EXPECT_EQ(run.end_codes, whole.end_codes);
  }
}

TEST(igsInBufferFiller, HollerithStringRunningPastTheLine) {
  igsInBufferFiller filler(LineHolder::empty);
  auto runs_on = [&](std::string const& text) {
    charcoDynArr line;
    for (char c : text) line.append(c);
    return filler.in_holerith_string(line);
  };
  EXPECT_TRUE(runs_on("1,2,10HABC"));
  EXPECT_FALSE(runs_on("1,2,3HABC,4"));
  EXPECT_TRUE(runs_on("3HAB"));
  EXPECT_FALSE(runs_on("no letter h"));
}

} // namespace
