#include "sections/igsDirectoryEntry.h"

#include "core/igsInfoDB.h"
#include "core/igsObject.h"
#include "entities/structure/igs124.h"
#include "input/igsInStream.h"
#include "input/igsNumberText.h"
#include "output/igsOutStream.h"
#include "support/utOstream.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <new>
#include <utility>

// The two D lines

namespace {

using Fields = igsDirectoryFields;

enum class Kind {
  number,   // right-justified integer
  status,   // two columns; written as "0" and the digit
  reserved, // read and dropped; written blank as part of the label field
  label     // read from its own columns; written right-justified over the reserved ones
};

struct Column {
  Kind kind;
  int width;
  int Fields::*number;
  utString Fields::*text;
};

constexpr Column number(int width, int Fields::*field) {
  return {Kind::number, width, field, nullptr};
}
constexpr Column status(int Fields::*field) {
  return {Kind::status, 2, field, nullptr};
}
constexpr Column text(Kind kind, int width, utString Fields::*field) {
  return {kind, width, nullptr, field};
}

// The columns of the two lines in order, 72 on each.
constexpr Column layout[] = {
    number(8, &Fields::entity_type),
    number(8, &Fields::parameter_data),
    number(8, &Fields::structure),
    number(8, &Fields::line_font),
    number(8, &Fields::level),
    number(8, &Fields::view),
    number(8, &Fields::matrix),
    number(8, &Fields::label_display),
    status(&Fields::blank_status),
    status(&Fields::subordinate_status),
    status(&Fields::entity_use),
    status(&Fields::hierarchy),
    number(8, &Fields::second_entity_type),
    number(8, &Fields::line_weight_number),
    number(8, &Fields::colour),
    number(8, &Fields::parameter_line_count),
    number(8, &Fields::form_number),
    text(Kind::reserved, 16, &Fields::reserved),
    text(Kind::label, 8, &Fields::entity_label),
    number(8, &Fields::entity_subscript),
};

// The columns that the fields first to last - 1 of the layout take together.
constexpr int width_of(int first, int last) {
  int columns = 0;
  for (int i = first; i < last; ++i) columns += layout[i].width;
  return columns;
}
static_assert(width_of(0, std::size(layout)) == 2 * 72,
              "the D line layout fills two lines of 72 columns");

constexpr int label_field_width = 24; // the reserved columns and the label

// The blanks at the start of a field; eight columns are looked at in one go.
[[gnu::always_inline]] inline int leading_blanks(char const* text, int width) {
  int i = 0;
  if constexpr (std::endian::native == std::endian::little) {
    for (; i + 8 <= width; i += 8) {
      std::uint64_t word = 0;
      std::memcpy(&word, text + i, sizeof word);
      std::uint64_t other = word ^ 0x2020202020202020u; // zero bytes where blanks stand
      if (other) return i + std::countr_zero(other) / 8;
    }
  }
  while (i < width && text[i] == ' ') ++i;
  return i;
}

// Eight columns of blanks and then digits, converted in one go, with the first column in the
// lowest byte of the word: blanks become zeros, every byte is tested for a digit at once, and
// pairs, fours and eights of digits are joined by three multiplications. 0 for anything else.
[[gnu::always_inline]] inline int eight_digits(char const* text, int& value) {
  std::uint64_t word = 0;
  std::memcpy(&word, text, sizeof word);
  std::uint64_t other = word ^ 0x2020202020202020u;
  // Blanks alone, or seven blanks and a 0: the most common fields of all.
  if (!other || other == 0x1000000000000000u) {
    value = 0;
    return 1;
  }
  int blank_bits = std::countr_zero(other) & ~7;
  std::uint64_t digits = word | (0x1010101010101010u & ((std::uint64_t{1} << blank_bits) - 1));
  if ((digits & 0xF0F0F0F0F0F0F0F0u) != 0x3030303030303030u ||
      ((digits + 0x0606060606060606u) & 0xF0F0F0F0F0F0F0F0u) != 0x3030303030303030u)
    return 0;
  digits -= 0x3030303030303030u;
  digits = (digits * 10 + (digits >> 8)) & 0x00FF00FF00FF00FFu;
  digits = (digits * 100 + (digits >> 16)) & 0x0000FFFF0000FFFFu;
  digits = (digits * 10000 + (digits >> 32)) & 0xFFFFFFFFu;
  value = static_cast<int>(digits);
  return 1;
}

// A number field in its usual form, from its text: blanks, then an optional sign and digits up
// to its last column, or blanks alone. Both give what the fixed-width read gives them (0 for
// blanks), without its machinery; 0 is returned for any other field.
[[gnu::always_inline]] inline int plain_number(char const* text, int width, int& value) {
  if constexpr (std::endian::native == std::endian::little) {
    if (width == 8 && eight_digits(text, value)) return 1;
  }
  int i = leading_blanks(text, width);
  int number = 0; // 8 columns hold no more than 8 digits
  int negative = 0;
  if (i < width) {
    if (text[i] == '+' || text[i] == '-') negative = text[i++] == '-';
    int first_digit = i;
    for (; i < width && igs_is_digit(text[i]); ++i) number = number * 10 + (text[i] - '0');
    if (i < width || i == first_digit) return 0;
  }
  value = negative ? -number : number;
  return 1;
}

// A text field of blanks alone, as the fixed-width read gives it: its columns as they stand.
// 0 for any other field.
int blank_text(char const* text, int width, utString& value) {
  static utString const eight(std::string_view("        "));
  static utString const sixteen(std::string_view("                "));
  if ((width != 8 && width != 16) || leading_blanks(text, width) < width) return 0;
  value = width == 8 ? eight : sixteen;
  return 1;
}

// Where column C of the layout starts within its line.
constexpr int line_offset(int index) {
  return width_of(0, index) % 72;
}

// The four status numbers of two columns each, when their eight columns are blanks and then
// digits, are the pairs of digits of that one number: one conversion gives them all.
[[gnu::always_inline]] inline int status_numbers(char const* text, Column const* c,
                                                 Fields& fields) {
  if constexpr (std::endian::native == std::endian::little) {
    int all = 0;
    if (!eight_digits(text, all)) return 0;
    for (int i = 3; i >= 0; --i, all /= 100) fields.*c[i].number = all % 100;
    return 1;
  }
  return 0;
}

// Reads column C of the layout from the text of its line as a plain field; 0 if it is not one.
// The first status column reads all four when it can.
template <int C> int plain_column(char const* line, Fields& fields) {
  constexpr Column c = layout[C];
  char const* text = line + line_offset(C);
  if constexpr (c.kind == Kind::status) {
    if constexpr (layout[C - 1].kind != Kind::status) {
      if (status_numbers(text, layout + C, fields)) return 1;
      int sound = 1;
      for (int i = 0; i < 4; ++i)
        sound &= plain_number(text + 2 * i, 2, fields.*layout[C + i].number);
      return sound;
    }
    return 1;
  } else if constexpr (c.number != nullptr) {
    return plain_number(text, c.width, fields.*c.number);
  } else {
    return blank_text(text, c.width, fields.*c.text);
  }
}

// Reads the columns First to Last - 1 of one line, each converted in place with its width and
// offset known; 1 if all were plain. Every column is converted whatever the others gave.
template <int First, int Last> int plain_columns(char const* line, Fields& fields) {
  return [&]<int... I>(std::integer_sequence<int, I...>) {
    return (plain_column<First + I>(line, fields) & ...);
  }
  (std::make_integer_sequence<int, Last - First>{});
}

// The columns of each line up to the subscript (which is read once the line's codes are
// known): read in one go when the cursor stands at the first of them.
struct Run {
  Column const* first;
  Column const* last;
  int width;
  int (*read)(char const* line, Fields& fields);
};
template <int First, int Last> constexpr Run run() {
  static_assert(line_offset(First) == 0, "a run starts its line");
  return {layout + First, layout + Last, width_of(First, Last), plain_columns<First, Last>};
}
constexpr Run runs[] = {run<0, 12>(), run<12, 19>()};

// Reads fields of the layout from `c` on, straight from the line, while each is a plain number
// or blank text and lies within the data of an unstopped D line, and no further than `end`:
// the line is tested once for them all, and the cursor passes over them in one move. Returns
// the first field not read.
Column const* read_plain_fields(igsInStream& in, Column const* c, Column const* end,
                                Fields& fields) {
  igsFileSection section;
  int line = 0;
  int column = 0;
  in.position(section, line, column);
  if (in.frozen() || section != igsSectionDirectory) return c;
  char const* text = in();
  int room = in.capacity() - 8 - column;
  for (Run const& run : runs) {
    if (c == run.first && end >= run.last && column == 0 && room >= run.width &&
        run.read(text, fields)) {
      in.pass_over(static_cast<unsigned>(run.width));
      return run.last;
    }
  }
  int used = 0;
  for (; c != end && used + c->width <= room; ++c) {
    if (c->number ? !plain_number(text + used, c->width, fields.*c->number)
                  : !blank_text(text + used, c->width, fields.*c->text))
      break;
    used += c->width;
  }
  if (used) in.pass_over(static_cast<unsigned>(used));
  return c;
}

} // namespace

