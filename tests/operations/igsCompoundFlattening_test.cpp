// A host's flattening of compounds on files of ours: solids into their faces, nested groups
// into one level, and the count of curves on surfaces, with a group that holds itself.
#include "core/roundTripCheck.h"
#include "entities/entityFamily.h"
#include "entities/solids/igs186.h"
#include "entities/solids/igs510.h"
#include "entities/structure/igs402_7.h"
#include "entities/structure/igsCompound.h"

using namespace igs_family_test;

namespace {

igsCompound& compound(int de_number) {
  return static_cast<igsCompound&>(*igsObjectPtr(de_number));
}

std::vector<int> members(int de_number) {
  std::vector<int> found;
  igsCompound const& c = compound(de_number);
  for (int i = 0; i < c.number_of_entities(); ++i) found.push_back(c.get_entity(i)->de_number());
  return found;
}

std::unique_ptr<igsFile> read(Records const& records) {
  int result = 0;
  auto file = igs_test::read_text(file_text(records), result);
  EXPECT_EQ(result, 1);
  return file;
}

// A group of a line and a solid of a shell of three faces, the second reversed, and a void
// shell of one face.
Records const solid = {{402, 7, "402,2,3,5;"},      {110, 0, "110,0.,0.,0.,1.,0.,0.;"},
                       {186, 0, "186,7,1,1,15,1;"}, {514, 1, "514,3,9,1,11,0,13,1;"},
                       {510, 1, "510,0,0,0;"},      {510, 1, "510,0,0,0;"},
                       {510, 1, "510,0,0,0;"},      {514, 1, "514,1,17,1;"},
                       {510, 1, "510,0,0,0;"}};

TEST(CompoundFlattening, ASolidGivesWayToItsFacesWhichLearnTheirSolidAndSide) {
  auto file = read(solid);
  compound(1).explode_solids();
  EXPECT_EQ(members(1), (std::vector<int>{3, 9, 11, 13, 17}));
  for (int face : {9, 11, 13, 17}) {
    auto const& f = static_cast<igs510 const&>(*igsObjectPtr(face));
    EXPECT_EQ(f.solid_id(), 5);
    EXPECT_EQ(f.orientation(), face == 11 ? 0 : 1);
  }
  // Without solids nothing changes.
  compound(1).explode_solids();
  EXPECT_EQ(members(1), (std::vector<int>{3, 9, 11, 13, 17}));
}

TEST(CompoundFlattening, CurvesOnSurfacesAreCountedThroughGroupsAndSubfigures) {
  struct Row {
    char const* what;
    Records records;
    int count;
  } const rows[] = {
      {"two curves and an instance of a definition of one",
       {{402, 7, "402,3,3,5,7;"},
        {142, 0, "142,1,0,0,0,0;"},
        {142, 0, "142,1,0,0,0,0;"},
        {408, 0, "408,9,0.,0.,0.,1.;"},
        {308, 0, "308,0,1HS,1,11;"},
        {142, 0, "142,1,0,0,0,0;"}},
       3},
      {"a group that holds itself and a curve",
       {{402, 7, "402,3,1,3,5;"}, {142, 0, "142,1,0,0,0,0;"}, {402, 7, "402,1,1;"}},
       1},
      {"an empty group", {{402, 7, "402,0;"}}, 0},
  };
  for (Row const& r : rows) {
    auto file = read(r.records);
    EXPECT_EQ(compound(1).count_142(), r.count) << r.what;
  }
  // Flattening a group that holds itself ends, and keeps it where it comes back.
  auto file = read(rows[1].records);
  compound(1).flatten_groups();
  EXPECT_EQ(members(1), (std::vector<int>{1, 3, 1}));
}

// Groups nested far deeper than a call stack could follow, a curve at the bottom.
TEST(CompoundFlattening, GroupsNestedAHundredThousandDeep) {
  int const depth = 100000;
  Records chain;
  for (int i = 1; i < depth; ++i)
    chain.push_back({402, 7, "402,1," + std::to_string(2 * i + 1) + ";"});
  chain.push_back({142, 0, "142,1,0,0,0,0;"});
  auto file = read(chain);
  EXPECT_EQ(compound(1).count_142(), 1);
  compound(1).flatten_groups();
  EXPECT_EQ(members(1), std::vector<int>{2 * depth - 1});
}

} // namespace
