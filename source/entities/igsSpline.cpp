#include "entities/igsSpline.h"

int igs_read_values(igsInStream& in, doublecoDynArr& values, int first, int count, int& ended) {
  ended = 0;
  for (int i = first; i < first + count; ++i) {
    if (i == values.size()) {
      if (in.frozen()) {
        ended = 1;
        return 0;
      }
      if (!values.append(0.0)) return 0;
    }
    in.read_double(values.data()[i]);
  }
  return 1;
}

void igs_print_flag(utOstream& out, char const* label, int flag, int truth) {
  char const* word = flag == truth ? "(True)" : flag == 1 - truth ? "(False)" : "(Unknown)";
  out << label << flag << word << "\n";
}

void igs_print_knots(utOstream& out, char const* heading, double const* knots, int count) {
  out << heading << "\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    for (int i = 0; i < count; ++i) {
      if (i > 0) nested << (knots[i] == knots[i - 1] ? "," : "\n");
      nested << knots[i];
    }
    if (count) nested << "\n";
  }
  out << "}\n";
}
