// Reading a whole file: a generated file of more than 50 MB of points, lines and arcs is read
// with igsFile::read. Beside it, in the same iteration, a floor: the same text taken line by
// line with std::getline, with every real of the P lines converted by std::from_chars. The
// counters give both speeds in MB/s, the entities read per second, the ratio of the two times
// (floor / ours: 1 would be as fast as the floor), and the heap that reading holds at its
// peak, per entity, counted by the global operator new of this program.
#include "core/igsFile.h"
#include "support/utOstream.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <istream>
#include <iterator>
#include <new>
#include <sstream>
#include <string>
#include <vector>

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
  // `count` reals, each behind a comma.
  std::string fields(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text.append(",").append(next());
    return text;
  }
};

// The Global section of every generated file, in two lines of at most 72 columns.
char const* const global_lines[2] = {
    "1H,,1H;,4HBNCH,8Hbench.igs,3HGEN,3H1.0,32,38,6,308,15,4HBNCH,1.,2,2HMM,",
    "1,1.,15H20240101.000000,1.E-06,1000.,4HNONE,4HNONE,11,0;"};

// A pointer field to the DE number, behind its comma.
std::string pointer_field(int de) {
  return std::string(",").append(std::to_string(de));
}

// The file: one Start line, one Global line, then points, lines and arcs in turn, their
// parameters split over as many P lines of 64 columns as they need.
struct Generated {
  std::string text;
  int entities = 0;
};

Generated generate(std::size_t at_least) {
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
    int type = g.entities % 3 == 0 ? 116 : g.entities % 3 == 1 ? 110 : 100;
    int reals_count = type == 116 ? 3 : type == 110 ? 6 : 7;
    std::string fields = std::to_string(type);
    for (int i = 0; i < reals_count; ++i) fields += "," + reals.next();
    fields += ";";
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
  g.text += record(global_lines[0], 'G', 1);
  g.text += record(global_lines[1], 'G', 2);
  g.text += d;
  g.text += p;
  g.text += record("S" + number(1, 7) + "G" + number(2, 7) + "D" + number(d_line, 7) + "P" +
                       number(p_line, 7),
                   'T', 1);
  return g;
}

