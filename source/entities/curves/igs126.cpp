#include "entities/curves/igs126.h"

#include "core/igsFile.h"
#include "core/igsNull.h"
#include "entities/curves/igsCurveErrors.h"

#include <climits>
#include <cmath>

IGS_ENTITY_DEFINE(igs126, igsCurve, 126, 0, IGS_DE_ALL)

// The values of a curve of the order and size: its knots, its weights and the coordinates of
// its control points.
static long long number_of_values(long long order, long long size) {
  return order + size + 4 * size;
}

// A record read again into the same curve starts from an empty store.
int igs126::size_curve(int order, int size, int room) {
  m_values.clear();
  if (!m_values.expand(room)) return 0;
  for (double& value : m_values) value = igs_unset_double;
  m_order = order;
  m_size = size;
  return 1;
}

int igs126::set_order_size(int order, int size) {
  if (order < 1 || size < order || m_size) return 0;
  long long count = number_of_values(order, size);
  return count <= INT_MAX && size_curve(order, size, static_cast<int>(count));
}

int igs126::knot(int index, double& value) const {
  if (!index_in(index, number_of_knots())) return 0;
  value = m_values[index];
  return 1;
}

int igs126::set_knot(int index, double value) {
  if (!index_in(index, number_of_knots())) return 0;
  m_values[index] = value;
  return 1;
}

int igs126::weight(int index, double& value) const {
  if (!index_in(index, m_size)) return 0;
  value = weight_at(index);
  return 1;
}

int igs126::set_weight(int index, double value) {
  return index_in(index, m_size) &&
         igs_set_weight(m_values, number_of_knots(), m_size, index, value);
}

int igs126::control_point(int index, giPoint3& point) const {
  if (!index_in(index, m_size)) return 0;
  double const* p = coordinates() + 3 * index;
  point = giPoint3(p[0], p[1], p[2]);
  return 1;
}

int igs126::set_control_point(int index, giPoint3 const& point) {
  if (!index_in(index, m_size)) return 0;
  double* p = m_values.data() + first_coordinate() + 3 * index;
  p[0] = point.x();
  p[1] = point.y();
  p[2] = point.z();
  return 1;
}

int igs126::set_parametric_limits(double start, double end) {
  if (!(end >= start)) return 0;
  m_start = start;
  m_end = end;
  return 1;
}

// --- Reading and writing -----------------------------------------------------------------

int igs126::read_pd_data(igsInStream& in) {
  return read_curve_size(in) && read_flags(in) && read_knots(in) &&
         read_homogenous_control_points(in) && read_parametric_limits(in) && read_unit_normal(in);
}

// K is the upper index of the control points, M the degree. A curve beyond the first
// reservation gets room for its values as they arrive, so that a damaged count costs no more
// memory than the record holds.
int igs126::read_curve_size(igsInStream& in) {
  int k = 0, m = 0;
  igs_read_fields(in, k, m);
  if (k < 1) {
    raise_error<igs126BadSumIndex>(k);
    return 0;
  }
  if (m < 1) {
    raise_error<igs126BadDegree>(m);
    return 0;
  }
  if (k < m) {
    raise_error<igs126SumIndexLessThanDegree>(k, m);
    return 0;
  }
  long long count = number_of_values(m + 1LL, k + 1LL);
  if (count > INT_MAX) {
    raise_error<igs126BadSumIndex>(k);
    return 0;
  }
  return size_curve(m + 1, k + 1, igs_reading_room(m + k + 2LL, k + 1LL));
}

int igs126::read_flags(igsInStream& in) {
  igs_read_fields(in, m_planar, m_closed, m_rational, m_periodic);
  return 1;
}

int igs126::lose_size(int ended) {
  if (ended) raise_error<igs126BadSumIndex>(m_size - 1);
  m_values.clear(1);
  m_size = 0;
  return 0;
}

int igs126::read_knots(igsInStream& in) {
  int ended = 0;
  return igs_read_values(in, m_values, 0, number_of_knots(), ended) || lose_size(ended);
}

int igs126::read_homogenous_control_points(igsInStream& in) {
  int ended = 0;
  return igs_read_weighted_points(in, m_values, number_of_knots(), m_size, ended) ||
         lose_size(ended);
}

int igs126::read_parametric_limits(igsInStream& in) {
  igs_read_fields(in, m_start, m_end);
  return 1;
}

int igs126::read_unit_normal(igsInStream& in) {
  igs_read_field(in, m_normal);
  return 1;
}

