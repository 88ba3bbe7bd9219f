// The curve and point classes as their accessors give their parameters, for the corpus test.
#include "entities/curves/igs100.h"
#include "entities/curves/igs102.h"
#include "entities/curves/igs104.h"
#include "entities/curves/igs110.h"
#include "entities/curves/igs112.h"
#include "entities/curves/igs116.h"
#include "entities/curves/igs126.h"
#include "entities/curves/igs130.h"
#include "entities/curves/igsPointset.h"
#include "entities/curves/igsPolyline.h"
#include "entities/curves/igsSimpleClosedPlanarCurve.h"
#include "entities/entityFamily.h"

using namespace igs_family_test;

namespace {

// Flag, count, the common Z with flag 1, then the tuples.
template <class T> void tuples(T const& e, Values& v) {
  typename T::Dim dim{};
  e.dimensionality(dim);
  v << static_cast<int>(dim) << e.number_of_items();
  double z = 0.0;
  if (e.z_level(z)) v << z;
  for (int i = 0; i < e.number_of_items(); ++i) {
    giPoint2 planar;
    giPoint3 point;
    giVector3 vector;
    if (e.point_planar(i, planar))
      v << planar;
    else if (e.point_vector(i, point, vector))
      v << point << vector;
    else if (e.point_3d(i, point))
      v << point;
  }
}

CorpusRows const curves = {
    row<igs116>([](igs116 const& e, Values& v) { v << e.point() << e.display_symbol(); }),
    row<igs110>([](igs110 const& e, Values& v) { v << e.start_point() << e.end_point(); }),
    row<igs100>([](igs100 const& e, Values& v) {
      v << e.z_level() << e.centre() << e.start_point() << e.end_point();
    }),
    row<igsPointset>(tuples<igsPointset>),
    row<igsPolyline>(tuples<igsPolyline>),
    row<igsSimpleClosedPlanarCurve>([](igsSimpleClosedPlanarCurve const& e, Values& v) {
      v << 1 << e.number_of_points() << e.z_level();
      for (int i = 0; i < e.number_of_points(); ++i) {
        giPoint2 p;
        e.point(i, p);
        v << p;
      }
    }),
    row<igs102>([](igs102 const& e, Values& v) {
      v << e.number_of_sub_curves();
      for (int i = 0; i < e.number_of_sub_curves(); ++i) {
        igsObjectPtr curve;
        e.sub_curve(i, curve);
        v << curve;
      }
    }),
    // K, M, the flags, the knots, the weights, the control points, the limits, the normal.
    row<igs126>([](igs126 const& e, Values& v) {
      int n = e.number_of_control_points();
      v << n - 1 << e.order() - 1 << e.planar_flag() << e.closed_flag() << e.rational_flag()
        << e.periodic_flag();
      double value = 0.0;
      for (int i = 0; i < e.number_of_knots(); ++i) v << (e.knot(i, value), value);
      for (int i = 0; i < n; ++i) v << (e.weight(i, value), value);
      giPoint3 point;
      for (int i = 0; i < n; ++i) v << (e.control_point(i, point), point);
      double start = 0.0, end = 0.0;
      e.parametric_limits(start, end);
      v << start << end << e.unit_normal();
    }),
    row<igs104>([](igs104 const& e, Values& v) {
      double coeffs[6];
      e.coeffs().coeffs(coeffs);
      for (double c : coeffs) v << c;
      v << e.z_level() << e.start_point() << e.end_point();
    }),
    // CTYPE, H, NDIM, N, the breakpoints, X, Y and Z of each segment, the derivatives.
    row<igs112>([](igs112 const& e, Values& v) {
      v << e.spline_type() << e.continuity() << e.dimensionality() << e.number_of_segments();
      double value = 0.0, four[4];
      for (int i = 0; i < e.number_of_breakpoints(); ++i) v << (e.breakpoint(i, value), value);
      igsCubicCoefficients x, y, z;
      for (int i = 0; i < e.number_of_segments(); ++i) {
        e.segment(i, x, y, z, value, value);
        for (igsCubicCoefficients const* c : {&x, &y, &z}) {
          c->coefficients(four);
          for (double f : four) v << f;
        }
      }
      igsCubicDerivatives dx, dy, dz;
      e.xyz_derivatives(dx, dy, dz);
      for (igsCubicDerivatives const* d : {&dx, &dy, &dz}) {
        d->derivatives(four);
        for (double f : four) v << f;
      }
    }),
    row<igs130>([](igs130 const& e, Values& v) {
      v << e.basis_curve() << e.offset_distance_type() << e.function_curve()
        << e.function_curve_index() << e.offset_distance_taper_type() << e.first_offset_distance()
        << e.first_offset_amount() << e.second_offset_distance() << e.second_offset_amount()
        << e.plane_normal() << e.start_parameter() << e.end_parameter();
    }),
};

} // namespace
