#include "sections/igsUnits.h"

#include <gtest/gtest.h>

namespace {

igsUnitType unit(int flag) {
  return static_cast<igsUnitType>(flag);
}

TEST(igsUnits, ConversionFactorsAgreeWithKnownLengthsAndBothWays) {
  // {from, to, factor}: lengths known independently of the library's table.
  struct Case {
    int from, to;
    double factor;
  } const cases[] = {{1, 2, 25.4},     {4, 1, 12},   {5, 4, 5280}, {1, 8, 1000},
                     {11, 9, 0.0254},  {6, 2, 1000}, {7, 6, 1000}, {10, 2, 10},
                     {3, 1, 1 / 25.4}, {2, 2, 1},    {0, 2, 0},    {2, 0, 0},
                     {0, 0, 1},        {12, 2, 0},   {2, -1, 0},   {12, 12, 0}};
  for (Case const& c : cases)
    EXPECT_DOUBLE_EQ(igsUnits::convert_between_units(unit(c.from), unit(c.to)), c.factor)
        << c.from << " to " << c.to;
  for (int a = 1; a <= 11; ++a)
    for (int b = 1; b <= 11; ++b)
      EXPECT_DOUBLE_EQ(igsUnits::convert_between_units(unit(a), unit(b)) *
                           igsUnits::convert_between_units(unit(b), unit(a)),
                       1.0)
          << a << " and " << b;
}

TEST(igsUnits, FlagAndNameAgreement) {
  struct Case {
    int flag;
    char const* name;
    int agree;
  } const cases[] = {{2, "mm", 1}, {1, "IN", 1}, {1, "Inch", 1},   {11, "UIN", 1},
                     {2, "IN", 0}, {6, "MI", 0}, {0, "MM", 0},     {0, "UNKNOWN", 0},
                     {3, "FT", 1}, {3, "", 0},   {3, "PARSEC", 0}, {12, "MM", 0},
                     {-1, "MM", 0}};
  for (Case const& c : cases)
    EXPECT_EQ(igsUnits::check_units(unit(c.flag), c.name), c.agree) << c.flag << " " << c.name;
  // A flag alone reads with an empty name, and a copy changes alone.
  igsUnits flag_only(6), both("FT", 4);
  EXPECT_EQ(flag_only.name(), "");
  EXPECT_FALSE(flag_only.name().is_null());
  flag_only = both;
  flag_only.set_name("IN");
  EXPECT_EQ(both.name(), "FT");
  EXPECT_EQ(flag_only.type(), 4);
}

} // namespace
