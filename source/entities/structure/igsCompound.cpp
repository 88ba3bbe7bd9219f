#include "entities/structure/igsCompound.h"

#include "core/igsObjectSystem.h"
#include "errors/igsErrorLog.h"

KVU_DEFINE_TYPE(igsCompound, igsObject)

void igsCompound::unreference_children() {
  igsObject::unreference_children();
  m_entities.unreference();
}

int igsCompound::read_entities(igsInStream& in, int count) {
  return m_entities.read(in, count, igs_read_reference);
}

void igsCompound::write_entities(igsOutStream& out) const {
  m_entities.write(out, igs_write_reference);
}

int igs_several_errors_of_kind(int de_number, kvuTypeInfo const& kind) {
  igsIndexedSectionLog& log = *igsObjectSystem::log().get_indexed_log(igsObjectLog);
  int left = log.num_errors(de_number);
  int count = 0;
  for (igsSimpleSectionLogIT it(&log); count + left > 1 && ++it;)
    if (auto* error = static_cast<igsIndexedError*>(it()); error->key() == de_number) {
      --left;
      if (error->typeof(kind)&& ++count > 1) return 1;
    }
  return 0;
}

int igsCompound::entity_de_number(int original) const {
  int current = get_current_index(original);
  return igs_member_de_number(de_number(), current, get_entity(current));
}

// The member is found once: its repairs come first, and the compound's repair only sees
// whether they settled it.
int igsCompoundEntityError::obj() {
  if (!cached_obj()) set_cached_obj(igs_member_obj(key(), index(), &igsCompound::entity_de_number));
  return cached_obj();
}

int igsCompoundEntityError::fix() {
  return igs_repair_members(key(), type(), &igsCompound::drop_bad_entities);
}
