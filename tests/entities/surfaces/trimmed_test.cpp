// The B-spline surface and the trimmed surfaces: offset surfaces, boundaries, curves on
// surfaces, bounded and trimmed surfaces; a file of every class, and each damage a file can
// carry with what check and repair make of it.
#include "entities/entityFamily.h"

using namespace igs_family_test;

namespace {

std::string const lowest = "-1.7976931348623157D308"; // the unset double, spelled out
std::string const use_5 = "00000500";                 // the entity use of a curve on a surface

// A bilinear B-spline surface of 2 by 2 control points on the unit square: its flags, knots
// (U then V), weights and limits as given.
std::string bilinear(std::string const& flags = "0,0,1,0,0",
                     std::string const& knots = "0.,0.,1.,1.,0.,0.,1.,1.",
                     std::string const& weights = "1.,1.,1.,1.",
                     std::string const& limits = "0.,1.,0.,1.") {
  return "128,1,1,1,1," + flags + "," + knots + "," + weights +
         ",0.,0.,0.,1.,0.,0.,0.,1.,0.,1.,1.,0.," + limits + ";";
}

// DE 1 a polynomial surface, DE 3 a rational one; offset, curves on the surface, trimmed
// surfaces with and without an outer boundary, a boundary with a point among its curves and
// the bounded surface that it cuts, on the lines and the point behind them (DE 19 to 25).
Family const trimmed = {
    "trimmed",
    "surfaces",
    {
        {128, 0, bilinear()},
        {128, 2,
         "128,2,1,2,1,0,0,0,0,0,0.,0.,0.,1.,1.,1.,0.,0.,1.,1.,1.,0.70710678,1.,1.,0.70710678,1.,"
         "1.,0.,0.,1.,1.,0.,0.,1.,0.,1.,0.,1.,1.,1.,1.,0.,1.,1.,0.,1.,0.,1.;"},
        {140, 0, "140,0.,0.,1.,2.5,1;"},
        {142, 0, "142,1,1,19,21,1;", 0, 0, use_5},
        {142, 0, "142,3,1,23,0,1;", 0, 0, use_5},
        {144, 0, "144,1,1,1,7,9;"},
        {144, 0, "144,1,0,1,0,9;"},
        {141, 0, "141,1,2,1,2,21,1,1,19,25,2,0;"},
        {143, 0, "143,1,1,1,15;"},
        {110, 0, "110,0.,0.,0.,1.,0.,0.;"},
        {110, 0, "110,0.,0.,0.,1.,0.,0.;"},
        {110, 0, "110,0.25,0.25,0.,0.75,0.25,0.;"},
        {116, 0, "116,0.,1.,0.,0;"},
    }};

TEST(Trimmed, TheFamilyFile) {
  expect_family(trimmed);
}

Record const surface = {128, 0, bilinear()};
Record const line = {110, 0, "110,0.,0.,0.,1.,0.,0.;"};
Record const point = {116, 0, "116,0.,0.,0.,0;"};
Record const point_set = {106, 2, "106,2,2,0.,0.,0.,1.,2.,3.;"};
Record const off_centre_arc = {100, 0, "100,0.,0.3,0.5,1.,0.,-1.,0.;"};
Record const no_radius_arc = {100, 0, "100,0.,3.,4.,3.,4.,3.,4.;"};
Record const plane = {108, 0, "108,0.,0.,1.,0.,0,0.,0.,0.,0.;"};
char const* const no_data_1 = "Warning : There is no Parameter Data associated with object DE 1.\n";

// A curve on a surface of the parameters given.
Record on_surface(std::string const& data) {
  return {142, 0, "142," + data + ";", 0, 0, use_5};
}

Damage stays(char const* what, Records records, std::vector<std::string> errors) {
  return {what, std::move(records), errors, errors};
}

Damage const damages[] = {
    // B-spline surfaces.
    {"a surface whose upper index lies below its degree is not read",
     {{128, 0, "128,2,1,3,1,0,0,1,0,0;"}},
     {"@1 igs128USumIndexLessThanUDegree(sum_index=2,degree=3)", "@1 igsFileNoPDData(de_number=1)"},
     {"@1 igs128USumIndexLessThanUDegree(sum_index=2,degree=3)"},
     no_data_1},
    {"flags out of range are cleared",
     {{128, 0, bilinear("2,-1,3,2,5")}},
     {"@1 igs128InvalidClosedUFlag(flag=2)", "@1 igs128InvalidClosedVFlag(flag=-1)",
      "@1 igs128InvalidPeriodicUFlag(flag=2)", "@1 igs128InvalidPeriodicVFlag(flag=5)",
      "@1 igs128InvalidRationalFlag(flag=3)"},
     {},
     "",
     bilinear("0,0,0,0,0")},
    {"a knot a little below the one before it is lifted; one far below stays",
     {{128, 0,
       "128,2,1,1,1,0,0,1,0,0,0.,0.,1.,0.9999999999,2.,0.,0.,1.,0.5,1.,1.,1.,1.,1.,1.,"
       "0.,0.,0.,1.,0.,0.,2.,0.,0.,0.,1.,0.,1.,1.,0.,2.,1.,0.,0.,0.5,0.,1.;"}},
     {"@1 igs128KnotUOutOfSequence(index=3,knot=1,last=1)",
      "@1 igs128KnotVOutOfSequence(index=3,knot=0.5,last=1)", "@1 igs128UKnotsTooClose"},
     {"@1 igs128KnotVOutOfSequence(index=3,knot=0.5,last=1)"}},
    {"limits outside the knots are taken from them",
     {{128, 0, bilinear("0,0,1,0,0", "0.,0.,1.,1.,0.,0.,2.,2.", "1.,1.,1.,1.", "-1.,1.,0.,3.")},
      {128, 0, bilinear("0,0,1,0,0", "0.,0.,1.,1.,0.,0.,1.,1.", "1.,1.,1.,1.", "1.,0.,0.5,0.5")}},
     {"@1 igs128MaxParamVOutOfRange(value=3,lo=0,hi=2)",
      "@1 igs128MinParamUOutOfRange(value=-1,lo=0,hi=1)",
      "@3 igs128TrimParamsUOutOfSequence(start=1,end=0)",
      "@3 igs128TrimParamsVOutOfSequence(start=0.5,end=0.5)"},
     {},
     "",
     bilinear("0,0,1,0,0", "0.,0.,1.,1.,0.,0.,2.,2.", "1.,1.,1.,1.", "0.,1.,0.,2.")},
    {"weights 1, 1, 0, 2 make the surface rational; the zero weight stays",
     {{128, 0, bilinear("0,0,1,0,0", "0.,0.,1.,1.,0.,0.,1.,1.", "1.,1.,0.,2.")}},
     {"@1 igs128WeightsAndRatFlagDisaggree", "@1 igs128ZeroWeight(u_index=0,v_index=1)"},
     {"@1 igs128ZeroWeight(u_index=0,v_index=1)"}},
    stays("equal weights pass whatever their value; unset and negative ones among others do not",
          {{128, 0, bilinear("0,0,0,0,0", "0.,0.,1.,1.,0.,0.,1.,1.", "-1.,-1.,-1.,-1.")},
           {128, 0, bilinear("0,0,0,0,0", "0.,0.,1.,1.,0.,0.,1.,1.", "1.," + lowest + ",-2.,1.")}},
          {"@3 igs128NegativeWeight(u_index=0,v_index=1,weight=-2)",
           "@3 igs128UnsetWeight(u_index=1,v_index=0)"}),
    // The end in U comes to the empty range's end, which the check still refuses.
    {"a direction without a range, an unset knot, an unset point and unset limits",
     {{128, 0,
       "128,1,1,1,1,0,0,1,0,0,0.,0.,0.,0.,0.,0.,1.," + lowest +
           ",1.,1.,1.,1.,0.,0.,0.,1.,0.,0.,0.,1.,0.," + lowest + ",1.,0.,0.,1.,0.," + lowest +
           ";"}},
     {"@1 igs128KnotVOutOfSequence(index=3,knot=-1.79769e+308,last=1)",
      "@1 igs128MaxParamUOutOfRange(value=1,lo=0,hi=0)",
      "@1 igs128MaxParamVOutOfRange(value=-1.79769e+308,lo=0,hi=1)", "@1 igs128NoUParamRange(lo=0)",
      "@1 igs128TrimParamsVOutOfSequence(start=0,end=-1.79769e+308)",
      "@1 igs128UnsetControlPoint(u_index=1,v_index=1)", "@1 igs128UnsetKnotV(index=3)",
      "@1 igs128UnsetTrimmingParams"},
     {"@1 igs128KnotVOutOfSequence(index=3,knot=-1.79769e+308,last=1)",
      "@1 igs128NoUParamRange(lo=0)", "@1 igs128TrimParamsUOutOfSequence(start=0,end=0)",
      "@1 igs128UnsetControlPoint(u_index=1,v_index=1)", "@1 igs128UnsetKnotV(index=3)"}},

    // Offset surfaces.
    stays("an offset surface of nothing, without indicator or distance",
          {{140, 0, "140," + lowest + ",0.,0.," + lowest + ",0;"}},
          {"@1 igs140InvalidOffsetDistance", "@1 igs140InvalidOffsetIndicator",
           "@1 igs140NullSurfacePtr"}),
    stays("an offset of a line", {{140, 0, "140,0.,0.,1.,1.,3;"}, line},
          {"@1 igs140InvalidSurfaceType"}),
    {"an offset of a surface whose flag its repair clears",
     {{140, 0, "140,0.,0.,1.,1.,3;"}, {128, 0, bilinear("0,2,1,0,0")}},
     {"@1 igs140InvalidSurfaceData", "@3 igs128InvalidClosedVFlag(flag=2)"},
     {}},

    // Boundaries.
    stays("a boundary of no surface and no curves", {{141, 0, "141,0,0,0,0;"}},
          {"@1 igs141BadNumModelSpaceCurves(count=0)", "@1 igs141NullSurfacePtr"}),
    {"a boundary of a negative count of parameter curves is not read",
     {{141, 0, "141,0,0,3,1,5,1,-2;"}, surface, line},
     {"@1 igs141BadNumAssocParamCurves(curve=0,count=-2)", "@1 igsFileNoPDData(de_number=1)"},
     {"@1 igs141BadNumAssocParamCurves(curve=0,count=-2)"},
     no_data_1},
    {"a boundary's preference and sense are cleared; its representation, a missing curve and a "
     "missing parameter curve stay",
     {{141, 0, "141,2,5,3,2,0,0,0,5,1,2,5,0;"}, surface, line},
     {"@1 igs141InvalidBoundedSurfRep(value=2)", "@1 igs141InvalidPreferrenceFlag(value=5)",
      "@1 igs141InvalidReversalFlag(curve=0,flag=0)", "@1 igs141NullModelSpaceCurvePtr(curve=0)",
      "@1 igs141NullParameterCurvePtr(curve=1,parameter=1)"},
     {"@1 igs141InvalidBoundedSurfRep(value=2)", "@1 igs141NullModelSpaceCurvePtr(curve=0)",
      "@1 igs141NullParameterCurvePtr(curve=1,parameter=1)"}},
    {"a boundary on a plane, with parameter curves it should not have, gets polylines for its "
     "point sets",
     {{141, 0, "141,0,0,3,1,5,2,2,7,5;"}, plane, point_set, line},
     {"@1 igs141InvalidModelSpaceCurveType(curve=0)",
      "@1 igs141InvalidParameterCurveType(curve=0,parameter=1)",
      "@1 igs141Trim2DNonParametricSurface", "@1 igs141Trim2DNonParametricSurface",
      "@1 igs141UnexpectedParamCurves(curve=0)"},
     {"@1 igs141Trim2DNonParametricSurface", "@1 igs141Trim2DNonParametricSurface",
      "@1 igs141UnexpectedParamCurves(curve=0)"}},
    {"a boundary on a line, whose curves are cleared by their own repairs",
     {{141, 0, "141,1,0,3,1,5,1,1,5;"}, line, off_centre_arc},
     {"@1 igs141InvalidModelSpaceCurveData(curve=0)",
      "@1 igs141InvalidParameterCurveData(curve=0,parameter=0)", "@1 igs141InvalidSurfaceType",
      "@5 igs100InconsistRad"},
     {"@1 igs141InvalidSurfaceType"}},

    // Curves on surfaces.
    stays("a curve in parameter space of no kind of curve stays when it is the only one",
          {on_surface("0,3,5,0,1"), surface, plane}, {"@1 igs142InvalidCurve2dType"}),
    {"a point set as the model-space curve is replaced by a polyline",
     {on_surface("0,3,0,5,2"), surface, point_set},
     {"@1 igs142InvalidCurve3dType"},
     {}},
    {"a curve in parameter space that its repairs leave bad is given up, leaving no curve",
     {on_surface("0,3,5,0,1"), surface, no_radius_arc},
     {"@1 igs142InvalidCurve2dData", "@5 igs100ZeroRadius"},
     {"@1 igs142NoTrimCurves", "@5 igs100ZeroRadius"},
     "",
     "142,0,3,0,0,1;",
     {"@1 igs142NoTrimCurves"}},
    {"a curve in the parameter space of a plane, and one of another entity use",
     {on_surface("0,5,7,0,1"), {142, 0, "142,0,5,7,0,1;"}, plane, line},
     {"@1 igs142Trim2DNonParametricSurface", "@3 igs142Trim2DNonParametricSurface",
      "@3 igsDEInvalidEntityUse(use=5)"},
     {"@1 igs142Trim2DNonParametricSurface", "@3 igs142Trim2DNonParametricSurface"}},

    // Bounded surfaces.
    stays("a bounded surface of no surface and no boundaries", {{143, 0, "143,0,0,0;"}},
          {"@1 igs143NoBoundaries", "@1 igs143NullSurfacePtr"}),
    stays("a bounded surface of a representation out of range, a missing boundary, a curve on a "
          "surface as boundary and a boundary on another surface",
          {{143, 0, "143,3,3,3,0,5,7;"},
           surface,
           on_surface("0,3,9,0,1"),
           {141, 0, "141,0,0,11,1,9,1,0;"},
           line,
           surface},
          {"@1 igs143InvalidBoundaryType(index=1)",
           "@1 igs143InvalidSurfaceRepresentation(value=3)", "@1 igs143NullBoundaryPtr(index=0)",
           "@1 igs143SurfacePointerMismatch(index=2)"}),
    {"a bounded surface whose boundary's own repair clears it",
     {{143, 0, "143,0,5,1,3;"}, {141, 0, "141,0,7,5,1,7,1,0;"}, surface, line},
     {"@1 igs143InvalidBoundaryData(index=0)", "@3 igs141InvalidPreferrenceFlag(value=7)"},
     {}},

    // Trimmed surfaces.
    {"a trimmed surface without boundaries is written as it came",
     {{144, 0, "144,3,1,0,0;"}, surface},
     {"@1 igs144NoBoundaries"},
     {"@1 igs144NoBoundaries"},
     "",
     "144,3,1,0,0;",
     {"@1 igs144NoBoundaries"}},
    {"a trimmed surface of a negative count of inner boundaries is not read",
     {{144, 0, "144,3,1,-1,0;"}, surface},
     {"@1 igs144BadNumInnerBounds(count=-1)", "@1 igsFileNoPDData(de_number=1)"},
     {"@1 igs144BadNumInnerBounds(count=-1)"},
     no_data_1},
    {"a trimmed surface gets back the surface that its inner boundaries agree on",
     {{144, 0, "144,0,1,2,0,5,7;"},
      surface,
      on_surface("0,3,9,0,1"),
      on_surface("0,3,9,0,1"),
      line},
     {"@1 igs144NullSurfacePtr"},
     {},
     "",
     "144,3,1,2,0,5,7;"},
    stays("a trimmed surface whose inner boundaries include a line gets no surface back",
          {{144, 0, "144,0,1,3,0,5,7,9;"},
           surface,
           on_surface("0,3,9,0,1"),
           on_surface("0,3,9,0,1"),
           line},
          {"@1 igs142InvalidInnerBoundType(index=2)", "@1 igs144NullSurfacePtr"}),
    {"two missing inner boundaries of five go, the others closing up",
     {{144, 0, "144,3,0,5,0,0,5,0,7,9;"},
      surface,
      on_surface("0,3,11,0,1"),
      on_surface("0,3,11,0,1"),
      on_surface("0,3,11,0,1"),
      line},
     {"@1 igs144NullInnerBoundPtr(index=0)", "@1 igs144NullInnerBoundPtr(index=2)"},
     {},
     "Warning : 2 invalid inner boundary(s) were reported for entity ig1.\nThe invalid "
     "boundary(s) have been ignored.\nWarning : 0 invalid inner boundary(s) were reported for "
     "entity ig1.\nThe invalid boundary(s) have been ignored.\n",
     "144,3,0,3,0,5,7,9;"},
    stays("a trimmed surface of a flag out of range, a boundary as its outer boundary and an "
          "inner one on another surface",
          {{144, 0, "144,3,2,1,5,7;"},
           surface,
           {141, 0, "141,0,0,3,1,9,1,0;"},
           on_surface("0,11,9,0,1"),
           line,
           surface},
          {"@1 igs144InnerBoundSurfaceMismatch(index=0)", "@1 igs144InvalidOuterBoundType",
           "@1 igs144InvalidOuterBoundaryFlag(value=2)"}),
    {"a trimmed surface whose boundaries' own repairs clear them",
     {{144, 0, "144,3,1,1,5,7;"}, surface, on_surface("7,3,9,0,1"), on_surface("0,3,9,0,9"), line},
     {"@1 igs144InvalidInnerBoundData(index=0)", "@1 igs144InvalidOuterBoundData",
      "@5 igs142InvalidCurveCreation(value=7)", "@7 igs142InvalidPrefRepresentation(value=9)"},
     {}},
    // The curve that has lost its surface goes with clean(1), and so does the trimmed surface
    // that stood on it.
    stays("a trimmed surface whose outer boundary has no surface",
          {{144, 0, "144,3,1,0,5;"}, surface, on_surface("0,0,7,0,1"), line},
          {"@1 igs144InvalidOuterBoundData", "@1 igs144OuterBoundSurfaceMismatch",
           "@5 igs142NullSurfacePtr"}),
};

TEST(Trimmed, EveryDamageIsFoundAndWhatCanBeRepairedIs) {
  for (Damage const& damage : damages) expect_damage(damage);
}

} // namespace
