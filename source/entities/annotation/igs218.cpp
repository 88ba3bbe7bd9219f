#include "entities/annotation/igs218.h"

#include "entities/annotation/igs214.h"
#include "entities/annotation/igsAnnotationErrors.h"
#include "entities/annotation/igsWitnessLine.h"

IGS_ENTITY_DEFINE(igs218, igsDimension, 218, 0, IGS_DE_ALL)

void igs218::set_supplemental_leader(igsObjectPtr const& leader) {
  m_supplemental = leader;
  directory_entry().set_form_number(1);
}

int igs218::promote_supplemental_leader() {
  add_leader(m_supplemental);
  m_supplemental = igsObjectPtr();
  return directory_entry().set_form_number(0);
}

void igs218::unreference_children() {
  igsDimension::unreference_children();
  m_supplemental.unreference();
}

// The one pointer is a witness line or a leader by what it names; a pointer to anything else
// is dropped.
int igs218::read_pd_data(igsInStream& in) {
  set_note(igs_read_value<igsObjectPtr>(in));
  igsObjectPtr one = igs_read_value<igsObjectPtr>(in);
  if (one && one->isa(igsWitnessLine::type()))
    add_witness(one);
  else if (one && one->isa(igs214::type()))
    add_leader(one);
  if (form_number() == 1) igs_read_field(in, m_supplemental);
  set_index_list();
  return 1;
}

// The one pointer is the witness line if there is one, else the leader; 0 with neither, so
// that a supplemental leader keeps its place.
void igs218::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, general_note(), number_of_witnesses() ? witness(0) : leader(0));
  if (form_number() == 1) igs_write_field(out, m_supplemental);
}

void igs218::print_pd_data(utOstream&) const {}

void igs218::check_pd() const {
  igsDimension::check_pd();
  if (number_of_leaders() && number_of_witnesses()) raise_error<igs218TooManyEntities>();
  if (number_of_leaders()) {
    if (!sound_leader(leader(0))) raise_error<igs218InvalidLeader>();
  } else if (number_of_witnesses()) {
    if (!sound_witness(witness(0))) raise_error<igs218InvalidWitnessLine>();
  } else {
    raise_error<igs218InsufficientData>();
  }
  if (form_number() != 1) return;
  if (!m_supplemental)
    raise_error<igs218NullSupplementalLeader>();
  else if (!m_supplemental->isa(igs214::type()) || !m_supplemental->check())
    raise_error<igs218InvalidSupplementalLeader>();
}

// Without a leader or witness line left, a supplemental leader takes the leader's place.
IGS_CHILD_OBJ(igs218InvalidLeader, igs218, (igs_leader_at<0>))
int igs218InvalidLeader::fix() {
  igs218* dimension = igs_error_entity<igs218>(key());
  if (!dimension) return 0;
  dimension->drop_leaders(igsDrop::bad_if_any);
  if (dimension->number_of_leaders() || dimension->number_of_witnesses()) return 1;
  if (dimension->form_number() != 1 || !dimension->supplemental_leader()) return 0;
  int result = dimension->promote_supplemental_leader();
  message("Warning : Changed form number of entity ig%d to 0 (from 1).\n", key());
  return result;
}

IGS_CHILD_OBJ(igs218InvalidWitnessLine, igs218, (igs_witness_at<0>))
int igs218InvalidWitnessLine::fix() {
  igs218* dimension = igs_error_entity<igs218>(key());
  if (!dimension) return 0;
  dimension->drop_witnesses(igsDrop::bad);
  return dimension->number_of_witnesses() || dimension->number_of_leaders();
}

// The supplemental leader's errors change nothing: settled once it is a sound leader, or
// outside form 1.
namespace {

int supplemental_settled(int key) {
  igs218 const* dimension = igs_error_entity<igs218>(key);
  if (!dimension) return 0;
  if (dimension->form_number() != 1) return 1;
  igsObjectPtr const& leader = dimension->supplemental_leader();
  return leader && leader->isa(igs214::type()) && !leader->num_logged_errors();
}

} // namespace

int igs218NullSupplementalLeader::fix() {
  return supplemental_settled(key());
}

IGS_CHILD_OBJ(igs218InvalidSupplementalLeader, igs218,
              [](igs218 const& d, auto const&) { return igs_target(d.supplemental_leader()); })
int igs218InvalidSupplementalLeader::fix() {
  return supplemental_settled(key());
}
