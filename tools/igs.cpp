// igs: check, repair, print and summarise IGES files with the igs library.
//
//   igs check FILE [--json]            exit 0 clean, 1 errors logged, 2 unreadable
//   igs repair FILE -o OUT [--delete-bad]
//   igs print FILE [--de N]
//   igs stats FILE
//
// The tool uses only the library's public interface, as any host would.
#include "igsToolReport.h"

#include "core/igsFile.h"
#include "core/igsInfoDB.h"
#include "core/igsObject.h"
#include "core/igsObjectSystem.h"
#include "input/igsInBuffer.h"
#include "sections/igsDirectoryEntry.h"
#include "sections/igsGlobalSection.h"
#include "sections/igsStartSection.h"
#include "sections/igsTerminateSection.h"
#include "support/kvnabs.h"
#include "support/utOstream.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr char const* version_text = "igs 0.1.0";

constexpr char const* usage_text =
    "usage: igs COMMAND FILE [options]\n"
    "\n"
    "commands:\n"
    "  check FILE [--json]              read and check FILE, list every logged error\n"
    "                                   (exit 0: clean, 1: errors logged, 2: unreadable)\n"
    "  repair FILE -o OUT [--delete-bad] read, check, repair and write the result to OUT;\n"
    "                                   --delete-bad removes entities that stay bad\n"
    "  print FILE [--de N]              the diagnostic text of the file, or of entity DE N\n"
    "  stats FILE                       entities by type and form, units, sender, dates,\n"
    "                                   section sizes\n"
    "\n"
    "options:\n"
    "  --quiet     no progress bar and no repair warnings\n"
    "  --help      this text\n"
    "  --version   the version\n";

// Bad use: one clear line on standard error, and status 2.
int fail(std::string const& message) {
  std::cerr << "igs: " << message << "\n";
  return 2;
}

struct Options {
  std::string command;
  std::string file;
  std::string output;
  bool json = false;
  bool delete_bad = false;
  bool quiet = false;
  std::optional<int> de;
};

// Parses the command line; an empty optional error means success.
std::optional<std::string> parse(int argc, char** argv, Options& o) {
  std::vector<std::string> positional;
  for (int i = 1; i < argc; ++i) {
    std::string a = argv[i];
    auto value = [&](char const* what) -> std::optional<std::string> {
      if (i + 1 >= argc) return std::nullopt;
      (void)what;
      return std::string(argv[++i]);
    };
    if (a == "--json") {
      o.json = true;
    } else if (a == "--delete-bad") {
      o.delete_bad = true;
    } else if (a == "--quiet" || a == "-q") {
      o.quiet = true;
    } else if (a == "-o" || a == "--output") {
      auto v = value("an output path");
      if (!v) return "option " + a + " needs an output path";
      o.output = *v;
    } else if (a == "--de") {
      auto v = value("a DE number");
      char* end = nullptr;
      long n = v ? std::strtol(v->c_str(), &end, 10) : 0;
      if (!v || *end || n <= 0 || n % 2 == 0 || n > 99999999)
        return "option --de needs an odd DE number above 0";
      o.de = static_cast<int>(n);
    } else if (a.size() > 1 && a[0] == '-') {
      return "unknown option '" + a + "' (see igs --help)";
    } else {
      positional.push_back(a);
    }
  }
  if (positional.empty()) return "no command given (see igs --help)";
  o.command = positional[0];
  if (o.command != "check" && o.command != "repair" && o.command != "print" && o.command != "stats")
    return "unknown command '" + o.command + "' (see igs --help)";
  if (positional.size() < 2) return "igs " + o.command + " needs a FILE";
  if (positional.size() > 2) return "too many arguments: '" + positional[2] + "'";
  o.file = positional[1];
  if (o.command == "repair" && o.output.empty())
    return "igs repair needs -o OUT (the input is never overwritten unless -o names it)";
  if (o.command != "repair" && (!o.output.empty() || o.delete_bad))
    return "-o and --delete-bad belong to igs repair";
  if (o.command != "check" && o.json) return "--json belongs to igs check";
  if (o.command != "print" && o.de) return "--de belongs to igs print";
  return std::nullopt;
}

