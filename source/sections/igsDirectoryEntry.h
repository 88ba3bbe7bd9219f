// The attributes of one entity: the two D lines of an IGES file in decoded form. Every entity
// has exactly one, made by its file together with the entity's manager.
#pragma once

#include "core/igsEntityType.h"
#include "core/igsObjectPtr.h"
#include "sections/igsColour.h"
#include "sections/igsLevel.h"
#include "sections/igsLineFont.h"
#include "sections/igsStatusFlags.h"

#include <cstdint>
#include <memory>

class igsInStream;
class igsOutStream;
class utOstream;

// The 20 fields of the two D lines of one entity, as a file holds them. The file reader reads
// them, tests the two type numbers and the form, makes the entity and hands the fields to
// its Directory Entry; the writer takes them from the Directory Entry and writes them.
struct igsDirectoryFields {
  int line = 0; // the sequence number of the first D line
  // Line 1.
  int entity_type = 0;
  int parameter_data = 0;
  int structure = 0;
  int line_font = 0;
  int level = 0;
  int view = 0;
  int matrix = 0;
  int label_display = 0;
  int blank_status = 0;
  int subordinate_status = 0;
  int entity_use = 0;
  int hierarchy = 0;
  // Line 2.
  int second_entity_type = 0;
  int line_weight_number = 0;
  int colour = 0;
  int parameter_line_count = 0;
  int form_number = 0;
  utString reserved; // columns 41 to 56, read and dropped
  utString entity_label;
  int entity_subscript = 0;

  // Reads the two lines with fixed-width reads from where the stream stands; blank number
  // fields read as 0 and the texts keep their columns as they stand. The codes of the reads
  // stay collected in the stream for the caller to ask. Returns 0 if the stream has a fatal
  // error afterwards.
  //
  // With `line_codes`, the codes are collected there instead, one bit for each code (as
  // igsIOCodeList::bit), just before the last field is read: reading it takes the stream onto
  // the next line, whose codes (a NUL in it, blank lines in front of it) are left uncollected
  // for the reader of that line.
  int read(igsInStream& in, unsigned* line_codes = nullptr);
  // Writes the two lines, right-justified: each status value as "0" and its digit, and the
  // reserved columns and the label as one text field of 24 columns.
  void write(igsOutStream& out) const;

  bool operator==(igsDirectoryFields const& other) const = default;
};

// An entity holds its entry within itself.
class igsDirectoryEntry {
 public:
  igsDirectoryEntry(igsDirectoryEntry const&) = delete;
  igsDirectoryEntry& operator=(igsDirectoryEntry const&) = delete;

  int structure() const { return number(m_structure, &Links::structure); }
  igsLineFont const& line_font() const { return m_line_font; }
  igsLevel const& level() const { return m_level; }
  igsObjectPtr const& view() const { return m_links ? m_links->view : no_reference(); }
  igsObjectPtr const& matrix() const { return m_links ? m_links->matrix : no_reference(); }
  igsObjectPtr const& label_display() const {
    return m_links ? m_links->label_display : no_reference();
  }
  igsStatusFlags const& status_flags() const { return m_status_flags; }
  int line_weight_number() const {
    return number(m_line_weight_number, &Links::line_weight_number);
  }
  igsColour const& colour() const { return m_colour; }
  int form_number() const { return number(m_form_number, &Links::form_number); }
  utString const& entity_label() const { return m_entity_label; }
  int entity_subscript() const { return number(m_entity_subscript, &Links::entity_subscript); }
  igsEntityType entity_type() const { return m_entity_type; }
  // The manager of the entity that holds this entry.
  igsObjectManager* manager() const;

  // Setters return 1 when they stored the value and 0 when they refused it.
  // Refuse what the attribute's `valid` refuses.
  int set_colour(igsColour const& colour);
  int set_level(igsLevel const& level);
  int set_line_font(igsLineFont const& line_font);
  int set_status_flags(igsStatusFlags const& flags);
  // Refuses a reference to anything but a transformation matrix (124); a null reference
  // removes the matrix.
  int set_matrix(igsObjectPtr const& matrix);
  // Refuses a null reference; remove_view clears the view.
  int set_view(igsObjectPtr const& view);
  void remove_view() {
    if (m_links) m_links->view = igsObjectPtr();
  }
  // Refuses a null string.
  int set_entity_label(utString const& label);
  // Refuse negative numbers.
  int set_entity_subscript(int subscript);
  int set_line_weight_number(int number);
  // Refuses a form that the entity type does not have.
  int set_form_number(int form);
  // Stores nothing if there is no memory for the entry's references.
  void set_label_display(igsObjectPtr const& label_display);
  void set_structure(int structure) { set_number(m_structure, &Links::structure, structure); }

