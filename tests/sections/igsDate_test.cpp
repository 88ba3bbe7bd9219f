#include "sections/igsDate.h"

#include "support/utOstream.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>

namespace {

// The clock the tests read: a fixed local date and time.
std::array<int, 6> fake_now = {2026, 11, 22, 23, 40, 12};

void fake_clock(int& year, int& month, int& day, int& hour, int& minute, int& second) {
  year = fake_now[0];
  month = fake_now[1];
  day = fake_now[2];
  hour = fake_now[3];
  minute = fake_now[4];
  second = fake_now[5];
}

using Parts = std::array<int, 6>;

Parts decode(utString const& text, int* result = nullptr) {
  Parts p;
  int ok = igsDate::decode_date_string(text, p[0], p[1], p[2], p[3], p[4], p[5]);
  if (result) *result = ok;
  return p;
}

// Opens the encoder to the tests.
struct DateProbe : igsDate {
  using igsDate::encode_date_string;
};

class igsDateTest : public testing::Test {
 protected:
  void SetUp() override {
    fake_now = {2026, 11, 22, 23, 40, 12};
    m_before = igsDate::set_clock(fake_clock);
  }
  void TearDown() override { igsDate::set_clock(m_before); }

 private:
  igsDate::Clock m_before = nullptr;
};

Parts const none = {-1, -1, -1, -1, -1, -1};

} // namespace

TEST_F(igsDateTest, BothFormsDecode) {
  int ok = 0;
  EXPECT_EQ(decode("250101.120000", &ok), (Parts{2025, 1, 1, 12, 0, 0}));
  EXPECT_EQ(ok, 1);
  EXPECT_EQ(decode("20250101.120000", &ok), (Parts{2025, 1, 1, 12, 0, 0}));
  EXPECT_EQ(ok, 1);
  EXPECT_EQ(decode("19870615.093007", &ok), (Parts{1987, 6, 15, 9, 30, 7}));
  EXPECT_EQ(ok, 1);
  // Decoding judges the form alone; the year limits are the check's.
  EXPECT_EQ(decode("19791231.235959", &ok), (Parts{1979, 12, 31, 23, 59, 59}));
  EXPECT_EQ(ok, 1);
  EXPECT_EQ(igsDate::check_date_string("19791231.235959"), 0);

  igsDate date(utString("870615.093007"));
  Parts p;
  EXPECT_EQ(date.date(p[0], p[1], p[2], p[3], p[4], p[5]), 1);
  EXPECT_EQ(p, (Parts{1987, 6, 15, 9, 30, 7}));
  EXPECT_EQ(date.check(), 1);
}

TEST_F(igsDateTest, TwoDigitYearsCountBackFromThisYear) {
  struct Case {
    int this_year;
    char const* digits;
    int year;
  };
  Case const cases[] = {{2026, "26", 2026}, {2026, "27", 1927}, {2026, "00", 2000},
                        {2026, "80", 1980}, {2026, "99", 1999}, {2050, "50", 2050},
                        {2050, "51", 1951}, {2099, "99", 2099}, {1999, "99", 1999},
                        {1999, "00", 1900}};
  for (Case const& c : cases) {
    fake_now[0] = c.this_year;
    int ok = 0;
    Parts p = decode(utString(c.digits) + "0704.101112", &ok);
    EXPECT_EQ(ok, 1);
    EXPECT_EQ(p, (Parts{c.year, 7, 4, 10, 11, 12})) << c.digits << " in " << c.this_year;
  }
}

TEST_F(igsDateTest, MalformedTextIsRefused) {
  char const* const refused[] = {
      "",                 // empty
      "25010.120000",     // 12 characters
      "2501011.120000",   // 14 characters
      "202501011.120000", // 16 characters
      "2501011120000",    // 13 without "."
      "2501011.12000",    // 13 with "." out of place
      "202501011200000",  // 15 without "."
      "2025010.1120000",  // 15 with "." out of place
      "2025 0101.12000",  // 15 with "." out of place
      "A50101.120000",    // letters in the year
      "25JA01.120000",    // letters in the month
      "20250101.12AB00",  // letters in the minute
      "2025..01.120000",  // a "." in the month
      "-50101.120000",    // a sign in the year
      "+50101.120000",    // a sign in the year
      " 50101.120000",    // a blank in the year
      "2025 101.120000",  // a blank in the month
      "20250101.12 000",  // a blank in the minute
      "20250101.-10000",  // a sign in the hour
  };
  for (char const* text : refused) {
    int ok = 1;
    decode(text, &ok);
    EXPECT_EQ(ok, 0) << '"' << text << '"';
    EXPECT_EQ(igsDate::check_date_string(text), 0) << '"' << text << '"';
  }
  int ok = 1;
  EXPECT_EQ(decode(utString(), &ok), none);
  EXPECT_EQ(ok, 0);
  EXPECT_EQ(igsDate(utString()).check(), 0);
  // Decoding stops at the first bad field and leaves the rest at -1.
  EXPECT_EQ(decode("20250101.12AB00", &ok), (Parts{2025, 1, 1, 12, -1, -1}));
  EXPECT_EQ(decode("2501011.12000", &ok), none);
}

