// The rational B-spline curve (type 126, forms 0 to 5): control points with weights over a
// knot vector, and the stretch of the parameter range that the curve uses.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"
#include "entities/igsSpline.h"
#include "support/coNames.h"

class igs126 : public igsSplineEntity<igsCurve> {
  IGS_ENTITY_CLASS(igs126)

  // Sizes the curve, once: 1 when order >= 1 and size (the number of control points) >=
  // order on a curve that has no size yet, with every knot, weight and control point unset;
  // else 0 and nothing changes.
  int set_order_size(int order, int size);
  // 0 while the curve has no size.
  int number_of_control_points() const { return m_size; }
  int number_of_knots() const { return m_size ? m_size + m_order : 0; }
  int order() const { return m_order; }

  // 1 on an index in range; else 0 and nothing done. The values are not tested.
  int knot(int index, double& value) const;
  int set_knot(int index, double value);
  int weight(int index, double& value) const;
  int set_weight(int index, double value);
  int control_point(int index, giPoint3& point) const;
  int set_control_point(int index, giPoint3 const& point);

  void parametric_limits(double& start, double& end) const {
    start = m_start;
    end = m_end;
  }
  // Stores both and gives 1 when end >= start; else 0 and nothing changes.
  int set_parametric_limits(double start, double end);
  giVector3 const& unit_normal() const { return m_normal; }
  int set_unit_normal(giVector3 const& normal) { return igs_set_valid(m_normal, normal); }

  // The flags as the file holds them, valid or not. The rational flag keeps the file's sense:
  // 0 rational, 1 polynomial.
  int planar_flag() const { return m_planar; }
  int closed_flag() const { return m_closed; }
  int rational_flag() const { return m_rational; }
  int periodic_flag() const { return m_periodic; }
  // 1 for a true value, 0 for a false one.
  void set_planar_flag(int planar) { m_planar = planar != 0; }
  void set_closed_flag(int closed) { m_closed = closed != 0; }
  void set_periodic_flag(int periodic) { m_periodic = periodic != 0; }
  // Takes whether the curve is rational and stores the file's sense of it.
  void set_rational_flag(int rational) { m_rational = rational == 0; }

 protected:
  int read_curve_size(igsInStream& in);
  int read_flags(igsInStream& in);
  int read_knots(igsInStream& in);
  int read_homogenous_control_points(igsInStream& in);
  int read_parametric_limits(igsInStream& in);
  int read_unit_normal(igsInStream& in);

  void check_curve_size() const;
  void check_flags() const;
  void check_knots() const;
  void check_homogenous_control_points() const;
  void check_parametric_limits() const;
  void check_unit_normal() const;

  void print_flags(utOstream& out) const;
  void print_knot_vector(utOstream& out) const;
  void print_control_points(utOstream& out) const;

 private:
  // Gives the curve its order and size with room for `room` values, all unset.
  int size_curve(int order, int size, int room);
  // A record that ends before its values do (`ended`) has a count it does not hold: the curve
  // has no size again. Gives 0.
  int lose_size(int ended);
  int index_in(int index, int count) const { return index >= 0 && index < count; }
  double weight_at(int index) const {
    return igs_weight(m_values, number_of_knots(), m_size, index);
  }
  int first_coordinate() const { return igs_first_coordinate(m_values, number_of_knots(), m_size); }
  double const* coordinates() const { return m_values.data() + first_coordinate(); }

  int m_planar = 0;
  int m_closed = 0;
  int m_rational = 1;
  int m_periodic = 0;
  double m_start = igs_unset_double;
  double m_end = igs_unset_double;
  giVector3 m_normal;
  int m_order = igs_unset_int;
  int m_size = 0;
  // The knots, the weights, then X, Y, Z of each control point: the order of the parameters,
  // in one store, made once by set_order_size or reading. Weights all 1 are not kept.
  doublecoDynArr m_values;
};
