// The curve dimension (type 204): the length of a curve, or the distance between two curves
// along them, with two leaders and up to two witness lines.
#pragma once

#include "entities/annotation/igsDimension.h"

class igs204 : public igsDimension {
  IGS_ENTITY_CLASS(igs204)

  // 1 gives the first curve, anything else the second.
  igsObjectPtr const& curve(int which) const { return which == 1 ? m_first : m_second; }
  // 0, 1 or 2: how many of the curves were set, and were not null.
  int num_curves() const { return m_num_curves; }
  void set_first_curve(igsObjectPtr const& curve);
  void set_second_curve(igsObjectPtr const& curve);
  int form_number() const { return directory_entry().form_number(); }

 protected:
  void unreference_children() override;

 private:
  igsObjectPtr m_first;
  igsObjectPtr m_second;
  int m_num_curves = 0;
};
