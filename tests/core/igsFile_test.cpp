#include "core/objectTestSupport.h"

#include "core/igsFileErrors.h"

#include <vector>

namespace {

TEST(FileSystemTest, TheFileMadeLastIsCurrentAndEntitiesJoinTheCurrentFile) {
  auto first = std::make_unique<igsFile>();
  EXPECT_EQ(&igsObjectSystem::file(), first.get());
  auto* a = new testNode;
  auto second = std::make_unique<igsFile>();
  EXPECT_EQ(&igsObjectSystem::file(), second.get());
  auto* b = new testNode;
  EXPECT_EQ(&a->file(), first.get());
  EXPECT_EQ(&b->file(), second.get());
  EXPECT_EQ(a->de_number(), 1);
  EXPECT_EQ(b->de_number(), 1);

  // DE numbers bind in the current file.
  EXPECT_EQ(igsObjectPtr(1)(), b);
  igsObjectSystem::set_current_file(*first);
  EXPECT_EQ(igsObjectPtr(1)(), a);
  auto* c = new testNode;
  EXPECT_EQ(&c->file(), first.get());
  EXPECT_EQ(c->de_number(), 3);

  igsFilecoDynArrPtrcoPtrcoDynArr files;
  igsObjectSystem::get_all_files(files);
  ASSERT_EQ(files.size(), igsObjectSystem::num_files());
  std::vector<igsFile*> open(files.begin(), files.end());
  auto at = [&](igsFile* f) { return std::find(open.begin(), open.end(), f) - open.begin(); };
  // Both are listed, once each; their order is that of the slots, which files closed earlier in
  // the process may have freed in any order.
  EXPECT_LT(at(first.get()), files.size());
  EXPECT_LT(at(second.get()), files.size());
  EXPECT_EQ(std::count(open.begin(), open.end(), first.get()), 1);
  EXPECT_EQ(std::count(open.begin(), open.end(), second.get()), 1);

  // A reference from one file's entity to another's is nulled when that file closes.
  a->add_child(b);
  int open_before = igsObjectSystem::num_files();
  second.reset();
  EXPECT_FALSE(a->child(0));
  EXPECT_EQ(igsObjectSystem::num_files(), open_before - 1);
  // The closed file was not current: the current file stays.
  EXPECT_EQ(&igsObjectSystem::file(), first.get());

  // Closing the current file leaves the lowest open slot current: the system's own file.
  first.reset();
  igsObjectSystem::get_all_files(files);
  ASSERT_GT(files.size(), 0);
  EXPECT_EQ(&igsObjectSystem::file(), files[0]);
}

TEST_F(FileTest, DirectoryEntrySettersRefuseWhatTheyCannotHold) {
  auto* a = new testNode;
  auto* b = new testNode;
  igsDirectoryEntry& de = a->directory_entry();
  EXPECT_EQ(de.entity_type(), testNode::type_number);
  EXPECT_EQ(de.form_number(), 0);
  ASSERT_NE(de.manager(), nullptr);
  EXPECT_NE(de.manager(), b->directory_entry().manager());
  EXPECT_EQ(de.line_font().value(), 1);
  EXPECT_EQ(de.set_view(igsObjectPtr()), 0);
  EXPECT_EQ(de.set_view(b), 1);
  EXPECT_EQ(de.view()(), b);
  de.remove_view();
  EXPECT_FALSE(de.view());
  EXPECT_EQ(de.set_entity_label(utString()), 0);
  EXPECT_EQ(de.set_entity_label("POINT"), 1);
  EXPECT_EQ(de.entity_label(), "POINT");
  EXPECT_EQ(de.set_entity_subscript(-1), 0);
  EXPECT_EQ(de.set_entity_subscript(7), 1);
  EXPECT_EQ(de.entity_subscript(), 7);
  EXPECT_EQ(de.set_line_weight_number(-2), 0);
  EXPECT_EQ(de.line_weight_number(), 0);
  de.set_structure(-5);
  EXPECT_EQ(de.structure(), -5);
  // Numbers as large as a field holds, at either end, are kept whole and copied whole.
  for (int big : {32767, 32768, 99999999}) {
    EXPECT_EQ(de.set_entity_subscript(big), 1);
    EXPECT_EQ(de.set_line_weight_number(big + 1), 1);
    de.set_structure(-big);
    b->directory_entry().become(de);
    for (igsDirectoryEntry const* e : {&de, &b->directory_entry()}) {
      EXPECT_EQ(e->entity_subscript(), big);
      EXPECT_EQ(e->line_weight_number(), big + 1);
      EXPECT_EQ(e->structure(), -big);
    }
  }

  // The DE's references are dropped with the entity's children.
  auto* label = new testNode;
  de.set_label_display(label);
  de.set_view(b);
  igsObjectPtr keep_b(b);
  a->drop_children();
  EXPECT_FALSE(de.view());
  EXPECT_FALSE(de.label_display());
  EXPECT_EQ(file->num_entities(), 2); // the label display went, b is still held
}

} // namespace
