// The line font, text font, text template, colour, name and external reference classes as
// their accessors give their parameters, for the corpus test; and the colour, line font and
// level and name of every entity of every real file through read, clean(0) and write.
#include "core/roundTripCheck.h"
#include "entities/entityFamily.h"
#include "entities/structure/igs304_1.h"
#include "entities/structure/igs304_2.h"
#include "entities/structure/igs310.h"
#include "entities/structure/igs312.h"
#include "entities/structure/igs314.h"
#include "entities/structure/igs406_15.h"
#include "entities/structure/igs416.h"

#include <cstdio>

using namespace igs_family_test;

namespace {

std::string text_of(utString const& s) {
  return std::string(s.view());
}

CorpusRows const attributes = {
    row<igs304_1>([](igs304_1 const& e, Values& v) {
      v << e.orientation() << e.subfigure() << e.spacing() << e.scale();
    }),
    row<igs304_2>([](igs304_2 const& e, Values& v) {
      v << e.number_of_segments();
      for (int i = 0; i < e.number_of_lengths(); ++i) v << e.length(i);
      v.text(text_of(e.pattern_string()));
    }),
    row<igs310>([](igs310 const& e, Values& v) {
      v << e.font_code();
      v.text(text_of(e.font_name()));
      v << e.superseded_font() << e.scale() << e.num_characters();
      for (int i = 0; i < e.number_of_shapes(); ++i) {
        igsCharacter const& c = e.read_character(i);
        v << c.ascii_code() << c.next_start_point() << c.number_of_pen_motions();
        for (int k = 0; k < c.number_of_flags(); ++k)
          v << c.read_pen_status(k) << c.read_end_point(k + 1);
      }
    }),
    row<igs312>([](igs312 const& e, Values& v) {
      igsWord const& w = e.word();
      v << w.box_length() << w.box_height();
      if (w.font_definition_entity())
        v << -w.font_definition_entity()->de_number();
      else
        v << w.font_code();
      v << w.slant_angle().angle(giAngleRadiansTag) << w.rotation_angle().angle(giAngleRadiansTag)
        << w.mirror_status() << w.alignment_status() << w.start_point();
    }),
    // A blank name reads as "none", which no field of the file holds.
    row<igs314>([](igs314 const& e, Values& v) {
      v << e.red() << e.green() << e.blue();
      if (e.name() != utString("none")) v.text(text_of(e.name()));
    }),
    row<igs406_15>([](igs406_15 const& e, Values& v) {
      v << 1;
      v.text(text_of(e.entity_name()));
    }),
    row<igs416>([](igs416 const& e, Values& v) { v.text(text_of(e.get_external_file_name())); }),
};

// An attribute of a Directory Entry as text that no DE number enters: a number, a definition
// (a colour with its percentages and name), or "gone" for a definition that is not there.
std::string definition_text(igsObject const& definition) {
  if (!definition.isa(igs314::type())) return definition.objtype().name();
  auto const& c = static_cast<igs314 const&>(definition);
  char text[96];
  std::snprintf(text, sizeof text, "rgb(%g,%g,%g)", c.red(), c.green(), c.blue());
  return text + text_of(c.name());
}
std::string attribute_text(igsDefinitionValue const& v) {
  if (v.definition()) return definition_text(*v.definition());
  return v.value() < 0 ? "gone" : std::to_string(v.value());
}
// A label without the blanks around it, then its subscript.
std::string name_text(std::string_view label, int subscript) {
  return std::string(igs_test::trimmed(label)) + "(" + std::to_string(subscript) + ")";
}
std::string attributes_of(igsObject const& e) {
  igsDirectoryEntry const& de = e.directory_entry();
  return "font " + attribute_text(de.line_font()) + ", level " + attribute_text(de.level()) +
         ", colour " + attribute_text(de.colour()) + ", name " +
         name_text(de.entity_label().view(), de.entity_subscript());
}

// The same from the D lines of the file (line font, level, colour, label and subscript); a
// negative field names the definition that the file holds at that DE number, if any.
std::string attributes_of(std::vector<std::string> const& d_lines, int de) {
  auto column = [&](int line, int index) {
    return d_lines[static_cast<size_t>(de - 1 + line)].substr(8 * index, 8);
  };
  auto field = [&](int line, int index) { return std::atoi(column(line, index).c_str()); };
  auto text = [](int value) {
    igsObjectPtr target(value < 0 ? -value : 0);
    if (value >= 0 || !target) return value >= 0 ? std::to_string(value) : "gone";
    return definition_text(*target);
  };
  return "font " + text(field(0, 3)) + ", level " + text(field(0, 4)) + ", colour " +
         text(field(1, 2)) + ", name " + name_text(column(1, 7), field(1, 8));
}

// What a check finds valid no repair may change: its text, else empty.
std::string valid_attributes_of(igsObject const& e) {
  igsDirectoryEntry const& de = e.directory_entry();
  int own = de.colour().value();
  if (e.isa(igs314::type()) && (own < igsBlack || own > igsWhite)) return {};
  if (!de.line_font().valid() || !de.level().valid() || !de.colour().valid()) return {};
  return attributes_of(e);
}

TEST(AttributesCorpus, EveryColourLineFontLevelAndNameSurvivesReadRepairAndWrite) {
  IGS_REQUIRE_CORPUS(files);
  int entities = 0;
  for (auto const& path : files) {
    SCOPED_TRACE(path.filename().string());
    std::string const bytes = igs_test::read_file(path);
    std::vector<std::string> d_lines;
    std::istringstream lines(bytes);
    for (std::string l; std::getline(lines, l);)
      if (l.size() >= 73 && l[72] == 'D') d_lines.push_back(l);
    int result = 0;
    auto file = igs_test::read_text(bytes, result);
    std::vector<std::string> valid;
    for (igsFileIT it(file.get()); ++it;) {
      int de = it()->de_number();
      if (de < static_cast<int>(d_lines.size())) {
        EXPECT_EQ(attributes_of(*it()), attributes_of(d_lines, de)) << "DE " << de;
      }
      valid.push_back(valid_attributes_of(*it()));
    }
    file->clean(0);
    std::vector<std::string> repaired;
    size_t i = 0;
    for (igsFileIT it(file.get()); ++it; ++i) {
      repaired.push_back(attributes_of(*it()));
      if (i < valid.size() && !valid[i].empty()) {
        EXPECT_EQ(repaired.back(), valid[i]) << "DE " << it()->de_number();
      }
    }
    auto again = igs_test::read_text(igs_test::written_text(*file), result);
    std::vector<std::string> written;
    for (igsFileIT it(again.get()); ++it;) written.push_back(attributes_of(*it()));
    EXPECT_EQ(written, repaired);
    entities += static_cast<int>(written.size());
  }
  RecordProperty("entities", entities);
}

} // namespace
