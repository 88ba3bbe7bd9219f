# Front door for the two everyday jobs; CMake does the work underneath.
#   make run             build the igs tool and run it on the shipped damaged sample
#   make test            build everything and run all tests
#   make test-sanitize   the same tests built with AddressSanitizer + UndefinedBehaviorSanitizer
#   make fuzz            the whole-road fuzzer for FUZZ_SECONDS (clang, libFuzzer)
#   make coverage        line coverage of source/ reached by the fuzz corpus and kept inputs
JOBS ?= 2
BUILD ?= build
SANITIZE_BUILD ?= build-sanitize
FUZZ_BUILD ?= build-fuzz
COVERAGE_BUILD ?= build-coverage
COVERAGE_TESTS_BUILD ?= build-coverage-tests
FUZZ_SECONDS ?= 180
IGS_CORPUS_DIR ?= ../shared/corpus/real
CMAKE_FLAGS ?=

.PHONY: all run samples test test-sanitize fuzz coverage coverage-tests bench clean

all:
	cmake -S . -B $(BUILD) $(CMAKE_FLAGS)
	cmake --build $(BUILD) -j $(JOBS)

# check exits 1 when it finds errors, which is the point of the damaged sample.
run: all
	./$(BUILD)/tools/igs check examples/bracket-damaged.igs || test $$? -eq 1
	./$(BUILD)/tools/igs repair examples/bracket-damaged.igs -o $(BUILD)/bracket-repaired.igs
	./$(BUILD)/tools/igs check $(BUILD)/bracket-repaired.igs

# Writes examples/bracket.igs and examples/bracket-damaged.igs again.
samples: all
	./$(BUILD)/igs_make_samples examples

test: all
	ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS)

test-sanitize:
	CC=clang CXX=clang++ cmake -S . -B $(SANITIZE_BUILD) -DIGS_SANITIZE=ON -DIGS_BUILD_BENCH=OFF \
	  -DCMAKE_BUILD_TYPE=Debug $(CMAKE_FLAGS)
	cmake --build $(SANITIZE_BUILD) -j $(JOBS)
	ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
	  ctest --test-dir $(SANITIZE_BUILD) --output-on-failure -j $(JOBS)

# New inputs go to $(FUZZ_BUILD)/corpus; the seeds are ours, the kept inputs, and the real
# files when present (cut to -max_len). A crash, leak, sanitizer report or 5 s hang fails.
fuzz:
	CC=clang CXX=clang++ cmake -S . -B $(FUZZ_BUILD) -DIGS_BUILD_FUZZ=ON -DIGS_SANITIZE=ON \
	  -DIGS_BUILD_TESTS=OFF -DIGS_BUILD_BENCH=OFF -DIGS_BUILD_TOOLS=OFF $(CMAKE_FLAGS)
	cmake --build $(FUZZ_BUILD) -j $(JOBS) --target file_fuzz
	mkdir -p $(FUZZ_BUILD)/corpus
	cd $(FUZZ_BUILD) && ASAN_OPTIONS=detect_leaks=1 ./fuzz/file_fuzz corpus \
	  $(CURDIR)/fuzz/seeds $(CURDIR)/examples $(CURDIR)/tests/fuzz/regressions \
	  $(abspath $(wildcard $(IGS_CORPUS_DIR))) -dict=$(CURDIR)/fuzz/igs.dict -timeout=5 -max_len=16384 \
	  -max_total_time=$(FUZZ_SECONDS) -print_final_stats=1

# Replays the fuzz corpus (from `make fuzz`), the seeds and the kept inputs through the
# whole road in an instrumented build, and reports the lines of source/ they reach.
coverage:
	CC=clang CXX=clang++ cmake -S . -B $(COVERAGE_BUILD) -DIGS_COVERAGE=ON \
	  -DIGS_BUILD_TESTS=OFF -DIGS_BUILD_BENCH=OFF -DIGS_BUILD_TOOLS=OFF $(CMAKE_FLAGS)
	cmake --build $(COVERAGE_BUILD) -j $(JOBS) --target file_fuzz
	rm -f $(COVERAGE_BUILD)/*.profraw
	LLVM_PROFILE_FILE=$(COVERAGE_BUILD)/replay.profraw ./$(COVERAGE_BUILD)/fuzz/file_fuzz \
	  $(wildcard $(FUZZ_BUILD)/corpus) fuzz/seeds examples tests/fuzz/regressions
	llvm-profdata-14 merge -o $(COVERAGE_BUILD)/replay.profdata $(COVERAGE_BUILD)/replay.profraw
	llvm-cov-14 report ./$(COVERAGE_BUILD)/fuzz/file_fuzz -instr-profile=$(COVERAGE_BUILD)/replay.profdata \
	  $(CURDIR)/source | sed -n '1p;$$p'

# Line coverage of source/ by the test suite (clang): runs every test in an instrumented build
# and prints the total; $(COVERAGE_BUILD)/tests.lcov holds the lines, for a diff between runs.
coverage-tests:
	CC=clang CXX=clang++ cmake -S . -B $(COVERAGE_TESTS_BUILD) -DIGS_COVERAGE=ON -DIGS_BUILD_TESTS=ON \
	  -DIGS_BUILD_TOOLS=ON -DIGS_BUILD_BENCH=OFF -DIGS_CORPUS_DIR=$(abspath $(IGS_CORPUS_DIR)) \
	  $(CMAKE_FLAGS)
	cmake --build $(COVERAGE_TESTS_BUILD) -j $(JOBS)
	rm -rf $(COVERAGE_TESTS_BUILD)/profiles && mkdir -p $(COVERAGE_TESTS_BUILD)/profiles
	LLVM_PROFILE_FILE=$(CURDIR)/$(COVERAGE_TESTS_BUILD)/profiles/%p.profraw \
	  ctest --test-dir $(COVERAGE_TESTS_BUILD) -j $(JOBS) --output-on-failure
	llvm-profdata-14 merge -o $(COVERAGE_TESTS_BUILD)/tests.profdata $(COVERAGE_TESTS_BUILD)/profiles/*.profraw
	objects=$$(find $(COVERAGE_TESTS_BUILD)/tests $(COVERAGE_TESTS_BUILD)/tools -type f -perm -u+x \
	  -name 'igs*' | sed '2,$$s/^/-object /'); \
	llvm-cov-14 export -format=lcov -instr-profile=$(COVERAGE_TESTS_BUILD)/tests.profdata $$objects \
	  $(CURDIR)/source > $(COVERAGE_TESTS_BUILD)/tests.lcov; \
	llvm-cov-14 report -instr-profile=$(COVERAGE_TESTS_BUILD)/tests.profdata $$objects \
	  $(CURDIR)/source | sed -n '1p;$$p'

bench: all
	@for b in $(BUILD)/bench/*_bench; do echo "== $$b"; $$b; done

clean:
	rm -rf $(BUILD) $(SANITIZE_BUILD) $(FUZZ_BUILD) $(COVERAGE_BUILD) $(COVERAGE_TESTS_BUILD)
