#include "core/objectTestSupport.h"

namespace {

using ReferenceTest = FileTest;

TEST_F(ReferenceTest, ReferenceListGrowsBySteps2Then16Then128) {
  auto* target = new testNode;
  igsObjectManager const& manager = *target->directory_entry().manager();
  ASSERT_EQ(manager.object(), target);
  ASSERT_EQ(manager.directory_entry(), &target->directory_entry());
  igsObjectPtrcoDynArr refs(2000, 0);
  struct Step {
    int references, increment;
  };
  for (Step step :
       {Step{1, 2}, {16, 2}, {17, 16}, {128, 16}, {129, 128}, {1024, 128}, {1025, 1024}}) {
    while (refs.size() < step.references) refs.append(igsObjectPtr(target));
    EXPECT_EQ(manager.num_references(), step.references);
    EXPECT_EQ(manager.pointer_list_increment(), step.increment) << step.references;
    EXPECT_GE(manager.pointer_list_capacity(), step.references);
    EXPECT_LT(manager.pointer_list_capacity(), step.references + step.increment * 8);
  }
  // Freed positions are reused before the list grows again.
  int capacity = manager.pointer_list_capacity();
  for (int i = 0; i < 100; ++i) refs[i] = igsObjectPtr();
  for (int i = 0; i < 100; ++i) refs[i] = target;
  EXPECT_EQ(manager.pointer_list_capacity(), capacity);
  EXPECT_EQ(manager.num_references(), 1025);
  int walked = 0;
  for (igsObjectManagerIT it(target->directory_entry().manager()); ++it;) {
    EXPECT_EQ((*it())(), target);
    ++walked;
  }
  EXPECT_EQ(walked, 1025);
}

} // namespace
