// What the family file and its damage rows do not reach: a composite curve built through the
// setters, and the loss of its members with it.
#include "entities/curves/igs102.h"

#include "entities/curves/igs110.h"
#include "entities/curves/igsCurveErrors.h"
#include "entities/entityTestSupport.h"

using namespace igs_entity_test;

namespace {

using Composite102Test = EntityTest;

TEST_F(Composite102Test, TheSettersGrowAndCutTheList) {
  auto* composite = new igs102;
  auto* line = new igs110;
  igsObjectPtr member(line);
  EXPECT_FALSE(composite->set_sub_curve(-1, member));
  EXPECT_FALSE(composite->set_sub_curve(0, igsObjectPtr()));
  ASSERT_TRUE(composite->set_sub_curve(2, member));
  EXPECT_EQ(composite->number_of_sub_curves(), 3);
  igsObjectPtr got;
  EXPECT_TRUE(composite->sub_curve(0, got));
  EXPECT_FALSE(got);
  EXPECT_TRUE(composite->sub_curve(2, got));
  EXPECT_EQ(got(), line);
  EXPECT_FALSE(composite->sub_curve(3, got) || composite->sub_curve(-1, got));
  EXPECT_EQ(written(*composite), records({"102,3,0,0,3;"}));

  composite->set_size(-1);
  EXPECT_EQ(composite->number_of_sub_curves(), 3);
  composite->set_size(1);
  EXPECT_EQ(composite->number_of_sub_curves(), 1);
  composite->set_size(2);
  EXPECT_EQ(written(*composite), records({"102,2,0,0;"}));
}

// A composite curve that was never read takes the positions as they stand, and keeps track of
// them once a member goes.
TEST_F(Composite102Test, MembersDroppedFromABuiltCurveAreFollowedByPosition) {
  auto* composite = new igs102;
  igs110* lines[3] = {new igs110, new igs110, new igs110};
  for (int i = 0; i < 3; ++i) ASSERT_TRUE(composite->set_sub_curve(i, igsObjectPtr(lines[i])));
  EXPECT_EQ(composite->get_index(2), 2);
  EXPECT_EQ(composite->get_index(3), -1);
  EXPECT_FALSE(composite->remove_sub_curve(3));
  ASSERT_TRUE(composite->remove_sub_curve(0));
  EXPECT_EQ(composite->get_index(0), -1);
  EXPECT_EQ(composite->get_index(2), 1);
  EXPECT_EQ(file->num_entities(), 4);

  // A check names the members where they stand now. The unset lines fail their checks, and
  // the repairs drop them, the second found where the first left it.
  EXPECT_EQ(checked(*composite),
            (std::vector<std::string>{"igs102InvalidSubCurveData(position=0)",
                                      "igs102InvalidSubCurveData(position=1)"}));
  EXPECT_EQ(composite->get_index(1), 1);
  EXPECT_EQ(fix(composite->de_number(), igs102InvalidSubCurveData::type()), 1);
  EXPECT_EQ(composite->get_index(1), 0);
  igsObjectPtr left;
  ASSERT_TRUE(composite->sub_curve(0, left));
  EXPECT_EQ(left(), lines[2]);
  EXPECT_EQ(fix(composite->de_number(), igs102InvalidSubCurveData::type()), 1);
  EXPECT_EQ(composite->number_of_sub_curves(), 0);
}

// Dropping the last reference to a composite curve deletes what it alone held.
TEST_F(Composite102Test, ItsMembersGoWithItWhenNothingElseHoldsThem) {
  auto* composite = new igs102;
  auto* own = new igs110;
  auto* shared = new igs110;
  igsObjectPtr keep(shared);
  ASSERT_TRUE(composite->set_sub_curve(0, igsObjectPtr(own)));
  ASSERT_TRUE(composite->set_sub_curve(1, keep));
  igsObjectPtr top(composite);
  top.unreference();
  EXPECT_EQ(file->num_entities(), 1);
  EXPECT_EQ(keep(), shared);
}

} // namespace
