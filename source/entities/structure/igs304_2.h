// The line font definition of a repeating visible-blank pattern (type 304, form 2): segment
// lengths, and hexadecimal digits whose bits say which segments are drawn.
#pragma once

#include "core/igsUnset.h"
#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"

class igs304_2 : public igsStructure {
  IGS_ENTITY_CLASS(igs304_2)

  // Stores the count; a count not below 0 gives a fresh array of that many lengths, so that a
  // negative one stays for the check to find, with no lengths.
  void set_size(int count);
  // The length of a segment in range; 0.0 and nothing stored out of range.
  void set_length(double length, int index);
  double length(int index) const;
  // The count as it stands, which a damaged record may give apart from the lengths it holds.
  int number_of_segments() const { return m_count; }
  int number_of_lengths() const { return m_lengths.size(); }
  void set_string(utString const& pattern) { m_pattern = pattern; }
  utString const& pattern_string() const { return m_pattern; }

 private:
  int m_count = igs_unset_int;
  doublecoDynArr m_lengths;
  utString m_pattern;
};
