#include "sections/igsLevel.h"

#include "support/utOstream.h"

int igsLevel::set_level(int level) {
  if (level < 0 || level > max_level) return 0;
  set_value(level);
  return 1;
}

int igsLevel::set_level_list(igsObjectPtr const& list) {
  return set_definition(list, 0);
}

int igsLevel::valid() const {
  return predefined() && static_cast<unsigned>(value()) <= static_cast<unsigned>(max_level);
}

void igsLevel::print(utOstream& out) const {
  if (predefined())
    out << value();
  else
    out << "list of levels not supported";
}

utOstream& operator<<(utOstream& out, igsLevel const& level) {
  level.print(out);
  return out;
}
