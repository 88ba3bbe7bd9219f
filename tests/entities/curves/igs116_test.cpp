#include "entities/curves/igs116.h"

#include "entities/curves/igs110.h"
#include "entities/entityTestSupport.h"

using namespace igs_entity_test;

namespace {

using Point116Test = EntityTest;

TEST_F(Point116Test, ReadsCoordinatesAndBindsTheDisplaySymbolByDENumber) {
  auto* point = new igs116;
  auto* symbol = new igs110;
  ASSERT_EQ(symbol->de_number(), 3);
  ASSERT_EQ(read(*point, {"116,1.5,-2.,3.25D1,3;"}), 1);
  EXPECT_EQ(point->point(), giPoint3(1.5, -2.0, 32.5));
  EXPECT_EQ(point->display_symbol()(), symbol);
  EXPECT_EQ(symbol->num_references(), 1);

  // The same fields come back on one line, the symbol as its DE number.
  EXPECT_EQ(written(*point), records({"116,1.5,-2.,32.5,3;"}));

  // A DE number that is even, negative or names no entity reads as null, without an error.
  for (char const* data : {"116,0.,0.,0.,4;", "116,0.,0.,0.,-3;", "116,0.,0.,0.,99;",
                           "116,0.,0.,0.,;", "116,0.,0.,0.;"}) {
    SCOPED_TRACE(data);
    EXPECT_EQ(read(*point, {data}), 1);
    EXPECT_FALSE(point->display_symbol());
    EXPECT_EQ(written(*point), records({"116,0.,0.,0.,0;"}));
    EXPECT_EQ(checked(*point), std::vector<std::string>{});
  }
  EXPECT_EQ(symbol->num_references(), 0);
}

TEST_F(Point116Test, PrintsCoordinatesAndTheSymbolOrNullPointer) {
  auto* point = new igs116;
  ASSERT_EQ(read(*point, {"116,1.,2.,3.,0;"}), 1);
  EXPECT_EQ(printed(*point), "Coordinates = (1, 2, 3)\n"
                             "DisplaySymbol = {\n"
                             "  (NullPointer)\n"
                             "}\n");

  // A symbol prints inside the braces, one level deeper, in its own frame.
  auto* symbol = new igs116;
  ASSERT_EQ(read(*point, {"116,1.,2.,3.,3;"}), 1);
  std::string text = printed(*point);
  std::string head = "Coordinates = (1, 2, 3)\nDisplaySymbol = {\n  @3(116) = {\n";
  EXPECT_EQ(text.substr(0, head.size()), head) << text;
  std::string tail = "\n  }\n}\n";
  EXPECT_EQ(text.substr(text.size() - tail.size()), tail) << text;
  (void)symbol;
}

TEST_F(Point116Test, OnlyAnUnsetPointIsAnErrorAndTheSettersKeepWhatTheyRefuse) {
  auto* point = new igs116;
  EXPECT_EQ(checked(*point), std::vector<std::string>{"igs116InvalidPoint"});
  EXPECT_EQ(point->check(), 0);

  // An invalid point is ignored, yet the setter says 1.
  EXPECT_EQ(point->set_point(giPoint3(1, 2, 3)), 1);
  EXPECT_EQ(point->set_point(giPoint3()), 1);
  EXPECT_EQ(point->set_point(giPoint3(DBL_MAX, 0, 0)), 1);
  EXPECT_EQ(point->point(), giPoint3(1, 2, 3));
  EXPECT_EQ(checked(*point), std::vector<std::string>{});
  EXPECT_EQ(point->check(), 1);

  // The display symbol is not set through the interface, nor followed by the check.
  auto* bad_symbol = new igs110;
  EXPECT_EQ(point->set_display_symbol(igsObjectPtr(bad_symbol)), 0);
  EXPECT_FALSE(point->display_symbol());
  ASSERT_EQ(read(*point, {"116,1.,2.,3.,3;"}), 1);
  EXPECT_EQ(point->display_symbol()(), bad_symbol);
  EXPECT_EQ(checked(*point), std::vector<std::string>{});
  EXPECT_EQ(errors(*bad_symbol), std::vector<std::string>{});
}

TEST_F(Point116Test, DroppingChildrenDeletesASymbolThatNothingElseHolds) {
  auto* point = new igs116;
  auto* symbol = new igs116;
  auto* shared = new igs116;
  ASSERT_EQ(read(*point, {"116,1.,2.,3.,3;"}), 1);
  EXPECT_EQ(file->num_entities(), 3);
  Access::drop_children(*point);
  EXPECT_FALSE(point->display_symbol());
  EXPECT_EQ(file->num_entities(), 2); // the symbol went with its last reference

  // A symbol that another reference holds stays.
  igsObjectPtr keeper(shared);
  ASSERT_EQ(read(*point, {"116,1.,2.,3.,5;"}), 1);
  Access::drop_children(*point);
  EXPECT_FALSE(point->display_symbol());
  EXPECT_EQ(file->num_entities(), 2);
  EXPECT_EQ(keeper(), shared);
  (void)symbol;
}

} // namespace
