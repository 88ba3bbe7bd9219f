// Every registration of the entity table made through the API, as a host builds a file: one
// entity of each class at the first form of its range, given the content and the entities it
// refers to that make it check clean, written into one file that must read back to the same
// types and forms and check clean. The file is the fuzz seed fuzz/seeds/registrations.igs.
#include "core/objectTestSupport.h"
#include "core/writtenFileCheck.h"
#include "entities/entityFamily.h"

#include "core/igsCurrentFileScope.h"
#include "core/igsFactory.h"
#include "entities/annotation/igs106Base.h"
#include "entities/annotation/igs202.h"
#include "entities/annotation/igs204.h"
#include "entities/annotation/igs206.h"
#include "entities/annotation/igs208.h"
#include "entities/annotation/igs212.h"
#include "entities/annotation/igs214.h"
#include "entities/annotation/igs222.h"
#include "entities/annotation/igs228.h"
#include "entities/annotation/igs230.h"
#include "entities/curves/igs100.h"
#include "entities/curves/igs102.h"
#include "entities/curves/igs104.h"
#include "entities/curves/igs110.h"
#include "entities/curves/igs112.h"
#include "entities/curves/igs126.h"
#include "entities/curves/igs130.h"
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
#include "entities/structure/igs312.h"
#include "entities/structure/igs314.h"
#include "entities/structure/igs402_16.h"
#include "entities/structure/igs402_3.h"
#include "entities/structure/igs406_15.h"
#include "entities/structure/igs408.h"
#include "entities/structure/igs410_0.h"
#include "entities/structure/igs416.h"
#include "entities/surfaces/igs108.h"
#include "entities/surfaces/igs114.h"
#include "entities/surfaces/igs118.h"
#include "entities/surfaces/igs120.h"
#include "entities/surfaces/igs122.h"
#include "entities/surfaces/igs128.h"
#include "entities/surfaces/igs140.h"
#include "entities/surfaces/igs141.h"
#include "entities/surfaces/igs142.h"
#include "entities/surfaces/igs143.h"
#include "entities/surfaces/igs144.h"
#include "entities/surfaces/igs190_0.h"
#include "entities/surfaces/igs190_1.h"
#include "entities/surfaces/igs192_0.h"
#include "entities/surfaces/igs192_1.h"
#include "entities/surfaces/igs194_0.h"
#include "entities/surfaces/igs194_1.h"
#include "entities/surfaces/igs196_0.h"
#include "entities/surfaces/igs196_1.h"
#include "entities/surfaces/igs198_0.h"
#include "entities/surfaces/igs198_1.h"

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

// The entity made for each registration, by class name; `at` gives it as its class.
struct Made : std::map<std::string, igsObject*> {
  igsObject* operator[](char const* name) const { return at(name); }
};
using Fill = std::function<void(igsObject&, Made const&)>;
#define FILL_AS(Class, As, ...)                                                                    \
  std::pair<std::string const, Fill>(#Class, [](igsObject& object, Made const& m) {                \
    [[maybe_unused]] auto& e = static_cast<As&>(object);                                           \
    (void)m, __VA_ARGS__;                                                                          \
  })
#define FILL(Class, ...) FILL_AS(Class, Class, __VA_ARGS__)

