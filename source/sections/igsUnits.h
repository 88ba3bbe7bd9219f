// The units flag and units name of the Global section, and conversions between units.
#pragma once

#include "core/igsUnset.h"
#include "support/utString.h"

class igsGlobalError;

// A units flag. Any int may be held; the named values are those a file may use.
enum igsUnitType : int {
#define IGS_UNIT(enumerator, flag, ...) enumerator = flag,
#include "sections/igsUnits.def"
};

// Global parameters 14 and 15: the flag and the name, which must agree.
class igsUnits {
 public:
  // The flag of units that were left out.
  static constexpr int unset_flag = igs_unset_int;

  // A flag alone has an empty name, as a Global section that leaves the name out reads.
  explicit igsUnits(int type = unset_flag) : m_type(type), m_name("") {}
  igsUnits(utString const& name, int type) : m_type(type), m_name(name) {}
  igsUnits(igsUnits const& other) { become(other); }
  igsUnits& operator=(igsUnits const& other) {
    become(other);
    return *this;
  }
  void become(igsUnits const& other) {
    m_type = other.m_type;
    m_name = other.m_name;
  }

  int type() const { return m_type; }
  utString const& name() const { return m_name; }
  void set_type(int type) { m_type = type; }
  void set_name(utString const& name) { m_name = name; }

  // The flag that a name stands for, without regard to case; igsUnitUnknown for a name that
  // no flag has.
  static igsUnitType type(utString const& name);
  // The name a flag is written with; "UNKNOWN" for flags 0 and 3 and for any flag out of range.
  static utString name(igsUnitType type);
  // Whether a flag and a name agree. User-defined units (3) agree with any known name; unknown
  // units (0) with none.
  static int check_units(igsUnitType type, utString const& name);
  // The factor that turns a length in `from` units into one in `to` units: 1 for the same
  // units; else 0 where one of them is unknown (0) or out of range.
  static double convert_between_units(igsUnitType from, igsUnitType to);

  // The first fault of the pair, as a new error in the current log that the caller tags;
  // null when flag and name agree. A name that no flag stands for counts as "UNKNOWN".
  igsGlobalError* check() const;

 private:
  int m_type = unset_flag;
  utString m_name;
};
