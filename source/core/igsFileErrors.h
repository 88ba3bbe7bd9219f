// The error classes of reading and writing a whole file.
#pragma once

#include "errors/igsErrorClass.h"

#define IGS_ERROR IGS_ERROR_DECLARE
#include "core/igsFileErrors.def"
