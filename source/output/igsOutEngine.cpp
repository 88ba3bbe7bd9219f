#include "output/igsOutEngine.h"

igsOutEngine::~igsOutEngine() = default;

void igsOutEngine::encode(igsEncoder const& encoder) {
  int n = encoder.num_items();
  int max = max_space();
  for (int i = 0; i < n; ++i) {
    std::string_view text = encoder.item_text(i);
    int length = static_cast<int>(text.size());
    if (m_delimited) {
      if (m_delimiter_due && i == 0) split_line_encode(m_parameter_delimiter);
      // The last piece keeps a column for the delimiter that follows it.
      if (i == n - 1) ++length;
    }
    if (length <= max && !encoder.get_split_flag(i))
      single_line_encode(text, length);
    else
      split_line_encode(text);
  }
  if (m_delimited) m_delimiter_due = 1;
}

void igsOutEngine::fixed_encode(igsEncoder const& encoder, unsigned int width) {
  for (int i = 0; i < encoder.num_items(); ++i) {
    std::string_view text = encoder.item_text(i);
    unsigned int length = static_cast<unsigned int>(text.size());
    // Text wider than its field is the caller's limit; it then starts where the field does.
    if (width > length) *this += width - length;
    single_line_encode(text, static_cast<int>(length));
  }
}

void igsOutEngine::set_section(igsFileSection section) {
  if (this->section() == igsSectionGlobal) split_line_encode(m_record_delimiter);
  if (section == igsSectionGlobal || section == igsSectionParameter) {
    m_delimited = 1;
    m_delimiter_due = 0;
  }
  igsOutBuffer::set_section(section);
}

void igsOutEngine::set_backpointer(int backpointer) {
  split_line_encode(m_record_delimiter);
  igsOutBuffer::set_backpointer(backpointer);
  m_delimiter_due = 0;
}

void igsOutEngine::collect_errors(igsIOErrorcoDynArr& errors) {
  igsOutBuffer::collect_errors(errors);
  igsFileSection section;
  int line;
  int column;
  position(section, line, column);
  for (igsIOError& e : errors) e.set_location(section, line, column);
}
