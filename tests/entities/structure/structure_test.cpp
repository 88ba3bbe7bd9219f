// The transformation, group, view, drawing and subfigure family: a file of every class, each
// damage a file can carry with what check and repair make of it, and the promises about
// loops of subfigures and members that went.
#include "entities/curves/igs116.h"
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
#include "support/coResource.h"

#include <pthread.h>

#include <functional>

using namespace igs_family_test;

namespace {

// A point at DE 7 and a line at DE 9 serve as members; the line is placed by the mirror
// matrix at DE 3, so that a Directory Entry's matrix pointer reaches a matrix.
Family const structure = {
    "structure",
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
        {408, 0, "408,35,0.,0.,0.;"}, // a blank scale reads as 0, which passes
        {402, 15, "402,0;"},          // empty lists are sound
        {402, 3, "402,0,0;"},
    }};

TEST(Structure, TheFamilyFile) {
  expect_family(structure);
}

// A chain of `length` subfigure definitions, each placing the next through an instance, the
// last placing the first when `closed`. The definitions stand in reverse order, the last
// first, so that what the first learns reaches the others only after they were checked; the
// loop closes at the first, checked last. With `depths` they fall along the rest of the
// chain, else all are 0.
Records chain(int length, bool closed, bool depths = true) {
  Records records;
  auto definition = [length](int i) { return 2 * (length - 1 - i) + 1; };
  auto instance = [length](int i) { return 2 * (length + i) + 1; };
  for (int i = length - 1; i >= 0; --i) {
    int depth = !depths || (i == 0 && closed) ? 0 : length - i;
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
    {"a group keeps a member whose own repair settled it",
     {{402, 1, "402,1,3;"}, {110, 0, "110,1.,2.,3.,1.,2.,3.;"}},
     {"@1 igsGroupBadSubEntity(index=0)", "@3 igs110CoincidentPoints(tolerance=1e-09)"},
     {}},
    {"a group whose record ends before its count lacks members, which go",
     {{402, 7, "402,3,3;"}, {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igsGroupNullEntityPointer(index=1)", "@1 igsGroupNullEntityPointer(index=2)"},
     {},
     {},
     "402,1,3;"},
    {"a group of a negative count",
     {{402, 15, "402,-1;"}},
     {"@1 igsGroupInvalidEntitySize"},
     {"@1 igsGroupInvalidEntitySize"}},
    {"a planar group of two transforms, none given, gets one identity matrix",
     {{402, 16, "402,2,1,0,3;"}, {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igs402_16InvalidTransformSize", "@1 igs402_16NullTransformPointer"},
     {},
     {},
     "402,1,1,5,3;"},
    {"a planar group whose matrix stays bad gets an identity matrix instead",
     {{402, 16, "402,1,1,3,5;"},
      {124, 0, "124,1.,0.,0.,0.,0.,1.,0.,0.,0.,0.,0.,0.;"},
      {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igs402_16InvalidTransformPointer", "@3 igs124InvalidRHS(determinant=0)",
      "@3 igs124InvalidUnitVectors"},
     {"@3 igs124InvalidRHS(determinant=0)", "@3 igs124InvalidUnitVectors"}},
    {"a view of a negative scale with a point for its left plane",
     {{410, 0, "410,1,-2.,3,0,0,0,0,0;"}, {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igs410_0NegativeScaleFactor", "@1 igs410_0WrongLeftPlaneType"},
     {},
     {},
     "410,1,2.,0,0,0,0,0,0;"},
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
     {},
     {},
     "404,1,3,1.,1.,1,5;"},
    {"a drawing keeps a view that its repairs settled and drops an entity that stays bad",
     {{404, 1, "404,1,3,0.,0.,0.,1,5;"},
      {410, 0, "410,1,0.,0,0,0,0,0,5;"},
      {100, 0, "100,0.,3.,4.,3.,4.,3.,4.;"}},
     {"@1 igs404BadEntityPointer(index=0)", "@1 igs404BadViewPointer(index=0)",
      "@3 igs410_0InvalidFrontPlane", "@3 igs410_0WrongFrontPlaneType",
      "@3 igs410_0ZeroScaleFactor", "@5 igs100ZeroRadius"},
     {"@5 igs100ZeroRadius"}},
    {"a subfigure that places itself loses the instance and its depth is computed again",
     {{308, 0, "308,1,4HSELF,3,3,5,3;"},
      {408, 0, "408,1,0.,0.,0.,1.;"},
      {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igs308InvalidDepth", "@1 igs308SelfReferencingSubfigure(index=0)",
      "@1 igs308SelfReferencingSubfigure(index=2)"},
     {},
     "Warning : 2 recursive subfigure references have been deleted from ig1\n",
     "308,0,4HSELF,1,5;"},
    {"a definition of depth 0 that places another takes the longest chain below it",
     {{308, 0, "308,0,3HTOP,3,5,7,5;"},
      {308, 0, "308,0,4HLEAF,0;"},
      {408, 0, "408,3,0.,0.,0.,1.;"},
      {408, 0, "408,9,0.,0.,0.,1.;"},
      {308, 0, "308,1,3HMID,1,5;"}},
     {"@1 igs308InvalidDepth"},
     {},
     {},
     "308,2,3HTOP,3,5,7,5;"},
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

// What a test reads: the file of the records, current while the test runs.
struct ReadRecords {
  int result = 0;
  std::unique_ptr<igsFile> file;
  explicit ReadRecords(Records const& records)
      : file(igs_test::read_text(file_text(records), result)) {}
  template <class T> T& at(int de_number) const {
    igsObjectPtr entity(de_number);
    EXPECT_TRUE(entity && entity->typeof(T::type())) << "DE " << de_number;
    return static_cast<T&>(*entity);
  }
  // The active errors of the object log, in log order.
  static std::vector<igsObjectError*> errors() {
    std::vector<igsObjectError*> found;
    for (igsSimpleSectionLogIT it(&igsObjectSystem::log().get_section_log(igsObjectLog)); ++it;)
      found.push_back(static_cast<igsObjectError*>(it()));
    return found;
  }
  static int num_errors() { return static_cast<int>(errors().size()); }
};

// Runs the work on a thread of a small stack: a walk that recursed once for each level of a
// deep structure would overflow it (and the test would crash) long before the end.
void on_small_stack(std::function<void()> const& work) {
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, 128 * 1024);
  pthread_t thread;
  auto run = [](void* w) -> void* {
    (*static_cast<std::function<void()> const*>(w))();
    return nullptr;
  };
  ASSERT_EQ(pthread_create(&thread, &attributes, run, const_cast<std::function<void()>*>(&work)),
            0);
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
}

TEST(Structure, AChainOfAThousandDefinitionsIsCheckedAndRepairedWithoutRecursion) {
  on_small_stack([] {
    // Closed into a loop at its first definition, DE 1999, which the others reach last.
    ReadRecords closed(chain(1000, true));
    ASSERT_EQ(closed.result, 1);
    closed.file->check();
    std::vector<std::string> raised;
    for (igsObjectError* e : ReadRecords::errors())
      raised.push_back(std::to_string(e->key()) + " " + e->objtype().name());
    EXPECT_EQ(raised, (std::vector<std::string>{"1999 igs308SelfReferencingSubfigure",
                                                "1999 igs308InvalidDepth"}));
    closed.file->clean(0);
    EXPECT_EQ(closed.at<igs308>(1999).number_of_entities(), 0);
    EXPECT_EQ(closed.at<igs308>(1999).depth(), 0);
    closed.file->check();
    EXPECT_EQ(ReadRecords::num_errors(), 0);

    // Open, with every depth 0: each definition but the last is repaired to the length of the
    // chain below it.
    ReadRecords open(chain(1000, false, false));
    open.file->check();
    EXPECT_EQ(ReadRecords::num_errors(), 999);
    open.file->clean(0);
    EXPECT_EQ(open.at<igs308>(1999).depth(), 999);
    EXPECT_EQ(open.at<igs308>(1001).depth(), 500);
    open.file->check();
    EXPECT_EQ(ReadRecords::num_errors(), 0);
  });
}

// The depth repair walks a chain far deeper than any stack would take one call per level.
TEST(Structure, TheDepthBelowAHundredThousandNestedDefinitionsIsFoundWithoutRecursion) {
  on_small_stack([] {
    auto file = std::make_unique<igsFile>();
    int const length = 100000;
    std::vector<igs308*> chain;
    for (int i = 0; i < length; ++i) chain.push_back(new igs308);
    auto place = [](igs308* definition, igs308* placed) {
      auto* instance = new igs408;
      instance->set_subfigure(igsObjectPtr(placed));
      definition->set_number_of_entities(1);
      definition->set_entity(0, igsObjectPtr(instance));
    };
    for (int i = 0; i + 1 < length; ++i) place(chain[i], chain[i + 1]);
    EXPECT_EQ(chain[0]->placement_depth(), length - 1);
    EXPECT_EQ(chain[length - 2]->placement_depth(), 1);
    // Closed into a loop, the placement back to the first counts one level more.
    place(chain[length - 1], chain[0]);
    EXPECT_EQ(chain[0]->placement_depth(), length);
  });
}

// Each definition hands what leads to it down to the definitions it places; the one that
// then places a definition leading to it closes a loop.
TEST(Structure, DefinitionsHandDownTheirAncestorsUntilALoopCloses) {
  ReadRecords f({{308, 0, "308,3,1HA,1,7;"},
                 {308, 0, "308,2,1HB,2,9,9;"},
                 {308, 0, "308,1,1HC,1,11;"},
                 {408, 0, "408,3,0.,0.,0.,1.;"},
                 {408, 0, "408,5,0.,0.,0.,1.;"},
                 {408, 0, "408,1,0.,0.,0.,1.;"}});
  EXPECT_EQ(f.at<igs308>(1).self_referencing(), 0);
  EXPECT_EQ(f.at<igs308>(3).self_referencing(), 0);
  EXPECT_EQ(f.at<igs308>(5).self_referencing(), 1);
}

// A repair whose key names no entity of its class changes nothing and stays.
TEST(Structure, ARepairWithoutItsEntityStays) {
  auto file = std::make_unique<igsFile>();
#define IGS_ZERO_(pair) IGS_ZERO_I pair
#define IGS_ZERO_I(type, name)                                                                     \
  , type {}
#define IGS_ERROR(Name, Base, Behaviour, ...)                                                      \
  {                                                                                                \
    Name error{IGS_ERROR_LIST(IGS_ZERO_, __VA_ARGS__)};                                            \
    error.set_key(7);                                                                              \
    EXPECT_EQ(error.fix(), 0) << #Name;                                                            \
  }
#include "entities/structure/igsStructureErrors.def"
#undef IGS_ZERO_
#undef IGS_ZERO_I
}

// The first repair of a matrix whose determinant does not fit its form, with and without
// rigid transforms asked for.
TEST(Structure, MatrixRepairsMakeRotationsRigidWhenAskedTo) {
  struct Case {
    char const* what;
    int form;
    double columns[3][3];
    int result[2], form_after[2]; // without and with rigid transforms
    double first_x[2];            // the first column's X after the repair
  } const cases[] = {
      {"a mirror in form 0", 0, {{1, 0, 0}, {0, 1, 0}, {0, 0, -1}}, {1, 1}, {1, 1}, {1, 1}},
      {"a rotation in form 1", 1, {{0, 1, 0}, {-1, 0, 0}, {0, 0, 1}}, {1, 1}, {0, 0}, {0, 0}},
      {"a first column a little long",
       0,
       {{1.00005, 0, 0}, {0, 1, 0}, {0, 0, 1}},
       {1, 1},
       {0, 0},
       {1.00005, 1}},
      {"a scale of 1.5", 0, {{1.5, 0, 0}, {0, 1.5, 0}, {0, 0, 1.5}}, {1, 0}, {0, 0}, {1.5, 1.5}},
      {"a column of zeros", 0, {{1, 0, 0}, {0, 1, 0}, {0, 0, 0}}, {0, 0}, {0, 0}, {1, 1}},
  };
  coResourceTable& resources = *kvn_resource_table_inquire();
  for (Case const& c : cases)
    for (int rigid : {0, 1}) {
      SCOPED_TRACE(std::string(c.what) + (rigid ? ", rigid" : ""));
      resources.set(kvnOptRigidTransforms, rigid);
      ReadRecords f({{124, c.form, "124,0.,0.,0.,0.,0.,0.,0.,0.,0.,0.,0.,0.;"}});
      auto& matrix = f.at<igs124>(1);
      double m[4][4] = {{0, 0, 0, 7}, {0, 0, 0, 8}, {0, 0, 0, 9}, {0, 0, 0, 1}};
      for (int r = 0; r < 3; ++r)
        for (int k = 0; k < 3; ++k) m[r][k] = c.columns[k][r];
      matrix.set_matrix(m);
      f.file->check();
      std::vector<igsObjectError*> errors = ReadRecords::errors();
      ASSERT_FALSE(errors.empty());
      EXPECT_EQ(errors[0]->fix(), c.result[rigid]);
      EXPECT_EQ(matrix.directory_entry().form_number(), c.form_after[rigid]);
      EXPECT_DOUBLE_EQ(matrix.value(0, 0), c.first_x[rigid]);
      EXPECT_EQ(matrix.value(2, 3), 9.0);
      if (rigid && c.result[rigid]) {
        for (int k = 0; k < 3; ++k) EXPECT_DOUBLE_EQ(matrix.column(k).length(), 1.0);
      }
    }
  resources.reset(kvnOptRigidTransforms);
  // Without them, columns of a usable length are accepted as they stand, whatever the
  // translation.
  ReadRecords f({{124, 0, "124,2.,0.,0.,0.,0.,2.,0.,0.,0.,0.,2.,0.;"}});
  f.file->check();
  ASSERT_EQ(ReadRecords::num_errors(), 2);
  EXPECT_EQ(ReadRecords::errors()[1]->fix(), 1);
}

TEST(Structure, AnInstanceScalesWhatItPlacesAfterMovingIt) {
  ReadRecords f({{408, 0, "408,0,1.,2.,3.,2.;"}, {408, 0, "408,0,1.,2.,3.;"}});
  giXform3 const& placed = f.at<igs408>(1).placement_transform();
  EXPECT_EQ(placed.apply(giPoint3(0.0, 0.0, 0.0)), giPoint3(2.0, 4.0, 6.0));
  EXPECT_EQ(placed.apply(giPoint3(1.0, 0.0, 0.0)), giPoint3(4.0, 4.0, 6.0));
  // A blank scale reads as 0, which leaves the identity.
  EXPECT_EQ(f.at<igs408>(3).scale(), 0.0);
  EXPECT_EQ(f.at<igs408>(3).placement_transform().apply(giPoint3(1.0, 2.0, 3.0)),
            giPoint3(1.0, 2.0, 3.0));
}

// An entity that goes with its last reference takes with it what it alone held: the members
// of its lists, its planes, the definition it places; a planar group keeps its matrix.
TEST(Structure, WhatAnEntityAloneHeldGoesWithIt) {
  struct Case {
    char const* what;
    Records records; // the entity first, then what it holds
    int left;        // entities left once it went
  } const cases[] = {
      {"a group",
       {{402, 1, "402,2,3,5;"}, {116, 0, "116,0.,0.,0.,0;"}, {116, 0, "116,0.,0.,0.,0;"}},
       0},
      {"a planar group",
       {{402, 16, "402,1,1,3,5;"},
        {124, 0, "124,1.,0.,0.,0.,0.,1.,0.,0.,0.,0.,1.,0.;"},
        {116, 0, "116,0.,0.,0.,0;"}},
       1},
      {"a drawing",
       {{404, 0, "404,1,3,0.,0.,1,5;"},
        {410, 0, "410,1,1.,0,0,0,0,0,0;"},
        {116, 0, "116,0.,0.,0.,0;"}},
       0},
      {"a view",
       {{410, 0, "410,1,1.,3,0,0,0,0,5;"},
        {116, 0, "116,0.,0.,0.,0;"},
        {116, 0, "116,0.,0.,0.,0;"}},
       0},
      {"an instance",
       {{408, 0, "408,3,0.,0.,0.,1.;"}, {308, 0, "308,0,1HS,1,5;"}, {116, 0, "116,0.,0.,0.,0;"}},
       0},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(c.what);
    ReadRecords f(c.records);
    igsObjectPtr only(1);
    only.unreference();
    EXPECT_EQ(f.file->num_entities(), c.left);
  }
}

} // namespace