Generated const& file_text() {
  static Generated const g = generate(50u << 20);
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

// Reads the generated file in each iteration beside the floor, and gives the counters.
void measure_read(benchmark::State& state, Generated const& g) {
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
  measure_read(state, file_text());
}
BENCHMARK(BM_ReadFile)->Unit(benchmark::kMillisecond)->Iterations(3);

// ---- Boundary representation: solids of six faces over their loops, edge and vertex lists.
// Each solid is a box: a shell of six faces, one loop of four edges each, one edge list of
// twelve edges on their lines, one vertex list of eight corners. No surface class stands yet,
// so the faces name none.

// The records of a file, each given as its type, form and parameters, numbered in order.
struct RecordText {
  std::string d, p;
  int entities = 0;
  int p_line = 0;
  static std::string line(std::string data, char letter, int number_) {
    data.resize(72, ' ');
    return data + letter + number(number_, 7) + "\n";
  }
  // The DE number of the record; `matrix` is the DE number of its transformation matrix, and
  // `line_font` and `colour` go to the Directory Entry's fields as they are (a negative one
  // names a definition by minus its DE number).
  int add(int type, int form, std::string fields, int matrix = 0, int line_font = 0,
          int colour = 0) {
    int de = 2 * entities + 1;
    int first = p_line + 1;
    fields = std::to_string(type) + fields + ";";
    while (!fields.empty()) {
      size_t cut = fields.size() <= 64 ? fields.size() : fields.rfind(',', 63) + 1;
      std::string data = fields.substr(0, cut);
      fields.erase(0, cut);
      data.resize(64, ' ');
      p += line(data + " " + number(de, 7), 'P', ++p_line);
    }
    d += line(number(type, 8) + number(first, 8) + "       0" + number(line_font, 8) +
                  "       0       0" + number(matrix, 8) + "       000000000",
              'D', de);
    d += line(number(type, 8) + "       0" + number(colour, 8) + number(p_line - first + 1, 8) +
                  number(form, 8),
              'D', de + 1);
    ++entities;
    return de;
  }
  Generated text() const {
    Generated g;
    g.entities = entities;
    g.text = line("Generated for the reading benchmark.", 'S', 1);
    g.text += line(global_lines[0], 'G', 1);
    g.text += line(global_lines[1], 'G', 2);
    g.text += d + p;
    g.text += line("S" + number(1, 7) + "G" + number(2, 7) + "D" + number(2 * entities, 7) + "P" +
                       number(p_line, 7),
                   'T', 1);
    return g;
  }
};

Generated generate_solids(std::size_t at_least) {
  RecordText file;
  Reals reals;
  // The corners of a box, the edges between them and the faces over four edges each.
  static int const ends[12][2] = {{0, 1}, {1, 2}, {2, 3}, {3, 0}, {4, 5}, {5, 6},
                                  {6, 7}, {7, 4}, {0, 4}, {1, 5}, {2, 6}, {3, 7}};
  static int const faces[6][4] = {{0, 1, 2, 3},  {4, 5, 6, 7},   {0, 9, 4, 8},
                                  {1, 10, 5, 9}, {2, 11, 6, 10}, {3, 8, 7, 11}};
  auto de_of = [&](int k) { return 2 * (file.entities + k) + 1; };
  while (file.d.size() + file.p.size() < at_least) {
    // In file order: solid, shell, six faces, six loops, edge list, vertex list, twelve lines.
    int shell = de_of(1), face = de_of(2), loop = de_of(8), edges = de_of(14);
    int vertices = de_of(15), line = de_of(16);
    file.add(186, 0, "," + std::to_string(shell) + ",1,0");
    std::string list = "," + std::to_string(6);
    for (int f = 0; f < 6; ++f) list += "," + std::to_string(face + 2 * f) + ",1";
    file.add(514, 1, list);
    for (int f = 0; f < 6; ++f) file.add(510, 1, ",0,1,1," + std::to_string(loop + 2 * f));
    for (auto const& f : faces) {
      std::string oriented = ",4";
      for (int e : f)
        oriented += ",0," + std::to_string(edges) + "," + std::to_string(e + 1) + ",1,1,0," +
                    std::to_string(line + 2 * e);
      file.add(508, 1, oriented);
    }
    std::string edge_list = ",12";
    for (int e = 0; e < 12; ++e)
      for (int field : {line + 2 * e, vertices, ends[e][0] + 1, vertices, ends[e][1] + 1})
        edge_list.append(",").append(std::to_string(field));
    file.add(504, 1, edge_list);
    std::string corners = ",8";
    corners += reals.fields(24);
    file.add(502, 1, corners);
    for (int e = 0; e < 12; ++e) {
      file.add(110, 0, reals.fields(6));
    }
  }
  return file.text();
}

void BM_ReadSolids(benchmark::State& state) {
  static Generated const g = generate_solids(50u << 20);
  measure_read(state, g);
}
BENCHMARK(BM_ReadSolids)->Unit(benchmark::kMillisecond)->Iterations(3);
// ---- End of the boundary representation.

// ---- Structure: transformation matrices, directions, groups, views, drawings and subfigures.
// A file in units of 17 entities: a matrix, a direction, eight points placed by the matrix, an
// unordered group of the points, a planar group of four of them with the matrix, a view, a
// drawing of the view and four points, a subfigure definition of the points and an instance
// of it, and an ordered group of the two groups.
Generated generate_structure(std::size_t at_least) {
  RecordText file;
  Reals reals;
  auto list = [](std::vector<int> const& members) {
    std::string text = "," + std::to_string(members.size());
    for (int m : members) text += "," + std::to_string(m);
    return text;
  };
  for (int view_number = 1; file.d.size() + file.p.size() < at_least; ++view_number) {
    int matrix = file.add(124, 0,
                          ",0.,-1.,0.," + reals.next() + ",1.,0.,0.," + reals.next() +
                              ",0.,0.,1.," + reals.next());
    file.add(123, 0, ",0.6,0.,0.8");
    std::vector<int> points;
    for (int i = 0; i < 8; ++i) points.push_back(file.add(116, 0, reals.fields(3) + ",0", matrix));
    int group = file.add(402, 7, list(points));
    int planar = file.add(402, 16,
                          ",1,4," + std::to_string(matrix) +
                              list({points[0], points[1], points[2], points[3]}).substr(2));
    int view = file.add(410, 0, "," + std::to_string(view_number) + ",1.,0,0,0,0,0,0");
    file.add(404, 0,
             ",1," + std::to_string(view) + ",0.,0." +
                 list({points[4], points[5], points[6], points[7]}));
    int definition = file.add(308, 0, ",0,4HPART" + list(points));
    file.add(408, 0,
             "," + std::to_string(definition) + "," + reals.next() + "," + reals.next() + ",0.,1.");
    file.add(402, 15, list({group, planar}));
  }
  return file.text();
}

void BM_ReadStructureFile(benchmark::State& state) {
  static Generated const g = generate_structure(20u << 20);
  measure_read(state, g);
}
BENCHMARK(BM_ReadStructureFile)->Unit(benchmark::kMillisecond)->Iterations(3);
// ---- End of the structure entities.

// ---- B-spline curves: rational B-spline curves as CAD systems write them, cubic, of 4 to 19
// control points over clamped knots, now polynomial (weights of 1.) and now rational, with
// reals of about a dozen digits, which make nearly all of such a file.
Generated generate_bspline_curves(std::size_t at_least) {
  RecordText file;
  Reals reals;
  // Strings are appended, not joined with +: a literal + a string trips a false -Wrestrict of
  // g++ 12 at -O2.
  auto real = [](double value) {
    char text[32];
    std::snprintf(text, sizeof text, ",%.12g", value);
    return std::string(text);
  };
  for (int index = 0; file.d.size() + file.p.size() < at_least; ++index) {
    int const degree = 3;
    int const points = 4 + index % 16;
    bool const rational = index % 4 == 3;
    std::string fields(",");
    fields.append(std::to_string(points - 1)).append(",").append(std::to_string(degree));
    fields.append(rational ? ",0,0,0,0" : ",0,0,1,0");
    int const spans = points - degree;
    for (int i = 0; i <= degree; ++i) fields.append(",0.");
    for (int i = 1; i < spans; ++i) fields.append(real(static_cast<double>(i) / spans));
    for (int i = 0; i <= degree; ++i) fields.append(",1.");
    for (int i = 0; i < points; ++i)
      fields.append(rational && i % 3 ? real(0.5 + i % 3 * 0.25) : ",1.");
    for (int i = 0; i < 3 * points; ++i) fields.append(",").append(reals.next());
    fields.append(",0.,1.,0.,0.,0.");
    file.add(126, 0, fields);
  }
  return file.text();
}

void BM_ReadBsplineCurves(benchmark::State& state) {
  static Generated const g = generate_bspline_curves(50u << 20);
  measure_read(state, g);
}
BENCHMARK(BM_ReadBsplineCurves)->Unit(benchmark::kMillisecond)->Iterations(3);
// ---- End of the B-spline curves.

// ---- Surfaces: planes, spline, swept and analytic surfaces on their points, lines and arcs.
// Each unit holds a point, two directions, a line and an arc; a bounded plane on the arc; a
// ruled surface, a surface of revolution and a tabulated cylinder on the line and the arc; a
// plane surface, cylinder, cone, sphere and torus in their parameterised form on the point and
// the directions; and a spline surface of two by two patches.

Generated generate_surfaces(std::size_t at_least) {
  RecordText file;
  Reals reals;
  auto values = [&](int count) { return reals.fields(count); };
  auto to = pointer_field;
  while (file.d.size() + file.p.size() < at_least) {
    std::string point = to(file.add(116, 0, values(3) + ",0"));
    std::string axis = to(file.add(123, 0, ",0.,0.,1."));
    std::string reference = to(file.add(123, 0, ",1.,0.,0."));
    std::string line = to(file.add(110, 0, values(6)));
    std::string arc = to(file.add(100, 0, ",0.,0.,0.,1.,0.,-1.,0."));
    file.add(108, 1, ",0.,0.,1.," + reals.next() + arc + values(3) + ",1.");
    file.add(118, 0, line + arc + ",0,0");
    file.add(120, 0, line + arc + ",0.,3.14159265358979");
    file.add(122, 0, arc + values(3));
    file.add(190, 1, point + axis + reference);
    file.add(192, 1, point + axis + ",2.5" + reference);
    file.add(194, 1, point + axis + ",2.5,30." + reference);
    file.add(196, 1, point + ",4." + axis + reference);
    file.add(198, 1, point + axis + ",5.,1." + reference);
    file.add(114, 0, ",3,1,1,1,0.,1.,0.,1." + values(4 * 48));
  }
  return file.text();
}

void BM_ReadSurfaces(benchmark::State& state) {
  static Generated const g = generate_surfaces(50u << 20);
  measure_read(state, g);
}
BENCHMARK(BM_ReadSurfaces)->Unit(benchmark::kMillisecond)->Iterations(3);
// ---- End of the surfaces.

// ---- Annotation: a drawing of notes, leaders, annotation curves, dimensions, general symbols
// and sectioned areas. Each unit holds two lines and a circle as the drawn geometry; a note of
// two strings and one of one; three leaders; two witness lines, a section line and a centre
// line; a linear, angular, curve, diameter, radius, ordinate and point dimension, a flag note
// and a general label; a general symbol and a sectioned area. Their Directory Entries give line
// font 0, which the check of a note or an annotation curve reports; reading takes it as it is.
Generated generate_annotation(std::size_t at_least) {
  RecordText file;
  Reals reals;
  auto values = [&](int count) { return reals.fields(count); };
  auto to = pointer_field;
  // One string of a note: its box, font, angles, flags, start point and text.
  auto word = [&](std::string const& text) {
    std::string fields = "," + std::to_string(text.size()) + ",12.5,3.5,1,1.5707963267949,0.,0,0";
    return fields.append(values(3)).append(",").append(std::to_string(text.size()) + "H" + text);
  };
  for (int unit = 0; file.d.size() + file.p.size() < at_least; ++unit) {
    std::string first = to(file.add(110, 0, values(6)));
    std::string second = to(file.add(110, 0, values(6)));
    std::string circle = to(file.add(100, 0, ",0.,0.,0.,5.,0.,5.,0."));
    std::string note = to(file.add(
        212, 0, ",2" + word("DIM " + std::to_string(unit)) + word("SEE DETAIL A-A, SHEET 2")));
    std::string label = to(file.add(212, 0, ",1" + word("R" + std::to_string(unit % 97))));
    std::string leader[3];
    for (std::string& l : leader) l = to(file.add(214, 1, ",2,3.,1.,0." + values(6)));
    std::string witness[2];
    for (std::string& w : witness) w = to(file.add(106, 40, ",1,3,0." + values(6)));
    file.add(106, 31, ",1,2,0." + values(4));
    file.add(106, 20, ",1,2,0." + values(4));
    file.add(216, 0, note + leader[0] + leader[1] + witness[0] + witness[1]);
    file.add(202, 0, note + witness[0] + witness[1] + values(2) + ",25." + leader[0] + leader[1]);
    file.add(204, 0, note + first + second + leader[0] + leader[1] + witness[0] + witness[1]);
    file.add(206, 0, note + leader[0] + leader[1] + values(2));
    file.add(222, 0, label + leader[2] + values(2));
    file.add(218, 0, label + witness[0]);
    file.add(220, 0, label + leader[2] + circle);
    file.add(208, 0, values(4) + label + ",1" + leader[2]);
    file.add(210, 0, label + ",2" + leader[0] + leader[1]);
    file.add(228, 1, note + ",2" + first + second + ",1" + leader[2]);
    file.add(230, 0, circle + ",1" + values(3) + ",2.5,0.785398163397448,0");
  }
  return file.text();
}

void BM_ReadAnnotation(benchmark::State& state) {
  static Generated const g = generate_annotation(20u << 20);
  measure_read(state, g);
}
BENCHMARK(BM_ReadAnnotation)->Unit(benchmark::kMillisecond)->Iterations(3);
// ---- End of the annotation.

} // namespace

