// The transformation, group, view, drawing and subfigure classes as their accessors give
// their parameters, for the corpus test.
#include "entities/entityFamily.h"
#include "entities/structure/igs123.h"
#include "entities/structure/igs124.h"
#include "entities/structure/igs308.h"
#include "entities/structure/igs402_1.h"
#include "entities/structure/igs402_16.h"
#include "entities/structure/igs402_3.h"
#include "entities/structure/igs402_7.h"
#include "entities/structure/igs404.h"
#include "entities/structure/igs408.h"
#include "entities/structure/igs410_0.h"

using namespace igs_family_test;

namespace {

void entities(igsCompound const& e, Values& v) {
  for (int i = 0; i < e.number_of_entities(); ++i) v << e.get_entity(i);
}

// The count, then the entity pointers.
template <class Group> CorpusRow group() {
  return row<Group>([](Group const& e, Values& v) {
    v << e.number_of_entities();
    entities(e, v);
  });
}

CorpusRows const structure = {
    row<igs123>([](igs123 const& e, Values& v) { v << e.direction(); }),
    row<igs124>([](igs124 const& e, Values& v) {
      for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 4; ++c) v << e.value(r, c);
    }),
    group<igsGroup>(),
    group<igs402_1>(),
    group<igs402_7>(),
    row<igs402_16>([](igs402_16 const& e, Values& v) {
      v << e.number_of_transforms() << e.number_of_entities() << e.get_transform();
      entities(e, v);
    }),
    row<igs402_3>([](igs402_3 const& e, Values& v) {
      v << e.number_of_views() << e.number_of_entities();
      for (int i = 0; i < e.number_of_views(); ++i) v << e.get_view(i);
      entities(e, v);
    }),
    row<igs404>([](igs404 const& e, Values& v) {
      v << e.number_of_views();
      for (int i = 0; i < e.number_of_views(); ++i) {
        igsDrawingView const& view = e.get_view(i);
        v << view.view() << view.origin().x() << view.origin().y();
        if (e.directory_entry().form_number() == 1)
          v << view.rotation_angle().angle(giAngleRadiansTag);
      }
      v << e.number_of_entities();
      entities(e, v);
    }),
    row<igs410_0>([](igs410_0 const& e, Values& v) {
      v << e.view_number() << e.scale_factor();
      for (int p = 0; p < igs410_0::number_of_planes; ++p) v << e.plane(igs410_0::Plane(p));
    }),
    row<igs308>([](igs308 const& e, Values& v) {
      v << e.depth();
      v.text(std::string(e.get_name().view()));
      v << e.number_of_entities();
      entities(e, v);
    }),
    row<igs408>([](igs408 const& e, Values& v) {
      v << e.get_subfigure() << e.translation_origin() << e.scale();
    }),
};

} // namespace