int igsDirectoryFields::read(igsInStream& in, unsigned* line_codes) {
  igsFileSection section;
  int column;
  in.position(section, line, column);
  Column const* last = std::end(layout) - 1;
  for (Column const* c = layout; c != std::end(layout); ++c) {
    if (c == last && line_codes) {
      *line_codes = 0;
      for (igsIOError const& e : in.errors()) *line_codes |= igsIOCodeList::bit(e.error_type());
    }
    if (line_codes) {
      Column const* next = read_plain_fields(in, c, c == last ? std::end(layout) : last, *this);
      if (next != c) {
        c = next - 1;
        continue;
      }
    }
    if (!c->number)
      in.read_string(static_cast<unsigned>(c->width), this->*c->text);
    else
      in.read_integer(static_cast<unsigned>(c->width), this->*c->number);
  }
  if (!line_codes) in.errors();
  return !in.fatal_error();
}

void igsDirectoryFields::write(igsOutStream& out) const {
  for (Column const& c : layout) {
    switch (c.kind) {
    case Kind::number:
      out.write_integer(c.width, this->*c.number);
      break;
    case Kind::status: {
      int value = this->*c.number;
      if (value >= 0 && value <= 9) {
        out.write_integer(1, 0);
        out.write_integer(1, value);
      } else {
        out.write_integer(c.width, value);
      }
      break;
    }
    case Kind::reserved:
      break;
    case Kind::label: {
      // An empty text would take no columns at all; a blank takes the field's.
      utString const& label = this->*c.text;
      out.write_string(label_field_width, label.length() > 0 ? label : utString(" "));
      break;
    }
    }
  }
}

