// The codes that one part of the input pipeline has recorded since they were last collected.
#pragma once

#include "input/igsIOError.h"

// Each code stands at most once. A part that recorded a fatal code keeps its list for good:
// collecting copies it and reset refuses.
//
// The codes recorded while one line was fetched are also noted apart, so that the codes of a
// line at which the buffer stops can be held back from the reader that stopped there and given
// to the reader of that line once the stop ends.
class igsIOCodeList {
 public:
  // One bit for each code.
  static constexpr unsigned bit(igsIOErrorCode code) { return 1u << code; }

  void record(igsIOErrorCode code, int fatal = 0) {
    if (fatal) m_fatal = 1;
    m_line |= bit(code);
    if (m_recorded & bit(code)) return;
    m_recorded |= bit(code);
    igs_add_io_error(m_codes, code);
  }
  // Appends the codes; a list without a fatal code then forgets them.
  void collect(igsIOErrorcoDynArr& errors) {
    if (!m_recorded) return; // the common case: nothing to give
    for (igsIOError const& e : m_codes) errors.append(e);
    if (!m_fatal) clear();
  }
  // As collect, without giving the codes.
  void drop() {
    if (m_recorded && !m_fatal) clear();
  }
  // 0 if a fatal code stands; else forgets the codes and returns 1.
  int reset() {
    if (m_fatal) return 0;
    clear();
    return 1;
  }
  int fatal() const { return m_fatal; }
  int empty() const { return !m_recorded; }
  // The codes in the list, one bit for each.
  unsigned codes() const { return m_recorded; }
  // The codes recorded since the current line was begun, one bit for each.
  unsigned line_codes() const { return m_line; }

  // A new line is being fetched: what is recorded from now on is its own.
  void begin_line() {
    m_line = 0;
    m_before_line = m_recorded;
  }
  // Takes the codes of the mask that the current line recorded out of the list, unless they
  // stood there before the line (then they are the reader's as well), and gives them as bits.
  unsigned withhold_line_codes(unsigned mask) {
    unsigned held = m_line & mask;
    unsigned remove = held & ~m_before_line;
    if (remove) {
      int kept = 0;
      for (int i = 0; i < m_codes.size(); ++i)
        if (!(remove & bit(m_codes[i].error_type()))) m_codes[kept++] = m_codes[i];
      m_codes.shrink(kept);
      m_recorded &= ~remove;
    }
    return held;
  }
  // Records the codes of the bits again, as codes that are not fatal.
  void give_back(unsigned codes) {
    for (int code = 0; codes >> code; ++code)
      if (codes & (1u << code)) record(static_cast<igsIOErrorCode>(code));
  }

 private:
  void clear() {
    m_codes.shrink(0);
    m_recorded = 0;
  }
  igsIOErrorcoDynArr m_codes;
  unsigned m_recorded = 0;    // one bit for each code in the list
  unsigned m_line = 0;        // the codes recorded since the current line was begun
  unsigned m_before_line = 0; // the list's codes when it was begun
  int m_fatal = 0;
};
