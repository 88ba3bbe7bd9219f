#include "entities/curves/igsTrimmedConic.h"

KVU_DEFINE_TYPE(igsTrimmedConic, igsCurve)
