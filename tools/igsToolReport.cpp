#include "igsToolReport.h"

#include "core/igsFile.h"
#include "core/igsInfoDB.h"
#include "core/igsObject.h"
#include "core/igsObjectSystem.h"
#include "errors/igsErrorLog.h"
#include "sections/igsDirectoryEntry.h"
#include "support/utOstream.h"

#include <cmath>
#include <cstdio>
#include <ostream>
#include <unordered_map>

namespace {

// Collects the constructor arguments of one error, as JSON values and as text.
class ArgumentCollector : public igsErrorArgumentVisitor {
 public:
  explicit ArgumentCollector(ToolErrorRecord& record) : m_record(record) {}
  void argument(char const* name, int value) override {
    add(name, std::to_string(value), std::to_string(value));
  }
  void argument(char const* name, double value) override {
    char text[32];
    ut_format_double(value, text, sizeof text);
    // JSON has no infinity or NaN: those go as strings.
    std::string json = std::isfinite(value) ? text : tool_json_string(text);
    add(name, json, text);
  }
  void argument(char const* name, char value) override {
    std::string text(1, value);
    add(name, tool_json_string(text), "'" + text + "'");
  }
  void argument(char const* name, utString const& value) override {
    std::string text(value.view());
    add(name, tool_json_string(text), "\"" + text + "\"");
  }

 private:
  void add(char const* name, std::string json, std::string text) {
    m_record.arguments_json.emplace_back(name, std::move(json));
    m_record.arguments_text.emplace_back(name, std::move(text));
  }
  ToolErrorRecord& m_record;
};

} // namespace

std::vector<std::string> const& tool_section_names() {
  static std::vector<std::string> const names = {"object", "structure", "global", "start",
                                                 "terminate"};
  return names;
}

std::vector<ToolErrorRecord> tool_collect_errors(igsFile const& file) {
  std::unordered_map<int, igsObject const*> by_de;
  for (igsFileIT it(&file); ++it;) by_de[it()->de_number()] = it();

  std::vector<ToolErrorRecord> records;
  igsErrorLog& log = igsObjectSystem::log();
  static igsLogID const ids[] = {igsObjectLog, igsStructureLog, igsGlobalLog, igsStartLog,
                                 igsTerminateLog};
  for (igsLogID id : ids) {
    for (igsSimpleSectionLogIT it(&log.get_section_log(id)); ++it;) {
      igsError const* error = it();
      ToolErrorRecord record;
      record.section = tool_section_names()[static_cast<size_t>(id)];
      record.class_name = error->objtype().name();
      if (error->typeof(igsIndexedError::type())) {
        record.has_de = true;
        record.de = static_cast<igsIndexedError const*>(error)->key();
        auto found = by_de.find(record.de);
        if (found != by_de.end()) {
          igsDirectoryEntry const& de = found->second->directory_entry();
          record.has_entity = true;
          record.entity_type = de.entity_type();
          record.entity_form = de.form_number();
          record.entity_name = std::string(igsInfoDB::entity_name(record.entity_type).view());
        }
      }
      ArgumentCollector collector(record);
      error->visit_arguments(collector);
      records.push_back(std::move(record));
    }
  }
  return records;
}

std::map<std::string, int> tool_count_by_section(std::vector<ToolErrorRecord> const& errors) {
  std::map<std::string, int> counts;
  for (auto const& name : tool_section_names()) counts[name] = 0;
  for (auto const& e : errors) ++counts[e.section];
  return counts;
}

std::string tool_error_text(ToolErrorRecord const& e) {
  std::string text = e.class_name;
  if (e.has_de) text += "  DE " + std::to_string(e.de);
  if (e.has_entity)
    text += "  type " + std::to_string(e.entity_type) + " form " + std::to_string(e.entity_form) +
            " (" + e.entity_name + ")";
  else if (e.has_de)
    text += "  (no entity)";
  for (auto const& [name, value] : e.arguments_text) text += "  " + name + "=" + value;
  return text;
}

void tool_print_errors(std::ostream& out, std::vector<ToolErrorRecord> const& errors) {
  auto counts = tool_count_by_section(errors);
  for (auto const& section : tool_section_names()) {
    if (!counts[section]) continue;
    out << section << " errors (" << counts[section] << "):\n";
    for (auto const& e : errors)
      if (e.section == section) out << "  " << tool_error_text(e) << "\n";
  }
}

std::string tool_section_counts_text(std::vector<ToolErrorRecord> const& errors) {
  auto counts = tool_count_by_section(errors);
  std::string text;
  for (auto const& section : tool_section_names()) {
    if (!text.empty()) text += ", ";
    text += std::to_string(counts[section]) + " " + section;
  }
  return text;
}

std::string tool_json_string(std::string const& text) {
  std::string json = "\"";
  for (unsigned char c : text) {
    switch (c) {
    case '"':
      json += "\\\"";
      break;
    case '\\':
      json += "\\\\";
      break;
    case '\n':
      json += "\\n";
      break;
    case '\r':
      json += "\\r";
      break;
    case '\t':
      json += "\\t";
      break;
    default:
      if (c < 0x20 || c >= 0x7f) {
        // Bytes outside printable ASCII are written as escapes, so any file gives valid JSON.
        char escape[8];
        std::snprintf(escape, sizeof escape, "\\u%04x", c);
        json += escape;
      } else {
        json += static_cast<char>(c);
      }
    }
  }
  return json + "\"";
}

std::string tool_json_errors(std::vector<ToolErrorRecord> const& errors) {
  std::string json = "[";
  for (size_t i = 0; i < errors.size(); ++i) {
    auto const& e = errors[i];
    json += i ? ",\n    {" : "\n    {";
    json += "\"section\": " + tool_json_string(e.section);
    json += ", \"class\": " + tool_json_string(e.class_name);
    json += ", \"de\": " + (e.has_de ? std::to_string(e.de) : std::string("null"));
    if (e.has_entity) {
      json += ", \"entity_type\": " + std::to_string(e.entity_type);
      json += ", \"entity_form\": " + std::to_string(e.entity_form);
      json += ", \"entity_name\": " + tool_json_string(e.entity_name);
    } else {
      json += ", \"entity_type\": null, \"entity_form\": null, \"entity_name\": null";
    }
    json += ", \"arguments\": {";
    for (size_t a = 0; a < e.arguments_json.size(); ++a) {
      if (a) json += ", ";
      json += tool_json_string(e.arguments_json[a].first) + ": " + e.arguments_json[a].second;
    }
    json += "}}";
  }
  return json + (errors.empty() ? "]" : "\n  ]");
}

std::string tool_json_counts(std::vector<ToolErrorRecord> const& errors) {
  auto counts = tool_count_by_section(errors);
  std::string json = "{";
  for (auto const& section : tool_section_names())
    json += tool_json_string(section) + ": " + std::to_string(counts[section]) + ", ";
  return json + "\"total\": " + std::to_string(errors.size()) + "}";
}