// The Directory Entry

int igsDirectoryEntry::set_colour(igsColour const& colour) {
  if (!colour.valid()) return 0;
  m_colour.become(colour);
  return 1;
}

int igsDirectoryEntry::set_level(igsLevel const& level) {
  if (!level.valid()) return 0;
  m_level.become(level);
  return 1;
}

int igsDirectoryEntry::set_line_font(igsLineFont const& line_font) {
  if (!line_font.valid()) return 0;
  m_line_font.become(line_font);
  return 1;
}

int igsDirectoryEntry::set_status_flags(igsStatusFlags const& flags) {
  if (!flags.valid()) return 0;
  m_status_flags.become(flags);
  return 1;
}

igsDirectoryEntry::Links* igsDirectoryEntry::links() {
  if (!m_links) m_links.reset(new (std::nothrow) Links);
  return m_links.get();
}

// The entry stands at a fixed place in its entity, whose manager is a part of it too.
igsObjectManager* igsDirectoryEntry::manager() const {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
  constexpr std::size_t place = offsetof(igsObject, m_directory_entry);
#pragma GCC diagnostic pop
  auto const* entity =
      reinterpret_cast<igsObject const*>(reinterpret_cast<char const*>(this) - place);
  return entity->manager();
}

igsObjectPtr const& igsDirectoryEntry::no_reference() {
  static igsObjectPtr const none;
  return none;
}

