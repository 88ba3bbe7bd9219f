// Reading a whole file: a generated file of more than 50 MB (of points, lines and arcs; of
// B-spline curves) is read with igsFile::read. Beside it, in the same iteration, a floor: the
// same text taken line by line with std::getline, with every real of the P lines converted by
// std::from_chars. The counters give both speeds in MB/s, the entities read per second, the
// ratio of the two times (floor / ours: 1 would be as fast as the floor), and the heap that
// reading holds at its peak, per entity, counted by the global operator new of this program.
#include "core/igsFile.h"
#include "support/utOstream.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <istream>
#include <new>
#include <sstream>
#include <string>

// Live and peak heap bytes of the whole program, while counting is on. The timed reads run
// with it off, so that they do not pay for the count.
namespace heap {
std::size_t live = 0;
std::size_t peak = 0;
bool counting = true;
[[gnu::noinline]] void* take(std::size_t size) {
  void* p = std::malloc(size ? size : 1);
  if (p && counting) {
    live += malloc_usable_size(p);
    if (live > peak) peak = live;
  }
  return p;
}
[[gnu::noinline]] void give(void* p) {
  if (!p) return;
  if (counting) live -= malloc_usable_size(p);
  std::free(p);
}
} // namespace heap

void* operator new(std::size_t size) {
  if (void* p = heap::take(size)) return p;
  throw std::bad_alloc();
}
void* operator new[](std::size_t size) {
  return operator new(size);
}
void* operator new(std::size_t size, std::nothrow_t const&) noexcept {
  return heap::take(size);
}
void* operator new[](std::size_t size, std::nothrow_t const&) noexcept {
  return heap::take(size);
}
void operator delete(void* p) noexcept {
  heap::give(p);
}
void operator delete[](void* p) noexcept {
  heap::give(p);
}
void operator delete(void* p, std::size_t) noexcept {
  heap::give(p);
}
void operator delete[](void* p, std::size_t) noexcept {
  heap::give(p);
}
void operator delete(void* p, std::nothrow_t const&) noexcept {
  heap::give(p);
}
void operator delete[](void* p, std::nothrow_t const&) noexcept {
  heap::give(p);
}

