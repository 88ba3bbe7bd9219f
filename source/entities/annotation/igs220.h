// The point dimension (type 220): a note on one leader, which a curve may enclose.
#pragma once

#include "entities/annotation/igsDimension.h"

class igs220 : public igsDimension {
  IGS_ENTITY_CLASS(igs220)

  // The circular arc, closed planar curve or composite curve around the text; null for none.
  igsObjectPtr const& text_encloser() const { return m_encloser; }
  void set_text_encloser(igsObjectPtr const& encloser) { m_encloser = encloser; }
  int form_number() const { return directory_entry().form_number(); }

 protected:
  void unreference_children() override;

 private:
  igsObjectPtr m_encloser;
};
