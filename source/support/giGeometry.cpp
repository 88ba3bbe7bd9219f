#include "support/giGeometry.h"

#include <cstring>

int giVector2::unitize() {
  double len = length();
  if (len == 0.0) return 0;
  m_x /= len;
  m_y /= len;
  return 1;
}

int giVector3::unitize() {
  double len = length();
  if (len == 0.0) return 0;
  m_x /= len;
  m_y /= len;
  m_z /= len;
  return 1;
}

giVector3 giVector3::orthogonal() const {
  // Cross with the axis least aligned with this vector.
  double ax = std::fabs(m_x), ay = std::fabs(m_y), az = std::fabs(m_z);
  giVector3 axis = (ax <= ay && ax <= az) ? giVector3(1, 0, 0)
                   : (ay <= az)           ? giVector3(0, 1, 0)
                                          : giVector3(0, 0, 1);
  return cross(axis);
}

int giPoint2::coincident(giPoint2 const& o, double tolerance) const {
  return (*this - o).length() <= tolerance;
}

int giPoint3::coincident(giPoint3 const& o, double tolerance) const {
  return (*this - o).length() <= tolerance;
}

giLength distance(giPoint2 const& a, giPoint2 const& b) {
  giVector2 d = a - b;
  giLength l;
  l.become(giLengthSquaredTag, d.dot(d));
  return l;
}

giLength distance(giPoint3 const& a, giPoint3 const& b) {
  giVector3 d = a - b;
  giLength l;
  l.become(giLengthSquaredTag, d.dot(d));
  return l;
}

giMatrix4::giMatrix4() {
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 4; ++c) m_m[r][c] = r == c ? 1.0 : 0.0;
}

void giMatrix4::copy(double const (*values)[4]) {
  std::memcpy(m_m, values, sizeof m_m);
}

void giMatrix4::become(double const (*values)[4]) {
  copy(values);
}

void giMatrix4::become(giMatrixTranspose, giMatrix4 const& other) {
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 4; ++c) m_m[r][c] = other.m_m[c][r];
}

void giMatrix4::transpose() {
  for (int r = 0; r < 4; ++r)
    for (int c = r + 1; c < 4; ++c) {
      double t = m_m[r][c];
      m_m[r][c] = m_m[c][r];
      m_m[c][r] = t;
    }
}

giXform3::giXform3() : m_invalid(1), m_identity(0) {}

giXform3::giXform3(giXformIdentity) : m_invalid(0), m_identity(1) {}

giXform3::giXform3(giXformScale, double sx, double sy, double sz) : m_invalid(0), m_identity(0) {
  m_matrix(0, 0) = sx;
  m_matrix(1, 1) = sy;
  m_matrix(2, 2) = sz;
}

giXform3::giXform3(giXformTranslate, double tx, double ty, double tz)
    : m_invalid(0), m_identity(0) {
  m_matrix(0, 3) = tx;
  m_matrix(1, 3) = ty;
  m_matrix(2, 3) = tz;
}

void giXform3::become(giXformProduct, giXform3 const& a, giXform3 const& b) {
  giMatrix4 product;
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 4; ++c) {
      double sum = 0.0;
      for (int k = 0; k < 4; ++k) sum += a.m_matrix(r, k) * b.m_matrix(k, c);
      product(r, c) = sum;
    }
  m_matrix = product;
  m_invalid = a.m_invalid || b.m_invalid;
  m_identity = a.m_identity && b.m_identity;
}

giPoint3 giXform3::apply(giPoint3 const& p) const {
  auto const& m = m_matrix;
  return {m(0, 0) * p.x() + m(0, 1) * p.y() + m(0, 2) * p.z() + m(0, 3),
          m(1, 0) * p.x() + m(1, 1) * p.y() + m(1, 2) * p.z() + m(1, 3),
          m(2, 0) * p.x() + m(2, 1) * p.y() + m(2, 2) * p.z() + m(2, 3)};
}

giVector3 giXform3::apply(giVector3 const& v) const {
  auto const& m = m_matrix;
  return {m(0, 0) * v.x() + m(0, 1) * v.y() + m(0, 2) * v.z(),
          m(1, 0) * v.x() + m(1, 1) * v.y() + m(1, 2) * v.z(),
          m(2, 0) * v.x() + m(2, 1) * v.y() + m(2, 2) * v.z()};
}

void giXform3Acc::become(double const (*values)[4], int rows) {
  if (!m_xform) return;
  for (int r = 0; r < rows && r < 4; ++r)
    for (int c = 0; c < 4; ++c) m_xform->m_matrix(r, c) = values[r][c];
  m_xform->m_invalid = 0;
  m_xform->m_identity = 0;
}

void giXform3Acc::set_matrix_value(int r, int c, double value) {
  if (!m_xform || r < 0 || r > 3 || c < 0 || c > 3) return;
  m_xform->m_matrix(r, c) = value;
  m_xform->m_invalid = 0;
}