// The progress bar: the reader calls back after each line; the bar is redrawn at most four
// times a second, and only when standard error is a terminal.
struct Progress {
  static inline long lines = 0;
  static inline double expected_lines = 1;
  static inline std::chrono::steady_clock::time_point last;
  static void line_read() {
    if ((++lines & 1023) != 0) return;
    auto now = std::chrono::steady_clock::now();
    if (now - last < std::chrono::milliseconds(250)) return;
    last = now;
    int percent =
        static_cast<int>(std::min(99.0, 100.0 * static_cast<double>(lines) / expected_lines));
    std::fprintf(stderr, "\rreading %3d%%", percent);
  }
  static void start(std::uintmax_t bytes) {
    lines = 0;
    expected_lines = std::max(1.0, static_cast<double>(bytes) / 81.0);
    last = std::chrono::steady_clock::now();
    igsInBuffer::set_line_read_callback(&line_read);
  }
  static void stop() {
    igsInBuffer::set_line_read_callback(nullptr);
    if (lines >= 1024) std::fprintf(stderr, "\r            \r");
  }
};

// Most bytes of a binary file are no text; a damaged IGES file has at worst some NULs.
bool looks_binary(std::string const& head) {
  size_t odd = 0;
  for (unsigned char c : head)
    if ((c < 0x20 && c != '\t' && c != '\n' && c != '\r' && c != '\f' && c != '\v' && c != 0) ||
        c >= 0x7f)
      ++odd;
  return !head.empty() && odd * 10 > head.size() * 3;
}

// Where the library's messages go: repair warnings of the file and the reader's line-level
// warnings to standard error, or nowhere with --quiet.
struct Messages {
  kvnabsStreamOutput to_stderr{std::cerr};
  kvnabsStringOutput discarded;
  kvnabsOutput* sink = nullptr;
  explicit Messages(bool quiet) {
    sink = quiet ? static_cast<kvnabsOutput*>(&discarded) : &to_stderr;
    get_igs_stream().set_error_stream(sink);
    get_igs_stream().set_output_stream(sink);
  }
  ~Messages() {
    get_igs_stream().set_error_stream(nullptr);
    get_igs_stream().set_output_stream(nullptr);
  }
};

// Opens and reads FILE into a new current igsFile. On failure, gives the message to print.
std::unique_ptr<igsFile> load(Options const& o, Messages& messages_sink, std::string& problem) {
  std::error_code ec;
  fs::path path(o.file);
  if (!fs::exists(path, ec)) {
    problem = "cannot open '" + o.file + "': no such file";
    return nullptr;
  }
  if (fs::is_directory(path, ec)) {
    problem = "'" + o.file + "' is a directory, not a file";
    return nullptr;
  }
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    problem = "cannot open '" + o.file + "': " + std::strerror(errno);
    return nullptr;
  }
  auto size = fs::file_size(path, ec);
  if (!ec && size == 0) {
    problem = "'" + o.file + "' is empty: not an IGES file";
    return nullptr;
  }
  std::string head(4096, '\0');
  in.read(head.data(), static_cast<std::streamsize>(head.size()));
  head.resize(static_cast<size_t>(in.gcount()));
  if (looks_binary(head)) {
    problem = "'" + o.file + "' looks like a binary file, not an IGES file";
    return nullptr;
  }
  in.clear();
  in.seekg(0);

  auto file = std::make_unique<igsFile>();
  igsObjectSystem::set_current_file(*file);
  file->set_message_stream(messages_sink.sink);
  bool progress = !o.quiet && isatty(STDERR_FILENO);
  if (progress) Progress::start(ec ? 0 : size);
  std::ostringstream discard;
  utOstream messages(discard);
  int result = file->read(in, messages);
  if (progress) Progress::stop();
  // A read that stopped early still counts when it met entities, known to us or not, even
  // ones whose records could not be read. The log is looked at only then: gathering it maps
  // every entity, which a large file that read well need not pay for.
  if (!result && file->num_entities() == 0 && file->num_nulls() == 0 && file->num_unknowns() == 0) {
    auto errors = tool_collect_errors(*file);
    bool const met_records =
        std::any_of(errors.begin(), errors.end(),
                    [](ToolErrorRecord const& e) { return e.class_name == "igsFileNoPDData"; });
    if (!met_records) {
      problem = "'" + o.file + "' could not be read as an IGES file";
      // What ended the reading, when the log knows it (a delimiter of the Global section).
      if (!errors.empty()) problem += ": " + tool_error_text(errors.front());
      return nullptr;
    }
  }
  return file;
}

