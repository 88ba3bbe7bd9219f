// The value classes of the Directory Entry: numbers, names, validity, references to
// definition entities, and the tests of the definitions' classes by name.
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

// Names by value, as the standard's tables give them.
Lines const blank_names = {"Visible", "Blanked"};
Lines const subordinate_names = {"Independent", "Physically Dependent", "Logically Dependent",
                                 "Physically and Logically Dependent"};
Lines const use_names = {"Geometry",           "Annotation",    "Definition",    "Other",
                         "Logical/Positional", "2D Parametric", "Constructional"};
Lines const hierarchy_names = {"Global top down", "Global defer", "Use hierarchy property"};
Lines const pattern_names = {"No pattern specified", "Solid", "Dashed", "Phantom",
                             "Centerline",           "Dotted"};
Lines const colour_names = {"No color assigned", "Black", "Red",  "Green", "Blue", "Yellow",
                            "Magenta",           "Cyan",  "White"};

TEST(igsStatusFlags, EveryDigitNamesItsValueAndFallsBackOutOfRange) {
  for (int v = -2; v <= 8; ++v) {
    SCOPED_TRACE(v);
    auto name_of = [v](Lines const& names) {
      return v >= 0 && v < static_cast<int>(names.size()) ? names[static_cast<size_t>(v)]
                                                          : std::string("Unknown");
    };
    auto in_range = [v](Lines const& names) { return v >= 0 && v < int(names.size()); };
    igsStatusFlags flags(v, v, v, v);
    EXPECT_EQ(flags.blank_status_name(), name_of(blank_names));
    EXPECT_EQ(flags.subordinate_status_name(), name_of(subordinate_names));
    EXPECT_EQ(flags.entity_use_name(), name_of(use_names));
    EXPECT_EQ(flags.hierarchy_name(), name_of(hierarchy_names));
    // The raw values stay; the enumerations give the first enumerator out of range.
    EXPECT_EQ(flags.blank_status_value(), v);
    EXPECT_EQ(flags.hierarchy_value(), v);
    EXPECT_EQ(flags.blank_status(), in_range(blank_names) ? v : 0);
    EXPECT_EQ(flags.subordinate_status(), in_range(subordinate_names) ? v : 0);
    EXPECT_EQ(flags.entity_use(), in_range(use_names) ? v : 0);
    EXPECT_EQ(flags.hierarchy(), in_range(hierarchy_names) ? v : 0);
    EXPECT_EQ(flags.valid(), v >= 0 && v <= 1);
    // become copies through the enumerations.
    igsStatusFlags copy(9, 9, 9, 9);
    copy.become(flags);
    EXPECT_EQ(copy, igsStatusFlags(flags.blank_status(), flags.subordinate_status(),
                                   flags.entity_use(), flags.hierarchy()));
  }
  // Each digit at its own limit.
  EXPECT_TRUE(igsStatusFlags(1, 3, 6, 2).valid());
  EXPECT_FALSE(igsStatusFlags(2, 3, 6, 2).valid());
  EXPECT_FALSE(igsStatusFlags(1, 4, 6, 2).valid());
  EXPECT_FALSE(igsStatusFlags(1, 3, 7, 2).valid());
  EXPECT_FALSE(igsStatusFlags(1, 3, 6, 3).valid());
  EXPECT_FALSE(igsStatusFlags(0, 0, 0, INT_MIN).valid());

  // Digits 01020304 of a file: the hierarchy fails.
  igsStatusFlags read(1, 2, 3, 4);
  EXPECT_FALSE(read.valid());
  EXPECT_STREQ(read.hierarchy_name(), "Unknown");
  EXPECT_EQ(printed(read), "BlankStatus = 1(Blanked)\n"
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
  igsLineFont solid;
  EXPECT_EQ(solid.value(), 1);
  EXPECT_TRUE(solid.predefined_pattern());
  EXPECT_EQ(printed(solid), "1(Solid)");
  for (int v = 0; v < 6; ++v) {
    igsLineFont font(v);
    EXPECT_TRUE(font.valid());
    EXPECT_EQ(font.pattern_type(), v);
    EXPECT_EQ(font.pattern_value(), v);
    EXPECT_EQ(font.pattern_name(), pattern_names[static_cast<size_t>(v)].c_str());
  }
  igsLineFont six(6);
  EXPECT_FALSE(six.valid());
  EXPECT_EQ(six.pattern_type(), igsSolid);
  EXPECT_EQ(six.pattern_name(), "Unknown pattern");
  EXPECT_EQ(printed(six), "6(Unknown pattern)");

  // -7 names DE 7, which has no entity yet: the field reads as predefined and fails as a huge
  // unsigned number.
  igsLineFont pointer(-7);
  EXPECT_EQ(pointer.value(), -7);
  EXPECT_TRUE(pointer.predefined_pattern());
  EXPECT_FALSE(pointer.valid());
  EXPECT_EQ(pointer.field(), -7);
  // Once DE 7 stands, the reference reaches it; a definition of a line font is valid there.
  new deNode;
  new deNode;
  auto* other = new deNode;
  auto* definition = new fake::igs304_2;
  ASSERT_EQ(definition->de_number(), 7);
  EXPECT_FALSE(pointer.predefined_pattern());
  EXPECT_EQ(pointer.line_font_definition()(), definition);
  EXPECT_TRUE(pointer.valid());
  EXPECT_EQ(pointer.pattern_name(), "ig7");
  EXPECT_EQ(pointer.pattern_type(), igsSolid);
  EXPECT_EQ(printed(pointer), "line font defintion not supported");
  // The pattern is the one the definition's own Directory Entry leads to.
  EXPECT_EQ(definition->directory_entry().set_line_font(igsLineFont(igsDashed)), 1);
  EXPECT_EQ(pointer.pattern_value(), igsDashed);

  // Any other entity at the DE is no line font definition.
  igsLineFont at_other(-other->de_number());
  EXPECT_FALSE(at_other.predefined_pattern());
  EXPECT_FALSE(at_other.valid());
  igsLineFont form_1;
  EXPECT_EQ(form_1.set_line_font_definition(igsObjectPtr()), 0);
  EXPECT_EQ(form_1.value(), 1);
  EXPECT_EQ(form_1.set_line_font_definition(new fake::igs304_1), 1);
  EXPECT_EQ(form_1.value(), -9);
  EXPECT_TRUE(form_1.valid());
  form_1.set_pattern(igsDotted);
  EXPECT_TRUE(form_1.predefined_pattern());
  EXPECT_EQ(printed(form_1), "5(Dotted)");

  // Definitions that point at each other lead to no pattern.
  auto* a = new fake::igs304_1;
  auto* b = new fake::igs304_1;
  igsLineFont to_a;
  to_a.set_line_font_definition(a);
  igsLineFont to_b;
  to_b.set_line_font_definition(b);
  a->directory_entry().set_line_font(to_b);
  b->directory_entry().set_line_font(to_a);
  EXPECT_EQ(to_a.pattern_value(), 0);

  // The minus-DE value is compared with the definition's number of today: after the table is
  // packed the stored value is stale and fails, while the field written is the new number.
  igsLineFont font_of_b;
  font_of_b.set_line_font_definition(b);
  int old = font_of_b.value();
  delete other;
  file->compress();
  EXPECT_EQ(font_of_b.value(), old);
  EXPECT_EQ(font_of_b.field(), -b->de_number());
  EXPECT_NE(font_of_b.field(), old);
  EXPECT_FALSE(font_of_b.valid());
}

TEST_F(AttributeTest, ColourNumbersDefinitionsAndNames) {
  igsColour none;
  EXPECT_EQ(none.value(), 0);
  EXPECT_EQ(printed(none), "0(No color assigned)");
  for (int v = 0; v < 9; ++v) {
    igsColour colour(v);
    EXPECT_TRUE(colour.valid());
    EXPECT_EQ(colour.colour_type(), v);
    EXPECT_EQ(colour.colour_value(), v);
    EXPECT_EQ(colour.colour_name(), colour_names[static_cast<size_t>(v)].c_str());
  }
  igsColour nine(9);
  EXPECT_EQ(nine.value(), 9);
  EXPECT_FALSE(nine.valid());
  EXPECT_EQ(nine.colour_type(), igsNoColour);
  EXPECT_EQ(nine.colour_name(), "Unknown colour");
  EXPECT_EQ(printed(nine), "9(Unknown colour)");

  auto* node = new deNode;
  auto* definition = new fake::igs314;
  auto* kind = new fake::colourKind;
  igsColour colour;
  EXPECT_EQ(colour.set_colour_definition(igsObjectPtr()), 0);
  EXPECT_EQ(colour.set_colour_definition(node), 0);
  EXPECT_EQ(colour.value(), 0);
  EXPECT_EQ(colour.set_colour_definition(kind), 1);
  EXPECT_EQ(colour.value(), -5);
  EXPECT_TRUE(colour.valid());
  EXPECT_EQ(colour.set_colour_definition(definition), 1);
  EXPECT_EQ(colour.value(), -3);
  EXPECT_TRUE(colour.valid());
  EXPECT_EQ(printed(colour), "RGB values not supported");
  // A definition's number is its own DE's colour.
  definition->directory_entry().set_colour(igsColour(igsCyan));
  EXPECT_EQ(colour.colour_value(), igsCyan);
  EXPECT_EQ(colour.colour_type(), igsNoColour);

  // The name: the definition's own, when its class has told how to read it and it is not empty.
  EXPECT_EQ(colour.colour_name(), "ig3");
  igsColour::DefinitionNameReader before =
      igsColour::set_definition_name_reader(fake::colour_name_of);
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

TEST_F(AttributeTest, LevelsAndLevelLists) {
  EXPECT_EQ(printed(igsLevel()), "0");
  EXPECT_TRUE(igsLevel().valid());
  EXPECT_TRUE(igsLevel(igsLevel::max_level).valid());
  igsLevel huge(100000000);
  EXPECT_EQ(huge.value(), 100000000);
  EXPECT_EQ(huge.level(), 100000000);
  EXPECT_FALSE(huge.valid());

  new deNode;
  new deNode;
  auto* list = new deNode;
  igsLevel listed(-5);
  EXPECT_FALSE(listed.predefined_level());
  EXPECT_EQ(listed.level_list()(), list);
  EXPECT_EQ(listed.value(), 0);
  EXPECT_EQ(listed.level(), 0);
  EXPECT_EQ(listed.field(), -5);
  EXPECT_FALSE(listed.valid());
  EXPECT_EQ(printed(listed), "list of levels not supported");

  EXPECT_EQ(listed.set_level(-1), 0);
  EXPECT_EQ(listed.set_level(igsLevel::max_level + 1), 0);
  EXPECT_FALSE(listed.predefined_level());
  EXPECT_EQ(listed.set_level(42), 1);
  EXPECT_TRUE(listed.valid());
  EXPECT_EQ(printed(listed), "42");
  EXPECT_EQ(listed.set_level_list(igsObjectPtr()), 0);
  EXPECT_EQ(listed.level(), 42);
  EXPECT_EQ(listed.set_level_list(list), 1);
  EXPECT_EQ(listed.value(), 0);
  EXPECT_FALSE(listed.valid());
}

TEST_F(AttributeTest, ViewsByNumberAndByReference) {
  igsView all;
  EXPECT_EQ(all.view_number(), 1);
  EXPECT_EQ(all.view_type(), igsViewNumber);
  EXPECT_FALSE(all.valid()); // without a reference only number 0 is valid
  EXPECT_EQ(printed(all), "1");
  igsView zero(0);
  EXPECT_TRUE(zero.valid());
  EXPECT_EQ(printed(zero), "0(All Views)");
  igsView negative(-3);
  EXPECT_EQ(negative.view_number(), -3);
  EXPECT_FALSE(negative.valid());

  auto* node = new deNode;
  auto* view = new fake::igs410_0;
  auto* list = new fake::igs402_3;
  igsView by_number(3);
  EXPECT_EQ(by_number.view_number(), 0);
  EXPECT_EQ(by_number.view()(), view);
  EXPECT_EQ(by_number.view_type(), igsViewEntity);
  EXPECT_TRUE(by_number.valid());
  EXPECT_EQ(printed(by_number), "single/list of views not supported");
  EXPECT_TRUE(igsView(5).valid());
  EXPECT_FALSE(igsView(1).valid());
  // A DE number without an entity leaves number 0 alone, which is valid.
  EXPECT_TRUE(igsView(7).valid());
  EXPECT_EQ(igsView(7).view_number(), 0);

  igsView set;
  EXPECT_EQ(set.set_view(igsObjectPtr()), 0);
  EXPECT_EQ(set.set_view(node), 1);
  EXPECT_EQ(set.view_number(), 0);
  EXPECT_FALSE(set.valid());
  EXPECT_EQ(set.set_view(list), 1);
  EXPECT_TRUE(set.valid());
  set.set_view_all();
  EXPECT_EQ(set.view_number(), 1);
  EXPECT_FALSE(set.view());
}

TEST_F(AttributeTest, DefinitionClassesAreTestedByName) {
  auto* colour = new fake::igs314;
  auto* kind = new fake::colourKind;
  auto* node = new deNode;
  EXPECT_TRUE(igs_isa_class(colour, igs314_class));
  EXPECT_TRUE(igs_typeof_class(colour, igs314_class));
  EXPECT_FALSE(igs_isa_class(kind, igs314_class));
  EXPECT_TRUE(igs_typeof_class(kind, igs314_class));
  EXPECT_FALSE(igs_typeof_class(node, igs314_class));
  EXPECT_FALSE(igs_typeof_class(colour, igs410_0_class));
  EXPECT_FALSE(igs_isa_class(static_cast<igsObject const*>(nullptr), igs314_class));
  EXPECT_FALSE(igs_typeof_class(igsObjectPtr(), igs314_class));
  EXPECT_TRUE(igs_isa_class(igsObjectPtr(colour), igs314_class));
  // An empty slot reads as no entity.
  EXPECT_FALSE(igs_typeof_class(igsObjectPtr(99), igs314_class));
}

} // namespace
