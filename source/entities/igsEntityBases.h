// The abstract bases of the entity class tree that carry no data: marks tested through
// `typeof` (any curve at all is `typeof(igsCurve::id)`). Bases with data of their own have
// their own files.
#pragma once

#include "core/igsObject.h"

// Class and direct base, bases before what derives from them.
#define IGS_MARK_BASES(X)                                                                          \
  X(igsCurve, igsObject)                                                                           \
  X(igsSurface, igsObject)                                                                         \
  X(igsParameterizedSurface, igsSurface)                                                           \
  X(igsUnparameterizedSurface, igsSurface)                                                         \
  X(igsSolid, igsObject)                                                                           \
  X(igsAnnotation, igsObject)                                                                      \
  X(igsDefinition, igsObject)                                                                      \
  X(igsStructure, igsObject)

#define IGS_DECLARE_MARK_BASE(Class, Base)                                                         \
  class Class : public Base {                                                                      \
    KVU_DECLARE_TYPE()                                                                             \
   protected:                                                                                      \
    Class() = default;                                                                             \
  };
IGS_MARK_BASES(IGS_DECLARE_MARK_BASE)
#undef IGS_DECLARE_MARK_BASE
