// The circular arc entity (type 100): an arc about a centre, counter-clockwise from the start
// point to the end point, in the plane Z = ZT. Equal ends make a full circle.
#pragma once

#include "entities/curves/igsTrimmedConic.h"

class igs100 : public igsTrimmedConic {
  IGS_ENTITY_CLASS(igs100)

  giPoint2 const& centre() const { return m_centre; }
  // Stores a valid centre and returns 1; keeps the old one and returns 0 for an invalid one.
  int set_centre(giPoint2 const& centre) { return igs_set_valid(m_centre, centre); }

 private:
  friend class igs100InconsistRad;
  // Moves the centre onto the chord's perpendicular bisector at the mean of the two radii,
  // on the side where it stood; 0 when there is no chord to go by.
  int equalise_radii();

  giPoint2 m_centre;
};
