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
