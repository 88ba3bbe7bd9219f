#include "entities/structure/igs404.h"

#include "entities/structure/igs410_0.h"
#include "entities/structure/igsStructureErrors.h"

IGS_ENTITY_DEFINE(igs404, igsCompound, 404, 0, igs_de_without_matrix)

// Each view: its pointer, the origin in the drawing (X, Y) and, in form 1 only, the angle in
// radians. Then the annotation entities.
int igs404::read_pd_data(igsInStream& in) {
  int views = 0;
  in.read_integer(views);
  int angles = has_angles();
  auto read_view = [angles](igsInStream& stream, igsDrawingView& view) {
    igsObjectPtr reference;
    double x = 0.0, y = 0.0, angle = 0.0;
    igs_read_fields(stream, reference, x, y);
    if (angles) stream.read_double(angle);
    view.set_view(reference);
    view.set_origin(giPoint3(x, y, 0.0));
    view.set_rotation_angle(giAngle(giAngleRadiansTag, angle));
  };
  if (!m_views.read(in, views, read_view)) return 0;
  int count = 0;
  in.read_integer(count);
  return read_entities(in, count);
}

void igs404::write_pd_data(igsOutStream& out) {
  int angles = has_angles();
  out.write_integer(m_views.written_count());
  m_views.write(out, [angles](igsOutStream& stream, igsDrawingView const& view) {
    igs_write_fields(stream, view.view(), view.origin().x(), view.origin().y());
    if (angles) stream.write_double(view.rotation_angle().angle(giAngleRadiansTag));
  });
  out.write_integer(m_entities.written_count());
  write_entities(out);
}

void igs404::print_pd_data(utOstream&) const {}

void igs404::check_pd() const {
  if (number_of_views() < 0) raise_error<igs404InvalidViewSize>();
  if (number_of_entities() < 0) raise_error<igs404InvalidEntitySize>();
  for (int i = 0; i < m_views.size(); ++i) {
    igsObjectPtr const& view = m_views.get(i).view();
    int original = m_views.original(i);
    if (!view)
      raise_error<igs404NullViewPointer>(original);
    else if (!view->typeof(igs410_0::type()))
      raise_error<igs404InvalidViewPointer>(original);
    else if (!view->check())
      raise_error<igs404BadViewPointer>(original);
  }
  check_entities<igs404NullEntityPointer, igs404BadEntityPointer>();
}

void igs404::set_index_lists() {
  set_index_list();
  m_views.set_index_list();
}

void igs404::unreference_children() {
  igsCompound::unreference_children();
  m_views.unreference();
}

int igs404::drop_bad_views() {
  return m_views.drop([](igsDrawingView const& view) {
    igsObjectPtr const& reference = view.view();
    return igs_sound_member(reference) && reference->typeof(igs410_0::type());
  });
}

int igs404::view_de_number(int original) const {
  int current = get_current_view_index(original);
  return igs_member_de_number(de_number(), current, get_view(current).view());
}

int igs404ViewError::obj() {
  if (!cached_obj()) set_cached_obj(igs_member_obj(key(), index(), &igs404::view_de_number));
  return cached_obj();
}

int igs404ViewError::fix() {
  return igs_repair_members(key(), type(), &igs404::drop_bad_views);
}
