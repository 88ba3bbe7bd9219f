#include "operations/igsConvert.h"

#include "entities/curves/igs110.h"
#include "entities/curves/igsPointset.h"
#include "entities/curves/igsPolyline.h"
#include "sections/igsDirectoryEntry.h"

// The new entity takes every attribute of the old one (line font, level, view, matrix, label,
// status, colour and the others) but keeps its own type and form.
static void copy_directory_entry(igsObject const& from, igsObject& to) {
  igsDirectoryEntry& target = to.directory_entry();
  int form = target.form_number();
  target.become(from.directory_entry());
  target.set_form_number(form);
}

igsObject* igsConvert::to_curve(igsObject const* entity) {
  return entity ? to_polyline(entity) : nullptr;
}

igsObject* igsConvert::to_polyline(igsObject const* entity) {
  if (!entity) return nullptr;
  if (entity->isa(igs110::type())) return line_to_polyline(entity);
  if (entity->isa(igsPointset::type())) return pointset_to_polyline(entity);
  return nullptr;
}

igsObject* igsConvert::line_to_polyline(igsObject const* entity) {
  if (!entity || !entity->typeof(igs110::type())) return nullptr;
  igs110 const& line = static_cast<igs110 const&>(*entity);
  igsPolyline* polyline = new (std::nothrow) igsPolyline;
  if (!polyline) return nullptr;
  polyline->set_dimensionality(igsPolylineXYZ);
  polyline->set_point_3d(0, line.start_point());
  polyline->set_point_3d(1, line.end_point());
  copy_directory_entry(line, *polyline);
  return polyline;
}

igsObject* igsConvert::pointset_to_polyline(igsObject const* entity) {
  if (!entity || !entity->typeof(igsPointset::type())) return nullptr;
  igsPointset const& points = static_cast<igsPointset const&>(*entity);
  igsPointsetDim dim{};
  // An unset flag holds no valid data; tuples with vectors have no conversion.
  if (!points.dimensionality(dim) || dim == igsPointsetXYZIJK) return nullptr;
  igsPolyline* polyline = new (std::nothrow) igsPolyline;
  if (!polyline) return nullptr;
  int count = points.number_of_items();
  if (dim == igsPointsetXYCommonZ) {
    double z = 0.0;
    points.z_level(z);
    polyline->set_dimensionality(igsPolylineXYCommonZ);
    polyline->set_z_level(z);
    for (int i = 0; i < count; ++i) {
      giPoint2 point;
      points.point_planar(i, point);
      polyline->set_point_planar(i, point);
    }
  } else {
    polyline->set_dimensionality(igsPolylineXYZ);
    for (int i = 0; i < count; ++i) {
      giPoint3 point;
      points.point_3d(i, point);
      polyline->set_point_3d(i, point);
    }
  }
  copy_directory_entry(points, *polyline);
  return polyline;
}
