// The surface family: planes, parametric spline surfaces, ruled surfaces, surfaces of
// revolution, tabulated cylinders and the analytic surfaces in both forms; a file of every
// class, each damage a file can carry with what check and repair make of it, and the setters
// of the spline surface.
#include "entities/entityFamily.h"
#include "entities/entityTestSupport.h"
#include "entities/surfaces/igs114.h"

using namespace igs_family_test;

namespace {

// The patches of a spline surface, behind a comma each: the 48 coefficients of patch p count
// up from p.
std::string patches(int count) {
  std::string text;
  for (int p = 0; p < count; ++p)
    for (int k = 0; k < 48; ++k) text += "," + std::to_string(p + k) + ".";
  return text;
}

std::string const lowest = "-1.7976931348623157D308"; // the unset double, spelled out

// Every class, on the points, lines, arc, closed curve and directions behind them (DE 37 to
// 49). A direction may have any length, and a reference direction may lie along the axis.
Family const surfaces = {"surfaces",
                         "surfaces",
                         {
                             {108, 0, "108,0.,0.,1.,5.,0,0.,0.,0.,0.;"},
                             {108, 1, "108,0.,0.,1.,0.,45,1.,1.,0.,2.;"},
                             {108, -1, "108,1.D-15,0.,0.,0.,43,0.,0.,0.,0.;"},
                             {114, 0, "114,3,0,2,1,0.,1.,1.,-1.,1." + patches(6) + ";"},
                             {118, 0, "118,39,41,0,0;"},
                             {118, 1, "118,37,43,1,1;"},
                             // A full turn and half the angle tolerance.
                             {120, 0, "120,39,43,0.,6.2831853076795865;"},
                             {122, 0, "122,43,0.,0.,10.;"},
                             {190, 0, "190,37,47;"},
                             {190, 1, "190,37,47,49;"},
                             {192, 0, "192,37,47,2.5;"},
                             {192, 1, "192,37,47,0.,47;"},
                             {194, 0, "194,37,49,1.,30.;"},
                             {194, 1, "194,37,47,2.,89.9,49;"},
                             {196, 0, "196,37,4.;"},
                             {196, 1, "196,37,4.,47,49;"},
                             {198, 0, "198,37,47,5.,1.;"},
                             {198, 1, "198,37,47,5.,4.999,49;"},
                             {116, 0, "116,0.,0.,0.,0;"},
                             {110, 0, "110,0.,0.,0.,0.,0.,1.;"},
                             {110, 0, "110,1.,0.,0.,1.,1.,0.;"},
                             {100, 0, "100,0.,0.,0.,1.,0.,-1.,0.;"},
                             {106, 63, "106,1,4,0.,0.,0.,1.,0.,1.,1.,0.,0.;"},
                             {123, 0, "123,0.,0.,2.;"},
                             {123, 0, "123,0.6,0.8,0.;"},
                         }};

TEST(Surfaces, TheFamilyFile) {
  expect_family(surfaces);
}

// What the damaged entities at DE 1 (and behind it) stand on.
Record const point = {116, 0, "116,0.,0.,0.,0;"};
Record const bad_point = {116, 0, "116," + lowest + ",0.,0.,0;"};
Record const coloured_point = {116, 0, "116,1.,2.,3.,0;", 0, 9}; // colour 9 is none
Record const line = {110, 0, "110,0.,0.,0.,0.,0.,1.;"};
Record const short_line = {110, 0, "110,1.,1.,1.,1.,1.,1.;"};
Record const arc = {100, 0, "100,0.,0.,0.,1.,0.,-1.,0.;"};
Record const off_centre_arc = {100, 0, "100,0.,0.3,0.5,1.,0.,-1.,0.;"};
Record const no_radius_arc = {100, 0, "100,0.,3.,4.,3.,4.,3.,4.;"};
Record const point_set = {106, 2, "106,2,2,0.,0.,0.,1.,2.,3.;"};
Record const plane = {108, 0, "108,0.,0.,1.,0.,0,0.,0.,0.,0.;"};
Record const direction = {123, 0, "123,0.,0.,1.;"};
// Surfaces whose point and direction have errors that their own repairs clear.
Records const coloured_children = {{190, 0, "190,5,7;"},
                                   {192, 0, "192,5,7,1.;"},
                                   coloured_point,
                                   {123, 0, "123,0.,0.,1.;", 0, 9},
                                   direction,
                                   {190, 1, "190,5,9,7;"}};
char const* const no_data_1 = "Warning : There is no Parameter Data associated with object DE 1.\n";

// A damage that no repair touches: check finds the same after clean(0).
Damage stays(char const* what, Records records, std::vector<std::string> errors) {
  return {what, std::move(records), errors, errors};
}

Damage const damages[] = {
    // Planes.
    {"a bounded plane whose boundary is missing becomes an unbounded one",
     {{108, 1, "108,0.,0.,1.,5.,0,0.,0.,0.,0.;"}},
     {"@1 igs108NullBoundaryCurvePtr"},
     {}},
    stays("an unbounded plane with a curve keeps both",
          {{108, 0, "108,0.,0.,1.,5.,3,0.,0.,0.,0.;"}, line}, {"@1 igs108UnexpectedBoundaryCurve"}),
    stays("a plane of no normal, and one whose normal is below the smallest value",
          {{108, 0, "108,0.,0.,0.,5.,0,0.,0.,0.,0.;"},
           {108, 0, "108,1.D-16,0.,-1.D-16,5.,0,0.,0.,0.,0.;"}},
          {"@1 igs108AllZeroCoeffs", "@3 igs108AllCoeffsTooSmall"}),
    stays(
        "planes with an unset coefficient, a negative symbol size, a symbol of a size and no place",
        {{108, 0, "108,0.,0.,1.," + lowest + ",0,0.,0.,0.,-1.;"},
         {108, 0, "108,0.,0.,1.,0.,0," + lowest + ",0.,0.,2.;"},
         {108, 0, "108,0.,0.,1.,0.,0," + lowest + ",0.,0.,0.;"}},
        {"@1 igs108NegativeSymbolSize(size=-1)", "@1 igs108NoConstruct",
         "@3 igs108InvalidSymbolPosition"}),
    stays("a bounded plane on a point", {{108, 1, "108,0.,0.,1.,0.,3,0.,0.,0.,0.;"}, point},
          {"@1 igs108InvalidBoundaryType"}),
    stays("a bounded plane on an arc of no radius",
          {{108, 1, "108,0.,0.,1.,0.,3,0.,0.,0.,0.;"}, no_radius_arc},
          {"@1 igs108InvalidBoundaryCurveData", "@3 igs100ZeroRadius"}),

    // Ruled surfaces.
    stays("a ruled surface of flags out of range and no rails", {{118, 0, "118,0,0,2,-1;"}},
          {"@1 igs118InvalidDevelopableFlag(value=-1)", "@1 igs118InvalidDirection(value=2)",
           "@1 igs118NullRailCurve1Ptr", "@1 igs118NullRailCurve2Ptr"}),
    stays("a ruled surface between two points", {{118, 0, "118,3,5,0,0;"}, point, point},
          {"@1 igs118BothRailCurvesPoints"}),
    {"a ruled surface whose rails are point sets gets polylines in their place",
     {{118, 1, "118,3,5,1,0;"}, point_set, point_set},
     {"@1 igs118InvalidRailCurve1Type", "@1 igs118InvalidRailCurve2Type"},
     {}},
    {"a ruled surface whose rail curves are bad: an arc off centre is repaired, one of no radius "
     "is not",
     {{118, 0, "118,3,5,0,0;"}, off_centre_arc, no_radius_arc},
     {"@1 igs118InvalidRailCurve1Data", "@1 igs118InvalidRailCurve2Data", "@3 igs100InconsistRad",
      "@5 igs100ZeroRadius"},
     {"@1 igs118InvalidRailCurve2Data", "@5 igs100ZeroRadius"}},

    // Surfaces of revolution.
    {"an inverted full turn is turned round",
     {{120, 0, "120,3,5,6.283185307179586,0.;"}, line, arc},
     {"@1 igs120InvalidSweepAngle(sweep=-6.28319)"},
     {},
     "",
     "120,3,5,0.,6.28318530717959;"},
    {"a sweep of nothing becomes a full turn",
     {{120, 0, "120,3,5,0.5,0.5;"}, line, arc},
     {"@1 igs120ZeroSweepAngle(end_angle=0.5)"},
     {},
     "",
     "120,3,5,0.5,6.78318530717959;"},
    // The line becomes a polyline, which is no axis.
    {"a surface whose axis has no length",
     {{120, 0, "120,3,5,0.,1.;"}, short_line, arc},
     {"@1 igs120ZeroLengthAxis", "@3 igs110CoincidentPoints(tolerance=1e-09)"},
     {"@1 igs120InvalidAxisType"}},
    stays("a surface whose axis is an arc and whose generatrix is missing",
          {{120, 0, "120,3,0,0.,1.;"}, arc},
          {"@1 igs120InvalidAxisType", "@1 igs120NullGeneratrixPtr"}),
    {"a surface without an axis has its generatrix, a point set, made a polyline",
     {{120, 0, "120,0,3,0.,1.;"}, point_set},
     {"@1 igs120InvalidGeneratrixType", "@1 igs120NullAxisPtr"},
     {"@1 igs120NullAxisPtr"}},
    {"a surface whose axis line and generatrix arc fail their checks",
     {{120, 0, "120,3,5,0.,1.;"}, {110, 0, "110,0.,0.,0.," + lowest + ",0.,1.;"}, off_centre_arc},
     {"@1 igs120InvalidAxisData", "@1 igs120InvalidGeneratrixData", "@3 igs110InvalidEndPoint",
      "@5 igs100InconsistRad"},
     {"@1 igs120InvalidAxisData", "@3 igs110InvalidEndPoint"}},

    // Tabulated cylinders.
    stays("a tabulated cylinder without a directrix, its end point unset",
          {{122, 0, "122,0," + lowest + ",0.,0.;"}},
          {"@1 igs122InvalidGeneratrixEndPt", "@1 igs122NullDirectrixPtr"}),
    {"a tabulated cylinder on a point set gets a polyline",
     {{122, 0, "122,3,0.,0.,1.;"}, point_set},
     {"@1 igs122InvalidDirectrixType"},
     {}},
    {"a tabulated cylinder on an arc off centre",
     {{122, 0, "122,3,0.,0.,1.;"}, off_centre_arc},
     {"@1 igs122InvalidDirectrixData", "@3 igs100InconsistRad"},
     {}},

    // Parametric spline surfaces.
    {"a spline surface of a negative count in V is not read",
     {{114, 0, "114,3,1,1,-1;"}},
     {"@1 igs114BadNumVPatches(count=-1)", "@1 igsFileNoPDData(de_number=1)"},
     {"@1 igs114BadNumVPatches(count=-1)"},
     no_data_1},
    {"a spline surface whose counts are far beyond its record is not read",
     {{114, 0, "114,3,1,100000,1,0.,1.;"}},
     {"@1 igs114BadNumUPatches(count=100000)", "@1 igsFileNoPDData(de_number=1)"},
     {"@1 igs114BadNumUPatches(count=100000)"},
     no_data_1},
    stays("a spline surface of types out of range, breakpoints out of order or unset, and a patch "
          "with an unset coefficient",
          {{114, 0,
            "114,7,2,2,1,1.,0.,2.,1.," + lowest + patches(2) + "," + lowest + patches(1).substr(3) +
                patches(3) + ";"}},
          {"@1 igs114InvalidPatch(u=1,v=0)", "@1 igs114InvalidPatchType(value=2)",
           "@1 igs114InvalidSplineType(value=7)",
           "@1 igs114UBreakpointOutOfSequence(index=1,value=0,previous=1)",
           "@1 igs114UnsetVBreakpoint(index=1)",
           "@1 igs114VBreakpointOutOfSequence(index=1,value=-1.79769e+308,previous=1)"}),

    // Analytic surfaces.
    stays("analytic surfaces whose numbers are out of range or at their edges",
          {{192, 0, "192,17,19,-1.;"},
           {194, 0, "194,17,19,1.,90.;"},
           {194, 1, "194,17,19,1.,0.,19;"},
           {196, 0, "196,17,0.;"},
           {198, 0, "198,17,19,5.,5.;"},
           {198, 1, "198,17,19,-1.,5.,19;"},
           {196, 1, "196,17,-2.,19,19;"},
           {192, 1, "192,17,19,0.,19;"},
           point,
           direction},
          {"@1 igs192_0InvalidRadius", "@11 igs198_1InvalidMajorRadius",
           "@13 igs196_1InvalidRadius", "@3 igs194_0InvalidSemiAngle",
           "@5 igs194_1InvalidSemiAngle", "@7 igs196_0InvalidRadius", "@9 igs198_0InvalidRadii"}),
    stays("analytic surfaces whose unset numbers are not tested further",
          {{192, 1, "192,9,11," + lowest + ",11;"},
           {194, 0, "194,9,11,-1.," + lowest + ";"},
           {198, 0, "198,9,11,5.," + lowest + ";"},
           {196, 0, "196,9," + lowest + ";"},
           point,
           direction},
          {"@1 igs192_1NoRadiusDefined", "@3 igs194_0InvalidRadius",
           "@3 igs194_0NoSemiAngleDefined", "@5 igs198_0NoMinorRadiusDefined",
           "@7 igs196_0NoRadiusDefined"}),
    stays("analytic surfaces whose references are missing, of the wrong class or fail their "
          "checks",
          {{190, 0, "190,0,11;"},
           {190, 1, "190,13,13,15;"},
           {194, 1, "194,11,15,1.,45.,11;"},
           {198, 1, "198,0,0,2.,1.,0;"},
           {196, 1, "196,17,1.,19,17;"},
           point,
           bad_point,
           line,
           direction,
           {123, 0, "123," + lowest + ",0.,0.;"}},
          {"@1 igs190_0NullLocation", "@1 igs190_0WrongDirectionType", "@13 igs116InvalidPoint",
           "@19 igs123NoConstruct", "@3 igs190_1InvalidDirection", "@3 igs190_1InvalidLocation",
           "@3 igs190_1WrongDirectionType", "@3 igs190_1WrongReferenceType",
           "@5 igs194_1WrongAxisType", "@5 igs194_1WrongReferenceType", "@7 igs198_1NullAxis",
           "@7 igs198_1NullCentre", "@7 igs198_1NullReference", "@9 igs196_1InvalidAxis",
           "@9 igs196_1WrongCentreType"}),
    {"analytic surfaces whose point and direction have no colour of the table",
     coloured_children,
     {"@1 igs190_0InvalidDirection", "@1 igs190_0InvalidLocation", "@11 igs190_1InvalidLocation",
      "@11 igs190_1InvalidReference", "@3 igs192_0InvalidAxis", "@3 igs192_0InvalidLocation",
      "@5 igsDEInvalidColour", "@7 igsDEInvalidColour"},
     {}},
};

TEST(Surfaces, EveryDamageIsFoundAndWhatCanBeRepairedIs) {
  for (Damage const& damage : damages) expect_damage(damage);
}

// Built through their setters, the classes write what a file of them reads; what a setter
// refuses leaves the entity as it was.
using SurfaceSetters = igs_entity_test::EntityTest;

TEST_F(SurfaceSetters, SplineSurfaces) {
  auto* surface = new igs114;
  EXPECT_EQ(checked(*surface), std::vector<std::string>{"igs114NoConstruct"});
  EXPECT_EQ(surface->set_number_of_patches(0, 1), 0);
  ASSERT_EQ(surface->set_number_of_patches(1, 2), 1);
  EXPECT_EQ(surface->set_number_of_patches(1, 2), 0); // sized once
  EXPECT_EQ(surface->number_of_u_patches(), 2);
  EXPECT_EQ(surface->number_of_v_breakpoints(), 3);
  double const u[2] = {0, 1}, v[3] = {0, 1, 2};
  EXPECT_EQ(surface->set_all_u_breakpoints(3, v), 0);
  EXPECT_EQ(surface->set_all_u_breakpoints(2, u), 1);
  EXPECT_EQ(surface->set_v_breakpoint(-1, 0.0), 0);
  EXPECT_EQ(surface->set_v_breakpoint(3, 0.0), 0);
  EXPECT_EQ(surface->set_v_breakpoint(1, 5.0), 1);
  double value = 0.0;
  EXPECT_EQ(surface->u_breakpoint(2, value), 0);
  EXPECT_EQ(surface->v_breakpoint(1, value), 1);
  EXPECT_EQ(value, 5.0);
  double x[16], y[16], z[16];
  for (int k = 0; k < 16; ++k) x[k] = y[k] = z[k] = k;
  igsCubicPatch patch;
  patch.set_coefficients(x, y, z);
  igsCubicPatch unset_one = patch;
  z[15] = igs_unset_double;
  unset_one.set_coefficients(x, y, z);
  EXPECT_EQ(surface->set_patch(0, 0, unset_one), 0);
  EXPECT_EQ(surface->set_patch(2, 0, patch), 0);
  EXPECT_EQ(surface->set_patch(1, 2, patch), 1);
  double u0, u1, v0, v1;
  igsCubicPatch out;
  EXPECT_EQ(surface->patch(1, 0, u0, u1, v0, v1, out), 0); // no breakpoint behind the last
  ASSERT_EQ(surface->patch(0, 1, u0, u1, v0, v1, out), 1);
  EXPECT_EQ(std::vector<double>({u0, u1, v0, v1}),
            std::vector<double>({0, 1, 5, -1.7976931348623157e308}));
  ASSERT_EQ(surface->patch(1, 2, out), 1);
  out.coefficients(x, y, z);
  EXPECT_EQ(z[15], 15.0);
  auto errors = checked(*surface);
  EXPECT_EQ(errors.size(), 8u); // five unset patches, two unset breakpoints, one out of order
  EXPECT_EQ(errors[0], "igs114InvalidPatch(u=0,v=0)");
  EXPECT_EQ(errors.back(),
            "igs114VBreakpointOutOfSequence(index=2,value=-1.79769e+308,previous=5)");
}

} // namespace
