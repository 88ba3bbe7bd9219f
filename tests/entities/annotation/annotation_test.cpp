// The note, leader, annotation curve, dimension, general symbol and sectioned area family: a
// drawing of every class, each damage a file can carry with what check and repair make of it,
// and the text of notes through the round trip.
#include "entities/annotation/igs202.h"
#include "entities/annotation/igs204.h"
#include "entities/annotation/igs206.h"
#include "entities/annotation/igs208.h"
#include "entities/annotation/igs210.h"
#include "entities/annotation/igs212.h"
#include "entities/annotation/igs214.h"
#include "entities/annotation/igs218.h"
#include "entities/annotation/igs222.h"
#include "entities/annotation/igs228.h"
#include "entities/annotation/igs230.h"
#include "entities/annotation/igsAnnotationErrors.h"
#include "entities/annotation/igsCentreLine.h"
#include "entities/annotation/igsSection.h"
#include "entities/annotation/igsWitnessLine.h"
#include "entities/curves/igs116.h"
#include "entities/entityFamily.h"

using namespace igs_family_test;

namespace {

// Notes and annotation curves are drawn solid: line font 1.
Record solid(int type, int form, std::string data) {
  return {.type = type, .form = form, .data = std::move(data), .line_font = 1};
}

// Notes at DE 1 and 3; leaders at 5, 7, 9; witness lines at 11, 13; section lines at 15, 17;
// centre lines at 19, 21; lines at 23, 25, a circle at 27 and a square at 29 as geometry;
// then every dimension, the general symbols and the sectioned areas on them; last a section
// line of each other form. Every record is as the writer gives it.
Family const annotation = {
    "annotation",
    "annotation",
    {
        solid(212, 0,
              "212,2,5,10.,2.,1,1.5707963267949,0.,0,0,1.,2.,0.,5HHELLO,9,18.,2.,17,1.2,0.5,1,1,1."
              ",4.,0.,9H  centred;"),
        solid(212, 1, "212,1,4,8.,2.,2001,1.5707963267949,0.,2,0,0.,0.,0.,4HABCD;"),
        {214, 1, "214,1,0.5,0.2,0.,0.,0.,5.,5.;"},
        {214, 2, "214,2,0.5,0.2,0.,0.,10.,10.,5.,15.,5.;"},
        {214, 4, "214,1,0.,0.,0.,3.,3.,6.,3.;"}, // no arrowhead, so no size
        solid(106, 40, "106,1,3,0.,0.,0.,0.,1.,0.,5.;"),
        solid(106, 40, "106,1,5,0.,10.,0.,10.,1.,10.,5.,10.,6.,10.,7.;"),
        solid(106, 31, "106,1,2,0.,0.,0.,1.,1.;"),
        solid(106, 38, "106,1,4,0.,0.,0.,1.,1.,0.,1.,1.,2.;"),
        solid(106, 20, "106,1,2,0.,-1.,0.,1.,0.;"),
        solid(106, 21, "106,1,4,0.,-1.,0.,1.,0.,0.,-1.,0.,1.;"),
        {110, 0, "110,0.,0.,0.,10.,0.,0.;"},
        {110, 0, "110,0.,5.,0.,10.,5.,0.;"},
        {100, 0, "100,0.,5.,5.,6.,5.,6.,5.;"},
        {106, 63, "106,1,5,0.,0.,0.,10.,0.,10.,10.,0.,10.,0.,0.;"},
        {202, 0, "202,1,11,13,0.,0.,5.,5,7;"},
        {204, 0, "204,1,23,25,5,7,11,13;"},
        {206, 0, "206,1,5,7,5.,5.;"},
        {206, 0, "206,3,5,0,5.,5.;"}, // one leader
        {208, 0, "208,1.,2.,0.,0.5,1,2,5,7;"},
        {208, 0, "208,0.,0.,0.,0.,3,0;"}, // a flag note needs no leader
        {210, 0, "210,1,3,5,7,9;"},
        {216, 0, "216,1,5,7,11,13;"},
        {216, 1, "216,3,5,7,0,0;"}, // no witness lines
        {218, 0, "218,1,11;"},
        {218, 1, "218,1,13,5;"},
        {220, 0, "220,1,5,27;"},
        {222, 0, "222,1,5,5.,5.;"},
        {222, 1, "222,1,5,5.,5.,7;"},
        {228, 0, "228,0,2,23,27,1,5;"}, // form 0 needs no note
        {228, 1, "228,1,1,29,2,5,7;"},
        {230, 0, "230,29,1,0.,0.,0.,0.5,0.785398163397448,1,27;"},
        {230, 0, "230,27,19,0.,0.,0.,0.,0.,0;"},
        // The section lines of the other forms.
        solid(106, 32, "106,1,2,0.,0.,0.,1.,1.;"),
        solid(106, 33, "106,1,2,0.,0.,1.,1.,2.;"),
        solid(106, 34, "106,1,2,0.,0.,2.,1.,3.;"),
        solid(106, 35, "106,1,2,0.,0.,3.,1.,4.;"),
        solid(106, 36, "106,1,2,0.,0.,4.,1.,5.;"),
        solid(106, 37, "106,1,2,0.,0.,5.,1.,6.;"),
    }};

TEST(Annotation, TheFamilyFile) {
  expect_family(annotation);
}

// The pieces of the damaged files: a note, a leader, a leader of no segment (which no repair
// mends), a witness line and a line.
Record const note = solid(212, 0, "212,1,1,1.,1.,1,1.5707963267949,0.,0,0,0.,0.,0.,1HN;");
Record const leader = {214, 1, "214,1,0.5,0.2,0.,0.,0.,5.,5.;"};
Record const bad_leader = {214, 1, "214,0,0.5,0.2,0.,0.,0.;"};
Record const witness = solid(106, 40, "106,1,3,0.,0.,0.,0.,1.,0.,5.;");
Record const line = {110, 0, "110,0.,0.,0.,1.,0.,0.;"};
// A leader whose Directory Entry has a line font that its own repair mends.
Record const mended_leader = {
    .type = 214, .form = 1, .data = "214,1,0.5,0.2,0.,0.,0.,5.,5.;", .line_font = 9};
std::string const changed_form = "Warning : Changed form number of entity ig1 to 0 (from 1).\n";

// The damaged entity stands first, at DE 1.
Damage const damages[] = {
    {"a note of no strings",
     {solid(212, 0, "212,0;")},
     {"@1 igs212InvalidNumberOfStrings(count=0)"},
     {"@1 igs212InvalidNumberOfStrings(count=0)"}},
    {"a string with every fault of its values gets its flags and its font mended",
     {solid(212, 0, "212,1,3,0.,-1.,5,1.5707963267949,0.,3,2,0.,0.,0.,;")},
     {"@1 igs212InvalidBoxHeight(index=0,height=-1)", "@1 igs212InvalidBoxLength(index=0,length=0)",
      "@1 igs212InvalidFontCode(index=0)", "@1 igs212InvalidTextAlignmentFlag(index=0,flag=2)",
      "@1 igs212InvalidTextMirrorFlag(index=0,flag=3)"},
     {"@1 igs212InvalidBoxHeight(index=0,height=-1)",
      "@1 igs212InvalidBoxLength(index=0,length=0)"},
     {},
     "212,1,0,0.,-1.,1,1.5707963267949,0.,0,0,0.,0.,0.,0H;"},
    {"a note whose record ends before its second string lacks it",
     {solid(212, 0, "212,2,1,1.,1.,1,1.5707963267949,0.,0,0,0.,0.,0.,1HN;")},
     {"@1 igs212InvalidBoxHeight(index=1,height=-1.79769e+308)",
      "@1 igs212InvalidBoxLength(index=1,length=-1.79769e+308)",
      "@1 igs212InvalidString(index=1,text=)"},
     {"@1 igs212InvalidBoxHeight(index=1,height=-1.79769e+308)",
      "@1 igs212InvalidBoxLength(index=1,length=-1.79769e+308)",
      "@1 igs212InvalidString(index=1,text=)"}},
    {"a text of the double-byte font whose length is no multiple of 4 gets font 1",
     {solid(212, 0, "212,1,3,1.,1.,2001,1.5707963267949,0.,0,0,0.,0.,0.,3HABC;")},
     {"@1 igs212InvalidFC2001StringLength(index=0)"},
     {},
     {},
     "212,1,3,1.,1.,1,1.5707963267949,0.,0,0,0.,0.,0.,3HABC;"},
    // Edges of reading and writing, which raise nothing.
    {"a defaulted slant angle reads as 0, a font of -3 names the entity at DE 3 and stays",
     {solid(212, 0, "212,1,1,1.,1.,-3,,0.,0,0,0.,0.,0.,1HN;"), {116, 0, "116,0.,0.,0.,0;"}},
     {},
     {},
     {},
     "212,1,1,1.,1.,-3,0.,0.,0,0,0.,0.,0.,1HN;"},
    {"a leader without arrowhead height whose segment starts at the arrow",
     {{214, 1, "214,1,0.,0.2,0.,1.,1.,1.,1.;"}},
     {"@1 igs214InvalidArrowheadDimension(height=0,length=0.2)", "@1 igs214InvalidPoint(index=0)"},
     {"@1 igs214InvalidArrowheadDimension(height=0,length=0.2)", "@1 igs214InvalidPoint(index=0)"}},
    {"a witness line of four points in one place, of flag 2",
     {solid(106, 40, "106,2,4,0.,1.,1.,1.,1.,1.,1.,1.,1.;")},
     {"@1 igs106BaseInvalidIP(ip=2)", "@1 igsWitnessLineCoincidentPoints",
      "@1 igsWitnessLineInvalidSize(size=4)"},
     {"@1 igs106BaseInvalidIP(ip=2)", "@1 igsWitnessLineCoincidentPoints",
      "@1 igsWitnessLineInvalidSize(size=4)"}},
    {"a section line of three points and a centre line of one",
     {solid(106, 33, "106,1,3,0.,0.,0.,1.,1.,2.,2.;"), solid(106, 20, "106,1,1,0.,0.,0.;")},
     {"@1 igsSectionInvalidSize(size=3)", "@3 igsCentreLineInvalidSize(size=1)"},
     {"@1 igsSectionInvalidSize(size=3)", "@3 igsCentreLineInvalidSize(size=1)"}},
    {"linear dimensions without a note and with a leader for one",
     {{216, 0, "216,0,5,7,0,0;"}, {216, 0, "216,5,5,7,0,0;"}, leader, leader},
     {"@1 igsDimensionNullGeneralNotePointer", "@3 igsDimensionInvalidGeneralNotePointer"},
     {"@1 igsDimensionNullGeneralNotePointer", "@3 igsDimensionInvalidGeneralNotePointer"}},
    {"an angular dimension of no leaders and no radius",
     {{202, 0, "202,3,0,0,0.,0.,0.,0,0;"}, note},
     {"@1 igs202InvalidNumberOfLeaders", "@1 igs202InvalidRadius(radius=0)"},
     {"@1 igs202InvalidNumberOfLeaders", "@1 igs202InvalidRadius(radius=0)"}},
    {"an angular dimension whose two leaders are one",
     {{202, 0, "202,3,0,0,0.,0.,1.,5,5;"}, note, leader},
     {"@1 igs202DuplicateLeaders"},
     {"@1 igs202DuplicateLeaders"}},
    {"an angular dimension loses a section line and a missing entity from its witness lines",
     {{202, 0, "202,3,7,99,0.,0.,1.,5,9;"},
      note,
      leader,
      solid(106, 31, "106,1,2,0.,0.,0.,1.,1.;"),
      leader},
     {"@1 igs202InvalidWitnessLine(index=0)", "@1 igs202NullWitnessLinePointer(index=1)"},
     {},
     {},
     "202,3,0,0,0.,0.,1.,5,9;"},
    {"an angular dimension drops a leader that stays bad and is left with one",
     {{202, 0, "202,3,0,0,0.,0.,1.,5,7;"}, note, leader, bad_leader},
     {"@1 igs202InvalidLeader(index=1)", "@7 igs214InvalidSize(size=0)"},
     {"@1 igs202InvalidNumberOfLeaders", "@7 igs214InvalidSize(size=0)"},
     {},
     "202,3,0,0,0.,0.,1.,5,0;"},
    {"a linear dimension keeps a leader that its own repair settled",
     {{216, 0, "216,3,5,7,0,0;"}, note, mended_leader, leader},
     {"@1 igs216InvalidLeader(index=0)", "@5 igsDEInvalidLineFont"},
     {}},
    {"a linear dimension drops a witness line that stays bad",
     {{216, 0, "216,3,5,7,9,0;"},
      note,
      leader,
      leader,
      solid(106, 40, "106,1,3,0.,0.,0.,0.,0.,0.,0.;")},
     {"@1 igs216InvalidWitnessLine(index=0)", "@9 igsWitnessLineCoincidentPoints"},
     {"@9 igsWitnessLineCoincidentPoints"},
     {},
     "216,3,5,7,0,0;"},
    {"a curve dimension without curves",
     {{204, 0, "204,3,0,0,5,7,0,0;"}, note, leader, leader},
     {"@1 igs204InvalidNumberOfCurves"},
     {"@1 igs204InvalidNumberOfCurves"}},
    {"a curve dimension of one leader that stays bad and a missing witness line",
     {{204, 0, "204,3,9,0,5,7,99,0;"}, note, leader, bad_leader, line},
     {"@1 igs204InvalidLeader(index=1)", "@1 igs204NullWitnessLinePointer(index=0)",
      "@7 igs214InvalidSize(size=0)"},
     {"@1 igs204InvalidNumberOfLeaders", "@7 igs214InvalidSize(size=0)"},
     {},
     "204,3,9,0,5,0,0,0;"},
    {"a diameter dimension keeps its second leader when the first stays bad",
     {{206, 0, "206,3,5,7,0.,0.;"}, note, bad_leader, leader},
     {"@1 igs206InvalidLeader(index=0)", "@5 igs214InvalidSize(size=0)"},
     {"@5 igs214InvalidSize(size=0)"},
     {},
     "206,3,7,0,0.,0.;"},
    {"a diameter dimension of no leader",
     {{206, 0, "206,3,0,0,0.,0.;"}, note},
     {"@1 igs206InvalidNumberOfLeaders"},
     {"@1 igs206InvalidNumberOfLeaders"}},
    {"a flag note of a negative number of leaders",
     {{208, 0, "208,0.,0.,0.,0.,3,-1;"}, note},
     {"@1 igs208InvalidNumberOfLeaders"},
     {"@1 igs208InvalidNumberOfLeaders"}},
    {"a flag note drops a leader that stays bad",
     {{208, 0, "208,0.,0.,0.,0.,3,1,5;"}, note, bad_leader},
     {"@1 igs208InvalidLeader(index=0)", "@5 igs214InvalidSize(size=0)"},
     {"@5 igs214InvalidSize(size=0)"},
     {},
     "208,0.,0.,0.,0.,3,0;"},
    {"a general label drops a null and a bad leader and keeps the good one",
     {{210, 0, "210,3,3,0,5,7;"}, note, bad_leader, leader},
     {"@1 igs210InvalidLeader(index=1)", "@1 igs210NullLeaderPointer(index=0)",
      "@5 igs214InvalidSize(size=0)"},
     {"@5 igs214InvalidSize(size=0)"},
     {},
     "210,3,1,7;"},
    {"a general label of no leader",
     {{210, 0, "210,3,0;"}, note},
     {"@1 igs210InvalidNumberOfLeaders"},
     {"@1 igs210InvalidNumberOfLeaders"}},
    {"an ordinate dimension of form 1 whose leader stays bad takes its supplemental leader",
     {{218, 1, "218,3,5,7;"}, note, bad_leader, leader},
     {"@1 igs218InvalidLeader", "@5 igs214InvalidSize(size=0)"},
     {"@5 igs214InvalidSize(size=0)"},
     changed_form,
     "218,3,7;"},
    {"an ordinate dimension of form 1 without its supplemental leader",
     {{218, 1, "218,3,5,0;"}, note, witness},
     {"@1 igs218NullSupplementalLeader"},
     {"@1 igs218NullSupplementalLeader"}},
    {"an ordinate dimension keeps a supplemental leader that its own repair settled",
     {{218, 1, "218,3,5,7;"}, note, witness, mended_leader},
     {"@1 igs218InvalidSupplementalLeader", "@7 igsDEInvalidLineFont"},
     {}},
    {"an ordinate dimension whose witness line stays bad has nothing left",
     {{218, 0, "218,3,5;"}, note, solid(106, 40, "106,1,4,0.,0.,0.,0.,1.,0.,2.,0.,3.;")},
     {"@1 igs218InvalidWitnessLine", "@5 igsWitnessLineInvalidSize(size=4)"},
     {"@1 igs218InsufficientData", "@5 igsWitnessLineInvalidSize(size=4)"},
     {},
     "218,3,0;"},
    {"a point dimension of no leader in a line",
     {{220, 0, "220,3,0,5;"}, note, line},
     {"@1 igs220InvalidTextEncloser", "@1 igs220NullLeaderPointer"},
     {"@1 igs220InvalidTextEncloser", "@1 igs220NullLeaderPointer"}},
    {"a point dimension whose leader stays bad",
     {{220, 0, "220,3,5,0;"}, note, bad_leader},
     {"@1 igs220InvalidLeader", "@5 igs214InvalidSize(size=0)"},
     {"@1 igs220NullLeaderPointer", "@5 igs214InvalidSize(size=0)"},
     {},
     "220,3,0,0;"},
    {"a radius dimension of form 1 whose second leader stays bad ends in form 0",
     {{222, 1, "222,3,5,0.,0.,7;"}, note, leader, bad_leader},
     {"@1 igs222InvalidSecondLeader", "@7 igs214InvalidSize(size=0)"},
     {"@7 igs214InvalidSize(size=0)"},
     changed_form,
     "222,3,5,0.,0.;"},
    {"a radius dimension whose one leader stays bad",
     {{222, 0, "222,3,5,0.,0.;"}, note, bad_leader},
     {"@1 igs222InvalidFirstLeader", "@5 igs214InvalidSize(size=0)"},
     {"@1 igs222NullFirstLeaderPointer", "@5 igs214InvalidSize(size=0)"},
     {},
     "222,3,0,0.,0.;"},
    {"a general symbol of form 1 without a note becomes form 0",
     {{228, 1, "228,0,1,3,0;"}, line},
     {"@1 igs228InvalidDEFormNumber(form=1)"},
     {}},
    {"a general symbol drops the geometry and the leader that stay bad",
     {{228, 0, "228,0,2,3,5,1,7;"}, line, {100, 0, "100,0.,3.,4.,3.,4.,3.,4.;"}, bad_leader},
     {"@1 igs228BadGeometryPointer(index=1)", "@1 igs228InvalidLeader(index=0)",
      "@5 igs100ZeroRadius", "@7 igs214InvalidSize(size=0)"},
     {"@5 igs100ZeroRadius", "@7 igs214InvalidSize(size=0)"},
     {},
     "228,0,1,3,0;"},
    {"a general symbol leaves out of its record a geometry pointer to an entity that is not there",
     {{228, 0, "228,0,2,3,99,0;"}, line},
     {"@1 igs228NullGeometryPointer(index=1)"},
     {"@1 igs228NullGeometryPointer(index=1)"},
     {},
     "228,0,1,3,0;"},
    {"a general symbol of a negative number of leaders and no geometry",
     {{228, 0, "228,0,0,-2;"}},
     {"@1 igs228InvalidNumberOfGeometryPointers", "@1 igs228InvalidNumberOfLeaders"},
     {"@1 igs228InvalidNumberOfGeometryPointers", "@1 igs228InvalidNumberOfLeaders"}},
    {"a sectioned area of no boundary, an unknown pattern, a negative spacing, a missing island",
     {{230, 0, "230,0,25,0.,0.,0.,-1.,0.,1,0;"}},
     {"@1 igs230InvalidLineSpacing", "@1 igs230InvalidPatternCode", "@1 igs230NullExteriorCurve",
      "@1 igs230NullInteriorCurve(index=0)"},
     {"@1 igs230InvalidLineSpacing", "@1 igs230InvalidPatternCode", "@1 igs230NullExteriorCurve",
      "@1 igs230NullInteriorCurve(index=0)"}},
    {"a sectioned area of a negative number of islands",
     {{230, 0, "230,3,1,0.,0.,0.,1.,0.,-1;"}, {100, 0, "100,0.,0.,0.,1.,0.,1.,0.;"}},
     {"@1 igs230InvalidNumberOfInteriorCurves"},
     {"@1 igs230InvalidNumberOfInteriorCurves"}},
};

TEST(Annotation, EveryDamageIsFoundAndWhatCanBeRepairedIs) {
  for (Damage const& damage : damages) expect_damage(damage);
}

// Built through their setters, the classes hold what they were given.
using AnnotationSetters = igs_entity_test::EntityTest;

TEST_F(AnnotationSetters, WordsAndTheirRepairs) {
  auto* note = new igs212;
  auto* point = new igs116;
  ASSERT_TRUE(note->set_num_strings(3));
  igsWord word(utString("AB"), 2.0, 3.0);
  EXPECT_EQ(word.box_length(), 3.0);
  EXPECT_EQ(word.box_height(), 2.0);
  word.set_slant_angle(giAngle());
  word.set_rotation_angle(giAngle());
  word.set_font_code(-5);
  EXPECT_TRUE(note->add_string(word, 0));
  word = igsWord(utString("CD"), 0.0, 1.0);
  word.set_font_code(-5);
  word.set_font_definition_entity(igsObjectPtr(point));
  EXPECT_TRUE(note->add_string(word, 1));
  EXPECT_TRUE(note->add_string(igsWord(utString("EF"), 1.0, 1.0), 2));
  EXPECT_FALSE(note->add_string(word, 3));
  EXPECT_FALSE(note->add_string(word, -1));
  EXPECT_EQ(checked(*note),
            (std::vector<std::string>{
                "igs212InvalidBoxHeight(index=1,height=0)", "igs212InvalidFontCode(index=0)",
                "igs212InvalidFontCode(index=1)", "igs212InvalidFontDefinition(index=1)",
                "igs212InvalidRotationAngle(index=0,angle=-1.79769e+308)",
                "igs212InvalidSlantAngle(index=0,angle=-1.79769e+308)",
                "igs212NullFontDefinitionEntity(index=0)"}));
  // The angles take their defaults, the code 1; a code of 0 with a font definition is valid.
  for (kvuTypeInfo const* type :
       {&igs212InvalidSlantAngle::type(), &igs212InvalidRotationAngle::type(),
        &igs212InvalidFontCode::type()})
    EXPECT_EQ(fix(note->de_number(), *type), 1);
  igsWord const& mended = note->get_word(0);
  EXPECT_EQ(mended.slant_angle().angle(giAngleRadiansTag),
            giAngle(giAngle90Tag).angle(giAngleRadiansTag));
  EXPECT_EQ(mended.rotation_angle().angle(giAngleRadiansTag), 0.0);
  EXPECT_EQ(mended.font_code(), 1);
  word.set_font_code(0);
  EXPECT_TRUE(word.valid_font_code());
  word.set_font_definition_entity(igsObjectPtr());
  EXPECT_FALSE(word.valid_font_code());
  EXPECT_TRUE(note->set_num_strings(-1));
  EXPECT_EQ(note->num_strings(), -1);
  EXPECT_EQ(note->get_word(0).num_characters(), 2);
}

// A section line keeps its first form; a supplemental leader makes form 1; a curve dimension
// counts the curves it holds.
TEST_F(AnnotationSetters, FormsCurvesAndPatterns) {
  auto* section = new igsSection;
  section->set_form_number(35);
  section->set_form_number(39);
  EXPECT_EQ(section->form(), 35);
  auto* ordinate = new igs218;
  ordinate->set_supplemental_leader(igsObjectPtr(new igs214));
  EXPECT_EQ(ordinate->form_number(), 1);
  auto* dimension = new igs204;
  igsObjectPtr first(new igs116), second(new igs116);
  dimension->set_second_curve(second);
  EXPECT_EQ(dimension->num_curves(), 1);
  dimension->set_first_curve(first);
  dimension->set_second_curve(second);
  EXPECT_EQ(dimension->num_curves(), 2);
}

} // namespace
