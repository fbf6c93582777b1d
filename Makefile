# Newcomer entry points: `make demo` and `make test`. Everything builds into build/.
BUILD      ?= build
ASAN_BUILD ?= build-asan
FUZZ_SECONDS ?= 30
JOBS       ?= $(shell nproc 2>/dev/null || echo 2)
DEMO_DIR   ?= demo-content

.PHONY: all deps build configure demo test install asan-test tsan-test bench fuzz format format-check clean

all: build

# ccache, when the machine has it, lets several checkouts of the tree share compiled objects.
CCACHE     := $(shell command -v ccache 2>/dev/null)
LAUNCHER   := $(if $(CCACHE),-DCMAKE_CXX_COMPILER_LAUNCHER=$(CCACHE))
export CCACHE_BASEDIR := $(CURDIR)
# Lets ccache cache the objects built against precompiled headers too.
export CCACHE_SLOPPINESS := pch_defines,time_macros,include_file_mtime,include_file_ctime

# The Debian packages the project needs, installed when missing (tools/install-deps).
deps:
	@./tools/install-deps

$(BUILD)/CMakeCache.txt: | deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release $(LAUNCHER)

configure: $(BUILD)/CMakeCache.txt

build: configure
	cmake --build $(BUILD) -j $(JOBS)

test: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

# The libraries, the headers a host needs, the tool, the CMake package and lumora.pc.
PREFIX     ?= /usr/local
install: build
	cmake --install $(BUILD) --prefix $(PREFIX)

demo: build
	./tools/demo.sh $(BUILD)/lumora $(DEMO_DIR)

# The sanitizer build uses clang when the machine has it, so that the fuzz targets are built
# from the same objects instead of a third build of the library. It compiles the library in
# batches: the release build, file by file, is the one that checks each file's own includes.
SAN_CXX    ?= $(shell command -v clang++ >/dev/null 2>&1 && echo clang++ || echo c++)

$(ASAN_BUILD)/CMakeCache.txt: | deps
	cmake -S . -B $(ASAN_BUILD) -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=$(SAN_CXX) $(LAUNCHER) \
	  -DLUMORA_SANITIZE=ON -DLUMORA_FUZZ=ON -DLUMORA_BENCH=OFF -DLUMORA_UNITY=ON

asan-test: $(ASAN_BUILD)/CMakeCache.txt
	cmake --build $(ASAN_BUILD) -j $(JOBS)
	cd $(ASAN_BUILD) && ctest --output-on-failure -j $(JOBS)

# The thread tests under ThreadSanitizer: the library and those tests only.
TSAN_BUILD ?= build-tsan

$(TSAN_BUILD)/CMakeCache.txt: | deps
	cmake -S . -B $(TSAN_BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=$(SAN_CXX) \
	  $(LAUNCHER) -DLUMORA_TSAN=ON -DLUMORA_BENCH=OFF -DLUMORA_UNITY=ON

tsan-test: $(TSAN_BUILD)/CMakeCache.txt
	cmake --build $(TSAN_BUILD) -j $(JOBS) --target lumora_thread_tests
	TSAN_OPTIONS=halt_on_error=1 $(TSAN_BUILD)/tests/lumora_thread_tests

bench: build
	@for b in $(BUILD)/bench/*_bench; do python3 bench/ratios.py $$b; done

# Each fuzz target runs for FUZZ_SECONDS, starting from seeds written from the sample content and
# from the broken files of tests/corpus; what it finds goes into a working corpus beside them
# that later runs start from too, and a crashing input into FUZZ_DIR (minimise it and add it to
# tests/corpus with the findings it must give). Needs clang.
FUZZ_DIR   := $(ASAN_BUILD)/fuzz

fuzz: $(ASAN_BUILD)/CMakeCache.txt
	@grep -q 'CMAKE_CXX_COMPILER:.*clang' $(ASAN_BUILD)/CMakeCache.txt || \
	  { echo "make fuzz needs $(ASAN_BUILD) configured with clang"; exit 1; }
	cmake --build $(ASAN_BUILD) -j $(JOBS) --target fuzz_targets
	rm -rf $(FUZZ_DIR)/sample $(FUZZ_DIR)/seeds
	$(ASAN_BUILD)/lumora sample $(FUZZ_DIR)/sample > /dev/null
	$(FUZZ_DIR)/fuzz_seeds $(FUZZ_DIR)/sample $(FUZZ_DIR)/seeds
	$(FUZZ_DIR)/fuzz_seeds tests/corpus $(FUZZ_DIR)/seeds
	@for f in $(FUZZ_DIR)/*_fuzz; do \
	  t=$$(basename $$f); mkdir -p $(FUZZ_DIR)/corpus/$$t; \
	  echo "fuzzing $$t for $(FUZZ_SECONDS) s"; \
	  $$f -max_total_time=$(FUZZ_SECONDS) -rss_limit_mb=2048 -artifact_prefix=$(FUZZ_DIR)/$$t- \
	    $(FUZZ_DIR)/corpus/$$t $(FUZZ_DIR)/seeds/$$t > $$f.log 2>&1 \
	    || { tail -n 40 $$f.log; exit 1; }; \
	  tail -n 1 $$f.log; \
	done

format:
	git ls-files -co --exclude-standard '*.h' '*.cpp' | xargs clang-format -i

format-check:
	git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run -Werror

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(TSAN_BUILD) $(DEMO_DIR) $(DEMO_DIR)-rebuilt $(DEMO_DIR)-logs $(DEMO_DIR)-export
