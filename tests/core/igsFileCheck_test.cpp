#include "core/objectTestSupport.h"

#include "entities/structure/igs410_0.h"

#include <climits>
#include <vector>

namespace {

using ViewNumberTest = FileTest;

TEST_F(ViewNumberTest, ProposalsPastTheLargestIntTakeTheLowestFreeNumbers) {
  std::vector<igs410_0*> views;
  for (int number : {INT_MAX, 1, INT_MAX, igs_unset_int, 3}) {
    views.push_back(new igs410_0);
    views.back()->set_view_number(number);
  }
  file->clean(0);
  std::vector<int> numbers;
  for (igs410_0* v : views) numbers.push_back(v->view_number());
  EXPECT_EQ(numbers, (std::vector<int>{INT_MAX, 1, 2, 4, 3}));
  EXPECT_EQ(object_log().num_errors(), 0);
}

} // namespace
