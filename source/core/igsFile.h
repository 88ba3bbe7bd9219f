// One IGES file in memory: its table of entities, each reached through its manager. A file
// becomes current when it is made; entities made while it is current join it.
#pragma once

#include "core/igsObjectManager.h"
#include "sections/igsGlobalSection.h"
#include "sections/igsStartSection.h"
#include "sections/igsTerminateSection.h"
#include "support/coArena.h"
#include "support/coPool.h"
#include "support/kvnabs.h"
#include "support/kvuTypeInfo.h"
#include "support/utOstream.h"

#include <istream>

class igsError;
class igsInStream;
class igsOutStream;

class igsFile {
 public:
  igsFile();
  // Closes the file in the object system (its log goes first), then deletes its entities.
  virtual ~igsFile();
  igsFile(igsFile const&) = delete;
  igsFile& operator=(igsFile const&) = delete;

  // Judges the file as reading stored it: each entity once, then the view numbers across the
  // file. Object errors found before are replaced by what the check finds now; structure
  // errors stay. Runs with this file current and restores the current file afterwards.
  void check() const;
  // Checks, runs every repair (a failed repair does not stop the others) and, with delete_bad
  // not 0, deletes in slot order the entities that still have logged errors; references to
  // them read null. Runs with this file current, as check.
  void clean(int delete_bad);

  // Reads a whole file from the stream in one pass, with this file current: the Start and
  // Global sections, every Directory Entry (each makes its entity), every entity's parameter
  // data, and the Terminate section. What is damaged is repaired at line level or raised as
  // an error; then the Null and Unknown entities and those that got no parameter data are
  // removed. Returns 1, or 0 if a section could not be read to its end (an empty stream,
  // unusable delimiters, a fatal fault of the stream); what was read stays. The messages
  // stream goes to the Global section. Meant for a file that is still empty.
  int read(std::istream& stream, utOstream& messages);

  // Writes the whole file: Start, Global, Directory, Parameter and Terminate sections. Packs
  // the table first, so DE numbers run 1, 3, 5, ... and each Directory Entry gets its new
  // parameter pointers. The Parameter section goes through a temporary file in the write
  // directory, which is removed however the writing ends. Runs with this file current, so
  // the errors of overflowing limits go to its log. 1 on success; 0 when the temporary file
  // cannot be made, the stream fails, or a limit is exceeded. The stream is not closed.
  int write(std::ostream& stream, utOstream& messages);

  void print(utOstream& out) const;
  // Moves every reference of the old entity to the new one, deletes the old one and gives
  // the new one its slot, so the new entity takes over the DE number and the write order.
  // Both must be distinct entities of this file; otherwise nothing happens.
  void replace_entity(igsObject* old_entity, igsObject* new_entity);

  // Entities in the table; the number of slots that print shows may be larger.
  int num_entities() const { return m_num_entities; }
  int num_slots() const { return m_table.size(); }
  // Managers alive: one per entity and one per DE number referenced while it had no entity.
  int num_managers() const { return m_manager_count; }
  // Null and Unknown entities dropped after reading.
  int num_nulls() const { return m_num_nulls; }
  int num_unknowns() const { return m_num_unknowns; }
  // 1 unless reading failed before or in the Directory section.
  int parameter_data_read() const { return m_parameter_data_read; }
  // Set while reading when line numbers were out of sequence, or blank lines were dropped.
  int invalid_line_numbers() const { return m_invalid_line_numbers; }
  int blank_line() const { return m_blank_line; }

  igsStartSection const& start_section() const { return m_start_section; }
  igsGlobalSection const& global_section() const { return m_global_section; }
  igsTerminateSection const& terminate_section() const { return m_terminate_section; }
  // Copy the section's contents; the copy stays this file's.
  void set_start_section(igsStartSection const& section);
  void set_global_section(igsGlobalSection const& section);

  kvnabsOutput* message_stream() const { return m_message_stream; }
  void set_message_stream(kvnabsOutput* stream) { m_message_stream = stream; }
  utString const& write_dir() const { return m_write_dir; }
  void set_write_dir(utString const& dir) { m_write_dir = dir; }

 protected:
  utString const& pathname() const { return m_pathname; }
  void set_pathname(utString const& pathname) { m_pathname = pathname; }
  // Gives the error the file's message stream, if one is set.
  void tag_error(igsError* error) const;
  // Packs the table: entities move down over the empty slots in order, so DE numbers run
  // 1, 3, 5, ... with no gap, and the free slots are forgotten. References are unaffected.
  void compress();
  // Destroys the managers of DE numbers that were referenced but never got an entity, so
  // that every reference to them reads null for good.
  void remove_forward_references();

