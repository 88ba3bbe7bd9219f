// What the family file and its damage rows do not reach: a curve built through the setters,
// the unset values, and counts beyond the first reservation.
#include "entities/curves/igs126.h"

#include "entities/curves/igsCurveErrors.h"
#include "entities/entityTestSupport.h"

using namespace igs_entity_test;

namespace {

using Curve126Test = EntityTest;
using Errors = std::vector<std::string>;

TEST_F(Curve126Test, IsSizedOnceAndItsSettersKeepToTheirRanges) {
  auto* curve = new igs126;
  EXPECT_EQ(checked(*curve), (Errors{"igs126BadDegree(degree=-2147483648)",
                                     "igs126BadSumIndex(sum_index=-1)", "igs126NoConstruct",
                                     "igs126TrimParamsOutOfSequence(start=-1.79769e+308,end=-1."
                                     "79769e+308)",
                                     "igs126UnsetTrimmingParams"}));
  EXPECT_EQ(curve->number_of_knots(), 0);
  EXPECT_FALSE(curve->set_order_size(0, 3));
  EXPECT_FALSE(curve->set_order_size(3, 2));
  ASSERT_TRUE(curve->set_order_size(2, 3));
  EXPECT_FALSE(curve->set_order_size(2, 4));
  EXPECT_EQ(curve->number_of_control_points(), 3);
  EXPECT_EQ(curve->number_of_knots(), 5);

  // Everything starts unset; equal weights are not tested one by one.
  EXPECT_EQ(checked(*curve).size(), 5u + 3u + 1u + 2u);
  double value = 0.0;
  giPoint3 point;
  EXPECT_TRUE(curve->weight(2, value) && igs_unset(value));
  EXPECT_FALSE(curve->knot(5, value) || curve->knot(-1, value) || curve->set_knot(5, 1.0));
  EXPECT_FALSE(curve->weight(3, value) || curve->set_weight(-1, 1.0));
  EXPECT_FALSE(curve->control_point(3, point) || curve->set_control_point(3, point));

  double const knots[] = {0, 0, 0.5, 1, 1};
  for (int i = 0; i < 5; ++i) ASSERT_TRUE(curve->set_knot(i, knots[i]));
  for (int i = 0; i < 3; ++i) {
    ASSERT_TRUE(curve->set_weight(i, 1.0));
    ASSERT_TRUE(curve->set_control_point(i, giPoint3(i, 2 * i, 3 * i)));
  }
  EXPECT_TRUE(curve->set_parametric_limits(0.0, 1.0));
  EXPECT_FALSE(curve->set_parametric_limits(1.0, 0.5));
  EXPECT_EQ(checked(*curve), Errors{});
  EXPECT_TRUE(curve->control_point(2, point));
  EXPECT_EQ(point, giPoint3(2, 4, 6));
  EXPECT_EQ(written(*curve),
            records({"126,2,1,0,0,1,0,0.,0.,0.5,1.,1.,1.,1.,1.,0.,0.,0.,1.,2.,3.,2.,",
                     "4.,6.,0.,1.,-1.79769313486232D+308,-1.79769313486232D+308,",
                     "-1.79769313486232D+308;"}));

  // The flags store 1 for a true value; the rational flag in the file's sense.
  curve->set_planar_flag(7);
  curve->set_closed_flag(-2);
  curve->set_periodic_flag(0);
  curve->set_rational_flag(1);
  EXPECT_EQ(curve->planar_flag() * 100 + curve->closed_flag() * 10 + curve->periodic_flag(), 110);
  EXPECT_EQ(curve->rational_flag(), 0);
  // Now rational with constant weights, and planar without a normal.
  EXPECT_EQ(checked(*curve),
            (Errors{"igs126InvalidUnitNormal", "igs126WeightsAndRatFlagDisagree(tested=0)"}));
  EXPECT_FALSE(curve->set_unit_normal(giVector3()));
  EXPECT_TRUE(curve->set_unit_normal(giVector3(0, 0, 1)));
  curve->set_rational_flag(0);
  EXPECT_EQ(checked(*curve), Errors{});
}

TEST_F(Curve126Test, WeightsAreTestedOnlyWhereTheyDifferAndTheFlagSaysRational) {
  auto* curve = new igs126;
  ASSERT_EQ(read(*curve, {"126,2,1,0,0,1,0,0.,0.,0.5,1.,1.,1.,1.0000000001,1.,0.,0.,0.,",
                          "1.,0.,0.,2.,0.,0.,0.,1.,0.,0.,1.;"}),
            1);
  // A polynomial curve of nearly equal weights passes.
  EXPECT_EQ(checked(*curve), Errors{});
  // Said to be rational, the same weights are tested one by one.
  curve->set_rational_flag(1);
  EXPECT_EQ(checked(*curve), Errors{});
  ASSERT_TRUE(curve->set_weight(1, igs_unset_double));
  ASSERT_TRUE(curve->set_weight(2, 1e-16));
  EXPECT_EQ(checked(*curve), (Errors{"igs126UnsetWeight(index=1)", "igs126ZeroWeight(index=2)"}));
}

// The bottom pair of the range is left as it is: the curve keeps its fault.
TEST_F(Curve126Test, KnotsTooCloseAtTheBottomOfTheRangeStay) {
  auto* curve = new igs126;
  ASSERT_EQ(read(*curve, {"126,2,1,0,0,1,0,0.,0.,0.0000000005,1.,1.,1.,1.,1.,0.,0.,0.,",
                          "1.,0.,0.,2.,0.,0.,0.,1.,0.,0.,1.;"}),
            1);
  EXPECT_EQ(checked(*curve), Errors{"igs126KnotsTooClose"});
  EXPECT_EQ(fix(curve->de_number(), igs126KnotsTooClose::type()), 1);
  EXPECT_EQ(checked(*curve), Errors{"igs126KnotsTooClose"});
}

// Order 2 and 13201 control points: 66007 values, more than the first reservation holds.
std::string large_record(int values_written) {
  std::string data = "126,13200,1,0,0,1,0,";
  for (int i = 0; i < values_written; ++i) data += std::to_string(i < 13203 ? i : 1) + ",";
  return data + "0.,1.,0.,0.,1.;";
}
// The record on lines of up to 64 columns, each cut behind a comma.
igs_input_test::Lines lines_of(std::string const& data) {
  igs_input_test::Lines lines;
  for (size_t at = 0; at < data.size();) {
    size_t end = data.size() - at <= 64 ? data.size() : data.rfind(',', at + 63) + 1;
    lines.push_back(data.substr(at, end - at));
    at = end;
  }
  return lines;
}

TEST_F(Curve126Test, ALargeCountIsReadWhileTheRecordHoldsItsValues) {
  auto* curve = new igs126;
  ASSERT_EQ(read(*curve, lines_of(large_record(66007))), 1);
  EXPECT_EQ(curve->number_of_control_points(), 13201);
  double value = 0.0;
  giPoint3 point;
  EXPECT_TRUE(curve->knot(13202, value));
  EXPECT_EQ(value, 13202.0);
  EXPECT_TRUE(curve->control_point(13200, point));
  EXPECT_EQ(point, giPoint3(1, 1, 1));
  double start = 0.0, end = 0.0;
  curve->parametric_limits(start, end);
  EXPECT_EQ(end, 1.0);

  // A record that ends before such a count is met has a damaged count.
  auto* cut = new igs126;
  EXPECT_EQ(read(*cut, lines_of(large_record(65600))), 0);
  EXPECT_EQ(errors(*cut), Errors{"igs126BadSumIndex(sum_index=13200)"});
  EXPECT_EQ(cut->number_of_control_points(), 0);
  // Within the first reservation, missing values read as defaulted fields.
  auto* short_one = new igs126;
  EXPECT_EQ(read(*short_one, {"126,3,1,0,0,1,0,0.,0.,1.;"}), 1);
  EXPECT_TRUE(short_one->control_point(3, point));
  EXPECT_EQ(point, giPoint3(0, 0, 0));
}

} // namespace
