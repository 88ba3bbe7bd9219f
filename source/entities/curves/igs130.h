// The offset curve (type 130): a curve at a distance from a basis curve, in the plane of a
// normal, between two parameters of the basis curve. The distance is uniform, varies linearly
// or is given by a coordinate of a function curve; a varying distance tapers by arc length or
// by parameter. The fields are set as a whole, one way of offsetting at a time.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"

enum igsOffsetDistanceType : int {
  igsOffsetUniform = 1,
  igsOffsetLinear = 2,
  igsOffsetFunction = 3
};
enum igsOffsetDistanceTaperType : int {
  igsOffsetTaperNone = 0,
  igsOffsetTaperArcLength = 1,
  igsOffsetTaperParametric = 2
};

class igs130 : public igsCurve {
  IGS_ENTITY_CLASS(igs130)

  igsObjectPtr const& basis_curve() const { return m_basis; }
  int offset_distance_type() const { return m_type; }
  igsObjectPtr const& function_curve() const { return m_function; }
  int function_curve_index() const { return m_index; }
  int offset_distance_taper_type() const { return m_taper; }
  double first_offset_distance() const { return m_d1; }
  double first_offset_amount() const { return m_td1; }
  double second_offset_distance() const { return m_d2; }
  double second_offset_amount() const { return m_td2; }
  giVector3 const& plane_normal() const { return m_normal; }
  double start_parameter() const { return m_start; }
  double end_parameter() const { return m_end; }

  // Each stores every field, with no checks; what the way of offsetting does not use is null
  // or unset (and written as 0).
  void set_uniform_offset(igsObjectPtr const& basis, double distance, double start, double end,
                          giVector3 const& normal);
  void set_linear_varying_arc_length_offset(igsObjectPtr const& basis, double d1, double td1,
                                            double d2, double td2, double start, double end,
                                            giVector3 const& normal);
  void set_linear_varying_parametric_offset(igsObjectPtr const& basis, double d1, double td1,
                                            double d2, double td2, double start, double end,
                                            giVector3 const& normal);
  void set_function_varying_arc_length_offset(igsObjectPtr const& basis,
                                              igsObjectPtr const& function, int index, double start,
                                              double end, giVector3 const& normal);
  void set_function_varying_parametric_offset(igsObjectPtr const& basis,
                                              igsObjectPtr const& function, int index, double start,
                                              double end, giVector3 const& normal);

 protected:
  void unreference_children() override;
  void set_plane_normal(giVector3 const& normal) { m_normal = normal; }

 private:
  friend class igs130PlaneNormalNotUnitVector;
  // Stores all fields in the order of the parameters.
  void set_all(igsObjectPtr const& basis, int type, igsObjectPtr const& function, int index,
               int taper, double d1, double td1, double d2, double td2, giVector3 const& normal,
               double start, double end);

  igsObjectPtr m_basis;
  int m_type = 0;
  igsObjectPtr m_function;
  int m_index = igs_unset_int;
  int m_taper = 0;
  double m_d1 = igs_unset_double;
  double m_td1 = igs_unset_double;
  double m_d2 = igs_unset_double;
  double m_td2 = igs_unset_double;
  giVector3 m_normal;
  double m_start = igs_unset_double;
  double m_end = igs_unset_double;
};
