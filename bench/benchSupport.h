// What the benchmarks of writing share: a destination in memory, the floor that lays reals
// into Parameter lines, and the timing of several ways of writing side by side.
#pragma once

#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <chrono>
#include <cstring>
#include <streambuf>
#include <string>
#include <vector>

// Writes into a store that is made once, with no copy and no growth.
class MemoryOut : public std::streambuf {
 public:
  explicit MemoryOut(size_t size) : m_store(size, '\0') { rewind(); }
  void rewind() { setp(m_store.data(), m_store.data() + m_store.size()); }
  size_t used() const { return static_cast<size_t>(pptr() - pbase()); }
  char* data() { return m_store.data(); }

 private:
  std::string m_store;
};

// The least that laying reals into Parameter lines takes: the text of each value from
// `print`, a delimiter behind it, a new line where the next would not fit, and the tail.
// Every `per_record` values make a record, which ends with ";" and its line.
template <class Print>
size_t floor_lines(MemoryOut& buffer, std::vector<double> const& values, size_t per_record,
                   Print print) {
  char* out = buffer.data();
  char line[81];
  std::memset(line, ' ', 80);
  line[80] = '\n';
  int column = 0;
  int number = 0;
  int backpointer = 1;
  auto finish = [&] {
    char* tail = line + 64;
    std::to_chars(tail + 1, tail + 8, backpointer);
    tail[8] = 'P';
    std::to_chars(tail + 9, tail + 16, ++number);
    std::memcpy(out, line, 81);
    out += 81;
    std::memset(line, ' ', 80);
    column = 0;
  };
  for (size_t i = 0; i < values.size(); ++i) {
    char text[32];
    int n = print(text, values[i]);
    if (column + n + 1 > 64) finish();
    std::memcpy(line + column, text, static_cast<size_t>(n));
    bool last = i % per_record == per_record - 1;
    line[column + n] = last ? ';' : ',';
    column += n + 1;
    if (last) {
      finish();
      backpointer = static_cast<int>(2 * (i / per_record) + 3);
    }
  }
  if (column) finish();
  return static_cast<size_t>(out - buffer.data());
}

// The text of a real as the floors print it: std::to_chars with 15 significant digits.
inline int to_chars_text(char* text, double x) {
  auto printed = std::to_chars(text, text + 32, x, std::chars_format::general, 15);
  return static_cast<int>(printed.ptr - text);
}

// Runs each way of writing once in every iteration, in the same loop over the same buffer,
// and gives the MB/s of file text of each from its fastest iteration, which the other work
// of a shared machine disturbs least; 0 for a way that wrote nothing.
template <size_t N>
std::array<double, N> megabytes_per_second(benchmark::State& state, MemoryOut& buffer,
                                           size_t (*const (&runs)[N])(MemoryOut&)) {
  using Clock = std::chrono::steady_clock;
  std::array<double, N> fastest{};
  std::array<size_t, N> bytes{};
  for (auto _ : state) {
    for (size_t r = 0; r < N; ++r) {
      auto t0 = Clock::now();
      bytes[r] = runs[r](buffer);
      benchmark::DoNotOptimize(buffer.data());
      double seconds = std::chrono::duration<double>(Clock::now() - t0).count();
      if (fastest[r] == 0.0 || seconds < fastest[r]) fastest[r] = seconds;
    }
  }
  std::array<double, N> mbs{};
  for (size_t r = 0; r < N; ++r)
    if (fastest[r] > 0.0) mbs[r] = static_cast<double>(bytes[r]) / 1e6 / fastest[r];
  return mbs;
}
