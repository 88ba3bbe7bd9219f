// The name property (type 406, form 15): a name given to the entities that point to it.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"

class igs406_15 : public igsDefinition {
  IGS_ENTITY_CLASS(igs406_15)

  utString const& entity_name() const { return m_name; }
  void set_entity_name(utString const& name) { m_name = name; }

 private:
  utString m_name;
};
