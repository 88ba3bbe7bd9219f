// The error classes of the transformations, groups, views, drawings and subfigures.
#pragma once

#include "errors/igsErrorClass.h"

// The six clipping planes of a view, in the order of its parameters: the name in the error
// classes and in the accessors.
#define IGS_410_0_PLANES(X)                                                                        \
  X(Left, left)                                                                                    \
  X(Top, top)                                                                                      \
  X(Right, right)                                                                                  \
  X(Bottom, bottom)                                                                                \
  X(Back, back)                                                                                    \
  X(Front, front)

#define IGS_ERROR IGS_ERROR_DECLARE
#include "entities/structure/igsStructureErrors.def"
