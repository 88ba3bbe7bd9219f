// Speed of writing a whole file: a file of points, lines and circular arcs made in memory
// (more than 50 MB of text) is written to a store in memory, its Parameter section through
// the temporary file as always. Beside it, in the same loop, a floor: std::to_chars of the
// same reals laid into 80-column lines with a tail. The counters give MB/s of file text for
// ours and the floor, and the ratio of our speed to the floor's.
#include "core/igsFile.h"
#include "entities/curves/igs100.h"
#include "entities/curves/igs110.h"
#include "entities/curves/igs116.h"

#include "benchSupport.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <ostream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace {

// Entities of each kind; about 400 bytes of file text each on average.
constexpr int entities_per_kind = 60000;

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

// The size of the file that the last write gave.
size_t file_size = 0;

size_t ours(MemoryOut& buffer) {
  buffer.rewind();
  std::ostream out(&buffer);
  std::ostringstream notes;
  utOstream messages(notes);
  file_size = model().file->write(out, messages) ? buffer.used() : 0;
  return file_size;
}

// The floor: the same reals laid into Parameter lines, in records of the size of an entity's
// on average.
size_t floor_run(MemoryOut& buffer) {
  return floor_lines(buffer, model().reals, 5, to_chars_text);
}

void BM_WriteFile(benchmark::State& state) {
  model();
  MemoryOut buffer(size_t(entities_per_kind) * 3 * 600);
  size_t (*const runs[2])(MemoryOut&) = {ours, floor_run};
  std::array<double, 2> mbs = megabytes_per_second(state, buffer, runs);
  if (mbs[0] == 0.0) state.SkipWithError("the write failed");
  state.counters["file_MB"] = static_cast<double>(file_size) / 1e6;
  state.counters["MB/s"] = mbs[0];
  state.counters["to_chars_MB/s"] = mbs[1];
  state.counters["ratio"] = mbs[0] / mbs[1];
}
BENCHMARK(BM_WriteFile)->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace
