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

// A group of a line and a solid of one shell of three faces, the second reversed.
Records const solid = {{402, 7, "402,2,3,5;"}, {110, 0, "110,0.,0.,0.,1.,0.,0.;"},
                       {186, 0, "186,7,1,0;"}, {514, 1, "514,3,9,1,11,0,13,1;"},
                       {510, 1, "510,0,0,0;"}, {510, 1, "510,0,0,0;"},
                       {510, 1, "510,0,0,0;"}};

TEST(CompoundFlattening, ASolidGivesWayToItsFacesWhichLearnTheirSolidAndSide) {
  auto file = read(solid);
  compound(1).explode_solids();
  EXPECT_EQ(members(1), (std::vector<int>{3, 9, 11, 13}));
  for (int face : {9, 11, 13}) {
    auto const& f = static_cast<igs510 const&>(*igsObjectPtr(face));
    EXPECT_EQ(f.solid_id(), 5);
    EXPECT_EQ(f.orientation(), face == 11 ? 0 : 1);
  }
  // Without solids nothing changes.
  compound(1).explode_solids();
  EXPECT_EQ(members(1), (std::vector<int>{3, 9, 11, 13}));
}

// The sample part's solid in a group of its own: the group takes its six faces, and the file
// still checks clean and reads back.
TEST(CompoundFlattening, TheSamplesSolidExplodedChecksCleanAndReadsBack) {
  int result = 0;
  auto file = igs_test::read_text(
      igs_test::read_file(igs_test::source_dir() / "examples/bracket.igs"), result);
  ASSERT_EQ(result, 1);
  auto* group = new igs402_7;
  for (igsFileIT it(file.get()); ++it;) {
    if (!it()->isa(igs186::type())) continue;
    group->set_number_of_entities(1);
    group->set_entity(0, igsObjectPtr(it()));
  }
  group->explode_solids();
  EXPECT_EQ(group->number_of_entities(), 6);
  file->check();
  for (igsFileIT it(file.get()); ++it;)
    EXPECT_EQ(it()->num_logged_errors(), 0) << it()->de_number();
  auto faults = igs_test::round_trip_faults(*file, "exploded");
  EXPECT_TRUE(faults.empty()) << faults.front();
}

// DE 1 holds the group at DE 3 and a point; DE 3 the group at DE 7 and the same point.
TEST(CompoundFlattening, NestedGroupsBecomeOneLevelAndTheFileReadsBackClean) {
  auto file = read({{402, 7, "402,2,3,5;"},
                    {402, 7, "402,2,7,5;"},
                    {116, 0, "116,0.,0.,0.,0;"},
                    {402, 7, "402,1,9;"},
                    {116, 0, "116,1.,0.,0.,0;"}});
  compound(1).flatten_groups();
  EXPECT_EQ(members(1), (std::vector<int>{9, 5, 5}));
  EXPECT_EQ(members(3), (std::vector<int>{9, 5}));
  file->check();
  for (igsFileIT it(file.get()); ++it;) EXPECT_EQ(it()->num_logged_errors(), 0);
  auto faults = igs_test::round_trip_faults(*file, "flattened");
  EXPECT_TRUE(faults.empty()) << faults.front();
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
