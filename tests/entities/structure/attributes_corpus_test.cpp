// The line font, text font, text template, colour, name and external reference classes as
// their accessors give their parameters, for the corpus test.
#include "entities/entityFamily.h"
#include "entities/structure/igs304_1.h"
#include "entities/structure/igs304_2.h"
#include "entities/structure/igs310.h"
#include "entities/structure/igs312.h"
#include "entities/structure/igs314.h"
#include "entities/structure/igs406_15.h"
#include "entities/structure/igs416.h"

using namespace igs_family_test;

namespace {

std::string text(utString const& s) {
  return std::string(s.view());
}

CorpusRows const attributes = {
    row<igs304_1>([](igs304_1 const& e, Values& v) {
      v << e.orientation() << e.subfigure() << e.spacing() << e.scale();
    }),
    row<igs304_2>([](igs304_2 const& e, Values& v) {
      v << e.number_of_segments();
      for (int i = 0; i < e.number_of_lengths(); ++i) v << e.length(i);
      v.text(text(e.pattern_string()));
    }),
    row<igs310>([](igs310 const& e, Values& v) {
      v << e.font_code();
      v.text(text(e.font_name()));
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
      if (e.name() != utString("none")) v.text(text(e.name()));
    }),
    row<igs406_15>([](igs406_15 const& e, Values& v) { v << 1; v.text(text(e.entity_name())); }),
    row<igs416>([](igs416 const& e, Values& v) { v.text(text(e.get_external_file_name())); }),
};

} // namespace
