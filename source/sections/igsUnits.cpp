#include "sections/igsUnits.h"

#include "sections/igsGlobalSectionErrors.h"
#include "support/kvuMacros.h"

#include <cctype>
#include <iterator>
#include <new>
#include <string_view>

namespace {

struct UnitRow {
  igsUnitType type;
  char const* name;
  char const* accepted[2]; // names read as this unit; null where there are fewer
  double millimetres_per_unit;
  double units_per_millimetre;
};

constexpr UnitRow unit_rows[] = {
#define IGS_UNIT(enumerator, flag, name, accepted, mm_per_unit, units_per_mm)                      \
  {enumerator, name, {KVU_UNPAREN(accepted)}, mm_per_unit, units_per_mm},
#include "sections/igsUnits.def"
};

constexpr bool rows_follow_flags() {
  for (size_t i = 0; i < std::size(unit_rows); ++i)
    if (unit_rows[i].type != static_cast<int>(i)) return false;
  return true;
}
static_assert(rows_follow_flags(), "unit rows are indexed by their flag");

// The row of a flag, or null when the flag names no unit.
UnitRow const* unit_row(int type) {
  if (type < 0 || type >= static_cast<int>(std::size(unit_rows))) return nullptr;
  return &unit_rows[type];
}

bool same_ignoring_case(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i)
    if (std::toupper(static_cast<unsigned char>(a[i])) !=
        std::toupper(static_cast<unsigned char>(b[i])))
      return false;
  return true;
}

} // namespace

igsUnitType igsUnits::type(utString const& name) {
  for (UnitRow const& row : unit_rows)
    for (char const* accepted : row.accepted)
      if (accepted && same_ignoring_case(name.view(), accepted)) return row.type;
  return igsUnitUnknown;
}

utString igsUnits::name(igsUnitType type) {
  UnitRow const* row = unit_row(type);
  return row ? row->name : unit_rows[igsUnitUnknown].name;
}

int igsUnits::check_units(igsUnitType type, utString const& name) {
  if (type == igsUnitUnknown) return 0;
  igsUnitType named = igsUnits::type(name);
  if (named == type) return 1;
  return type == igsUnitUserDefined && named != igsUnitUnknown;
}

double igsUnits::convert_between_units(igsUnitType from, igsUnitType to) {
  UnitRow const* from_row = unit_row(from);
  UnitRow const* to_row = unit_row(to);
  if (!from_row || !to_row) return 0.0;
  if (from == to) return 1.0;
  return from_row->millimetres_per_unit * to_row->units_per_millimetre;
}

igsGlobalError* igsUnits::check() const {
  igsUnitType named = type(m_name);
  utString name = named == igsUnitUnknown ? utString("UNKNOWN") : m_name;
  if (m_type < igsUnitInch || m_type > igsUnitMicroinch)
    return new (std::nothrow) igsGlobalSectionInvalidUnitsFlag(m_type);
  if (m_type == igsUnitUserDefined)
    return new (std::nothrow) igsGlobalSectionUserDefinedUnits(name);
  if (named != m_type)
    return new (std::nothrow)
        igsGlobalSectionUnitNameTypeMismatch(static_cast<igsUnitType>(m_type), name);
  return nullptr;
}
