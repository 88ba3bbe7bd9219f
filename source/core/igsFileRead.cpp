// Reading a whole file: the sections in order, one entity for each Directory Entry, their
// parameter data, and the removal of what reading could not make into an entity.
#include "core/igsCurrentFileScope.h"
#include "core/igsFile.h"
#include "core/igsFileErrors.h"
#include "core/igsInfoDB.h"
#include "core/igsNull.h"
#include "core/igsObject.h"
#include "core/igsObjectPtr.h"
#include "core/igsUnknown.h"
#include "input/igsInStream.h"
#include "sections/igsDirectoryEntry.h"
#include "sections/igsStreamSection.h"

#include <new>

int igsFile::read(std::istream& stream, utOstream& messages) {
  igsCurrentFileScope current(*this);
  igsInStream in(stream);
  if (!in.reset()) return 0;
  // Entities made by this read start unvisited; only those that stood before need resetting.
  int stood_before = m_num_entities > 0;
  m_entities_read = 0;
  m_entities_to_drop = 0;
  int blank_lines = 0;
  int result = m_start_section.read(in, blank_lines);
  if (blank_lines) m_blank_line = 1;
  if (result) {
    int bad_line_numbers = 0;
    blank_lines = 0;
    result = m_global_section.read(in, messages, bad_line_numbers, blank_lines);
    if (bad_line_numbers) m_invalid_line_numbers = 1;
    if (blank_lines) m_blank_line = 1;
  }
  m_parameter_data_read = 0;
  if (result) result = read_directory_section(in);
  if (result) {
    if (stood_before) reset_visit_flags();
    result = read_parameter_data_section(in);
    m_parameter_data_read = 1;
  }
  if (result) {
    blank_lines = 0;
    result = m_terminate_section.read(in, blank_lines);
    if (blank_lines) m_blank_line = 1;
  }
  if (m_invalid_line_numbers) tag_error(new (std::nothrow) igsFileInvalidLineNumbers);
  if (m_blank_line) tag_error(new (std::nothrow) igsFileBlankLine);
  // The walk over every entity is needed only if one may have to go.
  if (m_parameter_data_read) {
    if (stood_before || m_entities_to_drop || m_entities_read != m_num_entities)
      tidyup();
    else
      remove_forward_references();
  }
  return result;
}

int igsFile::read_directory_section(igsInStream& in) {
  while (read_directory_entry(in)) {
  }
  return in.reset();
}

int igsFile::read_directory_entry(igsInStream& in) {
  if (igs_stream_section(in) != igsSectionDirectory) return 0;
  // A D line that failed its check stops the stream at its start; lifting the stop makes it
  // readable. Reading on from a stopped stream would make entries of nothing, for ever.
  if (in.frozen() && !in.reset()) return 0;
  igsDirectoryFields fields;
  unsigned codes = 0;
  int sound = fields.read(in, &codes);
  int line = fields.line;
  int type = fields.entity_type;
  int form = fields.form_number;
  if (type != fields.second_entity_type) {
    tag_error(new (std::nothrow)
                  igsFileDEEntityTypeMismatch(line, type, fields.second_entity_type));
    type = igsEntityTypeUnknown;
  } else if (!igsInfoDB::entity_exists(type)) {
    tag_error(new (std::nothrow) igsFileInvalidIGESEntity(line, type));
    type = igsEntityTypeUnknown;
  } else if (!igsInfoDB::form_exists(type, form)) {
    int default_form = 0;
    int found = 0;
    igsInfoDB::default_form_number(type, default_form, found);
    if (found) {
      tag_error(new (std::nothrow) igsFileDefaultedForm(line, type, form));
      form = default_form;
    } else {
      tag_error(new (std::nothrow) igsFileUnknownForm(line, type, form));
      type = igsEntityTypeUnknown;
    }
  }
  if (codes & igsIOCodeList::bit(igsIONullCharacter))
    tag_error(new (std::nothrow) igsFileDENullCharacters(line));
  if (codes & igsIOCodeList::bit(igsIOLineSequence)) m_invalid_line_numbers = 1;
  if (codes & igsIOCodeList::bit(igsIOBlankLine)) m_blank_line = 1;
  // The entity takes the next slot: its DE number comes from its place, not from the line.
  if (igsObject* object = igsObject::create(static_cast<igsEntityType>(type), form)) {
    fields.form_number = form;
    object->directory_entry().set_fields(fields);
    if (object->isa(igsNull::type()) || object->isa(igsUnknown::type())) ++m_entities_to_drop;
  }
  return sound;
}

