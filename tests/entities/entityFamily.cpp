#include "entities/entityFamily.h"

#include "core/igsCurrentFileScope.h"
#include "core/igsNull.h"
#include "support/kvnabs.h"
#include "support/wholeRoad.h"

#include <cctype>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace igs_family_test {

namespace {

// The P lines of a record: cut behind a delimiter so that no line holds more than 64 columns.
igs_input_test::Lines cut(std::string const& data) {
  igs_input_test::Lines lines;
  size_t start = 0;
  while (data.size() - start > 64) {
    size_t end = data.find_last_of(",;", start + 63);
    end = end == std::string::npos || end < start ? start + 63 : end;
    lines.push_back(data.substr(start, end + 1 - start));
    start = end + 1;
  }
  lines.push_back(data.substr(start));
  return lines;
}

// Every active error of the file's log, as the tables write them, sorted.
std::vector<std::string> logged_errors() {
  std::vector<std::string> texts;
  for (int id = igsObjectLog; id <= igsTerminateLog; ++id)
    for (igsSimpleSectionLogIT it(&igsObjectSystem::log().get_section_log(igsLogID(id))); ++it;) {
      std::string text = igs_entity_test::describe(*it());
      if (id <= igsStructureLog)
        text = "@" + std::to_string(static_cast<igsIndexedError*>(it())->key()) + " " + text;
      texts.push_back(text);
    }
  std::sort(texts.begin(), texts.end());
  return texts;
}

} // namespace

std::vector<std::string> checked(igsFile const& file) {
  igsCurrentFileScope current(file);
  file.check();
  return logged_errors();
}

namespace {

struct ReadFile {
  std::unique_ptr<igsFile> file = std::make_unique<igsFile>();
  kvnabsStringOutput messages;
  int result = 0;
  explicit ReadFile(std::string const& text) {
    file->set_message_stream(&messages);
    std::istringstream in(text);
    std::ostringstream notes;
    utOstream out(notes);
    result = file->read(in, out);
  }
  std::vector<std::string> checked() { return igs_family_test::checked(*file); }
};

std::string printed(igsFile const& file) {
  std::ostringstream text;
  utOstream out(text);
  file.print(out);
  return text.str();
}

std::string faults_text(std::vector<std::string> const& faults) {
  std::string text;
  for (auto const& f : faults) text += f + "\n";
  return text;
}

} // namespace

// Compares the text with the fixture file, or writes the file under IGS_UPDATE_FIXTURES.
void expect_fixture(std::filesystem::path const& path, std::string const& text) {
  if (char const* update = std::getenv("IGS_UPDATE_FIXTURES"); update && *update == '1') {
    std::ofstream(path, std::ios::binary) << text;
    return;
  }
  EXPECT_EQ(igs_test::read_file(path), text) << path
                                             << " differs; IGS_UPDATE_FIXTURES=1 "
                                                "writes it anew";
}

std::string registered_class(int type, int form) {
  struct Registration {
    int type, min_form, max_form;
    char const* name;
  };
  static Registration const table[] = {
#define IGS_ENTITY(type, min_form, max_form, Class) {type, min_form, max_form, #Class},
#include "entities/igsEntityTable.def"
  };
  for (auto const& r : table)
    if (r.type == type && r.min_form <= form && form <= r.max_form) return r.name;
  return {};
}

std::string file_text(Records const& records) {
  igs_read_test::FileText text;
  for (Record const& r : records) {
    igs_read_test::EntityText& e = text.entity(text.add(r.type, r.form, cut(r.data), r.matrix));
    e.colour = r.colour;
    e.line_font = r.line_font;
    e.status = r.status;
  }
  return text.text();
}

void expect_family(Family const& family) {
  SCOPED_TRACE(family.name);
  std::string const text = file_text(family.records);
  expect_fixture(igs_test::source_dir() / "fuzz/seeds" / (std::string(family.name) + ".igs"), text);

  ReadFile f(text);
  ASSERT_EQ(f.result, 1);
  ASSERT_EQ(f.file->num_entities(), static_cast<int>(family.records.size()));
  for (size_t i = 0; i < family.records.size(); ++i) {
    Record const& r = family.records[i];
    igsObjectPtr entity(2 * static_cast<int>(i) + 1);
    ASSERT_TRUE(entity) << r.data;
    EXPECT_EQ(entity->objtype().name(), registered_class(r.type, r.form)) << r.data;
  }
  EXPECT_EQ(f.checked(), family.raised);
  expect_fixture(igs_test::source_dir() / "tests/entities" / family.folder /
                     (std::string(family.name) + ".print"),
                 printed(*f.file));
  auto faults = igs_test::round_trip_faults(*f.file, family.name);
  EXPECT_TRUE(faults.empty()) << faults_text(faults);
}

std::string written_record(igsFile& file, int de_number) {
  return igs_test::written_record(igs_test::written_text(file), de_number);
}

void expect_damage(Damage const& damage) {
  SCOPED_TRACE(damage.what);
  std::string const text = file_text(damage.records);
  if (char const* dir = std::getenv("IGS_DAMAGE_FILES"); dir && *dir) {
    std::string name = damage.what;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !std::isalnum(c); }, '_');
    std::ofstream(std::filesystem::path(dir) / (name.substr(0, 60) + ".igs"), std::ios::binary)
        << text;
  }
  {
    ReadFile f(text);
    EXPECT_EQ(f.result, 1);
    EXPECT_EQ(f.checked(), damage.raised);
    f.messages.clear();
    f.file->clean(0);
    EXPECT_EQ(f.messages.text(), damage.message);
    EXPECT_EQ(f.checked(), damage.left);
    if (!damage.repaired.empty()) {
      EXPECT_EQ(written_record(*f.file, 1), damage.repaired);
    }
    std::vector<std::string> faults;
    bool holds_null = false;
    for (igsFileIT it(f.file.get()); ++it;) holds_null = holds_null || it()->isa(igsNull::type());
    if (holds_null) {
      igs_test::SilentOutput sink;
      igs_test::judge_written_text(*f.file, sink, "clean(0)", faults);
    } else {
      faults = igs_test::round_trip_faults(*f.file, "clean(0)");
    }
    EXPECT_TRUE(faults.empty()) << faults_text(faults);
  }
  // What stays bad goes with clean(1): what is left has no error, and its text reads back to
  // a file that checks clean.
  ReadFile f(text);
  f.file->clean(1);
  for (igsFileIT it(f.file.get()); ++it;)
    EXPECT_EQ(it()->num_logged_errors(), 0) << "DE " << it()->de_number() << " left by clean(1)";
  int result = 0;
  auto again = igs_test::read_text(igs_test::written_text(*f.file), result);
  EXPECT_EQ(result, 1);
  EXPECT_EQ(checked(*again), damage.after_delete) << "what clean(1) left, read back";
  auto faults = igs_test::round_trip_faults(*again, "clean(1)");
  EXPECT_TRUE(faults.empty()) << faults_text(faults);
}

} // namespace igs_family_test
