#include "core/objectTestSupport.h"

#include "core/igsFileErrors.h"

#include <vector>

namespace {

std::vector<int> de_numbers(igsFile const& f) {
  std::vector<int> numbers;
  for (igsFileIT it(&f); ++it;) numbers.push_back(it()->de_number());
  return numbers;
}

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

TEST_F(FileTest, ReplaceEntityMovesReferencesAndTheDeNumber) {
  auto* parent = new testNode;
  auto* old_entity = new testNode(1);
  auto* other = new testNode;
  auto* replacement = new testNode(2);
  parent->add_child(old_entity);
  other->add_child(old_entity);
  igsObjectPtr held(replacement);
  old_entity->add_child(other); // references the old entity held are not carried over
  int old_de = old_entity->de_number();
  ASSERT_EQ(old_de, 3);
  ASSERT_EQ(replacement->de_number(), 7);
  int managers = file->num_managers();

  file->replace_entity(old_entity, replacement);
  EXPECT_EQ(replacement->de_number(), old_de);
  EXPECT_EQ(replacement->num_references(), 3); // 2 moved + 1 it had
  EXPECT_EQ(parent->child(0)(), replacement);
  EXPECT_EQ(other->child(0)(), replacement);
  EXPECT_EQ(other->num_references(), 0);
  EXPECT_EQ(igsObjectPtr(old_de)(), replacement);
  EXPECT_EQ(file->num_entities(), 3);
  EXPECT_EQ(file->num_managers(), managers - 1);
  EXPECT_EQ(de_numbers(*file), (std::vector<int>{1, 3, 5}));
  // The new entity's old slot is free and taken next.
  EXPECT_EQ((new testNode)->de_number(), 7);

  // Calls that name no two entities of this file change nothing.
  auto elsewhere = std::make_unique<igsFile>();
  auto* stranger = new testNode;
  file->replace_entity(replacement, stranger);
  file->replace_entity(replacement, replacement);
  file->replace_entity(nullptr, replacement);
  EXPECT_EQ(replacement->de_number(), old_de);
  EXPECT_EQ(&stranger->file(), elsewhere.get());
  igsObjectSystem::set_current_file(*file);
}

TEST_F(FileTest, PrintShowsEachEntityOnceAndEndsOnCycles) {
  file->set_pathname("part.igs");
  auto* a = new testNode(1);
  auto* b = new testNode(2);
  auto* shared = new testNode(3);
  a->add_child(shared);
  b->add_child(shared);
  b->add_child(b); // a cycle
  b->add_child(igsObjectPtr(99));
  delete new testNode; // a hole: NoOfEntities counts slots
  std::string const text = printed(*file);
  auto count = [&text](std::string const& what) {
    int n = 0;
    for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++n;
    return n;
  };
  EXPECT_EQ(text.rfind("IgesFile = {\n  Pathname = \"part.igs\"\n  NoOfLinesInStartSection", 0),
            0u);
  EXPECT_EQ(count("  NoOfEntities = 4\n  Entities = {\n    @1(9001) = {\n"), 1) << text;
  // The contents of each entity once, where it is first met; later meetings show the head.
  EXPECT_EQ(count("DirectoryEntry = {"), 3) << text;
  EXPECT_EQ(count("Value = 3\n"), 1) << text;
  EXPECT_EQ(count("@5(9001) = {\n"), 3) << text;
  EXPECT_EQ(count("        @3(9001) = {\n        }\n"), 1) << text;
  EXPECT_EQ(count("        (NullPointer)\n"), 1) << text;
  EXPECT_EQ(count("TerminateSection = {"), 1) << text;
  // A print of its own starts a new walk.
  EXPECT_NE(printed(*shared).find("  Value = 3\n}\n"), std::string::npos);
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
