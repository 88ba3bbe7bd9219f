// What the analytic surfaces of the boundary representation share: plane surface, cylinder,
// cone, sphere and torus, each in an unparameterised form 0 and a form 1 that adds a reference
// direction. Each holds references to a point and to directions, and a few numbers; each class
// lists its parameters in file order (its layout), and reading, writing, printing and checking
// walk that list. No vector length or angle is measured.
#pragma once

#include "entities/curves/igs116.h"
#include "entities/igsChildCheck.h"
#include "entities/igsEntityBases.h"
#include "entities/structure/igs123.h"

#include <array>
#include <iterator>

// One parameter of an analytic surface.
struct igsAnalyticParameter {
  using Fault = igsObjectError* (*)();
  enum Kind {
    Reference, // a point or a direction, of exactly the class that `target` accepts
    Number,    // a double, which `in_range` accepts
    Agreement  // no parameter: the two numbers before it, which `agree` accepts
  };
  Kind kind;
  // A reference prints as "<label> = {", a number as "<label><value>".
  char const* label;
  igsChildKind target;
  int (*in_range)(double);
  int (*agree)(double first, double second);
  // Reference: null, wrong class, failed check. Number: unset, out of range. Agreement: first.
  Fault faults[3];
};

// An error of class E, made for the check to tag.
template <class E> igsObjectError* igs_make_error() {
  return new (std::nothrow) E;
}

// The range tests of the numbers.
inline int igs_not_negative(double value) {
  return !(value < 0.0);
}
inline int igs_positive(double value) {
  return !(value <= 0.0);
}
inline int igs_acute_angle(double degrees) {
  return degrees > 0.0 && degrees < 90.0;
}
inline int igs_minor_below_major(double major, double minor) {
  return !(minor >= major);
}

// The layout of an analytic class: its parameters in file order.
struct igsAnalyticLayout {
  igsAnalyticParameter const* parameters;
  int count;
  igsAnalyticParameter const* begin() const { return parameters; }
  igsAnalyticParameter const* end() const { return parameters + count; }
};

// The base of the analytic classes, between the class and its mark (which stays Mark for
// `typeof`): the references and numbers, in the order of their kind in the layout.
template <class Mark, int References, int Numbers>
class igsAnalyticSurface : public igsChildEntity<Mark> {
 protected:
  igsAnalyticSurface() { m_numbers.fill(igs_unset_double); }

  virtual igsAnalyticLayout const& layout() const = 0;

  igsObjectPtr const& reference_at(int index) const { return m_references[index]; }
  int set_reference_at(int index, igsObjectPtr const& reference) {
    m_references[index] = reference;
    return 1;
  }
  double number_at(int index) const { return m_numbers[index]; }
  int set_number_at(int index, double value) {
    m_numbers[index] = value;
    return 1;
  }

  int read_pd_data(igsInStream& in) override {
    walk(
        *this, [&](auto const&, igsObjectPtr& r) { igs_read_field(in, r); },
        [&](auto const&, double& value) { igs_read_field(in, value); });
    return 1;
  }

  // The numbers are parametric values.
  void write_pd_data(igsOutStream& out) override {
    igsParametricFormat parametric(out);
    walk(
        *this, [&](auto const&, igsObjectPtr const& r) { igs_write_field(out, r); },
        [&](auto const&, double value) { igs_write_field(out, value); });
  }

  void print_pd_data(utOstream& out) const override {
    walk(
        *this,
        [&](igsAnalyticParameter const& p, igsObjectPtr const& r) {
          igs_print_reference(out, p.label, r);
        },
        [&](igsAnalyticParameter const& p, double value) {
          out << p.label;
          if (igs_unset(value))
            out << "(Undefined)";
          else
            out << value;
          out << "\n";
        });
  }

  // Every reference, in its order; then every number, and the agreements between them. A
  // referenced entity is checked whatever its class. A number that is unset is not tested
  // further, and an agreement is tested only between numbers that passed their own tests.
  void check_pd() const override {
    int r = 0;
    for (igsAnalyticParameter const& p : layout())
      if (p.kind == igsAnalyticParameter::Reference)
        igs_check_child(
            m_references[r++], p.target, 1, [&] { this->tag_error(p.faults[0]()); },
            [&] { this->tag_error(p.faults[1]()); }, [&] { this->tag_error(p.faults[2]()); });
    // The last two numbers and whether they passed.
    double before = 0.0, last = 0.0;
    int before_passed = 0, last_passed = 0, n = 0;
    for (igsAnalyticParameter const& p : layout()) {
      if (p.kind == igsAnalyticParameter::Number) {
        before = last;
        before_passed = last_passed;
        last = m_numbers[n++];
        last_passed = 0;
        if (igs_unset(last))
          this->tag_error(p.faults[0]());
        else if (!p.in_range(last))
          this->tag_error(p.faults[1]());
        else
          last_passed = 1;
      } else if (p.kind == igsAnalyticParameter::Agreement && before_passed && last_passed &&
                 !p.agree(before, last)) {
        this->tag_error(p.faults[0]());
      }
    }
  }

  void unreference_children() override {
    igsObject::unreference_children();
    for (igsObjectPtr& reference : m_references) reference.unreference();
  }

 private:
  // Calls on_reference(parameter, reference) and on_number(parameter, number) for each in file
  // order.
  template <class Self, class OnReference, class OnNumber>
  static void walk(Self& self, OnReference const& on_reference, OnNumber const& on_number) {
    int r = 0, n = 0;
    for (igsAnalyticParameter const& p : self.layout()) {
      if (p.kind == igsAnalyticParameter::Reference) on_reference(p, self.m_references[r++]);
      if (p.kind == igsAnalyticParameter::Number) on_number(p, self.m_numbers[n++]);
    }
  }

