// The general note (type 212): text strings, each set in its own box with its own font,
// angles and start point. Dimensions and general symbols show their text through one.
#pragma once

#include "entities/annotation/igsWord.h"
#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"

class igs212 : public igsAnnotation {
  IGS_ENTITY_CLASS(igs212)

  // The number of strings as read or set; a negative one stays for the check to find.
  int num_strings() const { return m_num_strings; }
  // Stores the number; one not below 0 makes that many default words in place of the strings.
  // 0 when they could not be made, and nothing changed.
  int set_num_strings(int n);
  // The word at an index; a default word out of range.
  igsWord const& get_word(int index) const;
  // Puts the word in the place of the one at an index in range and gives 1; 0 elsewhere.
  int add_string(igsWord const& word, int index);
  int form_number() const { return directory_entry().form_number(); }

 protected:
  void unreference_children() override;

 private:
  coDynArr<igsWord> m_strings;
  int m_num_strings = igs_unset_int;
};
