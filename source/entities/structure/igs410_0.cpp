#include "entities/structure/igs410_0.h"

#include "sections/igsEntityKind.h"

#include <cmath>

IGS_ENTITY_DEFINE(igs410_0, igsDefinition, 410, 0, igs_de_without_matrix)

int igs410_0::read_pd_data(igsInStream& in) {
  int number = 0;
  double scale = 0.0;
  igs_read_fields(in, number, scale);
  m_view_number = number;
  m_scale_factor = scale;
  for (igsObjectPtr& plane : m_planes) igs_read_field(in, plane);
  return 1;
}

void igs410_0::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_view_number, m_scale_factor);
  for (igsObjectPtr const& plane : m_planes) igs_write_field(out, plane);
}

void igs410_0::print_pd_data(utOstream& out) const {
  out << "View number = ";
  if (igs_unset(m_view_number))
    out << "(Undefined)";
  else
    out << m_view_number;
  out << "\nScale factor = ";
  if (m_scale_factor == 0.0)
    out << "(Invalid)";
  else
    out << m_scale_factor;
  out << "\n";
#define IGS_410_0_PRINT_PLANE(Plane, plane)                                                        \
  igs_print_reference(out, #Plane " plane ", m_planes[Plane]);
  IGS_410_0_PLANES(IGS_410_0_PRINT_PLANE)
#undef IGS_410_0_PRINT_PLANE
}

// Clipping planes are planes (type 108), whose class stands beside this one; a plane of
// another kind is still checked.
void igs410_0::check_pd() const {
  if (m_scale_factor < 0.0)
    raise_error<igs410_0NegativeScaleFactor>();
  else if (m_scale_factor == 0.0)
    raise_error<igs410_0ZeroScaleFactor>();
#define IGS_410_0_CHECK_PLANE(Side, side)                                                          \
  if (igsObjectPtr const& p = m_planes[Side]) {                                                    \
    if (!igs_isa_class(p, "igs108")) raise_error<igs410_0Wrong##Side##PlaneType>();                \
    if (!p->check()) raise_error<igs410_0Invalid##Side##Plane>();                                  \
  }
  IGS_410_0_PLANES(IGS_410_0_CHECK_PLANE)
#undef IGS_410_0_CHECK_PLANE
}

void igs410_0::unreference_children() {
  igsObject::unreference_children();
  for (igsObjectPtr& plane : m_planes) plane.unreference();
}

int igs410_0NegativeScaleFactor::fix() {
  igs410_0* view = igs_error_entity<igs410_0>(key());
  return view && view->set_scale_factor(std::fabs(view->scale_factor()));
}

int igs410_0ZeroScaleFactor::fix() {
  igs410_0* view = igs_error_entity<igs410_0>(key());
  return view && view->set_scale_factor(1.0);
}

// A plane of the wrong kind goes; a plane that failed its check goes unless its own repairs
// settled it, and is named so that they come first.
#define IGS_410_0_PLANE_REPAIRS(Side, side)                                                        \
  int igs410_0Wrong##Side##PlaneType::fix() {                                                      \
    igs410_0* view = igs_error_entity<igs410_0>(key());                                            \
    return view && view->set_##side##_plane(igsObjectPtr());                                       \
  }                                                                                                \
  int igs410_0Invalid##Side##Plane::obj() {                                                        \
    if (!cached_obj())                                                                             \
      if (igs410_0* view = igs_error_entity<igs410_0>(key()); view && view->side##_plane())        \
        set_cached_obj(view->side##_plane()->de_number());                                         \
    return cached_obj();                                                                           \
  }                                                                                                \
  int igs410_0Invalid##Side##Plane::fix() {                                                        \
    igs410_0* view = igs_error_entity<igs410_0>(key());                                            \
    if (!view) return 0;                                                                           \
    if (igsObjectPtr const& p = view->side##_plane(); p && p->num_logged_errors() == 0) return 1;  \
    return view->set_##side##_plane(igsObjectPtr());                                               \
  }
IGS_410_0_PLANES(IGS_410_0_PLANE_REPAIRS)
#undef IGS_410_0_PLANE_REPAIRS

// Each of the three faults of the view number sets the number proposed in its place.
#define IGS_410_0_NUMBER_REPAIR(Name)                                                              \
  int Name::fix() {                                                                                \
    igs410_0* view = igs_error_entity<igs410_0>(key());                                            \
    return view && view->set_view_number(proposed_number());                                       \
  }
IGS_410_0_NUMBER_REPAIR(igs410_0NoViewNumberDefined)
IGS_410_0_NUMBER_REPAIR(igs410_0InvalidViewNumber)
IGS_410_0_NUMBER_REPAIR(igs410_0RepeatedView)
#undef IGS_410_0_NUMBER_REPAIR