int igsFile::read_parameter_data_section(igsInStream& in) {
  while (igs_stream_section(in) == igsSectionParameter) {
    igsFileSection section;
    int line = 0;
    int column = 0;
    in.position(section, line, column);
    int backpointer = in.backpointer();
    // Looked up, not referenced: a reading entity is not deleted, and a reference would give
    // every entity whose parent came first a second one for the time of its read.
    igsObject* current =
        backpointer > 0 && backpointer % 2 == 1 ? object_at((backpointer - 1) / 2) : nullptr;
    // Lines of no entity are passed over, and so is a second record of an entity: the first
    // one it had stands, whatever its class.
    auto pass_over = [&] {
      while (in.backpointer() == backpointer && igs_stream_section(in) == igsSectionParameter &&
             !in.fatal_error())
        in.skip_line();
      return in.reset();
    };
    if (!current) {
      if (!pass_over()) break;
      continue;
    }
    int lines_before = in.num_lines(igsSectionParameter);
    int start_in_de = current->directory_entry().start_of_parameter_data();
    if (start_in_de != line)
      tag_error(new (std::nothrow) igsFileIncorrectStartOfPD(backpointer, line, start_in_de));
    int read_before = current->manager()->visited();
    if (read_before) {
      if (!pass_over()) break;
      continue;
    }
    int bad_line_numbers = 0;
    int blank_lines = 0;
    int sound = current->read(in, bad_line_numbers, blank_lines);
    if (bad_line_numbers) m_invalid_line_numbers = 1;
    if (blank_lines) m_blank_line = 1;
    if (!in.reset()) {
      // What was read into the entity from a line that failed this way is not trustworthy.
      // A line that fails behind a record read to its end (a T line without its number) took
      // nothing from it.
      if (current && !sound &&
          (in.error_type(igsIOBadBackpointer) || in.error_type(igsIOBadLineNumber) ||
           in.error_type(igsIOBadSectionLetter))) {
        delete current;
        m_entities_read = -1; // the count tells no longer: the entities are walked
      }
      break;
    }
    // Counted once it stands for good: a count short of the entities only costs a walk.
    if (current->manager()->visited()) ++m_entities_read;
    // The last record ends on the T line: the Terminate count makes its count come out right.
    int lines_used =
        in.num_lines(igsSectionParameter) + in.num_lines(igsSectionTerminate) - lines_before;
    int count_in_de = current->directory_entry().parameter_line_count();
    if (lines_used != count_in_de)
      tag_error(new (std::nothrow)
                    igsFileIncorrectPDLineCount(backpointer, lines_used, count_in_de));
  }
  return in.reset();
}

void igsFile::tidyup() {
  for (int location = 0; location < m_table.size(); ++location) {
    igsObjectManager* manager = slot(location);
    igsObject* object = manager ? manager->object() : nullptr;
    if (!object) continue;
    if (object->isa(igsNull::type())) {
      ++m_num_nulls;
      delete object;
    } else if (object->isa(igsUnknown::type())) {
      ++m_num_unknowns;
      delete object;
    } else if (!manager->visited()) {
      int de_number = object->de_number();
      delete object;
      tag_error(new (std::nothrow) igsFileNoPDData(de_number));
    }
  }
  remove_forward_references();
}