// ---- Trimmed surfaces: bicubic B-spline surfaces of 6 to 13 by 6 control points, each
// trimmed by an outer boundary of four B-spline curves in parameter space and one in model
// space, joined by a curve on the surface, as CAD systems send a face.
Generated generate_trimmed_surfaces(std::size_t at_least) {
  RecordText file;
  Reals reals;
  auto append_knots = [](std::string& fields, int points) {
    int const spans = points - 3;
    fields.append(",0.,0.,0.,0.");
    for (int i = 1; i < spans; ++i) fields.append(",").append(std::to_string(i)).append(".");
    for (int i = 0; i < 4; ++i) fields.append(",").append(std::to_string(spans)).append(".");
  };
  auto curve = [&](int points, bool planar) {
    std::string fields(",");
    fields.append(std::to_string(points - 1)).append(",3,").append(planar ? "1" : "0");
    fields.append(",0,1,0");
    append_knots(fields, points);
    for (int i = 0; i < points; ++i) fields.append(",1.");
    for (int i = 0; i < points; ++i)
      fields.append(",")
          .append(reals.next())
          .append(",")
          .append(reals.next())
          .append(planar ? ",0." : "," + reals.next());
    fields.append(",0.,").append(std::to_string(points - 3)).append(".,0.,0.,1.");
    return file.add(126, 0, fields);
  };
  for (int index = 0; file.d.size() + file.p.size() < at_least; ++index) {
    int const n_u = 6 + index % 8, n_v = 6;
    std::string fields(",");
    fields.append(std::to_string(n_u - 1)).append(",").append(std::to_string(n_v - 1));
    fields.append(",3,3,0,0,1,0,0");
    append_knots(fields, n_u);
    append_knots(fields, n_v);
    for (int i = 0; i < n_u * n_v; ++i) fields.append(",1.");
    for (int i = 0; i < 3 * n_u * n_v; ++i) fields.append(",").append(reals.next());
    fields.append(",0.,").append(std::to_string(n_u - 3)).append(".,0.,3.");
    int surface = file.add(128, 0, fields);
    int first = 0;
    for (int side = 0; side < 4; ++side) {
      int de = curve(4 + side, true);
      if (!side) first = de;
    }
    int composite = file.add(102, 0,
                             ",4," + std::to_string(first) + "," + std::to_string(first + 2) + "," +
                                 std::to_string(first + 4) + "," + std::to_string(first + 6));
    int model = curve(8, false);
    int on_surface = file.add(142, 0,
                              ",0," + std::to_string(surface) + "," + std::to_string(composite) +
                                  "," + std::to_string(model) + ",2");
    file.add(144, 0, "," + std::to_string(surface) + ",1,0," + std::to_string(on_surface));
  }
  return file.text();
}

