// The Start and Terminate sections: reading damaged ones, writing, printing and repairs.
#include "sectionsTestSupport.h"

#include "sections/igsStartTerminateErrors.h"

using namespace igs_sections_test;

namespace {

using StartSectionTest = SectionTest;
using TerminateSectionTest = SectionTest;

std::string padded(std::string text) {
  text.resize(72, ' ');
  return text;
}

Lines lines_of(igsStartSection const& section) {
  Lines lines;
  for (int i = 0; i < section.number_of_lines(); ++i) {
    utString text;
    EXPECT_EQ(section.line(i, text), 1);
    lines.push_back(text.is_null() ? "(null)" : std::string(text.view()));
  }
  return lines;
}

Lines const global_line = {record('G', 1, "1H,,1H;;")};

TEST_F(StartSectionTest, ReadKeepsAllColumnsOfEveryLine) {
  InputOver input({record('S', 1, "A small file made for the tests."),
                   record('S', 2, "  Second line, with blanks around  "), global_line[0]});
  igsStartSection start(file.get());
  int blank_lines = 0;
  EXPECT_EQ(start.read(input.stream, blank_lines), 1);
  EXPECT_EQ(lines_of(start), (Lines{padded("A small file made for the tests."),
                                    padded("  Second line, with blanks around  ")}));
  EXPECT_EQ(blank_lines, 0);
  EXPECT_TRUE(describe(igsStartLog).empty());
  // The stream stands readable at the first G line.
  EXPECT_EQ(igs_stream_section(input.stream), igsSectionGlobal);
  EXPECT_FALSE(input.stream.frozen());
  utString first;
  input.stream.read_string(4, first);
  EXPECT_EQ(first, "1H,,");

  // Blank lines between S lines are passed over and reported.
  InputOver blank({record('S', 1, "one"), "", record('S', 2, "two"), global_line[0]});
  igsStartSection other(file.get());
  EXPECT_EQ(other.read(blank.stream, blank_lines), 1);
  EXPECT_EQ(lines_of(other), (Lines{padded("one"), padded("two")}));
  EXPECT_EQ(blank_lines, 1);
}

TEST_F(StartSectionTest, LinesOutOfSequenceAreKeptAndMakeOneError) {
  InputOver input(
      {record('S', 1, "first"), record('S', 3, "third"), record('S', 2, "second"), global_line[0]});
  igsStartSection start(file.get());
  EXPECT_EQ(start.read(input.stream), 1);
  EXPECT_EQ(lines_of(start), (Lines{padded("first"), padded("third"), padded("second")}));
  EXPECT_EQ(describe(igsStartLog), Lines{"igsStartSectionInvalid()"});
  EXPECT_EQ(fix_all(igsStartLog), std::vector<int>{1});
  EXPECT_EQ(messages.text(), "Warning : The start section of this file cannot be read.\n");
  EXPECT_EQ(igs_stream_section(input.stream), igsSectionGlobal);

  // A first line numbered other than 1 is out of sequence too.
  InputOver late({record('S', 4, "late"), global_line[0]});
  igsStartSection other;
  EXPECT_EQ(other.read(late.stream), 1);
  EXPECT_EQ(describe(igsStartLog).size(), 2u);
  // A free-standing section gives its errors no message stream.
  messages.clear();
  EXPECT_EQ(errors_in(igsStartLog).back()->fix(), 1);
  EXPECT_EQ(messages.text(), "");
}

TEST_F(StartSectionTest, WithoutStartLinesTheEmptyLineStays) {
  InputOver input(global_line);
  igsStartSection start;
  EXPECT_EQ(start.read(input.stream), 1);
  EXPECT_EQ(lines_of(start), Lines{""});
  EXPECT_EQ(igs_stream_section(input.stream), igsSectionGlobal);

  // A file that ends inside the Start section stops the reading, and the lines stay.
  InputOver cut({record('S', 1, "only")});
  EXPECT_EQ(start.read(cut.stream), 0);
  EXPECT_EQ(lines_of(start), Lines{padded("only")});
  InputOver empty(Lines{});
  EXPECT_EQ(start.read(empty.stream), 0);
}

TEST_F(StartSectionTest, SetLineWriteAndPrint) {
  igsStartSection start;
  EXPECT_EQ(start.number_of_lines(), 1);
  EXPECT_EQ(start.set_line(0, std::string(73, 'x').c_str()), 0);
  EXPECT_EQ(start.set_line(0, std::string(72, 'x').c_str()), 1);
  EXPECT_EQ(start.set_line(-1, "x"), 0);
  EXPECT_EQ(start.set_line(1, utString()), 0);
  EXPECT_EQ(start.set_line(3, "Fourth line"), 1);
  EXPECT_EQ(start.number_of_lines(), 4);
  EXPECT_EQ(lines_of(start), (Lines{std::string(72, 'x'), "(null)", "(null)", "Fourth line"}));
  utString text("unchanged");
  EXPECT_EQ(start.line(4, text), 0);
  EXPECT_EQ(start.line(-1, text), 0);
  EXPECT_EQ(text, "unchanged");
  EXPECT_TRUE(start.valid());

  Lines written = igs_output_test::written([&](igsOutStream& out) {
    EXPECT_EQ(start.write(out), 1);
    out.set_section(igsSectionGlobal);
  });
  EXPECT_EQ(written, (Lines{record('S', 1, std::string(72, 'x')), record('S', 2, ""),
                            record('S', 3, ""), record('S', 4, "Fourth line")}));

  // What is written reads back the same, each line at its full width.
  igsStartSection back;
  InputOver input({written[0], written[1], written[2], written[3], global_line[0]});
  EXPECT_EQ(back.read(input.stream), 1);
  EXPECT_EQ(lines_of(back),
            (Lines{std::string(72, 'x'), padded(""), padded(""), padded("Fourth line")}));

  igsStartSection small;
  small.set_line(0, "Made by \"hand\"");
  small.set_line(1, "");
  EXPECT_EQ(printed(small), "NoOfLinesInStartSection = 2\n"
                            "StartSection = {\n"
                            "  1 = \"Made by \"hand\"\"\n"
                            "  2 = \"\"\n"
                            "}\n");
  // become copies the lines and the file.
  igsStartSection copy(file.get());
  copy.become(small);
  EXPECT_EQ(lines_of(copy), lines_of(small));
  EXPECT_EQ(copy.file(), nullptr);
  file->set_start_section(small);
  EXPECT_EQ(lines_of(file->start_section()), lines_of(small));
  EXPECT_EQ(file->start_section().file(), file.get());
}

// A stream moved on to the first column of the T line, as the file reader leaves it.
void move_to_terminate(igsInStream& in) {
  for (int guard = 0; guard < 100; ++guard) {
    if (in.frozen()) {
      if (!in.reset()) return;
    } else if (igs_stream_section(in) == igsSectionTerminate) {
      return;
    } else {
      in.skip_line();
    }
  }
}

Lines file_with_terminate(std::string const& t_line) {
  return {record('S', 1, "start"),    record('S', 2, "start"),
          record('G', 1, "1H,,1H;,"), record('G', 2, ""),
          record('G', 3, ""),         record('G', 4, ""),
          record('G', 5, ";"),        record('D', 1, "     116"),
          record('D', 2, "     116"), record('P', 1, "116,0.,0.,0.;", 1),
          record('T', 1, t_line)};
}

TEST_F(TerminateSectionTest, ReadComparesEachCountWithTheLinesCounted) {
  InputOver input(file_with_terminate("S      2G      5D      2P      1"));
  move_to_terminate(input.stream);
  igsTerminateSection terminate(file.get());
  int blank_lines = 0;
  EXPECT_EQ(terminate.read(input.stream, blank_lines), 1);
  EXPECT_EQ(terminate.start_lines(), 2);
  EXPECT_EQ(terminate.global_lines(), 5);
  EXPECT_EQ(terminate.directory_lines(), 2);
  EXPECT_EQ(terminate.parameter_lines(), 1);
  EXPECT_TRUE(describe(igsTerminateLog).empty());
  EXPECT_EQ(blank_lines, 0);
}

TEST_F(TerminateSectionTest, BadNamesAndCountsAreKeptAndRepairedToWhatWasCounted) {
  InputOver input(file_with_terminate("X      2G      4D      3P     11"));
  move_to_terminate(input.stream);
  igsTerminateSection terminate(file.get());
  EXPECT_EQ(terminate.read(input.stream), 1);
  EXPECT_EQ(terminate.start_lines(), 2);
  EXPECT_EQ(terminate.global_lines(), 4);
  EXPECT_EQ(terminate.directory_lines(), 3);
  EXPECT_EQ(terminate.parameter_lines(), 11);
  EXPECT_EQ(describe(igsTerminateLog),
            (Lines{"igsTerminateSectionBadName(0,\"X\")", "igsTerminateSectionBadCount(1,4,5)",
                   "igsTerminateSectionBadCount(2,3,2)", "igsTerminateSectionBadCount(3,11,1)"}));
  for (igsError* e : errors_in(igsTerminateLog))
    EXPECT_EQ(static_cast<igsTerminateError*>(e)->key(), &terminate);
  EXPECT_EQ(fix_all(igsTerminateLog), (std::vector<int>{1, 1, 1, 1}));
  EXPECT_EQ(terminate.global_lines(), 5);
  EXPECT_EQ(terminate.directory_lines(), 2);
  EXPECT_EQ(terminate.parameter_lines(), 1);
  EXPECT_EQ(messages.text(), "");

  // A count the setter refuses stays as it is; the error is settled all the same.
  igsTerminateSectionBadCount odd(igsSectionDirectory, 4, 3);
  odd.set_key(&terminate);
  EXPECT_EQ(odd.fix(), 1);
  EXPECT_EQ(terminate.directory_lines(), 2);
  igsTerminateSectionBadCount other(igsSectionTerminate, 4, 3);
  other.set_key(&terminate);
  EXPECT_EQ(other.fix(), 1);

  // Without a T line every group is missing: reading stops at the end of the file.
  Lines cut = file_with_terminate("");
  cut.pop_back();
  InputOver no_t(cut);
  move_to_terminate(no_t.stream);
  igsTerminateSection missing;
  EXPECT_EQ(missing.read(no_t.stream), 0);
  EXPECT_EQ(missing.global_lines(), 0);
}

TEST_F(TerminateSectionTest, SettersWriteAndPrint) {
  igsTerminateSection terminate;
  EXPECT_EQ(terminate.start_lines(), igs_unset_int);
  for (auto set : {&igsTerminateSection::set_start_lines, &igsTerminateSection::set_global_lines,
                   &igsTerminateSection::set_parameter_lines}) {
    EXPECT_EQ((terminate.*set)(0), 0);
    EXPECT_EQ((terminate.*set)(10000000), 0);
    EXPECT_EQ((terminate.*set)(9999999), 1);
    EXPECT_EQ((terminate.*set)(3), 1);
  }
  EXPECT_EQ(terminate.set_directory_lines(3), 0);
  EXPECT_EQ(terminate.set_directory_lines(9999998), 1);
  EXPECT_EQ(terminate.set_directory_lines(4), 1);
  EXPECT_EQ(terminate.set_lines(igsSectionTerminate, 2), 0);
  EXPECT_EQ(terminate.lines(igsSectionNone), igs_unset_int);
  EXPECT_EQ(printed(terminate), "TerminateSection = {\n"
                                "  NoOfLinesInStartSection = 3\n"
                                "  NoOfLinesInGlobalSection = 3\n"
                                "  NoOfLinesInDirectorySection = 4\n"
                                "  NoOfLinesInParameterSection = 3\n"
                                "}\n");

  // Writing takes the counts of what the stream wrote.
  igsStartSection start;
  start.set_line(1, "two");
  Lines written = igs_output_test::written([&](igsOutStream& out) {
    EXPECT_EQ(start.write(out), 1);
    out.set_section(igsSectionDirectory);
    for (int i = 0; i < 18; ++i) out.write_integer(8, 116);
    out.set_section(igsSectionParameter);
    out.write_integer(116);
    out.set_backpointer(3);
    EXPECT_EQ(terminate.write(out), 1);
  });
  ASSERT_EQ(written.size(), 6u);
  EXPECT_EQ(written.back(), record('T', 1, "S      2G      0D      2P      1"));
  EXPECT_EQ(terminate.start_lines(), 2);
  EXPECT_EQ(terminate.global_lines(), 0);
  EXPECT_EQ(terminate.directory_lines(), 2);
  EXPECT_EQ(terminate.parameter_lines(), 1);

  igsTerminateSection copy(file.get());
  copy.become(terminate);
  EXPECT_EQ(printed(copy), printed(terminate));
  EXPECT_EQ(copy.file(), nullptr);
}

} // namespace
