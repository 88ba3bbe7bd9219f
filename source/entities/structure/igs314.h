// The colour definition (type 314): a colour as percentages of red, green and blue, with a
// name, that a Directory Entry's colour field names in place of a colour number.
#pragma once

#include "core/igsUnset.h"
#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"

class igs314 : public igsStructure {
  IGS_ENTITY_CLASS(igs314)

  double red() const { return m_red; }
  double green() const { return m_green; }
  double blue() const { return m_blue; }
  utString const& name() const { return m_name; }
  void set_colours(double red, double green, double blue) {
    m_red = red;
    m_green = green;
    m_blue = blue;
  }
  void set_name(utString const& name) { m_name = name; }
  // The colour number (Black to White) nearest to the percentages: each counts as on from
  // 50.0.
  int nearest_colour_number() const;

 private:
  double m_red = igs_unset_double;
  double m_green = igs_unset_double;
  double m_blue = igs_unset_double;
  utString m_name{"none"};
};
