#include "core/igsObjectPtr.h"

#include "core/igsFile.h"
#include "core/igsObject.h"
#include "core/igsObjectSystem.h"

igsObjectPtr::igsObjectPtr(igsObject* object) {
  if (object && object->manager()) object->manager()->add_pointer(this);
}

igsObjectPtr::igsObjectPtr(int de_number) {
  if (!valid_de_number(de_number)) return;
  igsObjectSystem::initialize_system();
  igsObjectSystem::ptr_created(this, (de_number - 1) / 2);
}

igsObjectPtr::igsObjectPtr(igsObjectPtr const& other) {
  if (other.m_manager) other.m_manager->add_pointer(this);
}

igsObjectPtr::igsObjectPtr(igsObjectPtr&& other) noexcept
    : m_manager(other.m_manager), m_location(other.m_location) {
  if (m_manager) m_manager->move_pointer(m_location, this);
  other.m_manager = nullptr;
  other.m_location = -1;
}

igsObjectPtr& igsObjectPtr::operator=(igsObjectPtr const& other) {
  igsObjectManager* target = other.m_manager; // read first: `other` may be this reference
  leave();
  if (target) target->add_pointer(this);
  return *this;
}

igsObjectPtr& igsObjectPtr::operator=(igsObjectPtr&& other) noexcept {
  if (this == &other) return *this;
  leave();
  m_manager = other.m_manager;
  m_location = other.m_location;
  if (m_manager) m_manager->move_pointer(m_location, this);
  other.m_manager = nullptr;
  other.m_location = -1;
  return *this;
}

// The reference leaves before the target's children are dropped, and is not touched again:
// in a cycle of entities that only reference each other, the entity that holds this reference
// may itself go down with the target.
void igsObjectPtr::unreference() {
  if (!m_manager) return;
  igsObject* target = m_manager->object();
  int last = m_manager->num_references() == 1;
  leave();
  if (target && last) {
    target->unreference_children();
    delete target;
  }
}
