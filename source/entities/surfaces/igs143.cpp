#include "entities/surfaces/igs143.h"

#include "entities/surfaces/igs141.h"
#include "entities/surfaces/igsTrimmedErrors.h"

IGS_ENTITY_DEFINE(igs143, igsObject, 143, 0, IGS_DE_ALL | IGS_DE_ENTITY_USE)

void igs143::unreference_children() {
  igsOnSurface::unreference_children();
  for (igsObjectPtr& boundary : m_boundaries) boundary.unreference();
}

int igs143::read_pd_data(igsInStream& in) {
  igs_read_fields(in, m_representation, m_surface);
  return igs_read_references(in, m_boundaries,
                             [this](int count) { raise_error<igs143BadNumBoundaries>(count); });
}

void igs143::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_representation, m_surface);
  igs_write_references(out, m_boundaries);
}

static char const* const representation_words[] = {"(ModelSpaceCurvesOnly)", "(Both)"};

void igs143::print_pd_data(utOstream& out) const {
  igs_print_enumerated(out, "BoundedSurfaceRep = ", m_representation, representation_words);
  igs_print_reference(out, "BasisSurface", m_surface);
  out << "NumberOfBoundaries = " << m_boundaries.size() << "\n";
  igs_print_references(out, "Boundary", m_boundaries);
}

// Each boundary must lie on the basis surface itself; the representations of the boundaries
// are not held to the surface's.
void igs143::check_pd() const {
  if (!igs_flag_valid(m_representation))
    raise_error<igs143InvalidSurfaceRepresentation>(m_representation);
  check_basis_surface<igs143NullSurfacePtr, igs143InvalidSurfaceType, igs143InvalidSurfaceData>();
  if (m_boundaries.empty()) raise_error<igs143NoBoundaries>();
  for (int i = 0; i < m_boundaries.size(); ++i) {
    igsObjectPtr const& boundary = m_boundaries[i];
    check_reference<igs143NullBoundaryPtr, igs143InvalidBoundaryType, igs143InvalidBoundaryData>(
        boundary, igs_exactly<igs141>, i);
    if (igs_off_surface<igs141>(boundary, m_surface)) raise_error<igs143SurfacePointerMismatch>(i);
  }
}

// --- Repairs -----------------------------------------------------------------------------

IGS_CHILD_REPAIR(igs143InvalidSurfaceData, igs143, igs_child_at<&igs143::basis_surface>)

static igsObject const* named_boundary(igs143 const& surface, igs143InvalidBoundaryData const& e) {
  igsObjectPtr boundary;
  return surface.boundary(e.index(), boundary) ? igs_target(boundary) : nullptr;
}
IGS_CHILD_REPAIR(igs143InvalidBoundaryData, igs143, named_boundary)

// The basis surface that all the boundaries lie on, if they agree on one.
int igs143NullSurfacePtr::fix() {
  igs143* surface = igs_error_entity<igs143>(key());
  if (!surface) return 0;
  igsObjectPtrcoDynArr candidates;
  int n = surface->number_of_boundaries();
  if (n && !candidates.reserve(n)) return 0;
  for (int i = 0; i < n; ++i) {
    igsObjectPtr boundary;
    surface->boundary(i, boundary);
    candidates.append(igs_surface_of<igs141>(boundary));
  }
  igsObjectPtr agreed = igs_agreed_surface(candidates);
  return agreed && surface->set_basis_surface(agreed);
}
