#include "operations/igsConvert.h"

#include "entities/curves/igs110.h"
#include "entities/curves/igsPointset.h"
#include "entities/curves/igsPolyline.h"
#include "sections/igsDirectoryEntry.h"

// The new entity takes the attributes of the old one, but keeps its own type and form. The
// attributes whose setters the Directory Entry offers are copied: structure, view, label
// display, line weight, label and subscript.
static void copy_directory_entry(igsObject const& from, igsObject& to) {
  igsDirectoryEntry const& source = from.directory_entry();
  igsDirectoryEntry& target = to.directory_entry();
  target.set_structure(source.structure());
  if (source.view())
    target.set_view(source.view());
  else
    target.remove_view();
  target.set_label_display(source.label_display());
  target.set_line_weight_number(source.line_weight_number());
  target.set_entity_label(source.entity_label());
  target.set_entity_subscript(source.entity_subscript());
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
