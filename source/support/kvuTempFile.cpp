#include "support/kvuTempFile.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <random>
#include <string>

utString kvu_make_temp_file_name(utString const& directory) {
  std::error_code ec;
  std::filesystem::path folder = directory.length() ? std::filesystem::path(directory.c_str())
                                                    : std::filesystem::temp_directory_path(ec);
  if (ec || !std::filesystem::is_directory(folder, ec)) return utString();

  static std::atomic<unsigned> counter{0};
  std::random_device device;
  std::mt19937_64 random(
      device() ^
      static_cast<unsigned long long>(std::chrono::steady_clock::now().time_since_epoch().count()));
  for (int attempt = 0; attempt < 64; ++attempt) {
    char name[48];
    std::snprintf(name, sizeof name, "igs-%016llx-%u.tmp",
                  static_cast<unsigned long long>(random()), counter++);
    std::filesystem::path path = folder / name;
    // "x" opens exclusively: it fails if the file exists already.
    if (std::FILE* file = std::fopen(path.c_str(), "wbx")) {
      std::fclose(file);
      return utString(path.string());
    }
    if (!std::filesystem::is_directory(folder, ec)) break;
  }
  return utString();
}
