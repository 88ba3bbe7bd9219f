#include "inputTestSupport.h"

#include <gtest/gtest.h>

using namespace igs_input_test;

namespace {

using Events = std::vector<std::string>;

// A stream collects through each of its four decoders in turn, and codes that stay in a fatal
// filler or checker come again with each turn.
Events four_times(Events const& codes) {
  Events all;
  for (int turn = 0; turn < 4; ++turn) all.insert(all.end(), codes.begin(), codes.end());
  return all;
}

Events end_of_input(std::string const& where) {
  return four_times({"igsIOEndOfFile@" + where + ":0", "igsIOStreamFailed@" + where + ":0"});
}

Events operator+(Events a, Events const& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

// The 80-column record with its sequence field replaced.
std::string with_sequence(std::string line, std::string const& field) {
  return line.replace(73, 7, field);
}

TEST(igsInBufferChecker, NewSectionsStopTheBufferAtColumnOne) {
  Events expected = Events{"igsIOSectionEnd@G1:0", "igsIOSectionEnd@D1:0", "igsIOSectionEnd@P1:0",
                           "igsIOSectionEnd@T1:0"} +
                    end_of_input("T1");
  EXPECT_EQ(walk(join(sound_file())), expected);

  std::istringstream in(join(sound_file()));
  igsInStream stream(in);
  igsFileSection section;
  int line = 0;
  int column = -1;
  stream.position(section, line, column);
  EXPECT_EQ(section, igsSectionStart);
  EXPECT_EQ(line, 1);
  EXPECT_EQ(column, 0);
  EXPECT_FALSE(stream.frozen()); // the first Start line continues the initial state
  stream.skip_line();
  stream.skip_line(); // the G line
  stream.position(section, line, column);
  EXPECT_EQ(section, igsSectionGlobal);
  EXPECT_TRUE(stream.frozen());
  EXPECT_EQ(*stream, '\0');
  EXPECT_TRUE(stream.reset());
  EXPECT_FALSE(stream.frozen());
  EXPECT_EQ(*stream, '1'); // the line is read from column 1
  while (stream.num_lines(igsSectionTerminate) == 0) {
    stream.skip_line();
    stream.reset();
  }
  EXPECT_EQ(stream.num_lines(igsSectionStart), 2);
  EXPECT_EQ(stream.num_lines(igsSectionGlobal), 1);
  EXPECT_EQ(stream.num_lines(igsSectionDirectory), 2);
  EXPECT_EQ(stream.num_lines(igsSectionParameter), 1);
  EXPECT_EQ(stream.num_lines(igsSectionTerminate), 1);
  EXPECT_EQ(stream.num_lines(igsSectionNone), 0);
  EXPECT_EQ(stream.capacity(), 80);
}

TEST(igsInBufferChecker, LineNumbersOutOfSequenceAreReplaced) {
  auto file = sound_file();
  std::vector<std::string> lines = {
      file[0],
      file[1],
      with_sequence(file[1], "      5"), // Start section: its own code; reported as 3
      with_sequence(file[1], "      4"), // runs on from the corrected number
      file[2],
      file[2], // G 1 again: reported as G 2
      with_sequence(file[2], "      3"),
      with_sequence(file[3], "   1 2x"), // no clean number: what was parsed stands
      file[4],
  };
  Events expected = {"igsIOStartLineSequence@S3:0", "igsIOSectionEnd@G1:0",
                     "igsIOLineSequence@G2:0", "igsIOBadLineNumber@D1:0", "igsIOSectionEnd@D1:0"};
  EXPECT_EQ(walk(join(lines)), expected + end_of_input("D2"));
  // A record that restarts at 1 inside a section: every line behind it is out of sequence,
  // and the numbers reported run on.
  lines = {file[0], file[1], file[0], file[1]};
  EXPECT_EQ(walk(join(lines)),
            Events({"igsIOStartLineSequence@S3:0", "igsIOStartLineSequence@S4:0"}) +
                end_of_input("S4"));
  // Read without collecting in between, the code stands once.
  std::istringstream in(join(lines));
  igsInStream stream(in);
  for (int i = 0; i < 3; ++i) stream.skip_line();
  EXPECT_EQ(describe(stream.errors()), Events{"igsIOStartLineSequence@S4:0"});
  // Text in the sequence field.
  lines = {file[0], with_sequence(file[1], "     2x")};
  EXPECT_EQ(walk(join(lines)), Events{"igsIOBadLineNumber@S2:0"} + end_of_input("S2"));
}

TEST(igsInBufferChecker, NegativeNumbersOfSixteenBitWritersAreReadBack) {
  auto file = sound_file();
  // A new section keeps the number read: -32767 is 32769.
  std::vector<std::string> lines = {file[0], with_sequence(file[2], " -32767")};
  EXPECT_EQ(walk(join(lines)), Events({"igsIOLineSequence@G32769:0", "igsIOSectionEnd@G32769:0"}) +
                                   end_of_input("G32769"));
  // The repair of the columns takes only digits into the back-pointer field: the sign of a
  // negative back pointer stays behind in the data, and the line grows wider.
  std::string p = record('P', 1, "1;");
  p.replace(65, 7, " -32767");
  std::istringstream in(record('S', 1, "") + "\n" + p + "\n");
  igsInStream stream(in);
  stream.skip_line();
  EXPECT_EQ(stream.capacity(), 83);
  EXPECT_EQ(stream.backpointer(), 32767);
  // A number that stays negative fails the line without a code of its own: the buffer stops.
  lines = {file[0], with_sequence(file[1], " -99999")};
  std::istringstream in2(join(lines));
  igsInStream stream2(in2);
  stream2.skip_line();
  EXPECT_TRUE(stream2.frozen());
  EXPECT_EQ(describe(stream2.errors()), Events{"igsIOStartLineSequence@S2:0"});
  EXPECT_TRUE(stream2.reset());
}

TEST(igsInBufferChecker, BackPointers) {
  auto file = sound_file();
  std::string d[] = {file[3], file[4], with_sequence(file[3], "      3"),
                     with_sequence(file[4], "      4")};
  // A new back pointer ends an entity; it stops the buffer like a new section.
  std::vector<std::string> lines = {d[0],
                                    d[1],
                                    d[2],
                                    d[3],
                                    record('P', 1, "110,0.,0.,0.,", 1),
                                    record('P', 2, "1.,2.,3.;", 1),
                                    record('P', 3, "110,1.,1.,1.,2.,2.,2.;", 3)};
  EXPECT_EQ(walk(join(lines)),
            Events({"igsIOSectionEnd@D1:0", "igsIOSectionEnd@P1:0", "igsIOEntityEnd@P3:0"}) +
                end_of_input("P3"));

  // An 80-column Parameter line with a blank back-pointer field is fatal.
  std::string blank = record('P', 1, "1;", 0);
  blank.replace(65, 7, "       ");
  lines = {d[0], d[1], blank};
  EXPECT_EQ(walk(join(lines)),
            Events{"igsIOSectionEnd@D1:0"} +
                four_times({"igsIOBadBackpointer@P1:0", "igsIOSectionEnd@P1:0"}));
  std::istringstream in(join(lines));
  igsInStream stream(in);
  stream.skip_line();
  stream.reset();
  stream.skip_line();
  EXPECT_TRUE(stream.fatal_error());
  EXPECT_FALSE(stream.reset());
  EXPECT_TRUE(stream.frozen());
  stream.skip_line(); // stays stopped for good
  EXPECT_TRUE(stream.frozen());
  EXPECT_FALSE(stream.reset());

  // Letters in the field: the repair takes no digits from it, so the field stays in the data
  // and the record grows wider than 80 columns. Such a line has its back pointer behind the
  // last blank in front of the letter, where nothing is left: 0, with no code.
  std::string lettered = record('P', 1, "1;", 0);
  lettered.replace(65, 7, "    12a");
  lines = {d[0], d[1], lettered};
  EXPECT_EQ(walk(join(lines)),
            Events({"igsIOSectionEnd@D1:0", "igsIOSectionEnd@P1:0"}) + end_of_input("P1"));
  std::istringstream in2(join(lines));
  igsInStream stream2(in2);
  stream2.skip_line();
  stream2.skip_line();
  EXPECT_EQ(stream2.capacity(), 88);
  EXPECT_EQ(stream2.backpointer(), 0);
}

TEST(igsInBufferChecker, WideParameterLinesFindTheirBackPointer) {
  auto file = sound_file();
  // 65 columns of data, a blank, seven digits: 81 columns. The back pointer is found from the
  // blank in front of it, and the data character in column 65 is blanked without a report.
  std::string data = "1,2," + std::string(60, ' ') + "9";
  std::string wide = data + " 0000003P      1";
  std::istringstream in(join({file[3], file[4], wide, record('P', 2, "3;", 3)}));
  igsInStream stream(in);
  stream.skip_line();
  stream.reset();
  stream.skip_line();
  stream.reset();
  EXPECT_EQ(stream.capacity(), 81);
  EXPECT_EQ(stream.backpointer(), 3);
  int values[3] = {};
  for (int& v : values) stream.read_integer(v);
  EXPECT_EQ(values[0], 1);
  EXPECT_EQ(values[1], 2);
  EXPECT_EQ(values[2], 3); // not 9: column 65 is no data
  EXPECT_EQ(describe(stream.errors()), Events{"igsIOValuePresent@P2:2"});
}

TEST(igsInBufferChecker, DamageThatStopsReadingForGood) {
  auto file = sound_file();
  // No section letter in its place.
  std::string lettered = file[1];
  lettered[72] = 'X';
  EXPECT_EQ(
      walk(join({file[0], lettered})),
      four_times({"igsIOBadSectionLetter@ 2:0", "igsIOLineSequence@ 2:0", "igsIOSectionEnd@ 2:0"}));
  // A blank sequence field: with the trailing blanks cut, no letter stands in its place.
  EXPECT_EQ(walk(join({file[0], with_sequence(file[1], "       ")})),
            four_times({"igsIOBadSectionLetter@ 0:0", "igsIOBadLineNumber@ 0:0",
                        "igsIOLineSequence@ 0:0", "igsIOSectionEnd@ 0:0"}));
  // A last line that is no record at all, instead of the Terminate section.
  EXPECT_EQ(walk(join({file[0], "garbage"})),
            four_times({"igsIOBadSectionLetter@ 0:0", "igsIOBadLineNumber@ 0:0",
                        "igsIOLineSequence@ 0:0", "igsIOSectionEnd@ 0:0"}));
  // A fragment shorter than a sequence field.
  EXPECT_EQ(walk(join({file[0]}) + "\x1a"),
            four_times({"igsIOBadSectionLetter@ 0:0", "igsIOBadLineNumber@ 0:0",
                        "igsIOLineSequence@ 0:0", "igsIOSectionEnd@ 0:0"}));
  // No Terminate section: the end of input after the last Parameter line.
  auto no_terminate = file;
  no_terminate.pop_back();
  EXPECT_EQ(walk(join(no_terminate)),
            Events({"igsIOSectionEnd@G1:0", "igsIOSectionEnd@D1:0", "igsIOSectionEnd@P1:0"}) +
                end_of_input("P1"));
  // An empty file.
  EXPECT_EQ(walk(""), end_of_input("S0"));
}

TEST(igsInBufferChecker, DamagedFileIsReportedLineByLine) {
  auto file = sound_file();
  // CR LF ends, a NUL in the Global line, a blank line in the Directory section, tabs in the
  // Parameter section and no line end behind the Terminate line.
  std::string g = file[2];
  g[40] = '\0';
  std::string p = file[5];
  p[30] = '\t';
  std::string bytes = file[0] + "\r\n" + file[1] + "\r\n" + g + "\r\n" + file[3] + "\r\n\r\n" +
                      file[4] + "\r\n" + p + "\r\n" + file[6];
  Events expected = {"igsIONullCharacter@G1:0", "igsIOSectionEnd@G1:0", "igsIOSectionEnd@D1:0",
                     "igsIOBlankLine@D2:0",     "igsIOSectionEnd@P1:0", "igsIOSectionEnd@T1:0"};
  EXPECT_EQ(walk(bytes), expected + end_of_input("T1"));
}

int callback_count = 0;
void count_line() {
  ++callback_count;
}

TEST(igsInBufferChecker, LineReadCallbackRunsForEveryFetch) {
  callback_count = 0;
  igsInBuffer::set_line_read_callback(count_line);
  walk(join(sound_file()));
  // Seven records and one fetch that found the end of input.
  EXPECT_EQ(callback_count, 8);
  igsInBuffer::set_line_read_callback(nullptr);
  walk(join(sound_file()));
  EXPECT_EQ(callback_count, 8);
}

} // namespace
