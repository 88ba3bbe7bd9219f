// Geometric value classes: points, vectors, lengths, angles and transforms.
// A default-constructed point or vector is unset: its X holds the most negative finite
// double, which `invalid()` tests.
#pragma once

#include <cfloat>
#include <cmath>

inline constexpr double gi_unset_double = -DBL_MAX;

class giLength;

class giVector2 {
 public:
  constexpr giVector2() = default;
  constexpr giVector2(double x, double y) : m_x(x), m_y(y) {}
  constexpr double x() const { return m_x; }
  constexpr double y() const { return m_y; }
  double length() const { return std::hypot(m_x, m_y); }
  constexpr double dot(giVector2 const& o) const { return m_x * o.m_x + m_y * o.m_y; }
  // Z of the cross product.
  constexpr double cross(giVector2 const& o) const { return m_x * o.m_y - m_y * o.m_x; }
  // Scales to unit length; returns 0 and leaves a zero vector alone.
  int unitize();
  // The vector turned a quarter turn counter-clockwise.
  constexpr giVector2 orthogonal() const { return {-m_y, m_x}; }
  constexpr giVector2 operator-() const { return {-m_x, -m_y}; }
  constexpr giVector2 operator+(giVector2 const& o) const { return {m_x + o.m_x, m_y + o.m_y}; }
  constexpr giVector2 operator-(giVector2 const& o) const { return {m_x - o.m_x, m_y - o.m_y}; }
  constexpr giVector2 operator*(double s) const { return {m_x * s, m_y * s}; }
  constexpr giVector2 operator/(double s) const { return {m_x / s, m_y / s}; }
  constexpr bool operator==(giVector2 const&) const = default;
  constexpr int invalid() const { return m_x == gi_unset_double; }

 private:
  double m_x = gi_unset_double;
  double m_y = gi_unset_double;
};

class giVector3 {
 public:
  constexpr giVector3() = default;
  constexpr giVector3(double x, double y, double z) : m_x(x), m_y(y), m_z(z) {}
  constexpr double x() const { return m_x; }
  constexpr double y() const { return m_y; }
  constexpr double z() const { return m_z; }
  double length() const { return std::sqrt(dot(*this)); }
  constexpr double dot(giVector3 const& o) const { return m_x * o.m_x + m_y * o.m_y + m_z * o.m_z; }
  constexpr giVector3 cross(giVector3 const& o) const {
    return {m_y * o.m_z - m_z * o.m_y, m_z * o.m_x - m_x * o.m_z, m_x * o.m_y - m_y * o.m_x};
  }
  int unitize();
  // Some vector at right angles to this one.
  giVector3 orthogonal() const;
  constexpr giVector3 operator-() const { return {-m_x, -m_y, -m_z}; }
  constexpr giVector3 operator+(giVector3 const& o) const {
    return {m_x + o.m_x, m_y + o.m_y, m_z + o.m_z};
  }
  constexpr giVector3 operator-(giVector3 const& o) const {
    return {m_x - o.m_x, m_y - o.m_y, m_z - o.m_z};
  }
  constexpr giVector3 operator*(double s) const { return {m_x * s, m_y * s, m_z * s}; }
  constexpr giVector3 operator/(double s) const { return {m_x / s, m_y / s, m_z / s}; }
  constexpr bool operator==(giVector3 const&) const = default;
  constexpr int invalid() const { return m_x == gi_unset_double; }

 private:
  double m_x = gi_unset_double;
  double m_y = gi_unset_double;
  double m_z = gi_unset_double;
};

// A vector of unit length.
class giUnitVec3 {
 public:
  explicit giUnitVec3(giVector3 const& v) : m_v(v) { m_v.unitize(); }
  operator giVector3 const&() const { return m_v; }

 private:
  giVector3 m_v;
};

class giPoint2 {
 public:
  constexpr giPoint2() = default;
  constexpr giPoint2(double x, double y) : m_x(x), m_y(y) {}
  constexpr double x() const { return m_x; }
  constexpr double y() const { return m_y; }
  constexpr int invalid() const {
    return m_x == gi_unset_double || m_x == DBL_MAX || m_y == DBL_MAX;
  }
  int coincident(giPoint2 const& o, double tolerance) const;
  constexpr giVector2 operator-(giPoint2 const& o) const { return {m_x - o.m_x, m_y - o.m_y}; }
  constexpr giPoint2 operator+(giVector2 const& v) const { return {m_x + v.x(), m_y + v.y()}; }
  constexpr giPoint2 operator-(giVector2 const& v) const { return {m_x - v.x(), m_y - v.y()}; }
  constexpr bool operator==(giPoint2 const&) const = default;

 private:
  double m_x = gi_unset_double;
  double m_y = gi_unset_double;
};

