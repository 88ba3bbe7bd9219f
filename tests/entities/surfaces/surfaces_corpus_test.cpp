// The surface classes as their accessors give their parameters, for the corpus test.
#include "entities/entityFamily.h"
#include "entities/surfaces/igs108.h"
#include "entities/surfaces/igs114.h"
#include "entities/surfaces/igs118.h"
#include "entities/surfaces/igs120.h"
#include "entities/surfaces/igs122.h"
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

using namespace igs_family_test;

namespace {

// Types, counts, breakpoints, then the 48 coefficients of each patch, U index outer.
void spline_surface(igs114 const& e, Values& v) {
  int u = e.number_of_u_breakpoints(), w = e.number_of_v_breakpoints();
  v << e.spline_type() << e.patch_type() << u - 1 << w - 1;
  double value = 0.0;
  for (int i = 0; i < u; ++i) v << (e.u_breakpoint(i, value), value);
  for (int j = 0; j < w; ++j) v << (e.v_breakpoint(j, value), value);
  for (int i = 0; i < u; ++i)
    for (int j = 0; j < w; ++j) {
      igsCubicPatch patch;
      e.patch(i, j, patch);
      double x[16], y[16], z[16];
      patch.coefficients(x, y, z);
      for (double const* block : {x, y, z})
        for (int k = 0; k < 16; ++k) v << block[k];
    }
}

CorpusRows const surfaces = {
    row<igs108>([](igs108 const& e, Values& v) {
      double a, b, c, d;
      e.planar_coefficients(a, b, c, d);
      v << a << b << c << d << e.boundary_curve() << e.display_symbol_location()
        << e.display_symbol_size();
    }),
    row<igs114>(spline_surface),
    row<igs118>([](igs118 const& e, Values& v) {
      v << e.rail_curve_1() << e.rail_curve_2() << e.direction_flag() << e.developable_flag();
    }),
    row<igs120>([](igs120 const& e, Values& v) {
      v << e.axis() << e.generatrix() << e.start_angle() << e.end_angle();
    }),
    row<igs122>([](igs122 const& e, Values& v) { v << e.directrix() << e.generatrix_end_point(); }),
    row<igs190_0>([](igs190_0 const& e, Values& v) { v << e.location() << e.normal(); }),
    row<igs190_1>(
        [](igs190_1 const& e, Values& v) { v << e.location() << e.normal() << e.reference(); }),
    row<igs192_0>(
        [](igs192_0 const& e, Values& v) { v << e.location() << e.axis() << e.radius(); }),
    row<igs192_1>([](igs192_1 const& e, Values& v) {
      v << e.location() << e.axis() << e.radius() << e.reference();
    }),
    row<igs194_0>([](igs194_0 const& e, Values& v) {
      v << e.location() << e.axis() << e.radius() << e.semi_angle();
    }),
    row<igs194_1>([](igs194_1 const& e, Values& v) {
      v << e.location() << e.axis() << e.radius() << e.semi_angle() << e.reference();
    }),
    row<igs196_0>([](igs196_0 const& e, Values& v) { v << e.centre() << e.radius(); }),
    row<igs196_1>([](igs196_1 const& e, Values& v) {
      v << e.centre() << e.radius() << e.axis() << e.reference();
    }),
    row<igs198_0>([](igs198_0 const& e, Values& v) {
      v << e.centre() << e.axis() << e.major_radius() << e.minor_radius();
    }),
    row<igs198_1>([](igs198_1 const& e, Values& v) {
      v << e.centre() << e.axis() << e.major_radius() << e.minor_radius() << e.reference();
    }),
};

} // namespace