  std::array<igsObjectPtr, References> m_references;
  std::array<double, Numbers> m_numbers;
};

// The declarations of an analytic class; put it first in the class body.
#define IGS_ANALYTIC_CLASS(Class)                                                                  \
  IGS_ENTITY_IDENTITY(Class)                                                                       \
 protected:                                                                                        \
  igsAnalyticLayout const& layout() const override;                                                \
                                                                                                   \
 public:

// The accessor and the setter of the reference or the number at the index of its kind.
#define IGS_ANALYTIC_REFERENCE(name, index)                                                        \
  igsObjectPtr const& name() const {                                                               \
    return reference_at(index);                                                                    \
  }                                                                                                \
  int set_##name(igsObjectPtr const& value) {                                                      \
    return set_reference_at(index, value);                                                         \
  }
#define IGS_ANALYTIC_NUMBER(name, index)                                                           \
  double name() const {                                                                            \
    return number_at(index);                                                                       \
  }                                                                                                \
  int set_##name(double value) {                                                                   \
    return set_number_at(index, value);                                                            \
  }

// The two radii of a torus, the numbers at 0 and 1, set together.
#define IGS_ANALYTIC_RADII                                                                         \
  double major_radius() const {                                                                    \
    return number_at(0);                                                                           \
  }                                                                                                \
  double minor_radius() const {                                                                    \
    return number_at(1);                                                                           \
  }                                                                                                \
  int set_radii(double major, double minor) {                                                      \
    set_number_at(0, major);                                                                       \
    return set_number_at(1, minor);                                                                \
  }

// The parameters of a layout, named by the words of their errors: Class##Null##Word and so on.
#define IGS_ANALYTIC_POINTER(Class, Word, target, label)                                           \
  igsAnalyticParameter {                                                                           \
    igsAnalyticParameter::Reference, label, target, nullptr, nullptr, {                            \
      &igs_make_error<Class##Null##Word>, &igs_make_error<Class##Wrong##Word##Type>,               \
          &igs_make_error<Class##Invalid##Word>                                                    \
    }                                                                                              \
  }
#define IGS_ANALYTIC_VALUE(Class, Word, in_range, label)                                           \
  igsAnalyticParameter {                                                                           \
    igsAnalyticParameter::Number, label, nullptr, in_range, nullptr, {                             \
      &igs_make_error<Class##No##Word##Defined>, &igs_make_error<Class##Invalid##Word>, nullptr    \
    }                                                                                              \
  }
#define IGS_ANALYTIC_AGREEMENT(Error, agree)                                                       \
  igsAnalyticParameter {                                                                           \
    igsAnalyticParameter::Agreement, "", nullptr, nullptr, agree, {                                \
      &igs_make_error<Error>, nullptr, nullptr                                                     \
    }                                                                                              \
  }

// The layouts that both forms of a surface share; form 1 adds its reference direction behind.
#define IGS_PLANE_SURFACE_LAYOUT(Class, gap)                                                       \
  IGS_ANALYTIC_POINTER(Class, Location, igs_exactly<igs116>, "Location Ptr" gap),                  \
      IGS_ANALYTIC_POINTER(Class, Direction, igs_exactly<igs123>, "Normal Ptr" gap)
#define IGS_CYLINDER_LAYOUT(Class)                                                                 \
  IGS_ANALYTIC_POINTER(Class, Location, igs_exactly<igs116>, "Location Ptr "),                     \
      IGS_ANALYTIC_POINTER(Class, Axis, igs_exactly<igs123>, "Axis direction Ptr "),               \
      IGS_ANALYTIC_VALUE(Class, Radius, igs_not_negative, "Radius = ")
#define IGS_CONE_LAYOUT(Class)                                                                     \
  IGS_CYLINDER_LAYOUT(Class), IGS_ANALYTIC_VALUE(Class, SemiAngle, igs_acute_angle, "Semi-angle = ")
#define IGS_SPHERE_LAYOUT(Class)                                                                   \
  IGS_ANALYTIC_POINTER(Class, Centre, igs_exactly<igs116>, "Centre Ptr "),                         \
      IGS_ANALYTIC_VALUE(Class, Radius, igs_positive, "Radius = ")
#define IGS_TORUS_LAYOUT(Class)                                                                    \
  IGS_ANALYTIC_POINTER(Class, Centre, igs_exactly<igs116>, "Centre Ptr "),                         \
      IGS_ANALYTIC_POINTER(Class, Axis, igs_exactly<igs123>, "Axis Ptr "),                         \
      IGS_ANALYTIC_VALUE(Class, MajorRadius, igs_not_negative, "Major radius = "),                 \
      IGS_ANALYTIC_VALUE(Class, MinorRadius, igs_not_negative, "Minor radius = "),                 \
      IGS_ANALYTIC_AGREEMENT(Class##InvalidRadii, igs_minor_below_major)
#define IGS_REFERENCE_DIRECTION(Class, label)                                                      \
  IGS_ANALYTIC_POINTER(Class, Reference, igs_exactly<igs123>, label)

// Defines, in the class's source, what IGS_ANALYTIC_CLASS declared: the entity's identity (with
// the Directory Entry checks but the matrix) and the layout of the parameters given.
#define IGS_ANALYTIC_DEFINE(Class, Mark, type, form, ...)                                          \
  IGS_ENTITY_DEFINE(Class, Mark, type, form, igs_de_without_matrix)                                \
  igsAnalyticLayout const& Class::layout() const {                                                 \
    static igsAnalyticParameter const parameters[] = {__VA_ARGS__};                                \
    static igsAnalyticLayout const layout = {parameters, static_cast<int>(std::size(parameters))}; \
    return layout;                                                                                 \
  }
