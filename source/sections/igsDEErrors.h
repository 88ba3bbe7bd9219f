// The error classes of the Directory Entry checks.
#pragma once

#include "errors/igsErrorClass.h"

#define IGS_ERROR IGS_ERROR_DECLARE
#include "sections/igsDEErrors.def"
