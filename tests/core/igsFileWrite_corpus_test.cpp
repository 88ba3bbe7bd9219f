// Every real file, read and written: the text passes the structural check, reads back to the
// same entities with the same values, and writing that gives the same bytes again.
#include "core/roundTripCheck.h"
#include "support/testSupport.h"

#include <gtest/gtest.h>

namespace {

TEST(WriteCorpus, EveryFileWrittenReadsBackTheSameAndWritesTheSameAgain) {
  IGS_REQUIRE_CORPUS(files);
  int entities = 0;
  for (auto const& path : files) {
    int result = 0;
    std::unique_ptr<igsFile> file = igs_test::read_text(igs_test::read_file(path), result);
    // A file that does not read to its end is written as far as it was read.
    entities += file->num_entities();
    EXPECT_EQ(igs_test::round_trip_faults(*file, path.filename().string()),
              std::vector<std::string>{});
  }
  // The corpus holds entities of the classes the library has.
  EXPECT_GT(entities, 0);
}

} // namespace
