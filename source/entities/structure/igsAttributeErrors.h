// The error classes of the line font, text font, text template, colour, name and external
// reference definitions.
#pragma once

#include "errors/igsErrorClass.h"

#define IGS_ERROR IGS_ERROR_DECLARE
#include "entities/structure/igsAttributeErrors.def"
