// Where the members of an entity's list went under repair. An error names a member by the
// position it had when the entity was read; repairs that drop members move the later ones
// down. The index list maps each position as read to the member's current position, -1 once
// the member has been dropped, so that every error keeps naming the right member.
//
// The classes that own a list of children (composite curves, shells, compounds, dimensions)
// keep one beside their list and fill it at the end of read_pd_data.
#pragma once

#include "support/coNames.h"

class igsIndexList {
 public:
  // The identity over `count` positions: entry i holds i. A negative count empties the list.
  // The identity is kept as its count alone, until a repair moves a member.
  void reset(int count) {
    m_current.clear();
    m_identity = count > 0 ? count : 0;
  }
  int size() const { return m_identity >= 0 ? m_identity : m_current.size(); }
  // The current position of the member read at `original`; -1 if it has gone or the position
  // was never read.
  int current(int original) const {
    if (original < 0 || original >= size()) return -1;
    return m_identity >= 0 ? original : m_current[original];
  }
  // The position as read of the member now at `current`; -1 if no entry maps there.
  int original(int current) const {
    if (m_identity >= 0) return current >= 0 && current < m_identity ? current : -1;
    for (int i = 0; i < m_current.size(); ++i)
      if (m_current[i] == current) return i;
    return -1;
  }
  // Records where the member read at `original` is now, growing the list to hold it (with 0
  // for the positions passed over).
  void set(int original, int current) {
    if (original < 0) return;
    if (m_identity >= 0) {
      if (m_current.reserve(m_identity))
        for (int i = 0; i < m_identity; ++i) m_current.append(i);
      m_identity = -1;
    }
    m_current[original] = current;
  }
  // For each current position below `count`, the position as read (-1 where none maps), in
  // one pass.
  intcoDynArr originals(int count) const {
    intcoDynArr result;
    if (count > 0 && result.reserve(count))
      for (int i = 0; i < count; ++i) result.append(-1);
    for (int i = 0; i < size(); ++i) {
      int at = current(i);
      if (at >= 0 && at < result.size()) result[at] = i;
    }
    return result;
  }

 private:
  [[no_unique_address]] intcoDynArr m_current; // written out once a member has moved
  int m_identity = 0; // the count of an identity list, or -1 once written out
};

// Keeps the members of the list for which `keep(member)` is true, in order, and records in
// the index list where each went: -1 for a dropped member, its old position less the members
// dropped before it for a kept one. Returns the number dropped.
template <class Array, class Keep>
int igs_drop_members(Array& members, igsIndexList& index, Keep const& keep) {
  int dropped = 0;
  int count = members.size();
  intcoDynArr const originals = index.originals(count);
  for (int position = 0; position < count; ++position) {
    int original = position < originals.size() ? originals[position] : -1;
    if (!keep(members[position - dropped])) {
      members.remove(position - dropped);
      ++dropped;
      index.set(original, -1);
    } else if (dropped > 0) {
      index.set(original, position - dropped);
    }
  }
  return dropped;
}
