// The base of the entities that own a list of other entities: groups, views visible lists,
// drawings and subfigure definitions. Beside the list it keeps where each member read at a
// position has gone, so that the errors, which name positions as read, stay true while
// repairs drop members.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsIndexList.h"

#include <vector>

// A counted list of members as an entity holds it: the count as it was read or set (a
// negative or unset count stays as it came and leaves the list empty), the members, and the
// index list from positions as read to current positions. Members are references or values
// holding one (a drawing's views); `igs_member_reference` gives that reference and
// `igs_unreference_member` gives it up.
inline igsObjectPtr const& igs_member_reference(igsObjectPtr const& member) {
  return member;
}
inline void igs_unreference_member(igsObjectPtr& member) {
  member.unreference();
}

template <class Member> class igsMemberList {
 public:
  int count() const { return m_count; }
  int size() const { return m_members.size(); }
  // The member at the current position; a default member out of range.
  Member const& get(int i) const {
    static Member const none{};
    return i >= 0 && i < m_members.size() ? m_members[i] : none;
  }
  // Stores the member at a current position in range; 0 elsewhere.
  int set(int i, Member const& member) {
    if (i < 0 || i >= m_members.size()) return 0;
    m_members[i] = member;
    return 1;
  }
  // Stores the count; a count not below 0 makes the list that many default members, read at
  // their own positions. 0 when the list could not be made, and nothing changed.
  int set_count(int n) {
    if (n >= 0) {
      coDynArr<Member> members;
      if (!members.expand(n)) return 0;
      m_members = std::move(members);
      m_index.reset(n);
    }
    m_count = n;
    return 1;
  }

  // The index list: identity over the members, for a count not below 0.
  void set_index_list() {
    if (m_count >= 0) m_index.reset(m_members.size());
  }
  int current(int original) const { return m_index.current(original); }
  int original(int current) const { return m_index.original(current); }
  void set_index(int original, int current) { m_index.set(original, current); }

  // Reads `count` members with `read_one(in, member)` while the record lasts. A record that
  // ends before its count leaves the members it lacks null, which the check reports, as far
  // as such a count is believable (igs_max_initial_reserve); a wild count (often a damaged
  // one) costs neither time nor memory, and the list holds what there was. A negative count
  // reads nothing. 0 if the members could not be stored.
  template <class ReadOne> int read(igsInStream& in, int count, ReadOne const& read_one) {
    m_count = count;
    if (!igs_read_counted_members(in, count, m_members, [&] {
          Member member;
          read_one(in, member);
          return member;
        }))
      return 0;
    if (count > 0) m_count = m_members.size();
    set_index_list();
    return 1;
  }
  // The members that a write gives: those whose reference names an entity. A file written
  // never points at nothing; repairs drop such members before, and a host that left one gets
  // a list without it.
  int written_count() const {
    int n = 0;
    for (Member const& member : m_members) n += present(member);
    return n;
  }
  template <class WriteOne> void write(igsOutStream& out, WriteOne const& write_one) const {
    for (Member const& member : m_members)
      if (present(member)) write_one(out, member);
  }

  // Keeps the members for which `keep(member)` is true, in order, and records where each went;
  // the count follows. The number dropped.
  template <class Keep> int drop(Keep const& keep) {
    int dropped = igs_drop_members(m_members, m_index, keep);
    if (dropped) m_count = m_members.size();
    return dropped;
  }

  // Gives up every member's reference (the entities that only this list held go with it).
  void unreference() {
    for (Member& member : m_members) igs_unreference_member(member);
  }

  coDynArr<Member> const& members() const { return m_members; }

 private:
  static int present(Member const& member) { return igs_member_reference(member) ? 1 : 0; }

  int m_count = igs_unset_int;
  coDynArr<Member> m_members;
  igsIndexList m_index;
};

using igsEntityList = igsMemberList<igsObjectPtr>;

// A pointer of a list, read and written.
inline void igs_read_reference(igsInStream& in, igsObjectPtr& reference) {
  igs_read_field(in, reference);
}
inline void igs_write_reference(igsOutStream& out, igsObjectPtr const& reference) {
  igs_write_field(out, reference);
}

// Whether a member is worth keeping: its entity exists and has no logged errors.
inline int igs_sound_member(igsObjectPtr const& member) {
  return member && member->num_logged_errors() == 0;
}

