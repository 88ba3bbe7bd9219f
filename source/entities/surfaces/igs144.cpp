#include "entities/surfaces/igs144.h"

#include "entities/surfaces/igs142.h"
#include "entities/surfaces/igsTrimmedErrors.h"

IGS_ENTITY_DEFINE(igs144, igsObject, 144, 0, IGS_DE_ALL | IGS_DE_ENTITY_USE)

int igs144::set_inner_boundaries(igsObjectPtrcoDynArr const& boundaries) {
  m_inner.clear();
  int result = 1;
  for (int i = 0; i < boundaries.size(); ++i)
    if (!set_inner_boundary(i, boundaries[i])) result = 0;
  return result;
}

void igs144::unreference_children() {
  igsOnSurface::unreference_children();
  m_outer.unreference();
  for (igsObjectPtr& boundary : m_inner) boundary.unreference();
}

// The count of the inner boundaries stands before the outer boundary.
int igs144::read_pd_data(igsInStream& in) {
  int count = 0;
  igs_read_fields(in, m_surface, m_outer_flag, count);
  if (count < 0) return raise_error<igs144BadNumInnerBounds>(count), 0;
  igs_read_field(in, m_outer);
  return igs_read_references(in, count, m_inner);
}

void igs144::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_surface, m_outer_flag, m_inner.size(), m_outer);
  for (igsObjectPtr const& boundary : m_inner) igs_write_field(out, boundary);
}

static char const* const outer_words[] = {"(True)", "(False)"};

void igs144::print_pd_data(utOstream& out) const {
  igs_print_reference(out, "BasisSurface", m_surface);
  igs_print_enumerated(out, "OuterBoundaryIsSurfaceBoundary = ", m_outer_flag, outer_words);
  out << "NumberOfInnerBoundaries = " << m_inner.size() << "\n";
  igs_print_reference(out, "OuterBoundary", m_outer);
  igs_print_references(out, "InnerBoundary", m_inner);
}

// A missing outer boundary is no fault in itself, whatever the flag says; each boundary must
// lie on the basis surface itself.
void igs144::check_pd() const {
  if (!igs_flag_valid(m_outer_flag)) raise_error<igs144InvalidOuterBoundaryFlag>(m_outer_flag);
  check_basis_surface<igs144NullSurfacePtr, igs144InvalidSurfaceType, igs144InvalidSurfaceData>();
  if (m_outer) {
    // Not null here, so the null error handed over never comes.
    check_reference<igs144NullSurfacePtr, igs144InvalidOuterBoundType, igs144InvalidOuterBoundData>(
        m_outer, igs_exactly<igs142>);
    if (igs_off_surface<igs142>(m_outer, m_surface)) raise_error<igs144OuterBoundSurfaceMismatch>();
  }
  for (int i = 0; i < m_inner.size(); ++i) {
    check_reference<igs144NullInnerBoundPtr, igs142InvalidInnerBoundType,
                    igs144InvalidInnerBoundData>(m_inner[i], igs_exactly<igs142>, i);
    if (igs_off_surface<igs142>(m_inner[i], m_surface))
      raise_error<igs144InnerBoundSurfaceMismatch>(i);
  }
  if (!m_outer && m_inner.empty()) raise_error<igs144NoBoundaries>();
}

// --- Repairs -----------------------------------------------------------------------------

IGS_CHILD_REPAIR(igs144InvalidSurfaceData, igs144, igs_child_at<&igs144::basis_surface>)
IGS_CHILD_REPAIR(igs144InvalidOuterBoundData, igs144, igs_child_at<&igs144::outer_boundary>)

static igsObject const* named_boundary(igs144 const& surface,
                                       igs144InvalidInnerBoundData const& e) {
  igsObjectPtr boundary;
  return surface.inner_boundary(e.index(), boundary) ? igs_target(boundary) : nullptr;
}
IGS_CHILD_REPAIR(igs144InvalidInnerBoundData, igs144, named_boundary)

// The basis surface that the outer boundary (when it is a curve on a surface) and every inner
// boundary lie on, if they agree on one: an inner boundary that is missing or of another kind
// agrees with none.
int igs144NullSurfacePtr::fix() {
  igs144* surface = igs_error_entity<igs144>(key());
  if (!surface) return 0;
  igsObjectPtrcoDynArr candidates;
  int n = surface->number_of_inner_boundaries();
  if (!candidates.reserve(n + 1)) return 0;
  if (igsObjectPtr const& outer = surface->outer_boundary(); outer && outer->typeof(igs142::type()))
    candidates.append(igs_surface_of<igs142>(outer));
  for (int i = 0; i < n; ++i) {
    igsObjectPtr boundary;
    surface->inner_boundary(i, boundary);
    candidates.append(igs_surface_of<igs142>(boundary));
  }
  igsObjectPtr agreed = igs_agreed_surface(candidates);
  return agreed && surface->set_basis_surface(agreed);
}

// Every missing inner boundary goes at once, the others closing up in their order; an error
// of a later place finds none left and says so.
int igs144NullInnerBoundPtr::fix() {
  igs144* surface = igs_error_entity<igs144>(key());
  if (!surface) return 0;
  int n = surface->number_of_inner_boundaries();
  igsObjectPtrcoDynArr kept;
  if (n && !kept.reserve(n)) return 0;
  for (int i = 0; i < n; ++i) {
    igsObjectPtr boundary;
    surface->inner_boundary(i, boundary);
    if (boundary) kept.append(boundary);
  }
  surface->set_inner_boundaries(kept);
  message("Warning : %d invalid inner boundary(s) were reported for entity ig%d.\nThe invalid "
          "boundary(s) have been ignored.\n",
          n - kept.size(), key());
  return 1;
}