int command_check(Options const& o) {
  std::string problem;
  Messages messages_sink(o.quiet);
  auto file = load(o, messages_sink, problem);
  if (!file) {
    if (o.json)
      std::cout << "{\n  \"file\": " << tool_json_string(o.file)
                << ",\n  \"readable\": false,\n  \"problem\": " << tool_json_string(problem)
                << "\n}\n";
    return fail(problem);
  }
  file->check();
  auto errors = tool_collect_errors(*file);
  if (o.json) {
    std::cout << "{\n  \"file\": " << tool_json_string(o.file) << ",\n  \"readable\": true"
              << ",\n  \"entities\": " << file->num_entities()
              << ",\n  \"nulls_dropped\": " << file->num_nulls()
              << ",\n  \"unknowns_dropped\": " << file->num_unknowns()
              << ",\n  \"error_counts\": " << tool_json_counts(errors)
              << ",\n  \"errors\": " << tool_json_errors(errors) << "\n}\n";
  } else {
    tool_print_errors(std::cout, errors);
    std::cout << o.file << ": " << file->num_entities() << " entities; " << errors.size()
              << " errors (" << tool_section_counts_text(errors) << ")\n";
  }
  return errors.empty() ? 0 : 1;
}

// Errors as (class, DE) pairs, to tell what a repair settled.
std::multimap<std::string, int> identities(std::vector<ToolErrorRecord> const& errors) {
  std::multimap<std::string, int> ids;
  for (auto const& e : errors) ids.emplace(e.class_name, e.de);
  return ids;
}

int command_repair(Options const& o) {
  std::string problem;
  Messages messages_sink(o.quiet);
  auto file = load(o, messages_sink, problem);
  if (!file) return fail(problem);
  fs::path out_path(o.output);
  fs::path folder = out_path.has_parent_path() ? out_path.parent_path() : fs::path(".");
  std::error_code ec;
  if (!fs::is_directory(folder, ec))
    return fail("cannot write '" + o.output + "': no folder '" + folder.string() + "'");
  if (fs::is_directory(out_path, ec))
    return fail("cannot write '" + o.output + "': it is a directory");

  file->check();
  auto found = tool_collect_errors(*file);
  std::vector<int> before;
  for (igsFileIT it(file.get()); ++it;) before.push_back(it()->de_number());

  file->clean(o.delete_bad ? 1 : 0);
  auto remaining = tool_collect_errors(*file);
  std::vector<int> removed;
  std::vector<int> after;
  for (igsFileIT it(file.get()); ++it;) after.push_back(it()->de_number());
  std::set_difference(before.begin(), before.end(), after.begin(), after.end(),
                      std::back_inserter(removed));

  // Written beside the output first and renamed, so a failed write leaves OUT as it was.
  fs::path temporary = out_path;
  temporary += ".igs-partial";
  int written = 0;
  {
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    if (out) {
      file->set_write_dir(utString(folder.string()));
      std::ostringstream discard;
      utOstream messages(discard);
      written = file->write(out, messages);
      out.close();
      written = written && !out.fail();
    }
  }
  if (written) fs::rename(temporary, out_path, ec);
  if (!written || ec) {
    fs::remove(temporary, ec);
    return fail("cannot write '" + o.output + "'");
  }

  auto settled = identities(found);
  for (auto const& [name, de] : identities(remaining)) {
    auto it = settled.find(name);
    while (it != settled.end() && it->first == name && it->second != de) ++it;
    if (it != settled.end() && it->first == name) settled.erase(it);
  }
  std::cout << "found " << found.size() << " errors (" << tool_section_counts_text(found) << ")\n";
  std::cout << "repaired " << settled.size() << " errors\n";
  std::cout << "remaining " << remaining.size() << " errors ("
            << tool_section_counts_text(remaining) << ")\n";
  tool_print_errors(std::cout, remaining);
  std::cout << "removed " << removed.size() << " entities";
  for (size_t i = 0; i < removed.size(); ++i) std::cout << (i ? ", " : ": DE ") << removed[i];
  std::cout << "\nwrote " << o.output << " (" << file->num_entities() << " entities)\n";
  return remaining.empty() ? 0 : 1;
}

