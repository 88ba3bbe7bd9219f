// The point set (type 106, forms 1 to 3): points that make no curve, planar with a common Z
// (form 1), in space (2), or in space with a vector at each point (3).
// Declares igsPointsetDim (igsPointsetXYCommonZ, igsPointsetXYZ, igsPointsetXYZIJK),
// igsPointsetTraits and igsPointset.
#pragma once

#include "entities/curves/igsCurveErrors.h"
#include "entities/curves/igsTupleList.h"

IGS_TUPLE_LIST_CLASS(igsPointset, igsObject, 0)
