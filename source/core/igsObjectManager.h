// The record a file keeps for each entity (and for each DE number referenced before its
// entity exists). Every reference to the entity is registered here, so deleting or replacing
// the entity reaches all of them at once. An entity's manager is part of the entity itself; a
// DE number referenced before its entity exists has a manager of its own, whose references
// move to the entity when it comes.
#pragma once

#include "core/igsObjectSystem.h"
#include "support/coNames.h"

#include <cstdint>

class igsDirectoryEntry;

class igsObjectManager {
 public:
  igsObjectManager() = default;
  // Nulls every reference that still reaches this manager.
  ~igsObjectManager();
  igsObjectManager(igsObjectManager const&) = delete;
  igsObjectManager& operator=(igsObjectManager const&) = delete;

  // Registers the reference: the reference learns its index and this manager.
  void add_pointer(igsObjectPtr* ptr);
  // Forgets the reference; its slot is reused by the next one added.
  void delete_pointer(igsObjectPtr* ptr);

  // Moves every reference of `other` here, as an entity takes the place of the manager that
  // stood for its DE number.
  void take_references(igsObjectManager& other);
  // Nulls every reference and frees the list, as the entity goes.
  void drop_references();

  // The entity, or null for a manager that stands for a DE number without one. An entity's
  // manager stands in it right after its table of virtual operations (a test holds the two
  // to each other).
  igsObject* object() const {
    if (!m_is_entity) return nullptr;
    char* entity = reinterpret_cast<char*>(const_cast<igsObjectManager*>(this)) - sizeof(void*);
    return reinterpret_cast<igsObject*>(entity);
  }
  igsDirectoryEntry* directory_entry() const;
  igsFile* file() const {
    return m_file_slot ? igsObjectSystem::file_in_slot(m_file_slot - 1) : nullptr;
  }
  // The file must be open in the object system; null, or a file that is not, leaves none.
  void set_file(igsFile* file);
  int system_location() const { return m_system_location; }
  void set_system_location(int location) { m_system_location = location; }
  int visited() const { return m_visited; }
  void set_visited(int visited) { m_visited = visited != 0; }
  int validated() const { return m_validated; }
  void set_validated(int validated) { m_validated = validated != 0; }
  int num_references() const { return m_listed ? list()->num_references : m_word != 0; }

  // The reference list grows by a step that is multiplied by 8 whenever the number of
  // references passes 8 steps (2, 16, 128, ...), so heavily shared entities do not pay for
  // many small reallocations.
  int pointer_list_increment() const { return 2 << (3 * (m_listed ? list()->increment_power : 0)); }
  int pointer_list_capacity() const { return m_listed ? list()->capacity : 1; }

 private:
  friend class igsObjectManagerIT;
  friend class igsObjectPtr;
  friend class igsObject;
  // The reference list holds the addresses of the references. A hole (a slot whose reference
  // left) reads as null to everyone else but holds the next hole of the free list, so holes
  // are reused last freed first without a separate stack: (next + 1) * 2 + 1, odd, where an
  // address is even. Most entities have one reference at most: the manager holds it in place,
  // and a list is made when a second one comes.
  using Slot = std::uintptr_t;
  static Slot hole(int next) { return (static_cast<Slot>(next + 1) << 1) | 1u; }
  static int next_hole(Slot slot) { return static_cast<int>(slot >> 1) - 1; }
  // A grown list: its counts and the power of 8 of its increment, followed in the same block
  // by its slots.
  struct alignas(Slot) List {
    int size;
    int capacity;
    int first_hole;
    int num_references;
    int increment_power;
    Slot* slots() { return reinterpret_cast<Slot*>(this + 1); }
  };
  List* list() const { return reinterpret_cast<List*>(m_word); }
  // The number of slots in use, holes included.
  int size() const { return m_listed ? list()->size : m_word != 0; }
  // The reference in the slot at location, or null for a hole or a location out of range.
  igsObjectPtr* pointer(int location) const;
  // A reference moved to a new address keeps its slot.
  void move_pointer(int location, igsObjectPtr* ptr);
  int grow();

  // 16 bytes, as a file holds one manager per entity: the reference word, the location, and
  // one word of the file's slot in the object system with the flags. What only a grown list
  // needs stands in the list. 28 bits of slot allow more open files than memory can hold; a
  // file past them would leave its entities out of it, not in another.
  Slot m_word = 0; // the one reference, or 0; once listed, the address of the list
  int m_system_location = -1;
  std::uint32_t m_file_slot : 28 = 0; // the slot plus 1, or 0 for no file
  std::uint32_t m_visited : 1 = 0;
  std::uint32_t m_validated : 1 = 0;
  std::uint32_t m_is_entity : 1 = 0; // part of an igsObject
  std::uint32_t m_listed : 1 = 0;
};

// Walks the live references of one manager.
class igsObjectManagerIT {
 public:
  explicit igsObjectManagerIT(igsObjectManager* manager) : m_manager(manager) {}
  // Moves to the next live reference; 0 at the end, where the index returns to -1.
  int operator++();
  // The current reference, or null.
  igsObjectPtr* operator()() const;

 private:
  igsObjectManager* m_manager;
  int m_index = -1;
};
