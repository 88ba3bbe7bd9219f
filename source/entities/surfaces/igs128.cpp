#include "entities/surfaces/igs128.h"

#include "entities/surfaces/igsTrimmedErrors.h"

#include <climits>
#include <cmath>

IGS_ENTITY_DEFINE(igs128, igsParameterizedSurface, 128, 0, IGS_DE_ALL)

// The values of a surface of the orders and sizes: its knots, its weights and the coordinates
// of its control points; above INT_MAX when the store could not hold them.
static long long number_of_values(long long order_u, long long order_v, long long n_u,
                                  long long n_v) {
  if (n_u * n_v > INT_MAX / 4) return INT_MAX + 1LL;
  return order_u + n_u + order_v + n_v + 4 * n_u * n_v;
}

// A record read again into the same surface starts from an empty store.
int igs128::size_surface(int order_u, int order_v, int n_u, int n_v, int room) {
  m_values.clear();
  if (!m_values.expand(room)) return 0;
  for (double& value : m_values) value = igs_unset_double;
  m_order[U] = order_u;
  m_order[V] = order_v;
  m_size[U] = n_u;
  m_size[V] = n_v;
  return 1;
}

int igs128::set_order_size(int order_u, int order_v, int n_u, int n_v) {
  if (order_u < 1 || order_v < 1 || n_u < order_u || n_v < order_v || m_size[U]) return 0;
  long long count = number_of_values(order_u, order_v, n_u, n_v);
  return count <= INT_MAX && size_surface(order_u, order_v, n_u, n_v, static_cast<int>(count));
}

int igs128::knot(Direction d, int index, double& value) const {
  if (index >= 0 && index < number_of_knots(d)) value = knots(d)[index];
  return 1;
}

int igs128::set_knot(Direction d, int index, double value) {
  if (index < 0 || index >= number_of_knots(d)) return 0;
  m_values[first_knot(d) + index] = value;
  return 1;
}

int igs128::control_point(int i, int j, giPoint3& point) const {
  int at = index_of(i, j);
  if (at < 0) return 0;
  double const* p = coordinates() + 3 * at;
  point = giPoint3(p[0], p[1], p[2]);
  return 1;
}

int igs128::set_control_point(int i, int j, giPoint3 const& point) {
  int at = index_of(i, j);
  if (at < 0) return 0;
  double* p = m_values.data() + first_coordinate() + 3 * at;
  p[0] = point.x();
  p[1] = point.y();
  p[2] = point.z();
  return 1;
}

int igs128::weight(int i, int j, double& value) const {
  int at = index_of(i, j);
  if (at < 0) return 0;
  value = weight_at(at);
  return 1;
}

int igs128::set_weight(int i, int j, double value) {
  int at = index_of(i, j);
  return at >= 0 && igs_set_weight(m_values, first_weight(), points(), at, value);
}

int igs128::set_parametric_limits(Direction d, double start, double end) {
  if (!(end >= start)) return 0;
  m_start[d] = start;
  m_end[d] = end;
  return 1;
}

// --- Reading and writing -----------------------------------------------------------------

int igs128::read_pd_data(igsInStream& in) {
  return read_surface_size(in) && read_flags(in) && read_knot_vectors(in) &&
         read_homogenous_control_points(in) && read_parametric_limits(in);
}

// The upper indices of the control points, then the degrees. A surface beyond the first
// reservation gets room for its values as they arrive, so that a damaged count costs no more
// memory than the record holds.
int igs128::read_surface_size(igsInStream& in) {
  int k1 = 0, k2 = 0, m1 = 0, m2 = 0;
  igs_read_fields(in, k1, k2, m1, m2);
  if (k1 < 1) return raise_error<igs128BadUSumIndex>(k1), 0;
  if (k2 < 1) return raise_error<igs128BadVSumIndex>(k2), 0;
  if (m1 < 1) return raise_error<igs128BadUDegree>(m1), 0;
  if (m2 < 1) return raise_error<igs128BadVDegree>(m2), 0;
  if (k1 < m1) return raise_error<igs128USumIndexLessThanUDegree>(k1, m1), 0;
  if (k2 < m2) return raise_error<igs128VSumIndexLessThanVDegree>(k2, m2), 0;
  long long count = number_of_values(m1 + 1LL, m2 + 1LL, k1 + 1LL, k2 + 1LL);
  if (count > INT_MAX) return raise_error<igs128BadUSumIndex>(k1), 0;
  int room = igs_reading_room(k1 + m1 + k2 + m2 + 4LL, (k1 + 1LL) * (k2 + 1LL));
  return size_surface(m1 + 1, m2 + 1, k1 + 1, k2 + 1, room);
}