int igsDirectoryEntry::set_matrix(igsObjectPtr const& matrix) {
  if (!matrix) {
    if (m_links) m_links->matrix = igsObjectPtr();
    return 1;
  }
  if (!matrix->isa(igs124::type())) return 0;
  Links* l = links();
  if (!l) return 0;
  l->matrix = matrix;
  return 1;
}

int igsDirectoryEntry::set_view(igsObjectPtr const& view) {
  Links* l = view ? links() : nullptr;
  if (!l) return 0;
  l->view = view;
  return 1;
}

void igsDirectoryEntry::set_label_display(igsObjectPtr const& label_display) {
  if (Links* l = label_display || m_links ? links() : nullptr) l->label_display = label_display;
}

int igsDirectoryEntry::set_entity_label(utString const& label) {
  if (label.is_null()) return 0;
  m_entity_label = label;
  return 1;
}

int igsDirectoryEntry::set_entity_subscript(int subscript) {
  if (subscript < 0) return 0;
  set_number(m_entity_subscript, &Links::entity_subscript, subscript);
  return 1;
}

int igsDirectoryEntry::set_line_weight_number(int number) {
  if (number < 0) return 0;
  set_number(m_line_weight_number, &Links::line_weight_number, number);
  return 1;
}

int igsDirectoryEntry::set_form_number(int form) {
  if (!igsInfoDB::form_exists(m_entity_type, form)) return 0;
  set_number(m_form_number, &Links::form_number, form);
  return 1;
}

// A number that does not fit two bytes goes to the links; if there is no memory for them, the
// nearest that fits stands in its place.
igsDirectoryEntry::Number const igsDirectoryEntry::numbers[4] = {
    {&igsDirectoryEntry::m_structure, &Links::structure, &igsDirectoryFields::structure},
    {&igsDirectoryEntry::m_line_weight_number, &Links::line_weight_number,
     &igsDirectoryFields::line_weight_number},
    {&igsDirectoryEntry::m_form_number, &Links::form_number, &igsDirectoryFields::form_number},
    {&igsDirectoryEntry::m_entity_subscript, &Links::entity_subscript,
     &igsDirectoryFields::entity_subscript},
};

void igsDirectoryEntry::set_number(std::int16_t& narrow, int Links::*wide, int value) {
  if (value > in_links && value <= INT16_MAX) {
    narrow = static_cast<std::int16_t>(value);
  } else if (Links* l = links()) {
    l->*wide = value;
    narrow = in_links;
  } else {
    narrow = value < 0 ? in_links + 1 : INT16_MAX;
  }
}

void igsDirectoryEntry::become(igsDirectoryEntry const& other) {
  if (this == &other) return;
  m_line_font.become(other.m_line_font);
  m_level.become(other.m_level);
  if (!other.m_links)
    m_links.reset();
  else if (Links* l = links())
    *l = *other.m_links;
  // The numbers after the links, which may hold them.
  for (Number const& n : numbers)
    set_number(this->*n.narrow, n.wide, other.number(other.*n.narrow, n.wide));
  m_status_flags = other.m_status_flags;
  m_colour.become(other.m_colour);
  m_entity_label = other.m_entity_label;
  m_parameter_line_count = other.m_parameter_line_count;
  m_start_of_parameter_data = other.m_start_of_parameter_data;
}

