#include "entities/structure/igs408.h"

#include "entities/structure/igs308.h"
#include "entities/structure/igsStructureErrors.h"

IGS_ENTITY_DEFINE(igs408, igsDefinition, 408, 0, igs_de_without_matrix)

igs308* igs408::placed_definition() const {
  if (!m_subfigure || !m_subfigure->typeof(igs308::type())) return nullptr;
  return static_cast<igs308*>(m_subfigure.operator->());
}

void igs408::create_placement_transform() {
  if (m_scale <= 0.0 || m_origin.invalid()) return;
  giXform3 scale(giXformScaleTag, m_scale, m_scale, m_scale);
  giXform3 translation(giXformTranslateTag, m_origin.x(), m_origin.y(), m_origin.z());
  m_placement.become(giXformProductTag, scale, translation);
}

// A blank scale reads as 0, which leaves the identity placement.
int igs408::read_pd_data(igsInStream& in) {
  igsObjectPtr subfigure;
  giPoint3 origin;
  double scale = 0.0;
  igs_read_fields(in, subfigure, origin, scale);
  m_subfigure = subfigure;
  m_origin = origin;
  m_scale = scale;
  create_placement_transform();
  return 1;
}

void igs408::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_subfigure, m_origin, m_scale);
}

void igs408::print_pd_data(utOstream&) const {}

// A scale of exactly 0 passes.
void igs408::check_pd() const {
  if (!m_subfigure)
    raise_error<igs408NullSubfigure>();
  else if (!m_subfigure->isa(igs308::type()))
    raise_error<igs408InvalidSubfigure>();
  if (m_scale < 0.0) raise_error<igs408InvalidScale>();
  if (m_origin.invalid()) raise_error<igs408InvalidOrigin>();
}

void igs408::unreference_children() {
  igsObject::unreference_children();
  m_subfigure.unreference();
}
