// Indented text stream used by every print operation.
#pragma once

#include "support/giGeometry.h"
#include "support/utString.h"

#include <memory>
#include <ostream>

enum utOstreamTab { utOstreamTabTag = 0 };

// Wraps a std::ostream and writes each line behind the stream's indentation. A child stream
// writes to the same target one level deeper; parent and children share the knowledge of
// whether the target stands at the start of a line. A level is two blanks.
class utOstream {
 public:
  explicit utOstream(std::ostream& target);
  // A child of parent, `levels` deeper (all callers pass tag 0, 1 and 0).
  utOstream(utOstreamTab, utOstream const& parent, int levels = 1, int = 0);
  utOstream(utOstream const&) = delete;
  utOstream& operator=(utOstream const&) = delete;

  int indentation() const { return m_indent; }
  std::ostream& target() const { return *m_state->target; }

  utOstream& operator<<(char const* text);
  utOstream& operator<<(char c);
  utOstream& operator<<(int value);
  utOstream& operator<<(unsigned value);
  utOstream& operator<<(long value);
  utOstream& operator<<(double value);
  utOstream& operator<<(utString const& text);
  utOstream& operator<<(giPoint2 const& p);
  utOstream& operator<<(giPoint3 const& p);
  utOstream& operator<<(giVector2 const& v);
  utOstream& operator<<(giVector3 const& v);
  // std::endl and the like.
  utOstream& operator<<(std::ostream& (*manipulator)(std::ostream&));

  void write(char const* text, size_t length);

 private:
  struct State {
    std::ostream* target;
    bool at_line_start = true;
  };
  std::shared_ptr<State> m_state;
  int m_indent = 0;
};

// Shortest text that reads back as the same double.
void ut_format_double(double value, char* buffer, size_t size);
