#include "core/objectTestSupport.h"

#include "core/igsFileErrors.h"

#include <vector>

namespace {

using FileErrorTest = FileTest;

TEST_F(FileErrorTest, AnEntityTagsStructureErrorsWithItsFilesStreamOnly) {
  kvnabsStringOutput sink;
  auto* node = new testNode(1);
  node->raise_structure_error(); // before the stream is set: silent
  file->set_message_stream(&sink);
  node->raise_structure_error();
  std::vector<kvnabsOutput*> streams;
  for (igsSimpleSectionLogIT it(&structure_log()); ++it;) {
    streams.push_back(it()->message_stream());
    EXPECT_EQ(static_cast<igsIndexedError*>(it())->key(), node->de_number());
  }
  EXPECT_EQ(streams, (std::vector<kvnabsOutput*>{nullptr, &sink}));
  EXPECT_EQ(node->num_logged_errors(), 2);
}

} // namespace
