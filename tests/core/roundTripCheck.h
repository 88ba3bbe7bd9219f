// The round trip of a file through writing and reading: the file is written, the text read
// into a second file, and the two compared entity by entity (type, form, the fields of the
// Directory Entry, and every value as print shows it); then the second file is written and
// must give the same bytes as the first. Both texts must pass the structural check.
#pragma once

#include "core/igsCurrentFileScope.h"
#include "core/igsFile.h"
#include "core/igsObject.h"
#include "core/igsObjectSystem.h"
#include "core/writtenFileCheck.h"
#include "sections/igsDirectoryEntry.h"
#include "support/utOstream.h"

#include <charconv>
#include <cmath>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace igs_test {

// The text of the file as written; empty if the write failed.
inline std::string written_text(igsFile& file) {
  std::ostringstream text;
  std::ostringstream notes;
  utOstream messages(notes);
  return file.write(text, messages) ? text.str() : std::string();
}

// A new file holding what the text reads as, with the result of the read.
inline std::unique_ptr<igsFile> read_text(std::string const& text, int& result) {
  auto file = std::make_unique<igsFile>();
  std::istringstream in(text);
  std::ostringstream notes;
  utOstream messages(notes);
  result = file->read(in, messages);
  return file;
}

// The print of each entity in slot order, without the blocks of Directory Entries (their
// fields are compared as numbers), with the file current, all in one walk of that file: an
// entity's contents print once, under the first entity that shows them. What stays are the
// values of the parameter data, of referenced entities too.
//
// The Directory Entry's print is left out because it shows how a definition pointer is bound,
// and a pointer whose definition was dropped after reading (an entity of a class the library
// does not have) keeps its number; written, the number names whichever entity has it now.
inline std::vector<std::string> entity_prints(igsFile const& file) {
  igsCurrentFileScope current(file);
  std::vector<std::string> prints;
  // One walk, or a curve would print again under every edge list and loop above it.
  igsObjectSystem::reentrant_start();
  for (igsFileIT it(&file); ++it;) {
    std::ostringstream text;
    utOstream out(text);
    it()->print(out);
    std::istringstream lines(text.str());
    std::string print, line, block_end;
    while (std::getline(lines, line)) {
      if (!block_end.empty()) {
        if (line == block_end) block_end.clear();
        continue;
      }
      size_t indent = line.find_first_not_of(' ');
      if (indent != std::string::npos &&
          line.compare(indent, std::string::npos, "DirectoryEntry = {") == 0) {
        block_end = line.substr(0, indent) + "}";
        continue;
      }
      print += line + "\n";
    }
    prints.push_back(print);
  }
  igsObjectSystem::reentrant_end();
  return prints;
}

