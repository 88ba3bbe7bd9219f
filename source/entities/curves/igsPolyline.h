// The polyline (type 106, forms 11 to 13): a piecewise linear curve through its points, planar
// with a common Z (form 11), in space (12), or in space with a vector at each point (13).
#pragma once

#include "entities/curves/igsCurveErrors.h"
#include "entities/curves/igsTupleList.h"
#include "entities/igsEntityBases.h"

// The interpretation flag: what each tuple holds.
enum igsPolylineDim : int { igsPolylineXYCommonZ = 1, igsPolylineXYZ = 2, igsPolylineXYZIJK = 3 };

class igsPolyline;
struct igsPolylineTraits {
  using Entity = igsPolyline;
  using Dim = igsPolylineDim;
  static constexpr int form_offset = 10;
  IGS_TUPLE_LIST_ERROR_NAMES(igsPolyline)
};
extern template class igsTupleList<igsCurve, igsPolylineTraits>;

class igsPolyline : public igsTupleList<igsCurve, igsPolylineTraits> {
  IGS_ENTITY_IDENTITY(igsPolyline)
};
