// The B-spline surface and the trimmed surface classes as their accessors give their
// parameters, for the corpus test.
#include "entities/entityFamily.h"
#include "entities/surfaces/igs128.h"
#include "entities/surfaces/igs140.h"
#include "entities/surfaces/igs141.h"
#include "entities/surfaces/igs142.h"
#include "entities/surfaces/igs143.h"
#include "entities/surfaces/igs144.h"

using namespace igs_family_test;

namespace {

// Sizes, flags, knots in U and V, weights, control points and limits, U index fastest.
void spline_surface(igs128 const& e, Values& v) {
  int n_u = e.number_of_control_points_u(), n_v = e.number_of_control_points_v();
  v << n_u - 1 << n_v - 1 << e.order_u() - 1 << e.order_v() - 1 << e.closed_flag_u()
    << e.closed_flag_v() << e.rational_flag() << e.periodic_flag_u() << e.periodic_flag_v();
  double value = 0.0;
  for (int i = 0; i < e.number_of_knots_u(); ++i) v << (e.knot_u(i, value), value);
  for (int i = 0; i < e.number_of_knots_v(); ++i) v << (e.knot_v(i, value), value);
  for (int j = 0; j < n_v; ++j)
    for (int i = 0; i < n_u; ++i) v << (e.weight(i, j, value), value);
  for (int j = 0; j < n_v; ++j)
    for (int i = 0; i < n_u; ++i) {
      giPoint3 point;
      e.control_point(i, j, point);
      v << point;
    }
  double start = 0.0, end = 0.0;
  e.parametric_limits_u(start, end);
  v << start << end;
  e.parametric_limits_v(start, end);
  v << start << end;
}

void boundary(igs141 const& e, Values& v) {
  v << e.bounded_surface_representation() << e.preferred_representation() << e.basis_surface()
    << e.number_of_model_space_curves();
  for (int i = 0; i < e.number_of_model_space_curves(); ++i) {
    igsModelSpaceCurve* curve = nullptr;
    e.model_space_curve(i, &curve);
    v << curve->model_space_curve() << curve->reversal_needed()
      << curve->number_of_parameter_curves();
    for (int j = 0; j < curve->number_of_parameter_curves(); ++j) {
      igsObjectPtr parameter_curve;
      curve->parameter_curve(j, parameter_curve);
      v << parameter_curve;
    }
  }
}

CorpusRows const trimmed = {
    row<igs128>(spline_surface),
    row<igs140>([](igs140 const& e, Values& v) {
      v << e.offset_indicator() << e.offset_distance() << e.basis_surface();
    }),
    row<igs141>(boundary),
    row<igs142>([](igs142 const& e, Values& v) {
      v << e.curve_creation() << e.basis_surface() << e.curve_2d() << e.curve_3d()
        << e.preferred_representation();
    }),
    row<igs143>([](igs143 const& e, Values& v) {
      v << e.bounded_surface_representation() << e.basis_surface() << e.number_of_boundaries();
      igsObjectPtr boundary;
      for (int i = 0; i < e.number_of_boundaries(); ++i) v << (e.boundary(i, boundary), boundary);
    }),
    row<igs144>([](igs144 const& e, Values& v) {
      v << e.basis_surface() << e.outer_boundary_flag() << e.number_of_inner_boundaries()
        << e.outer_boundary();
      igsObjectPtr boundary;
      for (int i = 0; i < e.number_of_inner_boundaries(); ++i)
        v << (e.inner_boundary(i, boundary), boundary);
    }),
};

} // namespace
