// The transformation, group, view, drawing and subfigure family: a file of every class, each
// damage a file can carry with what check and repair make of it, and the promises about
// loops of subfigures and members that went.
#include "entities/entityFamily.h"
#include "entities/structure/igs124.h"
#include "entities/structure/igs308.h"
#include "entities/structure/igs402_16.h"
#include "entities/structure/igs404.h"
#include "entities/structure/igs408.h"
#include "entities/structure/igs410_0.h"
#include "entities/structure/igsGroup.h"
#include "entities/structure/igsStructureErrors.h"
#include "errors/igsFixer.h"

using namespace igs_family_test;

namespace {

// A point at DE 7 and a line at DE 9 serve as members; the line is placed by the mirror
// matrix at DE 3, so that a Directory Entry's matrix pointer reaches a matrix.
Family const structure = {"structure",
                          "structure",
                          {
                              {124, 0, "124,1.,0.,0.,0.,0.,1.,0.,0.,0.,0.,1.,0.;"},
                              {124, 1, "124,0.,1.,0.,5.,1.,0.,0.,6.,0.,0.,1.,-7.5;"},
                              {123, 0, "123,0.,0.6,0.8;"},
                              {116, 0, "116,1.,2.,3.,0;"},
                              {110, 0, "110,0.,0.,0.,1.,1.,1.;", 3},
                              {402, 1, "402,2,7,9;"},
                              {402, 7, "402,1,7;"},
                              {402, 14, "402,2,9,11;"},
                              {402, 15, "402,1,7;"},
                              {402, 16, "402,1,2,1,7,9;"},
                              {410, 0, "410,1,1.,0,0,0,0,0,0;"},
                              {410, 0, "410,2,0.5,0,0,0,0,0,0;"},
                              {402, 3, "402,2,2,21,23,7,9;"},
                              {404, 0, "404,2,21,0.,0.,23,10.,5.,1,9;"},
                              {404, 1, "404,1,21,1.,2.,0.5,0;"},
                              {308, 0, "308,0,4HLEAF,2,7,9;"},
                              {408, 0, "408,31,1.,2.,3.,2.;"},
                              {308, 0, "308,1,3HTOP,1,33;"},
                              {408, 0, "408,35,0.,0.,0.,1.;"},
                          }};

TEST(Structure, TheFamilyFile) {
  expect_family(structure);
}

// A chain of `length` subfigure definitions, each placing the next through an instance, the
// last placing the first when `closed`. The definitions stand in reverse order, the last
// first, so that what the first learns reaches the others only after they were checked; the
// loop closes at the first, checked last, and the depths fall along the rest of the chain.
Records chain(int length, bool closed) {
  Records records;
  auto definition = [length](int i) { return 2 * (length - 1 - i) + 1; };
  auto instance = [length](int i) { return 2 * (length + i) + 1; };
  for (int i = length - 1; i >= 0; --i) {
    int depth = i == 0 && closed ? 0 : length - i;
    std::string members = i + 1 < length || closed ? "1," + std::to_string(instance(i)) : "0";
    records.push_back({308, 0, "308," + std::to_string(depth) + ",1HD," + members + ";"});
  }
  for (int i = 0; i < length; ++i)
    records.push_back(
        {408, 0, "408," + std::to_string(definition((i + 1) % length)) + ",0.,0.,0.,1.;"});
  return records;
}

// The damaged entity stands first, at DE 1.
Damage const damages[] = {
    {"a group that names a missing entity and no entity loses only those members",
     {{402, 7, "402,3,3,0,99;"}, {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igsGroupNullEntityPointer(index=1)", "@1 igsGroupNullEntityPointer(index=2)"},
     {}},
    {"a group keeps a member whose own repair settled it",
     {{402, 1, "402,1,3;"}, {110, 0, "110,1.,2.,3.,1.,2.,3.;"}},
     {"@1 igsGroupBadSubEntity(index=0)", "@3 igs110CoincidentPoints(tolerance=1e-09)"},
     {}},
    {"a group drops a member that stays bad, which clean(1) then deletes",
     {{402, 14, "402,3,3,5,3;"},
      {100, 0, "100,0.,3.,4.,3.,4.,3.,4.;"},
      {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igsGroupBadSubEntity(index=0)", "@1 igsGroupBadSubEntity(index=2)",
      "@3 igs100ZeroRadius"},
     {"@3 igs100ZeroRadius"}},
    {"a group of a negative count",
     {{402, 15, "402,-1;"}},
     {"@1 igsGroupInvalidEntitySize"},
     {"@1 igsGroupInvalidEntitySize"}},
    {"a planar group of two transforms, none given, gets one identity matrix",
     {{402, 16, "402,2,1,0,3;"}, {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igs402_16InvalidTransformSize", "@1 igs402_16NullTransformPointer"},
     {}},
    {"a planar group whose matrix stays bad gets an identity matrix instead",
     {{402, 16, "402,1,1,3,5;"},
      {124, 0, "124,1.,0.,0.,0.,0.,1.,0.,0.,0.,0.,0.,0.;"},
      {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igs402_16InvalidTransformPointer", "@3 igs124InvalidRHS(determinant=0)",
      "@3 igs124InvalidUnitVectors"},
     {"@3 igs124InvalidRHS(determinant=0)", "@3 igs124InvalidUnitVectors"}},
    {"a mirror in the form of a rotation takes the left-handed form",
     {{124, 0, "124,1.,0.,0.,0.,0.,1.,0.,0.,0.,0.,-1.,0.;"}},
     {"@1 igs124InvalidRHS(determinant=-1)"},
     {}},
    {"a rotation in the left-handed form takes the right-handed form",
     {{124, 1, "124,0.,-1.,0.,0.,1.,0.,0.,0.,0.,0.,1.,0.;"}},
     {"@1 igs124InvalidLHS(determinant=1)"},
     {}},
    {"a line placed by a bad matrix: the matrix is repaired first and the line keeps it",
     {{110, 0, "110,0.,0.,0.,1.,0.,0.;", 3}, {124, 0, "124,1.,0.,0.,0.,0.,1.,0.,0.,0.,0.,-1.,0.;"}},
     {"@1 igsDEInvalidMatrixData", "@3 igs124InvalidRHS(determinant=-1)"},
     {}},
    {"a direction without a vector",
     {{123, 0, "123,-1.7976931348623157D308,0.,0.;"}},
     {"@1 igs123NoConstruct"},
     {"@1 igs123NoConstruct"}},
    {"a view of a negative scale with a point for its left plane",
     {{410, 0, "410,1,-2.,3,0,0,0,0,0;"}, {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igs410_0NegativeScaleFactor", "@1 igs410_0WrongLeftPlaneType"},
     {}},
    {"a view of no scale whose front plane is a bad arc",
     {{410, 0, "410,1,0.,0,0,0,0,0,3;"}, {100, 0, "100,0.,3.,4.,3.,4.,3.,4.;"}},
     {"@1 igs410_0InvalidFrontPlane", "@1 igs410_0WrongFrontPlaneType",
      "@1 igs410_0ZeroScaleFactor", "@3 igs100ZeroRadius"},
     {"@3 igs100ZeroRadius"}},
    {"views whose numbers are negative or repeated get numbers above all in use",
     {{410, 0, "410,4,1.,0,0,0,0,0,0;"},
      {410, 0, "410,-3,1.,0,0,0,0,0,0;"},
      {410, 0, "410,4,1.,0,0,0,0,0,0;"},
      {410, 0, "410,0,1.,0,0,0,0,0,0;"}},
     {"@3 igs410_0InvalidViewNumber(proposed_number=5)",
      "@5 igs410_0RepeatedView(proposed_number=6)"},
     {}},
    {"a views visible list of no view and no entity is reported only",
     {{402, 3, "402,2,1,0,3,0;"}, {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igs402_3InvalidViewPointer", "@1 igs402_3NullEntityPointer",
      "@1 igs402_3NullViewPointer"},
     {"@1 igs402_3InvalidViewPointer", "@1 igs402_3NullEntityPointer",
      "@1 igs402_3NullViewPointer"}},
    {"a drawing loses the views and entities that are missing or no views",
     {{404, 0, "404,3,0,0.,0.,3,1.,1.,5,2.,2.,2,0,5;"},
      {410, 0, "410,1,1.,0,0,0,0,0,0;"},
      {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igs404InvalidViewPointer(index=2)", "@1 igs404NullEntityPointer(index=0)",
      "@1 igs404NullViewPointer(index=0)"},
     {}},
    {"a drawing keeps a view that its repairs settled and drops an entity that stays bad",
     {{404, 1, "404,1,3,0.,0.,0.,1,5;"},
      {410, 0, "410,1,1.,0,0,0,0,0,5;"},
      {100, 0, "100,0.,3.,4.,3.,4.,3.,4.;"}},
     {"@1 igs404BadEntityPointer(index=0)", "@1 igs404BadViewPointer(index=0)",
      "@3 igs410_0InvalidFrontPlane", "@3 igs410_0WrongFrontPlaneType", "@5 igs100ZeroRadius"},
     {"@5 igs100ZeroRadius"}},
    {"a subfigure that places itself loses the instance and its depth is computed again",
     {{308, 0, "308,1,4HSELF,3,3,5,3;"},
      {408, 0, "408,1,0.,0.,0.,1.;"},
      {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igs308InvalidDepth", "@1 igs308SelfReferencingSubfigure(index=0)",
      "@1 igs308SelfReferencingSubfigure(index=2)"},
     {},
     "Warning : 2 recursive subfigure references have been deleted from ig1\n"},
    {"a loop of three definitions is cut at the instance that closes it",
     {{308, 0, "308,3,1HA,1,7;"},
      {308, 0, "308,2,1HB,1,9;"},
      {308, 0, "308,1,1HC,1,11;"},
      {408, 0, "408,3,0.,0.,0.,1.;"},
      {408, 0, "408,5,0.,0.,0.,1.;"},
      {408, 0, "408,1,0.,0.,0.,1.;"}},
     {"@5 igs308InvalidDepth", "@5 igs308SelfReferencingSubfigure(index=0)"},
     {},
     "Warning : 1 recursive subfigure references have been deleted from ig5\n"},
    {"a loop of three definitions in reverse order is found by one check",
     chain(3, true),
     {"@5 igs308InvalidDepth", "@5 igs308SelfReferencingSubfigure(index=0)"},
     {},
     "Warning : 1 recursive subfigure references have been deleted from ig5\n"},
    {"a definition of depth 0 that places another takes the longest chain below it",
     {{308, 0, "308,0,3HTOP,3,5,7,5;"},
      {308, 0, "308,0,4HLEAF,0;"},
      {408, 0, "408,3,0.,0.,0.,1.;"},
      {408, 0, "408,9,0.,0.,0.,1.;"},
      {308, 0, "308,1,3HMID,1,5;"}},
     {"@1 igs308InvalidDepth"},
     {}},
    {"a definition of a blank name whose members are missing",
     {{308, 0, "308,0,,2,0,99;"}},
     {"@1 igs308NullGeometryPointer(index=0)", "@1 igs308NullGeometryPointer(index=1)"},
     {}},
    {"a definition of a negative count",
     {{308, 0, "308,0,1HN,-2;"}},
     {"@1 igs308InvalidSize"},
     {"@1 igs308InvalidSize"}},
    {"instances without a definition, of a negative scale, placing no definition",
     {{408, 0, "408,0,0.,0.,0.,1.;"}, {408, 0, "408,5,0.,0.,0.,-1.;"}, {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igs408NullSubfigure", "@3 igs408InvalidScale", "@3 igs408InvalidSubfigure"},
     {"@1 igs408NullSubfigure", "@3 igs408InvalidScale", "@3 igs408InvalidSubfigure"}},
};

TEST(Structure, EveryDamageIsFoundAndWhatCanBeRepairedIs) {
  for (Damage const& damage : damages) expect_damage(damage);
}

} // namespace
