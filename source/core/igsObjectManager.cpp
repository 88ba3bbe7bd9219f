#include "core/igsObjectManager.h"

#include "core/igsObjectPtr.h"

#include <new>

igsObjectManager::~igsObjectManager() {
  drop_references();
}

void igsObjectManager::drop_references() {
  for (int location = 0, n = size(); location < n; ++location)
    if (igsObjectPtr* ptr = pointer(location)) {
      ptr->set_manager(nullptr);
      ptr->set_manager_location(-1);
    }
  if (m_listed) ::operator delete(list());
  m_word = 0;
  m_listed = 0;
}

void igsObjectManager::take_references(igsObjectManager& other) {
  for (int location = 0, n = other.size(); location < n; ++location)
    if (igsObjectPtr* ptr = other.pointer(location)) {
      other.delete_pointer(ptr);
      add_pointer(ptr);
    }
}

igsObjectPtr* igsObjectManager::pointer(int location) const {
  if (!m_listed) return location == 0 ? reinterpret_cast<igsObjectPtr*>(m_word) : nullptr;
  if (location < 0 || location >= list()->size) return nullptr;
  Slot slot = list()->slots()[location];
  return slot & 1u ? nullptr : reinterpret_cast<igsObjectPtr*>(slot);
}

void igsObjectManager::move_pointer(int location, igsObjectPtr* ptr) {
  if (m_listed)
    list()->slots()[location] = reinterpret_cast<Slot>(ptr);
  else
    m_word = reinterpret_cast<Slot>(ptr);
}

// Grows the list by the increment, making it from the reference held in place at first; 0 if
// there was no memory.
int igsObjectManager::grow() {
  int capacity = pointer_list_capacity() + pointer_list_increment();
  void* memory =
      ::operator new(sizeof(List) + static_cast<size_t>(capacity) * sizeof(Slot), std::nothrow);
  if (!memory) return 0;
  List* grown = new (memory) List{0, capacity, -1, m_word ? 1 : 0, 0};
  Slot* slots = grown->slots();
  if (m_listed) {
    List* old = list();
    grown->size = old->size;
    grown->first_hole = old->first_hole;
    grown->num_references = old->num_references;
    grown->increment_power = old->increment_power;
    for (int i = 0; i < old->size; ++i) slots[i] = old->slots()[i];
    ::operator delete(old);
  } else if (m_word) {
    slots[0] = m_word;
    grown->size = 1;
  }
  m_word = reinterpret_cast<Slot>(grown);
  m_listed = 1;
  return 1;
}

void igsObjectManager::add_pointer(igsObjectPtr* ptr) {
  int location = 0;
  if (!m_listed && !m_word) {
    m_word = reinterpret_cast<Slot>(ptr);
  } else {
    if (!m_listed && !grow()) return; // no room: the reference stays null
    List* l = list();
    if (l->first_hole >= 0) {
      location = l->first_hole;
      l->first_hole = next_hole(l->slots()[location]);
    } else {
      if (l->size == l->capacity && !grow()) return;
      l = list();
      location = l->size++;
    }
    l->slots()[location] = reinterpret_cast<Slot>(ptr);
    ++l->num_references;
    // The increment stops growing at 2^28, so that 8 of it stays an int.
    if (l->increment_power < 9 && l->num_references > 8 * pointer_list_increment())
      ++l->increment_power;
  }
  ptr->set_manager(this);
  ptr->set_manager_location(location);
}

void igsObjectManager::delete_pointer(igsObjectPtr* ptr) {
  int location = ptr->location();
  if (pointer(location) != ptr) return;
  if (m_listed) {
    List* l = list();
    l->slots()[location] = hole(l->first_hole);
    l->first_hole = location;
    --l->num_references;
  } else {
    m_word = 0;
  }
  ptr->set_manager(nullptr);
  ptr->set_manager_location(-1);
}

int igsObjectManagerIT::operator++() {
  if (m_manager) {
    while (++m_index < m_manager->size())
      if (m_manager->pointer(m_index)) return 1;
  }
  m_index = -1;
  return 0;
}

igsObjectPtr* igsObjectManagerIT::operator()() const {
  return m_manager ? m_manager->pointer(m_index) : nullptr;
}
