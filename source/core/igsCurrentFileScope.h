// Makes a file current for the span of a call.
#pragma once

#include "core/igsObjectSystem.h"

// Makes a file current for the span of a call, so that the entities made, the DE numbers
// bound, the walk's flags and the errors raised all concern that file, and then restores the
// file that was current before.
class igsCurrentFileScope {
 public:
  explicit igsCurrentFileScope(igsFile const& file) : m_previous(&igsObjectSystem::file()) {
    igsObjectSystem::set_current_file(file);
  }
  ~igsCurrentFileScope() { igsObjectSystem::set_current_file(*m_previous); }
  igsCurrentFileScope(igsCurrentFileScope const&) = delete;
  igsCurrentFileScope& operator=(igsCurrentFileScope const&) = delete;

 private:
  igsFile const* m_previous;
};
