#include "core/objectTestSupport.h"

namespace {

using ReferenceTest = FileTest;

TEST_F(ReferenceTest, DeletingAnEntityNullsEveryReferenceAtOnce) {
  auto* target = new testNode;
  auto* holder = new testNode;
  igsObjectPtr direct(target);
  igsObjectPtr by_number(target->de_number());
  igsObjectPtr copy(direct);
  holder->add_child(target);
  igsObjectPtrcoDynArr many;
  for (int i = 0; i < 40; ++i) many.append(direct); // the array moves its elements as it grows
  EXPECT_EQ(target->num_references(), 44);
  for (igsObjectPtr const& p : many) ASSERT_EQ(p(), target);

  delete target;
  EXPECT_FALSE(direct);
  EXPECT_FALSE(by_number);
  EXPECT_FALSE(copy);
  EXPECT_FALSE(holder->child(0));
  for (igsObjectPtr const& p : many) EXPECT_FALSE(p);
  EXPECT_EQ(file->num_entities(), 1);
  EXPECT_EQ(file->num_slots(), 2);
}

TEST_F(ReferenceTest, UnreferenceRunsDownWhatOnlyTheParentHolds) {
  auto* root = new testNode;
  auto* owned = new testNode;
  auto* leaf = new testNode;
  auto* shared = new testNode;
  root->add_child(owned);
  owned->add_child(leaf);
  owned->add_child(shared);
  igsObjectPtr keeper(shared);
  int leaf_de = leaf->de_number();

  // Two references: the first unreference nulls only itself.
  igsObjectPtr second(owned);
  second.unreference();
  EXPECT_FALSE(second);
  EXPECT_EQ(file->num_entities(), 4);

  // The last one deletes the entity and what only it held; `leaf` loses its last holder too.
  root->drop_child(0);
  EXPECT_FALSE(root->child(0));
  EXPECT_EQ(file->num_entities(), 2);
  EXPECT_FALSE(igsObjectPtr(leaf_de));
  EXPECT_EQ(keeper(), shared);
  EXPECT_EQ(shared->num_references(), 1);
}

TEST_F(ReferenceTest, UnreferenceOfTwoEntitiesHoldingOnlyEachOtherDeletesBoth) {
  auto* a = new testNode;
  auto* b = new testNode;
  a->add_child(b);
  b->add_child(a);
  new testNode;     // stays
  a->drop_child(0); // b goes, its reference to a was a's last, so a goes too
  EXPECT_EQ(file->num_entities(), 1);
}

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
