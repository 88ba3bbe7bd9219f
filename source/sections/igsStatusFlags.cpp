#include "sections/igsStatusFlags.h"

#include "support/utOstream.h"

#include <iterator>

namespace {

constexpr auto blank_names = IGS_ATTRIBUTE_NAMES(IGS_BLANK_STATUS_LIST);
constexpr auto subordinate_names = IGS_ATTRIBUTE_NAMES(IGS_SUBORDINATE_STATUS_LIST);
constexpr auto use_names = IGS_ATTRIBUTE_NAMES(IGS_ENTITY_USE_LIST);
constexpr auto hierarchy_names = IGS_ATTRIBUTE_NAMES(IGS_HIERARCHY_LIST);

// One status digit: its print label and its names, in the order of the digits.
struct FlagInfo {
  char const* label;
  char const* const* names;
  unsigned count;
};

template <class Names> constexpr FlagInfo flag_info(char const* label, Names const& names) {
  return {label, names.names, static_cast<unsigned>(std::size(names.names))};
}

constexpr FlagInfo flag_infos[] = {
    flag_info("BlankStatus = ", blank_names), flag_info("SubordinateStatus = ", subordinate_names),
    flag_info("EntityUse = ", use_names), flag_info("Hierarchy = ", hierarchy_names)};

int in_range(FlagInfo const& info, int value) {
  return static_cast<unsigned>(value) < info.count;
}

} // namespace

void igsStatusFlags::become(igsStatusFlags const& other) {
  for (int flag = 0; flag < flag_count; ++flag)
    m_values[flag] = in_range(flag_infos[flag], other.m_values[flag]) ? other.m_values[flag] : 0;
}

igsBlankStatus igsStatusFlags::blank_status() const {
  return blank_names.type(m_values[blank_flag], igsVisible);
}

igsSubordinateStatus igsStatusFlags::subordinate_status() const {
  return subordinate_names.type(m_values[subordinate_flag], igsIndependent);
}

igsEntityUse igsStatusFlags::entity_use() const {
  return use_names.type(m_values[use_flag], igsUseGeometry);
}

igsHierarchy igsStatusFlags::hierarchy() const {
  return hierarchy_names.type(m_values[hierarchy_flag], igsGlobalTopDown);
}

char const* igsStatusFlags::name(Flag flag) const {
  FlagInfo const& info = flag_infos[flag];
  int value = m_values[flag];
  return in_range(info, value) ? info.names[value] : "Unknown";
}

int igsStatusFlags::valid() const {
  for (int flag = 0; flag < flag_count; ++flag)
    if (!in_range(flag_infos[flag], m_values[flag])) return 0;
  return 1;
}

void igsStatusFlags::print(utOstream& out) const {
  for (int flag = 0; flag < flag_count; ++flag) {
    if (flag > 0) out << "\n";
    out << flag_infos[flag].label << m_values[flag] << "(" << name(static_cast<Flag>(flag)) << ")";
  }
}

utOstream& operator<<(utOstream& out, igsStatusFlags const& flags) {
  flags.print(out);
  return out;
}
