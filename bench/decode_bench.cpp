// Speed of the read path: fields decoded through igsInStream, and whole lines taken through
// igsInBuffer, each beside a floor measured in the same loop over the same bytes. The counters
// give MB/s of file text for both and the ratio of our speed to the floor's.
#include "input/igsInStream.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <istream>
#include <string>

namespace {

// Reads a string in place, with no copy.
class MemoryBuf : public std::streambuf {
 public:
  explicit MemoryBuf(std::string const& text) {
    char* begin = const_cast<char*>(text.data());
    setg(begin, begin, begin + text.size());
  }
};

std::string record(std::string data, int backpointer, int line) {
  char tail[32];
  std::snprintf(tail, sizeof tail, " %7dP%7d", backpointer, line);
  data.resize(64, ' ');
  return data + tail + "\n";
}

// Parameter lines of entities of eight lines each; every line holds four fields made by
// `field`, and the last line of an entity ends its record.
template <class Field> std::string parameter_section(int lines, Field field) {
  std::string text;
  text.reserve(static_cast<size_t>(lines) * 81);
  int n = 0;
  for (int line = 1; line <= lines; ++line) {
    int entity = (line - 1) / 8;
    bool last = line % 8 == 0 || line == lines;
    std::string data;
    for (int f = 0; f < 4; ++f) {
      data += field(n++);
      data += (last && f == 3) ? ';' : ',';
    }
    text += record(data, 2 * entity + 1, line);
  }
  return text;
}

std::string const& real_lines() {
  static std::string const text = parameter_section(100000, [](int n) {
    char field[32];
    double v = (n % 7 - 3) * 1234.56789012345 / (n % 13 + 1);
    if (n % 3)
      std::snprintf(field, sizeof field, "%.8E", v);
    else
      std::snprintf(field, sizeof field, "%.6f", v);
    return std::string(field);
  });
  return text;
}

std::string const& integer_lines() {
  static std::string const text =
      parameter_section(100000, [](int n) { return std::to_string((n * 7919) % 100000 - 500); });
  return text;
}

template <class Value> double read_fields(std::string const& text) {
  MemoryBuf buffer(text);
  std::istream in(&buffer);
  igsInStream stream(in);
  double sum = 0.0;
  while (stream.reset()) {
    while (!stream.frozen()) {
      Value v{};
      if constexpr (std::is_same_v<Value, double>)
        stream.read_double(v);
      else
        stream.read_integer(v);
      sum += static_cast<double>(v);
    }
  }
  return sum;
}

// The floor: the data columns of each line split on the delimiters, each field converted by
// std::from_chars after its blanks.
template <class Value> double from_chars_floor(std::string const& text) {
  double sum = 0.0;
  char const* p = text.data();
  char const* end = p + text.size();
  while (p < end) {
    char const* line_end =
        static_cast<char const*>(std::memchr(p, '\n', static_cast<size_t>(end - p)));
    if (!line_end) line_end = end;
    char const* data_end = p + 64 < line_end ? p + 64 : line_end;
    while (p < data_end) {
      while (p < data_end && *p == ' ') ++p;
      Value v{};
      auto result = std::from_chars(p, data_end, v);
      sum += static_cast<double>(v);
      p = result.ptr;
      while (p < data_end && *p != ',' && *p != ';') ++p;
      ++p;
    }
    p = line_end + 1;
  }
  return sum;
}

using Clock = std::chrono::steady_clock;

// Runs ours and the floor in turn in every iteration, so that both meet the same machine.
template <class Ours, class Floor>
void compare(benchmark::State& state, std::string const& text, Ours ours, Floor floor) {
  double ours_seconds = 0.0;
  double floor_seconds = 0.0;
  for (auto _ : state) {
    auto t0 = Clock::now();
    benchmark::DoNotOptimize(ours(text));
    auto t1 = Clock::now();
    benchmark::DoNotOptimize(floor(text));
    auto t2 = Clock::now();
    ours_seconds += std::chrono::duration<double>(t1 - t0).count();
    floor_seconds += std::chrono::duration<double>(t2 - t1).count();
  }
  double megabytes =
      static_cast<double>(text.size()) * static_cast<double>(state.iterations()) / 1e6;
  state.counters["MB/s"] = megabytes / ours_seconds;
  state.counters["floor_MB/s"] = megabytes / floor_seconds;
  state.counters["ratio"] = floor_seconds / ours_seconds;
}

void BM_DecodeReals(benchmark::State& state) {
  std::string const& text = real_lines();
  if (read_fields<double>(text) != from_chars_floor<double>(text))
    state.SkipWithError("sums differ");
  compare(state, text, read_fields<double>, from_chars_floor<double>);
}
BENCHMARK(BM_DecodeReals)->Unit(benchmark::kMillisecond);

void BM_DecodeIntegers(benchmark::State& state) {
  std::string const& text = integer_lines();
  if (read_fields<int>(text) != from_chars_floor<int>(text)) state.SkipWithError("sums differ");
  compare(state, text, read_fields<int>, from_chars_floor<int>);
}
BENCHMARK(BM_DecodeIntegers)->Unit(benchmark::kMillisecond);

// Every line taken as a reader takes it: a stop at a new entity is ended by a reset.
int take_lines(std::string const& text) {
  MemoryBuf buffer(text);
  std::istream in(&buffer);
  igsInBuffer lines(in);
  int count = 0;
  while (!lines.fatal_error()) {
    lines.skip_line();
    if (lines.frozen()) lines.reset();
    ++count;
  }
  return count;
}

int getline_floor(std::string const& text) {
  MemoryBuf buffer(text);
  std::istream in(&buffer);
  std::string line;
  int count = 0;
  while (std::getline(in, line)) ++count;
  return count;
}

void BM_LineIntake(benchmark::State& state) {
  std::string const& text = real_lines();
  if (take_lines(text) != getline_floor(text)) state.SkipWithError("line counts differ");
  compare(state, text, take_lines, getline_floor);
}
BENCHMARK(BM_LineIntake)->Unit(benchmark::kMillisecond);

} // namespace