// The knots and the parameter limits are parametric values, with a precision of their own.
void igs126::write_pd_data(igsOutStream& out) {
  int const width = kvnOptDoubleFieldWidth.value();
  int const precision = kvnOptDoubleParametricPrecision.value();
  igs_write_fields(out, m_size - 1, m_order - 1, m_planar, m_closed, m_rational, m_periodic);
  int knots = number_of_knots();
  out.push_double_format(width, precision);
  for (int i = 0; i < knots; ++i) out.write_double(m_values[i]);
  out.pop_double_format();
  igs_write_weighted_points(out, m_values, knots, m_size);
  out.push_double_format(width, precision);
  igs_write_fields(out, m_start, m_end);
  out.pop_double_format();
  igs_write_field(out, m_normal);
}

// --- Printing ----------------------------------------------------------------------------

void igs126::print_pd_data(utOstream& out) const {
  out << "NumberOfControlPoints = " << m_size << "\n";
  out << "Order = " << m_order << "\n";
  print_flags(out);
  print_knot_vector(out);
  print_control_points(out);
  out << "StartParameter = " << m_start << "\n";
  out << "EndParameter = " << m_end << "\n";
  out << "UnitNormal = " << m_normal << "\n";
}

void igs126::print_flags(utOstream& out) const {
  igs_print_flag(out, "Planar = ", m_planar, 1);
  igs_print_flag(out, "Closed = ", m_closed, 1);
  igs_print_flag(out, "Rational = ", m_rational, 0);
  igs_print_flag(out, "Periodic = ", m_periodic, 1);
}

void igs126::print_knot_vector(utOstream& out) const {
  igs_print_knots(out, "KnotVector = {", m_values.data(), number_of_knots());
}

void igs126::print_control_points(utOstream& out) const {
  igs_print_list(out, "ControlPoints = {", m_size, [this](utOstream& o, int i) {
    giPoint3 point;
    control_point(i, point);
    o << point << "," << weight_at(i);
  });
}

// --- Checking ----------------------------------------------------------------------------

// Six groups, each raising what it finds; none stops the others.
void igs126::check_pd() const {
  check_curve_size();
  check_flags();
  check_knots();
  check_homogenous_control_points();
  check_parametric_limits();
  check_unit_normal();
}

void igs126::check_curve_size() const {
  if (!m_size) raise_error<igs126NoConstruct>();
  if (m_order < 2) raise_error<igs126BadDegree>(m_order - 1);
  if (m_size < 2) raise_error<igs126BadSumIndex>(m_size - 1);
}

// The test is unsigned, so a negative flag fails too.
void igs126::check_flags() const {
  auto valid = [](int flag) { return static_cast<unsigned>(flag) <= 1u; };
  if (!valid(m_planar)) raise_error<igs126InvalidPlanarFlag>(m_planar);
  if (!valid(m_closed)) raise_error<igs126InvalidClosedFlag>(m_closed);
  if (!valid(m_rational)) raise_error<igs126InvalidRationalFlag>(m_rational);
  if (!valid(m_periodic)) raise_error<igs126InvalidPeriodicFlag>(m_periodic);
}

void igs126::check_knots() const {
  check_knot_vector<igs126UnsetKnot, igs126KnotOutOfSequence, igs126MinParamOutOfRange,
                    igs126MaxParamOutOfRange, igs126NoParamRange, igs126KnotsTooClose>(
      m_values.data(), number_of_knots(), m_order, m_start, m_end);
}

// A curve of constant weights needs no test of each weight, and neither does a polynomial one
// (rational flag 1) of nearly constant weights.
void igs126::check_homogenous_control_points() const {
  for (int i = 0; i < m_size; ++i) {
    giPoint3 point;
    control_point(i, point);
    if (point.invalid()) raise_error<igs126UnsetControlPoint>(i);
  }
  if (!m_size) return;
  double tolerance = kvnTolCoincWeights.value();
  bool all_equal = true, near_equal = true;
  for (int i = 0; i < m_size; ++i) {
    all_equal = all_equal && weight_at(i) == weight_at(0);
    near_equal = near_equal && std::fabs(weight_at(i) - weight_at(0)) <= tolerance;
  }
  bool skipped = near_equal && (all_equal || m_rational != 0);
  if (!skipped) {
    double minimum = kvnTolMinValue.value();
    for (int i = 0; i < m_size; ++i) {
      if (std::fabs(weight_at(i)) < minimum)
        raise_error<igs126ZeroWeight>(i);
      else if (igs_unset(weight_at(i)))
        raise_error<igs126UnsetWeight>(i);
      else if (weight_at(i) < 0.0)
        raise_error<igs126NegativeWeight>(i, weight_at(i));
    }
  }
  if ((all_equal && m_rational == 0) || (!near_equal && m_rational == 1))
    raise_error<igs126WeightsAndRatFlagDisagree>(skipped ? 0 : 1);
}

