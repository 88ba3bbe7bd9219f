// Makes a curve out of an entity that is not one, for repairs that meet a member of the wrong
// kind. Each conversion returns a new entity in the current file, or null when it cannot be
// made; the caller decides where the new entity goes.
#pragma once

class igsObject;

class igsConvert {
 public:
  // Any curve: the polyline conversion, the only one there is.
  static igsObject* to_curve(igsObject const* entity);
  // A line or a point set (exactly those classes, not classes derived from them) as a polyline.
  static igsObject* to_polyline(igsObject const* entity);
  // The two ends as a polyline of form 12.
  static igsObject* line_to_polyline(igsObject const* entity);
  // The points as a polyline of form 11 or 12; points with vectors have no conversion.
  static igsObject* pointset_to_polyline(igsObject const* entity);
};
