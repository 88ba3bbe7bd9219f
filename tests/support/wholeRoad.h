// The whole road a file takes through the library, for damaged and arbitrary input: read,
// check, print and repair, then write and read what was written. Shared by the fuzz target and
// the damaged-file tests, so that both hold the library to the same promises:
//
//   - nothing crashes, hangs or throws (the sanitizers and the caller watch for that);
//   - a file repaired with clean(0) writes a text that passes the structural check and reads
//     back to its end with as many entities (a read that stopped before the parameter data
//     leaves shells in the file, which need not come back);
//   - a file repaired with clean(1) also comes back with the same entities and values, and
//     writing what was read gives the same bytes again.
//
// Each road starts from a fresh read, as a host would.
#pragma once

#include "core/igsFile.h"
#include "core/igsNull.h"
#include "core/igsUnknown.h"
#include "core/roundTripCheck.h"
#include "core/writtenFileCheck.h"
#include "support/kvnabs.h"
#include "support/utOstream.h"

#include <cstdarg>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace igs_test {

// Drops the library's warnings: a damaged file raises many, and the roads only judge results.
class SilentOutput : public kvnabsOutput {
 public:
  void vmessage(char const*, char const*, va_list) override {}
};

// A file read from `bytes` with its warnings silenced; `result` is what read returned.
inline std::unique_ptr<igsFile> read_silently(std::string_view bytes, SilentOutput& sink,
                                              int& result) {
  auto file = std::make_unique<igsFile>();
  file->set_message_stream(&sink);
  std::istringstream in{std::string(bytes)};
  std::ostringstream notes;
  utOstream messages(notes);
  result = file->read(in, messages);
  return file;
}

// Line-level warnings of the input pipeline go to the process-wide sinks; they are silenced
// for the span of a road and restored after it.
class SilentProcessSinks {
 public:
  explicit SilentProcessSinks(kvnabsOutput* sink)
      : m_error(get_igs_stream().error_stream()), m_output(get_igs_stream().output_stream()) {
    get_igs_stream().set_error_stream(sink);
    get_igs_stream().set_output_stream(sink);
  }
  ~SilentProcessSinks() {
    get_igs_stream().set_error_stream(m_error);
    get_igs_stream().set_output_stream(m_output);
  }
  SilentProcessSinks(SilentProcessSinks const&) = delete;
  SilentProcessSinks& operator=(SilentProcessSinks const&) = delete;

 private:
  kvnabsOutput* m_error;
  kvnabsOutput* m_output;
};

// The entities that a read of the file's written text must keep. A file whose reading stopped
// before its parameter data holds shells: Null and Unknown entities, which reading drops, and
// entities with no values, which write as they stand (unset) and may not read back. Only the
// file that was read to its parameter data must come back whole.
inline int entities_kept_by_reading(igsFile const& file, bool& exactly) {
  exactly = file.parameter_data_read() != 0;
  int kept = 0;
  for (igsFileIT it(&file); ++it;)
    if (!it()->isa(igsNull::type()) && !it()->isa(igsUnknown::type())) ++kept;
  return kept;
}

// Writes the file and judges the text: well formed, read back to its end, with the entities
// that reading keeps. `step` heads each fault.
inline void judge_written_text(igsFile& file, SilentOutput& sink, std::string const& step,
                               std::vector<std::string>& faults) {
  std::string const text = written_text(file);
  if (text.empty()) {
    faults.push_back(step + ": the write failed");
    return;
  }
  for (std::string const& f : written_file_faults(text)) faults.push_back(step + " text, " + f);
  int again = 0;
  auto back = read_silently(text, sink, again);
  bool exactly = true;
  int const kept = entities_kept_by_reading(file, exactly);
  if (!again)
    faults.push_back(step + ": the written text does not read back");
  else if (exactly ? back->num_entities() != kept : back->num_entities() > kept)
    faults.push_back(step + ": " + std::to_string(back->num_entities()) +
                     " entities read back, of " + std::to_string(kept));
}

// Everything that went wrong on the road of `bytes`, each fault headed by `name`; empty when
// the library kept its promises.
inline std::vector<std::string> whole_road_faults(std::string_view bytes,
                                                  std::string const& name) {
  std::vector<std::string> faults;
  SilentOutput sink;
  SilentProcessSinks silence(&sink);

  // Read, check, print, repair without removing, and write.
  {
    int result = 0;
    auto file = read_silently(bytes, sink, result);
    file->check();
    std::ostringstream printed;
    utOstream print_out(printed);
    file->print(print_out);
    file->clean(0);
    judge_written_text(*file, sink, name + ": clean(0)", faults);
  }

  // Read, check, repair removing what stays bad, and write. A file whose parameter data was
  // read (and so was tidied up) also makes the full round trip: the same entities and values
  // come back, and writing them again gives the same bytes.
  {
    int result = 0;
    auto file = read_silently(bytes, sink, result);
    file->check();
    file->clean(1);
    if (file->parameter_data_read() && file->num_entities() > 0)
      for (std::string const& f : round_trip_faults(*file, name + ": clean(1)"))
        faults.push_back(f);
    else
      judge_written_text(*file, sink, name + ": clean(1)", faults);
  }
  return faults;
}

} // namespace igs_test
