// The curve and point family: a file of every class, and each damage a file can carry with
// what check and repair make of it.
#include "entities/curves/igs102.h"
#include "entities/curves/igs110.h"
#include "entities/curves/igs112.h"
#include "entities/curves/igs126.h"
#include "entities/curves/igs130.h"
#include "entities/curves/igsCurveErrors.h"
#include "entities/curves/igsPointset.h"
#include "entities/curves/igsPolyline.h"
#include "entities/entityFamily.h"
#include "entities/entityTestSupport.h"

using namespace igs_family_test;

namespace {

// Conics of each kind: x^2 + 4y^2 = 4, x^2 - y^2 = 9 and y = x^2 at Z 5; a straight line, and
// the pair of lines x^2 = y^2, which are of no kind.
#define ELLIPSE "104,1.,0.,4.,0.,0.,-4.,0.,2.,0.,0.,1.;"
#define HYPERBOLA "104,1.,0.,-1.,0.,0.,-9.,0.,3.,0.,5.,4.;"
#define PARABOLA "104,1.,0.,0.,0.,-1.,0.,5.,-1.,1.,2.,4.;"
#define LINE "104,0.,0.,0.,1.,1.,-1.,0.,1.,0.,0.,1.;"
#define LINE_PAIR "104,1.,0.,-1.,0.,0.,0.,0.,1.,1.,2.,2.;"

std::string zeros(int n) {
  std::string text;
  for (int i = 0; i < n; ++i) text += "0.,";
  return text;
}

Family const curves = {
    "curves",
    "curves",
    {
        {116, 0, "116,1.,2.,3.,3;"},
        {116, 0, "116,-1.5,0.,32.5,0;"},
        // A symbol number that is even or names nothing reads as none.
        {116, 0, "116,0.,0.,0.,4;"},
        {116, 0, "116,0.,0.,0.,99;"},
        {110, 0, "110,0.,0.,0.,1.,1.,1.;"},
        // Four times the zero-length tolerance long.
        {110, 0, "110,1.,1.,1.,1.,1.,1.000000004;"},
        {100, 0, "100,2.5,1.,1.,2.,1.,1.,2.;"},
        {100, 0, "100,0.,3.,4.,5.,4.,5.,4.;"},
        // Radii 1.5e-6 apart: 7.5e-7 of their sum, within the tolerance.
        {100, 0, "100,0.,0.,0.,1.,0.,0.,1.0000015;"},
        {106, 1, "106,1,3,5.,0.,0.,1.,0.,1.,1.;"},
        {106, 2, "106,2,2,0.,0.,0.,1.,2.,3.;"},
        {106, 3, "106,3,2,1.,2.,3.,0.,0.,1.,4.,5.,6.,1.,0.,0.;"},
        {106, 11, "106,1,2,-2.,0.,0.,1.,1.;"},
        {106, 12, "106,2,3,0.,0.,0.,1.,1.,1.,0.,0.,1.D-20;"},
        {106, 13, "106,3,1,1.,2.,3.,0.,0.,1.;"},
        // A record over many lines.
        {106, 12,
         "106,2,30,0.,0.5,1000.,1.,1.5,1001.,2.,2.5,1002.,3.,3.5,1003.,4.,4.5,1004.,5.,5.5,1005.,6."
         ",6.5,1006.,7.,7.5,1007.,8.,8.5,1008.,9.,9.5,1009.,10.,10.5,1010.,11.,11.5,1011.,12.,12.5,"
         "1012.,13.,13.5,1013.,14.,14.5,1014.,15.,15.5,1015.,16.,16.5,1016.,17.,17.5,1017.,18.,18."
         "5,1018.,19.,19.5,1019.,20.,20.5,1020.,21.,21.5,1021.,22.,22.5,1022.,23.,23.5,1023.,24.,"
         "24.5,1024.,25.,25.5,1025.,26.,26.5,1026.,27.,27.5,1027.,28.,28.5,1028.,29.,29.5,1029.;"},
        {106, 63, "106,1,4,2.,0.,0.,1.,0.,0.,5.D-7,0.,0.;"},
        // DE 35: a planar cubic of constant weights (polynomial).
        {126, 0,
         "126,3,3,1,0,1,0,0.,0.,0.,0.,1.,1.,1.,1.,1.,1.,1.,1.,0.,0.,0.,1.,2.,0.,3.,2.,0.,4.,0.,0.,"
         "0.,1.,0.,0.,1.;"},
        // DE 37: a quarter circle, rational.
        {126, 2,
         "126,2,2,1,0,0,0,0.,0.,0.,1.,1.,1.,1.,0.707106781186548,1.,1.,0.,0.,1.,1.,0.,0.,1.,0.,"
         "0.,1.,0.,0.,1.;"},
        // DE 39: a closed polygon of order 2 with double end knots, used over part of its range.
        {126, 0,
         "126,4,1,0,1,1,0,0.,0.,1.,2.,3.,4.,4.,1.,1.,1.,1.,1.D0,0.,0.,0.,1.,0.,0.,1.,1.,1.,0.,1.,"
         "1.,0.,0.,0.,0.5,3.5,0.,0.,0.;"},
        // DE 41: a line and two B-spline curves; DE 43: two points; DE 45: the first composite
        // curve, a polyline and a point.
        {102, 0, "102,3,9,35,37;"},
        {102, 0, "102,2,1,3;"},
        {102, 0, "102,3,41,27,3;"},
        // DE 47 to 53: an ellipse, a hyperbola, a parabola at Z 5, and a circle of form 0.
        {104, 1, ELLIPSE},
        {104, 2, HYPERBOLA},
        {104, 3, PARABOLA},
        {104, 0, "104,1.,0.,1.,0.,0.,-1.,0.,1.,0.,0.,1.;"},
        // DE 55: two planar cubic segments, (t, t^2) and (1 + t, (1 + t)^2).
        {112, 0,
         "112,3,2,2,2,0.,1.,2.,0.,1.,0.,0.,0.,0.,1.,0.,0.,0.,0.,0.,1.,1.,0.,0.,1.,2.,1.,0.,0.,0.,"
         "0.,0.,2.,1.,0.,0.,4.,4.,1.,0.,0.,0.,0.,0.;"},
        // DE 57 to 61: offsets of the line, uniform; of the arc, linear by arc length; of the
        // line by the second coordinate of the B-spline curve, by parameter.
        {130, 0, "130,9,1,0,0,0,2.5,0.,0.,0.,0.,0.,1.,0.,1.;"},
        {130, 0, "130,13,2,0,0,1,1.,.25,2.,.75,0.,0.,1.,0.,1.;"},
        {130, 0, "130,9,3,35,2,2,0.,0.,0.,0.,0.,0.,1.,0.,1.;"},
    }};

TEST(Curves, TheFamilyFile) {
  expect_family(curves);
}

// The damaged entity stands first, at DE 1.
Damage const damages[] = {
    {"a line of no length becomes a polyline of its two points",
     {{110, 0, "110,1.,2.,3.,1.,2.,3.;"}, {116, 0, "116,0.,0.,0.,1;"}},
     {"@1 igs110CoincidentPoints(tolerance=1e-09)"},
     {},
     "",
     "106,2,2,1.,2.,3.,1.,2.,3.;"},
    {"an arc whose ends lie at other radii gets its centre moved onto the bisector, on its side",
     {{100, 0, "100,0.,0.3,0.5,1.,0.,-1.,0.;"}},
     {"@1 igs100InconsistRad"},
     {},
     "",
     "100,0.,0.,0.518731753442959,1.,0.,-1.,0.;"},
    {"below the chord the centre stays below",
     {{100, 0, "100,0.,-0.2,-0.9,1.,0.,-1.,0.;"}},
     {"@1 igs100InconsistRad"},
     {},
     "",
     "100,0.,0.,-0.910010765545893,1.,0.,-1.,0.;"},
    {"a centre on the chord goes to the chord's midpoint",
     {{100, 0, "100,0.,0.5,0.,1.,0.,-1.,0.;"}},
     {"@1 igs100InconsistRad"},
     {},
     "",
     "100,0.,0.,0.,1.,0.,-1.,0.;"},
    {"a point set whose flag says another form gets the form of its flag",
     {{106, 2, "106,3,1,1.,2.,3.,0.,0.,1.;"}},
     {"@1 igsPointsetIPFormMismatch(ip=3,form=2)"},
     {}},
    {"a polyline whose flag says another form gets the form of its flag",
     {{106, 12, "106,1,2,7.,0.,0.,1.,1.;"}},
     {"@1 igsPolylineIPFormMismatch(ip=1,form=12)"},
     {}},
    {"a point set of no flag is not read",
     {{106, 1, "106,0,1,0.,0.,0.;"}},
     {"@1 igsFileNoPDData(de_number=1)", "@1 igsPointsetInvalidIP(ip=0)"},
     {"@1 igsPointsetInvalidIP(ip=0)"},
     "Warning : There is no Parameter Data associated with object DE 1.\n"},
    {"a polyline of a negative count is not read",
     {{106, 12, "106,2,-1,0.,0.,0.;"}},
     {"@1 igsFileNoPDData(de_number=1)", "@1 igsPolylineBadNumTuples(count=-1)"},
     {"@1 igsPolylineBadNumTuples(count=-1)"},
     "Warning : There is no Parameter Data associated with object DE 1.\n"},
    {"a polyline of no tuples",
     {{106, 11, "106,1,0,7.;"}},
     {"@1 igsPolylineNoPoints"},
     {"@1 igsPolylineNoPoints"}},
    {"a closed planar curve of another flag is not read",
     {{106, 63, "106,2,3,0.,0.,0.,1.;"}},
     {"@1 igsFileNoPDData(de_number=1)", "@1 igsSCPCInvalidIP(ip=2)"},
     {"@1 igsSCPCInvalidIP(ip=2)"},
     "Warning : There is no Parameter Data associated with object DE 1.\n"},
    {"a closed planar curve of a negative count is not read",
     {{106, 63, "106,1,-4,0.;"}},
     {"@1 igsFileNoPDData(de_number=1)", "@1 igsSCPCBadNumTuples(count=-4)"},
     {"@1 igsSCPCBadNumTuples(count=-4)"},
     "Warning : There is no Parameter Data associated with object DE 1.\n"},
    {"a closed planar curve of two points is too short to be judged closed",
     {{106, 63, "106,1,2,0.,0.,0.,5.,5.;"}},
     {"@1 igsSCPCNoPoints(count=2)"},
     {"@1 igsSCPCNoPoints(count=2)"}},
    {"a closed planar curve that is open by more than the tolerance",
     {{106, 63, "106,1,3,0.,0.,0.,1.,0.,0.,2.D-6;"}},
     {"@1 igsSCPCNotClosed(tolerance=1e-06)"},
     {"@1 igsSCPCNotClosed(tolerance=1e-06)"}},

    // Rational B-spline curves.
    {"knots: a little below the greatest before joins it (DE 1); far below, or below by the "
     "tolerance, stays, each compared with the greatest before it (3, 7); too close down to the "
     "bottom of the range stays there (5). K=3, M=1: six knots, four control points.",
     {{126, 0,
       "126,3,1,0,0,1,0,0.,0.,.5,.4999999995,1.,1.,1.,1.,1.,1.,0.,0.,0.,1.,0.,0.,2.,0.,0.,"
       "3.,0.,0.,0.,1.;"},
      {126, 0,
       "126,3,1,0,0,1,0,0.,0.,2.,1.,1.5,3.,1.,1.,1.,1.,0.,0.,0.,1.,0.,0.,2.,0.,0.,3.,0.,0.,"
       "0.,1.5;"},
      {126, 0,
       "126,3,1,0,0,1,0,0.,0.,3.D-10,6.D-10,9.D-10,9.D-10,1.,1.,1.,1.,0.,0.,0.,1.,0.,0.,"
       "2.,0.,0.,3.,0.,0.,0.,9.D-10;"},
      {126, 0,
       "126,3,1,0,0,1,0,0.,0.,1.D-9,0.,1.,1.,1.,1.,1.,1.,0.,0.,0.,1.,0.,0.,2.,0.,0.,3.,0.,"
       "0.,0.,1.;"}},
     {"@1 igs126KnotOutOfSequence(index=3,knot=0.5,last=0.5)", "@1 igs126KnotsTooClose",
      "@3 igs126KnotOutOfSequence(index=3,knot=1,last=2)",
      "@3 igs126KnotOutOfSequence(index=4,knot=1.5,last=2)", "@5 igs126KnotsTooClose",
      "@7 igs126KnotOutOfSequence(index=3,knot=0,last=1e-09)"},
     {"@3 igs126KnotOutOfSequence(index=3,knot=1,last=2)",
      "@3 igs126KnotOutOfSequence(index=4,knot=1.5,last=2)", "@5 igs126KnotsTooClose",
      "@7 igs126KnotOutOfSequence(index=3,knot=0,last=1e-09)"},
     "",
     "126,3,1,0,0,1,0,0.,0.,0.5,0.5,1.,1.,1.,1.,1.,1.,0.,0.,0.,1.,0.,0.,2.,0.,0.,3.,0.,0.,0.,1.,0.,"
     "0.,0.;",
     // DE 5, the third curve, is DE 3 once the second has gone. Its repair made its knots
     // multiple down to the bottom pair, which stays close: the log forgets the error, the
     // next check finds it again.
     {"@3 igs126KnotsTooClose"}},
    {"limits outside the knots' range are pulled back to it; limits in the wrong order are set "
     "to it",
     {{126, 0, "126,2,1,0,0,1,0,-1.,0.,.5,1.,2.,1.,1.,1.,0.,0.,0.,1.,0.,0.,2.,0.,0.,-.5,1.5;"},
      {126, 0, "126,2,1,0,0,1,0,-1.,0.,.5,1.,2.,1.,1.,1.,0.,0.,0.,1.,0.,0.,2.,0.,0.,.75,.25;"}},
     {"@1 igs126MaxParamOutOfRange(value=1.5,lo=0,hi=1)",
      "@1 igs126MinParamOutOfRange(value=-0.5,lo=0,hi=1)",
      "@3 igs126TrimParamsOutOfSequence(start=0.75,end=0.25)"},
     {},
     "",
     "126,2,1,0,0,1,0,-1.,0.,0.5,1.,2.,1.,1.,1.,0.,0.,0.,1.,0.,0.,2.,0.,0.,0.,1.,0.,0.,0.;"},
    {"curves of no degree, no control points beyond the first, or fewer than their degree are "
     "not read",
     {{126, 0, "126,3,0,0,0,1,0,0.,1.;"},
      {126, 0, "126,0,1,0,0,1,0,0.,1.;"},
      {126, 0, "126,3,4,0,0,1,0,0.,1.;"}},
     {"@1 igs126BadDegree(degree=0)", "@1 igsFileNoPDData(de_number=1)",
      "@3 igs126BadSumIndex(sum_index=0)", "@3 igsFileNoPDData(de_number=3)",
      "@5 igs126SumIndexLessThanDegree(sum_index=3,degree=4)", "@5 igsFileNoPDData(de_number=5)"},
     {"@1 igs126BadDegree(degree=0)", "@3 igs126BadSumIndex(sum_index=0)",
      "@5 igs126SumIndexLessThanDegree(sum_index=3,degree=4)"},
     "Warning : There is no Parameter Data associated with object DE 1.\n"
     "Warning : There is no Parameter Data associated with object DE 3.\n"
     "Warning : There is no Parameter Data associated with object DE 5.\n"},
    {"flags neither 0 nor 1: closed, rational and periodic are set to 0, planar is not (DE 1); "
     "zero and negative weights stay (3); a rational flag that the weights contradict is turned "
     "over (5, 7)",
     {{126, 0, "126,2,2,5,2,3,-1,0.,0.,0.,1.,1.,1.,1.,.5,1.,1.,0.,0.,1.,1.,0.,0.,1.,0.,0.,1.;"},
      {126, 0, "126,2,1,0,0,0,0,0.,0.,.5,1.,1.,0.,-2.,1.,0.,0.,0.,1.,0.,0.,2.,0.,0.,0.,1.;"},
      {126, 0, "126,1,1,0,0,0,0,0.,0.,1.,1.,1.,1.,0.,0.,0.,1.,0.,0.,0.,1.;"},
      {126, 0, "126,1,1,0,0,1,0,0.,0.,1.,1.,1.,2.,0.,0.,0.,1.,0.,0.,0.,1.;"}},
     {"@1 igs126InvalidClosedFlag(flag=2)", "@1 igs126InvalidPeriodicFlag(flag=-1)",
      "@1 igs126InvalidPlanarFlag(flag=5)", "@1 igs126InvalidRationalFlag(flag=3)",
      "@3 igs126NegativeWeight(index=1,weight=-2)", "@3 igs126ZeroWeight(index=0)",
      "@5 igs126WeightsAndRatFlagDisagree(tested=0)",
      "@7 igs126WeightsAndRatFlagDisagree(tested=1)"},
     {"@1 igs126InvalidPlanarFlag(flag=5)", "@3 igs126NegativeWeight(index=1,weight=-2)",
      "@3 igs126ZeroWeight(index=0)"},
     "",
     "126,2,2,5,0,0,0,0.,0.,0.,1.,1.,1.,1.,0.5,1.,1.,0.,0.,1.,1.,0.,0.,1.,0.,0.,1.,0.,0.,0.;"},
    {"a curve without parameter range becomes a null entity, and a composite curve lets it go",
     {{102, 0, "102,2,3,5;"},
      {126, 0, "126,1,1,0,0,1,0,0.,0.,0.,0.,1.,1.,0.,0.,0.,1.,0.,0.,0.,1.;"},
      {110, 0, "110,0.,0.,0.,1.,0.,0.;"}},
     {"@1 igs102InvalidSubCurveData(position=0)", "@3 igs126MaxParamOutOfRange(value=1,lo=0,hi=0)",
      "@3 igs126NoParamRange(lo=0)"},
     {},
     "Warning : IGES 126 (Nurb Curve) DE 3 has been removed.\n"
     "Warning : sub curve DE 3 has been removed from composite curve DE 1\n",
     "102,1,5;"},

    // Composite curves.
    {"no members (DE 1), a negative count (3), a member that names no entity (5), a lone point "
     "(7); point sets that cannot be converted: one of vectors (9), one with errors (11)",
     {{102, 0, "102,0;"},
      {102, 0, "102,-1;"},
      {102, 0, "102,2,13,99;"},
      {102, 0, "102,1,15;"},
      {102, 0, "102,1,17;"},
      {102, 0, "102,1,19;"},
      {110, 0, "110,0.,0.,0.,1.,0.,0.;"},
      {116, 0, "116,1.,0.,0.,0;"},
      {106, 3, "106,3,1,0.,0.,0.,1.,0.,0.;"},
      {106, 2, "106,2,0;"}},
     {"@1 igs102NoSubCurves", "@11 igs102InvalidSubCurveType(position=0)",
      "@19 igsPointsetNoPoints", "@3 igs102BadNumCurves(count=-1)",
      "@3 igsFileNoPDData(de_number=3)", "@5 igs102NullSubCurvePtr(position=1)",
      "@7 igs102OnlyPoint", "@9 igs102InvalidSubCurveType(position=0)"},
     {"@1 igs102NoSubCurves", "@11 igs102InvalidSubCurveType(position=0)",
      "@19 igsPointsetNoPoints", "@3 igs102BadNumCurves(count=-1)",
      "@5 igs102NullSubCurvePtr(position=1)", "@7 igs102OnlyPoint",
      "@9 igs102InvalidSubCurveType(position=0)"},
     "Warning : There is no Parameter Data associated with object DE 3.\n"},
    {"points in a row are told and forgotten; a null member between them does not part them",
     {{102, 0, "102,3,5,7,9;"},
      {102, 0, "102,3,5,0,7;"},
      {116, 0, "116,0.,0.,0.,0;"},
      {116, 0, "116,1.,0.,0.,0;"},
      {110, 0, "110,1.,0.,0.,2.,0.,0.;"}},
     {"@1 igs102AdjacentPoints(first=0,second=1)", "@3 igs102AdjacentPoints(first=1,second=2)",
      "@3 igs102NullSubCurvePtr(position=1)"},
     {"@1 igs102AdjacentPoints(first=0,second=1)", "@3 igs102AdjacentPoints(first=1,second=2)",
      "@3 igs102NullSubCurvePtr(position=1)"},
     "",
     "",
     {"@1 igs102AdjacentPoints(first=0,second=1)"}},
    {"point sets as members become polylines: in every place when only the composite curve "
     "holds one, in the list alone when another entity holds it too",
     {{102, 0, "102,2,5,9;"},
      {102, 0, "102,2,7,11;"},
      {106, 2, "106,2,2,0.,0.,0.,1.,0.,0.;"},
      {106, 1, "106,1,2,0.,1.,0.,2.,0.;"},
      {110, 0, "110,1.,0.,0.,2.,0.,0.;"},
      {116, 0, "116,0.,0.,0.,7;"}},
     {"@1 igs102InvalidSubCurveType(position=0)", "@3 igs102InvalidSubCurveType(position=0)"},
     {},
     "",
     "102,2,5,9;"},
    // Conic arcs: each form with the coefficients of each other kind takes the form of its
    // kind; conics of no kind have none to take.
    {"conic arcs whose coefficients say another kind than the form",
     {{104, 1, HYPERBOLA},
      {104, 1, PARABOLA},
      {104, 2, ELLIPSE},
      {104, 2, PARABOLA},
      {104, 3, ELLIPSE},
      {104, 3, HYPERBOLA},
      {104, 3, LINE},
      {104, 0, LINE},
      {104, 2, LINE_PAIR}},
     {"@1 igs104NotEllipse", "@11 igs104NotParabola", "@13 igs104NotParabola",
      "@15 igs104UnknownType", "@17 igs104NotHyperbola", "@3 igs104NotEllipse",
      "@5 igs104NotHyperbola", "@7 igs104NotHyperbola", "@9 igs104NotParabola"},
     {"@13 igs104NotParabola", "@15 igs104UnknownType", "@17 igs104NotHyperbola"}},

    // Parametric spline curves.
    {"a spline type, continuity and dimensionality out of range are set to cubic, 0 and "
     "non-planar; the Z coefficients stay",
     {{112, 0,
       "112,7,3,4,1,0.,1.,0.,1.,0.,0.,0.,0.,0.,0.,5.,6.,7.,8.,1.,0.,0.,0.,0.,0.,0.,0.,5.,"
       "6.,7.,8.;"}},
     {"@1 igs112InvalidContinuity(value=3)", "@1 igs112InvalidDimensionality(value=4)",
      "@1 igs112InvalidSplineType(value=7)"},
     {},
     "",
     "112,3,0,3,1,0.,1.,0.,1.,0.,0.,0.,0.,0.,0.,5.,6.,7.,8.,1.,0.,0.,0.,0.,0.,0.,0.,5.,6.,7.,"
     "8.;"},
    {"breakpoints out of order stay (DE 1); no segments (3), or more than the record holds (5), "
     "are not read",
     {{112, 0, "112,3,0,3,3,0.,2.,1.,3.," + zeros(47) + "0.;"},
      {112, 0, "112,3,0,3,0;"},
      {112, 0, "112,3,0,3,2000000000,0.,1.;"}},
     {"@1 igs112BreakpointOutOfSequence(index=2,value=1,last=2)",
      "@3 igs112BadNumSegments(count=0)", "@3 igsFileNoPDData(de_number=3)",
      "@5 igs112BadNumSegments(count=2000000000)", "@5 igsFileNoPDData(de_number=5)"},
     {"@1 igs112BreakpointOutOfSequence(index=2,value=1,last=2)",
      "@3 igs112BadNumSegments(count=0)", "@5 igs112BadNumSegments(count=2000000000)"},
     "Warning : There is no Parameter Data associated with object DE 3.\n"
     "Warning : There is no Parameter Data associated with object DE 5.\n"},

    // Offset curves.
    {"a normal of length 2 is made a unit vector (DE 1); a zero normal cannot be (5)",
     {{130, 0, "130,3,1,0,0,0,2.5,0.,0.,0.,0.,0.,2.,0.,1.;"},
      {110, 0, "110,0.,0.,0.,1.,0.,0.;"},
      {130, 0, "130,3,1,0,0,0,2.5,0.,0.,0.,0.,0.,0.,0.,1.;"}},
     {"@1 igs130PlaneNormalNotUnitVector", "@5 igs130InvalidPlaneNormal",
      "@5 igs130PlaneNormalNotUnitVector"},
     {"@5 igs130InvalidPlaneNormal", "@5 igs130PlaneNormalNotUnitVector"},
     "",
     "130,3,1,0,0,0,2.5,0.,0.,0.,0.,0.,1.,0.,1.;"},
    {"uniform with a function curve, an index and an amount, over no range (DE 1); flags out of "
     "range (5); linear with a zero distance or amount, the first zero told (7 to 13); by a "
     "function curve that is missing, with no index and with a distance (15)",
     {{130, 0, "130,3,1,3,2,0,2.5,1.,0.,0.,0.,0.,1.,1.,1.;"},
      {110, 0, "110,0.,0.,0.,1.,0.,0.;"},
      {130, 0, "130,3,4,0,0,3,0.,0.,0.,0.,0.,0.,1.,0.,1.;"},
      {130, 0, "130,3,2,0,0,1,0.,1.,2.,0.,0.,0.,1.,0.,1.;"},
      {130, 0, "130,3,2,0,0,1,1.,0.,2.,1.,0.,0.,1.,0.,1.;"},
      {130, 0, "130,3,2,0,0,2,1.,1.,0.,1.,0.,0.,1.,0.,1.;"},
      {130, 0, "130,3,2,0,0,2,1.,1.,2.,0.,0.,0.,1.,0.,1.;"},
      {130, 0, "130,3,3,0,0,1,1.,0.,0.,0.,0.,0.,1.,0.,1.;"}},
     {"@1 igs130FieldMismatch", "@1 igs130FieldMismatch", "@1 igs130FieldMismatch",
      "@1 igs130InvalidStartEndParameters", "@11 igs130InvalidOffsetDistance2",
      "@13 igs130InvalidOffsetAmount2", "@15 igs130FieldMismatch", "@15 igs130InvalidCoordIndex",
      "@15 igs130NullFunctionCurvePtr", "@5 igs130InvalidOffsetDistanceFlag",
      "@5 igs130InvalidTaperedOffsetFlag", "@7 igs130InvalidOffsetDistance1",
      "@9 igs130InvalidOffsetAmount1"},
     {"@1 igs130FieldMismatch", "@1 igs130FieldMismatch", "@1 igs130FieldMismatch",
      "@1 igs130InvalidStartEndParameters", "@11 igs130InvalidOffsetDistance2",
      "@13 igs130InvalidOffsetAmount2", "@15 igs130FieldMismatch", "@15 igs130InvalidCoordIndex",
      "@15 igs130NullFunctionCurvePtr", "@5 igs130InvalidOffsetDistanceFlag",
      "@5 igs130InvalidTaperedOffsetFlag", "@7 igs130InvalidOffsetDistance1",
      "@9 igs130InvalidOffsetAmount1"}},
    {"basis and function curves that are missing, of another kind or broken",
     {{130, 0, "130,0,1,0,0,0,1.,0.,0.,0.,0.,0.,1.,0.,1.;"},
      {130, 0, "130,11,1,0,0,0,1.,0.,0.,0.,0.,0.,1.,0.,1.;"},
      {130, 0, "130,13,1,0,0,0,1.,0.,0.,0.,0.,0.,1.,0.,1.;"},
      {130, 0, "130,15,3,11,1,0,0.,0.,0.,0.,0.,0.,1.,0.,1.;"},
      {130, 0, "130,15,3,13,1,0,0.,0.,0.,0.,0.,0.,1.,0.,1.;"},
      {116, 0, "116,0.,0.,0.,0;"},
      {100, 0, "100,0.,3.,4.,3.,4.,3.,4.;"},
      {110, 0, "110,0.,0.,0.,1.,0.,0.;"}},
     {"@1 igs130NullBasisCurvePtr", "@13 igs100ZeroRadius", "@3 igs130InvalidBasisCurveType",
      "@5 igs130InvalidBasisCurveData", "@7 igs130InvalidFunctionCurveType",
      "@9 igs130InvalidFunctionCurveData"},
     {"@1 igs130NullBasisCurvePtr", "@13 igs100ZeroRadius", "@3 igs130InvalidBasisCurveType",
      "@5 igs130InvalidBasisCurveData", "@7 igs130InvalidFunctionCurveType",
      "@9 igs130InvalidFunctionCurveData"}},
};

TEST(Curves, EveryDamageIsFoundAndWhatCanBeRepairedIs) {
  for (Damage const& damage : damages) expect_damage(damage);
}

// Built through their setters, the classes write what a file of them reads; what a setter
// refuses leaves the entity as it was.
using CurveSetters = igs_entity_test::EntityTest;

// Point sets and polylines share their code; each runs through the same steps.
template <class T> void tuple_list_setters(igs_entity_test::EntityTest& test, int offset) {
  using Dim = typename T::Dim;
  std::string const prefix = T::type().name();
  auto* e = new T;
  Dim dim{};
  EXPECT_FALSE(e->dimensionality(dim));
  EXPECT_EQ(test.checked(*e),
            (std::vector<std::string>{prefix + "InvalidDimensionality", prefix + "NoPoints"}));
  EXPECT_EQ(T::repair_form(e->de_number()), 0); // no flag, no form to give
  EXPECT_FALSE(e->set_dimensionality(Dim(4)));
  EXPECT_FALSE(e->set_dimensionality(Dim(0)));
  EXPECT_FALSE(e->set_z_level(1.0));
  ASSERT_TRUE(e->set_dimensionality(Dim(1)));
  EXPECT_FALSE(e->set_dimensionality(Dim(1))); // a second flag is refused, even the same
  EXPECT_EQ(e->directory_entry().form_number(), 1 + offset);
  EXPECT_TRUE(e->set_size(10));
  EXPECT_FALSE(e->set_size(0));
  EXPECT_EQ(e->number_of_items(), 0);
  EXPECT_FALSE(e->set_point_3d(0, giPoint3(1, 2, 3)));
  EXPECT_FALSE(e->set_point_vector(0, giPoint3(1, 2, 3), giVector3(1, 0, 0)));
  EXPECT_FALSE(e->set_point_planar(-1, giPoint2(1, 2)));
  EXPECT_FALSE(e->set_point_planar(0, giPoint2()));
  ASSERT_TRUE(e->set_z_level(5.0));
  for (giPoint2 const& p : {giPoint2(0, 0), giPoint2(1, 0), giPoint2(1, 1)})
    ASSERT_TRUE(e->set_point_planar(e->number_of_items(), p));
  giPoint2 planar;
  giPoint3 point;
  giVector3 vector;
  EXPECT_FALSE(e->point_planar(3, planar));
  EXPECT_FALSE(e->point_planar(-1, planar));
  EXPECT_FALSE(e->point_vector(0, point, vector));
  ASSERT_TRUE(e->point_3d(2, point)); // flag 1 answers in space too
  EXPECT_EQ(point, giPoint3(1, 1, 5));
  EXPECT_EQ(test.checked(*e), std::vector<std::string>{});
  EXPECT_EQ(test.written(*e), test.records({"106,1,3,5.,0.,0.,1.,0.,1.,1.;"}));
  // The points keep the Z of their time.
  ASSERT_TRUE(e->set_z_level(6.0));
  EXPECT_EQ(test.checked(*e), std::vector<std::string>(3, prefix + "UnequalZLevels"));

  auto* gaps = new T;
  ASSERT_TRUE(gaps->set_dimensionality(Dim(2)));
  ASSERT_TRUE(gaps->set_point_3d(2, giPoint3(1, 2, 3)));
  EXPECT_EQ(test.checked(*gaps), (std::vector<std::string>{prefix + "InvalidPoint(index=0)",
                                                           prefix + "InvalidPoint(index=1)"}));

  auto* vectors = new T;
  ASSERT_TRUE(vectors->set_dimensionality(Dim(3)));
  EXPECT_FALSE(vectors->set_point_vector(0, giPoint3(1, 2, 3), giVector3()));
  ASSERT_TRUE(vectors->set_point_vector(1, giPoint3(1, 2, 3), giVector3(1, 0, 0)));
  EXPECT_FALSE(vectors->point_3d(1, point));
  double z = 0.0;
  EXPECT_FALSE(vectors->z_level(z));
  ASSERT_TRUE(vectors->point_vector(1, point, vector));
  EXPECT_EQ(vector, giVector3(1, 0, 0));
  EXPECT_EQ(test.checked(*vectors), (std::vector<std::string>{prefix + "InvalidPoint(index=0)",
                                                              prefix + "InvalidVector(index=0)"}));
}

TEST_F(CurveSetters, PointSetsAndPolylines) {
  tuple_list_setters<igsPointset>(*this, 0);
  tuple_list_setters<igsPolyline>(*this, 10);
}

// A B-spline curve built through its setters, sized once: a rational one names its unset and
// zero weights; the planar flag stores 1 for any true value.
TEST_F(CurveSetters, BsplineCurves) {
  auto* curve = new igs126;
  ASSERT_TRUE(curve->set_order_size(2, 3));
  EXPECT_FALSE(curve->set_order_size(2, 4));
  for (int i = 0; i < 5; ++i) ASSERT_TRUE(curve->set_knot(i, i < 2 ? 0.0 : i < 3 ? 0.5 : 1.0));
  for (int i = 0; i < 3; ++i) ASSERT_TRUE(curve->set_control_point(i, giPoint3(i, 2 * i, 0)));
  ASSERT_TRUE(curve->set_weight(0, 1.0) && curve->set_weight(2, 1e-16));
  EXPECT_TRUE(curve->set_parametric_limits(0.0, 1.0));
  curve->set_planar_flag(7);
  curve->set_rational_flag(1);
  EXPECT_EQ(curve->planar_flag(), 1);
  EXPECT_TRUE(curve->set_unit_normal(giVector3(0, 0, 1)));
  EXPECT_EQ(checked(*curve),
            (std::vector<std::string>{"igs126UnsetWeight(index=1)", "igs126ZeroWeight(index=2)"}));
  // Weights all 1 as read; setting another brings them back before the control points.
  auto* unit = new igs126;
  ASSERT_EQ(
      read(*unit, {"126,1,1,0,0,1,0,0.,0.,1.,1.,1.,1.,1.,2.,3.,4.,5.,6.,", "0.,1.,0.,0.,1.;"}), 1);
  double weight = 0.0;
  giPoint3 point;
  EXPECT_TRUE(unit->set_weight(0, 1.0) && unit->weight(1, weight) && weight == 1.0);
  ASSERT_TRUE(unit->set_weight(1, 0.5) && unit->weight(0, weight) && weight == 1.0);
  EXPECT_TRUE(unit->control_point(1, point) && point == giPoint3(4, 5, 6));
  EXPECT_EQ(written(*unit),
            records({"126,1,1,0,0,1,0,0.,0.,1.,1.,1.,0.5,1.,2.,3.,4.,5.,6.,0.,1.,0.,", "0.,1.;"}));
}

// Order 2 and 13201 control points of weight 2: 66007 values, more than the first reservation
// holds. The record is cut behind commas into lines of up to 64 columns.
igs_input_test::Lines large_curve(int values_written) {
  std::string data = "126,13200,1,0,0,0,0,";
  for (int i = 0; i < values_written; ++i)
    data += std::to_string(i < 13203 ? i : i < 26404 ? 2 : 1) + ",";
  data += "0.,1.;";
  igs_input_test::Lines lines;
  for (size_t at = 0, end = 0; at < data.size(); at = end) {
    end = data.size() - at <= 64 ? data.size() : data.rfind(',', at + 63) + 1;
    lines.push_back(data.substr(at, end - at));
  }
  return lines;
}

TEST_F(CurveSetters, BsplineCountsBeyondTheFirstReservationAreReadWhileTheRecordLasts) {
  auto* curve = new igs126;
  ASSERT_EQ(read(*curve, large_curve(66007)), 1);
  double value = 0.0, start = 0.0, end = 0.0;
  giPoint3 point;
  EXPECT_TRUE(curve->knot(13202, value) && value == 13202.0);
  EXPECT_TRUE(curve->control_point(13200, point) && point == giPoint3(1, 1, 1));
  curve->parametric_limits(start, end);
  EXPECT_EQ(end, 1.0);
  // A record that ends before such a count is met has a damaged count.
  auto* cut = new igs126;
  EXPECT_EQ(read(*cut, large_curve(65600)), 0);
  EXPECT_EQ(errors(*cut), std::vector<std::string>{"igs126BadSumIndex(sum_index=13200)"});
  EXPECT_EQ(cut->number_of_control_points(), 0);
  // Within the first reservation, missing values read as defaulted fields.
  ASSERT_EQ(read(*cut, {"126,3,1,0,0,1,0,0.,0.,1.;"}), 1);
  EXPECT_TRUE(cut->control_point(3, point) && point == giPoint3(0, 0, 0));
}

// Composite curves built through their setters: the list grows and is cut, members dropped are
// followed by position, and what the curve alone holds goes with it.
TEST_F(CurveSetters, CompositeCurves) {
  auto* composite = new igs102;
  igs110* lines[3] = {new igs110, new igs110, new igs110};
  EXPECT_FALSE(composite->set_sub_curve(-1, igsObjectPtr(lines[0])));
  EXPECT_FALSE(composite->set_sub_curve(0, igsObjectPtr()));
  ASSERT_TRUE(composite->set_sub_curve(3, igsObjectPtr(lines[2])));
  EXPECT_EQ(written(*composite), records({"102,4,0,0,0,7;"}));
  composite->set_size(-1);
  EXPECT_EQ(composite->number_of_sub_curves(), 4);
  composite->set_size(0);
  EXPECT_EQ(composite->number_of_sub_curves(), 0);
  for (int i = 0; i < 3; ++i) ASSERT_TRUE(composite->set_sub_curve(i, igsObjectPtr(lines[i])));
  igsObjectPtr member;
  EXPECT_FALSE(composite->sub_curve(3, member) || composite->sub_curve(-1, member));
  EXPECT_EQ(composite->get_index(0) + composite->get_index(2), 2);
  EXPECT_EQ(composite->get_index(3), -1);
  EXPECT_FALSE(composite->remove_sub_curve(3));
  ASSERT_TRUE(composite->remove_sub_curve(0));
  EXPECT_EQ(composite->get_index(0), -1);
  EXPECT_EQ(composite->get_index(2), 1);
  // A check names the members where they stand now. The unset lines fail their checks, and
  // the repairs drop them, the second found where the first left it.
  EXPECT_EQ(checked(*composite),
            (std::vector<std::string>{"igs102InvalidSubCurveData(position=0)",
                                      "igs102InvalidSubCurveData(position=1)"}));
  EXPECT_EQ(composite->get_index(1), 1);
  EXPECT_EQ(fix(composite->de_number(), igs102InvalidSubCurveData::type()), 1);
  EXPECT_EQ(composite->get_index(1), 0);
  ASSERT_TRUE(composite->sub_curve(0, member));
  EXPECT_EQ(member(), lines[2]);
  // Dropping the last reference to the composite curve deletes what it alone held.
  member = igsObjectPtr();
  igsObjectPtr top(composite);
  top.unreference();
  EXPECT_EQ(file->num_entities(), 2);
}

} // namespace

