// The radius dimension (type 222): the radius of an arc, with one leader from its centre, or
// in form 1 two.
#pragma once

#include "entities/annotation/igsDimension.h"

class igs222 : public igsDimension {
  IGS_ENTITY_CLASS(igs222)

  // The centre of the arc.
  giPoint2 const& point() const { return m_point; }
  void set_point(giPoint2 const& point) { m_point = point; }
  int form_number() const { return directory_entry().form_number(); }

  // The repair of an error of a leader: drops what `what` says, and with one leader left makes
  // the form 0, which has one (`changed` says whether it did). Settled with one leader left, or
  // two in form 1.
  int repair_leaders(igsDrop what, int& changed);

 private:
  giPoint2 m_point;
};
