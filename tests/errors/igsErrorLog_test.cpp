#include "core/objectTestSupport.h"

#include "core/igsFileErrors.h"

#include <vector>

namespace {

IGS_ERROR_DECLARE(testGlobalProblem, igsGlobalError, REPORT)
IGS_ERROR_DECLARE(testStartProblem, igsStartError, REPORT)
IGS_ERROR_DEFINE(testGlobalProblem, igsGlobalError, REPORT)
IGS_ERROR_DEFINE(testStartProblem, igsStartError, REPORT)

using LogTest = FileTest;

// A new object error for the entity, tagged as its check would do it.
igsError* raise(testNode const& node) {
  auto* e = new testNodeNegativeValue(node.value());
  e->set_key(node.de_number());
  return e;
}

// The error's position in the active list, once the log has filed what was pending.
int filed_position(igsError* e) {
  e->log()->num_errors();
  return e->log_position();
}

std::vector<igsError*> walk(igsSimpleSectionLog& log) {
  std::vector<igsError*> met;
  for (igsSimpleSectionLogIT it(&log); ++it;) met.push_back(it());
  return met;
}

TEST_F(LogTest, EachBaseHasItsOwnSectionLog) {
  struct Case {
    igsError* error;
    igsLogID section;
  };
  std::vector<Case> cases = {
      {new igsFileBlankLine, igsTerminateLog},   {new igsFileInvalidLineNumbers, igsTerminateLog},
      {new igsFileNoPDData(5), igsStructureLog}, {new igsFileLineNumberTooLarge, igsStructureLog},
      {new testGlobalProblem, igsGlobalLog},     {new testStartProblem, igsStartLog},
      {new testNodeBadChild(0), igsObjectLog},
  };
  for (Case const& c : cases) {
    EXPECT_EQ(c.error->log(), &log().get_section_log(c.section)) << c.error->objtype().name();
    EXPECT_TRUE(c.error->typeof(log().get_section_log(c.section).accepted_type()));
  }
  int counts[] = {1, 2, 1, 1, 2};
  for (int id = igsObjectLog; id <= igsTerminateLog; ++id)
    EXPECT_EQ(log().get_section_log(static_cast<igsLogID>(id)).num_errors(), counts[id]) << id;
  EXPECT_EQ(structure_log().num_errors(5), 1);
  EXPECT_EQ(structure_log().num_errors(igsIndexedError::unset_key), 1);
  EXPECT_EQ(log().get_indexed_log(igsGlobalLog), nullptr);
  EXPECT_EQ(log().get_indexed_log(igsStructureLog), &structure_log());
  // A number that is no section gives the object log, and says so.
  kvnabsStringOutput sink;
  get_igs_stream().set_error_stream(&sink);
  igsSimpleSectionLog* fallback =
      &log().get_section_log(static_cast<igsLogID>(igsTerminateLog + 1));
  get_igs_stream().set_error_stream(nullptr);
  EXPECT_EQ(fallback, &log().get_section_log(igsObjectLog));
  EXPECT_EQ(sink.text().rfind("Assertion failed: ", 0), 0u) << sink.text();

  // A simple log walks in slot order too, and print changes nothing.
  log().print();
  EXPECT_EQ(walk(log().get_section_log(igsTerminateLog)),
            (std::vector<igsError*>{cases[0].error, cases[1].error}));
  EXPECT_EQ(object_log().num_errors(), 1);
}

TEST_F(LogTest, AnErrorDestroyedByItsHolderLeavesItsLog) {
  auto* node = new testNode(-1);
  igsError* pending = raise(*node);
  delete pending; // still pending: never counted
  EXPECT_EQ(node->num_logged_errors(), 0);
  igsError* active = raise(*node);
  igsError* fixed = raise(*node);
  igsError* kept = raise(*node);
  log().mark_as_fixed(fixed);
  EXPECT_EQ(node->num_logged_errors(), 2);
  delete active;
  delete fixed;
  EXPECT_EQ(node->num_logged_errors(), 1);
  EXPECT_EQ(walk(object_log()), std::vector<igsError*>{kept});
  igsError* terminate = new igsFileBlankLine;
  delete terminate;
  EXPECT_EQ(log().get_section_log(igsTerminateLog).num_errors(), 0);
}

TEST_F(LogTest, ClearDestroysTheActiveErrorsOfASection) {
  auto* node = new testNode(-1);
  raise(*node);
  igsError* fixed = raise(*node);
  log().mark_as_fixed(fixed);
  raise(*node); // pending at the clear
  new igsFileBlankLine;
  object_log().clear();
  log().get_section_log(igsTerminateLog).clear();
  EXPECT_EQ(node->num_logged_errors(), 0);
  EXPECT_EQ(object_log().num_errors(), 0);
  EXPECT_TRUE(walk(object_log()).empty());
  EXPECT_EQ(filed_position(raise(*node)), 0);
  EXPECT_EQ(node->num_logged_errors(), 1);
  // What is left (one active, one fixed, one pending) goes with the file.
  raise(*node);
}

} // namespace
