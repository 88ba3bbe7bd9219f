#include "sections/igsDate.h"

#include "support/utOstream.h"

#include <cstdio>
#include <ctime>

namespace {

void system_clock(int& year, int& month, int& day, int& hour, int& minute, int& second) {
  std::time_t now = std::time(nullptr);
  std::tm local{};
  if (now == static_cast<std::time_t>(-1) || !localtime_r(&now, &local)) {
    local = std::tm{};
    local.tm_year = 70; // the clock is unreadable: the start of its epoch
    local.tm_mday = 1;
  }
  year = local.tm_year + 1900;
  month = local.tm_mon + 1;
  day = local.tm_mday;
  hour = local.tm_hour;
  minute = local.tm_min;
  second = local.tm_sec;
}

igsDate::Clock the_clock = system_clock;

int this_year() {
  int year, month, day, hour, minute, second;
  igsDate::todays_date(year, month, day, hour, minute, second);
  return year;
}

// Reads the field of `length` digits at `start`; leaves `value` alone if it is no number.
// Signs and blanks, which a number may otherwise carry, are refused: "-50101.120000" is no
// date of 1995.
int decode_field(utString const& text, int start, int length, int& value) {
  for (int i = start; i < start + length; ++i)
    if (text[i] < '0' || text[i] > '9') return 0;
  int decoded = 0;
  if (!utString(text, start, length).parse(decoded)) return 0;
  value = decoded;
  return 1;
}

} // namespace

igsDate::igsDate() {
  int year, month, day, hour, minute, second;
  todays_date(year, month, day, hour, minute, second);
  m_date = encode_date_string(year, month, day, hour, minute, second);
}

int igsDate::date(int& year, int& month, int& day, int& hour, int& minute, int& second) const {
  return decode_date_string(m_date, year, month, day, hour, minute, second);
}

int igsDate::check_date_string(utString const& date_string) {
  if (date_string.is_null()) return 0;
  int year, month, day, hour, minute, second;
  if (!decode_date_string(date_string, year, month, day, hour, minute, second)) return 0;
  return year >= 1980 && year <= this_year() && month >= 1 && month <= 12 && day >= 1 &&
         day <= 31 && hour >= 0 && hour <= 23 && minute >= 0 && minute <= 59 && second >= 0 &&
         second <= 59 && check_day_against_month(day, month, year);
}

int igsDate::check_day_against_month(int day, int month, int year) {
  static constexpr int days_in_month[12] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (day < 29) return 1;
  if (month < 1 || month > 12 || day > days_in_month[month - 1]) return 0;
  if (month == 2 && day == 29) return year % 4 == 0;
  return 1;
}

int igsDate::decode_date_string(utString const& date_string, int& year, int& month, int& day,
                                int& hour, int& minute, int& second) {
  year = month = day = hour = minute = second = -1;
  int year_digits = 0;
  if (date_string.length() == 13 && date_string[6] == '.')
    year_digits = 2;
  else if (date_string.length() == 15 && date_string[8] == '.')
    year_digits = 4;
  else
    return 0;

  if (!decode_field(date_string, 0, year_digits, year)) return 0;
  if (year_digits == 2) {
    year += 1900;
    if (year + 100 <= this_year()) year += 100;
  }
  // Offsets from the end of the year; the "." stands between day and hour.
  struct Field {
    int* value;
    int offset;
  };
  Field const fields[] = {{&month, 0}, {&day, 2}, {&hour, 5}, {&minute, 7}, {&second, 9}};
  for (Field const& field : fields)
    if (!decode_field(date_string, year_digits + field.offset, 2, *field.value)) return 0;
  return 1;
}

void igsDate::todays_date(int& year, int& month, int& day, int& hour, int& minute, int& second) {
  (the_clock ? the_clock : system_clock)(year, month, day, hour, minute, second);
  if (second > 59) second = 59; // a leap second
}

igsDate::Clock igsDate::set_clock(Clock clock) {
  Clock before = the_clock;
  the_clock = clock ? clock : system_clock;
  return before;
}

utString igsDate::encode_date_string(int year, int month, int day, int hour, int minute,
                                     int second) const {
  char text[80];
  int length = year >= 1901 && year <= 1999
                   ? std::snprintf(text, sizeof text, "%2.2d%2.2d%2.2d.%2.2d%2.2d%2.2d",
                                   year - 1900, month, day, hour, minute, second)
                   : std::snprintf(text, sizeof text, "%4.4d%2.2d%2.2d.%2.2d%2.2d%2.2d", year,
                                   month, day, hour, minute, second);
  if (length < 0) length = 0;
  if (length >= static_cast<int>(sizeof text)) length = static_cast<int>(sizeof text) - 1;
  return utString(text, length);
}

void igsDate::print(utOstream& out) const {
  out << m_date;
}

utOstream& operator<<(utOstream& out, igsDate const& date) {
  date.print(out);
  return out;
}