  // Copies every field but the entity type and the manager.
  void become(igsDirectoryEntry const& other);

  // Stores what a file's D lines held, good or bad, in every field but the entity type, which
  // the entity's class decides; references bind by DE number in the current file. A value
  // that fails its test is kept for the check to find.
  void set_fields(igsDirectoryFields const& fields);
  // The fields to write: the entity type on both lines, the parameter data pointer and line
  // count last stored, each attribute as its number or minus its definition's current DE
  // number, and the DE number of each reference, 0 for none.
  igsDirectoryFields fields() const;
  void write(igsOutStream& out) const { fields().write(out); }

  void print(utOstream& out) const;

 protected:
  int start_of_parameter_data() const { return m_start_of_parameter_data; }
  int parameter_line_count() const { return m_parameter_line_count; }
  // The type if the tables know it, else igsEntityTypeUnknown.
  static igsEntityType get_entity_type(int type);
  // Drops the references the DE holds, each with igsObjectPtr::unreference: view, matrix and
  // label display, then the definitions of colour, line font and level.
  void unreference_children();

 private:
  friend class igsFile;
  friend class igsObject;
  igsDirectoryEntry() = default;
  // The repair of a wrong entity use stores the use alone, whatever the other digits hold.
  friend class igsDEInvalidEntityUse;
  void set_entity_type_and_form(igsEntityType type, int form) {
    m_entity_type = type;
    set_number(m_form_number, &Links::form_number, form);
  }
  void set_start_of_parameter_data(int line) { m_start_of_parameter_data = line; }
  // The empty label that every new entry starts with, one text shared by all.
  static utString const& no_label();
  void set_parameter_line_count(int count) { m_parameter_line_count = count; }

  // The references to a view, a matrix and a label display, which few entities have, and the
  // numbers too large for the entry: kept apart from the entry, and made when the first of
  // them is set.
  // Three numbers stand in the tail padding of the references, so the block takes 56 bytes.
  struct Links {
    [[no_unique_address]] igsObjectPtr view;
    int structure = 0;
    [[no_unique_address]] igsObjectPtr matrix;
    int line_weight_number = 0;
    [[no_unique_address]] igsObjectPtr label_display;
    int form_number = 0;
    int entity_subscript = 0;
  };
  // The structure, line weight, form and subscript numbers are nearly always small: each is
  // kept in two bytes, or, marked there, in the links.
  static constexpr std::int16_t in_links = INT16_MIN;
  int number(std::int16_t narrow, int Links::*wide) const {
    return narrow == in_links ? m_links.get()->*wide : narrow;
  }
  void set_number(std::int16_t& narrow, int Links::*wide, int value);
  // Each such number: where the entry keeps it, where the links do, and its D line field.
  struct Number {
    std::int16_t igsDirectoryEntry::*narrow;
    int Links::*wide;
    int igsDirectoryFields::*field;
  };
  static Number const numbers[4];
  // The entry's references, made if need be; null if there was no memory for them.
  Links* links();
  // The null reference that an entry without references gives for each of them.
  static igsObjectPtr const& no_reference();

  // A file holds one entry per entity, so no byte is left as padding.
  igsLineFont m_line_font;
  igsLevel m_level;
  igsColour m_colour;
  std::unique_ptr<Links> m_links;
  utString m_entity_label = no_label();
  igsStatusFlags m_status_flags;
  igsEntityType m_entity_type = igsEntityTypeUnknown;
  std::int16_t m_structure = 0;
  std::int16_t m_line_weight_number = 0;
  std::int16_t m_form_number = 0;
  std::int16_t m_entity_subscript = 0;
  int m_parameter_line_count = 0;
  int m_start_of_parameter_data = 0;
};

utOstream& operator<<(utOstream& out, igsDirectoryEntry const& de);
