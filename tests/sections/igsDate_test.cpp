#include "sections/igsDate.h"

#include "support/utOstream.h"

#include <gtest/gtest.h>

#include <array>
#include <ctime>
#include <sstream>

namespace {

using Parts = std::array<int, 6>;

// The clock the tests read: a fixed local date and time.
Parts now;
void fake_clock(int& year, int& month, int& day, int& hour, int& minute, int& second) {
  year = now[0], month = now[1], day = now[2], hour = now[3], minute = now[4], second = now[5];
}

Parts decode(utString const& text, int& ok) {
  Parts p;
  ok = igsDate::decode_date_string(text, p[0], p[1], p[2], p[3], p[4], p[5]);
  return p;
}

struct DateProbe : igsDate {
  using igsDate::encode_date_string;
};

class igsDateTest : public testing::Test {
 protected:
  igsDateTest() : m_before(igsDate::set_clock(fake_clock)) { now = {2026, 11, 22, 23, 40, 12}; }
  ~igsDateTest() override { igsDate::set_clock(m_before); }

 private:
  igsDate::Clock m_before;
};

TEST_F(igsDateTest, DecodeStopsAtTheFirstBadFieldAndTheCheckHoldsTheLimits) {
  struct Case {
    char const* text;
    int year; // -1: not decoded
    int decoded;
    int valid;
  } const cases[] = {
      {"250101.120000", 2025, 1, 1},   {"20250101.235959", 2025, 1, 1},
      {"19791231.235959", 1979, 1, 0}, {"800101.000000", 1980, 1, 1},
      {"20261231.235959", 2026, 1, 1}, {"20270101.000000", 2027, 1, 0},
      {"270101.000000", 1927, 1, 0},   {"20240229.000000", 2024, 1, 1},
      {"20230229.000000", 2023, 1, 0}, {"960229.000000", 1996, 1, 1},
      {"19000229.000000", 1900, 1, 0}, {"20250431.120000", 2025, 1, 0},
      {"20250001.120000", 2025, 1, 0}, {"20251301.120000", 2025, 1, 0},
      {"20250100.120000", 2025, 1, 0}, {"20250132.120000", 2025, 1, 0},
      {"20250101.240000", 2025, 1, 0}, {"20250101.236000", 2025, 1, 0},
      {"20250101.235960", 2025, 1, 0}, {"20250101.12AB00", 2025, 0, 0},
      {"20250101.-10000", 2025, 0, 0}, {"", -1, 0, 0},
      {"25010.120000", -1, 0, 0},      {"2501011.120000", -1, 0, 0},
      {"202501011.120000", -1, 0, 0},  {"2501011120000", -1, 0, 0},
      {"2025010.1120000", -1, 0, 0},   {"A50101.120000", -1, 0, 0},
      {"-50101.120000", -1, 0, 0},     {" 50101.120000", -1, 0, 0},
      {"2025..01.120000", 2025, 0, 0}, {"2025 101.120000", 2025, 0, 0},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(c.text);
    int ok = -1;
    EXPECT_EQ(decode(c.text, ok)[0], c.year);
    EXPECT_EQ(ok, c.decoded);
    EXPECT_EQ(igsDate::check_date_string(c.text), c.valid);
    EXPECT_EQ(igsDate(utString(c.text)).check(), c.valid);
  }
  int ok = 1;
  EXPECT_EQ(decode("20250101.12AB00", ok), (Parts{2025, 1, 1, 12, -1, -1}));
  EXPECT_EQ(ok, 0);
  EXPECT_EQ(decode(utString(), ok), (Parts{-1, -1, -1, -1, -1, -1}));
  EXPECT_EQ(igsDate(utString()).check(), 0);
  Parts p;
  EXPECT_EQ(igsDate(utString("870615.093007")).date(p[0], p[1], p[2], p[3], p[4], p[5]), 1);
  EXPECT_EQ(p, (Parts{1987, 6, 15, 9, 30, 7}));
  now[0] = 2027; // "this year" moves with the clock
  EXPECT_EQ(igsDate::check_date_string("20270101.000000"), 1);
}

TEST_F(igsDateTest, TodayAndWrittenDatesInTheFormOfTheirYearReadBack) {
  EXPECT_EQ(igsDate().date_string(), "20261122.234012");
  now = {1999, 12, 31, 23, 59, 60}; // a leap second is held at 59
  EXPECT_EQ(igsDate().date_string(), "991231.235959");

  now = {2026, 1, 1, 0, 0, 0};
  DateProbe probe;
  std::pair<int, char const*> const written[] = {{1901, "010228.131415"},
                                                 {1999, "990228.131415"},
                                                 {1900, "19000228.131415"},
                                                 {2000, "20000228.131415"},
                                                 {987, "09870228.131415"}};
  for (auto const& [year, text] : written) {
    EXPECT_EQ(probe.encode_date_string(year, 2, 28, 13, 14, 15), text);
    int ok = 0;
    if (year < 1901 || year > 1926) {
      EXPECT_EQ(decode(text, ok), (Parts{year, 2, 28, 13, 14, 15})) << text;
    }
  }

  igsDate date(utString("20250101.120000"));
  igsDate copy(date);
  copy.set_date_string("990101.000000");
  date = copy;
  std::ostringstream text;
  utOstream out(text);
  out << date;
  EXPECT_EQ(text.str(), "990101.000000");
}

} // namespace
