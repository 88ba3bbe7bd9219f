// The library example of the README, as it stands there, on the shipped sample: it must keep
// compiling and doing what the README says.
#include "core/igsFile.h"
#include "core/igsObjectSystem.h"
#include "entities/curves/igs110.h"
#include "errors/igsErrorLog.h"
#include "support/testSupport.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

TEST(Readme, LibraryExampleReadsRepairsWalksAndWrites) {
  auto sample = igs_test::source_dir() / "examples" / "bracket-damaged.igs";
  auto written = std::filesystem::temp_directory_path() / "igs-readme-example.igs";
  std::ostringstream report;
  int lines = 0;
  {
    igsFile file; // the file made last is the current file
    std::ifstream in(sample, std::ios::binary);
    std::ostringstream diagnostics;
    utOstream messages(diagnostics);
    ASSERT_TRUE(file.read(in, messages));

    file.clean(0); // check, then repair children before parents
    for (igsFileTypeIT it(&file, igs110::type()); ++it;) {
      igs110 const* line = static_cast<igs110 const*>(it());
      giPoint3 a = line->start_point(), b = line->end_point();
      EXPECT_FALSE(a.invalid() || b.invalid());
      ++lines;
    }
    for (igsSimpleSectionLogIT it(&igsObjectSystem::log().get_section_log(igsObjectLog)); ++it;)
      report << it()->objtype().name() << "\n"; // what stays bad, by error class

    std::ofstream out(written, std::ios::binary);
    EXPECT_TRUE(file.write(out, messages)); // 80-column lines, renumbered
  }
  EXPECT_EQ(lines, 16); // the outline's and the solid's edges
  EXPECT_EQ(report.str(), "");
  EXPECT_EQ(igs_test::read_file(written),
            igs_test::read_file(igs_test::source_dir() / "examples" / "bracket.igs"));
  std::filesystem::remove(written);
}
