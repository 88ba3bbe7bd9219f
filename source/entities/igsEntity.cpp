#include "entities/igsEntity.h"

void igs_print_reference(utOstream& out, char const* label, igsObjectPtr const& reference) {
  out << label << " = {\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    if (reference)
      reference->print(nested);
    else
      nested << "(NullPointer)\n";
  }
  out << "}\n";
}
