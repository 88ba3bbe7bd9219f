// The igs tool run as a user runs it: exit statuses, key lines of output, the JSON report, bad
// use, the shipped samples, and every real file.
#include "jsonCheck.h"
#include "support/testSupport.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

struct ToolRun {
  int status = -1; // exit status, or -1 when the tool did not exit normally (a crash)
  std::string out; // standard output
  std::string err; // standard error
};

class CliTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder = fs::temp_directory_path() /
             ("igs-cli-" + std::to_string(getpid()) + "-" +
              ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::create_directories(folder);
  }
  void TearDown() override {
    std::error_code ec;
    fs::remove_all(folder, ec);
  }

  // Runs the tool with the arguments (already quoted where needed).
  ToolRun igs(std::string const& arguments) const {
    return run(std::string("'") + IGS_TOOL_PATH + "' " + arguments);
  }
  ToolRun run(std::string const& command) const {
    fs::path out = folder / "stdout.txt", err = folder / "stderr.txt";
    int raw = std::system((command + " >'" + out.string() + "' 2>'" + err.string() + "'").c_str());
    ToolRun r;
    r.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    r.out = igs_test::read_file(out);
    r.err = igs_test::read_file(err);
    return r;
  }
  static std::string quoted(fs::path const& p) { return "'" + p.string() + "'"; }
  fs::path sample(char const* name) const { return igs_test::source_dir() / "examples" / name; }
  fs::path write(char const* name, std::string const& bytes) const {
    fs::path p = folder / name;
    std::ofstream(p, std::ios::binary) << bytes;
    return p;
  }

  fs::path folder;
};

TEST_F(CliTest, SamplesAreWhatTheGeneratorWrites) {
  ToolRun r = run(std::string("'") + IGS_MAKE_SAMPLES_PATH + "' " + quoted(folder));
  ASSERT_EQ(r.status, 0) << r.err;
  for (char const* name : {"bracket.igs", "bracket-damaged.igs"})
    EXPECT_EQ(igs_test::read_file(folder / name), igs_test::read_file(sample(name)))
        << name << " is out of date: run igs_make_samples examples";
}

