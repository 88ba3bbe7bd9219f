// The drawing entity (type 404, forms 0 and 1): views placed on a sheet, each at an origin
// and, in form 1, turned by an angle, and the annotation entities drawn on the sheet itself.
#pragma once

#include "entities/structure/igsCompound.h"

// A view as a drawing places it.
class igsDrawingView {
 public:
  igsObjectPtr const& view() const { return m_view; }
  void set_view(igsObjectPtr const& view) { m_view = view; }
  giAngle rotation_angle() const { return m_rotation_angle; }
  void set_rotation_angle(giAngle const& angle) { m_rotation_angle = angle; }
  giPoint3 const& origin() const { return m_origin; }
  void set_origin(giPoint3 const& origin) { m_origin = origin; }
  void unreference_children() { m_view.unreference(); }

 private:
  igsObjectPtr m_view;
  giAngle m_rotation_angle{giAngle0Tag};
  giPoint3 m_origin;
};

inline igsObjectPtr const& igs_member_reference(igsDrawingView const& member) {
  return member.view();
}
inline void igs_unreference_member(igsDrawingView& member) {
  member.unreference_children();
}

using igsDrawingViewList = igsMemberList<igsDrawingView>;

class igs404 : public igsCompound {
  IGS_ENTITY_CLASS(igs404)

  int number_of_views() const { return m_views.count(); }
  // The view at a current position; one without a view out of range.
  igsDrawingView const& get_view(int i) const { return m_views.get(i); }
  void set_view(int i, igsDrawingView const& view) { m_views.set(i, view); }
  void set_number_of_views(int n) { m_views.set_count(n); }
  int get_current_view_index(int original) const { return m_views.current(original); }
  int get_original_view_index(int current) const { return m_views.original(current); }
  void set_view_index(int original, int current) { m_views.set_index(original, current); }

  // The repair of the errors about bad views: drops those whose view is null, not a view or
  // has logged errors. The number dropped.
  int drop_bad_views();
  // What an error about the view read at `original` names for the repair order.
  int view_de_number(int original) const;

 protected:
  void set_index_lists();
  void unreference_children() override;

 private:
  int has_angles() const { return directory_entry().form_number() == 1; }

  igsDrawingViewList m_views;
};
