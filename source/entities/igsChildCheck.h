// The references from an entity to the children it stands on: the checks of a reference that
// must be there, and the repairs that wait for a child's own repairs or put a curve in the place
// of a child of another kind.
#pragma once

#include "entities/igsEntity.h"

// The kinds of child that a reference may name: any class derived from T, or exactly T.
using igsChildKind = int (*)(igsObject const&);
template <class T> int igs_kind_of(igsObject const& object) {
  return object.typeof(T::type());
}
template <class T> int igs_exactly(igsObject const& object) {
  return object.isa(T::type());
}

// The faults of a reference to a child that must be there, in this order: `null()` when it is
// null (and nothing more), `wrong()` when `kind` does not accept the child, and `invalid()` when
// the child fails its own check. A child of the wrong kind is checked only if `check_wrong_kind`
// is set. 1 when the child is there, of its kind and sound.
template <class Null, class Wrong, class Invalid>
int igs_check_child(igsObjectPtr const& child, igsChildKind kind, int check_wrong_kind,
                    Null const& null, Wrong const& wrong, Invalid const& invalid) {
  if (!child) {
    null();
    return 0;
  }
  int usable = 1;
  if (!kind(*child)) {
    wrong();
    usable = 0;
    if (!check_wrong_kind) return 0;
  }
  if (!child->check()) {
    invalid();
    usable = 0;
  }
  return usable;
}

// The base of the classes that check references to their children, between the entity class
// and the base of the class tree (which stays Base for `typeof`). The errors of each fault are
// made with the arguments.
template <class Base> class igsChildEntity : public Base {
 protected:
  igsChildEntity() = default;

  // A child of the wrong kind is still checked.
  template <class Null, class Wrong, class Invalid, class... A>
  int check_child(igsObjectPtr const& child, igsChildKind kind, A... arguments) const {
    return check_child_as<Null, Wrong, Invalid>(child, kind, 1, arguments...);
  }
  // A child of the wrong kind is not checked.
  template <class Null, class Wrong, class Invalid, class... A>
  int check_reference(igsObjectPtr const& child, igsChildKind kind, A... arguments) const {
    return check_child_as<Null, Wrong, Invalid>(child, kind, 0, arguments...);
  }

 private:
  template <class Null, class Wrong, class Invalid, class... A>
  int check_child_as(igsObjectPtr const& child, igsChildKind kind, int check_wrong_kind,
                     A... arguments) const {
    return igs_check_child(
        child, kind, check_wrong_kind, [&] { this->template raise_error<Null>(arguments...); },
        [&] { this->template raise_error<Wrong>(arguments...); },
        [&] { this->template raise_error<Invalid>(arguments...); });
  }
};

// The target of a reference, or null.
inline igsObject const* igs_target(igsObjectPtr const& reference) {
  return reference ? reference.operator->() : nullptr;
}

// 1 when the entity under the DE number has no active errors left: the repair of an error that
// says a child failed its check succeeds once the child's own repairs have cleared it.
inline int igs_child_is_clean(int de_number) {
  igsObjectPtr child(de_number);
  return de_number && child && child->num_logged_errors() == 0;
}

// The child that an accessor of the owner gives, for IGS_CHILD_OBJ: igs_child_at<&Owner::get>.
template <auto get, class Owner, class Error>
igsObject const* igs_child_at(Owner const& owner, Error const&) {
  return igs_target((owner.*get)());
}

// The `obj` of an error that names a child of the entity under its key, of class Owner:
// `child(owner, error)` gives the child, or null when there is none any more. Found at the
// first call and held; 0 while no child is found.
#define IGS_CHILD_OBJ(Name, Owner, child)                                                          \
  int Name::obj() {                                                                                \
    if (!cached_obj())                                                                             \
      if (Owner const* owner = igs_error_entity<Owner>(key()))                                     \
        if (igsObject const* found = child(*owner, *this)) set_cached_obj(found->de_number());     \
    return cached_obj();                                                                           \
  }

// `obj` as above, and the repair that changes nothing and settles the error exactly when the
// child has no active errors left.
#define IGS_CHILD_REPAIR(Name, Owner, child)                                                       \
  IGS_CHILD_OBJ(Name, Owner, child)                                                                \
  int Name::fix() {                                                                                \
    return igs_child_is_clean(obj());                                                              \
  }

// A curve made of a child of another kind that has no errors of its own; null when the child
// has errors, or is no kind of entity that converts to a curve.
igsObject* igs_curve_of(igsObjectPtr const& child);
// Puts the entity in the child's place, under its DE number and in every reference to it, if
// nothing but the one reference and the caller's copy hold the child; 0 and nothing done else.
int igs_take_place_of_lone_child(igsObjectPtr const& child, igsObject* entity);

// The repair of a reference that names a child of the wrong kind where a curve is wanted: a
// curve made of the child takes the child's place everywhere when nothing but the reference
// and this copy of it hold the child, else in the reference alone, through `set(curve)`. 0
// when no curve could be made.
template <class Set> int igs_replace_by_curve(igsObjectPtr child, Set const& set) {
  igsObject* curve = igs_curve_of(child);
  if (!curve) return 0;
  if (!igs_take_place_of_lone_child(child, curve)) set(igsObjectPtr(curve));
  return 1;
}

// The same for the reference that the owner's accessor gives and its setter sets; 0 too when
// the owner is gone.
template <class Owner, class Set>
int igs_replace_child_by_curve(int key, igsObjectPtr const& (Owner::*get)() const, Set set) {
  Owner* owner = igs_error_entity<Owner>(key);
  return owner && igs_replace_by_curve((owner->*get)(),
                                       [&](igsObjectPtr const& curve) { (owner->*set)(curve); });
}
