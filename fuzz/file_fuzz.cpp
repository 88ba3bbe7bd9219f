// Arbitrary bytes as an IGES file, taken down the whole road: read, check, print, clean(0) and
// clean(1) on fresh reads, write, and read what was written. A broken promise of the library
// (a written text that is malformed, does not read back, or changes when written again) is
// reported and aborts, so the fuzzer keeps the input as a crash.
#include "support/wholeRoad.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
  std::string_view bytes(reinterpret_cast<char const*>(data), size);
  auto faults = igs_test::whole_road_faults(bytes, "input");
  if (faults.empty()) return 0;
  for (auto const& fault : faults) std::fprintf(stderr, "%s\n", fault.c_str());
  std::abort();
}
