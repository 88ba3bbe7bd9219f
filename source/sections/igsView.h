// The view of an entity as a value for hosts: a view number, or a reference to a view entity
// or a list of views. The Directory Entry itself holds its view as a plain reference.
#pragma once

#include "core/igsObjectPtr.h"

class utOstream;

enum igsViewType : int {
  igsViewEntity = 0, // a reference to a view or a views visible list
  igsViewNumber = 1  // no reference: the number alone
};

class igsView {
 public:
  // Number 1, no reference.
  igsView() = default;
  // A value below 1 is a number without reference; any other binds to that DE number, with
  // number 0.
  explicit igsView(int value);

  void become(igsView const& other) {
    m_number = other.m_number;
    m_view = other.m_view;
  }

  igsObjectPtr const& view() const { return m_view; }
  int view_number() const { return m_number; }
  igsViewType view_type() const { return m_view ? igsViewEntity : igsViewNumber; }

  // Refuses a null reference; else stores it with number 0.
  int set_view(igsObjectPtr const& view);
  // Number 1 and no reference.
  void set_view_all() {
    m_number = 1;
    m_view = igsObjectPtr();
  }

  // Without a reference the number must be 0; a reference must be to a view (410) or to a
  // views visible list (402 form 3).
  int valid() const;
  void print(utOstream& out) const;

 private:
  int m_number = 1;
  igsObjectPtr m_view;
};

utOstream& operator<<(utOstream& out, igsView const& view);
