// The singular subfigure instance (type 408): places a subfigure definition once, moved to an
// origin and scaled uniformly.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"

class igs308;

class igs408 : public igsDefinition {
  IGS_ENTITY_CLASS(igs408)

  double scale() const { return m_scale; }
  void set_scale(double scale) { m_scale = scale; }
  giPoint3 const& translation_origin() const { return m_origin; }
  void set_translation_origin(giPoint3 const& origin) { m_origin = origin; }
  igsObjectPtr get_subfigure() const { return m_subfigure; }
  void set_subfigure(igsObjectPtr const& subfigure) { m_subfigure = subfigure; }
  // The definition placed, when the subfigure is one; null otherwise.
  igs308* placed_definition() const;
  // Scale and translation as one transform: the translation applied first.
  giXform3 const& placement_transform() const { return m_placement; }
  // Makes the placement transform of the scale and origin; leaves it as it stands for a scale
  // not above 0 or an origin that is not valid.
  void create_placement_transform();

 protected:
  void unreference_children() override;

 private:
  double m_scale = 1.0;
  giPoint3 m_origin;
  igsObjectPtr m_subfigure;
  giXform3 m_placement{giXformIdentityTag};
};
