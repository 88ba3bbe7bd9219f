// The roots of the error tree. A problem found in a file is an object of one of the classes
// derived from these; its base decides which section log of the current file keeps it, and
// its `fix` says whether it could be settled.
#pragma once

#include "core/igsUnset.h"
#include "support/kvnabs.h"
#include "support/kvuTypeInfo.h"

class igsSimpleSectionLog;
class igsIndexedSectionLog;
class igsGlobalSection;
class igsTerminateSection;
struct igsErrorBinder;

// Receives the constructor arguments of an error one by one, with the names under which the
// error class declares them. Enumerations arrive as int.
class igsErrorArgumentVisitor {
 public:
  virtual ~igsErrorArgumentVisitor() = default;
  virtual void argument(char const* name, int value) = 0;
  virtual void argument(char const* name, double value) = 0;
  virtual void argument(char const* name, char value) = 0;
  virtual void argument(char const* name, utString const& value) = 0;
};

class igsError {
  // typeof: kind-of test; isa: exact test.
  KVU_DECLARE_ROOT_TYPE()

 public:
  // 1 when the problem is dealt with and the error may leave the active list, 0 when it stays.
  virtual int fix() = 0;
  virtual ~igsError();
  igsError(igsError const&) = delete;
  igsError& operator=(igsError const&) = delete;

  // Hands each constructor argument to the visitor, in declaration order.
  virtual void visit_arguments(igsErrorArgumentVisitor&) const {}

  igsSimpleSectionLog* log() const { return m_log; }
  int log_position() const { return m_log_position; }
  kvnabsOutput* message_stream() const { return m_message_stream; }
  void set_message_stream(kvnabsOutput* stream) { m_message_stream = stream; }

 protected:
  igsError() = default;
  // Sends a printf-style message to the message stream under the channel "iges"; says
  // nothing when no stream is set.
  void message(char const* format, ...) const KVN_PRINTF(2, 3);
  // Leaves the log that holds this error, if any. Destructors call it while the part of the
  // object that the log reads (the key of an indexed error) still stands.
  void leave_log();

 private:
  friend class igsSimpleSectionLog;
  friend class igsIndexedSectionLog;
  void set_log(igsSimpleSectionLog* log) { m_log = log; }
  void set_log_position(int position) { m_log_position = position; }

  kvnabsOutput* m_message_stream = nullptr;
  int m_log_position = -1;
  igsSimpleSectionLog* m_log = nullptr;
};

// An error about one numbered thing: its key is a DE number (or, for a few structure errors,
// a line number).
class igsIndexedError : public igsError {
  KVU_DECLARE_TYPE()
 public:
  static constexpr int unset_key = igs_unset_int;
  int key() const { return m_key; }
  void set_key(int key) { m_key = key; }

 protected:
  igsIndexedError() = default;
  ~igsIndexedError() override;

 private:
  int m_key = unset_key;
};

// A fault of one entity, found by its check; filed in the object log.
class igsObjectError : public igsIndexedError {
  KVU_DECLARE_TYPE()
 public:
  int fix() override { return 0; }
  // The DE number of the entity whose repairs must come before this one: the key itself,
  // unless a derived class names a child.
  virtual int obj() { return key(); }

 protected:
  igsObjectError();
  // The child's DE number once an override of `obj` has found it; 0 until then.
  int cached_obj() const { return m_object_number; }
  void set_cached_obj(int de_number) { m_object_number = de_number; }

 private:
  int m_object_number = 0;
};

// A fault in the file's structure around one entity, found while reading or writing; filed in
// the structure log. Its key is the first integer argument of the concrete class.
class igsStructureError : public igsIndexedError {
  KVU_DECLARE_TYPE()
 public:
  int fix() override { return 0; }

 protected:
  igsStructureError();
};

// The errors of the two sections a file has one of: the key is the section itself.
template <class Section> class igsSectionError : public igsError {
 public:
  int fix() override { return 0; }
  Section* key() const { return m_key; }
  void set_key(Section* section) { m_key = section; }

 protected:
  igsSectionError() = default;

 private:
  Section* m_key = nullptr;
};

// A fault of the Global section; filed in the global log.
class igsGlobalError : public igsSectionError<igsGlobalSection> {
  KVU_DECLARE_TYPE()
 protected:
  igsGlobalError();
};

// A fault of the Start section; filed in the start log.
class igsStartError : public igsError {
  KVU_DECLARE_TYPE()
 public:
  int fix() override { return 0; }

 protected:
  igsStartError();
};

// A fault of the Terminate section, or of the file as a whole found at its end; filed in the
// terminate log.
class igsTerminateError : public igsSectionError<igsTerminateSection> {
  KVU_DECLARE_TYPE()
 protected:
  igsTerminateError();
};

// An error about one member of an entity's list, which it names by the member's position as
// read (the index list of the entity says where the member is now).
class igsMemberError : public igsObjectError {
 public:
  int index() const { return m_index; }

 protected:
  igsMemberError() = default;
  explicit igsMemberError(int index) : m_index(index) {}
  void set_index(int index) { m_index = index; }

 private:
  friend struct igsErrorBinder;
  int m_index = -1;
};

// A bad member of a compound entity (group, subfigure, drawing). `obj` names the member, so
// that its repairs come first; `fix` drops the members that are null or still have logged
// errors, once this is the last such error of the compound (entities/structure/igsCompound.cpp).
class igsCompoundEntityError : public igsMemberError {
  KVU_DECLARE_TYPE()
 public:
  int fix() override;
  int obj() override;

 protected:
  using igsMemberError::igsMemberError;
};

// A bad view of a drawing's view list: the same as a compound entity error, on the views
// (entities/structure/igs404.cpp).
class igs404ViewError : public igsMemberError {
  KVU_DECLARE_TYPE()
 public:
  int fix() override;
  int obj() override;

 protected:
  using igsMemberError::igsMemberError;
};
