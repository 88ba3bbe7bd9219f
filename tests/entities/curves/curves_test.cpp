// The curve and point family: a file of every class, and each damage a file can carry with
// what check and repair make of it.
#include "entities/curves/igs100.h"
#include "entities/curves/igsCurveErrors.h"
#include "entities/curves/igsPointset.h"
#include "entities/curves/igsPolyline.h"
#include "entities/curves/igsSimpleClosedPlanarCurve.h"
#include "entities/entityFamily.h"

using namespace igs_family_test;

namespace {

Family const curves = {"curves", "curves",
                       {
                           {116, 0, "116,1.,2.,3.,3;"},
                           {116, 0, "116,-1.5,0.,32.5,0;"},
                           {110, 0, "110,0.,0.,0.,1.,1.,1.;"},
                           {100, 0, "100,2.5,1.,1.,2.,1.,1.,2.;"},
                           {100, 0, "100,0.,3.,4.,5.,4.,5.,4.;"},
                           {106, 1, "106,1,3,5.,0.,0.,1.,0.,1.,1.;"},
                           {106, 2, "106,2,2,0.,0.,0.,1.,2.,3.;"},
                           {106, 3, "106,3,2,1.,2.,3.,0.,0.,1.,4.,5.,6.,1.,0.,0.;"},
                           {106, 11, "106,1,2,-2.,0.,0.,1.,1.;"},
                           {106, 12, "106,2,3,0.,0.,0.,1.,1.,1.,0.,0.,1.D-20;"},
                           {106, 13, "106,3,1,1.,2.,3.,0.,0.,1.;"},
                           {106, 63, "106,1,4,2.,0.,0.,1.,0.,0.,5.D-7,0.,0.;"},
                           // DE 25: a planar cubic of constant weights (polynomial).
                           {126, 0, "126,3,3,1,0,1,0,0.,0.,0.,0.,1.,1.,1.,1.,1.,1.,1.,1.,0.,0.,0.,"
                                    "1.,2.,0.,3.,2.,0.,4.,0.,0.,0.,1.,0.,0.,1.;"},
                           // DE 27: a quarter circle, rational.
                           {126, 2, "126,2,2,1,0,0,0,0.,0.,0.,1.,1.,1.,1.,0.707106781186548,1.,"
                                    "1.,0.,0.,1.,1.,0.,0.,1.,0.,0.,1.,0.,0.,1.;"},
                           // DE 29: a closed polygon of order 2 with double end knots, used
                           // over part of its range.
                           {126, 0, "126,4,1,0,1,1,0,0.,0.,1.,2.,3.,4.,4.,1.,1.,1.,1.,1.D0,0.,0.,"
                                    "0.,1.,0.,0.,1.,1.,1.,0.,1.,1.,0.,0.,0.,0.5,3.5,0.,0.,0.;"},
                           // DE 31: a line and the two curves; DE 33: two points; DE 35: the
                           // first composite curve, a polyline and a point.
                           {102, 0, "102,3,5,25,27;"},
                           {102, 0, "102,2,1,3;"},
                           {102, 0, "102,3,31,19,3;"},
                       }};

TEST(Curves, TheFamilyFile) {
  expect_family(curves);
}

// The damaged entity stands first, at DE 1.
Damage const damages[] = {
    {"a line of no length becomes a polyline of its two points",
     {{110, 0, "110,1.,2.,3.,1.,2.,3.;"}, {116, 0, "116,0.,0.,0.,1;"}},
     {"@1 igs110CoincidentPoints(tolerance=1e-09)"},
     {}},
    {"an arc whose ends lie at other radii gets its centre moved",
     {{100, 0, "100,0.,0.3,0.5,1.,0.,-1.,0.;"}},
     {"@1 igs100InconsistRad"},
     {}},
    {"an arc with its centre on both ends has no radius",
     {{100, 0, "100,0.,3.,4.,3.,4.,3.,4.;"}},
     {"@1 igs100ZeroRadius"},
     {"@1 igs100ZeroRadius"}},
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

    // Rational B-spline curves. K=3, M=1 unless said otherwise: six knots, four points.
    {"a knot a little below the one before it joins that one",
     {{126, 0, "126,3,1,0,0,1,0,0.,0.,0.5,0.4999999995,1.,1.,1.,1.,1.,1.,0.,0.,0.,1.,0.,0.,"
               "2.,0.,0.,3.,0.,0.,0.,1.,0.,0.,1.;"}},
     {"@1 igs126KnotOutOfSequence(index=3,knot=0.5,last=0.5)", "@1 igs126KnotsTooClose"},
     {}},
    {"a knot far below the one before it stays, and is compared with the greatest so far",
     {{126, 0, "126,3,1,0,0,1,0,0.,0.,2.,1.,3.,3.,1.,1.,1.,1.,0.,0.,0.,1.,0.,0.,2.,0.,0.,"
               "3.,0.,0.,0.,3.,0.,0.,1.;"}},
     {"@1 igs126KnotOutOfSequence(index=3,knot=1,last=2)"},
     {"@1 igs126KnotOutOfSequence(index=3,knot=1,last=2)"}},
    {"knots closer than the tolerance become multiple knots, from the top and from the bottom",
     {{126, 0, "126,5,1,0,0,1,0,0.,0.,0.25,0.2500000004,0.75,0.9999999996,1.,1.,1.,1.,1.,1.,"
               "1.,1.,0.,0.,0.,1.,0.,0.,2.,0.,0.,3.,0.,0.,4.,0.,0.,5.,0.,0.,0.,1.,0.,0.,1.;"}},
     {"@1 igs126KnotsTooClose"},
     {}},
    {"limits outside the knots' range are pulled back to it",
     {{126, 0, "126,3,1,0,0,1,0,0.,0.,0.5,0.5,1.,1.,1.,1.,1.,1.,0.,0.,0.,1.,0.,0.,2.,0.,0.,"
               "3.,0.,0.,-0.5,1.5,0.,0.,1.;"}},
     {"@1 igs126MaxParamOutOfRange(value=1.5,lo=0,hi=1)",
      "@1 igs126MinParamOutOfRange(value=-0.5,lo=0,hi=1)"},
     {}},
    {"limits in the wrong order are set to the knots' range",
     {{126, 0, "126,3,1,0,0,1,0,0.,0.,0.5,0.5,1.,1.,1.,1.,1.,1.,0.,0.,0.,1.,0.,0.,2.,0.,0.,"
               "3.,0.,0.,0.75,0.25,0.,0.,1.;"}},
     {"@1 igs126TrimParamsOutOfSequence(start=0.75,end=0.25)"},
     {}},
    {"a curve of no degree is not read",
     {{126, 0, "126,3,0,0,0,1,0,0.,1.,2.,3.;"}},
     {"@1 igs126BadDegree(degree=0)", "@1 igsFileNoPDData(de_number=1)"},
     {"@1 igs126BadDegree(degree=0)"},
     "Warning : There is no Parameter Data associated with object DE 1.\n"},
    {"a curve of no control points beyond the first is not read",
     {{126, 0, "126,0,1,0,0,1,0,0.,1.;"}},
     {"@1 igs126BadSumIndex(sum_index=0)", "@1 igsFileNoPDData(de_number=1)"},
     {"@1 igs126BadSumIndex(sum_index=0)"},
     "Warning : There is no Parameter Data associated with object DE 1.\n"},
    {"a curve of fewer control points than its degree is not read",
     {{126, 0, "126,3,4,0,0,1,0,0.,1.;"}},
     {"@1 igs126SumIndexLessThanDegree(sum_index=3,degree=4)", "@1 igsFileNoPDData(de_number=1)"},
     {"@1 igs126SumIndexLessThanDegree(sum_index=3,degree=4)"},
     "Warning : There is no Parameter Data associated with object DE 1.\n"},
    {"zero and negative weights of a rational curve stay",
     {{126, 0, "126,3,1,0,0,0,0,0.,0.,1.,2.,3.,3.,1.,0.,-2.,1.,0.,0.,0.,1.,0.,0.,2.,0.,0.,"
               "3.,0.,0.,0.,3.,0.,0.,1.;"}},
     {"@1 igs126NegativeWeight(index=2,weight=-2)", "@1 igs126ZeroWeight(index=1)"},
     {"@1 igs126NegativeWeight(index=2,weight=-2)", "@1 igs126ZeroWeight(index=1)"}},
    {"flags that are neither 0 nor 1: closed, rational and periodic are set to 0, planar is not",
     {{126, 0, "126,2,2,5,2,3,-1,0.,0.,0.,1.,1.,1.,1.,0.5,1.,1.,0.,0.,1.,1.,0.,0.,1.,0.,0.,"
               "1.,0.,0.,1.;"}},
     {"@1 igs126InvalidClosedFlag(flag=2)", "@1 igs126InvalidPeriodicFlag(flag=-1)",
      "@1 igs126InvalidPlanarFlag(flag=5)", "@1 igs126InvalidRationalFlag(flag=3)"},
     {"@1 igs126InvalidPlanarFlag(flag=5)"}},
    {"a rational flag that the weights contradict is turned over",
     {{126, 0, "126,1,1,0,0,0,0,0.,0.,1.,1.,1.,1.,0.,0.,0.,1.,0.,0.,0.,1.,0.,0.,1.;"},
      {126, 0, "126,1,1,0,0,1,0,0.,0.,1.,1.,1.,2.,0.,0.,0.,1.,0.,0.,0.,1.,0.,0.,1.;"}},
     {"@1 igs126WeightsAndRatFlagDisagree(tested=0)",
      "@3 igs126WeightsAndRatFlagDisagree(tested=1)"},
     {}},
    {"a curve with no parameter range becomes a null entity",
     {{126, 0, "126,1,1,0,0,1,0,0.,0.,0.,0.,1.,1.,0.,0.,0.,1.,0.,0.,0.,0.,0.,0.,1.;"}},
     {"@1 igs126NoParamRange(lo=0)", "@1 igs126TrimParamsOutOfSequence(start=0,end=0)"},
     {},
     "Warning : IGES 126 (Nurb Curve) DE 1 has been removed.\n"},

    // Composite curves.
    {"a composite curve of no members",
     {{102, 0, "102,0;"}},
     {"@1 igs102NoSubCurves"},
     {"@1 igs102NoSubCurves"}},
    {"a composite curve of a negative count is not read",
     {{102, 0, "102,-1;"}},
     {"@1 igs102BadNumCurves(count=-1)", "@1 igsFileNoPDData(de_number=1)"},
     {"@1 igs102BadNumCurves(count=-1)"},
     "Warning : There is no Parameter Data associated with object DE 1.\n"},
    {"a member that names no entity, and a lone point",
     {{102, 0, "102,2,5,99;"}, {102, 0, "102,1,7;"}, {110, 0, "110,0.,0.,0.,1.,0.,0.;"},
      {116, 0, "116,1.,0.,0.,0;"}},
     {"@1 igs102NullSubCurvePtr(position=1)", "@3 igs102OnlyPoint"},
     {"@1 igs102NullSubCurvePtr(position=1)", "@3 igs102OnlyPoint"}},
    {"points in a row are told and forgotten; a null member between them does not part them",
     {{102, 0, "102,3,5,7,9;"}, {102, 0, "102,3,5,0,7;"}, {116, 0, "116,0.,0.,0.,0;"},
      {116, 0, "116,1.,0.,0.,0;"}, {110, 0, "110,1.,0.,0.,2.,0.,0.;"}},
     {"@1 igs102AdjacentPoints(first=0,second=1)", "@3 igs102AdjacentPoints(first=1,second=2)",
      "@3 igs102NullSubCurvePtr(position=1)"},
     {"@1 igs102AdjacentPoints(first=0,second=1)", "@3 igs102AdjacentPoints(first=1,second=2)",
      "@3 igs102NullSubCurvePtr(position=1)"},
     {},
     {"@1 igs102AdjacentPoints(first=0,second=1)"}},
    {"point sets as members become polylines: in every place when only the composite curve "
     "holds one, in the list alone when another entity holds it too",
     {{102, 0, "102,2,5,9;"}, {102, 0, "102,2,7,11;"}, {106, 2, "106,2,2,0.,0.,0.,1.,0.,0.;"},
      {106, 1, "106,1,2,0.,1.,0.,2.,0.;"}, {110, 0, "110,1.,0.,0.,2.,0.,0.;"},
      {116, 0, "116,0.,0.,0.,7;"}},
     {"@1 igs102InvalidSubCurveType(position=0)", "@3 igs102InvalidSubCurveType(position=0)"},
     {}},
    {"a point set of vectors has no conversion",
     {{102, 0, "102,1,3;"}, {106, 3, "106,3,1,0.,0.,0.,1.,0.,0.;"}},
     {"@1 igs102InvalidSubCurveType(position=0)"},
     {"@1 igs102InvalidSubCurveType(position=0)"}},
    {"members whose own repairs clear them stay, and theirs come first",
     {{102, 0, "102,2,3,5;"},
      {110, 0, "110,1.,2.,3.,1.,2.,3.;"},
      {126, 0, "126,3,1,0,0,1,0,0.,0.,0.5,0.5,1.,1.,1.,1.,1.,1.,0.,0.,0.,1.,0.,0.,2.,0.,0.,"
               "3.,0.,0.,-0.5,1.,0.,0.,1.;"}},
     {"@1 igs102InvalidSubCurveData(position=0)", "@1 igs102InvalidSubCurveData(position=1)",
      "@3 igs110CoincidentPoints(tolerance=1e-09)",
      "@5 igs126MinParamOutOfRange(value=-0.5,lo=0,hi=1)"},
     {}},
    {"two broken members are dropped, the second found at its new place",
     {{102, 0, "102,3,3,5,7;"},
      {100, 0, "100,0.,3.,4.,3.,4.,3.,4.;"},
      {110, 0, "110,0.,0.,0.,1.,0.,0.;"},
      {100, 0, "100,0.,1.,1.,1.,1.,1.,1.;"}},
     {"@1 igs102InvalidSubCurveData(position=0)", "@1 igs102InvalidSubCurveData(position=2)",
      "@3 igs100ZeroRadius", "@7 igs100ZeroRadius"},
     {"@3 igs100ZeroRadius", "@7 igs100ZeroRadius"},
     // The repairs of one entity run in the log's order, which a second check reverses.
     "Warning : sub curve DE 7 has been removed from composite curve DE 1\n"
     "Warning : sub curve DE 3 has been removed from composite curve DE 1\n"},
    {"a member without parameter range becomes a null entity and leaves the list",
     {{102, 0, "102,2,3,5;"},
      {126, 0, "126,1,1,0,0,1,0,0.,0.,0.,0.,1.,1.,0.,0.,0.,1.,0.,0.,0.,1.,0.,0.,1.;"},
      {110, 0, "110,0.,0.,0.,1.,0.,0.;"}},
     {"@1 igs102InvalidSubCurveData(position=0)", "@3 igs126MaxParamOutOfRange(value=1,lo=0,hi=0)",
      "@3 igs126NoParamRange(lo=0)"},
     {},
     "Warning : IGES 126 (Nurb Curve) DE 3 has been removed.\n"
     "Warning : sub curve DE 3 has been removed from composite curve DE 1\n"},
};

TEST(Curves, EveryDamageIsFoundAndWhatCanBeRepairedIs) {
  for (Damage const& damage : damages) expect_damage(damage);
}

} // namespace