void igs126::check_parametric_limits() const {
  if (igs_unset(m_start) || igs_unset(m_end)) raise_error<igs126UnsetTrimmingParams>();
  if (m_start >= m_end) raise_error<igs126TrimParamsOutOfSequence>(m_start, m_end);
}

void igs126::check_unit_normal() const {
  if (m_planar == 1 && m_normal.invalid()) raise_error<igs126InvalidUnitNormal>();
}

// --- Repairs -----------------------------------------------------------------------------

// Runs a repair on the curve that the error names. A curve that an earlier repair has turned
// into a null entity needs nothing more (1); a number that names no such curve any more
// gets nothing done (0).
template <class Repair> static int repair_curve(int key, Repair const& repair) {
  igsObjectPtr entity(key);
  if (entity && entity->isa(igsNull::type())) return 1;
  igs126* curve = igs_error_entity<igs126>(key);
  return curve ? repair(*curve) : 0;
}

// The first and the last knot of the curve's parameter range; 0 when the curve has none.
static int knot_range(igs126 const& curve, double& lo, double& hi) {
  int k = curve.order();
  int n = curve.number_of_knots();
  return k >= 1 && curve.knot(k - 1, lo) && curve.knot(n - k, hi);
}

int igs126InvalidClosedFlag::fix() {
  return repair_curve(key(), [](igs126& curve) {
    curve.set_closed_flag(0);
    return 1;
  });
}

int igs126InvalidRationalFlag::fix() {
  return repair_curve(key(), [](igs126& curve) {
    curve.set_rational_flag(1);
    return 1;
  });
}

int igs126InvalidPeriodicFlag::fix() {
  return repair_curve(key(), [](igs126& curve) {
    curve.set_periodic_flag(0);
    return 1;
  });
}

// A knot only a little below the greatest one before it joins that one as a multiple knot.
int igs126KnotOutOfSequence::fix() {
  return repair_curve(key(), [this](igs126& curve) {
    if (last() - knot() >= kvnTolCoincBreakPoints.value()) return 0;
    return curve.set_knot(index(), last());
  });
}

int igs126MinParamOutOfRange::fix() {
  return repair_curve(key(), [](igs126& curve) {
    double lo = 0.0, hi = 0.0, start = 0.0, end = 0.0;
    curve.parametric_limits(start, end);
    return knot_range(curve, lo, hi) && curve.set_parametric_limits(lo, end);
  });
}

int igs126MaxParamOutOfRange::fix() {
  return repair_curve(key(), [](igs126& curve) {
    double lo = 0.0, hi = 0.0, start = 0.0, end = 0.0;
    curve.parametric_limits(start, end);
    return knot_range(curve, lo, hi) && curve.set_parametric_limits(start, hi);
  });
}

int igs126TrimParamsOutOfSequence::fix() {
  return repair_curve(key(), [](igs126& curve) {
    double lo = 0.0, hi = 0.0;
    return knot_range(curve, lo, hi) && curve.set_parametric_limits(lo, hi);
  });
}

int igs126WeightsAndRatFlagDisagree::fix() {
  return repair_curve(key(), [this](igs126& curve) {
    curve.set_rational_flag(tested());
    return 1;
  });
}

int igs126KnotsTooClose::fix() {
  return repair_curve(key(), [](igs126& curve) {
    auto at = [&curve](int i) {
      double value = 0.0;
      curve.knot(i, value);
      return value;
    };
    igs_pull_close_knots(curve.order(), curve.number_of_knots(), at,
                         [&curve](int i, double value) { curve.set_knot(i, value); });
    return 1;
  });
}

// A curve without a parameter range is no curve: a null entity takes its place, DE number and
// references. The error stays active, so that whatever holds the curve lets it go and
// clean(1) deletes the null entity.
int igs126NoParamRange::fix() {
  igs126* curve = igs_error_entity<igs126>(key());
  if (!curve) return 0;
  igsObject* null_entity = new (std::nothrow) igsNull;
  if (!null_entity) return 0;
  curve->file().replace_entity(curve, null_entity);
  message("Warning : IGES 126 (Nurb Curve) DE %d has been removed.\n", key());
  return 0;
}