class igsCompound : public igsObject {
  KVU_DECLARE_TYPE()
 public:
  int number_of_entities() const { return m_entities.count(); }
  // The entity at a current position; a null reference out of range.
  igsObjectPtr const& get_entity(int i) const { return m_entities.get(i); }
  void set_entity(int i, igsObjectPtr const& entity) { m_entities.set(i, entity); }
  // Stores the number; one not below 0 makes the list that many null references, each read
  // at its own position.
  void set_number_of_entities(int n) { m_entities.set_count(n); }
  void set_index_list() { m_entities.set_index_list(); }
  // Where the entity read at a position is now; -1 once it has been dropped.
  int get_current_index(int original) const { return m_entities.current(original); }
  // The position as read of the entity now at a position; -1 if none.
  int get_original_index(int current) const { return m_entities.original(current); }
  void set_index(int original, int current) { m_entities.set_index(original, current); }

  // Keeps the entities for which `keep(entity)` is true, in order, and records where each
  // went. The number dropped.
  template <class Keep> int drop_entities(Keep const& keep) { return m_entities.drop(keep); }
  // The repair of the errors about bad entities: drops those that are null or have logged
  // errors. The number dropped.
  int drop_bad_entities() { return drop_entities(igs_sound_member); }
  // What an error about the entity read at `original` names for the repair order
  // (igs_member_de_number).
  int entity_de_number(int original) const;

  // Operations for a host (source/operations/igsCompoundFlattening.cpp). Each solid and shell
  // among the members gives way to the faces of its shells; each group among the members to
  // its members, flattened first. The solids, shells and groups stay in the file. A group that
  // holds itself, through any depth, stays as a member where it comes back.
  void explode_solids();
  void flatten_groups();
  // The curves on surfaces under the compound: members, members of groups and the members of
  // the definitions that subfigure instances place, through any depth; each compound counted
  // once on a path.
  int count_142() const;

 protected:
  igsCompound() = default;
  // Appends the faces of the shell (if it is one) to the list, each told its orientation in
  // the shell and the DE number of its solid.
  static void add_514_faces(igsObjectPtr const& shell, igsObjectPtrcoDynArr& list, int solid);
  void unreference_children() override;

  // Reads the entity pointers of the list.
  int read_entities(igsInStream& in, int count);
  // Writes the entity pointers of the list, without the count.
  void write_entities(igsOutStream& out) const;
  // Raises Null(i) for a null entity and Bad(i) for one whose check fails, i being the
  // position as read.
  template <class Null, class Bad> void check_entities() const {
    for (int i = 0; i < m_entities.size(); ++i) {
      igsObjectPtr const& entity = m_entities.get(i);
      if (!entity)
        raise_error<Null>(m_entities.original(i));
      else if (!entity->check())
        raise_error<Bad>(m_entities.original(i));
    }
  }

  igsEntityList m_entities;

 private:
  // Replaces the list by the new members.
  void set_entities(igsObjectPtrcoDynArr const& members);
};

// Whether at least two active object errors of the class `kind`, or derived from it, stand
// under the DE number.
int igs_several_errors_of_kind(int de_number, kvuTypeInfo const& kind);

// What an error about a member names for the repair order: the member's DE number, the
// owner's (`key`) when the member is null, 0 when the member has been dropped (`current`
// below 0).
inline int igs_member_de_number(int key, int current, igsObjectPtr const& member) {
  if (current < 0) return 0;
  return member ? member->de_number() : key;
}

// The `obj` of an error about the member read at `original` of a list of the Owner under the
// key, which `de_number_of` gives; the key itself when the key names no such owner.
template <class Owner>
int igs_member_obj(int key, int original, int (Owner::*de_number_of)(int) const) {
  Owner const* owner = igs_error_entity<Owner>(key);
  return owner ? (owner->*de_number_of)(original) : key;
}

// The `fix` shared by the errors about bad members of one list of an Owner: the errors of the
// `family` all come here, and the last of them drops every bad member with `drop`, since the
// members' own repairs have run by then. The members dropped stay in the file. 0 when the key
// names no such owner.
template <class Owner>
int igs_repair_members(int key, kvuTypeInfo const& family, int (Owner::*drop)()) {
  Owner* owner = igs_error_entity<Owner>(key);
  if (!owner) return 0;
  if (!igs_several_errors_of_kind(key, family)) (owner->*drop)();
  return 1;
}
