// Our own files, damaged and as they are, and the inputs that once broke the library, taken
// down the whole road of reading, checking, repairing and writing.
#include "fuzz/damage.h"
#include "support/testSupport.h"
#include "support/wholeRoad.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> files_in(fs::path const& folder) {
  std::vector<fs::path> files;
  std::error_code ec;
  for (auto const& entry : fs::directory_iterator(folder, ec))
    if (entry.is_regular_file(ec)) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

std::string faults_text(std::vector<std::string> const& faults) {
  std::string text;
  for (auto const& f : faults) text += f + "\n";
  return text;
}

// Each input kept from fuzzing once crashed, hung or broke a promise of the library.
TEST(Regression, EveryKeptInputTakesTheWholeRoad) {
  auto files = files_in(igs_test::source_dir() / "tests/fuzz/regressions");
  ASSERT_FALSE(files.empty());
  for (auto const& file : files) {
    auto faults = igs_test::whole_road_faults(igs_test::read_file(file), file.filename());
    EXPECT_TRUE(faults.empty()) << faults_text(faults);
  }
}

// The shipped samples and the fuzzer's seeds, whole and with every damage.
TEST(Damage, OurFilesAndTheirDamagedCopiesTakeTheWholeRoad) {
  auto files = files_in(igs_test::source_dir() / "examples");
  auto seeds = files_in(igs_test::source_dir() / "fuzz/seeds");
  files.insert(files.end(), seeds.begin(), seeds.end());
  ASSERT_GE(files.size(), 4u);
  for (auto const& file : files) {
    std::string const bytes = igs_test::read_file(file);
    std::string name = file.filename().string();
    auto faults = igs_test::whole_road_faults(bytes, name);
    EXPECT_TRUE(faults.empty()) << faults_text(faults);
    for (auto const& copy : igs_test::damaged_copies(bytes)) {
      faults = igs_test::whole_road_faults(copy.bytes, name + ", " + copy.what);
      EXPECT_TRUE(faults.empty()) << faults_text(faults);
    }
  }
}

} // namespace
