// The tabulated cylinder (type 122): a directrix curve swept along the line from its start to
// the end point of the generatrix.
#pragma once

#include "entities/igsChildCheck.h"
#include "entities/igsEntityBases.h"

class igs122 : public igsChildEntity<igsParameterizedSurface> {
  IGS_ENTITY_CLASS(igs122)

  igsObjectPtr const& directrix() const { return m_directrix; }
  // Refuses a null curve.
  int set_directrix(igsObjectPtr const& directrix);
  giPoint3 generatrix_end_point() const { return m_end; }
  int set_generatrix_end_point(giPoint3 const& point) { return igs_set_valid(m_end, point); }

 protected:
  void unreference_children() override;

 private:
  igsObjectPtr m_directrix;
  giPoint3 m_end;
};
