// The external reference (type 416): the name of another file and, but in form 1, of an entity
// in it. The file named is not opened.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"

class igs416 : public igsDefinition {
  IGS_ENTITY_CLASS(igs416)

  utString get_external_file_name() const { return m_file_name; }
  utString get_external_entity_name() const { return m_entity_name; }
  void set_external_file_name(utString const& name) { m_file_name = name; }
  void set_external_entity_name(utString const& name) { m_entity_name = name; }

 private:
  // Form 1 names a whole file, without an entity.
  int names_entity() const { return directory_entry().form_number() != 1; }

  utString m_file_name;
  utString m_entity_name;
};
