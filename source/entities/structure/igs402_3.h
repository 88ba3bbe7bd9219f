// The views visible associativity (type 402, form 3): a list of views and the entities that
// are to be seen in each of them.
#pragma once

#include "entities/structure/igsCompound.h"

class igs402_3 : public igsCompound {
  IGS_ENTITY_CLASS(igs402_3)

  int number_of_views() const { return m_views.count(); }
  igsObjectPtr const& get_view(int i) const { return m_views.get(i); }
  void set_view(int i, igsObjectPtr const& view) { m_views.set(i, view); }
  void set_number_of_views(int n) { m_views.set_count(n); }

 protected:
  void unreference_children() override;

 private:
  igsEntityList m_views;
};
