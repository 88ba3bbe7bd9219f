// The error classes of the Start and Terminate sections.
#pragma once

#include "errors/igsErrorClass.h"
#include "input/igsIOError.h"

#define IGS_ERROR IGS_ERROR_DECLARE
#include "sections/igsStartTerminateErrors.def"
