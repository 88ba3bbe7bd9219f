#include "sections/igsDirectoryEntry.h"

int igsDirectoryEntry::set_view(igsObjectPtr const& view) {
  if (!view) return 0;
  m_view = view;
  return 1;
}

int igsDirectoryEntry::set_entity_label(utString const& label) {
  if (label.is_null()) return 0;
  m_entity_label = label;
  return 1;
}

int igsDirectoryEntry::set_entity_subscript(int subscript) {
  if (subscript < 0) return 0;
  m_entity_subscript = subscript;
  return 1;
}

int igsDirectoryEntry::set_line_weight_number(int number) {
  if (number < 0) return 0;
  m_line_weight_number = number;
  return 1;
}

void igsDirectoryEntry::unreference_children() {
  m_view.unreference();
  m_matrix.unreference();
  m_label_display.unreference();
}
