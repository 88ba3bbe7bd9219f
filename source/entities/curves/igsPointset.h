// The point set (type 106, forms 1 to 3): points that make no curve, planar with a common Z
// (form 1), in space (2), or in space with a vector at each point (3).
#pragma once

#include "entities/curves/igsCurveErrors.h"
#include "entities/curves/igsTupleList.h"

// The interpretation flag: what each tuple holds.
enum igsPointsetDim : int { igsPointsetXYCommonZ = 1, igsPointsetXYZ = 2, igsPointsetXYZIJK = 3 };

class igsPointset;
struct igsPointsetTraits {
  using Entity = igsPointset;
  using Dim = igsPointsetDim;
  static constexpr int form_offset = 0;
  IGS_TUPLE_LIST_ERROR_NAMES(igsPointset)
};
extern template class igsTupleList<igsObject, igsPointsetTraits>;

class igsPointset : public igsTupleList<igsObject, igsPointsetTraits> {
  IGS_ENTITY_IDENTITY(igsPointset)
};
