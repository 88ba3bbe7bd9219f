#include "entities/surfaces/igsOnSurface.h"

void igs_print_enumerated(utOstream& out, char const* label, int value, char const* const* words,
                          int count) {
  out << label << value << (igs_enumerated_valid(value, count) ? words[value] : "(Unknown)")
      << "\n";
}

igsObjectPtr igs_agreed_surface(igsObjectPtrcoDynArr const& candidates) {
  if (candidates.empty()) return igsObjectPtr();
  for (igsObjectPtr const& candidate : candidates)
    if (!(candidate == candidates[0])) return igsObjectPtr();
  igsObjectPtr const& surface = candidates[0];
  if (!surface || !surface->typeof(igsSurface::type())) return igsObjectPtr();
  return surface;
}