class giPoint3 {
 public:
  constexpr giPoint3() = default;
  constexpr giPoint3(double x, double y, double z) : m_x(x), m_y(y), m_z(z) {}
  constexpr double x() const { return m_x; }
  constexpr double y() const { return m_y; }
  constexpr double z() const { return m_z; }
  constexpr int invalid() const {
    return m_x == gi_unset_double || m_x == DBL_MAX || m_y == DBL_MAX || m_z == DBL_MAX;
  }
  int coincident(giPoint3 const& o, double tolerance) const;
  constexpr giVector3 operator-(giPoint3 const& o) const {
    return {m_x - o.m_x, m_y - o.m_y, m_z - o.m_z};
  }
  constexpr giPoint3 operator+(giVector3 const& v) const {
    return {m_x + v.x(), m_y + v.y(), m_z + v.z()};
  }
  constexpr giPoint3 operator-(giVector3 const& v) const {
    return {m_x - v.x(), m_y - v.y(), m_z - v.z()};
  }
  constexpr bool operator==(giPoint3 const&) const = default;

 private:
  double m_x = gi_unset_double;
  double m_y = gi_unset_double;
  double m_z = gi_unset_double;
};

enum giLengthSquared { giLengthSquaredTag = 0 };

// A length. A value below 0 holds the negated square of the length; the first conversion to
// double takes the root, so comparing squared distances never needs one.
class giLength {
 public:
  constexpr giLength() = default;
  constexpr explicit giLength(double value) : m_value(value) {}
  void become(giLengthSquared, double square) { m_value = -square; }
  operator double() const { return l_validate(); }
  double l_validate() const {
    if (m_value < 0 && m_value != gi_unset_double) m_value = std::sqrt(-m_value);
    return m_value;
  }
  int invalid() const { return m_value == gi_unset_double; }
  giLength& operator*=(double s) {
    m_value = l_validate() * s;
    return *this;
  }
  giLength operator*(double s) const { return giLength(l_validate() * s); }
  bool operator<(giLength const& o) const { return l_validate() < o.l_validate(); }
  bool operator>(giLength const& o) const { return l_validate() > o.l_validate(); }
  bool operator<=(giLength const& o) const { return l_validate() <= o.l_validate(); }
  bool operator>=(giLength const& o) const { return l_validate() >= o.l_validate(); }
  bool operator==(giLength const& o) const { return l_validate() == o.l_validate(); }

 private:
  mutable double m_value = gi_unset_double;
};

giLength distance(giPoint2 const& a, giPoint2 const& b);
giLength distance(giPoint3 const& a, giPoint3 const& b);

enum giAngle0 { giAngle0Tag = 0 };
enum giAngle90 { giAngle90Tag = 0 };
enum giAngleRadians { giAngleRadiansTag = 0 };
enum giAngleTangent { giAngleTangentTag = 0 };
enum giAngleType { giAngleTypeTag = 0 };

// An angle, held in radians.
class giAngle {
 public:
  constexpr giAngle() = default;
  constexpr explicit giAngle(giAngle0) : m_radians(0.0) {}
  explicit giAngle(giAngle90) : m_radians(std::acos(0.0)) {}
  constexpr giAngle(giAngleRadians, double radians) : m_radians(radians) {}
  giAngle(giAngleTangent, double tangent) : m_radians(std::atan(tangent)) {}
  constexpr giAngle(giAngleType, double radians) : m_radians(radians) {}
  constexpr double angle(giAngleRadians) const { return m_radians; }
  constexpr int invalid() const { return m_radians == gi_unset_double; }

 private:
  double m_radians = gi_unset_double;
};

enum giMatrixTranspose { giMatrixTransposeTag = 0 };

// A 4 by 4 matrix of doubles, identity by default.
class giMatrix4 {
 public:
  giMatrix4();
  double& operator()(int r, int c) { return m_m[r][c]; }
  double operator()(int r, int c) const { return m_m[r][c]; }
  void become(double const (*values)[4]);
  void become(giMatrixTranspose, giMatrix4 const& other);
  void transpose();

 protected:
  void copy(double const (*values)[4]);

 private:
  double m_m[4][4];
};

enum giXformIdentity { giXformIdentityTag = 0 };
enum giXformScale { giXformScaleTag = 0 };
enum giXformTranslate { giXformTranslateTag = 0 };
enum giXformProduct { giXformProductTag = 0 };

// An affine transform: a 3 by 3 matrix and a translation, held as the top three rows of a
// 4 by 4 matrix. Default-constructed it is unset.
class giXform3 {
 public:
  giXform3();
  explicit giXform3(giXformIdentity);
  giXform3(giXformScale, double sx, double sy, double sz);
  giXform3(giXformTranslate, double tx, double ty, double tz);
  // this = a applied after b.
  void become(giXformProduct, giXform3 const& a, giXform3 const& b);
  int invalid() const { return m_invalid; }
  double value(int r, int c) const { return m_matrix(r, c); }
  giPoint3 apply(giPoint3 const& p) const;
  giVector3 apply(giVector3 const& v) const;

 private:
  friend class giXform3Acc;
  giMatrix4 m_matrix;
  int m_invalid;
  int m_identity;
};

// Access to the inside of a giXform3.
class giXform3Acc {
 public:
  giXform3Acc() = default;
  void access(giXform3& xform) { m_xform = &xform; }
  void become(double const (*values)[4], int rows);
  void set_matrix_value(int r, int c, double value);
  giMatrix4 const& qmatrix() const { return m_xform->m_matrix; }
  void cancel_identity() { m_xform->m_identity = 0; }

 private:
  giXform3* m_xform = nullptr;
};
