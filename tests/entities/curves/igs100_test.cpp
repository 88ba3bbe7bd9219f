#include "entities/curves/igs100.h"

#include "entities/curves/igsCurveErrors.h"
#include "entities/entityTestSupport.h"

#include <cmath>

using namespace igs_entity_test;

namespace {

using Arc100Test = EntityTest;

std::vector<std::string> const none;
std::vector<std::string> const inconsistent = {"igs100InconsistRad"};

// An arc in the plane Z = 0 with the given centre and ends.
igs100* arc(giPoint2 centre, giPoint2 start, giPoint2 end) {
  auto* a = new igs100;
  a->set_z_level(0.0);
  a->set_centre(centre);
  a->set_start_point(start);
  a->set_end_point(end);
  return a;
}

TEST_F(Arc100Test, ReadsInFileOrderAndPrintsInItsOwnOrder) {
  auto* a = new igs100;
  ASSERT_EQ(read(*a, {"100,2.5,1.,1.,2.,1.,1.,2.;"}), 1);
  EXPECT_EQ(a->z_level(), 2.5);
  EXPECT_EQ(a->centre(), giPoint2(1, 1));
  giPoint2 start, end;
  a->end_points(start, end);
  EXPECT_EQ(start, giPoint2(2, 1));
  EXPECT_EQ(end, giPoint2(1, 2));
  EXPECT_EQ(written(*a), records({"100,2.5,1.,1.,2.,1.,1.,2.;"}));
  EXPECT_EQ(printed(*a), "ZLevel = 2.5\n"
                         "Centre = (1, 1)\n"
                         "StartPoint = (2, 1)\n"
                         "EndPoint = (1, 2)\n");
  EXPECT_EQ(checked(*a), none);

  // The setters refuse invalid points and keep the old ones.
  EXPECT_FALSE(a->set_centre(giPoint2()));
  EXPECT_FALSE(a->set_start_point(giPoint2(0, DBL_MAX)));
  EXPECT_FALSE(a->set_end_point(giPoint2(DBL_MAX, 0)));
  EXPECT_EQ(written(*a), records({"100,2.5,1.,1.,2.,1.,1.,2.;"}));
}

TEST_F(Arc100Test, RaisesAtMostOneErrorOfConstructionRadiusOrConsistency) {
  // Nothing set, then each missing piece alone: the arc cannot be built.
  EXPECT_EQ(checked(*new igs100), std::vector<std::string>{"igs100NoConstruct"});
  auto* no_centre = arc(giPoint2(), giPoint2(1, 0), giPoint2(0, 1));
  EXPECT_EQ(checked(*no_centre), std::vector<std::string>{"igs100NoConstruct"});
  auto* no_z = arc(giPoint2(0, 0), giPoint2(1, 0), giPoint2(0, 1));
  no_z->set_z_level(igs_unset_double);
  EXPECT_EQ(checked(*no_z), std::vector<std::string>{"igs100NoConstruct"});
  auto* no_end = arc(giPoint2(0, 0), giPoint2(1, 0), giPoint2());
  EXPECT_EQ(checked(*no_end), std::vector<std::string>{"igs100NoConstruct"});

  // The centre on both ends has no radius: ZeroRadius, not InconsistRad.
  auto* dot = arc(giPoint2(3, 4), giPoint2(3, 4), giPoint2(3, 4));
  EXPECT_EQ(checked(*dot), std::vector<std::string>{"igs100ZeroRadius"});
  // Equal ends at the right radius make a full circle.
  EXPECT_EQ(checked(*arc(giPoint2(3, 4), giPoint2(5, 4), giPoint2(5, 4))), none);
  // One end on the centre: the radii differ as much as they can.
  EXPECT_EQ(checked(*arc(giPoint2(0, 0), giPoint2(0, 0), giPoint2(0, 1))), inconsistent);

  // The difference is measured against the sum of the radii: 1.5e-6 apart on radii of about
  // 1 is 7.5e-7 of the sum (accepted) though 1.5e-6 of the mean; 2.5e-6 apart is not.
  EXPECT_EQ(kvnTolRadiusDiff.value(), 1e-6);
  EXPECT_EQ(checked(*arc(giPoint2(0, 0), giPoint2(1, 0), giPoint2(0, 1 + 1.5e-6))), none);
  EXPECT_EQ(checked(*arc(giPoint2(0, 0), giPoint2(1, 0), giPoint2(0, 1 + 2.5e-6))), inconsistent);
}

TEST_F(Arc100Test, InconsistentRadiusRepairMovesTheCentreOntoTheBisectorOnItsSide) {
  // Chord from (1, 0) to (-1, 0); the centre stands above it, off the bisector.
  auto* a = arc(giPoint2(0.3, 0.5), giPoint2(1, 0), giPoint2(-1, 0));
  ASSERT_EQ(checked(*a), inconsistent);
  double r1 = std::hypot(0.7, 0.5), r2 = std::hypot(1.3, 0.5);
  double mean = (r1 + r2) * 0.5;
  EXPECT_EQ(fix(a->de_number(), igs100InconsistRad::type()), 1);

  giPoint2 centre = a->centre();
  EXPECT_EQ(centre.x(), 0.0);
  EXPECT_NEAR(centre.y(), std::sqrt(mean * mean - 1.0), 1e-15);
  EXPECT_GT(centre.y(), 0.0);
  EXPECT_NEAR(distance(centre, giPoint2(1, 0)), mean, 1e-15);
  EXPECT_NEAR(distance(centre, giPoint2(-1, 0)), mean, 1e-15);
  // The ends stay, and the arc now passes.
  EXPECT_EQ(a->start_point(), giPoint2(1, 0));
  EXPECT_EQ(a->end_point(), giPoint2(-1, 0));
  EXPECT_EQ(checked(*a), none);

  // Below the chord it stays below; a slanted chord keeps the same rule.
  auto* below = arc(giPoint2(-0.2, -0.9), giPoint2(1, 0), giPoint2(-1, 0));
  ASSERT_EQ(checked(*below), inconsistent);
  EXPECT_EQ(fix(below->de_number(), igs100InconsistRad::type()), 1);
  EXPECT_EQ(below->centre().x(), 0.0);
  EXPECT_LT(below->centre().y(), 0.0);
  auto* slanted = arc(giPoint2(2, 1), giPoint2(0, 0), giPoint2(2, 2));
  ASSERT_EQ(checked(*slanted), inconsistent);
  EXPECT_EQ(fix(slanted->de_number(), igs100InconsistRad::type()), 1);
  giPoint2 c = slanted->centre();
  EXPECT_NEAR(c.x() + c.y(), 2.0, 1e-15); // on the bisector x + y = 2
  EXPECT_GT(c.x(), 1.0);                  // on the side of the old centre
  EXPECT_NEAR(distance(c, giPoint2(0, 0)), (std::sqrt(5.0) + 1.0) * 0.5, 1e-15);
  EXPECT_EQ(checked(*slanted), none);
}

TEST_F(Arc100Test, InconsistentRadiusRepairEdgeCases) {
  // A centre on the chord: the mean radius is the half chord, and the centre lands on the
  // chord's midpoint.
  auto* a = arc(giPoint2(0.5, 0), giPoint2(1, 0), giPoint2(-1, 0));
  ASSERT_EQ(checked(*a), inconsistent);
  EXPECT_EQ(fix(a->de_number(), igs100InconsistRad::type()), 1);
  EXPECT_EQ(a->centre(), giPoint2(0, 0));
  EXPECT_EQ(checked(*a), none);

  // Ends that became equal after the check leave no chord: nothing to go by, the error stays.
  auto* b = arc(giPoint2(0.5, 0), giPoint2(1, 0), giPoint2(-1, 0));
  ASSERT_EQ(checked(*b), inconsistent);
  b->set_end_point(giPoint2(1, 0));
  EXPECT_EQ(fix(b->de_number(), igs100InconsistRad::type()), 0);
  EXPECT_EQ(b->centre(), giPoint2(0.5, 0));
  EXPECT_EQ(errors(*b), inconsistent);

  // An error whose number no longer names an arc repairs nothing.
  int de_number = b->de_number();
  delete b;
  EXPECT_EQ(fix(de_number, igs100InconsistRad::type()), 0);
}

} // namespace
