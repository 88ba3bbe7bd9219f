// Every registration of the entity table made through the API, as a host builds a file: one
// entity of each class at the first form of its range, with the content its writer needs and
// the entities it refers to, written into one file that must read back to the same types and
// forms with no structure error. The file is the fuzz seed fuzz/seeds/registrations.igs.
#include "core/objectTestSupport.h"
#include "core/writtenFileCheck.h"
#include "entities/entityFamily.h"

#include "core/igsCurrentFileScope.h"

#include "core/igsFactory.h"
#include "entities/annotation/igs106Base.h"
#include "entities/annotation/igs202.h"
#include "entities/annotation/igs210.h"
#include "entities/annotation/igs212.h"
#include "entities/annotation/igs214.h"
#include "entities/annotation/igsCentreLine.h"
#include "entities/annotation/igsSection.h"
#include "entities/annotation/igsWitnessLine.h"
#include "entities/curves/igs100.h"
#include "entities/curves/igs102.h"
#include "entities/curves/igs110.h"
#include "entities/curves/igs112.h"
#include "entities/curves/igs116.h"
#include "entities/curves/igs126.h"
#include "entities/curves/igsPointset.h"
#include "entities/curves/igsPolyline.h"
#include "entities/curves/igsSimpleClosedPlanarCurve.h"
#include "entities/solids/igs186.h"
#include "entities/solids/igs502.h"
#include "entities/solids/igs504.h"
#include "entities/solids/igs508.h"
#include "entities/solids/igs510.h"
#include "entities/solids/igs514.h"
#include "entities/structure/igs304_1.h"
#include "entities/structure/igs304_2.h"
#include "entities/structure/igs308.h"
#include "entities/structure/igs310.h"
#include "entities/structure/igs314.h"
#include "entities/structure/igs406_15.h"
#include "entities/structure/igsCompound.h"
#include "entities/surfaces/igs114.h"
#include "entities/surfaces/igs128.h"
#include "entities/surfaces/igs141.h"
#include "entities/surfaces/igs142.h"
#include "entities/surfaces/igs143.h"
#include "entities/surfaces/igs144.h"

#include <functional>
#include <map>

