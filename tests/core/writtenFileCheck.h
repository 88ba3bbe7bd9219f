// A structural check of written files that knows nothing of the library's reader: it reads
// the text line by line as the format lays it out and lists every fault it finds.
//
//   - every line is exactly 80 columns and an LF;
//   - the section letters in column 73 run S, G, D, P, T in that order, with one T line;
//   - the sequence numbers in columns 74 to 80 run 1 to n in each section;
//   - the T line counts the lines of S, G, D and P as they stand;
//   - the D lines come in pairs with the same entity type on both lines;
//   - the P lines are grouped by back pointer, the groups name the DE numbers 1, 3, 5, ... in
//     order, and each Directory Entry's parameter pointer and line count name its group;
//   - each record starts with its entity type, and column 65 of every P line is blank.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace igs_test {

// The number right-justified in a fixed field: blanks, an optional minus sign and digits,
// with no leading zero; nothing for any other text.
inline std::optional<int> fixed_number(std::string_view field) {
  size_t i = field.find_first_not_of(' ');
  if (i == std::string_view::npos) return std::nullopt;
  bool negative = field[i] == '-';
  if (negative) ++i;
  if (i == field.size() || (field[i] == '0' && i + 1 != field.size())) return std::nullopt;
  long long value = 0;
  for (; i < field.size(); ++i) {
    if (field[i] < '0' || field[i] > '9' || value > 99999999) return std::nullopt;
    value = value * 10 + (field[i] - '0');
  }
  return static_cast<int>(negative ? -value : value);
}

// The faults of a written file, each as "line N: what"; empty when the file is well formed.
inline std::vector<std::string> written_file_faults(std::string_view text) {
  std::vector<std::string> faults;
  auto fault = [&](size_t line, std::string const& what) {
    faults.push_back("line " + std::to_string(line) + ": " + what);
  };
  auto number = [](std::string_view line, size_t column, size_t width) {
    return fixed_number(line.substr(column - 1, width));
  };

  // Lines of exactly 80 columns; a shorter or longer one stops the check, since no column
  // after it can be trusted.
  std::vector<std::string_view> lines;
  for (size_t begin = 0; begin < text.size();) {
    size_t end = text.find('\n', begin);
    if (end == std::string_view::npos) {
      fault(lines.size() + 1, "no line end");
      return faults;
    }
    std::string_view line = text.substr(begin, end - begin);
    if (line.size() != 80) {
      fault(lines.size() + 1, std::to_string(line.size()) + " columns");
      return faults;
    }
    lines.push_back(line);
    begin = end + 1;
  }

  // Section letters in order and sequence numbers per section.
  constexpr std::string_view letters = "SGDPT";
  int counts[5] = {};
  size_t previous = 0;
  std::vector<size_t> directory, parameter;
  std::string_view terminate;
  for (size_t i = 0; i < lines.size(); ++i) {
    std::string_view line = lines[i];
    size_t section = letters.find(line[72]);
    if (section == std::string_view::npos) {
      fault(i + 1, std::string("section letter '") + line[72] + "'");
      continue;
    }
    if (section < previous) fault(i + 1, std::string("section ") + line[72] + " out of order");
    previous = section;
    std::optional<int> sequence = number(line, 74, 7);
    if (sequence != ++counts[section])
      fault(i + 1, "sequence number '" + std::string(line.substr(73)) + "', expected " +
                       std::to_string(counts[section]));
    if (line[72] == 'D') directory.push_back(i);
    if (line[72] == 'P') parameter.push_back(i);
    if (line[72] == 'T') terminate = line;
  }
  for (size_t section : {0u, 1u, 4u})
    if (counts[section] == 0) fault(lines.size(), std::string("no ") + letters[section] + " line");
  if (counts[4] > 1) fault(lines.size(), "more than one T line");

  // The Terminate counts.
  if (!terminate.empty()) {
    for (size_t section = 0; section < 4; ++section) {
      size_t column = 1 + 8 * section;
      if (terminate[column - 1] != letters[section] ||
          number(terminate, column + 1, 7) != counts[section])
        fault(lines.size(), "T line says '" + std::string(terminate.substr(column - 1, 8)) +
                                "' for " + std::to_string(counts[section]) + " lines");
    }
    if (terminate.substr(32, 40).find_first_not_of(' ') != std::string_view::npos)
      fault(lines.size(), "T line has text behind its counts");
  }

  // Directory Entries.
  struct Entry {
    int type = 0;
    int start = 0;
    int count = 0;
  };
  std::vector<Entry> entries;
  if (directory.size() % 2) fault(directory.back() + 1, "odd number of D lines");
  for (size_t k = 0; k + 1 < directory.size(); k += 2) {
    std::string_view first = lines[directory[k]], second = lines[directory[k + 1]];
    size_t at = directory[k] + 1;
    std::optional<int> type = number(first, 1, 8), type2 = number(second, 1, 8);
    std::optional<int> start = number(first, 9, 8), count = number(second, 25, 8);
    if (!type || type != type2) fault(at, "entity types differ on the two D lines");
    if (!start || !count) fault(at, "no parameter pointer or line count");
    entries.push_back({type.value_or(0), start.value_or(0), count.value_or(0)});
  }

  // Parameter lines: their back pointers, in groups that match the entries in order.
  size_t group = 0;
  for (size_t k = 0; k < parameter.size();) {
    std::string_view line = lines[parameter[k]];
    size_t at = parameter[k] + 1;
    std::optional<int> backpointer = number(line, 66, 7);
    int expected = static_cast<int>(2 * group + 1);
    if (backpointer != expected) {
      fault(at, "back pointer '" + std::string(line.substr(65, 7)) + "', expected " +
                    std::to_string(expected));
      return faults;
    }
    size_t first = k;
    while (k < parameter.size() && number(lines[parameter[k]], 66, 7) == expected) {
      if (lines[parameter[k]][64] != ' ') fault(parameter[k] + 1, "column 65 is not blank");
      ++k;
    }
    int start = static_cast<int>(first) + 1;
    int count = static_cast<int>(k - first);
    if (group >= entries.size()) {
      fault(at, "P lines for DE " + std::to_string(expected) + ", which does not exist");
      return faults;
    }
    Entry const& entry = entries[group];
    if (entry.start != start || entry.count != count)
      fault(at, "DE " + std::to_string(expected) + " says lines " + std::to_string(entry.start) +
                    "+" + std::to_string(entry.count) + ", its record has " +
                    std::to_string(start) + "+" + std::to_string(count));
    std::string type = std::to_string(entry.type);
    if (line.substr(0, type.size()) != type || line[type.size()] == ' ' ||
        (line[type.size()] >= '0' && line[type.size()] <= '9'))
      fault(at, "record of DE " + std::to_string(expected) + " does not start with " + type);
    ++group;
  }
  if (group != entries.size())
    fault(lines.size(), std::to_string(entries.size() - group) + " entries without P lines");
  return faults;
}

// The parameter record of a DE number as written: columns 1 to 64 of its P lines, each without
// trailing blanks, joined. Fields never break over a line end, so this is the record.
inline std::string written_record(std::string_view text, int de_number) {
  std::string record;
  for (size_t at = 0; at + 80 <= text.size(); at += 81)
    if (text[at + 72] == 'P' && fixed_number(text.substr(at + 65, 7)) == de_number) {
      std::string_view data = text.substr(at, 64);
      record += data.substr(0, data.find_last_not_of(' ') + 1);
    }
  return record;
}

} // namespace igs_test
