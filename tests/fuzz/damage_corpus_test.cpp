// Every real file, with every damage, taken down the whole road of reading, checking,
// repairing and writing. One test per file, so that the files spread over the test jobs.
#include "fuzz/damage.h"
#include "support/testSupport.h"
#include "support/wholeRoad.h"

#include <gtest/gtest.h>

#include <cctype>

namespace {

class DamagedCorpus : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(DamagedCorpus, EveryDamageTakesTheWholeRoad) {
  std::string const bytes = igs_test::read_file(GetParam());
  std::string const name = GetParam().filename().string();
  for (auto const& copy : igs_test::damaged_copies(bytes)) {
    auto faults = igs_test::whole_road_faults(copy.bytes, name + ", " + copy.what);
    std::string text;
    for (auto const& f : faults) text += f + "\n";
    EXPECT_TRUE(faults.empty()) << text;
  }
}

std::string file_test_name(testing::TestParamInfo<std::filesystem::path> const& info) {
  std::string name = info.param.stem().string();
  for (char& c : name)
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  return name;
}

INSTANTIATE_TEST_SUITE_P(RealFiles, DamagedCorpus, testing::ValuesIn(igs_test::corpus_files()),
                         file_test_name);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(DamagedCorpus);

} // namespace
