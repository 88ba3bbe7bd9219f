// The general label (type 210): a note with any number of leaders. The flag note (igs208)
// is one with a corner and an angle of its own.
#pragma once

#include "entities/annotation/igsDimension.h"

class igs210 : public igsDimension {
  IGS_ENTITY_CLASS(igs210)

  int form_number() const { return directory_entry().form_number(); }

 protected:
  // The note, the number of leaders and the leaders: the record of a general label, and the
  // tail of that of a flag note.
  int read_label(igsInStream& in);
  void write_label(igsOutStream& out) const;
};
