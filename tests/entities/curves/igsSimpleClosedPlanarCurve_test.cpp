#include "entities/curves/igsSimpleClosedPlanarCurve.h"

#include "entities/entityTestSupport.h"

using namespace igs_entity_test;

namespace {

using ClosedCurveTest = EntityTest;

TEST_F(ClosedCurveTest, ReadsWritesAndPrintsAClosedPolygon) {
  auto* c = new igsSimpleClosedPlanarCurve;
  EXPECT_EQ(c->directory_entry().form_number(), 63);
  ASSERT_EQ(read(*c, {"106,1,4,2.,0.,0.,1.,0.,1.,1.,0.,0.;"}), 1);
  EXPECT_EQ(c->z_level(), 2.0);
  EXPECT_EQ(c->number_of_points(), 4);
  giPoint2 p;
  ASSERT_TRUE(c->point(2, p));
  EXPECT_EQ(p, giPoint2(1, 1));
  EXPECT_FALSE(c->point(4, p));
  EXPECT_FALSE(c->point(-1, p));
  EXPECT_EQ(written(*c), records({"106,1,4,2.,0.,0.,1.,0.,1.,1.,0.,0.;"}));
  EXPECT_EQ(printed(*c), "Flags = {\n"
                         "  InterpretationFlag = XYCommonZ\n"
                         "}\n"
                         "NumberOfTuples = 4\n"
                         "Common-Z-Level =2\n"
                         "XYTuples {\n"
                         "  (0) = (0, 0)\n"
                         "  (1) = (1, 0)\n"
                         "  (2) = (1, 1)\n"
                         "  (3) = (0, 0)\n"
                         "}\n");
  EXPECT_EQ(checked(*c), std::vector<std::string>{});

  // Only flag 1 and a count of 0 or more are read.
  EXPECT_EQ(read(*c, {"106,2,3,0.,0.,0.,1.;"}), 0);
  EXPECT_EQ(errors(*c), std::vector<std::string>{"igsSCPCInvalidIP(ip=2)"});
  auto* d = new igsSimpleClosedPlanarCurve;
  EXPECT_EQ(read(*d, {"106,1,-4,0.;"}), 0);
  EXPECT_EQ(errors(*d), std::vector<std::string>{"igsSCPCBadNumTuples(count=-4)"});
}

TEST_F(ClosedCurveTest, ChecksCountPointsZLevelAndClosure) {
  // Two points: too few, and no closure test.
  auto* two = new igsSimpleClosedPlanarCurve;
  ASSERT_EQ(read(*two, {"106,1,2,0.,0.,0.,5.,5.;"}), 1);
  EXPECT_EQ(checked(*two), std::vector<std::string>{"igsSCPCNoPoints(count=2)"});

  // Open by more than the closure tolerance, then closed within it.
  auto* open = new igsSimpleClosedPlanarCurve;
  ASSERT_EQ(read(*open, {"106,1,3,0.,0.,0.,1.,0.,0.,2.D-6;"}), 1);
  EXPECT_EQ(checked(*open), std::vector<std::string>{"igsSCPCNotClosed(tolerance=1e-06)"});
  ASSERT_TRUE(open->set_point(2, giPoint2(0, 5e-7)));
  EXPECT_EQ(checked(*open), std::vector<std::string>{});

  // Built through the setters: an unset Z, and unset points left by a gap.
  auto* built = new igsSimpleClosedPlanarCurve;
  EXPECT_FALSE(built->set_point(0, giPoint2()));
  EXPECT_FALSE(built->set_point(-1, giPoint2(0, 0)));
  ASSERT_TRUE(built->set_point(3, giPoint2(0, 0)));
  EXPECT_EQ(built->number_of_points(), 4);
  EXPECT_EQ(checked(*built), (std::vector<std::string>{
                                 "igsSCPCInvalidPoint(index=0)", "igsSCPCInvalidPoint(index=1)",
                                 "igsSCPCInvalidPoint(index=2)", "igsSCPCInvalidZLevel",
                                 "igsSCPCNotClosed(tolerance=1e-06)"}));
  built->set_z_level(1.0);
  ASSERT_TRUE(built->set_point(0, giPoint2(0, 0)));
  ASSERT_TRUE(built->set_point(1, giPoint2(1, 0)));
  ASSERT_TRUE(built->set_point(2, giPoint2(0, 1)));
  EXPECT_EQ(checked(*built), std::vector<std::string>{});
  EXPECT_EQ(written(*built), records({"106,1,4,1.,0.,0.,1.,0.,0.,1.,0.,0.;"}));
}

} // namespace
