# Front door for the two everyday jobs; CMake does the work underneath.
#   make run             build the igs tool and run it on the shipped damaged sample
#   make test            build everything and run all tests
#   make test-sanitize   the same tests built with AddressSanitizer + UndefinedBehaviorSanitizer
JOBS ?= 2
BUILD ?= build
SANITIZE_BUILD ?= build-sanitize
CMAKE_FLAGS ?=

.PHONY: all run test test-sanitize bench clean

all:
	cmake -S . -B $(BUILD) $(CMAKE_FLAGS)
	cmake --build $(BUILD) -j $(JOBS)

run: all
	@echo "igs: the check / repair demo on examples/ arrives with the file reader; for now:"
	./$(BUILD)/tools/igs --version

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