namespace {

struct Registration {
  int type, form;
  std::string name;
};

std::vector<Registration> const& registrations() {
  static std::vector<Registration> const rows = [] {
    std::vector<Registration> all = {
#define IGS_ENTITY(type, min_form, max_form, Class) {type, min_form, #Class},
#include "entities/igsEntityTable.def"
    };
    std::erase_if(all, [](Registration const& r) { return r.type <= 0; });
    return all;
  }();
  return rows;
}

// The entity made for each class, by class name.
using Made = std::map<std::string, igsObject*>;
using Fill = std::function<void(igsObject&, Made const&)>;
template <class T> std::pair<std::string const, Fill> fill(std::function<void(T&, Made const&)> f) {
  return {T::type().name(), [f](igsObject& e, Made const& m) { f(static_cast<T&>(e), m); }};
}

// Points on the line y = x for a copious data entity of the annotation kind.
void points(igs106Base& e, int count) {
  e.set_ip_flag(1), e.set_z_depth(0), e.set_size(count);
  for (int i = 0; i < count; ++i) e.set_point({1. * i, 1. * i}, i);
}
// The corners of a triangle in the unit square, for a face of a solid.
giPoint3 corner(int i) {
  return {i % 3 == 1 ? 1. : 0, i % 3 == 2 ? 1. : 0, 0};
}
template <class Record> Record oriented(igsObject* target) {
  Record record;
  record.set_target(target), record.set_orientation(1);
  return record;
}

// The content of the classes whose writer needs some, by class name; the others are written
// as their constructors leave them.
std::map<std::string, Fill> const fills = {
    fill<igs100>([](igs100& e, Made const&) {
      e.set_centre({0, 0}), e.set_start_point({1, 0}), e.set_end_point({0, 1});
    }),
    fill<igs110>([](igs110& e, Made const&) {
      e.set_start_point({0, 0, 0}), e.set_end_point({1, 0, 0});
    }),
    fill<igs116>([](igs116& e, Made const&) {
      e.set_point({0, 0, 0});
    }),
    fill<igsPointset>([](igsPointset& e, Made const&) {
      e.set_dimensionality(igsPointsetXYCommonZ), e.set_point_planar(0, {1, 2});
    }),
    fill<igsPolyline>([](igsPolyline& e, Made const&) {
      e.set_dimensionality(igsPolylineXYCommonZ), e.set_point_planar(0, {0, 0}),
          e.set_point_planar(1, {1, 1});
    }),
    fill<igs112>([](igs112& e, Made const&) {
      double const t[] = {0, 1}, x[] = {0, 1, 0, 0}, zero[] = {0, 0, 0, 0};
      igsCubicCoefficients a, b;
      igsCubicDerivatives d;
      a.set_coefficients(x), b.set_coefficients(zero), d.set_derivatives(zero);
      e.set_spline_type(igsSplineCubic), e.set_continuity(2);
      e.set_dimensionality(igsSplineNonPlanar), e.set_number_of_segments(1);
      e.set_all_breakpoints(2, t), e.set_xyz_coefficients(0, a, b, b);
      e.set_xyz_derivatives(d, d, d);
    }),
    fill<igs114>([](igs114& e, Made const&) {
      double const t[] = {0, 1}, zero[16] = {};
      igsCubicPatch patch;
      patch.set_coefficients(zero, zero, zero), e.set_number_of_patches(1, 1);
      e.set_all_u_breakpoints(2, t), e.set_all_v_breakpoints(2, t);
      for (int i = 0; i < 4; ++i) e.set_patch(i % 2, i / 2, patch);
    }),
    fill<igs126>([](igs126& e, Made const&) {
      e.set_order_size(2, 2);
      for (int i = 0; i < 4; ++i) e.set_knot(i, i / 2);
      e.set_control_point(0, {0, 0, 0}), e.set_control_point(1, {1, 0, 0});
      e.set_weight(0, 1), e.set_weight(1, 1), e.set_parametric_limits(0, 1);
      e.set_unit_normal({0, 0, 1});
    }),
    fill<igs128>([](igs128& e, Made const&) {
      e.set_order_size(2, 2, 2, 2);
      for (int i = 0; i < 4; ++i) e.set_knot_u(i, i / 2), e.set_knot_v(i, i / 2);
      for (int i = 0; i < 4; ++i) e.set_control_point(i % 2, i / 2, {i % 2 * 1., i / 2 * 1., 0});
      for (int i = 0; i < 4; ++i) e.set_weight(i % 2, i / 2, 1);
      e.set_parametric_limits_u(0, 1), e.set_parametric_limits_v(0, 1);
    }),
    fill<igs142>([](igs142& e, Made const& m) {
      e.set_basis_surface(m.at("igs128")), e.set_curve_2d(m.at("igs110"));
    }),
    fill<igs144>([](igs144& e, Made const& m) {
      e.set_basis_surface(m.at("igs128")), e.set_outer_boundary_flag(1),
          e.set_outer_boundary(m.at("igs142"));
    }),
    fill<igsCentreLine>([](igsCentreLine& e, Made const&) { points(e, 2); }),
    fill<igsSection>([](igsSection& e, Made const&) { points(e, 2); }),
    fill<igsWitnessLine>([](igsWitnessLine& e, Made const&) { points(e, 3); }),
    fill<igsSimpleClosedPlanarCurve>([](igsSimpleClosedPlanarCurve& e, Made const&) {
      e.set_z_level(0);
      for (int i = 0; i < 4; ++i) e.set_point(i, {i % 3 == 1 ? 1. : 0, i == 2 ? 1. : 0});
    }),
    fill<igs141>([](igs141& e, Made const& m) {
      auto* curve = new igsModelSpaceCurve; // the boundary takes it over
      curve->set_model_space_curve(m.at("igs126")), curve->set_reversal_needed(1);
      e.set_basis_surface(m.at("igs128")), e.set_bounded_surface_representation(0);
      e.set_preferred_representation(igs141PreferModelSpace), e.set_model_space_curve(0, curve);
    }),
    fill<igs143>([](igs143& e, Made const& m) {
      e.set_basis_surface(m.at("igs128")), e.set_boundary(0, m.at("igs141"));
    }),
    fill<igs186>([](igs186& e, Made const& m) {
      e.set_outer_shell(oriented<igsOrientedShell>(m.at("igs514")));
    }),
    fill<igs502>([](igs502& e, Made const&) {
      for (int i = 0; i < 3; ++i) e.set_vertex(i, corner(i));
    }),
    fill<igs504>([](igs504& e, Made const& m) {
      for (int i = 0; i < 3; ++i) {
        igsEdge edge;
        auto* line = new igs110;
        line->set_start_point(corner(i)), line->set_end_point(corner(i + 1));
        edge.set_curve(line), edge.set_first_vertex(m.at("igs502"), i);
        edge.set_second_vertex(m.at("igs502"), (i + 1) % 3), e.set_edge(i, edge);
      }
    }),
    fill<igs508>([](igs508& e, Made const& m) {
      for (int i = 0; i < 3; ++i) {
        igsOrientedEdge edge;
        edge.set_edge_type(0), edge.set_list(m.at("igs504")), edge.set_list_index(i);
        edge.set_orientation(1), e.set_oriented_edge(i, edge);
      }
    }),
    fill<igs510>([](igs510& e, Made const& m) {
      e.set_basis_surface(m.at("igs128")), e.set_outer_loop(1), e.set_loop(m.at("igs508"), 0);
    }),
    fill<igs514>(
        [](igs514& e, Made const& m) { e.set_face(0, oriented<igsOrientedFace>(m.at("igs510"))); }),
    fill<igs210>(
        [](igs210& e, Made const& m) { e.set_note(m.at("igs212")), e.add_leader(m.at("igs214")); }),
    fill<igs212>([](igs212& e, Made const&) {
      igsWord word(utString("NOTE"), 1, 4);
      word.set_start_point({0, 0, 0}), e.set_num_strings(1), e.add_string(word, 0);
    }),
    fill<igs214>([](igs214& e, Made const&) {
      e.set_arrowhead_dim(0.1, 0.2), e.set_arrow_coords({0, 0}), e.set_z_depth(0);
      e.set_num_segments(1), e.add_segment({1, 1}, 0);
    }),
    fill<igs304_1>([](igs304_1& e, Made const& m) {
      e.set_orientation(0), e.set_subfigure(m.at("igs308")), e.set_spacing(1), e.set_scale(1);
    }),
    fill<igs304_2>([](igs304_2& e, Made const&) {
      e.set_size(2), e.set_length(1, 0), e.set_length(0.5, 1), e.set_string("2");
    }),
    fill<igs308>([](igs308& e, Made const& m) {
      e.set_depth(0), e.set_name("SUBFIGURE"), e.set_number_of_entities(1);
      e.set_entity(0, m.at("igs110"));
    }),
    fill<igs310>([](igs310& e, Made const&) {
      igsCharacter a(8, 8, 1, 65);
      a.draw_line(0, {0, 0}, {8, 8}, 0);
      e.set_font_code(1001), e.set_font_name("FONT"), e.set_superseded_font(1), e.set_scale(8);
      e.set_num_characters(1), e.add_character(a, 0);
    }),
    fill<igs314>([](igs314& e, Made const&) { e.set_colours(10, 20, 30); }),
    fill<igs406_15>([](igs406_15& e, Made const&) { e.set_entity_name("NAME"); }),
};

class Registrations : public FileTest {
 protected:
  Registrations() { set_fixed_global_section(*file); }
};

TEST_F(Registrations, EveryRegistrationBuiltThroughTheApiIsWrittenAndReadBack) {
  Made made;
  for (Registration const& r : registrations()) {
    igsObject* e = igsFactory::make_one(static_cast<igsEntityType>(r.type), r.form);
    ASSERT_EQ(e->objtype().name(), r.name);
    EXPECT_TRUE(e->directory_entry().set_form_number(r.form)) << r.name;
    made[r.name] = e;
  }
  for (auto const& [name, entity] : made)
    if (auto f = fills.find(name); f != fills.end()) f->second(*entity, made);
  std::ostringstream text;
  std::ostringstream notes;
  utOstream out(notes);
  ASSERT_TRUE(file->write(text, out));
  EXPECT_EQ(igs_test::written_file_faults(text.str()), std::vector<std::string>{});
  igs_family_test::expect_fixture(igs_test::source_dir() / "fuzz/seeds/registrations.igs",
                                  text.str());

  // Read back: each entity at its DE number with its type, form and class, no structure error.
  int result = 0;
  std::unique_ptr<igsFile> back = igs_test::read_text(text.str(), result);
  ASSERT_EQ(result, 1);
  igsCurrentFileScope current(*back);
  for (size_t i = 0; i < registrations().size(); ++i) {
    Registration const& r = registrations()[i];
    igsObjectPtr entity(2 * static_cast<int>(i) + 1);
    ASSERT_TRUE(entity) << r.name;
    EXPECT_EQ(entity->objtype().name(), r.name);
    EXPECT_EQ(entity->directory_entry().entity_type(), r.type) << r.name;
    EXPECT_EQ(entity->directory_entry().form_number(), r.form) << r.name;
  }
  EXPECT_EQ(igsObjectSystem::log().get_indexed_log(igsStructureLog)->num_errors(), 0);
}

} // namespace
