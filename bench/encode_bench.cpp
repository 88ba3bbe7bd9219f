// Speed of the write path: reals encoded through igsOutStream into Parameter lines in memory,
// beside two floors measured in the same loop over the same values: std::to_chars and
// snprintf "%.15G", each laying its texts into 80-column lines with the same tail. The
// counters give MB/s of file text for ours and each floor, and the ratio of our speed to
// the floor's.
#include "output/igsOutStream.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int values_per_record = 8;

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

// Coordinates as CAD files hold them: mostly moderate values with all their digits, some
// whole numbers, some tiny or huge ones.
std::vector<double> const& values() {
  static std::vector<double> const v = [] {
    std::vector<double> out;
    std::mt19937_64 random(99);
    std::uniform_real_distribution<double> moderate(-2000.0, 2000.0);
    std::uniform_int_distribution<int> exponent(-40, 40);
    for (int i = 0; i < 500000; ++i) {
      double x = moderate(random);
      if (i % 10 == 0) x = std::round(x);
      if (i % 10 == 1) x *= std::pow(10.0, exponent(random));
      out.push_back(x);
    }
    return out;
  }();
  return v;
}

size_t ours(MemoryOut& buffer) {
  buffer.rewind();
  std::ostream out(&buffer);
  {
    igsOutStream stream(&out);
    stream.set_section(igsSectionParameter);
    std::vector<double> const& v = values();
    for (size_t i = 0; i < v.size(); ++i) {
      stream.write_double(v[i]);
      if (i % values_per_record == values_per_record - 1)
        stream.set_backpointer(static_cast<int>(2 * (i / values_per_record) + 3));
    }
  }
  return buffer.used();
}

// The least that laying reals into Parameter lines takes: the text of each value from
// `print`, a delimiter behind it, a new line where the next would not fit, and the tail.
template <class Print> size_t floor_lines(MemoryOut& buffer, Print print) {
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
  std::vector<double> const& v = values();
  for (size_t i = 0; i < v.size(); ++i) {
    char text[32];
    int n = print(text, v[i]);
    if (column + n + 1 > 64) finish();
    std::memcpy(line + column, text, static_cast<size_t>(n));
    bool last = i % values_per_record == values_per_record - 1;
    line[column + n] = last ? ';' : ',';
    column += n + 1;
    if (last) {
      finish();
      backpointer = static_cast<int>(2 * (i / values_per_record) + 3);
    }
  }
  if (column) finish();
  return static_cast<size_t>(out - buffer.data());
}

size_t to_chars_floor(MemoryOut& buffer) {
  return floor_lines(buffer, [](char* text, double x) {
    auto printed = std::to_chars(text, text + 32, x, std::chars_format::general, 15);
    return static_cast<int>(printed.ptr - text);
  });
}

size_t snprintf_floor(MemoryOut& buffer) {
  return floor_lines(buffer,
                     [](char* text, double x) { return std::snprintf(text, 32, "%.15G", x); });
}

using Clock = std::chrono::steady_clock;

void BM_EncodeReals(benchmark::State& state) {
  MemoryOut buffer(values().size() * 40);
  double seconds[3] = {};
  size_t bytes[3] = {};
  size_t (*const runs[3])(MemoryOut&) = {ours, to_chars_floor, snprintf_floor};
  for (auto _ : state) {
    for (int r = 0; r < 3; ++r) {
      auto t0 = Clock::now();
      bytes[r] = runs[r](buffer);
      benchmark::DoNotOptimize(buffer.data());
      seconds[r] += std::chrono::duration<double>(Clock::now() - t0).count();
    }
  }
  double n = static_cast<double>(state.iterations());
  double mbs[3];
  for (int r = 0; r < 3; ++r) mbs[r] = static_cast<double>(bytes[r]) * n / 1e6 / seconds[r];
  state.counters["MB/s"] = mbs[0];
  state.counters["to_chars_MB/s"] = mbs[1];
  state.counters["snprintf_MB/s"] = mbs[2];
  state.counters["ratio_to_chars"] = mbs[0] / mbs[1];
  state.counters["ratio_snprintf"] = mbs[0] / mbs[2];
}
BENCHMARK(BM_EncodeReals)->Unit(benchmark::kMillisecond);

} // namespace
