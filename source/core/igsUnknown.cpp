#include "core/igsUnknown.h"

IGS_ENTITY_DEFINE(igsUnknown, igsObject, igsEntityTypeUnknown, 0, 0u)

// The record's meaning is unknown; 0 tells the reader to skip it.
int igsUnknown::read_pd_data(igsInStream&) {
  return 0;
}

void igsUnknown::write_pd_data(igsOutStream&) {}

void igsUnknown::print_pd_data(utOstream& out) const {
  out << "UnknownEntity\n";
}

void igsUnknown::check_pd() const {}
