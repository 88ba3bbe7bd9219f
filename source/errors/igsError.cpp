#include "errors/igsError.h"

#include "core/igsObjectSystem.h"
#include "errors/igsErrorLog.h"

#include <cstdarg>

KVU_DEFINE_TYPE(igsError)
KVU_DEFINE_TYPE(igsIndexedError, igsError)
KVU_DEFINE_TYPE(igsObjectError, igsIndexedError)
KVU_DEFINE_TYPE(igsStructureError, igsIndexedError)
KVU_DEFINE_TYPE(igsGlobalError, igsError)
KVU_DEFINE_TYPE(igsStartError, igsError)
KVU_DEFINE_TYPE(igsTerminateError, igsError)
KVU_DEFINE_TYPE(igsCompoundEntityError, igsObjectError)
KVU_DEFINE_TYPE(igs404ViewError, igsObjectError)

igsError::~igsError() {
  leave_log();
}

void igsError::leave_log() {
  if (igsSimpleSectionLog* log = m_log) {
    log->delete_error(this);
    m_log = nullptr;
  }
}

void igsError::message(char const* format, ...) const {
  if (!m_message_stream) return;
  va_list args;
  va_start(args, format);
  m_message_stream->vmessage("iges", format, args);
  va_end(args);
}

igsIndexedError::~igsIndexedError() {
  leave_log();
}

// Each concrete base files the new error in the current file's log. The error is only partly
// built at this point, which is why the logs test it against the bases alone.
igsObjectError::igsObjectError() {
  igsObjectSystem::error_created(this);
}

igsStructureError::igsStructureError() {
  igsObjectSystem::error_created(this);
}

igsGlobalError::igsGlobalError() {
  igsObjectSystem::error_created(this);
}

igsStartError::igsStartError() {
  igsObjectSystem::error_created(this);
}

igsTerminateError::igsTerminateError() {
  igsObjectSystem::error_created(this);
}
