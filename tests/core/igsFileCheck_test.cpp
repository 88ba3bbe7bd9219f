#include "core/objectTestSupport.h"

#include "entities/structure/igs410_0.h"

#include <climits>
#include <string>
#include <vector>

namespace {

// A kind of view that is not the view class itself: the number check passes it by.
class testDerivedView : public igs410_0 {
  KVU_DECLARE_TYPE()
 protected:
  igsObject* make_one() override { return new testDerivedView; }
};
KVU_DEFINE_TYPE(testDerivedView, igs410_0)

// Collects the int arguments of an error.
struct IntArguments : igsErrorArgumentVisitor {
  void argument(char const*, int value) override { values.push_back(value); }
  void argument(char const*, double) override {}
  void argument(char const*, char) override {}
  void argument(char const*, utString const&) override {}
  std::vector<int> values;
};

class FileCheckTest : public FileTest {
 protected:
  // The active errors of a section log as "Class@key(arguments)", in log order.
  static std::vector<std::string> errors_in(igsSimpleSectionLog& section) {
    std::vector<std::string> found;
    for (igsSimpleSectionLogIT it(&section); ++it;) {
      igsError* e = it();
      std::string text = e->objtype().name();
      if (e->typeof(igsIndexedError::id))
        text += "@" + std::to_string(static_cast<igsIndexedError*>(e)->key());
      IntArguments arguments;
      e->visit_arguments(arguments);
      text += "(";
      for (size_t i = 0; i < arguments.values.size(); ++i)
        text += (i ? "," : "") + std::to_string(arguments.values[i]);
      found.push_back(text + ")");
    }
    return found;
  }
  std::vector<std::string> object_errors() { return errors_in(object_log()); }
  std::vector<int> entities() const {
    std::vector<int> numbers;
    for (igsFileIT it(file.get()); ++it;) numbers.push_back(it()->de_number());
    return numbers;
  }
  // What a reference reaches, or null.
  static void* target_of(igsObjectPtr const& reference) { return reference; }
  static std::string at(igsObject const* entity) {
    return "@" + std::to_string(entity->de_number());
  }
};

class ViewNumberTest : public FileCheckTest {
 protected:
  std::vector<int> numbers(std::vector<igs410_0*> const& views) const {
    std::vector<int> result;
    for (igs410_0* v : views) result.push_back(v->view_number());
    return result;
  }
  static igs410_0* view(int number) {
    auto* made = new igs410_0;
    made->set_view_number(number);
    return made;
  }
  std::vector<igs410_0*> views(std::vector<int> const& numbers) const {
    std::vector<igs410_0*> made;
    for (int n : numbers) made.push_back(view(n));
    return made;
  }
};

TEST_F(FileCheckTest, CheckRaisesObjectErrorsAfreshWhileStructureErrorsStay) {
  auto* shared = new testNode(-1);
  auto* first = new testNode(1);
  auto* second = new testNode(2);
  first->add_child(shared);
  second->add_child(shared);
  shared->raise_structure_error();
  file->check();
  // Each entity is checked once in the walk, whoever refers to it.
  EXPECT_EQ(shared->checks(), 1);
  EXPECT_EQ(first->checks(), 1);
  std::string s = at(shared);
  EXPECT_EQ(object_errors(), (std::vector<std::string>{"testNodeNegativeValue" + s + "(-1)",
                                                       "testNodeBadChild" + at(first) + "(0)",
                                                       "testNodeBadChild" + at(second) + "(0)"}));
  EXPECT_EQ(errors_in(structure_log()),
            std::vector<std::string>{"testNodeOddValue" + s + "(" + s.substr(1) + ",-1)"});

  // A second check replaces the object errors by what it finds now.
  shared->set_value(-7);
  file->check();
  EXPECT_EQ(shared->checks(), 2);
  EXPECT_EQ(object_log().num_errors(), 3);
  EXPECT_EQ(object_errors()[0], "testNodeNegativeValue" + s + "(-7)");
  shared->set_value(5);
  file->check();
  // The structure error that stays still makes the shared entity fail its check.
  EXPECT_EQ(object_errors(), (std::vector<std::string>{"testNodeBadChild" + at(first) + "(0)",
                                                       "testNodeBadChild" + at(second) + "(0)"}));
  EXPECT_EQ(structure_log().num_errors(), 1);
  EXPECT_EQ(shared->num_logged_errors(), 1);
}

// A parent with a bad and a good child, and an entity apart whose structure error is settled by
// its repair.
class CleanTest : public FileCheckTest {
 protected:
  CleanTest() {
    parent->add_child(bad);
    parent->add_child(good);
    settled->raise_structure_error();
  }
  testNode* parent = new testNode(1);
  testNode* bad = new testNode(-1);
  testNode* good = new testNode(2);
  testNode* settled = new testNode(3);
};

TEST_F(CleanTest, CleanZeroRepairsAndKeepsEveryEntity) {
  file->clean(0);
  EXPECT_EQ(file->num_entities(), 4);
  EXPECT_EQ(object_errors(), (std::vector<std::string>{"testNodeNegativeValue" + at(bad) + "(-1)",
                                                       "testNodeBadChild" + at(parent) + "(0)"}));
  EXPECT_EQ(settled->num_logged_errors(), 0);
  EXPECT_EQ(structure_log().num_errors(), 0);
  EXPECT_EQ(target_of(parent->child(0)), bad);
}

TEST_F(CleanTest, CleanOneLeavesOnlyTheEntitiesWithoutLoggedErrors) {
  igsObjectPtr held_bad(bad);
  igsObjectPtr held_parent(parent);
  igsObjectPtr held_good(good);
  int good_de = good->de_number(), settled_de = settled->de_number();
  file->clean(1);
  EXPECT_EQ(entities(), (std::vector<int>{good_de, settled_de}));
  EXPECT_FALSE(held_bad);
  EXPECT_FALSE(held_parent);
  EXPECT_EQ(target_of(held_good), good);
  // The errors of the deleted entities stay under their DE numbers.
  EXPECT_EQ(object_log().num_errors(), 2);
}

TEST_F(ViewNumberTest, ProposalsPastTheLargestIntTakeTheLowestFreeNumbers) {
  std::vector<igs410_0*> v = views({INT_MAX, 1, INT_MAX, igs_unset_int, 3});
  file->clean(0);
  EXPECT_EQ(numbers(v), (std::vector<int>{INT_MAX, 1, 2, 4, 3}));
  EXPECT_EQ(object_log().num_errors(), 0);
}

} // namespace
