#include "entities/igsEntity.h"

#include <climits>
#include <string>

void igs_print_reference(utOstream& out, char const* label, igsObjectPtr const& reference,
                         char const* opening) {
  out << label << opening << "\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    if (reference)
      reference->print(nested);
    else
      nested << "(NullPointer)\n";
  }
  out << "}\n";
}

int igs_member(igsObjectPtrcoDynArr const& list, int position, igsObjectPtr& member) {
  if (position < 0 || position >= list.size()) return 0;
  member = list[position];
  return 1;
}

int igs_set_member(igsObjectPtrcoDynArr& list, int position, igsObjectPtr const& member) {
  if (position < 0 || position == INT_MAX) return 0;
  if (position >= list.size() && !list.expand(position + 1)) return 0;
  list[position] = member;
  return 1;
}

void igs_write_references(igsOutStream& out, igsObjectPtrcoDynArr const& list) {
  igs_write_field(out, list.size());
  for (igsObjectPtr const& member : list) igs_write_field(out, member);
}

void igs_print_references(utOstream& out, char const* name, igsObjectPtrcoDynArr const& list) {
  for (int i = 0; i < list.size(); ++i) {
    std::string label = std::string(name) + "(" + std::to_string(i) + ")";
    igs_print_reference(out, label.c_str(), list[i], "= {");
  }
}
