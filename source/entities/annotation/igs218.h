// The ordinate dimension (type 218): a distance from a datum, with one leader or one witness
// line, and in form 1 a supplemental leader.
#pragma once

#include "entities/annotation/igsDimension.h"

class igs218 : public igsDimension {
  IGS_ENTITY_CLASS(igs218)

  igsObjectPtr const& supplemental_leader() const { return m_supplemental; }
  // Stores the leader and makes the form 1, which has one.
  void set_supplemental_leader(igsObjectPtr const& leader);
  // The supplemental leader becomes the leader, and the form 0, which has none: what setting
  // the form gave.
  int promote_supplemental_leader();
  int form_number() const { return directory_entry().form_number(); }

 protected:
  void unreference_children() override;

 private:
  igsObjectPtr m_supplemental;
};
