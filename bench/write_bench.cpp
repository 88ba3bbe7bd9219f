// Speed of writing a whole file: a file of points, lines and circular arcs made in memory
// (more than 50 MB of text) is written to a store in memory, its Parameter section through
// the temporary file as always. Beside it, in the same loop, a floor: std::to_chars of the
// same reals laid into 80-column lines with a tail. The counters give MB/s of file text for
// ours and the floor, and the ratio of our speed to the floor's.
#include "core/igsFile.h"
#include "entities/curves/igs100.h"
#include "entities/curves/igs110.h"
#include "entities/curves/igs116.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <chrono>
#include <cstring>
#include <memory>
#include <ostream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace {

// Entities of each kind; about 400 bytes of file text each on average.
constexpr int entities_per_kind = 60000;

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

// The file to write, and every real it holds in the order they are written.
struct Model {
  std::unique_ptr<igsFile> file = std::make_unique<igsFile>();
  std::vector<double> reals;
};

Model const& model() {
  static Model const m = [] {
    Model built;
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> coordinate(-500.0, 500.0);
    auto next = [&] {
      double x = coordinate(random);
      built.reals.push_back(x);
      return x;
    };
    for (int i = 0; i < entities_per_kind; ++i) {
      auto* p = new igs116;
      double x = next(), y = next(), z = next();
      p->set_point(giPoint3(x, y, z));
      auto* l = new igs110;
      x = next(), y = next(), z = next();
      l->set_start_point(giPoint3(x, y, z));
      x = next(), y = next(), z = next();
      l->set_end_point(giPoint3(x, y, z));
      auto* a = new igs100;
      a->set_z_level(next());
      x = next(), y = next();
      a->set_centre(giPoint2(x, y));
      x = next(), y = next();
      a->set_start_point(giPoint2(x, y));
      x = next(), y = next();
      a->set_end_point(giPoint2(x, y));
    }
    return built;
  }();
  return m;
}

size_t ours(MemoryOut& buffer) {
  buffer.rewind();
  std::ostream out(&buffer);
  std::ostringstream notes;
  utOstream messages(notes);
  if (!model().file->write(out, messages)) return 0;
  return buffer.used();
}

// The least that laying the reals into lines takes: the text of each value from
// std::to_chars, a delimiter behind it, a new line where the next would not fit, and the
// tail of each line.
size_t floor_lines(MemoryOut& buffer) {
  char* out = buffer.data();
  char line[81];
  std::memset(line, ' ', 80);
  line[80] = '\n';
  int column = 0;
  int number = 0;
  auto finish = [&] {
    std::to_chars(line + 73, line + 80, ++number);
    line[72] = 'P';
    std::memcpy(out, line, 81);
    out += 81;
    std::memset(line, ' ', 80);
    column = 0;
  };
  for (double x : model().reals) {
    char text[32];
    auto printed = std::to_chars(text, text + sizeof text, x, std::chars_format::general, 15);
    int n = static_cast<int>(printed.ptr - text);
    if (column + n + 1 > 64) finish();
    std::memcpy(line + column, text, static_cast<size_t>(n));
    line[column + n] = ',';
    column += n + 1;
  }
  if (column) finish();
  return static_cast<size_t>(out - buffer.data());
}

using Clock = std::chrono::steady_clock;

void BM_WriteFile(benchmark::State& state) {
  model();
  MemoryOut buffer(size_t(entities_per_kind) * 3 * 600);
  double seconds[2] = {};
  size_t bytes[2] = {};
  size_t (*const runs[2])(MemoryOut&) = {ours, floor_lines};
  for (auto _ : state) {
    for (int r = 0; r < 2; ++r) {
      auto t0 = Clock::now();
      bytes[r] = runs[r](buffer);
      benchmark::DoNotOptimize(buffer.data());
      seconds[r] += std::chrono::duration<double>(Clock::now() - t0).count();
    }
  }
  if (bytes[0] == 0) state.SkipWithError("the write failed");
  double n = static_cast<double>(state.iterations());
  double mbs[2];
  for (int r = 0; r < 2; ++r) mbs[r] = static_cast<double>(bytes[r]) * n / 1e6 / seconds[r];
  state.counters["file_MB"] = static_cast<double>(bytes[0]) / 1e6;
  state.counters["MB/s"] = mbs[0];
  state.counters["to_chars_MB/s"] = mbs[1];
  state.counters["ratio"] = mbs[0] / mbs[1];
}
BENCHMARK(BM_WriteFile)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
