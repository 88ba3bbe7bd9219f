// The point entity (type 116): a point in space and an optional display symbol.
#pragma once

#include "entities/igsEntity.h"

class igs116 : public igsObject {
  IGS_ENTITY_CLASS(igs116)

  giPoint3 const& point() const { return m_point; }
  igsObjectPtr const& display_symbol() const { return m_display_symbol; }
  // Stores a valid point and keeps the old one for an invalid point; returns 1 either way.
  int set_point(giPoint3 const& point);
  // The display symbol is not changed through the interface: returns 0.
  int set_display_symbol(igsObjectPtr const& symbol);

 protected:
  void unreference_children() override;

 private:
  giPoint3 m_point;
  igsObjectPtr m_display_symbol;
};
