#include "sections/igsUnits.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <vector>

namespace {

struct UnitRow {
  int flag;
  char const* written;
  std::vector<char const*> accepted;
  double millimetres;
};

// Every flag with its name in a file, the names read as it and its length in millimetres.
std::vector<UnitRow> const unit_rows = {
    {0, "UNKNOWN", {}, 0},       {1, "INCH", {"IN", "INCH"}, 25.4},
    {2, "MM", {"MM"}, 1},        {3, "UNKNOWN", {}, 1},
    {4, "FT", {"FT"}, 304.8},    {5, "MI", {"MI"}, 1609344},
    {6, "M", {"M"}, 1000},       {7, "KM", {"KM"}, 1000000},
    {8, "MIL", {"MIL"}, 0.0254}, {9, "UM", {"UM"}, 0.001},
    {10, "CM", {"CM"}, 10},      {11, "UIN", {"UIN"}, 0.0000254}};

std::string lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

igsUnitType unit(int flag) {
  return static_cast<igsUnitType>(flag);
}

} // namespace

TEST(igsUnits, NamesWrittenAndReadInAnyCase) {
  for (UnitRow const& row : unit_rows) {
    SCOPED_TRACE(row.flag);
    EXPECT_EQ(igsUnits::name(unit(row.flag)), row.written);
    for (std::string name : row.accepted) {
      EXPECT_EQ(igsUnits::type(utString(name)), row.flag) << name;
      EXPECT_EQ(igsUnits::type(utString(lower(name))), row.flag) << name;
      std::string mixed = lower(name);
      mixed[0] = name[0];
      EXPECT_EQ(igsUnits::type(utString(mixed)), row.flag) << mixed;
    }
  }
  EXPECT_EQ(igsUnits::type("mm"), igsUnitMillimeter);
  EXPECT_EQ(igsUnits::type("Inch"), igsUnitInch);
  // Neither unknown nor user-defined units have a name of their own.
  for (char const* name : {"UNKNOWN", "PARSEC", "", "INCHES", "MM ", " MM", "MMM", "I", "U", "K"})
    EXPECT_EQ(igsUnits::type(name), igsUnitUnknown) << '"' << name << '"';
  EXPECT_EQ(igsUnits::type(utString()), igsUnitUnknown);
  EXPECT_EQ(igsUnits::type(utString("MM\0", 3)), igsUnitUnknown);
  for (int flag : {-1, 12, igsUnits::unset_flag})
    EXPECT_EQ(igsUnits::name(unit(flag)), "UNKNOWN") << flag;
}

TEST(igsUnits, ConversionFactorsBothWays) {
  EXPECT_EQ(igsUnits::convert_between_units(igsUnitInch, igsUnitMillimeter), 25.4);
  EXPECT_EQ(igsUnits::convert_between_units(igsUnitMillimeter, igsUnitInch), 1 / 25.4);
  EXPECT_EQ(igsUnits::convert_between_units(igsUnitMeter, igsUnitMillimeter), 1000.0);
  EXPECT_EQ(igsUnits::convert_between_units(igsUnitMillimeter, igsUnitKilometer), 0.000001);
  EXPECT_DOUBLE_EQ(igsUnits::convert_between_units(igsUnitFoot, igsUnitInch), 12.0);
  EXPECT_DOUBLE_EQ(igsUnits::convert_between_units(igsUnitMile, igsUnitFoot), 5280.0);
  EXPECT_DOUBLE_EQ(igsUnits::convert_between_units(igsUnitInch, igsUnitMil), 1000.0);
  EXPECT_DOUBLE_EQ(igsUnits::convert_between_units(igsUnitMicroinch, igsUnitMicron), 0.0254);

  for (UnitRow const& from : unit_rows) {
    for (UnitRow const& to : unit_rows) {
      SCOPED_TRACE(testing::Message() << from.flag << " to " << to.flag);
      double factor = igsUnits::convert_between_units(unit(from.flag), unit(to.flag));
      if (from.flag == to.flag) {
        EXPECT_EQ(factor, 1.0);
      } else if (from.flag == 0 || to.flag == 0) {
        EXPECT_EQ(factor, 0.0);
      } else {
        EXPECT_DOUBLE_EQ(factor, from.millimetres / to.millimetres);
        double back = igsUnits::convert_between_units(unit(to.flag), unit(from.flag));
        EXPECT_DOUBLE_EQ(factor * back, 1.0);
      }
    }
  }
  // User-defined units convert as millimetres; flags out of range give no factor at all.
  EXPECT_EQ(igsUnits::convert_between_units(igsUnitUserDefined, igsUnitInch), 1 / 25.4);
  for (int flag : {-1, 12, igsUnits::unset_flag}) {
    EXPECT_EQ(igsUnits::convert_between_units(unit(flag), igsUnitMillimeter), 0.0) << flag;
    EXPECT_EQ(igsUnits::convert_between_units(igsUnitMillimeter, unit(flag)), 0.0) << flag;
    EXPECT_EQ(igsUnits::convert_between_units(unit(flag), unit(flag)), 0.0) << flag;
  }
}

TEST(igsUnits, FlagAndNameAgreement) {
  struct Case {
    int flag;
    char const* name;
    int agree;
  };
  Case const cases[] = {{2, "MM", 1},      {2, "mm", 1},      {1, "IN", 1},   {1, "Inch", 1},
                        {8, "MIL", 1},     {2, "IN", 0},      {1, "MM", 0},   {6, "MI", 0},
                        {0, "MM", 0},      {0, "UNKNOWN", 0}, {0, "", 0},     {3, "PARSEC", 0},
                        {3, "UNKNOWN", 0}, {3, "", 0},        {3, "FT", 1},   {3, "mm", 1},
                        {12, "MM", 0},     {-1, "MM", 0},     {4, "FEET", 0}, {11, "UIN", 1}};
  for (Case const& c : cases)
    EXPECT_EQ(igsUnits::check_units(unit(c.flag), c.name), c.agree) << c.flag << " " << c.name;
}

TEST(igsUnits, FlagAndNameTravelTogether) {
  igsUnits left_out;
  EXPECT_EQ(left_out.type(), igsUnits::unset_flag);
  EXPECT_FALSE(left_out.name().is_null());
  EXPECT_EQ(left_out.name(), "");

  igsUnits flag_only(6);
  EXPECT_EQ(flag_only.type(), 6);
  EXPECT_FALSE(flag_only.name().is_null());
  EXPECT_EQ(flag_only.name(), "");

  igsUnits both("FT", 4);
  igsUnits copy(both);
  EXPECT_EQ(copy.type(), 4);
  EXPECT_EQ(copy.name(), "FT");
  copy.set_type(1);
  copy.set_name("IN");
  EXPECT_EQ(both.name(), "FT"); // the copy changed alone
  flag_only = copy;
  EXPECT_EQ(flag_only.type(), 1);
  EXPECT_EQ(flag_only.name(), "IN");
  flag_only.become(both);
  EXPECT_EQ(flag_only.type(), 4);
  EXPECT_EQ(flag_only.name(), "FT");
}
