// The curve and point family: a file of every class, and each damage a file can carry with
// what check and repair make of it.
#include "entities/curves/igs100.h"
#include "entities/curves/igs110.h"
#include "entities/curves/igs116.h"
#include "entities/curves/igsCurveErrors.h"
#include "entities/curves/igsPointset.h"
#include "entities/curves/igsPolyline.h"
#include "entities/curves/igsSimpleClosedPlanarCurve.h"
#include "entities/entityFamily.h"
#include "entities/entityTestSupport.h"

using namespace igs_family_test;

namespace {

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
    {"radii 2.5e-6 apart are inconsistent",
     {{100, 0, "100,0.,0.,0.,1.,0.,0.,1.0000025;"}},
     {"@1 igs100InconsistRad"},
     {},
     "",
     "100,0.,-1.24999921868874D-06,1.25000078121662D-06,1.,0.,0.,1.0000025;"},
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
    {"a count far beyond the record gives the tuples that the record holds",
     {{106, 2, "106,2,2000000000,1.,2.,3.,4.,5.,6.;"}},
     {},
     {},
     "",
     "106,2,2,1.,2.,3.,4.,5.,6.;"},
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
};

TEST(Curves, EveryDamageIsFoundAndWhatCanBeRepairedIs) {
  for (Damage const& damage : damages) expect_damage(damage);
}

// Built through their setters, the classes write what a file of them reads; what a setter
// refuses leaves the entity as it was.
using CurveSetters = igs_entity_test::EntityTest;

TEST_F(CurveSetters, PointsLinesArcsAndClosedCurves) {
  auto* point = new igs116;
  EXPECT_EQ(point->set_point(giPoint3(1, 2, 3)), 1);
  EXPECT_EQ(point->set_point(giPoint3()), 1); // ignored, yet 1
  EXPECT_EQ(point->set_display_symbol(igsObjectPtr(point)), 0);
  EXPECT_EQ(written(*point), records({"116,1.,2.,3.,0;"}));

  auto* line = new igs110;
  EXPECT_EQ(line->set_start_point(giPoint3(0, 0, 0)), 1);
  EXPECT_EQ(line->set_end_point(giPoint3(0, DBL_MAX, 0)), 0);
  EXPECT_EQ(checked(*line), std::vector<std::string>{"igs110InvalidEndPoint"});
  EXPECT_EQ(line->set_end_point(giPoint3(1, 1, 1)), 1);
  EXPECT_EQ(written(*line), records({"110,0.,0.,0.,1.,1.,1.;"}));
  // A repair whose number names no line does nothing.
  auto* stale = new igs110CoincidentPoints(1e-9);
  stale->set_key(point->de_number());
  EXPECT_EQ(stale->fix(), 0);

  auto* arc = new igs100;
  EXPECT_EQ(checked(*arc), std::vector<std::string>{"igs100NoConstruct"});
  arc->set_z_level(2.5);
  EXPECT_EQ(arc->set_centre(giPoint2()), 0);
  EXPECT_EQ(arc->set_centre(giPoint2(1, 1)), 1);
  EXPECT_EQ(arc->set_start_point(giPoint2(2, 1)), 1);
  EXPECT_EQ(arc->set_end_point(giPoint2(DBL_MAX, 0)), 0);
  EXPECT_EQ(checked(*arc), std::vector<std::string>{"igs100NoConstruct"});
  EXPECT_EQ(arc->set_end_point(giPoint2(1, 2)), 1);
  EXPECT_EQ(written(*arc), records({"100,2.5,1.,1.,2.,1.,1.,2.;"}));
  // Ends made equal after the check leave no chord to repair by: the error stays.
  arc->set_centre(giPoint2(1.2, 1.0));
  ASSERT_EQ(checked(*arc), std::vector<std::string>{"igs100InconsistRad"});
  arc->set_end_point(giPoint2(2, 1));
  EXPECT_EQ(fix(arc->de_number(), igs100InconsistRad::type()), 0);
  EXPECT_EQ(arc->centre(), giPoint2(1.2, 1.0));

  // A point set past the end leaves unset points before it, which the check names.
  auto* closed = new igsSimpleClosedPlanarCurve;
  EXPECT_EQ(closed->set_point(0, giPoint2()), 0);
  EXPECT_EQ(closed->set_point(-1, giPoint2(0, 0)), 0);
  EXPECT_EQ(closed->set_point(3, giPoint2(0, 0)), 1);
  EXPECT_EQ(checked(*closed), (std::vector<std::string>{
                                  "igsSCPCInvalidPoint(index=0)", "igsSCPCInvalidPoint(index=1)",
                                  "igsSCPCInvalidPoint(index=2)", "igsSCPCInvalidZLevel",
                                  "igsSCPCNotClosed(tolerance=1e-06)"}));
  closed->set_z_level(2.0);
  closed->set_point(0, giPoint2(0, 0));
  closed->set_point(1, giPoint2(1, 0));
  closed->set_point(2, giPoint2(0, 5e-7));
  giPoint2 p;
  EXPECT_FALSE(closed->point(4, p));
  EXPECT_EQ(checked(*closed), std::vector<std::string>{});
  EXPECT_EQ(written(*closed), records({"106,1,4,2.,0.,0.,1.,0.,0.,5.D-07,0.,0.;"}));
}

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

} // namespace
