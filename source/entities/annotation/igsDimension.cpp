#include "entities/annotation/igsDimension.h"

#include "entities/annotation/igs212.h"
#include "entities/annotation/igs214.h"
#include "entities/annotation/igsAnnotationErrors.h"
#include "entities/annotation/igsWitnessLine.h"

KVU_DEFINE_TYPE(igsDimension, igsAnnotation)

igsObjectPtr const& igsDimension::reference_at(igsObjectPtrcoDynArr const& list, int i) {
  static igsObjectPtr const none;
  return i >= 0 && i < list.size() ? list[i] : none;
}

void igsDimension::set_index_list() const {
  m_leader_index.reset(m_leaders.size());
  m_witness_index.reset(m_witnesses.size());
}

namespace {

// Drops what the repair drops from the list, with the kind of reference that the list holds.
int drop(igsObjectPtrcoDynArr& list, igsIndexList& index, igsChildKind kind, igsDrop what) {
  auto sound = [kind](igsObjectPtr const& r) { return r && kind(*r) && !r->num_logged_errors(); };
  if (what == igsDrop::null) {
    igs_drop_members(list, index, [](igsObjectPtr const& r) { return r ? 1 : 0; });
    return list.size();
  }
  if (what == igsDrop::bad_if_any) {
    bool any = false;
    for (igsObjectPtr const& r : list) any = any || (r && !sound(r));
    if (!any) return list.size();
  }
  igs_drop_members(list, index, sound);
  return list.size();
}

} // namespace

int igsDimension::drop_leaders(igsDrop what) {
  return drop(m_leaders, m_leader_index, igs_kind_of<igs214>, what);
}

int igsDimension::drop_witnesses(igsDrop what) {
  return drop(m_witnesses, m_witness_index, igs_exactly<igsWitnessLine>, what);
}

int igs_dimension_drop_leaders(int key, igsDrop what) {
  igsDimension* dimension = igs_error_entity<igsDimension>(key);
  return dimension ? dimension->drop_leaders(what) : -1;
}

int igs_dimension_drop_witnesses(int key, igsDrop what) {
  igsDimension* dimension = igs_error_entity<igsDimension>(key);
  return dimension ? dimension->drop_witnesses(what) : -1;
}

void igsDimension::unreference_children() {
  igsObject::unreference_children();
  m_note.unreference();
  for (igsObjectPtr& leader : m_leaders) leader.unreference();
  for (igsObjectPtr& witness : m_witnesses) witness.unreference();
}

void igsDimension::read_leader(igsInStream& in, bool even_none) {
  int de_number = 0;
  in.read_integer(de_number);
  if (de_number || even_none) add_leader(igsObjectPtr(de_number));
}

void igsDimension::read_witness(igsInStream& in, bool even_none) {
  int de_number = 0;
  in.read_integer(de_number);
  if (de_number || even_none) add_witness(igsObjectPtr(de_number));
}

int igsDimension::read_leader_list(igsInStream& in) {
  int count = 0;
  in.read_integer(count);
  m_leader_count = count;
  return igs_read_counted_members(in, count, m_leaders,
                                  [&] { return igs_read_value<igsObjectPtr>(in); });
}

namespace {

void write_references(igsOutStream& out, igsObjectPtrcoDynArr const& list, int count) {
  for (int i = 0; i < count; ++i)
    igs_write_field(out, i < list.size() ? list[i] : igsObjectPtr());
}

} // namespace

void igsDimension::write_leaders_pd(igsOutStream& out, int count) const {
  write_references(out, m_leaders, count);
}

void igsDimension::write_witnesses_pd(igsOutStream& out, int count) const {
  write_references(out, m_witnesses, count);
}

int igsDimension::sound_leader(igsObjectPtr const& leader) {
  return leader && leader->typeof(igs214::type()) && leader->check();
}

int igsDimension::sound_witness(igsObjectPtr const& witness) {
  return witness && witness->isa(igsWitnessLine::type()) && witness->check();
}

void igsDimension::check_pd() const {
  set_index_list();
  igs_check_child(
      m_note, igs_exactly<igs212>, 0, [this] { raise_error<igsDimensionNullGeneralNotePointer>(); },
      [this] { raise_error<igsDimensionInvalidGeneralNotePointer>(); },
      [this] { raise_error<igsDimensionInvalidGeneralNotePointer>(); });
}

// The note is sound once its own repairs have cleared it; this repair changes nothing.
IGS_CHILD_OBJ(igsDimensionInvalidGeneralNotePointer, igsDimension,
              [](igsDimension const& d, auto const&) { return igs_target(d.general_note()); })
int igsDimensionInvalidGeneralNotePointer::fix() {
  igsDimension const* dimension = igs_error_entity<igsDimension>(key());
  if (!dimension) return 0;
  igsObjectPtr const& note = dimension->general_note();
  return note && note->isa(igs212::type()) && !note->num_logged_errors();
}