int igs128::read_flags(igsInStream& in) {
  igs_read_fields(in, m_closed[U], m_closed[V], m_rational, m_periodic[U], m_periodic[V]);
  return 1;
}

int igs128::lose_size(int ended) {
  if (ended) raise_error<igs128BadUSumIndex>(m_size[U] - 1);
  m_values.clear(1);
  m_size[U] = m_size[V] = 0;
  return 0;
}

int igs128::read_knot_vectors(igsInStream& in) {
  int ended = 0;
  return igs_read_values(in, m_values, 0, first_weight(), ended) || lose_size(ended);
}

int igs128::read_homogenous_control_points(igsInStream& in) {
  int ended = 0;
  return igs_read_weighted_points(in, m_values, first_weight(), points(), ended) ||
         lose_size(ended);
}

int igs128::read_parametric_limits(igsInStream& in) {
  igs_read_fields(in, m_start[U], m_end[U], m_start[V], m_end[V]);
  return 1;
}

// The knots and the parameter limits are parametric values, with a precision of their own. An
// unsized surface writes its sizes and flags alone.
void igs128::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_size[U] - 1, m_size[V] - 1, m_order[U] - 1, m_order[V] - 1);
  igs_write_fields(out, m_closed[U], m_closed[V], m_rational, m_periodic[U], m_periodic[V]);
  if (!m_size[U]) return;
  int const knots = first_weight();
  {
    igsParametricFormat parametric(out);
    for (int i = 0; i < knots; ++i) out.write_double(m_values[i]);
  }
  igs_write_weighted_points(out, m_values, knots, points());
  igsParametricFormat parametric(out);
  igs_write_fields(out, m_start[U], m_end[U], m_start[V], m_end[V]);
}

// --- Printing ----------------------------------------------------------------------------

void igs128::print_pd_data(utOstream& out) const {
  out << "NumberOfControlPointsU = " << m_size[U] << "\n";
  out << "NumberOfControlPointsV = " << m_size[V] << "\n";
  out << "OrderU = " << m_order[U] << "\n";
  out << "OrderV = " << m_order[V] << "\n";
  print_flags(out);
  print_knot_vectors(out);
  print_control_points(out);
  print_parametric_limits(out);
}

void igs128::print_flags(utOstream& out) const {
  igs_print_flag(out, "ClosedU = ", m_closed[U], 1);
  igs_print_flag(out, "ClosedV = ", m_closed[V], 1);
  igs_print_flag(out, "Rational = ", m_rational, 0);
  igs_print_flag(out, "PeriodicU = ", m_periodic[U], 1);
  igs_print_flag(out, "PeriodicV = ", m_periodic[V], 1);
}

void igs128::print_knot_vectors(utOstream& out) const {
  igs_print_knots(out, "KnotVectorU = {", knots(U), number_of_knots(U));
  igs_print_knots(out, "KnotVectorV = {", knots(V), number_of_knots(V));
}

// V index outer, U index inner: the order of the store.
void igs128::print_control_points(utOstream& out) const {
  out << "ControlPoints = {\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    for (int j = 0; j < m_size[V]; ++j)
      for (int i = 0; i < m_size[U]; ++i) {
        giPoint3 point;
        control_point(i, j, point);
        nested << "(" << i << "," << j << ") = " << point << "," << weight_at(index_of(i, j))
               << "\n";
      }
  }
  out << "}\n";
}

