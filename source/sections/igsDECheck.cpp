#include "sections/igsDECheck.h"
#include "core/igsObject.h"

void igsObject::check_directory_entry(unsigned, int) const {}
