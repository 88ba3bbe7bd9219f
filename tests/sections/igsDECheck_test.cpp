// The Directory Entry checks in their fixed order, the selection of steps, and the repairs.
#include "sectionsTestSupport.h"

#include "sections/igsDEErrors.h"

#include <algorithm>

using namespace igs_sections_test;

namespace {

using DECheckTest = SectionTest;

// Fields that fail every check: a line font of 6, a level list, a matrix that is no matrix,
// colour 9, blank status 2, a line weight above the maximum of 1 and a negative subscript.
igsDirectoryFields bad_fields(int list, int matrix) {
  igsDirectoryFields f;
  f.line_font = 6;
  f.level = -list;
  f.matrix = matrix;
  f.colour = 9;
  f.blank_status = 2;
  f.line_weight_number = 2;
  f.entity_subscript = -1;
  return f;
}

// The errors raised for the entity, without its key.
Lines raised_for(deNode const* entity) {
  Lines raised;
  for (igsError* e : errors_in(igsObjectLog))
    if (static_cast<igsIndexedError*>(e)->key() == entity->de_number()) {
      std::string text = ErrorText(*e).text();
      raised.push_back(text.substr(0, text.find('@')));
    }
  return raised;
}

TEST_F(DECheckTest, EachClassRunsItsSelectionOfStepsInTheirOrder) {
  auto* list = new deNode;
  auto* matrix = new deNode; // not a transformation matrix, and its data is bad
  matrix->set_data_fails(1);
  struct Case {
    unsigned steps;
    int required_use;
    Lines errors;
  } const cases[] = {
      // The matrix is checked even though it is of the wrong kind; its own error is filed
      // under its own number while the entity's check runs.
      {IGS_DE_ALL,
       0,
       {"igsDEInvalidLineFont()", "igsDEInvalidLevel()", "igsDEInvalidMatrix()",
        "igsDEInvalidMatrixData()", "igsDEInvalidColour()", "igsDEInvalidStatusFlags()",
        "igsDEInvalidLineWeight()", "igsDEInvalidEntitySubscript()"}},
      {IGS_DE_MATRIX | IGS_DE_STATUS | IGS_DE_SUBSCRIPT,
       0,
       {"igsDEInvalidMatrix()", "igsDEInvalidMatrixData()", "igsDEInvalidStatusFlags()",
        "igsDEInvalidEntitySubscript()"}},
      // The entity use comes between the status flags and the line weight.
      {IGS_DE_LEVEL | IGS_DE_ENTITY_USE | IGS_DE_LINE_WEIGHT,
       2,
       {"igsDEInvalidLevel()", "igsDEInvalidEntityUse(2)", "igsDEInvalidLineWeight()"}},
      {IGS_DE_ENTITY_USE, 0, {}},
      {0, 0, {}},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(c.steps);
    auto* entity = new deNode(c.steps, c.required_use);
    entity->directory_entry().set_fields(bad_fields(list->de_number(), matrix->de_number()));
    EXPECT_EQ(entity->check(), c.errors.empty());
    EXPECT_EQ(raised_for(entity), c.errors);
    if (c.steps == IGS_DE_ALL) {
      EXPECT_EQ(describe(igsObjectLog)[3], "testDENodeBadData()@3");
    }
  }

  // A sound entry raises nothing; a re-check starts clean.
  auto* entity = new deNode;
  entity->directory_entry().set_fields(bad_fields(list->de_number(), matrix->de_number()));
  entity->check();
  igsDirectoryFields good;
  auto* rotation = new igs124;
  double const identity[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
  rotation->set_matrix(identity);
  good.matrix = rotation->de_number();
  good.line_weight_number = 1; // the Global section's maximum
  entity->directory_entry().set_fields(good);
  EXPECT_EQ(entity->check(), 1);
  EXPECT_EQ(entity->num_logged_errors(), 0);

  // Line weights up to the Global section's maximum are valid.
  igsGlobalSection global;
  ASSERT_EQ(global.set_max_number_of_line_weights(4), 1);
  file->set_global_section(global);
  auto* weighed = new deNode(IGS_DE_LINE_WEIGHT);
  for (int weight : {-1, 0, 4, 5}) {
    igsDirectoryFields f;
    f.line_weight_number = weight;
    weighed->directory_entry().set_fields(f);
    EXPECT_EQ(weighed->check(), weight >= 0 && weight <= 4) << weight;
  }
}

TEST_F(DECheckTest, RepairsSetTheDefaultsAndReportWhatStays) {
  auto* entity = new deNode(IGS_DE_ALL | IGS_DE_ENTITY_USE, igsUseDefinition);
  auto* list = new deNode;
  auto* matrix = new deNode;
  matrix->set_data_fails(1);
  entity->directory_entry().set_fields(bad_fields(list->de_number(), matrix->de_number()));
  entity->check();
  std::vector<igsError*> errors = errors_in(igsObjectLog);
  ASSERT_EQ(errors.size(), 10u);
  // The matrix data error names the matrix, whose repairs come first; while the matrix keeps
  // its error, the data error stays.
  auto* data = static_cast<igsDEInvalidMatrixData*>(errors[4]);
  ASSERT_EQ(ErrorText(*data).text(), "igsDEInvalidMatrixData()@1");
  EXPECT_EQ(data->obj(), matrix->de_number());
  EXPECT_EQ(data->fix(), 0);

  EXPECT_EQ(fix_all(igsObjectLog), (std::vector<int>{1, 1, 0, 0, 0, 1, 0, 1, 1, 0}));
  igsDirectoryEntry const& de = entity->directory_entry();
  EXPECT_EQ(de.line_font().value(), igsNoPattern);
  EXPECT_TRUE(de.level().predefined_level());
  EXPECT_EQ(de.colour().value(), igsNoColour);
  EXPECT_EQ(de.line_weight_number(), 0);
  // The use is stored although the blank status is still bad.
  EXPECT_EQ(de.status_flags(), igsStatusFlags(2, 0, igsUseDefinition, 0));

  // Once the matrix's own errors are gone, the data error is settled too; the matrix number
  // was fetched once and is kept.
  igsObjectSystem::log().get_indexed_log(igsObjectLog)->clear(matrix->de_number());
  EXPECT_EQ(data->fix(), 1);
  entity->directory_entry().set_matrix(igsObjectPtr());
  EXPECT_EQ(data->obj(), matrix->de_number());

  // Checked again, only what no repair settles is left.
  EXPECT_EQ(entity->check(), 0);
  Lines left = describe(igsObjectLog);
  std::sort(left.begin(), left.end());
  EXPECT_EQ(left, (Lines{"igsDEInvalidEntitySubscript()@1", "igsDEInvalidStatusFlags()@1"}));
}

} // namespace