void igs128::print_parametric_limits(utOstream& out) const {
  out << "StartParameterU = " << m_start[U] << "\n";
  out << "EndParameterU = " << m_end[U] << "\n";
  out << "StartParameterV = " << m_start[V] << "\n";
  out << "EndParameterV = " << m_end[V] << "\n";
}

// --- Checking ----------------------------------------------------------------------------

// Five groups, each raising what it finds; none stops the others.
void igs128::check_pd() const {
  check_surface_size();
  check_flags();
  check_knot_vectors();
  check_homogenous_control_points();
  check_parametric_limits();
}

void igs128::check_surface_size() const {
  if (!m_size[U]) raise_error<igs128NoConstruct>();
  if (m_order[U] < 2) raise_error<igs128BadUDegree>(m_order[U] - 1);
  if (m_order[V] < 2) raise_error<igs128BadVDegree>(m_order[V] - 1);
  if (m_size[U] < 2) raise_error<igs128BadUSumIndex>(m_size[U] - 1);
  if (m_size[V] < 2) raise_error<igs128BadVSumIndex>(m_size[V] - 1);
}

void igs128::check_flags() const {
  if (!igs_flag_valid(m_closed[U])) raise_error<igs128InvalidClosedUFlag>(m_closed[U]);
  if (!igs_flag_valid(m_closed[V])) raise_error<igs128InvalidClosedVFlag>(m_closed[V]);
  if (!igs_flag_valid(m_rational)) raise_error<igs128InvalidRationalFlag>(m_rational);
  if (!igs_flag_valid(m_periodic[U])) raise_error<igs128InvalidPeriodicUFlag>(m_periodic[U]);
  if (!igs_flag_valid(m_periodic[V])) raise_error<igs128InvalidPeriodicVFlag>(m_periodic[V]);
}

void igs128::check_knot_vectors() const {
  check_knot_vector<igs128UnsetKnotU, igs128KnotUOutOfSequence, igs128MinParamUOutOfRange,
                    igs128MaxParamUOutOfRange, igs128NoUParamRange, igs128UKnotsTooClose>(
      knots(U), number_of_knots(U), m_order[U], m_start[U], m_end[U]);
  check_knot_vector<igs128UnsetKnotV, igs128KnotVOutOfSequence, igs128MinParamVOutOfRange,
                    igs128MaxParamVOutOfRange, igs128NoVParamRange, igs128VKnotsTooClose>(
      knots(V), number_of_knots(V), m_order[V], m_start[V], m_end[V]);
}

// Weights that all lie within the tolerance of the first need no test of each, whichever way
// the rational flag stands; other weights make a surface rational, whatever its flag says.
void igs128::check_homogenous_control_points() const {
  int const n_u = m_size[U], n = points();
  for (int at = 0; at < n; ++at) {
    giPoint3 point;
    control_point(at % n_u, at / n_u, point);
    if (point.invalid()) raise_error<igs128UnsetControlPoint>(at % n_u, at / n_u);
  }
  if (!n) return;
  auto w = [this](int at) { return weight_at(at); };
  double const tolerance = kvnTolCoincWeights.value();
  int at = 0;
  while (at < n && std::fabs(w(at) - w(0)) <= tolerance) ++at;
  if (at == n) return;
  double const minimum = kvnTolMinValue.value();
  for (at = 0; at < n; ++at) {
    if (std::fabs(w(at)) < minimum)
      raise_error<igs128ZeroWeight>(at % n_u, at / n_u);
    else if (igs_unset(w(at)))
      raise_error<igs128UnsetWeight>(at % n_u, at / n_u);
    else if (w(at) < 0.0)
      raise_error<igs128NegativeWeight>(at % n_u, at / n_u, w(at));
  }
  if (m_rational == 1) raise_error<igs128WeightsAndRatFlagDisaggree>();
}

