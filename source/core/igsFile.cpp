#include "core/igsFile.h"

#include "core/igsObject.h"
#include "core/igsObjectPtr.h"
#include "core/igsObjectSystem.h"
#include "errors/igsError.h"
#include "sections/igsDirectoryEntry.h"

#include <new>

igsFile::igsFile() : m_forward_references(4, 50) {
  igsObjectSystem::initialize_system();
  igsObjectSystem::file_created(this);
}

// Here, beside the file's operations that call it for every entity made.
void igsObjectManager::set_file(igsFile* file) {
  int slot = file ? file->system_location() : -1;
  bool fits = slot >= 0 && slot < (1 << 28) - 1;
  m_file_slot = fits ? static_cast<std::uint32_t>(slot) + 1 : 0;
}

// The file leaves the object system last: its entities find it through their slot there.
igsFile::~igsFile() {
  remove_forward_references();
  m_closing = 1;
  for (int location = 0; location < m_table.size(); ++location)
    if (igsObjectManager* manager = slot(location)) delete manager->object();
  igsObjectSystem::file_deleted(this);
}

void igsFile::object_created(igsObject* object) {
  int location = m_free_slots.empty() ? m_table.size() : m_free_slots.pop();
  igsObjectManager* manager = object;
  m_table[location] = manager;
  if (m_table.size() <= location) {
    m_free_slots.insert_first(location); // no memory for the slot: the entity stays out of the file
    return;
  }
  igsObjectManager** waiting =
      m_forward_references.empty() ? nullptr : m_forward_references.read(location);
  if (waiting) {
    // References bound to this DE number before now reach the new entity.
    igsObjectManager* placeholder = *waiting;
    m_forward_references.remove(location);
    manager->take_references(*placeholder);
    m_managers.destroy(placeholder);
  } else {
    ++m_manager_count;
  }
  manager->set_system_location(location);
  manager->set_file(this);
  ++m_num_entities;
}

void igsFile::object_deleted(igsObject* object) {
  igsObjectManager* manager = object;
  int location = manager->system_location();
  m_table[location] = nullptr;
  if (!m_closing) m_free_slots.insert_first(location); // a closing file makes nothing more
  --m_manager_count;
  --m_num_entities;
  manager->drop_references(); // every reference to the entity is null from here
  manager->set_file(nullptr);
}

void igsFile::ptr_created(igsObjectPtr* ptr, int location) {
  if (igsObjectManager* manager = location < m_table.size() ? slot(location) : nullptr) {
    manager->add_pointer(ptr);
  } else if (igsObjectManager** waiting = m_forward_references.read(location)) {
    (*waiting)->add_pointer(ptr);
  } else if (igsObjectManager* placeholder = m_managers.make()) {
    placeholder->set_file(this);
    placeholder->set_system_location(location);
    placeholder->add_pointer(ptr);
    ++m_manager_count;
    m_forward_references[location] = placeholder;
  }
}

void igsFile::remove_forward_references() {
  for (auto& [location, placeholder] : m_forward_references) {
    m_managers.destroy(placeholder);
    --m_manager_count;
  }
  m_forward_references.clear();
}

void igsFile::reset_visit_flags() {
  for (int location = 0; location < m_table.size(); ++location)
    if (igsObjectManager* manager = slot(location)) {
      manager->set_visited(0);
      manager->set_validated(0);
    }
}

void igsFile::replace_entity(igsObject* old_entity, igsObject* new_entity) {
  if (!old_entity || !new_entity || old_entity == new_entity) return;
  igsObjectManager* old_manager = old_entity->manager();
  igsObjectManager* new_manager = new_entity->manager();
  if (!old_manager || !new_manager || old_manager->file() != this || new_manager->file() != this)
    return;
  {
    igsObjectPtr target(new_entity);
    for (igsObjectManagerIT it(old_manager); ++it;) *it() = target;
  }
  int old_location = old_manager->system_location();
  int new_location = new_manager->system_location();
  delete old_entity; // frees the old slot
  m_free_slots.pop();
  m_table[old_location] = new_manager;
  m_table[new_location] = nullptr;
  m_free_slots.insert_first(new_location);
  new_manager->set_system_location(old_location);
}

void igsFile::compress() {
  int write = 0;
  for (int location = 0; location < m_table.size(); ++location)
    if (igsObjectManager* manager = slot(location)) {
      if (location != write) {
        m_table[write] = manager;
        m_table[location] = nullptr;
        manager->set_system_location(write);
      }
      ++write;
    }
  m_table.shrink(write);
  m_free_slots.clear();
}

void igsFile::set_start_section(igsStartSection const& section) {
  m_start_section.become(section);
  m_start_section.set_file(this);
}

void igsFile::set_global_section(igsGlobalSection const& section) {
  m_global_section.become(section);
  m_global_section.set_file(this);
}

void igsFile::tag_error(igsError* error) const {
  if (error && m_message_stream) error->set_message_stream(m_message_stream);
}

void igsFile::print(utOstream& out) const {
  igsObjectSystem::reentrant_start();
  utOstream level1(utOstreamTabTag, out, 1, 0);
  utOstream level2(utOstreamTabTag, level1, 1, 0);
  out << "IgesFile = {\n";
  level1 << "Pathname = \"" << m_pathname << "\"\n";
  level1 << m_start_section << m_global_section;
  level1 << "NoOfEntities = " << m_table.size() << "\n";
  level1 << "Entities = {\n";
  for (int location = 0; location < m_table.size(); ++location)
    if (igsObject* object = object_at(location)) object->print(level2);
  level1 << "}\n";
  level1 << m_terminate_section;
  out << "}\n";
  igsObjectSystem::reentrant_end();
}

utOstream& operator<<(utOstream& out, igsFile const& file) {
  file.print(out);
  return out;
}

igsObject* igsFile::object_at(int location) const {
  igsObjectManager* manager = slot(location);
  return manager ? manager->object() : nullptr;
}

template <class Accept> int igsFile::next_entity(int& index, Accept accept) const {
  while (++index < m_table.size())
    if (igsObject* object = object_at(index); object && accept(*object)) return 1;
  index = -1;
  return 0;
}

int igsFileIT::operator++() {
  if (!m_file) return 0;
  return m_file->next_entity(m_index, [this](igsObject const& object) {
    return !m_top_level_only || object.num_references() == 0;
  });
}

igsObject* igsFileIT::operator()() const {
  return m_file ? m_file->object_at(m_index) : nullptr;
}

int igsFileTypeIT::operator++() {
  if (!m_file) return 0;
  return m_file->next_entity(m_index,
                             [this](igsObject const& object) { return object.isa(*m_type); });
}

igsObject* igsFileTypeIT::operator()() const {
  return m_file ? m_file->object_at(m_index) : nullptr;
}
