# The two set-up commands: `make run` and `make test`. Both install what is missing first.
BUILD_DIR ?= build
BUILD_TYPE ?= Release
JOBS ?= $(shell nproc)

.PHONY: all deps check-deps configure build run test bench install clean

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

BENCHMARKS = bench_kernels bench_flow bench_preview bench_batch

bench: build
	@for b in $(BENCHMARKS); do echo "== $$b"; QT_QPA_PLATFORM=offscreen $(BUILD_DIR)/bench/$$b || exit 1; done

install: build
	cmake --install $(BUILD_DIR)

clean:
	rm -rf $(BUILD_DIR)
