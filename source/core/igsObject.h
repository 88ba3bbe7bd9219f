// The abstract base of every entity. An entity joins the current file when it is constructed
// and leaves it when it is destroyed. It carries its manager (the record of its references,
// DE number and file) and its Directory Entry within itself, so that an entity is one block
// of memory. Entities are always made with new: the file deletes what it holds.
#pragma once

#include "core/igsEntityType.h"
#include "core/igsObjectManager.h"
#include "sections/igsDirectoryEntry.h"
#include "support/kvuTypeInfo.h"
#include "support/utOstream.h"

#include <new>
#include <utility>

class igsInStream;
class igsOutStream;
class igsObjectError;
class igsStructureError;

class igsObject : private igsObjectManager {
  // typeof: kind-of test; isa: exact test.
  KVU_DECLARE_ROOT_TYPE()

 public:
  virtual ~igsObject();
  igsObject(igsObject const&) = delete;
  // An entity's memory comes from the file that is current when it is made and goes back to
  // that file when it is deleted: a read makes a few large allocations for its entities, not
  // one per entity. Null when no memory could be had.
  static void* operator new(std::size_t size) noexcept;
  static void* operator new(std::size_t size, std::nothrow_t const&) noexcept;
  static void operator delete(void* memory, std::size_t size) noexcept;
  igsObject& operator=(igsObject const&) = delete;

  // Checks the entity once per walk; 1 when it has no logged errors afterwards.
  int check() const;
  // 2 x slot + 1: the number under which files, errors and messages name the entity.
  int de_number() const { return 2 * system_location() + 1; }
  igsDirectoryEntry& directory_entry() const { return m_directory_entry; }
  igsFile& file() const { return *igsObjectManager::file(); }
  // The name of the entity type.
  utString const& name() const;
  // Active errors filed under this DE number in the object and structure logs.
  int num_logged_errors() const;
  int num_references() const { return igsObjectManager::num_references(); }
  // Prints the entity as "@<DE>(<type>) = {" ... "}"; an entity met again in the same walk
  // prints only that frame.
  void print(utOstream& out) const;

 protected:
  igsObject();

  virtual igsObject* make_one() = 0;
  virtual int read_pd_data(igsInStream& in) = 0;
  virtual void write_pd_data(igsOutStream& out) = 0;
  virtual void print_pd_data(utOstream& out) const = 0;
  virtual void check_pd() const = 0;
  virtual void check_de() const = 0;
  // Drops the references that the DE holds; classes holding references of their own drop
  // those and call up.
  virtual void unreference_children();

  // Binds an object error to this entity: key = DE number, and the file's message stream.
  void tag_error(igsObjectError* error) const;
  // Binds a structure error (keyed by its constructor) to the file's message stream.
  void tag_error(igsStructureError* error) const;
  // Creates an error of class E with the arguments and tags it to this entity.
  template <class E, class... A> void raise_error(A&&... arguments) const {
    tag_error(new (std::nothrow) E(std::forward<A>(arguments)...));
  }

  // Runs the Directory Entry checks selected by `steps` (igsDECheckStep flags, in their fixed
  // order) and raises their errors; `required_use` is the entity use that IGS_DE_ENTITY_USE
  // demands.
  void check_directory_entry(unsigned steps, int required_use = 0) const;

  // Stores type and form in the DE, and an entity use other than 0; every concrete constructor
  // calls it last.
  void set_directory_entry_type(igsEntityType type, int form, int entity_use = 0);

  // Reads the entity's record, the stream standing on its first Parameter line: the type
  // number, then read_pd_data. A record read to its end marks the entity as read (the
  // manager's visited flag) and raises the errors of a NaN and of NUL characters in it; its
  // lines out of sequence set bad_line_numbers, and blank lines among them set blank_lines.
  // Every code of the record is collected here, so none reaches the next record. The stream
  // ends on the first line of the next record, whatever the entity left unread. Returns 0
  // when the stream failed for good while the record was being read, so that what was read
  // into the entity is not to be trusted; 1 otherwise, also when the line behind a record
  // read to its end fails.
  int read(igsInStream& in, int& bad_line_numbers, int& blank_lines);
  // Writes the DE's entity type as a delimited integer, then the parameters.
  void write(igsOutStream& out);
  // Reads the type number that opens the record: 1 when it is the DE's type or the entity
  // stands for an unknown one; else raises igsFilePDEntityTypeMismatch and gives 0.
  int read_pd_entity_type(igsInStream& in);
  // Reads and drops the two lists of back pointers that may follow an entity's parameters.
  void read_additional_entity_pointers(igsInStream& in);
  // Passes over the lines that still carry this entity's DE number as back pointer.
  void skip_this_entity(igsInStream& in);

  // A new entity of the class registered for the type and form, or an igsUnknown.
  static igsObject* create(igsEntityType type, int form);

 private:
  friend class igsFactory;
  friend class igsFile;
  friend class igsObjectPtr;
  friend class igsObjectManager;
  friend class igsDirectoryEntry;
  // The entity's manager, or null if the entity never joined a file (there was no memory).
  igsObjectManager* manager() const {
    igsObjectManager const* own = this;
    return own->m_file_slot ? const_cast<igsObjectManager*>(own) : nullptr;
  }

  // The file whose memory the entity deleted last had: its destructor leaves it for the
  // operator delete that follows at once.
  static inline igsFile* s_memory_owner = nullptr;

  mutable igsDirectoryEntry m_directory_entry;
};
