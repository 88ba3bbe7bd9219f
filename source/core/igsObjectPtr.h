// A reference to an entity. It owns nothing: it is registered with the target's manager, so
// that deleting the target nulls it and replacing the target moves it. A reference made from
// a DE number binds to that number's slot in the current file even before an entity stands
// there, and reaches the entity as soon as one takes the slot.
#pragma once

#include "core/igsObjectManager.h"

class igsObjectPtr {
 public:
  igsObjectPtr() = default;
  // Null for a null object, else a reference to it.
  igsObjectPtr(igsObject* object);
  // Null unless the number is positive and odd; else bound to slot (de_number - 1) / 2 of
  // the current file.
  explicit igsObjectPtr(int de_number);
  igsObjectPtr(igsObjectPtr const& other);
  // Takes over the other's registration; the other becomes null.
  igsObjectPtr(igsObjectPtr&& other) noexcept;
  ~igsObjectPtr() { leave(); }
  igsObjectPtr& operator=(igsObjectPtr const& other);
  igsObjectPtr& operator=(igsObjectPtr&& other) noexcept;

  // Compares the targets: a null reference equals one bound to an empty slot.
  bool operator==(igsObjectPtr const& other) const { return get() == other.get(); }
  // The target, or null for a null reference and for an empty slot.
  operator void*() const { return get(); }
  // The target without a test; the caller has tested the reference.
  igsObject* operator->() const { return m_manager->object(); }
  igsObject& operator*() const { return *m_manager->object(); }
  igsObject* operator()() const { return m_manager->object(); }

  // Gives up this reference: it becomes null. If it was the last one to an existing target,
  // the target drops its own children and is then deleted, so the loss runs down the tree.
  // Whether the reference is bound to an entity or to a DE number that has none yet.
  int bound() const { return m_manager != nullptr; }

  void unreference();

 private:
  friend class igsObjectManager;
  friend class igsObjectManagerIT;
  friend class igsFile;
  igsObject* get() const { return m_manager ? m_manager->object() : nullptr; }
  int location() const { return m_location; }
  void set_manager(igsObjectManager* manager) { m_manager = manager; }
  void set_manager_location(int location) { m_location = location; }
  static int valid_de_number(int de_number) { return de_number > 0 && de_number % 2 == 1; }
  void leave() {
    if (m_manager) m_manager->delete_pointer(this);
  }

  igsObjectManager* m_manager = nullptr;
  int m_location = -1;
};