namespace {

// An input stream over text in memory, without a copy of it.
struct MemoryBuffer : std::streambuf {
  MemoryBuffer(std::string const& text) {
    char* begin = const_cast<char*>(text.data());
    setg(begin, begin, begin + text.size());
  }
};

std::string number(int value, int width) {
  std::string digits = std::to_string(value);
  return std::string(static_cast<size_t>(width) - digits.size(), ' ') + digits;
}

// A real as CAD systems write them: about a dozen significant digits.
struct Reals {
  std::uint64_t state = 88172645463325252ull;
  std::string next() {
    state ^= state << 13;
    state ^= state >> 7;
    state ^= state << 17;
    double value = static_cast<double>(state % 2000000000000ull) / 1e9 - 1000.0;
    char text[32];
    std::snprintf(text, sizeof text, "%.12g", value);
    std::string s = text;
    if (s.find('.') == std::string::npos && s.find('e') == std::string::npos) s += ".";
    return s;
  }
};

// A generated file: one Start line, one Global line, then the entities that `fields` makes one
// by one (it sets the type and gives the parameter record), their parameters split over as
// many P lines of 64 columns as they need.
struct Generated {
  std::string text;
  int entities = 0;
};

template <class Fields> Generated generate(std::size_t at_least, Fields fields_of) {
  Generated g;
  std::string d, p;
  Reals reals;
  int d_line = 0;
  int p_line = 0;
  auto record = [](std::string data, char letter, int line) {
    data.resize(72, ' ');
    return data + letter + number(line, 7) + "\n";
  };
  while (d.size() + p.size() < at_least) {
    int de = 2 * g.entities + 1;
    int type = 0;
    std::string fields = fields_of(g.entities, reals, type);
    int first = p_line + 1;
    while (!fields.empty()) {
      size_t cut = fields.size() <= 64 ? fields.size() : fields.rfind(',', 63) + 1;
      std::string data = fields.substr(0, cut);
      fields.erase(0, cut);
      data.resize(64, ' ');
      p += record(data + " " + number(de, 7), 'P', ++p_line);
    }
    int count = p_line - first + 1;
    d += record(number(type, 8) + number(first, 8) +
                    "       0       0       0       0       0"
                    "       000000000",
                'D', ++d_line);
    d +=
        record(number(type, 8) + "       0       0" + number(count, 8) + "       0", 'D', ++d_line);
    ++g.entities;
  }
  g.text = record("Generated for the reading benchmark.", 'S', 1);
  g.text +=
      record("1H,,1H;,4HBNCH,8Hbench.igs,3HGEN,3H1.0,32,38,6,308,15,4HBNCH,1.,2,2HMM,1,", 'G', 1);
  g.text += record("1.,15H20240101.000000,1.E-06,1000.,4HNONE,4HNONE,11,0;", 'G', 2);
  g.text += d;
  g.text += p;
  std::string counts = "S";
  counts.append(number(1, 7)).append("G").append(number(2, 7)).append("D");
  counts.append(number(d_line, 7)).append("P").append(number(p_line, 7));
  g.text += record(counts, 'T', 1);
  return g;
}

// Points, lines and arcs in turn.
Generated const& file_text() {
  static Generated const g = generate(50u << 20, [](int index, Reals& reals, int& type) {
    type = index % 3 == 0 ? 116 : index % 3 == 1 ? 110 : 100;
    int reals_count = type == 116 ? 3 : type == 110 ? 6 : 7;
    std::string fields = std::to_string(type);
    // Appended, not joined with +: a literal + a string trips a false -Wrestrict of g++ 12
    // at -O2.
    for (int i = 0; i < reals_count; ++i) fields.append(",").append(reals.next());
    return fields + ";";
  });
  return g;
}

// Time on this thread's CPU, so that other work on a shared machine does not count.
double now() {
  timespec t{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
}

// Lines and reals: every P line is cut into fields at the commas and each is converted.
double floor_read(std::string const& text) {
  MemoryBuffer buffer(text);
  std::istream in(&buffer);
  std::string line;
  double sum = 0.0;
  while (std::getline(in, line)) {
    if (line.size() < 73 || line[72] != 'P') continue;
    char const* p = line.data();
    char const* end = p + 64;
    while (p < end) {
      char const* comma = p;
      while (comma < end && *comma != ',' && *comma != ';') ++comma;
      double value = 0.0;
      while (p < comma && *p == ' ') ++p;
      std::from_chars(p, comma, value);
      sum += value;
      p = comma + 1;
    }
  }
  return sum;
}

// Reads the text into a new file; the file, or null if it did not read.
igsFile* read_file(std::string const& text) {
  auto* file = new igsFile;
  MemoryBuffer buffer(text);
  std::istream in(&buffer);
  std::ostringstream ignored;
  utOstream messages(ignored);
  if (file->read(in, messages)) return file;
  delete file;
  return nullptr;
}

// Reads the generated file in each iteration, beside the floor over the same text.
void read_benchmark(benchmark::State& state, Generated const& g) {
  // One untimed read with the heap counted: its peak, and the pages the heap grows into
  // touched once before the timed reads.
  std::size_t before = heap::live;
  heap::peak = before;
  igsFile* measured = read_file(g.text);
  if (!measured) {
    state.SkipWithError("the file did not read");
    return;
  }
  int entities = measured->num_entities();
  std::size_t peak_per_entity =
      (heap::peak - before) / static_cast<std::size_t>(entities ? entities : 1);
  delete measured;
  heap::counting = false;
  double ours = 0.0, base = 0.0;
  for (auto _ : state) {
    double t0 = now();
    benchmark::DoNotOptimize(floor_read(g.text));
    double t1 = now();
    igsFile* file = read_file(g.text);
    double t2 = now();
    if (!file) state.SkipWithError("the file did not read");
    delete file;
    base += t1 - t0;
    ours += t2 - t1;
  }
  heap::counting = true;
  double megabytes =
      static_cast<double>(g.text.size()) / 1e6 * static_cast<double>(state.iterations());
  state.counters["MB/s"] = megabytes / ours;
  state.counters["floor_MB/s"] = megabytes / base;
  state.counters["entities/s"] =
      static_cast<double>(entities) * static_cast<double>(state.iterations()) / ours;
  state.counters["ratio"] = base / ours;
  state.counters["peak_bytes/entity"] = static_cast<double>(peak_per_entity);
  state.counters["file_MB"] = static_cast<double>(g.text.size()) / 1e6;
  state.counters["entities"] = entities;
}

void BM_ReadFile(benchmark::State& state) {
  read_benchmark(state, file_text());
}
BENCHMARK(BM_ReadFile)->Unit(benchmark::kMillisecond)->Iterations(3);

// --- B-spline curves -----------------------------------------------------------------------
// A file of rational B-spline curves as CAD systems write them: cubic, 4 to 19 control points,
// clamped knots, now polynomial (weights of 1.) and now rational, reals of about a dozen
// digits. Reals make nearly all of such a file.
Generated const& bspline_text() {
  static Generated const g = generate(50u << 20, [](int index, Reals& reals, int& type) {
    type = 126;
    int const degree = 3;
    int const points = 4 + index % 16;
    bool const rational = index % 4 == 3;
    std::string fields = "126," + std::to_string(points - 1) + "," + std::to_string(degree) +
                         ",0,0," + (rational ? "0" : "1") + ",0";
    int const spans = points - degree;
    for (int i = 0; i <= degree; ++i) fields += ",0.";
    for (int i = 1; i < spans; ++i) {
      char knot[32];
      std::snprintf(knot, sizeof knot, ",%.12g", static_cast<double>(i) / spans);
      fields += knot;
    }
    for (int i = 0; i <= degree; ++i) fields += ",1.";
    for (int i = 0; i < points; ++i) {
      char weight[32];
      std::snprintf(weight, sizeof weight, ",%.12g", rational ? 0.5 + (i % 3) * 0.25 : 1.0);
      fields += rational && i % 3 ? weight : ",1.";
    }
    for (int i = 0; i < 3 * points; ++i) fields.append(",").append(reals.next());
    return fields + ",0.,1.,0.,0.,0.;";
  });
  return g;
}

void BM_ReadBsplineCurves(benchmark::State& state) {
  read_benchmark(state, bspline_text());
}
BENCHMARK(BM_ReadBsplineCurves)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
