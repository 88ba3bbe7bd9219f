// Speed of the write path: reals encoded through igsOutStream into Parameter lines in memory,
// beside two floors measured in the same loop over the same values: std::to_chars and
// snprintf "%.15G", each laying its texts into 80-column lines with the same tail. The
// counters give MB/s of file text for ours and each floor, and the ratio of our speed to
// the floor's.
#include "output/igsOutStream.h"

#include "benchSupport.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int values_per_record = 8;

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

size_t to_chars_floor(MemoryOut& buffer) {
  return floor_lines(buffer, values(), values_per_record, to_chars_text);
}

size_t snprintf_floor(MemoryOut& buffer) {
  return floor_lines(buffer, values(), values_per_record,
                     [](char* text, double x) { return std::snprintf(text, 32, "%.15G", x); });
}

void BM_EncodeReals(benchmark::State& state) {
  MemoryOut buffer(values().size() * 40);
  size_t (*const runs[3])(MemoryOut&) = {ours, to_chars_floor, snprintf_floor};
  std::array<double, 3> mbs = megabytes_per_second(state, buffer, runs);
  state.counters["MB/s"] = mbs[0];
  state.counters["to_chars_MB/s"] = mbs[1];
  state.counters["snprintf_MB/s"] = mbs[2];
  state.counters["ratio_to_chars"] = mbs[0] / mbs[1];
  state.counters["ratio_snprintf"] = mbs[0] / mbs[2];
}
BENCHMARK(BM_EncodeReals)->Unit(benchmark::kMillisecond);

} // namespace
