// The base of the dimensions, flag notes, general labels and general symbols: a general note
// with the leaders and witness lines that tie it to the geometry. The classes differ in their
// own values, the order of their parameters and what they check.
//
// A leader or witness line that stays bad after its own repairs is dropped from its list; the
// index lists keep the positions that errors name (positions as read, or as a check found
// them) meaningful while references go.
#pragma once

#include "entities/igsChildCheck.h"
#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"
#include "entities/igsIndexList.h"
#include "support/coNames.h"

// What the repair of an error of a leader or witness line drops from its list.
enum class igsDrop {
  bad_if_any, // if one reference is of the wrong kind or has logged errors: those, and the null
  bad,        // the same, whether or not there is one
  null        // the null references
};

class igsDimension : public igsAnnotation {
  KVU_DECLARE_TYPE()
 public:
  igsObjectPtr const& general_note() const { return m_note; }
  void set_note(igsObjectPtr const& note) { m_note = note; }

  int number_of_leaders() const { return m_leaders.size(); }
  // The leader at a position; a null reference out of range.
  igsObjectPtr const& leader(int i) const { return reference_at(m_leaders, i); }
  // Appends the leader, null or not; 0 when the list could not grow.
  int add_leader(igsObjectPtr const& leader) { return m_leaders.append(leader); }
  int number_of_witnesses() const { return m_witnesses.size(); }
  igsObjectPtr const& witness(int i) const { return reference_at(m_witnesses, i); }
  int add_witness(igsObjectPtr const& witness) { return m_witnesses.append(witness); }

  // Where the reference named at a position is now; -1 once it has been dropped.
  int get_leader_index(int original) const { return m_leader_index.current(original); }
  void set_leader_index(int original, int current) { m_leader_index.set(original, current); }
  int get_witness_index(int original) const { return m_witness_index.current(original); }
  void set_witness_index(int original, int current) { m_witness_index.set(original, current); }
  // Makes the index lists the identity over the references present. A check names the
  // references where they stand, so it starts them afresh too.
  virtual void set_index_list() const;

  // The repairs of the errors of a leader or witness line: drop what `what` says from the list
  // and record where the others went. The number of references left.
  int drop_leaders(igsDrop what);
  int drop_witnesses(igsDrop what);

 protected:
  igsDimension() = default;

  // The general note: null, or no sound general note.
  void check_pd() const override;
  void unreference_children() override;

  // Reads a pointer and adds its reference; a pointer of 0 only when `even_none`.
  void read_leader(igsInStream& in, bool even_none);
  void read_witness(igsInStream& in, bool even_none);
  // Two leaders, a pointer of 0 standing as a null leader; two witness lines, where given.
  void read_leader_pair(igsInStream& in) {
    read_leader(in, true);
    read_leader(in, true);
  }
  void read_witness_pair(igsInStream& in) {
    read_witness(in, false);
    read_witness(in, false);
  }
  // Reads a count and that many leaders; a negative count stays for the check, as
  // leader_count() gives it.
  int read_leader_list(igsInStream& in);
  int leader_count() const { return m_leader_count < 0 ? m_leader_count : number_of_leaders(); }
  // The DE numbers of the first `count` references (0 for a null one), and 0 for each of the
  // count that the list does not fill.
  void write_leaders_pd(igsOutStream& out, int count) const;
  void write_witnesses_pd(igsOutStream& out, int count) const;

  // Whether the reference is a leader, or exactly a witness line, that checks clean.
  static int sound_leader(igsObjectPtr const& leader);
  static int sound_witness(igsObjectPtr const& witness);
  // Both of two leaders: Number when either is null, else Invalid(i) for each that is not
  // sound. 1 when both are there.
  template <class Number, class Invalid> int check_two_leaders() const {
    if (!leader(0) || !leader(1)) {
      this->raise_error<Number>();
      return 0;
    }
    for (int i = 0; i < 2; ++i)
      if (!sound_leader(leader(i))) this->raise_error<Invalid>(i);
    return 1;
  }
  // Every leader: Null(i) when null, Invalid(i) when not sound.
  template <class Null, class Invalid> void check_leaders() const {
    for (int i = 0; i < number_of_leaders(); ++i)
      if (!leader(i))
        this->raise_error<Null>(i);
      else if (!sound_leader(leader(i)))
        this->raise_error<Invalid>(i);
  }
  // Every witness line, the same way.
  template <class Null, class Invalid> void check_witnesses() const {
    for (int i = 0; i < number_of_witnesses(); ++i)
      if (!witness(i))
        this->raise_error<Null>(i);
      else if (!sound_witness(witness(i)))
        this->raise_error<Invalid>(i);
  }

 private:
  static igsObjectPtr const& reference_at(igsObjectPtrcoDynArr const& list, int i);

  igsObjectPtr m_note;
  igsObjectPtrcoDynArr m_leaders;
  igsObjectPtrcoDynArr m_witnesses;
  mutable igsIndexList m_leader_index;
  mutable igsIndexList m_witness_index;
  int m_leader_count = 0;
};

// The leader or witness line of the dimension that an error names by its position (as read,
// or a fixed one), for IGS_CHILD_OBJ.
template <class Error> igsObject const* igs_named_leader(igsDimension const& d, Error const& e) {
  return igs_target(d.leader(d.get_leader_index(e.index())));
}
template <class Error> igsObject const* igs_named_witness(igsDimension const& d, Error const& e) {
  return igs_target(d.witness(d.get_witness_index(e.index())));
}
template <int position, class Error>
igsObject const* igs_leader_at(igsDimension const& d, Error const&) {
  return igs_target(d.leader(d.get_leader_index(position)));
}
template <int position, class Error>
igsObject const* igs_witness_at(igsDimension const& d, Error const&) {
  return igs_target(d.witness(d.get_witness_index(position)));
}

// The repair of an error of a leader or witness line of the dimension under the DE number:
// the number of references left in the list after the drop, -1 when no dimension stands
// there.
int igs_dimension_drop_leaders(int key, igsDrop what);
int igs_dimension_drop_witnesses(int key, igsDrop what);

// The `obj` of an error of a leader (or witness line) that `child` names, and its `fix`, which
// drops what `what` says from the dimension's leaders (witnesses) and settles the error when
// `settled` holds for `left`, the number of references left.
#define IGS_DIMENSION_DROP_REPAIR(Name, Owner, child, list, what, settled)                        \
  IGS_CHILD_OBJ(Name, Owner, child)                                                                \
  IGS_DIMENSION_DROP_FIX(Name, list, what, settled)
#define IGS_DIMENSION_DROP_FIX(Name, list, what, settled)                                          \
  int Name::fix() {                                                                                \
    [[maybe_unused]] int left = igs_dimension_drop_##list(key(), what);                            \
    return settled;                                                                                \
  }
