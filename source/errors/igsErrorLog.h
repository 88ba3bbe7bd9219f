// The error log of one file: five section logs, one per base of the error tree. The logs own
// the errors they hold.
#pragma once

#include "errors/igsError.h"
#include "support/coNames.h"

enum igsLogID : int {
  igsObjectLog = 0,
  igsStructureLog = 1,
  igsGlobalLog = 2,
  igsStartLog = 3,
  igsTerminateLog = 4
};

// Keeps the errors of one base class. Active errors stand in an array whose null slots are
// reused (last freed first), so position order is not time order; errors marked as fixed move
// to a second array and are only destroyed with the log.
class igsSimpleSectionLog {
 public:
  explicit igsSimpleSectionLog(kvuTypeInfo const& type) : m_type(&type) {}
  igsSimpleSectionLog(igsSimpleSectionLog const&) = delete;
  igsSimpleSectionLog& operator=(igsSimpleSectionLog const&) = delete;

  // 1 if the error is of the accepted class and is now held here.
  virtual int receive_error(igsError* e);
  // 1 if the error is of the accepted class, was active here and is now among the fixed.
  virtual int mark_as_fixed(igsError* e);
  // Forgets the error without destroying it; called when an error is destroyed.
  virtual void delete_error(igsError* e);
  // The number of active errors.
  virtual int num_errors();
  // Destroys the active errors. The fixed ones stay.
  virtual void clear();
  // The log has no text form of its own (hosts walk it with igsSimpleSectionLogIT); print
  // brings the log up to date and writes nothing.
  virtual void print();
  virtual ~igsSimpleSectionLog();

  kvuTypeInfo const& accepted_type() const { return *m_type; }

 protected:
  friend class igsSimpleSectionLogIT;
  // Files what has arrived but is not yet filed; nothing to do in a simple log.
  virtual void update_log() {}
  int accepts(igsError const* e) const { return e && e->typeof(*m_type); }
  igsErrorcoDynArr const& active() const { return m_active; }
  // Takes an active error out of its slot; 1 if it stood there.
  int take_active(igsError* e);
  // Destroys an error that this log owns, without it calling back.
  static void discard(igsError* e);

 private:
  kvuTypeInfo const* m_type;
  igsErrorcoDynArr m_active;
  intcoStack m_free_slots;
  int m_count = 0;
  igsErrorcoDynArr m_fixed;
};

// Keeps indexed errors (object and structure errors) with the active errors of each key, so
// that counting and clearing one key costs what that key holds, not the whole log. A new error
// is not filed at once: it arrives from its base constructor, before it has a key, and waits
// among the pending until the next operation that reads the active errors or the counts.
class igsIndexedSectionLog : public igsSimpleSectionLog {
 public:
  explicit igsIndexedSectionLog(kvuTypeInfo const& type)
      : igsSimpleSectionLog(type) {}

  int receive_error(igsError* e) override;
  int mark_as_fixed(igsError* e) override;
  void delete_error(igsError* e) override;
  int num_errors() override;
  // The number of active errors under the key.
  int num_errors(int key);
  void clear() override;
  // Destroys the active errors under the key; others keep their positions.
  void clear(int key);
  void print() override;
  ~igsIndexedSectionLog() override;

 protected:
  void update_log() override;

 private:
  // Takes the error out of the list of its key.
  void uncount(igsError* e);

  coTable<int, igsErrorcoDynArr> m_by_key;
  igsErrorcoDynArr m_pending;
};

// The log of one file, sorted by the base class of its errors into the five section logs, in
// the order of igsLogID.
class igsErrorLog {
 public:
  igsErrorLog();
  igsErrorLog(igsErrorLog const&) = delete;
  igsErrorLog& operator=(igsErrorLog const&) = delete;

  // Offers the error to the section logs in order until one takes it.
  void receive_error(igsError* e);
  void mark_as_fixed(igsError* e);
  igsSimpleSectionLog& get_section_log(igsLogID id) const;
  // The object or structure log; null for the other ids.
  igsIndexedSectionLog* get_indexed_log(igsLogID id) const;
  void print() const;

 private:
  igsIndexedSectionLog m_object_log;
  igsIndexedSectionLog m_structure_log;
  igsSimpleSectionLog m_global_log;
  igsSimpleSectionLog m_start_log;
  igsSimpleSectionLog m_terminate_log;
  igsIndexedSectionLog* m_indexed[2];
  igsSimpleSectionLog* m_logs[5];
};

// Walks the active errors of a section log. An error marked as fixed or destroyed during the
// walk leaves a null slot behind and the walk goes on.
class igsSimpleSectionLogIT {
 public:
  explicit igsSimpleSectionLogIT(igsSimpleSectionLog* log) : m_log(log) {}
  // Moves to the next active error; 0 at the end, where the position returns to -1.
  int operator++();
  // The current error, or null.
  igsError* operator()() const;

 private:
  igsSimpleSectionLog* m_log;
  int m_position = -1;
};
