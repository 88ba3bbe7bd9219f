#include "core/igsNull.h"

IGS_ENTITY_DEFINE(igsNull, igsObject, igsEntityTypeNull, 0, 0u)

// Nothing follows the type number; 0 tells the reader to skip the rest of the record.
int igsNull::read_pd_data(igsInStream&) {
  return 0;
}

void igsNull::write_pd_data(igsOutStream&) {}

void igsNull::print_pd_data(utOstream& out) const {
  out << "NullEntity\n";
}

void igsNull::check_pd() const {}
