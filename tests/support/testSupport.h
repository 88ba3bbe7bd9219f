// Helpers shared by the test binaries: where the real files lie, and reading them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace igs_test {

// The folder of real IGES files: $IGS_CORPUS_DIR if set, else the configured default.
std::filesystem::path corpus_dir();

// Every .igs / .iges file of the corpus folder, sorted by name; empty when it is absent.
std::vector<std::filesystem::path> corpus_files();

// The whole content of a file as bytes; empty if it cannot be read.
std::string read_file(std::filesystem::path const& path);

// The records of a file as a plain reader sees them: physical lines cut at LF (a CR before it
// dropped), and a run longer than a record cut into 80-column records. The section letter of
// a record stands 8 columns from its end, whatever its width.
std::vector<std::string> records_of(std::string const& bytes);

// The repository's own folder, for the shipped samples.
std::filesystem::path source_dir();

} // namespace igs_test

// Skips the calling test when the corpus folder holds no files.
#define IGS_REQUIRE_CORPUS(files)                                                                  \
  auto files = igs_test::corpus_files();                                                           \
  if (files.empty()) GTEST_SKIP() << "no corpus at " << igs_test::corpus_dir()
