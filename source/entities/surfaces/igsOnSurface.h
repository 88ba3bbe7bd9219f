// What the classes that lie on a basis surface share: the offset surface, the boundary, the
// curve on a surface, and the bounded and trimmed surfaces. Each holds a reference to its basis
// surface, which may be any kind of surface; the bounded and trimmed surfaces hold lists of
// boundaries on it, and get a lost basis surface back from them.
#pragma once

#include "entities/igsChildCheck.h"
#include "entities/igsEntityBases.h"
#include "support/coNames.h"

template <class Base> class igsOnSurface : public igsChildEntity<Base> {
 public:
  igsObjectPtr const& basis_surface() const { return m_surface; }
  // Refuses a null reference; the kind is not tested.
  int set_basis_surface(igsObjectPtr const& surface) {
    return igs_set_reference(m_surface, surface);
  }

 protected:
  igsOnSurface() = default;
  // The basis surface must be there and be a sound surface of any kind.
  template <class Null, class Type, class Data> void check_basis_surface() const {
    this->template check_reference<Null, Type, Data>(m_surface, igs_kind_of<igsSurface>);
  }
  void unreference_children() override {
    igsObject::unreference_children();
    m_surface.unreference();
  }

  igsObjectPtr m_surface;
};

// The value, then directly behind it its word from `words` (count of them), or "(Unknown)".
void igs_print_enumerated(utOstream& out, char const* label, int value, char const* const* words,
                          int count);
template <int N>
void igs_print_enumerated(utOstream& out, char const* label, int value,
                          char const* const (&words)[N]) {
  igs_print_enumerated(out, label, value, words, N);
}
// A value of an enumeration of `count` values from 0, compared as unsigned so that a negative
// value fails too.
inline int igs_enumerated_valid(int value, int count) {
  return static_cast<unsigned>(value) < static_cast<unsigned>(count);
}

// The basis surface that the boundaries agree on, from the candidates, which are the basis
// surfaces that they name (null for a boundary that is missing or of another kind): null when
// there is none, when two differ, or when it is no surface.
igsObjectPtr igs_agreed_surface(igsObjectPtrcoDynArr const& candidates);
// The basis surface of the boundary if it is of class (or derived from) T, else null.
template <class T> igsObjectPtr igs_surface_of(igsObjectPtr const& boundary) {
  if (!boundary || !boundary->typeof(T::type())) return igsObjectPtr();
  return static_cast<T const&>(*boundary).basis_surface();
}
// 1 when the boundary is exactly of class T and lies on another basis surface than `surface`,
// which is not null.
template <class T> int igs_off_surface(igsObjectPtr const& boundary, igsObjectPtr const& surface) {
  return surface && boundary && boundary->isa(T::type()) &&
         !(static_cast<T const&>(*boundary).basis_surface() == surface);
}