// Small entities of our own beside the registered ones (the file owns them).
igs110* line(giPoint3 const& a, giPoint3 const& b) {
  auto* l = new igs110;
  return l->set_start_point(a), l->set_end_point(b), l;
}
igs123* direction(giVector3 const& v) {
  auto* d = new igs123;
  return d->set_direction(v), d;
}
igs214* leader(double y) {
  auto* l = new igs214;
  l->set_arrowhead_dim(0.1, 0.2), l->set_arrow_coords({0, y}), l->set_z_depth(0);
  return l->set_num_segments(1), l->add_segment({1, y}, 0), l;
}
void points(igs106Base& e, int count) {
  e.set_ip_flag(1), e.set_z_depth(0), e.set_size(count);
  for (int i = 0; i < count; ++i) e.set_point({1. * i, 1. * i}, i);
}
// A general note and its leaders for a dimension, points for a centre line, section or witness
// line.
void fill_family(igsObject* e, std::string const& name, Made const& m) {
  if (auto* d = dynamic_cast<igsDimension*>(e)) {
    d->set_note(m["igs212"]);
    for (int i = name == "igs202" || name == "igs204" || name == "igs216" ? 2 : 1; i; --i)
      d->add_leader(leader(i));
  }
  if (auto* p = dynamic_cast<igs106Base*>(e)) points(*p, name == "igsWitnessLine" ? 3 : 2);
}
template <class Record> Record oriented(igsObject* target) {
  Record record;
  return record.set_target(target), record.set_orientation(1), record;
}
giPoint3 corner(int i) {
  return {i % 3 == 1 ? 1. : 0, i % 3 == 2 ? 1. : 0, 0};
}
// The point, directions and numbers of an analytic surface, by the setters its class has.
template <class S> void analytic(S& e, Made const& m) {
  if constexpr (requires { e.set_location(m["igs116"]); }) e.set_location(m["igs116"]);
  if constexpr (requires { e.set_centre(m["igs116"]); }) e.set_centre(m["igs116"]);
  if constexpr (requires { e.set_normal(m["igs123"]); }) e.set_normal(m["igs123"]);
  if constexpr (requires { e.set_axis(m["igs123"]); }) e.set_axis(m["igs123"]);
  if constexpr (requires { e.set_reference(m["igs123"]); }) e.set_reference(direction({1, 0, 0}));
  if constexpr (requires { e.set_radius(1); }) e.set_radius(1);
  if constexpr (requires { e.set_semi_angle(30); }) e.set_semi_angle(30);
  if constexpr (requires { e.set_radii(2, 1); }) e.set_radii(2, 1);
}
igsCubicCoefficients cubic(double const (&c)[4]) {
  igsCubicCoefficients coefficients;
  return coefficients.set_coefficients(c), coefficients;
}

