// The Global section of every real file, read by the library and compared with a simple
// parse of its G lines of the test's own. Writing it and reading it back is the whole road's.
#include "sectionsTestSupport.h"

#include "support/testSupport.h"

#include <cstdio>
#include <cstdlib>
#include <optional>

using namespace igs_sections_test;

namespace {

// The data columns of the G lines, joined.
std::string joined_g_data(std::string const& bytes) {
  std::string data;
  for (std::string const& record : igs_test::records_of(bytes)) {
    if (record.size() < 9 || record[record.size() - 8] != 'G') continue;
    std::string columns = record.substr(0, record.size() - 8);
    columns.resize(72, ' ');
    data += columns;
  }
  return data;
}

// One field of the simple parse.
struct Field {
  bool present = false;
  std::string text; // a Hollerith body, or the token with its blanks dropped
};

// The parameters as the G lines hold them, fields counted from 1. Parsing stops at the record
// delimiter, or where a Hollerith string's count does not fit: from that field on nothing is
// known (`known` is the number of fields that are).
struct GlobalText {
  bool delimiters_read = false;
  char parameter = ',';
  char record = ';';
  std::vector<Field> fields = std::vector<Field>(26);
  int known = 25;
};

GlobalText parse_global(std::string const& data) {
  GlobalText g;
  size_t pos = 0;
  if (data.compare(0, 2, "1H") == 0 && data.size() > 3 && data[2] == data[3]) {
    g.parameter = data[2];
    pos = 4;
  } else if (!data.empty() && data[0] == ',') {
    pos = 1;
  } else {
    g.known = 0;
    return g;
  }
  g.delimiters_read = true;
  // Until the record delimiter is read, only a Hollerith string can stand in its field.
  char record = g.parameter == ';' ? ',' : ';';
  bool ended = false;
  for (int n = 2; n <= 25 && !ended; ++n) {
    while (pos < data.size() && data[pos] == ' ') ++pos;
    Field& field = g.fields[static_cast<size_t>(n)];
    size_t digits = pos;
    while (digits < data.size() && data[digits] >= '0' && data[digits] <= '9') ++digits;
    if (digits > pos && digits < data.size() && data[digits] == 'H') {
      size_t length = std::strtoul(data.substr(pos, digits - pos).c_str(), nullptr, 10);
      field.present = true;
      field.text = data.substr(digits + 1, length);
      pos = digits + 1 + length;
      while (pos < data.size() && data[pos] == ' ') ++pos;
      if (pos >= data.size() || (data[pos] != g.parameter && data[pos] != record)) {
        g.known = n - 1; // the count does not fit: this field and all behind are unknown
        return g;
      }
    } else {
      while (pos < data.size() && data[pos] != g.parameter && data[pos] != record) {
        if (data[pos] != ' ') field.text += data[pos];
        ++pos;
      }
      field.present = !field.text.empty();
    }
    if (pos >= data.size() || data[pos] == record) ended = true;
    ++pos;
    if (n == 2) {
      if (field.present) g.record = field.text.size() == 1 ? field.text[0] : '\0';
      record = g.record;
    }
  }
  return g;
}

std::optional<int> integer_of(Field const& field) {
  if (!field.present) return std::nullopt;
  char* end = nullptr;
  long value = std::strtol(field.text.c_str(), &end, 10);
  if (*end) return std::nullopt;
  return static_cast<int>(value);
}

struct ReadGlobal {
  int start_result = 0;
  int result = 0;
};

// Reads the Start and Global sections of the bytes into the section, as the file reader does.
ReadGlobal read_sections(std::string const& bytes, igsGlobalSection& global) {
  std::istringstream in(bytes);
  igsInStream stream(in);
  ReadGlobal r;
  if (!stream.reset()) return r;
  igsStartSection start;
  r.start_result = start.read(stream);
  std::ostringstream ignored;
  utOstream out(ignored);
  int bad = 0;
  int blank = 0;
  if (r.start_result) r.result = global.read(stream, out, bad, blank);
  return r;
}

// What the section holds, one line per compared parameter.
Lines described(igsGlobalSection const& g, int known) {
  Lines lines;
  auto add = [&](int n, std::string const& text) {
    if (n <= known) lines.push_back(std::to_string(n) + ": " + text);
  };
  add(1, std::string(1, g.parameter_delimiter()));
  add(2, std::string(1, g.record_delimiter()));
  add(5, g.system_id().c_str());
  add(6, g.preprocessor_version().c_str());
  add(14, std::to_string(g.units().type()));
  add(15, g.units().name().c_str());
  add(18, g.file_creation_date().date_string().c_str());
  add(23, std::to_string(g.iges_version()));
  if (g.iges_version() >= 8) add(25, g.file_modification_date().date_string().c_str());
  return lines;
}

// The same lines from the simple parse, with the values that the reader gives to parameters
// the file leaves out.
Lines described(GlobalText const& g) {
  Lines lines;
  auto add = [&](int n, std::string const& text) {
    if (n <= g.known) lines.push_back(std::to_string(n) + ": " + text);
  };
  auto text = [&](int n, std::string const& absent) {
    Field const& f = g.fields[static_cast<size_t>(n)];
    return f.present ? f.text : absent;
  };
  add(1, std::string(1, g.parameter));
  add(2, std::string(1, g.record));
  add(5, text(5, ""));
  add(6, text(6, ""));
  add(14, std::to_string(integer_of(g.fields[14]).value_or(igs_unset_int)));
  add(15, text(15, ""));
  add(18, text(18, fixed_today));
  int version = integer_of(g.fields[23]).value_or(3);
  add(23, std::to_string(version));
  if (version >= 8) add(25, text(25, text(18, fixed_today)));
  return lines;
}

TEST(SectionsCorpus, EveryGlobalSectionReadsAsItsLinesHoldIt) {
  IGS_REQUIRE_CORPUS(files);
  ClockOverride clock;
  int compared = 0;
  int cut_short = 0;
  for (auto const& path : files) {
    SCOPED_TRACE(path.filename().string());
    std::string bytes = igs_test::read_file(path);
    auto file = std::make_unique<igsFile>();
    igsGlobalSection global(file.get());
    ReadGlobal r = read_sections(bytes, global);
    GlobalText expected = parse_global(joined_g_data(bytes));
    ASSERT_TRUE(expected.delimiters_read);
    EXPECT_EQ(r.start_result, 1);
    EXPECT_EQ(r.result, 1);
    EXPECT_EQ(described(global, expected.known), described(expected));
    ++compared;
    if (expected.known < 25) ++cut_short;
  }
  EXPECT_GT(compared, 0);
  std::printf("compared %d Global sections, %d of them up to a miscounted Hollerith string\n",
              compared, cut_short);
  // Only a few senders miscount their Hollerith strings.
  EXPECT_LE(cut_short, 3);
}

} // namespace