TEST_F(igsDateTest, CheckLimits) {
  struct Case {
    char const* text;
    int valid;
  };
  Case const cases[] = {
      {"19791231.235959", 0}, // before 1980
      {"19800101.000000", 1}, {"800101.000000", 1},
      {"20261231.235959", 1}, {"20270101.000000", 0}, // next year
      {"270101.000000", 0},                           // 1927
      {"20240229.000000", 1}, {"20230229.000000", 0},
      {"19000229.000000", 0}, // refused by the year before the leap test
      {"960229.000000", 1},   {"970229.000000", 0},
      {"20250230.000000", 0}, {"20250431.120000", 0},
      {"20250430.120000", 1}, {"20251231.120000", 1},
      {"20250001.120000", 0}, {"20251301.120000", 0},
      {"20250100.120000", 0}, {"20250132.120000", 0},
      {"20250101.240000", 0}, {"20250101.236000", 0},
      {"20250101.235960", 0}, {"20250101.-10000", 0},
      {"20250101.235959", 1}, {"250101.000000", 1},
  };
  for (Case const& c : cases) {
    EXPECT_EQ(igsDate::check_date_string(c.text), c.valid) << c.text;
    EXPECT_EQ(igsDate(utString(c.text)).check(), c.valid) << c.text;
  }
  // "This year" moves with the clock.
  fake_now[0] = 2027;
  EXPECT_EQ(igsDate::check_date_string("20270101.000000"), 1);
}

TEST(igsDate, DayAgainstMonth) {
  struct Case {
    int day, month, year, fits;
  };
  Case const cases[] = {{28, 2, 2023, 1}, {29, 2, 2024, 1}, {29, 2, 2023, 0},  {29, 2, 1900, 1},
                        {30, 2, 2024, 0}, {31, 1, 2023, 1}, {31, 4, 2023, 0},  {30, 4, 2023, 1},
                        {31, 6, 2023, 0}, {31, 9, 2023, 0}, {31, 11, 2023, 0}, {31, 12, 2023, 1},
                        {32, 1, 2023, 0}, {29, 0, 2023, 0}, {29, 13, 2023, 0}, {1, 13, 2023, 1},
                        {-5, 2, 2023, 1}, {29, 2, -4, 1},   {29, 2, -3, 0}};
  for (Case const& c : cases)
    EXPECT_EQ(igsDate::check_day_against_month(c.day, c.month, c.year), c.fits)
        << c.day << "/" << c.month << "/" << c.year;
}

TEST_F(igsDateTest, TodayIsEncodedInTheFormOfItsYear) {
  EXPECT_EQ(igsDate().date_string(), "20261122.234012");
  fake_now = {1999, 12, 31, 23, 59, 60}; // a leap second is held at 59
  EXPECT_EQ(igsDate().date_string(), "991231.235959");
  int p[6];
  igsDate::todays_date(p[0], p[1], p[2], p[3], p[4], p[5]);
  EXPECT_EQ(p[5], 59);

  DateProbe probe;
  EXPECT_EQ(probe.encode_date_string(1901, 1, 2, 3, 4, 5), "010102.030405");
  EXPECT_EQ(probe.encode_date_string(1900, 1, 2, 3, 4, 5), "19000102.030405");
  EXPECT_EQ(probe.encode_date_string(2000, 1, 2, 3, 4, 5), "20000102.030405");
  EXPECT_EQ(probe.encode_date_string(987, 1, 2, 3, 4, 5), "09870102.030405");

  // What is written reads back, for every year whose short form does not wrap.
  fake_now = {2026, 1, 1, 0, 0, 0};
  for (int year : {1927, 1950, 1980, 1999, 2000, 2026, 2100}) {
    utString text = probe.encode_date_string(year, 2, 28, 13, 14, 15);
    EXPECT_EQ(decode(text), (Parts{year, 2, 28, 13, 14, 15})) << text;
  }
  // Short-form years up to this year's last two digits come back a century later.
  EXPECT_EQ(decode(probe.encode_date_string(1926, 2, 28, 13, 14, 15))[0], 2026);
}

TEST_F(igsDateTest, CopyPrintAndReplace) {
  igsDate date(utString("20250101.120000"));
  igsDate copy(date);
  EXPECT_EQ(copy.date_string(), "20250101.120000");
  copy.set_date_string("990101.000000");
  EXPECT_EQ(date.date_string(), "20250101.120000");
  date = copy;
  EXPECT_EQ(date.date_string(), "990101.000000");
  date.become(igsDate(utString("19800101.000000")));
  EXPECT_EQ(date.date_string(), "19800101.000000");

  std::ostringstream text;
  utOstream out(text);
  out << date;
  EXPECT_EQ(text.str(), "19800101.000000");
}

TEST(igsDate, SystemClockGivesACheckableDate) {
  igsDate::Clock before = igsDate::set_clock(nullptr);
  int p[6];
  igsDate::todays_date(p[0], p[1], p[2], p[3], p[4], p[5]);
  EXPECT_GE(p[0], 2024);
  EXPECT_TRUE(p[1] >= 1 && p[1] <= 12 && p[2] >= 1 && p[2] <= 31);
  EXPECT_TRUE(p[3] >= 0 && p[3] <= 23 && p[4] >= 0 && p[4] <= 59 && p[5] >= 0 && p[5] <= 59);
  EXPECT_EQ(igsDate().check(), 1);
  EXPECT_EQ(igsDate::set_clock(before), before);
}