// Where two prints differ: the first place at which their characters differ, or their numbers
// differ by more than a relative 1e-14 (reals are written with 15 significant digits, so a
// value with more digits comes back rounded). Between two numbers a comma and a line end are
// the same: a print that keeps equal values on one line (knots) may join values that differed
// only in digits the write rounds off. Empty when they agree.
inline std::string print_difference(std::string const& a, std::string const& b) {
  auto starts_number = [](std::string const& s, size_t i) {
    auto digit = [&](size_t k) { return k < s.size() && s[k] >= '0' && s[k] <= '9'; };
    return digit(i) || ((s[i] == '-' || s[i] == '.') && digit(i + 1)) ||
           (s[i] == '-' && i + 2 < s.size() && s[i + 1] == '.' && digit(i + 2));
  };
  size_t i = 0, j = 0;
  while (i < a.size() && j < b.size()) {
    if (starts_number(a, i) && starts_number(b, j)) {
      double x = 0.0, y = 0.0;
      auto rx = std::from_chars(a.data() + i, a.data() + a.size(), x);
      auto ry = std::from_chars(b.data() + j, b.data() + b.size(), y);
      if (rx.ec == std::errc() && ry.ec == std::errc()) {
        double scale = std::fmax(std::fabs(x), std::fabs(y));
        if (std::fabs(x - y) > 1e-14 * scale)
          return "number " + a.substr(i, static_cast<size_t>(rx.ptr - a.data()) - i) + " vs " +
                 b.substr(j, static_cast<size_t>(ry.ptr - b.data()) - j) + " after \"" +
                 a.substr(i > 60 ? i - 60 : 0, i > 60 ? 60 : i) + "\"";
        i = static_cast<size_t>(rx.ptr - a.data());
        j = static_cast<size_t>(ry.ptr - b.data());
        continue;
      }
    }
    // A run of separators matches any other: a print groups equal values on one line, and
    // values that differ in their last digits are written equal.
    auto separator = [](char c) { return c == ',' || c == ' ' || c == '\n'; };
    if (separator(a[i]) && separator(b[j])) {
      while (i < a.size() && separator(a[i])) ++i;
      while (j < b.size() && separator(b[j])) ++j;
      continue;
    }
    if (a[i] != b[j])
      return "text differs after \"" + a.substr(i > 60 ? i - 60 : 0, i > 60 ? 60 : i) + "\"";
    ++i;
    ++j;
  }
  if (i != a.size() || j != b.size()) return "one print is longer";
  return "";
}

// The text without the blanks around it.
inline std::string_view trimmed(std::string_view text) {
  size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

// The fields with the label's blanks cut: the label stands right-justified in its columns
// and reads back with the blanks before it.
inline igsDirectoryFields label_trimmed(igsDirectoryFields fields) {
  fields.entity_label = utString(std::string(trimmed(fields.entity_label.view())));
  return fields;
}

// What goes wrong in the round trip of the file (which is packed by the write); empty when
// nothing does. `name` heads each fault.
inline std::vector<std::string> round_trip_faults(igsFile& file, std::string const& name) {
  std::vector<std::string> faults;
  auto fault = [&](std::string const& what) { faults.push_back(name + ": " + what); };
  std::string const first = written_text(file);
  if (first.empty()) {
    fault("the first write failed");
    return faults;
  }
  for (std::string const& f : written_file_faults(first)) fault("first text, " + f);
  int read = 0;
  std::unique_ptr<igsFile> again = read_text(first, read);
  if (!read) fault("the written text does not read to its end");
  if (again->num_entities() != file.num_entities())
    fault(std::to_string(again->num_entities()) + " entities read back of " +
          std::to_string(file.num_entities()));

  // Entity by entity.
  std::vector<std::string> before = entity_prints(file), after = entity_prints(*again);
  igsFileIT it_before(&file), it_after(again.get());
  for (size_t k = 0; ++it_before && ++it_after && faults.size() < 10; ++k) {
    igsObject* a = it_before();
    igsObject* b = it_after();
    std::string at = "DE " + std::to_string(a->de_number()) + ": ";
    if (a->de_number() != b->de_number())
      fault(at + "read back as DE " + std::to_string(b->de_number()));
    if (a->objtype().name() != std::string(b->objtype().name()))
      fault(at + a->objtype().name() + " read back as " + b->objtype().name());
    igsDirectoryFields fa = label_trimmed(a->directory_entry().fields());
    igsDirectoryFields fb = label_trimmed(b->directory_entry().fields());
    if (!(fa == fb)) fault(at + "Directory Entry fields differ");
    if (k < before.size() && k < after.size())
      if (std::string d = print_difference(before[k], after[k]); !d.empty()) fault(at + d);
  }

  // Writing what was read gives the same bytes.
  std::string const second = written_text(*again);
  if (second != first) {
    size_t at = 0;
    while (at < first.size() && at < second.size() && first[at] == second[at]) ++at;
    fault("the second text differs from the first in line " + std::to_string(at / 81 + 1));
  }
  return faults;
}

} // namespace igs_test
