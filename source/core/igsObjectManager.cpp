#include "core/igsObjectManager.h"

#include "core/igsObjectPtr.h"

igsObjectManager::igsObjectManager() {
  m_pointers.set_increment(2);
}

igsObjectManager::~igsObjectManager() {
  for (igsObjectPtr* ptr : m_pointers)
    if (ptr) {
      ptr->set_manager(nullptr);
      ptr->set_manager_location(-1);
    }
}

void igsObjectManager::add_pointer(igsObjectPtr* ptr) {
  int location;
  if (!m_free_positions.empty()) {
    location = m_free_positions.pop();
    m_pointers[location] = ptr;
  } else {
    location = m_pointers.size();
    if (!m_pointers.append(ptr)) return; // no room: the reference stays null
  }
  ptr->set_manager(this);
  ptr->set_manager_location(location);
  ++m_num_references;
  if (m_num_references > 8 * m_pointers.increment())
    m_pointers.set_increment(8 * m_pointers.increment());
}

void igsObjectManager::delete_pointer(igsObjectPtr* ptr) {
  int location = ptr->location();
  if (location < 0 || location >= m_pointers.size() || m_pointers[location] != ptr) return;
  m_pointers[location] = nullptr;
  m_free_positions.insert_first(location);
  --m_num_references;
  ptr->set_manager(nullptr);
  ptr->set_manager_location(-1);
}

int igsObjectManagerIT::operator++() {
  if (m_manager) {
    igsObjectPtrPtrcoDynArr const& pointers = m_manager->m_pointers;
    while (++m_index < pointers.size())
      if (pointers[m_index]) return 1;
  }
  m_index = -1;
  return 0;
}

igsObjectPtr* igsObjectManagerIT::operator()() const {
  if (!m_manager || m_index < 0) return nullptr;
  igsObjectPtrPtrcoDynArr const& pointers = m_manager->m_pointers;
  return m_index < pointers.size() ? pointers[m_index] : nullptr;
}
