// Reading and writing one entity's record of parameter data.
#include "core/igsFileErrors.h"
#include "core/igsObject.h"
#include "input/igsInStream.h"
#include "output/igsOutStream.h"
#include "sections/igsDirectoryEntry.h"

int igsObject::read(igsInStream& in, int& bad_line_numbers, int& blank_lines) {
  int read_through = read_pd_entity_type(in) && read_pd_data(in);
  // The decoders keep their codes until collected, so this one collection holds every code
  // of the record, and the record leaves none behind for the next one. A record whose fields
  // left no code but that they held values has nothing to collect.
  int plain = in.drop_value_codes();
  if (read_through) {
    if (!plain) {
      if (in.error_type(igsIONotANumber)) raise_error<igsFileCorruptObjectData>(de_number());
      if (in.error_type(igsIONullCharacter)) raise_error<igsFilePDNullCharacters>(de_number());
      if (in.error_type(igsIOLineSequence)) bad_line_numbers = 1;
    }
    set_visited(1);
  }
  if (!plain && in.error_type(igsIOBlankLine)) blank_lines = 1;
  int sound = !in.fatal_error();
  if (in.reset()) skip_this_entity(in);
  return sound;
}

void igsObject::write(igsOutStream& out) {
  out.write_integer(static_cast<int>(directory_entry().entity_type()));
  write_pd_data(out);
}

int igsObject::read_pd_entity_type(igsInStream& in) {
  int type = 0;
  in.read_integer(type);
  igsEntityType expected = directory_entry().entity_type();
  if (expected == igsEntityTypeUnknown || type == expected) return 1;
  raise_error<igsFilePDEntityTypeMismatch>(de_number(), type);
  return 0;
}

void igsObject::read_additional_entity_pointers(igsInStream& in) {
  for (int list = 0; list < 2; ++list) {
    int count = 0;
    in.read_integer(count);
    // A stopped stream gives nothing more, whatever the count says.
    for (int i = 0; i < count && !in.frozen(); ++i) {
      int dropped = 0;
      in.read_integer(dropped);
    }
  }
  in.reset();
}

void igsObject::skip_this_entity(igsInStream& in) {
  int de = de_number();
  while (in.backpointer() != 0 && in.backpointer() == de && !in.fatal_error()) in.skip_line();
}
