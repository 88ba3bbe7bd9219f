// The codes that one part of the input pipeline has recorded since they were last collected.
#pragma once

#include "input/igsIOError.h"

// Each code stands at most once. A part that recorded a fatal code keeps its list for good:
// collecting copies it and reset refuses.
class igsIOCodeList {
 public:
  void record(igsIOErrorCode code, int fatal = 0) {
    if (fatal) m_fatal = 1;
    unsigned bit = 1u << code;
    if (m_recorded & bit) return;
    m_recorded |= bit;
    igs_add_io_error(m_codes, code);
  }
  // Appends the codes; a list without a fatal code then forgets them.
  void collect(igsIOErrorcoDynArr& errors) {
    for (igsIOError const& e : m_codes) errors.append(e);
    if (!m_fatal) clear();
  }
  // 0 if a fatal code stands; else forgets the codes and returns 1.
  int reset() {
    if (m_fatal) return 0;
    clear();
    return 1;
  }
  int fatal() const { return m_fatal; }

 private:
  void clear() {
    m_codes.shrink(0);
    m_recorded = 0;
  }
  igsIOErrorcoDynArr m_codes;
  unsigned m_recorded = 0; // one bit for each code in the list
  int m_fatal = 0;
};
