// Dropping members of a list keeps every position as read pointing at its member, through
// repairs that drop more members later.
#include "entities/igsIndexList.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::vector<int> currents(igsIndexList const& index) {
  std::vector<int> result;
  for (int i = 0; i < index.size(); ++i) result.push_back(index.current(i));
  return result;
}

TEST(IndexList, DroppedMembersMapToMinusOneAndTheOthersFollowTheirMember) {
  struct Case {
    std::string drop_first, drop_then; // members (by letter) dropped in two repairs
    std::string left;
    std::vector<int> index;
  } const cases[] = {
      {"", "", "abcde", {0, 1, 2, 3, 4}},      {"a", "", "bcde", {-1, 0, 1, 2, 3}},
      {"e", "", "abcd", {0, 1, 2, 3, -1}},     {"bd", "", "ace", {0, -1, 1, -1, 2}},
      {"b", "c", "ade", {0, -1, -1, 1, 2}},    {"d", "a", "bce", {-1, 0, 1, -1, 2}},
      {"abcde", "", "", {-1, -1, -1, -1, -1}},
  };
  for (Case const& c : cases) {
    charcoDynArr members{'a', 'b', 'c', 'd', 'e'};
    igsIndexList index;
    index.reset(members.size());
    igs_drop_members(members, index,
                     [&](char m) { return c.drop_first.find(m) == std::string::npos; });
    int dropped = igs_drop_members(
        members, index, [&](char m) { return c.drop_then.find(m) == std::string::npos; });
    EXPECT_EQ(dropped, static_cast<int>(c.drop_then.size())) << c.drop_first << c.drop_then;
    EXPECT_EQ(std::string(members.begin(), members.end()), c.left);
    EXPECT_EQ(currents(index), c.index) << c.drop_first << "/" << c.drop_then;
    for (int i = 0; i < index.size(); ++i)
      if (index.current(i) >= 0) {
        EXPECT_EQ(index.original(index.current(i)), i);
      }
  }
  igsIndexList index;
  EXPECT_EQ(index.current(3), -1); // never read
}

} // namespace