// Here, unlike in the setters, the limits of each direction must differ.
void igs128::check_parametric_limits() const {
  if (igs_unset(m_start[U]) || igs_unset(m_end[U]) || igs_unset(m_start[V]) || igs_unset(m_end[V]))
    raise_error<igs128UnsetTrimmingParams>();
  if (m_start[U] >= m_end[U]) raise_error<igs128TrimParamsUOutOfSequence>(m_start[U], m_end[U]);
  if (m_start[V] >= m_end[V]) raise_error<igs128TrimParamsVOutOfSequence>(m_start[V], m_end[V]);
}

// --- Repairs -----------------------------------------------------------------------------

// Runs a repair on the surface that the error names; 0 when the number names none any more.
template <class Repair> static int repair_surface(int key, Repair const& repair) {
  igs128* surface = igs_error_entity<igs128>(key);
  return surface ? repair(*surface) : 0;
}

// New limits of a direction from the ends of its knots' range: the start when `start` is set,
// the end when `end` is; a knot out of the vector keeps the old limit. 0 and nothing changed
// when the end would lie below the start.
static int limits_from_knots(int key, igs128::Direction d, bool start, bool end) {
  return repair_surface(key, [&](igs128& surface) {
    double lo = 0.0, hi = 0.0;
    surface.parametric_limits(d, lo, hi);
    int k = surface.order(d), n = surface.number_of_knots(d);
    if (start) surface.knot(d, k - 1, lo);
    if (end) surface.knot(d, n - k, hi);
    return surface.set_parametric_limits(d, lo, hi);
  });
}

// A knot only a little below the greatest one before it joins that one as a multiple knot.
static int lift_knot(int key, igs128::Direction d, int index, double knot, double last) {
  return repair_surface(key, [&](igs128& surface) {
    if (!(kvnTolCoincBreakPoints.value() > last - knot)) return 0;
    surface.set_knot(d, index, last);
    return 1;
  });
}

static int pull_close_knots(int key, igs128::Direction d) {
  return repair_surface(key, [d](igs128& surface) {
    auto at = [&](int i) {
      double value = 0.0;
      surface.knot(d, i, value);
      return value;
    };
    igs_pull_close_knots(surface.order(d), surface.number_of_knots(d), at,
                         [&](int i, double value) { surface.set_knot(d, i, value); });
    return 1;
  });
}

#define IGS_SPLINE_DIRECTION_REPAIRS(D)                                                            \
  int igs128InvalidClosed##D##Flag::fix() {                                                        \
    return repair_surface(key(), [](igs128& s) { return s.set_closed_flag(igs128::D, 0), 1; });    \
  }                                                                                                \
  int igs128InvalidPeriodic##D##Flag::fix() {                                                      \
    return repair_surface(key(), [](igs128& s) { return s.set_periodic_flag(igs128::D, 0), 1; });  \
  }                                                                                                \
  int igs128Knot##D##OutOfSequence::fix() {                                                        \
    return lift_knot(key(), igs128::D, index(), knot(), last());                                   \
  }                                                                                                \
  int igs128MinParam##D##OutOfRange::fix() {                                                       \
    return limits_from_knots(key(), igs128::D, true, false);                                       \
  }                                                                                                \
  int igs128MaxParam##D##OutOfRange::fix() {                                                       \
    return limits_from_knots(key(), igs128::D, false, true);                                       \
  }                                                                                                \
  int igs128TrimParams##D##OutOfSequence::fix() {                                                  \
    return limits_from_knots(key(), igs128::D, true, true);                                        \
  }                                                                                                \
  int igs128##D##KnotsTooClose::fix() {                                                            \
    return pull_close_knots(key(), igs128::D);                                                     \
  }
IGS_SPLINE_DIRECTION_REPAIRS(U)
IGS_SPLINE_DIRECTION_REPAIRS(V)

int igs128InvalidRationalFlag::fix() {
  return repair_surface(key(), [](igs128& s) { return s.set_rational_flag(1), 1; });
}

int igs128WeightsAndRatFlagDisaggree::fix() {
  return repair_surface(key(), [](igs128& s) { return s.set_rational_flag(1), 1; });
}