void BM_ReadTrimmedSurfaces(benchmark::State& state) {
  static Generated const g = generate_trimmed_surfaces(50u << 20);
  measure_read(state, g);
}
BENCHMARK(BM_ReadTrimmedSurfaces)->Unit(benchmark::kMillisecond)->Iterations(3);

// A file named by IGS_BENCH_FILE, such as one that another system wrote: skipped when unset.
void BM_ReadNamedFile(benchmark::State& state) {
  char const* path = std::getenv("IGS_BENCH_FILE");
  if (!path || !*path) {
    state.SkipWithError("IGS_BENCH_FILE is not set");
    return;
  }
  static Generated g;
  if (g.text.empty()) {
    std::ifstream in(path, std::ios::binary);
    g.text.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }
  measure_read(state, g);
}
BENCHMARK(BM_ReadNamedFile)->Unit(benchmark::kMillisecond)->Iterations(3);
// ---- End of the trimmed surfaces.

// ---- Conics, parametric splines and offsets: in turn a conic arc (an ellipse), a parametric
// spline curve of 1 to 8 cubic segments with reals of about a dozen digits, a line and an
// offset of that line.
Generated generate_conic_spline_offsets(std::size_t at_least) {
  RecordText file;
  Reals reals;
  for (int index = 0; file.d.size() + file.p.size() < at_least; ++index) {
    std::string conic(",1.,0.,4.,0.,0.,-4.");
    conic.append(",").append(reals.next()).append(",2.,0.,0.,1.");
    file.add(104, 1, conic);
    int const segments = 1 + index % 8;
    std::string spline(",3,2,3,");
    spline.append(std::to_string(segments));
    for (int i = 0; i <= segments; ++i) spline.append(",").append(std::to_string(i)).append(".");
    for (int i = 0; i < 12 * segments + 12; ++i) spline.append(",").append(reals.next());
    file.add(112, 0, spline);
    std::string line;
    for (int i = 0; i < 6; ++i) line.append(",").append(reals.next());
    int basis = file.add(110, 0, line);
    std::string offset(",");
    offset.append(std::to_string(basis)).append(",1,0,0,0,").append(reals.next());
    offset.append(",0.,0.,0.,0.,0.,1.,0.,1.");
    file.add(130, 0, offset);
  }
  return file.text();
}

