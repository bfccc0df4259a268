# The two set-up commands: `make run` and `make test`. Both install what is missing first.
BUILD_DIR ?= build
BUILD_TYPE ?= Release
JOBS ?= $(shell nproc)
SANITIZE_DIR ?= build-sanitize
FUZZ_DIR ?= build-fuzz
FUZZ_SECONDS ?= 60
# Extra libFuzzer flags, e.g. FUZZ_FLAGS=-jobs=1 for a run in a child process.
FUZZ_FLAGS ?=

.PHONY: all deps check-deps configure build run test test-sanitize fuzz bench install clean

all: build

deps:
	@scripts/install-deps.sh

# Fails, naming the package, when the build or the tests use a package the install step lacks.
check-deps: deps
	@scripts/check-deps.sh

configure: deps
	@cmake -S . -B $(BUILD_DIR) -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) >/dev/null

build: configure
	@cmake --build $(BUILD_DIR) -j $(JOBS)

run: build
	$(BUILD_DIR)/app/pelodine

test: build
	cd $(BUILD_DIR) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

# Any sanitizer report fails the run, also one from a program a test starts and whose status
# it does not check: ASan and LSan write their reports to $(SANITIZE_DIR)/reports, UBSan stops the
# program, and both exit with a status no test expects. Leaks are checked; only Qt's own are
# suppressed (fast_unwind_on_malloc=0 gives the full allocation stacks the suppressions match).
SANITIZE_REPORTS = $(abspath $(SANITIZE_DIR))/reports
SANITIZE_ENV = ASAN_OPTIONS=exitcode=86:log_path=$(SANITIZE_REPORTS)/asan:detect_leaks=1:fast_unwind_on_malloc=0:detect_stack_use_after_return=1:strict_init_order=1:check_initialization_order=1 \
	LSAN_OPTIONS=suppressions=$(CURDIR)/tests/lsan-suppressions.txt:print_suppressions=0:use_tls=0 \
	UBSAN_OPTIONS=exitcode=86:halt_on_error=1:print_stacktrace=1

test-sanitize: deps
	@cmake -S . -B $(SANITIZE_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DPELODINE_SANITIZE=ON >/dev/null
	@cmake --build $(SANITIZE_DIR) -j $(JOBS)
	@rm -rf $(SANITIZE_REPORTS) && mkdir -p $(SANITIZE_REPORTS)
	@cd $(SANITIZE_DIR) && QT_QPA_PLATFORM=offscreen $(SANITIZE_ENV) ctest --output-on-failure -j $(JOBS); \
	status=$$?; \
	if [ -n "$$(ls -A $(SANITIZE_REPORTS))" ]; then cat $(SANITIZE_REPORTS)/*; status=1; fi; \
	exit $$status

# Runs each fuzzer FUZZ_SECONDS long: the flow reader over the seeds in fuzz/corpus/flow, the
# JPEG read shrunk row by row against the photo read whole over fuzz/corpus/jpeg. What they find
# new goes to $(FUZZ_DIR)/corpus/<name>, a crash to $(FUZZ_DIR)/artifacts; the repo stays as it is.
fuzz: deps
	@CC=clang CXX=clang++ cmake -S . -B $(FUZZ_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo \
		-DPELODINE_FUZZ=ON -DBUILD_TESTING=OFF >/dev/null
	@cmake --build $(FUZZ_DIR) -j $(JOBS) --target fuzz_flow fuzz_jpeg
	@mkdir -p $(FUZZ_DIR)/corpus/flow $(FUZZ_DIR)/corpus/jpeg $(FUZZ_DIR)/artifacts
	cd $(FUZZ_DIR) && LSAN_OPTIONS=suppressions=$(CURDIR)/tests/lsan-suppressions.txt \
		./fuzz/fuzz_flow -max_total_time=$(FUZZ_SECONDS) \
		-dict=$(CURDIR)/fuzz/flow.dict -artifact_prefix=artifacts/ $(FUZZ_FLAGS) \
		corpus/flow $(CURDIR)/fuzz/corpus/flow
	cd $(FUZZ_DIR) && LSAN_OPTIONS=suppressions=$(CURDIR)/tests/lsan-suppressions.txt \
		./fuzz/fuzz_jpeg -max_total_time=$(FUZZ_SECONDS) -max_len=65536 \
		-artifact_prefix=artifacts/ $(FUZZ_FLAGS) corpus/jpeg $(CURDIR)/fuzz/corpus/jpeg

BENCHMARKS = bench_kernels bench_flow bench_preview bench_batch

bench: build
	@for b in $(BENCHMARKS); do echo "== $$b"; QT_QPA_PLATFORM=offscreen $(BUILD_DIR)/bench/$$b || exit 1; done

install: build
	cmake --install $(BUILD_DIR)

clean:
	rm -rf $(BUILD_DIR)
