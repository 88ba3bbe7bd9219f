// The note, leader, annotation curve, dimension, general symbol and sectioned area classes as
// their accessors give their parameters, for the corpus test.
#include "entities/annotation/igs202.h"
#include "entities/annotation/igs204.h"
#include "entities/annotation/igs206.h"
#include "entities/annotation/igs208.h"
#include "entities/annotation/igs210.h"
#include "entities/annotation/igs212.h"
#include "entities/annotation/igs214.h"
#include "entities/annotation/igs216.h"
#include "entities/annotation/igs218.h"
#include "entities/annotation/igs220.h"
#include "entities/annotation/igs222.h"
#include "entities/annotation/igs228.h"
#include "entities/annotation/igs230.h"
#include "entities/annotation/igsCentreLine.h"
#include "entities/annotation/igsSection.h"
#include "entities/annotation/igsWitnessLine.h"
#include "entities/entityFamily.h"

using namespace igs_family_test;

namespace {

double radians(giAngle const& angle) {
  return angle.angle(giAngleRadiansTag);
}

// A font definition stands in the file as minus its DE number.
int font_field(igsWord const& w) {
  return w.font_code() == 0 && w.font_definition_entity()
             ? -w.font_definition_entity()->de_number()
             : w.font_code();
}

template <class Line> CorpusRow annotation_curve() {
  return row<Line>([](Line const& e, Values& v) {
    v << e.ip_flag() << e.size() << e.z_depth();
    for (int i = 0; i < e.size(); ++i) v << e.get_point(i);
  });
}

void leaders(igsDimension const& e, Values& v, int count) {
  for (int i = 0; i < count; ++i) v << e.leader(i);
}
void witnesses(igsDimension const& e, Values& v, int count) {
  for (int i = 0; i < count; ++i) v << e.witness(i);
}
// The note, the number of leaders and the leaders: a general label and the tail of a flag note.
void label(igsDimension const& e, Values& v) {
  v << e.general_note() << e.number_of_leaders();
  leaders(e, v, e.number_of_leaders());
}

CorpusRows const annotation = {
    row<igs212>([](igs212 const& e, Values& v) {
      v << e.num_strings();
      for (int i = 0; i < e.num_strings(); ++i) {
        igsWord const& w = e.get_word(i);
        v << w.num_characters() << w.box_length() << w.box_height() << font_field(w)
          << radians(w.slant_angle()) << radians(w.rotation_angle()) << w.mirror_status()
          << w.alignment_status() << w.start_point();
        v.text(std::string(w.string().view()));
      }
    }),
    row<igs214>([](igs214 const& e, Values& v) {
      v << e.number_of_segments() << e.height() << e.length() << e.z_depth() << e.arrow_coords();
      for (int i = 0; i < e.number_of_segments(); ++i) v << e.segment_endpoint(i);
    }),
    annotation_curve<igsWitnessLine>(),
    annotation_curve<igsSection>(),
    annotation_curve<igsCentreLine>(),
    row<igs202>([](igs202 const& e, Values& v) {
      v << e.general_note();
      witnesses(e, v, 2);
      v << e.point() << e.radius();
      leaders(e, v, 2);
    }),
    row<igs204>([](igs204 const& e, Values& v) {
      v << e.general_note() << e.curve(1) << e.curve(2);
      leaders(e, v, 2);
      witnesses(e, v, 2);
    }),
    row<igs206>([](igs206 const& e, Values& v) {
      v << e.general_note();
      leaders(e, v, 2);
      v << e.point();
    }),
    row<igs208>([](igs208 const& e, Values& v) {
      v << e.corner() << radians(e.rotation_angle());
      label(e, v);
    }),
    row<igs210>(label),
    row<igs216>([](igs216 const& e, Values& v) {
      v << e.general_note();
      leaders(e, v, 2);
      witnesses(e, v, 2);
    }),
    row<igs218>([](igs218 const& e, Values& v) {
      v << e.general_note() << (e.number_of_witnesses() ? e.witness(0) : e.leader(0));
      if (e.form_number() == 1) v << e.supplemental_leader();
    }),
    row<igs220>([](igs220 const& e, Values& v) {
      v << e.general_note() << e.leader(0) << e.text_encloser();
    }),
    row<igs222>([](igs222 const& e, Values& v) {
      v << e.general_note() << e.leader(0) << e.point();
      if (e.form_number() == 1) v << e.leader(1);
    }),
    row<igs228>([](igs228 const& e, Values& v) {
      v << e.general_note() << e.num_objects();
      for (int i = 0; i < e.num_objects(); ++i) v << e.get_geometry(i);
      v << e.number_of_leaders();
      leaders(e, v, e.number_of_leaders());
    }),
    row<igs230>([](igs230 const& e, Values& v) {
      v << e.exterior_curve() << e.pattern_code() << e.point() << e.z_depth()
        << e.pattern_spacing() << radians(e.angle()) << e.number_of_interior_curves();
      for (int i = 0; i < e.number_of_interior_curves(); ++i) v << e.island_curve(i);
    }),
};

} // namespace
