#include "entities/curves/igs130.h"

#include "entities/curves/igsCurveErrors.h"
#include "entities/igsChildCheck.h"

IGS_ENTITY_DEFINE(igs130, igsCurve, 130, 0, IGS_DE_ALL)

void igs130::set_all(igsObjectPtr const& basis, int type, igsObjectPtr const& function, int index,
                     int taper, double d1, double td1, double d2, double td2,
                     giVector3 const& normal, double start, double end) {
  m_basis = basis;
  m_type = type;
  m_function = function;
  m_index = index;
  m_taper = taper;
  m_d1 = d1;
  m_td1 = td1;
  m_d2 = d2;
  m_td2 = td2;
  m_normal = normal;
  m_start = start;
  m_end = end;
}

void igs130::set_uniform_offset(igsObjectPtr const& basis, double distance, double start,
                                double end, giVector3 const& normal) {
  set_all(basis, igsOffsetUniform, igsObjectPtr(), igs_unset_int, igsOffsetTaperNone, distance,
          igs_unset_double, igs_unset_double, igs_unset_double, normal, start, end);
}

void igs130::set_linear_varying_arc_length_offset(igsObjectPtr const& basis, double d1, double td1,
                                                  double d2, double td2, double start, double end,
                                                  giVector3 const& normal) {
  set_all(basis, igsOffsetLinear, igsObjectPtr(), igs_unset_int, igsOffsetTaperArcLength, d1, td1,
          d2, td2, normal, start, end);
}

void igs130::set_linear_varying_parametric_offset(igsObjectPtr const& basis, double d1, double td1,
                                                  double d2, double td2, double start, double end,
                                                  giVector3 const& normal) {
  set_all(basis, igsOffsetLinear, igsObjectPtr(), igs_unset_int, igsOffsetTaperParametric, d1, td1,
          d2, td2, normal, start, end);
}

void igs130::set_function_varying_arc_length_offset(igsObjectPtr const& basis,
                                                    igsObjectPtr const& function, int index,
                                                    double start, double end,
                                                    giVector3 const& normal) {
  set_all(basis, igsOffsetFunction, function, index, igsOffsetTaperArcLength, igs_unset_double,
          igs_unset_double, igs_unset_double, igs_unset_double, normal, start, end);
}

void igs130::set_function_varying_parametric_offset(igsObjectPtr const& basis,
                                                    igsObjectPtr const& function, int index,
                                                    double start, double end,
                                                    giVector3 const& normal) {
  set_all(basis, igsOffsetFunction, function, index, igsOffsetTaperParametric, igs_unset_double,
          igs_unset_double, igs_unset_double, igs_unset_double, normal, start, end);
}

void igs130::unreference_children() {
  igsObject::unreference_children();
  m_basis.unreference();
  m_function.unreference();
}

// Stored as read.
int igs130::read_pd_data(igsInStream& in) {
  igs_read_fields(in, m_basis, m_type, m_function, m_index, m_taper, m_d1, m_td1, m_d2, m_td2,
                  m_normal, m_start, m_end);
  return 1;
}

// The fields in the order of reading, the references as DE numbers. A field that the way of
// offsetting leaves unset goes out as 0, as a file that leaves it out gives it.
template <class T> static T or_zero(T value) {
  return igs_unset(value) ? T(0) : value;
}

void igs130::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_basis, m_type, m_function, or_zero(m_index), m_taper, or_zero(m_d1),
                   or_zero(m_td1), or_zero(m_d2), or_zero(m_td2), m_normal, m_start, m_end);
}

void igs130::print_pd_data(utOstream& out) const {
  igs_print_reference(out, "BaseCurve", m_basis);
  out << "OffsetDistanceType = " << m_type << "\n";
  igs_print_reference(out, "FunctionCurve", m_function);
  out << "FunctionCurveCoordIndex = " << m_index << "\n";
  out << "TaperType = " << m_taper << "\n";
  out << "FirstOffsetDistance = " << m_d1 << "\n";
  out << "FirstOffsetAmount = " << m_td1 << "\n";
  out << "SecondOffsetDistance = " << m_d2 << "\n";
  out << "SecondOffsetAmount = " << m_td2 << "\n";
  out << "PlaneNormal = " << m_normal << "\n";
  out << "StartParameter = " << m_start << "\n";
  out << "EndParameter = " << m_end << "\n";
}

// The normal must be a unit vector exactly: no tolerance. The fields that the way of
// offsetting does not use must hold 0, as a file that leaves them out gives them.
void igs130::check_pd() const {
  igs_check_child(
      m_basis, igs_kind_of<igsCurve>, 0, [&] { raise_error<igs130NullBasisCurvePtr>(); },
      [&] { raise_error<igs130InvalidBasisCurveType>(); },
      [&] { raise_error<igs130InvalidBasisCurveData>(); });
  double length = m_normal.invalid() ? 0.0 : m_normal.length();
  if (m_normal.invalid() || length == 0.0) raise_error<igs130InvalidPlaneNormal>();
  if (length != 1.0) raise_error<igs130PlaneNormalNotUnitVector>();
  if (!(m_start < m_end)) raise_error<igs130InvalidStartEndParameters>();
  if (static_cast<unsigned>(m_type) - 1u > 2u) raise_error<igs130InvalidOffsetDistanceFlag>();
  if (static_cast<unsigned>(m_taper) > 2u) raise_error<igs130InvalidTaperedOffsetFlag>();
  switch (m_type) {
  case igsOffsetUniform:
    if (m_function) raise_error<igs130FieldMismatch>();
    if (m_index != 0) raise_error<igs130FieldMismatch>();
    if (m_td1 != 0.0 || m_td2 != 0.0) raise_error<igs130FieldMismatch>();
    break;
  case igsOffsetLinear:
    if (m_function) raise_error<igs130FieldMismatch>();
    if (m_index != 0) raise_error<igs130FieldMismatch>();
    if (m_d1 == 0.0)
      raise_error<igs130InvalidOffsetDistance1>();
    else if (m_td1 == 0.0)
      raise_error<igs130InvalidOffsetAmount1>();
    else if (m_d2 == 0.0)
      raise_error<igs130InvalidOffsetDistance2>();
    else if (m_td2 == 0.0)
      raise_error<igs130InvalidOffsetAmount2>();
    break;
  case igsOffsetFunction:
    igs_check_child(
        m_function, igs_kind_of<igsCurve>, 0, [&] { raise_error<igs130NullFunctionCurvePtr>(); },
        [&] { raise_error<igs130InvalidFunctionCurveType>(); },
        [&] { raise_error<igs130InvalidFunctionCurveData>(); });
    if (m_index < 1) raise_error<igs130InvalidCoordIndex>();
    if (m_d1 != 0.0 || m_td1 != 0.0 || m_d2 != 0.0 || m_td2 != 0.0)
      raise_error<igs130FieldMismatch>();
    break;
  default:
    break;
  }
}

// A basis or function curve that fails its check names no entity to wait for.
int igs130InvalidBasisCurveData::obj() {
  return 0;
}
int igs130InvalidFunctionCurveData::obj() {
  return 0;
}

int igs130PlaneNormalNotUnitVector::fix() {
  igs130* curve = igs_error_entity<igs130>(key());
  if (!curve || curve->plane_normal().invalid()) return 0;
  giVector3 unit = giUnitVec3(curve->plane_normal());
  curve->set_plane_normal(unit);
  return unit.length() == 1.0;
}