  // Reads the Directory Entries up to the end of the section; the result of the reset that
  // ends it.
  int read_directory_section(igsInStream& in);
  // Reads the two D lines where the stream stands and makes their entity; 0 when the stream
  // stands on no D line or has failed for good.
  int read_directory_entry(igsInStream& in);
  // Reads each record of parameter data into the entity that its back pointer names; the
  // result of the reset that ends the section.
  int read_parameter_data_section(igsInStream& in);

  // The Directory and Parameter sections: the parameter data to a temporary file first, each
  // entity's Directory Entry taking its parameter pointer and line count from it, then the
  // D lines, then the copied P lines. `out` writes to `stream` and has just left the Global
  // section.
  int write_data_section(std::ostream& stream, igsOutStream& out);
  // The two D lines of every entity in slot order; 0 if the stream failed.
  int write_directory_entries(igsOutStream& out);
  // Copies the finished P lines of the temporary file to the stream; 0 if the file cannot be
  // read or the stream failed.
  int write_parameter_data_section(std::ostream& stream, char const* temp_name);

 private:
  friend class igsObjectSystem;
  friend class igsObject;
  friend class igsObjectPtr;
  friend class igsObjectManager;
  friend class igsFileIT;
  friend class igsFileTypeIT;

  void object_created(igsObject* object);
  void object_deleted(igsObject* object);
  void ptr_created(igsObjectPtr* ptr, int location);
  void reset_visit_flags();
  // After reading: drops the Null and Unknown entities (counting them) and those that got no
  // parameter data (with igsFileNoPDData), then the placeholders of DE numbers that no entity
  // took.
  void tidyup();
  // The checks that compare entities with each other.
  void check_inter_entity_errors() const;
  // A view's number must be set, not negative, and not used by an earlier view; each fault is
  // an error on the view proposing a number above all those in use.
  void check_the_410_view_numbers() const;
  int system_location() const { return m_system_location; }
  void set_system_location(int location) { m_system_location = location; }
  // The manager in the slot, or null.
  igsObjectManager* slot(int location) const {
    igsObjectManager* const* m = m_table.find(location);
    return m ? *m : nullptr;
  }
  igsObject* object_at(int location) const;
  // Moves the index to the next slot whose entity is accepted; 0 and index -1 at the end.
  template <class Accept> int next_entity(int& index, Accept accept) const;

  utString m_pathname;
  igsStartSection m_start_section{this};
  igsGlobalSection m_global_section{this};
  igsTerminateSection m_terminate_section{this};
  // The managers of DE numbers referenced before their entities exist, drawn from a pool of
  // the file; an entity carries its own.
  coPool<igsObjectManager> m_managers;
  // The memory of the entities made while the file is current, in blocks of their sizes.
  coArena m_object_memory;
  igsObjectManagerPtrcoPageArr m_table;
  intcoStack m_free_slots;
  intigsObjectManagerPtrcoTable m_forward_references;
  int m_manager_count = 0;
  int m_num_entities = 0;
  int m_system_location = -1;
  utString m_write_dir;
  kvnabsOutput* m_message_stream = nullptr;
  int m_invalid_line_numbers = 0;
  int m_blank_line = 0;
  int m_parameter_data_read = 1;
  int m_num_nulls = 0;
  // Counted by a read, so that it walks the entities afterwards only if one may have to go:
  // those given their parameter data, and the Null and Unknown ones made.
  int m_entities_read = 0;
  int m_entities_to_drop = 0;
  int m_closing = 0; // set while the destructor deletes the entities
  int m_num_unknowns = 0;
};

utOstream& operator<<(utOstream& out, igsFile const& file);

// Walks the entities of a file in slot order; with the flag set, only those that nothing
// references (the top-level entities).
class igsFileIT {
 public:
  explicit igsFileIT(igsFile const* file, int top_level_only = 0)
      : m_file(file), m_top_level_only(top_level_only) {}
  int operator++();
  igsObject* operator()() const;

 private:
  igsFile const* m_file;
  int m_top_level_only;
  int m_index = -1;
};

// Walks the entities of a file that are exactly of the given class (not of derived classes).
class igsFileTypeIT {
 public:
  igsFileTypeIT(igsFile const* file, kvuTypeInfo const& type) : m_file(file), m_type(&type) {}
  int operator++();
  igsObject* operator()() const;

 private:
  igsFile const* m_file;
  kvuTypeInfo const* m_type;
  int m_index = -1;
};