double const zero[16] = {}, ends[] = {0, 1};
std::map<std::string, Fill> const fills = {
    FILL(igs100, e.set_z_level(0), e.set_centre({0, 0}), e.set_start_point({1, 0}),
         e.set_end_point({0, 1})),
    FILL(igs102, e.set_size(1), e.set_sub_curve(0, m["igs110"])),
    FILL(igs104, e.set_z_level(0), e.set_coeffs({1, 0, 4, 0, 0, -4}), e.set_start_point({2, 0}),
         e.set_end_point({0, 1})),
    FILL(igs110, e.set_start_point({0, 0, 0}), e.set_end_point({1, 0, 0})),
    FILL(igs112, e.set_spline_type(igsSplineCubic), e.set_continuity(2),
         e.set_dimensionality(igsSplineNonPlanar), e.set_number_of_segments(1),
         e.set_all_breakpoints(2, ends), e.set_xyz_coefficients(0, cubic({0, 1, 0, 0}),
         cubic({0, 0, 0, 0}), cubic({0, 0, 0, 0})), [&] {
           igsCubicDerivatives d;
           d.set_derivatives(zero), e.set_xyz_derivatives(d, d, d);
         }()),
    FILL(igs114, e.set_number_of_patches(1, 1), e.set_all_u_breakpoints(2, ends),
         e.set_all_v_breakpoints(2, ends), [&] {
           igsCubicPatch patch;
           patch.set_coefficients(zero, zero, zero);
           for (int i = 0; i < 4; ++i) e.set_patch(i % 2, i / 2, patch);
         }()),
    FILL(igs116, e.set_point({0, 0, 0})),
    FILL(igs123, e.set_direction({0, 0, 1})),
    FILL(igs126, e.set_order_size(2, 2), e.set_control_point(0, {0, 0, 0}),
         e.set_control_point(1, {1, 0, 0}), e.set_weight(0, 1), e.set_weight(1, 1),
         e.set_parametric_limits(0, 1), e.set_unit_normal({0, 0, 1}),
         [&] { for (int i = 0; i < 4; ++i) e.set_knot(i, i / 2); }()),
    FILL(igs128, e.set_order_size(2, 2, 2, 2), e.set_parametric_limits_u(0, 1),
         e.set_parametric_limits_v(0, 1), [&] {
           for (int i = 0; i < 4; ++i)
             e.set_knot_u(i, i / 2), e.set_knot_v(i, i / 2), e.set_weight(i % 2, i / 2, 1),
                 e.set_control_point(i % 2, i / 2, {i % 2 * 1., i / 2 * 1., 0});
         }()),
    FILL(igs130, e.set_uniform_offset(m["igs110"], 1, 0, 1, {0, 0, 1})),
    FILL(igs108, e.set_planar_coefficients(0, 0, 1, 0),
         e.set_boundary_curve(m["igsSimpleClosedPlanarCurve"]), e.set_display_symbol({0, 0, 0}, 1)),
    FILL(igs118, e.set_rail_curve_1(m["igs110"]), e.set_rail_curve_2(line({0, 1, 0}, {1, 1, 0}))),
    FILL(igs120, e.set_axis(m["igs110"]), e.set_generatrix(line({0, 1, 0}, {1, 1, 0})),
         e.set_start_end_angle(0, 1)),
    FILL(igs122, e.set_directrix(m["igs110"]), e.set_generatrix_end_point({0, 0, 1})),
    FILL(igs140, e.set_basis_surface(m["igs128"]), e.set_offset_indicator({0, 0, 1}),
         e.set_offset_distance(1)),
    FILL(igs141, e.set_basis_surface(m["igs128"]), e.set_bounded_surface_representation(0),
         e.set_preferred_representation(igs141PreferModelSpace), [&] {
           auto* curve = new igsModelSpaceCurve; // the boundary takes it over
           curve->set_model_space_curve(m["igs126"]), curve->set_reversal_needed(1);
           e.set_model_space_curve(0, curve);
         }()),
    FILL(igs142, e.set_basis_surface(m["igs128"]), e.set_curve_2d(m["igs110"])),
    FILL(igs143, e.set_basis_surface(m["igs128"]), e.set_boundary(0, m["igs141"])),
    FILL(igs144, e.set_basis_surface(m["igs128"]), e.set_outer_boundary_flag(1),
         e.set_outer_boundary(m["igs142"])),
    FILL(igs190_0, analytic(e, m)),
    FILL(igs190_1, analytic(e, m)),
    FILL(igs192_0, analytic(e, m)),
    FILL(igs192_1, analytic(e, m)),
    FILL(igs194_0, analytic(e, m)),
    FILL(igs194_1, analytic(e, m)),
    FILL(igs196_0, analytic(e, m)),
    FILL(igs196_1, analytic(e, m)),
    FILL(igs198_0, analytic(e, m)),
    FILL(igs198_1, analytic(e, m)),
    FILL(igsPointset, e.set_dimensionality(igsPointsetXYCommonZ), e.set_z_level(0),
         e.set_point_planar(0, {1, 2})),
    FILL(igsPolyline, e.set_dimensionality(igsPolylineXYCommonZ), e.set_z_level(0),
         e.set_point_planar(0, {0, 0}), e.set_point_planar(1, {1, 1})),
    FILL(igsSimpleClosedPlanarCurve, e.set_z_level(0),
         [&] { for (int i = 0; i < 4; ++i) e.set_point(i, {corner(i).x(), corner(i).y()}); }()),
    FILL(igs186, e.set_outer_shell(oriented<igsOrientedShell>(m["igs514"]))),
    FILL(igs502, e.set_size(3), [&] { for (int i = 0; i < 3; ++i) e.set_vertex(i, corner(i)); }()),
    FILL(igs504, e.set_size(3), [&] {
      for (int i = 0; i < 3; ++i) {
        igsEdge edge;
        edge.set_curve(line(corner(i), corner(i + 1))), edge.set_first_vertex(m["igs502"], i);
        edge.set_second_vertex(m["igs502"], (i + 1) % 3), e.set_edge(i, edge);
      }
    }()),
    FILL(igs508, [&] {
      for (int i = 0; i < 3; ++i) {
        igsOrientedEdge edge;
        edge.set_edge_type(0), edge.set_list(m["igs504"]), edge.set_list_index(i);
        edge.set_orientation(1), e.set_oriented_edge(i, edge);
      }
    }()),
    FILL(igs510, e.set_basis_surface(m["igs128"]), e.set_outer_loop(1), e.set_loop(m["igs508"], 0)),
    FILL(igs514, e.set_face(0, oriented<igsOrientedFace>(m["igs510"]))),
    FILL(igs202, e.set_point({0, 0}), e.set_radius(1)),
    FILL(igs204, e.set_first_curve(m["igs110"])),
    FILL(igs206, e.set_point({0, 0})),
    FILL(igs208, e.set_corner({0, 0, 0}), e.set_angle(giAngle(giAngle0Tag))),
    FILL(igs212, [&] {
      igsWord word(utString("NOTE"), 1, 4);
      word.set_start_point({0, 0, 0}), e.set_num_strings(1), e.add_string(word, 0);
    }()),
    FILL(igs214, e.set_arrowhead_dim(0.1, 0.2), e.set_arrow_coords({0, 0}), e.set_z_depth(0),
         e.set_num_segments(1), e.add_segment({1, 1}, 0)),
    FILL(igs222, e.set_point({0, 0})),
    FILL(igs228, e.set_num_objects(1), e.add_geometry(m["igs110"], 0)),
    FILL(igs230, e.set_exterior_curve(m["igsSimpleClosedPlanarCurve"]), e.set_point(0, 0),
         e.set_distance(1), e.set_z_depth(0)),
    FILL(igs304_1, e.set_orientation(0), e.set_subfigure(m["igs308"]), e.set_spacing(1),
         e.set_scale(1)),
    FILL(igs304_2, e.set_size(2), e.set_length(1, 0), e.set_length(0.5, 1), e.set_string("2")),
    FILL(igs308, e.set_depth(0), e.set_name("SUBFIGURE"), e.set_number_of_entities(1),
         e.set_entity(0, m["igs110"])),
    FILL(igs310, e.set_font_code(1001), e.set_font_name("FONT"), e.set_superseded_font(2),
         e.set_scale(8), e.set_num_characters(1), [&] {
           igsCharacter a(8, 8, 1, 65);
           a.draw_line(0, {0, 0}, {8, 8}, 0), e.add_character(a, 0);
         }()),
    FILL(igs312, e.set_box_dimensions(1, 1)),
    FILL(igs314, e.set_colours(10, 20, 30), e.directory_entry().set_colour(igsColour(igsRed))),
    FILL(igs402_3, e.set_number_of_views(1), e.set_view(0, m["igs410_0"])),
    FILL(igs402_16, e.set_identity_transform(), e.set_number_of_transforms(1), e.set_number_of_entities(1),
         e.set_entity(0, m["igs110"])),
    FILL(igs406_15, e.set_entity_name("NAME")),
    FILL(igs408, e.set_subfigure(m["igs308"]), e.set_translation_origin({0, 0, 0}), e.set_scale(1)),
    FILL(igs410_0, e.set_view_number(1), e.set_scale_factor(1)),
    FILL(igs416, e.set_external_file_name("part.igs")),
};

