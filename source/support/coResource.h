// The process-wide table of named tolerances and options.
#pragma once

#include "support/coDynArr.h"
#include "support/utTypes.h"

#include <type_traits>

class coResourceTable;

// One value in the table.
struct coResourceBase {
  int defined = 0;
  int int_value = 0;
  double double_value = 0.0;
};

// A key names one value of the table by its index; it also carries the value that the table
// holds until a host sets another.
class coResourceKeyBase {
 public:
  constexpr coResourceKeyBase(int index, char const* name) : m_index(index), m_name(name) {}
  int index() const { return m_index; }
  char const* name() const { return m_name; }

 private:
  int m_index;
  char const* m_name;
};

template <class T> class coResourceKey : public coResourceKeyBase {
 public:
  constexpr coResourceKey(int index, char const* name, T default_value)
      : coResourceKeyBase(index, name), m_default(default_value) {}
  T default_value() const { return m_default; }
  // Pointer to the key's value in the table.
  T const* read(coResourceTable const* table) const;
  // The key's value in the process table.
  T value() const;

 private:
  T m_default;
};

using intcoResourceKey = coResourceKey<int>;
using doublecoResourceKey = coResourceKey<double>;
using utBoolcoResourceKey = coResourceKey<utBool>;

class coResourceTable {
 public:
  // The resource of the key, made with the key's default where the table has none yet.
  template <class T> coResourceBase* lookup_resource(coResourceKey<T> const& key) const {
    coResourceBase& r = m_resources[key.index()];
    if (!r.defined) store(r, key.default_value());
    return &r;
  }
  // Sets the value of a key for the whole process.
  template <class T> void set(coResourceKey<T> const& key, T value) {
    store(*lookup_resource(key), value);
  }
  // Puts the key's value back to its default.
  template <class T> void reset(coResourceKey<T> const& key) { set(key, key.default_value()); }

 private:
  static void store(coResourceBase& r, double value) {
    r.double_value = value;
    r.defined = 1;
  }
  static void store(coResourceBase& r, int value) {
    r.int_value = value;
    r.defined = 1;
  }
  mutable coPageArr<coResourceBase> m_resources{4, 2, 2};
};

// The one table of the process.
coResourceTable* kvn_resource_table_inquire();

template <class T> T const* coResourceKey<T>::read(coResourceTable const* table) const {
  coResourceBase* r = table->lookup_resource(*this);
  if constexpr (std::is_same_v<T, double>) {
    return &r->double_value;
  } else {
    return &r->int_value;
  }
}

template <class T> T coResourceKey<T>::value() const {
  return *read(kvn_resource_table_inquire());
}

// The keys the library reads, with their defaults. Why each default:
//
// Output of real numbers. 15 significant digits is the most that every double carries through
// a decimal round trip (DBL_DIG), so a value written and read back prints the same text again;
// the field width pads on the right and is cut again, so it never shows in a file.
extern intcoResourceKey const kvnOptDoubleFieldWidth;          // 20
extern intcoResourceKey const kvnOptDoubleGeometricPrecision;  // 15
extern intcoResourceKey const kvnOptDoubleParametricPrecision; // 15
// Transformation matrices are not forced to be rigid: many files scale on purpose.
extern utBoolcoResourceKey const kvnOptRigidTransforms; // 0
// |det - 1| below this counts as a rotation; tighter than the 6 digits most senders write.
extern doublecoResourceKey const kvnTolRigidTransformDeterminant; // 1e-6
// Smallest magnitude taken as nonzero: weights, resolutions. Matches the lowest resolution
// the Global section check accepts.
extern doublecoResourceKey const kvnTolMinValue; // 1e-15
// Relative difference under which weights count as equal (a polynomial curve).
extern doublecoResourceKey const kvnTolCoincWeights; // 1e-9
// Knots closer than this are one knot of higher multiplicity.
extern doublecoResourceKey const kvnTolCoincBreakPoints; // 1e-9
// Angles, in radians, closer than this are equal.
extern doublecoResourceKey const kvnTolCoincAngles; // 1e-9
// Lengths below this are zero: a line shorter than this is degenerate. Far below the
// resolution of any sending system, so that no real geometry is judged degenerate.
extern doublecoResourceKey const kvnTolZeroLength; // 1e-9
// Relative mismatch of an arc's two radii, against their sum, that is still one radius;
// senders that write 7 digits stay well inside it.
extern doublecoResourceKey const kvnTolRadiusDiff; // 1e-6
// Discriminant magnitude under which a conic is a parabola.
extern doublecoResourceKey const kvnTolConicIsParabola; // 1e-9
// Gap between the ends of a 3D curve under which it is closed.
extern doublecoResourceKey const kvnTolClosureCurve3d; // 1e-6
// Distance under which two 2D points coincide.
extern doublecoResourceKey const kvnTolCoincPoint2d; // 1e-9