void igsDirectoryEntry::set_fields(igsDirectoryFields const& f) {
  m_start_of_parameter_data = f.parameter_data;
  m_line_font = igsLineFont(f.line_font);
  m_level = igsLevel(f.level);
  if (f.view <= 0 && f.matrix <= 0 && f.label_display <= 0) {
    m_links.reset();
  } else if (Links* l = links()) {
    l->view = igsObjectPtr(f.view);
    l->matrix = igsObjectPtr(f.matrix);
    l->label_display = igsObjectPtr(f.label_display);
  }
  // The numbers after the links, which may hold them.
  for (Number const& n : numbers) set_number(this->*n.narrow, n.wide, f.*n.field);
  m_status_flags = igsStatusFlags(f.blank_status, f.subordinate_status, f.entity_use, f.hierarchy);
  m_colour = igsColour(f.colour);
  m_parameter_line_count = f.parameter_line_count;
  m_entity_label = f.entity_label.is_null() ? no_label() : f.entity_label;
}

namespace {

int de_number_of(igsObjectPtr const& target) {
  return target ? target->de_number() : 0;
}

} // namespace

igsDirectoryFields igsDirectoryEntry::fields() const {
  igsDirectoryFields f;
  f.entity_type = f.second_entity_type = m_entity_type;
  f.parameter_data = m_start_of_parameter_data;
  f.line_font = m_line_font.field();
  f.level = m_level.field();
  f.view = de_number_of(view());
  f.matrix = de_number_of(matrix());
  f.label_display = de_number_of(label_display());
  f.blank_status = m_status_flags.blank_status_value();
  f.subordinate_status = m_status_flags.subordinate_status_value();
  f.entity_use = m_status_flags.entity_use_value();
  f.hierarchy = m_status_flags.hierarchy_value();
  f.colour = m_colour.field();
  f.parameter_line_count = m_parameter_line_count;
  f.reserved = utString("");
  f.entity_label = m_entity_label;
  for (Number const& n : numbers) f.*n.field = number(this->*n.narrow, n.wide);
  return f;
}

utString const& igsDirectoryEntry::no_label() {
  static utString const empty("");
  return empty;
}

igsEntityType igsDirectoryEntry::get_entity_type(int type) {
  return igsInfoDB::entity_exists(type) ? static_cast<igsEntityType>(type) : igsEntityTypeUnknown;
}

void igsDirectoryEntry::unreference_children() {
  if (m_links) {
    m_links->view.unreference();
    m_links->matrix.unreference();
    m_links->label_display.unreference();
  }
  m_colour.unreference_children();
  m_line_font.unreference_children();
  m_level.unreference_children();
}

void igsDirectoryEntry::print(utOstream& out) const {
  utOstream level1(utOstreamTabTag, out, 1, 0);
  utOstream level2(utOstreamTabTag, level1, 1, 0);
  int type = m_entity_type;
  out << "DirectoryEntry = {\n";
  level1 << "EntityTypeNumber = " << type << "("
         << (igsInfoDB::entity_exists(type) ? igsInfoDB::entity_name(type).c_str()
                                            : "UnknownEntity")
         << ")\n";
  level1 << "Structure = " << structure() << "\n";
  level1 << "LineFontPattern = " << m_line_font << "\n";
  level1 << "Level = " << m_level << "\n";
  level1 << (view() ? "View = Unsupported\n" : "View = AllViews\n");
  if (igsObjectPtr const& transform = matrix()) {
    level1 << "TransformationMatrix = {\n";
    transform->print(level2);
    level1 << "}\n";
  } else {
    level1 << "TransformationMatrix = IdentityMatrix\n";
  }
  level1 << "LabelDisplayAssociativity = Unsupported\n";
  level1 << m_status_flags << "\n";
  level1 << "LineWeightNumber = " << line_weight_number() << "\n";
  level1 << "Colour = " << m_colour << "\n";
  level1 << "FormNumber = " << form_number() << "("
         << (igsInfoDB::form_exists(type, form_number())
                 ? igsInfoDB::form_name(type, form_number()).c_str()
                 : "UnknownForm")
         << ")\n";
  level1 << "EntityLabel = \"" << m_entity_label << "\"\n";
  level1 << "EntitySubscript = " << entity_subscript() << "\n";
  out << "}\n";
}

utOstream& operator<<(utOstream& out, igsDirectoryEntry const& de) {
  de.print(out);
  return out;
}
