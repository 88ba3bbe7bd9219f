#include "entities/structure/igs124.h"

#include "entities/structure/igsStructureErrors.h"

#include <cmath>

// A matrix may be transformed by a matrix of its own; line font, level, colour and line
// weight mean nothing to it.
IGS_ENTITY_DEFINE(igs124, igsObject, 124, 0, IGS_DE_MATRIX | IGS_DE_STATUS | IGS_DE_SUBSCRIPT)

giXform3 igs124::initial_transform() {
  giXform3 transform(giXformIdentityTag);
  giXform3Acc access;
  access.access(transform);
  access.set_matrix_value(3, 3, igs_unset_double);
  access.cancel_identity();
  return transform;
}

void igs124::matrix(double (*m)[4]) const {
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 4; ++c) m[r][c] = m_transform.value(r, c);
}

void igs124::set_matrix(double const (*m)[4]) {
  giXform3Acc access;
  access.access(m_transform);
  access.become(m, 4);
}

double igs124::determinant() const {
  return column(0).dot(column(1).cross(column(2)));
}

// Three rows of four: the rotation part and the translation, row by row.
int igs124::read_pd_data(igsInStream& in) {
  double m[4][4] = {{0.0}, {0.0}, {0.0}, {0.0, 0.0, 0.0, 1.0}};
  for (int r = 0; r < 3; ++r)
    for (double& value : m[r]) in.read_double(value);
  set_matrix(m);
  return 1;
}

void igs124::write_pd_data(igsOutStream& out) {
  igsParametricFormat parametric(out);
  for (int r = 0; r < 3; ++r)
    for (int c = 0; c < 4; ++c) out.write_double(m_transform.value(r, c));
}

void igs124::print_pd_data(utOstream& out) const {
  out << "Transform = {\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    for (int r = 0; r < 4; ++r) {
      for (int c = 0; c < 4; ++c) {
        nested << m_transform.value(r, c);
        if (r < 3 || c < 3) nested << ",";
      }
      nested << "\n";
    }
  }
  out << "}\n";
}

// The determinant is held to the form with one tolerance, the lengths of the columns to 1
// with another.
void igs124::check_pd() const {
  double corner = m_transform.value(3, 3);
  if (corner != 1.0) raise_error<igs124NotHomogenous>(corner);
  double d = determinant();
  double tolerance = kvnTolMinValue.value();
  int form = directory_entry().form_number();
  if (form == 0 && std::fabs(d - 1.0) > tolerance) raise_error<igs124InvalidRHS>(d);
  if (form == 1 && std::fabs(d + 1.0) > tolerance) raise_error<igs124InvalidLHS>(d);
  double unit = kvnTolRigidTransformDeterminant.value();
  for (int c = 0; c < 3; ++c)
    if (std::fabs(column(c).length() - 1.0) > unit) {
      raise_error<igs124InvalidUnitVectors>();
      break;
    }
}

// With rigid transforms asked for, a determinant near 1 or -1 makes the rotation part exact
// (the first and third columns unit, the second their cross product, of the handedness of
// the determinant) and the form follows it. Otherwise the matrix stays as it is, and only the
// form follows the sign of the determinant.
int igs124::repair_handedness(int left_handed_error, double d) {
  igsDirectoryEntry& de = directory_entry();
  if (!kvnOptRigidTransforms.value()) {
    if (d == 0.0) return 0;
    if (left_handed_error && d > 0.0) de.set_form_number(0);
    if (!left_handed_error && d < 0.0) de.set_form_number(1);
    return 1;
  }
  double near = 100.0 * kvnTolRigidTransformDeterminant.value();
  double sign = 0.0;
  if (d > 0.0 && std::fabs(d - 1.0) < near)
    sign = 1.0;
  else if (d < 0.0 && std::fabs(d + 1.0) < near)
    sign = -1.0;
  else
    return 0;
  giVector3 c0 = column(0), c2 = column(2);
  c0.unitize();
  c2.unitize();
  giVector3 c1 = c2.cross(c0) * sign;
  double m[4][4];
  matrix(m);
  giVector3 const columns[3] = {c0, c1, c2};
  for (int c = 0; c < 3; ++c) {
    m[0][c] = columns[c].x();
    m[1][c] = columns[c].y();
    m[2][c] = columns[c].z();
  }
  set_matrix(m);
  if (left_handed_error && sign > 0.0) de.set_form_number(0);
  if (!left_handed_error && sign < 0.0) de.set_form_number(1);
  return 1;
}

int igs124InvalidRHS::fix() {
  igs124* matrix = igs_error_entity<igs124>(key());
  return matrix && matrix->repair_handedness(0, determinant());
}

int igs124InvalidLHS::fix() {
  igs124* matrix = igs_error_entity<igs124>(key());
  return matrix && matrix->repair_handedness(1, determinant());
}

// Changes nothing: with rigid transforms asked for, the handedness repair makes the columns
// unit; without, columns of a usable length are accepted as they are.
int igs124InvalidUnitVectors::fix() {
  igs124* matrix = igs_error_entity<igs124>(key());
  if (!matrix) return 0;
  if (kvnOptRigidTransforms.value()) return 1;
  double product = 1.0;
  for (int c = 0; c < 3; ++c) product *= matrix->column(c).length();
  return product > kvnTolRigidTransformDeterminant.value();
}
