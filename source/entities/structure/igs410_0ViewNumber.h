// The view number of the view entities (DE 410 form 0), which must be unique across a file.
// The file's check and the repairs of the errors below reach the views through
// igsViewNumbering: the view class installs one for itself, naming its exact type record and
// its two accessors, and from then on the check walks the entities of that class. With none
// installed a file has no views to check.
#pragma once

#include "core/igsUnset.h"
#include "core/igsObject.h"
#include "errors/igsErrorClass.h"

class igsViewNumbering {
 public:
  // The number of a view that has none.
  static constexpr int unset_number = igs_unset_int;

  virtual ~igsViewNumbering() = default;
  // The exact class of the view entities.
  virtual kvuTypeInfo const& view_type() const = 0;
  // The view's number; the view is of exactly view_type().
  virtual int view_number(igsObject const& view) const = 0;
  // Stores the number; 1 on success.
  virtual int set_view_number(igsObject& view, int number) const = 0;

  // The numbering in use, or null.
  static igsViewNumbering const* installed() { return m_installed; }
  // Puts the numbering in use (null for none) and returns the one it replaces.
  static igsViewNumbering const* install(igsViewNumbering const* numbering) {
    igsViewNumbering const* previous = m_installed;
    m_installed = numbering;
    return previous;
  }

 private:
  static inline constinit igsViewNumbering const* m_installed = nullptr;
};

// The numbering of a view class that has `int view_number() const` and
// `int set_view_number(int)`: igsViewNumbering::install(igsViewNumberingOf<View>::get()).
template <class View> class igsViewNumberingOf final : public igsViewNumbering {
 public:
  static igsViewNumbering const* get() {
    static igsViewNumberingOf const numbering;
    return &numbering;
  }
  kvuTypeInfo const& view_type() const override { return View::id; }
  int view_number(igsObject const& view) const override {
    return static_cast<View const&>(view).view_number();
  }
  int set_view_number(igsObject& view, int number) const override {
    return static_cast<View&>(view).set_view_number(number);
  }
};

#define IGS_ERROR IGS_ERROR_DECLARE
#include "entities/structure/igs410_0ViewNumberErrors.def"
