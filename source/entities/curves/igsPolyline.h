// The polyline (type 106, forms 11 to 13): a piecewise linear curve through its points, planar
// with a common Z (form 11), in space (12), or in space with a vector at each point (13).
// Declares igsPolylineDim (igsPolylineXYCommonZ, igsPolylineXYZ, igsPolylineXYZIJK),
// igsPolylineTraits and igsPolyline.
#pragma once

#include "entities/curves/igsCurveErrors.h"
#include "entities/curves/igsTupleList.h"
#include "entities/igsEntityBases.h"

IGS_TUPLE_LIST_CLASS(igsPolyline, igsCurve, 10)
