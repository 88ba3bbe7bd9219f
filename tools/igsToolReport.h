// What the igs tool tells about a file: its logged errors as records, in text or JSON.
#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

class igsFile;

// One logged error, with the entity it concerns where that entity still exists.
struct ToolErrorRecord {
  std::string section;    // "object", "structure", "global", "start", "terminate"
  std::string class_name; // the error's class
  int de = 0;             // the DE number (or line) of indexed errors; 0 for section errors
  bool has_de = false;
  bool has_entity = false; // the entity with that DE number still exists
  int entity_type = 0;
  int entity_form = 0;
  std::string entity_name;
  // Constructor arguments by name, each already as JSON (number or string).
  std::vector<std::pair<std::string, std::string>> arguments_json;
  // The same as text for people.
  std::vector<std::pair<std::string, std::string>> arguments_text;
};

// The names of the five section logs, in log order.
std::vector<std::string> const& tool_section_names();

// The active errors of the file's log (the file must be current), in log order per section.
std::vector<ToolErrorRecord> tool_collect_errors(igsFile const& file);

// Counts per section name, every section present.
std::map<std::string, int> tool_count_by_section(std::vector<ToolErrorRecord> const& errors);

// One error on one line: class, DE number and entity where it has them, arguments.
std::string tool_error_text(ToolErrorRecord const& e);

// Errors grouped by section, one line each.
void tool_print_errors(std::ostream& out, std::vector<ToolErrorRecord> const& errors);

// "a, b and c" style list of per-section counts: "0 object, 2 structure, ...".
std::string tool_section_counts_text(std::vector<ToolErrorRecord> const& errors);

// JSON helpers.
std::string tool_json_string(std::string const& text);
std::string tool_json_errors(std::vector<ToolErrorRecord> const& errors);
std::string tool_json_counts(std::vector<ToolErrorRecord> const& errors);
