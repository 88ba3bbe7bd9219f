// Helpers of the section tests: a current file with a message sink and a fixed clock, the
// errors of its log as text, records made to measure and streams over them, and small entity
// classes whose Directory Entries the checks look at.
#pragma once

#include "core/igsFile.h"
#include "core/igsObject.h"
#include "core/igsObjectSystem.h"
#include "entities/structure/igs124.h"
#include "errors/igsErrorClass.h"
#include "errors/igsErrorLog.h"
#include "input/inputTestSupport.h"
#include "output/outputTestSupport.h"
#include "sections/igsDECheck.h"
#include "sections/igsDirectoryEntry.h"
#include "sections/igsGlobalSection.h"
#include "sections/igsStartSection.h"
#include "sections/igsStreamSection.h"
#include "sections/igsTerminateSection.h"
#include "support/utOstream.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace igs_sections_test {

using igs_input_test::Lines;
using igs_input_test::record;

// 15 June 2024, 10:20:30: "today" for every test.
inline void fixed_clock(int& year, int& month, int& day, int& hour, int& minute, int& second) {
  year = 2024, month = 6, day = 15, hour = 10, minute = 20, second = 30;
}
inline constexpr char fixed_today[] = "20240615.102030";

struct ClockOverride {
  ClockOverride() : m_before(igsDate::set_clock(fixed_clock)) {}
  ~ClockOverride() { igsDate::set_clock(m_before); }
  igsDate::Clock m_before;
};

// An error as "name(argument,...)": numbers as they print, characters and texts quoted.
class ErrorText : public igsErrorArgumentVisitor {
 public:
  // Errors about one numbered thing end in "@" and their key.
  explicit ErrorText(igsError const& e) : m_text(e.objtype().name()) {
    m_text += "(";
    e.visit_arguments(*this);
    m_text += ")";
    if (e.typeof(igsIndexedError::type()))
      m_text += "@" + std::to_string(static_cast<igsIndexedError const&>(e).key());
  }
  std::string const& text() const { return m_text; }

  void argument(char const*, int value) override { add(std::to_string(value)); }
  void argument(char const*, double value) override {
    char text[40];
    std::snprintf(text, sizeof text, "%.17g", value);
    add(text);
  }
  void argument(char const*, char value) override { add(std::string("'") + value + "'"); }
  void argument(char const*, utString const& value) override {
    add("\"" + std::string(value.view()) + "\"");
  }

 private:
  void add(std::string const& part) {
    if (m_text.back() != '(') m_text += ",";
    m_text += part;
  }
  std::string m_text;
};

// The active errors of one section log of the current file, in log order.
inline std::vector<igsError*> errors_in(igsLogID id) {
  std::vector<igsError*> errors;
  for (igsSimpleSectionLogIT it(&igsObjectSystem::log().get_section_log(id)); ++it;)
    errors.push_back(it());
  return errors;
}

// Their texts.
inline Lines describe(igsLogID id) {
  Lines texts;
  for (igsError* e : errors_in(id)) texts.push_back(ErrorText(*e).text());
  return texts;
}

// Runs the fix of every active error of the log in order; the results, one per error.
inline std::vector<int> fix_all(igsLogID id) {
  std::vector<int> results;
  for (igsError* e : errors_in(id)) results.push_back(e->fix());
  return results;
}

// What print writes for a value with a print of its own.
template <class T> std::string printed(T const& value) {
  std::ostringstream text;
  utOstream out(text);
  value.print(out);
  return text.str();
}

// A host's file that packs its table as the writer does.
class PackableFile : public igsFile {
 public:
  using igsFile::compress;
};

// Each test works on a file of its own, current while the test runs, whose repairs speak to
// a sink of the test's, on a clock that always shows the same day.
class SectionTest : public ::testing::Test {
 protected:
  SectionTest() { file->set_message_stream(&messages); }

  ClockOverride clock;
  std::unique_ptr<PackableFile> file = std::make_unique<PackableFile>();
  kvnabsStringOutput messages;
};

// A stream over the records, made readable at its first line as the file reader does.
struct InputOver {
  explicit InputOver(Lines const& lines) : text(igs_input_test::join(lines)), in(text), stream(in) {
    stream.reset();
  }
  std::string text;
  std::istringstream in;
  igsInStream stream;
};

} // namespace igs_sections_test

namespace {

IGS_ERROR_DECLARE(testDENodeBadData, igsObjectError, REPORT)
IGS_ERROR_DEFINE(testDENodeBadData, igsObjectError, REPORT)

// An entity whose check runs the Directory Entry checks it is given, and which fails its own
// data check on demand.
class deNode : public igsObject {
  KVU_DECLARE_TYPE()
 public:
  static constexpr int type_number = 9002;
  explicit deNode(unsigned steps = IGS_DE_ALL, int required_use = 0)
      : m_steps(steps), m_required_use(required_use) {
    set_directory_entry_type(static_cast<igsEntityType>(type_number), 0);
  }
  void set_data_fails(int fails) { m_data_fails = fails; }
  // Gives up the references the entity holds, as a parent's deletion does.
  void drop_children() { unreference_children(); }

 protected:
  igsObject* make_one() override { return new deNode; }
  int read_pd_data(igsInStream&) override { return 1; }
  void write_pd_data(igsOutStream&) override {}
  void print_pd_data(utOstream& out) const override { out << "Steps = " << int(m_steps) << "\n"; }
  void check_pd() const override {
    if (m_data_fails) raise_error<testDENodeBadData>();
  }
  void check_de() const override { check_directory_entry(m_steps, m_required_use); }

 private:
  unsigned m_steps;
  int m_required_use;
  int m_data_fails = 0;
};
KVU_DEFINE_TYPE(deNode, igsObject)

// Stand-ins for the definition entities that Directory Entries point to, with the names of
// their classes. They run no Directory Entry checks of their own.
namespace fake {

#define IGS_FAKE_DEFINITION(Name, Base)                                                            \
  class Name : public Base {                                                                       \
    KVU_DECLARE_TYPE()                                                                             \
   protected:                                                                                      \
    igsObject* make_one() override { return new Name; }                                            \
  };                                                                                               \
  KVU_DEFINE_TYPE(Name, Base)

class definitionBase : public deNode {
  KVU_DECLARE_TYPE()
 public:
  utString const& colour_name() const { return m_name; }
  void set_colour_name(utString const& name) { m_name = name; }

 protected:
  void check_de() const override {}

 private:
  utString m_name{""};
};
KVU_DEFINE_TYPE(definitionBase, deNode)

IGS_FAKE_DEFINITION(igs304_1, definitionBase)
IGS_FAKE_DEFINITION(igs304_2, definitionBase)
IGS_FAKE_DEFINITION(igs314, definitionBase)
IGS_FAKE_DEFINITION(igs402_3, definitionBase)
IGS_FAKE_DEFINITION(igs410_0, definitionBase)
// A kind of colour definition: the colour rules take kinds, the matrix and view rules only
// the exact class.
IGS_FAKE_DEFINITION(colourKind, igs314)
#undef IGS_FAKE_DEFINITION

// A kind of transformation matrix, which is no matrix to a Directory Entry.
class matrixKind : public ::igs124 {
  KVU_DECLARE_TYPE()
 protected:
  igsObject* make_one() override { return new matrixKind; }
};
KVU_DEFINE_TYPE(matrixKind, ::igs124)

// The name that the stand-in colour definition holds.
inline utString colour_name_of(igsObject const& definition) {
  auto const* colour = dynamic_cast<definitionBase const*>(&definition);
  return colour ? colour->colour_name() : utString();
}

} // namespace fake

} // namespace
