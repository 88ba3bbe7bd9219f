// The line font, text font, text template, colour, name and external reference definitions: a
// file of every class, each damage a file can carry with what check and repair make of it,
// and the colour that a colour definition's own Directory Entry is repaired to.
#include "entities/entityFamily.h"
#include "entities/structure/igs310.h"
#include "entities/structure/igs312.h"
#include "entities/structure/igs314.h"
#include "entities/structure/igs416.h"
#include "entities/structure/igsAttributeErrors.h"
#include "sections/igsColour.h"

using namespace igs_family_test;

namespace {

// Records: type, form, data, matrix, colour, status, line font.
Family const attributes = {
    "attributes",
    "structure",
    {
        {304, 1, "304,0,3,2.5,0.5;", 0, 0, "00000000", 1},
        {308, 0, "308,0,4HDASH,1,5;"},
        {110, 0, "110,0.,0.,0.,1.,0.,0.;"},
        {304, 2, "304,3,1.,0.5,0.25,2H5A;", 0, 0, "00000000", 2},
        {310, 0, "310,1001,8HSTANDARD,1,8,2,65,10,0,3,1,0,0,0,4,8,0,8,0,66,12,0,2,1,0,0,0,0,8;"},
        {310, 0, "310,1002,4HBOLD,-9,8,1,67,9,0,1,0,5,5;"},
        {312, 0, "312,10.,2.,1,1.25,0.,0,0,1.,2.,3.;"},
        {312, 1, "312,5.,1.,-11,0.,0.5,2,1,0.,0.,0.;"},
        {314, 0, "314,100.,50.,0.,6HORANGE;", 0, 2},
        {314, 0, "314,0.,0.,100.;", 0, 4}, // a blank name reads as "none"
        {406, 15, "406,1,5HPLATE;"},
        {416, 1, "416,9Hother.igs;"},
        // A line of the colour and the line font that the definitions give.
        {110, 0, "110,0.,0.,0.,0.,1.,0.;", 0, -17, "00000000", -7},
    }};

TEST(Attributes, TheFamilyFile) {
  expect_family(attributes);
}

// A damage that only the check reports: what it raises stays after clean(0).
Damage reported(char const* what, Records records, std::vector<std::string> raised) {
  return {what, std::move(records), raised, raised};
}

// Records of a line font definition, with the line font of its own Directory Entry.
Record font(int form, char const* data, int line_font) {
  return {304, form, data, 0, 0, "00000000", line_font};
}

Damage const damages[] = {
    {"a colour beyond the percentages, naming another definition",
     {{314, 0, "314,101.,-1.,100.5;", 0, -3}, {314, 0, "314,0.,0.,0.;", 0, 1}},
     {"@1 igs314InvalidBlueCoordinate", "@1 igs314InvalidDEColourNumber",
      "@1 igs314InvalidGreenCoordinate", "@1 igs314InvalidRedCoordinate"},
     {"@1 igs314InvalidBlueCoordinate", "@1 igs314InvalidGreenCoordinate",
      "@1 igs314InvalidRedCoordinate"}},
    reported("line fonts of nothing, of a line, of bad counts, lengths and digits, of no pattern",
             {font(1, "304,-1,0,0.,-1.;", 0),
              font(1, "304,2,9,1.,1.;", 5),
              font(2, "304,-1,2HG1;", 1),
              font(2, "304,2,-1.,-2.;", -7),
              {110, 0, "110,0.,0.,0.,1.,0.,0.;"}},
             {"@1 igs304_1InvalidDELineFontPattern",
              "@1 igs304_1InvalidOrientationFlag(orientation=-1)",
              "@1 igs304_1InvalidScale(scale=-1)", "@1 igs304_1InvalidSpacing(spacing=0)",
              "@1 igs304_1NullSubfigurePointer", "@3 igs304_1InvalidOrientationFlag(orientation=2)",
              "@3 igs304_1InvalidSubfigure", "@5 igs304_2InvalidSize", "@5 igs304_2InvalidString",
              "@7 igs304_2InvalidDELineFontPattern", "@7 igs304_2InvalidSegmentLength"}),
    reported("text fonts without name, characters or scale, superseding nothing or a colour",
             {{310, 0, "310,1,,0,0,0;"},
              {310, 0, "310,1,1HF,-5,8,2,65,9,0,0,66,9,0,1,0,1,1;"},
              {314, 0, "314,0.,0.,0.;", 0, 1}},
             {"@1 igs310InvalidScale", "@1 igs310InvalidSize", "@1 igs310InvalidString",
              "@1 igs310NullFontToSupersede", "@3 igs310InvalidCharacter(index=0)",
              "@3 igs310InvalidFontToSupersede"}),
    reported("a text template without a box, of angles and flags out of range",
             {{312, 0, "312,0.,-1.,1,1.7976931348623157D308,1.7976931348623157D308,3,2,0.,0.,0.;"}},
             {"@1 igs312InvalidBoxHeight(height=-1)", "@1 igs312InvalidBoxLength(length=0)",
              "@1 igs312InvalidRotationAngle(angle=1.79769e+308)",
              "@1 igs312InvalidSlantAngle(angle=1.79769e+308)",
              "@1 igs312InvalidTextAlignmentFlag(value=2)",
              "@1 igs312InvalidTextMirrorFlag(value=3)"}),
    {"a name property of two properties is given up as it is read",
     {{406, 15, "406,2,1HA,1HB;"}, {116, 0, "116,0.,0.,0.,0;"}},
     {"@1 igs406BadNumProperties", "@1 igsFileNoPDData(de_number=1)"},
     {"@1 igs406BadNumProperties"},
     "Warning : There is no Parameter Data associated with object DE 1.\n"},
    reported("a name property and an external file reference without text",
             {{406, 15, "406,1;"}, {416, 1, "416;"}},
             {"@1 igs406NoString", "@3 igs416InvalidExternalFileName"}),
};

TEST(Attributes, EveryDamageIsFoundAndWhatCanBeRepairedIs) {
  for (Damage const& damage : damages) expect_damage(damage);
}

// A line's colour definition gives the line its name; a font code of no font leaves the font
// of a template as it was; a reference built in memory has form 0 and needs both names.
TEST(Attributes, ADefinitionNamesItsColourAndWhatIsBuiltInMemoryIsChecked) {
  int result = 0;
  auto file = igs_test::read_text(file_text(attributes.records), result);
  EXPECT_EQ(igsObjectPtr(25)->directory_entry().colour().colour_name(), utString("ORANGE"));
  EXPECT_EQ(igsObjectPtr(25)->directory_entry().colour().colour_value(), 2);
  for (igsFileIT it(file.get()); ++it;) {
    auto const* font = it()->isa(igs310::type()) ? static_cast<igs310*>(it()) : nullptr;
    for (int i = 0; font && i < font->number_of_shapes(); ++i) {
      EXPECT_FALSE(font->read_character(i).invalid());
    }
  }
  EXPECT_TRUE(igsCharacter().invalid());
  // A font that names a definition that is not there is no font.
  auto* text_template = new igs312;
  text_template->set_font_code(-99);
  EXPECT_EQ(text_template->word().font_code(), 0);
  EXPECT_EQ(text_template->word().valid_font_code(), 0);
  text_template->set_font_code(5);
  EXPECT_EQ(text_template->word().font_code(), 0);
  text_template->set_font_code(1001);
  EXPECT_EQ(text_template->word().valid_font_code(), 1);
  auto* reference = new igs416;
  reference->set_external_file_name("a.igs");
  EXPECT_EQ(reference->check(), 0);
  reference->set_external_entity_name("PART");
  EXPECT_EQ(reference->check(), 1);
}

} // namespace
