// The attributes of one entity: the two D lines of an IGES file in decoded form. Every entity
// has exactly one, made by its file together with the entity's manager.
//
// Line font, level and colour are kept as the plain numbers of the D line for now: their
// value classes (a number or a reference to a definition entity) replace them behind the
// same getters.
#pragma once

#include "core/igsEntityType.h"
#include "core/igsObjectPtr.h"

class igsDirectoryEntry {
 public:
  igsDirectoryEntry() = default;
  igsDirectoryEntry(igsDirectoryEntry const&) = delete;
  igsDirectoryEntry& operator=(igsDirectoryEntry const&) = delete;

  int structure() const { return m_structure; }
  int line_font() const { return m_line_font; }
  int level() const { return m_level; }
  igsObjectPtr const& view() const { return m_view; }
  igsObjectPtr const& matrix() const { return m_matrix; }
  igsObjectPtr const& label_display() const { return m_label_display; }
  int line_weight_number() const { return m_line_weight_number; }
  int colour() const { return m_colour; }
  int form_number() const { return m_form_number; }
  utString const& entity_label() const { return m_entity_label; }
  int entity_subscript() const { return m_entity_subscript; }
  igsEntityType entity_type() const { return m_entity_type; }
  igsObjectManager* manager() const { return m_manager; }

  // Setters return 1 when they stored the value and 0 when they refused it.
  void set_structure(int structure) { m_structure = structure; }
  void set_label_display(igsObjectPtr const& label_display) { m_label_display = label_display; }
  // Refuses a null reference; remove_view clears the view.
  int set_view(igsObjectPtr const& view);
  void remove_view() { m_view = igsObjectPtr(); }
  // Refuses a null string.
  int set_entity_label(utString const& label);
  // Refuse negative numbers.
  int set_entity_subscript(int subscript);
  int set_line_weight_number(int number);

 protected:
  int start_of_parameter_data() const { return m_start_of_parameter_data; }
  int parameter_line_count() const { return m_parameter_line_count; }
  // Drops the references the DE holds, each with igsObjectPtr::unreference.
  void unreference_children();

 private:
  friend class igsFile;
  friend class igsObject;
  void set_manager(igsObjectManager* manager) { m_manager = manager; }
  void set_entity_type_and_form(igsEntityType type, int form) {
    m_entity_type = type;
    m_form_number = form;
  }
  void set_start_of_parameter_data(int line) { m_start_of_parameter_data = line; }
  void set_parameter_line_count(int count) { m_parameter_line_count = count; }

  int m_structure = 0;
  int m_line_font = 1;
  int m_level = 0;
  igsObjectPtr m_view;
  igsObjectPtr m_matrix;
  igsObjectPtr m_label_display;
  int m_line_weight_number = 0;
  int m_colour = 0;
  int m_form_number = 0;
  utString m_entity_label;
  int m_entity_subscript = 0;
  igsEntityType m_entity_type = igsEntityTypeUnknown;
  int m_parameter_line_count = 0;
  int m_start_of_parameter_data = 0;
  igsObjectManager* m_manager = nullptr;
};
