// Helpers of the input tests: records made to measure, and runs that show what the line
// pipeline delivers and reports.
#pragma once

#include "input/igsInStream.h"
#include "support/kvnabs.h"

#include <sstream>
#include <string>
#include <vector>

namespace igs_input_test {

using Codes = std::vector<igsIOErrorCode>;
using Lines = std::vector<std::string>;

inline std::string repeat(char c, int n) {
  return std::string(static_cast<size_t>(n), c);
}

// One 80-column record: the data padded to 72 columns, or in the Parameter section to 64
// columns, a blank and the back pointer; then the letter and the right-justified number.
inline std::string record(char letter, int number, std::string const& data, int backpointer = 0) {
  auto right = [](int value) {
    std::string digits = std::to_string(value);
    return repeat(' ', 7 - static_cast<int>(digits.size())) + digits;
  };
  std::string line = data;
  if (letter == 'P') {
    line.resize(64, ' ');
    line += ' ' + right(backpointer);
  }
  line.resize(72, ' ');
  return line + letter + right(number);
}

inline std::string with(std::string line, size_t at, char c) {
  line[at] = c;
  return line;
}

inline std::string join(Lines const& lines, std::string const& end = "\n") {
  std::string text;
  for (auto const& line : lines) text += line + end;
  return text;
}

inline Codes codes_of(igsIOErrorcoDynArr const& errors) {
  Codes codes;
  for (auto const& e : errors) codes.push_back(e.error_type());
  return codes;
}

// A buffer on an empty stream, whose line a filler of the test's own fills: what the filler
// delivers, before the checker marks the data end.
struct LineHolder : igsInBuffer {
  LineHolder() : igsInBuffer(empty) {}
  std::string line() { return std::string(buffer().data(), static_cast<size_t>(buffer().size())); }
  using igsInBuffer::buffer;
  static inline std::istringstream empty;
};

struct FillerRun {
  Lines lines;
  std::vector<Codes> codes; // recorded while each record was fetched
  Codes end_codes;          // recorded by the fetch that found no record
};

// Every record that a filler delivers from the stream.
inline FillerRun fill(std::istream& in) {
  LineHolder holder;
  igsInBufferFiller filler(in);
  FillerRun run;
  for (int guard = 0; guard < 10000; ++guard) {
    int got = filler.get(holder);
    igsIOErrorcoDynArr errors;
    filler.collect_errors(errors);
    if (!got) {
      run.end_codes = codes_of(errors);
      break;
    }
    run.lines.push_back(holder.line());
    run.codes.push_back(codes_of(errors));
  }
  return run;
}

inline FillerRun fill(std::string const& bytes) {
  std::istringstream in(bytes);
  return fill(in);
}

// A code with where it was collected: "igsIOLineSequence@G2:0".
inline Lines describe(igsIOErrorcoDynArr const& errors) {
  Lines texts;
  for (auto const& e : errors)
    texts.push_back(std::string(igs_io_error_name(e.error_type())) + "@" +
                    igs_section_letter(e.section()) + std::to_string(e.line()) + ":" +
                    std::to_string(e.column()));
  return texts;
}

// Walks a stream line by line, reading no fields, and lists every code with its location.
// A stop is ended with reset, after which the codes of the line where it stopped stand; the
// walk ends at a fatal code.
inline Lines walk(std::string const& bytes) {
  std::istringstream in(bytes);
  igsInStream stream(in);
  Lines events;
  auto note = [&] {
    for (auto const& text : describe(stream.errors())) events.push_back(text);
  };
  for (int guard = 0; guard < 10000; ++guard) {
    note();
    if (stream.fatal_error()) break;
    if (stream.frozen()) {
      if (!stream.reset()) break;
      note();
    }
    stream.skip_line();
  }
  return events;
}

// Catches the line-level warnings that go to the process-wide error sink.
struct WarningCatcher {
  WarningCatcher() { get_igs_stream().set_error_stream(&sink); }
  ~WarningCatcher() { get_igs_stream().set_error_stream(nullptr); }
  kvnabsStringOutput sink;
};

// A small sound file: two Start lines, one Global line, one entity.
inline Lines sound_file() {
  return {
      record('S', 1, "A small file made for the tests."),
      record('S', 2, "Second start line."),
      record('G', 1, "1H,,1H;,4Htest,8Htest.igs,2Hme,3H1.0;"),
      record('D', 1, "     110       1       0       0       0       0       0       000000000"),
      record('D', 2, "     110       0       0       1       0                               0"),
      record('P', 1, "110,0.,0.,0.,1.,2.,3.;", 1),
      record('T', 1, "S      2G      1D      2P      1")};
}

} // namespace igs_input_test
