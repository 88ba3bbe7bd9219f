// The Start and Terminate sections: reading damaged ones, writing and repairs.
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
  utString text;
  for (int i = 0; section.line(i, text); ++i)
    lines.push_back(text.is_null() ? "(null)" : std::string(text.view()));
  return lines;
}

std::string const g1 = record('G', 1, "1H,,1H;;");

TEST_F(StartSectionTest, SetLineWriteAndReadBack) {
  igsStartSection start;
  EXPECT_EQ(start.set_line(0, std::string(73, 'x').c_str()), 0);
  EXPECT_EQ(start.set_line(0, std::string(72, 'x').c_str()), 1);
  EXPECT_EQ(start.set_line(-1, "x"), 0);
  EXPECT_EQ(start.set_line(1, utString()), 0);
  EXPECT_EQ(start.set_line(3, "Fourth line"), 1);
  EXPECT_EQ(start.number_of_lines(), 4);
  EXPECT_EQ(lines_of(start), (Lines{std::string(72, 'x'), "(null)", "(null)", "Fourth line"}));
  utString text("unchanged");
  EXPECT_EQ(start.line(4, text) + start.line(-1, text), 0);
  EXPECT_EQ(text, "unchanged");
  EXPECT_TRUE(start.valid());

  Lines written = igs_output_test::written([&](igsOutStream& out) {
    EXPECT_EQ(start.write(out), 1);
    out.set_section(igsSectionGlobal);
  });
  EXPECT_EQ(written, (Lines{record('S', 1, std::string(72, 'x')), record('S', 2, ""),
                            record('S', 3, ""), record('S', 4, "Fourth line")}));
  igsStartSection back;
  written.push_back(g1);
  InputOver input(written);
  EXPECT_EQ(back.read(input.stream), 1);
  EXPECT_EQ(lines_of(back),
            (Lines{std::string(72, 'x'), padded(""), padded(""), padded("Fourth line")}));

  igsStartSection small;
  small.set_line(0, "Made by \"hand\"");
  EXPECT_EQ(printed(small), "NoOfLinesInStartSection = 1\n"
                            "StartSection = {\n"
                            "  1 = \"Made by \"hand\"\"\n"
                            "}\n");
  // become copies the lines and the file; the file keeps a copy as its own.
  igsStartSection copy(file.get());
  copy.become(small);
  EXPECT_EQ(lines_of(copy), lines_of(small));
  EXPECT_EQ(copy.file(), nullptr);
  file->set_start_section(small);
  EXPECT_EQ(lines_of(file->start_section()), lines_of(small));
  EXPECT_EQ(file->start_section().file(), file.get());
}

// A file whose T line is given; the stream is moved on to the first column of the T line, as
// the file reader leaves it.
struct TerminateInput : InputOver {
  explicit TerminateInput(std::string const& t_line)
      : InputOver({record('S', 1, "start"), record('S', 2, "start"), record('G', 1, "1H,,1H;,"),
                   record('G', 2, ""), record('G', 3, ";"), record('D', 1, "     116"),
                   record('D', 2, "     116"), record('P', 1, "116,0.,0.,0.;", 1),
                   record('T', 1, t_line)}) {
    for (int guard = 0; guard < 100; ++guard) {
      if (stream.frozen()) {
        if (!stream.reset()) return;
      } else if (igs_stream_section(stream) == igsSectionTerminate) {
        return;
      } else {
        stream.skip_line();
      }
    }
  }
};

TEST_F(TerminateSectionTest, ReadComparesEachCountWithTheLinesCountedAndRepairs) {
  TerminateInput sound("S      2G      3D      2P      1");
  igsTerminateSection terminate(file.get());
  int blank_lines = 0;
  EXPECT_EQ(terminate.read(sound.stream, blank_lines), 1);
  EXPECT_TRUE(describe(igsTerminateLog).empty());

  TerminateInput bad("X      2G      4D      3P     11");
  EXPECT_EQ(terminate.read(bad.stream), 1);
  EXPECT_EQ(terminate.parameter_lines(), 11);
  EXPECT_EQ(describe(igsTerminateLog),
            (Lines{"igsTerminateSectionBadName(0,\"X\")", "igsTerminateSectionBadCount(1,4,3)",
                   "igsTerminateSectionBadCount(2,3,2)", "igsTerminateSectionBadCount(3,11,1)"}));
  EXPECT_EQ(fix_all(igsTerminateLog), (std::vector<int>{1, 1, 1, 1}));
  EXPECT_EQ(terminate.global_lines() + terminate.directory_lines() + terminate.parameter_lines(),
            3 + 2 + 1);

  // A count the setter refuses stays as it is; the error is settled all the same.
  igsTerminateSectionBadCount odd(igsSectionDirectory, 4, 3);
  odd.set_key(&terminate);
  EXPECT_EQ(odd.fix(), 1);
  EXPECT_EQ(terminate.directory_lines(), 2);

  // Without a T line reading stops at the end of the file.
  InputOver no_t({record('S', 1, "start")});
  no_t.stream.skip_line();
  no_t.stream.reset();
  igsTerminateSection missing;
  EXPECT_EQ(missing.read(no_t.stream), 0);
}

TEST_F(TerminateSectionTest, SettersAndWrite) {
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
  EXPECT_EQ(terminate.set_lines(igsSectionTerminate, 2), 0);
  EXPECT_EQ(terminate.lines(igsSectionNone), igs_unset_int);
  EXPECT_EQ(printed(terminate), "TerminateSection = {\n"
                                "  NoOfLinesInStartSection = 3\n"
                                "  NoOfLinesInGlobalSection = 3\n"
                                "  NoOfLinesInDirectorySection = 9999998\n"
                                "  NoOfLinesInParameterSection = 3\n"
                                "}\n");
  igsTerminateSection copy(file.get());
  copy.become(terminate);
  EXPECT_EQ(printed(copy), printed(terminate));
  EXPECT_EQ(copy.file(), nullptr);

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
  EXPECT_EQ(terminate.start_lines() + terminate.global_lines(), 2);
}

} // namespace
