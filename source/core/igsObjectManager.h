// The record a file keeps for each entity (and for each DE number referenced before its
// entity exists). Every reference to the entity is registered here, so deleting or replacing
// the entity reaches all of them at once.
#pragma once

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

  igsObject* object() const { return m_object; }
  void set_object(igsObject* object) { m_object = object; }
  igsDirectoryEntry* directory_entry() const { return m_directory_entry; }
  void set_directory_entry(igsDirectoryEntry* de) { m_directory_entry = de; }
  igsFile* file() const { return m_file; }
  void set_file(igsFile* file) { m_file = file; }
  int system_location() const { return m_system_location; }
  void set_system_location(int location) { m_system_location = location; }
  int visited() const { return m_visited; }
  void set_visited(int visited) { m_visited = visited != 0; }
  int validated() const { return m_validated; }
  void set_validated(int validated) { m_validated = validated != 0; }
  int num_references() const { return m_num_references; }

  // The reference list grows by a step that is multiplied by 8 whenever the number of
  // references passes 8 steps (2, 16, 128, ...), so heavily shared entities do not pay for
  // many small reallocations.
  int pointer_list_increment() const { return 2 << (3 * m_increment_power); }
  int pointer_list_capacity() const { return m_capacity; }

 private:
  friend class igsObjectManagerIT;
  friend class igsObjectPtr;
  // The reference list holds the addresses of the references. A hole (a slot whose reference
  // left) reads as null to everyone else but holds the next hole of the free list, so holes
  // are reused last freed first without a separate stack: (next + 1) * 2 + 1, odd, where an
  // address is even. The first two slots live in the manager itself.
  using Slot = std::uintptr_t;
  static Slot hole(int next) { return (static_cast<Slot>(next + 1) << 1) | 1u; }
  static int next_hole(Slot slot) { return static_cast<int>(slot >> 1) - 1; }
  // The reference in the slot at location, or null for a hole or a location out of range.
  igsObjectPtr* pointer(int location) const;
  // A reference moved to a new address keeps its slot.
  void move_pointer(int location, igsObjectPtr* ptr);
  int grow();

  // The fields of eight bytes first, then those of four, then the flags and the power of 8 of
  // the increment in one byte each, so that no padding parts them: a file holds one manager
  // per entity.
  igsObject* m_object = nullptr;
  igsDirectoryEntry* m_directory_entry = nullptr;
  igsFile* m_file = nullptr;
  Slot m_inline[2] = {};
  Slot* m_slots = m_inline;
  int m_system_location = -1;
  int m_size = 0;
  int m_capacity = 2;
  int m_first_hole = -1;
  int m_num_references = 0;
  std::uint8_t m_visited = 0;
  std::uint8_t m_validated = 0;
  std::uint8_t m_increment_power = 0;
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