TEST_F(CliTest, RepairWritesAFileThatChecksClean) {
  fs::path out = folder / "repaired.igs";
  ToolRun r = igs("repair " + quoted(sample("bracket-damaged.igs")) + " -o " + quoted(out));
  EXPECT_EQ(r.status, 0) << r.out << r.err;
  EXPECT_NE(r.out.find("remaining 0 errors"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("removed 0 entities"), std::string::npos) << r.out;
  // The repair told what it did on standard error.
  EXPECT_NE(r.err.find("Warning : There are blank line(s) in this file."), std::string::npos)
      << r.err;
  ToolRun again = igs("check " + quoted(out));
  EXPECT_EQ(again.status, 0) << again.out;
  // The repaired file holds what the clean sample holds.
  ToolRun stats_repaired = igs("stats " + quoted(out));
  ToolRun stats_clean = igs("stats " + quoted(sample("bracket.igs")));
  auto entities = [](std::string const& s) { return s.substr(s.find("entities:")); };
  EXPECT_EQ(entities(stats_repaired.out), entities(stats_clean.out));

  // The input is never overwritten unless -o names it.
  ToolRun no_output = igs("repair " + quoted(sample("bracket-damaged.igs")));
  EXPECT_EQ(no_output.status, 2);
  EXPECT_NE(no_output.err.find("needs -o OUT"), std::string::npos);
}

TEST_F(CliTest, JsonReportParsesAndNamesItsFields) {
  ToolRun r = igs("check --json " + quoted(sample("bracket-damaged.igs")));
  EXPECT_EQ(r.status, 1);
  EXPECT_TRUE(json_valid(r.out)) << r.out;
  for (char const* field :
       {"\"file\"", "\"readable\": true", "\"entities\": 55", "\"error_counts\"", "\"errors\"",
        "\"section\": \"terminate\"", "\"class\": \"igsFileBlankLine\"", "\"arguments\"",
        "\"class\": \"igs100InconsistRad\""})
    EXPECT_NE(r.out.find(field), std::string::npos) << field;
  ToolRun missing = igs("check --json " + quoted(folder / "nothing.igs"));
  EXPECT_EQ(missing.status, 2);
  EXPECT_TRUE(json_valid(missing.out)) << missing.out;
  EXPECT_NE(missing.out.find("\"readable\": false"), std::string::npos);
}

TEST_F(CliTest, PrintAndStats) {
  ToolRun whole = igs("print " + quoted(sample("bracket.igs")));
  EXPECT_EQ(whole.status, 0);
  EXPECT_EQ(whole.out.rfind("IgesFile = {", 0), 0u) << whole.out.substr(0, 200);
  ToolRun one = igs("print --de 1 " + quoted(sample("bracket.igs")));
  EXPECT_EQ(one.status, 0);
  EXPECT_EQ(one.out.rfind("@1(116) = {", 0), 0u) << one.out;
  EXPECT_NE(one.out.find("Coordinates = (20, 30, 0)"), std::string::npos) << one.out;
  ToolRun none = igs("print --de 999 " + quoted(sample("bracket.igs")));
  EXPECT_EQ(none.status, 2);

  ToolRun stats = igs("stats " + quoted(sample("bracket.igs")));
  EXPECT_EQ(stats.status, 0);
  for (char const* expected : {"units: 2 (Millimeters)", "entities: 55", "Circular Arc"})
    EXPECT_NE(stats.out.find(expected), std::string::npos) << expected << "\n" << stats.out;
}

TEST_F(CliTest, BadUseGivesOneLineAndAStatus) {
  fs::path empty = write("empty.igs", "");
  std::string binary;
  for (int i = 0; i < 4096; ++i) binary += static_cast<char>((i * 37) & 0xff);
  fs::path noise = write("noise.bin", binary);
  // One character for both delimiters: the reading ends, and the line says why.
  std::string sample_text = igs_test::read_file(sample("bracket.igs"));
  fs::path same =
      write("same-delimiters.igs", sample_text.replace(sample_text.find("1H;"), 3, "1H,"));
  struct Case {
    std::string arguments;
    int status;
    char const* message;
  };
  Case const cases[] = {
      {"", 2, "no command"},
      {"frobnicate x.igs", 2, "unknown command"},
      {"check", 2, "needs a FILE"},
      {"check --colour " + quoted(sample("bracket.igs")), 2, "unknown option '--colour'"},
      {"check " + quoted(folder / "missing.igs"), 2, "no such file"},
      {"check " + quoted(folder), 2, "is a directory"},
      {"check " + quoted(empty), 2, "is empty"},
      {"check " + quoted(noise), 2, "binary"},
      {"check " + quoted(same), 2, "igsGlobalSectionInvalidRecordDelim  delimiter=','"},
      {"repair " + quoted(sample("bracket.igs")) + " -o " + quoted(folder / "no" / "out.igs"), 2,
       "no folder"},
      {"print --de 2 " + quoted(sample("bracket.igs")), 2, "odd DE number"},
      {"stats --json " + quoted(sample("bracket.igs")), 2, "--json belongs to igs check"},
      {"--help", 0, nullptr},
      {"--version", 0, nullptr},
  };
  for (auto const& c : cases) {
    ToolRun r = igs(c.arguments);
    EXPECT_EQ(r.status, c.status) << c.arguments << "\n" << r.err;
    if (c.message) {
      EXPECT_NE(r.err.find(c.message), std::string::npos) << c.arguments << "\n" << r.err;
      EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
    }
  }
  EXPECT_NE(igs("--help").out.find("usage: igs"), std::string::npos);
  EXPECT_EQ(igs("--version").out, "igs 0.1.0\n");
  if (geteuid() != 0) { // permissions do not stop root
    fs::path locked = write("locked.igs", igs_test::read_file(sample("bracket.igs")));
    fs::permissions(locked, fs::perms::none);
    ToolRun r = igs("check " + quoted(locked));
    EXPECT_EQ(r.status, 2);
    EXPECT_NE(r.err.find("cannot open"), std::string::npos) << r.err;
  }
}

TEST_F(CliTest, EveryRealFileChecksAndRepairsWithoutACrash) {
  IGS_REQUIRE_CORPUS(files);
  for (auto const& path : files) {
    ToolRun check = igs("check --quiet " + quoted(path));
    EXPECT_TRUE(check.status == 0 || check.status == 1)
        << path.filename() << " status " << check.status << "\n"
        << check.err;
    ToolRun json = igs("check --json --quiet " + quoted(path));
    EXPECT_TRUE(json_valid(json.out)) << path.filename();
    fs::path out = folder / "out.igs";
    ToolRun repair = igs("repair --quiet " + quoted(path) + " -o " + quoted(out));
    EXPECT_TRUE(repair.status == 0 || repair.status == 1)
        << path.filename() << " status " << repair.status << "\n"
        << repair.err;
  }
}

} // namespace
