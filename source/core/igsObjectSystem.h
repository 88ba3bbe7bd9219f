// The process-wide registry of open files and their error logs. All state is static and
// comes up on first use, so entities made by static initialisers work in any order; the one
// instance at file scope destroys the files still open when the library is unloaded. Files
// still open then must have been made with new.
//
// One file is current: the one made last, or the one named by set_current_file. Creating an
// entity or an error, binding a reference by DE number and opening a walk act on it.
#pragma once

#include "support/coNames.h"

#include <utility>

class igsObjectError;
class igsStructureError;
class igsGlobalError;
class igsStartError;
class igsTerminateError;

class igsObjectSystem {
 public:
  igsObjectSystem();
  ~igsObjectSystem();
  igsObjectSystem(igsObjectSystem const&) = delete;
  igsObjectSystem& operator=(igsObjectSystem const&) = delete;

  // The current file and its log.
  static igsFile& file() { return m_current ? *m_current : make_current(); }
  static igsErrorLog& log();
  // Makes the file current; a file that is not open is ignored.
  static void set_current_file(igsFile const& file);
  // Replaces the array's contents by the open files in slot order.
  static void get_all_files(igsFilecoDynArrPtrcoPtrcoDynArr& files);
  static int num_files() { return m_num_files; }
  // The file open in the slot, or null; the slot must be one that a file was given.
  static igsFile* file_in_slot(int slot) {
    return m_file_list ? std::as_const(*m_file_list)[slot] : nullptr;
  }

  // Open and close a walk. The outermost start clears the visit flags of the current file.
  static void reentrant_start();
  static void reentrant_end();

 private:
  friend class igsFile;
  friend class igsObject;
  friend class igsObjectPtr;
  friend class igsObjectError;
  friend class igsStructureError;
  friend class igsGlobalError;
  friend class igsStartError;
  friend class igsTerminateError;

  static void initialize_system();
  // The current file, made first if there is none.
  static igsFile& make_current();
  // Points m_current at the file in the current slot, or at none.
  static void refresh_current();
  static void file_created(igsFile* file);
  static void file_deleted(igsFile* file);
  static void object_created(igsObject* object);
  static void ptr_created(igsObjectPtr* ptr, int location);
  static void error_created(igsError* error);

  static inline igsFilecoDynArrPtrcoPtrcoDynArr* m_file_list = nullptr;
  static inline igsErrorLogPtrcoDynArr* m_error_log_list = nullptr;
  static inline intcoStack* m_file_free_list = nullptr;
  static inline int m_current_file = 0;
  static inline igsFile* m_current = nullptr; // the file in slot m_current_file, if any
  static inline int m_system_on_line = 0;
  static inline int m_recurse_depth = 0;
  static inline int m_num_files = 0;
  static inline int m_num_systems = 0;
};
