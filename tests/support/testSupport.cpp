#include "testSupport.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace igs_test {

std::filesystem::path corpus_dir() {
  if (char const* env = std::getenv("IGS_CORPUS_DIR"); env && *env) return env;
  return IGS_DEFAULT_CORPUS_DIR;
}

std::vector<std::filesystem::path> corpus_files() {
  std::vector<std::filesystem::path> files;
  std::error_code ec;
  for (auto const& entry : std::filesystem::directory_iterator(corpus_dir(), ec)) {
    auto ext = entry.path().extension().string();
    std::transform(ext.begin(), ext.end(), ext.begin(), ::tolower);
    if (entry.is_regular_file() && (ext == ".igs" || ext == ".iges")) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::string read_file(std::filesystem::path const& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream out;
  out << in.rdbuf();
  return out.str();
}

std::vector<std::string> records_of(std::string const& bytes) {
  std::vector<std::string> records;
  size_t start = 0;
  while (start < bytes.size()) {
    size_t end = bytes.find('\n', start);
    if (end == std::string::npos) end = bytes.size();
    std::string line = bytes.substr(start, end - start);
    start = end + 1;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    for (size_t at = 0; at < line.size(); at += 80)
      records.push_back(line.substr(at, line.size() > 80 ? 80 : std::string::npos));
  }
  return records;
}

std::filesystem::path source_dir() {
  return IGS_TEST_SOURCE_DIR;
}

} // namespace igs_test
