#include "core/igsObjectManager.h"

#include "core/igsObjectPtr.h"

#include <new>

igsObjectManager::~igsObjectManager() {
  drop_references();
}

void igsObjectManager::drop_references() {
  for (int location = 0; location < m_size; ++location)
    if (igsObjectPtr* ptr = pointer(location)) {
      ptr->set_manager(nullptr);
      ptr->set_manager_location(-1);
    }
  if (m_capacity > 1) delete[] m_many;
  m_one = 0;
  m_size = 0;
  m_capacity = 1;
  m_first_hole = -1;
  m_num_references = 0;
}

void igsObjectManager::take_references(igsObjectManager& other) {
  for (int location = 0; location < other.m_size; ++location)
    if (igsObjectPtr* ptr = other.pointer(location)) {
      other.delete_pointer(ptr);
      add_pointer(ptr);
    }
}

igsObjectPtr* igsObjectManager::pointer(int location) const {
  if (location < 0 || location >= m_size || (slots()[location] & 1u)) return nullptr;
  return reinterpret_cast<igsObjectPtr*>(slots()[location]);
}

void igsObjectManager::move_pointer(int location, igsObjectPtr* ptr) {
  slots()[location] = reinterpret_cast<Slot>(ptr);
}

// Grows the list by the increment; 0 if there was no memory.
int igsObjectManager::grow() {
  int capacity = m_capacity + pointer_list_increment();
  Slot* grown = new (std::nothrow) Slot[static_cast<size_t>(capacity)];
  if (!grown) return 0;
  Slot const* old = slots();
  for (int i = 0; i < m_size; ++i) grown[i] = old[i];
  if (m_capacity > 1) delete[] m_many;
  m_many = grown;
  m_capacity = capacity;
  return 1;
}

void igsObjectManager::add_pointer(igsObjectPtr* ptr) {
  int location = m_first_hole;
  if (location >= 0) {
    m_first_hole = next_hole(slots()[location]);
  } else {
    if (m_size == m_capacity && !grow()) return; // no room: the reference stays null
    location = m_size++;
  }
  slots()[location] = reinterpret_cast<Slot>(ptr);
  ptr->set_manager(this);
  ptr->set_manager_location(location);
  ++m_num_references;
  // The increment stops growing at 2^28, so that 8 of it stays an int.
  if (m_increment_power < 9 && m_num_references > 8 * pointer_list_increment()) ++m_increment_power;
}

void igsObjectManager::delete_pointer(igsObjectPtr* ptr) {
  int location = ptr->location();
  if (pointer(location) != ptr) return;
  slots()[location] = hole(m_first_hole);
  m_first_hole = location;
  --m_num_references;
  ptr->set_manager(nullptr);
  ptr->set_manager_location(-1);
}

int igsObjectManagerIT::operator++() {
  if (m_manager) {
    while (++m_index < m_manager->m_size)
      if (m_manager->pointer(m_index)) return 1;
  }
  m_index = -1;
  return 0;
}

igsObjectPtr* igsObjectManagerIT::operator()() const {
  return m_manager ? m_manager->pointer(m_index) : nullptr;
}
