// The line font definition that repeats a subfigure along the line (type 304, form 1).
#pragma once

#include "core/igsUnset.h"
#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"

class igs304_1 : public igsStructure {
  IGS_ENTITY_CLASS(igs304_1)

  igsObjectPtr const& subfigure() const { return m_subfigure; }
  int orientation() const { return m_orientation; }
  double spacing() const { return m_spacing; }
  double scale() const { return m_scale; }
  void set_orientation(int orientation) { m_orientation = orientation; }
  void set_subfigure(igsObjectPtr const& subfigure) { m_subfigure = subfigure; }
  void set_spacing(double spacing) { m_spacing = spacing; }
  void set_scale(double scale) { m_scale = scale; }

 protected:
  void unreference_children() override;

 private:
  igsObjectPtr m_subfigure;
  int m_orientation = igs_unset_int;
  double m_spacing = 0.0;
  double m_scale = igs_unset_double;
};
