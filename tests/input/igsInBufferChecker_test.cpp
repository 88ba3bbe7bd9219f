#include "inputTestSupport.h"

#include <gtest/gtest.h>

#include <cstdio>

using namespace igs_input_test;

namespace {

// A stream collects through each of its four decoders in turn, and the codes that stay in a
// fatal filler or checker come again with each turn.
Lines four_times(Lines const& codes) {
  Lines all;
  for (int turn = 0; turn < 4; ++turn) all.insert(all.end(), codes.begin(), codes.end());
  return all;
}

Lines end_of_input(std::string const& where) {
  return four_times({"igsIOEndOfFile@" + where + ":0", "igsIOStreamFailed@" + where + ":0"});
}

Lines operator+(Lines a, Lines const& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

std::string with_sequence(std::string line, std::string const& field) {
  return line.replace(73, 7, field);
}

std::string with_backpointer(std::string line, std::string const& field) {
  return line.replace(65, 7, field);
}

Lines const file = sound_file();
std::string const s1 = file[0], s2 = file[1], g1 = file[2], d1 = file[3], d2 = file[4],
                  t1 = file[6];
Lines const no_letter = four_times({"igsIOBadSectionLetter@ 0:0", "igsIOBadLineNumber@ 0:0",
                                    "igsIOLineSequence@ 0:0", "igsIOSectionEnd@ 0:0"});

struct WalkCase {
  char const* what;
  std::string bytes;
  Lines events;
};

Lines const sound_events = Lines{"igsIOSectionEnd@G1:0", "igsIOSectionEnd@D1:0",
                                 "igsIOSectionEnd@P1:0", "igsIOSectionEnd@T1:0"} +
                           end_of_input("T1");

// Start lines numbered 1 to n, each number written as `format` writes it.
std::string numbered_start(int n, char const* format) {
  Lines lines;
  for (int i = 1; i <= n; ++i) {
    char field[16];
    std::snprintf(field, sizeof field, format, i);
    lines.push_back(with_sequence(s2, field));
  }
  return join(lines);
}

// Parameter lines 1 to n of the entity at D1; line `odd` has text in column 65 and a back
// pointer written with leading zeros; line n + 1 starts the entity at D3.
std::string long_entity(int n, int odd) {
  Lines lines = {d1, d2};
  for (int i = 1; i <= n; ++i) {
    std::string line = record('P', i, "1.,", 1);
    if (i == odd) line = with_backpointer(with(line, 64, 'x'), "0000001");
    lines.push_back(line);
  }
  lines.push_back(record('P', n + 1, "2.;", 3));
  return join(lines);
}

std::vector<WalkCase> const walk_cases = {
    // Every new section stops the buffer at column 1 with code 6.
    {"a sound file", join(file), sound_events},
    // Repairs of the line layout record nothing.
    {"folded and run-together records",
     s1 + s2 + "\n" + g1 + "\n" + d1.substr(0, 40) + "\n" + d1.substr(41) + "\n" + d2 + "\n" +
         file[5] + "\n" + t1.substr(0, 75) + "\r\n" + t1.substr(75),
     sound_events},
    {"damage of every kind",
     s1 + "\r\n" + s2 + "\r\n" + g1.substr(0, 40) + '\0' + g1.substr(41) + "\r\n" + d1 +
         "\r\n\r\n" + d2 + "\r\n" + file[5].substr(0, 30) + "\t" + file[5].substr(31) + "\r\n" + t1,
     Lines{"igsIOSectionEnd@G1:0", "igsIONullCharacter@G1:0", "igsIOSectionEnd@D1:0",
           "igsIOBlankLine@D2:0", "igsIOSectionEnd@P1:0", "igsIOSectionEnd@T1:0"} +
         end_of_input("T1")},
    // A wrong number is replaced by the expected one; a new section keeps the one it reads.
    {"numbers out of sequence",
     join({s1, s2, with_sequence(s2, "      5"), with_sequence(s2, "      4"), g1, g1,
           with_sequence(g1, "      3"), with_sequence(d1, "   1 2x"), d2}),
     Lines{"igsIOStartLineSequence@S3:0", "igsIOSectionEnd@G1:0", "igsIOLineSequence@G2:0",
           "igsIOSectionEnd@D1:0", "igsIOBadLineNumber@D1:0"} +
         end_of_input("D2")},
    // Numbers written with leading zeros, carried over several digits, or in mixed ways run
    // on as well as plain ones do.
    {"numbers with leading zeros", numbered_start(1002, "%07d"), end_of_input("S1002")},
    {"numbers written in turns",
     numbered_start(12, "%07d").substr(0, 81 * 5) +
         numbered_start(12, "%7d").substr(81 * 5, 81 * 3) +
         numbered_start(12, "%07d").substr(81 * 8),
     end_of_input("S12")},
    {"a number skipped where digits carry",
     numbered_start(9, "%7d") + with_sequence(s2, "     11") + "\n" + with_sequence(s2, "0000012") +
         "\n",
     Lines{"igsIOStartLineSequence@S10:0", "igsIOStartLineSequence@S11:0"} + end_of_input("S11")},
    {"one entity over many lines", long_entity(30, 12),
     Lines{"igsIOSectionEnd@D1:0", "igsIOSectionEnd@P1:0", "igsIOEntityEnd@P31:0"} +
         end_of_input("P31")},
    {"a line repeated in a long run",
     numbered_start(6, "%7d") + with_sequence(s2, "      6") + "\n",
     Lines{"igsIOStartLineSequence@S7:0"} + end_of_input("S7")},
    {"numbering restarts", join({s1, s2, s1, s2}),
     Lines{"igsIOStartLineSequence@S3:0", "igsIOStartLineSequence@S4:0"} + end_of_input("S4")},
    {"text in the number", join({s1, with_sequence(s2, "     2x")}),
     Lines{"igsIOBadLineNumber@S2:0"} + end_of_input("S2")},
    // A 16-bit writer's -32767 is 32769.
    {"negative number", join({s1, with_sequence(g1, " -32767")}),
     Lines{"igsIOSectionEnd@G32769:0", "igsIOLineSequence@G32769:0"} + end_of_input("G32769")},
    {"new entity",
     join({d1, d2, record('P', 1, "110,0.,0.,0.,", 1), record('P', 2, "1.,2.,3.;", 1),
           record('P', 3, "110,1.,1.,1.,2.,2.,2.;", 3)}),
     Lines{"igsIOSectionEnd@D1:0", "igsIOSectionEnd@P1:0", "igsIOEntityEnd@P3:0"} +
         end_of_input("P3")},
    {"blank back pointer", join({d1, d2, with_backpointer(record('P', 1, "1;"), "       ")}),
     Lines{"igsIOSectionEnd@D1:0"} +
         four_times({"igsIOBadBackpointer@P1:0", "igsIOSectionEnd@P1:0"})},
    // The repair of the columns takes no digits from the field, so it stays in the data and
    // the record grows wider; its back pointer is then read from behind the last blank: 0.
    {"letters in the back pointer",
     join({d1, d2, with_backpointer(record('P', 1, "1;"), "    12a")}),
     Lines{"igsIOSectionEnd@D1:0", "igsIOSectionEnd@P1:0"} + end_of_input("P1")},
    {"wrong section letter", join({s1, with(s2, 72, 'X')}),
     four_times({"igsIOBadSectionLetter@ 2:0", "igsIOLineSequence@ 2:0", "igsIOSectionEnd@ 2:0"})},
    // With the trailing blanks cut, no letter stands eight columns from the end.
    {"blank sequence field", join({s1, with_sequence(s2, "       ")}), no_letter},
    {"garbage for a last line", join({s1, "garbage"}), no_letter},
    {"a fragment shorter than a number", join({s1}) + "\x1a", no_letter},
    {"no Terminate section", join({s1, s2, g1, d1, d2, file[5]}),
     Lines{"igsIOSectionEnd@G1:0", "igsIOSectionEnd@D1:0", "igsIOSectionEnd@P1:0"} +
         end_of_input("P1")},
    {"an empty file", "", end_of_input("S0")},
};

TEST(igsInBufferChecker, ReportsEveryLine) {
  WarningCatcher warnings;
  for (auto const& c : walk_cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(walk(c.bytes), c.events);
  }
}

int callback_count = 0;

TEST(igsInBufferChecker, LineReadCallbackRunsForEveryFetch) {
  callback_count = 0;
  igsInBuffer::set_line_read_callback([] { ++callback_count; });
  walk(join(file));
  EXPECT_EQ(callback_count, 8); // seven records and the fetch that found the end
  igsInBuffer::set_line_read_callback(nullptr);
  walk(join(file));
  EXPECT_EQ(callback_count, 8);
}

} // namespace
