// The error classes of the Global section.
#pragma once

#include "errors/igsErrorClass.h"
#include "sections/igsGlobalSection.h"

#define IGS_ERROR IGS_ERROR_DECLARE
#include "sections/igsGlobalSectionErrors.def"
