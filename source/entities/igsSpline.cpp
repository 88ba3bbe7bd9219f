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

int igs_set_weight(doublecoDynArr& values, int first, int points, int index, double value) {
  if (igs_unit_weights(values, first, points)) {
    if (value == 1.0) return 1;
    int size = values.size();
    if (!values.expand(size + points)) return 0;
    double* store = values.data();
    for (int i = size - 1; i >= first; --i) store[i + points] = store[i];
    for (int i = first; i < first + points; ++i) store[i] = 1.0;
  }
  values[first + index] = value;
  return 1;
}

int igs_read_weighted_points(igsInStream& in, doublecoDynArr& values, int first, int points,
                             int& ended) {
  if (!igs_read_values(in, values, first, points, ended)) return 0;
  double const* weights = values.data() + first;
  bool unit = true;
  for (int i = 0; i < points; ++i) unit = unit && weights[i] == 1.0;
  // Kept weights widen the room made for the coordinates alone.
  int start = unit ? first : first + points;
  int room = igs_reading_room(start, points);
  if (room > values.size() && !values.expand(room)) return 0;
  if (!igs_read_values(in, values, start, 3 * points, ended)) return 0;
  int end = start + 3 * points;
  // A store that grew while reading gives back the room it did not fill.
  values.shrink(end, values.capacity() > igs_max_initial_reserve);
  return 1;
}

void igs_write_weighted_points(igsOutStream& out, doublecoDynArr const& values, int first,
                               int points) {
  if (igs_unit_weights(values, first, points))
    for (int i = 0; i < points; ++i) out.write_double(1.0);
  for (int i = first; i < values.size(); ++i) out.write_double(values[i]);
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
