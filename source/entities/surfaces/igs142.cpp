#include "entities/surfaces/igs142.h"

#include "entities/surfaces/igs108.h"
#include "entities/surfaces/igsTrimmedErrors.h"

IGS_ENTITY_DEFINE_USE(igs142, igsObject, 142, 0, IGS_DE_ALL | IGS_DE_ENTITY_USE, 5)

void igs142::unreference_children() {
  igsOnSurface::unreference_children();
  m_curve_2d.unreference();
  m_curve_3d.unreference();
}

int igs142::read_pd_data(igsInStream& in) {
  igs_read_fields(in, m_creation, m_surface, m_curve_2d, m_curve_3d, m_preferred);
  return 1;
}

void igs142::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_creation, m_surface, m_curve_2d, m_curve_3d, m_preferred);
}

static char const* const creation_words[] = {"(Unspecified)", "(Projection)", "(Intersection)",
                                             "(Isoparametric)"};
static char const* const preferred_words[] = {"(Unspecified)", "(Parametric)", "(ModelSpace)",
                                              "(Both)"};

void igs142::print_pd_data(utOstream& out) const {
  igs_print_enumerated(out, "CurveCreationMethod = ", m_creation, creation_words);
  igs_print_reference(out, "BasisSurface", m_surface);
  igs_print_reference(out, "ParameterCurve", m_curve_2d);
  igs_print_reference(out, "ModelSpaceCurve", m_curve_3d);
  igs_print_enumerated(out, "PreferredRepresentation = ", m_preferred, preferred_words);
}

// Either curve may be missing, not both (so the null error handed to a curve's check never
// comes). A curve in parameter space on a plane, which has no
// parameters, is a fault whatever the curve is; the preference is not held to the curves.
void igs142::check_pd() const {
  if (!igs_enumerated_valid(m_creation, 4)) raise_error<igs142InvalidCurveCreation>(m_creation);
  if (!igs_enumerated_valid(m_preferred, 4))
    raise_error<igs142InvalidPrefRepresentation>(m_preferred);
  check_basis_surface<igs142NullSurfacePtr, igs142InvalidSurfaceType, igs142InvalidSurfaceData>();
  if (m_curve_2d) {
    check_reference<igs142NullSurfacePtr, igs142InvalidCurve2dType, igs142InvalidCurve2dData>(
        m_curve_2d, igs_kind_of<igsCurve>);
    if (m_surface && m_surface->isa(igs108::type()))
      raise_error<igs142Trim2DNonParametricSurface>();
  }
  if (m_curve_3d)
    check_reference<igs142NullSurfacePtr, igs142InvalidCurve3dType, igs142InvalidCurve3dData>(
        m_curve_3d, igs_kind_of<igsCurve>);
  if (!m_curve_2d && !m_curve_3d) raise_error<igs142NoTrimCurves>();
}

// --- Repairs -----------------------------------------------------------------------------

IGS_CHILD_REPAIR(igs142InvalidSurfaceData, igs142, igs_child_at<&igs142::basis_surface>)
IGS_CHILD_OBJ(igs142InvalidCurve2dData, igs142, igs_child_at<&igs142::curve_2d>)
IGS_CHILD_OBJ(igs142InvalidCurve3dData, igs142, igs_child_at<&igs142::curve_3d>)

int igs142InvalidCurveCreation::fix() {
  igs142* curve = igs_error_entity<igs142>(key());
  return curve && (curve->set_curve_creation(igs142CreationUnspecified), 1);
}

int igs142InvalidPrefRepresentation::fix() {
  igs142* curve = igs_error_entity<igs142>(key());
  return curve && (curve->set_preferred_representation(igs142PreferUnspecified), 1);
}

// The curve in parameter space (`two_d`) or in model space, and the other one.
static void sides(igs142 const& curve, bool two_d, igsObjectPtr& bad, igsObjectPtr& other) {
  bad = two_d ? curve.curve_2d() : curve.curve_3d();
  other = two_d ? curve.curve_3d() : curve.curve_2d();
}
static void drop(igs142& curve, bool two_d) {
  if (two_d)
    curve.set_curve_2d(igsObjectPtr());
  else
    curve.set_curve_3d(igsObjectPtr());
}

// A curve of the wrong kind that converts to a curve is replaced by it; else it is given up
// when the other curve is there and sound, and the preference turns to that other side.
static int replace_or_give_up(int key, bool two_d) {
  if (two_d ? igs_replace_child_by_curve(key, &igs142::curve_2d, &igs142::set_curve_2d)
            : igs_replace_child_by_curve(key, &igs142::curve_3d, &igs142::set_curve_3d))
    return 1;
  igs142* curve = igs_error_entity<igs142>(key);
  if (!curve) return 0;
  igsObjectPtr bad, other;
  sides(*curve, two_d, bad, other);
  if (!other || !other->check()) return 0;
  drop(*curve, two_d);
  curve->set_preferred_representation(two_d ? igs142PreferModelSpace : igs142PreferParametric);
  return 1;
}

int igs142InvalidCurve2dType::fix() {
  return replace_or_give_up(key(), true);
}
int igs142InvalidCurve3dType::fix() {
  return replace_or_give_up(key(), false);
}

// Runs after the curve's own repairs: a curve that they cleared stays; one that still has
// errors is given up unless the other one has errors too. The 142 may be left with no curve,
// which its next check reports.
static int give_up(int key, bool two_d) {
  igs142* curve = igs_error_entity<igs142>(key);
  if (!curve) return 0;
  igsObjectPtr bad, other;
  sides(*curve, two_d, bad, other);
  if (!bad || !bad->num_logged_errors()) return 1;
  if (other && other->num_logged_errors()) return 0;
  drop(*curve, two_d);
  return 1;
}

int igs142InvalidCurve2dData::fix() {
  return give_up(key(), true);
}
int igs142InvalidCurve3dData::fix() {
  return give_up(key(), false);
}
