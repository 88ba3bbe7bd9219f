// The rational B-spline surface (type 128, forms 0 to 9): a tensor product of control points
// with weights over a knot vector in U and one in V, and the stretch of each parameter that the
// surface uses. Control point (i, j) has U index i and V index j.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"
#include "entities/igsSpline.h"
#include "support/coNames.h"

class igs128 : public igsSplineEntity<igsParameterizedSurface> {
  IGS_ENTITY_CLASS(igs128)

  // The two parameter directions.
  enum Direction { U = 0, V = 1 };

  // Sizes the surface, once: 1 when both orders are at least 1 and each count of control
  // points at least its order, on a surface that has no size yet, with every knot, weight and
  // control point unset; else 0 and nothing changes.
  int set_order_size(int order_u, int order_v, int n_u, int n_v);
  int order_u() const { return m_order[U]; }
  int order_v() const { return m_order[V]; }
  int order(Direction d) const { return m_order[d]; }
  // 0 while the surface has no size.
  int number_of_control_points_u() const { return m_size[U]; }
  int number_of_control_points_v() const { return m_size[V]; }
  int number_of_knots_u() const { return number_of_knots(U); }
  int number_of_knots_v() const { return number_of_knots(V); }
  int number_of_knots(Direction d) const { return m_size[d] ? m_size[d] + m_order[d] : 0; }

  // Give the knot on an index in range and leave `value` alone else; 1 either way.
  int knot_u(int index, double& value) const { return knot(U, index, value); }
  int knot_v(int index, double& value) const { return knot(V, index, value); }
  int knot(Direction d, int index, double& value) const;
  // 1 on an index in range; else 0 and nothing done. The values are not tested.
  int set_knot_u(int index, double value) { return set_knot(U, index, value); }
  int set_knot_v(int index, double value) { return set_knot(V, index, value); }
  int set_knot(Direction d, int index, double value);
  int control_point(int i, int j, giPoint3& point) const;
  int set_control_point(int i, int j, giPoint3 const& point);
  int weight(int i, int j, double& value) const;
  int set_weight(int i, int j, double value);

  void parametric_limits_u(double& start, double& end) const { parametric_limits(U, start, end); }
  void parametric_limits_v(double& start, double& end) const { parametric_limits(V, start, end); }
  void parametric_limits(Direction d, double& start, double& end) const {
    start = m_start[d];
    end = m_end[d];
  }
  // Store both and give 1 when end >= start; else 0 and nothing changes.
  int set_parametric_limits_u(double start, double end) {
    return set_parametric_limits(U, start, end);
  }
  int set_parametric_limits_v(double start, double end) {
    return set_parametric_limits(V, start, end);
  }
  int set_parametric_limits(Direction d, double start, double end);

  // The flags as the file holds them, valid or not. The rational flag keeps the file's sense:
  // 0 rational, 1 polynomial.
  int closed_flag_u() const { return m_closed[U]; }
  int closed_flag_v() const { return m_closed[V]; }
  int rational_flag() const { return m_rational; }
  int periodic_flag_u() const { return m_periodic[U]; }
  int periodic_flag_v() const { return m_periodic[V]; }
  // 1 for a true value, 0 for a false one.
  void set_closed_flag_u(int closed) { m_closed[U] = closed != 0; }
  void set_closed_flag_v(int closed) { m_closed[V] = closed != 0; }
  void set_closed_flag(Direction d, int closed) { m_closed[d] = closed != 0; }
  void set_periodic_flag_u(int periodic) { m_periodic[U] = periodic != 0; }
  void set_periodic_flag_v(int periodic) { m_periodic[V] = periodic != 0; }
  void set_periodic_flag(Direction d, int periodic) { m_periodic[d] = periodic != 0; }
  // Takes whether the surface is rational and stores the file's sense of it.
  void set_rational_flag(int rational) { m_rational = rational == 0; }

 protected:
  int read_surface_size(igsInStream& in);
  int read_flags(igsInStream& in);
  int read_knot_vectors(igsInStream& in);
  int read_homogenous_control_points(igsInStream& in);
  int read_parametric_limits(igsInStream& in);

  void check_surface_size() const;
  void check_flags() const;
  void check_knot_vectors() const;
  void check_homogenous_control_points() const;
  void check_parametric_limits() const;

  void print_flags(utOstream& out) const;
  void print_knot_vectors(utOstream& out) const;
  void print_control_points(utOstream& out) const;
  void print_parametric_limits(utOstream& out) const;

 private:
  // Gives the surface its orders and sizes with room for `room` values, all unset.
  int size_surface(int order_u, int order_v, int n_u, int n_v, int room);
  // A record that ends before its values do (`ended`) has sizes it does not hold: the surface
  // has no size again. Gives 0.
  int lose_size(int ended);
  int points() const { return m_size[U] * m_size[V]; }
  int index_of(int i, int j) const {
    return i >= 0 && i < m_size[U] && j >= 0 && j < m_size[V] ? j * m_size[U] + i : -1;
  }
  int first_knot(Direction d) const { return d == U ? 0 : number_of_knots(U); }
  int first_weight() const { return number_of_knots(U) + number_of_knots(V); }
  double const* knots(Direction d) const { return m_values.data() + first_knot(d); }
  double weight_at(int at) const { return igs_weight(m_values, first_weight(), points(), at); }
  int first_coordinate() const { return igs_first_coordinate(m_values, first_weight(), points()); }
  double const* coordinates() const { return m_values.data() + first_coordinate(); }

  int m_closed[2] = {0, 0};
  int m_rational = 1;
  int m_periodic[2] = {0, 0};
  double m_start[2] = {igs_unset_double, igs_unset_double};
  double m_end[2] = {igs_unset_double, igs_unset_double};
  int m_order[2] = {igs_unset_int, igs_unset_int};
  int m_size[2] = {0, 0};
  // The knots in U, in V, the weights, then X, Y, Z of each control point, U index fastest:
  // the order of the parameters, in one store, made once by set_order_size or reading. Weights
  // all 1 are not kept.
  doublecoDynArr m_values;
};
