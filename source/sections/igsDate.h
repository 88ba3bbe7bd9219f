// A date and time of the Global section, kept as the file's text and decoded on demand.
#pragma once

#include "support/utString.h"

class utOstream;

// The text is "YYMMDD.HHNNSS" (13 characters) or "YYYYMMDD.HHNNSS" (15 characters).
class igsDate {
 public:
  // Where "now" comes from: the six parts of the local date and time.
  using Clock = void (*)(int& year, int& month, int& day, int& hour, int& minute, int& second);

  // Now.
  igsDate();
  explicit igsDate(utString const& date_string) : m_date(date_string) {}
  igsDate(igsDate const& other) { become(other); }
  igsDate& operator=(igsDate const& other) {
    become(other);
    return *this;
  }
  void become(igsDate const& other) { m_date = other.m_date; }

  utString const& date_string() const { return m_date; }
  void set_date_string(utString const& date_string) { m_date = date_string; }

  // Decodes the text into the six parts; 0, with -1 in the parts not decoded, if it is
  // malformed.
  int date(int& year, int& month, int& day, int& hour, int& minute, int& second) const;
  // Whether the text is a well-formed date from 1980 up to this year.
  int check() const { return check_date_string(m_date); }

  static int check_date_string(utString const& date_string);
  // Whether the day fits the month. Days below 29 always do; February 29 does in a year that
  // 4 divides.
  static int check_day_against_month(int day, int month, int year);
  // Sets the six parts to -1 and decodes what it can; returns 1 if the whole text was decoded.
  // Every field is digits alone.
  // A two-digit year yy is 1900 + yy, or 2000 + yy when 2000 + yy is not after this year.
  static int decode_date_string(utString const& date_string, int& year, int& month, int& day,
                                int& hour, int& minute, int& second);
  // The local date and time, seconds at most 59.
  static void todays_date(int& year, int& month, int& day, int& hour, int& minute, int& second);
  // Replaces the source of "now" (null: the system's local time); returns the one before.
  static Clock set_clock(Clock clock);

  void print(utOstream& out) const;

 protected:
  // The short form for the years 1901 to 1999, the long form for any other.
  utString encode_date_string(int year, int month, int day, int hour, int minute, int second) const;

 private:
  utString m_date;
};

utOstream& operator<<(utOstream& out, igsDate const& date);
