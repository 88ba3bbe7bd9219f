// Helpers of the entity tests: parameter data read from and written to real 80-column lines,
// the protected operations of an entity, and the errors that its check leaves in the log.
#pragma once

#include "core/igsFile.h"
#include "core/igsObjectSystem.h"
#include "entities/igsEntity.h"
#include "errors/igsErrorLog.h"
#include "input/inputTestSupport.h"
#include "output/outputTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace igs_entity_test {

using igs_input_test::Lines;
using igs_input_test::record;

// Reaches the protected operations of any entity through pointers to members formed in a
// class derived from igsObject.
struct Access : igsObject {
  static int read(igsObject& e, igsInStream& in) { return (e.*&Access::read_pd_data)(in); }
  static void write(igsObject& e, igsOutStream& out) { (e.*&Access::write_pd_data)(out); }
};

// Hands the arguments of an error over as text: "name=value".
struct ArgumentText : igsErrorArgumentVisitor {
  std::vector<std::string> parts;
  void argument(char const* name, int value) override {
    parts.push_back(std::string(name) + "=" + std::to_string(value));
  }
  void argument(char const* name, double value) override {
    std::ostringstream text;
    text << name << "=" << value;
    parts.push_back(text.str());
  }
  void argument(char const* name, char value) override {
    parts.push_back(std::string(name) + "=" + value);
  }
  void argument(char const* name, utString const& value) override {
    parts.push_back(std::string(name) + "=" + std::string(value.view()));
  }
};

// The text of an error: its class and its arguments, "igsPolylineIPFormMismatch(ip=3,form=12)".
inline std::string describe(igsError const& e) {
  ArgumentText arguments;
  e.visit_arguments(arguments);
  std::string text = e.objtype().name();
  if (arguments.parts.empty()) return text;
  text += "(";
  for (size_t i = 0; i < arguments.parts.size(); ++i) text += (i ? "," : "") + arguments.parts[i];
  return text + ")";
}

// Each test works on a file of its own, current while the test runs.
class EntityTest : public ::testing::Test {
 public:
  std::unique_ptr<igsFile> file = std::make_unique<igsFile>();

  static igsIndexedSectionLog& object_log() {
    return *igsObjectSystem::log().get_indexed_log(igsObjectLog);
  }

  // Reads one record, given as the data of its Parameter lines, the way the file does: the
  // type number first, then the entity's own parameters. Returns what read_pd_data returned.
  static int read(igsObject& e, Lines const& data) {
    Lines lines;
    for (size_t i = 0; i < data.size(); ++i)
      lines.push_back(record('P', static_cast<int>(i) + 1, data[i], e.de_number()));
    std::istringstream text(igs_input_test::join(lines));
    igsInStream in(text);
    in.reset();
    int type = 0;
    in.read_integer(type);
    EXPECT_EQ(type, static_cast<int>(e.directory_entry().entity_type()));
    return Access::read(e, in);
  }

  // The Parameter lines that the entity writes as the first record of a file.
  static Lines written(igsObject& e) {
    return igs_output_test::written([&](igsOutStream& out) {
      out.set_section(igsSectionParameter);
      out.write_integer(static_cast<int>(e.directory_entry().entity_type()));
      Access::write(e, out);
      out.set_backpointer(e.de_number() + 2);
    });
  }

  // The records with back pointer 1 that hold the data lines.
  static Lines records(Lines const& data) {
    Lines lines;
    for (size_t i = 0; i < data.size(); ++i)
      lines.push_back(record('P', static_cast<int>(i) + 1, data[i], 1));
    return lines;
  }

  // The active errors of the object log under the entity's DE number, sorted.
  static std::vector<std::string> errors(igsObject const& e) {
    std::vector<std::string> texts;
    for (igsSimpleSectionLogIT it(&object_log()); ++it;)
      if (auto* error = static_cast<igsIndexedError*>(it()); error->key() == e.de_number())
        texts.push_back(describe(*error));
    std::sort(texts.begin(), texts.end());
    return texts;
  }

  // Checks the entity afresh and gives its errors.
  static std::vector<std::string> checked(igsObject const& e) {
    e.check();
    return errors(e);
  }

  // Runs the repair of the first active error of the class under the DE number, as the repair
  // driver does: a repair that returns 1 leaves the active list. -1 if there is no such error.
  static int fix(int de_number, kvuTypeInfo const& type) {
    for (igsSimpleSectionLogIT it(&object_log()); ++it;)
      if (auto* error = static_cast<igsIndexedError*>(it());
          error->key() == de_number && error->isa(type)) {
        int result = error->fix();
        if (result) igsObjectSystem::log().mark_as_fixed(error);
        return result;
      }
    return -1;
  }
};

} // namespace igs_entity_test
