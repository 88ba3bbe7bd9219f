#include "entities/structure/igs402_16.h"

#include "entities/structure/igs124.h"
#include "entities/structure/igsStructureErrors.h"

IGS_ENTITY_DEFINE(igs402_16, igsGroup, 402, 16, igs_de_without_matrix)

int igs402_16::set_identity_transform() {
  auto* matrix = new (std::nothrow) igs124;
  if (!matrix) return 0;
  double const identity[4][4] = {
      {1.0, 0.0, 0.0, 0.0}, {0.0, 1.0, 0.0, 0.0}, {0.0, 0.0, 1.0, 0.0}, {0.0, 0.0, 0.0, 1.0}};
  matrix->set_matrix(identity);
  m_transform = igsObjectPtr(matrix);
  return 1;
}

// The counts come first, then the one transformation, then the entities.
int igs402_16::read_pd_data(igsInStream& in) {
  int transforms = 0, count = 0;
  igsObjectPtr transform;
  igs_read_fields(in, transforms, count, transform);
  m_number_of_transforms = transforms;
  m_transform = transform;
  return read_entities(in, count);
}

void igs402_16::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_number_of_transforms, m_entities.written_count(), m_transform);
  write_entities(out);
}

void igs402_16::print_pd_data(utOstream&) const {}

void igs402_16::check_pd() const {
  if (m_number_of_transforms != 1) raise_error<igs402_16InvalidTransformSize>();
  if (!m_transform)
    raise_error<igs402_16NullTransformPointer>();
  else if (!m_transform->check())
    raise_error<igs402_16InvalidTransformPointer>();
  igsGroup::check_pd();
}

int igs402_16InvalidTransformSize::fix() {
  igs402_16* group = igs_error_entity<igs402_16>(key());
  if (!group) return 0;
  group->set_number_of_transforms(1);
  return 1;
}

int igs402_16NullTransformPointer::fix() {
  igs402_16* group = igs_error_entity<igs402_16>(key());
  return group && group->set_identity_transform();
}

int igs402_16InvalidTransformPointer::obj() {
  if (!cached_obj())
    if (igs402_16* group = igs_error_entity<igs402_16>(key()); group && group->get_transform())
      set_cached_obj(group->get_transform()->de_number());
  return cached_obj();
}

// A transformation that its own repairs settled stays; one still bad gives way to the
// identity.
int igs402_16InvalidTransformPointer::fix() {
  igs402_16* group = igs_error_entity<igs402_16>(key());
  if (!group) return 0;
  igsObjectPtr const& transform = group->get_transform();
  if (transform && transform->num_logged_errors() == 0) return 1;
  return group->set_identity_transform();
}
