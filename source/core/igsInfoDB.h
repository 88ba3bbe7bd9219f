// The names of the numbers that IGES defines: entity types and their forms, units, versions
// and drafting standards.
#pragma once

#include "core/igsUnset.h"
#include "support/utString.h"

#include <vector>

// One form, or one range of forms, of an entity type. The versions are kept for the record
// and are 0 throughout: forms are not restricted by version.
class igsFormInfo {
 public:
  igsFormInfo(int min_form, int max_form, utString const& name, int min_version = 0,
              int max_version = 0)
      : m_min_form(min_form), m_max_form(max_form), m_name(name), m_min_version(min_version),
        m_max_version(max_version) {}

  int min_form_number() const { return m_min_form; }
  int max_form_number() const { return m_max_form; }
  utString const& form_name() const { return m_name; }
  int min_version() const { return m_min_version; }
  int max_version() const { return m_max_version; }
  int holds(int form) const { return m_min_form <= form && form <= m_max_form; }

 private:
  int m_min_form;
  int m_max_form;
  utString m_name;
  int m_min_version;
  int m_max_version;
};

// One entity type: its name, its default form and its forms.
class igsEntityInfo {
 public:
  // The default form of a type that has none.
  static constexpr int no_default_form = igs_unset_int;

  igsEntityInfo(utString const& name, int default_form)
      : m_name(name), m_default_form(default_form) {}

  utString const& entity_name() const { return m_name; }
  int default_form_number() const { return m_default_form; }
  // Adds a form; where ranges overlap, the form added last is found first.
  void add_form(igsFormInfo const& form) { m_forms.push_back(form); }
  int num_forms() const { return static_cast<int>(m_forms.size()); }
  // A type without a form list has form 0 alone.
  int form_exists(int form) const;
  // The form that holds `form`, or a form 0 named "Default" when none does.
  igsFormInfo const& form_info(int form) const;

 private:
  igsFormInfo const* find_form(int form) const;

  utString m_name;
  int m_default_form;
  std::vector<igsFormInfo> m_forms; // in the order added; searched from the back
};

// The tables, filled once on first use and shared by the whole process. Every query is a
// direct index or a short walk over one type's forms.
class igsInfoDB {
 public:
  static int entity_exists(int type);
  // The name getters expect a number whose `exists` query is true; for any other number they
  // give a null string.
  static utString const& entity_name(int type);
  // The entity name with the form name in parentheses: "Conic Arc(Ellipse)".
  static utString entity_form_name(int type, int form);
  static int form_exists(int type, int form);
  static utString const& form_name(int type, int form);
  // Sets both to 0; for a known type with a default form, stores it and sets `found` to 1.
  static void default_form_number(int type, int& form, int& found);
  // The row of a type, or null when the type is unknown.
  static igsEntityInfo const* entity_info(int type);

  static int units_exist(int flag);
  static utString const& units_name(int flag);
  static int version_exists(int version);
  static utString const& version_name(int version);
  static int draft_exists(int standard);
  static utString const& draft_name(int standard);

  igsInfoDB(igsInfoDB const&) = delete;
  igsInfoDB& operator=(igsInfoDB const&) = delete;

 protected:
  igsInfoDB();
  void initialize_tables();
  void initialize_entities();
  void initialize_forms();
  void initialize_units();
  void initialize_version();
  void initialize_drafting_standard();

 private:
  // Names of a run of small numbers, indexed directly.
  class NameTable {
   public:
    void add(int number, char const* name);
    int exists(int number) const { return slot(number) != nullptr; }
    utString const& name(int number) const;

   private:
    utString const* slot(int number) const;
    int m_first = 0;
    std::vector<utString> m_names; // null where a number has no name
  };

  static igsInfoDB const& db();
  // The row of m_entityDB for a type, or -1.
  int entity_row(int type) const;

  std::vector<igsEntityInfo> m_entityDB;
  int m_first_type = 0;
  std::vector<int> m_entity_index; // type - m_first_type to a row of m_entityDB, or -1
  NameTable m_unitsDB;
  NameTable m_versionDB;
  NameTable m_draftDB;
};
