#include "entities/igsEntityBases.h"

#define IGS_DEFINE_MARK_BASE(Class, Base) KVU_DEFINE_TYPE(Class, Base)
IGS_MARK_BASES(IGS_DEFINE_MARK_BASE)
