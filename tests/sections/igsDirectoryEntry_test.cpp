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

// The two lines of the fields, formatted with the C library from the layout of the standard:
// 8-column numbers, each status digit with a leading zero, the label right-justified over the
// reserved columns.
Lines d_lines(igsDirectoryFields const& f, int first_line) {
  auto status = [](int v) {
    char text[16];
    std::snprintf(text, sizeof text, v >= 0 && v <= 9 ? "%02d" : "%2d", v);
    return std::string(text);
  };
  char one[128];
  char two[128];
  std::snprintf(one, sizeof one, "%8d%8d%8d%8d%8d%8d%8d%8d%s%s%s%sD%7d", f.entity_type,
                f.parameter_data, f.structure, f.line_font, f.level, f.view, f.matrix,
                f.label_display, status(f.blank_status).c_str(),
                status(f.subordinate_status).c_str(), status(f.entity_use).c_str(),
                status(f.hierarchy).c_str(), first_line);
  std::snprintf(two, sizeof two, "%8d%8d%8d%8d%8d%24s%8dD%7d", f.second_entity_type,
                f.line_weight_number, f.colour, f.parameter_line_count, f.form_number,
                f.entity_label.c_str(), f.entity_subscript, first_line + 1);
  return {one, two};
}

// The data columns of a D line: fields of 8 columns, right-justified, then the rest as it
// stands.
std::string d_line(std::vector<std::string> const& eight_wide, std::string const& rest) {
  std::string line;
  for (std::string const& field : eight_wide) line += right(field, 8);
  return line + rest;
}

// What the writer sends for each entity, in order, as D lines.
Lines written_des(std::vector<deNode*> const& entities) {
  return igs_output_test::written([&](igsOutStream& out) {
    out.set_section(igsSectionDirectory);
    for (deNode* entity : entities) entity->directory_entry().write(out);
    EXPECT_FALSE(out.error());
  });
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

TEST_F(DirectoryEntryTest, FieldsWrittenAndReadBackAreEqual) {
  // Definitions for the pointers to reach: a line font at DE 1, a colour at 3, a level list
  // at 5, a view at 7, a matrix at 9 and a label display at 11.
  new fake::igs304_1;
  new fake::igs314;
  new deNode;
  new fake::igs410_0;
  new igs124;
  new deNode;
  int const line_fonts[] = {-1, 0, 1, 2, 3, 4, 5, 6, -99, -9999999};
  int const levels[] = {-5, 0, 7, 99999999, 12345};
  int const views[] = {0, 7, -4, 8}; // negative and even numbers bind nothing
  int const colours[] = {-3, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 12};
  int const odd_digits[] = {10, 12, 99, -1, -9};
  int const weights[] = {0, 1, 32768, 99999999};
  char const* const labels[] = {"", "ABC", "12345678", " X Y ", "LABEL", "       1"};
  int const subscripts[] = {0, 1, 99999999, 42};

  std::vector<deNode*> entities;
  std::vector<igsDirectoryFields> expected;
  for (int k = 0; k < 40; ++k) {
    igsDirectoryFields f;
    f.entity_type = f.second_entity_type = deNode::type_number;
    f.parameter_data = 3 * k + 1;
    f.structure = k % 3 == 1 ? -k : 0;
    f.line_font = line_fonts[k % 10];
    f.level = levels[k % 5];
    f.view = views[k % 4];
    f.matrix = k % 2 ? 9 : 0;
    f.label_display = k % 3 ? 11 : 0;
    // Every digit from 0 to 9 in every status field, then values of two columns.
    auto digit = [&](int shift) { return k < 10 ? (k + shift) % 10 : odd_digits[(k + shift) % 5]; };
    f.blank_status = digit(0);
    f.subordinate_status = digit(3);
    f.entity_use = digit(5);
    f.hierarchy = digit(7);
    f.line_weight_number = weights[k % 4];
    f.colour = colours[k % 12];
    f.parameter_line_count = k;
    f.form_number = k % 3;
    f.entity_label = labels[k % 6];
    f.entity_subscript = subscripts[k % 4];

    auto* entity = new deNode;
    entity->directory_entry().set_fields(f);
    entities.push_back(entity);
    // What comes back: the view as the DE number of its entity, the label as its 8 columns.
    f.line = 2 * k + 1;
    if (f.view < 0 || f.view % 2 == 0) f.view = 0;
    f.reserved = std::string(16, ' ').c_str();
    f.entity_label = right(f.entity_label.c_str(), 8).c_str();
    expected.push_back(f);
  }

  Lines lines = written_des(entities);
  ASSERT_EQ(lines.size(), 2 * expected.size());
  for (size_t k = 0; k < expected.size(); ++k) {
    SCOPED_TRACE(k);
    Lines pair(lines.begin() + 2 * static_cast<long>(k),
               lines.begin() + 2 * static_cast<long>(k) + 2);
    EXPECT_EQ(pair, d_lines(expected[k], 2 * static_cast<int>(k) + 1));
  }

  std::vector<igsDirectoryFields> read = read_des(lines);
  ASSERT_EQ(read.size(), expected.size());
  for (size_t k = 0; k < expected.size(); ++k) {
    SCOPED_TRACE(k);
    EXPECT_EQ(read[k], expected[k]);
  }

  // Stored again in new entities, the fields write the same lines.
  std::vector<deNode*> copies;
  for (igsDirectoryFields const& f : read) {
    copies.push_back(new deNode);
    copies.back()->directory_entry().set_fields(f);
  }
  EXPECT_EQ(written_des(copies), lines);
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

// Within the entity's print the Directory Entry stands one level in, before the data, and
// the matrix one level deeper than the entry's lines.
TEST_F(DirectoryEntryTest, PrintNestsTheMatrixInTheEntry) {
  auto* entity = new deNode;
  entity->set_type(124, 1);
  EXPECT_EQ(entity->directory_entry().set_matrix(new igs124), 1);
  std::string text = printed(*entity);
  EXPECT_EQ(text.find("@1(124) = {\n  DirectoryEntry = {\n    EntityTypeNumber = 124(Transformat"),
            0u)
      << text;
  EXPECT_NE(text.find("    TransformationMatrix = {\n      @3(124) = {\n        DirectoryEntry"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("  }\n  Steps = 223\n}\n"), std::string::npos) << text;
}

} // namespace
