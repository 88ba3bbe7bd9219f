#include "core/igsObject.h"

#include "core/igsFile.h"
#include "core/igsInfoDB.h"
#include "core/igsObjectSystem.h"
#include "errors/igsErrorLog.h"
#include "sections/igsDirectoryEntry.h"

#include <utility>

KVU_DEFINE_TYPE(igsObject)

igsDirectoryEntry* igsObjectManager::directory_entry() const {
  igsObject* entity = object();
  return entity ? &entity->directory_entry() : nullptr;
}

igsObject::igsObject() {
  m_is_entity = 1;
  igsObjectSystem::initialize_system();
  igsObjectSystem::object_created(this);
}

igsObject::~igsObject() {
  igsFile* file = igsObjectManager::file();
  if (file) file->object_deleted(this);
  s_memory_owner = file;
}

void* igsObject::operator new(std::size_t size) noexcept {
  igsObjectSystem::initialize_system();
  return igsObjectSystem::file().m_object_memory.take(size);
}

void* igsObject::operator new(std::size_t size, std::nothrow_t const&) noexcept {
  return operator new(size);
}

// An entity that never joined its file (no manager could be had) leaves its block unused
// until the file goes.
void igsObject::operator delete(void* memory, std::size_t size) noexcept {
  if (igsFile* owner = std::exchange(s_memory_owner, nullptr))
    owner->m_object_memory.give(memory, size);
}

utString const& igsObject::name() const {
  return igsInfoDB::entity_name(directory_entry().entity_type());
}

int igsObject::num_logged_errors() const {
  igsErrorLog& log = igsObjectSystem::log();
  int de = de_number();
  return log.get_indexed_log(igsObjectLog)->num_errors(de) +
         log.get_indexed_log(igsStructureLog)->num_errors(de);
}

int igsObject::check() const {
  igsObjectSystem::reentrant_start();
  igsObjectManager* own = const_cast<igsObject*>(this);
  if (!own->visited()) {
    own->set_visited(1);
    // A re-check starts clean; structure errors stay.
    igsObjectSystem::log().get_indexed_log(igsObjectLog)->clear(de_number());
    check_pd();
    check_de();
    own->set_validated(num_logged_errors() == 0);
  }
  igsObjectSystem::reentrant_end();
  return own->validated();
}

void igsObject::print(utOstream& out) const {
  igsObjectSystem::reentrant_start();
  utOstream nested(utOstreamTabTag, out, 1, 0);
  out << "@" << de_number() << "(" << static_cast<int>(directory_entry().entity_type())
      << ") = {\n";
  if (!visited()) {
    const_cast<igsObject*>(this)->set_visited(1);
    directory_entry().print(nested);
    print_pd_data(nested);
  }
  out << "}\n";
  igsObjectSystem::reentrant_end();
}

void igsObject::unreference_children() {
  directory_entry().unreference_children();
}

void igsObject::tag_error(igsObjectError* error) const {
  if (!error) return;
  error->set_key(de_number());
  if (kvnabsOutput* stream = file().message_stream()) error->set_message_stream(stream);
}

void igsObject::tag_error(igsStructureError* error) const {
  if (!error) return;
  if (kvnabsOutput* stream = file().message_stream()) error->set_message_stream(stream);
}

void igsObject::set_directory_entry_type(igsEntityType type, int form, int entity_use) {
  directory_entry().set_entity_type_and_form(type, form);
  if (entity_use) directory_entry().set_status_flags(igsStatusFlags(0, 0, entity_use, 0));
}
