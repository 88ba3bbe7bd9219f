#include "core/igsObjectSystem.h"

#include "core/igsFile.h"
#include "errors/igsErrorLog.h"

#include <new>

// Brings the system up when the library is loaded, and closes every file still open when it
// is unloaded.
static igsObjectSystem the_object_system;

igsObjectSystem::igsObjectSystem() {
  initialize_system();
  ++m_num_systems;
}

igsObjectSystem::~igsObjectSystem() {
  if (--m_num_systems > 0 || !m_system_on_line) return;
  // Deleting a file empties its slot, so walk down from the last slot.
  for (int slot = m_file_list->size() - 1; slot >= 0; --slot)
    if (igsFile* file = (*m_file_list)[slot]) delete file;
  delete m_file_list;
  delete m_error_log_list;
  delete m_file_free_list;
  m_file_list = nullptr;
  m_error_log_list = nullptr;
  m_file_free_list = nullptr;
  m_system_on_line = 0;
  m_current_file = 0;
  m_current = nullptr;
  m_num_files = 0;
}

void igsObjectSystem::initialize_system() {
  if (m_system_on_line) return;
  m_file_list = new (std::nothrow) igsFilecoDynArrPtrcoPtrcoDynArr;
  m_error_log_list = new (std::nothrow) igsErrorLogPtrcoDynArr;
  m_file_free_list = new (std::nothrow) intcoStack;
  // On line before the first file exists, so that its constructor does not come back here.
  m_system_on_line = 1;
  new (std::nothrow) igsFile;
}

// The current file's slot, making a new file current if the slot holds none (only the case
// after the system's own first file was closed).
static int current_slot(igsFilecoDynArrPtrcoPtrcoDynArr const& files, int current) {
  return current >= 0 && current < files.size() && files[current] ? current : -1;
}

igsFile& igsObjectSystem::make_current() {
  initialize_system();
  if (current_slot(*m_file_list, m_current_file) < 0) new (std::nothrow) igsFile;
  return *(*m_file_list)[m_current_file];
}

void igsObjectSystem::refresh_current() {
  m_current = m_system_on_line && current_slot(*m_file_list, m_current_file) >= 0
                  ? (*m_file_list)[m_current_file]
                  : nullptr;
}

igsErrorLog& igsObjectSystem::log() {
  file();
  return *(*m_error_log_list)[m_current_file];
}

void igsObjectSystem::set_current_file(igsFile const& file) {
  if (!m_system_on_line) return;
  int slot = file.system_location();
  if (slot >= 0 && slot < m_file_list->size() && (*m_file_list)[slot] == &file)
    m_current_file = slot;
  refresh_current();
}

void igsObjectSystem::get_all_files(igsFilecoDynArrPtrcoPtrcoDynArr& files) {
  files.clear();
  if (!m_system_on_line) return;
  files.reserve(m_num_files);
  for (igsFile* file : *m_file_list)
    if (file) files.append(file);
}

void igsObjectSystem::reentrant_start() {
  if (m_recurse_depth == 0) file().reset_visit_flags();
  ++m_recurse_depth;
}

void igsObjectSystem::reentrant_end() {
  if (m_recurse_depth > 0) --m_recurse_depth;
}

void igsObjectSystem::file_created(igsFile* file) {
  int slot = m_file_free_list->empty() ? m_file_list->size() : m_file_free_list->pop();
  (*m_file_list)[slot] = file;
  (*m_error_log_list)[slot] = new (std::nothrow) igsErrorLog;
  file->set_system_location(slot);
  ++m_num_files;
  m_current_file = slot;
  refresh_current();
}

void igsObjectSystem::file_deleted(igsFile* file) {
  if (!m_system_on_line) return;
  int slot = file->system_location();
  if (slot < 0 || slot >= m_file_list->size() || (*m_file_list)[slot] != file) return;
  (*m_file_list)[slot] = nullptr;
  delete (*m_error_log_list)[slot];
  (*m_error_log_list)[slot] = nullptr;
  m_file_free_list->insert_first(slot);
  --m_num_files;
  file->set_system_location(-1);
  if (slot == m_current_file) {
    m_current_file = 0;
    for (int s = 0; s < m_file_list->size(); ++s)
      if ((*m_file_list)[s]) {
        m_current_file = s;
        break;
      }
  }
  refresh_current();
}

void igsObjectSystem::object_created(igsObject* object) {
  file().object_created(object);
}

void igsObjectSystem::ptr_created(igsObjectPtr* ptr, int location) {
  file().ptr_created(ptr, location);
}

void igsObjectSystem::error_created(igsError* error) {
  file();
  if (igsErrorLog* current = (*m_error_log_list)[m_current_file]) current->receive_error(error);
}
