// The boundary representation family: a file of every class, each damage to the cross-references
// of vertex lists, edge lists, loops, faces, shells and solids with what check and repair make
// of it, and the removal of bad faces from a shell with its index list.
//
// No surface class stands yet, so a face's surface reads as missing: every face of these files
// carries igs510NullSurface, and the shells and solids above it say that their children fail.
#include "core/igsCurrentFileScope.h"
#include "entities/entityFamily.h"
#include "entities/solids/igs186.h"
#include "entities/solids/igs502.h"
#include "entities/solids/igs504.h"
#include "entities/solids/igs508.h"
#include "entities/solids/igsSolidErrors.h"

using namespace igs_family_test;

namespace {

// Two solids' worth of topology on one vertex list and one edge list: an outer and a void shell,
// two faces, a loop of three edges (one of them by its vertex) and a loop of one, on two lines
// and an arc.
Family const solids = {
    "solids",
    "solids",
    {
        {186, 0, "186,3,1,1,5,0;"},
        {514, 1, "514,2,7,1,9,0;"},
        {514, 1, "514,1,9,1;"},
        {510, 1, "510,0,1,1,11;"},
        {510, 1, "510,0,2,0,11,13;"},
        {508, 1, "508,3,0,15,1,1,1,0,19,0,15,2,0,2,1,21,0,23,1,17,3,1,0;"},
        {508, 1, "508,1,0,15,3,0,0;"},
        {504, 1, "504,3,19,17,1,17,2,21,17,2,17,3,23,17,3,17,1;"},
        {502, 1, "502,3,0.,0.,0.,1.,0.,0.,1.,1.,0.;"},
        {110, 0, "110,0.,0.,0.,1.,0.,0.;"},
        {100, 0, "100,0.,1.,0.5,1.,0.,1.,1.;"},
        {110, 0, "110,1.,1.,0.,0.,0.,0.;"},
    },
    {"@1 igs186InnerShellInvalidShell(i=0)", "@1 igs186OuterShellInvalidShell",
     "@3 igs514OrientatedFaceInvalidFace(i=0)", "@3 igs514OrientatedFaceInvalidFace(i=1)",
     "@5 igs514OrientatedFaceInvalidFace(i=0)", "@7 igs510NullSurface", "@9 igs510NullSurface"}};

TEST(Solids, TheFamilyFile) {
  expect_family(solids);
}

TEST(Solids, TheRecordsOfTheFamilyFileAreValidAndDefaultOnesAreNot) {
  int result = 0;
  auto file = igs_test::read_text(file_text(solids.records), result);
  igsCurrentFileScope current(*file);
  auto const& solid = static_cast<igs186 const&>(*igsObjectPtr(1));
  auto const& shell = static_cast<igs514 const&>(*igsObjectPtr(3));
  auto const& loop = static_cast<igs508 const&>(*igsObjectPtr(11));
  auto const& edges = static_cast<igs504 const&>(*igsObjectPtr(15));
  EXPECT_TRUE(solid.outer_shell().valid() && solid.void_shell(0).valid());
  EXPECT_TRUE(shell.face(0).valid() && shell.face(1).valid());
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(loop.oriented_edge(i).valid()) << i;
  EXPECT_TRUE(edges.edge(2).valid() && loop.oriented_edge(0).half_edge(0).valid());
  EXPECT_FALSE(igsOrientedShell().valid() || igsOrientedFace().valid() ||
               igsOrientedEdge().valid() || igsHalfEdge().valid() || igsEdge().valid());
  // Out of its list an accessor gives a default record.
  EXPECT_FALSE(solid.void_shell(1).shell() || loop.oriented_edge(-1).list());
}

// A sound loop and what it stands on, at DE 3 to 11, behind the damaged entity at DE 1; further
// records of a row follow from DE 13.
Records const tail = {
    {508, 1, "508,2,0,5,1,1,1,0,9,0,5,2,1,1,0,11;"},
    {504, 1, "504,2,9,7,1,7,2,11,7,2,7,1;"},
    {502, 1, "502,2,0.,0.,0.,1.,0.,0.;"},
    {110, 0, "110,0.,0.,0.,1.,0.,0.;"},
    {110, 0, "110,1.,0.,0.,0.,0.,0.;"},
};
Records with_tail(Record const& damaged, Records const& more = {}) {
  Records records{damaged};
  records.insert(records.end(), tail.begin(), tail.end());
  records.insert(records.end(), more.begin(), more.end());
  return records;
}
Record const unread = {502, 1, "502,-1;"}; // not read: deleted at once, a reference to it null
Record const no_radius = {100, 0, "100,0.,3.,4.,3.,4.,3.,4.;"};
char const* const no_data_13 =
    "Warning : There is no Parameter Data associated with object DE 13.\n";

Damage const damages[] = {
    // Loops.
    {"an edge whose first vertex index is beyond its vertex list",
     with_tail({508, 1, "508,1,0,13,1,1,0;"}, {{504, 1, "504,1,9,7,3,7,2;"}}),
     {"@1 igs508OrientatedEdge504EdgeOutOfRangeFirstListOffset(i=0,e=0)"},
     {"@1 igs508OrientatedEdge504EdgeOutOfRangeFirstListOffset(i=0,e=0)"}},
    {"an oriented edge whose list is a line",
     with_tail({508, 1, "508,1,0,9,1,1,0;"}),
     {"@1 igs508OrientatedEdgeWrongListType(i=0)"},
     {"@1 igs508OrientatedEdgeWrongListType(i=0)"}},
    {"an oriented edge whose edge list was deleted",
     with_tail({508, 1, "508,1,0,13,1,1,0;"}, {unread}),
     {"@1 igs508OrientatedEdgeNullList(i=0)", "@13 igsFileNoPDData(de_number=13)"},
     {"@1 igs508OrientatedEdgeNullList(i=0)"},
     no_data_13},
    {"types that disagree with their lists, a direction and an isoparametric flag out of range",
     with_tail({508, 1, "508,2,1,5,1,2,1,3,9,0,7,2,0,0;"}),
     {"@1 igs508HalfEdgeInvalidCurveFlag(i=0,j=0)",
      "@1 igs508OrientatedEdgeInvalidEdgeDirection(i=0)",
      "@1 igs508OrientatedEdgeWrong502EdgeType(i=1)",
      "@1 igs508OrientatedEdgeWrong504EdgeType(i=0)"},
     {}},
    {"half edges whose curve is missing or a vertex list",
     with_tail({508, 1, "508,1,0,5,1,1,2,0,0,1,7;"}),
     {"@1 igs508HalfEdgeNullCurve(i=0,j=0)", "@1 igs508HalfEdgeWrongCurveType(i=0,j=1)"},
     {"@1 igs508HalfEdgeNullCurve(i=0,j=0)", "@1 igs508HalfEdgeWrongCurveType(i=0,j=1)"}},
    {"an edge whose curve was deleted, whose first list is an edge list and second is missing",
     with_tail({508, 1, "508,1,0,13,1,1,0;"}, {{504, 1, "504,1,15,5,1,0,2;"}, unread}),
     {"@1 igs508OrientatedEdge504EdgeNullCurve(i=0,e=0)",
      "@1 igs508OrientatedEdge504EdgeNullSecondList(i=0,e=0)",
      "@1 igs508OrientatedEdge504EdgeWrongFirstListType(i=0,e=0)",
      "@15 igsFileNoPDData(de_number=15)"},
     {"@1 igs508OrientatedEdge504EdgeNullCurve(i=0,e=0)",
      "@1 igs508OrientatedEdge504EdgeNullSecondList(i=0,e=0)",
      "@1 igs508OrientatedEdge504EdgeWrongFirstListType(i=0,e=0)"},
     "Warning : There is no Parameter Data associated with object DE 15.\n"},
    {"an edge whose arc has no radius",
     with_tail({508, 1, "508,1,0,13,1,1,0;"}, {{504, 1, "504,1,15,7,1,7,2;"}, no_radius}),
     {"@1 igs508OrientatedEdge504EdgeInvalidCurve(i=0,e=0)", "@15 igs100ZeroRadius"},
     {"@1 igs508OrientatedEdge504EdgeInvalidCurve(i=0,e=0)", "@15 igs100ZeroRadius"}},
    {"a vertex list with an unset vertex, used only by an oriented edge of vertex type",
     with_tail({508, 1, "508,2,0,13,1,1,0,1,15,3,1,0;"},
               {{504, 1, "504,1,9,15,1,15,2;"},
                {502, 1, "502,3,0.,0.,0.,1.,0.,0.,-1.7976931348623157D308,0.,0.;"}}),
     {"@1 igs508OrientatedEdge502InvalidList(i=1)",
      "@1 igs508OrientatedEdge504EdgeInvalidFirstList(i=0,e=0)",
      "@1 igs508OrientatedEdge504EdgeInvalidSecondList(i=0,e=0)", "@15 igs502InvalidVertex"},
     // The repairs that find the vertices in use set change nothing: the next check finds the
     // same faults.
     {"@1 igs508OrientatedEdge502InvalidList(i=1)",
      "@1 igs508OrientatedEdge504EdgeInvalidFirstList(i=0,e=0)",
      "@1 igs508OrientatedEdge504EdgeInvalidSecondList(i=0,e=0)", "@15 igs502InvalidVertex"}},
    {"an edge list with no edges",
     with_tail({508, 1, "508,1,0,13,1,1,0;"}, {{504, 1, "504,0;"}}),
     {"@1 igs508OrientatedEdge504InvalidList(i=0)",
      "@1 igs508OrientatedEdge504OffsetOutOfRange(i=0)", "@13 igs504NoEdges"},
     {"@1 igs508OrientatedEdge504InvalidList(i=0)",
      "@1 igs508OrientatedEdge504OffsetOutOfRange(i=0)", "@13 igs504NoEdges"}},
    {"a vertex list with no vertices",
     with_tail({508, 1, "508,1,1,13,1,1,0;"}, {{502, 1, "502,0;"}}),
     {"@1 igs508OrientatedEdge502InvalidList(i=0)",
      "@1 igs508OrientatedEdge502OffsetOutOfRange(i=0)", "@13 igs502NoVertices"},
     {"@1 igs508OrientatedEdge502InvalidList(i=0)",
      "@1 igs508OrientatedEdge502OffsetOutOfRange(i=0)", "@13 igs502NoVertices"}},
    {"a loop of no oriented edges",
     with_tail({508, 1, "508,0;"}),
     {"@1 igs508NoOrientatedEdges"},
     {"@1 igs508NoOrientatedEdges"}},
    // Faces.
    {"a face whose surface is missing, with an outer loop flag of 2",
     with_tail({510, 1, "510,0,1,2,3;"}),
     {"@1 igs510InvalidOuterLoopFlag", "@1 igs510NullSurface"},
     {"@1 igs510NullSurface"}},
    {"a face whose loops are missing, an edge list, and a loop that fails",
     with_tail({510, 1, "510,0,3,1,13,5,15;"}, {unread, {508, 1, "508,1,0,5,3,1,0;"}}),
     {"@1 igs510InvalidLoop(loop=2)", "@1 igs510NullLoop", "@1 igs510NullSurface",
      "@1 igs510WrongLoopType", "@13 igsFileNoPDData(de_number=13)",
      "@15 igs508OrientatedEdge504OffsetOutOfRange(i=0)"},
     {"@1 igs510InvalidLoop(loop=2)", "@1 igs510NullLoop", "@1 igs510NullSurface",
      "@1 igs510WrongLoopType", "@15 igs508OrientatedEdge504OffsetOutOfRange(i=0)"},
     no_data_13},
    {"a face of no loops",
     with_tail({510, 1, "510,0,0,1;"}),
     {"@1 igs510NoLoops", "@1 igs510NullSurface"},
     {"@1 igs510NoLoops", "@1 igs510NullSurface"}},
    {"a face on a line, and one on an arc of no radius",
     with_tail({510, 1, "510,9,1,1,3;"}, {{510, 1, "510,15,1,1,3;"}, no_radius}),
     {"@1 igs510WrongSurfaceType", "@13 igs510InvalidSurface", "@13 igs510WrongSurfaceType",
      "@15 igs100ZeroRadius"},
     {"@1 igs510WrongSurfaceType", "@13 igs510InvalidSurface", "@13 igs510WrongSurfaceType",
      "@15 igs100ZeroRadius"}},

    // Shells and solids.
    {"a shell of faces missing, no face, failing and flagged 2: every bad face goes at once",
     with_tail({514, 1, "514,4,0,1,9,1,13,2,15,0;"}, {{510, 1, "510,0,1,1,3;"}, unread}),
     {"@1 igs514OrientatedFaceInvalidFace(i=2)", "@1 igs514OrientatedFaceInvalidOrientation(i=2)",
      "@1 igs514OrientatedFaceNullFace(i=0)", "@1 igs514OrientatedFaceNullFace(i=3)",
      "@1 igs514OrientatedFaceWrongFaceType(i=1)", "@13 igs510NullSurface",
      "@15 igsFileNoPDData(de_number=15)"},
     {"@1 igs514NoFaces", "@13 igs510NullSurface"},
     "Warning : There is no Parameter Data associated with object DE 15.\n"},
    {"a solid whose shell has no faces, flagged 2",
     with_tail({186, 0, "186,13,2,0;"}, {{514, 1, "514,0;"}}),
     {"@1 igs186OuterShellInvalidOrientation", "@1 igs186OuterShellInvalidShell",
      "@13 igs514NoFaces"},
     {"@1 igs186OuterShellInvalidOrientation", "@1 igs186OuterShellInvalidShell",
      "@13 igs514NoFaces"}},
    {"a solid whose outer shell is a vertex list gets a new shell without faces",
     with_tail({186, 0, "186,7,1,0;"}),
     {"@1 igs186OuterShellWrongShellType"},
     {"@1 igs186OuterShellInvalidShell", "@13 igs514NoFaces"},
     "",
     "",
     {"@11 igs514NoFaces"}},
    {"a solid without an outer shell, whose void shells are missing, no shells or flagged 5",
     with_tail({186, 0, "186,0,1,3,13,1,7,0,15,5;"}, {unread, {514, 1, "514,0;"}}),
     {"@1 igs186InnerShellInvalidOrientation(i=2)", "@1 igs186InnerShellInvalidShell(i=2)",
      "@1 igs186InnerShellNullShell(i=0)", "@1 igs186InnerShellWrongShellType(i=1)",
      "@1 igs186OuterShellNullShell", "@13 igsFileNoPDData(de_number=13)", "@15 igs514NoFaces"},
     {"@1 igs186InnerShellInvalidOrientation(i=2)", "@1 igs186InnerShellInvalidShell(i=2)",
      "@1 igs186InnerShellNullShell(i=0)", "@1 igs186InnerShellWrongShellType(i=1)",
      "@1 igs186OuterShellNullShell", "@15 igs514NoFaces"},
     no_data_13},
};

TEST(Solids, EveryDamageIsFoundAndWhatCanBeRepairedIs) {
  for (Damage const& damage : damages) expect_damage(damage);
}

// A shell of five faces whose second has errors and whose fourth is no face keeps the first,
// third and fifth in order; the index list follows them, and a repair that names a face by its
// position as read finds it, or finds it gone.
using ShellTest = igs_entity_test::EntityTest;

TEST_F(ShellTest, AShellLosesItsBadFacesAndItsIndexListFollows) {
  auto* shell = new igs514;
  igsObject* faces[5] = {new igs510, new igs510, new igs510, new igs502, new igs510};
  faces[1]->check(); // a face without a surface: it has errors now
  for (int i = 0; i < 5; ++i) {
    igsOrientedFace face;
    face.set_face(faces[i]);
    face.set_orientation(i == 4 ? 2 : 1);
    shell->set_face(i, face);
    shell->set_index(i, i);
  }
  auto orientation_fix = [&](int position) {
    auto* error = new igs514OrientatedFaceInvalidOrientation(position);
    error->set_key(shell->de_number());
    return error->fix();
  };
  EXPECT_EQ(shell->remove_bad_faces(), 2);
  ASSERT_EQ(shell->num_faces(), 3);
  for (int i : {0, 1, 2}) EXPECT_EQ(shell->face(i).face(), igsObjectPtr(faces[2 * i])) << i;
  int const current[5] = {0, -1, 1, -1, 2};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(shell->get_current_index(i), current[i]) << i;
  EXPECT_EQ(shell->get_original_index(-1), 3);
  EXPECT_EQ(shell->get_original_index(2), 4);
  EXPECT_EQ(written(*shell)[0].substr(0, 6), "514,3,");
  EXPECT_EQ(orientation_fix(4), 1);
  EXPECT_EQ(shell->face(2).orientation(), 1);
  EXPECT_EQ(orientation_fix(3), 1); // removed: nothing to change
  EXPECT_EQ(shell->remove_bad_faces(), 0);
  // With a position mapped twice the later one is the original.
  shell->set_index(0, 1);
  EXPECT_EQ(shell->get_original_index(1), 2);
  // A repair of an edge of a loop finds no loop under the shell's number, and no edge in an
  // empty loop.
  for (int key : {shell->de_number(), (new igs508)->de_number()}) {
    auto* error = new igs508OrientatedEdgeWrong504EdgeType(0);
    error->set_key(key);
    EXPECT_EQ(error->fix(), 0);
  }
}

} // namespace
