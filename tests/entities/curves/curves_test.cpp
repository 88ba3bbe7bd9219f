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
};

TEST(Curves, EveryDamageIsFoundAndWhatCanBeRepairedIs) {
  for (Damage const& damage : damages) expect_damage(damage);
}

} // namespace