void BM_ReadConicSplineOffsets(benchmark::State& state) {
  static Generated const g = generate_conic_spline_offsets(50u << 20);
  measure_read(state, g);
}
BENCHMARK(BM_ReadConicSplineOffsets)->Unit(benchmark::kMillisecond)->Iterations(3);
// ---- End of the conics, parametric splines and offsets.

// ---- Attributes: geometry drawn in defined colours and line fonts, with names and the
// definitions of text. Each unit holds a colour definition (cyan, the nearest predefined
// colour), a name property and ten lines
// whose Directory Entries name that colour and a line font pattern; every fiftieth unit adds a
// line font pattern, a text font of two characters, a text template and an external reference.
namespace {

Generated generate_attributes(std::size_t at_least) {
  RecordText file;
  Reals reals;
  int pattern = 0;
  for (int unit = 0; file.d.size() + file.p.size() < at_least; ++unit) {
    if (unit % 50 == 0) {
      pattern = file.add(304, 2, ",4,2.,1.,0.5,1.,1H5", 0, 1);
      int font = file.add(310, 0, ",1001,6HSIMPLX,1,8,2,65,9,0,2,1,4,8,0,0,0,66,9,0,1,0,0,8");
      file.add(312, 0,
               ",12.5,3.5," + std::to_string(-font) + ",1.5707963267949,0.,0,0" + reals.fields(3));
      file.add(416, 1, ",15Hpart-" + std::to_string(100000 + unit % 900000) + ".igs");
    }
    int colour =
        file.add(314, 0, ",25.,50.,75.,8HSTEEL-" + std::to_string(10 + unit % 90), 0, 0, 7);
    file.add(406, 15, ",1,9HPART-" + std::to_string(1000 + unit % 9000));
    for (int i = 0; i < 10; ++i) file.add(110, 0, reals.fields(6), 0, -pattern, -colour);
  }
  return file.text();
}

void BM_ReadAttributes(benchmark::State& state) {
  static Generated const g = generate_attributes(50u << 20);
  measure_read(state, g);
}
BENCHMARK(BM_ReadAttributes)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
// ---- End of the attributes.
