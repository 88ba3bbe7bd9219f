// Arbitrary bytes as an IGES file, walked through the input pipeline: every section's lines,
// and every field of every record read as each kind of value in turn.
#include "input/igsInStream.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
  std::istringstream in(std::string(reinterpret_cast<char const*>(data), size));
  igsInStream stream(in);
  int kind = 0;
  // Every read either consumes input or meets a stop; a stop is lifted by reset, and a reset
  // that cannot lift it ends the walk. The guard only bounds pathological inputs.
  for (int guard = 0; guard < 100000 && stream.reset(); ++guard) {
    int i = 0;
    double d = 0.0;
    utString s;
    for (int field = 0; field < 1000 && !stream.frozen(); ++field) {
      switch (kind++ % 5) {
      case 0:
        stream.read_integer(i);
        break;
      case 1:
        stream.read_double(d);
        break;
      case 2:
        stream.read_holerith(s);
        break;
      case 3:
        stream.read_integer(8, i);
        break;
      default:
        stream.read_string(8, s);
        break;
      }
      stream.error_type(igsIOValuePresent);
    }
    igsFileSection section;
    int line = 0, column = 0;
    stream.position(section, line, column);
    stream.backpointer();
    if (stream.fatal_error()) break;
    stream.skip_line();
  }
  return 0;
}