class Registrations : public FileTest {
 protected:
  Registrations() { set_fixed_global_section(*file); }
};

TEST_F(Registrations, EveryRegistrationBuiltThroughTheApiIsWrittenReadBackAndChecksClean) {
  Made made;
  for (Registration const& r : registrations()) {
    igsObject* e = igsFactory::make_one(static_cast<igsEntityType>(r.type), r.form);
    ASSERT_EQ(e->objtype().name(), r.name);
    EXPECT_TRUE(e->directory_entry().set_form_number(r.form)) << r.name;
    made.emplace(r.name, e);
  }
  for (auto const& [name, entity] : made)
    if (fill_family(entity, name, made); fills.count(name)) fills.at(name)(*entity, made);
  std::ostringstream text, notes;
  utOstream out(notes);
  ASSERT_TRUE(file->write(text, out));
  EXPECT_EQ(igs_test::written_file_faults(text.str()), std::vector<std::string>{});
  igs_family_test::expect_fixture(igs_test::source_dir() / "fuzz/seeds/registrations.igs",
                                  text.str());

  int result = 0;
  std::unique_ptr<igsFile> back = igs_test::read_text(text.str(), result);
  ASSERT_EQ(result, 1);
  igsCurrentFileScope current(*back);
  EXPECT_EQ(igs_family_test::checked(*back), std::vector<std::string>{});
  for (size_t i = 0; i < registrations().size(); ++i) {
    Registration const& r = registrations()[i];
    igsObjectPtr entity(2 * static_cast<int>(i) + 1);
    ASSERT_TRUE(entity) << r.name;
    EXPECT_EQ(entity->objtype().name(), r.name);
    EXPECT_EQ(entity->directory_entry().entity_type(), r.type) << r.name;
    EXPECT_EQ(entity->directory_entry().form_number(), r.form) << r.name;
  }
}

} // namespace
