// The composite curve (type 102): curves and points joined end to end, in order. A member
// that stays broken after its own repairs is dropped from the list; the index list keeps the
// positions that errors name meaningful while members go. A check names the members where
// they stand, so it starts the index list afresh.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"
#include "entities/igsIndexList.h"
#include "support/coNames.h"

class igs102 : public igsCurve {
  IGS_ENTITY_CLASS(igs102)

  int number_of_sub_curves() const { return m_curves.size(); }
  // Copies the member at a position in range and gives 1; else 0.
  int sub_curve(int position, igsObjectPtr& curve) const;
  // 0 for a negative position or a null reference; else stores it, growing the list to hold
  // the position, and gives 1.
  int set_sub_curve(int position, igsObjectPtr const& curve);
  // Makes the list exactly that long (new places are null); a negative size does nothing.
  void set_size(int size);
  // The current position of the member read at `original`, -1 once it has been dropped. A
  // composite curve that was not read takes the positions as they stand.
  int get_index(int original) const;
  void set_index(int original, int current) { m_index.set(original, current); }
  // Drops the member at the current position from the list (the entity stays in the file)
  // and records where the later members went; 0 for a position out of range.
  int remove_sub_curve(int position);

 protected:
  // The index list of the members as they stand: 0, 1, 2, ...
  void set_index_list() { m_index.reset(m_curves.size()); }
  void unreference_children() override;

 private:
  igsObjectPtrcoDynArr m_curves;
  mutable igsIndexList m_index;
};