namespace {

// Spline curves built through their setters: sized once, every value unset until set.
TEST_F(CurveSetters, ParametricSplineCurves) {
  using Errors = std::vector<std::string>;
  auto* curve = new igs112;
  ASSERT_TRUE(curve->set_number_of_segments(2));
  EXPECT_FALSE(curve->set_number_of_segments(2));
  EXPECT_TRUE(curve->set_continuity(3));
  EXPECT_FALSE(curve->set_continuity(4) || curve->set_continuity(-1));
  EXPECT_EQ(checked(*curve),
            (Errors{"igs112InvalidContinuity(value=3)", "igs112InvalidCurveSegment(index=0)",
                    "igs112InvalidCurveSegment(index=1)", "igs112InvalidDerivatives",
                    "igs112UnsetBreakpoint(index=0)", "igs112UnsetBreakpoint(index=1)",
                    "igs112UnsetBreakpoint(index=2)"}));
  EXPECT_EQ(fix(curve->de_number(), igs112InvalidContinuity::type()), 1);
  EXPECT_EQ(curve->continuity(), 0);
  igsCubicCoefficients c;
  EXPECT_FALSE(curve->set_breakpoint(3, 1.0) || curve->x_coefficients(-1, c));
}

// Offset curves set as a whole: what the way of offsetting leaves out is null or unset, which
// a check of a uniform offset finds twice, and which goes out as the 0 a file would give.
TEST_F(CurveSetters, OffsetCurves) {
  auto* line = new igs110;
  line->set_start_point(giPoint3(0, 0, 0));
  line->set_end_point(giPoint3(1, 0, 0));
  igsObjectPtr basis(line);
  auto* offset = new igs130;
  offset->set_uniform_offset(basis, 2.0, 0.0, 1.0, giVector3(0, 0, 1));
  EXPECT_EQ(checked(*offset),
            (std::vector<std::string>{"igs130FieldMismatch", "igs130FieldMismatch"}));
  EXPECT_EQ(written(*offset), records({"130,1,1,0,0,0,2.,0.,0.,0.,0.,0.,1.,0.,1.;"}));
  offset->set_linear_varying_parametric_offset(basis, 1, 2, 3, 4, 0.0, 1.0, giVector3(0, 0, 1));
  EXPECT_EQ(offset->function_curve_index(), igs_unset_int);
  offset->set_function_varying_arc_length_offset(basis, basis, 1, 0.0, 1.0, giVector3(0, 0, 1));
  EXPECT_EQ(offset->offset_distance_taper_type() * 10 + offset->offset_distance_type(), 13);
  EXPECT_EQ(checked(*offset), std::vector<std::string>{"igs130FieldMismatch"});
  offset->set_function_varying_parametric_offset(basis, igsObjectPtr(), 0, 0.0, 1.0,
                                                 giVector3(0, 3, 4));
  offset->set_linear_varying_arc_length_offset(basis, 1, 2, 3, 4, 0.0, 1.0, giVector3(0, 3, 4));
  EXPECT_EQ(checked(*offset),
            (std::vector<std::string>{"igs130FieldMismatch", "igs130PlaneNormalNotUnitVector"}));
  EXPECT_EQ(fix(offset->de_number(), igs130PlaneNormalNotUnitVector::type()), 1);
  EXPECT_EQ(offset->plane_normal(), giVector3(0, 0.6, 0.8));
}

} // namespace