int command_print(Options const& o) {
  std::string problem;
  Messages messages_sink(o.quiet);
  auto file = load(o, messages_sink, problem);
  if (!file) return fail(problem);
  utOstream out(std::cout);
  if (!o.de) {
    file->print(out);
    return 0;
  }
  for (igsFileIT it(file.get()); ++it;) {
    if (it()->de_number() == *o.de) {
      it()->print(out);
      return 0;
    }
  }
  return fail("no entity with DE number " + std::to_string(*o.de) + " in '" + o.file + "'");
}

int command_stats(Options const& o) {
  std::string problem;
  Messages messages_sink(o.quiet);
  auto file = load(o, messages_sink, problem);
  if (!file) return fail(problem);
  igsGlobalSection const& g = file->global_section();
  igsTerminateSection const& t = file->terminate_section();
  auto text = [](utString const& s) { return std::string(s.view()); };
  std::cout << "file: " << o.file << "\n";
  std::cout << "sending system: " << text(g.system_id()) << " | " << text(g.preprocessor_version())
            << "\n";
  std::cout << "product: " << text(g.product_id_from_sending_system()) << "\n";
  std::cout << "author: " << text(g.name_of_author()) << " | " << text(g.authors_organization())
            << "\n";
  int version = g.iges_version();
  std::cout << "IGES version: " << version;
  if (igsInfoDB::version_exists(version))
    std::cout << " (" << text(igsInfoDB::version_name(version)) << ")";
  std::cout << "\n";
  int units = g.units().type();
  std::cout << "units: " << units;
  if (igsInfoDB::units_exist(units)) std::cout << " (" << text(igsInfoDB::units_name(units)) << ")";
  std::cout << ", name \"" << text(g.units().name()) << "\"\n";
  std::cout << "created: " << text(g.file_creation_date().date_string()) << "\n";
  if (version > 7)
    std::cout << "modified: " << text(g.file_modification_date().date_string()) << "\n";
  std::cout << "sections (lines): S " << t.start_lines() << ", G " << t.global_lines() << ", D "
            << t.directory_lines() << ", P " << t.parameter_lines() << "\n";
  std::cout << "dropped: " << file->num_nulls() << " Null, " << file->num_unknowns()
            << " Unknown\n";

  std::map<std::pair<int, int>, int> counts;
  for (igsFileIT it(file.get()); ++it;) {
    igsDirectoryEntry const& de = it()->directory_entry();
    ++counts[{de.entity_type(), de.form_number()}];
  }
  std::cout << "entities: " << file->num_entities() << "\n";
  for (auto const& [key, count] : counts) {
    char line[32];
    std::snprintf(line, sizeof line, "%8d  %4d %-4d ", count, key.first, key.second);
    std::cout << line << text(igsInfoDB::entity_form_name(key.first, key.second)) << "\n";
  }
  // The model is not taken apart: main ends the process at once, which frees it whole, where
  // deleting it entity by entity would cost a third of the time of reading it.
  (void)file.release();
  return 0;
}

} // namespace

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
      std::cout << usage_text;
      return 0;
    }
    if (std::strcmp(argv[i], "--version") == 0) {
      std::cout << version_text << "\n";
      return 0;
    }
  }
  Options options;
  if (auto problem = parse(argc, argv, options)) return fail(*problem);
  if (options.command == "check") return command_check(options);
  if (options.command == "repair") return command_repair(options);
  if (options.command == "print") return command_print(options);
  // stats only reads: the process ends without taking the model apart entity by entity, which
  // would cost a third of the reading; the system takes the memory back at once.
  int code = command_stats(options);
  std::cout.flush();
  std::fflush(nullptr);
  std::_Exit(code);
}
