// The colour of a Directory Entry: a colour number, or a reference to a colour definition
// entity (314) held as minus its DE number.
#pragma once

#include "sections/igsAttributeNames.h"
#include "sections/igsDefinitionValue.h"
#include "support/utString.h"

class utOstream;

class igsColour : public igsDefinitionValue {
 public:
  // Gives the name that a colour definition entity holds.
  using DefinitionNameReader = utString (*)(igsObject const& definition);

  // No colour assigned.
  igsColour() : igsDefinitionValue(0, igsNoColour) {}
  // A negative value is a definition, bound to DE number -value; the value is kept either way.
  explicit igsColour(int value) : igsDefinitionValue(value, value) {}

  void become(igsColour const& other) { igsDefinitionValue::become(other); }

  int predefined_colour() const { return predefined(); }
  igsObjectPtr const& colour_definition() const { return definition(); }
  // The colour number when predefined; else the number that the definitions lead to.
  int colour_value() const;
  // The stored value when it is a colour number, else no colour.
  igsColourType colour_type() const;
  // The colour's name or "Unknown colour"; for a definition, the name it holds if that is not
  // empty, else "ig" and its DE number.
  utString colour_name() const;

  void set_colour(igsColourType colour) { set_value(colour); }
  // Refuses a null reference and any entity that is no colour definition; else the value
  // becomes minus its DE number.
  int set_colour_definition(igsObjectPtr const& definition);

  // A colour number from 0 to 8, or a colour definition whose DE number the value holds.
  int valid() const;
  void print(utOstream& out) const;

  // The colour definition class registers how its name is read when it is loaded; until then
  // a definition has no name to give. Returns the reader before.
  static DefinitionNameReader set_definition_name_reader(DefinitionNameReader reader);
};

utOstream& operator<<(utOstream& out, igsColour const& colour);
