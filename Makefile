# Front door for the two everyday jobs; CMake does the work underneath.
#   make run             build the igs tool and run it on the shipped damaged sample
#   make test            build everything and run all tests
#   make test-sanitize   the same tests built with AddressSanitizer + UndefinedBehaviorSanitizer
JOBS ?= 2
BUILD ?= build
SANITIZE_BUILD ?= build-sanitize
CMAKE_FLAGS ?=

.PHONY: all run samples test test-sanitize bench clean

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

bench: all
	@for b in $(BUILD)/bench/*_bench; do echo "== $$b"; $$b; done

clean:
	rm -rf $(BUILD) $(SANITIZE_BUILD)
