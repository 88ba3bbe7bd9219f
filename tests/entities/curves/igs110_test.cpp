#include "entities/curves/igs110.h"

#include "entities/curves/igs116.h"
#include "entities/curves/igsCurveErrors.h"
#include "entities/curves/igsPolyline.h"
#include "entities/entityTestSupport.h"

using namespace igs_entity_test;

namespace {

using Line110Test = EntityTest;

TEST_F(Line110Test, ReadsWritesAndPrintsBothEnds) {
  auto* line = new igs110;
  // A record over two lines, with a defaulted coordinate and a D exponent.
  ASSERT_EQ(read(*line, {"110,-1.25,,3.,", "4.5D-1,5.,6.;"}), 1);
  EXPECT_EQ(line->start_point(), giPoint3(-1.25, 0.0, 3.0));
  EXPECT_EQ(line->end_point(), giPoint3(0.45, 5.0, 6.0));
  EXPECT_EQ(written(*line), records({"110,-1.25,0.,3.,0.45,5.,6.;"}));
  EXPECT_EQ(printed(*line), "StartPoint = (-1.25, 0, 3)\n"
                            "EndPoint = (0.45, 5, 6)\n");
  EXPECT_EQ(checked(*line), std::vector<std::string>{});

  // Coordinates long enough to fill more than one line are cut between fields.
  ASSERT_TRUE(line->set_start_point(giPoint3(1.0 / 3.0, -2.0 / 3.0, 1e-20)));
  ASSERT_TRUE(line->set_end_point(giPoint3(123456.789, -1e300, 0.1)));
  EXPECT_EQ(written(*line), records({"110,0.333333333333333,-0.666666666666667,1.D-20,123456.789,",
                                     "-1.D+300,0.1;"}));
}

TEST_F(Line110Test, ChecksInvalidEndsAndCoincidenceOnlyBetweenValidEnds) {
  auto* line = new igs110;
  EXPECT_EQ(checked(*line),
            (std::vector<std::string>{"igs110InvalidEndPoint", "igs110InvalidStartPoint"}));

  // Both ends "coincide" while one is unset, but only the unset end is reported.
  ASSERT_TRUE(line->set_start_point(giPoint3(1, 1, 1)));
  EXPECT_EQ(checked(*line), std::vector<std::string>{"igs110InvalidEndPoint"});
  EXPECT_FALSE(line->set_end_point(giPoint3()));
  EXPECT_FALSE(line->set_end_point(giPoint3(0, DBL_MAX, 0)));
  EXPECT_EQ(line->end_point(), giPoint3());

  // Coincident within the zero-length tolerance, and just outside it.
  double tolerance = kvnTolZeroLength.value();
  ASSERT_TRUE(line->set_end_point(giPoint3(1, 1, 1 + tolerance * 0.5)));
  EXPECT_EQ(checked(*line), std::vector<std::string>{"igs110CoincidentPoints(tolerance=1e-09)"});
  EXPECT_TRUE(line->coincident_end_points(tolerance));
  ASSERT_TRUE(line->set_end_point(giPoint3(1, 1, 1 + tolerance * 4)));
  EXPECT_EQ(checked(*line), std::vector<std::string>{});
  EXPECT_FALSE(line->coincident_end_points(tolerance));
  EXPECT_TRUE(line->coincident_end_points(tolerance * 5));
}

TEST_F(Line110Test, CoincidentPointsRepairPutsAPolylineInTheLinesPlace) {
  auto* line = new igs110;
  auto* point = new igs116;
  ASSERT_EQ(read(*line, {"110,1.,2.,3.,1.,2.,3.;"}), 1);
  ASSERT_EQ(read(*point, {"116,0.,0.,0.,1;"}), 1);
  igsObjectPtr holder(line);
  ASSERT_TRUE(line->directory_entry().set_entity_label("EDGE"));
  ASSERT_TRUE(line->directory_entry().set_entity_subscript(7));
  line->directory_entry().set_structure(-5);

  ASSERT_EQ(checked(*line), std::vector<std::string>{"igs110CoincidentPoints(tolerance=1e-09)"});
  EXPECT_EQ(fix(1, igs110CoincidentPoints::type()), 1);

  // The polyline stands under DE 1 and every reference follows it; the line is gone.
  EXPECT_EQ(file->num_entities(), 2);
  igsObject* replacement = holder();
  ASSERT_NE(replacement, nullptr);
  ASSERT_TRUE(replacement->isa(igsPolyline::type()));
  EXPECT_EQ(replacement->de_number(), 1);
  EXPECT_EQ(point->display_symbol()(), replacement);
  EXPECT_EQ(replacement->num_references(), 2);
  EXPECT_EQ(igsFileTypeIT(file.get(), igs110::type()).operator++(), 0);

  // Two points of the line in space, form 12, with the line's attributes.
  auto* polyline = static_cast<igsPolyline*>(replacement);
  igsDirectoryEntry const& de = polyline->directory_entry();
  EXPECT_EQ(de.entity_type(), 106);
  EXPECT_EQ(de.form_number(), 12);
  EXPECT_EQ(de.entity_label(), "EDGE");
  EXPECT_EQ(de.entity_subscript(), 7);
  EXPECT_EQ(de.structure(), -5);
  EXPECT_EQ(written(*polyline), records({"106,2,2,1.,2.,3.,1.,2.,3.;"}));
  EXPECT_EQ(errors(*polyline), std::vector<std::string>{});

  // The error has left the active list; its number still names the polyline, which is no
  // line, so running the repair again changes nothing.
  EXPECT_EQ(object_log().num_errors(1), 0);
  auto* again = new igs110CoincidentPoints(1e-9);
  again->set_key(1);
  EXPECT_EQ(again->fix(), 0);
  EXPECT_EQ(holder(), polyline);
}

} // namespace
