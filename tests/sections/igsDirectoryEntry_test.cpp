// The Directory Entry: its two D lines written and read back, its setters, copy and print.
#include "sectionsTestSupport.h"

#include <array>
#include <cstdio>

using namespace igs_sections_test;

namespace {

using DirectoryEntryTest = SectionTest;

std::string right(std::string const& text, size_t width) {
  return text.size() >= width ? text : std::string(width - text.size(), ' ') + text;
}

// The data columns of a D line: fields of 8 columns, right-justified, then the rest as it
// stands.
std::string d_line(std::vector<std::string> const& eight_wide, std::string const& rest) {
  std::string line;
  for (std::string const& field : eight_wide) line += right(field, 8);
  return line + rest;
}

// Reads one Directory Entry after the other until the section ends.
std::vector<igsDirectoryFields> read_des(Lines const& lines) {
  InputOver input(lines);
  std::vector<igsDirectoryFields> read;
  while (igs_stream_section(input.stream) == igsSectionDirectory && !input.stream.fatal_error() &&
         read.size() < 1000) {
    igsDirectoryFields f;
    f.read(input.stream);
    read.push_back(f);
  }
  return read;
}

TEST_F(DirectoryEntryTest, ReadingTakesBlankFieldsAsZeroAndKeepsEverythingElse) {
  new deNode;
  new deNode;
  auto* third = new deNode;
  Lines lines = {
      record('D', 1, d_line({"110", "", "", "", "-5", "", "-3", ""}, "        ")),
      record('D', 2, d_line({"110", "", "", "", "1"}, "RESERVED   RSVD  A LABEL        ")),
      record('D', 3, d_line({"124", "7", "12", "9", "1000000", "5", "9", "6"}, "01020304")),
      record('D', 4,
             d_line({"126", "-2", "12", "3", "7"}, std::string(16, ' ') + "       X      -1")),
      record('P', 1, "110,0.,0.,0.,1.,1.,1.;", 1)};
  std::vector<igsDirectoryFields> read = read_des(lines);
  ASSERT_EQ(read.size(), 2u);
  // The line, the 12 numbers of the first D line, the 5 of the second, the subscript.
  auto fields = [](std::array<int, 19> n, char const* reserved, char const* label) {
    igsDirectoryFields f;
    int* const numbers[] = {&f.line,
                            &f.entity_type,
                            &f.parameter_data,
                            &f.structure,
                            &f.line_font,
                            &f.level,
                            &f.view,
                            &f.matrix,
                            &f.label_display,
                            &f.blank_status,
                            &f.subordinate_status,
                            &f.entity_use,
                            &f.hierarchy,
                            &f.second_entity_type,
                            &f.line_weight_number,
                            &f.colour,
                            &f.parameter_line_count,
                            &f.form_number,
                            &f.entity_subscript};
    for (size_t i = 0; i < n.size(); ++i) *numbers[i] = n[i];
    f.reserved = reserved;
    f.entity_label = label;
    return f;
  };
  igsDirectoryFields const blank =
      fields({1, 110, 0, 0, 0, -5, 0, -3, 0, 0, 0, 0, 0, 110, 0, 0, 0, 1, 0}, "RESERVED   RSVD ",
             " A LABEL");
  // The file reader compares the two type numbers.
  igsDirectoryFields const second =
      fields({3, 124, 7, 12, 9, 1000000, 5, 9, 6, 1, 2, 3, 4, 126, -2, 12, 3, 7, -1},
             "                ", "       X");
  EXPECT_EQ(read[0], blank);
  EXPECT_EQ(read[1], second);

  // Stored in a Directory Entry: minus a DE number is a definition, a view or matrix that is
  // negative or even binds nothing, and bad values stay for the check to find.
  auto* entity = new deNode;
  igsDirectoryEntry& de = entity->directory_entry();
  de.set_fields(blank);
  EXPECT_EQ(de.level().level_list()(), third);
  EXPECT_FALSE(de.matrix());
  EXPECT_EQ(de.entity_type(), deNode::type_number);
  de.set_fields(second);
  EXPECT_EQ(de.view()(), third);
  EXPECT_FALSE(de.label_display());
  EXPECT_EQ(de.status_flags(), igsStatusFlags(1, 2, 3, 4));
  EXPECT_EQ(de.line_weight_number(), -2);
  // The matrix reference reaches the entity that takes DE 9 later.
  EXPECT_FALSE(de.matrix());
  auto* ninth = new deNode;
  ASSERT_EQ(ninth->de_number(), 9);
  EXPECT_EQ(de.matrix()(), ninth);
}

TEST_F(DirectoryEntryTest, SettersRefuseWhatTheChecksWouldRefuse) {
  auto* entity = new deNode;
  auto* matrix = new igs124;
  auto* font = new fake::igs304_2;
  igsDirectoryEntry& de = entity->directory_entry();
  // Each pair: one value refused, the other taken.
  auto pair = [](int refused, int taken) { return refused == 0 && taken == 1; };
  EXPECT_TRUE(pair(de.set_colour(igsColour(9)), de.set_colour(igsColour(igsGreen))));
  EXPECT_TRUE(pair(de.set_level(igsLevel(-3)), de.set_level(igsLevel(77)))); // a list
  // DE 3 is a matrix, DE 5 a line font definition.
  EXPECT_TRUE(pair(de.set_line_font(igsLineFont(-3)), de.set_line_font(igsLineFont(-5))));
  EXPECT_TRUE(pair(de.set_status_flags(igsStatusFlags(0, 0, 7, 0)),
                   de.set_status_flags(igsStatusFlags(1, 2, 6, 1))));
  EXPECT_TRUE(pair(de.set_entity_label(utString()), de.set_entity_label("")));
  EXPECT_TRUE(pair(de.set_entity_subscript(-1), de.set_entity_subscript(0)));
  EXPECT_TRUE(pair(de.set_line_weight_number(-1), de.set_line_weight_number(0)));
  EXPECT_EQ(de.colour().value() + de.level().level(), igsGreen + 77);
  EXPECT_EQ(de.line_font().line_font_definition()(), font);
  EXPECT_EQ(de.status_flags(), igsStatusFlags(1, 2, 6, 1));

  // Only exactly a matrix, or none.
  EXPECT_EQ(de.set_matrix(igsObjectPtr(font)), 0);
  EXPECT_EQ(de.set_matrix(igsObjectPtr(new fake::matrixKind)), 0);
  EXPECT_FALSE(de.matrix());
  EXPECT_EQ(de.set_matrix(matrix), 1);
  EXPECT_EQ(de.matrix()(), matrix);
  EXPECT_EQ(de.set_matrix(igsObjectPtr()), 1);
  EXPECT_FALSE(de.matrix());

  // Forms are those the type has.
  EXPECT_EQ(de.set_form_number(0), 0); // type 9002 is none of the standard's
  entity->set_type(124, 0);
  EXPECT_EQ(de.set_form_number(12), 1);
  EXPECT_EQ(de.set_form_number(2), 0);
  EXPECT_EQ(de.form_number(), 12);

  // become copies all but the type and the manager.
  auto* copy = new deNode;
  de.set_structure(-11);
  de.set_view(matrix);
  de.set_label_display(font);
  de.set_entity_label("COPIED");
  de.set_entity_subscript(3);
  de.set_line_weight_number(2);
  igsDirectoryEntry& other = copy->directory_entry();
  other.become(de);
  igsDirectoryFields mine = de.fields();
  igsDirectoryFields theirs = other.fields();
  EXPECT_EQ(theirs.entity_type, deNode::type_number);
  theirs.entity_type = theirs.second_entity_type = mine.entity_type;
  EXPECT_EQ(theirs, mine);
  EXPECT_NE(other.manager(), de.manager());
}

TEST_F(DirectoryEntryTest, DroppingChildrenDeletesWhatOnlyTheEntryHeld) {
  auto* entity = new deNode;
  igsDirectoryEntry& de = entity->directory_entry();
  new fake::igs304_1; // DE 3, held by the line font alone
  EXPECT_EQ(de.set_line_font(igsLineFont(-3)), 1);
  auto* colour = new fake::igs314;
  EXPECT_EQ(de.set_colour(igsColour(-5)), 1);
  igsObjectPtr keep(colour);
  de.set_level(igsLevel(1));
  de.set_fields([&] {
    igsDirectoryFields f = de.fields();
    f.view = 7;
    f.matrix = 9;
    return f;
  }());
  new deNode; // DE 7, the view
  new igs124; // DE 9, the matrix
  EXPECT_EQ(file->num_entities(), 5);
  entity->drop_children();
  // The line font definition, the view and the matrix went; the colour is held elsewhere.
  EXPECT_EQ(file->num_entities(), 2);
  EXPECT_EQ(keep(), colour);
  EXPECT_FALSE(de.view());
  EXPECT_FALSE(de.matrix());
  EXPECT_TRUE(de.line_font().predefined_pattern());
}

} // namespace
