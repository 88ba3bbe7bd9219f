#include "core/objectTestSupport.h"

#include <string>
#include <vector>

namespace {

enum testColour { testRed = 2, testBlue = 4 };

// Rows as an entity's table would hold them.
IGS_ERROR_DECLARE(testMixedArguments, igsStructureError, REPORT, (double, tolerance),
                  (char, letter), (utString, label), (testColour, colour), (int, de_number),
                  (int, other))
IGS_ERROR_DECLARE(testManyArguments, igsObjectError, SETTLED, (int, a1), (int, a2), (int, a3),
                  (int, a4), (int, a5), (int, a6), (int, a7), (int, a8), (int, a9), (int, a10),
                  (int, a11), (int, a12))
IGS_ERROR_DECLARE(testInvalidChildData, igsObjectError, FIX_OBJ, (int, child_index))
IGS_ERROR_DECLARE(testGroupBadMember, igsCompoundEntityError, REPORT, (int, member))
IGS_ERROR_DEFINE(testMixedArguments, igsStructureError, REPORT)
IGS_ERROR_DEFINE(testManyArguments, igsObjectError, SETTLED)
IGS_ERROR_DEFINE(testInvalidChildData, igsObjectError, FIX_OBJ)
IGS_ERROR_DEFINE(testGroupBadMember, igsCompoundEntityError, REPORT)

int obj_lookups = 0;

// Names the child that must be repaired first, found once from the key and cached; 0 when
// the child has gone.
int testInvalidChildData::obj() {
  if (cached_obj()) return cached_obj();
  ++obj_lookups;
  igsObjectPtr parent(key());
  if (!parent || !parent->typeof(testNode::type())) return 0;
  auto& node = static_cast<testNode&>(*parent);
  if (child_index() >= node.num_children() || !node.child(child_index())) return 0;
  set_cached_obj(node.child(child_index())->de_number());
  return cached_obj();
}

// Keeps the child if its own repairs cleared it, else drops it with a warning.
int testInvalidChildData::fix() {
  igsObjectPtr parent(key());
  if (!parent || !parent->typeof(testNode::type())) return 0;
  auto& node = static_cast<testNode&>(*parent);
  if (child_index() >= node.num_children()) return 0;
  igsObjectPtr& child = node.child(child_index());
  if (child && child->num_logged_errors() == 0) return 1;
  message("Warning : child %d removed from ig%d\n", child ? child->de_number() : 0, key());
  child = igsObjectPtr();
  return 1;
}

class Recorder : public igsErrorArgumentVisitor {
 public:
  void argument(char const* name, int value) override { add(name, "int " + std::to_string(value)); }
  void argument(char const* name, double value) override {
    add(name, "double " + std::to_string(value));
  }
  void argument(char const* name, char value) override { add(name, std::string("char ") + value); }
  void argument(char const* name, utString const& value) override {
    add(name, "string " + std::string(value.view()));
  }
  std::vector<std::string> seen;

 private:
  void add(char const* name, std::string const& value) { seen.push_back(name + (" " + value)); }
};

using ErrorClassTest = FileTest;

TEST_F(ErrorClassTest, ARowGivesConstructorAccessorsVisitAndTypeRecord) {
  auto* e = new testMixedArguments(0.5, 'x', "arc", testBlue, 17, 3);
  EXPECT_EQ(e->tolerance(), 0.5);
  EXPECT_EQ(e->letter(), 'x');
  EXPECT_EQ(e->label(), "arc");
  EXPECT_EQ(e->colour(), testBlue);
  EXPECT_EQ(e->arguments().other, 3);
  EXPECT_EQ(e->key(), 17); // the first int argument
  EXPECT_EQ(e->fix(), 0);  // a structure error reported, not repaired
  Recorder r;
  e->visit_arguments(r);
  EXPECT_EQ(r.seen, (std::vector<std::string>{"tolerance double 0.500000", "letter char x",
                                              "label string arc", "colour int 4",
                                              "de_number int 17", "other int 3"}));
  EXPECT_STREQ(e->objtype().name(), "testMixedArguments");
  EXPECT_TRUE(e->isa(testMixedArguments::type()));
  EXPECT_TRUE(e->typeof(igsIndexedError::type()));
  EXPECT_TRUE(e->typeof(igsError::type()));
  EXPECT_FALSE(e->typeof(igsObjectError::type()));
  EXPECT_FALSE(e->isa(igsStructureError::type()));
  EXPECT_EQ(structure_log().num_errors(17), 1);

  auto* many = new testManyArguments(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12);
  Recorder all;
  many->visit_arguments(all);
  ASSERT_EQ(all.seen.size(), 12u);
  EXPECT_EQ(all.seen.back(), "a12 int 12");
  EXPECT_EQ(many->key(), igsIndexedError::unset_key); // object errors are keyed by their tag
  EXPECT_EQ(many->fix(), 1);

  auto* member = new testGroupBadMember(4);
  EXPECT_EQ(member->index(), 4);
  EXPECT_EQ(member->member(), 4);
  EXPECT_EQ(member->fix(), 0);
  member->set_key(9);
  EXPECT_EQ(member->obj(), 9);
}

} // namespace
