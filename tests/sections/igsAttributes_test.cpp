// The value classes of the Directory Entry: numbers, validity, references to definition
// entities, and the tests of the definitions' classes by name.
#include "sectionsTestSupport.h"

#include "sections/igsColour.h"
#include "sections/igsEntityKind.h"
#include "sections/igsLevel.h"
#include "sections/igsLineFont.h"
#include "sections/igsStatusFlags.h"
#include "sections/igsView.h"

#include <climits>

using namespace igs_sections_test;

namespace {

using AttributeTest = SectionTest;

TEST(igsStatusFlags, EachDigitHasItsRangeAndFallsBackOutOfIt) {
  for (int v : {-1, 0, 1, 2, 3, 4, 6, 7}) {
    SCOPED_TRACE(v);
    igsStatusFlags flags(v, v, v, v);
    auto in = [v](int count) { return v >= 0 && v < count; };
    EXPECT_EQ(flags.blank_status(), in(2) ? v : 0);
    EXPECT_EQ(flags.subordinate_status(), in(4) ? v : 0);
    EXPECT_EQ(flags.entity_use(), in(7) ? v : 0);
    EXPECT_EQ(flags.hierarchy(), in(3) ? v : 0);
    EXPECT_EQ(std::string(flags.blank_status_name()) == "Unknown", !in(2));
    EXPECT_EQ(std::string(flags.subordinate_status_name()) == "Unknown", !in(4));
    EXPECT_EQ(std::string(flags.entity_use_name()) == "Unknown", !in(7));
    EXPECT_EQ(std::string(flags.hierarchy_name()) == "Unknown", !in(3));
    EXPECT_EQ(flags.blank_status_value() + flags.hierarchy_value(), 2 * v); // kept as read
    EXPECT_EQ(flags.valid(), in(2));
    igsStatusFlags copy(9, 9, 9, 9); // become copies through the enumerations
    copy.become(flags);
    EXPECT_EQ(copy, igsStatusFlags(flags.blank_status(), flags.subordinate_status(),
                                   flags.entity_use(), flags.hierarchy()));
  }
  // Each digit at its own limit.
  EXPECT_TRUE(igsStatusFlags(1, 3, 6, 2).valid());
  for (igsStatusFlags over :
       {igsStatusFlags(2, 3, 6, 2), igsStatusFlags(1, 4, 6, 2), igsStatusFlags(1, 3, 7, 2),
        igsStatusFlags(1, 3, 6, 3), igsStatusFlags(0, 0, 0, INT_MIN)})
    EXPECT_FALSE(over.valid());
  EXPECT_EQ(printed(igsStatusFlags(1, 2, 3, 4)), "BlankStatus = 1(Blanked)\n"
                                                 "SubordinateStatus = 2(Logically Dependent)\n"
                                                 "EntityUse = 3(Other)\n"
                                                 "Hierarchy = 4(Unknown)");
  igsStatusFlags set;
  set.set_blank_status(igsBlanked);
  set.set_subordinate_status(igsPhysicallyAndLogicallyDependent);
  set.set_entity_use(igsUse2DParametric);
  set.set_hierarchy(igsUseHierarchyProperty);
  EXPECT_EQ(set, igsStatusFlags(1, 3, 5, 2));
}

TEST_F(AttributeTest, LineFontPatternsAndDefinitions) {
  for (int v = -1; v <= 6; ++v) {
    igsLineFont font(v); // -1 names DE 1, where no entity stands yet
    EXPECT_EQ(font.valid(), v >= 0 && v <= 5) << v;
    EXPECT_EQ(font.pattern_type(), v >= 0 && v <= 5 ? v : igsSolid) << v;
    EXPECT_EQ(font.pattern_name() == "Unknown pattern", v == 6 || v == -1) << v;
  }
  EXPECT_EQ(printed(igsLineFont()), "1(Solid)");

  // -7 names DE 7: once an entity stands there, the reference reaches it, and a definition of
  // a line font is valid there; its pattern is the one its own Directory Entry leads to.
  igsLineFont pointer(-7);
  EXPECT_TRUE(pointer.predefined_pattern());
  EXPECT_EQ(pointer.field(), -7);
  new deNode;
  new deNode;
  auto* other = new deNode;
  auto* definition = new fake::igs304_2;
  EXPECT_FALSE(pointer.predefined_pattern());
  EXPECT_EQ(pointer.line_font_definition()(), definition);
  EXPECT_TRUE(pointer.valid());
  EXPECT_EQ(pointer.pattern_name(), "ig7");
  EXPECT_EQ(printed(pointer), "line font defintion not supported");
  EXPECT_EQ(definition->directory_entry().set_line_font(igsLineFont(igsDashed)), 1);
  EXPECT_EQ(pointer.pattern_value(), igsDashed);
  EXPECT_FALSE(igsLineFont(-other->de_number()).valid()); // no line font definition

  igsLineFont form_1;
  EXPECT_EQ(form_1.set_line_font_definition(igsObjectPtr()), 0);
  EXPECT_EQ(form_1.set_line_font_definition(new fake::igs304_1), 1);
  EXPECT_EQ(form_1.value(), -9);
  EXPECT_TRUE(form_1.valid());
  form_1.set_pattern(igsDotted);
  EXPECT_EQ(printed(form_1), "5(Dotted)");

  // Definitions that point at each other lead to no pattern.
  auto* a = new fake::igs304_1;
  auto* b = new fake::igs304_1;
  igsLineFont to_a, to_b;
  to_a.set_line_font_definition(a);
  to_b.set_line_font_definition(b);
  a->directory_entry().set_line_font(to_b);
  b->directory_entry().set_line_font(to_a);
  EXPECT_EQ(to_a.pattern_value(), 0);

  // After the table is packed the stored value is stale and fails, while the field written is
  // the new number.
  int old = to_b.value();
  delete other;
  file->compress();
  EXPECT_EQ(to_b.value(), old);
  EXPECT_EQ(to_b.field(), -b->de_number());
  EXPECT_NE(to_b.field(), old);
  EXPECT_FALSE(to_b.valid());
}

TEST_F(AttributeTest, ColourNumbersDefinitionsAndNames) {
  for (int v = -1; v <= 9; ++v) {
    igsColour colour(v);
    EXPECT_EQ(colour.valid(), v >= 0 && v <= 8) << v;
    EXPECT_EQ(colour.colour_type(), v >= 0 && v <= 8 ? v : igsNoColour) << v;
    EXPECT_EQ(colour.colour_value(), v) << v;
  }
  EXPECT_EQ(printed(igsColour(9)), "9(Unknown colour)");
  EXPECT_TRUE(igsColour(INT_MIN).predefined_colour()); // INT_MIN names no DE

  auto* node = new deNode;
  auto* definition = new fake::igs314;
  auto* kind = new fake::colourKind;
  igsColour colour;
  EXPECT_EQ(colour.set_colour_definition(igsObjectPtr()), 0);
  EXPECT_EQ(colour.set_colour_definition(node), 0);
  EXPECT_EQ(colour.set_colour_definition(kind), 1); // kinds of colour definitions count
  EXPECT_EQ(colour.value(), -5);
  EXPECT_TRUE(colour.valid());
  EXPECT_EQ(colour.set_colour_definition(definition), 1);
  EXPECT_EQ(colour.value(), -3);
  EXPECT_EQ(printed(colour), "RGB values not supported");
  definition->directory_entry().set_colour(igsColour(igsCyan));
  EXPECT_EQ(colour.colour_value(), igsCyan);
  EXPECT_EQ(colour.colour_type(), igsNoColour);

  // The name: the definition's own, when its class has told how to read it and it is not empty.
  EXPECT_EQ(colour.colour_name(), "ig3");
  auto before = igsColour::set_definition_name_reader(fake::colour_name_of);
  EXPECT_EQ(colour.colour_name(), "ig3");
  definition->set_colour_name("Teal");
  EXPECT_EQ(colour.colour_name(), "Teal");
  igsColour::set_definition_name_reader(before);
  EXPECT_EQ(colour.colour_name(), "ig3");

  // A field read from a file binds to any entity, and only a colour definition is valid.
  EXPECT_FALSE(igsColour(-1).valid());
  EXPECT_TRUE(igsColour(-3).valid());
  EXPECT_FALSE(igsColour(-7).valid()); // no entity: a huge unsigned number
  colour.set_colour(igsRed);
  EXPECT_TRUE(colour.predefined_colour());
  EXPECT_EQ(printed(colour), "2(Red)");
}

TEST_F(AttributeTest, LevelsViewsAndClassesByName) {
  EXPECT_TRUE(igsLevel(igsLevel::max_level).valid());
  EXPECT_FALSE(igsLevel(igsLevel::max_level + 1).valid());
  new deNode;
  new deNode;
  auto* list = new deNode;
  igsLevel listed(-5);
  EXPECT_EQ(listed.level_list()(), list);
  EXPECT_EQ(listed.level(), 0);
  EXPECT_EQ(listed.field(), -5);
  EXPECT_FALSE(listed.valid());
  EXPECT_EQ(printed(listed), "list of levels not supported");
  EXPECT_EQ(listed.set_level(-1), 0);
  EXPECT_EQ(listed.set_level(igsLevel::max_level + 1), 0);
  EXPECT_EQ(listed.set_level(igsLevel::max_level), 1);
  EXPECT_TRUE(listed.valid());
  EXPECT_EQ(printed(listed), "99999999");
  EXPECT_EQ(listed.set_level_list(igsObjectPtr()), 0);
  EXPECT_EQ(listed.set_level_list(list), 1);
  EXPECT_EQ(listed.level(), 0);

  // Views: without a reference only number 0 is valid; a DE number binds a reference, valid
  // for a view or a views visible list.
  auto* view = new fake::igs410_0;    // DE 7
  auto* visible = new fake::igs402_3; // DE 9
  std::tuple<int, int, int> const views[] = {{1, 0, 0}, {0, 0, 1}, {-3, -3, 0}, {7, 0, 1},
                                             {9, 0, 1}, {5, 0, 0}, {11, 0, 1}};
  for (auto const& [value, number, valid] : views) {
    igsView v(value);
    EXPECT_EQ(v.view_number(), number) << value;
    EXPECT_EQ(v.valid(), valid) << value;
  }
  EXPECT_EQ(printed(igsView(0)), "0(All Views)");
  igsView set; // number 1
  EXPECT_FALSE(set.valid());
  EXPECT_EQ(set.view_type(), igsViewNumber);
  EXPECT_EQ(set.set_view(igsObjectPtr()), 0);
  EXPECT_EQ(set.set_view(list), 1);
  EXPECT_FALSE(set.valid());
  EXPECT_EQ(set.set_view(visible), 1);
  EXPECT_EQ(set.view_type(), igsViewEntity);
  EXPECT_EQ(printed(set), "single/list of views not supported");
  set.set_view_all();
  EXPECT_EQ(printed(set), "1");
  EXPECT_FALSE(set.view());
  EXPECT_EQ(igsView(7).view()(), view);

  // The definitions' classes by name: exactly, or as a kind.
  auto* colour = new fake::igs314;
  auto* kind = new fake::colourKind;
  EXPECT_TRUE(igs_isa_class(colour, igs314_class));
  EXPECT_FALSE(igs_isa_class(kind, igs314_class));
  EXPECT_TRUE(igs_typeof_class(kind, igs314_class));
  EXPECT_FALSE(igs_typeof_class(list, igs314_class));
  EXPECT_FALSE(igs_isa_class(static_cast<igsObject const*>(nullptr), igs314_class));
  EXPECT_FALSE(igs_typeof_class(static_cast<igsObject const*>(nullptr), igs314_class));
  EXPECT_TRUE(igs_isa_class(igsObjectPtr(colour), igs314_class));
  EXPECT_FALSE(igs_typeof_class(igsObjectPtr(99), igs314_class)); // an empty slot
}

} // namespace
