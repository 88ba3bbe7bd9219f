// Cost of the object core as a file grows: N entities are created, each with three references
// (two to earlier entities, one forward by DE number to an entity not made yet), every tenth is
// replaced by a new entity, and all are deleted. The counters give nanoseconds per entity for
// each phase and for the whole life cycle, beside a floor measured in the same iteration: the
// same blocks, pointer stores and reference counts on plain structs, with no registration.
// The cost per entity must stay flat from 10k to 1M entities.
#include "core/igsFile.h"
#include "core/igsObject.h"
#include "core/igsObjectPtr.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <ctime>
#include <vector>

namespace {

class BenchNode : public igsObject {
  KVU_DECLARE_TYPE()
 public:
  BenchNode() { set_directory_entry_type(static_cast<igsEntityType>(9002), 0); }
  igsObjectPtr refs[3];

 protected:
  igsObject* make_one() override { return new BenchNode; }
  int read_pd_data(igsInStream&) override { return 0; }
  void write_pd_data(igsOutStream&) override {}
  void print_pd_data(utOstream&) const override {}
  void check_pd() const override {}
  void check_de() const override {}
};
KVU_DEFINE_TYPE(BenchNode, igsObject)

// The floor's entity: one block of the size of ours (an entity holds its manager and its
// Directory Entry), with a reference count in it that each reference raises, so that the floor
// touches the target as any counted reference must. It does no registration.
struct PlainNode {
  virtual ~PlainNode() {
    for (PlainNode* r : refs)
      if (r) --r->count;
  }
  void refer(int i, PlainNode* target) {
    refs[i] = target;
    ++target->count;
  }
  int count = 0;
  char rest[sizeof(BenchNode) - sizeof(void*) - 3 * sizeof(PlainNode*) - sizeof(int)] = {};
  PlainNode* refs[3] = {};
};

// Earlier entities picked by a cheap generator, the same for ours and the floor: among the
// last hundred, as in files where children are written just before their parents.
struct Picker {
  std::uint32_t state = 12345;
  int earlier(int i) {
    state = state * 1664525u + 1013904223u;
    std::uint32_t r = state >> 8;
    int window = i < 100 ? i : 100;
    return i - 1 - static_cast<int>((r >> 3) % static_cast<std::uint32_t>(window));
  }
};

// Time on this thread's CPU, so that other work on a shared machine does not count.
struct Clock {
  using time_point = double;
  static double now() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
  }
};
double seconds(double from, double to) {
  return to - from;
}

struct Phases {
  double create = 0, replace = 0, remove = 0;
  double total() const { return create + replace + remove; }
  void add(Clock::time_point t0, Clock::time_point t1, Clock::time_point t2, Clock::time_point t3) {
    create += seconds(t0, t1);
    replace += seconds(t1, t2);
    remove += seconds(t2, t3);
  }
};

void ours(int n, Phases& phases) {
  auto* file = new igsFile;
  std::vector<BenchNode*> nodes(static_cast<size_t>(n));
  Picker pick;
  auto t0 = Clock::now();
  for (int i = 0; i < n; ++i) {
    auto* node = new BenchNode;
    nodes[static_cast<size_t>(i)] = node;
    if (i > 0) {
      node->refs[0] = nodes[static_cast<size_t>(pick.earlier(i))];
      node->refs[1] = nodes[static_cast<size_t>(pick.earlier(i))];
    }
    int ahead = i + 7 < n ? i + 7 : n - 1;
    node->refs[2] = igsObjectPtr(2 * ahead + 1);
  }
  auto t1 = Clock::now();
  for (int i = 0; i < n; i += 10) {
    auto* replacement = new BenchNode;
    file->replace_entity(nodes[static_cast<size_t>(i)], replacement);
    nodes[static_cast<size_t>(i)] = replacement;
  }
  auto t2 = Clock::now();
  for (BenchNode* node : nodes) delete node;
  auto t3 = Clock::now();
  phases.add(t0, t1, t2, t3);
  benchmark::DoNotOptimize(file->num_entities());
  delete file;
}

void floor(int n, Phases& phases) {
  std::vector<PlainNode*> nodes(static_cast<size_t>(n));
  Picker pick;
  auto t0 = Clock::now();
  for (int i = 0; i < n; ++i) nodes[static_cast<size_t>(i)] = new PlainNode;
  for (int i = 0; i < n; ++i) {
    PlainNode* node = nodes[static_cast<size_t>(i)];
    if (i > 0) {
      node->refer(0, nodes[static_cast<size_t>(pick.earlier(i))]);
      node->refer(1, nodes[static_cast<size_t>(pick.earlier(i))]);
    }
    node->refer(2, nodes[static_cast<size_t>(i + 7 < n ? i + 7 : n - 1)]);
  }
  auto t1 = Clock::now();
  for (int i = 0; i < n; i += 10) {
    auto* replacement = new PlainNode;
    replacement->count = nodes[static_cast<size_t>(i)]->count;
    nodes[static_cast<size_t>(i)]->refs[0] = nodes[static_cast<size_t>(i)]->refs[1] = nullptr;
    nodes[static_cast<size_t>(i)]->refs[2] = nullptr;
    delete nodes[static_cast<size_t>(i)];
    nodes[static_cast<size_t>(i)] = replacement;
  }
  auto t2 = Clock::now();
  // Referenced nodes may go first: the counts are dropped before the blocks are freed.
  for (PlainNode* node : nodes) node->refs[0] = node->refs[1] = node->refs[2] = nullptr;
  for (PlainNode* node : nodes) delete node;
  auto t3 = Clock::now();
  phases.add(t0, t1, t2, t3);
}

void BM_EntityLifeCycle(benchmark::State& state) {
  int n = static_cast<int>(state.range(0));
  Phases mine, base;
  // One untimed round of each first, so that neither pays for the process's first touch of
  // the pages the heap grows into, which the one that runs first would otherwise pay alone.
  Phases warm_up;
  ours(n, warm_up);
  floor(n, warm_up);
  for (auto _ : state) {
    ours(n, mine);
    floor(n, base);
  }
  double entities = static_cast<double>(n) * static_cast<double>(state.iterations());
  double replaced = static_cast<double>((n + 9) / 10) * static_cast<double>(state.iterations());
  state.counters["create_ns"] = mine.create * 1e9 / entities;
  state.counters["replace_ns"] = mine.replace * 1e9 / replaced;
  state.counters["delete_ns"] = mine.remove * 1e9 / entities;
  state.counters["ns/op"] = mine.total() * 1e9 / entities;
  state.counters["floor_ns/op"] = base.total() * 1e9 / entities;
  state.counters["ratio"] = base.total() / mine.total();
}
BENCHMARK(BM_EntityLifeCycle)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

} // namespace
