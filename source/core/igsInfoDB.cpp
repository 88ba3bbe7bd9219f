#include "core/igsInfoDB.h"

#include <iterator>

namespace {

utString const& null_name() {
  static utString const null;
  return null;
}

} // namespace

int igsEntityInfo::form_exists(int form) const {
  if (m_forms.empty()) return form == 0;
  return find_form(form) != nullptr;
}

igsFormInfo const& igsEntityInfo::form_info(int form) const {
  static igsFormInfo const fallback(0, 0, "Default");
  igsFormInfo const* found = find_form(form);
  return found ? *found : fallback;
}

igsFormInfo const* igsEntityInfo::find_form(int form) const {
  for (auto it = m_forms.rbegin(); it != m_forms.rend(); ++it)
    if (it->holds(form)) return &*it;
  return nullptr;
}

void igsInfoDB::NameTable::add(int number, char const* name) {
  if (m_names.empty()) m_first = number;
  if (number < m_first) {
    m_names.insert(m_names.begin(), static_cast<size_t>(m_first - number), utString());
    m_first = number;
  }
  size_t at = static_cast<size_t>(number - m_first);
  if (at >= m_names.size()) m_names.resize(at + 1);
  m_names[at] = utString(name);
}

utString const* igsInfoDB::NameTable::slot(int number) const {
  long long at = static_cast<long long>(number) - m_first;
  if (at < 0 || at >= static_cast<long long>(m_names.size())) return nullptr;
  utString const& name = m_names[static_cast<size_t>(at)];
  return name.is_null() ? nullptr : &name;
}

utString const& igsInfoDB::NameTable::name(int number) const {
  utString const* found = slot(number);
  return found ? *found : null_name();
}

igsInfoDB::igsInfoDB() {
  initialize_tables();
}

igsInfoDB const& igsInfoDB::db() {
  // Built on first use, so that static initialisers elsewhere may already ask.
  struct Instance : igsInfoDB {};
  static Instance const instance;
  return instance;
}

void igsInfoDB::initialize_tables() {
  initialize_entities();
  initialize_forms();
  initialize_units();
  initialize_version();
  initialize_drafting_standard();
}

void igsInfoDB::initialize_entities() {
  struct Row {
    int type;
    char const* name;
    int default_form;
  };
  static constexpr Row rows[] = {
#define IGS_ENTITY_INFO(type, name, default_form) {type, name, default_form},
#include "core/igsInfoDB.def"
  };
  int first = rows[0].type;
  int last = rows[0].type;
  for (Row const& row : rows) {
    if (row.type < first) first = row.type;
    if (row.type > last) last = row.type;
  }
  m_first_type = first;
  m_entity_index.assign(static_cast<size_t>(last - first + 1), -1);
  m_entityDB.reserve(std::size(rows));
  for (Row const& row : rows) {
    m_entity_index[static_cast<size_t>(row.type - first)] = static_cast<int>(m_entityDB.size());
    m_entityDB.emplace_back(row.name, row.default_form);
  }
}

void igsInfoDB::initialize_forms() {
  struct Row {
    int type;
    int min_form;
    int max_form;
    char const* name;
  };
  static constexpr Row rows[] = {
#define IGS_FORM_INFO(type, min_form, max_form, name) {type, min_form, max_form, name},
#include "core/igsInfoDB.def"
  };
  for (Row const& row : rows) {
    int at = entity_row(row.type);
    if (at >= 0)
      m_entityDB[static_cast<size_t>(at)].add_form(
          igsFormInfo(row.min_form, row.max_form, row.name));
  }
}

void igsInfoDB::initialize_units() {
#define IGS_UNITS_INFO(flag, name) m_unitsDB.add(flag, name);
#include "core/igsInfoDB.def"
}

void igsInfoDB::initialize_version() {
#define IGS_VERSION_INFO(version, name) m_versionDB.add(version, name);
#include "core/igsInfoDB.def"
}

void igsInfoDB::initialize_drafting_standard() {
#define IGS_DRAFT_INFO(standard, name) m_draftDB.add(standard, name);
#include "core/igsInfoDB.def"
}

int igsInfoDB::entity_row(int type) const {
  long long at = static_cast<long long>(type) - m_first_type;
  if (at < 0 || at >= static_cast<long long>(m_entity_index.size())) return -1;
  return m_entity_index[static_cast<size_t>(at)];
}

igsEntityInfo const* igsInfoDB::entity_info(int type) {
  igsInfoDB const& d = db();
  int at = d.entity_row(type);
  return at < 0 ? nullptr : &d.m_entityDB[static_cast<size_t>(at)];
}

int igsInfoDB::entity_exists(int type) {
  return entity_info(type) != nullptr;
}

utString const& igsInfoDB::entity_name(int type) {
  igsEntityInfo const* info = entity_info(type);
  return info ? info->entity_name() : null_name();
}

utString igsInfoDB::entity_form_name(int type, int form) {
  utString text = entity_name(type);
  text += "(";
  text += form_name(type, form);
  text += ")";
  return text;
}

int igsInfoDB::form_exists(int type, int form) {
  igsEntityInfo const* info = entity_info(type);
  return info && info->form_exists(form);
}

utString const& igsInfoDB::form_name(int type, int form) {
  igsEntityInfo const* info = entity_info(type);
  return info ? info->form_info(form).form_name() : null_name();
}

void igsInfoDB::default_form_number(int type, int& form, int& found) {
  form = 0;
  found = 0;
  igsEntityInfo const* info = entity_info(type);
  if (!info || info->default_form_number() == igsEntityInfo::no_default_form) return;
  form = info->default_form_number();
  found = 1;
}

int igsInfoDB::units_exist(int flag) {
  return db().m_unitsDB.exists(flag);
}

utString const& igsInfoDB::units_name(int flag) {
  return db().m_unitsDB.name(flag);
}

int igsInfoDB::version_exists(int version) {
  return db().m_versionDB.exists(version);
}

utString const& igsInfoDB::version_name(int version) {
  return db().m_versionDB.name(version);
}

int igsInfoDB::draft_exists(int standard) {
  return db().m_draftDB.exists(standard);
}

utString const& igsInfoDB::draft_name(int standard) {
  return db().m_draftDB.name(standard);
}
