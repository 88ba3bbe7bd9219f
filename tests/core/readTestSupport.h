// Helpers of the file reading tests: small IGES files written as text line by line, with the
// damage a test wants, and a file that reads them and shows its errors.
#pragma once

#include "core/igsFile.h"
#include "core/igsObjectSystem.h"
#include "entities/entityTestSupport.h"
#include "errors/igsErrorLog.h"
#include "input/inputTestSupport.h"
#include "support/kvnabs.h"
#include "support/utOstream.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace igs_read_test {

using igs_input_test::Lines;
using igs_input_test::record;

// A number right-justified in a field of the width.
inline std::string right(int value, int width) {
  std::string digits = std::to_string(value);
  return std::string(static_cast<size_t>(width > static_cast<int>(digits.size())
                                             ? width - static_cast<int>(digits.size())
                                             : 0),
                     ' ') +
         digits;
}

inline Lines operator+(Lines a, Lines const& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

// A Global section with every parameter given.
inline Lines const global_lines = {
    record('G', 1, "1H,,1H;,7HProduct,8Hpart.igs,6HSender,4H5.3a,32,38,6,308,15,7HReceive,"),
    record('G', 2, "1.,2,2HMM,8,0.7,15H20240102.030405,0.001,500.,6HAuthor,3HOrg,11,0,"),
    record('G', 3, "15H20240203.040506;")};

// One entity of a file under construction: its Directory Entry as the file will hold it and
// the data of its Parameter lines, one string a line (64 columns at most).
struct EntityText {
  int type = 0;
  int form = 0;
  Lines data;
  // The D fields that a test may spoil; by default they agree with the P lines.
  int second_type = 0;
  int start = 0;       // 0: the first P line of the entity
  int count = -1;      // -1: the number of its P lines
  int backpointer = 0; // 0: its DE number
  // Attributes of the D lines.
  int colour = 0;
  int line_font = 0;
  int level = 0;
  int matrix = 0; // the DE number of a transformation matrix, 0 for none
  std::string status = "00000000";
  std::string label;
  int subscript = 0;
};

// An IGES file as text: one Start line, the Global section, then the entities' D and P lines
// and a Terminate line with the true counts. Each part can be taken or left out.
class FileText {
 public:
  // Adds an entity and returns its DE number.
  int add(int type, int form, Lines data, int matrix = 0) {
    EntityText e;
    e.type = e.second_type = type;
    e.form = form;
    e.data = std::move(data);
    e.matrix = matrix;
    m_entities.push_back(e);
    return 2 * static_cast<int>(m_entities.size()) - 1;
  }
  // The entity of the DE number, to spoil before the text is taken.
  EntityText& entity(int de_number) { return m_entities[static_cast<size_t>(de_number / 2)]; }

  Lines start() const { return {record('S', 1, "A file made for the reading tests.")}; }
  Lines global() const { return global_lines; }
  Lines directory() const {
    Lines lines;
    int next_p = 1;
    for (EntityText const& e : m_entities) {
      int n = static_cast<int>(lines.size());
      int count = e.count < 0 ? static_cast<int>(e.data.size()) : e.count;
      int start = e.start ? e.start : next_p;
      lines.push_back(record('D', n + 1,
                             right(e.type, 8) + right(start, 8) + zeros(1) + right(e.line_font, 8) +
                                 right(e.level, 8) + zeros(1) + right(e.matrix, 8) + zeros(1) +
                                 e.status));
      lines.push_back(record('D', n + 2,
                             right(e.second_type, 8) + zeros(1) + right(e.colour, 8) +
                                 right(count, 8) + right(e.form, 8) + std::string(16, ' ') +
                                 (std::string(8, ' ') + e.label).substr(e.label.size()) +
                                 right(e.subscript, 8)));
      next_p += static_cast<int>(e.data.size());
    }
    return lines;
  }
  Lines parameters() const {
    Lines lines;
    for (size_t i = 0; i < m_entities.size(); ++i) {
      EntityText const& e = m_entities[i];
      int backpointer = e.backpointer ? e.backpointer : 2 * static_cast<int>(i) + 1;
      for (std::string const& data : e.data)
        lines.push_back(record('P', static_cast<int>(lines.size()) + 1, data, backpointer));
    }
    return lines;
  }
  Lines terminate() const {
    return {record('T', 1,
                   "S" + right(1, 7) + "G" + right(static_cast<int>(global().size()), 7) + "D" +
                       right(static_cast<int>(directory().size()), 7) + "P" +
                       right(static_cast<int>(parameters().size()), 7))};
  }
  Lines lines() const { return start() + global() + directory() + parameters() + terminate(); }
  std::string text() const { return igs_input_test::join(lines()); }

 private:
  // Fields of 8 columns that hold 0: structure, line font, level, view, matrix and so on.
  static std::string zeros(int fields) {
    std::string text;
    for (int i = 0; i < fields; ++i) text += right(0, 8);
    return text;
  }
  std::vector<EntityText> m_entities;
};

// Each test reads into a file of its own, current while the test runs, whose repairs speak to
// a sink of the test's.
class ReadTest : public ::testing::Test {
 protected:
  ReadTest() { file->set_message_stream(&messages); }

  int read(std::string const& text) {
    std::istringstream in(text);
    std::ostringstream ignored;
    utOstream out(ignored);
    return file->read(in, out);
  }
  int read(Lines const& lines) { return read(igs_input_test::join(lines)); }

  // Every active error of the file's log, section by section in the order of their ids, each
  // as its class and arguments.
  static Lines errors() {
    Lines texts;
    for (int id = igsObjectLog; id <= igsTerminateLog; ++id)
      for (igsSimpleSectionLogIT it(&igsObjectSystem::log().get_section_log(igsLogID(id))); ++it;)
        texts.push_back(igs_entity_test::describe(*it()));
    return texts;
  }

  // The entity at the DE number, if it is of class T.
  template <class T> static T* entity(int de_number) { return igs_error_entity<T>(de_number); }

  // Runs the repairs of every active error in order and gives what they printed.
  std::string repaired() {
    messages.clear();
    for (int id = igsObjectLog; id <= igsTerminateLog; ++id)
      for (igsSimpleSectionLogIT it(&igsObjectSystem::log().get_section_log(igsLogID(id))); ++it;)
        it()->fix();
    return messages.text();
  }

  std::unique_ptr<igsFile> file = std::make_unique<igsFile>();
  kvnabsStringOutput messages;
};

} // namespace igs_read_test
